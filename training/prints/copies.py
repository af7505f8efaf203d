"""Changed copies of a picture, as cameras, messengers and picture editors make them.

Every function takes and returns an 8-bit BGR picture. `rng` is a numpy Generator: the same seed gives the
same copies.
"""

import cv2
import numpy as np


def _warped(picture, matrix, size=None):
    height, width = picture.shape[:2]
    return cv2.warpPerspective(picture, matrix, size or (width, height), flags=cv2.INTER_LINEAR,
                               borderMode=cv2.BORDER_REFLECT_101)


def jpeg(picture, quality):
    return cv2.imdecode(cv2.imencode(".jpg", picture, [cv2.IMWRITE_JPEG_QUALITY, quality])[1],
                        cv2.IMREAD_COLOR)


def half_size(picture, rng):
    height, width = picture.shape[:2]
    return cv2.resize(picture, (max(width // 2, 1), max(height // 2, 1)), interpolation=cv2.INTER_AREA)


def crop(picture, share, rng):
    height, width = picture.shape[:2]
    new_height, new_width = round(height * (1 - share)), round(width * (1 - share))
    top = rng.integers(0, height - new_height + 1)
    left = rng.integers(0, width - new_width + 1)
    return picture[top:top + new_height, left:left + new_width]


def light(picture, gains):
    """Multiplies blue, green and red as light does: before the picture's gamma."""
    levels = np.arange(256) / 255
    linear = np.where(levels <= 0.04045, levels / 12.92, ((levels + 0.055) / 1.055) ** 2.4)
    channels = []
    for channel, gain in zip(cv2.split(picture), gains):
        lit = np.clip(linear * gain, 0, 1)
        table = np.where(lit <= 0.0031308, lit * 12.92, 1.055 * lit ** (1 / 2.4) - 0.055)
        channels.append(cv2.LUT(channel, np.round(table * 255).astype(np.uint8)))
    return cv2.merge(channels)


def exposure(picture, stops):
    return light(picture, [2.0 ** stops] * 3)


def white_balance(picture):
    return np.clip(picture * np.array([0.90, 1.0, 1.12]), 0, 255).astype(np.uint8)


def turned(picture, degrees):
    """Turned, and cut to what has no empty corners."""
    height, width = picture.shape[:2]
    spread = 1 + np.abs(np.sin(np.radians(degrees))) * max(width, height) / min(width, height)
    matrix = cv2.getRotationMatrix2D(((width - 1) / 2, (height - 1) / 2), degrees, spread)
    return _warped(picture, np.vstack([matrix, [0, 0, 1]]))


def shifted(picture, right, down):
    height, width = picture.shape[:2]
    return _warped(picture, np.array([[1, 0, right * width], [0, 1, down * height], [0, 0, 1.0]]))


def burst(picture, rng):
    """The next frame of a hand-held camera: a little moved, bent, blurred, noisy and lit otherwise."""
    height, width = picture.shape[:2]
    side = np.array([width, height])
    corners = np.array([[0, 0], [width, 0], [width, height], [0, height]], np.float32)
    moved = corners + rng.uniform(-0.018, 0.018, (4, 2)) * side + rng.uniform(-0.025, 0.025, 2) * side
    copy = _warped(picture, cv2.getPerspectiveTransform(corners, moved.astype(np.float32)))
    field = [cv2.GaussianBlur(rng.standard_normal((height, width)).astype(np.float32), (0, 0), min(side) / 12)
             for _ in range(2)]
    x, y = np.meshgrid(np.arange(width, dtype=np.float32), np.arange(height, dtype=np.float32))
    x, y = (at + f / np.abs(f).max() * 0.008 * max(side) for at, f in zip((x, y), field))
    copy = cv2.remap(copy, x.astype(np.float32), y.astype(np.float32), cv2.INTER_LINEAR,
                     borderMode=cv2.BORDER_REFLECT_101)
    copy = cv2.GaussianBlur(copy, (0, 0), rng.uniform(0.4, 0.9))
    copy = exposure(copy, rng.uniform(-0.25, 0.25))
    noisy = copy + rng.normal(0, 3, copy.shape)
    return jpeg(np.clip(noisy, 0, 255).astype(np.uint8), 85)


def everything(picture, rng):
    copy = crop(burst(picture, rng), 0.03, rng)
    copy = white_balance(turned(copy, rng.uniform(-1, 1)))
    return jpeg(half_size(exposure(copy, rng.uniform(-0.3, 0.3)), rng), 60)


CHANGES = {
    "JPEG quality 40": lambda picture, rng: jpeg(picture, 40),
    "half size": half_size,
    "crop 5 %": lambda picture, rng: crop(picture, 0.05, rng),
    "crop 10 %": lambda picture, rng: crop(picture, 0.10, rng),
    "exposure +0.5": lambda picture, rng: exposure(picture, 0.5),
    "exposure -0.5": lambda picture, rng: exposure(picture, -0.5),
    "turned 2 degrees": lambda picture, rng: turned(picture, rng.choice([-2.0, 2.0])),
    "shift 3 % x 2 %": lambda picture, rng: shifted(picture, 0.03 * rng.choice([-1, 1]),
                                                    0.02 * rng.choice([-1, 1])),
    "white balance": lambda picture, rng: white_balance(picture),
    "burst": burst,
    "everything": everything,
    "crop 20 %": lambda picture, rng: crop(picture, 0.20, rng),
}


def thumbnail(picture):
    """At most 512 pixels on the longest side, as the program sees pictures."""
    height, width = picture.shape[:2]
    scale = 512 / max(width, height)
    if scale >= 1:
        return picture
    size = (max(round(width * scale), 1), max(round(height * scale), 1))
    return cv2.resize(picture, size, interpolation=cv2.INTER_AREA)
