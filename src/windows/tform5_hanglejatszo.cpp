#include "windows/tform5_hanglejatszo.h"

#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHideEvent>

#include "chart/allapot.h"
#include "commands/hang.h"
#include "windows/ablakelhelyezes.h"
#include "windows/parbeszed.h"
#include "windows/qszoveg.h"
#include "windows/vezerlok.h"

namespace {

constexpr QSize lejatszoMeret{208, 30};

#ifdef Q_OS_WIN
constexpr bool vannakMeghajtok = true;
#else
constexpr bool vannakMeghajtok = false;
#endif

std::string hangFajl(const std::string& nev) {
    const auto mappak = HangMappak(szoveg(QDir::currentPath()), szoveg(QDir::homePath()), vannakMeghajtok);
    return HangFajlKeres(nev, mappak,
                         [](const std::string& fajl) { return QFileInfo::exists(qszoveg(fajl)); });
}

}  // namespace

TForm5::TForm5(Allapot& allapot, FoAblak&, QWidget* fo) : TKesobbiAblak(fo), allapot_(allapot), fo_(fo) {
    setObjectName("TForm5");
    setWindowTitle("Hanglejátszás");
    setFixedSize(lejatszoMeret);
}

void TForm5::epites() {
    auto* sor = new QHBoxLayout(this);
    sor->setContentsMargins(0, 0, 0, 0);
    QPushButton* lejatszas = ujGomb(this, "Lejatszas1", "▶");
    QPushButton* szunet = ujGomb(this, "Szunet1", "▮▮");
    QPushButton* megallitas = ujGomb(this, "Megallitas1", "■");
    for (QPushButton* g : {lejatszas, szunet, megallitas}) sor->addWidget(g);
    connect(lejatszas, &QPushButton::clicked, this, [this] { gombra(&TLejatszo::lejatszas); });
    connect(szunet, &QPushButton::clicked, this, [this] { gombra(&TLejatszo::szunet); });
    connect(megallitas, &QPushButton::clicked, this, [this] { gombra(&TLejatszo::megallitas); });
}

TLejatszo* TForm5::lejatszo() {
    if (lejatszo_ != nullptr) return lejatszo_;
    if (THangModul* hang = modul())
        lejatszo_ = hang->ujLejatszo(*this, [this](int kod, const QString& szoveg) { hiba(kod, szoveg); });
    else if (parbeszed_ != nullptr)
        parbeszed_->uzenet(this, "A hang lejátszásához hiányzik a Qt Multimedia hangkönyvtár.");
    return lejatszo_;
}

void TForm5::gombra(void (TLejatszo::*muvelet)()) {
    if (TLejatszo* hang = lejatszo()) (hang->*muvelet)();
}

void TForm5::HangLink() {
    const std::string fajl = hangFajl(allapot_.Szemely.nev);
    if (!VanHang(allapot_.Szemely) || fajl.empty()) return;
    if (lejatszo_ != nullptr) lejatszo_->ures();
    hibaJelezve_ = false;
    felulKozepre(*this, *fo_);
    show();
    allapot_.HangCim = allapot_.Szemely.nev + "   ";
    allapot_.HangAktiv = true;
    if (TLejatszo* hang = lejatszo()) hang->ujFajl(qszoveg(fajl));
}

void TForm5::hideEvent(QHideEvent* esemeny) {
    QDialog::hideEvent(esemeny);
    // A spontaneous event is a minimized window, which plays on.
    if (lejatszo_ != nullptr && !esemeny->spontaneous()) lejatszo_->megallitas();
}

void TForm5::hiba(int kod, const QString& szoveg) {
    // One broken file makes the player report several errors in a row.
    if (parbeszed_ == nullptr || std::exchange(hibaJelezve_, true)) return;
    parbeszed_->uzenet(this, QStringLiteral("Hibakód: %1\r\n%2").arg(kod).arg(szoveg));
}
