"""Draws the synthetic set and the versions of the real pictures as PNG thumbnails with an index.

    python3 draw_set.py SAMPLES OUT COUNT [PART PARTS]

SAMPLES is the folder with labels.csv and develop/. Picture i depends on i alone, so parts may be drawn side by side.
"""
import csv
import os
import random
import sys

import numpy as np
from PIL import Image

from drawing.art import illustration
from drawing.captions import meme
from drawing.papers import document, receipt
from drawing.scenes import photo
from drawing.screens import screenshot
from drawing.treatment import finished, limited, varied

CLASSES = {"photo": photo, "screenshot": screenshot, "receipt": receipt, "document": document, "meme": meme,
           "illustration": illustration}
# Turns out of 24: what the real set has least of is drawn most.
TURNS = ["photo"] * 5 + ["screenshot"] * 6 + ["receipt"] * 2 + ["document"] * 3 + ["meme"] * 4 + ["illustration"] * 4


class Photos:
    """Real pictures to draw over, all of one source at a time, so that folds by source can leave it out."""

    def __init__(self, rows):
        self.sources = {}
        for row in rows:
            if row["label"] in ("photo", "illustration"):
                key = (row["label"], row["source_repository"])
                self.sources.setdefault(key, []).append(row["path"])
        self.source = None

    def start(self, rng):
        names = sorted({s for kind, s in self.sources if kind == "photo"})
        self.source = rng.choices(names, [len(self.sources[("photo", n)]) ** 0.5 for n in names])[0]

    def picture(self, rng, drawn=0.0):
        """A real picture of the current source; with a chance, one that is drawn here."""
        if rng.random() < drawn:
            return illustration(rng, np.random.default_rng(rng.getrandbits(32)), self)
        with Image.open(rng.choice(self.sources[("photo", self.source)])) as image:
            image.draft("RGB", (800, 800))
            return image.convert("RGB")


def read_rows(samples):
    with open(os.path.join(samples, "labels.csv"), newline="") as file:
        rows = [r for r in csv.DictReader(file) if r["label"] in CLASSES]
    for row in rows:
        row["path"] = os.path.join(samples, row["file"])
    return rows


def save(image, out, name):
    image.save(os.path.join(out, name), compress_level=1)
    return name


def draw(out, photos, index):
    rng = random.Random(7919 * index + 11)
    photos.start(rng)
    kind = TURNS[index % len(TURNS)]
    image = CLASSES[kind](rng, np.random.default_rng(index), photos)
    return save(finished(image, rng), out, f"drawn-{index:05d}.png"), kind, "drawn", photos.source


def versions(out, row, number):
    """The picture as it is, and versions of it: more of the rarer kinds."""
    base = row["source_path"] if row["label"] == "meme" else ""
    with Image.open(row["path"]) as image:
        image = image.convert("RGB")
    name = f"real-{number:05d}"
    yield save(limited(image, 512), out, name + "-0.png"), row["label"], "real", row["source_repository"] + base
    for k in range(1, 2 if row["label"] == "photo" else 4):
        rng = random.Random(number * 31 + k)
        yield save(finished(varied(image, rng), rng), out, f"{name}-{k}.png"), row["label"], "version", row["source_repository"] + base


def main():
    samples, out, count = sys.argv[1], sys.argv[2], int(sys.argv[3])
    part, parts = (int(v) for v in sys.argv[4:6]) if len(sys.argv) > 5 else (0, 1)
    os.makedirs(out, exist_ok=True)
    rows, photos = read_rows(samples), None
    photos = Photos(rows)
    with open(os.path.join(out, f"index-{part}.csv"), "w", newline="") as file:
        index = csv.writer(file)
        for number, row in enumerate(rows):
            if number % parts == part:
                index.writerows((*v, row["file"]) for v in versions(out, row, number))
        for i in range(part, count, parts):
            index.writerow((*draw(out, photos, i), ""))
            if i % 100 < parts:
                file.flush()


if __name__ == "__main__":
    main()
