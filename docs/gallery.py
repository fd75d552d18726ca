#!/usr/bin/env python3
"""docs/gallery.py FOLDER: writes two views as JSON, and the pictures that they show, into FOLDER.

gallery.json has each kind of instrument in its main variants, from the sample views; transmitter_site.json is the
sample of that name."""

import copy
import json
import struct
import sys
from pathlib import Path

SAMPLES = Path(__file__).resolve().parent.parent / "tests" / "data" / "samples"
TWIPS = 15

# Caption, sample, and the place of its corner in pixels.
CARDS = [
    ("LED (Round)", "round_led", 20, 60),
    ("LED (Rectangular)", "rectangular_led", 20, 560),
    ("Command and LED", "command_with_led", 20, 900),
    ("Status Label", "status_label", 20, 1150),
    ("Meter (Text)", "text_meter", 560, 60),
    ("Status Picture", "status_picture", 560, 430),
    ("Command", "command_button", 560, 980),
    ("Picture", "picture", 560, 1460),
    ("Meter (Angular)", "angular_meter", 1220, 60),
    ("Meter (Linear)", "linear_meter", 1220, 600),
    ("Label", "label", 1220, 1100),
]
CARD_WIDTHS = {20: 520, 560: 640, 1220: 740}

# Name: width, height, ground, and boxes of one colour (left, top, right, bottom), all 0xRRGGBB.
WALL, FRAME, DOOR, PANE, INK = 0xE3E8EC, 0x98A4B0, 0x5B6F87, 0x51667A, 0x26313C
PICTURES = {
    "door_closed": (32, 42, WALL, [(4, 2, 28, 42, FRAME), (6, 4, 26, 42, DOOR), (8, 7, 24, 19, PANE),
                                   (8, 23, 24, 38, PANE), (20, 20, 24, 21, WALL), (0, 39, 32, 42, 0xBCC6D0)]),
    "door_open": (32, 42, WALL, [(4, 2, 28, 42, FRAME), (6, 4, 26, 42, 0xB9C4CD), (0, 39, 32, 42, 0xBCC6D0)]),
    "pump_on": (32, 32, 0xFF00FF, [(6, 10, 22, 26, 0x2F9E50), (22, 14, 30, 20, 0x2F9E50), (2, 26, 28, 29, INK),
                                   (11, 15, 17, 21, 0xFFFFFF)]),
    "pump_off": (32, 32, 0xFF00FF, [(6, 10, 22, 26, 0x98A4B0), (22, 14, 30, 20, 0x98A4B0), (2, 26, 28, 29, INK),
                                    (11, 15, 17, 21, 0xFFFFFF)]),
    "bell": (16, 16, 0xFF00FF, [(7, 1, 9, 3, INK), (4, 3, 12, 11, 0xF2A800), (2, 11, 14, 13, INK), (7, 13, 9, 15, INK)]),
    "horn": (16, 16, 0xFF00FF, [(1, 6, 6, 10, INK), (6, 4, 9, 12, DOOR), (9, 2, 12, 14, DOOR), (14, 7, 16, 9, INK)]),
    "logo": (48, 32, 0xFF00FF, [(4, 4, 12, 28, 0x1F63D0), (16, 12, 24, 28, 0x1F63D0), (28, 8, 36, 28, 0x1F63D0),
                                (40, 18, 46, 28, 0xF2A800)]),
    "coast": (60, 40, 0xCFE3F2, [(0, 24, 60, 40, 0x3B78A8), (0, 18, 26, 30, 0x6E8B5A), (8, 8, 12, 18, 0xFFFFFF),
                                 (8, 6, 12, 8, 0xD62F2F), (44, 4, 52, 12, 0xFFE08A)]),
}


def bitmap(scale, width, height, ground, boxes):
    width, height = scale * width, scale * height
    rows = [[ground] * width for _ in range(height)]
    for *edges, color in boxes:
        left, top, right, bottom = (scale * edge for edge in edges)
        for row in rows[top:bottom]:
            row[left:right] = [color] * (right - left)
    pixels = b"".join(
        b"".join(struct.pack("<I", color)[:3] for color in row).ljust((width * 3 + 3) // 4 * 4, b"\0")
        for row in reversed(rows))
    head = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(pixels), 0, 0, 0, 0)
    return b"BM" + struct.pack("<IHHI", 54 + len(pixels), 0, 0, 54) + head + pixels


def with_pictures(view, folder):
    """Every path leads to the picture of that name in the folder, without its ground of 0xFF00FF."""
    for element in view["Elements"]:
        for key in ("ImageOn", "ImageOff", "ImageFile", "PictureFile"):
            if element.get(key):
                name = element[key].replace("\\", "/").split("/")[-1].split(".")[0]
                element[key] = str(folder / f"{name}.bmp")
        for key in ("ImageMaskColor", "PictureMaskColor"):
            if key in element:
                element[key] = 0xFF00FF
        for key in ("ImageUseMask", "PictureUseMask"):
            if key in element:
                element[key] = True
    return view


def sample(name):
    return json.loads((SAMPLES / f"{name}.json").read_text(encoding="utf-8"))


def label(pattern, name, caption, box, **settings):
    element = copy.deepcopy(pattern)
    left, top, width, height = (edge * TWIPS for edge in box)
    element.update(ObjName=name, Caption=caption, ObjLeft=left, ObjTop=top, ObjWidth=width, ObjHeight=height,
                   CaptionColor=0, CaptionAlignment=0, CaptionWordWrap=False, Border=False, Border3D=False,
                   BGTransparent=True, **settings)
    return element


def gallery():
    view = sample("empty")
    view.update(ViewName="Gallery", ViewCategory="", BGColor=0x00F0ECE9)
    pattern = next(element for element in sample("label")["Elements"])
    heading = {**pattern["CaptionFont"], "Size": 12.0, "Bold": True, "Weight": 700}
    for caption, name, left, top in CARDS:
        elements = sample(name)["Elements"]
        bottom = max(element["ObjTop"] + element["ObjHeight"] for element in elements) / TWIPS
        card = label(pattern, f"{caption} card", "", (left, top - 40, CARD_WIDTHS[left], bottom + 50))
        card.update(BGTransparent=False, BGColor=0x00DED9D5, Border=True)
        view["Elements"] += [card, label(pattern, f"{caption} heading", caption, (left + 20, top - 28, 300, 20),
                                         CaptionFont=heading)]
        for element in elements:
            element["ObjLeft"] += left * TWIPS
            element["ObjTop"] += top * TWIPS
            element["ObjName"] = f"{name} {element['ObjName']}"
        view["Elements"] += elements
    return view


def main():
    folder = Path(sys.argv[1]).resolve()
    for name, view, scale in (("gallery", gallery(), 1), ("transmitter_site", sample("transmitter_site"), 2)):
        pictures = folder / name
        pictures.mkdir(parents=True, exist_ok=True)
        for picture, drawing in PICTURES.items():
            (pictures / f"{picture}.bmp").write_bytes(bitmap(scale, *drawing))
        view = with_pictures(view, pictures)
        (folder / f"{name}.json").write_text(json.dumps(view, indent=1), encoding="utf-8")


main()
