#include "windows/memosorok.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>

#include "windows/qszoveg.h"

namespace {

struct TGorgetes {
    QScrollBar* sav;
    int ertek;
};

/// The list measures its lines as it comes to show them; measured all at once, the bars know their range.
void kimeres(const QTextDocument& lap) {
    for (QTextBlock sor = lap.begin(); sor.isValid(); sor = sor.next())
        lap.documentLayout()->blockBoundingRect(sor);
}

}  // namespace

void memoSorok(const QList<std::pair<QPlainTextEdit*, std::vector<std::string>>>& memok) {
    QList<TGorgetes> gorgetesek;
    for (const auto& [memo, sorok] : memok)
        for (QScrollBar* sav : {memo->horizontalScrollBar(), memo->verticalScrollBar()})
            gorgetesek << TGorgetes{sav, sav->value()};
    for (const auto& [memo, sorok] : memok) {
        QStringList lista;
        for (const std::string& sor : sorok) lista << qszoveg(sor);
        const QString uj = lista.join('\n');
        if (memo->toPlainText() == uj) continue;
        memo->setPlainText(uj);
        kimeres(*memo->document());
    }
    for (const TGorgetes& gorgetes : gorgetesek) gorgetes.sav->setValue(gorgetes.ertek);
}
