#pragma once

#include "model/FindingKind.h"
#include "model/Rating.h"
#include "support/SampleHome.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

class Results;

/// What a scan found, by path, and how it differs from what the rows of a sample home expect.
class ScanOfHome {
public:
    /// One row that was not as expected, or one entry that no row expects.
    struct Difference {
        std::string place; ///< as in the row, or the path below the home folder
        std::string path;  ///< below the home folder
        std::string expected;
        std::string found;
    };

    ScanOfHome(const Results& results, std::string home);

    /// In the order of the rows, then the entries that no row expects.
    [[nodiscard]] std::vector<Difference> differences(const std::vector<SampleHome::Placed>& places) const;
    /// The differences as a table, a line each.
    [[nodiscard]] static std::string table(const std::vector<Difference>& differences);

private:
    struct Listing {
        FindingKind kind;
        Rating rating;
        bool isTicked;
        std::string note;
    };
    using Listings = std::multimap<std::string, Listing>;

    [[nodiscard]] std::string problem(const SampleHome::Placed& placed,
                                      const std::set<std::string>& expected) const;
    [[nodiscard]] std::string problemOfFound(const SampleHome::Placed& placed) const;
    [[nodiscard]] std::string entryAround(const std::string& path,
                                          const std::set<std::string>& expected) const;
    [[nodiscard]] std::string below(const std::string& path) const;

    Listings m_listings;
    std::string m_home;
};

} // namespace orlen
