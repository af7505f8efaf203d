#pragma once

#include "platform/files/FileContent.h"
#include "platform/values/Sha256.h"
#include "scan/duplicates/Suspect.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <stop_token>
#include <vector>

namespace orlen {

/// Hashes files one after another with one buffer and one hash state. One object per thread; blocks on the
/// disk. No result for a file that cannot be read or has changed since it was seen, or if stopped.
class FileHasher {
public:
    /// Length of the pieces a quick hash reads. A file of at most one piece is read whole.
    static constexpr std::int64_t kPiece = 65'536;

    explicit FileHasher(std::stop_token stop) : m_stop(std::move(stop)) {}

    /// SHA-256 of the first piece, and of the last if the file is longer than two pieces.
    [[nodiscard]] std::optional<Digest> quick(const Suspect& suspect);

    /// A digest of the whole content: SHA-256 of all pages that are not zeros, with their positions. Holes
    /// are not read and count as zeros.
    [[nodiscard]] std::optional<Digest> full(const Suspect& suspect);

    [[nodiscard]] std::int64_t filesOpened() const { return m_filesOpened; }
    [[nodiscard]] std::int64_t bytesRead() const { return m_bytesRead; }

private:
    [[nodiscard]] bool addPages(const UniqueFd& file, FileRange data);
    [[nodiscard]] bool read(const UniqueFd& file, std::int64_t offset, std::span<std::byte> block);
    [[nodiscard]] bool add(const UniqueFd& file, std::int64_t offset, std::int64_t length);

    std::stop_token m_stop;
    Sha256 m_hash;
    std::vector<std::byte> m_buffer;
    std::int64_t m_filesOpened = 0;
    std::int64_t m_bytesRead = 0;
};

} // namespace orlen
