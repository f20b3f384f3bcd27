#pragma once

#include <functional>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include "mintaszemely.h"
#include "windows/ablakok.h"
#include "windows/betumappak.h"
#include "windows/kesobbiablak.h"

/// A control by its name on a window; of one that has never been shown the contents are made.
template <typename T>
T* vezerlo(const QWidget& ablak, const char* nev) {
    if (const auto* kesobbi = dynamic_cast<const TKesobbiAblak*>(&ablak))
        const_cast<TKesobbiAblak*>(kesobbi)->elkeszites();
    T* talalat = ablak.findChild<T*>(nev);
    if (talalat == nullptr) qFatal("no control named %s", nev);
    return talalat;
}

inline void kattint(QWidget& ablak, const char* gomb) {
    QTest::mouseClick(vezerlo<QPushButton>(ablak, gomb), Qt::LeftButton);
}

inline void menu(const TForm1& ablak, const char* nev) {
    vezerlo<QAction>(ablak, nev)->trigger();
}

inline QString panel(const TForm1& ablak, int szam) {
    return vezerlo<QLabel>(ablak, qPrintable(QStringLiteral("StatusBar1Panel%1").arg(szam)))->text();
}

/// Types over what a field holds.
inline void gepel(QWidget& ablak, const char* mezo, const char* szoveg) {
    auto* hely = vezerlo<QWidget>(ablak, mezo);
    hely->setFocus();
    if (auto* szam = qobject_cast<QSpinBox*>(hely)) szam->selectAll();
    if (auto* sor = qobject_cast<QLineEdit*>(hely)) sor->selectAll();
    if (auto* memo = qobject_cast<QPlainTextEdit*>(hely)) memo->selectAll();
    if (auto* lista = qobject_cast<QComboBox*>(hely)) lista->lineEdit()->selectAll();
    for (const QChar c : QString::fromUtf8(szoveg)) {
        QKeyEvent leutes(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(hely, &leutes);
    }
}

inline QString cimke(const QWidget& ablak, const char* nev) {
    return vezerlo<QLabel>(ablak, nev)->text();
}

inline int ertek(const QWidget& ablak, const char* mezo) {
    return vezerlo<QSpinBox>(ablak, mezo)->value();
}

/// Answers the modal dialog that the next command opens. A check that fails in the answer ends the dialog
/// too.
inline void valasz(std::function<void(QWidget&)> teendo) {
    QTimer::singleShot(0, [teendo = std::move(teendo)] {
        QWidget* dialogus = QApplication::activeModalWidget();
        if (dialogus == nullptr) qFatal("no dialog is open");
        teendo(*dialogus);
        while (QTest::currentTestFailed() && QApplication::activeModalWidget() != nullptr)
            QApplication::activeModalWidget()->hide();
    });
}

/// All windows anew, the main one shown, its own timer standing still so that a test gives the ticks.
struct TFrissAblakok : TAblakok {
    TFrissAblakok() {
        vezerloOra()->stop();
        form1.show();
        QApplication::processEvents();
    }
    QTimer* vezerloOra() { return form1.findChild<QTimer*>("Timer1"); }
    /// Lets the timer run from here on, as it does for a user.
    void oraIndul() { vezerloOra()->start(); }
    Allapot& allapot() { return form1.allapot(); }
    void orajelek(int szam) {
        for (int i = 0; i < szam; ++i) form1.Timer1Timer();
    }
    QImage kep() {
        QApplication::processEvents();
        return form1.findChild<KepletFelulet*>("Felulet")->grab().toImage();
    }
};

/// What stands on the drawing surface, whatever the window shows.
inline QImage felszin(const KepletFelulet& felulet) {
    QPixmap kep(felulet.size() * felulet.devicePixelRatioF());
    kep.setDevicePixelRatio(felulet.devicePixelRatioF());
    QPainter festo(&kep);
    felulet.fest(festo);
    festo.end();
    return kep.toImage();
}

/// A control's place in its window.
inline QRect hely(const QWidget& ablak, const QWidget& vezerlo) {
    return {vezerlo.mapTo(&ablak, QPoint()), vezerlo.size()};
}

/// Time for a few ticks of a running timer, milliseconds.
inline constexpr int tobbOrajel = 600;

/// Share of black in a picture to the right of the panel, per ten thousand.
inline int fekete(const QImage& kep) {
    constexpr int panelSzel = 60;
    qint64 szam = 0;
    for (int y = 0; y < kep.height(); ++y)
        for (int x = panelSzel; x < kep.width(); ++x) szam += qGray(kep.pixel(x, y)) < 128 ? 1 : 0;
    return static_cast<int>(szam * 10000 / (qint64{kep.width()} * kep.height()));
}

/// Opens a dialog by a menu item and gives it to the test.
inline void parbeszedben(TFrissAblakok& a, const char* pont, const std::function<void(QWidget&)>& teendo) {
    bool volt = false;
    valasz([&](QWidget& d) {
        teendo(d);
        volt = true;
        d.hide();
    });
    menu(a.form1, pont);
    QVERIFY2(volt, pont);
}

/// A typed birth on screen.
inline void szuletes(TFrissAblakok& a) {
    SzemelyiRendben(a.allapot(), mintaSzemely({1975, 7, 21, 6, 4, 9}));
    BevittKepletMutatasa(a.allapot(), a.form1);
    QApplication::processEvents();
}
