#include "windows/ablakok.h"

#include "commands/szemelyiadatok.h"
#include "events/eletesemenyek.h"
#include "tables/fokperc.h"

namespace {

/// The birth as it stands in the fields of the personal-data dialog.
TSzuletes szuletes(TForm2& form2) {
    form2.elkeszites();
    const TSzemelyiAdatok m = form2.mezok();
    return {m.ido, m.nyariIdo, m.idozona, ivmasodpercre(m.hosszFok, m.hosszPerc)};
}

/// Moment and place of a birth, as the event editor starts from them.
TEletesemeny kezdoHely(const TSzemelyiAdatok& m) {
    TEletesemeny e;
    e.pillanat = m.ido;
    e.helyseg = m.helyseg;
    e.idozona = m.idozona;
    e.hosszFok = m.hosszFok;
    e.hosszPerc = m.hosszPerc;
    e.szelFok = m.szelFok;
    e.szelPerc = m.szelPerc;
    return e;
}

}  // namespace

TAblakok::TAblakok() {
    form1.ablakokBeallitasa(this);
    form5.parbeszedBeallitasa(form1.parbeszed());
    form10.parbeszedBeallitasa(form1.parbeszed());
    const auto eletesemenyek = [this](const TSzemelyiAdatok& szemely) {
        form10.megmutat([this] { return szuletes(form2); }, kezdoHely(szemely));
        if (form13.isVisible()) form13.futtat();
    };
    // Over the open personal data the birth is what its fields say, over the rectification the chart's.
    form2.eletesemenyek = [this, eletesemenyek] {
        form2.elkeszites();
        eletesemenyek(form2.mezok());
    };
    form13.eletesemenyek = [this, eletesemenyek] { eletesemenyek(SzemelyMezok(form1.allapot())); };
    form12.pontositas = [this] {
        form7.elkeszites();  // it stands below the stepper, shown or not
        form13.megmutat(form7.height());
    };
}
