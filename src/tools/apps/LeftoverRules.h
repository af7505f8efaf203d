#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Which file names belong to an application. All text is lower-case. Pure; any thread.
namespace orlen::LeftoverRules {

/// How names in a folder are matched.
enum class Kind {
    library,      ///< in the Library: by identifier
    namedLibrary, ///< the same, and by the application's name
    agents,       ///< as `library`, and property lists by their label
    settings,     ///< in the base directories: by identifier and name
    configs,      ///< the same, and files called "<name>rc"
    home,         ///< hidden names in the home folder: by name, also with "rc" at the end
    container,    ///< exactly the identifier
    metadata,     ///< by a prefix of the name
    launchers,    ///< by what they start
    units,        ///< by what they start
    links,        ///< links to programs: by where they lead
};

/// What is known about the application.
struct Subject {
    std::string identifier; ///< empty: nothing matches by it
    bool isApple = false;   ///< then names must start with the identifier
    std::string name;
    std::vector<std::string> forms; ///< spellings of the name that no other application uses
};

enum class Match { none, identifier, nameOnly };

/// Matches by name only; kinds that depend on contents never match.
[[nodiscard]] Match match(std::string_view entry, Kind kind, const Subject& subject);

/// Whether the name is the identifier, with or without an extension, or starts with it and "." or "-".
[[nodiscard]] bool isNamedAfter(std::string_view entry, std::string_view identifier);

} // namespace orlen::LeftoverRules
