#include "windows/tform11_jelszo.h"

#include <optional>

#include <QCoreApplication>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "chart/allapot.h"
#include "commands/jelszo.h"
#include "windows/ablakelhelyezes.h"
#include "windows/qszoveg.h"

TForm11::TForm11(Allapot& allapot, FoAblak&, QWidget* fo)
    : TKesobbiAblak(fo,
                    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint),
      programVege([] { QCoreApplication::exit(0); }),
      allapot_(allapot),
      fo_(fo),
      tar_(TJelszoTar::alapFajl()) {
    setObjectName("TForm11");
    setWindowTitle("Kérem a jelszót!");
    using Allas = TJelszoTar::Allas;
    allapot_.JelszoRendben = tar_.allas() == Allas::nincsTar || tar_.allas() == Allas::nincsJelszo;
}

void TForm11::epites() {
    edit1_ = new QLineEdit(this);
    edit1_->setObjectName("Edit1");
    edit1_->setEchoMode(QLineEdit::Password);
    edit1_->setMaxLength(jelszoHossz);
    edit1_->setMinimumWidth(200);
    (new QVBoxLayout(this))->addWidget(edit1_);
    connect(edit1_, &QLineEdit::textChanged, this, &TForm11::Edit1Change);
}

bool TForm11::ujJelszo(const QString& jelszo) {
    return tar_.ment(NincsJelszo(szoveg(jelszo)) ? QString() : jelszo.left(jelszoHossz));
}

bool TForm11::ujJelszoKeres(TParbeszed& parbeszed) {
    const QString cim = "Korvend";
    std::optional<QString> elso;
    std::optional<QString> masodik;
    for (;;) {
        elso = parbeszed.titok(nullptr, cim,
                               "Jelszó megadása:\nKis betűket használjon.\n"
                               "Ha nem akar jelszót használni, hagyja üresen.",
                               jelszoHossz);
        if (!elso) return false;
        masodik = parbeszed.titok(nullptr, cim, "Jelszó megadása még egyszer:", jelszoHossz);
        if (!masodik) return false;
        if (elso == masodik) break;
        parbeszed.uzenet(nullptr, "A két jelszó nem egyezik.");
    }
    const bool kesz = ujJelszo(*elso);
    if (!kesz) parbeszed.uzenet(nullptr, "A jelszó nem menthető.");
    return kesz;
}

bool TForm11::jelszoCsere(TParbeszed& parbeszed) {
    if (!allapot_.JelszoRendben) kerdez();
    return allapot_.JelszoRendben && ujJelszoKeres(parbeszed);
}

void TForm11::kerdez() {
    elkeszites();
    {
        const QSignalBlocker blokk(edit1_);
        edit1_->clear();
    }
    adjustSize();
    kozepre(*this, *fo_);
    exec();
}

bool TForm11::JelszoKeres() {
    if (allapot_.JelszoRendben) return true;
    if (isVisible()) return false;
    kerdez();
    if (!allapot_.JelszoRendben) programVege();
    return allapot_.JelszoRendben;
}

void TForm11::Edit1Change() {
    if (JelszoValtozas(allapot_, tar_.egyezik(edit1_->text())) != JelszoValasz::tovabb) accept();
}
