#include "Require.h"
#include "platform/desktop/RecentDocuments.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/text/PercentCoding.h"

#include <cstdint>

namespace {

std::string bookmark(const std::string& href, const std::string& visited)
{
    return "<bookmark href=\"" + href + "\" visited=\"" + visited + "\"/>";
}

} // namespace

/// Any list is read without harm, and a document that is entered by the rules is found, whatever its name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace orlen;
    const std::string text(reinterpret_cast<const char*>(data), size);
    const RecentDocuments any = RecentDocuments::parse(text);
    require(!any.lastVisit("relative") && !any.lastVisit("/a/../b"));

    const std::string path = "/a/" + text;
    const std::string href = "file://" + PercentCoding::encoded(path);
    const RecentDocuments own = RecentDocuments::parse("<xbel>" + bookmark(href, "2025-03-01T09:30:00.5Z") +
                                                       bookmark(href, "2025-02-01T09:30:00Z") + "</xbel>");
    const auto visit = own.lastVisit(Places::current().normalized(path));
    if (text.find('\0') == std::string::npos)
        require(visit == timeFromIso("2025-03-01T09:30:00Z"));
    else
        require(!visit);
    return 0;
}
