"""What befalls pictures of every kind alike: noise, light, re-encoding, sizes."""
import io

import cv2
import numpy as np
from PIL import Image, ImageEnhance, ImageFilter


def reencoded(image, quality, subsampling):
    data = io.BytesIO()
    image.save(data, "JPEG", quality=quality, subsampling=subsampling)
    return Image.open(data).convert("RGB")


def limited(image, side):
    if max(image.size) <= side:
        return image
    scale = side / max(image.size)
    size = (max(1, round(image.width * scale)), max(1, round(image.height * scale)))
    return image.resize(size, Image.LANCZOS)


def finished(image, rng):
    """A thumbnail of at most 512 pixels, by one of the ways on which pictures reach a disk."""
    image = image.convert("RGB")
    if rng.random() < 0.12:
        image = image.filter(ImageFilter.GaussianBlur(rng.uniform(0.3, 1.2)))
    way = rng.random()
    if way < 0.45:
        image = reencoded(limited(image, 800), 84, 2)
    elif way < 0.72:
        image = reencoded(limited(image, rng.randint(420, 1300)), rng.randint(45, 95), rng.choice((0, 2)))
    return limited(image, 512 if rng.random() < 0.75 else rng.randint(180, 500))


def varied(image, rng):
    """Another version of a real picture: a slight crop, other light."""
    image = image.convert("RGB")
    if rng.random() < 0.7:
        w, h = image.size
        cuts = [rng.uniform(0, 0.09) for _ in range(4)]
        image = image.crop((int(w * cuts[0]), int(h * cuts[1]), int(w * (1 - cuts[2])), int(h * (1 - cuts[3]))))
    if rng.random() < 0.5:
        image = ImageEnhance.Brightness(image).enhance(rng.uniform(0.8, 1.2))
    if rng.random() < 0.3:
        image = ImageEnhance.Contrast(image).enhance(rng.uniform(0.75, 1.25))
    if rng.random() < 0.3:
        image = ImageEnhance.Color(image).enhance(rng.uniform(0.3, 1.5))
    return image


def noisy(image, numbers, deviation):
    array = np.asarray(image, np.float32)
    return Image.fromarray(np.clip(array + numbers.normal(0, deviation, array.shape), 0, 255).astype(np.uint8))


def smooth_field(numbers, width, height, cells):
    """A soft random field of mean 0 and range about -1 to 1."""
    coarse = numbers.uniform(-1, 1, (cells, cells)).astype(np.float32)
    return cv2.resize(coarse, (width, height), interpolation=cv2.INTER_CUBIC)


def fractal(numbers, width, height, start=2, octaves=7, fall=0.6):
    field, weight = np.zeros((height, width), np.float32), 1.0
    for octave in range(octaves):
        field += weight * smooth_field(numbers, width, height, max(2, start * 2**octave))
        weight *= fall
    return field / max(1e-6, np.abs(field).max())


def lit(image, numbers, strength):
    """Uneven light, as from a lamp or a window."""
    array = np.asarray(image, np.float32)
    field = 1 + strength * smooth_field(numbers, image.width, image.height, 3)[..., None]
    return Image.fromarray(np.clip(array * field, 0, 255).astype(np.uint8))


def laid_on(page, background, rng, numbers, room=(0.72, 1.15)):
    """A page photographed on a background: perspective, a shadow, uneven light, noise."""
    width, height = background.size
    scale = min(width / page.width, height / page.height) * rng.uniform(*room)
    pw, ph = page.width * scale, page.height * scale
    x, y = (width - pw) / 2 + rng.uniform(-0.08, 0.08) * width, (height - ph) / 2 + rng.uniform(-0.08, 0.08) * height
    bend = 0.07 * min(pw, ph)
    corners = np.float32([(x, y), (x + pw, y), (x + pw, y + ph), (x, y + ph)])
    corners += numbers.uniform(-bend, bend, (4, 2)).astype(np.float32)
    turn = cv2.getRotationMatrix2D((width / 2, height / 2), rng.gauss(0, 6), 1)
    corners = (np.c_[corners, np.ones(4)] @ turn.T).astype(np.float32)
    source = np.float32([(0, 0), (page.width, 0), (page.width, page.height), (0, page.height)])
    matrix = cv2.getPerspectiveTransform(source, corners)
    flags = {"flags": cv2.INTER_AREA if scale < 0.7 else cv2.INTER_LINEAR}
    small = cv2.GaussianBlur(np.asarray(page.convert("RGB")), (0, 0), max(0.3, 0.4 / scale))
    warped = cv2.warpPerspective(small, matrix, (width, height), **flags)
    mask = cv2.warpPerspective(np.full((page.height, page.width), 255, np.uint8), matrix, (width, height))
    shadow = cv2.GaussianBlur(np.roll(mask, (6, 4), (0, 1)), (0, 0), rng.uniform(4, 14)).astype(np.float32) / 255
    under = np.asarray(background.convert("RGB"), np.float32) * (1 - 0.5 * shadow[..., None])
    share = (mask.astype(np.float32) / 255)[..., None]
    tint = np.float32([rng.uniform(0.85, 1), rng.uniform(0.82, 1), rng.uniform(0.7, 1)]) * rng.uniform(0.6, 1)
    image = Image.fromarray(np.clip(under * (1 - share) + warped * tint * share, 0, 255).astype(np.uint8))
    return noisy(lit(image, numbers, rng.uniform(0.05, 0.35)), numbers, rng.uniform(1, 7))
