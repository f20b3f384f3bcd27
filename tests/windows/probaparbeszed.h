#pragma once

#include <functional>

#include <QStringList>

#include "windows/parbeszed.h"

/// Answers the toolkit's dialogs as the test says, and notes what was asked.
class TProbaParbeszed : public TParbeszed {
public:
    QString megnyitando(QWidget*, const QString& szuro) override {
        kerdesek << szuro;
        return fajl;
    }
    QString mentendo(QWidget*, const QString& szuro, const QString& fajlnev) override {
        kerdesek << szuro << fajlnev;
        return fajl;
    }
    bool igen(QWidget*, const QString& cim, const QString& kerdes) override {
        kerdesek << cim << kerdes;
        return igenre;
    }
    void uzenet(QWidget*, const QString& szoveg) override { uzenetek << szoveg; }
    QString bekeres(QWidget*, const QString& cim, const QString& felirat) override {
        kerdesek << cim << felirat;
        return beirt;
    }
    bool nyomtatoBeallitas(QWidget*, QPrinter& nyomtato) override {
        ++beallitasok;
        if (!nyomtatas) return false;
        nyomtatas(nyomtato);
        return true;
    }
    bool megmutat(const QUrl& dokumentum) override {
        dokumentumok << dokumentum;
        return vanBongeszo;
    }
    bool vanNyomtato() override { return false; }

    QString fajl;
    QString beirt;
    bool igenre = true;
    std::function<void(QPrinter&)> nyomtatas;
    int beallitasok = 0;
    QStringList kerdesek;
    QStringList uzenetek;
    QList<QUrl> dokumentumok;
    bool vanBongeszo = true;
};
