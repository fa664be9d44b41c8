"""One picture in the making: a tooth in its box, in its quarter of the mouth, with the light from the left."""
W, H, MIDDLE, EDGE = 40.0, 84.0, 20.0, 82.0


def n(value):
    """As short as a number can be written: two digits, no needless nought."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    if text in ("-0", ""):
        return "0"
    return text.replace("0.", ".", 1) if text.startswith(("0.", "-0.")) else text


def compact(pairs):
    """Numbers in a row, parted only where they would run together."""
    return "".join(text if text.startswith("-") else " " + text for pair in pairs for text in map(n, pair))


def smooth(points, closed=False):
    """Cubic curves through the points; one with a "v" behind it stays a corner."""
    count = len(points)

    def at(i):
        return points[i % count] if closed else points[min(max(i, 0), count - 1)]

    def tangent(i):
        if len(at(i)) > 2:
            return 0.0, 0.0
        (ax, ay), (bx, by) = at(i - 1)[:2], at(i + 1)[:2]
        return (bx - ax) / 6, (by - ay) / 6

    curves = []
    for i in range(count if closed else count - 1):
        (ax, ay), (bx, by) = at(i)[:2], at(i + 1)[:2]
        (sx, sy), (ex, ey) = tangent(i), tangent(i + 1)
        curves.append(((ax + sx, ay + sy), (bx - ex, by - ey), (bx, by)))
    return curves


class Canvas:
    """Takes points in millimetres of the tooth, writes them where they lie in the picture."""

    def __init__(self, tooth, arch, side):
        self.tooth, self.arch, self.side = tooth, arch, side
        self.paints, self.parts, self.shapes = [], [], {}
        self.lift, self.zoom = 0.0, 1.0  # millimetres the tooth lies deeper than its neighbours; its size against them

    # ------------------------------------------------------------------------------------------------ places

    def box(self, x, y):
        """In units of the box, as the tooth would stand in the upper arch on the right side."""
        scale = self.tooth.scale * self.zoom
        return MIDDLE + x * scale, EDGE - (self.tooth.length - y + self.lift) * scale

    def turned(self, x, y):
        """From there to where the tooth stands."""
        return (x if self.side == "dx" else W - x), (y if self.arch == "sup" else H - y)

    def at(self, x, y):
        return self.turned(*self.box(x, y))

    def lit(self, x):
        """The place across that lies on the side of the light when `x` is below 0."""
        return x if self.side == "dx" else -x

    def text(self, *pairs):
        return " ".join(f"{n(x)} {n(y)}" for x, y in pairs)

    def line(self, points, closed=False, place=None, digits=2):
        """Curves through the points; shade does with one digit."""
        place = place or self.at
        x, y = (round(value, digits) for value in place(*points[0][:2]))
        path = f"M{n(x)} {n(y)}c"
        for curve in smooth(points, closed):
            moves = [(round(px - x, digits), round(py - y, digits)) for px, py in (place(*point) for point in curve)]
            path += compact(moves)
            x, y = x + moves[-1][0], y + moves[-1][1]
        return path + ("z" if closed else "")

    def straight(self, points, closed=False, place=None):
        place = place or self.at
        return "M" + "L".join(self.text(place(*point)) for point in points) + ("Z" if closed else "")

    # ------------------------------------------------------------------------------------------------ paints

    def paint(self, kind, attributes, stops):
        """A gradient; each of its stops is place, colour and, if it is seen through, opacity."""
        marks = "".join(f'<stop offset="{n(offset)}" stop-color="{colour}"' +
                        (f' stop-opacity="{n(opacity[0])}"' if opacity else "") + "/>" for offset, colour, *opacity in stops)
        name = f"p{len(self.paints)}"
        body = f' gradientUnits="userSpaceOnUse" {attributes}>{marks}</{kind}>'
        for other, *known in self.paints:
            if known == [kind, body]:
                return f"url(#{other})"
        self.paints.append((name, kind, body))
        return f"url(#{name})"

    def along(self, y0, y1, *stops):
        """From one height of the tooth to another."""
        (_, a), (_, b) = self.at(0, y0), self.at(0, y1)
        return self.paint("linearGradient", f'x1="0" y1="{n(a)}" x2="0" y2="{n(b)}"', stops)

    def across(self, x0, x1, *stops):
        """From the side of the light to the other, whatever the quarter."""
        (a, _), (b, _) = sorted((self.at(x0, 0), self.at(x1, 0)))
        return self.paint("linearGradient", f'x1="{n(a)}" y1="0" x2="{n(b)}" y2="0"', stops)

    def glow(self, x, y, radius, *stops):
        cx, cy = self.at(x, y)
        return self.paint("radialGradient", f'cx="{n(cx)}" cy="{n(cy)}" r="{n(radius * self.tooth.scale)}"', stops)

    # ------------------------------------------------------------------------------------------------ parts

    def fill(self, path, paint, opacity=None, extra=""):
        clear = f' fill-opacity="{n(opacity)}"' if opacity is not None else ""
        self.parts.append(f'<path d="{path}" fill="{paint}"{clear}{extra}/>')

    def stroke(self, path, paint, width, opacity=None, extra=""):
        clear = f' stroke-opacity="{n(opacity)}"' if opacity is not None else ""
        self.parts.append(f'<path d="{path}" fill="none" stroke="{paint}" stroke-width="{n(width)}"{clear} stroke-linecap="round" '
                          f'stroke-linejoin="round"{extra}/>')

    def soft(self, path, paint, width, opacity, layers=3):
        """A stroke without edges, as an airbrush leaves it."""
        name = self.shape(path)
        self.parts.append(f'<g fill="none" stroke="{paint}" stroke-opacity="{n(opacity / layers)}" stroke-linecap="round">' +
                          "".join(f'<use xlink:href="#{name}" stroke-width="{n(width * layer / layers)}"/>' for layer in range(layers, 0, -1)) +
                          "</g>")

    def shape(self, path):
        """An outline that is drawn more than once."""
        return self.shapes.setdefault(path, f"s{len(self.shapes)}")

    def again(self, path, fill="none", stroke="", width=0.0, opacity=1.0):
        line = f' stroke="{stroke}" stroke-width="{n(width)}" stroke-opacity="{n(opacity)}"' if stroke else ""
        self.parts.append(f'<use xlink:href="#{self.shape(path)}" fill="{fill}"{line}/>')

    def svg(self):
        return svg(self.parts, W, H, self.paints, self.shapes)


def svg(parts, width, height, paints=(), shapes=None):
    body = "".join(parts)
    used = "".join(f'<{kind} id="{name}"{rest}' for name, kind, rest in paints if f"url(#{name})" in body)
    used += "".join(f'<path id="{name}" d="{path}"/>' for path, name in (shapes or {}).items())
    link = ' xmlns:xlink="http://www.w3.org/1999/xlink"' if "xlink:" in body else ""
    defs = f"<defs>{used}</defs>" if used else ""
    return (f'<svg xmlns="http://www.w3.org/2000/svg"{link} width="{n(width)}" height="{n(height)}" viewBox="0 0 {n(width)} {n(height)}">'
            f"{defs}{body}</svg>\n")
