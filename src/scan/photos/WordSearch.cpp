#include "scan/photos/WordSearch.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

// From coarse to fine: what is found in a picture of half the size tells where to look in the larger one. One
// block alone is easily taken for its neighbour in a text, so each goes by the middle of what those around it
// found, except in the finest picture, which is what counts.

namespace orlen {

namespace {

constexpr float kPixels = static_cast<float>(WordSearch::kBlock) * WordSearch::kBlock;

/// A block, and where it was found.
struct Match {
    int moveX = 0; ///< pixels
    int moveY = 0; ///< pixels
    float texture = 0;
    float correlation = -1;
};

/// All blocks of a page, rows from the top.
struct Field {
    int columns = 0;
    int rows = 0;
    std::vector<Match> matches;

    explicit Field(const GreyPicture& page)
        : columns(page.width() / WordSearch::kBlock), rows(page.height() / WordSearch::kBlock),
          matches(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows))
    {
    }
    [[nodiscard]] Match& at(int column, int row)
    {
        return matches[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
                       static_cast<std::size_t>(column)];
    }
};

struct Sums {
    float own = 0;
    float squares = 0;
    float products = 0;
};

Sums sumsOf(const GreyPicture& page, TilePlace block, const GreyPicture& other, TilePlace there)
{
    Sums sums;
    for (int y = 0; y < WordSearch::kBlock; ++y) {
        const float* const one = page.row(block.y + y) + block.x;
        const float* const two = other.row(there.y + y) + there.x;
        for (int x = 0; x < WordSearch::kBlock; ++x) {
            sums.own += two[x];
            sums.squares += two[x] * two[x];
            sums.products += one[x] * two[x];
        }
    }
    return sums;
}

/// The best near the place that the match names.
void improve(Match& match, const GreyPicture& page, TilePlace block, const GreyPicture& other, int reach)
{
    constexpr float kNoise = 9 * kPixels; // three levels, so that what is even matches nothing
    const Sums own = sumsOf(page, block, page, block);
    const float spread = own.squares - own.own * own.own / kPixels;
    match.texture = std::sqrt(std::max(spread, 0.0F) / kPixels);
    const TilePlace middle{block.x + match.moveX, block.y + match.moveY};
    match.correlation = -1;
    for (int y = std::max(middle.y - reach, 0);
         y <= std::min(middle.y + reach, other.height() - WordSearch::kBlock); ++y) {
        for (int x = std::max(middle.x - reach, 0);
             x <= std::min(middle.x + reach, other.width() - WordSearch::kBlock); ++x) {
            const Sums sums = sumsOf(page, block, other, {x, y});
            const float otherSpread = sums.squares - sums.own * sums.own / kPixels;
            const float correlation = (sums.products - own.own * sums.own / kPixels) /
                                      std::sqrt((spread + kNoise) * (std::max(otherSpread, 0.0F) + kNoise));
            if (correlation > match.correlation) {
                match.correlation = correlation;
                match.moveX = x - block.x;
                match.moveY = y - block.y;
            }
        }
    }
}

/// The value that half the weight is below; the value itself where nothing has any.
int middleOf(std::vector<std::pair<int, float>> weighted, int otherwise)
{
    float all = 0;
    for (const auto& [value, weight] : weighted)
        all += weight;
    std::ranges::sort(weighted);
    float sum = 0;
    for (const auto& [value, weight] : weighted) {
        sum += weight;
        if (sum >= all / 2)
            return value;
    }
    return otherwise;
}

Field smoothed(Field field)
{
    constexpr int kReach = 2; ///< blocks
    constexpr float kLeastCorrelation = 0.3F;
    constexpr float kLeastTexture = 3;
    constexpr float kMostTexture = 30;
    Field result = field;
    for (int row = 0; row < field.rows; ++row) {
        for (int column = 0; column < field.columns; ++column) {
            std::vector<std::pair<int, float>> x;
            std::vector<std::pair<int, float>> y;
            for (int r = std::max(row - kReach, 0); r <= std::min(row + kReach, field.rows - 1); ++r) {
                for (int c = std::max(column - kReach, 0); c <= std::min(column + kReach, field.columns - 1);
                     ++c) {
                    const Match& near = field.at(c, r);
                    if (near.correlation < kLeastCorrelation || near.texture < kLeastTexture)
                        continue;
                    const float weight =
                        near.correlation * near.correlation * std::min(near.texture, kMostTexture);
                    x.emplace_back(near.moveX, weight);
                    y.emplace_back(near.moveY, weight);
                }
            }
            Match& match = result.at(column, row);
            match.moveX = middleOf(std::move(x), match.moveX);
            match.moveY = middleOf(std::move(y), match.moveY);
        }
    }
    return result;
}

Field matched(const GreyPicture& page, const GreyPicture& other)
{
    constexpr int kCoarseSide = 320;
    constexpr int kCoarseReach = 5;
    constexpr int kFineReach = 3;
    Field field(page);
    int reach = kCoarseReach;
    if (std::max(page.width(), page.height()) >= kCoarseSide) {
        reach = kFineReach;
        Field coarse = smoothed(matched(page.halved(), other.halved()));
        for (int row = 0; row < field.rows && coarse.rows > 0; ++row) {
            for (int column = 0; column < field.columns && coarse.columns > 0; ++column) {
                const Match& from =
                    coarse.at(std::min(column / 2, coarse.columns - 1), std::min(row / 2, coarse.rows - 1));
                field.at(column, row) = {.moveX = 2 * from.moveX, .moveY = 2 * from.moveY};
            }
        }
    }
    for (int row = 0; row < field.rows; ++row) {
        for (int column = 0; column < field.columns; ++column)
            improve(field.at(column, row), page, {column * WordSearch::kBlock, row * WordSearch::kBlock},
                    other, reach);
    }
    return field;
}

} // namespace

std::vector<WordSearch::Found> WordSearch::found(const GreyPicture& page, const GreyPicture& other)
{
    constexpr float kLeastInk = 10; ///< standard deviation of a block
    Field field = matched(page, other);
    std::vector<Found> all;
    for (int row = 0; row < field.rows; ++row) {
        for (int column = 0; column < field.columns; ++column) {
            const Match& match = field.at(column, row);
            if (match.texture >= kLeastInk)
                all.push_back({{column * kBlock, row * kBlock}, match.correlation});
        }
    }
    return all;
}

} // namespace orlen
