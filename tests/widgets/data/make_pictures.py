#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
"""Writes the small tip pictures of the tests and the demo (standard library only).

    python3 tests/widgets/data/make_pictures.py
"""
import math
import os
import struct
import zlib

ROOT = os.path.dirname(os.path.abspath(__file__))
DEMO = os.path.join(ROOT, '..', '..', '..', 'examples', 'demo', 'modules', 'totd')


def png(path, width, height, pixel):
    rows = b''.join(b'\0' + b''.join(bytes(pixel(x, y)) for x in range(width)) for y in range(height))

    def chunk(kind, data):
        return struct.pack('>I', len(data)) + kind + data + struct.pack('>I', zlib.crc32(kind + data))
    data = b'\x89PNG\r\n\x1a\n' + chunk(b'IHDR', struct.pack('>IIBBBBB', width, height, 8, 6, 0, 0, 0))
    data += chunk(b'IDAT', zlib.compress(rows, 9)) + chunk(b'IEND', b'')
    with open(path, 'wb') as f:
        f.write(data)


def gif(path, width, height, palette, frames, delay=10):
    """frames: functions (x, y) -> palette index 0..3. LZW without compression:
    a clear code after every two literals keeps the code width at 3 bits."""
    out = bytearray(b'GIF89a' + struct.pack('<HHBBB', width, height, 0xF1, 0, 0))
    for colour in palette:
        out += bytes(colour)
    out += b'\x21\xFF\x0BNETSCAPE2.0\x03\x01\x00\x00\x00'  # loop for ever
    for frame in frames:
        out += b'\x21\xF9\x04\x00' + struct.pack('<H', delay) + b'\x00\x00'
        out += b'\x2C' + struct.pack('<HHHHB', 0, 0, width, height, 0)
        codes = []
        pixels = [frame(x, y) for y in range(height) for x in range(width)]
        for i in range(0, len(pixels), 2):
            codes.append(4)
            codes.extend(pixels[i:i + 2])
        codes.append(5)
        bits, nbits, data = 0, 0, bytearray()
        for code in codes:
            bits |= code << nbits
            nbits += 3
            while nbits >= 8:
                data.append(bits & 0xFF)
                bits >>= 8
                nbits -= 8
        if nbits:
            data.append(bits & 0xFF)
        out += b'\x02'
        for i in range(0, len(data), 255):
            block = data[i:i + 255]
            out += bytes([len(block)]) + block
        out += b'\x00'
    out += b'\x3B'
    with open(path, 'wb') as f:
        f.write(out)


def spinner(size, steps):
    centre = (size - 1) / 2

    def frame(step):
        def pixel(x, y):
            dx, dy = x - centre, y - centre
            r = math.hypot(dx, dy)
            if r > size * 0.45 or r < size * 0.25:
                return 0
            angle = (math.degrees(math.atan2(dy, dx)) + 360) % 360
            lead = step * 360 / steps
            behind = (lead - angle) % 360
            return 1 if behind < 45 else 2 if behind < 120 else 3
        return pixel
    return [frame(s) for s in range(steps)]


def badge(colour, mark):
    def pixel(x, y, w=96, h=72):
        inside = 4 <= x < w - 4 and 4 <= y < h - 4
        if not inside:
            return (0, 0, 0, 0)
        if mark(x, y):
            return (255, 255, 255, 255)
        shade = int(30 * y / h)
        return (max(colour[0] - shade, 0), max(colour[1] - shade, 0), max(colour[2] - shade, 0), 255)
    return pixel


def main():
    # Tests: sizes matter (the picture area is at most 200 pixels high).
    png(os.path.join(ROOT, 'totd', 'still.png'), 40, 30, lambda x, y: (200, 60, 60, 255))
    png(os.path.join(ROOT, 'totd', 'tall.png'), 20, 400, lambda x, y: (60, 60, 200, 255))
    palette = [(255, 255, 255), (61, 111, 158), (150, 180, 210), (225, 232, 240)]
    gif(os.path.join(ROOT, 'totd', 'spin.gif'), 16, 12, palette,
        [lambda x, y: (x + y) % 4, lambda x, y: (x + y + 1) % 4])
    gif(os.path.join(ROOT, 'totd', 'spin.GIF'), 16, 12, palette, [lambda x, y: x % 4])

    os.makedirs(DEMO, exist_ok=True)
    gif(os.path.join(DEMO, 'busy.gif'), 48, 48, palette, spinner(48, 8), delay=8)
    png(os.path.join(DEMO, 'refresh.png'), 96, 72, badge(
        (61, 111, 158), lambda x, y: 26 <= math.hypot(x - 48, y - 36) * 1.6 <= 34 and not (x > 48 and y < 36)))
    png(os.path.join(DEMO, 'search.png'), 96, 72, badge(
        (84, 140, 84), lambda x, y: abs(math.hypot(x - 42, y - 32) - 14) < 3
        or (abs((x - 42) - (y - 32)) < 3 and 10 < x - 42 < 28)))
    png(os.path.join(DEMO, 'drop.png'), 96, 72, badge(
        (160, 110, 40), lambda x, y: (40 <= x <= 56 and 16 <= y <= 40) or (abs(x - 48) + (y - 40) < 14 and y >= 40)))


if __name__ == '__main__':
    main()
