#include "windows/parbeszed.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>

namespace {

QString mappajaba(const QString& fajl) {
    if (!fajl.isEmpty()) QDir::setCurrent(QFileInfo(fajl).absolutePath());
    return fajl;
}

}  // namespace

QString TParbeszed::megnyitando(QWidget* szulo, const QString& szuro) {
    return mappajaba(QFileDialog::getOpenFileName(szulo, "Megnyitás", QDir::currentPath(), szuro));
}

QString TParbeszed::mentendo(QWidget* szulo, const QString& szuro, const QString& fajlnev) {
    return mappajaba(QFileDialog::getSaveFileName(szulo, "Mentés", QDir::current().filePath(fajlnev), szuro));
}

bool TParbeszed::igen(QWidget* szulo, const QString& cim, const QString& kerdes) {
    return QMessageBox::question(szulo, cim, kerdes) == QMessageBox::Yes;
}

void TParbeszed::uzenet(QWidget* szulo, const QString& szoveg) {
    QMessageBox::warning(szulo, "Korvend", szoveg);
}

QString TParbeszed::bekeres(QWidget* szulo, const QString& cim, const QString& felirat) {
    return QInputDialog::getText(szulo, cim, felirat);
}

bool TParbeszed::nyomtatoBeallitas(QWidget* szulo, QPrinter& nyomtato) {
    return QPrintDialog(&nyomtato, szulo).exec() == QDialog::Accepted;
}

bool TParbeszed::megmutat(const QUrl& dokumentum) {
    return QDesktopServices::openUrl(dokumentum);
}

bool TParbeszed::vanNyomtato() {
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}
