// The chart on screen handed on to other programs: clipboard, files, and the wheel's context menu.

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>

#include "commands/kepatadas.h"
#include "commands/nyomtatas.h"
#include "files/fajlmuvelet.h"
#include "windows/kepkimentes.h"
#include "windows/parbeszed.h"
#include "windows/qszoveg.h"
#include "windows/tform1_foablak.h"

TKepletKep TForm1::kepernyon() const {
    return {felulet_->width(), felulet_->height(), kiirtTalalatok_};
}

void TForm1::KepMasolas1Click() {
    QGuiApplication::clipboard()->setImage(kepletKep(allapot_, kepernyon()));
}

void TForm1::AdatMasolas1Click() {
    QGuiApplication::clipboard()->setText(qszoveg(PanelSzoveg(allapot_)));
}

/// The picture is the one on screen when the item was chosen, however long the dialog stays open.
void TForm1::kepMentes(const char* kiterjesztes, QByteArray (*keszit)(const Allapot&, const TKepletKep&)) {
    const QByteArray tartalom = keszit(allapot_, kepernyon());
    const QString nagybetus = QString::fromLatin1(kiterjesztes + 1).toUpper();
    const QString fajl = parbeszed_->mentendo(this, nagybetus + " (*" + kiterjesztes + ")",
                                              qszoveg(KepFajlNev(allapot_, kiterjesztes)));
    if (fajl.isEmpty()) return;
    if (tartalom.isEmpty() || !FajlIras(szoveg(fajl), tartalom.toStdString()))
        parbeszed_->uzenet(this, "A fájl nem írható:\n" + fajl);
}

void TForm1::KepPdf1Click() {
    kepMentes(".pdf", &kepletPdf);
}
void TForm1::KepSvg1Click() {
    kepMentes(".svg", &kepletSvg);
}
void TForm1::KepPng1Click() {
    kepMentes(".png", &kepletPng);
}

/// The wheel's menu: by the mouse on the wheel itself, by the key anywhere but in the note.
void TForm1::contextMenuEvent(QContextMenuEvent* esemeny) {
    const bool billentyu = esemeny->reason() == QContextMenuEvent::Keyboard;
    if (!billentyu && childAt(esemeny->pos()) != felulet_) return;
    esemeny->accept();
    if (!JelszoKeres()) return;
    QMenu menu(this);
    menu.setObjectName("KerekMenu1");
    for (const char* nev : {"KepMasolas1", "AdatMasolas1", "", "KepPdf1", "KepSvg1", "KepPng1"}) {
        if (*nev == '\0')
            menu.addSeparator();
        else
            menu.addAction(findChild<QAction*>(nev));
    }
    menu.exec(billentyu ? felulet_->mapToGlobal(felulet_->rect().center()) : esemeny->globalPos());
}
