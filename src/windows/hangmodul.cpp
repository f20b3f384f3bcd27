// The module that links the sound library.

#include <utility>

#include <QAudioOutput>
#include <QMediaPlayer>
#include <QUrl>

#include "windows/modulok.h"

namespace {

class TQtLejatszo : public QMediaPlayer, public TLejatszo {
public:
    TQtLejatszo(QObject& tulajdonos, std::function<void(int, const QString&)> hiba)
        : QMediaPlayer(&tulajdonos) {
        setObjectName("MediaPlayer1");
        setAudioOutput(new QAudioOutput(this));
        connect(this, &QMediaPlayer::errorOccurred, this, std::move(hiba));
    }
    void ures() override {
        stop();
        setSource(QUrl());
    }
    void ujFajl(const QString& fajl) override {
        setSource(QUrl::fromLocalFile(fajl));
        play();
    }
    void lejatszas() override { play(); }
    void szunet() override { pause(); }
    void megallitas() override { stop(); }
};

}  // namespace

class TQtHangModul : public QObject, public THangModul {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.korvend.hang/1")
    Q_INTERFACES(THangModul)

public:
    TLejatszo* ujLejatszo(QObject& tulajdonos, std::function<void(int, const QString&)> hiba) override {
        return new TQtLejatszo(tulajdonos, std::move(hiba));
    }
};

#include "hangmodul.moc"
