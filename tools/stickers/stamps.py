"""Rubber stamps, pressed a little askew."""

from letters import fitted, on_circle
from palette import BLUE, GREEN, INK, RED, SLATE, WHITE, WINE
from shapes import Path, circle, lines, rect, stamped, star


class Askew:
    """Hands shapes on to a sticker, turned about its middle."""

    def __init__(self, sticker, color, degrees):
        self.sticker, self.color, self.degrees = sticker, color, degrees

    def turned(self, path):
        return path.rotated(self.degrees, self.sticker.width / 2, self.sticker.height / 2)

    def fill(self, path):
        self.sticker.fill(self.turned(path), self.color)
        return self

    def spare(self, path):
        """Paper that shows through the ink."""
        self.sticker.fill(self.turned(path), WHITE, rim=False)
        return self

    def paper(self, path):
        """A light ground below the ink, through which the photo is still seen."""
        self.sticker.fill(self.turned(path), WHITE, rim=False, opacity=0.82)
        return self

    def line(self, path, width):
        self.sticker.line(self.turned(path), width, self.color)
        return self


def plate(words, color, degrees=-8):
    """A word in a double box."""
    s = stamped(512, 256)
    a = Askew(s, color, degrees)
    a.paper(rect(28, 62, 456, 132, 16)).line(rect(28, 62, 456, 132, 16), 11).line(rect(44, 78, 424, 100, 7), 4)
    a.fill(fitted("narrow", words, (60, 91, 392, 74), 0.13))
    return s


def proof():
    return plate("PROOF", RED)


def sample():
    s = stamped(512, 256)
    a = Askew(s, BLUE, 6)
    a.paper(rect(36, 34, 440, 188)).fill(fitted("narrow", "SAMPLE", (62, 86, 388, 84), 0.04))
    stars = Path()
    for i in range(-3, 4):
        for y in (62, 194):
            stars += star(256 + 62 * i, y, 15, 6.5)
    a.fill(stars)
    a.line(lines(36, 34, 476, 34) + lines(36, 222, 476, 222), 7)
    return s


def draft():
    s = stamped(512, 256)
    a = Askew(s, SLATE, -8)
    a.paper(rect(34, 66, 444, 124))
    a.line(lines(34, 66, 478, 66) + lines(34, 190, 478, 190), 11)
    a.line(lines(34, 82, 478, 82) + lines(34, 174, 478, 174), 4)
    word = fitted("narrow", "DRAFT", (100, 98, 312, 60), 0.08)
    dashes = rect(40, 118, 44, 20, 3) + rect(428, 118, 44, 20, 3)
    a.fill(word + dashes)
    return s


def approved():
    s = stamped()
    a = Askew(s, GREEN, -14)
    a.paper(circle(256, 256, 222)).line(circle(256, 256, 222), 14)
    a.line(circle(256, 256, 200), 5).line(circle(256, 256, 122), 5)
    a.fill(on_circle("narrow", "CHECKED", 62, (256, 256), 139, 0.12))
    a.fill(on_circle("narrow", "FINAL", 62, (256, 256), 184, 0.12, below=True))
    a.spare(rect(10, 204, 492, 104, 12))
    a.line(rect(14, 208, 484, 96, 12), 9)
    a.fill(fitted("narrow", "APPROVED", (36, 226, 440, 60), 0.05))
    return s


def sold():
    s = stamped()
    a = Askew(s, WINE, -12)
    a.paper(circle(256, 256, 221)).line(circle(256, 256, 221), 18).fill(circle(256, 256, 196))
    stars = Path()
    for place in (-1, 0, 1):
        for y in (132 + 8 * abs(place), 380 - 8 * abs(place)):
            stars += star(256 + 56 * place, y, 21, 9)
    a.spare(fitted("narrow", "SOLD", (92, 186, 328, 140), 0.03) + stars)
    return s


def confidential():
    s = stamped(512, 176)
    a = Askew(s, INK, -5)
    a.paper(rect(22, 40, 468, 96, 12)).line(rect(22, 40, 468, 96, 12), 7).fill(rect(34, 52, 444, 72, 5))
    a.spare(fitted("narrow", "CONFIDENTIAL", (52, 66, 408, 44), 0.06))
    return s


STAMPS = [proof, sample, draft, approved, sold, confidential]
