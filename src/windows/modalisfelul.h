#pragma once

#include <QObject>

/// Keeps the program's modal dialogs in sight: each is shown above the program's own stay-on-top windows,
/// which would else cover the question that they all wait for, and wholly on its screen where it has room
/// there.
class TModalisFelul : public QObject {
    Q_OBJECT

public:
    /// Watches all windows of the program from here on.
    explicit TModalisFelul(QObject* szulo);

private:
    bool eventFilter(QObject* targy, QEvent* esemeny) override;
};
