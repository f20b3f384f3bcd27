// The main window's commands: each opens what it needs and hands over to the core.

#include <QCloseEvent>
#include <QPainter>
#include <QPrinter>

#include "chart/allapot.h"
#include "chart/statuszsor.h"
#include "commands/datumosdirekcio.h"
#include "commands/kvhfajl.h"
#include "commands/nezet.h"
#include "commands/nyomtatas.h"
#include "commands/orajel.h"
#include "commands/orbisok.h"
#include "commands/rendszerido.h"
#include "commands/szemelyiadatok.h"
#include "predictive/visszateresek.h"
#include "tables/pillanat.h"
#include "windows/ablakelhelyezes.h"
#include "windows/ablakok.h"
#include "windows/kepletfelulet.h"
#include "windows/parbeszed.h"
#include "windows/qszoveg.h"
#include "windows/qtvaszon.h"
#include "windows/sajatfajlok.h"
#include "windows/tform11_jelszo.h"
#include "windows/tform12_primer.h"
#include "windows/tform14_visszateresek.h"
#include "windows/tform1_foablak.h"
#include "windows/tform2_szemelyiadatok.h"
#include "windows/tform3_tercier.h"
#include "windows/tform5_hanglejatszo.h"
#include "windows/tform6_orbisok.h"
#include "windows/tform7_lepteto.h"
#include "windows/tform8_mundanhazak.h"
#include "windows/tform9_szimbolumok.h"

void TForm1::szemelyiAblak(bool ujKeplet) {
    TForm2& form2 = ablakok_->form2;
    form2.kitoltes(ujKeplet);
    form2.adjustSize();
    kozepre(form2, *this);
    form2.exec();
    SzemelyiAblakZarult(allapot_);
    if (!allapot_.Megsem2) BevittKepletMutatasa(allapot_, *this);
}

bool TForm1::JelszoKeres() {
    return ablakok_ == nullptr || ablakok_->form11.JelszoKeres();
}

void TForm1::Szemely_adatok1Click() {
    szemelyiAblak(false);
}
void TForm1::Uj1Click() {
    szemelyiAblak(true);
}
void TForm1::Kilepes1Click() {
    close();
}
void TForm1::Horizont1Click() {
    HorizontParancs(allapot_, *this);
}
void TForm1::Mundan1Click() {
    MundanParancs(allapot_, *this);
}
void TForm1::Dekad1Click() {
    DekadParancs(allapot_, *this);
}
void TForm1::PanelButton2_MostClick() {
    MostParancs(allapot_, *this);
}
void TForm1::PanelButton3_ValtClick() {
    ValtParancs(allapot_, *this);
}

void TForm1::Kezikonyv1Click() {
    const QString fajl = kezikonyvFajl();
    if (fajl.isEmpty() || !parbeszed_->megmutat(QUrl::fromLocalFile(fajl)))
        parbeszed_->uzenet(this, "A kézikönyv nem nyitható meg.");
}

namespace {
const QString kvhSzuro = QStringLiteral("Kvh files (*.kvh)");
}

void TForm1::Mentes1Click() {
    allapot_.Modositott = false;
    const QString fajl = parbeszed_->mentendo(this, kvhSzuro, qszoveg(allapot_.Szemely.nev) + ".kvh");
    if (fajl.isEmpty()) return;
    if (const auto hiba = KepletMentes(allapot_, szoveg(fajl))) parbeszed_->uzenet(this, qszoveg(*hiba));
}

void TForm1::Megnyitas1Click() {
    allapot_.Modositott = false;
    const QString fajl = parbeszed_->megnyitando(this, kvhSzuro);
    if (fajl.isEmpty()) return;
    const auto hiba = KepletMegnyitas(allapot_, *this, szoveg(fajl), [this] { ablakok_->form5.HangLink(); });
    if (hiba) parbeszed_->uzenet(this, qszoveg(*hiba));
}

void TForm1::closeEvent(QCloseEvent* esemeny) {
    const QString kerdes = "Valóban ki akar lépni?";
    const bool modositott = allapot_.Modositott;
    if (!parbeszed_->igen(this, modositott ? "Kilépés és adatok mentése" : "Kilépés", kerdes)) {
        esemeny->ignore();
        return;
    }
    if (modositott) Mentes1Click();
    esemeny->accept();
}

void TForm1::Radixlepteto1Click() {
    felulKozepre(ablakok_->form7, *this);
    ablakok_->form7.show();
    ablakok_->form7.raise();
}

void TForm1::Orbisok1Click() {
    ablakok_->form6.megmutat();
    OrbisUjraszamitas(allapot_, *this);
}

void TForm1::visszateres(const TVisszateresFajta& fajta) {
    TForm14& form14 = ablakok_->form14;
    form14.kitoltes(fajta, VisszateresKezdo(allapot_));
    VisszateresKereses(allapot_, fajta, VisszateresCel(allapot_, fajta));
    form14.megmutat(VisszateresSorok(allapot_, fajta));
    if (!allapot_.Megsem14) VisszateresKeplet(allapot_, *this, fajta, form14.sor(), form14.helyseg());
}

void TForm1::Revolucio(int fajta) {
    visszateres(RevolucioFajta(fajta));
}
void TForm1::Personar(int fajta) {
    visszateres(PersonarFajta(fajta));
}

void TForm1::Primer1Click() {
    TPillanat ma;
    OlvasDatum(RendszerDatum(), ma);
    ablakok_->form12.megmutat(ma.ev - 1);
}

void TForm1::datumosDirekcio(bool tercier) {
    allapot_.TercierAblak = tercier;
    Ujrafest();
    RajzolKeplet();
    TForm3& form3 = ablakok_->form3;
    form3.megmutat();
    if (allapot_.Megsem3) return;

    felulet_->rajzol([&](QtVaszon& vaszon) { DatumosKiiras(vaszon, allapot_, form3.eredmeny()); });
    felulet_->megmutat();
}

void TForm1::Tercier1Click() {
    datumosDirekcio(true);
}
void TForm1::Szolaringresszio11Click() {
    datumosDirekcio(false);
}

void TForm1::Mundnhzaspontosts1Click() {
    ablakok_->form8.megmutat();
}

void TForm1::Szimbolumok1Click() {
    ablakok_->form9.megmutat();
    RajzolKeplet();
}

void TForm1::Nyomtato_beallitas1Click() {
    allapot_.MostFut = false;
    allapot_.Feliratok.mostGomb = "Most";
    Mutat();
    parbeszed_->nyomtatoBeallitas(this, nyomtato());
}

QPrinter& TForm1::nyomtato() {
    if (!nyomtato_) nyomtato_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *nyomtato_;
}

void TForm1::nyomtatas() {
    const bool fajlba = !nyomtato().outputFileName().isEmpty();
    if (!fajlba && !parbeszed_->vanNyomtato() && !parbeszed_->nyomtatoBeallitas(this, nyomtato())) return;
    const QString nev = parbeszed_->bekeres(this, "Nyomtatás", "Kérek egy megnevezést:");
    if (nev.isEmpty()) return;
    NyomtatasNezete(allapot_, szoveg(nev));
    Mutat();
    const QSize lap = nyomtato().pageRect(QPrinter::DevicePixel).size().toSize();
    QPainter festo;
    if (!festo.begin(&nyomtato())) {
        parbeszed_->uzenet(this, "A nyomtatás nem indítható el.");
        return;
    }
    QtVaszon vaszon(festo);
    LapRajz(vaszon, allapot_, FejlecSzoveg(allapot_.Keplet, szoveg(nev)), lap.width(), lap.height());
}

void TForm1::Nyomtat1Click() {
    allapot_.Rajz.nyomtatasMod = true;
    allapot_.MostFut = false;
    allapot_.Feliratok.mostGomb = "Most";
    Mutat();
    nyomtatas();
    allapot_.Rajz.nyomtatasMod = false;
    allapot_.TeljesTorles = false;
    felulet_->torol();
    RajzolKeplet();
}
