"""Trains the boosted trees: once without each fold, for judging, and once on everything, for the program.

    OMP_NUM_THREADS=1 python3 train_trees.py OUT SET...

Writes OUT/trees-FOLD.npz (probabilities of the pictures of the fold left out) and OUT/classifier-trees.bin.
"""
import os
import struct
import sys

import numpy as np
from sklearn.ensemble import HistGradientBoostingClassifier

from dataset import CLASSES, FOLDS, load

# Many small ensembles, each over a few of the features: where one feature misleads on a new source, most of them do
# not see it. Against one large ensemble over all, 5 instead of 47 of 1,040 photos of new sources scored 0.5 for a finding.
BAGS, FEATURES, ROUNDS, LEAVES = 10, 0.3, 70, 8
REAL = 0.5   # share of the weight of a class that its real pictures have
PHOTOS = 2.5 # weight of photos against another class
LEAF = 0xFFFF


def weights_of(pictures, rows):
    weight = np.zeros(len(rows))
    for c in range(len(CLASSES)):
        for drawn in (False, True):
            chosen = (pictures.label[rows] == c) & ((pictures.kind[rows] == "drawn") == drawn)
            share = (1 - REAL if drawn else REAL) * (PHOTOS if c == 0 else 1)
            weight[chosen] = share / max(1, chosen.sum())
    return weight * len(rows) / weight.sum()


def fitted(pictures, rows):
    """Pairs of the features that an ensemble sees and the ensemble."""
    rng, bags = np.random.default_rng(5), []
    total = pictures.features.shape[1]
    for _ in range(BAGS):
        seen = np.sort(rng.choice(total, int(total * FEATURES), replace=False))
        model = HistGradientBoostingClassifier(max_iter=ROUNDS, max_leaf_nodes=LEAVES, learning_rate=0.08,
                                               min_samples_leaf=30, l2_regularization=5.0, max_bins=63,
                                               early_stopping=False, random_state=1)
        model.fit(pictures.features[rows][:, seen], pictures.label[rows], sample_weight=weights_of(pictures, rows))
        bags.append((seen, model))
    return bags


def probabilities_of(bags, features):
    scores = sum(model.decision_function(features[:, seen]) for seen, model in bags) / len(bags)
    scores = np.exp(scores - scores.max(1, keepdims=True))
    return scores / scores.sum(1, keepdims=True)


def table_of(bags, features):
    """The format that TreeEnsemble reads; the ensembles are averaged by dividing their leaves."""
    start = sum(np.asarray(model._baseline_prediction).ravel() for _, model in bags) / len(bags)
    trees = [(seen, predictor) for seen, model in bags for predictors in model._predictors for predictor in predictors]
    out = [b"OTRE", struct.pack("<4I", 1, features, len(CLASSES), len(trees)), start.astype("<f4").tobytes()]
    for seen, predictor in trees:
        nodes = []
        append_branch(predictor.nodes, 0, seen, nodes, BAGS)
        out.append(struct.pack("<I", len(nodes)))
        out.extend(struct.pack("<HHf", *node) for node in nodes)
    return b"".join(out)


def append_branch(nodes, at, seen, out, bags):
    """The left branch follows its node; the right one comes after it. The leaves are divided by the number of ensembles."""
    node = nodes[at]
    if node["is_leaf"]:
        out.append((LEAF, 0, float(node["value"]) / bags))
        return
    threshold = np.float32(node["num_threshold"])
    if threshold > node["num_threshold"]:  # rounding must not let more values pass
        threshold = np.nextafter(threshold, np.float32(-np.inf))
    mine = len(out)
    out.append(None)
    append_branch(nodes, node["left"], seen, out, bags)
    out[mine] = (int(seen[node["feature_idx"]]), len(out), float(threshold))
    append_branch(nodes, node["right"], seen, out, bags)


def main():
    out, folders = sys.argv[1], sys.argv[2:]
    pictures = load(folders, False)
    for fold in range(FOLDS):
        model = fitted(pictures, np.flatnonzero(pictures.fold != fold))
        held = np.flatnonzero((pictures.fold == fold) & (pictures.kind != "drawn"))
        probabilities = probabilities_of(model, pictures.features[held])
        np.savez(os.path.join(out, f"trees-{fold}.npz"), rows=held, probabilities=probabilities)
        real = pictures.kind[held] == "real"
        label, guess = pictures.label[held][real], probabilities[real].argmax(1)
        print(f"fold {fold}: accuracy {np.mean(label == guess):.3f}",
              *(f"{name} {np.mean(guess[label == c] == c):.2f}" for c, name in enumerate(CLASSES)), flush=True)
    model = fitted(pictures, np.arange(len(pictures.label)))
    table = table_of(model, pictures.features.shape[1])
    with open(os.path.join(out, "classifier-trees.bin"), "wb") as file:
        file.write(table)
    print("bytes:", len(table))


if __name__ == "__main__":
    main()
