#pragma once

#include <QList>
#include <QObject>
#include <QWidget>

/// Keeps the program's modal dialogs in sight: each is shown above the program's own stay-on-top windows,
/// which would else cover the question that they all wait for, and wholly on its screen where it has room
/// there. While a modal dialog is open the other windows do not stay on top, so that a click on one of them
/// can't bring it over the dialog either.
class TModalisFelul : public QObject {
    Q_OBJECT

public:
    /// Watches all windows of the program from here on.
    explicit TModalisFelul(QObject* szulo);

private:
    bool eventFilter(QObject* targy, QEvent* esemeny) override;
    void megnyilt(QWidget& dialogus);
    void rendez();

    QList<QWidget*> nyitva_;  ///< the modal dialogs, the one that has the word last
};
