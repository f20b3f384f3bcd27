#include "commands/jelszo.h"

JelszoValasz JelszoValtozas(Allapot& allapot, bool egyezik) {
    if (++allapot.JelszoProba >= jelszoValtozasok) return JelszoValasz::vege;
    if (!egyezik) return JelszoValasz::tovabb;
    allapot.JelszoRendben = true;
    return JelszoValasz::jo;
}
