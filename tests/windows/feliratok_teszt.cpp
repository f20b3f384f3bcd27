// What stands on the windows: titles, captions beside the fields, buttons, and the fields' ranges.

#include <QGroupBox>
#include <QListWidget>
#include <QRadioButton>
#include <QStyle>

#include "ablakteszt.h"

namespace {

struct TFelirat {
    const char* nev;
    const char* felirat;
};

struct THatar {
    const char* nev;
    int also;
    int felso;
};

/// Caption of a field: of the visible labels that begin left of it in its row, the nearest.
QString mezoFelirat(const QWidget& ablak, const char* nev) {
    const QRect mezo = hely(ablak, *vezerlo<QWidget>(ablak, nev));
    QString legkozelebb;
    int balra = -1;
    for (const auto* felirat : ablak.findChildren<QLabel*>()) {
        const QRect r = hely(ablak, *felirat);
        const bool egySor = r.top() <= mezo.center().y() && mezo.center().y() <= r.bottom() + 4;
        if (!felirat->isVisible() || felirat->text().isEmpty() || !egySor) continue;
        if (r.left() >= mezo.left() || r.left() <= balra) continue;
        balra = r.left();
        legkozelebb = felirat->text();
    }
    return legkozelebb.remove('&');
}

template <std::size_t N>
void mezoFeliratok(QWidget& ablak, const TFelirat (&vart)[N]) {
    ablak.show();
    QApplication::processEvents();
    for (const auto& [nev, felirat] : vart)
        QCOMPARE(nev + (": " + mezoFelirat(ablak, nev)), nev + QString(": ") + felirat);
    ablak.hide();
}

template <std::size_t N>
void gombFeliratok(const QWidget& ablak, const TFelirat (&vart)[N]) {
    for (const auto& [nev, felirat] : vart)
        QCOMPARE(vezerlo<QPushButton>(ablak, nev)->text().remove('&'), QString(felirat));
}

template <std::size_t N>
void hatarok(const QWidget& ablak, const THatar (&vart)[N]) {
    for (const auto& [nev, also, felso] : vart) {
        const auto* mezo = vezerlo<QSpinBox>(ablak, nev);
        QVERIFY2(mezo->minimum() == also && mezo->maximum() == felso, nev);
    }
}

/// Whether a control is one that a user sees as a piece of its own: a field with its buttons is one.
bool onallo(const QWidget& w) {
    if (!w.isVisible()) return false;
    if (const auto* felirat = qobject_cast<const QLabel*>(&w)) return !felirat->text().trimmed().isEmpty();
    const QWidget* szulo = w.parentWidget();
    if (qobject_cast<const QAbstractSpinBox*>(szulo) != nullptr ||
        qobject_cast<const QComboBox*>(szulo) != nullptr)
        return false;
    return qobject_cast<const QAbstractButton*>(&w) != nullptr ||
           qobject_cast<const QLineEdit*>(&w) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&w) != nullptr ||
           qobject_cast<const QComboBox*>(&w) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&w) != nullptr ||
           qobject_cast<const QListWidget*>(&w) != nullptr;
}

/// Where a control is seen: of a caption its letters alone.
QRect latszik(const QWidget& ablak, const QWidget& w) {
    const auto* felirat = qobject_cast<const QLabel*>(&w);
    if (felirat == nullptr) return hely(ablak, w);
    return QStyle::alignedRect(Qt::LeftToRight, felirat->alignment(), felirat->sizeHint(), hely(ablak, w));
}

/// The controls of a shown window keep clear of each other and of its edges.
void szabadon(QWidget& ablak) {
    QList<const QWidget*> vezerlok;
    for (const auto* w : ablak.findChildren<QWidget*>())
        if (w->window() == &ablak && onallo(*w)) vezerlok << w;
    QVERIFY(!vezerlok.isEmpty());
    for (qsizetype i = 0; i < vezerlok.size(); ++i) {
        const QRect r = latszik(ablak, *vezerlok[i]);
        const auto nev = [](const QWidget* w) {
            const auto* felirat = qobject_cast<const QLabel*>(w);
            return w->objectName() + (felirat != nullptr ? felirat->text() : QString());
        };
        const QString itt = ablak.objectName() + ": " + nev(vezerlok[i]);
        QVERIFY2(ablak.rect().contains(r), qPrintable(itt));
        for (qsizetype j = 0; j < i; ++j)
            QVERIFY2(!r.intersects(latszik(ablak, *vezerlok[j])), qPrintable(itt + ", " + nev(vezerlok[j])));
    }
}

/// Captions, number fields and buttons have the room that their texts need.
void vagatlan(const QWidget& ablak) {
    for (const auto* felirat : ablak.findChildren<QLabel*>())
        if (felirat->isVisible())
            QVERIFY2(felirat->size().expandedTo(felirat->sizeHint()) == felirat->size(),
                     qPrintable(ablak.objectName() + ": " + felirat->text()));
    for (const auto* mezo : ablak.findChildren<QSpinBox*>())
        QVERIFY2(mezo->size().expandedTo(mezo->sizeHint()) == mezo->size(), qPrintable(mezo->objectName()));
    for (const auto* gomb : ablak.findChildren<QPushButton*>()) {
        const QSize szoveg = gomb->fontMetrics().size(Qt::TextShowMnemonic, gomb->text());
        QVERIFY2(!gomb->isVisible() || (szoveg.width() < gomb->width() && szoveg.height() < gomb->height()),
                 qPrintable(gomb->objectName()));
    }
}

/// A desktop whose letters are large, as long as it lives.
struct TNagyBetu {
    TNagyBetu() {
        QFont nagy = eredeti;
        nagy.setPointSize(14);
        QApplication::setFont(nagy);
    }
    TNagyBetu(const TNagyBetu&) = delete;
    TNagyBetu& operator=(const TNagyBetu&) = delete;
    ~TNagyBetu() { QApplication::setFont(eredeti); }
    QFont eredeti = QApplication::font();
};

/// Whether a window has each of these labels, as often as it stands here.
void cimkek(QWidget& ablak, const QStringList& vart) {
    dynamic_cast<TKesobbiAblak&>(ablak).elkeszites();
    QStringList megvan;
    for (const auto* felirat : ablak.findChildren<QLabel*>()) megvan << felirat->text().remove('&');
    for (const QString& felirat : vart) QVERIFY2(megvan.removeOne(felirat), qPrintable(felirat));
}

}  // namespace

class FeliratokTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void azAblakokCimei() {
        const TFrissAblakok a;
        const std::pair<const QWidget*, const char*> cimek[]{{&a.form2, "Személyi adatok"},
                                                             {&a.form3, "Tercier direkció"},
                                                             {&a.form4, "Szolárrev"},
                                                             {&a.form5, "Hanglejátszás"},
                                                             {&a.form6, "Orbis beállítása"},
                                                             {&a.form7, "Léptet"},
                                                             {&a.form8, "Mundánházas pontosítás"},
                                                             {&a.form9, "Szimbólumok"},
                                                             {&a.form10, "Életesemények"},
                                                             {&a.form11, "Kérem a jelszót!"},
                                                             {&a.form12, "Primer direkció"},
                                                             {&a.form13, "Pontosítás"},
                                                             {&a.form14, "Nap-áthaladások"}};
        for (const auto& [ablak, cim] : cimek) QCOMPARE(ablak->windowTitle(), QString(cim));
    }

    void aFoablakAzElsoOrajelElott() {
        TFrissAblakok a;
        QCOMPARE(a.form1.windowTitle(), QString());
        gombFeliratok(a.form1, {{"PanelButton2_Most", "Állj"},
                                {"PanelButton3_Valt", "Mundán"},
                                {"PanelButton4Leptet", "Léptet"},
                                {"PanelButton5Orbis", "Orbis"},
                                {"PanelButton6MHP", "MHP"},
                                {"PanelButton7Tercier", "Tercier"}});
        const QStringList nevek{"A", "B", "C", "D", "E", "F", "G",  "H",
                                "I", "J", "I", "2", "3", "X", "11", "12"};
        for (int sor = 0; sor < nevek.size(); ++sor)
            QCOMPARE(cimke(a.form1, qPrintable(QStringLiteral("Label%1").arg(3 * sor + 1))), nevek[sor]);
    }

    void aSzemelyiAdatok() {
        TFrissAblakok a;
        mezoFeliratok(a.form2, {{"EditNev1", "Név:"},
                                {"SpinEditEv1", "Év:"},
                                {"SpinEditHo1", "Hó:"},
                                {"SpinEditNap1", "Nap:"},
                                {"SpinEditOra1", "Óra:"},
                                {"SpinEditPerc1", "Perc:"},
                                {"SpinEditMperc1", "Mp:"},
                                {"ComboBoxHelyseg1", "Helység:"},
                                {"SpinEditIdozona1", "Időzóna (+/K, -/Ny):"},
                                {"SpinEditNyariidosz1", "Nyári idősz. (0/1):"},
                                {"SpinEditHosszFok1", "fok:"},
                                {"SpinEditHosszPerc1", "perc:"},
                                {"SpinEditSzelFok1", "fok:"},
                                {"SpinEditSzelPerc1", "perc:"}});
        cimkek(a.form2, {"Hosszúság (+/K, -/Ny):", "Szélesség (+/É, -/D):", "Jegyzet:"});
        gombFeliratok(a.form2, {{"Button_Rendben1", "Rendben"},
                                {"Button_Megsem1", "Mégsem"},
                                {"Button_Eletesemenyek1", "Életesemények"}});
        hatarok(a.form2, {{"SpinEditEv1", 1900, 2068},
                          {"SpinEditHo1", 1, 12},
                          {"SpinEditNap1", 1, 31},
                          {"SpinEditOra1", 0, 23},
                          {"SpinEditPerc1", 0, 59},
                          {"SpinEditMperc1", 0, 59},
                          {"SpinEditIdozona1", -12, 12},
                          {"SpinEditNyariidosz1", 0, 1},
                          {"SpinEditHosszFok1", -180, 180},
                          {"SpinEditHosszPerc1", 0, 59},
                          {"SpinEditSzelFok1", -180, 180},
                          {"SpinEditSzelPerc1", 0, 59}});
    }

    void azIdovalaszto() {
        TFrissAblakok a;
        for (const QWidget* ablak : {static_cast<QWidget*>(&a.form2), static_cast<QWidget*>(&a.form14)}) {
            const auto* csoport = vezerlo<QGroupBox>(*ablak, "RadioGroupIdovalaszto1");
            QCOMPARE(csoport->title().remove('&'), "Idő-választó");
            QStringList feliratok;
            for (const auto* radio : csoport->findChildren<QRadioButton*>())
                feliratok << radio->text().remove('&');
            QCOMPARE(feliratok,
                     (QStringList{"Zóna idő (ZN)", "Helyi középidő (LMT)", "Greenwich-i középidő (GMT)"}));
        }
    }

    void aTercierEsAzIngresszio() {
        TFrissAblakok a;
        mezoFeliratok(a.form3, {{"SpinEditEv1", "Év:"}, {"SpinEditHo1", "Hó:"}, {"SpinEditNap1", "Nap:"}});
        valasz([](QWidget& d) {
            QCOMPARE(mezoFelirat(d, "SpinEditOrbis1"), "Orbis napokban:");
            QCOMPARE(vezerlo<QWidget>(d, "SpinEditOrbis1")->pos(), QPoint(152, 88));
            QCOMPARE(vezerlo<QWidget>(d, "Orbis_napokban1")->pos(), QPoint(24, 88));
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Tercier1");
        QCOMPARE(cimke(a.form3, "Datum_bekero1"), "Esemény dátuma:");
        gombFeliratok(a.form3, {{"Button_Rendben1", "Rendben"}, {"Button_Megsem1", "Mégsem"}});
        hatarok(a.form3, {{"SpinEditEv1", 1900, 2068},
                          {"SpinEditHo1", 0, 13},
                          {"SpinEditNap1", 0, 32},
                          {"SpinEditOrbis1", 1, 99}});
    }

    void azOrbisok() {
        TFrissAblakok a;
        vezerlo<QPushButton>(a.form6, "Button_plusz1");
        gombFeliratok(a.form6, {{"Button_plusz1", "+0.5"},
                                {"Button_minusz2", "-0.5"},
                                {"Button_vissza3", "Előzö beállítás"},
                                {"Button_vissza4", "Induló beállítás"},
                                {"Button_Rendben1", "Rendben"},
                                {"Button_Megsem1", "Mégsem"}});
    }

    void aLepteto() {
        TFrissAblakok a;
        gombFeliratok(a.form7, {{"Button1evp", "+"},
                                {"Button2evm", "-"},
                                {"Button3hop", "+"},
                                {"Button4hom", "-"},
                                {"Button5napp", "+"},
                                {"Button6napm", "-"},
                                {"Button7orap", "+"},
                                {"Button8oram", "-"},
                                {"Button9percp", "+"},
                                {"Button10percm", "-"},
                                {"Button11percpp", "++"},
                                {"Button12percmm", "--"},
                                {"Button13mpercp", "+"},
                                {"Button14mpercm", "-"},
                                {"Button15mpercpp", "++"},
                                {"Button16mpercmm", "--"}});
        mezoFeliratok(a.form7, {{"Button1evp", "Év"},
                                {"Button3hop", "Hó"},
                                {"Button5napp", "Nap"},
                                {"Button7orap", "óra"},
                                {"Button9percp", "perc"},
                                {"Button13mpercp", "mperc"}});
    }

    void aMundanhazak() {
        TFrissAblakok a;
        menu(a.form1, "Mundnhzaspontosts1");
        gombFeliratok(a.form8, {{"Button1Keresesm", "Keresés -"},
                                {"Button2Keresesp", "Keresés +"},
                                {"Button3Vissza", "Vissza"},
                                {"Button4Bezar", "Bezár"},
                                {"BMundan1", " I"},
                                {"BMundan2", " 2"},
                                {"BMundan3", " 3"},
                                {"BMundan4", "IV"},
                                {"BMundan5", " 5"},
                                {"BMundan6", " 6"},
                                {"BMundan7", "VII"},
                                {"BMundan8", " 8"},
                                {"BMundan9", " 9"},
                                {"BMundan10", " X"},
                                {"BMundan11", "11"},
                                {"BMundan12", "12"}});
        int hazGombok = 0;
        for (const auto* gomb : a.form8.findChildren<QPushButton*>())
            hazGombok += gomb->objectName().startsWith("BMundan");
        QCOMPARE(hazGombok, 12);
        QCOMPARE(cimke(a.form8, "Label1Haz"), " I. Házak");
        const QStringList sorok{" I-es Mundánház:  ",   "Ház ura:",       "Házura jegyben:", "Házura házban:",
                                "Házura együttáll:",    "Házban állnak:", "Fényszögpárok:",  "",
                                " I-es Horizontház:  ", "Ház ura:",       "Házura jegyben:", "Házura házban:",
                                "Házura együttáll:",    "Házban állnak:", "Fényszögpárok:"};
        for (int sor = 1; sor <= 15; ++sor)
            QCOMPARE(cimke(a.form8, qPrintable(QStringLiteral("LMundan_%1_1").arg(sor))), sorok[sor - 1]);
    }

    void aSzimbolumok() {
        const TFrissAblakok a;
        gombFeliratok(a.form9, {{"Button_Rendben1", "Rendben"}, {"Button_Megsem1", "Mégsem"}});
    }

    void azEletesemenyek() {
        TFrissAblakok a;
        mezoFeliratok(a.form10, {{"Edit_Eletesemenyek1", "Életesemény:"},
                                 {"Edit_Hazanalogiak1", "Házanalógiák:"},
                                 {"SpinEditEv1", "Év:"},
                                 {"SpinEditHo1", "Hó:"},
                                 {"SpinEditNap1", "Nap:"},
                                 {"SpinEditOra1", "Óra:"},
                                 {"SpinEditPerc1", "Perc:"},
                                 {"SpinEditMperc1", "Mp:"},
                                 {"ComboBoxHelyseg1", "Solar-évforduló helye:"},
                                 {"LabelSolarNap1", "Solar-Nap:"}});
        // The heads of the list beside the captions of the fields.
        cimkek(a.form10,
               {"Életesemény:", "Életesemény:", "Házanalógiák:", "Házanalógiák:", "Esemény ideje (GMT):",
                "Solar-évforduló helye:", "Solar-évforduló helye:", "Solar-Nap:", "Solar-Nap:"});
        hatarok(a.form10, {{"SpinEditEv1", 1900, 2068},
                           {"SpinEditHo1", 1, 12},
                           {"SpinEditNap1", 1, 31},
                           {"SpinEditOra1", 0, 23},
                           {"SpinEditPerc1", 0, 59},
                           {"SpinEditMperc1", 0, 59},
                           {"SpinEditIdozona1", -12, 12},
                           {"SpinEditNyariidosz1", 0, 1},
                           {"SpinEditHosszFok1", -180, 180},
                           {"SpinEditHosszPerc1", 0, 59},
                           {"SpinEditSzelFok1", -180, 180},
                           {"SpinEditSzelPerc1", 0, 59}});
    }

    void azEletesemenyekFejeiASajatOszlopukFelett() {
        TFrissAblakok a;
        a.form10.show();
        const QList<std::pair<const char*, int>> fejek{{"Életesemény:", 2},
                                                       {"Házanalógiák:", 3},
                                                       {"Esemény ideje (GMT):", 4},
                                                       {"Solar-évforduló helye:", 10},
                                                       {"Solar-Nap:", 14}};
        for (const auto& [felirat, oszlop] : fejek) {
            const auto* elsoSor =
                vezerlo<QLabel>(a.form10, qPrintable(QStringLiteral("LEletes_1_%1").arg(oszlop)));
            int felette = 0;
            for (const auto* fej : a.form10.findChildren<QLabel*>())
                felette += fej->text() == felirat && fej->x() == elsoSor->x() && fej->y() < elsoSor->y();
            QVERIFY2(felette == 1, felirat);
        }
    }

    void aPrimerDirekciok() {
        TFrissAblakok a;
        mezoFeliratok(a.form12,
                      {{"SpinEditEv1", "Kezdő év:"}, {"SpinEditHo1", "hó:"}, {"SpinEditNap1", "nap:"}});
        cimkek(a.form12, {"Solar-Nap:", "dMC:", "cMC:", "dAsc:", "cAsc:"});
        gombFeliratok(a.form12, {{"Button_Rendben1", "Rendben"},
                                 {"Button_Megsem1", "Mégsem"},
                                 {"Button_Pontositas1", "Pontosítás"}});
        hatarok(a.form12, {{"SpinEditEv1", 1900, 2068}, {"SpinEditHo1", 1, 12}, {"SpinEditNap1", 1, 31}});
    }

    void aPontositas() {
        TFrissAblakok a;
        mezoFeliratok(a.form13, {{"SpinEdit1", "Direkciós hatótávolság:   0,"}});
        cimkek(a.form13, {"dMc", "cMc", "dAsc", "cAsc", "Direkció-elemzés:"});
        gombFeliratok(a.form13, {{"Button_Rendben1", "Rendben"},
                                 {"Button_Megsem1", "Mégsem"},
                                 {"Button_Eletesemenyek1", "Életesemények"},
                                 {"Button_Elemzes1", "1"},
                                 {"Button_Elemzesp1", "+"},
                                 {"Button_Elemzesm2", "-"}});
        hatarok(a.form13, {{"SpinEdit1", 1, 99}});
        a.form13.show();
        for (const char* rejtett : {"Label6", "Button_Elemzes1", "Button_Elemzesp1", "Button_Elemzesm2"})
            QVERIFY2(!vezerlo<QWidget>(a.form13, rejtett)->isVisible(), rejtett);
    }

    void aVezerlokNemFedikEgymast() {
        TFrissAblakok a;
        for (QWidget* ablak :
             QWidgetList{&a.form2, &a.form7, &a.form9, &a.form10, &a.form11, &a.form13, &a.form14}) {
            ablak->show();
            QApplication::processEvents();
            szabadon(*ablak);
            ablak->hide();
        }
        menu(a.form1, "Mundnhzaspontosts1");
        szabadon(a.form8);
        menu(a.form1, "Primer1");
        szabadon(a.form12);
        for (const char* parancs : {"Orbisok1", "Tercier1"}) {
            valasz([](QWidget& d) {
                szabadon(d);
                kattint(d, "Button_Megsem1");
            });
            menu(a.form1, parancs);
        }
    }

    void nagyBetuvelIsElfernek() {
        const TNagyBetu nagy;
        TFrissAblakok a;
        menu(a.form1, "Primer1");
        vezerlo<QLabel>(a.form12, "LabelVege1")->show();  // as a full list does
        kattint(a.form12, "Button_Pontositas1");
        QCOMPARE(a.form13.width(), 369);
        vezerlo<QWidget>(a.form13, "Memo3")->hide();  // it lies outside
        a.form10.show();
        QApplication::processEvents();
        QCOMPARE(a.form12.font().pointSize(), 14);
        for (QWidget* ablak : QWidgetList{&a.form10, &a.form12, &a.form13}) {
            szabadon(*ablak);
            vagatlan(*ablak);
        }
        vezerlo<QWidget>(a.form13, "Memo3")->show();
        a.form13.resize(722, 430);
        QApplication::processEvents();
        szabadon(a.form13);
        vagatlan(a.form13);
        // The whole list is still seen at once.
        const auto* memo = vezerlo<QPlainTextEdit>(a.form12, "Memo1");
        QVERIFY(memo->fontMetrics().height() * 22 <= memo->viewport()->height());
    }

    /// The letters grow while the window is open.
    void aPontositasAMegnovoBetuhozIsIgazodik() {
        TFrissAblakok a;
        menu(a.form1, "Primer1");
        kattint(a.form12, "Button_Pontositas1");
        vezerlo<QWidget>(a.form13, "Memo3")->hide();  // it lies outside
        QApplication::processEvents();
        const TNagyBetu nagy;
        const auto* fej = vezerlo<QLabel>(a.form13, "Label2");
        QTRY_COMPARE(fej->font().pointSize(), 14);
        QTRY_VERIFY(fej->height() >= fej->sizeHint().height());  // in more than one round of events
        szabadon(a.form13);
        vagatlan(a.form13);
    }

    void azEletesemenyekOszlopaiMegadottHelyen() {
        const QList<int> oszlopok{7, 22, 180, 290, 318, 333, 348, 363, 378, 410, 520, 538, 556, 574, 632};
        TFrissAblakok a;
        a.form10.show();
        for (int sor = 1; sor <= 20; ++sor)
            for (int i = 0; i < oszlopok.size(); ++i) {
                const QString nev = QStringLiteral("LEletes_%1_%2").arg(sor).arg(i + 1);
                QVERIFY2(vezerlo<QLabel>(a.form10, qPrintable(nev))->x() == oszlopok[i], qPrintable(nev));
            }
    }

    void azOrbisokRacsaMegadottHelyen() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            for (auto* gomb : d.findChildren<QPushButton*>()) {
                const QStringList resz = gomb->objectName().split('_');
                if (resz[0] != "BOrbis") continue;
                const int r = resz[1].toInt() - 1;
                const int c = resz[2].toInt() - 1;
                QCOMPARE(gomb->geometry(), QRect(295 - 32 * (8 - c), 140 - 26 * (3 - r), 30, 24));
                QCOMPARE(gomb->font().pointSize(), 10);
                QCOMPARE(gomb->font().family(), "Ariel");
                QVERIFY(r > 1 || c == 0 || c == 3 || c == 4 || c == 5 || c == 8);
            }
            const QString bolygok = "ABCDEFGHIJ";
            const QString fenyszogek = "MNOPRSTVW";
            QStringList megvan;
            for (const auto* jel : d.findChildren<QLabel*>()) {
                QCOMPARE(jel->font().pointSize(), 10);
                QCOMPARE(jel->font().family(), jel->text().size() > 1 ? "Ariel" : "Astro Symbols");
                megvan << QStringLiteral("%1 %2 %3").arg(jel->text()).arg(jel->x()).arg(jel->y());
            }
            QStringList vart{"Asc 12 65", "MC 12 91"};
            for (int i = 0; i < 10; ++i) vart << QStringLiteral("%1 12 %2").arg(bolygok[i]).arg(26 * i + 117);
            for (int i = 0; i < 9; ++i)
                vart << QStringLiteral("%1 %2 42").arg(fenyszogek[i]).arg(32 * i + 45);
            megvan.sort();
            vart.sort();
            QCOMPARE(megvan, vart);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Orbisok1");
    }

    void aVisszateresek() {
        TFrissAblakok a;
        gombFeliratok(a.form14, {{"Button_Rendben1", "Rendben"}, {"Button_Megsem1", "Mégsem"}});
        mezoFeliratok(a.form14, {{"ComboBoxHelyseg1", "Helység:"}});
        a.form14.show();
        QApplication::processEvents();
        const QRect lista = hely(a.form14, *vezerlo<QWidget>(a.form14, "ListBox1"));
        int balra = lista.right();
        for (const auto& [szam, szoveg] :
             {std::pair("SpinEditEv1", "Edit1"), std::pair("SpinEditHo1", "Edit2"),
              std::pair("SpinEditNap1", "Edit3")}) {
            const QRect felso = hely(a.form14, *vezerlo<QWidget>(a.form14, szam));
            const QRect also = hely(a.form14, *vezerlo<QWidget>(a.form14, szoveg));
            QVERIFY2(felso.left() > balra && also.left() == felso.left() && also.top() > felso.bottom(),
                     szoveg);
            balra = felso.left();
        }
    }
};

QTEST_MAIN(FeliratokTeszt)
#include "feliratok_teszt.moc"
