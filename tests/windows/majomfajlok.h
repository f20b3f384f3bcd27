#pragma once

#include <string>

#include <QString>
#include <QStringList>

#include "ideiglenesmappa.h"
#include "veletlen.h"

/// A folder with what may lie in a user's: charts good and damaged, sounds, title files, things that are no
/// files at all. It has so many names and no more, so that it does not grow.
class TMajomFajlok {
public:
    /// @param hihetetlen  charts may hold figures that no dialog would take
    TMajomFajlok(TVeletlen& veletlen, bool hihetetlen);

    /// To be opened: mostly there.
    QString nyitando();
    /// To be written: new, there already, or not to be written at all.
    QString irando(const QString& kiterjesztes);
    /// Makes, damages or removes one. @return which
    QString valtozas();

    QString mappa() const { return QString::fromStdString(mappa_.ut().string()); }

private:
    std::string keplet();
    std::string rekord(int esemenySzam, bool esemeny);
    void rongal(std::string& tartalom);
    void cimfajl();

    TVeletlen& veletlen_;
    bool hihetetlen_;
    TIdeiglenesMappa mappa_;
    QStringList kepletek_;
};

/// Something that a user may type, paste or have in a file: names, numbers, and much that is neither.
QString majomSzoveg(TVeletlen& veletlen);
