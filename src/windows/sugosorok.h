#pragma once

#include <string_view>

/// A control's meaning; without a window it is the same in all.
struct TSugoSor {
    std::string_view ablak;
    std::string_view nev;
    std::string_view szoveg;
};
inline constexpr TSugoSor sugoSorok[]{
    {"", "SpinEditEv1", "Év"},
    {"", "SpinEditHo1", "Hónap"},
    {"", "SpinEditNap1", "Nap"},
    {"", "SpinEditOra1", "Óra"},
    {"", "SpinEditPerc1", "Perc"},
    {"", "SpinEditMperc1", "Másodperc"},
    {"", "SpinEditIdozona1", "Időzóna: órák Greenwichtől, keletre pozitív"},
    {"", "SpinEditNyariidosz1", "Nyári időszámítás: 0 vagy 1 óra"},
    {"", "SpinEditHosszFok1", "Földrajzi hosszúság, fok: keletre pozitív, nyugatra negatív"},
    {"", "SpinEditHosszPerc1", "Földrajzi hosszúság, perc"},
    {"", "SpinEditSzelFok1", "Földrajzi szélesség, fok: északra pozitív, délre negatív"},
    {"", "SpinEditSzelPerc1", "Földrajzi szélesség, perc"},
    {"", "ComboBoxHelyseg1", "Helység"},
    {"", "Button_Eletesemenyek1", "Az életesemények listája"},

    {"TForm1", "Felulet", "A horoszkóp rajza; a helyi menüje másolja és menti a képet"},
    {"TForm1", "PanelButton2_Most",
     "Most: a jelen pillanat képlete. Állj: megállítja az óráját. Vissza: vissza a születési képlethez."},
    {"TForm1", "PanelButton3_Valt", "A következő nézet"},
    {"TForm1", "PanelButton4Leptet", "Léptetés az időben"},
    {"TForm1", "PanelButton5Orbis", "A fényszögek orbisai"},
    {"TForm1", "PanelButton6MHP", "Mundánházas pontosítás"},
    {"TForm1", "PanelButton7Tercier", "Tercier direkció"},
    {"TForm1", "Memo1", "Jegyzet"},
    {"TForm1", "StatusBar1Panel0", "A nézet"},
    {"TForm1", "StatusBar1Panel1", "ARMC: a helyi csillagidő"},
    {"TForm1", "StatusBar1Panel2", "Név"},
    {"TForm1", "StatusBar1Panel3", "Dátum, idő és az idő fajtája"},
    {"TForm1", "StatusBar1Panel4", "Helység"},

    {"TForm2", "EditNev1", "Név"},
    {"TForm2", "Memo_Jegyzet1", "Jegyzet"},

    {"TForm3", "SpinEditOrbis1", "Orbis napokban"},

    {"TForm5", "Lejatszas1", "Lejátszás"},
    {"TForm5", "Szunet1", "Szünet"},
    {"TForm5", "Megallitas1", "Megállítás"},

    {"TForm6", "Button_plusz1", "Ezután egy cella megnyomása fél fokkal növel"},
    {"TForm6", "Button_minusz2", "Ezután egy cella megnyomása fél fokkal csökkent"},
    {"TForm6", "Button_vissza3", "Ami a megnyitáskor volt"},
    {"TForm6", "Button_vissza4", "A program alapértékei"},

    {"TForm7", "Button1evp", "Egy évvel előre"},
    {"TForm7", "Button2evm", "Egy évvel vissza"},
    {"TForm7", "Button3hop", "Egy hónappal előre"},
    {"TForm7", "Button4hom", "Egy hónappal vissza"},
    {"TForm7", "Button5napp", "Egy nappal előre"},
    {"TForm7", "Button6napm", "Egy nappal vissza"},
    {"TForm7", "Button7orap", "Egy órával előre"},
    {"TForm7", "Button8oram", "Egy órával vissza"},
    {"TForm7", "Button9percp", "Egy perccel előre"},
    {"TForm7", "Button10percm", "Egy perccel vissza"},
    {"TForm7", "Button11percpp", "Tíz perccel előre"},
    {"TForm7", "Button12percmm", "Tíz perccel vissza"},
    {"TForm7", "Button13mpercp", "Egy másodperccel előre"},
    {"TForm7", "Button14mpercm", "Egy másodperccel vissza"},
    {"TForm7", "Button15mpercpp", "Tíz másodperccel előre"},
    {"TForm7", "Button16mpercmm", "Tíz másodperccel vissza"},

    {"TForm8", "Button1Keresesm",
     "Visszafelé keresi a pillanatot, ahol az egyezés megváltozik; Escape: vége"},
    {"TForm8", "Button2Keresesp", "Előrefelé keresi a pillanatot, ahol az egyezés megváltozik; Escape: vége"},
    {"TForm8", "Button3Vissza", "Vissza a kiindulási pillanathoz"},

    {"TForm9", "ComboBox1", "A szimbólumok betűtípusa"},

    {"TForm10", "Edit_Eletesemenyek1", "Az esemény szövege"},
    {"TForm10", "Edit_Hazanalogiak1", "Az esemény házanalógiái"},
    {"TForm10", "LabelSolarNap1", "A Nap háza az esemény évének szolárjában"},

    {"TForm11", "Edit1", "Jelszó"},

    {"TForm12", "Memo1", "A direkciók listája"},
    {"TForm12", "Button_Pontositas1", "A születési idő pontosítása a direkciókkal"},

    {"TForm13", "SpinEdit1", "A direkciós hatótávolság, századfok"},
    {"TForm13", "Memo1", "Az események"},
    {"TForm13", "Memo2", "A direkciók eseményenként"},
    {"TForm13", "Memo3", "A születési idők eseményenként"},

    {"TForm14", "Edit1", "A kezdő dátum éve"},
    {"TForm14", "Edit2", "A kezdő dátum hónapja"},
    {"TForm14", "Edit3", "A kezdő dátum napja"},
    {"TForm14", "ListBox1", "Az áthaladások"},
};
