"""Trains the trees that tell screenshots from pages.

    OMP_NUM_THREADS=1 python3 train_pair.py OUT SET...

The other two models know well what is either of them and often not which. Writes OUT/pair-FOLD.npz (the probability of
a screenshot for the pictures of the fold left out) and OUT/classifier-pair.bin, with two classes: screenshot, page.
"""
import os
import struct
import sys

import numpy as np
from sklearn.ensemble import HistGradientBoostingClassifier

from dataset import CLASSES, FOLDS, load
from train_trees import append_branch

BAGS, FEATURES, ROUNDS, LEAVES = 16, 0.3, 60, 6
SCREENSHOT = CLASSES.index("screenshot")
PAGES = [CLASSES.index("receipt"), CLASSES.index("document")]


def fitted(features, is_screenshot):
    rng, bags = np.random.default_rng(7), []
    weight = np.where(is_screenshot, 0.5 / is_screenshot.mean(), 0.5 / (1 - is_screenshot.mean()))
    for _ in range(BAGS):
        seen = np.sort(rng.choice(features.shape[1], int(features.shape[1] * FEATURES), replace=False))
        model = HistGradientBoostingClassifier(max_iter=ROUNDS, max_leaf_nodes=LEAVES, learning_rate=0.08,
                                               min_samples_leaf=15, l2_regularization=5.0, max_bins=63,
                                               early_stopping=False, random_state=1)
        bags.append((seen, model.fit(features[:, seen], is_screenshot, sample_weight=weight)))
    return bags


def probability_of(bags, features):
    score = sum(model.decision_function(features[:, seen]) for seen, model in bags) / len(bags)
    return 1 / (1 + np.exp(-score))


def table_of(bags, features):
    """The format that TreeEnsemble reads. All is added to the screenshot; the page's trees are empty."""
    start = sum(float(np.ravel(model._baseline_prediction)[0]) for _, model in bags) / len(bags)
    trees = [(seen, predictors[0]) for seen, model in bags for predictors in model._predictors]
    out = [b"OTRE", struct.pack("<4I", 1, features, 2, 2 * len(trees)), struct.pack("<2f", start, 0)]
    for seen, predictor in trees:
        nodes = []
        append_branch(predictor.nodes, 0, seen, nodes, BAGS)
        out.append(struct.pack("<I", len(nodes)))
        out.extend(struct.pack("<HHf", *node) for node in nodes)
        out.append(struct.pack("<IHHf", 1, 0xFFFF, 0, 0))
    return b"".join(out)


def main():
    out, folders = sys.argv[1], sys.argv[2:]
    pictures = load(folders, False)
    known = np.isin(pictures.label, [SCREENSHOT, *PAGES])
    is_screenshot = pictures.label == SCREENSHOT
    for fold in range(FOLDS):
        rows = np.flatnonzero(known & (pictures.fold != fold))
        held = np.flatnonzero(known & (pictures.fold == fold) & (pictures.kind != "drawn"))
        probability = probability_of(fitted(pictures.features[rows], is_screenshot[rows]), pictures.features[held])
        np.savez(os.path.join(out, f"pair-{fold}.npz"), rows=held, probability=probability)
        for name, chosen in (("screenshots", is_screenshot[held]), ("pages", ~is_screenshot[held])):
            print(f"fold {fold}: {chosen.sum()} {name}, taken for screenshots {np.mean(probability[chosen] > 0.5):.3f}, "
                  f"unsure {np.mean(abs(probability[chosen] - 0.5) < 0.2):.3f}", flush=True)
    rows = np.flatnonzero(known)
    table = table_of(fitted(pictures.features[rows], is_screenshot[rows]), pictures.features.shape[1])
    with open(os.path.join(out, "classifier-pair.bin"), "wb") as file:
        file.write(table)
    print("bytes:", len(table))


if __name__ == "__main__":
    main()
