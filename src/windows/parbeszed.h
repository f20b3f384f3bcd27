#pragma once

#include <optional>

#include <QPrinter>
#include <QString>
#include <QUrl>
#include <QWidget>

class TLegutobbiTar;

/// Filter of the chart files' dialogs.
inline const QString kepletfajlSzuro = QStringLiteral("Kvh files (*.kvh)");

/// The toolkit's own dialogs behind one small seam, so that tests can answer them. Each is wide enough to
/// show its title in full.
class TParbeszed {
public:
    virtual ~TParbeszed() = default;

    /// With a store the file dialogs begin in the last folder, and the one that opens a chart has the latest
    /// charts at its side; without one they begin in the current directory.
    void legutobbiBeallitasa(TLegutobbiTar& tar) { legutobbi_ = &tar; }

    /// Chosen file, empty on cancel. Accepting makes the file's folder the current directory, so that a sound
    /// file next to a chart is found.
    virtual QString megnyitando(QWidget* szulo, const QString& szuro);
    /// File to write, empty on cancel. A name typed without an extension gets the filter's. An existing file
    /// is asked about; a no leads back to the dialog. Accepting makes the file's folder the current
    /// directory.
    /// @param fajlnev  proposed where the dialog begins
    QString mentendo(QWidget* szulo, const QString& szuro, const QString& fajlnev);
    /// Question with yes and no.
    virtual bool igen(QWidget* szulo, const QString& cim, const QString& kerdes);
    virtual void uzenet(QWidget* szulo, const QString& szoveg);
    /// One-line input; empty on cancel.
    virtual QString bekeres(QWidget* szulo, const QString& cim, const QString& felirat);
    /// One-line input that hides what is typed; nothing on cancel.
    /// @param hossz  characters at most
    virtual std::optional<QString> titok(QWidget* szulo, const QString& cim, const QString& felirat,
                                         int hossz);
    /// Printer set-up. @return false on cancel
    virtual bool nyomtatoBeallitas(QWidget* szulo, QPrinter& nyomtato);
    /// Shows a document with the desktop's own program for it. @return false if there is none
    virtual bool megmutat(const QUrl& dokumentum);
    /// Whether the system has a printer at all.
    virtual bool vanNyomtato();

protected:
    /// Whether an existing file may be written over; Enter alone leaves it.
    virtual bool felulirhato(QWidget* szulo, const QString& fajl);
    /// One opening of the save dialog. @return the path as typed, empty on cancel
    virtual QString mentesHelye(QWidget* szulo, const QString& szuro, const QString& fajlnev);

private:
    QString kezdoMappa() const;
    /// Makes a file's folder the current directory. @return the file
    QString mappajaba(const QString& fajl) const;

    TLegutobbiTar* legutobbi_ = nullptr;
};
