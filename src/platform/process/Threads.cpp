#include "platform/process/Threads.h"

#include "platform/process/ThreadName.h"

#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace orlen::Threads {

std::optional<std::jthread> start(const char* name, std::function<void(std::stop_token)> work)
{
    try {
        return std::jthread([name = std::string(name), work = std::move(work)](const std::stop_token& stop) {
            nameThisThread(name.c_str());
            work(stop);
        });
    } catch (const std::system_error&) {
        return std::nullopt;
    }
}

void runOn(const char* name, std::size_t count, const std::function<void(std::size_t)>& work)
{
    std::vector<std::jthread> threads;
    for (std::size_t i = 1; i < count; ++i) {
        auto thread = start(name, [&work, i](const std::stop_token&) { work(i); });
        if (!thread)
            break;
        threads.push_back(std::move(*thread));
    }
    if (count > 0)
        work(0);
}

} // namespace orlen::Threads
