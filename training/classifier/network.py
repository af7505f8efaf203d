"""The small network: strided convolutions, then residual depthwise separable blocks, average and maximum pooling."""
import torch
from torch import nn


class Separable(nn.Module):
    def __init__(self, width):
        super().__init__()
        self.body = nn.Sequential(nn.Conv2d(width, width, 3, padding=1, groups=width, bias=False), nn.BatchNorm2d(width),
                                  nn.ReLU(), nn.Conv2d(width, width, 1, bias=False), nn.BatchNorm2d(width))

    def forward(self, x):
        return torch.relu(x + self.body(x))


def strided(inside, out):
    return nn.Sequential(nn.Conv2d(inside, out, 3, 2, 1, bias=False), nn.BatchNorm2d(out), nn.ReLU())


class SmallNetwork(nn.Module):
    """Four channels of 128 x 128 values from 0 to 1; gives the logarithms of six probabilities."""

    def __init__(self):
        super().__init__()
        self.normal = nn.BatchNorm2d(4, affine=False)
        self.body = nn.Sequential(strided(4, 16), strided(16, 32), Separable(32), strided(32, 64), Separable(64),
                                  Separable(64), strided(64, 112), Separable(112), Separable(112))
        self.drop = nn.Dropout(0.25)
        self.last = nn.Linear(224, 6)

    def forward(self, x):
        x = self.body(self.normal(x))
        x = torch.cat([x.mean((2, 3)), x.amax((2, 3))], 1)
        return self.last(self.drop(x))


class Both(nn.Module):
    """The networks of both folds as one: the mean of their probabilities."""

    def __init__(self, first, second):
        super().__init__()
        self.first, self.second = first, second

    def forward(self, x):
        return (torch.softmax(self.first(x), 1) + torch.softmax(self.second(x), 1)) / 2
