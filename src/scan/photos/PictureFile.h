#pragma once

#include "platform/files/UniqueFd.h"
#include "scan/photos/PictureRecords.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace orlen {

/// Reads the file of what is remembered of pictures piece by piece, as it is too large to be held. Any
/// thread; blocks on the disk.
class PictureFile {
public:
    /// A file that is not there, or cannot be read, holds nothing. Of a longer one than `mostBytes` the rest
    /// is left out.
    PictureFile(const std::string& path, std::size_t mostBytes);

    /// Where a record lies.
    struct Place {
        std::int64_t offset = 0;
        std::size_t length = 0; ///< bytes
    };
    using Visit = std::function<void(const PictureRecords::Record& record, Place place)>;

    /// Visits the records from the front up to the first damaged one. They are gone after the visit.
    void visit(const Visit& visit) const;

    /// One record again, as bytes.
    [[nodiscard]] std::optional<std::string> bytes(Place place) const;

private:
    UniqueFd m_file; ///< none if it could not be opened
    std::size_t m_mostBytes;
};

} // namespace orlen
