#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "engine/fenyszogek.h"
#include "engine/keszlet.h"
#include "engine/uralkodok.h"

/// All that the program knows at run time, as plain data. The main window owns the one `Allapot`.

/// Date and time in zone clock time.
struct TPillanat {
    std::int32_t ev = 1900;
    std::int32_t ho = 1;
    std::int32_t nap = 1;
    std::int32_t ora = 0;
    std::int32_t perc = 0;
    std::int32_t mperc = 0;

    friend bool operator==(const TPillanat&, const TPillanat&) = default;
};

/// The chart on screen: its moment and place, the engine's outputs, and the copies kept for the picture.
struct TKeplet {
    std::int32_t ev = 1900, ho = 1, nap = 1;  ///< zone clock date
    std::int32_t ora = 0, perc = 0, mperc = 0;
    std::int32_t julianszam = 2415020;  ///< day number; the sidereal step may lower it to the GMT day
    double napresz = 0;                 ///< fraction of the GMT day
    std::int32_t nyariIdo = 0;          ///< 0 or 1
    std::int32_t idozona = 1;           ///< hours, east positive
    std::int32_t szelesseg = 171000;    ///< arcseconds, north positive
    std::int32_t hosszusag = 68640;     ///< arcseconds, east positive
    char szelessegJel = 'N';
    char hosszusagJel = 'E';
    std::string helyseg;
    std::int32_t armcOra = 0, armcPerc = 0;  ///< local sidereal time
    double armcMperc = 0;

    TBolygok Bolygok;
    TMozgasok Mozgasok;
    TBolygoHazak BolygoHazak;
    THazcsucsok Hazcsucsok;

    TBolygok bolygo;  ///< kept copy of `Bolygok`: what is drawn and read by later work
    TMozgasok mozgas;
    THazcsucsok hazCsucs;

    TPillanat pillanat() const { return {ev, ho, nap, ora, perc, mperc}; }
    void pillanat(const TPillanat& p) {
        ev = p.ev, ho = p.ho, nap = p.nap, ora = p.ora, perc = p.perc, mperc = p.mperc;
    }
};

/// The person of the chart.
struct TSzemely {
    std::string nev;
    std::string jegyzet;
    std::string jegyzetMentett;   ///< the note while the running clock keeps `Memo1` empty
    std::string idoTipus = "ZN";  ///< "ZN", "LMT" or "GMT"
    int idoTipusIndex = 0;        ///< 0, 1, 2; -1 shows no selection
    std::int32_t beirtEv = 1900, beirtHo = 1, beirtNap = 1;  ///< as typed or read from a file
    std::int32_t beirtOra = 0, beirtPerc = 0, beirtMperc = 0;
    std::string hangJel;  ///< the chart file's sound field; a leading 'H' says that there is a sound

    TPillanat beirt() const { return {beirtEv, beirtHo, beirtNap, beirtOra, beirtPerc, beirtMperc}; }
    void beirt(const TPillanat& p) {
        beirtEv = p.ev, beirtHo = p.ho, beirtNap = p.nap;
        beirtOra = p.ora, beirtPerc = p.perc, beirtMperc = p.mperc;
    }
};

/// One event of a life.
struct TEletesemeny {
    std::string esemeny;
    std::string analogia;                     ///< house numerals joined by commas
    std::int32_t ev = 1900, ho = 1, nap = 1;  ///< zone clock date and time as entered
    std::int32_t ora = 0, perc = 0, mperc = 0;
    std::string helyseg;  ///< place of the solar return
    std::int32_t idozona = 1;
    std::int32_t nyariIdo = 0;
    std::int32_t hosszFok = 0, hosszPerc = 0;
    std::int32_t szelFok = 0, szelPerc = 0;
    std::int32_t solarNap = 0;  ///< house 1..12 of the Sun in the solar return

    friend bool operator==(const TEletesemeny&, const TEletesemeny&) = default;
};

inline constexpr int esemenyHelyek = 20;

/// The life events of the chart; slots above the count hold what they held.
struct TEsemenyTar {
    Tomb<TEletesemeny, esemenyHelyek> esemenyek;
    int EsemenyDb = 0;
};

/// One return: its moment in Greenwich time, and the direction letter of its day.
struct TVisszateres {
    TPillanat pillanat;
    char mozgas = 'D';
};

/// The hits of the last search; rows above the count hold what older searches left.
struct TVisszateresek {
    Tomb<TVisszateres, 1000> sorok;
    int szamlalo = 0;
};

/// A row of the table from which the bodies are placed on a wheel.
struct TRendezettSor {
    double rendHossz = 0;   ///< longitude after spreading, degrees; may fall a little below 0
    char rendJel = ' ';     ///< the body's letter
    char rendMozgas = 'D';  ///< its motion letter
    double rendFok = 0;     ///< degrees within the sign of its true place
    double rendPerc = 0;    ///< minutes within that degree
};

/// Geometry of the drawing surface, pixels, and the tables of the drawing.
struct TRajz {
    int feluletSzelesseg = 0, feluletMagassag = 0;
    int kozpontX = 0, kozpontY = 0, kerekSugar = 0;  ///< the wheel being drawn
    double forgatas = 0;                             ///< the first cusp, radians
    bool nyomtatasMod = false;                       ///< drawing for the printer
    std::string szimbolumFont = "Astro Symbols";
    Tomb<TRendezettSor, 10>
        Rendezett;  ///< survives a drawing: the small Mundán wheel of the Dekád view reads it
    Matrix<double, 10, 16> FenyszogPontok;  ///< degrees, 0..360; refilled at the end of each drawing
    struct TPanelSor {
        std::string jel;     ///< sign letter
        std::string szoveg;  ///< position
    };
    std::array<TPanelSor, 16> panel;  ///< side panel: ten bodies, cusps 1, 2, 3, 10, 11, 12
};

/// Texts that the windows show and the commands write.
struct TFeliratok {
    std::array<std::string, 7> statusz{"Típus", "ARMC", "Név", "Szül.idő", "Hely", "Koordináták", ""};
    std::string cim;                        ///< main window's title
    std::string mostGomb = "Állj";          ///< PanelButton2_Most
    std::string valtGomb = "Mundán";        ///< PanelButton3_Valt
    std::string memo;                       ///< Memo1
    std::string leptetoCim = "Léptet";      ///< title of the stepper
    std::string hangCim = "Hanglejátszás";  ///< title of the sound player
};

inline constexpr int feliratHelyek = 6;  ///< title texts of the title file

struct Allapot {
    TKeplet Keplet;
    TSzemely Szemely;

    TPillanat RadixPillanat;      ///< the moment that the `Most` button returns to
    TPillanat SzuletesiPillanat;  ///< the birth moment that returns and personars rebuild
    TPillanat InduloDatum;        ///< date of the program's start
    TPillanat RevDatum;
    TPillanat TercierDatum;  ///< event date of the directions, as last confirmed

    bool MostFut = true;        ///< the computer's clock sets the moment
    int KepletTipus = 1;        ///< 1 Radix, 2 Mundán, 3 Dekád
    bool VisszaMod = false;     ///< a derived chart is on screen
    int MostSzamlalo = 0;       ///< ticks since the last full recompute while the clock runs
    int FeliratSzamlalo = 400;  ///< ticks towards the next title text
    int FeliratIndex = 0;
    bool TeljesTorles = true;      ///< a paint request draws nothing while set
    bool Modositott = false;       ///< a step has changed the chart since the last save or open
    bool LeptetesVolt = false;     ///< a step waits for the next tick
    bool MundanFrissites = false;  ///< the mundane search asks for a recompute
    bool MundanAblakNyitva = false;
    bool KeresesVolt = false;    ///< the mundane search has been started once in this run
    int AktivHaz = 1;            ///< house 1..12 shown by the mundane rectification
    TPillanat MhpKezdoPillanat;  ///< the chart's moment when the mundane rectification was opened
    bool PontositasFut = false;
    bool PrimerFut = false;
    bool HangAktiv = false;  ///< the sound window's title runs
    bool MemoKicsi = true;   ///< `Memo1` is in its small position
    bool Megsem2 = true, Megsem3 = true, Megsem4 = true, Megsem14 = true;  ///< a dialog was left by "Mégsem"
    bool JelszoRendben = true;   ///< the password has been given in this run, or there is none
    int JelszoProba = 0;         ///< changes of the prompt's field so far
    bool TercierAblak = true;    ///< TForm3 serves tertiary directions, else the solar ingress
    int PontositasHatotav = 25;  ///< hundredths of a degree
    double TercierOrbisNap = 45.0;

    TEsemenyTar Esemenyek;
    TVisszateresek Visszateresek;
    TOrbisTabla OrbisTabla = OrbisAlap;

    // Kept tables of the chart on screen and the aspect routines' work tables.
    Tomb<double, 10> DekadKezdetek;
    TSzogMatrix Elteresek;
    TSzogMatrix FenyszogOrbis;
    TJelMatrix FenyszogRadix;
    TJelMatrix EgyuttallasMatrix;
    TJelMatrix AlsoFelsoMatrix;
    TFenyszogMunka Munka;

    TUralkodok Uralkodok;
    TRajz Rajz;
    TFeliratok Feliratok;

    std::string AktFelirat;                            ///< the title text now scrolling
    Tomb<std::string, feliratHelyek> FeliratSzovegek;  ///< from the title file
    std::string FutoSzoveg;                            ///< the scrolling part of the composed title
    std::string helysegMentett;                        ///< the place while a derived chart is shown
    std::string HangCim;                               ///< scrolling title of the sound player
};
