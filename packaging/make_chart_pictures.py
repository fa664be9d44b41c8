#!/usr/bin/env python3
"""Writes data/Graphical.xml and the pictures of data/Styles/denti.

Teeth are drawn as seen from the cheek. An outline is described once, for the upper right of the mouth: apexes above, biting
edge below, the midline of the face on the right. The other three quarters are mirrored point by point, so that the light comes
from the left on every tooth. Run it from the root of the sources after changing an outline, a service or a situation;
practices change the installed files instead.
"""
import pathlib
import re
from dataclasses import dataclass
from xml.sax.saxutils import quoteattr

DATA = pathlib.Path("data")
PICTURES = DATA / "Styles" / "denti"
W, H, MIDDLE, EDGE = 40.0, 84.0, 20.0, 82.0


@dataclass(frozen=True)
class Form:
    crown: float  # widths, the crown's where it is widest
    neck: float
    line: float  # height of the neck
    belly: float  # height where the crown is widest
    edge: str  # "incisor", "canine", "premolar" or the number of cusps on the cheek's side
    apexes: tuple  # (across, height), those on the cheek's side
    fork: float = 0  # height where the roots part
    behind: tuple = ()  # apex of the root on the palate, seen between the others


UPPER = {
    "incisivo": Form(26, 18.5, 48, 68, "incisor", ((18.4, 8),)),
    "laterale": Form(20.5, 14.5, 49, 67, "incisor", ((16.8, 9),)),
    "canino": Form(24, 17.5, 48, 64, "canine", ((17.2, 1.5),)),
    "premolare1": Form(23, 17, 52, 66, "premolar", ((14.4, 13), (23.6, 15)), 27),
    "premolare2": Form(22.5, 16, 52, 66, "premolar", ((17.6, 11),)),
    "molare": Form(34, 26, 55, 68, "2", ((9.5, 17), (28, 16)), 41, (19.5, 9.5)),
    "giudizio": Form(29, 22, 56, 68.5, "2", ((12.5, 24), (24, 22)), 38, (17, 18)),
    "incisivo_latte": Form(26, 17, 55, 70, "incisor", ((19, 15),)),
    "canino_latte": Form(26, 17, 54, 67, "canine", ((18.6, 9),)),
    "molare_latte": Form(35, 24, 59, 70, "2", ((4, 20), (36, 19)), 51, (19.5, 15)),
}
LOWER = {
    "incisivo": Form(16.5, 12, 50, 71, "incisor", ((19.2, 13),)),
    "laterale": Form(18, 13, 50, 70, "incisor", ((17.8, 11),)),
    "canino": Form(22, 16.5, 47, 64, "canine", ((18, 3),)),
    "premolare1": Form(22, 15.5, 52, 66, "premolar", ((17.8, 13),)),
    "premolare2": Form(23, 16.5, 53, 67, "premolar", ((17.2, 11),)),
    "molare": Form(36, 28, 56, 68.5, "3", ((8.5, 15), (26, 13.5)), 43),
    "giudizio": Form(32, 25, 57, 69, "2", ((10, 24), (22.5, 22)), 39),
    "incisivo_latte": Form(21, 14, 56, 72, "incisor", ((19.2, 17),)),
    "canino_latte": Form(24, 15.5, 54, 67, "canine", ((18.8, 11),)),
    "molare_latte": Form(36, 25, 59, 70.5, "3", ((4, 18), (36, 17)), 51),
}
OUTLINES = {("sup", k): v for k, v in UPPER.items()} | {("inf", k): v for k, v in LOWER.items()}


def n(value):
    return f"{value:.1f}".rstrip("0").rstrip(".")


def points(*pairs):
    return " ".join(f"{n(x)} {n(y)}" for x, y in pairs)


def sides(form):
    return MIDDLE - form.crown / 2, MIDDLE + form.crown / 2, MIDDLE - form.neck / 2, MIDDLE + form.neck / 2


def edge(form):
    """From the widest point on the side of the ear to the one on the side of the midline, by way of the bite."""
    far, near, _, _ = sides(form)
    belly = form.belly
    if form.edge == "incisor":  # the corner towards the midline is the sharper one
        return (f"C{points((far + .2, belly + 8), (far + 1.4, EDGE - 1), (far + 5, EDGE - .4))}"
                f"Q{points((MIDDLE, EDGE + .9), (near - 2.6, EDGE + .2))}C{points((near - .6, EDGE), (near, belly + 8), (near, belly))}")
    if form.edge in ("canine", "premolar"):
        tip, drop = (MIDDLE + 1.2, 8.5) if form.edge == "canine" else (MIDDLE + .3, 5.2)
        return (f"C{points((far, belly + 5), (far + 1.2, EDGE - drop - 1), (far + 3.4, EDGE - drop + 1))}"
                f"Q{points((tip - 3.4, EDGE - 1.2), (tip - 1.3, EDGE))}Q{points((tip, EDGE + 1), (tip + 1.3, EDGE))}"
                f"Q{points((tip + 3, EDGE - 1.2), (near - 2.4, EDGE - drop))}C{points((near - .8, EDGE - drop - 2), (near, belly + 4), (near, belly))}")
    cusps, valley = int(form.edge), EDGE - 3.4
    step = (near - far - 3) / cusps
    path = f"Q{points((far, valley - 4), (far + 1.5, valley - .5))}"
    for cusp in range(cusps):
        start = far + 1.5 + step * cusp
        end = valley - .5 if cusp + 1 == cusps else valley
        path += f"C{points((start + step * .22, EDGE + 1), (start + step * .72, EDGE + 1.6), (start + step, end))}"
    return path + f"Q{points((near, valley - 4), (near, belly))}"


def crown(form):
    far, near, neck_far, neck_near = sides(form)
    line, belly = form.line, form.belly
    rise = 3.4 if form.edge in ("incisor", "canine") else 2.4
    return (f"M{points((neck_far, line))}C{points((neck_far - .6, line + 4), (far, belly - 7), (far, belly))}{edge(form)}"
            f"C{points((near, belly - 7), (neck_near + .6, line + 4), (neck_near, line))}"
            f"C{points((neck_near - 3, line - rise), (neck_far + 3, line - rise), (neck_far, line))}Z")


def apex(across, top, turn):
    """Round the tip, which leans away from the midline."""
    return f"C{points((across - 1.9 + turn, top + 1.2), (across - .9 + turn, top - .5), (across + .4, top))}" \
           f"Q{points((across + 1.5, top + .4), (across + 1.9, top + 2.6))}"


def roots(form):
    _, _, far, near = sides(form)
    count, line = len(form.apexes), form.line
    path = f"M{points((far, line))}"
    for number, (across, top) in enumerate(form.apexes):
        first, last = number == 0, number + 1 == count
        start = far if first else far + form.neck * number / count + .8
        end = near if last else far + form.neck * (number + 1) / count - .8
        begin, finish = (line if first else form.fork), (line if last else form.fork)
        length = line - top
        path += (f"C{points((start - (.2 if first else 0), begin - length * .24), (across - 4.6, top + length * .36), (across - 2, top + 3.4))}"
                 f"{apex(across, top, -.3)}"
                 f"C{points((across + 4.4, top + length * .38), (end + (.2 if last else 0), finish - length * .22), (end, finish))}")
        if not last:
            path += f"Q{points((end + .8, form.fork + 1.6), (end + 1.6, form.fork))}"
    return path + f"C{points((near - 3, line - 2), (far + 3, line - 2), (far, line))}Z"


def root_behind(form):
    across, top = form.behind
    return (f"M{points((MIDDLE - 6, form.line - 3))}C{points((MIDDLE - 7, form.fork - 6), (across - 5, top + 14), (across - 2, top + 3))}"
            f"{apex(across, top, 0)}C{points((across + 5, top + 14), (MIDDLE + 7, form.fork - 6), (MIDDLE + 6, form.line - 3))}Z")


def grooves(form):
    far, near, _, _ = sides(form)
    if form.edge == "incisor":  # what is left of the three lobes
        return "".join(f"M{points((MIDDLE + x, EDGE - 2))}Q{points((MIDDLE + x * .9, EDGE - 7), (MIDDLE + x * .8, EDGE - 11))}"
                       for x in (-form.crown * .17, form.crown * .17))
    if not form.edge.isdigit():
        return "".join(f"M{points((MIDDLE + x, EDGE - 7))}Q{points((MIDDLE + x * .9, form.belly), (MIDDLE + x * .7, form.belly - 6))}"
                       for x in (-form.crown * .22, form.crown * .24))
    cusps = int(form.edge)
    step = (near - far - 3) / cusps
    return "".join(f"M{points((far + 1.5 + step * cusp, EDGE - 3.4))}Q{points((far + 2.1 + step * cusp, EDGE - 8), (far + 1.5 + step * cusp, form.belly - 1))}"
                   for cusp in range(1, cusps))


def gum(form):
    far, near, neck_far, neck_near = sides(form)
    return f"M{points((far - .5, form.line + 3.6))}C{points((neck_far + 1, form.line - 4.4), (neck_near - 1, form.line - 4.4), (near + .5, form.line + 3.6))}"


def canals(form):
    tops = [*form.apexes, form.behind] if form.behind else form.apexes
    return "".join(f"M{points((MIDDLE + (across - MIDDLE) * .3, form.line + 8))}"
                   f"Q{points((MIDDLE + (across - MIDDLE) * .55, form.line - 12), (across + .3, top + 4))}" for across, top in tops)


def disc(x, y, r):
    k = r * .55
    return (f"M{points((x - r, y))}C{points((x - r, y - k), (x - k, y - r), (x, y - r))}C{points((x + k, y - r), (x + r, y - k), (x + r, y))}"
            f"C{points((x + r, y + k), (x + k, y + r), (x, y + r))}C{points((x - k, y + r), (x - r, y + k), (x - r, y))}Z")


GRADIENTS = {
    "e": ("#f4f4f0", ".28", "#ffffff", "#cdc7b8"),  # enamel
    "n": ("#e9d8ae", "0", "#e9d8ae", "#d8c18c"),  # its warmer part at the neck
    "r": ("#ecd9b0", ".3", "#f9ecd0", "#c9ab78"),  # root
    "b": ("#d8bf90", ".3", "#e3cda2", "#b89a69"),  # root behind
    "o": ("#e3b94a", ".3", "#fff0b8", "#b5851a"),  # gold
    "m": ("#aab4bf", ".35", "#f4f7f9", "#76828e"),  # metal
}


def gradient(name):
    first, place, light, last = GRADIENTS[name]
    return (f'<linearGradient id="{name}"><stop offset="0" stop-color="{first}"/><stop offset="{place}" stop-color="{light}"/>'
            f'<stop offset="1" stop-color="{last}"/></linearGradient>')


def mirrored(match, arch, side):
    """The points of one path, moved to their quarter of the mouth."""
    def move(pair):
        x, y = float(pair[1]), float(pair[2])
        return f"{n(W - x if side == 'sx' else x)} {n(H - y if arch == 'inf' else y)}"
    return ' d="' + re.sub(r"(-?[\d.]+) (-?[\d.]+)", move, match[1]) + '"'


def write(name, content, width=W, height=H, arch="sup", side="dx"):
    turned = re.sub(r' d="([^"]*)"', lambda match: mirrored(match, arch, side), content)
    used = "".join(gradient(key) for key in GRADIENTS if f"url(#{key})" in turned)
    defs = f"<defs>{used}</defs>" if used else ""
    (PICTURES / f"{name}.svg").write_text(
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{n(width)}" height="{n(height)}" '
        f'viewBox="0 0 {n(width)} {n(height)}">{defs}{turned}</svg>\n', encoding="utf-8")


def root_part(form):
    soft = 'stroke="#a58b5e" stroke-opacity=".75" stroke-width=".8" stroke-linejoin="round"'
    behind = f'<path d="{root_behind(form)}" fill="url(#b)" {soft}/>' if form.behind else ""
    lines = "".join(f"M{points((MIDDLE + (x - MIDDLE) * .75 + 1.6, form.line - 5))}"
                    f"Q{points((MIDDLE + (x - MIDDLE) * .9 + 1.8, (form.line + y) / 2), (x + 1, y + 9))}" for x, y in form.apexes)
    return (f'{behind}<path d="{roots(form)}" fill="url(#r)" {soft}/>'
            f'<path d="{lines}" fill="none" stroke="#b8985f" stroke-opacity=".35" stroke-width="1.1" stroke-linecap="round"/>')


def crown_part(form, fill="url(#e)", stroke="#8f897c"):
    far, near, neck_far, neck_near = sides(form)
    line = form.line
    warm = (f"M{points((neck_far, line))}C{points((neck_far - .4, line + 3), (far + 1.4, form.belly - 8), (far + 1, form.belly - 5))}"
            f"Q{points((MIDDLE, line + 5), (near - 1, form.belly - 5))}C{points((near - 1.4, form.belly - 8), (neck_near + .4, line + 3), (neck_near, line))}"
            f"C{points((neck_near - 3, line - 2.6), (neck_far + 3, line - 2.6), (neck_far, line))}Z")
    tint = f'<path d="{warm}" fill="url(#n)" fill-opacity=".36"/>' if fill == "url(#e)" else ""
    return (f'<path d="{crown(form)}" fill="{fill}"/>{tint}'
            f'<path d="{grooves(form)}" fill="none" stroke="#8f897c" stroke-opacity=".38" stroke-width=".9" stroke-linecap="round"/>'
            f'{shine(form)}<path d="{crown(form)}" fill="none" stroke="{stroke}" stroke-width=".9" stroke-linejoin="round"/>')


def shine(form):
    """Where the light of the lamp lies on the enamel; "LIGHT" is put on the left once the quarter is known."""
    return f"<LIGHT {n(form.crown * .2)} {n((form.belly + form.line) / 2 + 4)} {n(form.crown * .075)}>"


def lit(content, arch):
    def light(match):
        away, height, width = (float(value) for value in match.groups())
        y = H - height if arch == "inf" else height
        return (f'<ellipse cx="{n(MIDDLE - away)}" cy="{n(y)}" rx="{n(width)}" ry="{n(width * 3)}" fill="#fff" fill-opacity=".85"/>')
    return re.sub(r"<LIGHT ([\d.]+) ([\d.]+) ([\d.]+)>", light, content)


def gum_part(form):
    return (f'<path d="{gum(form)}" fill="none" stroke="#e58f8c" stroke-opacity=".3" stroke-width="4.4" stroke-linecap="round"/>'
            f'<path d="{gum(form)}" fill="none" stroke="#d9807d" stroke-opacity=".55" stroke-width="1.2" stroke-linecap="round"/>')


def spot(form, fill, stroke, across=0.0, scale=1.0):
    x, y = MIDDLE + across, (form.line + EDGE) / 2 + 4
    s = scale * min(form.crown / 26, 1.15)
    path = (f"M{points((x - 4 * s, y - 3 * s))}C{points((x - 7 * s, y + 2 * s), (x - 3 * s, y + 6 * s), (x + .5 * s, y + 4.5 * s))}"
            f"C{points((x + 5 * s, y + 6 * s), (x + 6.5 * s, y), (x + 3.5 * s, y - 3.5 * s))}Q{points((x, y - 5.5 * s), (x - 4 * s, y - 3 * s))}Z")
    return f'<path d="{path}" fill="{fill}" stroke="{stroke}" stroke-width=".9"/>'


def decay(form):
    return spot(form, "#8a6a4c", "#6d4f36") + spot(form, "#3f2b1d", "none", .6, .5)


def screw(form):
    top, bottom = 14, form.line
    turns = "".join(f"M{points((13.6, y + 1.6))}L{points((26.4, y - 1.6))}" for y in range(top + 9, int(bottom) - 3, 4))
    body = (f"M{points((14, bottom - 1))}L{points((15, top + 6))}Q{points((16, top), (20, top))}Q{points((24, top), (25, top + 6))}"
            f"L{points((26, bottom - 1))}Z")
    post = f"M{points((16, bottom - 1))}L{points((24, bottom - 1))}L{points((23, bottom + 8))}L{points((17, bottom + 8))}Z"
    return (f'<path d="{body}" fill="url(#m)" stroke="#5f6b77" stroke-width=".9"/><path d="{turns}" stroke="#5f6b77" stroke-width="1.3" '
            f'stroke-linecap="round" fill="none"/><path d="{post}" fill="url(#m)" stroke="#5f6b77" stroke-width=".9"/>')


MISSING = '<path d="{}" fill="none" stroke="#aeb6c0" stroke-width=".9" stroke-dasharray="2.4 1.8"/>'
GOLD = ("url(#o)", "#8f6a12")
CANALS = '<path d="{}" fill="none" stroke="#c2410c" stroke-width="{}" stroke-linecap="round"/>'


def fissure(form):
    y = EDGE - 7
    return (f'<path d="M{points((MIDDLE - 8, y))}Q{points((MIDDLE - 4, y - 4), (MIDDLE, y - 1))}Q{points((MIDDLE + 4, y - 4), (MIDDLE + 8, y))}" '
            'fill="none" stroke="#16a085" stroke-width="2.4" stroke-linecap="round"/>')


def crack(form):
    x, y = MIDDLE - form.crown * .2, form.line + 3
    return (f'<path d="M{points((x, y))}L{points((x + 5, y + 6))}L{points((x + 3, y + 11))}L{points((x + 9, y + 15))}L{points((x + 8, y + 20))}'
            f'L{points((x + 11, y + 26))}" fill="none" stroke="#d52b1e" stroke-width="1.8" stroke-linejoin="round"/>')


def buried(form):
    cover = (f"M{points((1, form.line - 3))}Q{points((MIDDLE, form.line - 9), (39, form.line - 3))}L{points((39, EDGE))}"
             f"Q{points((MIDDLE, EDGE + 3), (1, EDGE))}Z")
    return f'<g opacity=".5">{root_part(form) + crown_part(form)}</g><path d="{cover}" fill="#f2a3a0" fill-opacity=".55"/>'


def arrows(form):
    y = form.belly - 4
    return "".join(f'<path d="M{points((x, y))}L{points((x + d * 9, y))}M{points((x, y))}L{points((x + d * 3.4, y - 3.4))}M{points((x, y))}'
                   f'L{points((x + d * 3.4, y + 3.4))}" fill="none" stroke="#2471a3" stroke-width="1.8" stroke-linecap="round"/>'
                   for x, d in ((1.5, 1), (38.5, -1)))


def plain(form):
    return root_part(form) + gum_part(form) + crown_part(form)


# What each situation of Config.xml looks like, by its id.
SITUATIONS = {
    "": plain,
    "1": lambda f: MISSING.format(roots(f)) + gum_part(f) + MISSING.format(crown(f)),
    "2": lambda f: plain(f) + decay(f),
    "3": lambda f: plain(f) + spot(f, "#9fb4c8", "#5f7890"),
    "4": lambda f: root_part(f) + CANALS.format(canals(f), "2.2") + gum_part(f) + crown_part(f),
    "5": lambda f: root_part(f) + gum_part(f) + crown_part(f, *GOLD),
    "6": lambda f: MISSING.format(roots(f)) + gum_part(f) + f'<path d="M{points((0, f.belly))}L{points((40, f.belly))}" stroke="#a8790a" '
         'stroke-width="4"/>' + crown_part(f, *GOLD),
    "7": lambda f: plain(f) + crack(f),
    "8": buried,
    "9": lambda f: screw(f) + gum_part(f) + crown_part(f),
    "10": lambda f: root_part(f) + gum_part(f) + MISSING.format(crown(f)),
    "11": lambda f: plain(f) + fissure(f),
    "12": lambda f: plain(f) + arrows(f),
}

# Service over a tooth: name of the picture, and drawing; the second code with a name shares its picture.
SERVICES = {
    "OTTURAZ": ("otturazione", lambda f: spot(f, "#7fb2e5", "#2f6fb0")),
    "OTTURAZ2": ("otturazione2", lambda f: spot(f, "#7fb2e5", "#2f6fb0", -1.5) +
                 f'<path d="{disc(MIDDLE + f.crown * .26, f.belly, 2.8)}" fill="#7fb2e5" stroke="#2f6fb0" stroke-width=".9"/>'),
    "SIGILL": ("sigillatura", fissure),
    "CORONA": ("corona", lambda f: f'<path d="{crown(f)}" fill="url(#o)" stroke="#8f6a12" stroke-width=".9"/>{shine(f)}'),
    "CORPROV": ("provvisoria", lambda f: f'<path d="{crown(f)}" fill="#ffe9a3" fill-opacity=".6" stroke="#a8790a" '
                'stroke-dasharray="3 2"/>'),
    "CORIMP": ("corona", None),
    "INTARSIO": ("intarsio", lambda f: f'<path d="M{points((MIDDLE - 6, EDGE - 4))}L{points((MIDDLE - 3.6, EDGE - 13))}'
                 f'L{points((MIDDLE + 3.6, EDGE - 13))}L{points((MIDDLE + 6, EDGE - 4))}Z" fill="url(#o)" stroke="#8f6a12"/>'),
    "PERNO": ("perno", lambda f: f'<path d="M{points((18.4, 26))}L{points((21.6, 26))}L{points((22, f.line + 12))}L{points((18, f.line + 12))}Z" '
              'fill="url(#m)" stroke="#5f6b77"/>'),
    "IMPIANTO": ("impianto", screw),
    "ESTRAZ": ("estrazione", lambda f: f'<path d="M{points((8, 14))}L{points((32, 76))}M{points((32, 14))}L{points((8, 76))}" stroke="#d52b1e" '
               'stroke-width="2.8" stroke-linecap="round" fill="none"/>'),
    "ESTRCHIR": ("estrazione", None),
    "DEVITAL": ("devitalizzazione", lambda f: CANALS.format(canals(f), "2.4")),
    "RITRATT": ("devitalizzazione", None),
    "APICO": ("apicectomia", lambda f: f'<path d="M{points((6, f.apexes[0][1] + 7))}L{points((34, f.apexes[0][1] + 7))}" stroke="#d52b1e" '
              'stroke-width="2.4" stroke-dasharray="4 2"/>'),
    "FACCETTA": ("faccetta", lambda f: f'<path d="{crown(f)}" fill="#bfe0ff" fill-opacity=".7" stroke="#2f6fb0" stroke-width=".9"/>{shine(f)}'),
}

# Strip of services in evidence and marks at a glance: letters, colour, place among the marks ("" for none).
EVIDENCE = {
    "IMPIANTO": ("IM", "#5b6b7a", ""), "CORONA": ("CO", "#b8860b", ""), "CORIMP": ("CI", "#9a7209", ""),
    "PROTMOB": ("PM", "#8e44ad", "3"), "PROTPARZ": ("PP", "#7d3c98", "4"), "SCHELETR": ("SC", "#6c3483", "5"),
    "ORTODON": ("OR", "#2471a3", "2"), "BITE": ("BI", "#148f77", "6"), "IGIENE": ("IG", "#239b56", "0"),
    "OPT": ("RX", "#34495e", "1"), "CURETT": ("PA", "#c0392b", "7"), "SBIANC": ("SB", "#f39c12", "8"),
    "RIALZO": ("RS", "#a04000", "9"), "GBR": ("GB", "#873600", "10"),
}
OWN_MARKS = ("IMPIANTO", "ESTRAZ", "ESTRCHIR")
COLOURS = {"redImage": ("rosso", "#d52b1e"), "yellowImage": ("giallo", "#f0ad00"), "greenImage": ("verde", "#1a9641")}


def teeth():
    for quadrant, positions in ((1, "87654321"), (2, "12345678"), (3, "87654321"), (4, "12345678"),
                                (5, "54321"), (6, "12345"), (7, "54321"), (8, "12345")):
        for position in positions:
            arch = "sup" if quadrant in (1, 2, 5, 6) else "inf"
            side = "dx" if quadrant in (1, 4, 5, 8) else "sx"
            yield f"{quadrant}.{position}", f"{arch}_{side}_{kind(quadrant > 4, int(position))}"


def kind(milk, position):
    if milk:
        return ("incisivo", "incisivo", "canino", "molare", "molare")[position - 1] + "_latte"
    return ("incisivo", "laterale", "canino", "premolare1", "premolare2", "molare", "molare", "giudizio")[position - 1]


def draw():
    PICTURES.mkdir(parents=True, exist_ok=True)
    for old in PICTURES.glob("*.svg"):
        old.unlink()
    for (arch, outline), form in OUTLINES.items():
        for side in ("dx", "sx"):
            place = f"{arch}_{side}_{outline}"
            for situation, drawing in SITUATIONS.items():
                name = f"dente_{place}" + (f"_{situation}" if situation else "")
                write(name, lit(drawing(form), arch), arch=arch, side=side)
            for name, drawing in SERVICES.values():
                if drawing:
                    write(f"{name}_{place}", lit(drawing(form), arch), arch=arch, side=side)
    for service, (letters, colour, place) in EVIDENCE.items():
        text = (f'font-family="DejaVu Sans,sans-serif" font-weight="bold" text-anchor="middle" fill="#fff">{letters}</text>')
        write(f"evidenza_{service}", f'<rect x="2" y="2" width="44" height="44" rx="9" fill="{colour}"/>'
              f'<text x="24" y="31" font-size="20" {text}', 48, 48)
        if place:
            write(f"occhio_{service}", f'<circle cx="15" cy="15" r="14" fill="{colour}"/>'
                  f'<text x="15" y="19.5" font-size="12" {text}', 30, 30)
    for _, (name, colour) in COLOURS.items():
        write(f"stato_{name}", f'<path d="M7 .8L13.2 7L7 13.2L.8 7Z" fill="{colour}" stroke="#fff"/>', 14, 14)


def path(name):
    return quoteattr(f"[app.path]\\Styles\\denti\\{name}.svg")


def describe():
    lines = ['<?xml version="1.0" encoding="utf-8"?>', "<graphical>", "\t<tooths>"]
    for tooth, place in teeth():
        lines.append(f'\t\t<tooth id="{tooth}">')
        for situation in SITUATIONS:
            name = f"dente_{place}" + (f"_{situation}" if situation else "")
            lines.append(f'\t\t\t<situazione id="{situation}" image={path(name)}/>')
        for service, (name, _) in SERVICES.items():
            lines.append(f'\t\t\t<trattamento id="{service}" image={path(f"{name}_{place}")} left="0" top="0"/>')
        lines.append("\t\t</tooth>")
    lines += ["\t</tooths>", "\t<inEvidenza>"]
    for service, (_, _, place) in EVIDENCE.items():
        eye = path(f"occhio_{service}") if place else '""'
        lines.append(f'\t\t<trattamento id="{service}" image={path(f"evidenza_{service}")} eyeIndex="{place}" eyeImage={eye}/>')
    lines += ["\t</inEvidenza>", "\t<status>"]
    for service in OWN_MARKS:
        images = " ".join(f"{attribute}={path(f'stato_{name}')}" for attribute, (name, _) in COLOURS.items())
        lines.append(f'\t\t<trattamento id="{service}" {images}/>')
    lines += ["\t</status>", "</graphical>", ""]
    (DATA / "Graphical.xml").write_text("\n".join(lines), encoding="utf-8")


if __name__ == "__main__":
    draw()
    describe()
