#include "valasz.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "muveletek.h"

namespace {

struct TMuveletNev {
    std::string_view op;
    TJson (*muvelet)(const TKerelem&);
};

constexpr std::array muveletTabla{
    TMuveletNev{"datum", datumMuvelet},
    TMuveletNev{"nyariido", nyariIdoMuvelet},
    TMuveletNev{"telepules", telepulesMuvelet},
    TMuveletNev{"ido", idoMuvelet},
    TMuveletNev{"keplet", kepletMuvelet},
    TMuveletNev{"rajz", rajzMuvelet},
    TMuveletNev{"lepes", lepesMuvelet},
    TMuveletNev{"kvh_olvas", kvhOlvasMuvelet},
    TMuveletNev{"kvh_ir", kvhIrMuvelet},
    TMuveletNev{"analogia", analogiaMuvelet},
    TMuveletNev{"eletesemeny", eletesemenyMuvelet},
    TMuveletNev{"revolucio", revolucioMuvelet},
    TMuveletNev{"personar", personarMuvelet},
    TMuveletNev{"tercier", tercierMuvelet},
    TMuveletNev{"ingresszio", ingresszioMuvelet},
    TMuveletNev{"primer", primerMuvelet},
    TMuveletNev{"solarhaz", solarHazMuvelet},
    TMuveletNev{"mundan", mundanMuvelet},
    TMuveletNev{"mundan_kereses", mundanKeresesMuvelet},
    TMuveletNev{"pontositas", pontositasMuvelet},
};

/// Depth of the arrays and objects of a line, told without building them: a line of opening brackets would
/// take many times its length in memory.
int melyseg(std::string_view sor) {
    int most = 0;
    int legtobb = 0;
    bool szovegben = false;
    for (std::size_t i = 0; i < sor.size(); ++i) {
        const char c = sor[i];
        if (szovegben) {
            if (c == '\\') ++i;
            szovegben = c != '"';
        } else if (c == '"') {
            szovegben = true;
        } else if (c == '[' || c == '{') {
            legtobb = std::max(legtobb, ++most);
        } else if (c == ']' || c == '}') {
            --most;
        }
    }
    return legtobb;
}

TJson muveletValasz(std::string_view sor) {
    if (sor.size() > legnagyobbSor) throw THiba("a sor hosszabb 16 MB-nál");
    if (melyseg(sor) > legnagyobbMelyseg) throw THiba("a kérelem mélyebb 64 szintnél");
    const TKerelem kerelem = TKerelem::parse(sor, nullptr, false);
    if (!kerelem.is_object()) throw THiba("nem JSON objektum");
    const std::string op = szovegMezo(kerelem, "op");
    const auto talalat = std::find_if(muveletTabla.begin(), muveletTabla.end(),
                                      [&](const TMuveletNev& m) { return m.op == op; });
    if (talalat == muveletTabla.end()) throw THiba("ismeretlen op: " + op);
    return talalat->muvelet(kerelem);
}

}  // namespace

std::string kerelemValasz(std::string_view sor) {
    std::string ki;
    try {
        irJson(ki, muveletValasz(sor));
    } catch (const THiba& hiba) {
        irJson(ki, {{"hiba", hiba.what()}});
    }
    return ki;
}

bool kerelemSor(std::istream& be, std::string& sor) {
    sor.clear();
    std::streambuf& forras = *be.rdbuf();
    bool volt = false;
    for (int c = forras.sbumpc(); c != std::istream::traits_type::eof(); c = forras.sbumpc()) {
        if (c == '\n') return true;
        volt = true;
        if (sor.size() <= legnagyobbSor) sor += static_cast<char>(c);
    }
    return volt;
}
