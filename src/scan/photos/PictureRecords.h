#pragma once

#include "platform/files/FileStatus.h"
#include "platform/values/Time.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The file of what is remembered of pictures, as bytes: a line that names the recognition it comes from,
/// then records, each with its length and a checksum. Numbers are in native byte order, since the file never
/// leaves its machine. Pure; any thread.
namespace orlen::PictureRecords {

/// The file a record is about, while it is what it was.
struct Key {
    FileIdentity identity;
    std::int64_t length = 0; ///< bytes
    TimePoint changed;

    [[nodiscard]] static Key of(const FileStamp& stamp)
    {
        return {stamp.identity, stamp.length, stamp.changed};
    }
    friend bool operator==(const Key&, const Key&) = default;
};

struct KeyHash {
    [[nodiscard]] std::size_t operator()(const Key& key) const
    {
        return FileIdentityHash()(key.identity) ^
               static_cast<std::size_t>(key.changed.time_since_epoch().count());
    }
};

struct Record {
    Key key;
    TimePoint used;          ///< when a scan last met the file
    std::string_view answer; ///< what the recognizer said, see ImageMessages; not looked into here
};

/// The first line. It changes with the models and the format, which makes older files worthless.
[[nodiscard]] std::string_view header();

[[nodiscard]] std::string encoded(const Record& record);

/// What bytes begin with.
struct Next {
    std::optional<Record> record; ///< none if more bytes are needed, or damaged; borrows them
    std::size_t length = 0;       ///< of the record, encoded
    bool isDamaged = false;
};
[[nodiscard]] Next next(std::string_view bytes);

/// The records of a whole file, which borrow the bytes, up to the first damaged one. None of another
/// recognition.
[[nodiscard]] std::vector<Record> decoded(std::string_view bytes);

} // namespace orlen::PictureRecords
