"""Reads the texts that the vectors are learnt from: dictionaries, a lexicon and handbooks of Debian packages."""

import gzip
import html
import re
from pathlib import Path

WORD = re.compile(r"[a-z]+")
TAG = re.compile(r"<(script|style).*?</\1>|<[^>]+>", re.S)
HANDBOOKS = [
    "doc/anarchism/html",
    "doc/debian-handbook/html/en-US",
    "gimp/2.0/help/en",
    "doc/gnucash-docs/gnucash-guide-en",
    "doc/gnucash-docs/gnucash-help-en",
    "doc/gnumed/user-manual",
]


def words(text):
    return WORD.findall(text.lower())


def dictionary(path):
    """The articles of a dictionary as pairs of headword and text."""
    headword, lines = None, []
    with gzip.open(path, "rt", encoding="utf-8", errors="replace") as file:
        for line in file:
            if line[:1].strip():
                if headword:
                    yield headword, " ".join(lines)
                headword = re.split(r"[\\(\[{]", line)[0].strip().lower()
                lines = [re.sub(r"\\[^\\]*\\|\([^)]*\)|\[[^\]]*\]", " ", line[len(headword):])]
            else:
                lines.append(re.sub(r"\[[^\]]*\]|--[A-Z][\w. ]*", " ", line.strip()))
    if headword:
        yield headword, " ".join(lines)


def handbook_pages(share):
    """The text of each page, without markup. Translations have a language before the extension."""
    for folder in HANDBOOKS:
        for path in sorted((share / folder).rglob("*.html")):
            if not re.search(r"\.[a-z]{2}(-[a-z]+)?\.html$", path.name):
                yield html.unescape(TAG.sub(" ", path.read_text(encoding="utf-8", errors="replace")))


class Lexicon:
    """WordNet: for each word its meanings, most usual first; for each meaning its words, gloss and relations."""

    def __init__(self, folder):
        self.synsets, self.senses, self.lemmas = {}, {}, {}
        for part in ("noun", "verb", "adj", "adv"):
            for line in (folder / f"data.{part}").read_text().splitlines():
                if not line.startswith(" "):
                    self._add_synset(line)
            for line in (folder / f"index.{part}").read_text().splitlines():
                if not line.startswith(" "):
                    fields = line.split()
                    count = int(fields[2])
                    names = [(fields[1].replace("s", "a"), offset) for offset in fields[-count:]]
                    self.senses.setdefault(fields[0], []).append(names)
            for line in (folder / f"{part}.exc").read_text().splitlines():
                inflected, base = line.split()[:2]
                self.lemmas.setdefault(inflected, base)

    def _add_synset(self, line):
        data, _, gloss = line.partition("|")
        fields = data.split()
        count = int(fields[3], 16)
        members = [re.sub(r"\(.*\)", "", fields[4 + 2 * i]).lower() for i in range(count)]
        at = 4 + 2 * count
        pointers = [tuple(fields[at + 1 + 4 * i : at + 4 + 4 * i]) for i in range(int(fields[at]))]
        relations = [(kind, (part.replace("s", "a"), offset)) for kind, offset, part in pointers]
        self.synsets[(fields[2].replace("s", "a"), fields[0])] = (fields[1], members, relations, gloss)

    def lemma(self, word):
        """The base form of a noun or verb; the word itself if it is one or is unknown."""
        if word in self.lemmas:
            return self.lemmas[word]
        if word in self.senses:
            return word
        for ending, base in (("ies", "y"), ("es", ""), ("s", ""), ("ied", "y"), ("ed", "e"), ("ed", ""), ("ing", "e"), ("ing", "")):
            if word.endswith(ending) and word[: -len(ending)] + base in self.senses:
                return word[: -len(ending)] + base
        return word


def sources(share):
    """All running texts, each a list of words; the articles of dictionaries begin with their headword."""
    for name in ("gcide", "foldoc", "jargon"):
        for headword, text in dictionary(share / "dictd" / f"{name}.dict.dz"):
            yield words(headword), words(text)
    for page in handbook_pages(share):
        yield [], words(page)


