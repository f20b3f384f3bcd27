#include "windows/jelszoveg.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include "predictive/jelsorok.h"
#include "windows/qszoveg.h"

TJelSzoveg::TJelSzoveg(QWidget* szulo) : TJelCimke(szulo) {
    setFocusPolicy(Qt::StrongFocus);  // its text is copied from here
}

QStringList TJelSzoveg::sorok(int szelesseg) const {
    const QFontMetrics meretek(font());
    const std::string jelek = szoveg(text());
    QStringList lista;
    for (const std::string_view sor : JelSorok(jelek, szelesseg, [&](std::string_view resz) {
             return meretek.horizontalAdvance(qszoveg(resz));
         }))
        lista << qszoveg(sor);
    return lista;
}

int TJelSzoveg::heightForWidth(int szelesseg) const {
    return static_cast<int>(sorok(szelesseg).size()) * QFontMetrics(font()).height();
}

void TJelSzoveg::paintEvent(QPaintEvent*) {
    QPainter festo(this);
    const QFontMetrics meretek(font());
    int y = meretek.ascent();
    for (const QString& sor : sorok(width())) {
        festo.drawText(0, y, sor);
        y += meretek.height();
    }
    if (!hasFocus()) return;
    QStyleOptionFocusRect keret;
    keret.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &keret, &festo, this);
}
