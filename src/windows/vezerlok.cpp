#include "windows/vezerlok.h"

namespace {

template <typename TVezerlo>
TVezerlo* elnevez(TVezerlo* vezerlo, const QString& nev, const QRect& hely) {
    vezerlo->setObjectName(nev);
    if (hely.isValid()) vezerlo->setGeometry(hely);
    return vezerlo;
}

}  // namespace

QPushButton* ujGomb(QWidget* szulo, const QString& nev, const QString& felirat, const QRect& hely) {
    auto* gomb = elnevez(new QPushButton(felirat, szulo), nev, hely);
    gomb->setAutoDefault(false);
    return gomb;
}

QSpinBox* ujSzamMezo(QWidget* szulo, const QString& nev, int also, int felso, const QRect& hely) {
    auto* mezo = elnevez(new QSpinBox(szulo), nev, hely);
    mezo->setRange(also, felso);
    return mezo;
}

QLineEdit* ujSzovegMezo(QWidget* szulo, const QString& nev, const QRect& hely) {
    return elnevez(new QLineEdit(szulo), nev, hely);
}

QLabel* ujCimke(QWidget* szulo, const QString& felirat, const QPoint& hely) {
    auto* cimke = new QLabel(felirat, szulo);
    cimke->move(hely);
    return cimke;
}
