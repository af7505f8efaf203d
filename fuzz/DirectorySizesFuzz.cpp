#include "Require.h"
#include "clean/trash/DirectorySizes.h"
#include "platform/text/PercentCoding.h"

#include <cstdint>
#include <vector>

/// The lines that are kept stand as they were; those that are left out take nothing with them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace orlen;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::vector<std::string> names;
    const auto all = DirectorySizes::linesOf(text, [&](const std::string& name) {
        require(name.size() <= size);
        names.push_back(name);
        return true;
    });
    require(all == text || all == std::string(text) + '\n');

    bool isEven = false;
    const auto alternate = [&](const std::string& /*name*/) { return isEven = !isEven; };
    const std::string half = DirectorySizes::linesOf(all, alternate);
    isEven = true;
    require(half.size() + DirectorySizes::linesOf(all, alternate).size() == all.size());

    const std::string own = "4096 1 " + PercentCoding::encoded(text) + '\n';
    const auto isOwn = [&](const std::string& name) { return name == text; };
    require(DirectorySizes::linesOf(own + all, isOwn).starts_with(own));
    return 0;
}
