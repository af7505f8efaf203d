#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace orlen {

/// Boosted decision trees that turn the features of a picture into probabilities of its kinds. Any thread.
///
/// The table, little-endian: "OTRE", then 32-bit numbers of the version (1), the features, the classes and
/// the trees; one 32-bit float per class to start from; then each tree, the classes in turn: the 32-bit
/// number of its nodes and the nodes, 8 bytes each. A node is a 16-bit feature, a 16-bit index of its right
/// branch and a 32-bit float. Values up to the float go to the left branch, which is the next node; feature
/// 65535 is a leaf, whose float is added to the class.
class TreeEnsemble {
public:
    /// Nothing for a table that is cut short, has more than it says, or points outside itself.
    [[nodiscard]] static std::optional<TreeEnsemble> read(std::span<const std::uint8_t> table);

    /// One probability per class, adding up to 1. Nothing for another number of features than features().
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
    std::vector<Tree> m_trees;  ///< the classes in turn
};

} // namespace orlen
