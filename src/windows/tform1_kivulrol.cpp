// Charts opened in the main window: by its dialog, by the command line, by a drop.

#include <QDir>
#include <QFileInfo>

#include "commands/kvhfajl.h"
#include "windows/ablakok.h"
#include "windows/fajlejtes.h"
#include "windows/legutobbitar.h"
#include "windows/qszoveg.h"
#include "windows/tform1_foablak.h"

void TForm1::legutobbiBeallitasa(TLegutobbiTar& tar) {
    legutobbi_ = &tar;
    alapParbeszed_.legutobbiBeallitasa(tar);
}

void TForm1::legutobbiFelvetel(const QString& fajl) {
    if (legutobbi_ != nullptr) legutobbi_->felvesz(fajl);
}

void TForm1::ejtesFigyeles() {
    auto* ejtes = new TFajlEjtes(*this, [this](const QString& fajl) { KivulrolMegnyitas(fajl); });
    ejtes->figyel(*memo1_->viewport());
}

void TForm1::fajlMegnyitas(const QString& fajl) {
    const auto hiba = KepletMegnyitas(allapot_, *this, szoveg(fajl), [this] { ablakok_->form5.HangLink(); });
    if (hiba)
        parbeszed_->uzenet(this, qszoveg(*hiba));
    else
        legutobbiFelvetel(fajl);
}

void TForm1::Megnyitas1Click() {
    allapot_.Modositott = false;
    const QString fajl = parbeszed_->megnyitando(this, kepletfajlSzuro);
    if (!fajl.isEmpty()) fajlMegnyitas(fajl);
}

void TForm1::KivulrolMegnyitas(const QString& fajl) {
    if (!JelszoKeres()) return;
    allapot_.Modositott = false;
    const QFileInfo teljes(fajl);
    const QString ut = teljes.absoluteFilePath();
    QDir::setCurrent(teljes.absolutePath());  // where its sound is looked for
    fajlMegnyitas(ut);
}
