// Tooltips and the names that are read aloud.

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QtTest>

#include "ablakteszt.h"
#include "windows/ablakok.h"
#include "windows/sugok.h"
#include "windows/sugosorok.h"

namespace {

std::vector<QWidget*> mindenAblak(TAblakok& a) {
    return {&a.form1, &a.form2, &a.form3,  &a.form4,  &a.form5,  &a.form6,  &a.form7,
            &a.form8, &a.form9, &a.form10, &a.form11, &a.form12, &a.form13, &a.form14};
}

QString olvasott(QWidget* vezerlo) {
    const QAccessibleInterface* felulet = QAccessible::queryAccessibleInterface(vezerlo);
    return felulet == nullptr ? QString() : felulet->text(QAccessible::Name);
}

bool vanBetuje(const QString& szoveg) {
    return std::any_of(szoveg.begin(), szoveg.end(), [](QChar c) { return c.isLetter(); });
}

/// What a user can change or press, of the window's own making.
bool kezelheto(const QWidget& w) {
    return !w.objectName().isEmpty() && !w.objectName().startsWith("qt_") &&
           !w.objectName().startsWith("Scroll") &&
           (qobject_cast<const QAbstractButton*>(&w) != nullptr ||
            qobject_cast<const QAbstractSpinBox*>(&w) != nullptr ||
            qobject_cast<const QComboBox*>(&w) != nullptr || qobject_cast<const QLineEdit*>(&w) != nullptr ||
            qobject_cast<const QListWidget*>(&w) != nullptr ||
            qobject_cast<const QPlainTextEdit*>(&w) != nullptr);
}

class SugokTeszt : public QObject {
    Q_OBJECT

private slots:
    void mindenVezerlonekVanSzovegeVagySugoja() {
        TFrissAblakok a;
        for (QWidget* ablak : mindenAblak(a)) {
            ablak->show();
            int db = 0;
            for (QWidget* w : ablak->findChildren<QWidget*>()) {
                if (w->window() != ablak || !kezelheto(*w) || w->isHidden()) continue;
                ++db;
                const auto* gomb = qobject_cast<QAbstractButton*>(w);
                QVERIFY2((gomb != nullptr && vanBetuje(gomb->text())) || !w->toolTip().isEmpty(),
                         qPrintable(ablak->objectName() + " " + w->objectName()));
                QVERIFY2(vanBetuje(olvasott(w)), qPrintable(ablak->objectName() + " " + w->objectName()));
            }
            QVERIFY2(db > 0, qPrintable(ablak->objectName()));
            ablak->hide();
        }
    }

    void aTablaMindenSorahozVanVezerlo() {
        TFrissAblakok a;
        for (const TSugoSor& sor : sugoSorok) {
            bool van = false;
            for (QWidget* ablak : mindenAblak(a)) {
                if (!sor.ablak.empty() && ablak->objectName().toStdString() != sor.ablak) continue;
                ablak->show();
                van = van || ablak->findChild<QWidget*>(QString::fromUtf8(sor.nev.data())) != nullptr;
                ablak->hide();
            }
            QVERIFY2(van, sor.nev.data());
        }
    }

    void aRovidFeliratuGombokSugoja() {
        TFrissAblakok a;
        a.form1.show();
        a.form7.show();
        a.form5.show();
        QCOMPARE(a.form1.findChild<QWidget*>("PanelButton6MHP")->toolTip(), "Mundánházas pontosítás");
        auto* vissza = a.form7.findChild<QWidget*>("Button12percmm");
        QCOMPARE(vissza->toolTip(), "Tíz perccel vissza");
        QCOMPARE(olvasott(vissza), "Tíz perccel vissza");
        QCOMPARE(olvasott(a.form5.findChild<QWidget*>("Szunet1")), "Szünet");
        // A caption of words is the name, the tooltip tells more.
        QCOMPARE(olvasott(a.form1.findChild<QWidget*>("PanelButton4Leptet")), "Léptet");
    }

    void azAblakSajatSugojaMarad() {
        TFrissAblakok a;
        a.form14.show();
        QCOMPARE(a.form14.findChild<QWidget*>("ListBox1")->toolTip(),
                 "Kettős kattintás: Rendben. M: a mai naphoz legközelebbi sor.");
    }

    void aVisszateresekMasodikSoraIsAKezdoDatum() {
        TFrissAblakok a;
        a.form14.show();
        QCOMPARE(olvasott(vezerlo<QLineEdit>(a.form14, "Edit1")), "A kezdő dátum éve");
        QCOMPARE(olvasott(vezerlo<QLineEdit>(a.form14, "Edit2")), "A kezdő dátum hónapja");
        QCOMPARE(olvasott(vezerlo<QLineEdit>(a.form14, "Edit3")), "A kezdő dátum napja");
    }

    void azOrbistablaCellaiNevukonSzolnak() {
        TFrissAblakok a;
        const auto nyitva = [&] {
            QCOMPARE(olvasott(a.form6.findChild<QWidget*>("BOrbis_1_4")), "Asc, 60°: orbis fokban");
            QCOMPARE(olvasott(a.form6.findChild<QWidget*>("BOrbis_2_9")), "MC, szembenállás: orbis fokban");
            QCOMPARE(olvasott(a.form6.findChild<QWidget*>("BOrbis_3_1")), "Nap, együttállás: orbis fokban");
            QCOMPARE(a.form6.findChild<QWidget*>("BOrbis_12_5")->toolTip(), "Plutó, 90°: orbis fokban");
        };
        QTimer::singleShot(0, &a.form6, [&] {
            nyitva();
            a.form6.reject();
        });
        a.form6.megmutat();
    }

    void aSzimbolumokNevukonSzolnak() {
        TFrissAblakok a;
        a.form1.show();
        const auto cimke = [&](int n) {
            return vezerlo<QLabel>(a.form1, qPrintable(QStringLiteral("Label%1").arg(n)));
        };
        QCOMPARE(olvasott(cimke(1)), "Nap");
        QCOMPARE(olvasott(cimke(28)), "Plutó");
        cimke(2)->setText("d");
        QCOMPARE(olvasott(cimke(2)), "Rák");
        cimke(2)->setText("l");
        QCOMPARE(olvasott(cimke(2)), "Halak");
        QCOMPARE(olvasott(cimke(43)), "11");
        // A house is its number, though the same letter may be a symbol.
        QCOMPARE(olvasott(cimke(31)), "I");
        QCOMPARE(olvasott(cimke(34)), "2");
        QCOMPARE(olvasott(cimke(40)), "X");
        cimke(2)->setText("12");
        QCOMPARE(olvasott(cimke(2)), "12");
        QCOMPARE(olvasott(cimke(3)), cimke(3)->text());
        auto* talalatok = vezerlo<QLabel>(a.form3, "Tercier_Direkcio2");
        QFont betu = talalatok->font();
        betu.setFamily("Astro Symbols");
        talalatok->setFont(betu);
        talalatok->setText("ACR");
        QCOMPARE(olvasott(talalatok), "Nap Merkúr 90°");
    }

    /// Only the name is read for the symbols, and a name that was given goes before them.
    void aSzimbolumokCsakNevNelkulEsCsakNevkentSzolnak() {
        TFrissAblakok a;
        a.form1.show();
        auto* nap = vezerlo<QLabel>(a.form1, "Label1");
        QCOMPARE(olvasott(nap), "Nap");
        const QAccessibleInterface* felulet = QAccessible::queryAccessibleInterface(nap);
        QVERIFY(!felulet->text(QAccessible::Description).contains("Nap"));
        QVERIFY(!felulet->text(QAccessible::Accelerator).contains("Nap"));
        nap->setAccessibleName("Központi égitest");
        QCOMPARE(olvasott(nap), "Központi égitest");
    }

    void azAblakokNelkulNincsTobbSugo() {
        { const TFrissAblakok a; }
        QWidget kulon;
        auto* mezo = new QLineEdit(&kulon);
        mezo->setObjectName("SpinEditEv1");
        kulon.show();
        QVERIFY(mezo->toolTip().isEmpty());
    }
};

}  // namespace

QTEST_MAIN(SugokTeszt)
#include "sugok_teszt.moc"
