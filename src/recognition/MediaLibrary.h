#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// libmediainfo. It has eight megabytes that a recognizer of pictures has no use for, and so is loaded by
/// name where films and sounds are read. One thread.
namespace orlen::MediaLibrary {

/// Loads it; afterwards it opens no file. False if it is not installed.
bool load();
[[nodiscard]] bool isLoaded();

/// The library's numbers of the kinds of streams in a file.
enum class Stream : unsigned { general, video, sound };

/// What it tells of an open file, by the library's names of the fields. Needs a loaded library.
class Report {
public:
    explicit Report(int descriptor);
    ~Report();
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    [[nodiscard]] std::size_t count(Stream stream) const;
    /// Valid UTF-8 of at most 200 bytes; empty if there is none.
    [[nodiscard]] std::string text(Stream stream, std::size_t number, const wchar_t* field) const;
    /// 0 if there is none, or it is none.
    [[nodiscard]] double number(Stream stream, std::size_t number, const wchar_t* field) const;

private:
    void* m_handle;
};

} // namespace orlen::MediaLibrary
