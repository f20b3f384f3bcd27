#include "windows/tform6_orbisok.h"

#include <QLabel>
#include <QLocale>

#include "chart/allapot.h"
#include "tables/szotar.h"
#include "tables/tomb.h"
#include "windows/ablakelhelyezes.h"
#include "windows/jelolvasas.h"
#include "windows/qszoveg.h"
#include "windows/vezerlok.h"

namespace {

constexpr int gombSzelesseg = 30;
constexpr int gombMagassag = 24;
constexpr int alapMeret = 10;  ///< font size of an unchanged cell
constexpr int kiemeltMeret = 16;
constexpr int kisMeret = 8;

void betuMeret(QWidget& vezerlo, int meret) {
    QFont betu = vezerlo.font();
    betu.setPointSize(meret);
    betu.setStretch(QFont::Unstretched);
    vezerlo.setFont(betu);
}

/// Narrows the letters until the text fits in its button.
void beszorit(QPushButton& gomb) {
    const int szelesseg = gomb.fontMetrics().horizontalAdvance(gomb.text());
    if (szelesseg <= gomb.width()) return;
    QFont betu = gomb.font();
    betu.setStretch(100 * gomb.width() / szelesseg);
    gomb.setFont(betu);
}

QString szamSzoveg(double ertek) {
    return QLocale::c().toString(ertek, 'g', QLocale::FloatingPointShortest);
}

double szam(const QString& szoveg) {
    return QLocale::c().toDouble(szoveg);
}

/// The angles' rows have no button where they take no aspect: 30, 45, 135 and 150 degrees.
constexpr bool vanGomb(int sor, int oszlop) {
    const bool tengely = sor <= 2;
    const bool kisFenyszog = oszlop == 2 || oszlop == 3 || oszlop == 7 || oszlop == 8;
    return !(tengely && kisFenyszog);
}

}  // namespace

TForm6::TForm6(Allapot& allapot, FoAblak&, QWidget* fo) : TKesobbiAblak(fo), allapot_(allapot), fo_(fo) {
    setObjectName("TForm6");
    setWindowTitle("Orbis beállítása");
    setFixedSize(340, 460);
}

void TForm6::epites() {
    const auto gomb = [this](const char* nev, const QString& felirat, const QRect& hely,
                             void (TForm6::*kezelo)()) {
        auto* uj = ujGomb(this, nev, felirat, hely);
        connect(uj, &QPushButton::clicked, this, kezelo);
        return uj;
    };
    plusz_ = gomb("Button_plusz1", "+0.5", {12, 6, 70, 30}, &TForm6::Button_plusz1Click);
    minusz_ = gomb("Button_minusz2", "-0.5", {88, 6, 70, 30}, &TForm6::Button_minusz2Click);
    gomb("Button_vissza3", "Előzö beállítás", {12, 386, 150, gombMagas}, &TForm6::Button_vissza3Click);
    gomb("Button_vissza4", "Induló beállítás", {178, 386, 150, gombMagas}, &TForm6::Button_vissza4Click);
    gomb("Button_Rendben1", "Rendben", {12, 422, 150, gombMagas}, &TForm6::Button_Rendben1Click);
    gomb("Button_Megsem1", "Mégsem", {178, 422, 150, gombMagas}, &TForm6::Button_Megsem1Click);
    betuMeret(*plusz_, kiemeltMeret);
    betuMeret(*minusz_, kisMeret);
}

void TForm6::megmutat() {
    elkeszites();
    racsEpites();
    kozepre(*this, *fo_);
    exec();
}

void TForm6::cimkeEpites(const QString& szoveg, const QString& betutipus, int x, int y) {
    auto* cimke = new TJelCimke(szoveg, this);
    QFont betu(betutipus);
    betu.setPointSize(alapMeret);
    cimke->setFont(betu);
    cimke->setGeometry(x, y, gombSzelesseg, gombMagassag);
    cimke->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    cimkek_.push_back(cimke);
}

void TForm6::racsEpites() {
    const QString szimbolum = qszoveg(allapot_.Rajz.szimbolumFont);
    const QString szoveges = qszoveg(szovegFont);
    for (int i = 0; i < 12; ++i) {
        const bool tengely = i < 2;
        const QString felirat =
            tengely ? QString(i == 0 ? "Asc" : "MC") : QString(QLatin1Char(bolygoJel[i - 1]));
        cimkeEpites(felirat, tengely ? szoveges : szimbolum, 12, 26 * i + 65);
    }
    for (int i = 0; i < 9; ++i)
        cimkeEpites(QString(QLatin1Char(fenyszogJel[i + 1])), szimbolum, 32 * i + 45, 42);

    for (int r = 0; r < 12; ++r) {
        for (int c = 0; c < 9; ++c) {
            if (!vanGomb(r + 1, c + 1)) continue;
            auto* gomb = ujGomb(this, QStringLiteral("BOrbis_%1_%2").arg(r + 1).arg(c + 1), {},
                                {295 - 32 * (8 - c), 140 - 26 * (3 - r), gombSzelesseg, gombMagassag});
            gomb->setFont(QFont(szoveges));
            gomb->setStyleSheet("padding: 0px");
            connect(gomb, &QPushButton::clicked, this, [this, gomb] { BOrbisClick(gomb); });
            cellak_.push_back({r + 1, c + 1, gomb});
        }
    }
    cellakMutatasa(allapot_.OrbisTabla);
}

void TForm6::racsLebontas() {
    for (const TCella& cella : cellak_) cella.gomb->deleteLater();
    for (QWidget* cimke : cimkek_) cimke->deleteLater();
    cellak_.clear();
    cimkek_.clear();
}

void TForm6::done(int eredmeny) {
    racsLebontas();
    QDialog::done(eredmeny);
}

void TForm6::cellakMutatasa(const TOrbisTabla& tabla) {
    for (const auto& [sor, oszlop, gomb] : cellak_) {
        gomb->setText(szamSzoveg(tabla[sor][oszlop]));
        betuMeret(*gomb, alapMeret);
    }
}

void TForm6::BOrbisClick(QPushButton* gomb) {
    const double ertek = szam(gomb->text()) + lepes_;
    gomb->setText(szamSzoveg(ertek < 0 ? 0 : ertek));
    betuMeret(*gomb, kiemeltMeret);
    beszorit(*gomb);
    gomb->clearFocus();
}

void TForm6::Button_plusz1Click() {
    lepes_ = 0.5;
    betuMeret(*plusz_, kiemeltMeret);
    betuMeret(*minusz_, kisMeret);
}

void TForm6::Button_minusz2Click() {
    lepes_ = -0.5;
    betuMeret(*minusz_, kiemeltMeret);
    betuMeret(*plusz_, kisMeret);
}

void TForm6::Button_vissza3Click() {
    cellakMutatasa(allapot_.OrbisTabla);
}
void TForm6::Button_vissza4Click() {
    cellakMutatasa(OrbisAlap);
}

void TForm6::Button_Megsem1Click() {
    reject();
}

void TForm6::Button_Rendben1Click() {
    for (const auto& [sor, oszlop, gomb] : cellak_) allapot_.OrbisTabla[sor][oszlop] = szam(gomb->text());
    accept();
}
