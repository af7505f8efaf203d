#pragma once

#include "model/FileEntry.h"
#include "model/Text.h"
#include "tools/apps/AppInfo.h"
#include "tools/apps/LeftoverRoots.h"
#include "tools/apps/LeftoverRules.h"

#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

class RemainingApps;

/// What an application has left.
struct Leftover {
    FileEntry entry;
    bool isByNameOnly = false; ///< only the name suggests that it is the application's
};

/// One search through the folders in which applications leave files. Blocks on the disk.
class LeftoverSearch {
public:
    /// Without an application (null), only names are matched. Both must outlive the search.
    LeftoverSearch(LeftoverRules::Subject subject, const RemainingApps& remaining, const AppInfo* app);

    /// Root by root, sorted by name. Each path once, and nothing inside another result.
    [[nodiscard]] std::vector<Leftover> run(const std::stop_token& stop);

private:
    struct Candidate {
        std::string path;
        Text note;
        bool isByNameOnly = false;
        bool isLink = false; ///< the link itself is meant; other links are kept
    };

    void lookInto(const LeftoverRoot& root);
    void lookBeside(const std::string& image);
    void lookForIcon();
    [[nodiscard]] LeftoverRules::Match judged(const LeftoverRoot& root, const std::string& name) const;
    [[nodiscard]] bool isLabelled(const std::string& path) const;
    [[nodiscard]] bool isLauncher(const std::string& path) const;
    [[nodiscard]] bool isUnit(const std::string& path) const;
    [[nodiscard]] bool isLinkToApp(const std::string& path) const;
    [[nodiscard]] bool isManagersIcon(const std::string& name) const;
    [[nodiscard]] bool isApps(const std::string& program) const;
    [[nodiscard]] bool overlapsApp(const std::string& path) const;
    [[nodiscard]] bool isOffered(const std::string& path) const;
    void offer(Candidate candidate);

    LeftoverRules::Subject m_subject;
    const RemainingApps& m_remaining;
    const AppInfo* m_app;
    std::vector<Candidate> m_found;
};

} // namespace orlen
