"""What each situation of Config.xml looks like, and each service over its tooth."""
from .tooth import GOLD, METAL, canals, cervix, cover, crown_path, enamel, gold, gum, plain, root, root_path

PLAN, PLAN_EDGE, ALARM, HELP = "#6fb1ea", "#1f66ad", "#d52b1e", "#1f6fb2"


# ---------------------------------------------------------------------------------------------------- on the crown

def centre(canvas):
    wide, far = canvas.tooth.widest
    return (wide + far) / 2, canvas.tooth.length * .62, min(wide - far, 9) / 8.5


def patch(canvas, colours, edge, across=0.0, up=0.0, size=1.0, gloss=True):
    """A filling: rounded, a little waisted, as it is ground."""
    x, y, s = centre(canvas)
    x, y, s = x + across * s, y + up * s, s * size
    ring = [(-1.55, .75), (-1.8, -.3), (-1.1, -1.25), (.2, -1.2), (1.3, -1.3), (1.85, -.2), (1.4, .95), (.2, 1.35), (-.9, 1.3)]
    path = canvas.line([(x + px * s, y + py * s) for px, py in ring], closed=True)
    canvas.again(path, canvas.across(x - 2 * s, x + 2 * s, (0, colours[0]), (.35, colours[1]), (1, colours[2])))
    canvas.again(path, "none", edge, .8)
    if gloss:
        left = x + canvas.lit(-.9) * s
        canvas.soft(canvas.line([(left, y - .4 * s), (left, y + .5 * s)]), "#ffffff", 1.3, .8, 2)


AMALGAM = ("#8b98a5", "#dfe5ea", "#7d8a98")
COMPOSITE = ("#4f97dd", "#a5d0f7", "#4a90d6")


def decay(canvas):
    x, y, s = centre(canvas)
    x -= .4 * s
    ring = [(-1.5, 1.0), (-2.0, .1), (-1.5, -1.1), (-.5, -1.6), (.5, -1.1), (1.5, -1.3), (1.9, -.1), (1.2, .8), (.9, 1.6), (-.2, 1.3)]
    path = canvas.line([(x + px * s, y + py * s) for px, py in ring], closed=True)
    canvas.soft(path, "#7a4a1e", 4.4, .4, 3)
    canvas.fill(path, canvas.glow(x, y, 2.3 * s, (0, "#1d1009"), (.45, "#3d2412"), (.8, "#6e451f"), (1, "#8f6435")))
    canvas.soft(canvas.line([(x + px * s * .5, y + py * s * .5) for px, py in ring], closed=True), "#120904", 1.4, .5, 2)


def fissures(canvas, colour="#0f9d87", edge="#0a6b5c"):
    """The grooves of the bite, seen at its edge, and what runs down from them."""
    wide, far = canvas.tooth.widest
    tall = canvas.tooth.length
    x0, x1 = far * .62, wide * .62
    count = 6 if wide - far > 7.6 else 4
    steps = [(x0 + (x1 - x0) * k / count, tall * (.72 + (.05 if k % 2 else -.05))) for k in range(count + 1)]
    path = canvas.line(steps)
    canvas.again(path, "none", edge, 3.0)
    canvas.again(path, "none", colour, 2.0)
    canvas.again(path, "none", "#b9f3e8", .6, .8)


def crack(canvas):
    """A line through the crown, and a corner gone."""
    wide, far = canvas.tooth.widest
    tall = canvas.tooth.length
    span = wide - far
    line = [(far + span * a, tall * b) for a, b in ((.3, .12), (.42, .3), (.36, .46), (.56, .62), (.5, .78), (.68, 1.0))]
    canvas.stroke(canvas.straight(line), "#ffffff", 2.6, .8)
    canvas.stroke(canvas.straight(line), "#9d1c12", 1.35)
    canvas.stroke(canvas.straight([line[2], (far + span * .2, tall * .56)]), "#9d1c12", .9)
    canvas.stroke(canvas.straight([line[3], (far + span * .76, tall * .56)]), "#9d1c12", .9)


def inlay(canvas):
    x, y, s = centre(canvas)
    top = canvas.tooth.length - .5
    shape = [(x - 2.1 * s, top), (x - 1.5 * s, y - .9 * s, "v"), (x + 1.5 * s, y - .9 * s, "v"), (x + 2.1 * s, top)]
    path = canvas.line(shape) + "z"
    canvas.again(path, canvas.across(x - 2 * s, x + 2 * s, *GOLD), "#7a560c", .8)


def veneer(canvas):
    wide, far = canvas.tooth.widest
    cover(canvas, canvas.along(0, canvas.tooth.length, (0, "#cfe6fb"), (.6, "#e9f4fe"), (1, "#bcdcf8")), PLAN_EDGE, .4, "#2a6fb5", behind="#cfe6fb")


def temporary(canvas):
    path = crown_path(canvas)
    canvas.again(path, "#ffe59a")
    canvas.again(path, canvas.across(canvas.tooth.widest[1], canvas.tooth.widest[0], (0, "#a8790a", .3), (.3, "#a8790a", 0), (1, "#a8790a", .4)))
    canvas.stroke(path, "#a8790a", 1, extra=' stroke-dasharray="2.6 1.8"')


def rebuilt(canvas):
    """The upper half of the crown made anew."""
    tooth = canvas.tooth
    level = tooth.length * .42
    top = [point for point in tooth.crown if point[1] > level]
    wave = [(top[-1][0] * .5, level - .25), ((top[0][0] + top[-1][0]) / 2, level + .3), (top[0][0] * .5, level - .25)]
    path = canvas.line([*top, *wave], closed=True)
    wide, far = tooth.widest
    canvas.again(path, canvas.across(far, wide, (0, COMPOSITE[0]), (.35, COMPOSITE[1]), (1, COMPOSITE[2])))
    canvas.again(path, "none", PLAN_EDGE, .8)


def ceramic(canvas, collar):
    """A crown of ceramic: too white and even for a tooth, with its margin."""
    tall = canvas.tooth.length
    cover(canvas, canvas.along(0, tall, (0, "#f3ead8"), (.35, "#fdfdfb"), (1, "#eef3f7")), PLAN_EDGE, .8, "#44607c", behind="#e6ecf0")
    line = canvas.line([(x, y + .25) for x, y in cervix(canvas.tooth)])
    canvas.again(line, "none", collar, 2.2)
    canvas.again(line, "none", "#ffffff", .6, .6)


# ----------------------------------------------------------------------------------------------------- in the root

def screw(canvas):
    """A titanium implant with its thread, and the abutment on it; by the size of the box, for every tooth."""
    neck = cervix(canvas.tooth)[2][1]
    scale = 3 / canvas.tooth.scale
    deep = neck - 12.5 * scale
    half = 2.05 * scale
    body = [(-half, neck), (-half, neck - 1.2 * scale), (-half * .94, neck - 7 * scale), (-half * .72, deep + 1.2 * scale), (0, deep),
            (half * .72, deep + 1.2 * scale), (half * .94, neck - 7 * scale), (half, neck - 1.2 * scale), (half, neck)]
    path = canvas.line(body) + "z"
    shine = canvas.across(-half, half, *METAL)
    turns = []
    y = neck - 2.2 * scale
    while y > deep + 1.4 * scale:
        breadth = half * (1.2 if y > neck - 8 * scale else 1.02)
        turns.append([(-breadth, y + .28 * scale), (0, y - .05 * scale), (breadth, y - .38 * scale)])
        y -= 1.15 * scale
    threads = "".join(canvas.line(turn) for turn in turns)
    canvas.stroke(threads, "#5c6772", 2.0)
    canvas.again(path, shine, "#55606b", .7)
    canvas.stroke(threads, "#46515c", 1.5, .9)
    canvas.stroke("".join(canvas.line([(x, y + .25 * scale) for x, y in turn]) for turn in turns), "#ffffff", .6, .75)
    post = [(-half * .55, neck + 2.6 * scale), (-half * .8, neck), (half * .8, neck), (half * .55, neck + 2.6 * scale)]
    canvas.fill(canvas.straight(post, closed=True), shine, extra=' stroke="#55606b" stroke-width=".7" stroke-linejoin="round"')


def post(canvas):
    limb = canvas.tooth.roots[-1]
    left, right = limb.between(.41)[1:-5], limb.between(.59)[1:-5]
    reach = canvas.tooth.length * .55
    x0, x1 = left[0][0] * .7, right[0][0] * .7
    path = canvas.line([(x0 - .3, reach), *left, *right[::-1], (x1 + .3, reach)]) + "z"
    canvas.again(path, canvas.across(x0 - .3, x1 + .3, *METAL), "#4c5762", .8)


def cut_apex(canvas):
    """Where the tip of the root goes away, and the cut."""
    deepest = min(canvas.tooth.roots, key=lambda limb: limb.distal[-1][1])
    tip_x, tip_y = deepest.distal[-1]
    level = tip_y + 3.2
    glow = canvas.glow(tip_x, tip_y + .6, 2.6, (0, ALARM, .5), (.6, ALARM, .28), (1, ALARM, 0))
    canvas.fill(canvas.line(circle(tip_x, tip_y + .6, 2.6), closed=True), glow)
    line = canvas.straight([(tip_x - 4.4, level - .5), (tip_x + 4.4, level + .5)])
    canvas.stroke(line, "#ffffff", 3, .9)
    canvas.stroke(line, ALARM, 1.8, extra=' stroke-dasharray="3.4 2.2"')


def capping(canvas):
    x, y, s = centre(canvas)
    y -= 1.4 * s
    path = canvas.line([(x - 1.7 * s, y), (x, y + 1.3 * s), (x + 1.7 * s, y), (x, y - .5 * s)], closed=True)
    canvas.again(path, "#f59a5b", "#a3460d", .8)


def circle(x, y, radius):
    k = radius * .7071
    return [(x - radius, y), (x - k, y + k), (x, y + radius), (x + k, y + k), (x + radius, y), (x + k, y - k), (x, y - radius), (x - k, y - k)]


# --------------------------------------------------------------------------------------------------- whole teeth

def ghost(canvas, path):
    canvas.stroke(path, "#8f9aa8", .75, .9, ' stroke-dasharray="1.6 1.9"')


def missing(canvas):
    ghost(canvas, root_path(canvas))
    ghost(canvas, crown_path(canvas))
    gum(canvas, toothed=False)


def bridge(canvas):
    """A crown without a root, held at its sides."""
    ghost(canvas, root_path(canvas))
    gum(canvas, toothed=False)
    bar = canvas.along(canvas.tooth.length * .38, canvas.tooth.length * .68, *((1 - at, colour) for at, colour in reversed(GOLD)))
    half = 20 / canvas.tooth.scale
    low, high = canvas.tooth.length * .4, canvas.tooth.length * .66
    canvas.fill(canvas.straight([(-half, low), (half, low), (half, high), (-half, high)], closed=True), bar, extra=' stroke="#7a560c" stroke-width=".6"')
    gold(canvas)


def span(canvas):
    half = 20 / canvas.tooth.scale
    low, high = canvas.tooth.length * .42, canvas.tooth.length * .62
    canvas.fill(canvas.straight([(-half, low), (half, low), (half, high), (-half, high)], closed=True), "#dfe9f2",
                extra=f' stroke="{PLAN_EDGE}" stroke-width=".7"')
    ceramic(canvas, PLAN_EDGE)


def buried(canvas):
    """Still in the bone, under a gum that has closed over it."""
    canvas.lift, canvas.zoom = (5.4, .82) if canvas.tooth.scale == 3 else (3.4, .86)
    wide, far = canvas.tooth.widest
    tall = canvas.tooth.length
    sac = [((wide + .7), .6), (wide + .9, tall * .6), (wide * .7, tall + .9), (far * .7, tall + .9), (far - .9, tall * .6), (far - .7, .6)]
    root(canvas)
    enamel(canvas)
    canvas.fill(canvas.line(sac, closed=False), "#e9857f", .16)
    canvas.stroke(canvas.line(sac), "#b9504f", .8, .8, ' stroke-dasharray="2 1.6"')
    gum(canvas, toothed=False, drop=11)


def stump(canvas):
    """A root left behind: the crown broken off at the gum."""
    root(canvas)
    gum(canvas)
    (mx, my), (dx, dy) = canvas.tooth.crown[0][:2], canvas.tooth.crown[-1][:2]
    span_ = mx - dx
    broken = [(dx, dy), *((dx + span_ * a, dy + b) for a, b in ((.1, 1.5), (.24, .8), (.38, 1.7), (.52, .7), (.68, 1.3), (.84, .6))), (mx, my)]
    base = [(x, y - .1) for x, y in cervix(canvas.tooth)]
    path = canvas.straight(broken) + "L" + canvas.line(base)[1:] + "z"
    canvas.again(path, canvas.along(-1, 2, (0, "#e6cb98"), (1, "#a97c45")), "#6b4a22", .8)
    x, y = (mx + dx) / 2, (my + dy) / 2 - canvas.tooth.rise * .3
    canvas.fill(canvas.line(circle(x, y + .3, .75), closed=True), "#5a2c16", .8)
    ghost(canvas, crown_path(canvas))


def arrows(canvas):
    """To and fro: the tooth can be moved."""
    plain(canvas)
    y = canvas.tooth.length * .55
    scale = 3 / canvas.tooth.scale
    half = 19 / canvas.tooth.scale
    for side in (1, -1):
        tip, tail = side * half, side * (half - 4.6 * scale)
        shaft = [(tail, y - .9 * scale), ((tip + tail) / 2, y + .25 * scale), (tip, y)]
        head = [(tip - side * 1.5 * scale, y + 1.5 * scale), (tip, y), (tip - side * 1.9 * scale, y - 1.2 * scale)]
        for paint, width in (("#ffffff", 3.4), (HELP, 1.9)):
            canvas.stroke(canvas.line(shaft) + canvas.straight(head), paint, width)


def pull(canvas):
    """Crossed out from the apex to the bite."""
    deepest = min(limb.distal[-1][1] for limb in canvas.tooth.roots)
    top, low = canvas.tooth.length - .8, deepest * .8
    half = 11.5 / canvas.tooth.scale
    for paint, width in (("#ffffff", 4.2), (ALARM, 2.6)):
        canvas.stroke(canvas.straight([(-half, top), (half, low)]) + canvas.straight([(half, top), (-half, low)]), paint, width, .95)


def on_plain(*drawings):
    def both(canvas):
        plain(canvas)
        for drawing in drawings:
            drawing(canvas)
    return both


def devitalised(canvas):
    root(canvas)
    gum(canvas)
    enamel(canvas)
    canals(canvas)


def crowned(canvas):
    root(canvas)
    gum(canvas)
    gold(canvas)


def implanted(canvas):
    screw(canvas)
    gum(canvas)
    enamel(canvas)


SITUATIONS = {
    "": plain,
    "1": missing,
    "2": on_plain(decay),
    "3": on_plain(lambda canvas: patch(canvas, AMALGAM, "#566472")),
    "4": devitalised,
    "5": crowned,
    "6": bridge,
    "7": on_plain(crack),
    "8": buried,
    "9": implanted,
    "10": stump,
    "11": on_plain(fissures),
    "12": arrows,
}

# Service: name of its pictures and drawing; where the drawing is None, the picture of that name is drawn already.
SERVICES = {
    "OTTURAZ": ("otturazione", lambda canvas: patch(canvas, COMPOSITE, PLAN_EDGE)),
    "OTTURAZ2": ("otturazione2", lambda canvas: (patch(canvas, COMPOSITE, PLAN_EDGE, -.5, .2), patch(canvas, COMPOSITE, PLAN_EDGE, 2.1, -1.5, .6))),
    "RICOSTR": ("ricostruzione", rebuilt),
    "SIGILL": ("sigillatura", fissures),
    "INCAPP": ("incappucciamento", capping),
    "CORONA": ("corona", lambda canvas: ceramic(canvas, "#9fb4c8")),
    "CORMC": ("metalloceramica", lambda canvas: ceramic(canvas, "#8a6a1c")),
    "CORPROV": ("provvisoria", temporary),
    "CORIMP": ("corona", None),
    "PONTE": ("ponte", span),
    "INTARSIO": ("intarsio", inlay),
    "PERNO": ("perno", post),
    "IMPIANTO": ("impianto", screw),
    "ESTRAZ": ("estrazione", pull),
    "ESTRCHIR": ("estrazione", None),
    "DEVITAL": ("devitalizzazione", canals),
    "RITRATT": ("devitalizzazione", None),
    "APICO": ("apicectomia", cut_apex),
    "FACCETTA": ("faccetta", veneer),
}
