#include "window/findings/FolderLookup.h"

#include "platform/files/FileStatus.h"

#include <utility>

namespace orlen {

bool FolderLookup::isFolder(const std::string& path)
{
    const auto [known, isNew] = m_known.try_emplace(path, false);
    if (isNew) {
        m_waiting.push_back(path);
        lookSoon();
    }
    return known->second;
}

/// Deferred, so that all rows of a page are looked up together.
void FolderLookup::lookSoon()
{
    if (!std::exchange(m_isLooking, true))
        QMetaObject::invokeMethod(this, &FolderLookup::look, Qt::QueuedConnection);
}

void FolderLookup::look()
{
    const auto work = [paths = std::exchange(m_waiting, {})](const std::stop_token& stop) {
        std::vector<std::string> folders;
        for (const std::string& path : paths) {
            if (stop.stop_requested())
                break;
            if (isRealFolder(path))
                folders.push_back(path);
        }
        return folders;
    };
    m_workers.start(work, [this](const std::vector<std::string>& folders) {
        for (const std::string& folder : folders)
            m_known[folder] = true;
        m_isLooking = false;
        if (!m_waiting.empty())
            lookSoon();
        if (!folders.empty())
            Q_EMIT answered();
    });
}

} // namespace orlen
