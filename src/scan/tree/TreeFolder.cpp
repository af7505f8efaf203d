#include "scan/tree/TreeFolder.h"

#include "platform/PathText.h"

#include <vector>

namespace orlen {

TreeFolder::~TreeFolder()
{
    // Let go of a long chain one link after the other: left to itself it would recurse once per level and run
    // out of stack in a tree that somebody nested very deep.
    std::shared_ptr<const TreeFolder> next = std::move(m_parent);
    while (next && next.use_count() == 1)
        next = std::move(const_cast<TreeFolder*>(next.get())->m_parent);
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
