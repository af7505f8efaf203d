"""What windows show: terminals, editors, web pages, files, films, settings, chats and maps. Each fills a box of an image."""
from PIL import ImageDraw

from .lettering import Lettering, amount, paragraph
from .looks import any_look, picture, words


def terminal(image, rng, photos, box):
    draw, hand = ImageDraw.Draw(image), Lettering(rng, "mono", 0.05)
    look = any_look(rng, rng.random() < 0.85)
    if rng.random() < 0.2:
        look.paper = tuple(rng.randint(0, 110) for _ in range(3))
    draw.rectangle(box, fill=look.paper)
    size, y = rng.randint(11, 20), box[1] + 6
    colours = [look.ink] * 3 + [tuple(rng.randint(60, 255) for _ in range(3)) for _ in range(3)]
    stop = box[1] + (box[3] - box[1]) * rng.choice((0.15, 0.4, 0.7, 1, 1, 1))
    while y + size < stop:
        x, end = box[0] + 6, box[0] + (box[2] - box[0]) * rng.uniform(0.02, 0.9)
        while x < end:
            text = hand.words(1, 3)
            draw.text((x, y), text, font=hand.font(size), fill=rng.choice(colours))
            x += hand.font(size).getlength(text) + size * rng.choice((0.6, 0.6, 2))
        y += size * 1.25


def editor(image, rng, photos, box):
    draw, hand, look = ImageDraw.Draw(image), Lettering(rng, "mono", 0.04), any_look(rng)
    draw.rectangle(box, fill=look.paper)
    left = box[0] + rng.choice((0, 120, 220))
    draw.rectangle((box[0], box[1], left, box[3]), fill=look.panel)
    size = rng.randint(11, 17)
    if left > box[0]:
        paragraph(draw, Lettering(rng, "sans"), (box[0] + 10, box[1] + 10, left - 10, box[3]), size, look.faint, 1.7)
    y, indent, row = box[1] + 8, 0, 1
    colours = [look.ink, look.ink, look.accent, look.faint, tuple(rng.randint(60, 220) for _ in range(3))]
    while y + size < box[3] - 20:
        draw.text((left + 6, y), str(row), font=hand.font(size), fill=look.faint)
        x = left + size * 3 + indent * size * 1.6
        for _ in range(rng.choice((0, 1, 2, 3, 4, 6))):
            text = hand.word() + rng.choice(("", "(", ");", " =", ":", "{"))
            if x > box[2] - 90:
                break
            draw.text((x, y), text, font=hand.font(size), fill=rng.choice(colours))
            x += hand.font(size).getlength(text + " ")
        indent = min(5, max(0, indent + rng.choice((-1, 0, 0, 1))))
        y += size * 1.45
        row += 1
    draw.rectangle((box[0], box[3] - 20, box[2], box[3]), fill=look.accent)


def web(image, rng, photos, box):
    draw, look = ImageDraw.Draw(image), any_look(rng)
    hand, heading = Lettering(rng, rng.choice(("sans", "sans", "serif"))), Lettering(rng, "bold")
    draw.rectangle(box, fill=look.paper)
    y = box[1]
    if rng.random() < 0.7:  # tabs and the address
        draw.rectangle((box[0], y, box[2], y + 62), fill=look.panel)
        draw.rectangle((box[0] + 8, y + 6, box[0] + 190, y + 30), fill=look.paper)
        words(draw, hand, box[0] + 16, y + 10, 12, look.ink, 160)
        draw.rounded_rectangle((box[0] + 90, y + 34, box[2] - 90, y + 56), 11, fill=look.paper)
        words(draw, hand, box[0] + 104, y + 38, 12, look.faint, 300)
        y += 62
    if rng.random() < 0.7:
        draw.rectangle((box[0], y, box[2], y + 44), fill=rng.choice((look.accent, look.paper, look.panel)))
        for k in range(rng.randint(3, 7)):
            words(draw, hand, box[0] + 20 + k * 110, y + 14, 14, look.ink, 70)
        y += 44
    side = rng.choice((0, 0, 180, 240))
    if side:
        paragraph(draw, hand, (box[0] + 14, y + 16, box[0] + side - 14, box[3]), 13, look.ink, 2)
    left, columns = box[0] + side + 24, rng.randint(1, 4)
    while y < box[3] - 60:
        for k in range(columns):
            a = left + (box[2] - left) * k / columns
            b = left + (box[2] - left) * (k + 1) / columns - 20
            at = y + 16
            if rng.random() < 0.5:
                picture(image, rng, photos, (a, at, b, min(box[3], at + rng.randint(60, 220))))
                at += 224 if columns > 1 else 230
            if at < box[3] - 20:
                words(draw, heading, a, at, rng.randint(15, 28), look.ink, b - a)
                paragraph(draw, hand, (a, at + 34, b, min(box[3], at + rng.randint(50, 190))), rng.randint(11, 16), look.ink, 1.5)
            if rng.random() < 0.3:
                draw.rounded_rectangle((a, at + 60, a + 110, at + 92), 6, fill=look.accent)
        y += rng.randint(220, 430)


def grid(image, rng, photos, box):
    """Icons or thumbnails in a file window, or the cells of a spreadsheet."""
    draw, look, hand = ImageDraw.Draw(image), any_look(rng), Lettering(rng, "sans")
    draw.rectangle(box, fill=look.paper)
    if rng.random() < 0.5:
        step = rng.randint(80, 150)
        for y in range(int(box[1]) + 14, int(box[3]) - step, step):
            for x in range(int(box[0]) + 14, int(box[2]) - step, step):
                at = (x, y, x + step * 0.7, y + step * 0.6)
                if rng.random() < 0.45:
                    picture(image, rng, photos, at)
                else:
                    draw.rounded_rectangle(at, rng.choice((3, 14)), fill=tuple(rng.randint(30, 255) for _ in range(3)))
                words(draw, hand, x, y + step * 0.68, 12, look.ink, step * 0.7)
        return
    row, size = rng.randint(18, 34), rng.randint(11, 14)
    columns = sorted(rng.uniform(box[0], box[2]) for _ in range(rng.randint(2, 10)))
    draw.rectangle((box[0], box[1], box[2], box[1] + row), fill=look.panel)
    for k, y in enumerate(range(int(box[1]), int(box[3]) - row, row)):
        if rng.random() < 0.06:
            draw.rectangle((box[0], y, box[2], y + row), fill=look.accent)
        for a, b in zip([box[0]] + columns, columns + [box[2]]):
            if b - a > 30 and rng.random() < 0.8:
                text = amount(rng) if rng.random() < 0.4 else hand.line(size, b - a - 12)
                draw.text((a + 6, y + (row - size) / 2), text, font=hand.font(size), fill=look.ink)
        draw.line((box[0], y, box[2], y), fill=look.panel)
    if rng.random() < 0.6:
        for x in columns:
            draw.line((x, box[1], x, box[3]), fill=look.panel)


def viewer(image, rng, photos, box):
    """A picture or a film with controls around it."""
    draw, look, hand = ImageDraw.Draw(image), any_look(rng), Lettering(rng, "sans")
    draw.rectangle(box, fill=look.paper)
    right = box[2] - rng.choice((0, 0, 200, 300))
    picture(image, rng, photos, (box[0] + rng.choice((0, 30)), box[1] + 40, right - rng.choice((0, 30)), box[3] - 60))
    for k in range(rng.randint(3, 8)):
        draw.ellipse((box[0] + 20 + k * 40, box[3] - 44, box[0] + 44 + k * 40, box[3] - 20), fill=rng.choice((look.ink, look.faint)))
    draw.line((box[0] + 20, box[3] - 54, right - 20, box[3] - 54), fill=look.accent, width=4)
    words(draw, hand, box[0] + 12, box[1] + 12, 15, look.ink, 300)
    if right < box[2]:
        paragraph(draw, hand, (right + 12, box[1] + 20, box[2] - 10, box[3]), 13, look.ink, 2)


def settings(image, rng, photos, box):
    """Rows with switches, fields, check boxes and buttons."""
    draw, look, hand = ImageDraw.Draw(image), any_look(rng), Lettering(rng, "sans")
    draw.rectangle(box, fill=look.panel if rng.random() < 0.5 else look.paper)
    y, step, size = box[1] + 16, rng.randint(28, 62), rng.randint(12, 18)
    right, left = box[2] - 24, box[0] + 20
    if rng.random() < 0.4:
        draw.rectangle((box[0], box[1], left + 150, box[3]), fill=look.panel)
        paragraph(draw, hand, (left, y, left + 130, box[3]), size, look.ink, 2.2)
        left += 175
    while y + step < box[3] - 50:
        kind = rng.random()
        if right - left > 160:
            words(draw, hand, left + 26, y, size, look.ink, (right - left) * rng.uniform(0.2, 0.6))
        if kind < 0.3:
            on = rng.random() < 0.5
            draw.rounded_rectangle((right - 40, y, right, y + 20), 10, fill=look.accent if on else look.faint)
            draw.ellipse((right - (20 if on else 38), y + 2, right - (4 if on else 22), y + 18), fill=(255, 255, 255))
        elif kind < 0.5:
            draw.rectangle((left, y, left + 16, y + 16), outline=look.ink, fill=look.accent if rng.random() < 0.5 else None)
        elif kind < 0.7:
            draw.rectangle((right - 170, y - 4, right, y + size + 6), outline=look.faint, fill=look.paper)
            words(draw, hand, right - 160, y, size, look.ink, 120)
        elif kind < 0.85:
            draw.ellipse((left, y, left + 20, y + 20), fill=tuple(rng.randint(40, 240) for _ in range(3)))
            words(draw, hand, left + 26, y + size * 1.2, size * 0.8, look.faint, (right - left) * 0.5)
        else:
            draw.line((left, y + step - 8, right, y + step - 8), fill=look.faint)
        y += step
    for k in range(rng.randint(1, 3)):
        x = right - 110 * (k + 1)
        draw.rounded_rectangle((x, box[3] - 44, x + 96, box[3] - 14), rng.choice((0, 4, 15)), fill=look.accent if k == 0 else look.paper,
                               outline=look.faint)
        words(draw, hand, x + 16, box[3] - 38, 14, look.ink, 60)


def chat(image, rng, photos, box):
    draw, look, hand = ImageDraw.Draw(image), any_look(rng), Lettering(rng, "sans")
    draw.rectangle(box, fill=look.paper)
    y, size = box[1] + 14, rng.randint(13, 22)
    while y < box[3] - size * 4:
        mine, width = rng.random() < 0.5, (box[2] - box[0]) * rng.uniform(0.25, 0.7)
        high = size * rng.randint(2, 6)
        x = box[2] - 14 - width if mine else box[0] + 14
        draw.rounded_rectangle((x, y, x + width, y + high), 14, fill=look.accent if mine else look.panel)
        if rng.random() < 0.1:
            picture(image, rng, photos, (x + 8, y + 8, x + width - 8, y + high))
        else:
            paragraph(draw, hand, (x + 12, y + 8, x + width - 12, y + high - 2), size, look.ink)
        y += high + rng.randint(6, 26)
    draw.rounded_rectangle((box[0] + 12, box[3] - 44, box[2] - 12, box[3] - 10), 16, fill=look.panel)


def street_map(image, rng, photos, box):
    draw = ImageDraw.Draw(image)
    land = rng.choice(((240, 236, 226), (228, 240, 220), (40, 44, 52)))
    draw.rectangle(box, fill=land)
    for _ in range(rng.randint(4, 10)):
        x, y, s = rng.uniform(box[0], box[2]), rng.uniform(box[1], box[3]), rng.uniform(20, 160)
        draw.ellipse((x, y, x + s, y + s * 0.7), fill=rng.choice(((190, 225, 180), (170, 210, 240), (215, 210, 200))))
    for _ in range(rng.randint(8, 30)):
        ends = [rng.uniform(box[i], box[i + 2]) for i in (0, 1, 0, 1)]
        draw.line(ends, fill=rng.choice(((255, 255, 255), (250, 220, 130), (200, 200, 200))), width=rng.choice((2, 4, 7)))
    hand = Lettering(rng, "sans")
    for _ in range(rng.randint(5, 20)):
        words(draw, hand, rng.uniform(box[0], box[2] - 60), rng.uniform(box[1], box[3] - 14), 12, (90, 90, 90), 80)
    draw.rectangle((box[0], box[1], box[2], box[1] + 1), fill=land)
