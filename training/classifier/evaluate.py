"""Judges the models on the folds left out and finds the scores at which the words begin to decide.

    OMP_NUM_THREADS=1 python3 evaluate.py MODELS trees|network|both SET...

MODELS is the folder with what train_trees.py and train_network.py wrote.
"""
import os
import sys

import numpy as np

from dataset import CLASSES, FOLDS, load

FINDINGS = {"screenshots": [1], "receipts and documents": [2, 3], "memes": [4]}
# Neighbouring letters that a page must have; see ImageClassifier.cpp.
LEAST_PAIRS = 30
# The turning points of ImageClassifier.cpp, in the order of the findings. The pair has no say here.
TURNING = (0.50, 0.60, 0.80)


def network_probabilities(models, pictures, fold, rows):
    import torch
    from network import SmallNetwork
    torch.set_num_threads(1)
    network = SmallNetwork()
    network.load_state_dict(torch.load(os.path.join(models, f"network-{fold}.pt")))
    network.eval()
    with torch.no_grad():
        return np.concatenate([torch.softmax(network(torch.from_numpy(pictures.inputs[part]).float() / 255), 1).numpy()
                               for part in np.array_split(rows, max(1, len(rows) // 64))])


def predicted(models, which, pictures):
    """Probabilities of all pictures that are not drawn, each by the models that saw none of its source."""
    rows, trees, networks = [], [], []
    for fold in range(FOLDS):
        with np.load(os.path.join(models, f"trees-{fold}.npz")) as data:
            rows.append(data["rows"])
            trees.append(data["probabilities"])
        if which != "trees":
            networks.append(network_probabilities(models, pictures, fold, rows[-1]))
    rows, trees = np.concatenate(rows), np.concatenate(trees)
    networks = np.concatenate(networks) if networks else trees
    return rows, {"trees": trees, "network": networks, "both": combined(trees, networks)}[which]


def combined(a, b):
    """The geometric mean, with receipts and documents as one: models that disagree on those two agree on the finding."""
    def pages_joined(p):
        return np.maximum(np.concatenate([p[:, :2], p[:, 2:4].sum(1, keepdims=True), p[:, 4:]], 1), 1e-6)
    joined = np.sqrt(pages_joined(a) * pages_joined(b))
    joined /= joined.sum(1, keepdims=True)
    receipt = (a[:, 2] + b[:, 2]) / np.maximum(1e-6, a[:, 2:4].sum(1) + b[:, 2:4].sum(1))
    page = joined[:, 2]
    return np.concatenate([joined[:, :2], (page * receipt)[:, None], (page * (1 - receipt))[:, None], joined[:, 3:]], 1)


def scores_of(pictures, rows, probabilities):
    """The score of each finding; pages without letters get none."""
    scores = np.stack([probabilities[:, classes].sum(1) for classes in FINDINGS.values()], 1)
    pairs = [np.expm1(pictures.features[rows, pictures.header.index(n)]) for n in ("dark pairs", "light pairs")]
    scores[np.maximum(*pairs) < LEAST_PAIRS, 1] = 0
    return scores


def table(scores, label, threshold):
    """Precision, recall and photos flagged when each finding begins at the threshold given for it."""
    lines, flagged = [], np.zeros(len(label), bool)
    for f, (name, classes) in enumerate(FINDINGS.items()):
        put = (scores[:, f] >= threshold[f]) & (scores[:, f] == scores.max(1))
        right = put & np.isin(label, classes)
        flagged |= put & (label == 0)
        lines.append(f"{name} t {threshold[f]:.2f} P {right.sum() / max(1, put.sum()):.3f} "
                     f"R {right.sum() / np.isin(label, classes).sum():.3f}")
    photos = (label == 0).sum()
    return "; ".join(lines) + f"; photos flagged {flagged.sum()} of {photos} ({100 * flagged.sum() / photos:.2f} %)"


def main():
    models, which, folders = sys.argv[1], sys.argv[2], sys.argv[3:]
    pictures = load(folders, which != "trees")
    rows, probabilities = predicted(models, which, pictures)
    scores = scores_of(pictures, rows, probabilities)
    label, kind, fold = pictures.label[rows], pictures.kind[rows], pictures.fold[rows]
    real = kind == "real"
    guess = probabilities.argmax(1)
    print("accuracy", round(float(np.mean(guess[real] == label[real])), 3))
    print("rows: truth, columns: guess", CLASSES)
    for c, name in enumerate(CLASSES):
        print(f"  {name:13s}", [int(((guess == g) & (label == c) & real).sum()) for g in range(len(CLASSES))])
    for part, chosen in (("real", real), ("real, fold 0", real & (fold == 0)), ("real, fold 1", real & (fold == 1)),
                         ("versions", kind == "version")):
        print(part)
        print("  as decided:", table(scores[chosen], label[chosen], TURNING))
        for t in (0.45, 0.5, 0.55, 0.6, 0.65, 0.7, 0.75, 0.8):
            print("  ", table(scores[chosen], label[chosen], [t] * 3))
    for f, (name, classes) in enumerate(FINDINGS.items()):
        print("wrongly put into", name)
        wrong = np.flatnonzero(real & ~np.isin(label, classes) & (scores[:, f] >= 0.5))
        for i in wrong[np.argsort(-scores[wrong, f])][:25]:
            print(f"   {scores[i, f]:.3f} {pictures.original[rows[i]]}")


if __name__ == "__main__":
    main()
