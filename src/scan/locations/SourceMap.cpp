#include "scan/locations/SourceMap.h"

#include "platform/files/Places.h"
#include "platform/text/NamePattern.h"
#include "platform/text/PathText.h"
#include "scan/locations/AppFolders.h"
#include "scan/locations/Glob.h"

#include <algorithm>
#include <map>
#include <utility>

// Who offers what. Every row's patterns are expanded to sources, and the map keeps each source's path and all
// folders above it. A folder's child is then offered by at most one source:
// - by none, if another source is at the child or below it: that source offers it, or part of it;
// - by none, if any row reading the folder excludes it;
// - otherwise by the first row reading the folder whose names and test accept it.
// A source that is an entry itself is offered unless another source is below it or reads it as a folder, and
// if several rows have it, by the first.
namespace orlen {

namespace {

bool isNamed(const SourceRow& row, std::string_view name)
{
    return row.only.empty() || Glob::matchesAny(row.only, name);
}

/// "Google/AndroidStudio*" excludes a folder "Google" only if it contains a match.
bool isExcluded(const SourceRow& row, const std::string& child)
{
    const std::string_view name = PathText::lastComponent(child);
    if (std::ranges::find(row.exceptAfterLimit, name) != row.exceptAfterLimit.end())
        return true;
    if (row.reading == Reading::never && isNamed(row, name))
        return true;
    return std::any_of(row.except.begin(), row.except.end(), [&](std::string_view pattern) {
        const std::size_t slash = pattern.find('/');
        if (!NamePattern::matches(pattern.substr(0, slash), name))
            return false;
        return slash == std::string_view::npos || !Glob::paths(child, pattern.substr(slash)).empty();
    });
}

bool isTaken(const SourceRow& row, const std::string& child)
{
    return row.reading != Reading::never && isNamed(row, PathText::lastComponent(child)) &&
           (row.accepts == nullptr || row.accepts(child));
}

/// What the row says of what it offers there.
Message noteOf(const SourceRow& row, const Glob::Match& match)
{
    std::string name(row.noteName);
    if (name == "*")
        name = match.names.empty() ? std::string() : match.names.front();
    if (row.note.empty())
        return Message::verbatim(std::move(name));
    return name.empty() ? Message(row.note) : Message(row.note, {{"name", std::move(name)}});
}

/// Whose folder it is and what the row says.
std::vector<Message> notesOf(const SourceRow& row, const Message& owner, const Glob::Match& match)
{
    std::vector<Message> notes{owner, noteOf(row, match)};
    std::erase_if(notes, [](const Message& note) { return note.empty(); });
    return notes;
}

bool isLeftOut(const SourceRow& row, const Glob::Match& match)
{
    return std::any_of(match.names.begin(), match.names.end(),
                       [&](const std::string& name) { return Glob::matchesAny(row.exceptFolders, name); });
}

/// Where the components with a "*" start; the whole length if there are none.
std::size_t firstStar(std::string_view pattern)
{
    const std::size_t star = pattern.find('*');
    return star == std::string_view::npos ? pattern.size() : pattern.rfind('/', star);
}

} // namespace

/// Several rows read the same folders, which are listed and tested once.
class SourceMap::Expansion {
public:
    Expansion(const Places& places, UnreadableFolders* unreadable)
        : m_places(places), m_folders(places), m_unreadable(unreadable)
    {
    }

    [[nodiscard]] std::vector<AppFolder> starts(std::string_view pattern) const
    {
        return m_folders.expand(m_places, pattern);
    }

    const std::vector<Glob::Match>& paths(const std::string& folder, std::string_view pattern)
    {
        const auto [at, isNew] = m_paths.try_emplace(folder + '\0' + std::string(pattern));
        if (isNew)
            at->second = Glob::paths(folder, pattern, m_unreadable);
        return at->second;
    }

    bool passes(bool (*test)(const std::string&), const std::string& folder)
    {
        if (test == nullptr)
            return true;
        const auto [at, isNew] = m_tests[test].try_emplace(folder, false);
        if (isNew)
            at->second = test(folder);
        return at->second;
    }

private:
    const Places& m_places;
    const AppFolders m_folders;
    UnreadableFolders* const m_unreadable;
    std::unordered_map<std::string, std::vector<Glob::Match>> m_paths;
    std::map<bool (*)(const std::string&), std::unordered_map<std::string, bool>> m_tests;
};

SourceMap::SourceMap(const Places& places, UnreadableFolders* unreadable)
{
    if (!places.isHomeUsable)
        return;
    Expansion expansion(places, unreadable);
    for (const SourceRow& row : sourceRows())
        add(row, expansion);
}

void SourceMap::add(const SourceRow& row, Expansion& expansion)
{
    for (const std::string_view pattern : row.from) {
        const std::size_t star = firstStar(pattern);
        for (const AppFolder& start : expansion.starts(pattern.substr(0, star))) {
            for (const Glob::Match& match : expansion.paths(start.path, pattern.substr(star))) {
                if (isLeftOut(row, match) || !expansion.passes(row.within, match.path))
                    continue;
                const std::vector<Message> notes = notesOf(row, start.owner, match);
                for (const Glob::Match& below : expansion.paths(match.path, row.below))
                    addOnce({&row, below.path, notes});
            }
        }
    }
}

void SourceMap::addOnce(Source source)
{
    // What one source of the row offers as an entry is not opened by the next.
    const std::string parent(PathText::parent(source.path));
    const bool isEntry = isKnown(*source.row, parent) && isTaken(*source.row, source.path);
    if (!isEntry && !isKnown(*source.row, source.path))
        add(std::move(source));
}

void SourceMap::add(Source source)
{
    m_byPath[source.path].push_back(m_sources.size());
    for (std::string_view above = PathText::parent(source.path); above.size() > 1;
         above = PathText::parent(above))
        m_above.emplace(above);
    m_sources.push_back(std::move(source));
}

bool SourceMap::isKnown(const SourceRow& row, const std::string& path) const
{
    const std::vector<const Source*> sources = at(path);
    return std::any_of(sources.begin(), sources.end(),
                       [&](const Source* source) { return source->row == &row; });
}

std::vector<const Source*> SourceMap::of(const SourceRow& row) const
{
    std::vector<const Source*> found;
    for (const Source& source : m_sources) {
        if (source.row == &row)
            found.push_back(&source);
    }
    return found;
}

std::vector<const Source*> SourceMap::at(const std::string& path) const
{
    std::vector<const Source*> found;
    if (const auto places = m_byPath.find(path); places != m_byPath.end()) {
        for (const std::size_t place : places->second)
            found.push_back(&m_sources[place]);
    }
    return found;
}

bool SourceMap::isOfferedBy(const Source& source, const std::string& child) const
{
    if (m_above.contains(child) || m_byPath.contains(child))
        return false;
    // What one row of the folder never offers, no other may: it is excluded for what it is.
    const std::vector<const Source*> readers = at(source.path);
    if (std::any_of(readers.begin(), readers.end(),
                    [&](const Source* reader) { return isExcluded(*reader->row, child); }))
        return false;
    const auto taker = std::find_if(readers.begin(), readers.end(),
                                    [&](const Source* reader) { return isTaken(*reader->row, child); });
    return taker != readers.end() && (*taker)->row == source.row;
}

bool SourceMap::isOffered(const Source& single) const
{
    const std::vector<const Source*> same = at(single.path);
    const bool isReadAsFolder = std::any_of(same.begin(), same.end(), [](const Source* source) {
        return source->row->reading != Reading::single && source->row->reading != Reading::never;
    });
    return !m_above.contains(single.path) && !isReadAsFolder && same.front()->row == single.row;
}

const Source* SourceMap::offering(const std::string& entry) const
{
    for (const Source* source : at(entry)) {
        if (source->row->reading == Reading::single && isOffered(*source))
            return source;
    }
    for (const Source* source : at(std::string(PathText::parent(entry)))) {
        if (source->row->reading != Reading::single && isOfferedBy(*source, entry))
            return source;
    }
    return nullptr;
}

} // namespace orlen
