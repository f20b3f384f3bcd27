#include "windows/tform8_mundanhazak.h"

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "rectify/analogiaszoveg.h"
#include "rectify/mundankereses.h"
#include "tables/szotar.h"
#include "windows/ablakelhelyezes.h"
#include "windows/jelzoszin.h"
#include "windows/keresesfigyelo.h"
#include "windows/qszoveg.h"
#include "windows/vezerlok.h"

namespace {

constexpr QSize ablakMeret{322, 548};
constexpr int alsoTav = 20;  ///< pixels above the main window's bottom

constexpr QSize hazGombMeret{30, 24};
constexpr QPoint hazGombKezdet{65, 93};
constexpr QPoint hazGombKoz{32, 26};
constexpr int egyezoBetu = 10;  ///< points
constexpr int hibasBetu = 16;   ///< a house whose analogies fail

constexpr QSize cimkeMeret{30, 20};
constexpr std::array<int, 3> oszlopHelyek{12, 135, 220};
constexpr int cimkekTeteje = 175;
constexpr int sorKoz = 22;

QFont betu(std::string_view nev, int pont) {
    QFont f(QString::fromUtf8(nev));
    f.setPointSize(pont);
    return f;
}

QString cimke(int haz) {
    return qszoveg(HazCimke(haz));
}

}  // namespace

TForm8::TForm8(Allapot& allapot, FoAblak& ablak, QWidget* fo)
    : TKesobbiAblak(fo, Qt::Dialog | Qt::WindowStaysOnTopHint), allapot_(allapot), ablak_(ablak), fo_(fo) {
    setObjectName("TForm8");
    setWindowTitle("Mundánházas pontosítás");
    setFixedSize(ablakMeret);
}

void TForm8::epites() {
    allandoVezerlok();
    new TListaMuveletek(*this, [this] { return lista(false); });
    new TListaMuveletek(
        *this, [this] { return lista(true); }, "Minden ház");
}

TListaSzoveg TForm8::lista(bool mindenHaz) const {
    const TMundanErtekeles e = MundanErtekeles(allapot_, MundanHely(allapot_.Keplet));
    QStringList sorok;
    for (const std::string& sor :
         mindenHaz ? MindenAnalogiaOlvashato(e) : AnalogiaOlvashato(e, allapot_.AktivHaz))
        sorok << qszoveg(sor);
    return {listaCim(windowTitle(), allapot_, allapot_.Keplet.pillanat), sorok};
}

void TForm8::allandoVezerlok() {
    for (QLabel** felirat : {&label1Haz_, &label2Rendben_, &label3szoveg1_, &label4szoveg2_})
        *felirat = new QLabel(this);
    label1Haz_->setObjectName("Label1Haz");
    label1Haz_->setFont(betu(szovegFont, 13));
    label1Haz_->setGeometry(135, 154, 150, 20);
    label2Rendben_->setObjectName("Label2Rendben");
    label2Rendben_->setFont(betu(szovegFont, 13));
    label2Rendben_->setGeometry(145, 512, 140, 22);

    label3szoveg1_->setObjectName("Label3szoveg1");
    label3szoveg1_->setGeometry(0, 8, ablakMeret.width(), 20);
    label4szoveg2_->setObjectName("Label4szoveg2");
    label4szoveg2_->setGeometry(0, 29, ablakMeret.width(), 20);
    for (QLabel* felirat : {label3szoveg1_, label4szoveg2_}) {
        felirat->setFont(betu(szovegFont, 11));
        felirat->setAlignment(Qt::AlignCenter);
    }

    const auto gomb = [this](const char* nev, const char* felirat, int hely, void (TForm8::*kezelo)()) {
        constexpr int szelesseg = 74;
        auto* uj = ujGomb(this, nev, felirat, {8 + hely * (szelesseg + 3), 56, szelesseg, gombMagas});
        connect(uj, &QPushButton::clicked, this, kezelo);
    };
    gomb("Button1Keresesm", "Keresés -", 0, &TForm8::Button1KeresesmClick);
    gomb("Button2Keresesp", "Keresés +", 1, &TForm8::Button2KeresespClick);
    gomb("Button3Vissza", "Vissza", 2, &TForm8::Button3VisszaClick);
    gomb("Button4Bezar", "Bezár", 3, &TForm8::Button4BezarClick);
}

void TForm8::hazGombok() {
    for (int haz = 1; haz <= 12; ++haz) {
        const QPoint hely((haz - 1) % 6 * hazGombKoz.x(), (haz - 1) / 6 * hazGombKoz.y());
        std::unique_ptr<QPushButton> gomb(ujGomb(this, QStringLiteral("BMundan%1").arg(haz), cimke(haz),
                                                 {hazGombKezdet + hely, hazGombMeret}));
        gomb->setStyleSheet("padding: 0px");
        connect(gomb.get(), &QPushButton::clicked, this, [this, g = gomb.get()] { BMundanClick(g->text()); });
        hazGombok_[static_cast<std::size_t>(haz - 1)] = std::move(gomb);
    }
}

void TForm8::cimkeRacs() {
    for (std::size_t sor = 0; sor < cimkek_.size(); ++sor) {
        for (std::size_t oszlop = 0; oszlop < oszlopHelyek.size(); ++oszlop) {
            auto felirat = std::make_unique<QLabel>(this);
            felirat->setObjectName(QStringLiteral("LMundan_%1_%2").arg(sor + 1).arg(oszlop + 1));
            felirat->setTextFormat(Qt::PlainText);
            felirat->setFont(oszlop == 0 || hazCimkesSor(sor) ? betu(szovegFont, 10)
                                                              : betu(allapot_.Rajz.szimbolumFont, 10));
            felirat->setGeometry(
                {{oszlopHelyek[oszlop], cimkekTeteje + sorKoz * static_cast<int>(sor)}, cimkeMeret});
            cimkek_[sor][oszlop] = std::move(felirat);
        }
    }
}

void TForm8::megmutat() {
    elkeszites();
    hazGombok();
    cimkeRacs();
    MundanNyitas(allapot_);
    ablak_.Mutat();
    frissit();
    for (const auto& gomb : hazGombok_) gomb->show();
    for (const auto& sor : cimkek_)
        for (const auto& felirat : sor) felirat->show();
    jobbraLent(*this, *fo_, alsoTav);
    show();
    raise();
}

void TForm8::frissit() {
    if (!hazGombok_[0]) return;
    mutat(MundanErtekeles(allapot_, MundanHely(allapot_.Keplet)));
}

void TForm8::mutat(const TMundanErtekeles& ertekeles) {
    const int haz = allapot_.AktivHaz;
    const std::string& egyezes = ertekeles.analogiak.HazEgyezes;
    const auto sorok = AnalogiaSorok(ertekeles.lanc, haz);
    for (std::size_t sor = 0; sor < sorok.size(); ++sor) {
        const std::array szovegek{&sorok[sor].oszlop1, &sorok[sor].oszlop2, &sorok[sor].oszlop3};
        for (std::size_t oszlop = 0; oszlop < szovegek.size(); ++oszlop) {
            QLabel& felirat = *cimkek_[sor][oszlop];
            felirat.setText(qszoveg(*szovegek[oszlop]));
            felirat.resize(felirat.sizeHint().expandedTo(cimkeMeret).width(), cimkeMeret.height());
        }
    }
    label1Haz_->setText(cimke(haz) + ". Házak");
    label2Rendben_->setText(egyezes[static_cast<std::size_t>(haz - 1)] == '1' ? "Rendben "
                                                                              : QString(8, u' '));
    for (std::size_t i = 0; i < hazGombok_.size(); ++i)
        hazGombok_[i]->setFont(betu(szovegFont, egyezes[i] == '0' ? hibasBetu : egyezoBetu));
    verdiktMutatasa(ertekeles.analogiak.AnalogiaAllapot);
}

void TForm8::verdiktMutatasa(char AnalogiaAllapot) {
    const TAnalogiaVerdikt& v = AnalogiaVerdikt(AnalogiaAllapot);
    label3szoveg1_->setText(qszoveg(v.szoveg1));
    label4szoveg2_->setText(qszoveg(v.szoveg2));
    for (QLabel* felirat : {label3szoveg1_, label4szoveg2_}) {
        QPalette szinek = felirat->palette();
        szinek.setColor(QPalette::WindowText, jelzoSzin(v.szin, szinek));
        felirat->setPalette(szinek);
    }
}

void TForm8::BMundanClick(const QString& felirat) {
    for (int haz = 1; haz <= 12; ++haz)
        if (felirat == cimke(haz)) allapot_.AktivHaz = haz;
    setFocus();
    frissit();
}

/// Escape ends a search at the moment that it has reached.
void TForm8::kereses(int irany) {
    const TMundanHely hely = MundanHely(allapot_.Keplet);
    TKeresesFigyelo figyelo(*this);
    TKeresesKeret keret = MundanKeret(hely);
    keret.tovabb = [&figyelo](const TPillanat& p) { return figyelo.tovabb(p); };
    mutat(MundanKereses(allapot_, hely, irany, keret));
    ablak_.Mutat();
}

void TForm8::Button3VisszaClick() {
    MundanVissza(allapot_);
    frissit();
}

void TForm8::Button4BezarClick() {
    close();
}

/// Every way of closing ends here: also the window's own button and the Escape key end the refreshes.
void TForm8::done(int eredmeny) {
    allapot_.MundanAblakNyitva = false;
    for (auto& gomb : hazGombok_) gomb.reset();
    for (auto& sor : cimkek_)
        for (auto& felirat : sor) felirat.reset();
    QDialog::done(eredmeny);
}
