#include "tables/efemerida.h"

#include <algorithm>
#include <bit>

/// The records stand in the program image as they were expanded at build time.
extern "C" const TEfemeridaNap korvend_efemerida[efemeridaSorok];

static_assert(std::endian::native == std::endian::little, "the records in the image are little endian");

const TEfemeridaNap& EfemeridaTabla::operator[](std::int64_t napsorszam) const {
    return korvend_efemerida[std::clamp<std::int64_t>(napsorszam, 1, efemeridaSorok) - 1];
}

namespace {

constexpr int elsoProba = 368;
constexpr int probaLepes = 360;  ///< rows; cannot jump over a year
constexpr int probaVissza = 367;

/// A row at or before the first of January of a year, within the table.
int kezdoSor(int ev) {
    if (Efemerida[1].ev == ev) return 1;
    int proba = elsoProba;
    while (proba <= efemeridaSorok && Efemerida[proba].ev != ev) proba += probaLepes;
    return proba - probaVissza;
}

}  // namespace

int DatumbolJulianszam(std::int32_t& ev, std::int32_t& ho, std::int32_t& nap) {
    ev = std::clamp(ev, 1900, 2078);
    ho = std::clamp(ho, 1, 12);
    nap = std::clamp(nap, 1, 32);
    int sor = kezdoSor(ev);
    while (sor <= efemeridaSorok && !(Efemerida[sor].ev == ev && Efemerida[sor].ho == ho)) ++sor;
    return sor > efemeridaSorok ? 0 : sor - 1 + nap + julianszamAlap;
}

void JulianszambolDatum(std::int32_t julianszam, std::int32_t& ev, std::int32_t& ho, std::int32_t& nap) {
    const TEfemeridaNap& sor = efemeridaNap(julianszam);
    ev = sor.ev;
    ho = sor.ho;
    nap = sor.nap;
}
