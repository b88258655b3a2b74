"""Photos whose place can be found in any picture of them, and marks that are measured finer than a pixel.

A photo is black with two blue squares, whose middles tell where it lies and how large it is shown. A mark is red or
white. What is measured is how much of each pixel is covered, so an edge between two pixels is found where it is."""

import os
import subprocess
from collections import namedtuple

import numpy

# Of what the middle of a mark covers; less is what a lossy file or the ground behind leaves.
FLOOR = 0.2

# What a hand can change about a mark, in pixels of the photo; the angle in radians, down to a half turn.
Place = namedtuple("Place", "x y length width angle")


def make_photo(path, width, height):
    side = min(width, height) // 16
    far = f"rectangle {width - 2 * side},{height - 2 * side} {width - side - 1},{height - side - 1}"
    near = f"rectangle {side},{side} {2 * side - 1},{2 * side - 1}"
    command = ["convert", "-size", f"{width}x{height}", "xc:black", "-fill", "blue", "-draw", near, "-draw", far]
    command += ["-depth", "8", "-quality", "100", "-sampling-factor", "1x1", str(path)]
    subprocess.run(command, check=True)
    return path


def make_slow_photo(path):
    """Noise, which takes an encoder a second or more."""
    command = ["convert", "-size", "4000x3000", "-depth", "8", "rgb:-", "-quality", "90", str(path)]
    subprocess.run(command, input=os.urandom(4000 * 3000 * 3), check=True)
    return path


def make_mark(path):
    subprocess.run(["convert", "-size", "60x30", "xc:red", str(path)], check=True)
    return path


def read(path):
    run = subprocess.run(["convert", str(path), "-depth", "8", "ppm:-"], capture_output=True, check=True)
    _, size, _, pixels = run.stdout.split(b"\n", 3)
    width, height = map(int, size.split())
    return numpy.frombuffer(pixels, "u1").reshape(height, width, 3)


def weights(picture, color):
    """How much of each pixel is of a colour, the greatest being 1; nothing when there is none."""
    red, green, blue = (picture[:, :, channel].astype(float) for channel in range(3))
    covered = {
        "red": red - numpy.maximum(green, blue),
        "blue": blue - numpy.maximum(red, green),
        "white": numpy.minimum(numpy.minimum(red, green), blue),
    }[color]
    covered /= max(covered.max(), 100)
    covered[covered < FLOOR] = 0
    return covered if covered.max() == 1 else None


def middle(covered):
    ys, xs = numpy.nonzero(covered)
    share = covered[ys, xs]
    return numpy.array([numpy.average(xs + 0.5, weights=share), numpy.average(ys + 0.5, weights=share)])


class Shown:
    """A photo as a picture shows it; nothing may be blue outside of it."""

    def __init__(self, picture):
        self.picture = picture
        blue = weights(picture, "blue")
        if blue is None:
            raise LookupError("no photo")
        cut = int(middle(blue)[0])
        near, far = blue.copy(), blue.copy()
        near[:, cut:] = far[:, :cut] = 0
        self.near, self.far = middle(near), middle(far)

    def shape(self):
        """Of the box between the squares, which tells photos from one another."""
        width, height = self.far - self.near
        return width / height

    def place(self, color, width, height):
        """Where a mark stands on the photo, which has so many pixels; nothing when there is none."""
        side = min(width, height) // 16
        box = numpy.array([width - 3 * side, height - 3 * side])
        scale = box / (self.far - self.near)
        first = self.near - 1.5 * side / scale
        left, top = numpy.ceil(first + 1).astype(int)
        right, bottom = numpy.floor(first + numpy.array([width, height]) / scale - 1).astype(int)
        covered = weights(self.picture[top:bottom, left:right], color)
        if covered is None:
            return None
        ys, xs = numpy.nonzero(covered)
        x, y = (middle(covered) + (left, top) - first) * scale
        spread = numpy.cov((xs + 0.5) * scale[0], (ys + 0.5) * scale[1], aweights=covered[ys, xs], ddof=0)
        values, axes = numpy.linalg.eigh(spread)
        width, length = numpy.sqrt(12 * values)
        return Place(x, y, length, width, numpy.arctan2(axes[1, 1], axes[0, 1]) % numpy.pi)


def distance(one, other):
    """The farthest that a corner of one mark lies from that of the other."""

    def corners(place):
        along = numpy.array([numpy.cos(place.angle), numpy.sin(place.angle)])
        across = numpy.array([-along[1], along[0]])
        steps = [(a * place.length * along + b * place.width * across) / 2 for a in (-1, 1) for b in (-1, 1)]
        return numpy.array([place.x, place.y]) + steps

    gaps = numpy.linalg.norm(corners(one)[:, None] - corners(other)[None], axis=2)
    return max(gaps.min(axis=0).max(), gaps.min(axis=1).max())
