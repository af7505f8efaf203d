#pragma once

#include "scan/duplicates/ContentComparer.h"
#include "scan/duplicates/FileHasher.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <stop_token>

namespace orlen {

/// Runs the tasks of a search on several threads. They are the search's own: a task may read for seconds, and
/// the small pieces of the disk workers should not wait behind it.
class ReadingThreads {
public:
    /// What a thread reads with. Its buffers are kept between steps.
    struct Reader {
        explicit Reader(const std::stop_token& stop) : hasher(stop), comparer(stop) {}
        FileHasher hasher;
        ContentComparer comparer;
    };
    using Task = std::function<void(Reader& reader, std::size_t index)>;

    explicit ReadingThreads(const std::stop_token& stop);

    /// Calls the task with 0 to `count` - 1, each once and started in this order, and returns when all are
    /// done. If stopped, starts no more.
    void forEach(std::size_t count, const Task& task);

    [[nodiscard]] std::int64_t filesOpened() const;
    [[nodiscard]] std::int64_t bytesRead() const;

private:
    std::stop_token m_stop;
    std::deque<Reader> m_readers; ///< one per thread; they cannot move
};

} // namespace orlen
