#!/usr/bin/env python3
"""Draws the command bar faces of Quillet.dll: a 16x16 picture and its mask for each face,
written as 24-bit BMP files to src/win32/faces/, and the resource script that puts them in
the DLL (src/win32/faces.rc). The mask is black where the face is drawn and white where the
bar shows through, as the Office command bars read a button's Mask.

    scripts/make-faces.py          (rewrites the files; commit them)

Each face is drawn on a 16x16 grid, one character per pixel; '.' is transparent. The mask of
face N is resource 1000 + N."""

import os
import struct
import sys

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
OUT = os.path.join(ROOT, "src", "win32", "faces")
RC = os.path.join(ROOT, "src", "win32", "faces.rc")
MASK_OFFSET = 1000

PALETTE = {
    "k": (0, 0, 0),          # outline
    "w": (255, 255, 255),    # paper
    "g": (128, 128, 128),    # grey
    "l": (192, 192, 192),    # light grey
    "b": (0, 64, 192),       # blue
    "c": (0, 160, 224),      # cyan
    "m": (160, 32, 160),     # magenta: procedures
    "y": (240, 200, 40),     # yellow
    "o": (232, 128, 24),     # orange
    "r": (208, 32, 32),      # red
    "G": (0, 150, 0),        # green: the "add" sign
    "n": (120, 72, 24),      # brown
}

def plus(grid):
    """The grid with the green plus of the "Add" faces stamped in its lower right corner."""
    rows = [list(r) for r in grid]
    shape = [
        "..kkk..",
        "..kGk..",
        "kkkGkkk",
        "kGGGGGk",
        "kkkGkkk",
        "..kGk..",
        "..kkk..",
    ]
    for y, line in enumerate(shape):
        for x, ch in enumerate(line):
            if ch != ".":
                rows[9 + y][9 + x] = ch
    return ["".join(r) for r in rows]


FACES = {
    # Add Procedure: a magenta brick, as the editor shows a procedure, and the plus.
    101: plus([
        "................",
        "................",
        "..kkkkkkkkkk....",
        ".kmmmmmmmmmmk...",
        ".kmwwmmmmmmmk...",
        ".kmmmmmmmmmmk...",
        ".kmmmmmmmmmmk...",
        "..kkkkkkkkkk....",
        "................",
        "................",
        "................",
        "................",
        "................",
        "................",
        "................",
        "................",
    ]),
    # Add Constant: a grey tablet with an equals sign, and the plus.
    102: plus([
        "................",
        ".kkkkkkkkkkk....",
        ".klllllllllk....",
        ".klkkkkkkklk....",
        ".klllllllllk....",
        ".klkkkkkkklk....",
        ".klllllllllk....",
        ".kkkkkkkkkkk....",
        "................",
        "................",
        "................",
        "................",
        "................",
        "................",
        "................",
        "................",
    ]),
    # Add Variable: a cyan box holding an x, and the plus.
    103: plus([
        "................",
        ".kkkkkkkkkkk....",
        ".kcccccccccck...",
        ".kcbccccccbck...",
        ".kccbccccbcck...",
        ".kcccbccbccck...",
        ".kccccbbcccck...",
        ".kcccbccbccck...",
        ".kccbccccbcck...",
        ".kcbccccccbck...",
        ".kkkkkkkkkkkk...",
        "................",
        "................",
        "................",
        "................",
        "................",
    ]),
    # Add Class: three linked boxes (a class and its members), and the plus.
    104: plus([
        ".kkkkkk.........",
        ".kyyyyk.........",
        ".kyyyyk.........",
        ".kkkkkk.........",
        "...k............",
        "...k..kkkkk.....",
        "...kkkkmmmk.....",
        "...k..kkkkk.....",
        "...k............",
        "...k............",
        "...k..kkkkk.....",
        "...kkkkccck.....",
        "......kkkkk.....",
        "................",
        "................",
        "................",
    ]),
    # Add Property: a card with a blue P, and the plus.
    105: plus([
        "................",
        ".kkkkkkkkkk.....",
        ".kwwwwwwwwk.....",
        ".kwbbbbwwwk.....",
        ".kwbwwwbwwk.....",
        ".kwbwwwbwwk.....",
        ".kwbbbbwwwk.....",
        ".kwbwwwwwwk.....",
        ".kwbwwwwwwk.....",
        ".kwwwwwwwwk.....",
        ".kkkkkkkkkk.....",
        "................",
        "................",
        "................",
        "................",
        "................",
    ]),
    # Insert Line Of Code: lines of text and a red arrow pointing between them.
    106: [
        "................",
        ".kkkkkkkkkkkkkk.",
        ".kwwwwwwwwwwwwk.",
        ".kwggggggggwwwk.",
        ".kwwwwwwwwwwwwk.",
        ".kwwggggggwwwwk.",
        "rkwwwwwwwwwwwwk.",
        "rrkwbbbbbbbbwwk.",
        "rrrkwwwwwwwwwwk.",
        "rrkwwwwwwwwwwwk.",
        "rkwwggggggggwwk.",
        ".kwwwwwwwwwwwwk.",
        ".kwggggggwwwwwk.",
        ".kwwwwwwwwwwwwk.",
        ".kkkkkkkkkkkkkk.",
        "................",
    ],
    # Help Contents: a blue book with a question mark.
    111: [
        "................",
        "...kkkkkkkkkk...",
        "..kbbbbbbbbbbk..",
        "..kbbbwwwwbbbk..",
        "..kbbwbbbbwbbk..",
        "..kbbbbbbbwbbk..",
        "..kbbbbbbwbbbk..",
        "..kbbbbbwbbbbk..",
        "..kbbbbbwbbbbk..",
        "..kbbbbbbbbbbk..",
        "..kbbbbbwbbbbk..",
        "..kbbbbbbbbbbk..",
        "..kwwwwwwwwwwk..",
        "..kkkkkkkkkkkk..",
        "................",
        "................",
    ],
    # Insert Fragment: an orange puzzle piece.
    181: [
        "................",
        "......kkk.......",
        ".....kooook.....",
        ".....kooook.....",
        "..kkkkookkkkk...",
        "..koooooooook...",
        "..koooooooook...",
        ".kkoooooooookk..",
        "kooooooooooooook",
        "kooooooooooooook",
        ".kkoooooooookk..",
        "..koooooooook...",
        "..koooooooook...",
        "..kkkkkkkkkkk...",
        "................",
        "................",
    ],
    # Insert Variable: the cyan x box with a green arrow pointing into it.
    182: [
        "................",
        "......kkkkkkkkk.",
        "......kccccccck.",
        "..G...kcbcccbck.",
        "..GG..kccbcbcck.",
        "GGGGG.kcccbccck.",
        "GGGGGGkccbcbcck.",
        "GGGGG.kcbcccbck.",
        "..GG..kccccccck.",
        "..G...kkkkkkkkk.",
        "................",
        "................",
        "................",
        "................",
        "................",
        "................",
    ],
    # Add Control: a push button, and the plus.
    183: plus([
        "................",
        "................",
        "kkkkkkkkkkkkk...",
        "kwwwwwwwwwwwgk..",
        "kwllllllllllgk..",
        "kwllkkkkkkllgk..",
        "kwllllllllllgk..",
        "kwggggggggggggk.",
        "kkkkkkkkkkkkkkk.",
        "................",
        "................",
        "................",
        "................",
        "................",
        "................",
        "................",
    ]),
    # View Shortcuts and Search: a magnifying glass.
    194: [
        "................",
        "....kkkkk.......",
        "...kcccccck.....",
        "..kcwwccccck....",
        ".kcwcccccccck...",
        ".kcccccccccck...",
        ".kcccccccccck...",
        ".kcccccccccck...",
        "..kcccccccck....",
        "...kcccccck.....",
        "....kkkkkknk....",
        "..........knnk..",
        "...........knnk.",
        "............knnk",
        ".............kk.",
        "................",
    ],
    # View Code Explorer: a tree of a folder and its members.
    195: [
        "................",
        "kkkkk...........",
        "kyyyyk..........",
        "kkkkkk..........",
        ".g..............",
        ".g..kkkk........",
        ".gggkmmk........",
        ".g..kkkk........",
        ".g..............",
        ".g..kkkk........",
        ".gggkcck........",
        ".g..kkkk........",
        ".g..............",
        ".g..kkkk........",
        ".gggkmmk........",
        "....kkkk........",
    ],
}


def check(face_id, grid):
    if len(grid) != 16 or any(len(row) != 16 for row in grid):
        sys.exit(f"face {face_id}: the grid must be 16 by 16")
    for row in grid:
        for ch in row:
            if ch != "." and ch not in PALETTE:
                sys.exit(f"face {face_id}: no colour '{ch}'")


def bmp(pixels):
    """A 24-bit BMP of 16x16 (r, g, b) pixels, top row first."""
    rows = b"".join(
        b"".join(struct.pack("BBB", b, g, r) for (r, g, b) in row) for row in reversed(pixels)
    )
    header = struct.pack("<IiiHHIIiiII", 40, 16, 16, 1, 24, 0, len(rows), 2835, 2835, 0, 0)
    return b"BM" + struct.pack("<IHHI", 14 + len(header) + len(rows), 0, 0, 14 + len(header)) + header + rows


def main():
    os.makedirs(OUT, exist_ok=True)
    lines = [
        "// Generated by scripts/make-faces.py: the command bar faces and their masks (1000 + face).",
        "",
    ]
    for face_id, grid in sorted(FACES.items()):
        check(face_id, grid)
        face = [[PALETTE[ch] if ch != "." else (255, 255, 255) for ch in row] for row in grid]
        mask = [[(0, 0, 0) if ch != "." else (255, 255, 255) for ch in row] for row in grid]
        for name, pixels in ((f"face{face_id}.bmp", face), (f"mask{face_id}.bmp", mask)):
            with open(os.path.join(OUT, name), "wb") as f:
                f.write(bmp(pixels))
        lines.append(f'{face_id} BITMAP "faces/face{face_id}.bmp"')
        lines.append(f'{MASK_OFFSET + face_id} BITMAP "faces/mask{face_id}.bmp"')
    with open(RC, "w", newline="\n") as f:
        f.write("\n".join(lines) + "\n")
    print(f"make-faces: {len(FACES)} faces written to {os.path.relpath(OUT, ROOT)}")


if __name__ == "__main__":
    main()
