#include "Require.h"
#include "platform/images/ImageMessages.h"
#include "scan/photos/PictureRecords.h"

#include <cstdint>

namespace {

using namespace orlen;

/// What is believed of a file says the same again, and ends where the damage begins.
void readAll(std::string_view bytes)
{
    std::string again(PictureRecords::header());
    for (const PictureRecords::Record& record : PictureRecords::decoded(bytes)) {
        require(record.answer.size() <= ImageMessages::kLongest);
        again += PictureRecords::encoded(record);
        (void)ImageMessages::decodedAnswer(record.answer);
    }
    require(again == PictureRecords::header() || bytes.starts_with(again));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    readAll(bytes);
    readAll(std::string(PictureRecords::header()) + std::string(bytes));
    // Behind records whose checksums hold, which no fuzzer finds by itself.
    const std::string answer(bytes.substr(0, ImageMessages::kLongest));
    const std::string good =
        std::string(PictureRecords::header()) + PictureRecords::encoded({{{1, 2}, 3, {}}, {}, answer});
    require(PictureRecords::decoded(good).size() == 1);
    require(!PictureRecords::decoded(good + std::string(bytes)).empty());
    readAll(good + std::string(bytes));
    return 0;
}
