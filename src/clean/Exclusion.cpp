#include "clean/Exclusion.h"

#include "platform/text/PathText.h"

namespace orlen {

namespace {

/// Limits of the system, in bytes.
constexpr std::size_t kLongestPath = 4095;
constexpr std::size_t kLongestName = 255;

bool isStorable(std::string_view text)
{
    return text.find('\0') == std::string_view::npos && PathText::isValidUtf8(text);
}

} // namespace

std::optional<Exclusion> Exclusion::ofPath(std::string_view path)
{
    if (!path.starts_with('/') || !isStorable(path))
        return std::nullopt;
    std::string standardized = PathText::standardized(path);
    if (standardized.size() > kLongestPath)
        return std::nullopt;
    return Exclusion{Kind::path, std::move(standardized)};
}

std::optional<Exclusion> Exclusion::ofName(std::string_view name)
{
    const bool isName = !name.empty() && name.size() <= kLongestName && name != "." && name != ".." &&
                        name.find('/') == std::string_view::npos;
    if (!isName || !isStorable(name))
        return std::nullopt;
    return Exclusion{Kind::name, std::string(name)};
}

} // namespace orlen
