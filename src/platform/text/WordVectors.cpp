#include "platform/text/WordVectors.h"

#include "platform/files/FileContent.h"
#include "platform/values/Sha256.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <tuple>
#include <utility>

namespace orlen {

namespace {

constexpr std::string_view kMagic = "OVEC";
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kHeaderSize = 24;       // bytes
constexpr std::uint32_t kMostNumbers = 1'024; // per word
constexpr std::uint32_t kMostWords = 1'000'000;
constexpr std::size_t kDigestSize = std::tuple_size_v<Digest>;
constexpr double kOpposite = 2;

/// The 32-bit number at a place inside the table.
std::uint32_t numberAt(std::string_view table, std::size_t at)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value |= std::uint32_t{static_cast<unsigned char>(table[at + i])} << (8 * i);
    return value;
}

std::int64_t product(std::span<const char> a, std::span<const char> b)
{
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        sum += std::int64_t{static_cast<signed char>(a[i])} * static_cast<signed char>(b[i]);
    return sum;
}

} // namespace

std::optional<WordVectors> WordVectors::load(const std::string& path)
{
    std::optional<std::string> file = readSmallFile(path, kLongestFile);
    if (!file || file->size() < kDigestSize)
        return std::nullopt;
    const std::string digest = file->substr(file->size() - kDigestSize);
    file->resize(file->size() - kDigestSize);
    Sha256 hash;
    hash.update(std::as_bytes(std::span(*file)));
    return std::ranges::equal(hash.finish(), std::as_bytes(std::span(digest))) ? read(std::move(*file))
                                                                               : std::nullopt;
}

std::optional<WordVectors> WordVectors::read(std::string table)
{
    if (table.size() < kHeaderSize || !table.starts_with(kMagic) || numberAt(table, 4) != kVersion)
        return std::nullopt;
    const std::uint32_t words = numberAt(table, 8);
    const std::uint32_t numbers = numberAt(table, 12);
    const std::uint32_t text = numberAt(table, 16);
    const float scale = std::bit_cast<float>(numberAt(table, 20));
    if (words > kMostWords || numbers == 0 || numbers > kMostNumbers || !std::isfinite(scale) || scale <= 0 ||
        table.size() != kHeaderSize + text + std::uint64_t{words} * numbers)
        return std::nullopt;
    WordVectors vectors;
    vectors.m_table = std::move(table);
    vectors.m_vectors = kHeaderSize + text;
    vectors.m_numbers = numbers;
    vectors.m_scale = scale;
    if (!vectors.indexWords(kHeaderSize, vectors.m_vectors, words))
        return std::nullopt;
    return vectors;
}

/// False unless there are exactly so many words, each after the one before.
bool WordVectors::indexWords(std::size_t start, std::size_t end, std::size_t words)
{
    m_words.reserve(words);
    std::string_view last;
    while (start < end) {
        const std::size_t stop = m_table.find('\n', start);
        if (stop >= end || m_words.size() == words)
            return false;
        const Word word{static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(stop - start)};
        if (text(word) <= last)
            return false;
        last = text(word);
        m_words.push_back(word);
        start = stop + 1;
    }
    return m_words.size() == words;
}

bool WordVectors::contains(std::string_view word) const
{
    return !vectorOf(word).empty();
}

std::optional<double> WordVectors::distance(std::string_view a, std::string_view b) const
{
    const std::span<const char> first = vectorOf(a);
    const std::span<const char> second = vectorOf(b);
    if (first.empty() || second.empty())
        return std::nullopt;
    const auto lengths = static_cast<double>(product(first, first) * product(second, second));
    if (lengths == 0)
        return std::nullopt;
    const double cosine = static_cast<double>(product(first, second)) / std::sqrt(lengths);
    return std::clamp((1 - cosine) * m_scale, 0.0, kOpposite);
}

std::string_view WordVectors::text(Word word) const
{
    return std::string_view(m_table).substr(word.start, word.length);
}

std::span<const char> WordVectors::vectorOf(std::string_view word) const
{
    const auto found = std::ranges::lower_bound(m_words, word, {}, [this](Word at) { return text(at); });
    if (found == m_words.end() || text(*found) != word)
        return {};
    const auto index = static_cast<std::size_t>(found - m_words.begin());
    return std::span(m_table).subspan(m_vectors + index * m_numbers, m_numbers);
}

} // namespace orlen
