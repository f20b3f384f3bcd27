// The main window's commands: each opens what it needs and hands over to the core.

#include <QBuffer>
#include <QCloseEvent>
#include <QPainter>
#include <QPdfWriter>
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
#include "files/fajlmuvelet.h"
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
#include "windows/tform13_pontositas.h"
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

void TForm1::Mentes1Click() {
    allapot_.Modositott = false;
    const QString fajl = parbeszed_->mentendo(this, kepletfajlSzuro, qszoveg(KvhFajlNev(allapot_.Szemely)));
    if (fajl.isEmpty()) return;
    if (const auto hiba = KepletMentes(allapot_, szoveg(fajl)))
        parbeszed_->uzenet(this, qszoveg(*hiba));
    else
        legutobbiFelvetel(fajl);
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
    ablakok_->form7.elkeszites();
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

    kiirtTalalatok_ = form3.eredmeny();
    felulet_->rajzol([&](Vaszon& vaszon) { DatumosKiiras(vaszon, allapot_, *kiirtTalalatok_); });
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

void TForm1::MundanFrissit() {
    ablakok_->form8.frissit();
}
void TForm1::PontositasFuttat() {
    ablakok_->form13.futtat();
}
void TForm1::PrimerFuttat() {
    ablakok_->form12.futtat();
}

void TForm1::Szimbolumok1Click() {
    ablakok_->form9.megmutat();
    RajzolKeplet();
}

void TForm1::Nyomtato_beallitas1Click() {
    allapot_.MostFut = false;
    allapot_.Feliratok.mostGomb = "Most";
    Mutat();
    nyomtatoBeallitas();
}

QPrinter& TForm1::nyomtato() {
    if (!nyomtato_) nyomtato_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *nyomtato_;
}

bool TForm1::nyomtatoBeallitas() {
    const bool elfogadva = parbeszed_->nyomtatoBeallitas(this, nyomtato());
    nyomtatoBeallitva_ = nyomtatoBeallitva_ || elfogadva;
    return elfogadva;
}

bool TForm1::lapFestes(QPagedPaintDevice& lap, const QString& nev) {
    NyomtatasNezete(allapot_, szoveg(nev));
    Mutat();
    QPainter festo;
    if (!festo.begin(&lap)) return false;
    QtVaszon vaszon(festo);
    LapRajz(vaszon, allapot_, FejlecSzoveg(allapot_.Keplet, szoveg(nev)), lap.width(), lap.height());
    return festo.end();
}

void TForm1::papirraNyomtatas(const QString& nev) {
    nyomtato().setResolution(nyomtatasiFelbontas);
    nyomtato().setDocName(nev);
    if (!lapFestes(nyomtato(), nev) || nyomtato().printerState() == QPrinter::Error)
        parbeszed_->uzenet(this, "A nyomtatás nem sikerült.");
}

/// The page is painted into memory first: so the file is written in one piece, and whatever keeps it from
/// being written is known.
void TForm1::pdfNyomtatas(const QString& nev) {
    const QString fajl = parbeszed_->mentendo(this, "PDF (*.pdf)", qszoveg(PdfFajlNev(allapot_)));
    if (fajl.isEmpty()) return;
    QBuffer tar;
    tar.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&tar);
    pdf.setPageLayout(nyomtato().pageLayout());
    pdf.setResolution(nyomtatasiFelbontas);
    pdf.setTitle(nev);
    pdf.setCreator("Korvend");
    if (!lapFestes(pdf, nev) || !FajlIras(szoveg(fajl), tar.data().toStdString()))
        parbeszed_->uzenet(this, "A nyomtatás nem sikerült, a fájl nem írható:\n" + fajl);
}

void TForm1::nyomtatas() {
    if (!nyomtatoBeallitva_ && !parbeszed_->vanNyomtato() && !nyomtatoBeallitas()) return;
    const QString nev = parbeszed_->bekeres(this, "Nyomtatás", "Kérek egy megnevezést:");
    if (nev.isEmpty()) return;
    if (nyomtato().outputFormat() == QPrinter::PdfFormat)
        pdfNyomtatas(nev);
    else
        papirraNyomtatas(nev);
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
