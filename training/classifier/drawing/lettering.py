"""Words and typefaces for drawn pictures. Words are made of syllables: only their look matters."""
import functools
import glob

from PIL import ImageFont

_SYLLABLES = ("an be co da el fo gra hi in jo ka lo me no or pa qui re sa to un ve wi xa yo ze "
              "ster tion ment ble ing est pro con per str").split()
_FONTS = "/usr/share/fonts/"
_PATTERNS = {
    "sans": ["truetype/dejavu/DejaVuSans.ttf", "truetype/liberation/LiberationSans-Regular.ttf",
             "opentype/inter/Inter-Regular.otf", "opentype/inter/Inter-Medium.otf",
             "truetype/noto/NotoSans-Regular.ttf", "truetype/freefont/FreeSans.ttf"],
    "bold": ["truetype/dejavu/DejaVuSans-Bold.ttf", "truetype/liberation/LiberationSans-Bold.ttf",
             "opentype/inter/Inter-Bold.otf", "truetype/noto/NotoSans-Bold.ttf"],
    "serif": ["truetype/dejavu/DejaVuSerif.ttf", "truetype/liberation/LiberationSerif-Regular.ttf",
              "truetype/freefont/FreeSerif.ttf", "truetype/noto/NotoSerif-Regular.ttf",
              "truetype/liberation/LiberationSerif-Italic.ttf"],
    "mono": ["truetype/dejavu/DejaVuSansMono.ttf", "truetype/liberation/LiberationMono-Regular.ttf",
             "truetype/freefont/FreeMono.ttf", "truetype/dejavu/DejaVuSansMono-Bold.ttf",
             "truetype/liberation/LiberationMono-Bold.ttf"],
    "caption": ["truetype/liberation/LiberationSansNarrow-Bold.ttf", "truetype/dejavu/DejaVuSans-Bold.ttf",
                "truetype/dejavu/DejaVuSansCondensed-Bold.ttf", "opentype/inter/Inter-Black.otf",
                "opentype/inter/InterDisplay-ExtraBold.otf", "truetype/liberation/LiberationSans-Bold.ttf",
                "truetype/noto/NotoSans-Bold.ttf", "truetype/freefont/FreeSansBold.ttf",
                "truetype/noto/NotoSerif-Bold.ttf"],
}
# Scripts beside Latin: a font file and a range of code points.
_SCRIPTS = [("NotoSerifTangut-Regular", 0x17000, 0x18000), ("NotoSansYi-Regular", 0xA000, 0xA480),
            ("NotoSans-Regular", 0x430, 0x44F), ("NotoSans-Regular", 0x3B1, 0x3C9),
            ("NotoSansArmenian-Regular", 0x561, 0x586), ("NotoSansGeorgian-Regular", 0x10D0, 0x10F0),
            ("NotoSansDevanagari-Regular", 0x905, 0x939), ("NotoSansHebrew-Regular", 0x5D0, 0x5EA),
            ("NotoSansThai-Regular", 0xE01, 0xE2E)]


@functools.lru_cache(maxsize=None)
def _files(kind):
    return [f for p in _PATTERNS[kind] for f in sorted(glob.glob(_FONTS + p))]


@functools.lru_cache(maxsize=2000)
def _font(file, size):
    return ImageFont.truetype(file, size)


class Lettering:
    """One hand of writing: a typeface and a script, used throughout a picture."""

    def __init__(self, rng, kind, foreign=0.15):
        self.rng = rng
        self.file = rng.choice(_files(kind))
        self.script = None
        if rng.random() < foreign:
            name, first, last = rng.choice(_SCRIPTS)
            found = glob.glob(_FONTS + "truetype/noto/" + name + ".ttf")
            if found:
                self.file, self.script = found[0], (first, last)

    def font(self, size):
        return _font(self.file, max(5, int(size)))

    def word(self):
        r = self.rng
        if self.script:
            return "".join(chr(r.randint(*self.script)) for _ in range(r.randint(1, 7)))
        word = "".join(r.choice(_SYLLABLES) for _ in range(r.choice((1, 1, 2, 2, 3))))
        chance = r.random()
        if chance < 0.1:
            return str(r.randint(1, 9999))
        return word.capitalize() if chance < 0.25 else word

    def words(self, least, most):
        return " ".join(self.word() for _ in range(self.rng.randint(least, most)))

    def line(self, size, width):
        """A line of words that fits into a width in pixels."""
        font, text = self.font(size), self.word()
        while True:
            longer = text + " " + self.word()
            if font.getlength(longer) > width:
                return text
            text = longer

    def wrapped(self, text, size, width):
        font, lines = self.font(size), [""]
        for word in text.split():
            longer = (lines[-1] + " " + word).strip()
            if lines[-1] and font.getlength(longer) > width:
                lines.append(word)
            else:
                lines[-1] = longer
        return lines


def amount(rng):
    return f"{rng.randint(0, 300)}{rng.choice('.,')}{rng.randint(0, 99):02d}"


def paragraph(draw, hand, box, size, colour, spacing=1.35, lines=None, ragged=True):
    """Lines of words from the top of a box; returns where the next line would start."""
    left, top, right, bottom = box
    y, count = top, 0
    while y + size <= bottom and (lines is None or count < lines):
        width = right - left
        if ragged and (hand.rng.random() < 0.12 or count + 1 == lines):
            width *= hand.rng.uniform(0.3, 0.8)
        draw.text((left, y), hand.line(size, max(width, size * 3)), font=hand.font(size), fill=colour)
        y += size * spacing
        count += 1
    return y
