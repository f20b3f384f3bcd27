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

    /// Runs a drawing on the surface's canvas.
    void rajzol(const std::function<void(QtVaszon&)>& rajzolas);
    /// Empties the surface, or a part of it.
    void torol();
    void torol(const QRegion& resz);
    /// Shows the surface at once, without asking for a paint.
    void megmutat();
    /// Asks for a paint on the next turn of the message loop; `megmutat` in between does not take its place.
    void ervenytelenit();

    const QPixmap& kep() const { return kep_; }

signals:
    /// The window system asks for a part of the picture.
    void festesKeres(const QRegion& resz);
    void meretValtozott();

protected:
    void paintEvent(QPaintEvent* esemeny) override;
    void resizeEvent(QResizeEvent* esemeny) override;

private:
    QPixmap kep_;
    bool sajatMutatas_ = false;
    bool ervenytelen_ = false;
};
