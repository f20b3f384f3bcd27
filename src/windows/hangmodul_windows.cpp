// The sound module where Windows itself plays: its media control interface, which finds out by itself what a
// file holds.

#include <array>
#include <utility>

#include <QDir>

#include "windows/modulok.h"

// clang-format off
#include <windows.h>
#include <mmsystem.h>  // needs the types of the one above
// clang-format on

namespace {

/// One sound by its name within the system; the name is the process's own.
class TMciLejatszo : public QObject, public TLejatszo {
public:
    TMciLejatszo(QObject& tulajdonos, std::function<void(int, const QString&)> hiba)
        : QObject(&tulajdonos), hiba_(std::move(hiba)) {
        setObjectName("MediaPlayer1");
    }
    ~TMciLejatszo() override { ures(); }
    TMciLejatszo(const TMciLejatszo&) = delete;
    TMciLejatszo& operator=(const TMciLejatszo&) = delete;

    void ures() override {
        if (std::exchange(nyitva_, false)) kuld("close korvend_hang");
    }
    void ujFajl(const QString& fajl) override {
        ures();
        // The extension is on no list of the system, so the kind of player is named.
        const QString nyitas = QStringLiteral("open \"%1\" type mpegvideo alias korvend_hang")
                                   .arg(QDir::toNativeSeparators(fajl));
        nyitva_ = parancs(nyitas);
        szunetel_ = false;
        if (nyitva_) lejatszas();
    }
    /// From the beginning, or from where it was held.
    void lejatszas() override {
        if (!nyitva_) return;
        if (std::exchange(szunetel_, false)) {
            parancs("resume korvend_hang");
            return;
        }
        if (valasz("status korvend_hang position") == valasz("status korvend_hang length"))
            kuld("seek korvend_hang to start");
        parancs("play korvend_hang");
    }
    void szunet() override {
        if (nyitva_) szunetel_ = kuld("pause korvend_hang") == 0;
    }
    void megallitas() override {
        if (!nyitva_) return;
        kuld("stop korvend_hang");
        kuld("seek korvend_hang to start");
        szunetel_ = false;
    }

private:
    static MCIERROR kuld(const QString& szoveg) {
        return mciSendStringW(reinterpret_cast<const wchar_t*>(szoveg.utf16()), nullptr, 0, nullptr);
    }
    static QString valasz(const QString& kerdes) {
        std::array<wchar_t, 128> szoveg{};
        mciSendStringW(reinterpret_cast<const wchar_t*>(kerdes.utf16()), szoveg.data(),
                       static_cast<UINT>(szoveg.size()), nullptr);
        return QString::fromWCharArray(szoveg.data());
    }
    /// Tells a fault. @return whether there was none
    bool parancs(const QString& szoveg) {
        const MCIERROR kod = kuld(szoveg);
        if (kod == 0) return true;
        std::array<wchar_t, 256> leiras{};
        mciGetErrorStringW(kod, leiras.data(), static_cast<UINT>(leiras.size()));
        hiba_(static_cast<int>(kod), QString::fromWCharArray(leiras.data()).trimmed());
        return false;
    }

    std::function<void(int, const QString&)> hiba_;
    bool nyitva_ = false;
    bool szunetel_ = false;
};

}  // namespace

class TMciHangModul : public QObject, public THangModul {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.korvend.hang/1")
    Q_INTERFACES(THangModul)

public:
    TLejatszo* ujLejatszo(QObject& tulajdonos, std::function<void(int, const QString&)> hiba) override {
        return new TMciLejatszo(tulajdonos, std::move(hiba));
    }
};

#include "hangmodul_windows.moc"
