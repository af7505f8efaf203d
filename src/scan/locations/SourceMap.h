#pragma once

#include "scan/locations/SourceTable.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace orlen {

struct Places;
class UnreadableFolders;

/// One path a row stands for.
struct Source {
    const SourceRow* row;
    std::string path;
    std::vector<Message> notes; ///< whose folder it is, then the row's note, filled in
};

/// Where all rows lead in this home folder. Variables may nest one known place inside another or make two the
/// same; the map takes care that nothing is offered twice, by itself or as part of a larger entry. Immutable;
/// any thread.
class SourceMap {
public:
    /// Blocks on the disk to expand "*"; `unreadable`, if not null, collects folders where that failed. Empty
    /// if the home folder is unusable.
    explicit SourceMap(const Places& places, UnreadableFolders* unreadable = nullptr);

    /// The sources of a row, in order.
    [[nodiscard]] std::vector<const Source*> of(const SourceRow& row) const;

    /// Whether this source offers a child of its folder: its name and test allow it, no earlier row offers it
    /// from the same folder, and no other source is at or below it. May block on the disk.
    [[nodiscard]] bool isOfferedBy(const Source& source, const std::string& child) const;
    /// The same for a source that is an entry itself.
    [[nodiscard]] bool isOffered(const Source& single) const;

    /// The source that offers exactly this path as an entry; null if none does. May block on the disk.
    [[nodiscard]] const Source* offering(const std::string& entry) const;

private:
    class Expansion;

    void add(const SourceRow& row, Expansion& expansion);
    void addOnce(Source source);
    void add(Source source);
    [[nodiscard]] bool isKnown(const SourceRow& row, const std::string& path) const;
    [[nodiscard]] std::vector<const Source*> at(const std::string& path) const;

    std::vector<Source> m_sources;
    std::unordered_map<std::string, std::vector<std::size_t>> m_byPath; ///< indices into m_sources, in order
    std::unordered_set<std::string> m_above;                            ///< all folders that contain a source
};

} // namespace orlen
