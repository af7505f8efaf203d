#pragma once

#include "platform/files/FileContent.h"
#include "scan/duplicates/Suspect.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <stop_token>
#include <vector>

namespace orlen {

/// Compares a few files of equal length block by block, in parallel. The result is the same as comparing full
/// hashes, in a fraction of the time: hashing costs several times as much as reading, and files that differ
/// early are not read further. Where no file has data, nothing is read: holes are equal to each other and to
/// written zeros. One object per thread; blocks on the disk.
class ContentComparer {
public:
    /// Most files open at once, each with a block in memory.
    static constexpr std::size_t kMostFiles = 16;

    /// Indices of files with the same content, at least two.
    using Same = std::vector<std::size_t>;

    /// Told how far, in bytes, the files are compared.
    using Watch = std::function<void(std::int64_t compared)>;

    explicit ContentComparer(std::stop_token stop) : m_stop(std::move(stop)) {}

    /// Groups of identical files. A file that cannot be read or has changed since it was seen is in none.
    /// Empty if stopped.
    [[nodiscard]] std::vector<Same> identical(std::span<const Suspect> suspects, const Watch& watch);

    [[nodiscard]] std::int64_t bytesRead() const { return m_bytesRead; }

private:
    struct Open {
        UniqueFd fd;
        FileRange data; ///< the first data range ending after what was compared
    };

    /// The next range to compare: where any of the files has data.
    [[nodiscard]] FileRange nextBlock(std::vector<Same>& groups, std::int64_t offset, std::int64_t length);
    [[nodiscard]] bool findData(Open& file, std::int64_t offset, std::int64_t length) const;
    [[nodiscard]] std::byte* block(std::size_t index);
    [[nodiscard]] std::vector<Same> split(const Same& files, std::size_t length);
    [[nodiscard]] std::vector<Same> splitByNextBlock(std::vector<Same> groups, std::int64_t offset,
                                                     std::size_t length);

    std::stop_token m_stop;
    std::vector<Open> m_files;       ///< of the running comparison
    std::vector<std::byte> m_buffer; ///< one block for each of them
    std::int64_t m_bytesRead = 0;
};

} // namespace orlen
