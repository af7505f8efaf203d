#include "tools/advice/AdviceSums.h"

#include "platform/text/NamePattern.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <iterator>

namespace orlen {

namespace {

/// As the names that logs get when they are put away; the command for them names the same.
bool isRotatedLog(std::string_view name)
{
    constexpr std::string_view kPacked[] = {"*.gz", "*.xz", "*.zst"};
    const bool isPacked = std::any_of(std::begin(kPacked), std::end(kPacked), [&](std::string_view pattern) {
        return NamePattern::matches(pattern, name);
    });
    const bool isNumbered =
        name.size() > 2 && name[name.size() - 2] == '.' && name.back() >= '0' && name.back() <= '9';
    return isPacked || isNumbered;
}

} // namespace

std::optional<std::uint32_t> AdviceSums::enter(const TreeFolder& parent, std::string_view /*name*/,
                                               std::uint32_t /*marks*/)
{
    if (m_count == AdviceTopic::Count::topFiles)
        return std::nullopt;
    return parent.tag();
}

void AdviceSums::files(const TreeFolder& /*folder*/, std::span<const TreeFile> files)
{
    for (const TreeFile& file : files)
        add(file);
}

void AdviceSums::add(const TreeFile& file)
{
    if (!isCounted(file))
        return;
    const std::lock_guard guard(m_lock);
    if (file.status.links < 2 || m_linked.insert(file.status.identity).second)
        m_sum = cappedAdd(m_sum, file.status.allocatedBytes);
}

bool AdviceSums::isCounted(const TreeFile& file) const
{
    switch (m_count) {
    case AdviceTopic::Count::everything:
    case AdviceTopic::Count::topFiles:
        return true;
    case AdviceTopic::Count::rotatedLogs:
        return isRotatedLog(file.name);
    case AdviceTopic::Count::oldOwnFiles:
        return file.status.owner == m_user && file.status.changed < m_old;
    case AdviceTopic::Count::nothing:
        return false;
    }
    return false;
}

} // namespace orlen
