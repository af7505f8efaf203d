#pragma once

#include "platform/images/ImageAnalysis.h"
#include "platform/values/Time.h"
#include "scan/Cand.h"
#include "scan/photos/PictureRecords.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace orlen {

/// Remembers what was learned of pictures, so that no scan looks at the same one twice. It is a comfort only:
/// a file that is damaged, of other models or not there means looking again, and what cannot be written is
/// not written. The file is read and written piece by piece, and never held as a whole. Blocks on the disk;
/// one thread at a time.
class PictureMemory {
public:
    /// What is known of one file; an empty analysis means that it is not a readable picture.
    using Known = std::optional<ImageAnalysis>;
    using Learned = std::pair<FileStamp, Known>;

    /// In the program's cache folder.
    [[nodiscard]] static std::string standardPath();

    /// The file need not exist, nor its folder. `mostBytes`: its largest size.
    explicit PictureMemory(std::string path = standardPath(), std::size_t mostBytes = kMostBytes)
        : m_path(std::move(path)), m_mostBytes(mostBytes)
    {
    }

    /// What is known of each image, null for nothing: it is new, or no longer the file that it was.
    [[nodiscard]] std::vector<std::unique_ptr<Known>> recall(const std::vector<Cand>& images, TimePoint now);

    /// Adds what was learned since, and notes what was recalled as used. What was not used for longest gives
    /// way when the file gets too large. Leaves the file alone if there is nothing new, or while another
    /// process writes it.
    void remember(const std::vector<Learned>& learned, TimePoint now);

private:
    static constexpr std::size_t kMostBytes = 200'000'000;

    std::string m_path;
    std::size_t m_mostBytes;
    std::unordered_set<PictureRecords::Key, PictureRecords::KeyHash> m_used;
    bool m_isStale = false; ///< something used is noted as used long ago
};

} // namespace orlen
