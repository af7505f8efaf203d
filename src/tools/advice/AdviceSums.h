#pragma once

#include "platform/values/Time.h"
#include "scan/tree/TreeScan.h"
#include "tools/advice/AdviceTopics.h"

#include <mutex>
#include <unordered_set>

namespace orlen {

/// Adds up what counts for one topic during a scan. A file with several names counts once.
class AdviceSums : public TreeVisitor {
public:
    /// `user` owns the old files that count, which have not changed since `old`.
    AdviceSums(AdviceTopic::Count count, unsigned user, TimePoint old)
        : m_count(count), m_user(user), m_old(old)
    {
    }

    std::optional<std::uint32_t> enter(const TreeFolder& parent, std::string_view name,
                                       std::uint32_t marks) override;
    void files(const TreeFolder& folder, std::span<const TreeFile> files) override;

    /// Counts a file that is not part of a folder.
    void add(const TreeFile& file);
    /// In bytes; after the scan.
    [[nodiscard]] std::int64_t sum() const { return m_sum; }

private:
    [[nodiscard]] bool isCounted(const TreeFile& file) const;

    const AdviceTopic::Count m_count;
    const unsigned m_user;
    const TimePoint m_old;
    std::mutex m_lock; ///< guards what follows
    std::int64_t m_sum = 0;
    std::unordered_set<FileIdentity, FileIdentityHash> m_linked;
};

} // namespace orlen
