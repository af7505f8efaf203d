"""Features of the real screenshots, receipts and documents of a folder of samples, for train_pair.py.

    python3 extract_real.py SAMPLES FEATURE_DUMP SET

Many are encoded again first, so that how a picture was saved says little about what it is. Pages are measured upright
and upside down; the program turns those that lie on their side. Writes SET/features-real.npz.
"""
import csv
import os
import random
import sys
import tempfile

import numpy as np
from PIL import Image

from drawing.treatment import limited, reencoded
from extract import STEP, measured

PAGES = ("receipt", "document")


def versions(row, path, number):
    """Pictures to measure with their kinds: as it is or encoded again, and a page turned by half."""
    rng = random.Random(number)
    with Image.open(path) as image:
        image = limited(image.convert("RGB"), 800)
    if rng.random() < 0.7:
        image = reencoded(image, rng.choice((84, 84, rng.randint(50, 95))), 2)
    image = limited(image, 512)
    yield image, "real"
    if row["label"] in PAGES:
        yield image.transpose(Image.ROTATE_180), "version"


def main():
    samples, dump, out = sys.argv[1:4]
    os.makedirs(out, exist_ok=True)
    with open(os.path.join(samples, "labels.csv"), newline="") as file:
        rows = [r for r in csv.DictReader(file) if r["label"] in (*PAGES, "screenshot")]
    index, features, inputs, header = [], [], [], None
    for start in range(0, len(rows), STEP):
        with tempfile.TemporaryDirectory() as scratch:
            names = []
            for number, row in enumerate(rows[start:start + STEP], start):
                for image, kind in versions(row, os.path.join(samples, row["file"]), number):
                    names.append(f"{len(names)}.png")
                    image.save(os.path.join(scratch, names[-1]), compress_level=1)
                    index.append((row["label"], kind, row["source_repository"], row["file"]))
            header, values, seen = measured(scratch, dump, names)
            features.append(values)
            inputs.append(seen)
    label, kind, source, original = zip(*index)
    np.savez(os.path.join(out, "features-real.npz"), header=header, features=np.concatenate(features),
             inputs=np.concatenate(inputs), name=original, label=label, kind=kind, source=source, original=original)


if __name__ == "__main__":
    main()
