#include "windows/jelolvasas.h"

#include <QAccessibleWidget>

#include "predictive/olvashato.h"
#include "tables/szotar.h"
#include "windows/qszoveg.h"

namespace {

bool szimbolumBetus(const QLabel& cimke) {
    const std::string betu = szoveg(cimke.font().family());
    return betu == sajatSzimbolumFont || betu == potSzimbolumFont;
}

class TJelCimkeFelulet : public QAccessibleWidget {
public:
    explicit TJelCimkeFelulet(TJelCimke* cimke)
        : QAccessibleWidget(cimke, QAccessible::StaticText), cimke_(*cimke) {}

    QString text(QAccessible::Text mi) const override {
        if (mi != QAccessible::Name || !cimke_.accessibleName().isEmpty()) return QAccessibleWidget::text(mi);
        QStringList nevek;
        for (const QChar c : cimke_.text()) {
            const QString nev = qszoveg(JelNev(c.toLatin1()));
            if (!szimbolumBetus(cimke_) || nev == QString(c))
                return cimke_.text();  // no symbols, as a house's number
            nevek << nev;
        }
        return nevek.join(' ');
    }

private:
    const TJelCimke& cimke_;
};

}  // namespace

QAccessibleInterface* JelOlvasasKeszites(const QString&, QObject* targy) {
    auto* cimke = qobject_cast<TJelCimke*>(targy);
    return cimke == nullptr ? nullptr : new TJelCimkeFelulet(cimke);
}
