#pragma once

#include "windows/jelolvasas.h"

/// A label for a text of symbol letters, which has no words: it is broken into lines between the hits.
class TJelSzoveg : public TJelCimke {
    Q_OBJECT

public:
    explicit TJelSzoveg(QWidget* szulo);

    int heightForWidth(int szelesseg) const override;

private:
    QStringList sorok(int szelesseg) const;
    void paintEvent(QPaintEvent* esemeny) override;
};
