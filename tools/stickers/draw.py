#!/usr/bin/env python3
"""Usage: tools/stickers/draw.py FOLDER [--small]

Draws the stickers into a folder as SVG, always the same; --small makes those that thumbnails are taken from."""

import sys
from pathlib import Path

from badges import BADGES
from cameras import CAMERAS
from copyright_marks import MARKS
from frames import FRAMES
from signs import SIGNS
from stamps import STAMPS

# The library shows them in this order, and profiles name them by their number: new ones go to the end.
STICKERS = MARKS + CAMERAS + FRAMES + STAMPS + BADGES + SIGNS


def main():
    small = sys.argv[2:] == ["--small"]
    if len(sys.argv) != 2 + small:
        sys.exit(__doc__)
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for number, draw in enumerate(STICKERS, 1):
        (folder / f"sticker_{number:02d}.svg").write_text(draw().svg(small))


if __name__ == "__main__":
    main()
