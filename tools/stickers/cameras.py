"""Cameras, and what belongs to them."""

import math

from letters import centred, on_circle
from palette import GOLD, INK, ORANGE, PAPER, RUST, SEA, SILVER, SKY, SLATE, TEAL, WHITE
from shapes import Path, at, circle, coloured, lines, polygon, rect, white


def body(grow=0.0):
    return polygon([(36 - grow, 146 - grow), (152, 146 - grow), (188, 88 - grow), (324, 88 - grow),
                    (360, 146 - grow), (476 + grow, 146 - grow), (476 + grow, 424 + grow), (36 - grow, 424 + grow)],
                   38 + grow)


def outlined_camera():
    s = white()
    s.line(body(-2), 24).line(circle(256, 276, 92), 24)
    s.line(Path().arc(256, 276, 48, 185, 265, "M"), 14)
    return s.fill(circle(414, 204, 17))


def solid_camera():
    s = white()
    holes = circle(256, 280, 112) + circle(256, 280, 88) + circle(256, 280, 44) + rect(392, 188, 48, 26, 13)
    return s.fill(body(8) + holes, holes=True)


def glass(s, x, y, radius, deep=SEA, mid=TEAL):
    """A lens seen from the front."""
    s.fill(circle(x, y, radius), INK, rim=False).fill(circle(x, y, radius * 0.8), deep, rim=False)
    s.fill(circle(x, y, radius * 0.56), mid, rim=False).fill(circle(x, y, radius * 0.3), INK, rim=False)
    s.line(Path().arc(x, y, radius * 0.66, 195, 265, "M"), radius * 0.12, WHITE, rim=False)
    s.fill(circle(x + radius * 0.3, y + radius * 0.3, radius * 0.1), SKY, rim=False)


def classic_camera():
    s = coloured()
    s.fill(rect(84, 112, 60, 44, 10), SLATE).fill(rect(346, 100, 84, 50, 12), SLATE)
    s.fill(polygon([(190, 150), (206, 92), (306, 92), (322, 150)], 12), SILVER)
    s.fill(rect(28, 138, 456, 288, 34), SILVER)
    s.fill(rect(28, 206, 456, 156), SLATE, rim=False)
    for y in (206, 362):
        s.line(lines(28, y, 484, y), 5, INK, rim=False, ends="butt")
    s.fill(rect(228, 108, 56, 30, 6), INK, rim=False)
    s.fill(circle(82, 172, 13), SLATE, rim=False).fill(rect(398, 160, 56, 26, 6), SLATE, rim=False)
    s.fill(circle(256, 284, 128), SILVER, rim=False).line(circle(256, 284, 128), 5, INK, rim=False)
    glass(s, 256, 284, 106)
    return s


def box_camera():
    s = coloured(400, 512)
    s.fill(polygon([(96, 92), (84, 24), (316, 24), (304, 92)], 10), SLATE)
    s.fill(rect(334, 236, 42, 92, 12), SILVER).fill(rect(24, 150, 36, 52, 10), SILVER)
    s.fill(rect(48, 78, 304, 410, 26), RUST)
    s.fill(rect(48, 78, 304, 24, 10), INK, rim=False).fill(rect(92, 112, 216, 354, 26), INK, rim=False)
    s.line(rect(105, 125, 190, 328, 18), 4, SILVER, rim=False)
    s.fill(circle(200, 206, 66), SILVER, rim=False).fill(circle(200, 366, 76), SILVER, rim=False)
    glass(s, 200, 206, 53, SLATE, SKY)
    glass(s, 200, 366, 64)
    return s


def film_camera():
    s = white()
    reels = Path()
    for x, y, r in ((140, 146, 104), (337, 166, 84)):
        reels += circle(x, y, r) + circle(x, y, r * 0.16)
        for i in range(5):
            reels += circle(*at(x, y, r * 0.58, 72 * i - 90), r * 0.21)
    s.fill(reels, holes=True)
    s.fill(rect(60, 268, 312, 196, 30) + rect(96, 308, 96, 32, 16), holes=True)
    return s.fill(polygon([(392, 334), (486, 280), (486, 452), (392, 398)], 16))


def tripod_camera():
    s = white()
    small = body().moved(-256, -256).scaled(0.58).moved(256, 146)
    s.fill(small + circle(256, 160, 62) + circle(256, 160, 44), holes=True)
    s.fill(rect(204, 254, 104, 24, 8)).fill(polygon([(222, 284), (290, 284), (280, 326), (232, 326)], 6))
    s.line(lines(240, 330, 150, 484), 24).line(lines(272, 330, 362, 484), 24).line(lines(256, 334, 256, 470), 20)
    return s


def blades(x, y, radius, opening, gap, count=6, turn=0.0):
    """The leaves of an aperture around an opening of a given inner radius."""
    path = Path()
    for i in range(count):
        a, b = turn + 360 / count * i, turn + 360 / count * (i + 1)
        near, far = opening - gap, opening + gap
        c, d = math.radians(a), math.radians(b)
        turned = math.sin(d - c)
        corner = ((near * math.sin(d) - far * math.sin(c)) / turned, (far * math.cos(c) - near * math.cos(d)) / turned)
        begin, end = a + math.degrees(math.acos(near / radius)), b + math.degrees(math.acos(far / radius))
        path.move(x + corner[0], y + corner[1]).arc(x, y, radius, begin, end).close()
    return path


def aperture():
    s = white()
    s.line(circle(256, 256, 228), 18)
    return s.fill(blades(256, 256, 204, 82, 6, turn=12))


def flash_badge():
    s = coloured()
    s.fill(circle(256, 256, 222), INK).line(circle(256, 256, 196), 8, GOLD, rim=False)
    return s.fill(polygon([(290, 96), (154, 282), (244, 282), (216, 420), (358, 220), (266, 220)], 10), GOLD, rim=False)


def lens_front():
    s = coloured()
    s.fill(circle(256, 256, 228), INK).line(circle(256, 256, 208), 6, SLATE, rim=False)
    s.fill(on_circle("sans", "WIDE ANGLE LENS", 31, (256, 256), 176, 0.14), WHITE, rim=False)
    s.fill(on_circle("sans", "1:2.8  35 mm", 31, (256, 256), 199, 0.14, below=True), WHITE, rim=False)
    s.fill(circle(256, 256, 158), SLATE, rim=False).fill(circle(256, 256, 146), INK, rim=False)
    s.fill(circle(256, 256, 124), SEA, rim=False).fill(circle(256, 256, 92), TEAL, rim=False)
    s.fill(blades(256, 256, 92, 30, 1.5, turn=10), SEA, rim=False)
    s.line(Path().arc(256, 256, 108, 190, 262, "M"), 15, WHITE, rim=False)
    return s.line(Path().arc(256, 256, 108, 24, 60, "M"), 11, SKY, rim=False)


def perforations(x, y, count, step, width, height, radius=4):
    path = Path()
    for i in range(count):
        path += rect(x + i * step, y, width, height, radius)
    return path


def film_roll():
    s = coloured()
    tongue = polygon([(250, 146), (488, 146), (488, 330), (430, 330), (400, 392), (250, 392)], 8)
    s.fill(tongue, SLATE)
    s.fill(perforations(302, 160, 5, 37, 20, 25), PAPER, rim=False)
    s.fill(perforations(302, 353, 3, 37, 20, 25), PAPER, rim=False)
    s.fill(rect(118, 34, 84, 60, 12), INK).fill(rect(118, 440, 84, 34, 10), INK)
    s.fill(rect(36, 74, 248, 390, 22), GOLD)
    s.fill(rect(36, 196, 248, 146), ORANGE, rim=False)
    s.fill(rect(24, 74, 272, 40, 14), INK).fill(rect(24, 424, 272, 40, 14), INK)
    s.fill(centred("narrow", "400", 104, 160, 248), WHITE, rim=False)
    s.fill(centred("sans", "COLOUR FILM", 29, 160, 312, 0.02), WHITE, rim=False)
    return s.line(lines(66, 132, 66, 178), 10, PAPER, rim=False)


def film_strip():
    s = coloured(512, 220)
    strip = rect(18, 18, 476, 184, 10)
    holes = perforations(33, 30, 14, 32.6, 19, 21) + perforations(33, 169, 14, 32.6, 19, 21)
    s.fill(strip, INK).fill(holes, WHITE, rim=False)
    for x, sky, hill, sun in ((36, SKY, SEA, WHITE), (187, GOLD, RUST, PAPER), (338, TEAL, INK, GOLD)):
        s.fill(rect(x, 64, 138, 92, 6), sky, rim=False).fill(circle(x + 102, 91, 13), sun, rim=False)
        s.fill(polygon([(x, 156), (x, 138), (x + 44, 88), (x + 74, 124), (x + 90, 108), (x + 138, 146),
                        (x + 138, 156)], 4), hill, rim=False)
    return s


def landscape():
    s = white()
    s.line(rect(36, 76, 440, 360, 46), 24).line(circle(166, 186, 36), 20)
    return s.fill(polygon([(82, 390), (190, 270), (244, 324), (334, 208), (432, 340), (432, 390)], 16))


CAMERAS = [outlined_camera, solid_camera, classic_camera, box_camera, film_camera, tripod_camera, aperture,
           flash_badge, lens_front, film_roll, film_strip, landscape]
