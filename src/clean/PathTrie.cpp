#include "clean/PathTrie.h"

#include "platform/text/PathText.h"

#include <algorithm>

// A component may match both a name and "*". Instead of following both when asked, `add` keeps named children
// complete: a new one starts as a copy of the "*" child, and whatever is added below "*" is also added below
// every named child. A query then follows a single line of nodes.

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
    if (copy.any != kNone)
        copy.any = copyOf(copy.any);
    return addNode(std::move(copy));
}

PathTrie::Index PathTrie::childNamed(Index parent, std::string_view name)
{
    if (const auto found = m_nodes[parent].named.find(name); found != m_nodes[parent].named.end())
        return found->second;
    const Index any = m_nodes[parent].any;
    const Index child = any == kNone ? addNode({}) : copyOf(any);
    m_nodes[parent].named.emplace(name, child);
    return child;
}

std::vector<PathTrie::Index> PathTrie::everyChild(Index parent)
{
    if (m_nodes[parent].any == kNone) {
        const Index any = addNode({});
        m_nodes[parent].any = any;
    }
    std::vector<Index> children{m_nodes[parent].any};
    for (const auto& [name, child] : m_nodes[parent].named)
        children.push_back(child);
    return children;
}

void PathTrie::add(std::string_view folder, std::string_view pattern, Mark mark)
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
            if (name == "*") {
                const auto children = everyChild(place);
                next.insert(next.end(), children.begin(), children.end());
            } else if (name.ends_with('*')) {
                m_nodes[place].sealedStarts.emplace_back(name.substr(0, name.size() - 1));
            } else {
                next.push_back(childNamed(place, name));
            }
        }
        places = std::move(next);
        noteWay();
    }
    for (const Index place : places)
        m_nodes[place].marks |= bitOf(mark);
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
    m_isSealed = std::any_of(node.sealedStarts.begin(), node.sealedStarts.end(),
                             [&](const std::string& start) { return component.starts_with(start); });
    if (m_isSealed)
        return;
    const auto found = node.named.find(component);
    arrive(found == node.named.end() ? node.any : found->second);
}

void PathTrie::Cursor::arrive(Index place)
{
    m_place = place;
    if (place == kNone)
        return;
    const Node& node = m_trie.m_nodes[place];
    m_isSealed = node.has(Mark::contents);
    m_isClosed = node.has(Mark::closed) || (m_isClosed && !node.has(Mark::opened));
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

} // namespace orlen
