#include "commands/jelszo.h"

bool NincsJelszo(std::string_view jelszo) {
    return jelszo.empty() || jelszo == " ";
}

JelszoValasz JelszoValtozas(Allapot& allapot, bool egyezik) {
    if (++allapot.JelszoProba >= jelszoValtozasok) return JelszoValasz::vege;
    if (!egyezik) return JelszoValasz::tovabb;
    allapot.JelszoRendben = true;
    return JelszoValasz::jo;
}
