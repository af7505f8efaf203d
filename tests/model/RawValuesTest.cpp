#include "model/FindingKind.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace orlen {
namespace {

TEST(RawValuesTest, everyCaseComesBackFromItsOwnRawValue)
{
    std::set<FindingKind> kinds;
    for (const FindingKind kind : allKinds()) {
        EXPECT_EQ(kindFromRaw(rawValue(kind)), kind) << rawValue(kind);
        kinds.insert(kind);
    }
    EXPECT_EQ(kinds.size(), kFindingKinds);
}

TEST(RawValuesTest, textThatNamesNoCaseGivesNothing)
{
    for (const std::string_view raw : {"", "Caches", "cache", "caches ", " safe", "Safe", "KEEP", "Apps"}) {
        SCOPED_TRACE(raw);
        EXPECT_FALSE(kindFromRaw(raw));
    }
    EXPECT_FALSE(kindFromRaw(std::string_view("caches\0", 7)));
}

TEST(RawValuesTest, catalogueRowsBelongToTheirKinds)
{
    // One kind of each category, so that a row that slipped shows.
    EXPECT_EQ(meta(FindingKind::caches).title.base(), "App caches");
    EXPECT_EQ(meta(FindingKind::logs).category, OrlenCategory::system);
    EXPECT_EQ(meta(FindingKind::gradle).category, OrlenCategory::developer);
    EXPECT_EQ(meta(FindingKind::languagePacks).category, OrlenCategory::apps);
    EXPECT_EQ(meta(FindingKind::oldFiles).symbol, "clock.fill");
    EXPECT_EQ(meta(FindingKind::blurry).category, OrlenCategory::photos);
    for (const FindingKind kind : allKinds()) {
        EXPECT_TRUE(meta(kind).explanation.base().ends_with('.')) << rawValue(kind);
        EXPECT_FALSE(meta(kind).symbol.empty()) << rawValue(kind);
    }
}

} // namespace
} // namespace orlen
