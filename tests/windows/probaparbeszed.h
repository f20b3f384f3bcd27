#pragma once

#include <functional>
#include <optional>

#include <QList>
#include <QStringList>

#include "windows/parbeszed.h"

/// Answers the toolkit's dialogs as the test says, and notes what was asked.
class TProbaParbeszed : public TParbeszed {
public:
    QString megnyitando(QWidget*, const QString& szuro) override {
        kerdesek << szuro;
        return fajl;
    }
    bool igen(QWidget*, const QString& cim, const QString& kerdes) override {
        kerdesek << cim << kerdes;
        return igenek.isEmpty() ? igenre : igenek.takeFirst();
    }
    void uzenet(QWidget*, const QString& szoveg) override { uzenetek << szoveg; }
    QString bekeres(QWidget*, const QString& cim, const QString& felirat) override {
        kerdesek << cim << felirat;
        return beirt;
    }
    std::optional<QString> titok(QWidget*, const QString& cim, const QString& felirat, int hossz) override {
        kerdesek << cim << felirat << QString::number(hossz);
        if (titkok.isEmpty()) qFatal("one more password is asked");
        return titkok.takeFirst();
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
    QStringList fajlok;  ///< names given to the save dialog one by one; after them `fajl`
    QString beirt;
    bool igenre = true;
    QList<bool> igenek;  ///< answers one by one; after them `igenre`
    QList<std::optional<QString>> titkok;
    std::function<void(QPrinter&)> nyomtatas;
    int beallitasok = 0;
    QStringList kerdesek;
    QStringList uzenetek;
    QList<QUrl> dokumentumok;
    bool vanBongeszo = true;

protected:
    bool felulirhato(QWidget*, const QString& letezo) override {
        kerdesek << letezo;
        return igenek.isEmpty() ? igenre : igenek.takeFirst();
    }
    QString mentesHelye(QWidget*, const QString& szuro, const QString& fajlnev) override {
        kerdesek << szuro << fajlnev;
        return fajlok.isEmpty() ? fajl : fajlok.takeFirst();
    }
};
