#include "windows/ablakok.h"

#include "commands/szemelyiadatok.h"
#include "events/eletesemenyek.h"
#include "tables/fokperc.h"

namespace {

/// The birth as it stands in the fields of the personal-data dialog.
TSzuletes szuletes(const TForm2& form2) {
    const TSzemelyiAdatok m = form2.mezok();
    return {m.ido, m.nyariIdo, m.idozona, ivmasodpercre(m.hosszFok, m.hosszPerc)};
}

}  // namespace

TAblakok::TAblakok() {
    form1.ablakokBeallitasa(this);
    form5.parbeszedBeallitasa(form1.parbeszed());
    form2.eletesemenyek = form13.eletesemenyek = [this] {
        form10.megmutat([this] { return szuletes(form2); });
        if (form13.isVisible()) form13.futtat();
    };
    form12.pontositas = [this] { form13.megmutat(form7.height()); };
}
