#include "windows/vezerlok.h"

#include <QEvent>

#include "windows/szammezo.h"

namespace {

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
    auto* gomb = new QPushButton(felirat, szulo);
    gomb->setObjectName(nev);
    if (hely.isValid()) gomb->setGeometry(hely);
    gomb->setAutoDefault(false);
    return gomb;
}

QSpinBox* ujSzamMezo(QWidget* szulo, const QString& nev, int also, int felso) {
    auto* mezo = new SzamMezo(szulo);
    mezo->setObjectName(nev);
    mezo->setRange(also, felso);
    return mezo;
}

QSpinBox* ujSzamMezo(QWidget* szulo, QHBoxLayout& sor, const QString& felirat, const QString& nev, int also,
                     int felso) {
    QSpinBox* mezo = ujSzamMezo(szulo, nev, also, felso);
    sor.addWidget(new QLabel(felirat, szulo));
    sor.addWidget(mezo);
    sor.addStretch();
    return mezo;
}

QLineEdit* ujSzovegMezo(QWidget* szulo, const QString& nev) {
    auto* mezo = new QLineEdit(szulo);
    mezo->setObjectName(nev);
    return mezo;
}

QLabel* ujCimke(QWidget* szulo, const QString& felirat, const QPoint& hely) {
    auto* cimke = new QLabel(felirat, szulo);
    cimke->move(hely);
    cimke->adjustSize();
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
