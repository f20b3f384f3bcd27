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
        connect(
            this, &QMediaPlayer::mediaStatusChanged, this, [this] { indulas(); }, Qt::QueuedConnection);
    }
    void ures() override {
        megallitas();
        setSource(QUrl());
    }
    void ujFajl(const QString& fajl) override {
        indulo_ = true;
        setSource(QUrl::fromLocalFile(fajl));
    }
    void lejatszas() override {
        indulo_ = true;
        indulas();
    }
    void szunet() override {
        indulo_ = false;
        pause();
    }
    void megallitas() override {
        indulo_ = false;
        stop();
    }

private:
    /// Not before the file is read: a start while its tracks are still being put together can wait for them
    /// for ever, and the window with it.
    void indulas() {
        if (!indulo_ || mediaStatus() == LoadingMedia || mediaStatus() == NoMedia) return;
        indulo_ = false;
        play();
    }

    bool indulo_ = false;  ///< plays as soon as it can
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
