"""Letters as paths: reads the outlines of TrueType fonts, so that the stickers need no font where they are shown."""

import math
import struct
from functools import lru_cache
from pathlib import Path as FilePath

from shapes import Path

FOLDER = FilePath("/usr/share/fonts/truetype")
FACES = {
    "sans": "noto/NotoSans-Bold.ttf",
    "narrow": "liberation/LiberationSansNarrow-Bold.ttf",
    "serif": "noto/NotoSerif-Bold.ttf",
}


class Face:
    """One font file. Lengths are fractions of the em, y downward, the baseline at 0."""

    def __init__(self, file):
        self.data = (FOLDER / file).read_bytes()
        self.tables = {}
        for i in range(self.number("H", 4)):
            tag, _, offset, _ = struct.unpack_from(">4sLLL", self.data, 12 + 16 * i)
            self.tables[tag.decode()] = offset
        head, hhea = self.tables["head"], self.tables["hhea"]
        self.em = self.number("H", head + 18)
        self.long_index = self.number("h", head + 50) == 1
        self.metrics = self.number("H", hhea + 34)
        self.glyphs = self.read_map()

    def number(self, kind, offset):
        return struct.unpack_from(">" + kind, self.data, offset)[0]

    def read_map(self):
        """The glyph of each character, from the table of format 4 that every such font has."""
        cmap = self.tables["cmap"]
        for i in range(self.number("H", cmap + 2)):
            at = cmap + self.number("L", cmap + 8 + 8 * i)
            if self.number("H", at) == 4:
                return self.read_segments(at)
        raise ValueError("a font without a table of characters")

    def read_segments(self, at):
        count = self.number("H", at + 6) // 2
        ends, starts = at + 14, at + 16 + 2 * count
        deltas, offsets = starts + 2 * count, starts + 4 * count
        glyphs = {}
        for i in range(count):
            first, last = self.number("H", starts + 2 * i), self.number("H", ends + 2 * i)
            delta, offset = self.number("H", deltas + 2 * i), self.number("H", offsets + 2 * i)
            for code in range(first, min(last, 0xFFFE) + 1):
                glyph = code
                if offset:
                    glyph = self.number("H", offsets + 2 * i + offset + 2 * (code - first))
                if glyph or not offset:
                    glyphs[code] = (glyph + delta) % 0x10000
        return glyphs

    def advance(self, character):
        row = min(self.glyphs[ord(character)], self.metrics - 1)
        return self.number("H", self.tables["hmtx"] + 4 * row) / self.em

    @lru_cache(maxsize=None)
    def outline(self, character):
        return self.glyph(self.glyphs[ord(character)]).scaled(1 / self.em, -1 / self.em)

    def glyph(self, index):
        loca = self.tables["loca"]
        if self.long_index:
            begin, end = struct.unpack_from(">LL", self.data, loca + 4 * index)
        else:
            begin, end = (2 * half for half in struct.unpack_from(">HH", self.data, loca + 2 * index))
        if begin == end:
            return Path()
        at = self.tables["glyf"] + begin
        contours = self.number("h", at)
        return self.simple(at, contours) if contours >= 0 else self.compound(at + 10)

    def compound(self, at):
        path, more = Path(), True
        while more:
            flags, index = struct.unpack_from(">HH", self.data, at)
            words = flags & 1
            dx, dy = struct.unpack_from(">hh" if words else ">bb", self.data, at + 4)
            if flags & 0xC8:
                raise ValueError("a letter of scaled parts")
            path += self.glyph(index).moved(dx, dy)
            at += 8 if words else 6
            more = flags & 0x20
        return path

    def simple(self, at, contours):
        ends = struct.unpack_from(f">{contours}H", self.data, at + 10)
        at += 10 + 2 * contours
        at += 2 + self.number("H", at)
        flags = []
        while len(flags) <= ends[-1]:
            flag = self.data[at]
            at += 1
            flags.append(flag)
            if flag & 8:
                flags += [flag] * self.data[at]
                at += 1
        xs, at = self.coordinates(flags, at, 2, 16)
        ys, at = self.coordinates(flags, at, 4, 32)
        points = [(x, y, flag & 1) for x, y, flag in zip(xs, ys, flags)]
        path, begin = Path(), 0
        for end in ends:
            path += contour(points[begin:end + 1])
            begin = end + 1
        return path

    def coordinates(self, flags, at, short, same):
        value, values = 0, []
        for flag in flags:
            if flag & short:
                value += self.data[at] if flag & same else -self.data[at]
                at += 1
            elif not flag & same:
                value += self.number("h", at)
                at += 2
            values.append(value)
        return values, at


def contour(points):
    """Between two points off the curve lies one on it."""
    full = []
    for i, point in enumerate(points):
        before = points[i - 1]
        if not point[2] and not before[2]:
            full.append(((before[0] + point[0]) / 2, (before[1] + point[1]) / 2, 1))
        full.append(point)
    start = next(i for i, point in enumerate(full) if point[2])
    full = full[start:] + full[:start + 1]
    path = Path().move(*full[0][:2])
    i = 1
    while i < len(full):
        if full[i][2]:
            path.line(*full[i][:2])
            i += 1
        else:
            path.quad(*full[i][:2], *full[i + 1][:2])
            i += 2
    return path.close()


@lru_cache(maxsize=None)
def face(name):
    return Face(FACES[name])


def text(name, words, size, tracking=0.0):
    """Words that begin at the origin and stand on it. Tracking is a share of the size."""
    path, x = Path(), 0.0
    for character in words:
        path += face(name).outline(character).scaled(size).moved(x, 0)
        x += (face(name).advance(character) + tracking) * size
    return path


def centred(name, words, size, x, y, tracking=0.0):
    """Words whose ink is centred on a point."""
    return text(name, words, size, tracking).centred(x, y)


def fitted(name, words, box, tracking=0.0):
    """Words as large as a box (x, y, width, height) allows, their ink in its middle."""
    x, y, width, height = box
    path = text(name, words, 100, tracking)
    left, top, right, bottom = path.bounds()
    scale = min(width / (right - left), height / (bottom - top))
    return path.scaled(scale).centred(x + width / 2, y + height / 2)


def on_circle(name, words, size, centre, radius, tracking=0.0, below=False):
    """Words on a circle, their middle at its top, or at its bottom and then read upright there as well."""
    widths = [(face(name).advance(c) + tracking) * size for c in words]
    turn = -1 if below else 1
    angle = -turn * (sum(widths) - tracking * size) / radius / 2
    path = Path()
    for character, width in zip(words, widths):
        own = width - tracking * size
        angle += turn * own / radius / 2
        letter = face(name).outline(character).scaled(size).moved(-own / 2, turn * -radius)
        path += letter.rotated(math.degrees(angle)).moved(*centre)
        angle += turn * (own / 2 + tracking * size) / radius
    return path
