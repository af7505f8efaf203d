#include "scan/tree/CurrentMounts.h"

#include "platform/files/Places.h"

#include <chrono>
#include <mutex>

namespace orlen::CurrentMounts {

namespace {

using Clock = std::chrono::steady_clock;

struct Reading {
    std::shared_ptr<const MountTable> table;
    std::string file;
    Clock::time_point at;
};

std::mutex lock;

Reading& lastReading()
{
    static Reading reading;
    return reading;
}

} // namespace

std::shared_ptr<const MountTable> table()
{
    const std::string file = Places::current().mountTable;
    const auto now = Clock::now();
    {
        const std::lock_guard guard(lock);
        const Reading& last = lastReading();
        if (last.table && last.file == file && now - last.at < std::chrono::seconds(1))
            return last.table;
    }
    auto fresh = std::make_shared<const MountTable>(MountTable::read(file));
    const std::lock_guard guard(lock);
    lastReading() = {fresh, file, now};
    return fresh;
}

} // namespace orlen::CurrentMounts
