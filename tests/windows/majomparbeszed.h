#pragma once

#include <QDir>
#include <QFileInfo>
#include <QPrinter>

#include "majomfajlok.h"
#include "veletlen.h"
#include "windows/modulok.h"
#include "windows/parbeszed.h"

/// Answers the toolkit's dialogs at random, or lets one open for random keys and clicks to answer it. Those
/// that could reach files and printers of the machine's user never open.
class TMajomParbeszed : public TParbeszed {
public:
    TMajomParbeszed(TVeletlen& veletlen, TMajomFajlok& fajlok) : veletlen_(veletlen), fajlok_(fajlok) {}

    /// From here on each question gets the answer that ends things soonest.
    void gyorsan() { gyors_ = true; }
    int kerdesek() const { return kerdesek_; }

    QString megnyitando(QWidget*, const QString&) override {
        if (megse()) return {};
        return mappajaba(fajlok_.nyitando());
    }
    bool igen(QWidget* szulo, const QString& cim, const QString& kerdes) override {
        constexpr int ritkan = 10;
        if (gyors_) return true;
        if (valodi()) return TParbeszed::igen(szulo, cim, kerdes);
        return veletlen_.egyszer(cim.startsWith("Kilépés") ? ritkan : 2);
    }
    void uzenet(QWidget* szulo, const QString& szoveg) override {
        if (valodi()) TParbeszed::uzenet(szulo, szoveg);
    }
    QString bekeres(QWidget* szulo, const QString& cim, const QString& felirat) override {
        if (valodi()) return TParbeszed::bekeres(szulo, cim, felirat);
        return megse() ? QString() : majomSzoveg(veletlen_);
    }
    std::optional<QString> titok(QWidget* szulo, const QString& cim, const QString& felirat,
                                 int hossz) override {
        if (valodi()) return TParbeszed::titok(szulo, cim, felirat, hossz);
        return megse() ? std::nullopt : std::optional(majomSzoveg(veletlen_).left(hossz));
    }
    bool nyomtatoBeallitas(QWidget*, QPrinter& nyomtato) override {
        if (megse()) return false;
        nyomtato.setOutputFormat(QPrinter::PdfFormat);
        nyomtato.setOutputFileName(fajlok_.irando(".pdf"));
        nyomtato.setPageSize(QPageSize(veletlen_.egyszer(2) ? QPageSize::A4 : QPageSize::A6));
        return true;
    }
    bool megmutat(const QUrl&) override { return veletlen_.egyszer(2); }
    bool vanNyomtato() override { return false; }

protected:
    bool felulirhato(QWidget* szulo, const QString& fajl) override {
        return valodi() ? TParbeszed::felulirhato(szulo, fajl) : veletlen_.egyszer(2);
    }
    QString mentesHelye(QWidget*, const QString& szuro, const QString&) override {
        if (megse()) return {};
        return fajlok_.irando(szuro.section("(*", 1).section(')', 0, 0));
    }

private:
    bool megse() {
        ++kerdesek_;
        return gyors_ || veletlen_.egyszer(4);
    }
    bool valodi() {
        ++kerdesek_;
        return !gyors_ && veletlen_.egyszer(3);
    }
    static QString mappajaba(const QString& fajl) {
        QDir::setCurrent(QFileInfo(fajl).absolutePath());
        return fajl;
    }

    TVeletlen& veletlen_;
    TMajomFajlok& fajlok_;
    bool gyors_ = false;
    int kerdesek_ = 0;
};

/// A sound library that fails now and then.
class TMajomHang : public THangModul {
public:
    explicit TMajomHang(TVeletlen& veletlen) : veletlen_(veletlen) {}
    TLejatszo* ujLejatszo(QObject& tulajdonos, std::function<void(int, const QString&)> hiba) override {
        return new TMajomLejatszo(tulajdonos, veletlen_, std::move(hiba));
    }

private:
    class TMajomLejatszo : public QObject, public TLejatszo {
    public:
        TMajomLejatszo(QObject& tulajdonos, TVeletlen& veletlen,
                       std::function<void(int, const QString&)> hiba)
            : QObject(&tulajdonos), veletlen_(veletlen), hiba_(std::move(hiba)) {}
        void ures() override {}
        void ujFajl(const QString&) override { talanHiba(); }
        void lejatszas() override { talanHiba(); }
        void szunet() override {}
        void megallitas() override {}

    private:
        void talanHiba() {
            if (!veletlen_.egyszer(3)) return;
            QMetaObject::invokeMethod(
                this, [this] { hiba_(1, "x"); }, Qt::QueuedConnection);
        }
        TVeletlen& veletlen_;
        std::function<void(int, const QString&)> hiba_;
    };
    TVeletlen& veletlen_;
};
