#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>

namespace orlen {

using Digest = std::array<std::byte, 32>;

/// Streaming SHA-256 (FIPS 180-4). One object per thread; reusable after `finish`.
class Sha256 {
public:
    Sha256();
    ~Sha256();
    Sha256(const Sha256&) = delete;
    Sha256& operator=(const Sha256&) = delete;

    void update(std::span<const std::byte> bytes);
    /// The digest of everything since the start or the last `finish`; then starts over.
    [[nodiscard]] Digest finish();

private:
    struct Context;
    std::unique_ptr<Context> m_context;
};

} // namespace orlen
