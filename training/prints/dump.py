"""Descriptors and tiles of pictures and of their changed copies, made by the program's own code."""

import subprocess
import threading
import zlib

import cv2
import numpy as np

from copies import CHANGES, thumbnail

DESCRIPTOR = 896
TILE = 128 * 128
RECORD = np.dtype([("descriptor", "<f4", DESCRIPTOR), ("tile", "u1", TILE)])


def _ppm(picture):
    height, width = picture.shape[:2]
    return b"P6 %d %d 255\n" % (width, height) + cv2.cvtColor(picture, cv2.COLOR_BGR2RGB).tobytes()


def _feed(pipe, folder, files):
    for file in files:
        picture = cv2.imread(str(folder / file), cv2.IMREAD_COLOR)
        rng = np.random.default_rng(zlib.crc32(file.encode()))
        for copy in [picture] + [change(picture, rng) for change in CHANGES.values()]:
            pipe.write(_ppm(thumbnail(copy)))
    pipe.close()


def records(program, folder, files):
    """An array of len(files) x (1 + len(CHANGES)) records: each picture, then its copies."""
    process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    feeder = threading.Thread(target=_feed, args=(process.stdin, folder, files))
    feeder.start()
    output = process.stdout.read()
    feeder.join()
    if process.wait() != 0:
        raise SystemExit(f"{program} failed")
    return np.frombuffer(output, RECORD).reshape(len(files), 1 + len(CHANGES))
