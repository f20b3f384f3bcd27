#include "windows/fajlejtes.h"

#include <utility>

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QUrl>

QString ejtettFajl(const QMimeData& mit) {
    const QList<QUrl> cimek = mit.urls();
    if (cimek.size() != 1 || !cimek[0].isLocalFile()) return {};
    const QString fajl = cimek[0].toLocalFile();
    return QFileInfo(fajl).isFile() ? fajl : QString();
}

TFajlEjtes::TFajlEjtes(QWidget& ablak, std::function<void(const QString&)> megnyit)
    : QObject(&ablak), megnyit_(std::move(megnyit)) {
    figyel(ablak);
}

void TFajlEjtes::figyel(QWidget& resz) {
    resz.setAcceptDrops(true);
    resz.installEventFilter(this);
}

bool TFajlEjtes::eventFilter(QObject* targy, QEvent* esemeny) {
    const auto fajta = esemeny->type();
    if (fajta != QEvent::DragEnter && fajta != QEvent::DragMove && fajta != QEvent::Drop)
        return QObject::eventFilter(targy, esemeny);
    auto& ejtes = static_cast<QDropEvent&>(*esemeny);
    const QString fajl = ejtettFajl(*ejtes.mimeData());
    if (fajl.isEmpty()) return QObject::eventFilter(targy, esemeny);
    if (QApplication::activeModalWidget() != nullptr) {
        ejtes.ignore();
        return true;
    }
    ejtes.setDropAction(Qt::CopyAction);
    ejtes.accept();
    if (fajta == QEvent::Drop)
        QMetaObject::invokeMethod(
            this, [this, fajl] { megnyit_(fajl); }, Qt::QueuedConnection);
    return true;
}
