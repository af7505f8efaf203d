#pragma once

#include "clean/FolderReading.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <functional>
#include <set>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orlen {

/// A file as a look at the home folder meets it.
struct SeenFile {
    std::string_view path; ///< valid UTF-8
    std::int64_t bytes = 0;
    TimePoint modified;
};

/// Something found by its name.
struct SeenName {
    std::string path;
    std::int64_t bytes = 0; ///< of a folder, with everything in it
    bool isFolder = false;
    TimePoint modified; ///< of a file
};

/// Looks at what is in the home folder now, beyond what a scan lists. Every function blocks on the disk,
/// leaves out the Trash and what lies on other file systems, follows no link, and gives what it has when
/// stopped. Never on the main thread.
class HomeLook {
public:
    explicit HomeLook(std::stop_token stop = {}) : m_stop(std::move(stop)) {}

    enum class Among {
        all,
        visible, ///< not what is in hidden folders, packages and installed modules
    };
    /// Calls `visit` for each file below the folder, in no order, from one thread at a time.
    void eachFile(const std::string& folder, Among among,
                  const std::function<void(const SeenFile&)>& visit) const;

    /// The folders directly in a folder, with everything in them, largest first.
    [[nodiscard]] std::vector<FolderSize> foldersIn(const std::string& folder) const;
    /// Bytes of a folder with everything in it; 0 if it is none.
    [[nodiscard]] std::int64_t sizeOf(const std::string& folder) const;

    /// Files and folders below the home folder with one of these names, in lower case, with or without the
    /// ending of a file; at most a few, those nearest to the home folder first.
    [[nodiscard]] std::vector<SeenName> named(const std::set<std::string, std::less<>>& names) const;

private:
    std::stop_token m_stop;
};

} // namespace orlen
