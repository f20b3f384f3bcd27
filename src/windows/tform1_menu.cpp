// The main window's menu.

#include <array>
#include <utility>

#include <QAction>
#include <QKeySequence>
#include <QMenuBar>
#include <QShortcut>

#include "predictive/visszateresek.h"
#include "windows/tform1_foablak.h"

namespace {

using TKezelo = void (TForm1::*)();

/// One line of the menu: a submenu if it has no handler. The letter behind '&' is its key within the menu.
struct TMenuSor {
    int szint;
    const char* felirat;
    const char* nev;
    TKezelo kezelo;
    const char* billentyu = nullptr;  ///< works everywhere in the main window
};

constexpr TMenuSor menuSorok[]{
    {0, "&Horoszkóp", nullptr, nullptr},
    {1, "&Személyi adatok", "Szemely_adatok1", &TForm1::Szemely_adatok1Click},
    {1, "&Új", "Uj1", &TForm1::Uj1Click, "Ctrl+N"},
    {1, "&Megnyitás", "Megnyitas1", &TForm1::Megnyitas1Click, "Ctrl+O"},
    {1, "M&entés", "Mentes1", &TForm1::Mentes1Click, "Ctrl+S"},
    {1, "&Nyomtat", "Nyomtat1", &TForm1::Nyomtat1Click, "Ctrl+P"},
    {1, "Nyomtató&beállítás", "Nyomtato_beallitas1", &TForm1::Nyomtato_beallitas1Click},
    {1, "&Kilépés", "Kilepes1", &TForm1::Kilepes1Click, "Ctrl+Q"},
    {0, "&Nézet", nullptr, nullptr},
    {1, "&Horizont", "Horizont1", &TForm1::Horizont1Click, "F2"},
    {1, "&Mundán", "Mundan1", &TForm1::Mundan1Click, "F3"},
    {1, "&Dekád", "Dekad1", &TForm1::Dekad1Click, "F4"},
    {0, "&Progressziók", nullptr, nullptr},
    {1, "&Revolúció", "Revolucio1", nullptr},
    {2, "&Szolár", "Szolar1", &TForm1::Szolar1Click},
    {2, "&Lunár", "Lunar1", &TForm1::Lunar1Click},
    {2, "&Merkúr Rev", "MerkurRev1", &TForm1::MerkurRev1Click},
    {2, "&Vénusz Rev", "VenuszRev1", &TForm1::VenuszRev1Click},
    {2, "M&ars Rev", "MarsRev1", &TForm1::MarsRev1Click},
    {2, "&Jupiter Rev", "JupiterRev1", &TForm1::JupiterRev1Click},
    {2, "Sza&turnusz Rev", "SzaturnuszRev1", &TForm1::SzaturnuszRev1Click},
    {1, "&Personar", "Personar1", nullptr},
    {2, "&Asc Pers", "AscPers1", &TForm1::AscPers1Click},
    {2, "&Mc Pers", "McPers1", &TForm1::McPers1Click},
    {2, "&Hold Pers", "HoldPers1", &TForm1::HoldPers1Click},
    {2, "M&erkúr Pers", "MerkurPers1", &TForm1::MerkurPers1Click},
    {2, "&Vénusz Pers", "VenuszPers1", &TForm1::VenuszPers1Click},
    {2, "Ma&rs Pers", "MarsPers1", &TForm1::MarsPers1Click},
    {2, "&Jupiter Pers", "JupiterPers1", &TForm1::JupiterPers1Click},
    {2, "&Szaturnusz Pers", "SzaturnuszPers1", &TForm1::SzaturnuszPers1Click},
    {2, "&Uranusz Pers", "UranuszPers1", &TForm1::UranuszPers1Click},
    {2, "&Neptun Pers", "NeptunPers1", &TForm1::NeptunPers1Click},
    {2, "&Plutó Pers", "PlutoPers1", &TForm1::PlutoPers1Click},
    {1, "Pr&imer direkció", "Primer1", &TForm1::Primer1Click},
    {1, "&Tercier direkció", "Tercier1", &TForm1::Tercier1Click},
    {1, "&Szolár ingresszió", "Szolaringresszio11", &TForm1::Szolaringresszio11Click},
    {0, "&Beállítások", nullptr, nullptr},
    {1, "&Léptet", "Radixlepteto1", &TForm1::Radixlepteto1Click},
    {1, "&Orbisok", "Orbisok1", &TForm1::Orbisok1Click},
    {1, "&Mundánházas pontosítás", "Mundnhzaspontosts1", &TForm1::Mundnhzaspontosts1Click},
    {1, "&Szimbólumok", "Szimbolumok1", &TForm1::Szimbolumok1Click},
};

/// What stands in no menu of the bar: its key, and its caption where the wheel's own menu has it.
struct TBillentyu {
    const char* billentyu;
    const char* nev;
    TKezelo kezelo;
    const char* felirat = "";
};

constexpr TBillentyu billentyuk[]{
    {"F1", "Kezikonyv1", &TForm1::Kezikonyv1Click},
    {"F5", "Most1", &TForm1::PanelButton2_MostClick},
    {"Ctrl+C", "KepMasolas1", &TForm1::KepMasolas1Click, "&Kép másolása"},
    {"Ctrl+Shift+C", "AdatMasolas1", &TForm1::AdatMasolas1Click, "&Adatok másolása szövegként"},
    {nullptr, "KepPdf1", &TForm1::KepPdf1Click, "Mentés &PDF-ként…"},
    {nullptr, "KepSvg1", &TForm1::KepSvg1Click, "Mentés &SVG-ként…"},
    {nullptr, "KepPng1", &TForm1::KepPng1Click, "Mentés P&NG-ként…"},
};

/// These run without the password.
constexpr bool jelszoNelkul(TKezelo kezelo) {
    return kezelo == &TForm1::Kilepes1Click || kezelo == &TForm1::Kezikonyv1Click;
}

}  // namespace

void TForm1::parancsEpites(QAction& pont, const char* nev, TKezelo kezelo, const char* billentyu) {
    pont.setObjectName(nev);
    if (billentyu != nullptr) pont.setShortcut(QKeySequence(billentyu));
    connect(&pont, &QAction::triggered, this, [this, kezelo] {
        if (jelszoNelkul(kezelo) || JelszoKeres()) (this->*kezelo)();
    });
}

void TForm1::menuEpites() {
    menuBar()->setObjectName("MainMenu1");
    std::array<QMenu*, 3> menuk{};
    for (const TMenuSor& sor : menuSorok) {
        const auto szint = static_cast<std::size_t>(sor.szint);
        if (sor.kezelo == nullptr) {
            menuk[szint] =
                szint == 0 ? menuBar()->addMenu(sor.felirat) : menuk[szint - 1]->addMenu(sor.felirat);
            menuk[szint]->setObjectName(sor.nev);
            continue;
        }
        parancsEpites(*menuk[szint - 1]->addAction(sor.felirat), sor.nev, sor.kezelo, sor.billentyu);
    }
    for (const TBillentyu& b : billentyuk) {
        auto* pont = new QAction(b.felirat, this);
        pont->setShortcutVisibleInContextMenu(true);
        addAction(pont);
        parancsEpites(*pont, b.nev, b.kezelo, b.billentyu);
    }
    // The derived chart steps through its list; no menu item tells of it.
    for (const auto& [billentyu, lepes] : {std::pair(Qt::Key_PageDown, 1), std::pair(Qt::Key_PageUp, -1)})
        connect(new QShortcut(billentyu, this), &QShortcut::activated, this, [this, lepes = lepes] {
            if (allapot_.VisszaMod && JelszoKeres()) VisszateresSzomszed(allapot_, *this, lepes);
        });
}
