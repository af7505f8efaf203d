"""Writes the networks of both folds as one in ONNX form and checks it with the library that the program uses.

    OMP_NUM_THREADS=1 python3 export_network.py MODELS
"""
import os
import sys

import cv2
import numpy as np
import torch

from network import Both, SmallNetwork


def loaded(models, fold):
    network = SmallNetwork()
    network.load_state_dict(torch.load(os.path.join(models, f"network-{fold}.pt")))
    return network


def main():
    models = sys.argv[1]
    both = Both(loaded(models, 0), loaded(models, 1)).eval()
    path = os.path.join(models, "classifier-network.onnx")
    torch.onnx.export(both, torch.zeros(1, 4, 128, 128), path, opset_version=11, input_names=["picture"],
                      output_names=["probabilities"])
    x = np.random.default_rng(1).uniform(0, 1, (1, 4, 128, 128)).astype(np.float32)
    with torch.no_grad():
        wanted = both(torch.from_numpy(x)).numpy()
    read = cv2.dnn.readNetFromONNX(path)
    read.setInput(x)
    got = read.forward()
    print("bytes:", os.path.getsize(path), "largest difference:", float(np.abs(wanted - got).max()))
    if not np.allclose(wanted, got, atol=1e-4):
        sys.exit("the program would see other probabilities")


if __name__ == "__main__":
    main()
