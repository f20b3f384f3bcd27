#include "windows/listamuveletek.h"

#include <algorithm>
#include <utility>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QKeyEvent>
#include <QMenu>
#include <QPdfWriter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextDocument>

#include "files/fajlmuvelet.h"
#include "files/fajlnev.h"
#include "predictive/olvashato.h"
#include "tables/szotar.h"
#include "windows/parbeszed.h"
#include "windows/qszoveg.h"
#include "windows/tform1_foablak.h"

namespace {

/// Numbers from 0 of the selected lines, ascending; empty where none is.
QList<int> kijeloltSorok(const QWidget& lista) {
    QList<int> sorok;
    if (const auto* memo = qobject_cast<const QPlainTextEdit*>(&lista)) {
        const QTextCursor kijeloles = memo->textCursor();
        if (!kijeloles.hasSelection()) return {};
        const QTextDocument& lap = *memo->document();
        // A line whose start alone is touched from above does not count.
        const int utolso = lap.findBlock(kijeloles.selectionEnd() - 1).blockNumber();
        for (int sor = lap.findBlock(kijeloles.selectionStart()).blockNumber(); sor <= utolso; ++sor)
            sorok << sor;
    }
    if (const auto* nezet = qobject_cast<const QAbstractItemView*>(&lista))
        for (const QModelIndex& elem : nezet->selectionModel()->selectedRows()) sorok << elem.row();
    std::sort(sorok.begin(), sorok.end());
    return sorok;
}

QString lapSzoveg(const TListaSzoveg& lista) {
    return lista.cim + "\n\n" + lista.sorok.join('\n') + '\n';
}

/// Painted into memory first, so that the file is written in one piece and whatever keeps it from being
/// written is known.
bool pdfbe(const QTextDocument& lap, const QPrinter& nyomtato, const QString& cim) {
    QBuffer tar;
    tar.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&tar);
    pdf.setPageLayout(nyomtato.pageLayout());
    pdf.setTitle(cim);
    pdf.setCreator("Korvend");
    lap.print(&pdf);
    return FajlIras(szoveg(nyomtato.outputFileName()), tar.data().toStdString());
}

TParbeszed& parbeszed(const QWidget& lista) {
    return qobject_cast<TForm1*>(lista.window()->parentWidget())->parbeszed();
}

}  // namespace

QString listaCim(const QString& lista, const Allapot& allapot, const TPillanat& pillanat) {
    return qszoveg(ListaCim(szoveg(lista), allapot.Szemely.nev, pillanat));
}

TListaMuveletek::TListaMuveletek(QWidget& lista, TForras forras, const QString& almenu)
    : QObject(&lista), lista_(lista), forras_(std::move(forras)) {
    QAction* masol = muvelet("Masolas1", "Másolás szövegként", &TListaMuveletek::masolas);
    muveletek_ = {masol, muvelet("Szovegmentes1", "Mentés szövegként…", &TListaMuveletek::mentes),
                  muvelet("Listanyomtatas1", "Nyomtatás…", &TListaMuveletek::nyomtatas)};
    lista.setContextMenuPolicy(Qt::ActionsContextMenu);
    lista.installEventFilter(this);
    if (auto* gorgeto = qobject_cast<QAbstractScrollArea*>(&lista))
        gorgeto->viewport()->installEventFilter(this);
    if (!almenu.isEmpty()) {
        auto* menu = new QMenu(almenu, &lista);
        menu->addActions(muveletek_);
        lista.addAction(menu->menuAction());
        return;
    }
    masol->setShortcut(QKeySequence::Copy);
    masol->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    lista.addActions(muveletek_);
}

QAction* TListaMuveletek::muvelet(const char* nev, const char* felirat, void (TListaMuveletek::*kezelo)()) {
    auto* uj = new QAction(felirat, this);
    uj->setObjectName(nev);
    connect(uj, &QAction::triggered, this, kezelo);
    return uj;
}

bool TListaMuveletek::eventFilter(QObject* targy, QEvent* esemeny) {
    if (esemeny->type() == QEvent::ContextMenu) {
        const bool vanSor = !forras_().sorok.isEmpty();
        for (QAction* uj : std::as_const(muveletek_)) uj->setEnabled(vanSor);
    }
    // A text field takes its copy key before any shortcut, and would copy the letters.
    if (esemeny->type() == QEvent::KeyPress && targy == &lista_ && !muveletek_[0]->shortcut().isEmpty() &&
        static_cast<QKeyEvent*>(esemeny)->matches(QKeySequence::Copy)) {
        masolas();
        return true;
    }
    return QObject::eventFilter(targy, esemeny);
}

void TListaMuveletek::masolas() {
    const QStringList sorok = forras_().sorok;
    QStringList masolt;
    for (const int sor : kijeloltSorok(lista_)) masolt << sorok.value(sor);
    if (masolt.isEmpty()) masolt = sorok;
    if (!masolt.isEmpty()) QApplication::clipboard()->setText(masolt.join('\n'));
}

void TListaMuveletek::mentes() {
    const TListaSzoveg lista = forras_();
    TParbeszed& kerdez = parbeszed(lista_);
    const QString fajl =
        kerdez.mentendo(lista_.window(), "Szövegfájl (*.txt)", qszoveg(FajlNev(szoveg(lista.cim))) + ".txt");
    if (fajl.isEmpty()) return;
    if (!FajlIras(szoveg(fajl), szoveg(lapSzoveg(lista))))
        kerdez.uzenet(lista_.window(), "A fájl nem írható:\n" + fajl);
}

void TListaMuveletek::nyomtatas() {
    const TListaSzoveg lista = forras_();
    TParbeszed& kerdez = parbeszed(lista_);
    QPrinter nyomtato(QPrinter::HighResolution);
    nyomtato.setDocName(lista.cim);
    if (!kerdez.nyomtatoBeallitas(lista_.window(), nyomtato)) return;
    QTextDocument lap;
    lap.setDefaultFont(QFont(qszoveg(szovegFont), 10));
    lap.setPlainText(lapSzoveg(lista));
    const bool fajlba = nyomtato.outputFormat() == QPrinter::PdfFormat;
    if (!fajlba) lap.print(&nyomtato);
    if (fajlba ? !pdfbe(lap, nyomtato, lista.cim) : nyomtato.printerState() == QPrinter::Error)
        kerdez.uzenet(lista_.window(), "A nyomtatás nem sikerült.");
}

QStringList memoSorai(const QPlainTextEdit& memo,
                      const std::function<std::string(int szam, std::string_view sor)>& olvashato) {
    const QString szovege = memo.toPlainText();
    if (szovege.isEmpty()) return {};
    QStringList sorok;
    for (const QString& sor : szovege.split('\n'))
        sorok << qszoveg(olvashato(static_cast<int>(sorok.size()) + 1, szoveg(sor)));
    return sorok;
}
