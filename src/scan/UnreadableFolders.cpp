#include "scan/UnreadableFolders.h"

#include "platform/text/PathText.h"

#include <cerrno>
#include <functional>
#include <iterator>

namespace orlen {

void UnreadableFolders::add(const std::string& folder)
{
    const bool isListable = PathText::isValidUtf8(folder);
    const std::lock_guard lock(m_lock);
    if (!m_seen.insert(std::hash<std::string>{}(folder)).second || !isListable)
        return;
    m_paths.insert(folder);
    if (m_paths.size() > kMostListed)
        m_paths.erase(std::prev(m_paths.end()));
}

void UnreadableFolders::add(const std::string& folder, int error)
{
    if (isUnreadable(error))
        add(folder);
}

bool UnreadableFolders::isUnreadable(int error)
{
    return error != 0 && error != ENOENT && error != ENOTDIR && error != ELOOP;
}

std::int64_t UnreadableFolders::count() const
{
    const std::lock_guard lock(m_lock);
    return static_cast<std::int64_t>(m_seen.size());
}

std::vector<std::string> UnreadableFolders::paths() const
{
    const std::lock_guard lock(m_lock);
    return {m_paths.begin(), m_paths.end()};
}

} // namespace orlen
