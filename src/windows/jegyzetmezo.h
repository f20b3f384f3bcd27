#pragma once

#include <QPlainTextEdit>

/// A field for a text of several lines with a limited number of characters. Of what is typed, pasted, dropped
/// or composed only as much goes in as fits, from its beginning; the text around the cursor stays, and each
/// step can be undone.
class JegyzetMezo : public QPlainTextEdit {
    Q_OBJECT

public:
    /// A field of at most `hossz` characters (UTF-16 units, a line's end counts one); its tooltip says so.
    /// A text that the program sets is taken as it is.
    JegyzetMezo(QWidget* szulo, int hossz);

protected:
    void keyPressEvent(QKeyEvent* esemeny) override;
    void inputMethodEvent(QInputMethodEvent* esemeny) override;
    void insertFromMimeData(const QMimeData* adat) override;

private:
    QString belefer(QString irt, int csereltek = 0) const;

    int hossz_;
};
