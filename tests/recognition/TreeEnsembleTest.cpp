#include "recognition/TreeEnsemble.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <string_view>

namespace orlen {
namespace {

using Bytes = std::vector<std::uint8_t>;

void append(Bytes& bytes, std::uint32_t value, std::size_t size = 4)
{
    for (std::size_t i = 0; i < size; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

struct Node {
    std::uint32_t feature, right;
    float value;
};
constexpr std::uint32_t kLeaf = 0xFFFF;

Bytes header(std::uint32_t features, std::uint32_t classes, std::uint32_t trees, std::uint32_t version = 1)
{
    Bytes bytes = {'O', 'T', 'R', 'E'};
    for (const std::uint32_t number : {version, features, classes, trees})
        append(bytes, number);
    for (std::uint32_t i = 0; i < classes; ++i)
        append(bytes, std::bit_cast<std::uint32_t>(0.5F));
    return bytes;
}

Bytes withTree(Bytes bytes, const std::vector<Node>& nodes)
{
    append(bytes, static_cast<std::uint32_t>(nodes.size()));
    for (const Node& node : nodes) {
        append(bytes, node.feature, 2);
        append(bytes, node.right, 2);
        append(bytes, std::bit_cast<std::uint32_t>(node.value));
    }
    return bytes;
}

const std::vector<Node> kStump = {{1, 2, 10.0F}, {kLeaf, 0, 0.0F}, {kLeaf, 0, 2.0F}};

Bytes twoClasses()
{
    return withTree(withTree(header(2, 2, 2), kStump), {{kLeaf, 0, 0.0F}});
}

TEST(TreeEnsembleTest, valuesUpToTheThresholdGoLeft)
{
    const auto ensemble = TreeEnsemble::read(twoClasses());
    ASSERT_TRUE(ensemble);
    EXPECT_EQ(ensemble->features(), 2U);
    EXPECT_EQ(ensemble->classes(), 2U);
    const std::vector<float> on = {99, 10.0F};
    const std::vector<float> above = {99, std::nextafter(10.0F, 11.0F)};
    EXPECT_FLOAT_EQ(ensemble->probabilities(on)->front(), 0.5F);
    EXPECT_FLOAT_EQ(ensemble->probabilities(above)->front(), 1 / (1 + std::exp(-2.0F)));
    EXPECT_FLOAT_EQ(ensemble->probabilities(above)->front() + ensemble->probabilities(above)->back(), 1);
}

TEST(TreeEnsembleTest, anotherNumberOfFeaturesIsRefused)
{
    const auto ensemble = TreeEnsemble::read(twoClasses());
    ASSERT_TRUE(ensemble);
    EXPECT_FALSE(ensemble->probabilities(std::vector<float>{1}));
    EXPECT_FALSE(ensemble->probabilities(std::vector<float>{1, 2, 3}));
}

TEST(TreeEnsembleTest, valuesThatAreNoNumbersStillEnd)
{
    const auto ensemble = TreeEnsemble::read(twoClasses());
    ASSERT_TRUE(ensemble);
    const std::vector<float> values = {NAN, NAN};
    EXPECT_TRUE(std::isfinite(ensemble->probabilities(values)->front()));
}

TEST(TreeEnsembleTest, tableCutAnywhereIsRefused)
{
    const Bytes whole = twoClasses();
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(TreeEnsemble::read({whole.data(), size})) << size;
}

TEST(TreeEnsembleTest, damagedTablesAreRefused)
{
    Bytes longer = twoClasses();
    longer.push_back(0);
    Bytes otherMagic = twoClasses();
    otherMagic[0] = 'X';
    const struct {
        const char* name;
        Bytes table;
    } cases[] = {
        {"a byte too many", longer},
        {"another kind of file", otherMagic},
        {"another version", withTree(header(2, 1, 1, 2), kStump)},
        {"no class", header(2, 0, 0)},
        {"trees that do not fit the classes", withTree(header(2, 2, 1), kStump)},
        {"a tree without nodes", withTree(header(2, 1, 1), {})},
        {"a feature that is not there", withTree(header(1, 1, 1), kStump)},
        {"a branch that leads back", withTree(header(2, 1, 1), {{1, 0, 1}, {kLeaf, 0, 0}, {kLeaf, 0, 0}})},
        {"a branch that leads outside", withTree(header(2, 1, 1), {{1, 3, 1}, {kLeaf, 0, 0}, {kLeaf, 0, 0}})},
        {"a branch where a leaf must be", withTree(header(2, 1, 1), {{kLeaf, 0, 0}, {1, 1, 0}})},
        {"a leaf without a number", withTree(header(2, 1, 1), {{kLeaf, 0, NAN}})},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_FALSE(TreeEnsemble::read(c.table));
    }
}

} // namespace
} // namespace orlen
