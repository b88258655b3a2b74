"""Frames and corners that stand around a picture."""

from cameras import perforations
from letters import text
from palette import GOLD, INK, PAPER, RED, SLATE, WHITE
from shapes import Path, Sticker, circle, lines, polygon, rect, white

WIDTH, HEIGHT = 768, 512


def four_times(path, width=WIDTH, height=HEIGHT):
    """A corner, at all corners."""
    upper = path + path.flipped(width / 2)
    return upper + upper.turned_over(height / 2)


def double_frame():
    s = white(WIDTH, HEIGHT)
    s.line(rect(18, 18, 732, 476), 9, ends="butt")
    inset, notch = 40, 30
    corner = Path().arc(inset, inset, notch, 90, 0, "M")
    s.line(four_times(corner), 3.5)
    s.line(four_times(lines(inset + notch, inset, WIDTH / 2, inset) + lines(inset, inset + notch, inset, HEIGHT / 2)),
           3.5)
    return s


def film_frame():
    s = Sticker(WIDTH, HEIGHT, [("#ffffff", 0.6, 3)])
    s.fill(rect(6, 6, 756, 500, 4) + rect(40, 84, 688, 344, 12) + perforations(27, 38, 14, 51.5, 31, 36, 7)
           + perforations(27, 438, 14, 51.5, 31, 36, 7), INK, holes=True)
    for words, x, y in (("24", 130, 30), ("SAFETY FILM", 330, 30), ("24A", 600, 30), ("T-400", 330, 498)):
        s.fill(text("narrow", words, 20, 0.06).moved(x, y), GOLD, rim=False)
    for x in (166, 642):
        s.fill(polygon([(x, 15), (x + 18, 22.5), (x, 30)], 1), GOLD, rim=False)
    return s


def print_frame():
    s = Sticker(432, 512, [("#0b0f14", 0.12, 10), ("#0b0f14", 0.22, 5)])
    s.fill(rect(14, 14, 404, 484, 6) + rect(42, 42, 348, 348), PAPER, holes=True)
    return s.line(rect(42, 42, 348, 348), 2.5, "#c9c4b8", rim=False, ends="butt")


def spiral_corner():
    """A scroll along either side of a corner."""
    arm = (Path().move(26, 26).cubic(92, 20, 158, 28, 172, 56).cubic(182, 78, 158, 98, 142, 84)
           .cubic(131, 73, 141, 58, 153, 66))
    return arm + arm.mapped(lambda x, y: (y, x))


def leaf(x, y, length, degrees):
    path = (Path().move(0, 0).cubic(length * 0.25, -length * 0.32, length * 0.7, -length * 0.26, length, 0)
            .cubic(length * 0.7, length * 0.26, length * 0.25, length * 0.32, 0, 0).close())
    return path.rotated(degrees).moved(x, y)


def ornamental_frame():
    s = white(WIDTH, HEIGHT)
    s.line(four_times(spiral_corner()), 6)
    s.line(four_times(lines(190, 26, 318, 26)) + lines(26, 190, 26, 322) + lines(742, 190, 742, 322), 4)
    side = leaf(104, 28, 46, 34) + leaf(176, 50, 34, -24)
    s.fill(four_times(side + side.mapped(lambda x, y: (y, x)) + leaf(40, 40, 62, 45)))
    ends = Path()
    for y in (26, 486):
        ends += polygon([(384, y - 13), (397, y), (384, y + 13), (371, y)], 2)
        ends += leaf(362, y, 40, 180) + leaf(406, y, 40, 0)
    return s.fill(ends)


def viewfinder_frame():
    s = white(WIDTH, HEIGHT)
    corner = lines(24, 104, 24, 24, 104, 24)
    s.line(four_times(corner), 9)
    bracket = Path().move(300, 230).line(300, 200, 330, 200)
    s.line(four_times(bracket), 5)
    s.line(lines(366, 256, 402, 256) + lines(384, 238, 384, 274), 4)
    s.fill(circle(74, 76, 13), RED).fill(text("sans", "REC", 34, 0.06).moved(98, 88))
    s.line(rect(652, 58, 58, 30, 6), 4.5).fill(rect(714, 67, 6, 12, 2))
    for x in (659, 676, 693):
        s.fill(rect(x, 65, 11, 16, 2), rim=False)
    s.fill(text("sans", "00:24:16", 24, 0.04).moved(48, 462))
    grid = Path()
    for i in range(9):
        tall = 16 if i % 4 == 0 else 9
        grid += lines(560 + 20 * i, 460, 560 + 20 * i, 460 - tall)
    return s.line(grid, 4).fill(polygon([(640, 428), (648, 414), (632, 414)], 2))


def stamp_frame():
    s = Sticker(WIDTH, HEIGHT, [("#0b0f14", 0.16, 8), ("#0b0f14", 0.25, 3)])
    left, top, step, tooth = 24, 24, 29, 9.5
    across, down = 25, 16
    right, bottom = left + across * step - 5, top + down * step
    path = Path().move(left, top)
    stepx, stepy = (right - left) / across, (bottom - top) / down
    for i in range(across):
        path.arc(left + (i + 0.5) * stepx, top, tooth, 180, 0)
    path.line(right, top)
    for i in range(down):
        path.arc(right, top + (i + 0.5) * stepy, tooth, 270, 90)
    path.line(right, bottom)
    for i in reversed(range(across)):
        path.arc(left + (i + 0.5) * stepx, bottom, tooth, 360, 180)
    path.line(left, bottom)
    for i in reversed(range(down)):
        path.arc(left, top + (i + 0.5) * stepy, tooth, 90, -90)
    s.fill(path.close() + rect(58, 58, WIDTH - 116, HEIGHT - 116), PAPER, holes=True)
    return s.line(rect(58, 58, WIDTH - 116, HEIGHT - 116), 2.5, "#c9c4b8", rim=False, ends="butt")


def corner_flourish():
    s = white()
    s.line(lines(34, 486, 34, 34, 486, 34), 11, ends="butt").line(lines(58, 420, 58, 58, 420, 58), 4.5, ends="butt")
    twig = (Path().move(80, 80).cubic(150, 92, 196, 136, 250, 136).cubic(304, 136, 322, 88, 288, 82)
            .cubic(262, 78, 254, 110, 278, 114))
    twig += Path().move(202.7, 126.2).cubic(216, 178, 262, 208, 300, 190).cubic(328, 175, 322, 144, 298, 148).cubic(
        282, 152, 284, 170, 297, 170)
    scrolls = twig + twig.mapped(lambda x, y: (y, x))
    s.line(scrolls, 9)
    leaves = leaf(138, 98, 58, -12) + leaf(330, 96, 40, -20) + leaf(250, 196, 54, 62)
    leaves += leaves.mapped(lambda x, y: (y, x))
    s.fill(leaves + leaf(84, 84, 92, 45) + leaf(150, 150, 74, 45))
    dots = circle(398, 92, 8) + circle(428, 92, 5.5) + circle(452, 92, 3.5)
    return s.fill(dots + dots.mapped(lambda x, y: (y, x)))


def photo_corners():
    s = Sticker(WIDTH, HEIGHT, [("#ffffff", 0.8, 3)])
    s.fill(four_times(polygon([(14, 14), (132, 14), (14, 132)], 3)), INK)
    s.line(four_times(lines(26, 104, 26, 26, 104, 26)), 3, GOLD, rim=False)
    s.line(four_times(lines(26, 104, 104, 26)), 3, SLATE, rim=False)
    return s.line(lines(132, 14, 636, 14) + lines(132, 498, 636, 498) + lines(14, 132, 14, 380)
                  + lines(754, 132, 754, 380), 3, WHITE, rim=False, ends="butt")


FRAMES = [double_frame, film_frame, print_frame, ornamental_frame, viewfinder_frame, stamp_frame, corner_flourish,
          photo_corners]
