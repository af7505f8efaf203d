#include "app/ExclusionList.h"

#include "clean/Persist.h"
#include "platform/files/Places.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace orlen {

ExclusionList::ExclusionList(std::vector<Exclusion> lines, Access access, QObject* parent)
    : ModelPart(parent), m_access(access), m_current(std::move(lines), Places::current().home)
{
}

Result<void> ExclusionList::add(const Exclusion& exclusion)
{
    checkThread();
    std::vector<Exclusion> lines = m_current.lines();
    if (std::ranges::find(lines, exclusion) != lines.end())
        return {};
    lines.push_back(exclusion);
    return replace(std::move(lines));
}

Result<void> ExclusionList::remove(const Exclusion& exclusion)
{
    checkThread();
    std::vector<Exclusion> lines = m_current.lines();
    if (std::erase(lines, exclusion) == 0)
        return Errno{ENOENT};
    return replace(std::move(lines));
}

Result<void> ExclusionList::replace(std::vector<Exclusion> lines)
{
    if (m_access != Access::writer)
        return Errno{EROFS};
    if (auto saved = Persist::saveExclusions(lines); !saved.ok())
        return saved;
    m_current = Exclusions(std::move(lines), Places::current().home);
    Q_EMIT changed();
    return {};
}

} // namespace orlen
