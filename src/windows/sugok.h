#pragma once

#include <string_view>

#include <QObject>
#include <QString>
#include <QWidget>

/// What a control with a short caption, a symbol or none at all means: its tooltip, and its name for who
/// hears the windows instead of seeing them.

/// The meaning of a control, by its name and its window's; empty if the table has none.
QString Sugo(const QWidget& vezerlo);

/// Gives each control its tooltip and its accessible name before it is first shown, whenever its window makes
/// it; one that a window has set itself stands. While it lives, labels in the face of symbols are read aloud
/// by the names of their symbols.
class TSugok : public QObject {
    Q_OBJECT

public:
    TSugok();
    ~TSugok() override;
    TSugok(const TSugok&) = delete;
    TSugok& operator=(const TSugok&) = delete;

private:
    bool eventFilter(QObject* targy, QEvent* esemeny) override;
};
