#include "windows/szammezo.h"

#include <algorithm>

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "windows/vezerlok.h"

namespace {

constexpr qsizetype legtobbJegy = 9;  ///< so many digits are an int

/// Digits only, a sign before them where the range has one.
bool szamSzoveg(QStringView szoveg, bool elojeles) {
    if (elojeles && szoveg.startsWith(u'-')) szoveg = szoveg.mid(1);
    return !szoveg.isEmpty() && szoveg.size() <= legtobbJegy &&
           std::all_of(szoveg.begin(), szoveg.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

}  // namespace

SzamMezo::SzamMezo(QWidget* szulo) : QSpinBox(szulo) {
    gorgoCsakFokusszal(*this);
}

QValidator::State SzamMezo::validate(QString& szoveg, int& hely) const {
    const QString beirt = szoveg;
    const QValidator::State allapot = QSpinBox::validate(szoveg, hely);
    if (allapot != QValidator::Invalid || !szamSzoveg(beirt, minimum() < 0)) return allapot;
    szoveg = beirt;
    return QValidator::Intermediate;
}

void SzamMezo::fixup(QString& szoveg) const {
    if (szamSzoveg(szoveg, minimum() < 0))
        szoveg = textFromValue(qBound(minimum(), szoveg.toInt(), maximum()));
    else
        QSpinBox::fixup(szoveg);
}

/// Whether the text is a number that the field does not admit.
bool SzamMezo::javitando() const {
    QString szoveg = lineEdit()->text();
    int hely = 0;
    return szamSzoveg(szoveg, minimum() < 0) && validate(szoveg, hely) != QValidator::Acceptable;
}

void SzamMezo::keyPressEvent(QKeyEvent* esemeny) {
    const bool enter = esemeny->key() == Qt::Key_Return || esemeny->key() == Qt::Key_Enter;
    const bool javit = enter && javitando();
    QSpinBox::keyPressEvent(esemeny);
    if (javit) esemeny->accept();
}

void SzamMezo::focusOutEvent(QFocusEvent* esemeny) {
    const bool javit = javitando();
    QSpinBox::focusOutEvent(esemeny);
    if (!javit) return;
    selectAll();
    // The press that took the focus is still on its way to the button.
    auto* gomb = qobject_cast<QPushButton*>(QApplication::focusWidget());
    if (esemeny->reason() == Qt::MouseFocusReason && gomb != nullptr && gomb->window() == window() &&
        gomb->isDefault())
        gomb->installEventFilter(this);
}

bool SzamMezo::eventFilter(QObject* targy, QEvent* esemeny) {
    if (esemeny->type() != QEvent::MouseButtonPress) return QSpinBox::eventFilter(targy, esemeny);
    targy->removeEventFilter(this);
    setFocus();
    selectAll();
    return true;
}
