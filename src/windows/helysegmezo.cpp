#include "windows/helysegmezo.h"

#include <QCompleter>
#include <QStringList>

#include "tables/telepulesek.h"

namespace {

const QStringList& nevek() {
    static const QStringList lista = [] {
        QStringList uj;
        for (const TTelepules& t : Telepulesek)
            uj << QString::fromUtf8(t.nev.data(), static_cast<qsizetype>(t.nev.size()));
        return uj;
    }();
    return lista;
}

}  // namespace

QComboBox* ujHelysegMezo(QWidget* szulo, const char* nev) {
    auto* mezo = new QComboBox(szulo);
    mezo->setObjectName(nev);
    mezo->setEditable(true);
    mezo->setInsertPolicy(QComboBox::NoInsert);
    mezo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    mezo->setMinimumContentsLength(24);
    auto* kiegeszito = new QCompleter(nevek(), mezo);
    kiegeszito->setCaseSensitivity(Qt::CaseInsensitive);
    mezo->setCompleter(kiegeszito);
    return mezo;
}

void helysegekHozzaadasa(QComboBox& mezo) {
    mezo.addItems(nevek());
}
