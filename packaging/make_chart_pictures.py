#!/usr/bin/env python3
"""Writes data/Graphical.xml and the pictures of data/Styles/denti.

Run it from the root of the sources after changing anything in chart_pictures; practices change the installed files instead.
"""
import pathlib
from xml.sax.saxutils import quoteattr

from chart_pictures import anatomy, badges, findings
from chart_pictures.canvas import Canvas

DATA = pathlib.Path("data")
PICTURES = DATA / "Styles" / "denti"


def write(name, text):
    (PICTURES / f"{name}.svg").write_text(text, encoding="utf-8")


def picture_of(what, number, situation=""):
    """Named after the tooth, so that a practice finds the one it wants to replace: dente_18, dente_18_3, corona_18."""
    return f"{what}_{number.replace('.', '')}" + (f"_{situation}" if situation else "")


def draw():
    PICTURES.mkdir(parents=True, exist_ok=True)
    for old in PICTURES.glob("*.svg"):
        old.unlink()
    for number, arch, side, tooth in anatomy.teeth():
        drawings = {picture_of("dente", number, situation): drawing for situation, drawing in findings.SITUATIONS.items()}
        drawings |= {picture_of(name, number): drawing for name, drawing in findings.SERVICES.values() if drawing}
        for name, drawing in drawings.items():
            canvas = Canvas(tooth, arch, side)
            drawing(canvas)
            write(name, canvas.svg())
    for service, (_, _, place) in badges.SERVICES.items():
        write(f"evidenza_{service}", badges.tile(service))
        if place:
            write(f"occhio_{service}", badges.mark(service))
    for name, colour in badges.COLOURS.values():
        write(f"stato_{name}", badges.status(colour))


def path(name):
    return quoteattr(f"[app.path]\\Styles\\denti\\{name}.svg")


def describe():
    lines = ['<?xml version="1.0" encoding="utf-8"?>', "<graphical>", "\t<tooths>"]
    for number, *_ in anatomy.teeth():
        lines.append(f'\t\t<tooth id="{number}">')
        lines += [f'\t\t\t<situazione id="{situation}" image={path(picture_of("dente", number, situation))}/>' for situation in findings.SITUATIONS]
        lines += [f'\t\t\t<trattamento id="{service}" image={path(picture_of(name, number))} left="0" top="0"/>'
                  for service, (name, _) in findings.SERVICES.items()]
        lines.append("\t\t</tooth>")
    lines += ["\t</tooths>", "\t<inEvidenza>"]
    for service, (_, _, place) in badges.SERVICES.items():
        eye = path(f"occhio_{service}") if place else '""'
        lines.append(f'\t\t<trattamento id="{service}" image={path(f"evidenza_{service}")} eyeIndex="{place}" eyeImage={eye}/>')
    lines += ["\t</inEvidenza>", "\t<status>"]
    for service in badges.OWN_MARKS:
        images = " ".join(f"{attribute}={path(f'stato_{name}')}" for attribute, (name, _) in badges.COLOURS.items())
        lines.append(f'\t\t<trattamento id="{service}" {images}/>')
    lines += ["\t</status>", "</graphical>", ""]
    (DATA / "Graphical.xml").write_text("\n".join(lines), encoding="utf-8")


if __name__ == "__main__":
    draw()
    describe()
