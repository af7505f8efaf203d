#include "scan/duplicates/ReadingThreads.h"

#include "platform/ThreadName.h"

#include <algorithm>
#include <numeric>
#include <system_error>
#include <thread>
#include <vector>

namespace orlen {

namespace {

// More threads than cores on purpose: most of them wait for the disk, and a cold disk answers several
// requests at once faster than one after the other.
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
    const auto work = [&](Reader& reader) {
        for (std::size_t i = next++; i < count && !m_stop.stop_requested(); i = next++)
            task(reader, i);
    };
    // The calling thread takes part, so that the work gets done even where no thread can be started.
    std::vector<std::jthread> threads;
    for (std::size_t i = 1; i < std::min(count, m_readers.size()); ++i) {
        try {
            threads.emplace_back([&work, &reader = m_readers[i]] {
                nameThisThread("orlen-duplicate");
                work(reader);
            });
        } catch (const std::system_error&) {
            break;
        }
    }
    work(m_readers.front());
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
