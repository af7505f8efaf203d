#include "scan/duplicates/ReadingThreads.h"

#include "platform/process/Threads.h"

#include <algorithm>
#include <numeric>
#include <thread>

namespace orlen {

namespace {

// More threads than cores on purpose: most wait for the disk, and a cold disk serves several requests at once
// faster than one after another.
constexpr unsigned kFewestThreads = 8;
constexpr unsigned kMostThreads = 16;

} // namespace

ReadingThreads::ReadingThreads(const std::stop_token& stop) : m_stop(stop)
{
    const unsigned threads =
        std::clamp(std::thread::hardware_concurrency() * 2, kFewestThreads, kMostThreads);
    for (unsigned i = 0; i < threads; ++i)
        m_readers.emplace_back(stop);
}

void ReadingThreads::forEach(std::size_t count, const Task& task)
{
    std::atomic<std::size_t> next{0};
    Threads::runOn("orlen-duplicate", std::min(count, m_readers.size()), [&](std::size_t thread) {
        for (std::size_t i = next++; i < count && !m_stop.stop_requested(); i = next++)
            task(m_readers[thread], i);
    });
}

std::int64_t ReadingThreads::filesOpened() const
{
    return std::accumulate(
        m_readers.begin(), m_readers.end(), std::int64_t{0},
        [](std::int64_t sum, const Reader& reader) { return sum + reader.hasher.filesOpened(); });
}

std::int64_t ReadingThreads::bytesRead() const
{
    return std::accumulate(m_readers.begin(), m_readers.end(), std::int64_t{0},
                           [](std::int64_t sum, const Reader& reader) {
                               return sum + reader.hasher.bytesRead() + reader.comparer.bytesRead();
                           });
}

} // namespace orlen
