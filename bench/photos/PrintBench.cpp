// Times of feature prints, on pictures made for the run: soft spots with fine noise, no two alike.

#include "recognition/PrintMaker.h"
#include "recognition/Sharpness.h"
#include "scan/photos/FineCheck.h"
#include "scan/photos/PrintDistance.h"
#include "scan/photos/QuickLook.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace {

using namespace orlen;

RgbImage pictureOf(unsigned seed)
{
    RgbImage image{.width = 512, .height = 384, .pixels = {}};
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> wave(0.01, 0.4);
    std::vector<double> waves(12);
    for (double& value : waves)
        value = wave(random);
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            for (std::size_t channel = 0; channel < 3; ++channel) {
                double value = 128;
                for (std::size_t i = channel; i + 1 < waves.size(); i += 2)
                    value +=
                        20 * std::sin(waves[i] * x + static_cast<double>(i)) * std::cos(waves[i + 1] * y);
                image.pixels.push_back(static_cast<std::uint8_t>(value));
            }
        }
    }
    return image;
}

FeaturePrint printOf(unsigned seed)
{
    return PrintMaker::printOf(pictureOf(seed)).value();
}

/// Prints whose vectors are as far apart as those of different pictures.
std::vector<FeaturePrint> unlikePrints(std::size_t count)
{
    std::mt19937 random(1);
    std::normal_distribution<float> normal;
    const FeaturePrint::Tile tile = printOf(1).tile();
    std::vector<FeaturePrint> prints;
    for (std::size_t i = 0; i < count; ++i) {
        FeaturePrint::Vector vector{};
        float squares = 0;
        for (float& value : vector) {
            value = normal(random);
            squares += value * value;
        }
        for (float& value : vector)
            value /= std::sqrt(squares);
        prints.emplace_back(vector, tile);
    }
    return prints;
}

void makePrint(benchmark::State& state)
{
    const RgbImage image = pictureOf(1);
    for (auto _ : state)
        benchmark::DoNotOptimize(PrintMaker::printOf(image));
}
BENCHMARK(makePrint)->Unit(benchmark::kMillisecond);

void measureSharpness(benchmark::State& state)
{
    const RgbImage image = pictureOf(1);
    for (auto _ : state)
        benchmark::DoNotOptimize(Sharpness::laplacianVariance(image));
}
BENCHMARK(measureSharpness)->Unit(benchmark::kMillisecond);

void compareUnlike(benchmark::State& state)
{
    const std::vector<FeaturePrint> prints = unlikePrints(2);
    for (auto _ : state)
        benchmark::DoNotOptimize(distance(prints[0], prints[1]));
}
BENCHMARK(compareUnlike);

/// All stages: the other tile is the same picture, shifted by two pixels.
void checkCopy(benchmark::State& state)
{
    const FeaturePrint::Tile one = printOf(1).tile();
    FeaturePrint::Tile other = one;
    std::rotate(other.begin(), other.begin() + 2, other.end());
    for (auto _ : state)
        benchmark::DoNotOptimize(FineCheck::agreement(one, other));
}
BENCHMARK(checkCopy)->Unit(benchmark::kMillisecond);

void checkDifferent(benchmark::State& state)
{
    const FeaturePrint::Tile one = printOf(1).tile();
    const FeaturePrint::Tile other = printOf(2).tile();
    for (auto _ : state)
        benchmark::DoNotOptimize(FineCheck::agreement(one, other));
}
BENCHMARK(checkDifferent)->Unit(benchmark::kMillisecond);

/// What most pairs of one layout take.
void lookQuickly(benchmark::State& state)
{
    const PictureOutline one(printOf(1).tile());
    const PictureOutline other(printOf(2).tile());
    const QuickLook prepared(one);
    for (auto _ : state)
        benchmark::DoNotOptimize(QuickLook::hope(prepared, QuickLook(other)));
}
BENCHMARK(lookQuickly)->Unit(benchmark::kMicrosecond);

void unpackTile(benchmark::State& state)
{
    const FeaturePrint print = printOf(1);
    for (auto _ : state)
        benchmark::DoNotOptimize(print.tile());
}
BENCHMARK(unpackTile)->Unit(benchmark::kMicrosecond);

} // namespace
