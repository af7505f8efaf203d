#include "scan/tree/TreeFolder.h"

#include "platform/text/PathText.h"

#include <memory>
#include <vector>

namespace orlen {

TreeFolder::~TreeFolder()
{
    // Release a long chain link by link: left to itself, destruction would recurse once per level and
    // overflow the stack in a very deep tree. A link released during another release only hands over its
    // parent here.
    thread_local std::vector<std::shared_ptr<const TreeFolder>> parents;
    thread_local bool isLettingGo = false;
    if (!m_parent)
        return;
    parents.push_back(std::move(m_parent));
    if (isLettingGo)
        return;
    isLettingGo = true;
    while (!parents.empty()) {
        std::shared_ptr<const TreeFolder> next = std::move(parents.back());
        parents.pop_back();
        next.reset();
    }
    isLettingGo = false;
}

std::string TreeFolder::path() const
{
    if (!m_path.empty())
        return m_path;
    std::vector<const TreeFolder*> chain;
    std::size_t length = 0;
    for (const TreeFolder* folder = this; folder != nullptr; folder = folder->parent()) {
        chain.push_back(folder);
        length += folder->name().size() + 1;
    }
    std::string path;
    path.reserve(length);
    for (auto folder = chain.rbegin(); folder != chain.rend(); ++folder) {
        if (!path.empty() && path.back() != '/')
            path.push_back('/');
        path.append((*folder)->name());
    }
    return path;
}

std::string TreeFolder::pathOf(std::string_view name) const
{
    return PathText::join(path(), name);
}

} // namespace orlen
