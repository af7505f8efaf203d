// Times the grouping of a generated library: photo_group_times [PICTURES [CROWD [SAME]]]. Of 100 pictures, 12
// are in sets of three shots and the others are different, but some have layouts in common, as of real
// photos; CROWD of all (1,500) are pages, of three layouts. They have the same lines down to SAME hundredths
// of the height (0): with 40 a quick look is in vain, and none is in a set all the same. Their outlines
// are ready before the clock starts, as those of remembered pictures are. The last number that is printed
// changes when any of the sets does.

#include "scan/photos/PhotoGroups.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <optional>
#include <random>
#include <string>

namespace orlen {

namespace {

/// So that 6 of 10,000 pairs have near layouts. Of photos, pages and screenshots taken together, 8 have.
constexpr std::size_t kScenes = 700;
constexpr float kOfScene = 0.7F;

class Library {
public:
    std::vector<PhotoInfo> photos;

    /// Sets in the order in which they were drawn.
    void fill(std::size_t count, std::size_t crowd, std::size_t same)
    {
        constexpr std::size_t kLayouts = 3;
        std::vector<FeaturePrint::Vector> layouts(kLayouts);
        std::ranges::generate(layouts, [this] { return drawn(); });
        const FeaturePrint::Tile head = drawnTile();
        for (std::size_t i = 0; i < crowd; ++i) {
            FeaturePrint::Tile tile = drawnTile();
            std::copy_n(head.begin(), tile.size() * same / 100, tile.begin());
            add(near(layouts[i % kLayouts], 0.45F), tile);
        }
        std::vector<FeaturePrint::Vector> scenes(kScenes);
        std::ranges::generate(scenes, [this] { return drawn(); });
        while (photos.size() < count) {
            // Packing takes longer than all else: most share the tile of the last set, but not its layout.
            const bool isSet = photos.size() % 24 == 0 || !m_last;
            const FeaturePrint::Vector vector = near(scenes[m_random() % kScenes], kOfScene);
            const FeaturePrint::Tile tile = isSet ? drawnTile() : FeaturePrint::Tile{};
            if (isSet)
                m_last = FeaturePrint(vector, tile);
            const FeaturePrint::Direction direction = FeaturePrint::directionOf(vector);
            photos.emplace_back().print = FeaturePrint(direction, m_last->packedTile(), m_last->outline());
            for (int shot = 0; isSet && shot < 2; ++shot)
                add(near(vector, 0.15F), noisy(tile));
        }
        photos.resize(count);
        std::shuffle(photos.begin(), photos.end(), m_random);
    }

private:
    /// As much of each number as real prints have.
    FeaturePrint::Vector drawn()
    {
        FeaturePrint::Vector vector{};
        float squares = 0;
        for (std::size_t i = 0; i < vector.size(); ++i) {
            vector[i] = m_normal(m_random) / std::sqrt(static_cast<float>(i + 4));
            squares += vector[i] * vector[i];
        }
        for (float& number : vector)
            number /= std::sqrt(squares);
        return vector;
    }
    FeaturePrint::Vector near(FeaturePrint::Vector vector, float apart)
    {
        const FeaturePrint::Vector other = drawn();
        for (std::size_t i = 0; i < vector.size(); ++i)
            vector[i] += apart * other[i];
        return vector;
    }
    /// Lines of small strokes.
    FeaturePrint::Tile drawnTile()
    {
        FeaturePrint::Tile tile;
        tile.fill(128);
        for (std::size_t i = 0; i < tile.size(); ++i) {
            if (i / FeaturePrint::kTileSide % 6 < 3 && m_random() % 2 == 0)
                tile[i] = 90;
        }
        return tile;
    }
    FeaturePrint::Tile noisy(FeaturePrint::Tile tile)
    {
        for (std::uint8_t& level : tile)
            level = static_cast<std::uint8_t>(level + m_random() % 8);
        return tile;
    }
    void add(const FeaturePrint::Vector& vector, const FeaturePrint::Tile& tile)
    {
        photos.emplace_back().print = FeaturePrint(vector, tile);
    }

    std::mt19937 m_random{1}; // NOLINT(cert-msc51-cpp): the same every time
    std::normal_distribution<float> m_normal;
    std::optional<FeaturePrint> m_last; ///< of a set
};

/// Megabytes.
long memoryInUse()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:"))
            return std::atol(line.c_str() + 6) / 1000;
    }
    return 0;
}

std::uint64_t mixed(std::uint64_t digest, std::size_t number)
{
    return (digest ^ number) * 0x9e3779b97f4a7c15;
}

} // namespace

} // namespace orlen

int main(int argc, char** argv)
{
    const auto number = [&](int at, std::size_t usual) {
        return argc > at ? static_cast<std::size_t>(std::atoll(argv[at])) : usual;
    };
    const std::size_t count = number(1, 50'000);
    orlen::Library library;
    library.fill(count, std::min(number(2, 1'500), count), std::min<std::size_t>(number(3, 0), 100));
    std::printf("%zu pictures, %ld MB\n", count, orlen::memoryInUse());
    const auto start = std::chrono::steady_clock::now();
    const std::clock_t before = std::clock();
    const auto groups = orlen::PhotoGroups::of(library.photos, {});
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::size_t members = 0;
    std::uint64_t digest = 0;
    for (const auto& group : groups) {
        members += 1 + group.others.size();
        digest = orlen::mixed(digest, group.keeper);
        for (const std::size_t other : group.others)
            digest = orlen::mixed(digest, other);
    }
    const double processor = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
    std::printf("%zu in %zu sets: %.2f s, %.2f s of processor time, %ld MB, %016llx\n", members,
                groups.size(), took.count(), processor, orlen::memoryInUse(),
                static_cast<unsigned long long>(digest));
    return 0;
}
