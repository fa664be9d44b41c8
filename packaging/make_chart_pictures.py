#!/usr/bin/env python3
"""Writes data/Graphical.xml and the pictures of data/Styles/denti.

The 52 teeth share a small number of outlines, so the pictures are drawn per outline and Graphical.xml names them per
tooth. Run it from the root of the sources after changing an outline, a service or a situation; practices change the
installed files instead.
"""
import pathlib
from xml.sax.saxutils import quoteattr

DATA = pathlib.Path("data")
PICTURES = DATA / "Styles" / "denti"
W, H, NECK, FURCATION, MIDDLE = 40.0, 84.0, 47.0, 33.0, 20.0

# Outline: crown width, neck width, cusps (0: straight edge), height of the edge between cusps, root apexes, their height.
UPPER = {
    "incisivo": (27, 17, 0, 80, (20,), 7),
    "laterale": (22, 14, 0, 79, (20,), 8),
    "canino": (25, 17, 1, 74, (20,), 2),
    "premolare2": (27, 19, 2, 77, (14, 26), 9),
    "premolare": (26, 18, 2, 77, (20,), 7),
    "molare": (37, 28, 3, 78, (8, 20, 32), 11),
    "giudizio": (33, 24, 3, 78, (9, 20, 31), 16),
}
LOWER = {
    "incisivo": (20, 13, 0, 80, (20,), 9),
    "laterale": (21, 13, 0, 80, (20,), 8),
    "canino": (25, 17, 1, 74, (20,), 2),
    "premolare": (26, 18, 2, 77, (20,), 7),
    "molare": (37, 28, 3, 78, (10, 30), 10),
    "giudizio": (33, 24, 3, 78, (11, 29), 15),
}
OUTLINES = {("sup", k): v for k, v in UPPER.items()} | {("inf", k): v for k, v in LOWER.items()}


def n(value):
    return f"{value:.1f}".rstrip("0").rstrip(".")


def crown(form):
    width, neck, cusps, valley, _, _ = form
    left, right = MIDDLE - width / 2, MIDDLE + width / 2
    neck_left, neck_right = MIDDLE - neck / 2, MIDDLE + neck / 2
    path = [f"M{n(neck_left)} {n(NECK)}",
            f"C{n(left + 1)} {n(NECK + 6)} {n(left)} {n(NECK + 12)} {n(left)} {n(NECK + 17)}",
            f"Q{n(left)} {n(valley - 4)} {n(left + 2)} {n(valley)}"]
    if cusps == 0:
        path += [f"Q{n(left + 3)} {n(H - 1)} {n(left + 6)} {n(H - 1)}", f"L{n(right - 6)} {n(H - 1)}",
                 f"Q{n(right - 3)} {n(H - 1)} {n(right - 2)} {n(valley)}"]
    step = (width - 4) / max(cusps, 1)
    for cusp in range(cusps):
        start = left + 2 + step * cusp
        path.append(f"C{n(start + step * .25)} {n(H)} {n(start + step * .75)} {n(H)} {n(start + step)} {n(valley)}")
    path += [f"Q{n(right)} {n(valley - 4)} {n(right)} {n(NECK + 17)}",
             f"C{n(right)} {n(NECK + 12)} {n(right - 1)} {n(NECK + 6)} {n(neck_right)} {n(NECK)}",
             f"Q{n(MIDDLE)} {n(NECK - 6)} {n(neck_left)} {n(NECK)}Z"]
    return "".join(path)


def roots(form):
    _, neck, _, _, apexes, apex = form
    neck_left = MIDDLE - neck / 2
    path = [f"M{n(neck_left)} {n(NECK)}"]
    for number, across in enumerate(apexes):
        start, end = neck_left + neck * number / len(apexes), neck_left + neck * (number + 1) / len(apexes)
        begin = NECK if number == 0 else FURCATION
        finish = NECK if number + 1 == len(apexes) else FURCATION
        path += [f"C{n(start)} {n(begin - 14)} {n(across - 5)} {n(apex + 12)} {n(across - 2)} {n(apex + 1.5)}",
                 f"Q{n(across)} {n(apex - 1)} {n(across + 2)} {n(apex + 1.5)}",
                 f"C{n(across + 5)} {n(apex + 12)} {n(end)} {n(finish - 14)} {n(end)} {n(finish)}"]
    return "".join(path) + f"Q{n(MIDDLE)} {n(NECK - 6)} {n(neck_left)} {n(NECK)}Z"


def grooves(form):
    width, _, cusps, valley, _, _ = form
    step = (width - 4) / max(cusps, 1)
    starts = [MIDDLE - width / 2 + 2 + step * cusp for cusp in range(1, cusps)]
    return "".join(f"M{n(x)} {n(valley)}Q{n(x + .6)} {n(valley - 5)} {n(x)} {n(valley - 11)}" for x in starts)


def canals(form):
    _, neck, _, _, apexes, apex = form
    lines = []
    for number, across in enumerate(apexes):
        top = MIDDLE - neck / 2 + neck * (number + .5) / len(apexes)
        lines.append(f"M{n((top + MIDDLE) / 2)} 55Q{n(top)} 38 {n(across)} {n(apex + 5)}")
    return "".join(lines)


GRADIENTS = ('<defs><linearGradient id="e"><stop offset="0" stop-color="#e2e7ee"/><stop offset=".35" stop-color="#fff"/>'
             '<stop offset="1" stop-color="#e2e7ee"/></linearGradient>'
             '<linearGradient id="r"><stop offset="0" stop-color="#e4cea4"/><stop offset=".35" stop-color="#f8ecd0"/>'
             '<stop offset="1" stop-color="#e4cea4"/></linearGradient>'
             '<linearGradient id="o"><stop offset="0" stop-color="#d9a520"/><stop offset=".35" stop-color="#ffe9a3"/>'
             '<stop offset="1" stop-color="#d9a520"/></linearGradient>'
             '<linearGradient id="m"><stop offset="0" stop-color="#8d99a6"/><stop offset=".4" stop-color="#eef2f5"/>'
             '<stop offset="1" stop-color="#8d99a6"/></linearGradient></defs>')


def write(name, content, width=W, height=H, arch="sup"):
    turned = f'<g transform="matrix(1 0 0 -1 0 {n(height)})">{content}</g>' if arch == "inf" else content
    used = GRADIENTS if "url(#" in content else ""
    (PICTURES / f"{name}.svg").write_text(
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{n(width)}" height="{n(height)}" '
        f'viewBox="0 0 {n(width)} {n(height)}">{used}{turned}</svg>\n', encoding="utf-8")


def root_part(form):
    return f'<path d="{roots(form)}" fill="url(#r)" stroke="#b09670"/>'


def crown_part(form, fill="url(#e)", stroke="#8c929c"):
    return (f'<path d="{crown(form)}" fill="{fill}" stroke="{stroke}"/>'
            f'<path d="{grooves(form)}" fill="none" stroke="#a8aeb8"/>')


SPOT = '<path d="M16 66q-3 5 1 8q5 3 8-2q1-6-4-8q-3 0-5 2z" fill="{}" stroke="{}"/>'
SCREW = ('<path d="M14 46L15 16Q20 8 25 16L26 46Z" fill="url(#m)" stroke="#6b7682"/>'
         '<path d="M14.5 40L26 37M14.6 34L25.8 31M14.8 28L25.6 25M15 22L25.3 19" stroke="#6b7682" fill="none"/>'
         '<path d="M16 46h8v8h-8z" fill="url(#m)" stroke="#6b7682"/>')
MISSING = '<path d="{}" fill="none" stroke="#b4bcc6" stroke-dasharray="3 2"/>'

def plain(form):
    return root_part(form) + crown_part(form)


# What each situation of Config.xml looks like, by its id.
SITUATIONS = {
    "": plain,
    "1": lambda f: MISSING.format(roots(f)) + MISSING.format(crown(f)),
    "2": lambda f: plain(f) + SPOT.format("#5d4434", "#3b2a20"),
    "3": lambda f: plain(f) + SPOT.format("#9fb4c8", "#5f7890"),
    "4": lambda f: root_part(f) + f'<path d="{canals(f)}" fill="none" stroke="#c2410c" stroke-width="2"/>' + crown_part(f),
    "5": lambda f: root_part(f) + crown_part(f, "url(#o)", "#a8790a"),
    "6": lambda f: MISSING.format(roots(f)) + crown_part(f, "url(#o)", "#a8790a") + '<path d="M1 66h38" stroke="#a8790a" '
         'stroke-width="3"/>',
    "7": lambda f: plain(f) + '<path d="M12 58l7 3l-2 6l8 3l-1 6l5 4" fill="none" stroke="#d52b1e" stroke-width="2"/>',
    "8": lambda f: f'<g opacity=".45">{plain(f)}</g><path d="M1 50q19-8 38 0v32q-19 6-38 0z" fill="#f2a3a0" '
         'fill-opacity=".55"/>',
    "9": lambda f: SCREW + crown_part(f),
    "10": lambda f: root_part(f) + MISSING.format(crown(f)),
    "11": lambda f: plain(f) + '<path d="M12 75q8-7 16 0" fill="none" stroke="#16a085" stroke-width="2.5"/>',
    "12": lambda f: plain(f) + '<path d="M3 62h10M3 62l3-3M3 62l3 3M37 62H27M37 62l-3-3M37 62l-3 3" fill="none" '
          'stroke="#2471a3" stroke-width="1.8"/>',
}

# Service over a tooth: name of the picture, drawing, and what it depends on ("outline", "arch" or nothing).
BLUE_SPOT = SPOT.format("#7fb2e5", "#2f6fb0")
SERVICES = {
    "OTTURAZ": ("otturazione", lambda f: BLUE_SPOT, "arch"),
    "OTTURAZ2": ("otturazione2", lambda f: BLUE_SPOT + '<circle cx="26" cy="64" r="3" fill="#7fb2e5" stroke="#2f6fb0"/>', "arch"),
    "SIGILL": ("sigillatura", lambda f: '<path d="M13 75q7-6 14 0" fill="none" stroke="#16a085" stroke-width="2.5"/>', "arch"),
    "CORONA": ("corona", lambda f: f'<path d="{crown(f)}" fill="url(#o)" fill-opacity=".9" stroke="#a8790a"/>', "outline"),
    "CORPROV": ("provvisoria", lambda f: f'<path d="{crown(f)}" fill="#ffe9a3" fill-opacity=".5" stroke="#a8790a" '
                'stroke-dasharray="3 2"/>', "outline"),
    "CORIMP": ("corona", lambda f: "", "outline"),
    "INTARSIO": ("intarsio", lambda f: '<path d="M13 76l3-9h8l3 9z" fill="url(#o)" stroke="#a8790a"/>', "arch"),
    "PERNO": ("perno", lambda f: '<path d="M18.5 22h3v38h-3z" fill="url(#m)" stroke="#6b7682"/>', "arch"),
    "IMPIANTO": ("impianto", lambda f: SCREW, "arch"),
    "ESTRAZ": ("estrazione", lambda f: '<path d="M7 12L33 74M33 12L7 74" stroke="#d52b1e" stroke-width="3" '
               'stroke-linecap="round" fill="none"/>', ""),
    "ESTRCHIR": ("estrazione", lambda f: "", ""),
    "DEVITAL": ("devitalizzazione", lambda f: f'<path d="{canals(f)}" fill="none" stroke="#c2410c" stroke-width="2.4" '
                'stroke-linecap="round"/>', "outline"),
    "RITRATT": ("devitalizzazione", lambda f: "", "outline"),
    "APICO": ("apicectomia", lambda f: '<path d="M8 18h24" stroke="#d52b1e" stroke-width="2.4" stroke-dasharray="4 2"/>',
              "arch"),
    "FACCETTA": ("faccetta", lambda f: f'<path d="{crown(f)}" fill="#cfe8ff" fill-opacity=".7" stroke="#2f6fb0"/>', "outline"),
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
            yield f"{quadrant}.{position}", arch, kind(quadrant, int(position), arch)


def kind(quadrant, position, arch):
    if position <= 3:
        return ("incisivo", "laterale", "canino")[position - 1]
    if quadrant > 4 or position in (6, 7):
        return "molare"
    if position == 8:
        return "giudizio"
    return "premolare2" if arch == "sup" and position == 4 else "premolare"


def picture_of(service, arch, outline):
    name, _, depends = SERVICES[service]
    return {"outline": f"{name}_{arch}_{outline}", "arch": f"{name}_{arch}", "": name}[depends]


def draw():
    PICTURES.mkdir(parents=True, exist_ok=True)
    for (arch, outline), form in OUTLINES.items():
        for situation, drawing in SITUATIONS.items():
            write(f"dente_{arch}_{outline}" + (f"_{situation}" if situation else ""), drawing(form), arch=arch)
        for service, (_, drawing, _) in SERVICES.items():
            if content := drawing(form):
                write(picture_of(service, arch, outline), content, arch=arch)
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
    for tooth, arch, outline in teeth():
        lines.append(f'\t\t<tooth id="{tooth}">')
        for situation in SITUATIONS:
            name = f"dente_{arch}_{outline}" + (f"_{situation}" if situation else "")
            lines.append(f'\t\t\t<situazione id="{situation}" image={path(name)}/>')
        for service in SERVICES:
            lines.append(f'\t\t\t<trattamento id="{service}" image={path(picture_of(service, arch, outline))} left="0" top="0"/>')
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
