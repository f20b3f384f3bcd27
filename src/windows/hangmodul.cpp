// The module that links the sound library.

#include <memory>
#include <utility>

#include <QAudioOutput>
#include <QFile>
#include <QMediaPlayer>
#include <QUrl>

#include "windows/modulok.h"

namespace {

/// One toolkit's player a file: what a player still tells of the file before could be taken for the new
/// one's.
class TQtLejatszo : public QObject, public TLejatszo {
public:
    TQtLejatszo(QObject& tulajdonos, std::function<void(int, const QString&)> hiba)
        : QObject(&tulajdonos), hiba_(std::move(hiba)) {
        setObjectName("MediaPlayer1");
    }
    ~TQtLejatszo() override { elengedes(); }
    TQtLejatszo(const TQtLejatszo&) = delete;
    TQtLejatszo& operator=(const TQtLejatszo&) = delete;

    void ures() override { elengedes(); }
    void ujFajl(const QString& fajl) override {
        elengedes();
        lejatszo_ = std::make_unique<QMediaPlayer>(this);
        QMediaPlayer* const uj = lejatszo_.get();
        uj->setAudioOutput(new QAudioOutput(uj));
        // Queued, so that no player ends in the middle of telling; what one has told last goes with it.
        connect(uj, &QMediaPlayer::errorOccurred, uj, hiba_, Qt::QueuedConnection);
        connect(
            uj, &QMediaPlayer::mediaStatusChanged, uj, [this] { indulas(); }, Qt::QueuedConnection);
        indulo_ = true;
        // From a device, of which the player gets nothing before this has returned: its own reading can fall
        // into the setting up of its tracks, and then each waits for the other for ever.
        const QUrl hely = QUrl::fromLocalFile(fajl);
        auto* const adat = new QFile(fajl, uj);
        if (adat->open(QIODevice::ReadOnly))
            uj->setSourceDevice(adat, hely);
        else
            uj->setSource(hely);  // the player tells what is wrong with it
    }
    void lejatszas() override {
        indulo_ = true;
        indulas();
    }
    void szunet() override {
        indulo_ = false;
        if (lejatszo_) lejatszo_->pause();
    }
    void megallitas() override {
        indulo_ = false;
        if (lejatszo_) lejatszo_->stop();
    }

private:
    /// The file goes before the player: one that ends over its file is still told of the file's end.
    void elengedes() {
        if (!lejatszo_) return;
        lejatszo_->setSource(QUrl());
        lejatszo_.reset();
    }
    /// Not before the file is read: a start while its tracks are still being put together can wait for them
    /// for ever, and the window with it.
    void indulas() {
        if (!indulo_ || !lejatszo_ || lejatszo_->mediaStatus() == QMediaPlayer::LoadingMedia ||
            lejatszo_->mediaStatus() == QMediaPlayer::NoMedia)
            return;
        indulo_ = false;
        lejatszo_->play();
    }

    std::function<void(int, const QString&)> hiba_;
    std::unique_ptr<QMediaPlayer> lejatszo_;
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
