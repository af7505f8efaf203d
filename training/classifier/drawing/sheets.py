"""What windows show and pages resemble: texts, tables, cards and drawings. Each fills a box of an image."""
from PIL import ImageDraw

from .lettering import Lettering, amount, paragraph
from .looks import any_look, picture, words


def pages(image, rng, photos, box):
    """A text program or a reader: white pages on a grey ground, or light text from edge to edge."""
    draw, look = ImageDraw.Draw(image), any_look(rng, False)
    hand = Lettering(rng, rng.choice(("serif", "sans")))
    draw.rectangle(box, fill=rng.choice((look.panel, look.paper, (150, 150, 155), (90, 90, 95))))
    top = box[1] + rng.choice((0, 34, 64))
    for k in range(int((box[2] - box[0]) // 44)):
        if top > box[1] and rng.random() < 0.7:
            x = box[0] + 8 + k * 44
            draw.rounded_rectangle((x, box[1] + 7, x + 22, box[1] + 27), 3, fill=tuple(rng.randint(60, 230) for _ in range(3)))
    inset = (box[2] - box[0]) * rng.choice((0, 0.03, 0.12, 0.2))
    sheet = (box[0] + inset, top + inset * 0.2, box[2] - inset - rng.choice((0, 14)), box[3])
    draw.rectangle(sheet, fill=(255, 255, 255), outline=look.faint if inset else None)
    size, y = rng.randint(9, 17), sheet[1] + 18
    while y + size * 3 < sheet[3] - 20:
        if rng.random() < 0.3:
            words(draw, hand, sheet[0] + 24, y, size * 1.5, look.accent if rng.random() < 0.4 else look.ink, 260)
            y += size * 2.4
        y = paragraph(draw, hand, (sheet[0] + 24, y, sheet[2] - 24, sheet[3] - 20), size, look.ink, 1.45, rng.randint(2, 9)) + size
    draw.rectangle((box[2] - 10, top, box[2], box[3]), fill=look.panel)
    draw.rectangle((box[2] - 9, top + 20, box[2] - 1, top + 90), fill=look.faint)


def table_dialog(image, rng, photos, box):
    """A light grey dialog: tabs, a framed table with a marked row, fields and buttons."""
    draw, hand, base = ImageDraw.Draw(image), Lettering(rng, "sans", 0.08), rng.randint(214, 250)
    ground, edge, ink = (base,) * 3, (base - rng.randint(25, 70),) * 3, (rng.randint(0, 70),) * 3
    accent = tuple(rng.randint(40, 220) for _ in range(3))
    draw.rectangle(box, fill=ground)
    left, right, y, size = box[0] + 14, box[2] - 14, box[1] + 12, rng.randint(10, 14)
    for k in range(rng.choice((0, 0, 2, 4))):
        draw.rectangle((left + k * 84, y, left + k * 84 + 80, y + 24), fill=(255, 255, 255) if k == 0 else ground, outline=edge)
        words(draw, hand, left + k * 84 + 8, y + 6, size, ink, 60)
    y += rng.choice((0, 34))
    for _ in range(rng.randint(0, 5)):
        words(draw, hand, left, y + 4, size, ink, 100)
        draw.rectangle((left + 130, y, min(right, left + rng.randint(220, 420)), y + size + 10), fill=(255, 255, 255), outline=edge)
        words(draw, hand, left + 136, y + 4, size, ink, 80)
        y += size + 18
    foot = box[3] - 52
    if foot - y > 60:
        draw.rectangle((left, y, right, foot), fill=rng.choice(((255, 255, 255), ground)), outline=edge)
        row, columns = size + rng.randint(4, 14), [left] + sorted(rng.uniform(left + 60, right) for _ in range(rng.randint(1, 6)))
        marked = rng.randint(1, 8)
        for k in range(int((foot - y) // row)):
            if k == marked:
                draw.rectangle((left + 1, y + k * row, right - 1, y + (k + 1) * row), fill=accent)
            if k > rng.randint(3, 40):
                break
            for a, b in zip(columns, columns[1:] + [right]):
                if b - a > 40:
                    text = amount(rng) if rng.random() < 0.3 else hand.line(size, b - a - 12)
                    draw.text((a + 5, y + k * row + 3), text, font=hand.font(size), fill=ink)
    for k in range(rng.randint(1, 4)):
        x = right - 92 * (k + 1)
        draw.rounded_rectangle((x, box[3] - 38, x + 84, box[3] - 12), rng.choice((0, 4)), fill=(base + 4,) * 3, outline=edge)
        words(draw, hand, x + 18, box[3] - 32, size, ink, 50)


def cards(image, rng, photos, box):
    """Cards side by side, with a heading, a few words and a button each."""
    draw, look, hand, heading = ImageDraw.Draw(image), any_look(rng), Lettering(rng, "sans"), Lettering(rng, "bold")
    draw.rectangle(box, fill=look.paper)
    columns = rng.randint(2, 4)
    wide, high = (box[2] - box[0] - 16) / columns, rng.randint(110, 260)
    for y in range(int(box[1]) + 16, int(box[3]) - 60, high + 14):
        for k in range(columns):
            x = box[0] + 16 + k * wide
            end = min(box[3] - 4, y + high)
            draw.rounded_rectangle((x, y, x + wide - 16, end), rng.choice((2, 10)), fill=look.panel, outline=look.faint)
            at = y + 12
            if rng.random() < 0.4:
                picture(image, rng, photos, (x + 1, y + 1, x + wide - 17, min(end, y + high * 0.5)))
                at = y + high * 0.5 + 8
            if at + 30 < end:
                words(draw, heading, x + 12, at, 15, look.ink, wide - 60)
                paragraph(draw, hand, (x + 12, at + 24, x + wide - 30, end - 8), 12, look.faint, 1.4, rng.randint(1, 5))


def drawing_board(image, rng, photos, box):
    """A drawing program: tools along the edges, a large sheet with lines."""
    draw, look = ImageDraw.Draw(image), any_look(rng)
    draw.rectangle(box, fill=look.panel)
    sheet = (box[0] + rng.choice((36, 70)), box[1] + 40, box[2] - rng.choice((12, 160)), box[3] - 24)
    draw.rectangle(sheet, fill=rng.choice(((255, 255, 255), (255, 255, 255), look.paper, (10, 10, 20))), outline=look.faint)
    for k in range(int((box[2] - box[0]) // 34)):
        draw.rectangle((box[0] + 8 + k * 34, box[1] + 8, box[0] + 30 + k * 34, box[1] + 30), fill=rng.choice((look.accent, look.faint, look.paper)))
    for y in range(int(box[1]) + 48, int(box[3]) - 40, 32):
        draw.ellipse((box[0] + 6, y, box[0] + 28, y + 22), outline=look.ink, fill=rng.choice((None, look.accent)))
    for _ in range(rng.randint(3, 40)):
        x, y = rng.uniform(sheet[0], sheet[2]), rng.uniform(sheet[1], sheet[3])
        to = (min(sheet[2], x + rng.uniform(5, 220)), min(sheet[3], y + rng.choice((0, rng.uniform(0, 150)))))
        rng.choice((draw.line, draw.rectangle, draw.ellipse))((x, y, *to), **({"fill": look.accent, "width": 2}))
    if sheet[2] < box[2] - 100:
        paragraph(draw, Lettering(rng, "sans"), (sheet[2] + 10, box[1] + 44, box[2] - 8, box[3] - 10), 12, look.ink, 1.9)
