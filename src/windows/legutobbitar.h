#pragma once

#include <QString>
#include <QStringList>

#include "files/legutobbi.h"

/// Last folder and latest charts between runs: one file that the user alone can read, since people's names
/// stand in it. What can't be read or written is forgotten without a word.
class TLegutobbiTar {
public:
    /// @param fajl  path of the store; its folder is made when needed
    explicit TLegutobbiTar(QString fajl);

    /// The store in the user's configuration folder.
    static QString alapFajl();

    /// Where a dialog starts: the last folder, or the current one if there is none or it has gone.
    QString mappa() const;
    /// Latest charts that are still there, the last one first.
    QStringList fajlok() const;

    void mappaba(const QString& mappa);
    /// A chart was opened or saved; its folder is the last one then.
    void felvesz(const QString& fajl);

private:
    /// What another running program has added is kept.
    void olvas();
    void ment() const;

    QString fajl_;
    TLegutobbiak legutobbiak_;
};
