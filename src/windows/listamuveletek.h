#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <QObject>
#include <QPlainTextEdit>
#include <QStringList>
#include <QWidget>

#include "chart/allapot.h"
#include "tables/pillanat.h"

/// What a list gives away as text.
struct TListaSzoveg {
    QString cim;        ///< heading on paper and in a file; a file's proposed name comes of it
    QStringList sorok;  ///< one for each line of the list, readable without the symbol font
};

/// Heading of a list: what it is, the chart's person, the moment that the list belongs to.
QString listaCim(const QString& lista, const Allapot& allapot, const TPillanat& pillanat);

/// The context menu that every list of the program has: copy, save and print as readable text; and Ctrl+C. A
/// copy is of the selected lines, or of all where nothing is selected or nothing can be; file and paper get
/// the whole list under its heading.
class TListaMuveletek : public QObject {
    Q_OBJECT

public:
    using TForras = std::function<TListaSzoveg()>;

    /// @param lista   its owner, in a window of the main window, which knows the toolkit's dialogs
    /// @param forras  asked at each use
    /// @param almenu  if given, the items stand in a submenu of this name and no key copies
    TListaMuveletek(QWidget& lista, TForras forras, const QString& almenu = {});

private:
    void masolas();
    void mentes();
    void nyomtatas();
    QAction* muvelet(const char* nev, const char* felirat, void (TListaMuveletek::*kezelo)());
    bool eventFilter(QObject* targy, QEvent* esemeny) override;

    QWidget& lista_;
    TForras forras_;
    QList<QAction*> muveletek_;
};

/// The lines of a list, each in readable form.
/// @param olvashato  of a line and its number from 1
QStringList memoSorai(const QPlainTextEdit& memo,
                      const std::function<std::string(int szam, std::string_view sor)>& olvashato);
