#include "clean/WatchedItems.h"

#include "clean/TrashProbe.h"
#include "clean/trash/Trash.h"

#include <gtest/gtest.h>

namespace orlen {

using namespace TrashProbe;

WatchedItems::WatchedItems(const TempHome& home, int count) : m_trash(home.path(".local/share/Trash"))
{
    for (int item = 0; item < count; ++item) {
        const std::string path =
            home.path("in-" + std::to_string(item) + "/item-" + std::to_string(item % 3));
        (void)home.file(item % 5 == 0 ? path + "/content" : path, path);
        m_identities[path] = identity(path);
    }
}

std::vector<FileEntry> WatchedItems::entries() const
{
    std::vector<FileEntry> entries;
    for (const auto& [path, id] : m_identities)
        entries.push_back({path, 4096, {}, {}, {}, {}});
    return entries;
}

int WatchedItems::expectNoneLostOrUnknown(const std::vector<CleanRecord>& history) const
{
    std::map<FileIdentity, std::string> inTrash;
    for (const std::string& name : listNames(m_trash + "/files")) {
        const std::string path = PathText::join(m_trash + "/files", name);
        EXPECT_TRUE(inTrash.emplace(identity(path), path).second);
    }
    std::map<std::string, std::string> known;
    for (const CleanRecord& record : history) {
        for (const TrashedItem& item : record.items) {
            const bool isNews = item.restored || known.emplace(item.original, item.trashed).second;
            EXPECT_TRUE(isNews) << item.original;
        }
    }
    for (const auto& [path, id] : m_identities) {
        const bool isInPlace = identity(path) == id;
        const auto found = inTrash.find(id);
        EXPECT_NE(isInPlace, found != inTrash.end()) << path;
        EXPECT_EQ(known.contains(path), !isInPlace) << path;
        if (found != inTrash.end()) {
            EXPECT_EQ(Trash::originalPath(found->second), path);
            EXPECT_EQ(known[path], found->second);
        }
    }
    return static_cast<int>(inTrash.size());
}

void WatchedItems::expectNoStrayInfo() const
{
    EXPECT_EQ(listNames(m_trash + "/info").size(), listNames(m_trash + "/files").size());
}

} // namespace orlen
