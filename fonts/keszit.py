#!/usr/bin/python3
"""Makes the symbol font "Astro Symbols.ttf".

The bodies, signs and aspects are strokes of one width drawn here; the plain letters, figures and
punctuation are DejaVu Sans outlines, made smaller.

    keszit.py [--dejavu DejaVuSans.ttf] [--ki "Astro Symbols.ttf"]
"""

import argparse
import os
from math import acos, atan2, ceil, cos, degrees, hypot, radians, sin, sqrt, tan

from fontTools.fontBuilder import FontBuilder
from fontTools.misc.transform import Transform
from fontTools.pens.recordingPen import DecomposingRecordingPen
from fontTools.pens.transformPen import TransformPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import TTFont
from fontTools.ttLib.tables._g_l_y_f import flagOverlapSimple

NEV = "Astro Symbols"
VALTOZAT = "2.000"
IDO = 3786912000  # 2024-01-01 in the font's count of seconds: the file is the same at each making

EM = 2048
FELSO, ALSO = 1638, 410  # ascent, descent: together the em
VONAL = 160              # stroke width of every symbol
FEL = VONAL / 2
KOZEP = 627              # height of the symbols' centre above the baseline: half that of the figures
JELSZELES = 1820         # advance of every symbol
KICSINYIT = 0.84         # scale of the DejaVu outlines


# --- strokes ---------------------------------------------------------------------------------------------
# A path is a list of pieces that follow each other: ("L", p, q) or ("A", centre, radius, from, to) in
# degrees; an arc with to > from runs counter-clockwise.

def szakasz(*pontok):
    return [("L", p, q) for p, q in zip(pontok, pontok[1:])]


def iv(x, y, r, tol, ig):
    return [("A", (x, y), r, tol, ig)]


def iv3(p, m, q):
    """Arc from p to q through m."""
    (ax, ay), (bx, by), (cx, cy) = p, m, q
    d = 2 * (ax * (by - cy) + bx * (cy - ay) + cx * (ay - by))
    a2, b2, c2 = ax * ax + ay * ay, bx * bx + by * by, cx * cx + cy * cy
    x = (a2 * (by - cy) + b2 * (cy - ay) + c2 * (ay - by)) / d
    y = (a2 * (cx - bx) + b2 * (ax - cx) + c2 * (bx - ax)) / d
    tol, ig = (degrees(atan2(w[1] - y, w[0] - x)) for w in (p, q))
    balra = (bx - ax) * (cy - ay) - (by - ay) * (cx - ax) > 0
    if balra and ig < tol:
        ig += 360
    if not balra and ig > tol:
        ig -= 360
    return iv(x, y, hypot(ax - x, ay - y), tol, ig)


def kor(x, y, r):
    return iv(x, y, r, 0, 360)


def tukor(ut):
    """The path mirrored left to right."""
    ki = []
    for d in ut:
        if d[0] == "L":
            ki.append(("L", (-d[1][0], d[1][1]), (-d[2][0], d[2][1])))
        else:
            ki.append(("A", (-d[1][0], d[1][1]), d[2], 180 - d[3], 180 - d[4]))
    return ki


def forgat180(ut):
    ki = []
    for d in ut:
        if d[0] == "L":
            ki.append(("L", (-d[1][0], -d[1][1]), (-d[2][0], -d[2][1])))
        else:
            ki.append(("A", (-d[1][0], -d[1][1]), d[2], d[3] + 180, d[4] + 180))
    return ki


def vegpont(d, vege):
    """Point and unit direction at the start or the end of a piece."""
    if d[0] == "L":
        (ax, ay), (bx, by) = d[1], d[2]
        h = hypot(bx - ax, by - ay)
        return (d[2] if vege else d[1]), ((bx - ax) / h, (by - ay) / h)
    t = radians(d[4] if vege else d[3])
    s = 1 if d[4] > d[3] else -1
    return (d[1][0] + d[2] * cos(t), d[1][1] + d[2] * sin(t)), (-s * sin(t), s * cos(t))


def kvadIv(x, y, r, tol, ig):
    """Quadratic pieces (control, end) of an arc, at most 30 degrees each."""
    n = max(1, ceil(abs(ig - tol) / 30))
    a, l = radians(tol), radians(ig - tol) / n
    for i in range(n):
        k = a + l * (i + 0.5)
        v = a + l * (i + 1)
        rk = r / cos(l / 2)
        yield (x + rk * cos(k), y + rk * sin(k)), (x + r * cos(v), y + r * sin(v))


def eltolt(d, oldal):
    """The piece moved by half a stroke to its left (1) or right (-1)."""
    if d[0] == "L":
        _, (ux, uy) = vegpont(d, False)
        ex, ey = -uy * FEL * oldal, ux * FEL * oldal
        return ("L", (d[1][0] + ex, d[1][1] + ey), (d[2][0] + ex, d[2][1] + ey))
    s = 1 if d[4] > d[3] else -1
    r = d[2] - s * FEL * oldal
    assert r > 0, d
    return ("A", d[1], r, d[3], d[4])


def visszafele(d):
    return ("L", d[2], d[1]) if d[0] == "L" else ("A", d[1], d[2], d[4], d[3])


class Jel:
    """Gathers closed contours; a contour is a start point and a list of (control or None, end)."""

    def __init__(self):
        self.kontur = []

    def zart(self, darabok, pozitiv=True):
        """Closed contour of pieces, run so that its area is positive (outer) or negative (inner)."""
        terulet = 0.0
        elozo = vegpont(darabok[0], False)[0]
        kezdet = elozo
        ki = []
        for d in darabok:
            p = vegpont(d, False)[0]
            if hypot(p[0] - elozo[0], p[1] - elozo[1]) > 0.5:
                ki.append((None, p))
            if d[0] == "L":
                ki.append((None, d[2]))
            else:
                ki += kvadIv(d[1][0], d[1][1], d[2], d[3], d[4])
            elozo = ki[-1][1]
        pontok = [kezdet] + [q for _, q in ki]
        for (ax, ay), (bx, by) in zip(pontok, pontok[1:] + pontok[:1]):
            terulet += ax * by - bx * ay
        if (terulet > 0) != pozitiv:
            elol = [kezdet] + [q for _, q in ki]
            vez = [c for c, _ in ki]
            kezdet = elol[-1]
            ki = [(vez[i], elol[i]) for i in range(len(ki) - 1, -1, -1)]
        self.kontur.append((kezdet, ki))

    def korlap(self, x, y, r):
        self.zart(kor(x, y, r))

    def tomor(self, *pontok):
        self.zart(szakasz(*pontok, pontok[0]))

    def huz(self, *utak):
        """Strokes of the paths. Breaks between two lines are mitred, other breaks are rounded."""
        for ut in utak:
            self._huz(ut)

    def _huz(self, ut):
        if len(ut) == 1 and ut[0][0] == "A" and abs(ut[0][4] - ut[0][3]) == 360:
            d = ut[0]
            self.zart(kor(*d[1], d[2] + FEL))
            self.zart(kor(*d[1], d[2] - FEL), False)
            return
        (p, u), (q, v) = vegpont(ut[-1], True), vegpont(ut[0], False)
        if len(ut) > 2 and hypot(p[0] - q[0], p[1] - q[1]) < 1:
            self._sokszog(ut)
            return
        csik, sarkok = [ut[0]], []
        for elozo, d in zip(ut, ut[1:]):
            (p, u), (q, v) = vegpont(elozo, True), vegpont(d, False)
            assert hypot(p[0] - q[0], p[1] - q[1]) < 3, (p, q)
            egyutt = u[0] * v[0] + u[1] * v[1]
            if egyutt > 0.999:
                sarkok.append(None)
            elif elozo[0] == d[0] == "L" and egyutt > -0.9:
                sarkok.append(self._hegy(p, u, v))
            else:
                self._csik(csik, sarkok)
                self.korlap(*p, FEL)
                csik, sarkok = [], []
            csik.append(d)
        self._csik(csik, sarkok)

    @staticmethod
    def _hegy(p, u, v):
        """The points where the left and the right sides of two lines meet."""
        k = FEL / (1 + u[0] * v[0] + u[1] * v[1])
        x, y = -(u[1] + v[1]) * k, (u[0] + v[0]) * k
        return (p[0] + x, p[1] + y), (p[0] - x, p[1] - y)

    def _csik(self, ut, sarkok):
        """A stroke as one contour, its ends cut square; `sarkok` are the mitres between the pieces."""
        oldalak = []
        for i, oldal in enumerate((1, -1)):
            sor = [eltolt(d, oldal) for d in ut]
            for n, s in enumerate(sarkok):
                if s:
                    sor[n] = ("L", sor[n][1], s[i])
                    sor[n + 1] = ("L", s[i], sor[n + 1][2])
            oldalak.append(sor)
        bal, jobb = oldalak[0], [visszafele(d) for d in reversed(oldalak[1])]
        veg = [("L", vegpont(bal[-1], True)[0], vegpont(jobb[0], False)[0])]
        self.zart(bal + veg + jobb + [("L", vegpont(jobb[-1], True)[0], vegpont(bal[0], False)[0])])

    def _sokszog(self, ut):
        """A closed path of lines: an outer and an inner contour."""
        irany = [vegpont(d, False)[1] for d in ut]
        hegyek = [self._hegy(d[1], irany[n - 1], irany[n]) for n, d in enumerate(ut)]
        jobbra = sum(d[1][0] * d[2][1] - d[2][0] * d[1][1] for d in ut) < 0
        for i in (0, 1):
            pontok = [h[i] for h in hegyek]
            self.zart(szakasz(*pontok, pontok[0]), (i == 0) == jobbra)

    def keret(self):
        x, y = [], []
        for kezdet, ki in self.kontur:
            for q in [kezdet] + [q for _, q in ki]:
                x.append(q[0])
                y.append(q[1])
        return min(x), min(y), max(x), max(y)

    def glifa(self, szeles=JELSZELES, emeles=0):
        """The glyph, its outline centred in the advance and at the symbols' height, and lifted from there."""
        x0, y0, x1, y1 = self.keret()
        dx, dy = szeles / 2 - (x0 + x1) / 2, KOZEP + emeles - (y0 + y1) / 2
        pen = TTGlyphPen(None)

        def pont(q):
            return round(q[0] + dx), round(q[1] + dy)

        for kezdet, ki in self.kontur:
            # outer contours clockwise, as is the custom of the format
            elol = [kezdet] + [q for _, q in ki]
            pen.moveTo(pont(elol[-1]))
            for i in range(len(ki) - 1, -1, -1):
                if ki[i][0] is None:
                    if pont(elol[i]) != pont(elol[i + 1]):
                        pen.lineTo(pont(elol[i]))
                else:
                    pen.qCurveTo(pont(ki[i][0]), pont(elol[i]))
            pen.closePath()
        g = pen.glyph()
        g.flags[0] |= flagOverlapSimple
        return g


# --- the symbols; the centre of the drawing is about (0, 0), the strokes' lines reach to +-700 -----------
# Parallel strokes stand at least 180 apart, so that at 12 pixels a pixel of white stays between them.

def nap(j):
    j.huz(kor(0, 0, 660))
    j.korlap(0, 0, 165)


def hold(j):
    r = 680
    p, q = ((r * cos(radians(f)), r * sin(radians(f))) for f in (118, -118))
    j.huz(iv(0, 0, r, 118, -118), iv3(q, (140, 0), p))
    j.korlap(*p, FEL)
    j.korlap(*q, FEL)


def merkur(j):
    j.huz(iv3((-460, 760), (0, 480), (460, 760)), kor(0, 155, 325), szakasz((0, -170), (0, -775)),
          szakasz((-430, -510), (430, -510)))


def venusz(j):
    j.huz(kor(0, 270, 430), szakasz((0, -160), (0, -775)), szakasz((-430, -475), (430, -475)))


def mars(j):
    j.huz(kor(-170, -190, 450), szakasz((148, 128), (640, 620)), szakasz((170, 660), (680, 660), (680, 150)))


def jupiter(j):
    r, x, y, bar = 310, -280, 400, -290
    px, py = x + r * sqrt(0.5), y - r * sqrt(0.5)
    j.huz(iv(x, y, r, 170, -45) + szakasz((px, py), (px - (py - bar), bar), (680, bar)),
          szakasz((400, 640), (400, -720)))


def szaturnusz(j):
    r, k, c = 330, 170, sqrt(0.5)
    x, y = 10, -185
    p = (x + r * c, y - r * c)
    j.huz(szakasz((-300, 780), (-300, -640)), szakasz((-650, 505), (50, 505)),
          iv(x, y, r, 160, -45) + iv(p[0] + k * c, p[1] - k * c, k, 135, 320))


def uranusz(j):
    bal = iv3((-580, 710), (-460, 310), (-580, -90))
    j.huz(bal, tukor(bal), szakasz((-460, 310), (460, 310)), szakasz((0, 730), (0, -190)), kor(0, -440, 250))


def neptunusz(j):
    r = 480
    j.huz(szakasz((-r, 720), (-r, 300)) + iv(0, 300, r, 180, 360) + szakasz((r, 300), (r, 720)),
          szakasz((0, 760), (0, -760)), szakasz((-370, -470), (370, -470)))


def pluto(j):
    j.huz(szakasz((470, -680), (-400, -680), (-400, 680), (60, 680)) + iv(60, 330, 350, 90, -90)
          + szakasz((60, -20), (-400, -20)))


def kos(j):
    r, f, k = 4500, 15, 280
    x, y = -r * (1 - cos(radians(f))), -740 + r * sin(radians(f))
    bal = iv(-r, -740, r, 0, f) + iv(x - k * cos(radians(f)), y - k * sin(radians(f)), k, f, 215)
    j.huz(bal, tukor(bal))


def bika(j):
    j.huz(kor(0, -280, 410), iv3((-580, 700), (0, 130), (580, 700)))


def ikrek(j):
    fent = iv3((-580, 700), (0, 560), (580, 700))
    j.huz(fent, forgat180(fent), szakasz((-270, 590), (-270, -590)), szakasz((270, 590), (270, -590)))


def rak(j):
    r = 265
    ut = iv(-60, 60, 650, 180, 90) + iv(-60, 710 - 1290, 1290, 90, 58)
    gomb = kor(-710 + r, 60, r)
    j.huz(gomb, ut, forgat180(gomb), forgat180(ut))


def oroszlan(j):
    r = 390
    y = 310
    p = (r * cos(radians(205)), y + r * sin(radians(205)))
    u = (cos(radians(-65)), sin(radians(-65)))
    q = (p[0] + 200 * u[0], p[1] + 200 * u[1])
    k = 280
    j.huz(kor(q[0] - k * cos(radians(25)), q[1] - k * sin(radians(25)), k))
    s = (r * cos(radians(-25)), y + r * sin(radians(-25)))
    v = (-u[0], u[1])
    t = (s[0] + 500 * v[0], s[1] + 500 * v[1])
    h = 230
    j.huz(szakasz(q, p) + iv(0, y, r, 205, -25) + szakasz(s, t)
          + iv(t[0] + h * cos(radians(25)), t[1] - h * sin(radians(25)), h, 155, 335))


def emBetu(j, x, kez, also, also3, veg):
    """The m of Virgo and Scorpio, its stems `kez` apart; `veg` goes on from the third's foot at `also3`."""
    k = kez / 2
    y = 695 - k
    j.huz(szakasz((x, also), (x, y)) + iv(x + k, y, k, 180, 0) + szakasz((x + kez, y), (x + kez, also)),
          iv(x + 3 * k, y, k, 180, 0) + szakasz((x + 2 * kez, y), (x + 2 * kez, also3)) + veg)


def szuz(j):
    emBetu(j, -690, 410, -540, -250, iv(650, -250, 520, 180, 236))
    j.huz(iv(345, 180, 215, 180, 0) + iv(560 - 920, 180, 920, 0, -71))


def merleg(j):
    r = 440
    h = degrees(acos(280 / r))
    y = -130 + sqrt(r * r - 280 * 280)
    j.huz(szakasz((-700, -570), (700, -570)),
          szakasz((-700, -130), (-280, -130)) + iv(0, y, r, 180 + h, -h) + szakasz((280, -130), (700, -130)))


def skorpio(j):
    emBetu(j, -720, 420, -600, -340, iv(300, -340, 180, 180, 270) + szakasz((300, -520), (690, -520)))
    j.huz(szakasz((490, -270), (690, -520), (490, -770)))


def nyilas(j):
    j.huz(szakasz((-660, -660), (640, 640)), szakasz((70, 660), (660, 660), (660, 70)),
          szakasz((-560, 80), (80, -560)))


def bak(j):
    """The second stem bends into the loop; the loop's end crosses it and becomes the tail."""
    x, y = 0, -350                          # where the strokes cross
    dol, fel = radians(17), radians(48)     # slope of the loop's middle line, half the angle of the crossing
    r, nagy, k, q, hossz = 290, 360, 225, 200, 230
    be, ki = dol - fel, dol + fel           # directions at the crossing, into the loop and back along its end
    t = r / tan(fel)                        # from the crossing to where the loop's circle begins and ends
    d = r / sin(fel)
    x2, y2 = x - nagy * (1 + sin(be)), y + nagy * cos(be)
    p = (x - hossz * cos(ki), y - hossz * sin(ki))
    j.huz(szakasz((x2 - 2 * k, -170), (x2 - 2 * k, 475)) + iv(x2 - k, 475, k, 180, 0)
          + szakasz((x2, 475), (x2, y2)) + iv(x2 + nagy, y2, nagy, 180, 270 + degrees(be))
          + szakasz((x, y), (x + t * cos(be), y + t * sin(be)))
          + iv(x + d * cos(dol), y + d * sin(dol), r, degrees(be) - 90, degrees(ki) + 90)
          + szakasz((x + t * cos(ki), y + t * sin(ki)), p)
          + iv(p[0] - q * sin(ki), p[1] + q * cos(ki), q, degrees(ki) - 90, -90))


def vizonto(j):
    x = [-710 + 284 * i for i in range(6)]
    j.huz(szakasz(*[(a, 510 if i % 2 else 190) for i, a in enumerate(x)]),
          szakasz(*[(a, -190 if i % 2 else -510) for i, a in enumerate(x)]))


def halak(j):
    bal = iv3((-600, 700), (-290, 0), (-600, -700))
    j.huz(bal, tukor(bal), szakasz((-620, 0), (620, 0)))


def egyuttallas(j):
    j.huz(kor(-170, -170, 430), szakasz((134, 134), (640, 640)))


def felSextil(j):
    j.huz(szakasz((-640, -460), (640, -460)), szakasz((-440, 520), (0, -380), (440, 520)))


def felNegyzet(j):
    j.huz(szakasz((540, 540), (-520, -440), (660, -440)))


def szextil(j):
    for f in (30, 90, 150):
        x, y = 700 * cos(radians(f)), 700 * sin(radians(f))
        j.huz(szakasz((-x, -y), (x, y)))


def negyzet(j):
    j.huz(szakasz((-550, -550), (550, -550), (550, 550), (-550, 550), (-550, -550)))


def haromszog(j):
    j.huz(szakasz((-630, -520), (630, -520), (0, 570), (-630, -520)))


def masfelNegyzet(j):
    j.huz(szakasz((-540, -40), (200, -40), (200, 700), (-540, 700), (-540, -40)),
          szakasz((200, -40), (-280, -660), (600, -660)))


def kvinkunx(j):
    j.huz(szakasz((-640, 460), (640, 460)), szakasz((-440, -520), (0, 380), (440, -520)))


def szembenallas(j):
    r, c = 285, 405
    s = c - r * sqrt(0.5)
    j.huz(kor(-c, -c, r), kor(c, c, r), szakasz((-s, -s), (s, s)))


def elvalaszto(j):
    j.korlap(0, 0, 190)


NAGYBETU = 627  # half the height of the figures and the Roman figures


def egy(j):
    j.tomor((-FEL, -NAGYBETU), (FEL, -NAGYBETU), (FEL, NAGYBETU), (-FEL, NAGYBETU))


def ferde(dx, dy):
    """Width that a slanted stroke has on a level line."""
    return VONAL * hypot(dx, dy) / dy


def ot(j):
    k, t = 540, 95
    v = ferde(k - t, 2 * NAGYBETU)
    j.tomor((-k, NAGYBETU), (v - k, NAGYBETU), (0, v / (k - t) * NAGYBETU - NAGYBETU), (k - v, NAGYBETU),
            (k, NAGYBETU), (t, -NAGYBETU), (-t, -NAGYBETU))


def tiz(j):
    k = 540
    v = ferde(2 * k - VONAL, 2 * NAGYBETU)
    for s in (1, -1):
        j.tomor((-s * k, NAGYBETU), (s * (v - k), NAGYBETU), (s * k, -NAGYBETU), (s * (k - v), -NAGYBETU))


BETUK = {
    "A": nap, "B": hold, "C": merkur, "D": venusz, "E": mars, "F": jupiter, "G": szaturnusz, "H": uranusz,
    "I": neptunusz, "J": pluto,
    "a": kos, "b": bika, "c": ikrek, "d": rak, "e": oroszlan, "f": szuz, "g": merleg, "h": skorpio,
    "i": nyilas, "j": bak, "k": vizonto, "l": halak,
    "M": egyuttallas, "N": felSextil, "O": felNegyzet, "P": szextil, "R": negyzet, "S": haromszog,
    "T": masfelNegyzet, "V": kvinkunx, "W": szembenallas,
    "Q": elvalaszto, "w": egy, "v": ot, "x": tiz,
}
SZELES = {"Q": 900, "w": 520, "v": 1180, "x": 1180}  # advances other than JELSZELES
# What has its weight at the foot or the head looks too low or too high in the middle of its cell.
EMELES = {"a": -50, "g": 30, "N": 40, "O": 50, "S": 70, "V": -40}


def atvett(forras, jel):
    """A DejaVu glyph and its advance, made smaller."""
    nev = forras.getBestCmap()[ord(jel)]
    keszlet = forras.getGlyphSet()
    rec = DecomposingRecordingPen(keszlet)
    keszlet[nev].draw(rec)
    pen = TTGlyphPen(None)
    rec.replay(TransformPen(pen, Transform(KICSINYIT, 0, 0, KICSINYIT, 0, 0)))
    g = pen.glyph()
    g.coordinates.toInt()
    return g, round(forras["hmtx"][nev][0] * KICSINYIT)


def keszit(dejavu, ki):
    forras = TTFont(dejavu)
    assert forras["head"].unitsPerEm == EM
    ures = Jel()
    ures.huz(szakasz((-400, -600), (400, -600), (400, 600), (-400, 600), (-400, -600)))
    sorrend, glifak, szelesseg, cmap = [".notdef"], {".notdef": ures.glifa(1094)}, {".notdef": 1094}, {}
    szam = atvett(forras, "0")[1]
    for kod in [*range(0x20, 0x7F), 0xA0, 0xB0]:
        jel = chr(kod)
        nev = f"uni{kod:04X}"
        if jel in BETUK:
            j = Jel()
            BETUK[jel](j)
            szelesseg[nev] = SZELES.get(jel, JELSZELES)
            glifak[nev] = j.glifa(szelesseg[nev], EMELES.get(jel, 0))
        else:
            glifak[nev], szelesseg[nev] = atvett(forras, jel)
            if jel in " \u00a0":
                szelesseg[nev] = szam
        sorrend.append(nev)
        cmap[kod] = nev

    fb = FontBuilder(EM, isTTF=True)
    fb.font.recalcTimestamp = False
    fb.setupGlyphOrder(sorrend)
    fb.setupCharacterMap(cmap)
    fb.setupGlyf(glifak)
    meretek = {n: (szelesseg[n], getattr(glifak[n], "xMin", 0)) for n in sorrend}
    fb.setupHorizontalMetrics(meretek)
    fb.setupHorizontalHeader(ascent=FELSO, descent=-ALSO, lineGap=0)
    fb.setupNameTable({
        "copyright": "Letters, figures and punctuation: Copyright (c) 2003 by Bitstream, Inc. All Rights "
                     "Reserved. DejaVu changes are in public domain. The symbols are new drawings and in "
                     "public domain.",
        "familyName": NEV,
        "styleName": "Regular",
        "uniqueFontIdentifier": f"{NEV} {VALTOZAT}",
        "fullName": NEV,
        "version": f"Version {VALTOZAT}",
        "psName": "AstroSymbols-Regular",
        "licenseDescription": "Free to use, copy, change and pass on; see the LICENSE file.",
    }, mac=False)
    fb.setupOS2(version=4, sTypoAscender=FELSO, sTypoDescender=-ALSO, sTypoLineGap=0, usWinAscent=FELSO,
                usWinDescent=ALSO, fsSelection=0x40 | 0x80, usWeightClass=400, usWidthClass=5, fsType=0,
                sxHeight=round(1120 * KICSINYIT), sCapHeight=round(1493 * KICSINYIT),
                xAvgCharWidth=round(sum(szelesseg.values()) / len(szelesseg)), achVendID="    ",
                ulUnicodeRange1=3, ulCodePageRange1=1)
    fb.setupPost(underlinePosition=-200, underlineThickness=round(VONAL / 2))
    fb.setupHead(unitsPerEm=EM, created=IDO, modified=IDO, fontRevision=float(VALTOZAT), lowestRecPPEM=8)
    fb.save(ki)


if __name__ == "__main__":
    itt = os.path.dirname(os.path.abspath(__file__))
    p = argparse.ArgumentParser(description=f"Makes the font {NEV}.")
    p.add_argument("--dejavu", default="/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf")
    p.add_argument("--ki", default=os.path.join(itt, f"{NEV}.ttf"))
    a = p.parse_args()
    keszit(a.dejavu, a.ki)
