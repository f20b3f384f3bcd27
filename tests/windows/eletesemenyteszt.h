#pragma once

#include "ablakteszt.h"

/// A chart with life events, typed through the two dialogs.

inline void esemenyGepelese(QWidget& d, const char* szoveg, const char* analogia, const char* ev) {
    gepel(d, "Edit_Eletesemenyek1", szoveg);
    gepel(d, "Edit_Hazanalogiak1", analogia);
    gepel(d, "SpinEditEv1", ev);
    gepel(d, "SpinEditHo1", "5");
    gepel(d, "SpinEditNap1", "6");
    gepel(d, "SpinEditOra1", "0");
    kattint(d, "Button_Rendben1");
}

inline QString lista(const QWidget& d, int sor, int oszlop) {
    return vezerlo<QLabel>(d, qPrintable(QStringLiteral("LEletes_%1_%2").arg(sor).arg(oszlop)))->text();
}

/// Types a chart with events through the two dialogs.
inline void ujKeplet(TFrissAblakok& a, std::function<void(QWidget&)> esemenyek) {
    valasz([esemenyek = std::move(esemenyek)](QWidget& d) {
        gepel(d, "EditNev1", "Őrző Árpád");
        gepel(d, "SpinEditEv1", "1975");
        gepel(d, "SpinEditHo1", "3");
        gepel(d, "SpinEditNap1", "21");
        gepel(d, "SpinEditOra1", "6");
        gepel(d, "ComboBoxHelyseg1", "Szeged");
        gepel(d, "Memo_Jegyzet1", "jegyzet");
        valasz(esemenyek);
        kattint(d, "Button_Eletesemenyek1");
        kattint(d, "Button_Rendben1");
    });
    menu(a.form1, "Uj1");
}
