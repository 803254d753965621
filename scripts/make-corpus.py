#!/usr/bin/env python3
"""Writes the seeds of the document fuzzer into the folder of the first argument: small files that
contain all keys and all kinds of values."""

import base64
import json
import pathlib
import sys

STROKE = {
    "points": [10, 20, 300.5, -0.0, 1e-7],
    "colorR": 0, "colorG": 0.25, "colorB": 1, "colorA": 0.5,
    "lineWidth": 5, "opacity": 1,
    "isEraser": False, "isFill": True, "shapeType": "freehand",
}
LAYER = {"name": "Layer 1", "isVisible": True, "opacity": 1, "strokes": []}
DOCUMENT = {
    "version": 1, "canvasWidth": 1280, "canvasHeight": 720,
    "bgColorR": 1, "bgColorG": 1, "bgColorB": 1, "bgColorA": 1,
    "bgTransparent": False, "layers": [],
}


def document(*layers, **changes):
    return DOCUMENT | {"layers": list(layers)} | changes


def seeds():
    image = base64.b64encode(bytes(range(7))).decode()
    dense = {"separators": (",", ":")}
    yield "empty", json.dumps(document(), **dense)
    yield "stroke", json.dumps(document(LAYER | {"strokes": [STROKE]}), **dense)
    yield "strokes", json.dumps(document(LAYER | {"strokes": [STROKE] * 2}, LAYER), indent=2)
    yield "image", json.dumps(document(LAYER | {"imageData": image}), **dense)
    yield "null-image", json.dumps(document(LAYER | {"imageData": None}), **dense)
    yield "escapes", json.dumps(document(LAYER | {"name": "\"\\/\n\x01é\U0001F600"}), **dense)
    yield "plain-utf8", json.dumps(document(LAYER | {"name": "é\U0001F600"}), ensure_ascii=False)
    unknown = {"x": [1, {"y": [None, True, "z"]}, -1.5e-3], "z": {}}
    yield "unknown", json.dumps(document(LAYER | unknown, **unknown), **dense)
    yield "numbers", json.dumps(document(canvasWidth=1.7976931348623157e308, canvasHeight=5e-324,
                                         bgColorR=2**70, bgColorG=-0.0), **dense)
    yield "mark", "\ufeff" + json.dumps(document(), **dense)
    yield "version", json.dumps(document()).replace('"version": 1', '"version": 10e-1')
    for number, value in enumerate([1, "x", None, True, [1], {"x": 1}]):
        stroke = dict.fromkeys(STROKE, value)
        layer = dict.fromkeys([*LAYER, "imageData"], value)
        yield f"stroke-of-{number}", json.dumps(document(LAYER | {"strokes": [stroke]}), **dense)
        yield f"layer-of-{number}", json.dumps(document(layer), **dense)
        yield f"document-of-{number}", json.dumps(dict.fromkeys(DOCUMENT, value), **dense)
    yield "twice", json.dumps(document()).replace('"layers"', '"layers": [0], "layers"')


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for name, text in seeds():
        (folder / f"{name}.marlevo").write_text(text, encoding="utf-8")


main()
