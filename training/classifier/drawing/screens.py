"""Screenshots: windows, phones, dialogs, whole desktops."""
import numpy as np
from PIL import Image, ImageDraw

from .lettering import Lettering, paragraph
from .looks import any_look, picture, title_bar, words
from .programs import chat, editor, grid, settings, street_map, terminal, viewer, web
from .sheets import cards, drawing_board, pages, table_dialog
from .treatment import fractal, smooth_field


_CONTENTS = (pages, pages, table_dialog, table_dialog, cards, drawing_board,
             terminal, terminal, editor, web, web, grid, grid, viewer, settings, settings, chat, street_map)


def _window(rng, photos, width, height):
    image = Image.new("RGB", (width, height))
    look, top = any_look(rng), 0
    draw = ImageDraw.Draw(image)
    if rng.random() < 0.75:
        top = title_bar(draw, rng, look, width, rng.randint(24, 42))
    if rng.random() < 0.35:
        draw.rectangle((0, top, width, top + 28), fill=look.panel)
        hand = Lettering(rng, "sans")
        for k in range(rng.randint(3, 8)):
            words(draw, hand, 10 + k * 72, top + 7, 13, look.ink, 50)
        top += 28
    if rng.random() < 0.25 and width > 700:
        middle = int(width * rng.uniform(0.3, 0.7))
        rng.choice(_CONTENTS)(image, rng, photos, (0, top, middle, height))
        part = Image.new("RGB", (width - middle, height - top))
        rng.choice(_CONTENTS)(part, rng, photos, (0, 0, *part.size))
        image.paste(part, (middle, top))
    else:
        rng.choice(_CONTENTS)(image, rng, photos, (0, top, width, height))
    if rng.random() < 0.3:
        ImageDraw.Draw(image).rectangle((0, 0, width - 1, height - 1), outline=look.faint)
    return image


def _wallpaper(rng, numbers, photos, size):
    chance = rng.random()
    if chance < 0.45:
        return photos.picture(rng, drawn=0.2).resize(size)
    field = smooth_field(numbers, *size, 3)[..., None] if chance < 0.8 else fractal(numbers, *size, 2, 3)[..., None]
    a, b = numbers.uniform(0, 255, 3), numbers.uniform(0, 255, 3)
    return Image.fromarray(np.clip(a + (b - a) * (field + 1) / 2, 0, 255).astype(np.uint8))


def _desktop(rng, numbers, photos):
    size = rng.choice(((1280, 720), (1366, 768), (1280, 800), (1440, 900), (1280, 1024), (1600, 700)))
    image = _wallpaper(rng, numbers, photos, size)
    draw, look, hand = ImageDraw.Draw(image), any_look(rng), Lettering(rng, "sans")
    for k in range(rng.choice((0, 0, 4, 9))):
        x, y = 20 + k // 5 * 90, 20 + k % 5 * 100
        draw.rounded_rectangle((x, y, x + 48, y + 48), 8, fill=tuple(rng.randint(40, 255) for _ in range(3)))
        words(draw, hand, x - 8, y + 54, 12, (255, 255, 255), 70)
    for _ in range(rng.choice((0, 1, 1, 1, 2, 2, 3))):
        w, h = int(size[0] * rng.uniform(0.35, 0.9)), int(size[1] * rng.uniform(0.35, 0.85))
        x, y = rng.randint(0, size[0] - w), rng.randint(0, size[1] - h)
        draw.rectangle((x + 6, y + 6, x + w + 6, y + h + 6), fill=(25, 25, 25))
        image.paste(_window(rng, photos, w, h), (x, y))
    bar = rng.randint(28, 54)
    top = 0 if rng.random() < 0.4 else size[1] - bar
    draw.rectangle((0, top, size[0], top + bar), fill=look.panel)
    for k in range(rng.randint(3, 14)):
        draw.rounded_rectangle((12 + k * (bar + 6), top + 6, bar + k * (bar + 6), top + bar - 6), 5,
                               fill=tuple(rng.randint(30, 255) for _ in range(3)))
    words(draw, hand, size[0] - 120, top + bar * 0.3, 14, look.ink, 100)
    return image


def _phone(rng, numbers, photos):
    size = rng.choice(((540, 1170), (540, 960), (600, 1300), (585, 1266), (640, 900), (960, 540)))
    look = any_look(rng)
    image = Image.new("RGB", size, look.paper)
    draw, hand, heading = ImageDraw.Draw(image), Lettering(rng, "sans"), Lettering(rng, "bold")
    top = 30
    content = rng.choice((settings, settings, chat, web, grid, street_map, viewer, None))
    if content is None:  # cards in a list, perhaps with pictures
        y = top + 90
        while y < size[1] - 110:
            high = rng.randint(80, 320)
            draw.rounded_rectangle((16, y, size[0] - 16, y + high - 14), rng.choice((4, 20)), fill=look.panel)
            if high > 150:
                picture(image, rng, photos, (16, y, size[0] - 16, y + high - 90))
            words(draw, heading, 34, y + high - 76, 22, look.ink, size[0] - 120)
            words(draw, hand, 34, y + high - 44, 17, look.faint, size[0] - 90)
            y += high
    else:
        content(image, rng, photos, (0, top + rng.choice((0, 70)), *size))
    if rng.random() < 0.6:
        draw.rectangle((0, top, size[0], top + 64), fill=rng.choice((look.accent, look.paper, look.panel)))
        words(draw, heading, 70, top + 18, 26, look.ink, size[0] * 0.5)
    draw.rectangle((0, 0, size[0], top), fill=rng.choice((look.paper, look.accent, (0, 0, 0))))
    draw.text((18, 6), "10:24", font=hand.font(17), fill=look.ink)
    for k in range(3):
        draw.rectangle((size[0] - 30 * (k + 1), 9, size[0] - 30 * k - 12, 21), fill=look.ink)
    if rng.random() < 0.5:
        draw.rectangle((0, size[1] - 70, size[0], size[1]), fill=look.panel)
        for k in range(4):
            x = size[0] * (k + 0.5) / 4
            draw.ellipse((x - 14, size[1] - 60, x + 14, size[1] - 32), fill=look.accent if k == 1 else look.faint)
    if rng.random() < 0.15:  # shown in a frame under a line of praise
        page = Image.new("RGB", (int(size[0] * 1.3), int(size[1] * 1.2)), tuple(rng.randint(150, 250) for _ in range(3)))
        ImageDraw.Draw(page).text((40, 40), heading.words(2, 4), font=heading.font(40), fill=(30, 30, 30))
        page.paste(image, (int(size[0] * 0.15), int(size[1] * 0.2)))
        return page
    return image


def _photo_phone(rng, photos):
    """A phone that shows little but a photo: a gallery, a camera, a story, a locked screen."""
    size = rng.choice(((540, 1170), (540, 960), (600, 1300), (585, 1266), (960, 540)))
    image = Image.new("RGB", size, rng.choice(((0, 0, 0), (0, 0, 0), (255, 255, 255), (24, 24, 28))))
    photo = photos.picture(rng)
    scale = max(size[0] / photo.width, size[1] / photo.height) if rng.random() < 0.6 else size[0] / photo.width
    photo = photo.resize((max(1, int(photo.width * scale)), max(1, int(photo.height * scale))))
    image.paste(photo, ((size[0] - photo.width) // 2, (size[1] - photo.height) // 2))
    draw, hand, bold = ImageDraw.Draw(image), Lettering(rng, "sans", 0.1), Lettering(rng, "bold", 0.1)
    w, h = size
    white, lines = (255, 255, 255), rng.randint(1, 3)
    draw.text((20, 8), f"{rng.randint(0, 23)}:{rng.randint(10, 59)}", font=hand.font(18), fill=white)
    for k in range(3):
        draw.rectangle((w - 30 * (k + 1), 10, w - 30 * k - 12, 22), fill=white)
    way = rng.randint(0, 3)
    if way == 0:  # locked: a large clock, messages
        draw.text((w * 0.25, h * 0.1), f"{rng.randint(10, 23)}:{rng.randint(10, 59)}", font=bold.font(w * 0.2), fill=white)
        words(draw, hand, w * 0.3, h * 0.1 + w * 0.24, 22, white, w * 0.4)
        for k in range(rng.randint(0, 3)):
            y = h * 0.45 + k * 92
            draw.rounded_rectangle((20, y, w - 20, y + 80), 20, fill=(235, 235, 240))
            words(draw, bold, 40, y + 12, 18, (20, 20, 20), w * 0.5)
            words(draw, hand, 40, y + 42, 16, (70, 70, 70), w * 0.8)
    elif way == 1:  # a story or a film: words and buttons along the edges
        for k in range(lines):
            words(draw, hand, 24, h * 0.84 + k * 26, 18, white, w * 0.6)
        for k in range(4):
            y = h * 0.5 + k * 74
            draw.ellipse((w - 64, y, w - 24, y + 40), fill=rng.choice((white, (230, 60, 80), (40, 40, 40))))
            draw.text((w - 60, y + 44), str(rng.randint(1, 999)), font=hand.font(14), fill=white)
    else:  # a gallery or a camera: bars at both ends
        bar = rng.choice(((0, 0, 0), (20, 20, 24), white))
        ink = (30, 30, 30) if bar == white else white
        draw.rectangle((0, h - 110, w, h), fill=bar)
        draw.rectangle((0, 0, w, 80), fill=bar)
        words(draw, bold, 70, 44, 20, ink, w * 0.5)
        for k in range(rng.randint(3, 5)):
            x = w * (k + 0.5) / 5
            draw.ellipse((x - 16, h - 84, x + 16, h - 52), outline=ink, width=3)
            words(draw, hand, x - 20, h - 40, 13, ink, 40)
        if way == 3:
            draw.ellipse((w / 2 - 42, h - 190, w / 2 + 42, h - 106), fill=white, outline=(200, 200, 200), width=6)
    return image


def _dialog(rng, photos):
    """A small window, cut out exactly."""
    size = (rng.randint(260, 640), rng.randint(130, 460))
    if rng.random() < 0.5:
        return _window(rng, photos, *size)
    look, hand = any_look(rng), Lettering(rng, "sans")
    image = Image.new("RGB", size, look.paper if rng.random() < 0.5 else look.panel)
    draw = ImageDraw.Draw(image)
    draw.text((20, 14), Lettering(rng, "bold").words(2, 4), font=Lettering(rng, "bold").font(20), fill=look.ink)
    paragraph(draw, hand, (20, 54, size[0] - 20, size[1] - 60), rng.randint(13, 17), look.ink, 1.5, rng.randint(1, 7))
    for k in range(rng.randint(1, 3)):
        x = size[0] - 120 * (k + 1)
        draw.rounded_rectangle((x, size[1] - 44, x + 104, size[1] - 12), 5, fill=look.accent if k == 0 else look.paper, outline=look.faint)
        words(draw, hand, x + 18, size[1] - 36, 14, look.ink, 60)
    return image


def screenshot(rng, numbers, photos):
    chance = rng.random()
    if chance < 0.36:
        image = _window(rng, photos, rng.randint(640, 1400), rng.randint(400, 900))
    elif chance < 0.56:
        image = _desktop(rng, numbers, photos)
    elif chance < 0.75:
        image = _phone(rng, numbers, photos)
    elif chance < 0.83:
        image = _photo_phone(rng, photos)
    else:
        image = _dialog(rng, photos)
    if rng.random() < 0.08:
        x, y = rng.randint(0, image.width // 2), rng.randint(0, image.height // 2)
        ImageDraw.Draw(image).rectangle((x, y, x + image.width // 3, y + image.height // 6), outline=(230, 20, 20), width=4)
    if rng.random() < 0.12:
        a, b = rng.uniform(0, 0.4), rng.uniform(0, 0.4)
        w, h = image.size
        image = image.crop((int(a * w), int(b * h), int((a + 0.6) * w), int((b + 0.6) * h)))
    return image
