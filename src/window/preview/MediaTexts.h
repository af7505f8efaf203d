#pragma once

#include "platform/images/MediaFacts.h"

#include <QString>

/// What a sound file or a film tells of itself, in words. Pure; any thread.
namespace orlen::MediaTexts {

/// Title, artist and album, one below the other.
[[nodiscard]] QString tags(const MediaFacts& facts);

/// What it is made of, one below the other: "Matroska · H.264 · 25 fps", then "AAC · 48 kHz · stereo ·
/// German" for its sound tracks. Tracks that differ in their language alone share a line, and there are four
/// lines at the most.
[[nodiscard]] QString streams(const MediaFacts& facts);

} // namespace orlen::MediaTexts
