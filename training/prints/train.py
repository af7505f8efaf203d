"""Makes the matrix that turns a picture's descriptor into the vector of its feature print.

    train.py DUMP FOLDER OUTPUT [--fold K]

DUMP is the built program print_dump; FOLDER holds labels.csv and the pictures it lists. The matrix keeps the
directions in which pictures differ much from each other and little from their own changed copies: generalised
eigenvectors of the scatter of all pictures against the scatter inside "a picture and its copies".

With --fold 0, 1 or 2 the sources of that third are left out and written to OUTPUT.files, for judging the
matrix on what it has not seen. Without, all pictures are used: that is the matrix that is kept.
"""

import argparse
import csv
import pathlib

import cv2
import numpy as np
from scipy.linalg import eigh

from dump import DESCRIPTOR, records

DIMENSIONS = 128
RIDGE = 0.3  # of the mean variance: what no copy changes must not count without limit
SMALL_SHARE = 4  # one of so many of the small photos is used
KINDS = ("photo", "photo-small", "receipt", "document", "screenshot", "illustration")
FOLDS = 3
LEFT_FOR_JUDGING = ("crop 20 %",)  # need not match


def kind_of(row):
    return pathlib.PurePath(row["file"]).parts[1]


def fold_of(source, sources):
    """The three large series of photos lie in different folds, the other sources in turn."""
    large = ["Oldpel/flower_photos", "alexeygrigorev/clothing-dataset-small", "marcusklasson/GroceryStoreDataset"]
    if source in large:
        return large.index(source)
    return [name for name in sources if name not in large].index(source) % FOLDS


def chosen(folder):
    with open(folder / "labels.csv", newline="") as table:
        rows = [row for row in csv.DictReader(table) if row["file"].startswith("develop/")]
    rows = sorted((row for row in rows if kind_of(row) in KINDS), key=lambda row: row["file"])
    small = [row["file"] for row in rows if kind_of(row) == "photo-small"]
    kept = set(np.random.default_rng(1).permutation(small)[:len(small) // SMALL_SHARE])
    return [row for row in rows if kind_of(row) != "photo-small" or row["file"] in kept]


def directions(descriptors):
    """`descriptors`: pictures x copies x DESCRIPTOR, the unchanged picture first."""
    pictures = descriptors[:, 0]
    mean = pictures.mean(axis=0)
    among = np.cov(pictures.T, bias=True)
    inside = (descriptors - descriptors.mean(axis=1, keepdims=True)).reshape(-1, DESCRIPTOR)
    within = inside.T @ inside / len(inside) + RIDGE * np.trace(among) / DESCRIPTOR * np.eye(DESCRIPTOR)
    _, vectors = eigh(among, within, subset_by_index=[DESCRIPTOR - DIMENSIONS, DESCRIPTOR - 1])
    vectors = vectors[:, ::-1]
    # The library leaves the sign open; the vector's length is set to 1 later.
    vectors = vectors * np.sign(vectors[np.abs(vectors).argmax(axis=0), np.arange(DIMENSIONS)])
    vectors /= np.abs(vectors).max()
    return np.vstack([vectors, -mean @ vectors])


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("dump")
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("output", type=pathlib.Path)
    parser.add_argument("--fold", type=int, choices=range(FOLDS))
    arguments = parser.parse_args()
    cv2.setNumThreads(1)

    rows = chosen(arguments.folder)
    sources = sorted({row["source_repository"] for row in rows})
    out = [row["file"] for row in rows if fold_of(row["source_repository"], sources) == arguments.fold]
    files = [row["file"] for row in rows if row["file"] not in set(out)]
    if out:
        arguments.output.with_suffix(".files").write_text("\n".join(out) + "\n")
    # Also the copies that are left for judging: `records` makes them all.
    from copies import CHANGES
    used = [0] + [1 + i for i, name in enumerate(CHANGES) if name not in LEFT_FOR_JUDGING]
    descriptors = records(arguments.dump, arguments.folder, files)["descriptor"][:, used].astype(np.float64)
    directions(descriptors).astype("<f2").tofile(arguments.output)


if __name__ == "__main__":
    main()
