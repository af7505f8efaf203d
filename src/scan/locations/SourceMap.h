#pragma once

#include "scan/locations/SourceTable.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace orlen {

struct Places;
class UnreadableFolders;

/// One path that a row stands for.
struct Source {
    const SourceRow* row;
    std::string path;
    std::string note; ///< the row's, filled in
};

/// Where all rows lead in this home folder. Variables may put one known place into another or make two the
/// same; the map knows, so that nothing is offered twice, neither by itself nor within a larger entry.
/// Immutable; any thread.
class SourceMap {
public:
    /// Blocks on the disk to see what "*" stands for; `unreadable`, when not null, is told of folders where
    /// that failed. Without sources when the home folder cannot be used.
    explicit SourceMap(const Places& places, UnreadableFolders* unreadable = nullptr);

    /// The sources of a row, in order.
    [[nodiscard]] std::vector<const Source*> of(const SourceRow& row) const;

    /// Whether a child of the source's folder is this source's to offer: its names and test allow it, no
    /// earlier row reads the same folder and takes it, and no other source lies at or below it. May block on
    /// the disk.
    [[nodiscard]] bool isOfferedBy(const Source& source, const std::string& child) const;
    /// The same for a source that is an entry itself.
    [[nodiscard]] bool isOffered(const Source& single) const;

private:
    void add(const SourceRow& row, const Places& places, UnreadableFolders* unreadable);
    void add(Source source);
    [[nodiscard]] bool isKnown(const SourceRow& row, const std::string& path) const;
    [[nodiscard]] std::vector<const Source*> at(const std::string& path) const;

    std::vector<Source> m_sources;
    std::unordered_map<std::string, std::vector<std::size_t>> m_byPath; ///< places in m_sources, in order
    std::unordered_set<std::string> m_above; ///< all folders in which a source lies
};

} // namespace orlen
