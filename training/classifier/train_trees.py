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

ROUNDS, LEAVES = 130, 14
LEAF = 0xFFFF


def fitted(pictures, rows):
    """Each class weighs the same but photos, of which a home has most; real pictures weigh more than drawn ones."""
    label = pictures.label[rows]
    weight = np.where(pictures.kind[rows] == "drawn", 1.0, 1.6)
    for c in range(len(CLASSES)):
        weight[label == c] *= (1.8 if c == 0 else 1.0) / weight[label == c].sum()
    weight *= len(rows) / weight.sum()
    model = HistGradientBoostingClassifier(max_iter=ROUNDS, max_leaf_nodes=LEAVES, learning_rate=0.09, min_samples_leaf=15,
                                           l2_regularization=2.0, max_bins=127, early_stopping=False, random_state=1)
    return model.fit(pictures.features[rows], label, sample_weight=weight)


def table_of(model, features):
    """The format that TreeEnsemble reads."""
    rounds = model._predictors
    start = np.asarray(model._baseline_prediction, np.float32).ravel()
    out = [b"OTRE", struct.pack("<4I", 1, features, len(CLASSES), len(rounds) * len(CLASSES)), start.tobytes()]
    for predictors in rounds:
        for predictor in predictors:
            nodes = []
            append_branch(predictor.nodes, 0, nodes)
            out.append(struct.pack("<I", len(nodes)))
            out.extend(struct.pack("<HHf", *node) for node in nodes)
    return b"".join(out)


def append_branch(nodes, at, out):
    """The left branch follows its node; the right one comes after it."""
    node = nodes[at]
    if node["is_leaf"]:
        out.append((LEAF, 0, float(node["value"])))
        return
    threshold = np.float32(node["num_threshold"])
    if threshold > node["num_threshold"]:  # rounding must not let more values pass
        threshold = np.nextafter(threshold, np.float32(-np.inf))
    mine = len(out)
    out.append(None)
    append_branch(nodes, node["left"], out)
    out[mine] = (int(node["feature_idx"]), len(out), float(threshold))
    append_branch(nodes, node["right"], out)


def main():
    out, folders = sys.argv[1], sys.argv[2:]
    pictures = load(folders, False)
    for fold in range(FOLDS):
        model = fitted(pictures, np.flatnonzero(pictures.fold != fold))
        held = np.flatnonzero((pictures.fold == fold) & (pictures.kind != "drawn"))
        probabilities = model.predict_proba(pictures.features[held])
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
