#pragma once

#include <cstdint>
#include <set>

#include <QHash>
#include <QStringList>
#include <QTimer>

#include "ablakteszt.h"
#include "majomfajlok.h"
#include "majomparbeszed.h"
#include "probaora.h"
#include "veletlen.h"

/// What a run of the program under the monkey came to.
struct TMajomEredmeny {
    QStringList hibak;  ///< empty if all was well
    int esemenyek = 0;
    std::uint64_t lenyomat = 0;  ///< of all events and of what the windows showed; the same for a seed
    std::set<QString> ablakok;   ///< names of the windows that were open
    std::set<QString> fajtak;    ///< of the derived charts that were on screen
    std::set<QString> pontok;    ///< menu items chosen
    int objektumok = 0;          ///< at the most
    int felsoAblakok = 0;        ///< at the most
};

/// One run of the program with somebody at it who knows nothing: clicks, keys, texts, menu items, drops,
/// damaged files, answers at random, the computer's clock set wrong. All follow from the seed; the clock is
/// the run's own.
///
/// The events come from a timer, so that they go on within every dialog that one of them opens.
class TMajom : public QObject {
    Q_OBJECT

public:
    explicit TMajom(std::uint64_t mag);

    /// Until so many events or the program's end; then all is closed and looked at.
    TMajomEredmeny fut(int legfeljebb);

    /// Where a crash happened.
    static std::uint64_t futoMag();
    static int futoEsemeny();

private:
    void utes();
    void lezaras();
    void keresesben();
    QString esemeny();
    /// An event that opens a dialog is told when that is closed, after those within.
    void feljegyzes(int sorszam, const QString& mi);
    void allapotVizsgalat();
    void vegVizsgalat();

    // Each does one thing and tells it; nothing where there is nothing to do it with.
    QString tores();
    QString orajel();
    QString kattintas();
    QString gombnyomas();
    QString mezoKitoltes();
    QString billentyu();
    QString szovegbeiras();
    QString beillesztes();
    QString menupont();
    QString gorgetes();
    QString ejtes();
    QString meret();
    QString ablakzaras();
    QString oraUgras();
    QString valasz();
    QString jelszo();

    QList<QWidget*> ablakok();
    /// The window that takes what the user does.
    QWidget* kezben();
    QWindow* fokusz();
    void leut(Qt::Key billentyu, Qt::KeyboardModifiers m = Qt::NoModifier, const QString& szoveg = {});
    void beut(const QString& szoveg);
    template <typename T>
    T* valamelyik(QWidget& ablak);

    std::uint64_t mag_;
    TVeletlen veletlen_;
    bool hihetetlen_;  ///< some charts hold figures that are not trusted to stay in range
    TProbaOra ora_;
    TMajomFajlok fajlok_;
    TMajomParbeszed parbeszed_;
    TMajomHang hang_;
    std::unique_ptr<TFrissAblakok> a_;

    QTimer idozito_;
    QEventLoop fohurok_;
    int legfeljebb_ = 0;
    bool cselekszik_ = false;
    int cselekvesSzintje_ = 0;  ///< nesting of message loops at the event under way
    bool vege_ = false;
    int lezarasok_ = 0;
    QList<QAction*> menu_;          ///< in the order in which they come next
    QHash<QString, int> nyomasok_;  ///< of each button
    TMajomEredmeny e_;
};
