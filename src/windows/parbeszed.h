#pragma once

#include <QPrinter>
#include <QString>
#include <QUrl>
#include <QWidget>

/// The toolkit's own dialogs behind one small seam, so that tests can answer them.
class TParbeszed {
public:
    virtual ~TParbeszed() = default;

    /// Chosen file, empty on cancel. Accepting makes the file's folder the current directory, so that a sound
    /// file next to a chart is found.
    virtual QString megnyitando(QWidget* szulo, const QString& szuro);
    virtual QString mentendo(QWidget* szulo, const QString& szuro, const QString& fajlnev);
    /// Question with yes and no.
    virtual bool igen(QWidget* szulo, const QString& cim, const QString& kerdes);
    virtual void uzenet(QWidget* szulo, const QString& szoveg);
    /// One-line input; empty on cancel.
    virtual QString bekeres(QWidget* szulo, const QString& cim, const QString& felirat);
    /// Printer set-up. @return false on cancel
    virtual bool nyomtatoBeallitas(QWidget* szulo, QPrinter& nyomtato);
    /// Shows a document with the desktop's own program for it. @return false if there is none
    virtual bool megmutat(const QUrl& dokumentum);
    /// Whether the system has a printer at all.
    virtual bool vanNyomtato();
};
