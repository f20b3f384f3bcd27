#include "majom.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QThread>
#include <QWheelEvent>

#include "allapotproba.h"
#include "commands/orajel.h"
#include "windows/jelszotar.h"
#include "windows/tform1_foablak.h"

namespace {

constexpr std::int64_t induloIdo = 1'709'626'500;  // 2024-03-05 08:15:00
constexpr const char* helyesJelszo = "ab";

std::uint64_t futoMag_ = 0;
int futoEsemeny_ = 0;

/// The store as the run shall find it, in a folder of its own; it is read when the windows are made.
void jelszoElokeszites(bool vanJelszo, const QString& mappa) {
    qputenv("XDG_CONFIG_HOME", mappa.toUtf8());
    TJelszoTar(TJelszoTar::alapFajl()).ment(vanJelszo ? helyesJelszo : "");
}

constexpr Qt::Key billentyuk[]{
    Qt::Key_Tab,    Qt::Key_Tab,    Qt::Key_Backtab,  Qt::Key_Return, Qt::Key_Enter,    Qt::Key_Escape,
    Qt::Key_Space,  Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Home,
    Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Backspace,
    Qt::Key_Delete, Qt::Key_Insert, Qt::Key_Menu,     Qt::Key_F1,     Qt::Key_F2,       Qt::Key_F3,
    Qt::Key_F4,     Qt::Key_F5,     Qt::Key_F10,      Qt::Key_A,      Qt::Key_B,        Qt::Key_C,
    Qt::Key_H,      Qt::Key_N,      Qt::Key_O,        Qt::Key_P,      Qt::Key_R,        Qt::Key_S,
    Qt::Key_V,      Qt::Key_X,      Qt::Key_Z,        Qt::Key_0,      Qt::Key_1,        Qt::Key_9,
    Qt::Key_Plus,   Qt::Key_Minus,  Qt::Key_Comma};

Qt::KeyboardModifiers modositok(TVeletlen& v) {
    constexpr int ritkan = 6;
    Qt::KeyboardModifiers m;
    for (const Qt::KeyboardModifier egy : {Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier})
        if (v.egyszer(ritkan)) m |= egy;
    return m;
}

QString nev(const QWidget& elem) {
    return elem.objectName().isEmpty() ? elem.metaObject()->className() : elem.objectName();
}

QPoint valahol(TVeletlen& v, const QWidget& elem) {
    return {v.koz(0, qMax(0, elem.width() - 1)), v.koz(0, qMax(0, elem.height() - 1))};
}

// All windows with all that they hold are 1021 objects. A few lists and menus are made at their first use and
// kept; the two windows whose rows are made at each opening, menus and messages go when they are closed.
constexpr int zarvaLegfeljebb = 1021 + 40;
constexpr int nyitvaLegfeljebb = zarvaLegfeljebb + 400;

int objektumok(const QObject& gyoker) {
    return static_cast<int>(gyoker.findChildren<QObject*>().size());
}

}  // namespace

std::uint64_t TMajom::futoMag() {
    return futoMag_;
}
int TMajom::futoEsemeny() {
    return futoEsemeny_;
}

TMajom::TMajom(std::uint64_t mag)
    : mag_(mag),
      veletlen_(mag),
      hihetetlen_(veletlen_.egyszer(2)),
      ora_(induloIdo),
      fajlok_(veletlen_, hihetetlen_),
      parbeszed_(veletlen_, fajlok_),
      hang_(veletlen_) {
    constexpr int jelszavas = 3;  // so many-th run has a password
    jelszoElokeszites(mag % jelszavas == 2, fajlok_.mappa() + "/beallitas");
    futoMag_ = mag;
    futoEsemeny_ = 0;
    QDir::setCurrent(fajlok_.mappa());
    QApplication::clipboard()->clear();
    a_ = std::make_unique<TFrissAblakok>();
    a_->form1.parbeszedBeallitasa(parbeszed_);
    a_->form5.parbeszedBeallitasa(parbeszed_);
    a_->form10.parbeszedBeallitasa(parbeszed_);
    a_->form5.modul = [this] { return &hang_; };
    a_->form11.programVege = [this] { vege_ = true; };
    a_->oraIndul();
    idozito_.setSingleShot(true);
    connect(&idozito_, &QTimer::timeout, this, &TMajom::utes);
}

TMajomEredmeny TMajom::fut(int legfeljebb) {
    legfeljebb_ = legfeljebb;
    QApplication::processEvents();
    idozito_.start(0);
    fohurok_.exec();
    idozito_.stop();
    QApplication::clipboard()->clear();  // a picture in it is as large as all the rest
    if (e_.hibak.isEmpty()) vegVizsgalat();
    QDir::setCurrent(QDir::rootPath());
    return e_;
}

/// The events go on in whatever message loop the one under way has opened; a mere look at the messages within
/// an event is none.
void TMajom::utes() {
    idozito_.start(0);
    if (QGuiApplication::overrideCursor() != nullptr) return keresesben();
    const int szint = QThread::currentThread()->loopLevel();
    if (cselekszik_ && szint <= cselekvesSzintje_) return;
    const QScopedValueRollback cselekszik(cselekszik_, true);
    const QScopedValueRollback szintje(cselekvesSzintje_, szint);
    allapotVizsgalat();
    vege_ = vege_ || e_.esemenyek >= legfeljebb_ || !a_->form1.isVisible() || !e_.hibak.isEmpty();
    if (vege_) return lezaras();
    const int sorszam = ++e_.esemenyek;
    futoEsemeny_ = sorszam;
    feljegyzes(sorszam, esemeny());
}

/// A search is under way: no key or click may do anything but Escape, which ends it.
void TMajom::keresesben() {
    if (QWidget* ablak = kezben(); ablak != nullptr && veletlen_.egyszer(3)) {
        QKeyEvent leutes(QEvent::KeyPress, veletlen_.egyik(billentyuk), {});
        QApplication::sendEvent(ablak, &leutes);
        if (veletlen_.egyszer(2)) ablak->close();
    }
    if (vege_ || veletlen_.egyszer(4)) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, {});
        QApplication::sendEvent(&a_->form8, &escape);
    }
}

/// Closes what is open, one thing at a time, as the frame or the Escape key does.
void TMajom::lezaras() {
    constexpr int soha = 400;
    parbeszed_.gyorsan();
    QWidget* ablak = QApplication::activePopupWidget();
    if (ablak == nullptr) ablak = QApplication::activeModalWidget();
    if (ablak == nullptr) {
        if (QThread::currentThread()->loopLevel() == 1) fohurok_.quit();
        return;
    }
    if (++lezarasok_ > soha) {
        e_.hibak << "can't be closed: " + nev(*ablak);
        ablak->hide();
    } else if (lezarasok_ % 2 == 1) {
        leut(Qt::Key_Escape);
    } else {
        ablak->close();
    }
}

void TMajom::feljegyzes(int sorszam, const QString& mi) {
    static const bool naplo = qEnvironmentVariableIsSet("KORVEND_MAJOM_NAPLO");
    const TFeliratok& f = a_->allapot().Feliratok;
    for (const char bajt : mi.toStdString() + f.cim + f.statusz[0] + f.statusz[1] + f.statusz[3])
        e_.lenyomat = (e_.lenyomat ^ static_cast<unsigned char>(bajt)) * 0x100000001B3U;
    if (!naplo) return;
    fprintf(stderr, "%llu/%d %016llx %s [%s | %s | %s | %s]\n", static_cast<unsigned long long>(mag_),
            sorszam, static_cast<unsigned long long>(e_.lenyomat), qPrintable(mi), f.statusz[0].c_str(),
            f.statusz[3].c_str(), f.statusz[1].c_str(), f.cim.c_str());
}

QString TMajom::esemeny() {
    struct TSulyozott {
        int suly;
        QString (TMajom::*mi)();
    };
    static constexpr TSulyozott lehetosegek[]{
        {14, &TMajom::orajel},       {14, &TMajom::kattintas}, {20, &TMajom::gombnyomas},
        {12, &TMajom::mezoKitoltes}, {16, &TMajom::billentyu}, {4, &TMajom::szovegbeiras},
        {2, &TMajom::beillesztes},   {9, &TMajom::menupont},   {4, &TMajom::gorgetes},
        {4, &TMajom::ejtes},         {2, &TMajom::meret},      {2, &TMajom::ablakzaras},
        {1, &TMajom::oraUgras},      {8, &TMajom::valasz},     {3, &TMajom::tores},
        {3, &TMajom::jelszo}};
    int osszeg = 0;
    for (const TSulyozott& l : lehetosegek) osszeg += l.suly;
    for (;;) {
        const TSulyozott* l = lehetosegek;
        for (int hely = veletlen_.koz(1, osszeg) - l->suly; hely > 0; hely -= l->suly) ++l;
        if (const QString mi = (this->*l->mi)(); !mi.isEmpty()) return mi;
    }
}

QList<QWidget*> TMajom::ablakok() {
    TFrissAblakok& a = *a_;
    return {&a.form1, &a.form2, &a.form3,  &a.form4,  &a.form5,  &a.form6,  &a.form7,
            &a.form8, &a.form9, &a.form10, &a.form11, &a.form12, &a.form13, &a.form14};
}

QWidget* TMajom::kezben() {
    if (QWidget* lista = QApplication::activePopupWidget()) return lista;
    if (QWidget* dialogus = QApplication::activeModalWidget()) return dialogus;
    QList<QWidget*> nyitott;
    for (QWidget* ablak : ablakok())
        if (ablak->isVisible()) nyitott << ablak;
    return nyitott.isEmpty() ? nullptr : veletlen_.egyik(nyitott);
}

QWindow* TMajom::fokusz() {
    if (QWindow* ablak = QGuiApplication::focusWindow()) return ablak;
    const QWidget* ablak = kezben();
    return ablak == nullptr ? nullptr : ablak->windowHandle();
}

template <typename T>
T* TMajom::valamelyik(QWidget& ablak) {
    QList<T*> lathato;
    for (T* elem : ablak.findChildren<T*>())
        if (elem->isVisible() && elem->window() == &ablak) lathato << elem;
    return lathato.isEmpty() ? nullptr : veletlen_.egyik(lathato);
}

QString TMajom::orajel() {
    const int szam = veletlen_.koz(1, 6);
    ora_.telik(orajelEzredmasodperc * szam);
    for (int i = 0; i < szam; ++i) a_->form1.Timer1Timer();
    return QStringLiteral("%1 ticks").arg(szam);
}

QString TMajom::kattintas() {
    QWidget* ablak = kezben();
    if (ablak == nullptr || ablak->windowHandle() == nullptr) return {};
    auto* elem = veletlen_.egyszer(4) ? ablak : valamelyik<QWidget>(*ablak);
    if (elem == nullptr) elem = ablak;
    const QPoint hely = elem->mapTo(ablak, valahol(veletlen_, *elem));
    const QPoint masik = veletlen_.egyszer(2) ? hely + QPoint(veletlen_.koz(-40, 40), veletlen_.koz(-40, 40))
                                              : valahol(veletlen_, *ablak);
    const Qt::MouseButton gomb = veletlen_.egyszer(6)    ? Qt::RightButton
                                 : veletlen_.egyszer(20) ? Qt::MiddleButton
                                                         : Qt::LeftButton;
    const Qt::KeyboardModifiers m = veletlen_.egyszer(6) ? modositok(veletlen_) : Qt::NoModifier;
    const QString mi = QStringLiteral("mouse %1 at %2 of %3").arg(gomb).arg(nev(*elem), nev(*ablak));
    const QPointer<QWindow> ide(ablak->windowHandle());
    const int fajta = veletlen_.koz(0, 9);
    if (fajta < 6) {
        QTest::mouseClick(ide, gomb, m, hely);
    } else if (fajta < 7) {
        QTest::mouseDClick(ide, gomb, m, hely);
    } else {
        QTest::mousePress(ide, gomb, m, hely);
        if (ide != nullptr && fajta < 9) QTest::mouseMove(ide, masik);
        ora_.telik(fajta * 100);  // held down
        QApplication::processEvents();
        if (ide != nullptr) QTest::mouseRelease(ide, gomb, m, fajta < 9 ? masik : hely);
    }
    return mi;
}

/// Mostly one of those that were pressed least, so that all have their turn.
QString TMajom::gombnyomas() {
    QWidget* ablak = kezben();
    if (ablak == nullptr || ablak->windowHandle() == nullptr) return {};
    const auto neve = [ablak](const QWidget& gomb) { return nev(gomb) + " of " + nev(*ablak); };
    auto* gomb = valamelyik<QAbstractButton>(*ablak);
    if (gomb == nullptr) return {};
    for (int i = 0; i < 4; ++i) {
        auto* masik = valamelyik<QAbstractButton>(*ablak);
        if (nyomasok_.value(neve(*masik)) < nyomasok_.value(neve(*gomb))) gomb = masik;
    }
    const QString mi = neve(*gomb);
    ++nyomasok_[mi];
    const QPoint hely = gomb->mapTo(ablak, gomb->rect().center());
    const QPointer<QWindow> ide(ablak->windowHandle());
    for (int i = veletlen_.egyszer(4) ? veletlen_.koz(2, 30) : 1; i > 0 && ide != nullptr && !vege_; --i)
        if (ide->isVisible()) QTest::mouseClick(ide, Qt::LeftButton, {}, hely);
    return "button " + mi;
}

QString TMajom::mezoKitoltes() {
    QWidget* ablak = kezben();
    if (ablak == nullptr || ablak->windowHandle() == nullptr) return {};
    auto* mezo = valamelyik<QLineEdit>(*ablak);
    if (mezo == nullptr) return {};
    QString mi = QStringLiteral("field %1 of %2").arg(nev(*mezo->parentWidget()), nev(*ablak));
    QTest::mouseClick(ablak->windowHandle(), Qt::LeftButton, {}, mezo->mapTo(ablak, mezo->rect().center()));
    leut(Qt::Key_A, Qt::ControlModifier);
    const QString szoveg =
        veletlen_.egyszer(2) ? QString::number(veletlen_.koz(-200, 2200)) : majomSzoveg(veletlen_);
    beut(szoveg.left(20));
    return mi;
}

/// The press may be the end of the window.
void TMajom::leut(Qt::Key billentyu, Qt::KeyboardModifiers m, const QString& szoveg) {
    const QPointer<QWindow> ablak(fokusz());
    if (ablak != nullptr) QTest::simulateEvent(ablak, true, billentyu, m, szoveg, false);
    if (ablak != nullptr) QTest::simulateEvent(ablak, false, billentyu, m, szoveg, false);
}

QString TMajom::billentyu() {
    if (fokusz() == nullptr) return {};
    const Qt::Key b = veletlen_.egyik(billentyuk);
    const Qt::KeyboardModifiers m = modositok(veletlen_);
    const QString mi = QStringLiteral("key ") + QKeySequence(b | m).toString();
    leut(b, m, b < Qt::Key_Escape ? QString(QChar(b)) : QString());
    return mi;
}

void TMajom::beut(const QString& szoveg) {
    for (const QChar c : szoveg) {
        if (vege_) return;
        leut(Qt::Key_unknown, Qt::NoModifier, QString(c));
    }
}

QString TMajom::szovegbeiras() {
    const QString szoveg = majomSzoveg(veletlen_).left(40);
    beut(szoveg);
    return "text " + szoveg;
}

QString TMajom::beillesztes() {
    QApplication::clipboard()->setText(majomSzoveg(veletlen_));
    leut(Qt::Key_V, Qt::ControlModifier);
    return "paste";
}

/// Each item once, in random order, before any of them comes again.
QString TMajom::menupont() {
    if (QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr)
        return {};
    if (menu_.isEmpty()) {
        for (QAction* pont : a_->form1.findChildren<QAction*>())
            if (!pont->objectName().isEmpty() && pont->menu() == nullptr && pont->objectName() != "Kilepes1")
                menu_.insert(veletlen_.koz(0, static_cast<int>(menu_.size())), pont);
    }
    QAction* pont = menu_.takeLast();
    e_.pontok.insert(pont->objectName());
    pont->trigger();
    return "menu item " + pont->objectName();
}

QString TMajom::gorgetes() {
    QWidget* ablak = kezben();
    auto* elem = ablak == nullptr ? nullptr : valamelyik<QWidget>(*ablak);
    if (elem == nullptr) return {};
    const QPointF hely = valahol(veletlen_, *elem);
    QWheelEvent gorgo(hely, elem->mapToGlobal(hely), {}, {0, 120 * veletlen_.koz(-5, 5)}, Qt::NoButton,
                      veletlen_.egyszer(6) ? modositok(veletlen_) : Qt::NoModifier, Qt::NoScrollPhase, false);
    const QString mi = "wheel over " + nev(*elem);
    QApplication::sendEvent(elem, &gorgo);
    return mi;
}

QString TMajom::ejtes() {
    QWidget* hova = veletlen_.egyszer(3) ? a_->form1.findChild<QWidget*>("Memo1") : &a_->form1;
    QMimeData mit;
    const QString fajl = fajlok_.nyitando();
    QList<QUrl> cimek{QUrl::fromLocalFile(fajl)};
    if (veletlen_.egyszer(10)) cimek << QUrl("http://localhost/x.kvh");
    mit.setUrls(cimek);
    const QPoint hely = valahol(veletlen_, *hova);
    QDragEnterEvent be(hely, Qt::CopyAction | Qt::MoveAction, &mit, Qt::LeftButton, {});
    QApplication::sendEvent(hova, &be);
    if (be.isAccepted()) {
        QDropEvent le(hely, Qt::CopyAction | Qt::MoveAction, &mit, Qt::LeftButton, {});
        QApplication::sendEvent(hova, &le);
        QApplication::processEvents();
    }
    return "drop of " + QFileInfo(fajl).fileName();
}

QString TMajom::meret() {
    QWidget* ablak = kezben();
    if (ablak == nullptr || !ablak->isWindow()) return {};
    const QString mi = "size of " + nev(*ablak);
    switch (veletlen_.koz(0, 4)) {
        case 0:
            ablak->showMinimized();
            QApplication::processEvents();
            ablak->showNormal();
            break;
        case 1:
            ablak->move(veletlen_.koz(-500, 2000), veletlen_.koz(-500, 2000));
            break;
        default:
            ablak->resize(veletlen_.koz(1, 1400), veletlen_.koz(1, 1000));
    }
    return mi;
}

QString TMajom::ablakzaras() {
    QWidget* ablak = kezben();
    if (ablak == nullptr) return {};
    const QString mi = "close " + nev(*ablak);
    ablak->close();
    return mi;
}

/// To any day of a hundred and thirty years, before and after the tables too.
QString TMajom::oraUgras() {
    constexpr std::int64_t nap = 86400;
    const int napok = veletlen_.egyszer(3) ? veletlen_.koz(0, 130 * 365) : veletlen_.koz(19000, 21000);
    ora_.allit(napok * nap + veletlen_.koz(0, nap - 1));
    return QStringLiteral("clock to day %1").arg(napok);
}

QString TMajom::valasz() {
    const QWidget* ablak = QApplication::activeModalWidget();
    if (ablak == nullptr || ablak->windowHandle() == nullptr) return {};
    const QString mi = "answer " + nev(*ablak);
    leut(veletlen_.egyszer(3) ? Qt::Key_Escape : Qt::Key_Return);
    return mi;
}

QString TMajom::tores() {
    return fajlok_.valtozas();
}

QString TMajom::jelszo() {
    if (!a_->form11.isVisible() || QApplication::activeModalWidget() != &a_->form11) return {};
    leut(Qt::Key_A, Qt::ControlModifier);
    for (const char betu : std::string(helyesJelszo))
        if (a_->form11.isVisible()) leut(Qt::Key_unknown, Qt::NoModifier, QString(QChar(betu)));
    return "password";
}

void TMajom::allapotVizsgalat() {
    constexpr int legtobbAblak = 14 + 20;  // menus, lists and messages of a moment stand beside the fourteen
    for (const QWidget* ablak : ablakok())
        if (ablak->isVisible()) e_.ablakok.insert(ablak->objectName());
    const Allapot& a = a_->allapot();
    // A derived chart's panel tells its kind; in another view it tells that.
    const QString fajta = QString::fromStdString(a.Feliratok.statusz[0]);
    if (a.VisszaMod && fajta != "Radix" && fajta != "Mundán" && fajta != "Dekád") e_.fajtak.insert(fajta);
    // A body that stands to the second on its target gives a return of very many hours.
    if (a.VisszaMod && a.Keplet.pillanat.ora > 23) hihetetlen_ = true;
    for (const QString& hiba : allapotHibai(a, !hihetetlen_)) e_.hibak << "out of range: " + hiba;
    int felsok = 0;
    for (const QWidget* w : QApplication::topLevelWidgets()) felsok += w->isVisible() ? 1 : 0;
    e_.felsoAblakok = qMax(e_.felsoAblakok, felsok);
    if (felsok > legtobbAblak) e_.hibak << QStringLiteral("%1 windows are open").arg(felsok);
    if (e_.esemenyek % 16 != 0) return;
    const int objektumSzam = objektumok(a_->form1);
    e_.objektumok = qMax(e_.objektumok, objektumSzam);
    if (objektumSzam > nyitvaLegfeljebb) e_.hibak << QStringLiteral("%1 objects").arg(objektumSzam);
}

/// After all that the program works as ever.
void TMajom::vegVizsgalat() {
    TFrissAblakok& a = *a_;
    const auto kell = [this](bool igaz, const char* mi) {
        if (!igaz) e_.hibak << mi;
    };
    for (QWidget* ablak : ablakok()) {
        if (ablak == &a.form1) continue;
        ablak->close();
        kell(!ablak->isVisible(), "a window does not close");
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const int objektumSzam = objektumok(a.form1);
    if (objektumSzam > zarvaLegfeljebb)
        e_.hibak << QStringLiteral("%1 objects with all windows closed").arg(objektumSzam);
    a.form1.showNormal();
    a.allapot().JelszoRendben = true;
    szuletes(a);
    menu(a.form1, "Mundan1");
    kell(panel(a.form1, 0) == "Mundán", "the view does not change");
    menu(a.form1, "Horizont1");
    kell(panel(a.form1, 0) == "Radix", "the view does not change back");
    a.allapot().FeliratSzamlalo = 0;
    a.allapot().AktFelirat = "cím";
    a.orajelek(1);
    kell(a.form1.windowTitle() == "ímc", "the title does not scroll");
    menu(a.form1, "Radixlepteto1");
    kattint(a.form7, "Button1evp");
    a.orajelek(1);
    kell(a.allapot().Keplet.pillanat.ev == 1976, "the stepper does not step");
    for (const QString& hiba : allapotHibai(a.allapot(), !hihetetlen_))
        e_.hibak << "out of range at the end: " + hiba;
    a.form1.close();
    kell(!a.form1.isVisible(), "the main window does not close");
}
