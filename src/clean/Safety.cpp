#include "clean/Safety.h"

#include "clean/SafetyTable.h"
#include "clean/SyncRoots.h"
#include "platform/files/Reachability.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <tuple>
#include <utility>

namespace orlen::Safety {

namespace {

using Table = std::shared_ptr<const SafetyTable>;

/// Hands out the newest table. Each thread keeps the last one it used and takes the lock only after a
/// refresh, since a walk asks for every folder from many threads at once.
class Publisher {
public:
    /// Drawn before reading the disk, so that the later of two concurrent refreshes wins.
    std::uint64_t drawTicket() { return ++m_lastTicket; }

    void publish(Table table, std::uint64_t ticket)
    {
        // The old table is released after the lock.
        const std::lock_guard lock(m_lock);
        if (ticket < m_published.load(std::memory_order_relaxed))
            return;
        m_table.swap(table);
        m_published.store(ticket, std::memory_order_release);
    }

    [[nodiscard]] bool isEmpty() const { return m_published.load(std::memory_order_acquire) == 0; }

    const SafetyTable& table()
    {
        thread_local Table mine;
        thread_local std::uint64_t mineTicket = 0;
        if (mineTicket != m_published.load(std::memory_order_acquire))
            std::tie(mine, mineTicket) = newest();
        return *mine;
    }

private:
    std::pair<Table, std::uint64_t> newest()
    {
        const std::lock_guard lock(m_lock);
        return {m_table, m_published.load(std::memory_order_relaxed)};
    }

    std::atomic<std::uint64_t> m_lastTicket{0};
    std::atomic<std::uint64_t> m_published{0}; ///< ticket of `m_table`; 0: none yet
    std::mutex m_lock;
    Table m_table;
};

Publisher& publisher()
{
    static Publisher instance;
    return instance;
}

const SafetyTable& table()
{
    static std::once_flag first;
    if (publisher().isEmpty())
        std::call_once(first, refresh);
    return publisher().table();
}

} // namespace

const std::string& home()
{
    return Places::current().home;
}

bool isProtected(std::string_view path)
{
    return table().judge(path).isProtected;
}

bool protectsContents(std::string_view path)
{
    return table().judge(path).areContentsProtected;
}

Protection protection(std::string_view path)
{
    return table().judge(path).protection;
}

void refresh()
{
    const std::uint64_t ticket = publisher().drawTicket();
    const Places& places = Places::current();
    Reachability::refresh(places.mountTable, places.resolvedHome);
    publisher().publish(std::make_shared<const SafetyTable>(places), ticket);
}

bool isSyncMarker(int folder, const FolderEntry& entry)
{
    return SyncRoots::isMarker(folder, entry);
}

} // namespace orlen::Safety
