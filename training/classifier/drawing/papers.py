"""Receipts and documents: as scans, as pages on the screen, and photographed on a table."""
import numpy as np
from PIL import Image, ImageDraw, ImageFilter

from .lettering import Lettering, amount, paragraph
from .treatment import fractal, laid_on, lit, noisy, smooth_field


def _paper(rng):
    if rng.random() < 0.6:
        return (255, 255, 255)
    base = rng.randint(225, 252)
    return (base, base - rng.randint(0, 5), base - rng.randint(0, 18))


def _barcode(draw, rng, x, y, width, height):
    right = x + width
    while x < right:
        bar = rng.randint(1, 4)
        draw.rectangle((x, y, x + bar - 1, y + height), fill=(20, 20, 20))
        x += bar + rng.randint(1, 4)


def _till_receipt(rng):
    width = rng.randint(300, 460)
    rows = rng.randint(10, 55)
    size = rng.randint(13, 20)
    page = Image.new("RGB", (width, int(rows * size * 1.3 + rng.randint(120, 380))), _paper(rng))
    draw = ImageDraw.Draw(page)
    hand = Lettering(rng, rng.choice(("mono", "mono", "sans")), 0.12)
    grey = rng.randint(10, 110)
    ink = (grey, grey, grey + rng.randint(0, 30))
    margin, y = rng.randint(10, 40), rng.randint(10, 40)
    for _ in range(rng.randint(2, 7)):
        text = hand.words(1, 3)
        big = size * rng.choice((1, 1, 1.6))
        draw.text(((width - hand.font(big).getlength(text)) / 2, y), text, font=hand.font(big), fill=ink)
        y += big * 1.3
    for row in range(rows):
        if rng.random() < 0.1:
            draw.text((margin, y), rng.choice("-=*_.") * int((width - 2 * margin) / hand.font(size).getlength("-")),
                      font=hand.font(size), fill=ink)
        else:
            draw.text((margin, y), hand.words(1, 2)[:20], font=hand.font(size), fill=ink)
            price = amount(rng)
            draw.text((width - margin - hand.font(size).getlength(price), y), price, font=hand.font(size), fill=ink)
        y += size * 1.3
    total = "TOTAL " + amount(rng)
    draw.text((margin, y), total, font=hand.font(size * 1.5), fill=ink)
    if rng.random() < 0.5:
        _barcode(draw, rng, margin + 20, y + size * 2, width - 2 * margin - 40, rng.randint(25, 60))
    return page


def _table(draw, rng, hand, box, size, ink, accent):
    left, top, right, bottom = box
    columns = rng.randint(2, 7)
    edges = [left] + sorted(rng.uniform(left + 40, right - 40) for _ in range(columns - 1)) + [right]
    step, y, ruled = size * rng.uniform(1.4, 2.4), top, rng.random() < 0.6
    if rng.random() < 0.6:
        draw.rectangle((left, top, right, top + step), fill=accent)
    while y + step < bottom:
        for a, b in zip(edges, edges[1:]):
            if b - a > size * 2 and rng.random() < 0.85:
                text = amount(rng) if rng.random() < 0.5 else hand.line(size, b - a - 8)
                draw.text((a + 4, y + size * 0.2), text, font=hand.font(size), fill=ink)
        if ruled:
            draw.line((left, y, right, y), fill=ink, width=1)
        y += step
    if ruled:
        for edge in edges:
            draw.line((edge, top, edge, y), fill=ink, width=1)
        draw.line((left, y, right, y), fill=ink, width=1)
    return y


def _form(draw, rng, hand, box, size, ink):
    left, y, right, bottom = box
    while y + size * 2.4 < bottom:
        cells = rng.randint(1, 4)
        for cell in range(cells):
            a = left + (right - left) * cell / cells
            b = left + (right - left) * (cell + 1) / cells
            draw.text((a + 3, y + 2), hand.line(size * 0.7, (b - a) * 0.8), font=hand.font(size * 0.7), fill=ink)
            if rng.random() < 0.7:
                draw.rectangle((a, y, b, y + size * 2.4), outline=ink)
            else:
                draw.line((a + 3, y + size * 2.2, b - 6, y + size * 2.2), fill=ink)
            if rng.random() < 0.4:
                draw.text((a + 6, y + size), hand.words(1, 2), font=hand.font(size), fill=(30, 30, 120))
        y += size * 2.4


def _scribble(draw, rng, box, size):
    """Handwriting from afar: joined strokes on lines."""
    left, y, right, bottom = box
    while y + size < bottom:
        x = left
        while x < right - size * 3:
            end = x + rng.uniform(1, 4) * size
            points = [(x + (end - x) * i / 14, y + rng.uniform(0, size) * rng.choice((0.4, 0.7, 1))) for i in range(15)]
            draw.line(points, fill=(30, 30, rng.randint(40, 130)), width=max(1, size // 9), joint="curve")
            x = end + size * 0.5
        y += size * 1.8


def _sheet(rng):
    """A page of text, tables and forms."""
    wide = rng.random() < 0.18
    width, height = (900, rng.randint(500, 750)) if wide else (rng.randint(620, 800), rng.randint(820, 1080))
    page = Image.new("RGB", (width, height), _paper(rng))
    draw = ImageDraw.Draw(page)
    hand = Lettering(rng, rng.choice(("serif", "serif", "sans", "mono")), 0.2)
    grey = rng.randint(0, 90)
    ink = (grey, grey, grey)
    accent = tuple(rng.randint(120, 240) for _ in range(3)) if rng.random() < 0.6 else (225, 225, 225)
    size = rng.choice((9, 10, 11, 12, 13, 14, 16, 20, 26))
    margin, y = rng.randint(30, 110), rng.randint(30, 110)
    if rng.random() < 0.2:
        draw.rectangle((0, 0, width, y + size * 3), fill=accent)
    if rng.random() < 0.8:
        title = hand.words(1, 5)
        big = size * rng.uniform(1.2, 2.4)
        x = margin if rng.random() < 0.5 else max(margin, (width - hand.font(big).getlength(title)) / 2)
        draw.text((x, y), title, font=hand.font(big), fill=ink)
        y += big * 2
    columns = rng.choice((1, 1, 1, 2, 2, 3))
    foot = height - margin * rng.uniform(0.5, 1.5)
    if rng.random() < 0.2:
        foot = y + (foot - y) * rng.uniform(0.2, 0.7)
    for column in range(columns):
        a = margin + (width - 2 * margin) * column / columns
        b = margin + (width - 2 * margin) * (column + 1) / columns - (18 if columns > 1 else 0)
        at = y
        while at + size * 2 < foot:
            end = min(foot, at + size * rng.uniform(3, 30))
            kind = rng.random()
            if kind < 0.6:
                at = paragraph(draw, hand, (a, at, b, end), size, ink, rng.uniform(1.15, 1.7))
            elif kind < 0.76:
                at = _table(draw, rng, hand, (a, at, b, end), size, ink, accent)
            elif kind < 0.88:
                _form(draw, rng, hand, (a, at, b, end), size, ink)
                at = end
            elif kind < 0.93:
                _scribble(draw, rng, (a, at, b, end), size * 2)
                at = end
            elif kind < 0.96:
                draw.rectangle((a, at, b, end), fill=accent)
                at = end
            else:
                draw.text((a, at), hand.words(1, 3), font=hand.font(size * 1.4), fill=ink)
                at += size * 2
            at += size * rng.uniform(0.6, 2)
    return page


def _card(rng):
    """A business card, a ticket or a label."""
    page = Image.new("RGB", (700, rng.randint(350, 460)), _paper(rng))
    draw = ImageDraw.Draw(page)
    hand = Lettering(rng, rng.choice(("sans", "serif", "bold")), 0.25)
    accent = tuple(rng.randint(30, 220) for _ in range(3))
    if rng.random() < 0.6:
        draw.rectangle((0, 0, 700, rng.randint(20, 90)), fill=accent)
    y = rng.randint(90, 140)
    for _ in range(rng.randint(4, 8)):
        size = rng.choice((20, 24, 28, 36))
        draw.text((40, y), hand.words(1, 4), font=hand.font(size), fill=rng.choice(((20, 20, 20), accent)))
        y += size * 1.5
    return page


def _desk(rng, numbers, photos, size):
    if rng.random() < 0.35:
        return photos.picture(rng).resize(size)
    field = fractal(numbers, *size, start=2, fall=rng.uniform(0.4, 0.8))
    if rng.random() < 0.4:  # wooden: drawn out along one direction
        grain = fractal(numbers, 64, size[1], start=8).mean(axis=1)
        field = 0.4 * field + 0.8 * grain[:, None] / max(1e-6, abs(grain).max())
    colour = np.float32([rng.randint(30, 220)] * 3) + numbers.uniform(-40, 40, 3)
    return Image.fromarray(np.clip(colour + 30 * field[..., None], 0, 255).astype(np.uint8))


def _scanned(page, rng, numbers):
    if rng.random() < 0.6:
        page = page.rotate(rng.gauss(0, 1.0), expand=False, fillcolor=page.getpixel((2, 2)), resample=Image.BICUBIC)
    chance = rng.random()
    if chance < 0.2:  # black and white, as from a fax
        grey = np.asarray(page.convert("L").filter(ImageFilter.GaussianBlur(0.6)), np.float32)
        grey += numbers.normal(0, 18, grey.shape)
        page = Image.fromarray(np.where(grey > 150, 255, 0).astype(np.uint8)).convert("RGB")
    elif chance < 0.5:
        page = noisy(lit(page, numbers, rng.uniform(0, 0.08)), numbers, rng.uniform(0.5, 5))
    elif chance < 0.65:
        field = 12 * smooth_field(numbers, *page.size, 9)[..., None]
        page = Image.fromarray(np.clip(np.asarray(page, np.float32) + field - 8, 0, 255).astype(np.uint8))
    if rng.random() < 0.12:
        page = page.convert("L").convert("RGB")
    return page


def _far_away(page, rng, numbers):
    """Small on a large cloth, mostly a dark one."""
    size = rng.choice(((768, 1024), (1024, 768), (800, 800)))
    tone = numbers.uniform(8, 60, 3) if rng.random() < 0.7 else numbers.uniform(60, 200, 3)
    field = fractal(numbers, *size, start=4, fall=rng.uniform(0.5, 0.9))
    cloth = Image.fromarray(np.clip(tone + 18 * field[..., None], 0, 255).astype(np.uint8))
    return laid_on(page, cloth, rng, numbers, (0.32, 0.72))


def presented(page, rng, numbers, photos, share):
    if rng.random() < share * 0.3:
        return _far_away(page, rng, numbers)
    if rng.random() < share:
        if rng.random() < 0.25:  # so near that the page fills the picture
            size = (int(page.width * 0.9), int(page.height * 0.8))
        else:
            size = rng.choice(((768, 1024), (1024, 768), (800, 800), (720, 1280)))
        return laid_on(page, _desk(rng, numbers, photos, size), rng, numbers)
    if rng.random() < 0.5:
        return _scanned(page, rng, numbers)
    if rng.random() < 0.3:  # a part of the page
        w, h = page.size
        a, b = rng.uniform(0, 0.3), rng.uniform(0, 0.4)
        return page.crop((int(w * a), int(h * b), int(w * (a + 0.7)), int(h * (b + rng.uniform(0.3, 0.6)))))
    return page


def _either_way_up(page, rng):
    """Pages are photographed and scanned upside down as well. The program turns those that lie on their side."""
    return page.transpose(Image.ROTATE_180) if rng.random() < 0.4 else page


def receipt(rng, numbers, photos):
    page = _till_receipt(rng)
    if rng.random() < 0.12:
        wide = Image.new("RGB", (page.width * 2, page.height), (255, 255, 255))
        wide.paste(page, (rng.randint(0, page.width), 0))
        page = wide
    return _either_way_up(presented(page, rng, numbers, photos, 0.5), rng)


def document(rng, numbers, photos):
    if rng.random() < 0.08:
        return _either_way_up(presented(_card(rng), rng, numbers, photos, 0.8), rng)
    return _either_way_up(presented(_sheet(rng), rng, numbers, photos, 0.35), rng)
