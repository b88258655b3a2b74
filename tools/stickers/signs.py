"""The shapes by which people point and answer."""

from palette import BLUE, GOLD, AMBER, NAVY, ORANGE, RED, RUST, TEAL, WHITE
from shapes import Path, circle, coloured, lines, polygon, rect, star, white


def arrow():
    s = white(512, 320)
    return s.fill(polygon([(28, 118), (286, 118), (286, 28), (484, 160), (286, 292), (286, 202), (28, 202)], 14))


def curved_arrow():
    s = white()
    s.line(Path().move(60, 430).cubic(70, 210, 230, 110, 420, 168), 34)
    return s.line(lines(318, 66, 440, 172, 330, 290), 34)


def speech_bubble():
    s = coloured()
    path = (Path().arc(412, 130, 72, -90, 0, "M").arc(412, 290, 72, 0, 90).line(256, 362)
            .cubic(226, 404, 186, 440, 128, 462).cubic(152, 428, 158, 396, 152, 362)
            .line(100, 362).arc(100, 290, 72, 90, 180).arc(100, 130, 72, 180, 270).close())
    s.fill(path, BLUE)
    return s.fill(circle(152, 210, 28) + circle(256, 210, 28) + circle(360, 210, 28), WHITE, rim=False)


def heart():
    s = coloured()
    path = (Path().move(256, 466).cubic(120, 370, 34, 284, 34, 178).cubic(34, 104, 88, 54, 152, 54)
            .cubic(196, 54, 234, 76, 256, 114).cubic(278, 76, 316, 54, 360, 54).cubic(424, 54, 478, 104, 478, 178)
            .cubic(478, 284, 392, 370, 256, 466).close())
    s.fill(path, RED)
    return s.line(Path().move(92, 184).cubic(90, 140, 116, 112, 152, 110), 24, WHITE, rim=False)


def gold_star():
    s = coloured()
    s.fill(star(256, 276, 238, 110, radius=20), GOLD)
    return s.line(star(256, 276, 184, 85, radius=14), 8, AMBER, rim=False)


def place_pin():
    s = coloured(400, 512)
    path = (Path().move(200, 486).cubic(176, 410, 44, 326, 44, 182).cubic(44, 92, 114, 26, 200, 26)
            .cubic(286, 26, 356, 92, 356, 182).cubic(356, 326, 224, 410, 200, 486).close())
    s.fill(path, ORANGE)
    return s.fill(circle(200, 182, 76), WHITE, rim=False).fill(circle(200, 182, 40), RUST, rim=False)


def thumb():
    s = coloured()
    hand = (Path().move(176, 236).cubic(226, 196, 246, 146, 250, 76).cubic(252, 42, 316, 36, 330, 92)
            .cubic(338, 126, 328, 166, 314, 204).line(422, 204).cubic(474, 206, 474, 268, 438, 276)
            .cubic(468, 292, 460, 340, 424, 344).cubic(450, 362, 438, 404, 404, 406)
            .cubic(424, 430, 406, 462, 372, 462).line(262, 462).cubic(226, 462, 204, 440, 176, 434).close())
    s.fill(hand, BLUE).fill(rect(44, 222, 112, 250, 20), NAVY)
    s.line(lines(372, 276, 436, 276) + lines(364, 344, 424, 344) + lines(352, 406, 404, 406), 9, NAVY, rim=False)
    return s.fill(circle(100, 428, 15), WHITE, rim=False)


def at_sign():
    s = coloured()
    s.fill(circle(256, 256, 226), TEAL)
    s.line(circle(250, 256, 64), 34, WHITE, rim=False)
    tail = Path().move(318, 186).line(318, 282).cubic(318, 346, 398, 340, 398, 256)
    tail.arc(256, 256, 142, 0, -302)
    return s.line(tail, 34, WHITE, rim=False)


SIGNS = [arrow, curved_arrow, speech_bubble, heart, gold_star, place_pin, thumb, at_sign]
