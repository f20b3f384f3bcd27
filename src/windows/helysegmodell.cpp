#include "windows/helysegmodell.h"

#include <QStringList>

#include "tables/telepulesek.h"
#include "windows/qszoveg.h"

namespace {

constexpr int nevekSzama = static_cast<int>(std::tuple_size_v<decltype(Telepulesek)>);

const QStringList& nevek() {
    static const QStringList lista = [] {
        QStringList uj;
        for (const TTelepules& t : Telepulesek) uj << qszoveg(t.nev);
        return uj;
    }();
    return lista;
}

}  // namespace

int HelysegModell::rowCount(const QModelIndex& szulo) const {
    return szulo.isValid() ? 0 : ismetlesek_ * nevekSzama;
}

QVariant HelysegModell::data(const QModelIndex& hely, int szerep) const {
    if (!hely.isValid() || (szerep != Qt::DisplayRole && szerep != Qt::EditRole)) return {};
    return nevek()[hely.row() % nevekSzama];
}

void HelysegModell::noveles() {
    beginInsertRows({}, rowCount(), rowCount() + nevekSzama - 1);
    ++ismetlesek_;
    endInsertRows();
}
