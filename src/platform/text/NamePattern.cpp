#include "platform/text/NamePattern.h"

#include <cstddef>

namespace orlen::NamePattern {

bool matches(std::string_view pattern, std::string_view name)
{
    // Only the last "*" ever needs another try: earlier ones have matched as little as possible.
    std::size_t star = std::string_view::npos;
    std::size_t retry = 0;
    std::size_t p = 0;
    std::size_t n = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            retry = n;
        } else if (p < pattern.size() && pattern[p] == name[n]) {
            ++p;
            ++n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++retry;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

} // namespace orlen::NamePattern
