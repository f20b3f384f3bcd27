#include <algorithm>
#include <filesystem>
#include <fstream>

#include "commands/kvhfajl.h"
#include "commands/lepteto.h"
#include "events/analogia.h"
#include "events/eletesemenyek.h"
#include "files/fajlmuvelet.h"
#include "muveletek.h"

TJson lepesMuvelet(const TKerelem& kerelem) {
    Allapot allapot;
    pillanatMezo(kerelem, allapot);
    const TKerelem& gombok = mezo(kerelem, "gombok");
    if (!gombok.is_array()) throw THiba("gombok: tömb kell");
    for (const TKerelem& gomb : gombok) {
        if (!gomb.is_string()) throw THiba("gombok: szöveg kell");
        const auto lepes = std::find_if(lepesek.begin(), lepesek.end(),
                                        [&](const TLepes& l) { return l.gomb == gomb.get<std::string>(); });
        if (lepes == lepesek.end()) throw THiba("ismeretlen gomb: " + gomb.get<std::string>());
        Leptetes(allapot, *lepes);
    }
    return {{"pillanat", pillanatTomb(allapot.Keplet.pillanat)}, {"julianszam", allapot.Keplet.julianszam}};
}

TJson kvhOlvasMuvelet(const TKerelem& kerelem) {
    Allapot allapot;
    std::ifstream be(FajlUt(fajlMezo(kerelem, "fajl")), std::ios::binary);
    if (const TKvhHiba hiba = KepletBeolvasas(allapot, be)) throw THiba(*hiba);
    TJson esemenyek = TJson::array();
    for (int i = 1; i <= allapot.Esemenyek.EsemenyDb; ++i)
        esemenyek.push_back(esemenyValasz(allapot.Esemenyek.esemenyek[i]));
    return {{"nev", allapot.Szemely.nev},
            {"pillanat", pillanatTomb(allapot.Szemely.beirt)},
            {"idozona", allapot.Keplet.idozona},
            {"nyariIdo", allapot.Keplet.nyariIdo},
            {"helyseg", allapot.Keplet.helyseg},
            {"hosszusag", allapot.Keplet.hosszusag},
            {"szelesseg", allapot.Keplet.szelesseg},
            {"jegyzet", allapot.Szemely.jegyzet},
            {"hang", allapot.Szemely.hangJel},
            {"esemenyek", esemenyek}};
}

TJson kvhIrMuvelet(const TKerelem& kerelem) {
    Allapot allapot;
    const auto p = egeszTomb<6>(kerelem, "pillanat");
    allapot.Keplet.pillanat = {p[0], p[1], p[2], p[3], p[4], p[5]};
    allapot.Szemely.nev = szovegMezo(kerelem, "nev");
    allapot.Keplet.idozona = egeszMezo(kerelem, "idozona");
    allapot.Keplet.nyariIdo = egeszMezo(kerelem, "nyariIdo");
    allapot.Keplet.helyseg = szovegMezo(kerelem, "helyseg");
    allapot.Keplet.hosszusag = egeszMezo(kerelem, "hosszusag");
    allapot.Keplet.szelesseg = egeszMezo(kerelem, "szelesseg");
    allapot.Szemely.jegyzet = szovegMezo(kerelem, "jegyzet");
    allapot.Szemely.hangJel = szovegMezo(kerelem, "hang");
    esemenyekMezo(kerelem, allapot.Esemenyek);
    const std::string fajl = fajlMezo(kerelem, "fajl");
    if (const TKvhHiba hiba = KepletMentes(allapot, fajl)) throw THiba(*hiba);
    std::error_code baj;
    const auto meret = std::filesystem::file_size(FajlUt(fajl), baj);
    return {{"meret", baj ? 0 : meret}};
}

TJson analogiaMuvelet(const TKerelem& kerelem) {
    const TAnalogia analogia = AnalogiaElemzes(szovegMezo(kerelem, "szoveg"));
    return {{"analogia", analogia.szoveg}, {"szamok", analogia.szamok}};
}

TJson eletesemenyMuvelet(const TKerelem& kerelem) {
    Allapot allapot;
    pillanatMezo(kerelem, allapot);
    helyMezo(kerelem, allapot);
    const TEletesemeny esemeny = esemenyErtek(mezo(kerelem, "esemeny"));
    const TKeplet& k = allapot.Keplet;
    return {{"gmt", pillanatTomb(EsemenyGmt(esemeny))},
            {"solarNap", EsemenySolarNap({k.pillanat, k.nyariIdo, k.idozona, k.hosszusag}, esemeny)}};
}
