"""Two views of each word, as dense vectors: the company it keeps in running text, and its place in the lexicon."""

from collections import Counter

import numpy as np
from scipy.sparse import coo_matrix, csr_matrix
from scipy.sparse.linalg import svds

import texts

WINDOW = 6
CONTEXTS = 12_000
ARTICLE = 80  # words that count of an article
RARE = 6  # occurrences that a word outside the lexicon needs
SEED = 1


def lemmatised(lexicon, tokens, known):
    for token in tokens:
        if token not in known:
            known[token] = lexicon.lemma(token)
    return [known[token] for token in tokens]


def running_texts(share, lexicon):
    known = {}
    for headword, tokens in texts.sources(share):
        yield lemmatised(lexicon, headword, known), lemmatised(lexicon, tokens, known)
    for _, members, _, gloss in lexicon.synsets.values():
        tokens = lemmatised(lexicon, texts.words(gloss), known)
        for member in members:
            if "_" not in member:
                yield [member], tokens


def batches(documents, row_of, column_of, longest=1_000_000):
    """The texts as numbers, many in one: their rows, their columns (-1: none), and the pairs of headword and context."""
    rows, columns, heads = [], [], []
    for headword, tokens in documents:
        column = [column_of.get(token, -1) for token in tokens]
        rows += [row_of.get(token, -1) for token in tokens] + [-1] * WINDOW
        columns += column + [-1] * WINDOW
        if len(headword) == 1 and headword[0] in row_of:
            heads += [(row_of[headword[0]], c) for c in column if c >= 0][:ARTICLE]
        if len(rows) > longest:
            yield np.array(rows), np.array(columns), np.array(heads, dtype=np.int64).reshape(-1, 2)
            rows, columns, heads = [], [], []
    yield np.array(rows), np.array(columns), np.array(heads, dtype=np.int64).reshape(-1, 2)


def company(documents, vocabulary, contexts):
    """How often each word stands near each context word; a headword is near all of its article."""
    row_of = {word: i for i, word in enumerate(vocabulary)}
    column_of = {word: i for i, word in enumerate(contexts)}
    shape = (len(vocabulary), len(contexts))
    total = csr_matrix(shape, dtype=np.float32)
    for row, column, heads in batches(documents, row_of, column_of):
        parts = [(heads[:, 0], heads[:, 1], 1.0)]
        for apart in range(1, WINDOW + 1):
            parts += [(row[:-apart], column[apart:], 1 / apart), (row[apart:], column[:-apart], 1 / apart)]
        for a, b, weight in parts:
            both = (a >= 0) & (b >= 0)
            weights = np.full(both.sum(), weight, dtype=np.float32)
            total = total + coo_matrix((weights, (a[both], b[both])), shape=shape).tocsr()
    return total


def surprise(counts):
    """Positive pointwise mutual information; contexts are smoothed, so that rare ones do not stand out."""
    counts = counts.tocoo()
    row_sum = np.asarray(counts.tocsr().sum(axis=1)).ravel()
    column_sum = np.asarray(counts.tocsc().sum(axis=0)).ravel() ** 0.75
    expected = row_sum[counts.row] * column_sum[counts.col] / column_sum.sum()
    value = np.log(np.maximum(counts.data / expected, 1))
    return csr_matrix((value, (counts.row, counts.col)), shape=counts.shape, dtype=np.float32)


def unit(rows):
    length = np.sqrt((rows**2).sum(axis=1, keepdims=True))
    return rows / np.maximum(length, 1e-9)


def reduced(matrix, size):
    start = np.random.default_rng(SEED).standard_normal(min(matrix.shape))
    left, values, _ = svds(matrix, k=size, v0=start.astype(np.float32))
    order = np.argsort(-values)
    return unit(left[:, order] * np.sqrt(values[order]))


def ancestors(lexicon, synset):
    """The more general meanings, with weights that shrink with the distance."""
    weights, frontier = {}, [(synset, 1.0)]
    while frontier:
        at, weight = frontier.pop()
        if weights.get(at, 0) >= weight:
            continue
        weights[at] = weight
        for kind, other in lexicon.synsets[at][2]:
            if kind in ("@", "@i", "&", "\\"):
                frontier.append((other, weight * 0.8))
            elif kind in ("+", "=", "^", "#p", "%p", "#m") and weight == 1:
                frontier.append((other, 0.5))
            elif kind == ";c":
                weights[("topic", other)] = 2.0
    return weights


def place(lexicon, vocabulary):
    """A sparse row for each word: its meanings and what they are kinds of, its topics, the words that explain it."""
    names, rows, columns, values = {}, [], [], []
    known = {}
    for row, word in enumerate(vocabulary):
        features = Counter()
        for senses in lexicon.senses.get(word, []):
            for rank, synset in enumerate(senses):
                share = 1 / (1 + rank)
                features[("file", lexicon.synsets[synset][0])] += 2 * share
                for feature, weight in ancestors(lexicon, synset).items():
                    features[feature] += share * weight
                for token in set(lemmatised(lexicon, texts.words(lexicon.synsets[synset][3]), known)):
                    features[("gloss", token)] += 0.5 * share
        for feature, value in features.items():
            rows.append(row)
            columns.append(names.setdefault(feature, len(names)))
            values.append(value)
    matrix = csr_matrix((values, (rows, columns)), shape=(len(vocabulary), len(names)), dtype=np.float32)
    holders = np.maximum(np.bincount(matrix.indices, minlength=len(names)), 1)
    rarity = np.log(len(vocabulary) / holders)
    rarity[holders < 2] = 0
    matrix = matrix.multiply(rarity[np.newaxis, :]).tocsr()
    length = np.sqrt(np.asarray(matrix.multiply(matrix).sum(axis=1)).ravel())
    return matrix.multiply(1 / np.maximum(length, 1e-9)[:, np.newaxis]).tocsr()


def build(share, lexicon, size):
    documents = list(running_texts(share, lexicon))
    count = Counter()
    for headword, tokens in documents:
        count.update(headword)
        count.update(tokens)
    plain = [w for w in count if 3 <= len(w) <= 20 and lexicon.lemma(w) == w]
    plain = [w for w in plain if count[w] >= (1 if w in lexicon.senses else RARE)]
    # The lexicon's words come before others, so that names and other languages do not push them out.
    plain.sort(key=lambda w: (w not in lexicon.senses, -count[w], w))
    vocabulary = sorted(plain[:size])
    contexts = sorted(sorted(count, key=lambda w: (-count[w], w))[50 : 50 + CONTEXTS])
    near = reduced(surprise(company(documents, vocabulary, contexts)), 250)
    return vocabulary, near, reduced(place(lexicon, vocabulary), 200)
