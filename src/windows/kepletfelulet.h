#pragma once

#include <functional>
#include <vector>

#include <QRegion>
#include <QWidget>

#include "drawing/rogzitovaszon.h"
#include "windows/qtvaszon.h"

/// The main window's drawing surface: it keeps what is drawn on it, and shows it on each paint. The calls are
/// kept and not their pixels, which would take megabytes.
class KepletFelulet : public QWidget {
    Q_OBJECT

public:
    explicit KepletFelulet(QWidget* parent = nullptr);

    /// Adds a drawing to the surface, over what stands there.
    void rajzol(const std::function<void(Vaszon&)>& rajz);
    /// Empties a part of the surface and puts that part of a drawing there. Nothing outside the part is
    /// touched: antialiased edges that are drawn over themselves get thicker.
    void ujrarajzol(const QRegion& resz, const std::function<void(Vaszon&)>& rajz);
    /// Empties the surface, or a part of it.
    void torol();
    void torol(const QRegion& resz);
    /// Shows the surface at once, without asking for a paint; a paint in progress shows it anyway.
    void megmutat();
    /// Asks for a paint on the next turn of the message loop; `megmutat` in between does not take its place.
    void ervenytelenit();
    /// Paints what stands on the surface, from the painter's origin.
    void fest(QPainter& festo) const;

signals:
    /// The window system asks for a part of the picture.
    void festesKeres(const QRegion& resz);
    /// The surface has a new size in device pixels, and is empty.
    void meretValtozott();

protected:
    void paintEvent(QPaintEvent* esemeny) override;
    void resizeEvent(QResizeEvent* esemeny) override;

private:
    /// A drawing and the part of the surface where it stands.
    struct TReteg {
        QRegion resz;
        TLap lap;
        std::vector<TMuvelet> rajz;
    };

    /// All of the surface where nothing but its children lies outside the part.
    QRegion rejtettekkel(const QRegion& resz) const;
    void ujKep();
    /// The screen's pixel ratio may change without a resize.
    void aranyKovetes();

    std::vector<TReteg> retegek_;  ///< from below; those on white do not overlap each other
    double arany_ = 1;
    bool festes_ = false;  ///< a paint event is being answered
    bool sajatMutatas_ = false;
    bool ervenytelen_ = false;
};
