#include "scan/photos/PictureRecords.h"

#include "platform/images/ImageMessages.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace orlen {

namespace {

/// The number grows when pictures are decoded or measured otherwise.
constexpr std::string_view kHeader = "Orlen pictures 4 " ORLEN_MODELS "\n";

/// What a record begins with, in front of the answer.
struct Fixed {
    std::uint64_t device;
    std::uint64_t number;
    std::int64_t length;
    std::int64_t changed;
    std::int64_t used;
};
static_assert(std::has_unique_object_representations_v<Fixed>);

struct Frame {
    std::uint64_t checksum; ///< of what follows the frame
    std::uint64_t length;   ///< of what follows, in bytes
};
static_assert(std::has_unique_object_representations_v<Frame>);

/// Against damage, not against malice.
std::uint64_t checksum(std::string_view bytes)
{
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15U;
    constexpr unsigned kShift = 29;
    std::uint64_t sum = bytes.size();
    while (!bytes.empty()) {
        std::uint64_t word = 0;
        const std::size_t taken = std::min(sizeof word, bytes.size());
        std::memcpy(&word, bytes.data(), taken);
        bytes.remove_prefix(taken);
        sum = (sum ^ word) * kFactor;
        sum ^= sum >> kShift;
    }
    return sum;
}

template <typename Value>
void append(std::string& bytes, const Value& value)
{
    const std::size_t at = bytes.size();
    bytes.resize(at + sizeof value);
    std::memcpy(&bytes[at], &value, sizeof value);
}

/// False if there are too few bytes.
template <typename Value>
bool take(std::string_view& bytes, Value& value)
{
    if (bytes.size() < sizeof value)
        return false;
    std::memcpy(&value, bytes.data(), sizeof value);
    bytes.remove_prefix(sizeof value);
    return true;
}

std::int64_t countOf(TimePoint time)
{
    return time.time_since_epoch().count();
}

TimePoint timeOf(std::int64_t count)
{
    return TimePoint(TimePoint::duration(count));
}

} // namespace

std::string_view PictureRecords::header()
{
    return kHeader;
}

std::string PictureRecords::encoded(const Record& record)
{
    std::string body;
    append(body, Fixed{record.key.identity.device, record.key.identity.number, record.key.length,
                       countOf(record.key.changed), countOf(record.used)});
    body += record.answer;
    std::string bytes;
    append(bytes, Frame{checksum(body), body.size()});
    return bytes + body;
}

PictureRecords::Next PictureRecords::next(std::string_view bytes)
{
    constexpr Next kDamaged{.record = {}, .isDamaged = true};
    Frame frame{};
    Fixed fixed{};
    if (!take(bytes, frame))
        return {};
    if (frame.length < sizeof fixed || frame.length > sizeof fixed + ImageMessages::kLongest)
        return kDamaged;
    if (frame.length > bytes.size())
        return {};
    std::string_view body = bytes.substr(0, frame.length);
    if (checksum(body) != frame.checksum || !take(body, fixed))
        return kDamaged;
    const Key key{{fixed.device, fixed.number}, fixed.length, timeOf(fixed.changed)};
    return {.record = Record{key, timeOf(fixed.used), body}, .length = sizeof frame + frame.length};
}

std::vector<PictureRecords::Record> PictureRecords::decoded(std::string_view bytes)
{
    std::vector<Record> records;
    if (!bytes.starts_with(kHeader))
        return records;
    bytes.remove_prefix(kHeader.size());
    for (Next one = next(bytes); one.record; one = next(bytes)) {
        records.push_back(*one.record);
        bytes.remove_prefix(one.length);
    }
    return records;
}

} // namespace orlen
