#include "Require.h"
#include "platform/files/MountTable.h"
#include "platform/text/PathText.h"

#include <array>
#include <cstdint>
#include <cstdio>

namespace {

/// Every byte as the kernel writes those that would break a line.
std::string octal(std::string_view text)
{
    std::string escapes;
    for (const char c : text) {
        std::array<char, 8> escape{};
        std::snprintf(escape.data(), escape.size(), "\\%03o",
                      static_cast<unsigned>(static_cast<unsigned char>(c)));
        escapes += escape.data();
    }
    return escapes;
}

} // namespace

/// What a table holds is found in it by number and by path; a mount point is read back whatever its name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace orlen;
    const std::string text(reinterpret_cast<const char*>(data), size);
    const MountTable table = MountTable::parse(text);
    for (const Mount* mount : table.below("/")) {
        require(mount->point.starts_with('/') && mount->point.size() <= size);
        require(table.byId(mount->id) != nullptr && table.holding(mount->point) != nullptr);
        require(mount->kind == MountTable::classify(mount->type));
        require(table.isSameFileSystem(mount->point, mount->point));
    }

    const std::string point = PathText::standardized("/m/" + text);
    const std::string line =
        "36 35 98:0 / /" + octal(point.substr(1)) + " rw - ext4 " + octal(text) + " rw\n";
    const MountTable small = MountTable::parse("1 0 8:1 / / rw - ext4 x rw\n" + line);
    const Mount* own = small.holding(point + "/below");
    require(own != nullptr && own->point == point && (point == "/" || own->source == text));
    return 0;
}
