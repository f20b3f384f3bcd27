// The fields that all dialogs are made of: numbers, lengths, the wheel.

#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QVBoxLayout>

#include "kezteszt.h"
#include "windows/jegyzetmezo.h"
#include "windows/mezojeloles.h"
#include "windows/vezerlok.h"

namespace {

/// A dialog with the fields of a date and a default button.
struct TProbaDialogus : QDialog {
    TProbaDialogus() {
        auto* sor = new QVBoxLayout(this);
        sor->addWidget(ujSzamMezo(this, "Ev", 1900, 2068));
        sor->addWidget(ujSzamMezo(this, "Nap", 1, 31));
        sor->addWidget(ujSzamMezo(this, "Fok", -180, 180));
        sor->addWidget(ujSzamMezo(this, "Perc", 0, 59));
        hosszKorlat(*ujSzovegMezo(this, "Nev"), rovidSzovegHossz);
        sor->addWidget(vezerlo<QLineEdit>(*this, "Nev"));
        auto* jegyzet = new JegyzetMezo(this, hosszuSzovegHossz);
        jegyzet->setObjectName("Jegyzet");
        sor->addWidget(jegyzet);
        auto* rendben = ujGomb(this, "Rendben", "Rendben");
        rendben->setDefault(true);
        sor->addWidget(rendben);
        connect(rendben, &QPushButton::clicked, this, [this] { ++rendbenek; });
        auto* megsem = ujGomb(this, "Megsem", "Mégsem");
        sor->addWidget(megsem);
        connect(megsem, &QPushButton::clicked, this, [this] { ++megsemek; });
        szam("Ev").setValue(1975);
        szam("Nap").setValue(5);
        show();
        fokuszig(*this);
    }
    QSpinBox& szam(const char* nev) { return *vezerlo<QSpinBox>(*this, nev); }
    QString kijelolt(const char* nev) { return szam(nev).findChild<QLineEdit*>()->selectedText(); }
    void beir(const char* mezo, const char* szoveg) {
        belelep(*this, mezo);
        beut(szoveg);
    }
    int rendbenek = 0, megsemek = 0;
};

/// Pastes a text where the cursor stands.
void beilleszt(QPlainTextEdit& mezo, const QString& szoveg) {
    QGuiApplication::clipboard()->setText(szoveg);
    mezo.paste();
}

/// Counts the wheel turns that come to a window.
struct TGorgoSzamlalo : QObject {
    explicit TGorgoSzamlalo(QWidget& ablak) { ablak.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* esemeny) override {
        if (esemeny->type() == QEvent::Wheel) ++fordulatok;
        return false;
    }
    int fordulatok = 0;
};

/// Turns the wheel over each field of a window: without focus nothing changes and the turn reaches the
/// window.
void gorgetesMindenMezoFelett(QWidget& ablak, int legalabb) {
    TGorgoSzamlalo szamlalo(ablak);
    const auto mezok = ablak.findChildren<QWidget*>();
    int db = 0;
    for (QWidget* mezo : mezok) {
        auto* szam = qobject_cast<QSpinBox*>(mezo);
        auto* lista = qobject_cast<QComboBox*>(mezo);
        if ((szam == nullptr && lista == nullptr) || !mezo->isVisible()) continue;
        QWidget* maskent = ablak.findChild<QPushButton*>();
        maskent->setFocus();
        const auto allas = [&] { return szam != nullptr ? szam->text() : lista->currentText(); };
        const QString elobb = allas();
        const int fordulatok = szamlalo.fordulatok;
        for (const int fog : {1, -1, -1}) gorget(*mezo, fog);
        QCOMPARE(allas(), elobb);
        QVERIFY(!mezo->hasFocus());
        QVERIFY2(szamlalo.fordulatok == fordulatok + 3, qPrintable(mezo->objectName()));
        ++db;
    }
    QVERIFY2(db >= legalabb, qPrintable(QString::number(db)));
}

}  // namespace

class VezerlokTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void aTulNagySzamALegkozelebbiLeszEsKijelolve() {
        TProbaDialogus d;
        d.beir("Nap", "32");
        QCOMPARE(d.szam("Nap").text(), "32");  // while it is typed
        leut(Qt::Key_Tab);
        QVERIFY(!d.szam("Nap").hasFocus());
        QCOMPARE(d.szam("Nap").text(), "31");
        QCOMPARE(d.szam("Nap").value(), 31);
        QCOMPARE(d.kijelolt("Nap"), "31");
    }

    void aTulKicsiSzamEnterreALegkozelebbiLeszEsADialogusMarad() {
        TProbaDialogus d;
        d.beir("Ev", "86");
        leut(Qt::Key_Return);
        QVERIFY(d.szam("Ev").hasFocus());
        QCOMPARE(d.szam("Ev").value(), 1900);
        QCOMPARE(d.kijelolt("Ev"), "1900");
        QCOMPARE(d.rendbenek, 0);
        leut(Qt::Key_Return);  // the second one finds nothing to put right
        QCOMPARE(d.rendbenek, 1);
        QCOMPARE(d.szam("Ev").value(), 1900);
    }

    void aKijeloltreRaLehetGepelni() {
        TProbaDialogus d;
        d.beir("Ev", "86");
        leut(Qt::Key_Return);
        beut("1986");
        leut(Qt::Key_Return);
        QCOMPARE(d.szam("Ev").value(), 1986);
        QCOMPARE(d.rendbenek, 1);
    }

    void aKattintasARendbenreElobbMutatjaMiLettASzambol() {
        TProbaDialogus d;
        d.beir("Ev", "86");
        kattint(d, "Rendben");
        QCOMPARE(d.rendbenek, 0);
        QVERIFY(d.szam("Ev").hasFocus());
        QCOMPARE(d.kijelolt("Ev"), "1900");
        kattint(d, "Rendben");
        QCOMPARE(d.rendbenek, 1);
        d.beir("Ev", "9999");
        kattint(d, "Megsem");  // leaving is leaving
        QCOMPARE(d.megsemek, 1);
        QCOMPARE(d.szam("Ev").value(), 2068);
        kattint(d, "Rendben");
        QCOMPARE(d.rendbenek, 2);
    }

    void aHelyesSzamRogtonErvenyes() {
        TProbaDialogus d;
        d.beir("Nap", "12");
        QCOMPARE(d.szam("Nap").value(), 12);
        leut(Qt::Key_Return);
        QCOMPARE(d.rendbenek, 1);
        d.beir("Fok", "-19");
        QCOMPARE(d.szam("Fok").value(), -19);
    }

    void aKozepenJavitottEvszam() {
        TProbaDialogus d;
        d.beir("Ev", "19875");  // an 8 put into 1975, the 7 to be taken out yet
        leut(Qt::Key_Left);
        leut(Qt::Key_Backspace);
        QCOMPARE(d.szam("Ev").text(), "1985");
        QCOMPARE(d.szam("Ev").value(), 1985);
    }

    void aNullaIsSzamjegy() {
        TProbaDialogus d;
        d.beir("Ev", "2100");
        leut(Qt::Key_Return);
        QCOMPARE(d.rendbenek, 0);
        QCOMPARE(d.kijelolt("Ev"), "2068");
        beut("1900");
        leut(Qt::Key_Return);
        QCOMPARE(d.szam("Ev").value(), 1900);
        QCOMPARE(d.rendbenek, 1);
    }

    void azElojelesMezoMindketIranybanVag() {
        TProbaDialogus d;
        d.beir("Fok", "-999");
        leut(Qt::Key_Return);
        QCOMPARE(d.szam("Fok").value(), -180);
        QCOMPARE(d.kijelolt("Fok"), "-180");
        beut("999999999");
        leut(Qt::Key_Return);
        QCOMPARE(d.szam("Fok").value(), 180);
    }

    void aBetuEsAzElojelASzamMezobeNemMegy() {
        TProbaDialogus d;
        d.beir("Nap", "-a7b");
        QCOMPARE(d.szam("Nap").text(), "7");
        QApplication::clipboard()->setText("-5");
        leut(Qt::Key_A, Qt::ControlModifier);
        leut(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(d.szam("Nap").text(), "7");
        d.beir("Fok", "1-2");
        QCOMPARE(d.szam("Fok").text(), "12");
        leut(Qt::Key_Home);
        beut("a");
        QCOMPARE(d.szam("Fok").text(), "12");
        d.beir("Perc", "-5");  // nothing is below its least, 0
        QCOMPARE(d.szam("Perc").text(), "5");
        leut(Qt::Key_A, Qt::ControlModifier);
        leut(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(d.szam("Perc").text(), "5");
        leut(Qt::Key_Home);
        beut("-");
        QCOMPARE(d.szam("Perc").text(), "5");
    }

    void azUresreTorlottMezoARegiSzamotAdja() {
        TProbaDialogus d;
        belelep(d, "Nap");
        leut(Qt::Key_Delete);
        QCOMPARE(d.szam("Nap").text(), "");
        leut(Qt::Key_Tab);
        QCOMPARE(d.szam("Nap").value(), 5);
        QCOMPARE(d.szam("Nap").text(), "5");
    }

    void aNevHarminckettoAJegyzetKettoszazotvenotKarakter() {
        TProbaDialogus d;
        d.beir("Nev", qPrintable(QString(40, u'x')));
        QCOMPARE(vezerlo<QLineEdit>(d, "Nev")->text().size(), 32);
        QCOMPARE(vezerlo<QLineEdit>(d, "Nev")->toolTip(), "Legfeljebb 32 karakter");
        auto* jegyzet = vezerlo<QPlainTextEdit>(d, "Jegyzet");
        QCOMPARE(jegyzet->toolTip(), "Legfeljebb 255 karakter");
        jegyzet->setFocus();
        beut(qPrintable(QString(254, u'y')));
        leut(Qt::Key_Return);
        QCOMPARE(jegyzet->toPlainText(), QString(254, u'y') + "\n");
        beut("z");
        QCOMPARE(jegyzet->toPlainText(), QString(254, u'y') + "\n");
        QCOMPARE(jegyzet->textCursor().position(), 255);
    }

    void aMegteltJegyzetKozepenAKurzorMarad() {
        TProbaDialogus d;
        auto* jegyzet = vezerlo<QPlainTextEdit>(d, "Jegyzet");
        jegyzet->setPlainText(QString(100, u'a') + QString(150, u'b'));
        QTextCursor kurzor = jegyzet->textCursor();
        kurzor.setPosition(100);
        jegyzet->setTextCursor(kurzor);
        beilleszt(*jegyzet, "0123456789");  // five too many
        QCOMPARE(jegyzet->toPlainText(), QString(100, u'a') + "01234" + QString(150, u'b'));
        QCOMPARE(jegyzet->textCursor().position(), 105);
        jegyzet->setFocus();
        beut("x");
        QCOMPARE(jegyzet->toPlainText(), QString(100, u'a') + "01234" + QString(150, u'b'));
        QCOMPARE(jegyzet->textCursor().position(), 105);
        leut(Qt::Key_Backspace);
        beut("x");
        QCOMPARE(jegyzet->toPlainText(), QString(100, u'a') + "0123x" + QString(150, u'b'));
    }

    void aLevagottBeszurasEgyLepesbenVisszavonhato() {
        TProbaDialogus d;
        auto* jegyzet = vezerlo<QPlainTextEdit>(d, "Jegyzet");
        const QString elobb = QString(100, u'a') + QString(150, u'b');
        jegyzet->setPlainText(elobb);
        for (int kor = 0; kor < 2; ++kor) {
            QTextCursor kurzor = jegyzet->textCursor();
            kurzor.setPosition(100);
            jegyzet->setTextCursor(kurzor);
            beilleszt(*jegyzet, "0123456789");  // five too many
            const QString utana = QString(100, u'a') + "01234" + QString(150, u'b');
            QCOMPARE(jegyzet->toPlainText(), utana);
            jegyzet->undo();
            QCOMPARE(jegyzet->toPlainText(), elobb);
            jegyzet->redo();
            QCOMPARE(jegyzet->toPlainText(), utana);
            jegyzet->undo();
            QCOMPARE(jegyzet->toPlainText(), elobb);
        }
    }

    void aMegteltJegyzetbeIrtBetuNemTakarjaElAKorabbiLepest() {
        TProbaDialogus d;
        auto* jegyzet = vezerlo<QPlainTextEdit>(d, "Jegyzet");
        jegyzet->setPlainText(QString(250, u'a'));
        jegyzet->moveCursor(QTextCursor::End);
        jegyzet->setFocus();
        beut("bcdefgh");  // five of them stay
        QCOMPARE(jegyzet->toPlainText(), QString(250, u'a') + "bcdef");
        leut(Qt::Key_Return);
        QCOMPARE(jegyzet->toPlainText(), QString(250, u'a') + "bcdef");
        for (int kor = 0; kor < 7 && jegyzet->document()->isUndoAvailable(); ++kor)
            leut(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(jegyzet->toPlainText(), QString(250, u'a'));
    }

    void aJelolesOkaValtozhatEsASajatSugoVisszajon() {
        TProbaDialogus d;
        QSpinBox& mezo = d.szam("Nap");
        mezo.setToolTip("saját");
        const auto szin = [&mezo] { return mezo.findChild<QLineEdit*>()->palette().color(QPalette::Text); };
        const QColor rendes = szin();
        mezoJeloles(mezo, "");
        QCOMPARE(mezo.toolTip(), "saját");
        for (int kor = 0; kor < 2; ++kor) {
            for (const char* miert : {"egyik ok", "másik ok"}) {
                mezoJeloles(mezo, miert);
                QCOMPARE(mezo.toolTip(), miert);
                QVERIFY(szin() != rendes);
            }
            mezoJeloles(mezo, "");
            QCOMPARE(mezo.toolTip(), "saját");
            QCOMPARE(szin(), rendes);
            mezo.setToolTip("új");  // of a field that is not marked the tooltip is its owner's
            mezoJeloles(mezo, "");
            QCOMPARE(mezo.toolTip(), "új");
            mezo.setToolTip("saját");
        }
    }

    void kilencJegynelTobbNemIrhato() {
        TProbaDialogus d;
        d.beir("Fok", "1234567890");
        QCOMPARE(d.szam("Fok").text(), "123456789");
        d.beir("Fok", "-1234567890");
        QCOMPARE(d.szam("Fok").text(), "-123456789");
        leut(Qt::Key_Return);
        QCOMPARE(d.szam("Fok").value(), -180);
    }

    void aKettosKarakterNemSzakadSzet() {
        TProbaDialogus d;
        auto* jegyzet = vezerlo<QPlainTextEdit>(d, "Jegyzet");
        jegyzet->setPlainText(QString(254, u'a'));
        jegyzet->moveCursor(QTextCursor::End);
        beilleszt(*jegyzet, QString::fromUtf8("🌟"));
        QCOMPARE(jegyzet->toPlainText(), QString(254, u'a'));
        jegyzet->setFocus();
        leut(Qt::Key_Backspace);
        beilleszt(*jegyzet, QString::fromUtf8("🌟"));
        QCOMPARE(jegyzet->toPlainText(), QString(253, u'a') + QString::fromUtf8("🌟"));
    }

    void aKijelolesHelyeIsSzamitAJegyzetben() {
        TProbaDialogus d;
        auto* jegyzet = vezerlo<JegyzetMezo>(d, "Jegyzet");
        jegyzet->setPlainText(QString(255, u'a'));
        jegyzet->setFocus();
        jegyzet->selectAll();
        beilleszt(*jegyzet, "egy\r\nkettő");
        QCOMPARE(jegyzet->toPlainText(), "egy\nkettő");
        jegyzet->setPlainText(QString(255, u'a'));
        jegyzet->moveCursor(QTextCursor::End);
        jegyzet->moveCursor(QTextCursor::Left, QTextCursor::KeepAnchor);
        beut("xy");  // one letter in place of the selected one, none after it
        QCOMPARE(jegyzet->toPlainText(), QString(254, u'a') + "x");
        leut(Qt::Key_Left, Qt::ShiftModifier);
        leut(Qt::Key_Return);
        QCOMPARE(jegyzet->toPlainText(), QString(254, u'a') + "\n");
        leut(Qt::Key_Backspace);  // a full field can be emptied by the keyboard
        QCOMPARE(jegyzet->toPlainText(), QString(254, u'a'));
        leut(Qt::Key_Backspace);
        leut(Qt::Key_Backspace);
        beilleszt(*jegyzet, "1\r\n23");  // room for three, and a line's end is one, however it came
        QCOMPARE(jegyzet->toPlainText(), QString(252, u'a') + "1\n2");
    }

    void azOsszetettKarakterIsCsakAmigBelefer() {
        TProbaDialogus d;
        auto* jegyzet = vezerlo<JegyzetMezo>(d, "Jegyzet");
        jegyzet->setPlainText(QString(253, u'a'));
        jegyzet->moveCursor(QTextCursor::End);
        const auto veglegesit = [&](const QString& irt, int honnan, int csereltek) {
            QInputMethodEvent esemeny;
            esemeny.setCommitString(irt, honnan, csereltek);
            QApplication::sendEvent(jegyzet, &esemeny);
        };
        veglegesit("őűí", 0, 0);
        QCOMPARE(jegyzet->toPlainText(), QString(253, u'a') + "őű");
        veglegesit("é", 0, 0);
        QCOMPARE(jegyzet->toPlainText(), QString(253, u'a') + "őű");
        veglegesit("éá", -1, 1);  // in place of the last
        QCOMPARE(jegyzet->toPlainText(), QString(253, u'a') + "őé");
    }

    void aGorgoFokuszNelkulNemValtoztatFokusszalIgen() {
        TProbaDialogus d;
        gorgetesMindenMezoFelett(d, 3);
        d.szam("Nap").setFocus();
        gorget(d.szam("Nap"), 1);
        QCOMPARE(d.szam("Nap").value(), 6);
        QCOMPARE(d.szam("Ev").value(), 1975);
    }

    void aGorgoEgyikAblakbanSemValtoztatFokuszNelkul() {
        TFrissAblakok a;
        a.vezerloOra()->start();
        szuletes(a);
        valasz([](QWidget& d) {
            gorgetesMindenMezoFelett(d, 13);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Szemely_adatok1");
        valasz([](QWidget& d) {
            gorgetesMindenMezoFelett(d, 13);
            kattint(d, "Button_Megsem2");
        });
        a.form2.eletesemenyek();
        valasz([](QWidget& d) {
            gorgetesMindenMezoFelett(d, 4);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Tercier1");
        valasz([](QWidget& d) {
            gorgetesMindenMezoFelett(d, 8);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Lunar1");
        valasz([](QWidget& d) {
            vezerlo<QComboBox>(d, "ComboBox1")->addItems({"Astro A", "Astro B", "Astro C"});
            vezerlo<QComboBox>(d, "ComboBox1")->setCurrentIndex(1);
            gorgetesMindenMezoFelett(d, 1);
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Szimbolumok1");
        menu(a.form1, "Primer1");
        gorgetesMindenMezoFelett(a.form12, 3);
        kattint(a.form12, "Button_Pontositas1");
        gorgetesMindenMezoFelett(a.form13, 1);
    }
};

QTEST_MAIN(VezerlokTeszt)
#include "vezerlok_teszt.moc"
