"""Draws the synthetic set and the versions of the real pictures as PNG thumbnails with an index.

    python3 draw_set.py SAMPLES OUT COUNT [--only LABEL,LABEL] [--part PART PARTS]

SAMPLES is the folder with labels.csv and develop/. Picture i depends on i alone, so parts may be drawn side by side.
"""
import argparse
import csv
import os
import random

import numpy as np
from PIL import Image

from drawing.art import illustration
from drawing.captions import meme
from drawing.papers import document, presented, receipt
from drawing.scenes import photo
from drawing.screens import screenshot
from drawing.treatment import finished, limited, varied

CLASSES = {"photo": photo, "screenshot": screenshot, "receipt": receipt, "document": document, "meme": meme,
           "illustration": illustration}
# Turns out of 24: what the real set has least of is drawn most.
TURNS = ["photo"] * 5 + ["screenshot"] * 6 + ["receipt"] * 2 + ["document"] * 3 + ["meme"] * 4 + ["illustration"] * 4
# Versions of each real picture, by its label: more of the rarer kinds. Photos are many.
VERSIONS = {"receipt": 2, "document": 2, "photo": 0}


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


def draw(out, photos, index, turns):
    rng = random.Random(7919 * index + 11)
    photos.start(rng)
    kind = turns[index % len(turns)]
    image = CLASSES[kind](rng, np.random.default_rng(index), photos)
    return save(finished(image, rng), out, f"drawn-{index:05d}.png"), kind, "drawn", photos.source


def versions(out, row, number, photos):
    """The picture as it is, and versions of it: more of the rarer kinds."""
    base = row["source_path"] if row["label"] == "meme" else ""
    with Image.open(row["path"]) as image:
        image = image.convert("RGB")
    name = f"real-{number:05d}"
    yield save(limited(image, 512), out, name + "-0.png"), row["label"], "real", row["source_repository"] + base
    for k in range(1, VERSIONS.get(row["label"], 1) + 1):
        rng = random.Random(number * 31 + k)
        changed = varied(image, rng)
        if row["source_path"].endswith(".pdf"):  # printed, so to speak
            photos.start(rng)
            changed = presented(changed, rng, np.random.default_rng(number), photos, 0.6)
        if row["label"] in ("receipt", "document") and k % 2:
            changed = changed.transpose(Image.ROTATE_180)
        if row["label"] == "photo" and rng.random() < 0.4:  # they are also judged as pages that lie on their side
            changed = changed.transpose(rng.choice((Image.ROTATE_90, Image.ROTATE_270)))
        yield save(finished(changed, rng), out, f"{name}-{k}.png"), row["label"], "version", row["source_repository"] + base


def arguments():
    parser = argparse.ArgumentParser()
    parser.add_argument("samples")
    parser.add_argument("out")
    parser.add_argument("count", type=int)
    parser.add_argument("--only", type=lambda labels: labels.split(","), default=list(CLASSES))
    parser.add_argument("--part", type=int, nargs=2, default=(0, 1))
    return parser.parse_args()


def main():
    given = arguments()
    part, parts = given.part
    os.makedirs(given.out, exist_ok=True)
    rows = read_rows(given.samples)
    photos = Photos(rows)
    turns = [kind for kind in TURNS if kind in given.only]
    # In mixed order: whoever stops early has some of everything.
    tasks = [(True, i) for i, row in enumerate(rows) if row["label"] in given.only] + [(False, i) for i in range(given.count)]
    random.Random(5).shuffle(tasks)
    with open(os.path.join(given.out, f"index-{part}.csv"), "w", newline="") as file:
        index = csv.writer(file)
        for done, (is_real, i) in enumerate(tasks[part::parts]):
            if is_real:
                index.writerows((*v, rows[i]["file"]) for v in versions(given.out, rows[i], i, photos))
            else:
                index.writerow((*draw(given.out, photos, i, turns), ""))
            if done % 20 == 0:
                file.flush()


if __name__ == "__main__":
    main()
