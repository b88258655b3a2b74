"""Ribbons, seals and badges, and the shapes by which people point and answer."""

from frames import leaf
from letters import centred, fitted, on_circle
from palette import AMBER, BLUE, GOLD, INK, NAVY, ORANGE, PAPER, RED, RUST, TEAL, WHITE, WINE
from shapes import Path, at, circle, coloured, lines, polygon, rect, scallops, star, white


def banner():
    s = coloured(512, 160)
    tail = polygon([(22, 56), (110, 56), (110, 136), (22, 136), (50, 96)], 3)
    s.fill(tail + tail.flipped(256), WINE)
    fold = lines(82, 118, 110, 136, 110, 118, closed=True)
    s.fill(rect(82, 24, 348, 94, 3), RED).fill(fold + fold.flipped(256), "#5f121a", rim=False)
    s.line(lines(94, 36, 418, 36) + lines(94, 106, 418, 106), 3, PAPER, rim=False)
    return s.fill(fitted("sans", "LIMITED EDITION", (104, 54, 304, 34), 0.05), WHITE, rim=False)


def corner_ribbon():
    s = coloured()
    back = polygon([(96, 20), (146, 20), (146, 70)], 2) + polygon([(492, 366), (492, 416), (442, 366)], 2)
    s.fill(back, RUST)
    s.fill(lines(112, 20, 268, 20, 492, 244, 492, 400, closed=True), ORANGE)
    s.line(lines(142, 28, 484, 370) + lines(254, 28, 484, 258), 4, WHITE, rim=False, ends="butt")
    word = centred("sans", "NEW", 76, 341, 171, 0.16)
    return s.fill(word.rotated(45, 341, 171), WHITE, rim=False)


def rosette():
    s = coloured(400, 512)
    tail = polygon([(138, 270), (218, 290), (182, 488), (146, 446), (92, 464)], 4)
    s.fill(tail + tail.flipped(200), NAVY)
    s.fill(scallops(200, 190, 168, 20, 18), BLUE)
    s.fill(circle(200, 190, 124), WHITE, rim=False).fill(circle(200, 190, 112), GOLD, rim=False)
    s.line(circle(200, 190, 96), 5, AMBER, rim=False)
    return s.fill(centred("serif", "1", 170, 200, 190), INK, rim=False)


def seal():
    s = coloured()
    s.fill(scallops(256, 256, 234, 28, 16), GOLD)
    s.line(circle(256, 256, 196), 5, AMBER, rim=False)
    s.fill(circle(256, 256, 184), INK, rim=False).line(circle(256, 256, 112), 4, GOLD, rim=False)
    s.fill(on_circle("sans", "PREMIUM", 48, (256, 256), 130, 0.12), GOLD, rim=False)
    s.fill(on_circle("sans", "QUALITY", 48, (256, 256), 165, 0.12, below=True), GOLD, rim=False)
    s.fill(circle(*at(256, 256, 148, 180), 6) + circle(*at(256, 256, 148, 0), 6), GOLD, rim=False)
    return s.fill(star(256, 260, 84, 36, radius=5), GOLD, rim=False)


def laurel():
    s = white()
    wreath = Path()
    for i in range(9):
        degrees = 104 + 17.5 * i
        x, y = at(256, 252, 186, degrees)
        size = 74 - 3.2 * i
        wreath += leaf(x, y, size, degrees + 60) + leaf(x, y, size, degrees + 122)
    stem = Path().arc(256, 252, 186, 96, 252, "M")
    s.line(stem + stem.flipped(256), 6).fill(wreath + wreath.flipped(256))
    s.fill(star(256, 150, 44, 19, radius=3))
    s.fill(fitted("serif", "BEST", (166, 210, 180, 62), 0.04))
    s.fill(fitted("sans", "OF SHOW", (170, 296, 172, 34), 0.06))
    return s.line(lines(206, 356, 306, 356), 5)


def hexagon():
    return [at(256, 256, 226, 60 * i - 90) for i in range(6)]


def best_shot():
    s = coloured()
    s.fill(polygon(hexagon(), 26), TEAL)
    inner = [at(256, 256, 196, 60 * i - 90) for i in range(6)]
    s.line(polygon(inner, 18), 5, WHITE, rim=False)
    body = polygon([(196, 140), (230, 140), (242, 116), (270, 116), (282, 140), (316, 140), (316, 214), (196, 214)], 11)
    s.fill(body + circle(256, 176, 29) + circle(256, 176, 18), WHITE, holes=True, rim=False)
    s.fill(fitted("sans", "BEST", (146, 238, 220, 62), 0.04), WHITE, rim=False)
    s.fill(fitted("sans", "SHOT", (166, 318, 180, 50), 0.04), WHITE, rim=False)
    return s


BADGES = [banner, corner_ribbon, rosette, seal, laurel, best_shot]
