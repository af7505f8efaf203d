"""Trains the small network on all but one fold.

    OMP_NUM_THREADS=1 python3 train_network.py FOLD SECONDS OUT SET...

Saves a running average of the weights to OUT/network-FOLD.pt every three minutes and at the end; goes on from that
file where it is there already.
"""
import os
import sys
import time

import numpy as np
import torch
import torch.nn.functional as F

from dataset import CLASSES, load
from network import SmallNetwork

BATCH = 48
# How often each class is shown, and how often a real picture of it.
SHARES = np.array([0.27, 0.21, 0.09, 0.13, 0.16, 0.14])
REAL = np.array([0.6, 0.4, 0.4, 0.4, 0.35, 0.4])


class Supply:
    """Batches by class and kind, changed a little."""

    def __init__(self, pictures, fold, rng):
        self.pictures, self.rng = pictures, rng
        usable = pictures.fold != fold
        self.rows = {}
        for c in range(len(CLASSES)):
            of_class = usable & (pictures.label == c)
            self.rows[c] = (np.flatnonzero(of_class & (pictures.kind != "drawn")),
                            np.flatnonzero(of_class & (pictures.kind == "drawn")))

    def batch(self):
        rng = self.rng
        labels = rng.choice(len(CLASSES), BATCH, p=SHARES)
        rows = []
        for c in labels:
            real, drawn = self.rows[c]
            rows.append(rng.choice(real if rng.random() < REAL[c] or not len(drawn) else drawn))
        x = torch.from_numpy(self.pictures.inputs[rows]).float() / 255
        return self.changed(x), torch.from_numpy(labels)

    def changed(self, x):
        rng = self.rng
        mirrored = torch.from_numpy(rng.random(len(x)) < 0.3)
        x = torch.where(mirrored[:, None, None, None], x.flip(3), x)
        side = int(rng.integers(104, 129))
        if side < 128:
            top, left = rng.integers(0, 129 - side, 2)
            x = F.interpolate(x[:, :, top:top + side, left:left + side], size=(128, 128), mode="bilinear", align_corners=False)
        gain = torch.from_numpy(rng.uniform(0.85, 1.15, (len(x), 1, 1, 1)) * rng.uniform(0.93, 1.07, (len(x), 4, 1, 1))).float()
        return torch.clamp(x * gain, 0, 1)


def judged(network, pictures, fold):
    """Accuracy on the real pictures of the fold left out, and recall class by class."""
    rows = np.flatnonzero((pictures.fold == fold) & (pictures.kind == "real"))
    network.eval()
    with torch.no_grad():
        out = np.concatenate([network(torch.from_numpy(pictures.inputs[part]).float() / 255).argmax(1).numpy()
                              for part in np.array_split(rows, max(1, len(rows) // 64))])
    network.train()
    truth = pictures.label[rows]
    recalls = " ".join(f"{name[:6]} {np.mean(out[truth == c] == c):.2f}" for c, name in enumerate(CLASSES))
    return f"accuracy {np.mean(out == truth):.3f}  {recalls}  photos kept {np.mean(out[truth == 0] == 0):.3f}"



def main():
    fold, seconds, out, folders = int(sys.argv[1]), float(sys.argv[2]), sys.argv[3], sys.argv[4:]
    torch.set_num_threads(1)
    torch.manual_seed(fold + 1)
    rng = np.random.default_rng(fold + 1)
    supply = Supply(load(folders, True), fold, rng)
    network, average = SmallNetwork(), SmallNetwork()
    path = os.path.join(out, f"network-{fold}.pt")
    resumed = os.path.exists(path)
    if resumed:
        network.load_state_dict(torch.load(path))
    average.load_state_dict(network.state_dict())
    peak = 1.5e-3 if resumed else 2.5e-3
    optimizer = torch.optim.AdamW(network.parameters(), 2e-3, weight_decay=0.02)
    start, saved, step, loss_sum = time.time(), time.time(), 0, 0.0
    while (spent := time.time() - start) < seconds:
        for group in optimizer.param_groups:  # a short rise, then half a cosine
            group["lr"] = peak * min(1, (step + 1) / 100) * (0.5 + 0.5 * np.cos(np.pi * spent / seconds)) + 2e-5
        x, labels = supply.batch()
        loss = F.cross_entropy(network(x), labels, label_smoothing=0.05)
        optimizer.zero_grad()
        loss.backward()
        optimizer.step()
        step += 1
        loss_sum += loss.item()
        with torch.no_grad():
            share = min(0.995, step / (step + 30))
            for mine, theirs in zip(average.state_dict().values(), network.state_dict().values()):
                mine.copy_(mine * share + theirs * (1 - share) if mine.is_floating_point() else theirs)
        if time.time() - saved > 180 or step == 50:
            saved = time.time()
            torch.save(average.state_dict(), path)
            print(f"{spent:.0f} s, {step * BATCH} samples, loss {loss_sum / step:.3f}:", judged(average, supply.pictures, fold),
                  flush=True)
    torch.save(average.state_dict(), path)
    print(f"end, {step * BATCH} samples:", judged(average, supply.pictures, fold), flush=True)


if __name__ == "__main__":
    main()
