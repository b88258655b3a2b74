"""Marks of ownership: the letter in its ring, in several dresses, and words that keep a picture from being taken."""

from letters import centred, fitted, on_circle
from palette import INK, RED, WHITE
from shapes import Path, at, circle, coloured, lines, polygon, rect, star, white

MIDDLE = (256, 256)


def band(x, y, outer, inner, begin, end):
    """Part of a ring."""
    return Path().arc(x, y, outer, begin, end, "M").arc(x, y, inner, end, begin).close()


def letter_c(x, y, outer, inner):
    return band(x, y, outer, inner, 46, 314)


def ring_mark():
    s = white()
    s.line(circle(256, 256, 212), 36)
    return s.fill(letter_c(256, 256, 126, 80))


def solid_mark():
    s = white()
    s.line(circle(256, 256, 230), 12)
    return s.fill(circle(256, 256, 200) + letter_c(256, 256, 128, 78), holes=True)


def all_rights_mark():
    s = white()
    s.line(circle(256, 256, 236), 10).line(circle(256, 256, 140), 10)
    s.fill(letter_c(256, 256, 92, 58))
    s.fill(on_circle("sans", "ALL RIGHTS RESERVED", 50, MIDDLE, 170, 0.14))
    return s.fill(star(256, 446, 22, 9.5))


def word_mark():
    s = white(512, 112)
    s.line(circle(56, 56, 41), 9).fill(letter_c(56, 56, 24, 15))
    return s.fill(fitted("sans", "COPYRIGHT", (124, 31, 374, 50), 0.07))


def classic_mark():
    s = white()
    s.line(circle(256, 256, 240), 8).line(circle(256, 256, 224), 3).line(circle(256, 256, 142), 3)
    s.fill(on_circle("serif", "COPYRIGHT", 50, MIDDLE, 165, 0.12))
    s.fill(on_circle("serif", "PROTECTED", 50, MIDDLE, 201, 0.12, below=True))
    for degrees in (0, 180):
        s.fill(star(*at(256, 256, 183, degrees), 15, 5, 4))
    s.line(circle(256, 256, 104), 9)
    return s.fill(centred("serif", "C", 176, 254, 256))


def shield(grow=0.0):
    return (Path().move(256, 26).cubic(204, 66, 140, 84, 70, 86).line(70, 248)
            .cubic(70, 366, 146, 440, 256, 488).cubic(366, 440, 442, 366, 442, 248).line(442, 86)
            .cubic(372, 84, 308, 66, 256, 26).close().moved(-256, -256).scaled(1 + grow).moved(256, 256))


def shield_mark():
    s = white()
    s.line(shield(-0.03), 20)
    s.fill(shield(-0.17) + circle(256, 248, 112) + circle(256, 248, 92) + letter_c(256, 248, 62, 37), holes=True)
    return s


def no_copies_mark():
    s = coloured()
    s.fill(circle(256, 256, 228), WHITE)
    back, front = rect(172, 124, 140, 186, 14), rect(216, 176, 140, 186, 14)
    s.fill(back, INK, rim=False).line(front, 22, WHITE, rim=False).fill(front, INK, rim=False)
    for y in (222, 256, 290, 324):
        s.line(lines(246, y, 326, y), 11, WHITE, rim=False)
    s.line(lines(*at(256, 256, 208, 225), *at(256, 256, 208, 45)), 54, WHITE, rim=False)
    s.line(lines(*at(256, 256, 208, 225), *at(256, 256, 208, 45)), 38, RED, rim=False)
    return s.line(circle(256, 256, 208), 40, RED, rim=False)


def credit_mark():
    s = white(512, 184)
    body = polygon([(206, 34), (230, 34), (239, 16), (273, 16), (282, 34), (306, 34), (306, 96), (206, 96)], 9)
    s.fill(body + circle(256, 64, 24) + circle(256, 64, 15), holes=True)
    for y in (50, 80):
        inset = 0 if y == 50 else 26
        s.line(lines(24 + inset, y, 184, y), 5).line(lines(328, y, 488 - inset, y), 5)
    return s.fill(fitted("sans", "PHOTOGRAPHY", (20, 122, 472, 42), 0.1))


MARKS = [ring_mark, solid_mark, all_rights_mark, word_mark, classic_mark, shield_mark, no_copies_mark, credit_mark]
