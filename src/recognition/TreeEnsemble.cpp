#include "recognition/TreeEnsemble.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <string_view>
#include <utility>

namespace orlen {

namespace {

constexpr std::string_view kMagic = "OTRE";
constexpr std::uint32_t kVersion = 1;
constexpr std::uint32_t kMostClasses = 64;
constexpr std::uint32_t kMostTrees = 100'000;
constexpr std::size_t kNodeSize = 8; // bytes
constexpr std::uint16_t kLeaf = 0xFFFF;

/// Reads numbers from the front of a table; past its end it returns zeros and remembers that.
class Reader {
public:
    explicit Reader(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    std::uint32_t number(std::size_t size)
    {
        if (m_bytes.size() < size) {
            m_isShort = true;
            return 0;
        }
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value |= std::uint32_t{m_bytes[i]} << (8 * i);
        m_bytes = m_bytes.subspan(size);
        return value;
    }
    float real() { return std::bit_cast<float>(number(4)); }
    [[nodiscard]] std::size_t left() const { return m_bytes.size(); }
    [[nodiscard]] bool isShort() const { return m_isShort; }

private:
    std::span<const std::uint8_t> m_bytes;
    bool m_isShort = false;
};

bool hasMagic(Reader& reader)
{
    return std::all_of(kMagic.begin(), kMagic.end(),
                       [&](char c) { return reader.number(1) == static_cast<std::uint8_t>(c); });
}

} // namespace

/// Branches only lead forward, so that every descent ends.
std::optional<TreeEnsemble::Tree> TreeEnsemble::checked(Tree tree, std::size_t features)
{
    for (std::size_t i = 0; i < tree.size(); ++i) {
        const Node& node = tree[i];
        if (!std::isfinite(node.value))
            return std::nullopt;
        if (node.feature == kLeaf)
            continue;
        if (node.feature >= features || node.right <= i + 1 || node.right >= tree.size())
            return std::nullopt;
    }
    if (tree.empty() || tree.back().feature != kLeaf)
        return std::nullopt;
    return tree;
}

std::optional<TreeEnsemble> TreeEnsemble::read(std::span<const std::uint8_t> table)
{
    Reader reader(table);
    if (!hasMagic(reader) || reader.number(4) != kVersion)
        return std::nullopt;
    TreeEnsemble ensemble;
    ensemble.m_features = reader.number(4);
    const std::uint32_t classes = reader.number(4);
    const std::uint32_t trees = reader.number(4);
    if (ensemble.m_features >= kLeaf || classes == 0 || classes > kMostClasses || trees > kMostTrees ||
        trees % classes != 0)
        return std::nullopt;
    for (std::uint32_t i = 0; i < classes; ++i)
        ensemble.m_start.push_back(reader.real());
    for (std::uint32_t i = 0; i < trees; ++i) {
        const std::uint32_t nodes = reader.number(4);
        if (nodes > reader.left() / kNodeSize)
            return std::nullopt;
        Tree tree(nodes);
        for (Node& node : tree) {
            node.feature = static_cast<std::uint16_t>(reader.number(2));
            node.right = static_cast<std::uint16_t>(reader.number(2));
            node.value = reader.real();
        }
        auto good = checked(std::move(tree), ensemble.m_features);
        if (!good)
            return std::nullopt;
        ensemble.m_trees.push_back(std::move(*good));
    }
    const bool isFinite = std::all_of(ensemble.m_start.begin(), ensemble.m_start.end(),
                                      [](float v) { return std::isfinite(v); });
    if (reader.isShort() || reader.left() != 0 || !isFinite)
        return std::nullopt;
    return ensemble;
}

float TreeEnsemble::leafOf(const Tree& tree, std::span<const float> values)
{
    std::size_t at = 0;
    while (tree[at].feature != kLeaf)
        at = values[tree[at].feature] <= tree[at].value ? at + 1 : tree[at].right;
    return tree[at].value;
}

std::optional<std::vector<float>> TreeEnsemble::probabilities(std::span<const float> values) const
{
    if (values.size() != m_features)
        return std::nullopt;
    std::vector<float> scores = m_start;
    for (std::size_t i = 0; i < m_trees.size(); ++i)
        scores[i % scores.size()] += leafOf(m_trees[i], values);
    const float most = *std::max_element(scores.begin(), scores.end());
    float sum = 0;
    for (float& score : scores) {
        score = std::exp(score - most);
        sum += score;
    }
    for (float& score : scores)
        score /= sum;
    return scores;
}

} // namespace orlen
