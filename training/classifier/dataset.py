"""The measured set, and folds by source: pictures of one source are never on both sides."""
import glob
import os
from dataclasses import dataclass

import numpy as np

CLASSES = ["photo", "screenshot", "receipt", "document", "meme", "illustration"]
FOLDS = 2
# The sources of the second fold; all others are in the first. Balanced by hand, kind by kind.
_SECOND = ("wikimedia", "MicrosoftDocs", "jsvine", "Layout-Parser", "mindee", "invoice-x", "GITenberg", "Deevad",
           "alexeygrigorev", "marcusklasson", "Azure-Samples", "libjxl", "debian2")


@dataclass
class Pictures:
    header: list
    features: np.ndarray
    inputs: np.ndarray  # what the network sees; None when not wanted
    label: np.ndarray   # number of the class
    kind: np.ndarray    # real, version of a real one, drawn
    fold: np.ndarray    # of the source; -1: uses no picture of any source to speak of
    source: np.ndarray
    original: np.ndarray  # file of a real picture


def _fold_of(source):
    return 1 if source.startswith(_SECOND) else 0


def _meme_source(source, origins):
    """Captioned pictures belong where the picture below the caption belongs."""
    if not source.startswith("composedfrom "):
        return source
    return origins.get("develop/" + source[len("composedfrom "):], source)


def load(folders, with_inputs):
    """All features-*.npz in the folders."""
    parts = []
    for folder in folders:
        for path in sorted(glob.glob(os.path.join(folder, "features-*.npz"))):
            data = np.load(path)
            parts.append({k: data[k] for k in data.files if with_inputs or k != "inputs"})
    joined = {k: np.concatenate([p[k] for p in parts]) for k in parts[0] if k != "header"}
    origins = dict(zip(joined["original"], joined["source"]))
    source = np.array([_meme_source(s, origins) for s in joined["source"]])
    fold = np.array([_fold_of(s) for s in source])
    # Photos are hardly seen on drawn pages; leaving half of the pages out would cost more than it keeps apart.
    fold[(joined["kind"] == "drawn") & np.isin(joined["label"], ["receipt", "document"])] = -1
    label = np.array([CLASSES.index(v) for v in joined["label"]])
    return Pictures(list(parts[0]["header"]), joined["features"], joined.get("inputs"), label, joined["kind"], fold, source,
                    joined["original"])
