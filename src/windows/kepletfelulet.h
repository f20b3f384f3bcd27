#pragma once

#include <functional>

#include <QPixmap>
#include <QWidget>

#include "windows/qtvaszon.h"

/// The main window's drawing surface: a picture of its own that drawing changes at once and the window shows.
class KepletFelulet : public QWidget {
    Q_OBJECT

public:
    explicit KepletFelulet(QWidget* parent = nullptr);

    /// Runs a drawing on the surface's canvas, over what stands there.
    void rajzol(const std::function<void(QtVaszon&)>& rajz);
    /// Empties a part of the surface and runs a drawing of the whole picture there. Nothing outside the part
    /// is touched: antialiased edges that are drawn over themselves get thicker.
    void ujrarajzol(const QRegion& resz, const std::function<void(QtVaszon&)>& rajz);
    /// Empties the surface, or a part of it.
    void torol();
    void torol(const QRegion& resz);
    /// Shows the surface at once, without asking for a paint; a paint in progress shows it anyway.
    void megmutat();
    /// Asks for a paint on the next turn of the message loop; `megmutat` in between does not take its place.
    void ervenytelenit();

    const QPixmap& kep() const { return kep_; }

signals:
    /// The window system asks for a part of the picture.
    void festesKeres(const QRegion& resz);
    /// The surface has a new size in device pixels, and is empty.
    void meretValtozott();

protected:
    void paintEvent(QPaintEvent* esemeny) override;
    void resizeEvent(QResizeEvent* esemeny) override;

private:
    void ujKep();
    /// The screen's pixel ratio may change without a resize.
    void aranyKovetes();

    QPixmap kep_;
    bool festes_ = false;  ///< a paint event is being answered
    bool sajatMutatas_ = false;
    bool ervenytelen_ = false;
};
