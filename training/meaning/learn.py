"""Makes the word vectors: python3 learn.py SHARE OUTPUT, where SHARE has the texts (see the README beside it)."""

import hashlib
import struct
import sys
from pathlib import Path

import numpy as np
from scipy.optimize import minimize

import texts
import views

WORDS = 70_000
NUMBERS = 32
CLOSE = 0.62  # the distance that divides
GENERAL = 0.3  # length of all axes but that of paperwork, which reaches from -0.3 to 1
STEEPNESS = 4.0
SOFTNESS = 4.0  # the logit at the end of the axis of paperwork
DECAY = 10.0
SHARES = {"papers": 1000.0, "ordinary": 1000.0, "others": 100.0}  # what each list weighs in learning
SAMPLE = 5_000  # other words, most of which are ordinary
PARTS = 3  # for finding the limit
MISTAKEN = 0.015  # share of ordinary words that may lie closer
SEED = 7
ANCHORS = ["invoice", "tax", "contract", "passport", "insurance", "mortgage", "agreement", "payroll", "medical"]
HERE = Path(__file__).parent
JUDGED = HERE / "../../tests/model/words"


def sigmoid(x):
    return 1 / (1 + np.exp(-np.clip(x, -30, 30)))


def paperwork(inputs, papers, ordinary, others):
    """How much each word is about papers, as a logit: a logistic regression."""
    rows = STEEPNESS * inputs[np.concatenate([papers, ordinary, others])]
    label = np.concatenate([np.ones(len(papers)), np.zeros(len(ordinary) + len(others))])
    groups = zip((papers, ordinary, others), SHARES.values())
    weight = np.concatenate([np.full(len(group), share / len(group)) for group, share in groups])

    def loss(solution):
        score = rows @ solution[:-1] + solution[-1]
        slope = weight * (sigmoid(score) - label)
        value = (weight * (np.logaddexp(0, score) - label * score)).sum() + DECAY * (solution[:-1] ** 2).sum()
        return value, np.append(rows.T @ slope + 2 * DECAY * solution[:-1], slope.sum())

    found = minimize(loss, np.zeros(inputs.shape[1] + 1), jac=True, method="L-BFGS-B", options={"maxiter": 150}).x
    return STEEPNESS * inputs @ found[:-1] + found[-1]


def shortened(inputs, size):
    """The directions in which the inputs differ most, their mean taken away."""
    centred = inputs - inputs.mean(axis=0)
    _, axes = np.linalg.eigh(centred.T @ centred)
    return views.unit(centred @ axes[:, ::-1][:, :size])


def vectors_of(general, logits):
    """One axis for paperwork, by far the longest; the others for all else that words have in common."""
    along = np.clip(logits / SOFTNESS, -GENERAL, 1)[:, np.newaxis]
    return views.unit(np.hstack([along, GENERAL * general]))


def nearness(vectors, anchors):
    """The cosine of each word to its nearest anchor."""
    return (vectors @ vectors[anchors].T).max(axis=1)


def limit_of(inputs, general, papers, ordinary, others, anchors):
    """The cosine that few ordinary words exceed that were not learnt from."""
    random = np.random.default_rng(SEED)
    paper_part, ordinary_part = random.integers(0, PARTS, len(papers)), random.integers(0, PARTS, len(ordinary))
    known, unknown = [], []
    for part in range(PARTS):
        learnt = np.concatenate([papers[paper_part != part], anchors])
        logits = paperwork(inputs, learnt, ordinary[ordinary_part != part], others)
        near = nearness(vectors_of(general, logits), anchors)
        known.extend(near[papers[paper_part == part]])
        unknown.extend(near[ordinary[ordinary_part == part]])
    limit = float(np.quantile(unknown, 1 - MISTAKEN))
    print(f"limit {limit:.3f}: {np.mean(np.array(known) > limit):.3f} of the papers left out exceed it")
    return limit


def table(vocabulary, vectors, scale):
    scaled = np.rint(vectors / np.abs(vectors).max(axis=1, keepdims=True) * 127).astype(np.int8)
    text = "".join(word + "\n" for word in vocabulary).encode()
    header = b"OVEC" + struct.pack("<IIIIf", 1, len(vocabulary), scaled.shape[1], len(text), scale)
    content = header + text + scaled.tobytes()
    return content + hashlib.sha256(content).digest()


def learn(lexicon, vocabulary, near, place):
    """The finished table. Words of the lists that it is judged by are not learnt from."""
    inputs = np.hstack([near, place]).astype(np.float64) / np.sqrt(2)
    row_of = {word: row for row, word in enumerate(vocabulary)}

    def rows(words):
        found = (row_of.get(word, row_of.get(lexicon.lemma(word))) for word in words)
        return np.unique([row for row in found if row is not None])

    judged = rows((JUDGED / "papers").read_text().split() + (JUDGED / "ordinary").read_text().split())
    anchors = rows(ANCHORS)
    papers = np.setdiff1d(rows((HERE / "papers").read_text().split()), np.concatenate([judged, anchors]))
    listed = np.concatenate([judged, anchors, papers])
    ordinary = np.setdiff1d(rows((HERE / "ordinary").read_text().split()), listed)
    others = np.setdiff1d(np.arange(len(vocabulary)), np.concatenate([listed, ordinary]))
    others = np.random.default_rng(SEED).choice(others, SAMPLE, replace=False)
    general = shortened(inputs, NUMBERS - 1)
    limit = limit_of(inputs, general, papers, ordinary, others, anchors)
    logits = paperwork(inputs, np.concatenate([papers, anchors]), ordinary, others)
    return table(vocabulary, vectors_of(general, logits), CLOSE / (1 - limit))


def main(share, output):
    lexicon = texts.Lexicon(share / "wordnet")
    output.write_bytes(learn(lexicon, *views.build(share, lexicon, WORDS)))


if __name__ == "__main__":
    main(Path(sys.argv[1]), Path(sys.argv[2]))
