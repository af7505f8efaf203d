"""Captioned pictures: lettering laid over a picture or on bars, panels and frames beside it."""
from PIL import Image, ImageDraw

from .lettering import Lettering


def _block(image, hand, rng, text, box, size, fill, outline, centred=True, from_bottom=False):
    """Wrapped text in a box; shrinks until it fits."""
    left, top, right, bottom = box
    while True:
        lines = hand.wrapped(text, size, right - left)
        if len(lines) * size * 1.15 <= bottom - top or size < 12:
            break
        size *= 0.9
    draw = ImageDraw.Draw(image)
    y = bottom - len(lines) * size * 1.15 - size * 0.2 if from_bottom else top
    font = hand.font(size)
    for line in lines:
        x = left + ((right - left - font.getlength(line)) / 2 if centred else 0)
        stroke = max(1, round(size * rng.uniform(0.05, 0.09))) if outline else 0
        draw.text((x, y), line, font=font, fill=fill, stroke_width=stroke, stroke_fill=outline)
        y += size * 1.15
    return y


def _hand(rng):
    return Lettering(rng, "caption", 0.08)


def _say(hand, rng, least=1, most=8):
    text = hand.words(least, most)
    return text.upper() if rng.random() < 0.55 else text


def _ink(rng):
    chance = rng.random()
    if chance < 0.8:
        return (255, 255, 255), (0, 0, 0)
    if chance < 0.88:
        return (255, rng.randint(200, 255), rng.randint(0, 60)), (0, 0, 0)
    return (0, 0, 0), (255, 255, 255)


def _over(rng, base):
    w, h = base.size
    hand, (fill, outline) = _hand(rng), _ink(rng)
    size = w * rng.uniform(0.05, 0.13)
    margin = w * rng.uniform(0.01, 0.06)
    which = rng.random()
    if which < 0.75:
        _block(base, hand, rng, _say(hand, rng), (margin, margin * 0.5, w - margin, h * 0.33), size, fill, outline)
    if which > 0.3:
        _block(base, hand, rng, _say(hand, rng), (margin, h * 0.6, w - margin, h - margin * 0.5), size, fill, outline,
               from_bottom=True)
    return base


def _bar(rng, base):
    w, h = base.size
    hand = _hand(rng) if rng.random() < 0.6 else Lettering(rng, "sans", 0.08)
    dark = rng.random() < 0.25
    size = w * rng.uniform(0.04, 0.09)
    lines = rng.randint(1, 4)
    high = int(size * (lines * 1.2 + 0.9))
    paper = (0, 0, 0) if dark else (255, 255, 255)
    if rng.random() < 0.15:
        paper = tuple(rng.randint(0, 255) for _ in range(3))
    out = Image.new("RGB", (w, h + high), paper)
    top = rng.random() < 0.75
    out.paste(base, (0, high if top else 0))
    y = 0 if top else h
    ink = (255, 255, 255) if sum(paper) < 330 else (0, 0, 0)
    _block(out, hand, rng, hand.words(lines * 2, lines * 5), (size * 0.4, y + size * 0.3, w - size * 0.4, y + high), size,
           ink, None, centred=rng.random() < 0.6)
    if rng.random() < 0.2:
        return _over(rng, out)
    return out


def _frame(rng, base):
    w, h = base.size
    hand = Lettering(rng, rng.choice(("caption", "serif")), 0.08)
    border = int(w * rng.uniform(0.06, 0.14))
    out = Image.new("RGB", (w + 2 * border, h + border + int(w * 0.24)), (0, 0, 0))
    draw = ImageDraw.Draw(out)
    draw.rectangle((border - 5, border - 5, border + w + 4, border + h + 4), outline=(255, 255, 255), width=2)
    out.paste(base, (border, border))
    y = _block(out, hand, rng, hand.words(1, 3).upper(), (border, border + h + 12, border + w, border + h + w * 0.12),
               w * rng.uniform(0.06, 0.1), (255, 255, 255), None)
    if rng.random() < 0.8:
        _block(out, hand, rng, hand.words(2, 6), (border, y + 4, border + w, out.height), w * 0.035, (230, 230, 230), None)
    return out


def _panels(rng, base, photos):
    rows = rng.randint(2, 4)
    cell = (rng.randint(260, 420), rng.randint(170, 300))
    out = Image.new("RGB", (cell[0] * 2, cell[1] * rows), (255, 255, 255))
    hand = _hand(rng)
    left = rng.random() < 0.7
    for row in range(rows):
        y = row * cell[1]
        out.paste((base if row == 0 else photos.picture(rng)).resize(cell), (0 if left else cell[0], y))
        x = cell[0] if left else 0
        _block(out, hand, rng, hand.words(1, 6), (x + 12, y + cell[1] * 0.2, x + cell[0] - 12, y + cell[1]),
               cell[0] * rng.uniform(0.08, 0.13), (0, 0, 0), None)
        ImageDraw.Draw(out).line((0, y, out.width, y), fill=(0, 0, 0), width=2)
    return out


def _strip(rng, base, photos):
    """Several captioned pictures above each other."""
    parts = [base] + [photos.picture(rng) for _ in range(rng.randint(1, 3))]
    width = rng.randint(420, 640)
    out = Image.new("RGB", (width, 0))
    hand, (fill, outline) = _hand(rng), _ink(rng)
    for part in parts:
        part = part.resize((width, int(width * rng.uniform(0.5, 0.8))))
        _block(part, hand, rng, _say(hand, rng, 1, 6), (10, part.height * 0.5, width - 10, part.height - 6),
               width * rng.uniform(0.05, 0.09), fill, outline, from_bottom=True)
        taller = Image.new("RGB", (width, out.height + part.height))
        taller.paste(out, (0, 0))
        taller.paste(part, (0, out.height))
        out = taller
    return out


def _labels(rng, base):
    w, h = base.size
    hand, (fill, outline) = _hand(rng), _ink(rng)
    for _ in range(rng.randint(2, 4)):
        x, y = rng.uniform(0.02, 0.6) * w, rng.uniform(0.03, 0.85) * h
        _block(base, hand, rng, hand.words(1, 4), (x, y, min(w, x + w * 0.38), h), w * rng.uniform(0.04, 0.08), fill, outline)
    return base


def _quote(rng, base):
    w, h = base.size
    if rng.random() < 0.7:
        base = Image.blend(base, Image.new("RGB", base.size, (0, 0, 0)), rng.uniform(0.2, 0.6))
    hand = Lettering(rng, rng.choice(("serif", "caption", "sans")), 0.08)
    band = rng.random() < 0.4
    top = h * rng.uniform(0.2, 0.6)
    if band:
        ImageDraw.Draw(base).rectangle((0, top - 8, w, top + h * 0.28), fill=rng.choice(((0, 0, 0), (255, 255, 255))))
    light = not band or base.getpixel((2, int(top))) == (0, 0, 0)
    _block(base, hand, rng, hand.words(4, 14), (w * 0.08, top, w * 0.92, top + h * 0.27), w * rng.uniform(0.05, 0.09),
           (255, 255, 255) if light else (0, 0, 0), (0, 0, 0) if light and rng.random() < 0.5 else None)
    return base


def meme(rng, numbers, photos):
    base = photos.picture(rng, drawn=0.2).convert("RGB")
    scale = rng.uniform(420, 900) / max(base.size)
    base = base.resize((int(base.width * scale), int(base.height * scale)))
    chance = rng.random()
    if chance < 0.36:
        return _over(rng, base)
    if chance < 0.60:
        return _bar(rng, base)
    if chance < 0.70:
        return _frame(rng, base)
    if chance < 0.79:
        return _panels(rng, base, photos)
    if chance < 0.86:
        return _strip(rng, base, photos)
    if chance < 0.94:
        return _labels(rng, base)
    return _quote(rng, base)
