#include "windows/sugok.h"

#include <algorithm>
#include <array>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QRegularExpression>

#include "predictive/olvashato.h"
#include "tables/szotar.h"
#include "windows/jelolvasas.h"
#include "windows/qszoveg.h"
#include "windows/sugosorok.h"

namespace {

/// A cell of the orb table: whose, and of which aspect.
QString orbisCella(const QString& nev) {
    static const QRegularExpression alak("^BOrbis_([0-9]+)_([0-9]+)$");
    const auto talalat = alak.match(nev);
    if (!talalat.hasMatch()) return {};
    const int sor = talalat.captured(1).toInt();
    const QString kie = sor == 1 ? "Asc" : sor == 2 ? "MC" : qszoveg(JelNev(bolygoJel[sor - 2]));
    return kie + ", " + qszoveg(JelNev(fenyszogJel[talalat.captured(2).toInt()])) + ": orbis fokban";
}

/// A caption of words is a button's name; the tooltip is then its description.
bool beszedes(const QWidget& vezerlo) {
    const auto* gomb = qobject_cast<const QAbstractButton*>(&vezerlo);
    const QString felirat = gomb == nullptr ? QString() : gomb->text();
    return std::any_of(felirat.begin(), felirat.end(), [](QChar c) { return c.isLetter(); });
}

void kiir(QWidget& vezerlo) {
    const QString szoveg = Sugo(vezerlo);
    if (szoveg.isEmpty()) return;
    if (vezerlo.toolTip().isEmpty()) vezerlo.setToolTip(szoveg);
    if (vezerlo.accessibleName().isEmpty() && !beszedes(vezerlo)) vezerlo.setAccessibleName(szoveg);
}

}  // namespace

QString Sugo(const QWidget& vezerlo) {
    const std::string nev = szoveg(vezerlo.objectName());
    if (nev.empty()) return {};
    const std::string ablak = szoveg(vezerlo.window()->objectName());
    const auto sor = std::find_if(std::begin(sugoSorok), std::end(sugoSorok), [&](const TSugoSor& s) {
        return s.nev == nev && (s.ablak.empty() || s.ablak == ablak);
    });
    if (sor != std::end(sugoSorok)) return qszoveg(sor->szoveg);
    return orbisCella(vezerlo.objectName());
}

TSugok::TSugok() {
    QAccessible::installFactory(JelOlvasasKeszites);
    qApp->installEventFilter(this);
}

TSugok::~TSugok() {
    QAccessible::removeFactory(JelOlvasasKeszites);
}

bool TSugok::eventFilter(QObject* targy, QEvent* esemeny) {
    if (esemeny->type() == QEvent::Polish && targy->isWidgetType()) kiir(*static_cast<QWidget*>(targy));
    return QObject::eventFilter(targy, esemeny);
}
