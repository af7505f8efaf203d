#pragma once

#include "model/FindingKind.h"
#include "model/Rating.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// One person's home folder: what lies in it and what a scan makes of each place. The same rows make the
/// folder and are what a scan is compared with.
namespace orlen::SampleHome {

/// What a scan does with a place.
enum class Fate {
    found,           ///< it is an entry
    never,           ///< neither it nor anything that contains it is an entry, though it could be moved
    notEntered,      ///< likewise, because the walk stays outside
    protectedItself, ///< it must not be moved; what is in it may be
    protectedWhole,  ///< nor may anything in it
    unprotected,     ///< nothing protects it; whether it is an entry is not asked
};

struct Expectation {
    Fate fate = Fate::never;
    FindingKind kind = FindingKind::caches;
    std::optional<Rating> rating = std::nullopt; ///< effective; absent: any
    bool isTicked = false;                       ///< whether it is pre-selected
    std::string note = {};                       ///< part of the entry's note; empty: any
};

/// Found and pre-selected.
[[nodiscard]] Expectation safe(FindingKind kind, std::string note = {});
/// Found, for the user to decide.
[[nodiscard]] Expectation review(FindingKind kind, std::string note = {});
/// Found with this rating, but not pre-selected.
[[nodiscard]] Expectation unticked(FindingKind kind, Rating rating, std::string note = {});
[[nodiscard]] Expectation never();
[[nodiscard]] Expectation notEntered();
[[nodiscard]] Expectation protectedItself();
[[nodiscard]] Expectation protectedWhole();
[[nodiscard]] Expectation unprotected();

/// Where the base folders of this home are.
enum class Layout {
    plain,   ///< the defaults
    moved,   ///< below ".moved", as the XDG variables say, and in the default places as well
    misled,  ///< the defaults, while variables name the user's own folders, which has no effect
    flatpak, ///< those of one Flatpak app; only rows that hold for every app
    snap,    ///< likewise, of one Snap
};

/// One row. A place may start with a word, such as {H} {CACHE} {CONFIG} {DATA} {STATE} {STEAM} {DOWNLOAD},
/// and lists alternatives as the shell does: "{CACHE}/{one,two}".
struct Row {
    std::string place;
    int kilobytes = 0; ///< 1,024 bytes each, allocated
    Expectation expected;

    bool isFolder = false;
    std::string filler = "data"; ///< the file in the folder that takes the room
    std::string head = {};       ///< the first bytes
    std::string seed = {};       ///< files with the same one are identical; empty: unlike any other
    std::optional<std::string> text = std::nullopt; ///< all that the file holds; may contain words and {NOW}
    std::optional<int> picture = std::nullopt;      ///< a photograph; negative: a worse copy of that one
    std::vector<std::pair<std::string, std::string>> beside = {}; ///< further files in it, with their text
    std::string linkTo = {};                                      ///< it is a symbolic link to this place
    std::string alsoAt = {};     ///< the file that takes the room has a second name at this place
    int days = 0;                ///< since it was last changed or opened
    unsigned mode = 0;           ///< permissions; 0: the usual ones
    bool isEveryAppsOwn = false; ///< a row for {CONFIG} that holds in every sandbox
    bool isEntryOrBelow = false; ///< the entry may also be directly in it
    std::string program = {};    ///< which runs while the scan does
    std::optional<Layout> only = std::nullopt; ///< the one layout that has this row; absent: all

    [[nodiscard]] Row filledBy(std::string name) const;
    [[nodiscard]] Row startingWith(std::string bytes) const;
    [[nodiscard]] Row sameAs(std::string other) const;
    [[nodiscard]] Row holding(std::string name, std::string content = "x") const;
    [[nodiscard]] Row linkedAt(std::string other) const;
    [[nodiscard]] Row aged(int daysAgo) const;
    [[nodiscard]] Row withMode(unsigned permissions) const;
    [[nodiscard]] Row inEveryApp() const;
    [[nodiscard]] Row orBelow() const;
    [[nodiscard]] Row whileRunning(std::string executable) const;
    [[nodiscard]] Row onlyIn(Layout layout) const;
};

[[nodiscard]] Row folder(std::string place, int kilobytes, Expectation expected);
[[nodiscard]] Row file(std::string place, int kilobytes, Expectation expected);
[[nodiscard]] Row text(std::string place, std::string content, Expectation expected);
[[nodiscard]] Row link(std::string place, std::string target, Expectation expected);
[[nodiscard]] Row photo(std::string place, int picture, Expectation expected);

[[nodiscard]] const std::vector<Row>& rows();

/// A row at one of its places.
struct Placed {
    std::string path;
    const Row* row = nullptr;
    std::string note; ///< the expected part of the note in this layout
};

/// The variables of this layout with their values, for a home folder.
[[nodiscard]] std::vector<std::pair<std::string, std::string>> variables(const std::string& home,
                                                                         Layout layout);
/// Every place of every row that this layout has.
[[nodiscard]] std::vector<Placed> places(const std::string& home, Layout layout);
/// Makes the home folder, in a folder that is empty. Stops the program if the disk refuses.
void make(const std::string& home, Layout layout);

/// From this size on a file counts as large here, so that the home folder stays small.
inline constexpr double kLargeMegabytes = 12;

} // namespace orlen::SampleHome
