#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Which file names belong to an application. All texts in lower case; pure, any thread.
namespace orlen::LeftoverRules {

/// How the names in one folder are judged.
enum class Kind {
    library,      ///< of the Library: by identifier
    namedLibrary, ///< the same, and by the application's name
    agents,       ///< the same as `library`, and property lists by their label
    settings,     ///< of the base directories: by identifier and name
    container,    ///< exactly the identifier
    metadata,     ///< by the beginning of the name
    launchers,    ///< by what they start
    units,        ///< by what they start
};

/// What is known of the application.
struct Subject {
    std::string identifier; ///< empty: nothing matches by it
    bool isApple = false;   ///< then a name must begin with the identifier
    std::string name;
    std::vector<std::string> forms; ///< spellings of the name that are its alone
};

enum class Match { none, identifier, nameOnly };

/// By name alone: nothing is a match where the kind asks for contents.
[[nodiscard]] Match match(std::string_view entry, Kind kind, const Subject& subject);

/// Whether the name is the identifier, with or without an extension, or begins with it and a "." or "-".
[[nodiscard]] bool isNamedAfter(std::string_view entry, std::string_view identifier);

} // namespace orlen::LeftoverRules
