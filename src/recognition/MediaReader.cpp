#include "recognition/MediaReader.h"

#include "platform/images/ImageMessages.h"
#include "platform/text/PathText.h"
#include "recognition/MediaLibrary.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace orlen::MediaReader {

namespace {

using MediaLibrary::Report;
using MediaLibrary::Stream;

constexpr std::size_t kMostSounds = ImageMessages::kMostSounds;

int whole(double value)
{
    constexpr double kMost = 1e9;
    return static_cast<int>(std::lround(std::clamp(value, 0.0, kMost)));
}

/// The name that people know, where the library uses another.
std::string codecName(const Report& report, Stream stream, std::size_t number)
{
    constexpr std::pair<std::string_view, std::string_view> kKnown[] = {
        {"AVC", "H.264"}, {"HEVC", "H.265"}, {"VVC", "H.266"}};
    std::string name = report.text(stream, number, L"Format");
    if (name == "MPEG Audio" && report.text(stream, number, L"Format_Profile") == "Layer 3")
        return "MP3";
    for (const auto& [ours, known] : kKnown) {
        if (name == ours)
            return std::string(known);
    }
    return name;
}

/// Old kinds of tags have no encoding: the library takes what is UTF-8 for Latin-1, which has a letter for
/// each byte.
std::string misreadUtf8(std::string text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < 0x80) {
            bytes += text[i];
            continue;
        }
        if (byte > 0xc3 || i + 1 == text.size())
            return text;
        bytes += static_cast<char>((byte & 0x03U) << 6U | (static_cast<unsigned char>(text[++i]) & 0x3fU));
    }
    return PathText::isValidUtf8(bytes) ? bytes : text;
}

std::string tag(const Report& report, const wchar_t* field)
{
    return misreadUtf8(report.text(Stream::general, 0, field));
}

MediaFacts::Sound soundOf(const Report& report, std::size_t number)
{
    MediaFacts::Sound sound;
    sound.codec = codecName(report, Stream::sound, number);
    sound.language = report.text(Stream::sound, number, L"Language");
    sound.hertz = whole(report.number(Stream::sound, number, L"SamplingRate"));
    sound.channels = whole(report.number(Stream::sound, number, L"Channel(s)"));
    return sound;
}

void addPictures(MediaFacts& facts, const Report& report)
{
    facts.codec = codecName(report, Stream::video, 0);
    facts.width = whole(report.number(Stream::video, 0, L"Width"));
    facts.height = whole(report.number(Stream::video, 0, L"Height"));
    facts.frames = whole(report.number(Stream::video, 0, L"FrameRate"));
    const int turned = whole(report.number(Stream::video, 0, L"Rotation"));
    constexpr int kHalfTurn = 180;
    constexpr int kQuarterTurn = 90;
    if (turned % kHalfTurn == kQuarterTurn)
        std::swap(facts.width, facts.height);
}

} // namespace

std::optional<MediaFacts> read(int descriptor)
{
    if (!MediaLibrary::isLoaded())
        return MediaFacts{};
    const Report report(descriptor);
    const std::size_t films = report.count(Stream::video);
    const std::size_t sounds = report.count(Stream::sound);
    if (films + sounds == 0)
        return std::nullopt;
    MediaFacts facts;
    facts.length = std::chrono::milliseconds(whole(report.number(Stream::general, 0, L"Duration")));
    facts.title = tag(report, L"Title");
    facts.artist = tag(report, L"Performer");
    facts.album = tag(report, L"Album");
    facts.container = report.text(Stream::general, 0, L"Format");
    if (films > 0)
        addPictures(facts, report);
    else if (facts.artist.empty())
        facts.artist = tag(report, L"Director"); // what the library takes the artist of a WAV file for
    // The tags of a sound file are not part of its rate.
    const double bits = films == 0 ? report.number(Stream::sound, 0, L"BitRate") : 0;
    constexpr double kThousand = 1'000;
    facts.kilobits =
        whole((bits > 0 ? bits : report.number(Stream::general, 0, L"OverallBitRate")) / kThousand);
    for (std::size_t i = 0; i < std::min(sounds, kMostSounds); ++i)
        facts.sounds.push_back(soundOf(report, i));
    return facts;
}

} // namespace orlen::MediaReader
