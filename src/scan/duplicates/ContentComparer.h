#pragma once

#include "platform/files/FileContent.h"
#include "scan/duplicates/Suspect.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <stop_token>
#include <vector>

namespace orlen {

/// Compares a few files of one length side by side, block by block. It says the same as comparing their full
/// hashes would, in a fraction of the time: hashing costs several times as much as reading, and files that
/// differ early are read no further. Where no file holds data, nothing is read: holes are equal, and a hole
/// equals written zeros. One object per thread; blocks on the disk.
class ContentComparer {
public:
    /// So many files at most are open and have a block in memory.
    static constexpr std::size_t kMostFiles = 16;

    /// Indices of files with the same content, two at least.
    using Same = std::vector<std::size_t>;

    explicit ContentComparer(std::stop_token stop) : m_stop(std::move(stop)) {}

    /// The groups of identical files; a file that cannot be read or changed since it was seen is in none.
    /// Empty when stopped.
    [[nodiscard]] std::vector<Same> identical(std::span<const Suspect> suspects);

    [[nodiscard]] std::int64_t bytesRead() const { return m_bytesRead; }

private:
    struct Open {
        UniqueFd fd;
        FileRange data; ///< the first run of data that ends behind what was compared
    };

    /// The next bytes to compare: where any of the files holds data.
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
