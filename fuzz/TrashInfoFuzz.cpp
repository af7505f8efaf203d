#include "Require.h"
#include "clean/trash/TrashInfo.h"
#include "clean/trash/TrashName.h"
#include "platform/text/PathText.h"

#include <cstdint>
#include <cstdlib>

namespace {

using namespace orlen;

void checkInfo(std::string_view text)
{
    const auto info = TrashInfo::parse(text);
    if (!info)
        return;
    require(!info->path.empty() && info->path.size() <= text.size());
    require(info->path.find('\0') == std::string::npos);
    const TimePoint time = info->deleted.value_or(TimePoint());
    const auto again = TrashInfo::parse(TrashInfo::text(info->path, time));
    require(again && again->path == info->path && again->deleted == time);
}

/// Names as a folder can hold them.
void checkName(std::string_view name)
{
    constexpr std::size_t kLongestName = 255;
    constexpr int kAttempts = 12;
    if (name.empty() || name.size() > kLongestName || name == "." || name == ".." ||
        name.find_first_of(std::string_view("/\0", 2)) != std::string_view::npos)
        return;
    std::string before;
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        const std::string candidate = TrashName::candidate(name, attempt);
        require(candidate != before && !candidate.empty() && candidate != "." && candidate != "..");
        require(TrashName::infoName(candidate).size() <= kLongestName);
        require(candidate.find('/') == std::string::npos);
        require(!PathText::isValidUtf8(name) || PathText::isValidUtf8(candidate));
        before = candidate;
    }
}

} // namespace

/// What an info file says can be written and read again; the names of an item in the Trash fit.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool isUtc = ::setenv("TZ", "UTC", 1) == 0;
    require(isUtc);
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    checkInfo(text);
    checkName(text);
    const bool isPath = !text.empty() && text.find('\0') == std::string_view::npos;
    const auto info = TrashInfo::parse(TrashInfo::text(text, TimePoint()));
    require(info.has_value() == isPath && (!info || info->path == text));
    return 0;
}
