#pragma once

#include "model/Message.h"

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

struct Places;

/// A folder in which programs keep their data.
struct AppFolder {
    std::string path;
    Message owner; ///< "Flatpak app org.gimp.GIMP" or "Snap app gimp"; empty for the user's own
};

/// The cache, settings and data folders of this home folder: the user's own, and those that Flatpak and Snap
/// give each of their applications. Immutable; any thread.
class AppFolders {
public:
    /// Blocks on the disk to find the applications.
    explicit AppFolders(const Places& places);

    [[nodiscard]] const std::vector<AppFolder>& caches() const { return m_caches; }
    [[nodiscard]] const std::vector<AppFolder>& configs() const { return m_configs; }
    [[nodiscard]] const std::vector<AppFolder>& data() const { return m_data; }

    /// The paths that a pattern's part before any "*" stands for. In addition to the words of
    /// `Places::expand`, it may start with {CACHES}, {CONFIGS} or {DATAS}: all folders of that kind.
    [[nodiscard]] std::vector<AppFolder> expand(const Places& places, std::string_view pattern) const;

private:
    void addFlatpaks(const std::string& apps);
    void addSnaps(const std::string& snaps);

    std::vector<AppFolder> m_caches;
    std::vector<AppFolder> m_configs;
    std::vector<AppFolder> m_data;
};

} // namespace orlen
