#include "majomfajlok.h"

#include <filesystem>
#include <limits>
#include <sys/stat.h>

#include <QDir>

#include "commands/kvhfajl.h"
#include "events/eletesemenyek.h"
#include "files/cimfajl.h"
#include "files/kvhrekord.h"

namespace {

constexpr int kepletFajlok = 12;
constexpr const char* hangNev = "Szép hang";
constexpr const char* iras = "uj%1";

const char* const szovegek[]{"Budapest",
                             "szeged",
                             "Őrbottyán",
                             "London",
                             "Sehol",
                             "1",
                             "0",
                             "-180",
                             "2068",
                             "1899",
                             "99999999999",
                             "1,2,3,12",
                             "5.,7;13,-1,x",
                             "Kovács Árpád",
                             "tükörfúrógép",
                             "nagyon hosszú szöveg, amely semmilyen mezőbe sem fér bele egészen",
                             " ",
                             "",
                             "\t\n",
                             "a&b<i>c</i>%1",
                             "😀 אבג \u202e fordított",
                             "e\u0301\u0302\u0303",
                             "../../x",
                             "titok",
                             "12:61:99"};

constexpr std::int32_t szelso[]{0,
                                -1,
                                1,
                                12,
                                13,
                                31,
                                59,
                                60,
                                1899,
                                1900,
                                2068,
                                2069,
                                648000,
                                -648000,
                                std::numeric_limits<std::int32_t>::max(),
                                std::numeric_limits<std::int32_t>::min()};

}  // namespace

QString majomSzoveg(TVeletlen& v) {
    QString szoveg = QString::fromUtf8(v.egyik(szovegek));
    if (v.egyszer(12)) szoveg = szoveg.repeated(v.koz(2, 40));
    if (v.egyszer(12)) szoveg.insert(v.koz(0, static_cast<int>(szoveg.size())), QChar(v.koz(0, 0xFFFF)));
    return szoveg;
}

TMajomFajlok::TMajomFajlok(TVeletlen& veletlen, bool hihetetlen)
    : veletlen_(veletlen), hihetetlen_(hihetetlen) {
    for (int i = 0; i < kepletFajlok; ++i) {
        kepletek_ << QStringLiteral("keplet%1.kvh").arg(i);
        valtozas();
    }
    mappa_.irj(std::string(hangNev) + ".mpe", "RIFF");
    std::filesystem::create_directory(mappa_.fajl("mappa.kvh"));
    mkfifo(mappa_.fajl("cso.kvh").c_str(), 0600);
    kepletek_ << "mappa.kvh"
              << "cso.kvh"
              << "nincs.kvh"
              << "nincs/ilyen.kvh";
}

QString TMajomFajlok::nyitando() {
    if (veletlen_.egyszer(20)) return mappa() + '/' + majomSzoveg(veletlen_);
    return mappa() + '/' + veletlen_.egyik(kepletek_);
}

QString TMajomFajlok::irando(const QString& kiterjesztes) {
    if (veletlen_.egyszer(10)) return mappa() + "/nincs/ilyen" + kiterjesztes;
    if (veletlen_.egyszer(10)) return mappa() + "/mappa.kvh";
    if (kiterjesztes == ".kvh" && veletlen_.egyszer(2)) return mappa() + '/' + kepletek_[0];
    return mappa() + '/' + QString(iras).arg(veletlen_.koz(1, 3)) +
           (veletlen_.egyszer(2) ? kiterjesztes : QString());
}

std::string TMajomFajlok::rekord(int esemenySzam, bool esemeny) {
    TVeletlen& v = veletlen_;
    TKvhRekord r;
    r.nev = v.egyszer(4) ? hangNev : majomSzoveg(v).toStdString();
    r.pillanat = {v.koz(1900, 2068), v.koz(1, 12), v.koz(1, 31), v.koz(0, 23), v.koz(0, 59), v.koz(0, 59)};
    r.idozona = v.koz(-12, 12);
    r.nyariIdo = v.koz(0, 1);
    r.helyseg = majomSzoveg(v).toStdString();
    r.hosszusag = v.koz(-648000, 648000);
    r.szelesseg = v.egyszer(5) ? v.koz(-648000, 648000) : v.koz(-65 * 3600, 65 * 3600);
    r.jegyzet = esemeny ? "1,5,12" : majomSzoveg(v).toStdString();
    r.esemenySzam = esemenySzam;
    r.hang = esemeny ? std::to_string(v.koz(1, 12)) : v.egyszer(2) ? "H" : "";
    if (hihetetlen_ && v.egyszer(4))
        *v.egyik(std::array{&r.idozona, &r.nyariIdo, &r.hosszusag, &r.szelesseg}) = v.egyik(szelso);
    if (hihetetlen_ && v.egyszer(4)) {
        TPillanat& p = r.pillanat;
        *v.egyik(std::array{&p.ev, &p.ho, &p.nap, &p.ora, &p.perc, &p.mperc}) = v.egyik(szelso);
    }
    const TKvhBajtok bajtok = KvhKodolas(r);
    return {bajtok.begin(), bajtok.end()};
}

std::string TMajomFajlok::keplet() {
    const int esemenySzam = veletlen_.egyszer(2) ? 0 : veletlen_.koz(0, esemenyHelyek);
    std::string tartalom = rekord(esemenySzam, false);
    for (int i = 1; i <= esemenySzam; ++i) tartalom += rekord(i, true);
    return tartalom;
}

void TMajomFajlok::rongal(std::string& tartalom) {
    TVeletlen& v = veletlen_;
    const auto hol = [&] {
        return static_cast<std::size_t>(v.koz(0, static_cast<int>(tartalom.size()) - 1));
    };
    switch (hihetetlen_ ? v.koz(0, 4) : 0) {
        case 0:
            tartalom.resize(hol());
            return;
        case 1:
            tartalom.assign(tartalom.size(), static_cast<char>(v.koz(0, 255)));
            return;
        case 2:
            tartalom.insert(hol(), static_cast<std::size_t>(v.koz(1, 700)), static_cast<char>(v.koz(0, 255)));
            return;
        default:
            for (int i = v.koz(1, 40); i > 0; --i) tartalom[hol()] = static_cast<char>(v.koz(0, 255));
    }
}

void TMajomFajlok::cimfajl() {
    std::string tartalom;
    for (int i = veletlen_.koz(0, 8); i > 0; --i) tartalom += majomSzoveg(veletlen_).toStdString() + '\n';
    mappa_.irj(cimFajlNev, tartalom);
}

QString TMajomFajlok::valtozas() {
    if (veletlen_.egyszer(8)) cimfajl();
    const QString nev = kepletek_[veletlen_.koz(0, kepletFajlok - 1) % static_cast<int>(kepletek_.size())];
    if (veletlen_.egyszer(12)) {
        QDir(mappa()).remove(nev);
        return "removed " + nev;
    }
    std::string tartalom = keplet();
    const bool romlott = veletlen_.egyszer(3);
    if (romlott) rongal(tartalom);
    mappa_.irj(nev.toStdString(), tartalom);
    return (romlott ? "damaged " : "good ") + nev;
}
