#include "Require.h"
#include "platform/images/ArchiveMessage.h"
#include "platform/images/ImageMessages.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>
#include <vector>

/// Whatever a recognizer says, what is believed of it is in range, and says the same again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace orlen;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    constexpr PixelSize kMost{96, 64};
    if (const auto picture = ImageMessages::decodedPictureAnswer(bytes, kMost)) {
        require(ImageMessages::encoded(*picture) == bytes);
        require(!picture->sizes ||
                (picture->sizes->small.width <= kMost.width && picture->sizes->small.height <= kMost.height));
    }
    if (const auto contents = ArchiveMessage::decoded(std::span(data, size))) {
        const std::vector<std::uint8_t> again = ArchiveMessage::encoded(*contents);
        require(std::equal(again.begin(), again.end(), data, data + size));
    }
    const auto answer = ImageMessages::decodedAnswer(bytes);
    if (!answer)
        return 0;
    require(ImageMessages::encoded(*answer) == bytes);
    if (!answer->analysis)
        return 0;
    require(answer->analysis->width >= 0 && answer->analysis->height >= 0);
    require(std::isfinite(answer->analysis->sharpness));
    for (const ImageLabel& label : answer->analysis->labels) {
        require(label.confidence >= 0 && label.confidence <= 1);
        require(PathText::isValidUtf8(label.identifier));
    }
    // Any bytes give some tile, whose packing fits.
    if (answer->analysis->print)
        require(TileCode::packed(answer->analysis->print->tile()).size() <= TileCode::kMostBytes);
    return 0;
}
