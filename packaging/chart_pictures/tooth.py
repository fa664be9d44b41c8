"""How a tooth, its gum and what a dentist puts on it are shaded."""
from .canvas import MIDDLE, W

BONE_SIDE, PAPILLA = 35.0, 65.5  # heights in the box, alike for all teeth so that the gum runs on from one to the next
MILK_BONE_SIDE, MILK_PAPILLA = 44.0, 70.0

ENAMEL = ((0, "#efdcb0"), (.2, "#f7ecd2"), (.5, "#fdfaf2"), (.82, "#fbfaf6"), (1, "#e7edf1"))
GOLD = ((0, "#a87a1c"), (.16, "#e2b84c"), (.34, "#fff3c4"), (.55, "#e6bd55"), (.85, "#b5851f"), (1, "#93690f"))
METAL = ((0, "#6d7884"), (.2, "#b9c2cb"), (.38, "#f6f8fa"), (.6, "#b3bdc7"), (1, "#66717d"))


def cervix(tooth):
    """The line of the neck, from the midline's side to the other."""
    (mx, my), (dx, dy) = tooth.crown[0][:2], tooth.crown[-1][:2]
    top = min(my, dy) - tooth.rise
    return [(mx, my), (mx * .62, top + (my - top) * .3), ((mx + dx) / 2, top), (dx * .62, top + (dy - top) * .3), (dx, dy)]


def crown_path(canvas):
    tooth = canvas.tooth
    return canvas.line(list(tooth.crown) + cervix(tooth)[:0:-1][1:], closed=True)


def root_path(canvas, roots=None):
    roots = roots or canvas.tooth.roots
    first, last = roots[0], roots[-1]
    if len(roots) == 1:
        return canvas.line([*first.distal, *reversed(first.mesial[:-1])]) + "Z"
    # Down one root and up to the fork, round it, and down the other.
    fork = (parting(canvas.tooth), first.fork + .35)
    return canvas.line([*first.distal, *reversed(first.mesial[2:-1]), fork, *last.distal[2:], *reversed(last.mesial[:-1])]) + "Z"


def parting(tooth):
    """Where two roots part, across."""
    return (tooth.roots[0].mesial[2][0] + tooth.roots[1].distal[2][0]) / 2


def shade_root(canvas, limb, strength=1.0):
    """Bands along the side away from the light, each a little darker, and a lighter one on the other."""
    dark = 1 if canvas.side == "dx" else 0
    deepest = min(point[1] for point in limb.distal)
    # Where two roots are still one, the shade of the parting comes slowly.
    fork = limb.fork or -.2
    paint = canvas.along(1, deepest, (0, "#8a6430", .02), (min(.95, (1 - fork * 1.15) / (1 - deepest)), "#8a6430", .12 * strength),
                         (1, "#8a6430", .12 * strength))
    edge = (limb.mesial if dark else limb.distal)[::2]
    for share in (.46, .66, .84):
        inner = limb.between(share if dark else 1 - share)[::2]
        canvas.fill(canvas.line([*inner, limb.distal[-1], *edge[::-1]], digits=1) + "z", paint)
    outer = (limb.distal if dark else limb.mesial)[::2]
    inner = limb.between(.1 if dark else .9)[::2]
    canvas.fill(canvas.line([*inner, limb.distal[-1], *outer[::-1]], digits=1) + "z", paint)
    light = limb.between(.3 if dark else .7)[3 if limb.fork else 1:-2:2]
    canvas.soft(canvas.line(light, digits=1), "#fffaf0", 3.2 if not limb.fork else 2.4, .5 * strength, 2)


def root_colour(canvas, behind=False):
    deepest = min(point[1] for limb in canvas.tooth.roots for point in limb.distal)
    if behind:
        return canvas.along(0, deepest, (0, "#c9a874"), (.5, "#dcc297"), (1, "#c7a672"))
    return canvas.along(1, deepest, (0, "#e3c48e"), (.18, "#efd9ae"), (.7, "#f5e6c6"), (1, "#e2c594"))


def root(canvas):
    tooth = canvas.tooth
    if tooth.behind:
        path = root_path(canvas, tooth.behind)
        canvas.again(path, root_colour(canvas, behind=True))
        shade_root(canvas, tooth.behind[0], .8)
        canvas.again(path, "none", "#8d6b3c", .55, .75)
    path = root_path(canvas)
    canvas.again(path, root_colour(canvas))
    if len(tooth.roots) > 1:
        across, fork = parting(tooth), tooth.roots[0].fork
        middle = (tooth.crown[0][0] + tooth.crown[-1][0]) / 2
        canvas.soft(canvas.line([((across + middle) / 2, .4), (across, fork * .5), (across, fork + .1)]), "#7d5826", 3.2, .3, 3)
    for limb in tooth.roots:
        shade_root(canvas, limb)
    canvas.again(path, "none", "#8d6b3c", .6, .85)


def cover(canvas, base, edge, volume=1.0, shadow="#6f5b3c", gloss=.9, behind=None):
    """A crown of any stuff: its own colour, rounded by shade, with the window of the lamp on it."""
    tooth = canvas.tooth
    path = crown_path(canvas)
    if tooth.cusps_behind:
        rear = [(tooth.cusps_behind[0][0], 3.5), *tooth.cusps_behind, (tooth.cusps_behind[-1][0], 3.5)]
        canvas.fill(canvas.line(rear) + "Z", behind or "#ece4d3", extra=f' stroke="{edge}" stroke-width=".4" stroke-opacity=".7"')
    canvas.again(path, base)
    wide, far = tooth.widest
    canvas.again(path, canvas.across(far, wide, (0, shadow, .26), (.13, shadow, .05), (.32, shadow, 0), (.6, shadow, .04),
                                    (.84, shadow, .2), (1, shadow, .46 * volume)))
    for line in tooth.grooves:
        canvas.soft(canvas.line(line, digits=1), "#6f5b3c", 1.9 if len(tooth.roots) > 1 else 2.6, .26 if len(tooth.roots) > 1 else .15, 2)
    span = wide - far
    tall = tooth.length
    x = canvas.lit(-span * .2) + (wide + far) / 2
    top, bottom = tall * .3, tall * .66
    canvas.soft(canvas.line([(x, top), (x - canvas.lit(span * .035), (top + bottom) / 2), (x, bottom)]), "#ffffff", span * tooth.scale * .15, gloss, 3)
    if len(tooth.roots) > 1:  # a second, lesser light on the other cusp
        x = canvas.lit(span * .17) + (wide + far) / 2
        canvas.soft(canvas.line([(x, tall * .42), (x, tall * .66)]), "#ffffff", span * tooth.scale * .09, gloss * .5, 2)
    canvas.again(path, "none", edge, .65, .85)


def enamel(canvas):
    tall = canvas.tooth.length
    canvas.soft(canvas.line(cervix(canvas.tooth)), "#7a5a2c", 2.2, .3, 2)
    cover(canvas, canvas.along(-.4, tall, *ENAMEL), "#857a66")


def gold(canvas):
    wide, far = canvas.tooth.widest
    cover(canvas, canvas.across(far, wide, *GOLD), "#7a560c", .35, gloss=.55, behind="#c99a35")


def gum(canvas, toothed=True, drop=0.0):
    """The gum of this tooth's part of the arch, seen through where it lies over the root. Without a tooth it closes; over one that
    is still to come it hangs lower."""
    deep, papilla = (MILK_BONE_SIDE, MILK_PAPILLA) if canvas.tooth.scale > 3 else (BONE_SIDE, PAPILLA)
    papilla += drop
    if toothed:
        neck = [canvas.box(x, y - .12) for x, y in reversed(cervix(canvas.tooth))]
        (dx, dy), (mx, my) = neck[0], neck[-1]
        margin = [(0, papilla), (dx * .55, (dy + papilla) / 2 + .6), *neck, (W - (W - mx) * .45, (my + papilla) / 2 + .6), (W, papilla)]
    else:
        margin = [(0, papilla - 2), (8, papilla - 4.5), (MIDDLE, papilla - 5.5), (W - 8, papilla - 4.5), (W, papilla - 2)]
    edge = canvas.line(margin, place=canvas.turned)
    body = edge + "L" + canvas.text(canvas.turned(W, deep), canvas.turned(0, deep)) + "Z"
    (_, top), (_, low) = canvas.turned(0, deep), canvas.turned(0, papilla)
    fade = canvas.paint("linearGradient", f'x1="0" y1="{top:g}" x2="0" y2="{low:g}"',
                        ((0, "#e79a94", 0), (.4, "#e9a09b", .16), (.8, "#e48d89", .42), (1, "#df7f7c", .6)))
    canvas.fill(body, fade)
    canvas.soft(edge, "#fbd5d0", 1.6, .5, 2)
    canvas.again(edge, "none", "#b9504f", .5, .5)


def plain(canvas):
    root(canvas)
    gum(canvas)
    enamel(canvas)


def canals(canvas, width=.34):
    """The chamber in the crown and a canal down each root, as a radiograph shows them filled."""
    tooth = canvas.tooth
    reach = min(tooth.length * .38, 3.2)
    for limb in (*tooth.behind, *tooth.roots):
        left, right = limb.between(.5 - width / 2), limb.between(.5 + width / 2)
        middle = limb.between(.5)
        tip = middle[-3]
        left, right = left[1:-4], right[1:-4]
        top = ((left[0][0] + right[0][0]) / 2 * .6, reach)
        path = canvas.line([top, *left, tip, *right[::-1], top])
        canvas.fill(path + "Z", canvas.along(reach, tip[1], (0, "#f0803c"), (1, "#c2410c")))
        canvas.stroke(path + "Z", "#8f2d06", .45, .8)
