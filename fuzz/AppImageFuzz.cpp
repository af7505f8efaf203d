#include "Require.h"
#include "platform/text/PathText.h"
#include "tools/apps/AppImage.h"
#include "tools/apps/AppNames.h"

#include <algorithm>
#include <cstdint>

/// Any bytes may be a file's first ones, and any text its name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace orlen;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    require(!AppImage::isHead(bytes) || bytes.size() >= AppImage::kHeadLength);
    if (bytes.find('/') != std::string_view::npos || bytes.empty())
        return 0;
    const std::string name = AppImage::nameFromFile(bytes);
    require(!name.empty() && name.size() <= size);
    require(!PathText::isValidUtf8(bytes) || PathText::isValidUtf8(name));
    require(AppNames::forms(name).size() <= 4);
    require(!AppNames::isIdentifier(bytes) || std::count(bytes.begin(), bytes.end(), '.') >= 2);
    return 0;
}
