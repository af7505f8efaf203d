#include "model/Finding.h"

#include <gtest/gtest.h>

#include <limits>

namespace orlen {
namespace {

FileEntry entry(const char* path, std::int64_t size, std::optional<Rating> rating = std::nullopt)
{
    FileEntry made;
    made.path = path;
    made.size = size;
    made.rating = rating;
    return made;
}

TEST(FindingTest, entriesAreSortedLargestFirstAndEqualOnesKeepTheirOrder)
{
    const Finding finding(FindingKind::logs,
                          {entry("/a", 5), entry("/b", 7), entry("/c", 5), entry("/d", 9)});
    std::string order;
    for (const FileEntry& item : finding.items)
        order += item.path;
    EXPECT_EQ(order, "/d/b/a/c");
}

TEST(FindingTest, startsAsReviewWithTheTextsOfItsKind)
{
    const Finding finding(FindingKind::npm, {});
    EXPECT_EQ(finding.rating, Rating::review);
    EXPECT_TRUE(finding.reason.empty());
    EXPECT_EQ(finding.id(), "npm");
    EXPECT_EQ(finding.title.base(), "npm & Yarn cache");
    EXPECT_EQ(finding.category, OrlenCategory::developer);
    EXPECT_EQ(finding.totalSize(), 0);
    EXPECT_EQ(finding.safeSize(), 0);
}

TEST(FindingTest, safeSizeGoesByEachEntrysEffectiveRating)
{
    struct Case {
        const char* name;
        FindingKind kind;
        Rating rating;
        std::vector<FileEntry> items;
        std::int64_t safe;
    };
    const Case cases[] = {
        {"own rating beats the finding's",
         FindingKind::caches,
         Rating::safe,
         {entry("/a", 1), entry("/b", 2, Rating::keep), entry("/c", 4, Rating::review)},
         1},
        {"safe entries of a review finding",
         FindingKind::oldDownloads,
         Rating::review,
         {entry("/a", 1), entry("/b", 2, Rating::safe), entry("/c", 4, Rating::safe)},
         6},
        {"the Trash has none", FindingKind::trash, Rating::safe, {entry("/a", 8, Rating::safe)}, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Finding finding(c.kind, c.items);
        finding.rating = c.rating;
        EXPECT_EQ(finding.safeSize(), c.safe);
        EXPECT_EQ(finding.totalSize(), sizeOf(c.items));
        EXPECT_EQ(finding.cleanable, c.kind != FindingKind::trash);
    }
}

TEST(FindingDeathTest, sumThatDoesNotFitStopsTheProgram)
{
    const std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(sizeOf({entry("/a", largest - 1), entry("/b", 1)}), largest);
    EXPECT_DEATH((void)sizeOf({entry("/a", largest), entry("/b", 1)}), "does not fit");
    Finding finding(FindingKind::caches, {entry("/a", largest), entry("/b", 1)});
    finding.rating = Rating::safe;
    EXPECT_DEATH((void)finding.safeSize(), "does not fit");
}

TEST(FindingTest, littleFromKnownPlacesIsNotNotable)
{
    const auto finding = [](FindingKind kind, std::int64_t size) {
        return Finding(kind, {{.path = "/h/a", .size = size}});
    };
    EXPECT_FALSE(finding(FindingKind::logs, 999'999).isNotable());
    EXPECT_FALSE(finding(FindingKind::oldDownloads, 1).isNotable());
    EXPECT_TRUE(finding(FindingKind::logs, 1'000'000).isNotable());
    EXPECT_TRUE(finding(FindingKind::screenshots, 1).isNotable());
    EXPECT_TRUE(finding(FindingKind::duplicates, 1).isNotable());
}

} // namespace
} // namespace orlen
