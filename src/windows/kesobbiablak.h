#pragma once

#include <QDialog>

/// A window that exists from the start and whose contents are made when they are first needed: at its first
/// showing, or before that by whoever fills or reads its controls.
class TKesobbiAblak : public QDialog {
public:
    using QDialog::QDialog;

    /// Makes the contents if they are not there yet.
    void elkeszites() {
        if (kesz_) return;
        kesz_ = true;
        epites();
    }
    void setVisible(bool lathato) override {
        if (lathato) elkeszites();
        QDialog::setVisible(lathato);
    }

private:
    /// Makes the contents; called once.
    virtual void epites() = 0;

    bool kesz_ = false;
};
