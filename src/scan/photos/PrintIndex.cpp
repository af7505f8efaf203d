#include "scan/photos/PrintIndex.h"

#include "platform/values/WideLanes.h"
#include "scan/photos/PrintDistance.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <numeric>
#include <optional>

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace orlen {

namespace {

/// Numbers of a unit vector in whole steps. No sum of their products exceeds 16 bits, as no product of two
/// such vectors exceeds the square of this, nor do its parts; nor does that of two beside each other with
/// `kAdded` added to either number of one of them.
constexpr float kSteps = 110;
constexpr int kAdded = 128;

constexpr float kLeastCosine = 1 - kCoarseLimit * kCoarseLimit / 2;
/// More than what is lost when a cosine is computed in another order.
constexpr float kNothing = 1e-5F;

std::int8_t inSteps(float number)
{
    return static_cast<std::int8_t>(std::lround(number * kSteps));
}

/// What sketches of directions with that cosine have in common, at least, if rounding moved them that far.
std::int16_t leastProduct(float cosine, float oneMoved, float otherMoved)
{
    constexpr float kLonger = 1.03F; ///< than 1, which a rounded sketch may be
    return static_cast<std::int16_t>((cosine - kLonger * (oneMoved + otherMoved)) * kSteps * kSteps);
}

/// The sum of the products of their numbers.
ORLEN_INLINE std::int32_t inCommon(const PrintIndex::Direction& one, const PrintIndex::Direction& other)
{
    constexpr std::size_t kSome = 16;
    constexpr int kHalf = 16; // bits
    using Bytes [[gnu::vector_size(kSome)]] = std::int8_t;
    using Words [[gnu::vector_size(kSome * sizeof(std::int16_t))]] = std::int16_t;
    using Sums [[gnu::vector_size(kSome * sizeof(std::int16_t))]] = std::int32_t;
    Sums sums{};
    for (std::size_t i = 0; i < one.size(); i += kSome) {
        Bytes ones{};
        Bytes others{};
        std::memcpy(&ones, &one[i], sizeof ones);
        std::memcpy(&others, &other[i], sizeof others);
        const Words products = __builtin_convertvector(ones, Words) * __builtin_convertvector(others, Words);
        Sums pairs{};
        std::memcpy(&pairs, &products, sizeof pairs);
        sums += (pairs >> kHalf) + (pairs << kHalf >> kHalf);
    }
    std::int32_t sum = 0;
    for (std::size_t i = 0; i < sizeof sums / sizeof sum; ++i)
        sum += sums[i];
    return sum;
}

float lengthOf(std::span<const std::int8_t> numbers)
{
    float squares = 0;
    for (const std::int8_t number : numbers)
        squares += static_cast<float>(number) * static_cast<float>(number);
    return std::sqrt(squares);
}

void keepNearest(std::vector<PrintIndex::Near>& all, std::size_t most)
{
    const auto isNearer = [](const PrintIndex::Near& one, const PrintIndex::Near& other) {
        return one.coarse != other.coarse ? one.coarse < other.coarse : one.number < other.number;
    };
    const std::size_t kept = std::min(most, all.size());
    std::partial_sort(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(kept), all.end(), isNearer);
    all.resize(kept);
}

} // namespace

/// A direction that is looked for.
struct PrintIndex::Query {
    Query(const Direction& of, std::size_t mostFound, const PrintIndex& in)
        : direction(&of), squares(product(of, of)), most(mostFound), index(&in), rounded(sketchOf(of))
    {
        setLeast(kLeastCosine);
        constexpr int kByte = 8;
        std::array<int, kPairs> middles{};
        for (std::size_t i = 0; i < kPairs; ++i) {
            const std::int8_t one = rounded.sketch[2 * i];
            const std::int8_t other = rounded.sketch[2 * i + 1];
            pairs[i] = static_cast<std::uint16_t>(static_cast<std::uint8_t>(one) |
                                                  static_cast<std::uint8_t>(other) << kByte);
            middles[i] = kAdded * (one + other);
        }
        const auto ofLength = middles.begin() + kStart / 2;
        beforeStart = -std::accumulate(middles.begin(), ofLength + 1, 0);
        beforeRest = *ofLength - std::accumulate(ofLength + 1, middles.end(), 0);
    }

    void setLeast(float cosine)
    {
        leastCosine = cosine;
        leastOfStart = leastProduct(cosine, rounded.startMoved, index->m_startMoved);
        least = leastProduct(cosine, rounded.moved, index->m_moved);
    }

    const Direction* direction;
    std::int32_t squares; ///< of its length
    std::size_t most;
    const PrintIndex* index;
    Rounded rounded;
    std::array<std::uint16_t, kPairs> pairs{}; ///< two numbers of the sketch
    // What to begin with, as there is too much in the numbers of bundles.
    int beforeStart = 0;           ///< and the length of what follows it
    int beforeRest = 0;            ///< all but that length
    std::int16_t leastOfStart = 0; ///< for the sketches of near ones
    std::int16_t least = 0;
    float leastCosine = 0;
    std::vector<Near> found;
};

// Sums of products of a sketch and those of a bundle. They wrap, and come out right in the end.

/// On any processor.
class PrintIndex::NarrowSums {
public:
    ORLEN_INLINE explicit NarrowSums(int before) { addToAll(before); }
    ORLEN_INLINE void addToAll(int number)
    {
        m_left += static_cast<std::uint16_t>(number);
        m_right += static_cast<std::uint16_t>(number);
    }
    ORLEN_INLINE void add(const Pairs& of, std::uint16_t pair)
    {
        Lanes left{};
        Lanes right{};
        std::memcpy(&left, of.data(), sizeof left);
        std::memcpy(&right, of.data() + kLanes, sizeof right);
        add(m_left, left, pair);
        add(m_right, right, pair);
    }
    /// A bit for each.
    [[nodiscard]] ORLEN_INLINE std::uint32_t atLeast(std::int16_t least) const
    {
        std::array<std::int16_t, kTogether> sums{};
        std::memcpy(sums.data(), &m_left, sizeof m_left);
        std::memcpy(sums.data() + kLanes, &m_right, sizeof m_right);
        std::uint32_t found = 0;
        for (std::size_t i = 0; i < kTogether; ++i)
            found |= std::uint32_t{sums[i] >= least} << i;
        return found;
    }

private:
    static constexpr std::size_t kLanes = 16;
    using Lanes [[gnu::vector_size(kLanes * sizeof(std::uint16_t))]] = std::uint16_t;

    ORLEN_INLINE static void add(Lanes& sums, const Lanes& of, std::uint16_t pair)
    {
        constexpr int kByte = 8;
        sums += (of & 0xff) * static_cast<std::uint16_t>(static_cast<std::int8_t>(pair & 0xff)) +
                (of >> kByte) * static_cast<std::uint16_t>(static_cast<std::int8_t>(pair >> kByte));
    }

    Lanes m_left{};
    Lanes m_right{};
};

#ifdef __x86_64__
/// In one instruction for two products of each.
class PrintIndex::WideSums {
public:
    ORLEN_WIDE explicit WideSums(int before) { addToAll(before); }
    ORLEN_WIDE void addToAll(int number)
    {
        const __m256i all = _mm256_set1_epi16(static_cast<std::int16_t>(number));
        m_left = _mm256_add_epi16(m_left, all);
        m_right = _mm256_add_epi16(m_right, all);
    }
    ORLEN_WIDE void add(const Pairs& of, std::uint16_t pair)
    {
        const auto* sketches = reinterpret_cast<const __m256i*>(of.data());
        const __m256i all = _mm256_set1_epi16(static_cast<std::int16_t>(pair));
        m_left = _mm256_add_epi16(m_left, _mm256_maddubs_epi16(_mm256_loadu_si256(sketches), all));
        m_right = _mm256_add_epi16(m_right, _mm256_maddubs_epi16(_mm256_loadu_si256(sketches + 1), all));
    }
    /// A bit for each.
    [[nodiscard]] ORLEN_WIDE std::uint32_t atLeast(std::int16_t least) const
    {
        constexpr int kInOrder = 0b11'01'10'00;
        const __m256i less = _mm256_set1_epi16(static_cast<std::int16_t>(least - 1));
        const __m256i isFound =
            _mm256_packs_epi16(_mm256_cmpgt_epi16(m_left, less), _mm256_cmpgt_epi16(m_right, less));
        return static_cast<std::uint32_t>(_mm256_movemask_epi8(_mm256_permute4x64_epi64(isFound, kInOrder)));
    }

private:
    __m256i m_left = _mm256_setzero_si256();
    __m256i m_right = _mm256_setzero_si256();
};
#endif

PrintIndex::Rounded PrintIndex::sketchOf(const Direction& direction)
{
    const float length = std::max(lengthOf(direction), 1.0F);
    const std::span<const std::int8_t> numbers(direction);
    Rounded rounded;
    std::array<float, kNumbers> moved{}; // squared
    std::size_t count = 0;
    const auto put = [&](float number) {
        rounded.sketch[count] = inSteps(number / length);
        const float by = number / length - static_cast<float>(rounded.sketch[count]) / kSteps;
        moved[count++] = by * by;
    };
    for (std::size_t i = 0; i < kHead; ++i) {
        if (i == kStart) {
            put(lengthOf(numbers.subspan(kStart)));
            put(0);
        }
        put(static_cast<float>(numbers[i]));
    }
    constexpr std::size_t kRest = (FeaturePrint::kLength - kHead) / kRests;
    for (std::size_t i = 0; i < kRests; ++i)
        put(lengthOf(numbers.subspan(kHead + i * kRest, kRest)));
    const auto start = std::span(moved).first(kStart + 1);
    rounded.startMoved = std::sqrt(std::accumulate(start.begin(), start.end(), 0.0F));
    rounded.moved = std::sqrt(std::accumulate(moved.begin(), moved.end(), 0.0F) - moved[kStart]);
    return rounded;
}

void PrintIndex::add(const Direction& direction)
{
    const std::size_t lane = m_directions.size() % kTogether;
    if (lane == 0)
        m_bundles.emplace_back();
    const Rounded rounded = sketchOf(direction);
    const auto level = [](std::int8_t number) { return static_cast<unsigned>(number + kAdded); };
    for (std::size_t i = 0; i < kPairs; ++i) {
        constexpr unsigned kByte = 8;
        m_bundles.back()[i][lane] = static_cast<std::uint16_t>(level(rounded.sketch[2 * i]) |
                                                               level(rounded.sketch[2 * i + 1]) << kByte);
    }
    m_startMoved = std::max(m_startMoved, rounded.startMoved);
    m_moved = std::max(m_moved, rounded.moved);
    m_directions.push_back(direction);
    m_squares.push_back(product(direction, direction));
}

ORLEN_INLINE void PrintIndex::look(Query& query, std::size_t number) const
{
    const std::int32_t common = inCommon(m_directions[number], *query.direction);
    const float lengths =
        std::sqrt(static_cast<float>(query.squares) * static_cast<float>(m_squares[number]));
    if (static_cast<float>(common) < (query.leastCosine - kNothing) * lengths)
        return;
    const std::optional<float> coarse = coarseDistance(common, query.squares, m_squares[number]);
    if (!coarse)
        return;
    query.found.push_back({*coarse, number});
    constexpr std::size_t kSlack = 4;
    if (query.found.size() / kSlack <= query.most)
        return;
    // In a crowd, only few are nearer than the nearest so far.
    keepNearest(query.found, query.most);
    const float farthest = query.found.back().coarse;
    query.setLeast(1 - farthest * farthest / 2);
}

/// Which of a bundle may be near, a bit for each.
template <typename Sums>
ORLEN_INLINE std::uint32_t PrintIndex::mayBeNear(const Query& query, const Bundle& bundle)
{
    constexpr std::size_t kLength = kStart / 2;
    Sums sums(query.beforeStart);
    for (std::size_t i = 0; i < kLength; ++i)
        sums.add(bundle[i], query.pairs[i]);
    Sums start = sums;
    start.add(bundle[kLength], query.pairs[kLength]);
    if (start.atLeast(query.leastOfStart) == 0)
        return 0;
    sums.addToAll(query.beforeRest);
    for (std::size_t i = kLength + 1; i < kPairs; ++i)
        sums.add(bundle[i], query.pairs[i]);
    return sums.atLeast(query.least);
}

/// Bundle by bundle, so that each is fetched from memory once.
template <typename Sums>
ORLEN_INLINE void PrintIndex::lookThroughBundles(std::span<Query> queries) const
{
    for (std::size_t first = 0; first < m_directions.size(); first += kTogether) {
        const Bundle& bundle = m_bundles[first / kTogether];
        const std::size_t count = std::min(kTogether, m_directions.size() - first);
        for (Query& query : queries) {
            std::uint32_t found = mayBeNear<Sums>(query, bundle);
            for (; found != 0; found &= found - 1) {
                const auto i = static_cast<std::size_t>(std::countr_zero(found));
                if (i < count)
                    look(query, first + i);
            }
        }
    }
}

#ifdef __x86_64__
ORLEN_WIDE void PrintIndex::lookThroughInWideLanes(std::span<Query> queries) const
{
    lookThroughBundles<WideSums>(queries);
}
#endif

void PrintIndex::lookThrough(std::span<Query> queries) const
{
#ifdef __x86_64__
    if (WideLanes::areUsed()) {
        lookThroughInWideLanes(queries);
        return;
    }
#endif
    lookThroughBundles<NarrowSums>(queries);
}

std::vector<std::vector<PrintIndex::Near>> PrintIndex::near(std::span<const Direction> directions,
                                                            std::size_t most) const
{
    std::vector<Query> queries;
    queries.reserve(directions.size());
    for (const Direction& direction : directions)
        queries.emplace_back(direction, most, *this);
    lookThrough(queries);
    std::vector<std::vector<Near>> found;
    for (Query& query : queries) {
        keepNearest(query.found, most);
        found.push_back(std::move(query.found));
    }
    return found;
}

} // namespace orlen
