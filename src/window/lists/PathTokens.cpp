#include "window/lists/PathTokens.h"

#include <mutex>
#include <unordered_map>
#include <vector>

namespace orlen::PathTokens {

namespace {

struct Table {
    std::mutex lock;
    std::unordered_map<std::string, int> tokens;
    std::vector<const std::string*> paths; ///< keys of `tokens`, which stay where they are
};

Table& table()
{
    static Table instance;
    return instance;
}

} // namespace

int tokenOf(const std::string& path)
{
    Table& known = table();
    const std::lock_guard guard(known.lock);
    const auto [place, isNew] = known.tokens.try_emplace(path, static_cast<int>(known.paths.size()) + 1);
    if (isNew)
        known.paths.push_back(&place->first);
    return place->second;
}

std::string path(int token)
{
    Table& known = table();
    const std::lock_guard guard(known.lock);
    if (token < 1 || static_cast<std::size_t>(token) > known.paths.size())
        return {};
    return *known.paths[static_cast<std::size_t>(token) - 1];
}

} // namespace orlen::PathTokens
