"""Reads pictures and compares them with the golden ones in Tests/Golden.

To make the golden pictures anew, run the tests with KESTRIX_UPDATE_PICTURES=1, then look at what changed:

    KESTRIX_UPDATE_PICTURES=1 ./kestrix test Golden

A picture that differs is kept in Build/Pictures, beside one in which the differing pixels are red.
"""

import os
import pathlib
import shutil
import struct
import zlib

ROOT = pathlib.Path(__file__).resolve().parents[2]
GOLDEN = ROOT / "Tests" / "Golden"
DIFFERENT = ROOT / "Build" / "Pictures"
SIGNATURE = b"\x89PNG\r\n\x1a\n"


class Picture:
    """Width and height, and four bytes (red, green, blue, alpha) a pixel, top row first."""

    def __init__(self, width, height, pixels):
        self.width = width
        self.height = height
        self.pixels = pixels

    def __eq__(self, other):
        return (self.width, self.height, self.pixels) == (other.width, other.height, other.pixels)

    def pixel(self, x, y):
        start = (y * self.width + x) * 4
        return tuple(self.pixels[start : start + 4])

    def part(self, x, y, width, height):
        rows = [self.pixels[((y + row) * self.width + x) * 4 :][: width * 4] for row in range(height)]
        return Picture(width, height, b"".join(rows))

    def colors(self):
        """The set of all colours."""
        return {self.pixels[start : start + 4] for start in range(0, len(self.pixels), 4)}


def read(file):
    """A picture from a PNG file of 8 bits a channel, with or without alpha, not interlaced."""
    data = pathlib.Path(file).read_bytes()
    assert data.startswith(SIGNATURE), f"{file} is no PNG file"
    compressed = b""
    start = len(SIGNATURE)
    while start < len(data):
        (length,) = struct.unpack(">I", data[start : start + 4])
        kind = data[start + 4 : start + 8]
        content = data[start + 8 : start + 8 + length]
        if kind == b"IHDR":
            width, height, depth, color, _, _, interlaced = struct.unpack(">IIBBBBB", content)
            assert depth == 8 and color in (2, 6) and not interlaced, f"{file}: kind of PNG not known here"
        elif kind == b"IDAT":
            compressed += content
        start += 12 + length
    channels = 4 if color == 6 else 3
    rows = unfilter(zlib.decompress(compressed), width, height, channels)
    if channels == 3:
        rows = b"".join(rows[start : start + 3] + b"\xff" for start in range(0, len(rows), 3))
    return Picture(width, height, bytes(rows))


def unfilter(data, width, height, channels):
    """Takes PNG's row filters back (ISO/IEC 15948, clause 9)."""
    stride = width * channels
    result = bytearray()
    above = bytearray(stride)
    for row in range(height):
        start = row * (stride + 1)
        kind, line = data[start], bytearray(data[start + 1 : start + 1 + stride])
        if kind == 2:
            line = bytearray((a + b) & 255 for a, b in zip(line, above))
        elif kind != 0:
            for index in range(stride):
                left = line[index - channels] if index >= channels else 0
                corner = above[index - channels] if index >= channels else 0
                line[index] = (line[index] + predict(kind, left, above[index], corner)) & 255
        result += line
        above = line
    return result


def predict(kind, left, up, corner):
    if kind == 1:
        return left
    if kind == 3:
        return (left + up) // 2
    estimate = left + up - corner
    distances = (abs(estimate - left), abs(estimate - up), abs(estimate - corner))
    return (left, up, corner)[distances.index(min(distances))]


def write(file, picture):
    stride = picture.width * 4
    rows = b"".join(b"\0" + picture.pixels[row * stride : (row + 1) * stride] for row in range(picture.height))
    with open(file, "wb") as out:
        out.write(SIGNATURE)
        header = struct.pack(">IIBBBBB", picture.width, picture.height, 8, 6, 0, 0, 0)
        for kind, content in ((b"IHDR", header), (b"IDAT", zlib.compress(rows)), (b"IEND", b"")):
            out.write(struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content)))


def difference(expected, actual):
    """The larger of both sizes, dark where the pictures agree, red where they differ; and how many pixels do."""
    width, height = max(expected.width, actual.width), max(expected.height, actual.height)
    pixels = bytearray()
    different = 0
    for y in range(height):
        for x in range(width):
            both = all(x < picture.width and y < picture.height for picture in (expected, actual))
            if both and expected.pixel(x, y) == actual.pixel(x, y):
                pixels += bytes(channel // 4 for channel in actual.pixel(x, y)[:3]) + b"\xff"
            else:
                pixels += b"\xff\x00\x00\xff"
                different += 1
    return Picture(width, height, bytes(pixels)), different


def compare(file, name):
    """Fails, and keeps what is needed to see why, unless the file is byte for byte the golden picture of that name."""
    golden = GOLDEN / name
    if os.environ.get("KESTRIX_UPDATE_PICTURES") == "1":
        GOLDEN.mkdir(exist_ok=True)
        shutil.copyfile(file, golden)
        return
    assert golden.exists(), f"there is no {golden}; KESTRIX_UPDATE_PICTURES=1 makes it"
    if pathlib.Path(file).read_bytes() == golden.read_bytes():
        return
    DIFFERENT.mkdir(parents=True, exist_ok=True)
    actual_file = DIFFERENT / name
    shutil.copyfile(file, actual_file)
    picture, different = difference(read(golden), read(file))
    difference_file = actual_file.with_suffix(".difference.png")
    write(difference_file, picture)
    raise AssertionError(f"{different} pixels differ from {golden}: see {actual_file} and {difference_file}")
