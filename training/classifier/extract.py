"""Features and network inputs of a drawn set, by the program's own code.

    python3 extract.py SET FEATURE_DUMP PART PARTS

Writes SET/features-PART.npz with one row per picture of the index that draw_set.py wrote for this part.
"""
import csv
import os
import subprocess
import sys
import tempfile

import numpy as np
from PIL import Image

STEP = 250  # pictures at a time: uncompressed they are large


def measured(folder, dump, names):
    with tempfile.TemporaryDirectory() as scratch:
        paths = []
        for number, name in enumerate(names):
            paths.append(os.path.join(scratch, f"{number}.ppm"))
            with Image.open(os.path.join(folder, name)) as image:
                image.convert("RGB").save(paths[-1])
        inputs = os.path.join(scratch, "inputs")
        text = subprocess.run([dump, inputs], input="\n".join(paths) + "\n", capture_output=True, text=True,
                              check=True).stdout
        rows = list(csv.reader(text.splitlines()))
        features = np.array([r[1:] for r in rows[1:]], np.float32)
        seen = np.fromfile(inputs, np.uint8).reshape(len(names), 4, 128, 128)
        return rows[0][1:], features, seen


def main():
    folder, dump, part = sys.argv[1], sys.argv[2], int(sys.argv[3])
    with open(os.path.join(folder, f"index-{part}.csv"), newline="") as file:
        index = list(csv.reader(file))
    features, inputs, header = [], [], None
    for start in range(0, len(index), STEP):
        header, values, seen = measured(folder, dump, [r[0] for r in index[start:start + STEP]])
        features.append(values)
        inputs.append(seen)
    columns = list(zip(*index))
    np.savez(os.path.join(folder, f"features-{part}.npz"), header=header, features=np.concatenate(features),
             inputs=np.concatenate(inputs), name=columns[0], label=columns[1], kind=columns[2], source=columns[3],
             original=columns[4])


if __name__ == "__main__":
    main()
