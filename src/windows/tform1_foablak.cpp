// The main window itself: its parts, its drawing surface, its texts.

#include "windows/tform1_foablak.h"

#include <QDate>
#include <QFrame>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTime>

#include "chart/statuszsor.h"
#include "commands/indulas.h"
#include "commands/orajel.h"
#include "drawing/geometria.h"
#include "drawing/kepletrajz.h"
#include "drawing/oldalpanel.h"
#include "engine/keszlet.h"
#include "tables/helyhatarok.h"
#include "tables/szotar.h"
#include "windows/ablakok.h"
#include "windows/betukeszlet.h"
#include "windows/betumappak.h"
#include "windows/datumformatum.h"
#include "windows/jelolvasas.h"
#include "windows/modalisfelul.h"
#include "windows/qszoveg.h"
#include "windows/qtvaszon.h"
#include "windows/tform5_hanglejatszo.h"
#include "windows/tform7_lepteto.h"

namespace {

constexpr int tervezettSzelesseg = 995;
constexpr int tervezettMagassag = 717;
constexpr int panelSzelesseg = 49;
constexpr int gombMagassag = 24;
constexpr int panelSorokTeteje = 6 * gombMagassag + 2;

/// A row of the panel: its glyphs, and its position text so close beneath that the two read as one. The
/// text begins inside the glyphs' cell, where that is empty; what is left of the row is its distance from
/// the next.
struct TPanelSor {
    int magassag, jelMagassag, szovegTetej, szovegMagassag;
};
constexpr TPanelSor panelSor{28, 15, 13, 12};

struct TMemoHely {
    int tetej, magassag;
};
constexpr TMemoHely kicsiMemo{600, 281};
constexpr TMemoHely nagyMemo{144, 737};  ///< over the side table too, so that the note can be read

constexpr std::array<int, 7> statuszSzelessegek{48, 90, 150, 135, 150, 90, 750};

/// The small text of the main window: the largest whose widest position still fits in the panel. The status
/// bar has it too; each further face and size costs the start half a millisecond.
QFont kisBetu(int dpi) {
    const QString nev = qszoveg(szovegFont);
    int magassag = panelSor.szovegMagassag;
    while (magassag > 8 &&
           QFontMetrics(cellaMagassaguBetu(nev, magassag, dpi)).horizontalAdvance("28°58'58''") >=
               panelSzelesseg)
        --magassag;
    return cellaMagassaguBetu(nev, magassag, dpi);
}

}  // namespace

TForm1::TForm1()
    : felulet_(new KepletFelulet(this)), panel1_(new QFrame(felulet_)), timer1_(new QTimer(this)) {
    setObjectName("TForm1");
    new TModalisFelul(this);
    resize(tervezettSzelesseg, tervezettMagassag);
    felulet_->setObjectName("Felulet");
    felulet_->installEventFilter(this);
    setCentralWidget(felulet_);
    menuEpites();
    panelEpites();
    statuszEpites();
    ejtesFigyeles();
    connect(felulet_, &KepletFelulet::festesKeres, this, &TForm1::FormPaint);
    connect(felulet_, &KepletFelulet::meretValtozott, this, &TForm1::FormResize);
    FormCreate();
    timer1_->setObjectName("Timer1");
    timer1_->setInterval(orajelEzredmasodperc);
    connect(timer1_, &QTimer::timeout, this, &TForm1::Timer1Timer);
    timer1_->start();
}

void TForm1::gombEpites(int hely, const char* nev, const QString& felirat, void (TForm1::*kezelo)()) {
    auto* gomb = new QPushButton(felirat, panel1_);
    gomb->setObjectName(nev);
    gomb->setGeometry(0, hely * gombMagassag, panelSzelesseg, gombMagassag);
    gomb->setFocusPolicy(Qt::NoFocus);
    connect(gomb, &QPushButton::clicked, this, [this, kezelo] {
        if (JelszoKeres()) (this->*kezelo)();
    });
}

void TForm1::panelSorEpites(int sor) {
    constexpr std::array<const char*, 6> csucsFeliratok{"I", "2", "3", "X", "11", "12"};
    const int y = panelSorokTeteje + sor * panelSor.magassag;
    const auto uj = [&](int n, const QRect& hely) {
        auto* felirat = new TJelCimke(panel1_);
        felirat->setObjectName(QStringLiteral("Label%1").arg(n));
        felirat->setGeometry(hely);
        felirat->setAlignment(Qt::AlignCenter);
        label_[static_cast<std::size_t>(n - 1)] = felirat;
        return felirat;
    };
    const int fel = panelSzelesseg / 2;
    QLabel* nev = uj(3 * sor + 1, {0, y, fel, panelSor.jelMagassag});
    uj(3 * sor + 2, {fel, y, panelSzelesseg - fel, panelSor.jelMagassag});
    uj(3 * sor + 3, {0, y + panelSor.szovegTetej, panelSzelesseg, panelSor.szovegMagassag});
    nev->setText(sor < 10 ? QString(QChar(u'A' + sor))
                          : QString(csucsFeliratok[static_cast<std::size_t>(sor - 10)]));
}

void TForm1::panelEpites() {
    panel1_->setObjectName("Panel1");
    panel1_->setAutoFillBackground(true);
    panel1_->installEventFilter(this);
    panel1_->setFont(kisBetu(logicalDpiY()));

    gombEpites(0, "PanelButton2_Most", qszoveg(allapot_.Feliratok.mostGomb), &TForm1::PanelButton2_MostClick);
    gombEpites(1, "PanelButton3_Valt", qszoveg(allapot_.Feliratok.valtGomb), &TForm1::PanelButton3_ValtClick);
    gombEpites(2, "PanelButton4Leptet", "Léptet", &TForm1::Radixlepteto1Click);
    gombEpites(3, "PanelButton5Orbis", "Orbis", &TForm1::Orbisok1Click);
    gombEpites(4, "PanelButton6MHP", "MHP", &TForm1::Mundnhzaspontosts1Click);
    gombEpites(5, "PanelButton7Tercier", "Tercier", &TForm1::Tercier1Click);
    mostGomb_ = panel1_->findChild<QPushButton*>("PanelButton2_Most");
    valtGomb_ = panel1_->findChild<QPushButton*>("PanelButton3_Valt");
    for (int sor = 0; sor < 16; ++sor) panelSorEpites(sor);

    memo1_ = new QPlainTextEdit(panel1_);
    memo1_->setObjectName("Memo1");
    memo1_->setFocusPolicy(Qt::ClickFocus);
    memo1_->viewport()->setBackgroundRole(QPalette::Button);
    memo1_->installEventFilter(this);
    memo1_->viewport()->installEventFilter(this);
    memoHely();
    connect(memo1_, &QPlainTextEdit::textChanged, this, [this] {
        allapot_.Feliratok.memo = szoveg(memo1_->toPlainText());
        Memo1Change();
    });
}

void TForm1::statuszEpites() {
    auto* sav = statusBar();
    sav->setObjectName("StatusBar1");
    sav->setSizeGripEnabled(false);
    sav->setFont(panel1_->font());
    for (std::size_t i = 0; i < statusz_.size(); ++i) {
        auto* felirat = new QLabel(qszoveg(allapot_.Feliratok.statusz[i]), sav);
        felirat->setObjectName(QStringLiteral("StatusBar1Panel%1").arg(i));
        felirat->setMinimumWidth(1);
        felirat->setMaximumWidth(statuszSzelessegek[i]);
        felirat->setTextFormat(Qt::PlainText);
        felirat->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        // The empty last panel has what the others leave; in a narrow window they shrink in proportion.
        const bool utolso = i + 1 == statusz_.size();
        sav->addWidget(felirat, utolso ? 1 : 1000 * statuszSzelessegek[i]);
        statusz_[i] = felirat;
    }
}

void TForm1::FormCreate() {
    if (!Indulas(allapot_, *this, betuMappak()))
        QMessageBox::critical(this, "Korvend", "A rendszer dátuma vagy ideje nem olvasható.");
    // The wheel is drawn by the first paint request. Its panel's texts stand by then: a text that changes
    // while it is being painted asks for a second painting.
    OldalPanelIras(allapot_.Keplet.bolygo, allapot_.Keplet.hazCsucs, allapot_.Rajz.panel);
    oldalPanelMutatas();
}

void TForm1::kepletRajzolas(const QRegion& resz) {
    AblakGeometria(allapot_.Rajz, allapot_.Keplet.hazCsucs[1], felulet_->width(), felulet_->height());
    kiirtTalalatok_.reset();
    felulet_->ujrarajzol(resz, [this](Vaszon& vaszon) { KepletRajz(vaszon, allapot_); });
    oldalPanelMutatas();
}

void TForm1::RajzolKeplet() {
    kepletRajzolas(felulet_->rect());
    felulet_->megmutat();
}

void TForm1::Ujrafest() {
    FormPaint(felulet_->rect());
    felulet_->megmutat();
}

void TForm1::FormPaint(const QRegion& resz) {
    megjelent_ = true;
    if (allapot_.TeljesTorles)
        felulet_->torol(resz);
    else
        kepletRajzolas(resz);
}

void TForm1::FormResize() {
    panel1_->setGeometry(0, 0, panelSzelesseg, felulet_->height());
    allapot_.TeljesTorles = false;
    if (megjelent_) RajzolKeplet();  // otherwise the first paint request draws
}

void TForm1::oldalPanelMutatas() {
    const QString szimbolum = qszoveg(allapot_.Rajz.szimbolumFont);
    const auto& panel = allapot_.Rajz.panel;
    for (std::size_t sor = 0; sor < panel.size(); ++sor) {
        label_[3 * sor + 1]->setText(qszoveg(panel[sor].jel));
        label_[3 * sor + 2]->setText(qszoveg(panel[sor].szoveg));
    }
    if (betutipus_ == szimbolum) return;
    betutipus_ = szimbolum;
    const QFont jel = cellaMagassaguBetu(szimbolum, panelSor.jelMagassag, logicalDpiY());
    for (std::size_t sor = 0; sor < panel.size(); ++sor) {
        if (sor < 10) label_[3 * sor]->setFont(jel);
        label_[3 * sor + 1]->setFont(jel);
    }
}

void TForm1::Mutat() {
    const TFeliratok& f = allapot_.Feliratok;
    for (std::size_t i = 0; i < statusz_.size(); ++i) statusz_[i]->setText(qszoveg(f.statusz[i]));
    const TKeplet& k = allapot_.Keplet;
    statusz_[panelKoordinata]->setToolTip(
        qszoveg(HelyenKivul(k.idozona, k.nyariIdo, k.hosszusag, k.szelesseg)));
    mostGomb_->setText(qszoveg(f.mostGomb));
    valtGomb_->setText(qszoveg(f.valtGomb));
    setWindowTitle(qszoveg(f.cim));
    if (const QString memo = qszoveg(f.memo); memo1_->toPlainText() != memo) memo1_->setPlainText(memo);
    if (ablakok_ == nullptr) return;
    // A blank for an empty one: the toolkit would show the program's name in its place.
    ablakok_->form7.setWindowTitle(f.leptetoCim.empty() ? " " : qszoveg(f.leptetoCim));
    ablakok_->form5.setWindowTitle(qszoveg(f.hangCim));
}

std::string TForm1::RendszerDatum() {
    const QLocale nyelv = QLocale::system();
    return szoveg(QLocale::c().toString(QDate::currentDate(), rovidDatumFormatum(nyelv)));
}

std::string TForm1::RendszerIdo() {
    return szoveg(QTime::currentTime().toString("H:mm:ss"));
}

void TForm1::Timer1Timer() {
    Orajel(allapot_, *this);
}

void TForm1::memoHely() {
    const TMemoHely hely = allapot_.MemoKicsi ? kicsiMemo : nagyMemo;
    memo1_->setGeometry(0, hely.tetej, panelSzelesseg, hely.magassag);
}

void TForm1::FormMouseDown() {
    JelszoKeres();
}

void TForm1::Panel1Click() {
    if (!JelszoKeres()) return;
    allapot_.MemoKicsi = !allapot_.MemoKicsi;
    memoHely();
}

/// A change of the note flips its position too, also a change that comes from the program: a note that was
/// just filled in is wanted large.
void TForm1::Memo1Change() {
    Panel1Click();
}

bool TForm1::eventFilter(QObject* targy, QEvent* esemeny) {
    // A note with nothing selected has no use for the copy key, and keeps it from the picture.
    if (targy == memo1_ && esemeny->type() == QEvent::ShortcutOverride &&
        !memo1_->textCursor().hasSelection() && static_cast<QKeyEvent*>(esemeny)->matches(QKeySequence::Copy))
        return true;
    if (esemeny->type() == QEvent::MouseButtonPress) {
        // A press on the panel stops here. On the surface below it would ask for the password, and the click
        // would end in the prompt.
        if (targy == panel1_) return true;
        if (targy == felulet_) FormMouseDown();
    }
    if (esemeny->type() == QEvent::MouseButtonRelease) {
        if (targy == panel1_) Panel1Click();
        if (targy == memo1_->viewport()) Memo1Change();
    }
    return QMainWindow::eventFilter(targy, esemeny);
}
