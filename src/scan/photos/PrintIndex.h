#pragma once

#include "platform/images/FeaturePrint.h"
#include "scan/photos/SketchSums.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace orlen {

/// Finds the near ones among very many directions, exactly as `coarseDistance` does. It still looks at all of
/// them, but at a sketch first: the numbers in which pictures differ most, and the lengths of the rest. The
/// product of two sketches is at least that of the directions, and so is that of their beginnings, so most of
/// them are out after a few cycles. About 200 bytes each. Any thread, while none adds.
class PrintIndex {
public:
    using Direction = FeaturePrint::Direction;

    struct Near {
        float coarse = 0;       ///< see coarseDistance
        std::size_t number = 0; ///< 0 for the first that was added
        friend bool operator==(const Near&, const Near&) = default;
    };

    void add(const Direction& direction);

    /// For each of some directions those that are near it, or the nearest `most` of them, nearest first. Many
    /// at a time take less time than each alone.
    [[nodiscard]] std::vector<std::vector<Near>> near(std::span<const Direction> directions,
                                                      std::size_t most) const;

private:
    static constexpr std::size_t kStart = 36; ///< numbers that are looked at first
    static constexpr std::size_t kHead = 48;
    static constexpr std::size_t kRests = 4;
    static constexpr std::size_t kQuad = 4;
    static constexpr std::size_t kNumbers = kHead + kQuad + kRests;
    static constexpr std::size_t kQuads = kNumbers / kQuad;
    /// The start, the length of what follows it and nothing, the rest of the head, and the lengths of the
    /// rests.
    using Sketch = std::array<std::int8_t, kNumbers>;
    /// Sketches, so laid out that many are multiplied at a time, with something added to each number so that
    /// none is below 0.
    using Bundle = std::array<SketchQuads, kQuads>;
    struct Query;

    struct Rounded {
        Sketch sketch{};
        // How far rounding moved it.
        float startMoved = 0; ///< the start and the length of what follows it
        float moved = 0;      ///< all but that length
    };

    [[nodiscard]] static Rounded sketchOf(const Direction& direction);
    void lookThrough(std::span<Query> queries) const;
    template <typename Sums, std::size_t count>
    static void lookAtBundle(const Bundle& bundle, std::span<const Query> queries,
                             std::span<std::uint32_t> found);
    template <typename Sums>
    void lookThroughBundles(std::span<Query> queries) const;
    void lookThroughInWideLanes(std::span<Query> queries) const;
    void lookThroughInWidestLanes(std::span<Query> queries) const;
    void look(Query& query, std::size_t number) const;

    std::vector<Bundle> m_bundles;
    float m_startMoved = 0; ///< at most
    float m_moved = 0;      ///< at most
    std::vector<Direction> m_directions;
    std::vector<std::int32_t> m_squares; ///< of the directions' lengths
};

} // namespace orlen
