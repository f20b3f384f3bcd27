#include "windows/memosorok.h"

#include <QScrollBar>

#include "windows/qszoveg.h"

namespace {

struct TGorgetes {
    QScrollBar* sav;
    int ertek;
};

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
        if (memo->toPlainText() != uj) memo->setPlainText(uj);
    }
    for (const TGorgetes& gorgetes : gorgetesek) gorgetes.sav->setValue(gorgetes.ertek);
}
