#include "scan/tree/TreeSum.h"

#include "platform/values/CheckedSum.h"

namespace orlen {

void addTo(std::atomic<std::int64_t>& sum, std::int64_t bytes)
{
    std::int64_t before = sum.load();
    while (!sum.compare_exchange_weak(before, cappedAdd(before, bytes))) {
    }
}

void TreeSum::add(std::span<const TreeFile> files)
{
    std::int64_t bytes = 0;
    std::unique_lock lock(m_lock, std::defer_lock);
    for (const TreeFile& file : files) {
        if (file.status.links < 2) {
            bytes = cappedAdd(bytes, file.status.allocatedBytes);
            continue;
        }
        if (!lock.owns_lock())
            lock.lock();
        addLinked(file.status);
    }
    addTo(m_bytes, bytes);
}

void TreeSum::addLinked(const FileStatus& file)
{
    Linked& linked = m_linked[file.identity];
    ++linked.met;
    linked.names = file.links;
    linked.bytes = file.allocatedBytes;
}

TreeSize TreeSum::size() const
{
    const std::lock_guard lock(m_lock);
    TreeSize size{m_bytes.load(), m_bytes.load()};
    for (const auto& [identity, linked] : m_linked) {
        size.held = cappedAdd(size.held, linked.bytes);
        if (linked.met >= linked.names)
            size.freed = cappedAdd(size.freed, linked.bytes);
    }
    return size;
}

} // namespace orlen
