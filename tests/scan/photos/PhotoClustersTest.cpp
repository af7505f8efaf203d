#include "scan/photos/PhotoClusters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace orlen {

namespace {

/// Pages of one layout: lines of small strokes, the same ones down to two fifths of the height.
class Pages {
public:
    [[nodiscard]] FeaturePrint::Tile next()
    {
        FeaturePrint::Tile tile = m_head;
        drawStrokes(tile, tile.size() * 2 / 5);
        return tile;
    }

    /// With some noise of its own.
    [[nodiscard]] FeaturePrint::Tile copyOf(FeaturePrint::Tile tile)
    {
        for (std::uint8_t& level : tile)
            level = static_cast<std::uint8_t>(level + m_random() % 8);
        return tile;
    }

    [[nodiscard]] static PhotoInfo photo(const FeaturePrint::Tile& tile)
    {
        FeaturePrint::Vector vector{};
        vector[0] = 1;
        PhotoInfo photo;
        photo.print = FeaturePrint(vector, tile);
        return photo;
    }

private:
    void drawStrokes(FeaturePrint::Tile& tile, std::size_t from)
    {
        for (std::size_t i = from; i < tile.size(); ++i)
            tile[i] = i / FeaturePrint::kTileSide % 6 < 3 && m_random() % 2 == 0 ? 90 : 128;
    }

    std::mt19937 m_random{1}; // NOLINT(cert-msc51-cpp): the same every time
    FeaturePrint::Tile m_head = [this] {
        FeaturePrint::Tile tile{};
        drawStrokes(tile, 0);
        return tile;
    }();
};

} // namespace

TEST(PhotoClustersTest, aCopyIsFoundInACrowdOfPages)
{
    // All are equally far from each other by their layouts, so the first ones are what each is compared with,
    // again and again in vain. Others, of which no two are alike, fill up their batch.
    constexpr std::size_t kPages = 40;
    constexpr std::size_t kAll = 256;
    constexpr std::size_t kCopies = 6;
    Pages pages;
    std::vector<FeaturePrint::Tile> tiles(kPages);
    std::ranges::generate(tiles, [&] { return pages.next(); });
    std::vector<PhotoInfo> photos;
    for (const FeaturePrint::Tile& tile : tiles)
        photos.push_back(Pages::photo(tile));
    for (std::size_t i = kPages; i < kAll; ++i) {
        FeaturePrint::Vector vector{};
        vector[1 + i / 2 % 127] = i % 2 == 0 ? 1.0F : -1.0F;
        photos.emplace_back().print =
            FeaturePrint(FeaturePrint::directionOf(vector), photos.front().print->packedTile());
    }
    for (std::size_t i = 0; i < kCopies; ++i)
        photos.push_back(Pages::photo(pages.copyOf(tiles[i])));
    UnpackedTiles unpacked(photos);
    const auto clusters = PhotoClusters::of(photos, unpacked, {});
    ASSERT_EQ(clusters.size(), kAll);
    for (std::size_t i = 0; i < kCopies; ++i)
        EXPECT_EQ(clusters[i], (PhotoClusters::Members{i, kAll + i}));
}

} // namespace orlen
