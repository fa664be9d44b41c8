"""Pictures beside the chart: services in evidence, marks seen at a glance, status marks of single services."""
from .canvas import svg

TOOTH = ("M24 13c-3.2-3-11.6-2.6-12.4 4.4-.6 5.6 2.2 8 3 13 .9 5.6 1 10.2 3.2 10.2 2.4 0 2.4-4.4 3-8.2.5-3 1.4-4 3.2-4s2.7 1 3.2 4"
         "c.6 3.8.6 8.2 3 8.2 2.2 0 2.3-4.6 3.2-10.2.8-5 3.6-7.4 3-13C35.6 10.4 27.2 10 24 13z")
CROWN = ("M24 13c-3.2-2.6-11.6-2.2-12.4 4.4-.5 4 .9 6.6 1.9 9.2 3-2 6.6-2.6 10.5-2.600s7.5.6 10.5 2.600c1-2.6 2.4-5.2 1.9-9.2"
         "C35.6 10.8 27.2 10.4 24 13z")


def white(path, extra=""):
    return f'<path d="{path}" fill="#fff"{extra}/>'


def line(path, width=2.6, colour="#fff", extra=""):
    return f'<path d="{path}" fill="none" stroke="{colour}" stroke-width="{width}" stroke-linecap="round" stroke-linejoin="round"{extra}/>'


def small(content, dx, dy, scale):
    return f'<g transform="translate({dx} {dy}) scale({scale})">{content}</g>'


SCREW = white("M19 22h10l-1.5 15L24 42l-3.5-5z") + line("M17.5 25.500l13-2M18 30l12-2M18.6 34.500l10.8-2M19.6 38.600l8-1.6", 1.8)
ARCH = "M7 34C6 18 15 11 24 11s18 7 17 23c-.2 3.5-6.5 4-7 .5C33 27 30 22 24 22s-9 5-10 12.500c-.5 3.5-6.8 3-7-.5z"
TEETH_ON_ARCH = "M12 22l4 3M17 16l3 4.500M24 14v5M31 16l-3 4.500M36 22l-4 3M10 28.500l4.5 1.500M38 28.500L33.5 30"
STAR = "M{0} {1}l2 5.5 5.5 2-5.5 2-2 5.5-2-5.5-5.5-2 5.5-2z"

# Drawing on a tile of 48, colour of the tile, place among the marks ("" for none).
SERVICES = {
    "IMPIANTO": (lambda c: small(SCREW, -4.8, -9.6, 1.2), "#5b6b7a", ""),
    "CORONA": (lambda c: small(white(CROWN) + line("M14 30.500c6-3 14-3 20 0", 2.2), 0, 4, 1), "#b8860b", ""),
    "CORMC": (lambda c: white(CROWN) + line("M13.5 30c6-2.5 15-2.5 21 0M14.5 35c6-2.5 13-2.5 19 0", 2.4), "#8a6a1c", ""),
    "CORIMP": (lambda c: small(white(CROWN), 4, -4.5, .83) + small(SCREW, 4.8, 3.5, .8), "#4f7a94", ""),
    "PONTE": (lambda c: "".join(small(white(CROWN), dx, 13, .52) for dx in (-2.6, 11.5, 25.6)) + line("M6 24h36", 3), "#a8790a", ""),
    "ESTRCHIR": (lambda c: white(TOOTH) + line("M13 13l22 24M35 13L13 37", 3.2, c), "#c0392b", ""),
    "PROTMOB": (lambda c: white(ARCH) + line(TEETH_ON_ARCH, 1.8, c), "#8e44ad", "3"),
    "PROTPARZ": (lambda c: white("M7 34C6 18 15 11 24 11v11c-6 0-9 5-10 12.5-.5 3.5-6.8 3-7-.5z") +
                 line("M12 22l4 3M17 16l3 4.500M10 28.500l4.5 1.5", 1.8, c) + line("M24 16.500c9 0 14 5 13.5 18", 2, extra=' stroke-dasharray="1 4"'), "#7d3c98", "4"),
    "SCHELETR": (lambda c: line("M9 35C8 20 16 13.5 24 13.500S40 20 39 35M9 35c4 2 6 0 5.5-3M39 35c-4 2-6 0-5.5-3M14 20l5 5h10l5-5", 2.6), "#6c3483", "5"),
    "ORTODON": (lambda c: line("M5 24h38", 2.2) + "".join(f'<rect x="{x}" y="18" width="9" height="12" rx="2" fill="#fff"/>' +
                line(f"M{x + 2} 24h5", 2, c) for x in (7, 19.5, 32)), "#2471a3", "2"),
    "ALLINEAT": (lambda c: line(ARCH, 2.2) + line("M12 23c2-5 6-8.5 12-8.500s10 3.5 12 8.5", 2, extra=' stroke-opacity=".7"'), "#2e86c1", "11"),
    "BITE": (lambda c: white("M8 20c10 5 22 5 32 0 1 0 2 1 2 3v6c0 3-1 4-3 4.5-10 3-20 3-30 0C7 33 6 32 6 29v-6c0-2 1-3 2-3z") +
             line("M14 24.500v4.500M20 26v4.500M28 26v4.500M34 24.500v4.5", 1.8, c), "#148f77", "6"),
    "IGIENE": (lambda c: line("M9 39L27 21", 4.4) + white("M25 15l4-4 9 9-4 4z") + line("M31 9l3-3M34.5 12.500l3-3M38 16l3-3", 2.4), "#239b56", "0"),
    "OPT": (lambda c: '<rect x="7" y="12" width="34" height="24" rx="3" fill="#fff"/>' + small(f'<path d="{TOOTH}" fill="{c}"/>', 13, 13, .46), "#34495e", "1"),
    "CURETT": (lambda c: line("M10 40l17-17", 4.6) + line("M27 23l7-7c3-3 1-7-2.5-6.5", 2.6), "#c0392b", "7"),
    "CHIRPARO": (lambda c: line("M8 41l14-14", 4.6) + white("M20 25C27 16 33 10 41 7c-1 8-8 15-17 22z"), "#922b21", ""),
    "SBIANC": (lambda c: small(white(TOOTH), -2, 3, .95) + f'<path d="{STAR.format(36, 4)}" fill="#fff"/>', "#f39c12", "8"),
    "RIALZO": (lambda c: line("M6 18c5 10 9 3 14-1s8-4 12 1 6 6 10 1", 2.6) + line("M24 41V27M18.5 32l5.5-6 5.5 6", 3), "#a04000", "9"),
    "GBR": (lambda c: line("M7 24C10 14 38 14 41 24", 2.8) + "".join(f'<circle cx="{x}" cy="{y}" r="{r}" fill="#fff"/>' for x, y, r in
            ((13, 31, 3), (20, 27, 3.2), (28, 28, 3.4), (35, 31, 3), (17, 37, 3.2), (24.5, 35, 3), (31.5, 37, 3.2))), "#873600", "10"),
}
OWN_MARKS = ("IMPIANTO", "ESTRAZ", "ESTRCHIR")
COLOURS = {"redImage": ("rosso", "#d52b1e"), "yellowImage": ("giallo", "#f0ad00"), "greenImage": ("verde", "#1a9641")}


def lighter(colour, share=.28):
    parts = (int(colour[i:i + 2], 16) for i in (1, 3, 5))
    return "#" + "".join(f"{round(part + (255 - part) * share):02x}" for part in parts)


def sheen(colour):
    return ("sheen", "linearGradient", f' x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="{lighter(colour)}"/>'
                      f'<stop offset="1" stop-color="{colour}"/></linearGradient>')


def tile(service):
    drawing, colour, _ = SERVICES[service]
    plate = f'<rect x="1.5" y="1.5" width="45" height="45" rx="10" fill="url(#sheen)" stroke="{colour}"/>'
    return svg([plate, small(drawing(colour), 2.4, 2.4, .9)], 48, 48, [sheen(colour)])


def mark(service):
    drawing, colour, _ = SERVICES[service]
    plate = f'<circle cx="15" cy="15" r="14" fill="url(#sheen)" stroke="{colour}"/>'
    return svg([plate, small(drawing(colour), 4.2, 4.2, .45)], 30, 30, [sheen(colour)])


def status(colour):
    """A diamond, so that the services of surgery stand out among the round marks."""
    body = f'<path d="M7 .8L13.2 7L7 13.200L.8 7Z" fill="{colour}" stroke="#fff" stroke-linejoin="round"/>'
    glyphs = {"#d52b1e": '<circle cx="7" cy="7" r="1.9" fill="none" stroke="#fff" stroke-width="1.4"/>',
              "#f0ad00": '<path d="M7 4.400A2.6 2.6 0 0 0 7 9.600Z" fill="#fff"/>',
              "#1a9641": '<path d="M4.8 7.200L6.4 8.700L9.3 5.5" fill="none" stroke="#fff" stroke-width="1.4"/>'}
    return svg([body, glyphs[colour]], 14, 14)
