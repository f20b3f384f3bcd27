#include "esemeny.h"

#include <charconv>
#include <string>

#include "tables/fokperc.h"

TEletesemeny EletesemenyBol(const TKvhRekord& r) {
    TEletesemeny e;
    e.esemeny = r.nev;
    e.analogia = r.jegyzet;
    e.pillanat = r.pillanat;
    e.helyseg = r.helyseg;
    e.idozona = r.idozona;
    e.nyariIdo = r.nyariIdo;
    e.hosszFok = fokPercre(r.hosszusag).fok, e.hosszPerc = fokPercre(r.hosszusag).perc;
    e.szelFok = fokPercre(r.szelesseg).fok, e.szelPerc = fokPercre(r.szelesseg).perc;
    std::from_chars(r.hang.data(), r.hang.data() + r.hang.size(), e.solarNap);
    return e;
}

TKvhRekord EsemenyRekord(const TEletesemeny& e) {
    TKvhRekord r;
    r.nev = e.esemeny;
    r.jegyzet = e.analogia;
    r.pillanat = e.pillanat;
    r.helyseg = e.helyseg;
    r.idozona = e.idozona;
    r.nyariIdo = e.nyariIdo;
    r.hosszusag = ivmasodpercre(e.hosszFok, e.hosszPerc);
    r.szelesseg = ivmasodpercre(e.szelFok, e.szelPerc);
    r.hang = std::to_string(e.solarNap);
    return r;
}
