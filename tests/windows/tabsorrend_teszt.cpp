// The Tab key goes through each window as the eye does: along a row to the right, then to the next row.

#include "ablakteszt.h"

namespace {

/// Fields and buttons in the order of the Tab key; what stands inside a field counts as the field.
QList<QWidget*> tabSorrend(QWidget& ablak) {
    QList<QWidget*> sor;
    for (QWidget* w = ablak.nextInFocusChain(); w != &ablak; w = w->nextInFocusChain()) {
        const bool belso = qobject_cast<QAbstractSpinBox*>(w->parentWidget()) != nullptr ||
                           qobject_cast<QComboBox*>(w->parentWidget()) != nullptr;
        if (w->window() == &ablak && !belso && w->isVisible() && w->isEnabled() &&
            (w->focusPolicy() & Qt::TabFocus) != 0)
            sor << w;
    }
    return sor;
}

/// Whether the eye comes from one place to the other without going back.
bool szemUtan(const QRect& a, const QRect& b) {
    if (b.center().y() > a.bottom()) return true;
    const bool egySor = b.top() < a.bottom() && a.top() < b.bottom();
    return egySor && b.left() >= a.center().x();
}

void szemSorrend(QWidget& ablak) {
    const QList<QWidget*> sor = tabSorrend(ablak);
    QVERIFY2(sor.size() >= 2, qPrintable(ablak.objectName()));
    for (qsizetype i = 1; i < sor.size(); ++i) {
        const QString par =
            ablak.objectName() + ": " + sor[i - 1]->objectName() + ", " + sor[i]->objectName();
        QVERIFY2(szemUtan(hely(ablak, *sor[i - 1]), hely(ablak, *sor[i])), qPrintable(par));
    }
}

void alapGomb(QWidget& ablak) {
    QStringList alapok;
    for (const auto* gomb : ablak.findChildren<QPushButton*>())
        if (gomb->isDefault()) alapok << gomb->objectName();
    const auto* rendben = ablak.findChild<QPushButton*>("Button_Rendben1");
    const bool van = rendben != nullptr && ablak.objectName() != "TForm6";  // its grid is for the mouse
    QCOMPARE(alapok, van ? QStringList{"Button_Rendben1"} : QStringList());
}

/// Shows the windows with fields or buttons one by one.
void sorban(TFrissAblakok& a, void (*teendo)(QWidget&)) {
    szuletes(a);
    a.form8.megmutat();
    QWidget* const ablakok[]{&a.form2,  &a.form5,  &a.form7,  &a.form8, &a.form9,
                             &a.form10, &a.form12, &a.form13, &a.form14};
    for (QWidget* ablak : ablakok) {
        ablak->show();
        QApplication::processEvents();
        teendo(*ablak);
        ablak->hide();
    }
    // This one gets the places of its fields when it is opened.
    parbeszedben(a, "Tercier1", teendo);
}

}  // namespace

class TabSorrendTeszt : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { sajatBetukBetoltese(); }

    void mindenAblakban() {
        TFrissAblakok a;
        sorban(a, szemSorrend);
    }

    /// Where there is an OK, the Enter key is its; where there is none, it presses nothing.
    void azEnterARendbene() {
        TFrissAblakok a;
        sorban(a, alapGomb);
        parbeszedben(a, "Orbisok1", alapGomb);
    }

    void azEnterATobbsorosMezobenSortNyit() {
        TFrissAblakok a;
        valasz([](QWidget& d) {
            auto* jegyzet = vezerlo<QPlainTextEdit>(d, "Memo_Jegyzet1");
            jegyzet->setFocus();
            jegyzet->setPlainText({});
            QTest::keyClicks(jegyzet, "egy");
            QTest::keyClick(jegyzet, Qt::Key_Return);
            QTest::keyClicks(jegyzet, "ket");
            QCOMPARE(jegyzet->toPlainText(), "egy\nket");
            QVERIFY(d.isVisible());
            kattint(d, "Button_Megsem1");
        });
        menu(a.form1, "Szemely_adatok1");
    }
};

QTEST_MAIN(TabSorrendTeszt)
#include "tabsorrend_teszt.moc"
