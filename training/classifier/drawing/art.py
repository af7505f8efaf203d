"""Illustrations: cartoons, flat landscapes, comic pages, line art, book pages, water colours, drawn-over photos."""
import math

import cv2
import numpy as np
from PIL import Image, ImageDraw, ImageFilter

from .lettering import Lettering, paragraph
from .treatment import fractal, noisy

_INK = (15, 15, 15)


def _colour(rng, low=40, high=255):
    return tuple(rng.randint(low, high) for _ in range(3))


def _blob(rng, x, y, rx, ry, wobble=0.15, points=18):
    phase = [rng.uniform(-wobble, wobble) for _ in range(points)]
    return [(x + rx * (1 + p) * math.cos(2 * math.pi * i / points), y + ry * (1 + p) * math.sin(2 * math.pi * i / points))
            for i, p in enumerate(phase)]


def _shape(draw, points, fill, ink, width):
    draw.polygon(points, fill=fill)
    if width:
        draw.line(points + points[:2], fill=ink, width=width, joint="curve")


def _creature(draw, rng, x, y, size, outline):
    body, ink = _colour(rng, 60), _INK if outline else None
    w = max(1, int(size * 0.025)) if outline else 0
    for side in (-1, 1):
        _shape(draw, _blob(rng, x + side * size * 0.25, y + size * 0.55, size * 0.1, size * 0.3), body, ink, w)
        _shape(draw, _blob(rng, x + side * size * 0.4, y + size * 0.1, size * 0.25, size * 0.08), body, ink, w)
    _shape(draw, _blob(rng, x, y + size * 0.2, size * 0.32, size * 0.45, 0.08), body, ink, w)
    _shape(draw, _blob(rng, x, y - size * 0.25, size * 0.3, size * 0.28, 0.08), _colour(rng, 90), ink, w)
    for side in (-1, 1):
        at = (x + side * size * 0.12, y - size * 0.3)
        _shape(draw, _blob(rng, *at, size * 0.08, size * 0.09, 0.03), (255, 255, 255), ink, w)
        _shape(draw, _blob(rng, *at, size * 0.03, size * 0.04, 0.03), _INK, None, 0)
    draw.arc((x - size * 0.12, y - size * 0.2, x + size * 0.12, y - size * 0.05), 10, 170, fill=_INK, width=max(1, w))


def _scene(rng, width, height):
    """A flat drawing: sky, hills, houses, trees, creatures."""
    plain = rng.random() < 0.4
    image = Image.new("RGB", (width, height), (255, 255, 255) if plain and rng.random() < 0.7 else _colour(rng, 120))
    draw = ImageDraw.Draw(image)
    outline = rng.random() < 0.65
    if not plain:
        for layer in range(rng.randint(1, 5)):
            base = height * (0.3 + 0.15 * layer)
            phase, rough = rng.uniform(0, 6), rng.uniform(0.5, 3)
            points = [(x, base + height * 0.08 * math.sin(phase + rough * x / width * 6)) for x in range(0, width + 20, 20)]
            _shape(draw, points + [(width, height), (0, height)], _colour(rng), _INK, 2 if outline else 0)
        for _ in range(rng.randint(0, 6)):
            x, y, s = rng.randint(0, width), rng.randint(int(height * 0.3), height), rng.uniform(0.05, 0.2) * height
            if rng.random() < 0.5:
                draw.rectangle((x, y, x + s, y + s), fill=_colour(rng), outline=_INK if outline else None)
                draw.polygon(((x - 5, y), (x + s / 2, y - s * 0.7), (x + s + 5, y)), fill=_colour(rng))
            else:
                draw.rectangle((x - s * 0.06, y, x + s * 0.06, y + s * 0.6), fill=(110, 70, 40))
                _shape(draw, _blob(rng, x, y, s * 0.4, s * 0.5), _colour(rng, 30, 200), _INK, 2 if outline else 0)
    for _ in range(rng.randint(0 if not plain else 1, 3)):
        _creature(draw, rng, rng.uniform(0.2, 0.8) * width, rng.uniform(0.35, 0.65) * height,
                  rng.uniform(0.25, 0.75) * min(width, height), outline)
    for _ in range(rng.randint(0, 8)):
        x, y, s = rng.uniform(0, width), rng.uniform(0, height), rng.uniform(0.01, 0.08) * width
        _shape(draw, _blob(rng, x, y, s, s, 0.4, rng.choice((5, 8, 10))), _colour(rng), _INK, 2 if outline else 0)
    if plain and rng.random() < 0.25:
        hand = Lettering(rng, "bold")
        draw.text((width * 0.2, height * 0.85), hand.words(1, 2), font=hand.font(height * 0.07), fill=_colour(rng, 0, 200))
    return image


def _painted(rng, numbers, base):
    """A photo made into a painting, a poster or a drawing."""
    array = np.asarray(base.convert("RGB"))
    way = rng.randint(0, 4)
    if way == 0:  # flat areas with black contours
        flat = array
        for _ in range(3):
            flat = cv2.bilateralFilter(flat, 9, 60, 9)
        levels = rng.randint(4, 8)
        flat = (flat // (256 // levels) * (256 // levels) + 128 // levels).astype(np.uint8)
        grey = cv2.medianBlur(cv2.cvtColor(array, cv2.COLOR_RGB2GRAY), 7)
        lines = cv2.adaptiveThreshold(grey, 255, cv2.ADAPTIVE_THRESH_MEAN_C, cv2.THRESH_BINARY, 9, rng.randint(3, 7))
        return Image.fromarray(np.where(lines[..., None] > 0, flat, 20).astype(np.uint8))
    if way == 1:  # brush strokes
        image = Image.fromarray(array).filter(ImageFilter.ModeFilter(rng.choice((7, 9, 11))))
        return image if rng.random() < 0.5 else image.quantize(rng.randint(10, 40)).convert("RGB")
    if way == 2:  # pencil on paper
        grey = cv2.cvtColor(array, cv2.COLOR_RGB2GRAY).astype(np.float32)
        soft = cv2.GaussianBlur(255 - grey, (0, 0), rng.uniform(4, 12))
        sketch = np.clip(grey * 255 / np.maximum(255 - soft, 1), 0, 255)
        paper = np.float32([255, rng.randint(238, 255), rng.randint(215, 255)]) / 255
        return Image.fromarray((sketch[..., None] * paper).astype(np.uint8))
    if way == 3:  # engraving: lines that swell with the darkness
        return _engraved(rng, cv2.cvtColor(array, cv2.COLOR_RGB2GRAY))
    edge = cv2.edgePreservingFilter(array, flags=1, sigma_s=40, sigma_r=0.45)
    wash = np.clip(edge.astype(np.float32) * 0.7 + 85, 0, 255)
    mist = 25 * fractal(numbers, base.width, base.height, 3)[..., None]
    return _vignette(rng, Image.fromarray(np.clip(wash + mist, 0, 255).astype(np.uint8)))


def _vignette(rng, image):
    """Fades into the paper at an uneven edge, as plates in books do."""
    w, h = image.size
    mask = Image.new("L", (w, h), 0)
    ImageDraw.Draw(mask).polygon(_blob(rng, w / 2, h / 2, w * 0.42, h * 0.43, 0.1, 24), fill=255)
    mask = mask.filter(ImageFilter.GaussianBlur(rng.uniform(2, 16)))
    paper = Image.new("RGB", (w, h), (255, rng.randint(245, 255), rng.randint(225, 255)))
    paper.paste(image, (0, 0), mask)
    return paper


def _engraved(rng, grey):
    h, w = grey.shape
    y, x = np.mgrid[0:h, 0:w].astype(np.float32)
    angle, pitch = rng.uniform(0, math.pi), rng.uniform(4, 7)
    wave = 0.5 + 0.5 * np.sin((x * math.cos(angle) + y * math.sin(angle)) * 2 * math.pi / pitch)
    if rng.random() < 0.5:
        cross = 0.5 + 0.5 * np.sin((x * math.cos(angle + 1.2) + y * math.sin(angle + 1.2)) * 2 * math.pi / pitch)
        wave = np.minimum(wave, np.maximum(cross, grey / 160))
    tone = cv2.normalize(cv2.GaussianBlur(grey, (0, 0), 1.5), None, 0, 255, cv2.NORM_MINMAX) / 255.0
    paper = (255, 255, 255) if rng.random() < 0.6 else (248, 240, 220)
    page = np.where((wave < 1.05 - tone ** 0.7)[..., None], np.uint8(_INK), np.uint8(paper))
    return Image.fromarray(page).filter(ImageFilter.GaussianBlur(0.5))


def _line_art(rng, width, height):
    """Pen strokes and hatching on white or cream paper."""
    paper = (255, 255, 255) if rng.random() < 0.65 else (246, 240, 222)
    image = Image.new("RGB", (width, height), paper)
    draw = ImageDraw.Draw(image)
    pen = rng.randint(1, 4)
    for _ in range(rng.randint(4, 30)):
        x, y = rng.uniform(0.1, 0.9) * width, rng.uniform(0.1, 0.9) * height
        s = rng.uniform(0.02, 0.3) * width
        points = _blob(rng, x, y, s, s * rng.uniform(0.4, 1.6), rng.uniform(0.05, 0.5), rng.randint(6, 24))
        if rng.random() < 0.35:
            points = points[:rng.randint(3, len(points))]
        elif rng.random() < 0.5:
            draw.polygon(points, fill=paper)
        draw.line(points + points[:1] * (rng.random() < 0.7), fill=_INK, width=pen, joint="curve")
        if rng.random() < 0.4:
            angle = rng.uniform(0, 3.2)
            for k in range(rng.randint(5, 30)):
                px, py = x - s / 2 + k * max(3, s / 20), y + rng.uniform(-0.1, 0.1) * s
                draw.line((px, py, px + s * 0.4 * math.cos(angle), py + s * 0.4 * math.sin(angle)), fill=_INK, width=1)
        if rng.random() < 0.08:
            draw.polygon(_blob(rng, x, y, s * 0.4, s * 0.4), fill=_INK)
    return image


def _framed_part(rng, numbers, photos, size):
    chance = rng.random()
    if chance < 0.5:
        return _scene(rng, *size)
    if chance < 0.8:
        return _painted(rng, numbers, photos.picture(rng).resize(size))
    return _line_art(rng, *size)


def _comic_page(rng, numbers, photos):
    width, height = rng.randint(560, 760), rng.randint(640, 1050)
    page = Image.new("RGB", (width, height), (255, 255, 255) if rng.random() < 0.8 else (20, 20, 20))
    draw = ImageDraw.Draw(page)
    gap, rows = rng.randint(6, 20), rng.randint(1, 4)
    for row in range(rows):
        cells = rng.randint(1, 3)
        for cell in range(cells):
            w, h = (width - gap) // cells - gap, (height - gap) // rows - gap
            x, y = gap + cell * (w + gap), gap + row * (h + gap)
            page.paste(_framed_part(rng, numbers, photos, (w, h)), (x, y))
            draw.rectangle((x, y, x + w, y + h), outline=_INK, width=2)
    return page


def _book_page(rng, numbers, photos):
    """A plate on cream paper with a few lines below."""
    width, height = rng.randint(560, 720), rng.randint(720, 960)
    paper = (rng.randint(238, 255), rng.randint(230, 250), rng.randint(205, 238))
    page = Image.new("RGB", (width, height), paper)
    w, h = int(width * rng.uniform(0.6, 0.9)), int(height * rng.uniform(0.45, 0.8))
    part = _framed_part(rng, numbers, photos, (w, h))
    if rng.random() < 0.6:
        part = _vignette(rng, part)
    tinted = np.asarray(part, np.float32) * np.float32(paper) / 255
    page.paste(Image.fromarray(tinted.astype(np.uint8)), ((width - w) // 2, int(height * 0.06)))
    hand = Lettering(rng, "serif")
    if rng.random() < 0.7:
        paragraph(ImageDraw.Draw(page), hand, (width * 0.18, height * 0.08 + h, width * 0.82, height * 0.97),
                  rng.randint(15, 24), (50, 40, 35), 1.5, rng.randint(1, 5))
    return noisy(page, numbers, rng.uniform(0.5, 4))


def _spread(rng, numbers, photos):
    """An open book: two cream pages, the gutter between them, text beside a plate."""
    left, right = _book_page(rng, numbers, photos), _book_page(rng, numbers, photos)
    high = rng.randint(560, 800)
    wide = int(high * rng.uniform(0.62, 0.85))
    tone = left.getpixel((3, 3))
    if rng.random() < 0.5:  # one side is text alone
        right = Image.new("RGB", (wide, high), tone)
        paragraph(ImageDraw.Draw(right), Lettering(rng, "serif"), (wide * 0.14, high * 0.1, wide * 0.86, high * 0.9),
                  rng.randint(13, 20), (60, 50, 40), 1.5, rng.randint(6, 20))
    sides = [left.resize((wide, high)), right.resize((wide, high))]
    if rng.random() < 0.5:
        sides.reverse()
    page = Image.new("RGB", (2 * wide, high), tone)
    page.paste(sides[0], (0, 0))
    page.paste(sides[1], (wide, 0))
    away = np.abs(np.arange(2 * wide) - wide) / wide
    fold = 1 - rng.uniform(0.1, 0.5) * np.exp(-away / rng.uniform(0.02, 0.1))
    array = np.asarray(page, np.float32) * fold[None, :, None]
    return noisy(Image.fromarray(np.clip(array, 0, 255).astype(np.uint8)), numbers, rng.uniform(0.5, 3))


def _diagram(rng):
    """A sheet of a drawing or a plan: boxes, circles and lines with a few words."""
    width, height = rng.randint(460, 900), rng.randint(420, 800)
    page = Image.new("RGB", (width, height), rng.choice(((255, 255, 255), (255, 255, 255), (250, 246, 232), (235, 240, 245))))
    draw, hand, ink = ImageDraw.Draw(page), Lettering(rng, "sans"), _colour(rng, 0, 90)
    step = rng.randint(14, 40)
    if rng.random() < 0.4:
        for at in range(0, max(width, height), step):
            draw.line((at, 0, at, height), fill=(215, 220, 230))
            draw.line((0, at, width, at), fill=(215, 220, 230))
    points = [(rng.uniform(0.1, 0.9) * width, rng.uniform(0.1, 0.9) * height) for _ in range(rng.randint(4, 14))]
    for a, b in zip(points, points[1:]):
        middle = (b[0], a[1]) if rng.random() < 0.6 else a
        draw.line((a, middle, b), fill=ink, width=rng.randint(1, 3))
    for x, y in points:
        w, h = rng.uniform(20, 90), rng.uniform(12, 50)
        shape = draw.rectangle if rng.random() < 0.6 else draw.ellipse
        shape((x - w, y - h, x + w, y + h), outline=ink, fill=rng.choice((None, (255, 255, 255), _colour(rng, 150))), width=rng.randint(1, 3))
        if rng.random() < 0.7:
            draw.text((x - w * 0.7, y - 7), hand.word(), font=hand.font(rng.randint(10, 18)), fill=ink)
    return page


def _wash(rng, numbers, width, height):
    """Water colour: soft stains with thin ink contours."""
    page = np.full((height, width, 3), 252, np.float32)
    edge = Image.new("L", (width, height), 255)
    pen = ImageDraw.Draw(edge)
    for _ in range(rng.randint(8, 40)):
        mask = Image.new("L", (width, height), 0)
        x, y = rng.gauss(0.5, 0.2) * width, rng.gauss(0.5, 0.2) * height
        points = _blob(rng, x, y, rng.uniform(0.03, 0.25) * width, rng.uniform(0.03, 0.25) * height, 0.3)
        ImageDraw.Draw(mask).polygon(points, fill=255)
        soft = np.asarray(mask.filter(ImageFilter.GaussianBlur(rng.uniform(1, 8))), np.float32)[..., None] / 255
        colour = np.float32(_colour(rng, 110, 245))
        page = page * (1 - 0.6 * soft) + (page * colour / 255) * 0.6 * soft
        if rng.random() < 0.6:
            pen.line(points + points[:1], fill=rng.randint(60, 150), width=rng.choice((1, 1, 2)))
    page += 10 * fractal(numbers, width, height, 6)[..., None]
    page *= np.asarray(edge.filter(ImageFilter.GaussianBlur(0.6)), np.float32)[..., None] / 255
    return _vignette(rng, Image.fromarray(np.clip(page, 0, 255).astype(np.uint8)))


def illustration(rng, numbers, photos):
    size = (rng.randint(420, 820), rng.randint(420, 820))
    chance = rng.random()
    if chance < 0.26:
        return _scene(rng, *size)
    if chance < 0.46:
        base = photos.picture(rng)
        scale = 620 / max(base.size)
        return _painted(rng, numbers, base.resize((int(base.width * scale), int(base.height * scale))))
    if chance < 0.58:
        return _line_art(rng, *size)
    if chance < 0.65:
        return _diagram(rng)
    if chance < 0.76:
        return _comic_page(rng, numbers, photos)
    if chance < 0.83:
        return _book_page(rng, numbers, photos)
    if chance < 0.91:
        return _spread(rng, numbers, photos)
    return _wash(rng, numbers, *size)
