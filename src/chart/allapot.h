#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "engine/fenyszogek.h"
#include "engine/fenyszogpontok.h"
#include "engine/keszlet.h"
#include "engine/uralkodok.h"
#include "tables/pillanat.h"
#include "tables/szotar.h"

/// All that the program knows at run time, as plain data. The main window owns the one `Allapot`.
///
/// Where two names differ by case or plural only, the capital is the working set that routines write, the
/// small letter the kept one that the screen shows and later work reads: `Bolygok` and `bolygo`, `Mozgasok`
/// and `mozgas`, `Hazcsucsok` and `hazCsucs`, `HangCim` (the text that scrolls) and `hangCim` (what the
/// window's title shows). A search may leave another chart in the working set; it never touches the kept one.

/// The three views; the numbers are those of the program's commands and of the outside.
enum class TKepletTipus { radix = 1, mundan = 2, dekad = 3 };

/// The chart on screen: its moment and place, the engine's outputs, and the copies kept for the picture.
struct TKeplet {
    TPillanat pillanat;                 ///< zone clock
    std::int32_t julianszam = 2415020;  ///< day number; the sidereal step may lower it to the GMT day
    double napresz = 0;                 ///< fraction of the GMT day
    std::int32_t nyariIdo = 0;          ///< 0 or 1
    std::int32_t idozona = 1;           ///< hours, east positive
    std::int32_t szelesseg = 171000;    ///< arcseconds, north positive
    std::int32_t hosszusag = 68640;     ///< arcseconds, east positive
    char szelessegJel = 'N';            ///< with the next one the place's own letters; the signs above decide
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
};

/// The person of the chart.
struct TSzemely {
    std::string nev;
    std::string jegyzet;
    std::string jegyzetMentett;  ///< the note while the running clock keeps `Memo1` empty
    TIdoTipus idoTipus = TIdoTipus::ZN;
    int idoTipusIndex = 0;  ///< 0, 1, 2; -1 shows no selection
    /// The kind that the user has clicked in the open personal-data dialog: it stands whatever the ticks
    /// write.
    std::optional<TIdoTipus> valasztottIdoTipus;
    TPillanat beirt;      ///< date and time as typed or read from a file, by the clock of `idoTipus`
    std::string hangJel;  ///< the chart file's sound field; a leading 'H' says that there is a sound
};

/// One event of a life.
struct TEletesemeny {
    std::string esemeny;
    std::string analogia;  ///< house numerals joined by commas
    TPillanat pillanat;    ///< as entered
    std::string helyseg;   ///< place of the solar return
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

/// The derived chart last made, with the list that it was chosen from: what a step to the list's next or
/// former row needs, also when a later search has filled the table anew and was cancelled.
struct TVisszateresKep {
    TCim cim;  ///< of the kind
    TVisszateresek lista;
    int sor = 1;          ///< from 1
    std::string helyseg;  ///< that the chart is cast for
    TPillanat szuletes;   ///< the birth that the list belongs to
};

/// A row of the table from which the bodies are placed on a wheel.
struct TRendezettSor {
    double rendHossz = 0;   ///< longitude after spreading, degrees; may fall a little below 0
    char rendJel = ' ';     ///< the body's letter
    char rendMozgas = 'D';  ///< its motion letter
    double rendFok = 0;     ///< degrees within the sign of its true place
    double rendPerc = 0;    ///< minutes within that degree
};

using TRendezett = Tomb<TRendezettSor, 10>;

/// A row of the side panel.
struct TPanelSor {
    std::string jel;     ///< sign letter
    std::string szoveg;  ///< position
};
using TPanel = std::array<TPanelSor, 16>;  ///< ten bodies, cusps 1, 2, 3, 10, 11, 12

/// Geometry of the drawing surface, pixels, and the tables of the drawing.
struct TRajz {
    int feluletSzelesseg = 0, feluletMagassag = 0;
    int kozpontX = 0, kozpontY = 0, kerekSugar = 0;  ///< the wheel being drawn
    double forgatas = 0;                             ///< the first cusp, radians
    bool nyomtatasMod = false;                       ///< drawing for the printer
    std::string szimbolumFont{sajatSzimbolumFont};
    TRendezett Rendezett;  ///< survives a drawing: the small Mundán wheel of the Dekád view reads it
    TFenyszogPontok FenyszogPontok;  ///< degrees, 0..360; refilled at the end of each drawing
    TPanel panel;
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
    TPillanat InduloDatum;   ///< date of the program's start; with the next one a record of the run that no
                             ///< command reads: `TercierDatum` begins with the same date
    TPillanat RevDatum;      ///< the same for the dialog of returns, which starts from `RadixPillanat`
    TPillanat TercierDatum;  ///< event date of the directions, as last confirmed

    bool MostFut = true;  ///< the computer's clock sets the moment
    TKepletTipus KepletTipus = TKepletTipus::radix;
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
    bool HangAktiv = false;                                ///< the sound window's title runs
    bool MemoKicsi = true;                                 ///< `Memo1` is in its small position
    bool Megsem2 = true, Megsem3 = true, Megsem14 = true;  ///< a dialog was left by "Mégsem"
    bool JelszoRendben = true;   ///< the password has been given in this run, or there is none
    int JelszoProba = 0;         ///< changes of the prompt's field so far
    bool TercierAblak = true;    ///< TForm3 serves tertiary directions, else the solar ingress
    int PontositasHatotav = 25;  ///< hundredths of a degree
    double TercierOrbisNap =
        45.0;  ///< days; the orb of the last tertiary search confirmed, the field holds the one in use

    TEsemenyTar Esemenyek;
    TVisszateresek Visszateresek;
    TVisszateresKep VisszateresKep;
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
    std::string helysegMentett;                        ///< the birth's place while derived charts are shown
    std::string HangCim;                               ///< scrolling title of the sound player
};
