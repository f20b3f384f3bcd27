// Makes the pictures of the handbook from the program's own windows; run by scripts/kepek.

#include <QScreen>

#include "ablakteszt.h"

namespace {

QString mappa;

void ment(QWidget& ablak, const char* nev) {
    QApplication::processEvents();
    const QString fajl = mappa + "/" + nev + ".png";
    // The screen's own copy: asking the window to paint again would erase a view that is drawn once.
    if (!ablak.screen()->grabWindow(ablak.winId()).save(fajl)) qFatal("cannot write %s", qPrintable(fajl));
}

struct TMintaEsemeny {
    const char* esemeny;
    const char* analogia;
    std::array<int, 6> ido;
};
constexpr TMintaEsemeny mintaEsemenyek[]{{"Házasság", "5,7", {1996, 8, 17, 15, 0, 0}},
                                         {"Első gyermek", "IV,5", {1999, 3, 2, 4, 20, 0}},
                                         {"Költözés", "4,9", {2004, 10, 1, 9, 0, 0}},
                                         {"Új állás", "6,X", {2011, 2, 14, 8, 0, 0}}};

void esemenyBeirasa(QWidget& form10, const TMintaEsemeny& e) {
    gepel(form10, "Edit_Eletesemenyek1", e.esemeny);
    vezerlo<QLineEdit>(form10, "Edit_Hazanalogiak1")->setText(e.analogia);
    constexpr std::array<const char*, 6> mezok{"SpinEditEv1",  "SpinEditHo1",   "SpinEditNap1",
                                               "SpinEditOra1", "SpinEditPerc1", "SpinEditMperc1"};
    for (std::size_t i = 0; i < mezok.size(); ++i) vezerlo<QSpinBox>(form10, mezok[i])->setValue(e.ido[i]);
    kattint(form10, "Button_Rendben1");
}

void szemelyiAdatok(TFrissAblakok& a) {
    szuletes(a);
    valasz([](QWidget& form2) {
        valasz([](QWidget& form10) {
            for (const TMintaEsemeny& e : mintaEsemenyek) esemenyBeirasa(form10, e);
            ment(form10, "eletesemenyek");
            kattint(form10, "Button_Rendben2");
        });
        kattint(form2, "Button_Eletesemenyek1");
        ment(form2, "szemelyi");
        kattint(form2, "Button_Rendben1");
    });
    menu(a.form1, "Szemely_adatok1");
}

void nezetek(TFrissAblakok& a) {
    ment(a.form1, "korvend");
    menu(a.form1, "Mundan1");
    ment(a.form1, "mundan");
    menu(a.form1, "Dekad1");
    ment(a.form1, "dekad");
    menu(a.form1, "Horizont1");
}

void beallitasok(TFrissAblakok& a) {
    menu(a.form1, "Radixlepteto1");
    ment(a.form7, "lepteto");
    valasz([](QWidget& d) {
        ment(d, "orbisok");
        d.close();
    });
    menu(a.form1, "Orbisok1");
}

void elorejelzesek(TFrissAblakok& a) {
    valasz([](QWidget& d) {
        ment(d, "szolar");
        kattint(d, "Button_Megsem1");
    });
    menu(a.form1, "Szolar1");
    valasz([](QWidget& d) {
        for (int ev = 2024; vezerlo<QLabel>(d, "Tercier_Direkcio2")->text().isEmpty() && ev < 2060; ++ev)
            vezerlo<QSpinBox>(d, "SpinEditEv1")->setValue(ev);
        ment(d, "tercier");
        kattint(d, "Button_Megsem1");
    });
    menu(a.form1, "Tercier1");
    menu(a.form1, "Primer1");
    vezerlo<QSpinBox>(a.form12, "SpinEditEv1")->setValue(2024);
    kattint(a.form12, "Button_Rendben1");
    ment(a.form12, "primer");
}

void pontositasok(TFrissAblakok& a) {
    kattint(a.form12, "Button_Pontositas1");
    a.form13.resize(722, 260);
    vezerlo<QSpinBox>(a.form13, "SpinEdit1")->setValue(40);
    ment(a.form13, "pontositas");
    kattint(a.form13, "Button_Megsem1");
    menu(a.form1, "Mundnhzaspontosts1");
    kattint(a.form8, "BMundan8");
    ment(a.form8, "mundanhazas");
}

}  // namespace

int main(int argc, char** argv) {
    QApplication program(argc, argv);
    if (argc != 2) qFatal("usage: kezikonyv_kepek FOLDER");
    mappa = argv[1];
    sajatBetukBetoltese();
    TFrissAblakok a;
    szemelyiAdatok(a);
    nezetek(a);
    beallitasok(a);
    elorejelzesek(a);
    pontositasok(a);
}
