#include "windows/parbeszed.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGridLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRegularExpression>

#include "files/fajlnev.h"
#include "windows/legutobbilista.h"
#include "windows/legutobbitar.h"
#include "windows/qszoveg.h"

namespace {

/// Width at which the window's frame has room for the title in full between its icon and its buttons. The
/// frame is the window manager's; its font is taken as bold and a quarter larger than the program's.
int cimSzelesseg(const QString& cim) {
    constexpr double nagyobb = 1.25;
    constexpr int ikonEsGombok = 150;  // pixels
    QFont betu = QApplication::font();
    betu.setBold(true);
    betu.setPointSizeF(betu.pointSizeF() * nagyobb);
    return QFontMetrics(betu).horizontalAdvance(cim) + ikonEsGombok;
}

/// The first extension that a filter as "Kvh files (*.kvh)" names, with its dot.
QString szuroKiterjesztese(const QString& szuro) {
    static const QRegularExpression minta(R"(\*(\.\w+))");
    return minta.match(szuro).captured(1);
}

QString fajlValasztas(QFileDialog& dialogus, const QString& szuro) {
    dialogus.setNameFilter(szuro);
    return dialogus.exec() == QDialog::Accepted ? dialogus.selectedFiles().value(0) : QString();
}

/// Charts to show at the dialog's side. The dialogs of Windows keep a list of their own.
QStringList legutobbiFajlok(const TLegutobbiTar* tar) {
    if (tar == nullptr || QGuiApplication::platformName() == "windows") return {};
    return tar->fajlok();
}

void gomb(QMessageBox& doboz, QMessageBox::StandardButton melyik, const QString& felirat) {
    doboz.addButton(melyik)->setText(felirat);
}

/// A message box lays itself out anew when it is shown, so that an empty row of that width has to hold it
/// open.
int mutat(QMessageBox& doboz) {
    doboz.setTextFormat(Qt::PlainText);  // names of people and files stand in it
    if (auto* racs = qobject_cast<QGridLayout*>(doboz.layout()))
        racs->addItem(new QSpacerItem(cimSzelesseg(doboz.windowTitle()), 0), racs->rowCount(), 0, 1,
                      racs->columnCount());
    return doboz.exec();
}

/// @param alap  the button that the Enter key presses
bool igennelFelel(QWidget* szulo, const QString& cim, const QString& kerdes,
                  QMessageBox::StandardButton alap) {
    QMessageBox doboz(QMessageBox::Question, cim, kerdes, QMessageBox::NoButton, szulo);
    gomb(doboz, QMessageBox::Yes, "&Igen");
    gomb(doboz, QMessageBox::No, "&Nem");
    doboz.setDefaultButton(alap);
    return mutat(doboz) == QMessageBox::Yes;
}

/// @param hossz  characters at most
std::optional<QString> beviteliMezo(QWidget* szulo, const QString& cim, const QString& felirat,
                                    QLineEdit::EchoMode mod, int hossz) {
    QInputDialog dialogus(szulo);
    dialogus.setWindowTitle(cim);
    dialogus.setLabelText(felirat);
    dialogus.setTextEchoMode(mod);
    dialogus.setOkButtonText("Rendben");
    dialogus.setCancelButtonText("Mégsem");
    if (auto* mezo = dialogus.findChild<QLineEdit*>()) {
        mezo->setMinimumWidth(cimSzelesseg(cim));
        mezo->setMaxLength(hossz);
    }
    if (dialogus.exec() != QDialog::Accepted) return std::nullopt;
    return dialogus.textValue();
}

}  // namespace

QString TParbeszed::kezdoMappa() const {
    return legutobbi_ != nullptr ? legutobbi_->mappa() : QDir::currentPath();
}

QString TParbeszed::mappajaba(const QString& fajl) const {
    if (fajl.isEmpty()) return {};
    const QString mappa = QFileInfo(fajl).absolutePath();
    QDir::setCurrent(mappa);
    if (legutobbi_ != nullptr) legutobbi_->mappaba(mappa);
    return fajl;
}

QString TParbeszed::megnyitando(QWidget* szulo, const QString& szuro) {
    QFileDialog dialogus(szulo, "Megnyitás", kezdoMappa());
    dialogus.setAcceptMode(QFileDialog::AcceptOpen);
    dialogus.setFileMode(QFileDialog::ExistingFile);
    if (const QStringList fajlok = legutobbiFajlok(legutobbi_); !fajlok.isEmpty()) {
        dialogus.setOption(QFileDialog::DontUseNativeDialog);
        legutobbiLista(dialogus, fajlok);
    }
    return mappajaba(fajlValasztas(dialogus, szuro));
}

QString TParbeszed::mentesHelye(QWidget* szulo, const QString& szuro, const QString& fajlnev) {
    QFileDialog dialogus(szulo, "Mentés", kezdoMappa());
    dialogus.setAcceptMode(QFileDialog::AcceptSave);
    dialogus.setFileMode(QFileDialog::AnyFile);
    dialogus.setOption(QFileDialog::DontConfirmOverwrite);  // asked when the extension is there
    dialogus.selectFile(QDir(kezdoMappa()).filePath(fajlnev));
    return fajlValasztas(dialogus, szuro);
}

QString TParbeszed::mentendo(QWidget* szulo, const QString& szuro, const QString& fajlnev) {
    QString fajl = fajlnev;
    do {
        fajl = mentesHelye(szulo, szuro, fajl);
        if (fajl.isEmpty()) return {};
        fajl = qszoveg(Kiterjesztessel(szoveg(fajl), szoveg(szuroKiterjesztese(szuro))));
    } while (QFileInfo::exists(fajl) && !felulirhato(szulo, fajl));
    return mappajaba(fajl);
}

bool TParbeszed::igen(QWidget* szulo, const QString& cim, const QString& kerdes) {
    return igennelFelel(szulo, cim, kerdes, QMessageBox::Yes);
}

bool TParbeszed::felulirhato(QWidget* szulo, const QString& fajl) {
    const QString kerdes = "Ez a fájl már létezik:\n%1\nFelülírja?";
    return igennelFelel(szulo, "Mentés", kerdes.arg(QDir::toNativeSeparators(fajl)), QMessageBox::No);
}

void TParbeszed::uzenet(QWidget* szulo, const QString& szoveg) {
    QMessageBox doboz(QMessageBox::Warning, "Korvend", szoveg, QMessageBox::NoButton, szulo);
    gomb(doboz, QMessageBox::Ok, "Rendben");
    mutat(doboz);
}

QString TParbeszed::bekeres(QWidget* szulo, const QString& cim, const QString& felirat) {
    constexpr int hosszu = 32767;
    return beviteliMezo(szulo, cim, felirat, QLineEdit::Normal, hosszu).value_or(QString());
}

std::optional<QString> TParbeszed::titok(QWidget* szulo, const QString& cim, const QString& felirat,
                                         int hossz) {
    return beviteliMezo(szulo, cim, felirat, QLineEdit::Password, hossz);
}

bool TParbeszed::nyomtatoBeallitas(QWidget* szulo, QPrinter& nyomtato) {
#ifdef Q_OS_WIN
    // The system's dialog only says that there is no printer, and has no PDF file to choose.
    if (!vanNyomtato()) {
        nyomtato.setOutputFormat(QPrinter::PdfFormat);
        return true;
    }
#endif
    QPrintDialog dialogus(&nyomtato, szulo);
    dialogus.setWindowTitle("Nyomtatóbeállítás");
    if (auto* gombok = dialogus.findChild<QDialogButtonBox*>())
        if (auto* rendben = gombok->button(QDialogButtonBox::Ok)) rendben->setText("Rendben");
    return dialogus.exec() == QDialog::Accepted;
}

bool TParbeszed::megmutat(const QUrl& dokumentum) {
    return QDesktopServices::openUrl(dokumentum);
}

bool TParbeszed::vanNyomtato() {
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}
