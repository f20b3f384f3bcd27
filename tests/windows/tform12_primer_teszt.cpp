#include "listateszt.h"

namespace {

int sorokSzama(const QWidget& d) {
    return static_cast<int>(sorok(d, "Memo1").size());
}

/// A list that does not fit its field, as a large font makes it.
void nagyBetu(QPlainTextEdit& memo) {
    QFont betu = memo.font();
    betu.setPixelSize(30);
    memo.setFont(betu);
    QApplication::processEvents();
}

}  // namespace

class TForm12Teszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aPrimerListaKovetiALeptetot() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Primer1");
        QVERIFY(a.form12.isVisible());
        QCOMPARE(ertek(a.form12, "SpinEditEv1"), QDate::currentDate().year() - 1);
        QCOMPARE(ertek(a.form12, "SpinEditHo1"), 1);
        QCOMPARE(ertek(a.form12, "SpinEditNap1"), 1);
        QCOMPARE(vezerlo<QLabel>(a.form12, "Label8")->text(), "Solar-Nap:");
        auto* memo = vezerlo<QPlainTextEdit>(a.form12, "Memo1");
        QCOMPARE(memo->toPlainText(), "");
        kattint(a.form12, "Button_Rendben1");
        const QString elso = memo->toPlainText();
        QVERIFY(!elso.isEmpty());
        QVERIFY(a.allapot().PrimerFut);
        kattint(a.form7, "Button7orap");
        a.orajelek(1);
        QVERIFY(memo->toPlainText() != elso);
        QVERIFY(!memo->toPlainText().isEmpty());
        kattint(a.form12, "Button_Megsem1");
        QVERIFY(!a.allapot().PrimerFut);
        QVERIFY(!a.form12.isVisible());
    }

    /// A line's columns are indented by 5, 20, 32 and 46 blanks behind the house of the solar day.
    void aFejekAzOszlopokFelett() {
        TFrissAblakok a;
        szuletes(a);
        menu(a.form1, "Primer1");
        auto* memo = vezerlo<QPlainTextEdit>(a.form12, "Memo1");
        const auto helye = [&](const QString& elotte) {
            memo->setPlainText(elotte + "AM");
            QTextCursor kurzor(memo->document());
            kurzor.setPosition(static_cast<int>(elotte.size()));
            return memo->viewport()->mapTo(&a.form12, memo->cursorRect(kurzor).topLeft()).x();
        };
        const QString datum = "2000.01.01.   ";
        const QRect solarNap = hely(a.form12, *vezerlo<QLabel>(a.form12, "Label8"));
        QVERIFY(qAbs(solarNap.center().x() - helye(datum)) <= 1);
        QVERIFY(solarNap.bottom() < memo->y());
        const std::pair<const char*, int> oszlopok[]{{"dMC:", 5}, {"cMC:", 20}, {"dAsc:", 32}, {"cAsc:", 46}};
        for (const auto& [fej, behuzas] : oszlopok) {
            const QLabel* felirat = nullptr;
            for (const auto* l : a.form12.findChildren<QLabel*>())
                if (l->text() == fej) felirat = l;
            QVERIFY2(felirat != nullptr, fej);
            const QRect itt = hely(a.form12, *felirat);
            QVERIFY2(qAbs(itt.left() - helye(datum + "w" + QString(behuzas, u' '))) <= 1, fej);
            QVERIFY2(itt.bottom() < memo->y(), fej);
        }
    }

    void azAljaTizennyolcKeppontalAFoablakAljaFelett() {
        for (const int magassag : {717, 400}) {
            TFrissAblakok a;
            a.oraIndul();
            a.form1.resize(995, magassag);
            a.form1.move(130, 110);
            QApplication::processEvents();
            QCOMPARE(a.form1.height(), magassag);
            for (int kor = 0; kor < 2; ++kor) {
                menu(a.form1, "Primer1");
                QCOMPARE(a.form12.x() + a.form12.width(), 130 + 995);
                // Its height counts as at most the main window's.
                const int szamitott = std::min(a.form12.height(), magassag);
                QCOMPARE(a.form12.y() + szamitott, 110 + magassag - 18);
                a.form12.move(0, 0);
                kattint(a.form12, "Button_Megsem1");
            }
        }
    }

    void aHuszonketSornalKiderulHogyVegeVan() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        menu(a.form1, "Primer1");
        auto* vege = vezerlo<QLabel>(a.form12, "LabelVege1");
        QVERIFY(!vege->isVisible());  // nothing has been run
        int tele = 0;
        int kevesebb = 0;
        for (int ev = 1980; ev < 2068; ev += 4) {
            gepel(a.form12, "SpinEditEv1", qPrintable(QString::number(ev)));
            kattint(a.form12, "Button_Rendben1");
            const bool huszonketto = sorokSzama(a.form12) == 22;
            QCOMPARE(vege->isVisible(), huszonketto);
            ++(huszonketto ? tele : kevesebb);
        }
        QVERIFY(tele > 0 && kevesebb > 0);
        QCOMPARE(vege->text(), "Legfeljebb 22 sor; a lista itt véget ér.");
        const auto* memo = vezerlo<QPlainTextEdit>(a.form12, "Memo1");
        QVERIFY(vege->y() > memo->geometry().bottom());
        QVERIFY(vege->geometry().right() < vezerlo<QPushButton>(a.form12, "Button_Pontositas1")->x());
        QVERIFY(!memo->toPlainText().contains("Legfeljebb"));
    }

    void azUjNyitasNemMutatjaARegiVeget() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        auto* vege = vezerlo<QLabel>(a.form12, "LabelVege1");
        for (int kor = 0; kor < 2; ++kor) {
            menu(a.form1, "Primer1");
            QVERIFY(!vege->isVisible());
            QCOMPARE(vezerlo<QPlainTextEdit>(a.form12, "Memo1")->toPlainText(), "");
            gepel(a.form12, "SpinEditEv1", "2000");
            kattint(a.form12, "Button_Rendben1");
            QCOMPARE(sorokSzama(a.form12), 22);
            QVERIFY(vege->isVisible());
            kattint(a.form12, "Button_Megsem1");
        }
    }

    void aLeptetesMeghagyjaAGorgetest() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        menu(a.form1, "Primer1");
        auto* memo = vezerlo<QPlainTextEdit>(a.form12, "Memo1");
        gepel(a.form12, "SpinEditEv1", "2000");
        kattint(a.form12, "Button_Rendben1");
        nagyBetu(*memo);
        for (int kor = 0; kor < 2; ++kor) {
            memo->verticalScrollBar()->setValue(5 + kor);
            memo->horizontalScrollBar()->setValue(40 + kor);
            QCOMPARE(memo->verticalScrollBar()->value(), 5 + kor);
            QCOMPARE(memo->horizontalScrollBar()->value(), 40 + kor);
            const QStringList elobb = sorok(a.form12, "Memo1");
            kattint(a.form7, "Button9percp");
            QTest::qWait(tobbOrajel);
            QVERIFY(sorok(a.form12, "Memo1") != elobb);
            QCOMPARE(memo->verticalScrollBar()->value(), 5 + kor);
            QCOMPARE(memo->horizontalScrollBar()->value(), 40 + kor);
        }
    }

    void azUgyanolyanListaAKijelolestIsMeghagyja() {
        TFrissAblakok a;
        a.oraIndul();
        szuletes(a);
        menu(a.form1, "Primer1");
        auto* memo = vezerlo<QPlainTextEdit>(a.form12, "Memo1");
        kattint(a.form12, "Button_Rendben1");
        for (int kor = 0; kor < 2; ++kor) {
            menu(a.form1, "Horizont1");  // takes the place from the table from here on
            sorokKijelolese(*memo, 1 + kor, 3 + kor);
            const QString kijelolt = memo->textCursor().selectedText();
            QVERIFY(kijelolt.size() > 30);
            menu(a.form1, "Horizont1");  // the same chart, its list run again
            QTest::qWait(tobbOrajel);
            QCOMPARE(memo->textCursor().selectedText(), kijelolt);
            kattint(a.form7, "Button7orap");  // other lines
            QTest::qWait(tobbOrajel);
            QVERIFY(!memo->textCursor().hasSelection());
        }
    }
};

QTEST_MAIN(TForm12Teszt)
#include "tform12_primer_teszt.moc"
