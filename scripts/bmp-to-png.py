#!/usr/bin/env python3
"""Converts uncompressed 24-bit BMP files (as the Wine harness writes them) to PNG, with the
standard library only.

    scripts/bmp-to-png.py picture.bmp [...]     (writes picture.png beside each)
"""
import struct
import sys
import zlib


def read_bmp(path):
    data = open(path, "rb").read()
    if data[:2] != b"BM":
        raise ValueError(f"{path}: not a BMP file")
    offset = struct.unpack_from("<I", data, 10)[0]
    width, height, _, bits, compression = struct.unpack_from("<iiHHI", data, 18)
    if bits != 24 or compression != 0:
        raise ValueError(f"{path}: only uncompressed 24-bit pictures are read")
    stride = (width * 3 + 3) & ~3
    rows = []
    for y in range(abs(height)):
        source = y if height < 0 else abs(height) - 1 - y
        start = offset + source * stride
        bgr = data[start:start + width * 3]
        rgb = bytearray(len(bgr))
        rgb[0::3], rgb[1::3], rgb[2::3] = bgr[2::3], bgr[1::3], bgr[0::3]
        rows.append(bytes(rgb))
    return width, abs(height), rows


def chunk(kind, body):
    return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body) & 0xFFFFFFFF)


def write_png(path, width, height, rows):
    raw = b"".join(b"\x00" + row for row in rows)
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    with open(path, "wb") as out:
        out.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))


def main(paths):
    for path in paths:
        width, height, rows = read_bmp(path)
        target = path[:-4] + ".png" if path.lower().endswith(".bmp") else path + ".png"
        write_png(target, width, height, rows)
        print(f"{target}: {width}x{height}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
