#pragma once

#include "scan/tree/TreeScan.h"
#include "scan/walk/Walk.h"
#include "scan/walk/WalkedCaches.h"

#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace orlen {

/// Collects candidates during a walk. The result depends on the files only, not on which thread meets which
/// folder first: where a number is limited, paths decide.
class WalkVisitor : public TreeVisitor {
public:
    enum class Scope { homeFolder, givenFolders };

    /// Tag of folders in which images are collected.
    static constexpr std::uint32_t kImages = 1;
    /// Tags of a folder of films, and of the folders directly in it.
    static constexpr std::uint32_t kFilms = 2;
    static constexpr std::uint32_t kInFilms = 4;
    /// Smallest general candidate, in allocated bytes.
    static constexpr std::int64_t kCandBytes = 1'000'000;

    WalkVisitor(Scope scope, ScanProgress& progress) : m_scope(scope), m_progress(progress) {}

    std::optional<std::uint32_t> enter(const TreeFolder& parent, std::string_view name,
                                       std::uint32_t marks) override;
    [[nodiscard]] bool asksForPaths() const override { return true; }
    [[nodiscard]] bool looksAtListings() const override { return true; }
    bool accept(const TreeFolder& folder, const TreeListing& listing) override;
    void files(const TreeFolder& folder, std::span<const TreeFile> files) override;
    void listed(const TreeFolder& folder, const FolderChunk& entries) override;

    /// After the scan: the candidates sorted by path, each file once.
    [[nodiscard]] std::vector<Cand> takeCands();
    [[nodiscard]] std::vector<Cand> takeImages();
    /// The caches, whether they may be offered or not, in path order.
    [[nodiscard]] std::vector<WalkedCaches::Folder> takeCaches();
    /// The folders below the roots that hold a repository.
    [[nodiscard]] std::set<std::string, std::less<>> takeWorkTrees();

private:
    struct Walked {
        Cand cand;
        FileIdentity identity;
    };

    [[nodiscard]] bool isCounted(const TreeFolder& folder, std::string_view name) const;
    [[nodiscard]] bool isCollected(const TreeFolder& parent, std::string_view name);
    void collectCachesIn(const TreeFolder& folder, const TreeListing& listing);

    const Scope m_scope;
    ScanProgress& m_progress;
    std::mutex m_lock;
    std::vector<Walked> m_cands;
    std::vector<Cand> m_images;
    std::vector<WalkedCaches::Folder> m_caches;
    std::set<std::string, std::less<>> m_projectCaches; ///< those not to be entered
    std::set<std::string, std::less<>> m_workTrees;
};

} // namespace orlen
