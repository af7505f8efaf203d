#include "platform/images/CommonMotion.h"

#include <cstddef>

namespace orlen {

namespace {

using Row = std::array<double, 3>;

/// Least squares for the three numbers of one axis.
struct Normals {
    std::array<Row, 3> matrix{};
    Row right{};

    void add(const Row& at, double move, double weight)
    {
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t j = 0; j < 3; ++j)
                matrix[i][j] += weight * at[i] * at[j];
            right[i] += weight * at[i] * move;
        }
    }

    /// By elimination; the diagonal is never 0 because of what `fitted` adds to it.
    [[nodiscard]] std::array<float, 3> solved() const
    {
        std::array<Row, 3> m = matrix;
        Row r = right;
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t below = i + 1; below < 3; ++below) {
                const double share = m[below][i] / m[i][i];
                for (std::size_t j = i; j < 3; ++j)
                    m[below][j] -= share * m[i][j];
                r[below] -= share * r[i];
            }
        }
        for (std::size_t i = 3; i-- > 0;) {
            for (std::size_t j = i + 1; j < 3; ++j)
                r[i] -= m[i][j] * r[j];
            r[i] /= m[i][i];
        }
        return {static_cast<float>(r[0]), static_cast<float>(r[1]), static_cast<float>(r[2])};
    }
};

float along(const std::array<float, 3>& axis, const BlockFind& find)
{
    return axis[0] + axis[1] * find.x + axis[2] * find.y;
}

} // namespace

CommonMotion CommonMotion::fitted(std::span<const BlockFind> finds)
{
    constexpr int kRounds = 6;
    constexpr float kTolerance = 1.5F;  ///< pixels beside which a find counts half
    constexpr double kStiffness = 0.02; ///< against turning and stretching, of the whole weight
    CommonMotion motion;
    for (int round = 0; round < kRounds; ++round) {
        Normals x;
        double total = 1e-9;
        Normals y;
        for (const BlockFind& find : finds) {
            double weight = find.texture * find.correlation * find.correlation;
            if (round > 0)
                weight /= 1 + motion.squaredMiss(find) / (kTolerance * kTolerance);
            const Row at{1, find.x, find.y};
            x.add(at, find.moveX, weight);
            y.add(at, find.moveY, weight);
            total += weight;
        }
        for (std::size_t i = 0; i < 3; ++i) {
            x.matrix[i][i] += i == 0 ? 1e-9 : kStiffness * total;
            y.matrix[i][i] += i == 0 ? 1e-9 : kStiffness * total;
        }
        motion.m_x = x.solved();
        motion.m_y = y.solved();
    }
    return motion;
}

float CommonMotion::squaredMiss(const BlockFind& find) const
{
    const float x = find.moveX - along(m_x, find);
    const float y = find.moveY - along(m_y, find);
    return x * x + y * y;
}

float CommonMotion::obedience(const BlockFind& find) const
{
    constexpr float kSquaredLimit = 2.0F * 2.0F;
    const float miss = squaredMiss(find) / kSquaredLimit;
    return 1 / (1 + miss * miss);
}

} // namespace orlen
