#include "platform/images/PixelBuffer.h"

#include "platform/files/FileContent.h"

#include <algorithm>
#include <cerrno>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orlen::PixelBuffer {

Result<UniqueFd> ofSize(std::size_t bytes)
{
    UniqueFd buffer(::memfd_create("orlen-pixels", MFD_CLOEXEC));
    if (!buffer.isOpen() || ::ftruncate(buffer.get(), static_cast<off_t>(bytes)) != 0)
        return Errno{errno};
    return buffer;
}

bool write(int buffer, std::span<const std::uint8_t> pixels)
{
    struct stat status = {};
    if (pixels.empty() || ::fstat(buffer, &status) != 0 || status.st_size < static_cast<off_t>(pixels.size()))
        return false;
    // Through memory, since the writer may not be allowed to write to files.
    void* const place = ::mmap(nullptr, pixels.size(), PROT_READ | PROT_WRITE, MAP_SHARED, buffer, 0);
    if (place == MAP_FAILED)
        return false;
    std::copy(pixels.begin(), pixels.end(), static_cast<std::uint8_t*>(place));
    return ::munmap(place, pixels.size()) == 0;
}

std::optional<std::vector<std::uint8_t>> read(int buffer, std::size_t length)
{
    std::vector<std::uint8_t> pixels(length);
    const auto got = readAt(buffer, 0, std::as_writable_bytes(std::span(pixels)));
    return got.ok() && got.value() == length ? std::optional(std::move(pixels)) : std::nullopt;
}

} // namespace orlen::PixelBuffer
