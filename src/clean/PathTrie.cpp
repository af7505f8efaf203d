#include "clean/PathTrie.h"

#include "platform/text/PathText.h"

#include <algorithm>
#include <bit>
#include <iterator>

// A component may match a name and one or more starts of names. Instead of following all of them when asked,
// `add` keeps the more exact child complete: a new one begins as a copy of the child that stood for its names
// until then, and whatever is added below a start is also added below every more exact child. A query then
// follows a single line of nodes.

namespace orlen {

namespace {

constexpr std::uint8_t bitOf(PathTrie::Mark mark)
{
    return static_cast<std::uint8_t>(mark);
}

} // namespace

bool PathTrie::Node::has(Mark mark) const
{
    return (marks & bitOf(mark)) != 0;
}

PathTrie::Label PathTrie::Node::labelOf(Mark mark) const
{
    return labels[static_cast<std::size_t>(std::countr_zero(bitOf(mark)))];
}

void PathTrie::Node::put(Mark mark, Label label)
{
    if (!has(mark))
        labels[static_cast<std::size_t>(std::countr_zero(bitOf(mark)))] = label;
    marks |= bitOf(mark);
}

PathTrie::Index PathTrie::Node::startOf(std::string_view name) const
{
    const auto found =
        std::ranges::find_if(starts, [&](const Start& start) { return name.starts_with(start.text); });
    return found == starts.end() ? kNone : found->place;
}

PathTrie::PathTrie() : m_nodes(1) {}

PathTrie::Index PathTrie::addNode(Node node)
{
    m_nodes.push_back(std::move(node));
    return static_cast<Index>(m_nodes.size() - 1);
}

PathTrie::Index PathTrie::copyOf(Index place)
{
    Node copy = m_nodes[place];
    for (auto& [name, child] : copy.named)
        child = copyOf(child);
    for (Start& start : copy.starts)
        start.place = copyOf(start.place);
    return addNode(std::move(copy));
}

PathTrie::Index PathTrie::childNamed(Index parent, std::string_view name)
{
    if (const auto found = m_nodes[parent].named.find(name); found != m_nodes[parent].named.end())
        return found->second;
    const Index before = m_nodes[parent].startOf(name);
    const Index child = before == kNone ? addNode({}) : copyOf(before);
    m_nodes[parent].named.emplace(name, child);
    return child;
}

/// The child for the start, and every more exact one.
std::vector<PathTrie::Index> PathTrie::childrenStarting(Index parent, std::string_view text)
{
    if (std::ranges::find(m_nodes[parent].starts, text, &Start::text) == m_nodes[parent].starts.end()) {
        const Index before = m_nodes[parent].startOf(text);
        const Index place = before == kNone ? addNode({}) : copyOf(before);
        std::vector<Start>& starts = m_nodes[parent].starts;
        const auto shorter =
            std::ranges::find_if(starts, [&](const Start& start) { return start.text.size() < text.size(); });
        starts.insert(shorter, {std::string(text), place});
    }
    std::vector<Index> children;
    for (const Start& start : m_nodes[parent].starts) {
        if (start.text.starts_with(text))
            children.push_back(start.place);
    }
    for (const auto& [name, child] : m_nodes[parent].named) {
        if (name.starts_with(text))
            children.push_back(child);
    }
    return children;
}

void PathTrie::add(std::string_view folder, std::string_view pattern, Mark mark, Label label)
{
    std::vector<Index> places{0};
    const auto noteWay = [&] {
        for (const Index place : places)
            m_nodes[place].leadsToOpened |= mark == Mark::opened;
    };
    noteWay();
    for (const std::string_view name : PathText::components(folder)) {
        places.front() = childNamed(places.front(), name);
        noteWay();
    }
    for (const std::string_view name : PathText::components(pattern)) {
        std::vector<Index> next;
        for (const Index place : places) {
            if (name.ends_with('*'))
                std::ranges::copy(childrenStarting(place, name.substr(0, name.size() - 1)),
                                  std::back_inserter(next));
            else
                next.push_back(childNamed(place, name));
        }
        places = std::move(next);
        noteWay();
    }
    for (const Index place : places)
        m_nodes[place].put(mark, label);
}

PathTrie::Cursor::Cursor(const PathTrie& trie) : m_trie(trie)
{
    arrive(0);
}

void PathTrie::Cursor::enter(std::string_view component)
{
    if (m_isSealed || m_place == kNone)
        return;
    const Node& node = m_trie.m_nodes[m_place];
    const auto found = node.named.find(component);
    arrive(found == node.named.end() ? node.startOf(component) : found->second);
}

void PathTrie::Cursor::arrive(Index place)
{
    m_place = place;
    if (place == kNone)
        return;
    const Node& node = m_trie.m_nodes[place];
    m_isSealed = node.has(Mark::contents);
    m_isClosed = node.has(Mark::closed) || (m_isClosed && !node.has(Mark::opened));
    if (m_isSealed)
        m_label = node.labelOf(Mark::contents);
    else if (node.has(Mark::closed))
        m_label = node.labelOf(Mark::closed);
}

bool PathTrie::Cursor::isMarked() const
{
    return m_isSealed || m_isClosed || (m_place != kNone && m_trie.m_nodes[m_place].has(Mark::itself));
}

bool PathTrie::Cursor::areContentsMarked() const
{
    if (m_isSealed)
        return true;
    return m_isClosed && (m_place == kNone || !m_trie.m_nodes[m_place].leadsToOpened);
}

PathTrie::Label PathTrie::Cursor::label() const
{
    if (m_isSealed || m_isClosed)
        return m_label;
    return m_place == kNone ? Label{0} : m_trie.m_nodes[m_place].labelOf(Mark::itself);
}

} // namespace orlen
