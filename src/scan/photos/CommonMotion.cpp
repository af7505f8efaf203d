#include "scan/photos/CommonMotion.h"

#include "platform/values/WideLanes.h"
#include "scan/photos/PixelPairs.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace orlen {

namespace {

using Row = std::array<double, 3>;

/// Some finds, in lanes, as far as the fit needs them.
struct Finds {
    FloatLanes x{};      ///< of the block's middle, from the tile's
    FloatLanes y{};      ///< as x
    FloatLanes moveX{};  ///< pixels
    FloatLanes moveY{};  ///< pixels
    FloatLanes weight{}; ///< 0 in a lane without a find
};

double sumOf(FloatLanes lanes)
{
    return (double{lanes[0]} + double{lanes[1]}) + (double{lanes[2]} + double{lanes[3]});
}

/// Least squares for the three numbers of either axis.
struct Normals {
    // Of the weights, and of their products with what is named.
    FloatLanes ones{};
    FloatLanes x{};
    FloatLanes y{};
    FloatLanes xx{};
    FloatLanes xy{};
    FloatLanes yy{};
    std::array<FloatLanes, 3> rightX{};
    std::array<FloatLanes, 3> rightY{};

    void add(const Finds& finds, FloatLanes weight)
    {
        const FloatLanes byX = weight * finds.x;
        const FloatLanes byY = weight * finds.y;
        ones += weight;
        x += byX;
        y += byY;
        xx += byX * finds.x;
        xy += byX * finds.y;
        yy += byY * finds.y;
        rightX[0] += weight * finds.moveX;
        rightX[1] += byX * finds.moveX;
        rightX[2] += byY * finds.moveX;
        rightY[0] += weight * finds.moveY;
        rightY[1] += byX * finds.moveY;
        rightY[2] += byY * finds.moveY;
    }

    /// By elimination; the diagonal is never 0 because of what is added to it.
    [[nodiscard]] std::array<std::array<float, 3>, 2> solved() const
    {
        constexpr double kNothing = 1e-9;
        constexpr double kStiffness = 0.02; ///< ridge on rotation and stretch, relative to the total weight
        const double total = sumOf(ones) + kNothing;
        const double ridge = kStiffness * total;
        std::array<Row, 3> m{Row{total, sumOf(x), sumOf(y)}, Row{sumOf(x), sumOf(xx) + ridge, sumOf(xy)},
                             Row{sumOf(y), sumOf(xy), sumOf(yy) + ridge}};
        std::array<std::array<float, 3>, 2> axes{};
        std::array<Row, 2> rights{Row{sumOf(rightX[0]), sumOf(rightX[1]), sumOf(rightX[2])},
                                  Row{sumOf(rightY[0]), sumOf(rightY[1]), sumOf(rightY[2])}};
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t below = i + 1; below < 3; ++below) {
                const double share = m[below][i] / m[i][i];
                for (std::size_t j = i; j < 3; ++j)
                    m[below][j] -= share * m[i][j];
                for (Row& r : rights)
                    r[below] -= share * r[i];
            }
        }
        for (std::size_t axis = 0; axis < rights.size(); ++axis) {
            Row& r = rights[axis];
            for (std::size_t i = 3; i-- > 0;) {
                for (std::size_t j = i + 1; j < 3; ++j)
                    r[i] -= m[i][j] * r[j];
                r[i] /= m[i][i];
                axes[axis][i] = static_cast<float>(r[i]);
            }
        }
        return axes;
    }
};

/// From the tile's middle, -1 to 1 from side to side.
float fromMiddle(float pixel)
{
    constexpr float kHalf = (FineSearch::kSide - 1) / 2.0F;
    return pixel / kHalf - 1;
}

float middleOf(int block)
{
    return static_cast<float>(block) + (FineSearch::kBlock - 1) / 2.0F;
}

bool isInside(float at)
{
    return at >= 0 && at <= FineSearch::kSide - 1;
}

/// The four pixels around a point, each as much as the point is near.
float between(const FeaturePrint::Tile& tile, float x, float y)
{
    constexpr int kLast = FineSearch::kSide - 2;
    x = std::clamp(x, 0.0F, kLast + 1.0F);
    y = std::clamp(y, 0.0F, kLast + 1.0F);
    const int left = std::min(static_cast<int>(x), kLast);
    const int top = std::min(static_cast<int>(y), kLast);
    const float right = x - static_cast<float>(left);
    const float down = y - static_cast<float>(top);
    const std::uint8_t* at = tile.data() + (static_cast<std::ptrdiff_t>(top) * FineSearch::kSide + left);
    const float above = (1 - right) * static_cast<float>(at[0]) + right * static_cast<float>(at[1]);
    at += FineSearch::kSide;
    const float below = (1 - right) * static_cast<float>(at[0]) + right * static_cast<float>(at[1]);
    return (1 - down) * above + down * below;
}

#ifdef __x86_64__

/// Of two pixels beside each other, in the lower bytes, each as much as the point is near.
ORLEN_WIDE inline __m256 between(__m256i pixels, __m256 right)
{
    const __m256i byte = _mm256_set1_epi32(0xff);
    const __m256 one = _mm256_cvtepi32_ps(_mm256_and_si256(pixels, byte));
    const __m256 other = _mm256_cvtepi32_ps(_mm256_and_si256(_mm256_srli_epi32(pixels, 8), byte));
    return _mm256_add_ps(_mm256_mul_ps(_mm256_sub_ps(_mm256_set1_ps(1), right), one),
                         _mm256_mul_ps(right, other));
}

ORLEN_WIDE inline __m256 clamped(__m256 numbers)
{
    constexpr float kLast = FineSearch::kSide - 1;
    return _mm256_min_ps(_mm256_max_ps(numbers, _mm256_setzero_ps()), _mm256_set1_ps(kLast));
}

/// As `between` for a row of pixels, and rounded. Each load takes two bytes more than needed, at the ends of
/// which are those of pixels before.
ORLEN_WIDE void fillInWideLanes(const FeaturePrint::Tile& tile, CommonMotion::Point first,
                                CommonMotion::Point step, std::uint8_t* row)
{
    constexpr int kAtATime = 8;
    const __m256i last = _mm256_set1_epi32(FineSearch::kSide - 2);
    for (int from = 0; from < FineSearch::kSide; from += kAtATime) {
        const __m256 steps = _mm256_cvtepi32_ps(
            _mm256_add_epi32(_mm256_set1_epi32(from), _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7)));
        const __m256 x =
            clamped(_mm256_add_ps(_mm256_set1_ps(first.x), _mm256_mul_ps(steps, _mm256_set1_ps(step.x))));
        const __m256 y =
            clamped(_mm256_add_ps(_mm256_set1_ps(first.y), _mm256_mul_ps(steps, _mm256_set1_ps(step.y))));
        const __m256i left = _mm256_min_epi32(_mm256_cvttps_epi32(x), last);
        const __m256i top = _mm256_min_epi32(_mm256_cvttps_epi32(y), last);
        const __m256 right = _mm256_sub_ps(x, _mm256_cvtepi32_ps(left));
        const __m256 down = _mm256_sub_ps(y, _mm256_cvtepi32_ps(top));
        const __m256i at = _mm256_add_epi32(_mm256_slli_epi32(top, 7), left);
        const int* const pixels = reinterpret_cast<const int*>(tile.data());
        const __m256 above = between(_mm256_i32gather_epi32(pixels, at, 1), right);
        // Those of the lower row end with the tile: read from two bytes before.
        const int* const below = reinterpret_cast<const int*>(tile.data() + FineSearch::kSide - 2);
        const __m256 lower = between(_mm256_srli_epi32(_mm256_i32gather_epi32(below, at, 1), 16), right);
        const __m256 level =
            _mm256_add_ps(_mm256_add_ps(_mm256_mul_ps(_mm256_sub_ps(_mm256_set1_ps(1), down), above),
                                        _mm256_mul_ps(down, lower)),
                          _mm256_set1_ps(0.5F));
        const __m256i levels = _mm256_cvttps_epi32(level);
        const __m128i words =
            _mm_packus_epi32(_mm256_castsi256_si128(levels), _mm256_extracti128_si256(levels, 1));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(row + from), _mm_packus_epi16(words, words));
    }
}

#endif

std::vector<Finds> inLanes(std::span<const BlockFind> finds)
{
    std::vector<Finds> all((finds.size() + kLanes - 1) / kLanes);
    for (std::size_t i = 0; i < finds.size(); ++i) {
        const BlockFind& find = finds[i];
        Finds& some = all[i / kLanes];
        const std::size_t lane = i % kLanes;
        some.x[lane] = fromMiddle(middleOf(find.block.x));
        some.y[lane] = fromMiddle(middleOf(find.block.y));
        some.moveX[lane] = find.moveX;
        some.moveY[lane] = find.moveY;
        some.weight[lane] = find.texture * find.correlation * find.correlation;
    }
    return all;
}

} // namespace

CommonMotion CommonMotion::fitted(std::span<const BlockFind> finds)
{
    constexpr int kRounds = 6;
    constexpr float kTolerance = 1.5F; ///< pixels off at which a match counts half
    const std::vector<Finds> all = inLanes(finds);
    CommonMotion motion;
    for (int round = 0; round < kRounds; ++round) {
        Normals normals;
        for (const Finds& some : all) {
            if (round == 0) {
                normals.add(some, some.weight);
                continue;
            }
            const FloatLanes missX =
                some.moveX - (motion.m_x[0] + motion.m_x[1] * some.x + motion.m_x[2] * some.y);
            const FloatLanes missY =
                some.moveY - (motion.m_y[0] + motion.m_y[1] * some.x + motion.m_y[2] * some.y);
            normals.add(some, some.weight /
                                  (1.0F + (missX * missX + missY * missY) * (1 / (kTolerance * kTolerance))));
        }
        const auto axes = normals.solved();
        motion.m_x = axes[0];
        motion.m_y = axes[1];
    }
    return motion;
}

CommonMotion::Point CommonMotion::moveAt(float x, float y) const
{
    const float right = fromMiddle(x);
    const float down = fromMiddle(y);
    return {.x = m_x[0] + m_x[1] * right + m_x[2] * down, .y = m_y[0] + m_y[1] * right + m_y[2] * down};
}

CommonMotion::Point CommonMotion::target(TilePlace pixel) const
{
    const auto x = static_cast<float>(pixel.x);
    const auto y = static_cast<float>(pixel.y);
    const Point move = moveAt(x, y);
    return {.x = x + move.x, .y = y + move.y};
}

float CommonMotion::squaredMiss(const BlockFind& find) const
{
    const Point move = moveAt(middleOf(find.block.x), middleOf(find.block.y));
    const float x = find.moveX - move.x;
    const float y = find.moveY - move.y;
    return x * x + y * y;
}

float CommonMotion::fit(const BlockFind& find) const
{
    constexpr float kSquaredLimit = 2.0F * 2.0F;
    const float miss = squaredMiss(find) / kSquaredLimit;
    return 1 / (1 + miss * miss);
}

float CommonMotion::followingShare(std::span<const BlockFind> finds) const
{
    float following = 0;
    float all = 0;
    for (const BlockFind& found : finds) {
        following += found.texture * found.correlation * fit(found);
        all += found.texture;
    }
    return all > 0 ? following / all : 0;
}

FeaturePrint::Tile CommonMotion::undone(const FeaturePrint::Tile& tile) const
{
    constexpr float kRounding = 0.5F; // levels are never negative, and a cast is much faster than lround
    FeaturePrint::Tile result{};
    auto* row = result.data();
    for (int y = 0; y < FineSearch::kSide; ++y, row += FineSearch::kSide) {
        // The same step from each pixel of a row to the next.
        const Point first = target({0, y});
        const Point second = target({1, y});
        const Point step{.x = second.x - first.x, .y = second.y - first.y};
#ifdef __x86_64__
        if (WideLanes::areUsed()) {
            fillInWideLanes(tile, first, step, row);
            continue;
        }
#endif
        for (int x = 0; x < FineSearch::kSide; ++x) {
            const auto steps = static_cast<float>(x);
            row[x] = static_cast<std::uint8_t>(
                between(tile, first.x + steps * step.x, first.y + steps * step.y) + kRounding);
        }
    }
    return result;
}

bool CommonMotion::keepsInside(TilePlace block) const
{
    constexpr int kFar = FineSearch::kBlock - 1;
    // The motion keeps straight lines straight, so the corners tell.
    for (const TilePlace corner :
         {TilePlace{0, 0}, TilePlace{kFar, 0}, TilePlace{0, kFar}, TilePlace{kFar, kFar}}) {
        const Point there = target({block.x + corner.x, block.y + corner.y});
        if (!isInside(there.x) || !isInside(there.y))
            return false;
    }
    return true;
}

} // namespace orlen
