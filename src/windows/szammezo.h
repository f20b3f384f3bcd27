#pragma once

#include <QSpinBox>

/// A number field that takes whatever digits are typed and puts them right where the typing ends: at Enter,
/// or when the focus goes, a number outside the range becomes the nearest one inside. The field then shows
/// that number selected, and the key or click that would have closed the dialog is spent on it, so that the
/// user sees what was made of the typing. An emptied field gives its last number back.
class SzamMezo : public QSpinBox {
    Q_OBJECT

public:
    explicit SzamMezo(QWidget* szulo);

    QValidator::State validate(QString& szoveg, int& hely) const override;
    void fixup(QString& szoveg) const override;

protected:
    void keyPressEvent(QKeyEvent* esemeny) override;
    void focusOutEvent(QFocusEvent* esemeny) override;
    bool eventFilter(QObject* targy, QEvent* esemeny) override;

private:
    bool javitando() const;
};
