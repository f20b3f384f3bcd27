#include "drawing/svgvaszon.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <utility>

#include "tables/szamtan.h"

namespace {

constexpr double pixelKozep = 0.5;

/// Dashes of the pen styles, in pen widths.
constexpr std::array<std::string_view, 5> mintak{"", "4 2", "1 2", "4 2 1 2", "4 2 1 2 1 2"};

std::string tulajdonsag(std::string_view nev, std::string_view ertek) {
    return " " + std::string(nev) + "=\"" + std::string(ertek) + "\"";
}
std::string tulajdonsag(std::string_view nev, double ertek) {
    return tulajdonsag(nev, svgSzam(ertek));
}

std::string xmlSzoveg(std::string_view szoveg) {
    std::string xml;
    for (const char c : szoveg) {
        switch (c) {
            case '&':
                xml += "&amp;";
                break;
            case '<':
                xml += "&lt;";
                break;
            case '>':
                xml += "&gt;";
                break;
            default:
                if (static_cast<unsigned char>(c) >= ' ') xml += c;  // control characters are no XML
        }
    }
    return xml;
}

/// Widest line whose square ends can't be told from round ones.
constexpr int legszelesebbSzogletes = 8;

/// Where the middle of a line of a width lies so that it covers whole pixels: an even width would be grey
/// along both edges about the middle of its pixel.
double egeszPixelen(int hely, int toll) {
    return toll % 2 == 0 ? hely : hely + pixelKozep;
}

int elojel(int x) {
    return x < 0 ? -1 : x > 0 ? 1 : 0;
}

}  // namespace

std::string svgSzam(double ertek) {
    constexpr int tizedes = 2;
    std::array<char, 40> jegyek{};
    const auto [vege, hiba] =
        std::to_chars(jegyek.data(), jegyek.data() + jegyek.size(), ertek, std::chars_format::fixed, tizedes);
    if (hiba != std::errc{}) return "0";
    std::string szam(jegyek.data(), vege);
    szam.erase(szam.find_last_not_of('0') + 1);
    if (szam.back() == '.') szam.pop_back();
    return szam == "-0" ? "0" : szam;
}

SvgVaszon::SvgVaszon(int szelesseg, int magassag, std::string_view cim, TKorvonalForras forras)
    : forras_(std::move(forras)) {
    const std::string sz = svgSzam(szelesseg);
    const std::string m = svgSzam(magassag);
    rajz_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"" +
            tulajdonsag("width", sz) + tulajdonsag("height", m) +
            tulajdonsag("viewBox", "0 0 " + sz + " " + m) + ">\n<title>" + xmlSzoveg(cim) + "</title>\n" +
            "<rect" + tulajdonsag("width", sz) + tulajdonsag("height", m) + " fill=\"#fff\"/>\n";
}

/// The styles are for hairlines.
std::string SvgVaszon::toll(bool kerekVeg) const {
    const std::string t = " stroke=\"#000\"" + tulajdonsag("stroke-width", toll_);
    const std::string_view minta = toll_ > 1 ? "" : mintak[static_cast<std::size_t>(stilus_)];
    if (!minta.empty()) return t + tulajdonsag("stroke-dasharray", minta);
    return kerekVeg && toll_ > 1 ? t + " stroke-linecap=\"round\"" : t;
}

void SvgVaszon::Ellipse(int x1, int y1, int x2, int y2) {
    rajz_ += "<ellipse" + tulajdonsag("cx", (x1 + x2) / 2.0 + pixelKozep) +
             tulajdonsag("cy", (y1 + y2) / 2.0 + pixelKozep) + tulajdonsag("rx", std::abs(x2 - x1) / 2.0) +
             tulajdonsag("ry", std::abs(y2 - y1) / 2.0) + " fill=\"#fff\"" + toll(false) + "/>\n";
}

void SvgVaszon::MoveTo(int x, int y) {
    x_ = x;
    y_ = y;
}

/// A line along the pixels covers them whole, those of its ends too.
void SvgVaszon::LineTo(int x, int y) {
    const bool egyenes = (x == x_) != (y == y_) && toll_ <= legszelesebbSzogletes;
    const double tulnyulas = egyenes ? toll_ / 2.0 : 0;
    const auto hely = [&](int ertek, int irany) {
        return (egyenes ? egeszPixelen(ertek, toll_) : ertek + pixelKozep) + irany * tulnyulas;
    };
    const int iranyX = elojel(x - x_);
    const int iranyY = elojel(y - y_);
    rajz_ += "<line" + tulajdonsag("x1", hely(x_, -iranyX)) + tulajdonsag("y1", hely(y_, -iranyY)) +
             tulajdonsag("x2", hely(x, iranyX)) + tulajdonsag("y2", hely(y, iranyY)) + toll(!egyenes) +
             "/>\n";
    MoveTo(x, y);
}

void SvgVaszon::TextOut(int x, int y, std::string_view szoveg) {
    if (szoveg.empty() || magassag_ <= 0) return;
    const TKorvonal k = forras_(betutipus_, magassag_, szoveg);
    rajz_ += "<rect" + tulajdonsag("x", x) + tulajdonsag("y", y) + tulajdonsag("width", k.szelesseg) +
             tulajdonsag("height", magassag_) + " fill=\"#fff\" shape-rendering=\"crispEdges\"/>\n";
    if (k.utvonal.empty()) return;
    rajz_ += "<path" +
             tulajdonsag("transform", "translate(" + svgSzam(x) + " " + svgSzam(y + k.alapvonal) + ")") +
             tulajdonsag("d", k.utvonal) + "/>\n";
}

int SvgVaszon::TextWidth(std::string_view szoveg) {
    if (szoveg.empty() || magassag_ <= 0) return 0;
    return kerekit(forras_(betutipus_, magassag_, szoveg).szelesseg);
}

void SvgVaszon::Betu(std::string_view nev, int magassag) {
    betutipus_ = nev;
    magassag_ = magassag;
}
