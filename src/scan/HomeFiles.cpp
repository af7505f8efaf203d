#include "scan/HomeFiles.h"

#include "platform/text/PathText.h"

namespace orlen {

std::string HomeFiles::folderPath(Number number) const
{
    std::vector<std::string_view> names;
    for (; number != 0; number = m_all.parents[number])
        names.push_back(folderName(number));
    std::string path = m_all.home;
    for (auto name = names.rbegin(); name != names.rend(); ++name)
        path.append("/").append(*name);
    return path;
}

std::string HomeFiles::filePath(Number number) const
{
    return folderPath(m_all.folderOfFile[number]).append("/").append(fileName(number));
}

std::optional<HomeFiles::Number> HomeFiles::folderAt(std::string_view path) const
{
    if (!PathText::isAtOrBelow(path, m_all.home))
        return std::nullopt;
    Number at = 0;
    for (const std::string_view name : PathText::components(path.substr(m_all.home.size()))) {
        Number child = at + 1;
        while (child < m_all.ends[at] && folderName(child) != name)
            child = m_all.ends[child];
        if (child >= m_all.ends[at])
            return std::nullopt;
        at = child;
    }
    return at;
}

} // namespace orlen
