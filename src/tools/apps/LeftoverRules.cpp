#include "tools/apps/LeftoverRules.h"

#include "platform/text/PathText.h"

#include <algorithm>

namespace orlen::LeftoverRules {

namespace {

bool isExactly(std::string_view entry, std::string_view identifier)
{
    return entry == identifier || PathText::stem(entry) == identifier;
}

bool contains(std::string_view entry, std::string_view identifier)
{
    return entry.find(identifier) != std::string_view::npos;
}

/// A short identifier, or one with few parts, is part of many unrelated names.
bool isDistinct(std::string_view identifier)
{
    constexpr std::size_t kShortest = 10;
    return identifier.size() >= kShortest && std::count(identifier.begin(), identifier.end(), '.') >= 2;
}

bool matchesLibrary(std::string_view entry, const Subject& subject)
{
    return entry == subject.identifier || entry.starts_with(subject.identifier + '.') ||
           (!subject.isApple && contains(entry, subject.identifier));
}

bool matchesSettings(std::string_view entry, const Subject& subject)
{
    return isNamedAfter(entry, subject.identifier) ||
           (!subject.isApple && isDistinct(subject.identifier) && contains(entry, subject.identifier));
}

bool matchesIdentifier(std::string_view entry, Kind kind, const Subject& subject)
{
    if (subject.identifier.empty())
        return false;
    switch (kind) {
    case Kind::library:
    case Kind::namedLibrary:
    case Kind::agents:
        return matchesLibrary(entry, subject);
    case Kind::settings:
    case Kind::configs:
        return matchesSettings(entry, subject);
    case Kind::container:
        return entry == subject.identifier; // what is longer is another application
    case Kind::metadata:
        return isNamedAfter(entry, subject.identifier);
    case Kind::home:
    case Kind::launchers:
    case Kind::units:
    case Kind::links:
        return false;
    }
    return false;
}

bool isForm(std::string_view entry, const Subject& subject)
{
    return std::find(subject.forms.begin(), subject.forms.end(), entry) != subject.forms.end();
}

bool isFormWithRc(std::string_view entry, const Subject& subject)
{
    return entry.ends_with("rc") && isForm(entry.substr(0, entry.size() - 2), subject);
}

/// Hidden names in the home folder that many programs read, whoever made them.
bool isEverybodys(std::string_view name)
{
    constexpr std::string_view kNames[] = {"profile", "login", "session", "screen", "wine"};
    return std::find(std::begin(kNames), std::end(kNames), name) != std::end(kNames);
}

bool matchesName(std::string_view entry, Kind kind, const Subject& subject)
{
    switch (kind) {
    case Kind::namedLibrary:
        return !subject.name.empty() && entry == subject.name;
    case Kind::settings:
        return isForm(entry, subject);
    case Kind::configs:
        return isForm(entry, subject) || isFormWithRc(entry, subject);
    case Kind::home: {
        const std::string_view name = entry.starts_with('.') ? entry.substr(1) : std::string_view();
        return !isEverybodys(name) && (isForm(name, subject) || isFormWithRc(name, subject));
    }
    case Kind::library:
    case Kind::agents:
    case Kind::container:
    case Kind::metadata:
    case Kind::launchers:
    case Kind::units:
    case Kind::links:
        return false;
    }
    return false;
}

} // namespace

Match match(std::string_view entry, Kind kind, const Subject& subject)
{
    if (matchesIdentifier(entry, kind, subject))
        return Match::identifier;
    return matchesName(entry, kind, subject) ? Match::nameOnly : Match::none;
}

bool isNamedAfter(std::string_view entry, std::string_view identifier)
{
    if (isExactly(entry, identifier))
        return true;
    return entry.size() > identifier.size() && entry.starts_with(identifier) &&
           (entry[identifier.size()] == '.' || entry[identifier.size()] == '-');
}

} // namespace orlen::LeftoverRules
