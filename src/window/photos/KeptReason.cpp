#include "window/photos/KeptReason.h"

#include "app/AppTexts.h"
#include "scan/ScanTexts.h"
#include "window/WindowTexts.h"

#include <algorithm>
#include <variant>

namespace orlen::KeptReason {

namespace {

/// What is noted of another photo, and what that says of the kept one. What weighs most comes first.
struct Row {
    Text note;
    Text reason;
};
constexpr Row kRows[] = {
    {AppTexts::kYouKeep, WindowTexts::kKeptByChoice},
    {ScanTexts::kSofterShot, WindowTexts::kKeptSharpest},
    {ScanTexts::kSmallerPicture, WindowTexts::kKeptMostPixels},
    {ScanTexts::kColourlessPicture, WindowTexts::kKeptInColour},
    {ScanTexts::kFewerColours, WindowTexts::kKeptAllColours},
    {ScanTexts::kNoCameraData, WindowTexts::kKeptCameraData},
    {ScanTexts::kMoreCompressed, WindowTexts::kKeptLeastCompressed},
    {ScanTexts::kSmallerFile, WindowTexts::kKeptLargestFile},
    {ScanTexts::kSmallerShot, WindowTexts::kKeptLargestFile},
};

bool says(const Message& message, const Text& note)
{
    if (message.text == note)
        return true;
    return std::ranges::any_of(message.places, [&](const Place& place) {
        const auto* several = std::get_if<Several>(&place.value);
        return several != nullptr &&
               std::ranges::any_of(several->messages, [&](const Message& part) { return says(part, note); });
    });
}

} // namespace

Text of(const KeptSet& set, const std::vector<FileEntry>& entries)
{
    for (const auto& [note, reason] : kRows) {
        const auto isSaid = [&entries, said = note](std::size_t number) {
            return says(noteOf(entries[number]), said);
        };
        if (std::ranges::any_of(set.entries, isSaid))
            return reason;
    }
    return WindowTexts::kKeptEqual;
}

} // namespace orlen::KeptReason
