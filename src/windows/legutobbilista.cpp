#include "windows/legutobbilista.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

constexpr int listaSzelesseg = 150;  // pixels, as a share beside the files

QString utja(const QListWidgetItem& sor) {
    return sor.data(Qt::UserRole).toString();
}

QListWidget* lista(QWidget& szulo, const QStringList& fajlok) {
    auto* uj = new QListWidget(&szulo);
    uj->setObjectName("Legutobbiak1");
    uj->setAccessibleName("Legutóbbi képletek");
    for (const QString& fajl : fajlok) {
        auto* sor = new QListWidgetItem(QFileInfo(fajl).completeBaseName(), uj);
        sor->setData(Qt::UserRole, fajl);
        sor->setToolTip(QDir::toNativeSeparators(fajl));
    }
    return uj;
}

}  // namespace

void legutobbiLista(QFileDialog& dialogus, const QStringList& fajlok) {
    auto* oszto = dialogus.findChild<QSplitter*>("splitter");
    if (oszto == nullptr) return;
    auto* oldal = new QWidget;
    auto* felirat = new QLabel("&Legutóbbi képletek:");
    QListWidget* sorok = lista(*oldal, fajlok);
    felirat->setBuddy(sorok);
    auto* elrendezes = new QVBoxLayout(oldal);
    elrendezes->setContentsMargins(0, 0, 0, 0);
    elrendezes->addWidget(felirat);
    elrendezes->addWidget(sorok);
    // At the end: the dialog keeps the width of its first part between runs.
    oszto->addWidget(oldal);
    oszto->setSizes({oszto->sizes().constFirst(), dialogus.width(), listaSzelesseg});

    const auto kivalaszt = [&dialogus](QListWidgetItem* sor) {
        if (sor != nullptr) dialogus.selectFile(utja(*sor));
    };
    QObject::connect(sorok, &QListWidget::currentItemChanged, &dialogus, kivalaszt);
    QObject::connect(sorok, &QListWidget::itemClicked, &dialogus, kivalaszt);  // also the current one again
    QObject::connect(sorok, &QListWidget::itemActivated, &dialogus,
                     [&dialogus, kivalaszt](QListWidgetItem* sor) {
                         kivalaszt(sor);
                         static_cast<QDialog&>(dialogus).accept();
                     });
}
