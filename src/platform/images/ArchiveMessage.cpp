#include "platform/images/ArchiveMessage.h"

#include "platform/images/MessageBytes.h"
#include "platform/values/CheckedSum.h"

#include <string_view>

namespace orlen::ArchiveMessage {

std::vector<std::uint8_t> encoded(const ArchiveContents& contents)
{
    MessageWriter writer;
    writer.put(static_cast<std::uint8_t>(contents.extent));
    writer.put(static_cast<std::uint16_t>(contents.items.size()));
    for (const ArchiveContents::Item& item : contents.items) {
        writer.put(static_cast<std::uint8_t>(item.isFolder));
        writer.put(item.bytes);
        writer.put(std::vector<std::uint8_t>(item.name.begin(), item.name.end()));
    }
    const std::string bytes = writer.bytes();
    return {bytes.begin(), bytes.end()};
}

std::optional<ArchiveContents> decoded(std::span<const std::uint8_t> bytes)
{
    MessageReader reader(std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
    ArchiveContents contents;
    constexpr auto kLast = static_cast<std::uint8_t>(ArchiveContents::Extent::damaged);
    contents.extent = static_cast<ArchiveContents::Extent>(reader.get<std::uint8_t>(0, kLast));
    const auto count = reader.get<std::uint16_t>(0, ArchiveContents::kMostItems);
    for (std::uint16_t i = 0; i < count && reader.isValid(); ++i) {
        ArchiveContents::Item item;
        item.isFolder = reader.get<std::uint8_t>(0, 1) == 1;
        item.bytes = reader.get<std::int64_t>(-1, kMostBytes);
        const std::vector<std::uint8_t> name = reader.bytes(ArchiveContents::kLongestName);
        reader.require(!name.empty());
        item.name.assign(name.begin(), name.end());
        contents.items.push_back(std::move(item));
    }
    return reader.isValidWhole() ? std::optional(std::move(contents)) : std::nullopt;
}

} // namespace orlen::ArchiveMessage
