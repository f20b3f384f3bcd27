#pragma once

#include <functional>

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QtPlugin>

/// What is loaded at need: large libraries that most runs of the program do without. Each stands in a module
/// of its own beside the program, which alone links the library.

/// A sound player; the module gives it an owner.
class TLejatszo {
public:
    virtual ~TLejatszo() = default;
    /// Ends the sound and lets its file go.
    virtual void ures() = 0;
    /// Plays a file from its beginning.
    virtual void ujFajl(const QString& fajl) = 0;
    virtual void lejatszas() = 0;
    virtual void szunet() = 0;
    virtual void megallitas() = 0;
};

class THangModul {
public:
    virtual ~THangModul() = default;
    /// @param hiba  told the number and the text of each fault
    virtual TLejatszo* ujLejatszo(QObject& tulajdonos, std::function<void(int, const QString&)> hiba) = 0;
};
Q_DECLARE_INTERFACE(THangModul, "org.korvend.hang/1")

class TKulcsModul {
public:
    virtual ~TKulcsModul() = default;
    /// PBKDF2 with HMAC-SHA256. @return empty if the library fails
    virtual QByteArray kulcs(const QByteArray& jelszo, const QByteArray& so, int ismetlesek, int hossz) = 0;
    /// Whether two keys are the same, in a time that does not tell where they differ.
    virtual bool azonos(const QByteArray& egyik, const QByteArray& masik) = 0;
};
Q_DECLARE_INTERFACE(TKulcsModul, "org.korvend.kulcs/1")

/// The root object of the module of that name; nullptr if it or a library that it links is missing.
QObject* modulBetoltes(const char* nev);

inline THangModul* hangModul() {
    return qobject_cast<THangModul*>(modulBetoltes("korvend_hang"));
}
inline TKulcsModul* kulcsModul() {
    return qobject_cast<TKulcsModul*>(modulBetoltes("korvend_kulcs"));
}
