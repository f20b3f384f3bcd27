#include "windows/jegyzetmezo.h"

#include <algorithm>

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextCursor>
#include <QTextDocument>

#include "windows/vezerlok.h"

JegyzetMezo::JegyzetMezo(QWidget* szulo, int hossz) : QPlainTextEdit(szulo), hossz_(hossz) {
    setToolTip(hosszSugo(hossz));
}

/// The beginning of a text that has room in place of the selection and of `csereltek` characters more.
QString JegyzetMezo::belefer(QString irt, int csereltek) const {
    irt.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));  // one character of the field
    const QTextCursor kurzor = textCursor();
    const int marad =
        document()->characterCount() - 1 - csereltek - (kurzor.selectionEnd() - kurzor.selectionStart());
    irt.truncate(std::max(0, hossz_ - marad));
    // A character of two units goes whole.
    if (!irt.isEmpty() && irt.back().isHighSurrogate()) irt.chop(1);
    return irt;
}

void JegyzetMezo::keyPressEvent(QKeyEvent* esemeny) {
    // Ctrl with a letter is a command whatever its text; Ctrl and Alt together write letters.
    const bool parancs = (esemeny->modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier;
    const bool ujSor = esemeny->key() == Qt::Key_Return || esemeny->key() == Qt::Key_Enter;
    const QString irt = ujSor ? QStringLiteral("\n") : esemeny->text();
    const bool betu = !parancs && !irt.isEmpty() && (ujSor || irt.front().category() != QChar::Other_Control);
    if (betu && belefer(irt) != irt)
        esemeny->accept();
    else
        QPlainTextEdit::keyPressEvent(esemeny);
}

void JegyzetMezo::inputMethodEvent(QInputMethodEvent* esemeny) {
    QInputMethodEvent befero(esemeny->preeditString(), esemeny->attributes());
    befero.setCommitString(belefer(esemeny->commitString(), esemeny->replacementLength()),
                           esemeny->replacementStart(), esemeny->replacementLength());
    QPlainTextEdit::inputMethodEvent(&befero);
    esemeny->setAccepted(befero.isAccepted());
}

void JegyzetMezo::insertFromMimeData(const QMimeData* adat) {
    QMimeData befero;
    befero.setText(belefer(adat->text()));
    QPlainTextEdit::insertFromMimeData(&befero);
}
