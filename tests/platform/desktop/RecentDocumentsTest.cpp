#include "platform/desktop/RecentDocuments.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

using namespace std::chrono;

const TimePoint kVisit = TimePoint(sys_days(2025y / March / 1)) + hours(9) + minutes(30);

std::string list(std::string_view bookmarks)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE xbel PUBLIC "a" "b">
<xbel version="1.0">)" +
           std::string(bookmarks) + "</xbel>";
}

std::string bookmark(std::string_view reference, std::string_view visited)
{
    return "<bookmark href=\"" + std::string(reference) + "\" visited=\"" + std::string(visited) + "\"/>";
}

TEST(RecentDocumentsTest, referencesAreDecodedToPaths)
{
    const TempHome home;
    struct Case {
        const char* name;
        const char* reference;
        const char* path;
        bool isFound;
    };
    constexpr Case cases[] = {
        {"plain", "file:///data/a.txt", "/data/a.txt", true},
        {"with this machine's name", "file://localhost/data/a.txt", "/data/a.txt", true},
        {"a space and a percent sign", "file:///data/a%20b%25.txt", "/data/a b%.txt", true},
        {"bytes that are not UTF-8", "file:///data/%FFa",
         "/data/\xFF"
         "a",
         true},
        {"escapes in small letters", "file:///data/%c3%a4", "/data/\xC3\xA4", true},
        {"an ampersand of the XML", "file:///data/a&amp;b", "/data/a&b", true},
        {"another machine", "file://server/data/a.txt", "/data/a.txt", false},
        {"another scheme", "https:///data/a.txt", "/data/a.txt", false},
        {"an escape cut off", "file:///data/a%2", "/data/a", false},
        {"an escape that is none", "file:///data/a%zz", "/data/a%zz", false},
        {"a zero byte", "file:///data/a%00b", "/data/a", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto recent = RecentDocuments::parse(list(bookmark(c.reference, "2025-03-01T09:30:00Z")));
        EXPECT_EQ(recent.lastVisit(c.path), c.isFound ? std::optional(kVisit) : std::nullopt);
    }
}

TEST(RecentDocumentsTest, visitsAreReadWithAndWithoutFractions)
{
    struct Case {
        const char* visited;
        bool isRead;
    };
    constexpr Case cases[] = {
        {"2025-03-01T09:30:00Z", true},   {"2025-03-01T09:30:00.123456Z", true},
        {"2025-03-01T09:30:00.5", false}, {"2025-03-01", false},
        {"2025-02-30T09:30:00Z", false},  {"", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.visited);
        const auto recent = RecentDocuments::parse(list(bookmark("file:///a", c.visited)));
        EXPECT_EQ(recent.lastVisit("/a"), c.isRead ? std::optional(kVisit) : std::nullopt);
    }
}

TEST(RecentDocumentsTest, latestOfSeveralVisitsCounts)
{
    const auto recent = RecentDocuments::parse(list(bookmark("file:///a", "2024-01-01T00:00:00Z") +
                                                    bookmark("file:///a", "2025-03-01T09:30:00Z") +
                                                    bookmark("file:///a", "2023-01-01T00:00:00Z")));
    EXPECT_EQ(recent.lastVisit("/a"), kVisit);
}

TEST(RecentDocumentsTest, resolvedHomeFolderIsWrittenAsTheHomeFolder)
{
    const TempHome home;
    TempHome::reloadPlaces([](Places& places) { places.resolvedHome = "/real/home"; });
    const auto recent = RecentDocuments::parse(list(bookmark("file:///real/home/a", "2025-03-01T09:30:00Z")));
    EXPECT_EQ(recent.lastVisit(home.path("a")), kVisit);
}

TEST(RecentDocumentsTest, missingBrokenOrDeeplyNestedListIsEmptyOrPartial)
{
    const TempHome home;
    EXPECT_FALSE(RecentDocuments::read(home.path("missing")).lastVisit("/a"));
    EXPECT_FALSE(RecentDocuments::read(home.folder("folder")).lastVisit("/a"));
    EXPECT_FALSE(RecentDocuments::parse("").lastVisit("/a"));
    EXPECT_FALSE(RecentDocuments::parse("<xbel><bookmark href=\"file:///a\" visited=").lastVisit("/a"));
    std::string nested;
    for (int i = 0; i < 200'000; ++i)
        nested += "<a>";
    EXPECT_FALSE(RecentDocuments::parse(nested).lastVisit("/a"));
    const std::string whole = home.file("list", list(bookmark("file:///a", "2025-03-01T09:30:00Z")));
    EXPECT_EQ(RecentDocuments::read(whole).lastVisit("/a"), kVisit);
}

} // namespace
} // namespace orlen
