#include "recognition/MediaLibrary.h"

#include "platform/files/FileContent.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <dlfcn.h>
#include <span>
#include <unistd.h>
#include <vector>

namespace orlen::MediaLibrary {

namespace {

/// The library's interface for C, as far as it is used.
struct Functions {
    void* (*make)() = nullptr;
    void (*remove)(void* handle) = nullptr;
    std::size_t (*begin)(void* handle, std::uint64_t length, std::uint64_t offset) = nullptr;
    std::size_t (*proceed)(void* handle, std::uint8_t* bytes, std::size_t count) = nullptr;
    std::uint64_t (*wantedOffset)(void* handle) = nullptr;
    std::size_t (*end)(void* handle) = nullptr;
    std::size_t (*count)(void* handle, unsigned stream, std::size_t number) = nullptr;
    const wchar_t* (*get)(void* handle, unsigned stream, std::size_t number, const wchar_t* field,
                          unsigned kind, unsigned search) = nullptr;
};

/// Written by `load` alone.
Functions s_library;

template <typename Function>
bool find(void* library, const char* name, Function*& function)
{
    function = reinterpret_cast<Function*>(::dlsym(library, name));
    return function != nullptr;
}

bool findAll(void* library, Functions& found)
{
    return find(library, "MediaInfo_New", found.make) && find(library, "MediaInfo_Delete", found.remove) &&
           find(library, "MediaInfo_Open_Buffer_Init", found.begin) &&
           find(library, "MediaInfo_Open_Buffer_Continue", found.proceed) &&
           find(library, "MediaInfo_Open_Buffer_Continue_GoTo_Get", found.wantedOffset) &&
           find(library, "MediaInfo_Open_Buffer_Finalize", found.end) &&
           find(library, "MediaInfo_Count_Get", found.count) && find(library, "MediaInfo_Get", found.get);
}

/// Of one text.
constexpr std::size_t kMostBytes = 200;

void append(std::string& text, std::uint32_t letter)
{
    const auto put = [&text](std::uint32_t byte) { text += static_cast<char>(byte); };
    if (letter < 0x80) {
        put(letter);
    } else if (letter < 0x800) {
        put(0xc0 | letter >> 6);
        put(0x80 | (letter & 0x3f));
    } else if (letter < 0x10000) {
        put(0xe0 | letter >> 12);
        put(0x80 | (letter >> 6 & 0x3f));
        put(0x80 | (letter & 0x3f));
    } else {
        put(0xf0 | letter >> 18);
        put(0x80 | (letter >> 12 & 0x3f));
        put(0x80 | (letter >> 6 & 0x3f));
        put(0x80 | (letter & 0x3f));
    }
}

std::string utf8(const wchar_t* text)
{
    constexpr std::size_t kLongestLetter = 4;
    std::string bytes;
    for (; text != nullptr && *text != L'\0' && bytes.size() + kLongestLetter <= kMostBytes; ++text) {
        const auto letter = std::bit_cast<std::uint32_t>(*text);
        const bool isLetter = letter < 0xd800 || (letter > 0xdfff && letter <= 0x10ffff);
        append(bytes, isLetter ? letter : 0xfffd);
    }
    return bytes;
}

/// Has the library read what it wants of the file, but not without end.
void feed(void* handle, int descriptor)
{
    constexpr std::size_t kAtOnce = 64UL * 1024;
    constexpr int kMostTimes = 2'000; // 128 MB
    constexpr std::size_t kHasAll = 8;
    constexpr auto kNowhere = static_cast<std::uint64_t>(-1);
    const auto length = static_cast<std::uint64_t>(std::max<off_t>(0, ::lseek(descriptor, 0, SEEK_END)));
    std::vector<std::uint8_t> bytes(kAtOnce);
    std::uint64_t place = 0;
    const Functions& library = s_library;
    library.begin(handle, length, 0);
    for (int times = 0; times < kMostTimes && place < length; ++times) {
        const auto got =
            readAt(descriptor, static_cast<std::int64_t>(place), std::as_writable_bytes(std::span(bytes)));
        if (!got.ok() || got.value() == 0)
            break;
        place += got.value();
        if ((library.proceed(handle, bytes.data(), got.value()) & kHasAll) != 0)
            break;
        if (const std::uint64_t wanted = library.wantedOffset(handle); wanted != kNowhere) {
            place = wanted;
            library.begin(handle, length, place);
        }
    }
    library.end(handle);
}

} // namespace

bool load()
{
    // Never unloaded.
    void* const library = ::dlopen("libmediainfo.so.0", RTLD_NOW | RTLD_LOCAL);
    Functions found;
    if (library == nullptr || !findAll(library, found))
        return false;
    // Its tables are made with the first one.
    found.remove(found.make());
    s_library = found;
    return true;
}

bool isLoaded()
{
    return s_library.make != nullptr;
}

Report::Report(int descriptor) : m_handle(s_library.make())
{
    feed(m_handle, descriptor);
}

Report::~Report()
{
    s_library.remove(m_handle);
}

std::size_t Report::count(Stream stream) const
{
    constexpr auto kAll = static_cast<std::size_t>(-1);
    return s_library.count(m_handle, static_cast<unsigned>(stream), kAll);
}

std::string Report::text(Stream stream, std::size_t number, const wchar_t* field) const
{
    constexpr unsigned kText = 1;
    constexpr unsigned kByName = 0;
    return utf8(s_library.get(m_handle, static_cast<unsigned>(stream), number, field, kText, kByName));
}

double Report::number(Stream stream, std::size_t number, const wchar_t* field) const
{
    const std::string digits = text(stream, number, field);
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return error == std::errc() ? value : 0;
}

} // namespace orlen::MediaLibrary
