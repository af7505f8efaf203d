"""The colours of a program, and what its windows have in common."""
from dataclasses import dataclass

from .lettering import Lettering


@dataclass
class Look:
    """The colours of one program."""
    paper: tuple
    panel: tuple
    ink: tuple
    faint: tuple
    accent: tuple


def any_look(rng, dark=None):
    accent = tuple(rng.randint(20, 235) for _ in range(3))
    if dark if dark is not None else rng.random() < 0.42:
        base = rng.randint(0, 48)
        tint = [rng.randint(0, 14) for _ in range(3)]
        paper = tuple(base + t for t in tint)
        panel = tuple(min(255, v + rng.randint(8, 28)) for v in paper)
        return Look(paper, panel, (rng.randint(190, 255),) * 3, (rng.randint(110, 160),) * 3, accent)
    base = rng.choice((255, 255, 255, 250, 245, 240, 230))
    panel = tuple(max(0, base - rng.randint(4, 30)) for _ in range(3)) if rng.random() < 0.3 else (max(0, base - rng.randint(3, 26)),) * 3
    return Look((base,) * 3, panel, (rng.randint(0, 60),) * 3, (rng.randint(90, 170),) * 3, accent)


def words(draw, hand, x, y, size, colour, width):
    draw.text((x, y), hand.line(size, max(20, width)), font=hand.font(size), fill=colour)


def picture(image, rng, photos, box):
    w, h = int(box[2] - box[0]), int(box[3] - box[1])
    if w > 3 and h > 3:
        image.paste(photos.picture(rng, drawn=0.25).resize((w, h)), (int(box[0]), int(box[1])))


def title_bar(draw, rng, look, width, high):
    draw.rectangle((0, 0, width, high), fill=look.panel)
    hand = Lettering(rng, "sans")
    if rng.random() < 0.8:
        words(draw, hand, rng.choice((10, width * 0.4)), high * 0.25, high * 0.45, look.ink, width * 0.25)
    for k in range(3):
        x = width - high * (k + 1) if rng.random() < 0.95 else high * k
        draw.ellipse((x + high * 0.3, high * 0.3, x + high * 0.7, high * 0.7), outline=look.ink, fill=rng.choice((None, look.accent)))
    return high
