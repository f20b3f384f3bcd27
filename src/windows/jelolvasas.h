#pragma once

#include <QAccessible>
#include <QLabel>

/// Names for what is shown in the face of symbols, where a letter is no letter.

/// A label whose text may be of symbols. It is read aloud by their names, "Nap", "Rák".
class TJelCimke : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;
};

/// Maker of the accessible interfaces of such labels; for anything else nullptr, which leaves it to the
/// toolkit.
QAccessibleInterface* JelOlvasasKeszites(const QString& osztaly, QObject* targy);
