#include "scan/tree/PathMarks.h"

#include "platform/text/PathText.h"

namespace orlen {

const PathMarks::Node* PathMarks::Node::child(std::string_view name) const
{
    const auto found = m_children.find(name);
    return found == m_children.end() ? nullptr : found->second.get();
}

void PathMarks::mark(std::string_view path, std::uint32_t bits)
{
    Node* node = m_root.get();
    for (const std::string_view name : PathText::components(path)) {
        auto& child = node->m_children[std::string(name)];
        if (!child)
            child = std::make_unique<Node>();
        node = child.get();
    }
    node->m_marks |= bits;
}

const PathMarks::Node* PathMarks::at(std::string_view path) const
{
    const Node* node = m_root.get();
    for (const std::string_view name : PathText::components(path)) {
        node = node->child(name);
        if (node == nullptr)
            return nullptr;
    }
    return node;
}

} // namespace orlen
