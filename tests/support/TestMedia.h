#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// Sound files and films, put together from the few bytes that tell of them. They play nothing.
namespace orlen::TestMedia {

/// Two seconds of silence, 8,000 bytes each, by "Nobody" with the title "Quieté".
[[nodiscard]] std::string wave();
/// 100 frames of 128 kbit/s, with an old-fashioned tag: "Song" by "Singer".
[[nodiscard]] std::string mp3();
/// Three seconds, 44,100 Hz, stereo, of so many bytes.
[[nodiscard]] std::string flac(std::size_t bytes);

/// A Matroska film of 90 minutes, 1920 by 1080 pixels, 25 frames a second, H.264, with the title "Evening"
/// and sound in German (AAC, stereo) and French (AC-3, six channels), both 48,000 Hz.
[[nodiscard]] std::string matroska();
/// An MPEG-4 film of ten seconds, 640 by 480 pixels, H.264, with sound in English (AAC, stereo, 44,100 Hz).
/// A phone that was held upright stores it sideways.
[[nodiscard]] std::string mpeg4(bool isSideways = false);
/// An AVI film of four seconds, 320 by 240 pixels, 10 frames a second, XviD, without sound.
[[nodiscard]] std::string avi();
/// A transport stream of half a second: its tables name MPEG video and a sound track in Italian.
[[nodiscard]] std::string transportStream();

} // namespace orlen::TestMedia
