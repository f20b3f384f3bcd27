#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include "chart/allapot.h"
#include "chart/foablak.h"
#include "commands/kepatadas.h"
#include "predictive/visszateresek.h"
#include "windows/kepletfelulet.h"
#include "windows/parbeszed.h"

struct TAblakok;
class TLegutobbiTar;

/// The main window: wheel, left panel, status bar, menu, and the tick that drives them.
class TForm1 : public QMainWindow, public FoAblak {
    Q_OBJECT

public:
    TForm1();

    /// The other windows; they are created after this one.
    void ablakokBeallitasa(TAblakok* ablakok) { ablakok_ = ablakok; }

    Allapot& allapot() { return allapot_; }

    /// Other dialogs in place of the toolkit's, for tests.
    void parbeszedBeallitasa(TParbeszed& parbeszed) { parbeszed_ = &parbeszed; }
    TParbeszed& parbeszed() { return *parbeszed_; }

    /// Where the last folder and the latest charts are kept; without one nothing is.
    void legutobbiBeallitasa(TLegutobbiTar& tar);
    /// Opens a chart that the desktop hands over, as "Megnyitás" does: the password first.
    void KivulrolMegnyitas(const QString& fajl);

    void Ujrafest() override;
    void Ervenytelenit() override { felulet_->ervenytelenit(); }
    void RajzolKeplet() override;
    void Mutat() override;
    std::string RendszerDatum() override;
    std::string RendszerIdo() override;
    void MundanFrissit() override;
    void PontositasFuttat() override;
    void PrimerFuttat() override;

public slots:
    void Timer1Timer();

    void Szemely_adatok1Click();
    void Uj1Click();
    void Megnyitas1Click();
    void Mentes1Click();
    void Nyomtat1Click();
    void Nyomtato_beallitas1Click();
    void Kilepes1Click();
    void Horizont1Click();
    void Mundan1Click();
    void Dekad1Click();
    void Szolar1Click() { Revolucio(1); }
    void Lunar1Click() { Revolucio(2); }
    void MerkurRev1Click() { Revolucio(3); }
    void VenuszRev1Click() { Revolucio(4); }
    void MarsRev1Click() { Revolucio(5); }
    void JupiterRev1Click() { Revolucio(6); }
    void SzaturnuszRev1Click() { Revolucio(7); }
    void AscPers1Click() { Personar(1); }
    void McPers1Click() { Personar(2); }
    void HoldPers1Click() { Personar(3); }
    void MerkurPers1Click() { Personar(4); }
    void VenuszPers1Click() { Personar(5); }
    void MarsPers1Click() { Personar(6); }
    void JupiterPers1Click() { Personar(7); }
    void SzaturnuszPers1Click() { Personar(8); }
    void UranuszPers1Click() { Personar(9); }
    void NeptunPers1Click() { Personar(10); }
    void PlutoPers1Click() { Personar(11); }
    void Primer1Click();
    void Tercier1Click();
    void Szolaringresszio11Click();
    void Radixlepteto1Click();
    void Orbisok1Click();
    void Mundnhzaspontosts1Click();
    void Szimbolumok1Click();

    void Kezikonyv1Click();
    void KepMasolas1Click();
    void AdatMasolas1Click();
    void KepPdf1Click();
    void KepSvg1Click();
    void KepPng1Click();

    void PanelButton2_MostClick();
    void PanelButton3_ValtClick();
    void Panel1Click();
    void Memo1Change();
    void FormMouseDown();

private:
    void FormCreate();
    void FormPaint(const QRegion& resz);
    void FormResize();
    /// Window geometry, then the current view anew in a part of the surface.
    void kepletRajzolas(const QRegion& resz);

    void menuEpites();
    void parancsEpites(QAction& pont, const char* nev, void (TForm1::*kezelo)(), const char* billentyu);
    void panelEpites();
    void statuszEpites();
    void panelSorEpites(int sor);
    void gombEpites(int hely, const char* nev, const QString& felirat, void (TForm1::*kezelo)());
    void oldalPanelMutatas();
    void Revolucio(int fajta);
    void Personar(int fajta);
    void visszateres(const TVisszateresFajta& fajta);
    void datumosDirekcio(bool tercier);
    bool JelszoKeres();
    void ejtesFigyeles();
    void fajlMegnyitas(const QString& fajl);
    void legutobbiFelvetel(const QString& fajl);
    void closeEvent(QCloseEvent* esemeny) override;
    void nyomtatas();
    void papirraNyomtatas(const QString& nev);
    void pdfNyomtatas(const QString& nev);
    bool lapFestes(QPagedPaintDevice& lap, const QString& nev);
    bool nyomtatoBeallitas();
    /// Made at the first use: asking the system for its printers takes longer than the whole start.
    QPrinter& nyomtato();
    void szemelyiAblak(bool ujKeplet);
    /// The picture on screen.
    TKepletKep kepernyon() const;
    void kepMentes(const char* kiterjesztes, QByteArray (*keszit)(const Allapot&, const TKepletKep&));
    void contextMenuEvent(QContextMenuEvent* esemeny) override;
    void memoHely();
    bool eventFilter(QObject* targy, QEvent* esemeny) override;

    Allapot allapot_;
    TParbeszed alapParbeszed_;
    TParbeszed* parbeszed_ = &alapParbeszed_;
    std::unique_ptr<QPrinter> nyomtato_;
    bool nyomtatoBeallitva_ = false;  ///< the printer set-up has been accepted in this run
    TAblakok* ablakok_ = nullptr;
    TLegutobbiTar* legutobbi_ = nullptr;
    KepletFelulet* felulet_;
    QFrame* panel1_;
    std::array<QLabel*, 48> label_{};
    std::array<QLabel*, 7> statusz_{};
    QPushButton* mostGomb_ = nullptr;
    QPushButton* valtGomb_ = nullptr;
    QPlainTextEdit* memo1_ = nullptr;
    QTimer* timer1_;
    std::optional<std::string> kiirtTalalatok_;  ///< written over the picture since its last drawing
    bool megjelent_ = false;                     ///< the window has been painted once
    QString betutipus_;                          ///< symbol font that the labels show
};
