#include "support/TestMedia.h"

#include <bit>
#include <string_view>

namespace orlen::TestMedia {

namespace {

/// The one with this number, counted from the lowest.
char byteOf(std::uint64_t value, int number)
{
    constexpr int kBits = 8;
    return number < static_cast<int>(sizeof value) ? static_cast<char>(value >> (kBits * number) & 0xff)
                                                   : '\0';
}

std::string littleEndian(std::uint64_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += byteOf(value, i);
    return text;
}

std::string bigEndian(std::uint64_t value, int bytes)
{
    std::string text;
    for (int i = bytes - 1; i >= 0; --i)
        text += byteOf(value, i);
    return text;
}

std::string zeros(std::size_t count)
{
    return std::string(count, '\0');
}

std::string padded(std::string_view text, std::size_t length)
{
    std::string field(text);
    field.resize(length, '\0');
    return field;
}

/// Of RIFF: name, length, content, to an even length.
std::string chunk(const std::string& name, const std::string& content)
{
    return name + littleEndian(content.size(), 4) + content + zeros(content.size() % 2);
}

/// Of Matroska: number, length, content.
std::string element(std::uint32_t number, const std::string& content)
{
    int bytes = 1;
    while (bytes < 4 && number >> (8 * bytes) != 0)
        ++bytes;
    constexpr std::uint64_t kEightBytes = 1ULL << 56;
    return bigEndian(number, bytes) + bigEndian(kEightBytes | content.size(), 8) + content;
}

std::string element(std::uint32_t number, std::uint64_t value)
{
    return element(number, bigEndian(value, 8));
}

std::string element(std::uint32_t number, double value)
{
    return element(number, bigEndian(std::bit_cast<std::uint64_t>(value), 8));
}

std::string matroskaSound(std::uint64_t number, const std::string& codec, const std::string& language,
                          std::uint64_t channels)
{
    return element(0xae, element(0xd7, number) + element(0x73c5, number) + element(0x83, std::uint64_t{2}) +
                             element(0x86, codec) + element(0x22b59c, language) +
                             element(0xe1, element(0xb5, 48'000.0) + element(0x9f, channels)));
}

/// Of MPEG-4: length, name, content.
std::string box(const std::string& name, const std::string& content)
{
    return bigEndian(content.size() + 8, 4) + name + content;
}

constexpr std::uint32_t kOne = 0x10000; ///< with 16 digits behind the point

std::string matrix(bool isSideways)
{
    const auto row = [](std::uint32_t a, std::uint32_t b, std::uint32_t c) {
        return bigEndian(a, 4) + bigEndian(b, 4) + bigEndian(c, 4);
    };
    constexpr std::uint32_t kLast = 0x40000000;
    return isSideways ? row(0, kOne, 0) + row(0 - kOne, 0, 0) + row(480 * kOne, 0, kLast)
                      : row(kOne, 0, 0) + row(0, kOne, 0) + row(0, 0, kLast);
}

struct Track {
    std::uint64_t number;
    std::string handler;
    std::string language; ///< three letters
    std::string head;     ///< "vmhd" or "smhd"
    std::string sample;   ///< how its samples are stored
    std::uint64_t width = 0;
    std::uint64_t height = 0;
    bool isSideways = false;
};

constexpr std::uint64_t kSamples = 300;
constexpr std::uint64_t kTicks = 1'000; ///< a second
constexpr std::uint64_t kLong = 10'000; ///< in ticks

std::string track(const Track& track)
{
    std::uint64_t language = 0;
    for (const char letter : track.language)
        language = language << 5U | static_cast<std::uint64_t>(letter - 0x60);
    const std::string table = box("stsd", bigEndian(0, 4) + bigEndian(1, 4) + track.sample) +
                              box("stts", bigEndian(0, 4) + bigEndian(1, 4) + bigEndian(kSamples, 4) +
                                              bigEndian(kLong / kSamples, 4)) +
                              box("stsc", bigEndian(0, 4) + bigEndian(1, 4) + bigEndian(1, 4) +
                                              bigEndian(kSamples, 4) + bigEndian(1, 4)) +
                              box("stsz", bigEndian(0, 4) + bigEndian(100, 4) + bigEndian(kSamples, 4)) +
                              box("stco", bigEndian(0, 4) + bigEndian(1, 4) + bigEndian(32, 4));
    const std::string data =
        box("dinf", box("dref", bigEndian(0, 4) + bigEndian(1, 4) + box("url ", bigEndian(1, 4))));
    const std::string media =
        box("mdhd", bigEndian(0, 12) + bigEndian(kTicks, 4) + bigEndian(kLong, 4) + bigEndian(language, 2) +
                        zeros(2)) +
        box("hdlr", zeros(8) + track.handler + zeros(13)) +
        box("minf", box(track.head, track.head == "vmhd" ? bigEndian(1, 4) + zeros(8) : zeros(8)) + data +
                        box("stbl", table));
    const std::string head = bigEndian(7, 4) + zeros(8) + bigEndian(track.number, 4) + zeros(4) +
                             bigEndian(kLong, 4) + zeros(8) + zeros(8) + matrix(track.isSideways) +
                             bigEndian(track.width * kOne, 4) + bigEndian(track.height * kOne, 4);
    return box("trak", box("tkhd", head) + box("mdia", media));
}

/// What an AAC decoder has to know: 44,100 Hz, stereo.
std::string aacHead()
{
    const auto part = [](std::uint64_t kind, const std::string& content) {
        return bigEndian(kind, 1) + bigEndian(content.size(), 1) + content;
    };
    const std::string config = bigEndian(0x4015, 2) + zeros(3) + bigEndian(128'000, 4) +
                               bigEndian(128'000, 4) + part(5, bigEndian(0x1210, 2));
    return part(3, bigEndian(2, 2) + zeros(1) + part(4, config) + part(6, bigEndian(2, 1)));
}

/// The three tables of a transport stream end with this sum of what stands before.
std::uint32_t checkSum(const std::string& bytes)
{
    std::uint32_t sum = 0xffffffff;
    for (const char byte : bytes) {
        sum ^= static_cast<std::uint32_t>(static_cast<unsigned char>(byte)) << 24U;
        for (int bit = 0; bit < 8; ++bit)
            sum = sum << 1U ^ ((sum & 0x80000000U) != 0 ? 0x04c11db7U : 0U);
    }
    return sum;
}

constexpr std::size_t kPacket = 188;

std::string packet(std::uint64_t stream, std::uint64_t count, const std::string& content)
{
    std::string bytes = "\x47" + bigEndian(0x4000 | stream, 2) + bigEndian(0x10 | count % 16, 1) + content;
    bytes.resize(kPacket, '\xff');
    return bytes;
}

/// A table in a packet of its own.
std::string table(std::uint64_t stream, std::uint64_t count, std::uint64_t kind, const std::string& content)
{
    const std::string head = bigEndian(kind, 1) + bigEndian(0xb000 | (content.size() + 9), 2) +
                             bigEndian(1, 2) + bigEndian(0xc1, 1) + bigEndian(0, 2) + content;
    return packet(stream, count, bigEndian(0, 1) + head + bigEndian(checkSum(head), 4));
}

} // namespace

std::string wave()
{
    const std::string format = littleEndian(1, 2) + littleEndian(1, 2) + littleEndian(8'000, 4) +
                               littleEndian(8'000, 4) + littleEndian(1, 2) + littleEndian(8, 2);
    return chunk("RIFF",
                 "WAVE" + chunk("fmt ", format) + chunk("data", std::string(16'000, '\x80')) +
                     chunk("LIST", "INFO" + chunk("INAM", "Quiet\xc3\xa9") + chunk("IART", "Nobody")));
}

std::string mp3()
{
    const std::string frame = padded("\xff\xfb\x90", 417);
    std::string file;
    for (int i = 0; i < 100; ++i)
        file += frame;
    return file + padded(padded("TAGSong", 33) + "Singer", 128);
}

std::string flac(std::size_t bytes)
{
    constexpr std::uint64_t kRate = 44'100;
    constexpr std::uint64_t kStereo = 1;
    constexpr std::uint64_t kSixteenBits = 15;
    const std::string info = bigEndian(4096, 2) + bigEndian(4096, 2) + zeros(6) +
                             bigEndian(kRate << 44U | kStereo << 41U | kSixteenBits << 36U | 3 * kRate, 8) +
                             zeros(16);
    std::string file = "fLaC" + bigEndian(0x80, 1) + bigEndian(info.size(), 3) + info + "\xff\xf8";
    file.resize(bytes, '\0');
    return file;
}

std::string matroska()
{
    const std::string head = element(0x4286, std::uint64_t{1}) + element(0x42f7, std::uint64_t{1}) +
                             element(0x42f2, std::uint64_t{4}) + element(0x42f3, std::uint64_t{8}) +
                             element(0x4282, "matroska") + element(0x4287, std::uint64_t{4}) +
                             element(0x4285, std::uint64_t{2});
    const std::string about = element(0x2ad7b1, std::uint64_t{1'000'000}) + element(0x4489, 5'400'000.0) +
                              element(0x7ba9, "Evening");
    const std::string video = element(
        0xae, element(0xd7, std::uint64_t{1}) + element(0x73c5, std::uint64_t{1}) +
                  element(0x83, std::uint64_t{1}) + element(0x86, "V_MPEG4/ISO/AVC") +
                  element(0x23e383, std::uint64_t{40'000'000}) +
                  element(0xe0, element(0xb0, std::uint64_t{1920}) + element(0xba, std::uint64_t{1080})));
    const std::string tracks =
        video + matroskaSound(2, "A_AAC", "ger", 2) + matroskaSound(3, "A_AC3", "fre", 6);
    return element(0x1a45dfa3, head) +
           element(0x18538067, element(0x1549a966, about) + element(0x1654ae6b, tracks));
}

std::string mpeg4(bool isSideways)
{
    const std::string picture =
        box("avc1", zeros(6) + bigEndian(1, 2) + zeros(16) + bigEndian(640, 2) + bigEndian(480, 2) +
                        bigEndian(72 * kOne, 4) + bigEndian(72 * kOne, 4) + zeros(4) + bigEndian(1, 2) +
                        zeros(32) + bigEndian(24, 2) + "\xff\xff");
    const std::string sound =
        box("mp4a", zeros(6) + bigEndian(1, 2) + zeros(8) + bigEndian(2, 2) + bigEndian(16, 2) + zeros(4) +
                        bigEndian(44'100ULL * kOne, 4) + box("esds", bigEndian(0, 4) + aacHead()));
    const std::string head = bigEndian(0, 12) + bigEndian(kTicks, 4) + bigEndian(kLong, 4) +
                             bigEndian(kOne, 4) + bigEndian(0x0100, 2) + zeros(10) + matrix(false) +
                             zeros(24) + bigEndian(3, 4);
    return box("ftyp", "isom" + bigEndian(512, 4) + "isom") +
           box("moov", box("mvhd", head) + track({1, "vide", "und", "vmhd", picture, 640, 480, isSideways}) +
                           track({2, "soun", "eng", "smhd", sound})) +
           box("mdat", zeros(2 * kSamples * 100));
}

std::string avi()
{
    const std::string main = littleEndian(100'000, 4) + zeros(8) + littleEndian(0x10, 4) +
                             littleEndian(40, 4) + zeros(4) + littleEndian(1, 4) + zeros(4) +
                             littleEndian(320, 4) + littleEndian(240, 4) + zeros(16);
    const std::string stream = "vidsXVID" + zeros(12) + littleEndian(1, 4) + littleEndian(10, 4) + zeros(4) +
                               littleEndian(40, 4) + zeros(20);
    const std::string format = littleEndian(40, 4) + littleEndian(320, 4) + littleEndian(240, 4) +
                               littleEndian(1, 2) + littleEndian(24, 2) + "XVID" +
                               littleEndian(320 * 240 * 3, 4) + zeros(16);
    std::string frames;
    for (int i = 0; i < 40; ++i)
        frames += chunk("00dc", zeros(100));
    return chunk(
        "RIFF", "AVI " +
                    chunk("LIST", "hdrl" + chunk("avih", main) +
                                      chunk("LIST", "strl" + chunk("strh", stream) + chunk("strf", format))) +
                    chunk("LIST", "movi" + frames));
}

std::string transportStream()
{
    constexpr std::uint64_t kTable = 0x100;
    constexpr std::uint64_t kVideo = 0x101;
    constexpr std::uint64_t kSound = 0x102;
    const std::string language = bigEndian(0x0a, 1) + bigEndian(4, 1) + "ita" + zeros(1);
    const std::string streams =
        bigEndian(0xe000 | kVideo, 2) + bigEndian(0xf000, 2) + // no remarks on the whole
        bigEndian(2, 1) + bigEndian(0xe000 | kVideo, 2) + bigEndian(0xf000, 2) + bigEndian(3, 1) +
        bigEndian(0xe000 | kSound, 2) + bigEndian(0xf000 | language.size(), 2) + language;
    const auto start = [](std::uint64_t code) { return bigEndian(0x100 | code, 4); };
    const std::string time = bigEndian(0x21, 1) + bigEndian(0x00010001, 4);
    const std::string picture = start(0xe0) + zeros(2) + bigEndian(0x808005, 3) + time +      // begins here
                                start(0xb3) + bigEndian(720U << 20U | 576U << 8U | 0x23, 4) + // 25 a second
                                bigEndian(0x0fff'e000 | 0x2000, 4) + start(0xb5) + bigEndian(0x14820001, 4) +
                                zeros(2) + start(0xb8) + bigEndian(0x00080040, 4) + start(0) +
                                bigEndian(0x000fffff8, 4) + start(0xb5) + bigEndian(0x8ffff380, 4) +
                                zeros(1) + start(1);
    std::string file;
    for (std::uint64_t i = 0; i < 200; ++i) {
        file += table(0, i, 0, bigEndian(1, 2) + bigEndian(0xe000 | kTable, 2));
        file += table(kTable, i, 2, streams);
        file += packet(kVideo, i, picture);
    }
    return file;
}

} // namespace orlen::TestMedia
