// New lines for a list that the user has scrolled.

#include <QScrollBar>

#include "ablakteszt.h"
#include "windows/memosorok.h"

namespace {

/// Many short lines, then one that is far wider than the list.
std::vector<std::string> hosszuVegu(char betu) {
    std::vector<std::string> sorok(60, std::string(3, betu));
    sorok.push_back(std::string(300, betu));
    return sorok;
}

struct TMemo : QPlainTextEdit {
    TMemo() {
        setLineWrapMode(QPlainTextEdit::NoWrap);
        resize(160, 120);
        show();
    }
};

}  // namespace

class MemoSorokTeszt : public QObject {
    Q_OBJECT

private slots:
    void aKintLevoLeghosszabbSorIsSzamit() {
        TMemo memo;
        memoSorok({{&memo, hosszuVegu('a')}});
        QApplication::processEvents();
        memo.verticalScrollBar()->setValue(memo.verticalScrollBar()->maximum());
        QApplication::processEvents();
        memo.horizontalScrollBar()->setValue(400);
        memo.verticalScrollBar()->setValue(3);
        QApplication::processEvents();
        QCOMPARE(memo.horizontalScrollBar()->value(), 400);
        for (const char betu : {'b', 'c'}) {
            memoSorok({{&memo, hosszuVegu(betu)}});
            QApplication::processEvents();
            QCOMPARE(memo.horizontalScrollBar()->value(), 400);
            QCOMPARE(memo.verticalScrollBar()->value(), 3);
            QVERIFY(memo.toPlainText().startsWith(QString(3, QLatin1Char(betu))));
        }
    }

    void aRovidebbListaAVegenAll() {
        TMemo memo;
        memoSorok({{&memo, hosszuVegu('a')}});
        QApplication::processEvents();
        memo.verticalScrollBar()->setValue(40);
        memoSorok({{&memo, {"egy", "kettő"}}});
        QApplication::processEvents();
        QCOMPARE(memo.verticalScrollBar()->value(), 0);
        memoSorok({{&memo, {}}});
        QCOMPARE(memo.toPlainText(), "");
    }
};

QTEST_MAIN(MemoSorokTeszt)
#include "memosorok_teszt.moc"
