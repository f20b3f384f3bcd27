#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include <QFont>
#include <QGlyphRun>
#include <QPainterPath>
#include <QRawFont>
#include <QString>

/// Glyphs of a text in a row; none if the face lacks one of its characters.
struct TJelSor {
    QGlyphRun futam;
    double szelesseg = 0;
    bool megvan = false;
};

/// A face in one size; kept, since its glyph pictures go with it, and so are the rows of glyphs drawn with
/// it.
struct TMeretezettBetu {
    QRawFont betu;
    std::map<std::string, TJelSor, std::less<>> sorok;

    const TJelSor& sor(std::string_view szoveg);
};

/// @param magassag  of the character cell in pixels, above 0
std::shared_ptr<TMeretezettBetu> meretezettBetu(const std::string& nev, int magassag);

/// A text as it is drawn, in shapes: from the left end of its base line; its width, and its cell's top to the
/// base line.
struct TSzovegAlak {
    QPainterPath alak;
    double szelesseg = 0;
    double alapvonal = 0;
};

/// @param magassag  of the character cell, above 0
TSzovegAlak szovegAlak(const QString& betu, int magassag, const QString& szoveg);

/// A font whose character cell, ascent and descent together, is so many pixels high.
/// @param dpi  resolution of the device that it is used on
QFont cellaMagassaguBetu(const QString& nev, int magassag, int dpi);
