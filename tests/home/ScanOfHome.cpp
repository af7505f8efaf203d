#include "home/ScanOfHome.h"

#include "app/Results.h"
#include "clean/Safety.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orlen {

namespace {

using SampleHome::Expectation;
using SampleHome::Fate;
using SampleHome::Placed;

std::string described(FindingKind kind, const std::optional<Rating>& rating, bool isTicked,
                      const std::string& note)
{
    std::string text(rawValue(kind));
    if (rating)
        text += ", " + std::string(rawValue(*rating)) + (isTicked ? ", ticked" : "");
    return note.empty() ? text : text + ", \"" + note + "\"";
}

std::string described(const Placed& placed)
{
    const Expectation& expected = placed.row->expected;
    switch (expected.fate) {
    case Fate::found:
        return described(expected.kind, expected.rating, expected.isTicked, placed.note);
    case Fate::never:
        return "never an entry";
    case Fate::notEntered:
        return "not entered";
    case Fate::protectedItself:
        return "protected itself";
    case Fate::protectedWhole:
        return "protected with all in it";
    case Fate::unprotected:
        return "not protected";
    }
    return {};
}

} // namespace

ScanOfHome::ScanOfHome(const Results& results, std::string home) : m_home(std::move(home))
{
    for (const Finding& finding : results.findings()) {
        for (const FileEntry& entry : finding.items)
            m_listings.emplace(entry.path,
                               Listing{finding.kind, finding.effectiveRating(entry),
                                       results.selection().contains(entry.path), noteOf(entry).base()});
    }
}

std::string ScanOfHome::below(const std::string& path) const
{
    return PathText::isAtOrBelow(path, m_home) ? path.substr(std::min(path.size(), m_home.size() + 1)) : path;
}

/// What is wrong with a place that is to be found; empty if nothing is.
std::string ScanOfHome::problemOfFound(const Placed& placed) const
{
    const Expectation& expected = placed.row->expected;
    std::string nearest = "no entry";
    for (const auto& [path, listing] : m_listings) {
        const bool isThere =
            path == placed.path || (placed.row->isEntryOrBelow && PathText::parent(path) == placed.path);
        if (!isThere)
            continue;
        if (listing.kind == expected.kind && listing.rating == expected.rating.value_or(listing.rating) &&
            (!expected.rating || listing.isTicked == expected.isTicked) &&
            listing.note.find(placed.note) != std::string::npos)
            return {};
        nearest = described(listing.kind, listing.rating, listing.isTicked, listing.note);
    }
    return nearest;
}

/// An entry that is this path, contains it, or lies in it without a row of its own.
std::string ScanOfHome::entryAround(const std::string& path, const std::set<std::string>& expected) const
{
    for (const auto& [entry, listing] : m_listings) {
        const bool isOwn = entry != path && expected.contains(entry);
        if (PathText::isAtOrBelow(path, entry) || (PathText::isAtOrBelow(entry, path) && !isOwn))
            return below(entry) + ": " +
                   described(listing.kind, listing.rating, listing.isTicked, listing.note);
    }
    return {};
}

std::string ScanOfHome::problem(const Placed& placed, const std::set<std::string>& expected) const
{
    const bool isProtected = Safety::isProtected(placed.path);
    switch (placed.row->expected.fate) {
    case Fate::found:
        return problemOfFound(placed);
    case Fate::unprotected:
        return isProtected ? "protected" : "";
    case Fate::protectedItself:
        if (!isProtected)
            return "not protected";
        return m_listings.contains(placed.path) ? "an entry" : "";
    case Fate::protectedWhole:
        if (!isProtected || !Safety::isProtected(placed.path + "/anything"))
            return isProtected ? "only protected itself" : "not protected";
        break;
    case Fate::never:
    case Fate::notEntered:
        break;
    }
    return entryAround(placed.path, expected);
}

std::vector<ScanOfHome::Difference> ScanOfHome::differences(const std::vector<Placed>& places) const
{
    std::set<std::string> expected;
    std::set<std::string> known;    // their own rows tell of entries there
    std::set<std::string> spacious; // where an entry may also be one folder further down
    for (const Placed& placed : places) {
        known.insert(placed.path);
        if (placed.row->expected.fate == Fate::found)
            expected.insert(placed.path);
        if (placed.row->isEntryOrBelow)
            spacious.insert(placed.path);
    }
    std::vector<Difference> all;
    for (const Placed& placed : places) {
        if (std::string found = problem(placed, expected); !found.empty())
            all.push_back({placed.row->place, below(placed.path), described(placed), std::move(found)});
    }
    for (const auto& [path, listing] : m_listings) {
        if (!known.contains(path) && !spacious.contains(std::string(PathText::parent(path))))
            all.push_back({below(path), below(path), "no row",
                           described(listing.kind, listing.rating, listing.isTicked, listing.note)});
    }
    return all;
}

std::string ScanOfHome::table(const std::vector<Difference>& differences)
{
    std::string text;
    for (const Difference& difference : differences)
        text += difference.path + "\n    row:      " + difference.place +
                "\n    expected: " + difference.expected + "\n    found:    " + difference.found + "\n";
    return text;
}

} // namespace orlen
