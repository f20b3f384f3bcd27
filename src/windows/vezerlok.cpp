#include "windows/vezerlok.h"

#include <QEvent>

#include "windows/szammezo.h"

namespace {

template <typename TVezerlo>
TVezerlo* elnevez(TVezerlo* vezerlo, const QString& nev, const QRect& hely) {
    vezerlo->setObjectName(nev);
    if (hely.isValid()) vezerlo->setGeometry(hely);
    return vezerlo;
}

class TGorgoSzuro : public QObject {
public:
    explicit TGorgoSzuro(QWidget& mezo) : QObject(&mezo), mezo_(mezo) { mezo.installEventFilter(this); }

private:
    bool eventFilter(QObject* targy, QEvent* esemeny) override {
        if (esemeny->type() != QEvent::Wheel || mezo_.hasFocus()) return QObject::eventFilter(targy, esemeny);
        esemeny->ignore();
        return true;
    }

    QWidget& mezo_;
};

}  // namespace

QPushButton* ujGomb(QWidget* szulo, const QString& nev, const QString& felirat, const QRect& hely) {
    auto* gomb = elnevez(new QPushButton(felirat, szulo), nev, hely);
    gomb->setAutoDefault(false);
    return gomb;
}

QSpinBox* ujSzamMezo(QWidget* szulo, const QString& nev, int also, int felso, const QRect& hely) {
    auto* mezo = elnevez(new SzamMezo(szulo), nev, hely);
    mezo->setRange(also, felso);
    return mezo;
}

QLineEdit* ujSzovegMezo(QWidget* szulo, const QString& nev) {
    return elnevez(new QLineEdit(szulo), nev, {});
}

QLabel* ujCimke(QWidget* szulo, const QString& felirat, const QPoint& hely) {
    auto* cimke = new QLabel(felirat, szulo);
    cimke->move(hely);
    cimke->adjustSize();
    return cimke;
}

QLabel* ujCimke(QWidget* szulo, const QString& felirat, int bal, const QWidget& mezo) {
    QLabel* cimke = ujCimke(szulo, felirat, {bal, mezo.y()});
    cimke->resize(cimke->sizeHint().width(), mezo.height());
    return cimke;
}

void gorgoCsakFokusszal(QWidget& mezo) {
    mezo.setFocusPolicy(Qt::StrongFocus);
    new TGorgoSzuro(mezo);
}

QString hosszSugo(int hossz) {
    return QStringLiteral("Legfeljebb %1 karakter").arg(hossz);
}

void hosszKorlat(QLineEdit& mezo, int hossz) {
    mezo.setMaxLength(hossz);
    mezo.setToolTip(hosszSugo(hossz));
}
