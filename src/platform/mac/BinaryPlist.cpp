#include "platform/mac/BinaryPlist.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace orlen::BinaryPlist {

namespace {

// The format: a header of 8 bytes, the objects, a table of their offsets, and a trailer of 32 bytes with the
// widths of offsets and references, the number of objects, the root, and the place of the table. An object
// starts with a byte: its upper half is the type, its lower half a count, where 15 means that the count
// follows as a number object. Arrays and sets contain references to their members; dictionaries to all keys,
// then all values.
constexpr std::string_view kMagic = "bplist00";
constexpr std::size_t kTrailer = 32;

/// Bytes of all strings and data, counted once per reference.
constexpr std::uint64_t kUnfoldedLimit = 16UL * 1024 * 1024;

/// The big-endian number in `width` bytes; nothing if it is not fully inside the list.
std::optional<std::uint64_t> number(std::string_view bytes, std::uint64_t at, unsigned width)
{
    if (width == 0 || width > 8 || at > bytes.size() || bytes.size() - at < width)
        return std::nullopt;
    std::uint64_t value = 0;
    for (unsigned i = 0; i < width; ++i)
        value = value << 8U | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

struct Trailer {
    unsigned offsetWidth = 0;
    unsigned referenceWidth = 0;
    std::uint64_t objects = 0;
    std::uint64_t root = 0;
    std::uint64_t table = 0;
};

std::optional<Trailer> trailerOf(std::string_view bytes)
{
    if (!isBinary(bytes) || bytes.size() < kMagic.size() + kTrailer)
        return std::nullopt;
    const std::uint64_t start = bytes.size() - kTrailer;
    Trailer trailer{.offsetWidth = static_cast<unsigned char>(bytes[start + 6]),
                    .referenceWidth = static_cast<unsigned char>(bytes[start + 7]),
                    .objects = number(bytes, start + 8, 8).value_or(0),
                    .root = number(bytes, start + 16, 8).value_or(0),
                    .table = number(bytes, start + 24, 8).value_or(0)};
    if (trailer.offsetWidth == 0 || trailer.table > start || trailer.root >= trailer.objects ||
        trailer.objects > (start - trailer.table) / trailer.offsetWidth)
        return std::nullopt;
    return trailer;
}

struct Object {
    bool isContainer = false;
    std::uint64_t at = 0;    ///< where the references of a container, or the bytes of another object, begin
    std::uint64_t count = 0; ///< how many there are
};

/// The library aborts if a key is cut short.
bool holdsZeroCharacter(std::string_view text, std::size_t width)
{
    for (std::size_t at = 0; at + width <= text.size(); at += width) {
        if (text.substr(at, width).find_first_not_of('\0') == std::string_view::npos)
            return true;
    }
    return false;
}

/// Nothing if the object is broken.
std::optional<Object> objectAt(std::string_view bytes, std::uint64_t offset)
{
    const auto marker = number(bytes, offset, 1);
    if (!marker)
        return std::nullopt;
    const std::uint64_t type = *marker >> 4U;
    // Numbers, dates and so on: a few bytes, whatever their lower half means.
    if (type < 0x4 || type == 0x8)
        return Object{};
    Object object{type >= 0xA, offset + 1, *marker & 0xFU};
    if (object.count == 0xF) {
        const auto kind = number(bytes, object.at, 1);
        if (!kind || *kind >> 4U != 1 || (*kind & 0xFU) > 3)
            return std::nullopt;
        const unsigned width = 1U << (*kind & 0xFU);
        const auto count = number(bytes, object.at + 1, width);
        if (!count || *count > bytes.size())
            return std::nullopt;
        object.at += 1 + width;
        object.count = *count;
    }
    constexpr std::uint64_t kDictionary = 0xD;
    constexpr std::uint64_t kText = 0x5;
    constexpr std::uint64_t kWideText = 0x6;
    object.count *= type == kDictionary || type == kWideText ? 2 : 1;
    if ((type == kText || type == kWideText) &&
        (object.at > bytes.size() ||
         holdsZeroCharacter(bytes.substr(object.at, object.count), type == kText ? 1 : 2)))
        return std::nullopt;
    return object;
}

std::optional<std::vector<Object>> objectsOf(std::string_view bytes, const Trailer& trailer)
{
    std::vector<Object> objects;
    objects.reserve(trailer.objects);
    std::uint64_t references = 0;
    std::size_t containers = 0;
    for (std::uint64_t i = 0; i < trailer.objects; ++i) {
        const auto offset = number(bytes, trailer.table + i * trailer.offsetWidth, trailer.offsetWidth);
        const auto object = offset ? objectAt(bytes, *offset) : std::nullopt;
        if (!object)
            return std::nullopt;
        references += object->isContainer ? object->count : 0;
        containers += object->isContainer ? 1 : 0;
        // Each takes at least one byte, unless containers overlap.
        if (references > bytes.size() || containers > kMostContainers)
            return std::nullopt;
        objects.push_back(*object);
    }
    return objects;
}

} // namespace

bool isBinary(std::string_view bytes)
{
    return bytes.starts_with("bplist");
}

bool isSafeToUnfold(std::string_view bytes)
{
    const auto trailer = trailerOf(bytes);
    const auto objects = trailer ? objectsOf(bytes, *trailer) : std::nullopt;
    if (!objects)
        return false;
    std::vector<bool> isReferred(objects->size());
    isReferred[trailer->root] = true;
    std::uint64_t unfolded = 0;
    for (const Object& object : *objects) {
        for (std::uint64_t i = 0; object.isContainer && i < object.count; ++i) {
            const auto place =
                number(bytes, object.at + i * trailer->referenceWidth, trailer->referenceWidth);
            if (!place || *place >= objects->size())
                return false;
            const Object& member = (*objects)[*place];
            if (member.isContainer && isReferred[*place])
                return false;
            isReferred[*place] = true;
            unfolded += member.isContainer ? 0 : member.count;
            if (unfolded > kUnfoldedLimit)
                return false;
        }
    }
    return true;
}

} // namespace orlen::BinaryPlist
