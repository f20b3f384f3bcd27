#!/usr/bin/python3
"""Draws sheets of the symbol font's glyphs, to judge them by eye, without a display.

Every symbol stands beside the Unicode characters of the same meaning in DejaVu Sans and Symbola, which are
there for comparison only. The outlines are drawn unhinted by Qt, as the program draws them.

    lap.py [--mellett font.ttf] [folder]

leaves in the folder (the present one, if none is named)

    lap-*.png       bodies, signs, aspects at 9, 12, 16, 24, 40 and 100 pixels, in their cells
    nagyitva-*.png  the same at 9, 12 and 16 pixels, each pixel eight times as large
    sorok.png       runs of text as the program's lists show them, and the other letters

--mellett puts one more font of the same letters beside it, such as an earlier edition.

Debian: python3-pyqt6, fonts-dejavu-core, fonts-symbola
"""

import argparse
import os

os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")

from PyQt6.QtCore import QPointF, QRectF, Qt  # noqa: E402
from PyQt6.QtGui import QColor, QFont, QGlyphRun, QGuiApplication, QImage, QPainter, QRawFont  # noqa: E402

MERETEK = (9, 12, 16, 24, 40, 100)
NAGYITOTT = (9, 12, 16)
NAGYITAS = 8
HEZAG = 6  # pixels between two cells
DEJAVU = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"
SYMBOLA = "/usr/share/fonts/truetype/ancient-scripts/Symbola_hint.ttf"

# letter of the symbol font and the Unicode character that means the same
JELEK = {"bolygok": [*zip("ABCDEFGHIJ", "\u2609\u263d\u263f\u2640\u2642\u2643\u2644\u2645\u2646\u2647")],
         "jegyek": [*zip("abcdefghijkl", map(chr, range(0x2648, 0x2654)))],
         "fenyszogek": [*zip("MNOPRSTVW", "\u260c\u26ba\u2220\u26b9\u25a1\u25b3\u26bc\u26bb\u260d"),
                        *zip("Qwvx", "\u00b7IVX")]}

SOROK = ["ABCDEFGHIJ abcdefghijkl MNOPRSTVW", "0123456789 .,:;()-+'\"/° KLUXYZ mnopqrstuyz",
         "aAMhCQfBWlEQjGMkF", " AMC BMG HMJ", "2024.03.09.   vww          CSFRGM",
         "w 2 3 wv 5 6 vww 8 9 x 11 12",
         "3. AMhC(04:17:33) GW(23:05:09) ", "vww   AMCS; ...;  ER; ...;  "]


def betu(fajl, meret):
    b = QRawFont(fajl, meret, QFont.HintingPreference.PreferNoHinting)
    if not b.isValid():
        raise SystemExit(f"no font: {fajl}")
    return b


def ir(festo, b, x, y, szoveg):
    """The text with its baseline at y; nothing, if the font lacks one of its letters."""
    szamok = b.glyphIndexesForString(szoveg)
    if 0 in szamok:
        return
    helyek = []
    for elore in b.advancesForGlyphIndexes(szamok):
        helyek.append(QPointF(x, y))
        x += elore.x()
    sor = QGlyphRun()
    sor.setRawFont(b)
    sor.setGlyphIndexes(szamok)
    sor.setPositions(helyek)
    festo.drawGlyphRun(QPointF(0, 0), sor)


def lap(szeles, magas):
    kep = QImage(szeles, magas, QImage.Format.Format_RGB32)
    kep.fill(Qt.GlobalColor.white)
    return kep


def kozepre(festo, b, cella, szoveg):
    """The text in the middle of its cell by its advance, its baseline where the cells of our font have it."""
    szamok = b.glyphIndexesForString(szoveg)
    szel = sum(e.x() for e in b.advancesForGlyphIndexes(szamok))
    ir(festo, b, cella.center().x() - szel / 2, cella.bottom() - 0.2 * cella.height(), szoveg)


def tabla(jelek, fajlok, meretek, keret):
    """One row a symbol, in it every font at every size; `keret` draws the cells and their middle lines."""
    oszlop = sum(m + HEZAG for m in meretek) + 4 * HEZAG
    sor = max(meretek) + HEZAG
    kep = lap(oszlop * len(fajlok) + HEZAG, sor * len(jelek) + HEZAG)
    festo = QPainter(kep)
    for f, (fajl, sajat) in enumerate(fajlok):
        x = HEZAG + f * oszlop
        for m in meretek:
            b = betu(fajl, m)
            for n, jel in enumerate(jelek):
                cella = QRectF(x, HEZAG + n * sor + (sor - HEZAG - m) // 2, m, m)
                if keret:
                    festo.setPen(QColor(215, 225, 255))
                    festo.drawRect(cella)
                    k = cella.center()
                    festo.drawLine(QPointF(cella.left(), k.y()), QPointF(cella.right(), k.y()))
                    festo.drawLine(QPointF(k.x(), cella.top()), QPointF(k.x(), cella.bottom()))
                festo.setPen(Qt.GlobalColor.black)
                kozepre(festo, b, cella, jel[0 if sajat else 1])
            x += m + HEZAG
    festo.end()
    return kep


def sorok(fajlok):
    fajlok = [f for f, sajat in fajlok if sajat]
    meretek = (12, 14, 18, 24, 40)
    kep = lap(1500, sum(meretek) * len(SOROK) * len(fajlok) + 2 * HEZAG)
    festo = QPainter(kep)
    y = 0
    for m in meretek:
        for szoveg in SOROK:
            for fajl in fajlok:
                y += m
                ir(festo, betu(fajl, m), HEZAG, y, szoveg)
    festo.end()
    return kep


def ment(kep, mappa, nev):
    ut = os.path.join(mappa, nev)
    if not kep.save(ut):
        raise SystemExit(f"cannot write {ut}")
    print(ut)


if __name__ == "__main__":
    itt = os.path.dirname(os.path.abspath(__file__))
    p = argparse.ArgumentParser(description="Draws sheets of the symbol font's glyphs.")
    p.add_argument("--mellett", help="one more font of the same letters")
    p.add_argument("mappa", nargs="?", default=".")
    a = p.parse_args()
    alkalmazas = QGuiApplication([])
    lista = [(os.path.join(itt, "Astro Symbols.ttf"), True)]
    if a.mellett:
        lista.append((a.mellett, True))
    lista += [(DEJAVU, False), (SYMBOLA, False)]
    for nev, jelek in JELEK.items():
        ment(tabla(jelek, lista, MERETEK, True), a.mappa, f"lap-{nev}.png")
        kicsi = tabla(jelek, lista, NAGYITOTT, False)
        nagy = kicsi.scaled(kicsi.width() * NAGYITAS, kicsi.height() * NAGYITAS)
        ment(nagy, a.mappa, f"nagyitva-{nev}.png")
    ment(sorok(lista), a.mappa, "sorok.png")
