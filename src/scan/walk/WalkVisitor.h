#pragma once

#include "scan/FolderTotals.h"
#include "scan/tree/TreeScan.h"
#include "scan/walk/Walk.h"
#include "scan/walk/WalkedCaches.h"

#include <mutex>
#include <set>
#include <string>
#include <unordered_set>
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

    /// The part of a tag that says where the folder counts.
    [[nodiscard]] static constexpr std::uint32_t tagOf(FolderTotals::Counter counter)
    {
        return counter << kFlagBits;
    }

    /// `totals` receives the sizes of folders; may be null.
    WalkVisitor(Scope scope, ScanProgress& progress, FolderTotals* totals)
        : m_scope(scope), m_progress(progress), m_totals(totals)
    {
    }

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
    static constexpr int kFlagBits = 3;
    static_assert(FolderTotals::kBits + kFlagBits <= 32);

    struct Walked {
        Cand cand;
        FileIdentity identity;
    };

    [[nodiscard]] static FolderTotals::Counter counterOf(const TreeFolder& folder)
    {
        return folder.tag() >> kFlagBits;
    }
    [[nodiscard]] FolderTotals::Counter counterIn(const TreeFolder& parent, std::string_view name,
                                                  std::uint32_t marks) const;
    void addToTotals(const TreeFolder& folder, std::span<const TreeFile> files);
    [[nodiscard]] bool isCounted(const TreeFolder& folder, std::string_view name) const;
    [[nodiscard]] bool isCollected(const TreeFolder& parent, std::string_view name);
    void collectCachesIn(const TreeFolder& folder, const TreeListing& listing);

    const Scope m_scope;
    ScanProgress& m_progress;
    FolderTotals* const m_totals;
    std::mutex m_lock;
    std::vector<Walked> m_cands;
    std::vector<Cand> m_images;
    std::vector<WalkedCaches::Folder> m_caches;
    std::set<std::string, std::less<>> m_projectCaches; ///< those not to be entered
    std::set<std::string, std::less<>> m_workTrees;
    std::unordered_set<FileIdentity, FileIdentityHash> m_linked; ///< counted files with several names
};

} // namespace orlen
