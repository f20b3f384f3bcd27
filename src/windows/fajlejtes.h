#pragma once

#include <functional>

#include <QMimeData>
#include <QObject>
#include <QWidget>

/// The chart that is being dragged: one file of this machine. Several at once, a folder, or a link to
/// another machine is none; an empty path stands for that.
QString ejtettFajl(const QMimeData& mit);

/// Files dropped on a window. A drop is always a copy, so that who drags loses nothing, and is answered
/// before the file is opened: whoever drags from waits for the answer while a question is on the screen.
/// While a dialog waits for the user nothing is taken.
class TFajlEjtes : public QObject {
public:
    /// @param megnyit  gets the path
    TFajlEjtes(QWidget& ablak, std::function<void(const QString&)> megnyit);

    /// A part of the window that would take what is dropped as text.
    void figyel(QWidget& resz);

private:
    bool eventFilter(QObject* targy, QEvent* esemeny) override;

    std::function<void(const QString&)> megnyit_;
};
