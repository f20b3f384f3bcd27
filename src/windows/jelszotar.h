#pragma once

#include <QByteArray>
#include <QString>

/// The user's password between runs: one file, readable by the user alone, with a salt and a PBKDF2-SHA256
/// key, never the password.
class TJelszoTar {
public:
    /// @param fajl  path of the store; its folder is made when needed
    explicit TJelszoTar(QString fajl);

    /// The store in the user's configuration folder.
    static QString alapFajl();

    enum class Allas {
        nincsTar,     ///< the program runs for the first time
        nincsJelszo,  ///< the user wants none
        vanJelszo,
        olvashatatlan  ///< the program stays locked
    };
    Allas allas() const { return allas_; }

    /// Stores a password, or "none" for an empty one. @return false if the store can't be written
    bool ment(const QString& jelszo);
    /// False also without a password.
    bool egyezik(const QString& jelszo) const;

private:
    void olvas();

    QString fajl_;
    Allas allas_ = Allas::nincsTar;
    QByteArray so_;
    QByteArray kulcs_;
};
