"""Paths, the shapes that stickers are made of, and the sticker that writes them as SVG. Units are those of the drawing,
y downward, angles in degrees, clockwise from the right."""

import math

# How far a circle's quarter pulls its handles.
KAPPA = 0.5522847498


class Path:
    def __init__(self, steps=None):
        self.steps = steps or []

    def __add__(self, other):
        return Path(self.steps + other.steps)

    def add(self, kind, *points):
        self.steps.append((kind, points))
        return self

    def move(self, x, y):
        return self.add("M", x, y)

    def line(self, *points):
        for i in range(0, len(points), 2):
            self.add("L", *points[i:i + 2])
        return self

    def quad(self, *points):
        return self.add("Q", *points)

    def cubic(self, *points):
        for i in range(0, len(points), 6):
            self.add("C", *points[i:i + 6])
        return self

    def close(self):
        return self.add("Z")

    def arc(self, x, y, radius, begin, end, first="L"):
        """Part of a circle, begun with a line from where the path stands, or with a move."""
        parts = max(1, math.ceil(abs(end - begin) / 90 - 1e-9))
        step = math.radians(end - begin) / parts
        pull = 4 / 3 * math.tan(step / 4) * radius
        a = math.radians(begin)
        self.add(first, x + radius * math.cos(a), y + radius * math.sin(a))
        for _ in range(parts):
            b = a + step
            self.cubic(x + radius * math.cos(a) - pull * math.sin(a), y + radius * math.sin(a) + pull * math.cos(a),
                       x + radius * math.cos(b) + pull * math.sin(b), y + radius * math.sin(b) - pull * math.cos(b),
                       x + radius * math.cos(b), y + radius * math.sin(b))
            a = b
        return self

    def mapped(self, change):
        steps = []
        for kind, points in self.steps:
            pairs = [change(points[i], points[i + 1]) for i in range(0, len(points), 2)]
            steps.append((kind, tuple(value for pair in pairs for value in pair)))
        return Path(steps)

    def moved(self, dx, dy):
        return self.mapped(lambda x, y: (x + dx, y + dy))

    def scaled(self, across, down=None):
        down = across if down is None else down
        return self.mapped(lambda x, y: (x * across, y * down))

    def rotated(self, degrees, x=0, y=0):
        c, s = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
        return self.mapped(lambda px, py: (x + (px - x) * c - (py - y) * s, y + (px - x) * s + (py - y) * c))

    def flipped(self, x):
        """Mirrored at an upright line."""
        return self.mapped(lambda px, py: (2 * x - px, py))

    def turned_over(self, y):
        """Mirrored at a level line."""
        return self.mapped(lambda px, py: (px, 2 * y - py))

    def bounds(self):
        """Of all its points, handles with them: letters have theirs at the extremes."""
        values = [point for _, point in self.steps]
        xs = [v for points in values for v in points[0::2]]
        ys = [v for points in values for v in points[1::2]]
        return min(xs), min(ys), max(xs), max(ys)

    def centred(self, x, y):
        left, top, right, bottom = self.bounds()
        return self.moved(x - (left + right) / 2, y - (top + bottom) / 2)

    def data(self):
        return "".join(kind + " ".join(number(value) for value in points) for kind, points in self.steps)


def number(value):
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def circle(x, y, radius):
    return Path().arc(x, y, radius, 0, 360, "M").close()


def rect(x, y, width, height, radius=0):
    if not radius:
        return Path().move(x, y).line(x + width, y, x + width, y + height, x, y + height).close()
    r, right, bottom = radius, x + width, y + height
    return (Path().arc(right - r, y + r, r, -90, 0, "M").arc(right - r, bottom - r, r, 0, 90)
            .arc(x + r, bottom - r, r, 90, 180).arc(x + r, y + r, r, 180, 270).close())


def lines(*points, closed=False):
    path = Path().move(*points[:2]).line(*points[2:])
    return path.close() if closed else path


def polygon(points, radius=0):
    """A closed shape with its corners rounded."""
    if not radius:
        return lines(*[value for point in points for value in point], closed=True)
    path = Path()
    for i, corner in enumerate(points):
        a, b = points[i - 1], points[(i + 1) % len(points)]
        (ux, uy), (vx, vy) = toward(corner, a), toward(corner, b)
        half = math.acos(max(-1.0, min(1.0, ux * vx + uy * vy))) / 2
        cut = min(radius / math.tan(half), math.dist(corner, a) / 2, math.dist(corner, b) / 2)
        pull = cut * (1 - 4 / 3 * math.tan((math.pi - 2 * half) / 4) * math.tan(half))
        x, y = corner
        path.add("L" if path.steps else "M", x + ux * cut, y + uy * cut)
        path.cubic(x + ux * pull, y + uy * pull, x + vx * pull, y + vy * pull, x + vx * cut, y + vy * cut)
    return path.close()


def toward(a, b):
    length = math.dist(a, b)
    return (b[0] - a[0]) / length, (b[1] - a[1]) / length


def at(x, y, radius, degrees):
    return x + radius * math.cos(math.radians(degrees)), y + radius * math.sin(math.radians(degrees))


def star(x, y, outer, inner, points=5, radius=0):
    return polygon([at(x, y, inner if i % 2 else outer, -90 + 180 / points * i) for i in range(2 * points)], radius)


def scallops(x, y, radius, count, depth):
    """A disc with a wavy edge."""
    path = Path()
    step = 360 / count
    path.move(*at(x, y, radius - depth, 0))
    for i in range(count):
        a, b, c = i * step, (i + 0.5) * step, (i + 1) * step
        path.cubic(*at(x, y, radius - depth * 0.2, a + step * 0.06), *at(x, y, radius, b - step * 0.27),
                   *at(x, y, radius, b))
        path.cubic(*at(x, y, radius, b + step * 0.27), *at(x, y, radius - depth * 0.2, c - step * 0.06),
                   *at(x, y, radius - depth, c))
    return path.close()


class Sticker:
    """A drawing in layers, the lowest first. Below all of them lies a rim, which keeps the sticker readable on grounds
    of its own colour."""

    def __init__(self, width, height, rims, swells=True):
        self.width, self.height, self.rims, self.swells = width, height, rims, swells
        self.layers, self.silhouette = [], []

    def fill(self, path, color="#ffffff", holes=False, rim=True, opacity=1):
        rule = ' fill-rule="evenodd"' if holes else ""
        faint = f' fill-opacity="{number(opacity)}"' if opacity < 1 else ""
        self.layers.append(f'<path d="{path.data()}" fill="{color}"{rule}{faint}/>')
        if rim:
            self.silhouette.append((path.data(), 0, "round"))
        return self

    def line(self, path, width, color="#ffffff", rim=True, ends="round"):
        join = "miter" if ends == "butt" else "round"
        self.layers.append(f'<path d="{path.data()}" fill="none" stroke="{color}" stroke-width="{number(width)}" '
                           f'stroke-linecap="{ends}" stroke-linejoin="{join}"/>')
        if rim:
            self.silhouette.append((path.data(), width, ends))
        return self

    def rim(self, color, opacity, grow):
        """The outlines of all that has a rim, widened. What is as wide as another goes into one path, since overlaps of
        translucent lines would show."""
        groups = {}
        for data, width, ends in self.silhouette:
            groups[width, ends] = groups.get((width, ends), "") + data
        faint = f' stroke-opacity="{number(opacity)}"' if opacity < 1 else ""
        return [f'<path d="{data}" fill="none" stroke="{color}"{faint} stroke-width="{number(width + 2 * grow)}" '
                f'stroke-linecap="{ends}" stroke-linejoin="round"/>' for (width, ends), data in groups.items()]

    def svg(self, small=False):
        """The document; `small` for showing it at a third of its size or less, where a thin rim is lost."""
        small = small and self.swells
        size = f'{number(self.width)}" height="{number(self.height)}'
        rows = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{size}" '
                f'viewBox="0 0 {number(self.width)} {number(self.height)}">']
        swell = 2 * max(self.width, self.height) / 512 if small else 1
        for color, opacity, grow in self.rims:
            rows += self.rim(color, min(1, opacity * (1.5 if small else 1)), grow * swell)
        return "\n".join(rows + self.layers + ["</svg>", ""])


def white(width=512, height=512):
    """A white mark, with a dark seam that is hardly seen on dark grounds and carries it on light ones."""
    return Sticker(width, height, [("#0b0f14", 0.1, 8), ("#0b0f14", 0.6, 5)])


def coloured(width=512, height=512):
    """A picture cut out of white paper."""
    return Sticker(width, height, [("#0b0f14", 0.3, 14), ("#ffffff", 1, 10)], swells=False)


def stamped(width=512, height=512):
    """Ink, with a light seam."""
    return Sticker(width, height, [("#ffffff", 0.85, 4)], swells=False)
