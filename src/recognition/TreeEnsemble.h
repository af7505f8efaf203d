#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace orlen {

/// Boosted decision trees that turn a picture's features into the probability of each kind. Any thread.
///
/// The table, little-endian: "OTRE", then 32-bit numbers: version (1), features, classes, trees; one 32-bit
/// float per class to start from; then each tree, cycling through the classes: the 32-bit number of its
/// nodes, then the nodes, 8 bytes each. A node is a 16-bit feature, a 16-bit index of its right branch and a
/// 32-bit float. Values up to the float go left, to the next node; feature 65535 marks a leaf, whose float is
/// added to the class.
class TreeEnsemble {
public:
    /// Nothing if the table is truncated, has trailing bytes, or points outside itself.
    [[nodiscard]] static std::optional<TreeEnsemble> read(std::span<const std::uint8_t> table);

    /// One probability per class, summing to 1. Nothing unless there are exactly features() values.
    [[nodiscard]] std::optional<std::vector<float>> probabilities(std::span<const float> values) const;

    [[nodiscard]] std::size_t features() const { return m_features; }
    [[nodiscard]] std::size_t classes() const { return m_start.size(); }

private:
    struct Node {
        std::uint16_t feature = 0;
        std::uint16_t right = 0; ///< index in its tree
        float value = 0;
    };
    using Tree = std::vector<Node>;

    static std::optional<Tree> checked(Tree tree, std::size_t features);
    static float leafOf(const Tree& tree, std::span<const float> values);

    std::size_t m_features = 0;
    std::vector<float> m_start; ///< per class
    std::vector<Tree> m_trees;  ///< cycling through the classes
};

} // namespace orlen
