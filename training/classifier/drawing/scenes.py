"""Photos: the hard ones that collections lack, made from real photos or from noise."""
import cv2
import numpy as np
from PIL import Image, ImageDraw, ImageEnhance, ImageFilter

from .lettering import Lettering
from .treatment import fractal, laid_on, lit, noisy, smooth_field


def _cloth(rng, numbers):
    """Plain cloth, wall, sand or snow, perhaps with something lying on it."""
    w, h = rng.choice(((720, 540), (540, 720)))
    y, x = np.mgrid[0:h, 0:w].astype(np.float32)
    field = 22 * fractal(numbers, w, h, 2, 8, rng.uniform(0.45, 0.9))
    if rng.random() < 0.5:
        pitch = rng.uniform(2.5, 6)
        field += rng.uniform(2, 9) * (np.sin(x / pitch * 6.28) + np.sin(y / pitch * 6.28 + field / 9))
    colour = np.float32([rng.randint(60, 245)] * 3) + numbers.uniform(-25, 25, 3)
    image = Image.fromarray(np.clip(colour + field[..., None], 0, 255).astype(np.uint8))
    for _ in range(rng.choice((0, 0, 1, 1, 2))):
        thing = Image.new("RGB", (rng.randint(60, 400), rng.randint(20, 300)))
        shade = 40 * fractal(numbers, *thing.size, 2)[..., None]
        tone = numbers.uniform(20, 240, 3)
        thing = Image.fromarray(np.clip(tone + shade + np.zeros((thing.height, thing.width, 3)), 0, 255).astype(np.uint8))
        mask = Image.new("L", thing.size, 0)
        ImageDraw.Draw(mask).ellipse((2, 2, thing.width - 3, thing.height - 3), fill=255)
        at = (rng.randint(0, w - 60), rng.randint(0, h - 60))
        image.paste((30, 30, 30), (at[0] + 6, at[1] + 8), mask.filter(ImageFilter.GaussianBlur(5)).point(lambda v: v // 2))
        image.paste(thing.rotate(0), at, mask.filter(ImageFilter.GaussianBlur(1)))
    return noisy(lit(image, numbers, rng.uniform(0.1, 0.4)), numbers, rng.uniform(0.5, 5))


def _night(rng, numbers):
    w, h = 720, 480
    array = np.zeros((h, w, 3), np.float32) + numbers.uniform(0, 22, 3)
    for _ in range(rng.randint(0, 40)):
        glow = rng.uniform(0.8, 12)
        cv2.circle(array, (rng.randint(0, w), rng.randint(0, h)), max(1, int(glow)), numbers.uniform(60, 255, 3).tolist(), -1)
    array = cv2.GaussianBlur(array, (0, 0), rng.uniform(0.8, 3)) + cv2.GaussianBlur(array, (0, 0), 18) * 0.6
    array += 6 * fractal(numbers, w, h, 2)[..., None]
    return noisy(Image.fromarray(np.clip(array, 0, 255).astype(np.uint8)), numbers, rng.uniform(0.3, 9))


def _sky(rng, numbers):
    w, h = 720, 480
    t = np.linspace(0, 1, h, dtype=np.float32)[:, None, None]
    image = numbers.uniform(40, 235, 3) * (1 - t) + numbers.uniform(100, 250, 3) * t + np.zeros((h, w, 3))
    clouds = np.clip(fractal(numbers, w, h, 2, 6, 0.55) * 2, 0, 1)[..., None] * rng.uniform(0, 1)
    image = image * (1 - clouds) + 245 * clouds
    if rng.random() < 0.5:
        edge = (h * rng.uniform(0.5, 0.95) + 40 * smooth_field(numbers, w, 4, 12)[0]).astype(int)
        for x in range(w):
            image[max(0, edge[x]):, x] = image[max(0, edge[x]):, x] * 0.2 + 10
        image += 8 * fractal(numbers, w, h, 16)[..., None]
    return noisy(Image.fromarray(np.clip(image, 0, 255).astype(np.uint8)), numbers, rng.uniform(0.3, 4))


def _lettered_thing(rng, numbers, photos):
    """Writing that belongs to the scene: a sign, a packet, a shirt. No caption and no page."""
    scene = photos.picture(rng)
    scale = 700 / max(scene.size)
    scene = scene.resize((int(scene.width * scale), int(scene.height * scale)))
    sign = Image.new("RGB", (rng.randint(160, 420), rng.randint(80, 300)), tuple(rng.randint(10, 250) for _ in range(3)))
    draw, hand = ImageDraw.Draw(sign), Lettering(rng, "caption")
    ink = (255, 255, 255) if sum(sign.getpixel((0, 0))) < 380 else (15, 15, 15)
    y, size = 10, rng.randint(20, 80)
    for _ in range(rng.randint(1, 4)):
        draw.text((12, y), hand.words(1, 2), font=hand.font(size), fill=ink)
        y += size * 1.2
    room = Image.new("RGB", (int(sign.width * rng.uniform(1.3, 3)), int(sign.height * rng.uniform(1.3, 3))))
    at = (rng.randint(0, max(0, scene.width - room.width)), rng.randint(0, max(0, scene.height - room.height)))
    part = scene.crop((*at, min(scene.width, at[0] + room.width), min(scene.height, at[1] + room.height)))
    scene.paste(laid_on(sign, part, rng, numbers), at)
    return noisy(scene, numbers, rng.uniform(0.5, 4))


def _collage(rng, photos):
    """Several photos or one in a frame: borders without words."""
    border, paper = rng.randint(4, 50), rng.choice(((255, 255, 255), (0, 0, 0), (240, 236, 228)))
    columns, rows = rng.choice(((1, 1), (1, 1), (2, 1), (1, 2), (2, 2)))
    cell = (rng.randint(240, 420), rng.randint(200, 420))
    page = Image.new("RGB", (border + columns * (cell[0] + border), border + rows * (cell[1] + border)), paper)
    for c in range(columns):
        for r in range(rows):
            page.paste(photos.picture(rng).resize(cell), (border + c * (cell[0] + border), border + r * (cell[1] + border)))
    return page


def _altered(rng, numbers, photos):
    """A part of a real photo: dark, pale, grey, out of focus, with a date in the corner."""
    image = photos.picture(rng)
    w, h = image.size
    s = rng.uniform(0.35, 1)
    x, y = rng.uniform(0, 1 - s) * w, rng.uniform(0, 1 - s) * h
    image = image.crop((int(x), int(y), int(x + s * w), int(y + s * h)))
    scale = rng.uniform(400, 760) / max(image.size)
    image = image.resize((max(8, int(image.width * scale)), max(8, int(image.height * scale))), Image.BICUBIC)
    way = rng.randint(0, 6)
    if way == 0:
        image = ImageEnhance.Brightness(image).enhance(rng.uniform(0.08, 0.45))
    elif way == 1:
        image = ImageEnhance.Brightness(image).enhance(rng.uniform(1.3, 2.2))
    elif way == 2:
        image = image.convert("L").convert("RGB")
    elif way == 3:
        image = image.filter(ImageFilter.GaussianBlur(rng.uniform(1.5, 9)))
    elif way == 4:
        hand = Lettering(rng, "mono", 0)
        ImageDraw.Draw(image).text((image.width * 0.62, image.height * 0.92), "21 11 '19", font=hand.font(image.width * 0.045),
                                   fill=(255, 150, 40))
    elif way == 5:
        image = ImageEnhance.Contrast(image).enhance(rng.uniform(0.25, 0.6))
    return noisy(image, numbers, rng.uniform(0.2, 6))


def photo(rng, numbers, photos):
    chance = rng.random()
    if chance < 0.45:
        return _altered(rng, numbers, photos)
    if chance < 0.62:
        return _lettered_thing(rng, numbers, photos)
    if chance < 0.72:
        return _collage(rng, photos)
    if chance < 0.86:
        return _cloth(rng, numbers)
    return _night(rng, numbers) if rng.random() < 0.5 else _sky(rng, numbers)
