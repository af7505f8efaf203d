#pragma once

#include "clean/Exclusion.h"
#include "model/CleanPlan.h"
#include "model/Finding.h"

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// What the user never wants offered or moved. An immutable value, compared as text: no disk, no links. Any
/// thread.
class Exclusions {
public:
    Exclusions() = default;
    /// Repeated lines count once. Names match what lies below `home`, never a component of `home` itself; in
    /// a path elsewhere they match every component.
    Exclusions(std::vector<Exclusion> lines, std::string home);

    /// In the order given.
    [[nodiscard]] const std::vector<Exclusion>& lines() const { return m_lines; }
    [[nodiscard]] bool isEmpty() const { return m_lines.empty(); }

    /// The line that forbids offering or moving `path`: one that covers it, or the path of something inside
    /// it, which would move along. Null if there is none; else valid as long as this. Whether a folder holds
    /// an entry of an excluded name is not known here.
    [[nodiscard]] const Exclusion* excludes(std::string_view path) const;

    /// Removes the excluded entries, and folders that contain one of those, and returns them in findings of
    /// their own. Findings that lose all their entries are removed.
    [[nodiscard]] std::vector<Finding> takeFrom(std::vector<Finding>& findings) const;

    /// The paths of the plan's excluded entries, and of its folders that contain one of those.
    [[nodiscard]] std::set<std::string, std::less<>> excludedIn(const CleanPlan& plan) const;

private:
    using Index = std::map<std::string, std::size_t, std::less<>>; ///< indexes of the lines, by text

    [[nodiscard]] const Exclusion* lineOf(const Index& index, std::string_view text) const;
    [[nodiscard]] const Exclusion* covering(std::string_view path) const;
    [[nodiscard]] const Exclusion* naming(std::string_view path) const;
    [[nodiscard]] const Exclusion* inside(std::string_view path) const;

    std::vector<Exclusion> m_lines;
    std::string m_home;
    Index m_paths;
    Index m_names;
};

} // namespace orlen
