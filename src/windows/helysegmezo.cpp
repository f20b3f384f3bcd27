#include "windows/helysegmezo.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QStyledItemDelegate>

#include "tables/helysegkereses.h"
#include "windows/mezojeloles.h"
#include "windows/qszoveg.h"
#include "windows/vezerlok.h"

namespace {

/// Offers its whole model: the names in it were chosen for the typed text, by rules that the toolkit's own
/// filter does not know.
class TTeljesKiegeszito : public QCompleter {
public:
    using QCompleter::QCompleter;
    QStringList splitPath(const QString&) const override { return {QString()}; }
};

/// Rows high enough for the accents of capitals, which reach above the font's own height.
class TMagasSorok : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& mod, const QModelIndex& hely) const override {
        const QSize meret = QStyledItemDelegate::sizeHint(mod, hely);
        return {meret.width(), meret.height() + mod.fontMetrics.height() / 3};
    }
};

void sorok(QAbstractItemView& lista) {
    lista.setItemDelegate(new TMagasSorok(&lista));
    if (auto* egyforma = qobject_cast<QListView*>(&lista)) egyforma->setUniformItemSizes(true);
}

int sora(const QString& nev) {
    return HelysegSor(szoveg(nev));
}

}  // namespace

HelysegMezo::HelysegMezo(QWidget* szulo, const char* nev)
    : QComboBox(szulo), modell_(new HelysegModell(this)), talalatok_(new QStringListModel(this)) {
    setObjectName(nev);
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(24);
    setModel(modell_);
    sorok(*view());
    lineEdit()->setMaxLength(rovidSzovegHossz);
    setToolTip(hosszSugo(rovidSzovegHossz));
    gorgoCsakFokusszal(*this);
    kiegeszitoEpitese();
    connect(lineEdit(), &QLineEdit::textChanged, this, &HelysegMezo::szovegValtozott);
}

void HelysegMezo::kiegeszitoEpitese() {
    auto* kiegeszito = new TTeljesKiegeszito(talalatok_, this);
    sorok(*kiegeszito->popup());
    setCompleter(kiegeszito);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& beirt) {
        QStringList nevek;
        for (const std::string_view nev : HelysegTalalatok(szoveg(beirt))) nevek << qszoveg(nev);
        talalatok_->setStringList(nevek);
    });
}

void HelysegMezo::listaNovelese() {
    modell_->noveles();
}

void HelysegMezo::helysegBeallitasa(const QString& nev) {
    const int sor = sora(nev);
    setCurrentIndex(sor < count() ? sor : -1);
    setEditText(nev);
}

void HelysegMezo::szovegValtozott(const QString& szoveg) {
    const int sor = sora(szoveg);
    if (sor >= 0 && sor < count() && itemText(currentIndex()) != szoveg) {
        const QSignalBlocker blokk(this);
        setCurrentIndex(sor);
    }
    mezoJeloles(*this,
                sor >= 0 ? QString() : "Ez a helység nincs a táblában: a program Budapest adataival számol.");
}

/// Takes the only name that the typed text can mean. @return false where there is nothing to take
bool HelysegMezo::kiegeszites() {
    if (sora(currentText()) >= 0) return false;
    const std::string_view nev = EgyetlenHelyseg(szoveg(currentText()));
    if (nev.empty()) return false;
    completer()->popup()->hide();
    helysegBeallitasa(qszoveg(nev));
    return true;
}

/// From a text that is no name the arrow keys go to the first name that it may mean.
/// @return false where the text is a name, or may mean none
bool HelysegMezo::elsoTalalatra() {
    if (sora(currentText()) >= 0) return false;
    const auto nevek = HelysegTalalatok(szoveg(currentText()));
    if (nevek.empty()) return false;
    helysegBeallitasa(qszoveg(nevek.front()));
    return true;
}

void HelysegMezo::keyPressEvent(QKeyEvent* esemeny) {
    bool kesz = false;
    switch (esemeny->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            kesz = kiegeszites();
            break;
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            kesz = !(esemeny->modifiers() & Qt::AltModifier) && elsoTalalatra();
            break;
        default:
            break;
    }
    if (kesz)
        esemeny->accept();
    else
        QComboBox::keyPressEvent(esemeny);
}

void HelysegMezo::showPopup() {
    QComboBox::showPopup();
    const auto nevek = HelysegTalalatok(szoveg(currentText()));
    if (sora(currentText()) < 0 && !nevek.empty())
        view()->setCurrentIndex(model()->index(HelysegSor(nevek.front()), 0));
    view()->scrollTo(view()->currentIndex(), QAbstractItemView::PositionAtCenter);
}

HelysegMezo* ujHelysegMezo(QWidget* szulo, const char* nev, int ismetlesek) {
    auto* mezo = new HelysegMezo(szulo, nev);
    for (int i = 0; i < ismetlesek; ++i) mezo->listaNovelese();
    return mezo;
}
