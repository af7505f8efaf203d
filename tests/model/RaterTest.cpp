#include "model/Rater.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orlen {
namespace {

FileEntry entry(std::string path, const std::string& note = {})
{
    FileEntry made;
    made.path = std::move(path);
    made.size = 1;
    addNote(made, Message::verbatim(note));
    return made;
}

Finding rated(FindingKind kind, std::vector<FileEntry> items)
{
    return Rater::rate({Finding(kind, std::move(items))}).front();
}

const char* const kDocument = "Name suggests an important document (invoice, tax, contract…)";
const char* const kInstaller = "Installer — you can download it again";

TEST(RaterTest, entryIsRatedByTheFirstRuleThatApplies)
{
    struct Case {
        const char* name;
        FindingKind kind;
        const char* path;
        std::string earlierNote;
        std::optional<Rating> rating;
        std::string note;
    };
    using enum FindingKind;
    const std::string sync = "Used for iCloud sync. Removing it can force a slow re-sync.";
    const Case cases[] = {
        {"location", caches, "/Users/a/Library/Caches/CloudKit", {}, Rating::keep, sync},
        {"location not only at home", caches, "/x/Library/Caches/CloudKit/y", {}, Rating::keep, sync},
        {"location after a note", caches, "/Library/Caches/CloudKit", "x", Rating::keep, "x · " + sync},
        {"case matters", caches, "/library/caches/cloudkit", {}, {}, {}},
        {"location before name", largeFiles, "/h/tax passwords.kdbx", {}, Rating::keep, "Password database."},
        {"location before installer",
         oldDownloads,
         "/d/Library/Caches/Google/a.deb",
         {},
         Rating::safe,
         "Browser cache, rebuilt as you browse."},
        {"document", oldDownloads, "/d/Invoice_2023.pdf", {}, Rating::keep, kDocument},
        {"document after a note", trash, "/t/visa.png", "x", Rating::keep, std::string("x · ") + kDocument},
        {"only the last component counts", largeFiles, "/h/tax/video.mov", "x", {}, "x"},
        {"caches have no documents", caches, "/h/.cache/tax", {}, {}, {}},
        {"logs have no documents", logs, "/h/bank.log", {}, {}, {}},
        {"document before installer", oldDownloads, "/d/Tax 2024 Setup.dmg", {}, Rating::keep, kDocument},
        {"installer replaces the note", oldDownloads, "/d/Setup.DMG", "x", Rating::safe, kInstaller},
        {"package", oldDownloads, "/d/tool_1.2_amd64.deb", {}, Rating::safe, kInstaller},
        {"the app itself is no installer", oldDownloads, "/d/Tool.AppImage", "x", {}, "x"},
        {"extension needs its dot", oldDownloads, "/d/dmg", {}, {}, {}},
        {"a hidden name is no extension", oldDownloads, "/d/.iso", {}, {}, {}},
        {"installer elsewhere", largeFiles, "/d/Setup.dmg", "x", {}, "x"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Finding finding = rated(c.kind, {entry(c.path, c.earlierNote)});
        EXPECT_EQ(finding.items.front().rating, c.rating);
        EXPECT_EQ(noteOf(finding.items.front()).base(), c.note);
    }
}

TEST(RaterTest, scannersRatingIsNeverMadeLessCareful)
{
    for (const char* path : {"/h/code/target", "/h/Library/Caches/Google/target"}) {
        FileEntry tagged = entry(path, "Marked as a cache");
        tagged.rating = Rating::review;
        const FileEntry result = rated(FindingKind::caches, {tagged}).items.front();
        EXPECT_EQ(result.rating, Rating::review) << path;
        EXPECT_TRUE(noteOf(result).base().starts_with("Marked as a cache")) << path;
    }
}

TEST(RaterTest, findingOfKeptEntriesIsKept)
{
    const FileEntry bird = entry("/Library/Caches/com.apple.bird/a");
    const Finding kept = rated(FindingKind::caches, {bird, entry("/Library/Caches/CloudKit")});
    EXPECT_EQ(kept.rating, Rating::keep);
    EXPECT_EQ(kept.reason.base(), "Every item here looks important.");

    const Finding mixed = rated(FindingKind::caches, {bird, entry("/Library/Caches/other")});
    EXPECT_EQ(mixed.rating, Rating::safe);
    EXPECT_TRUE(mixed.reason.base().starts_with("Apps rebuild their caches"));

    const Finding empty = rated(FindingKind::caches, {});
    EXPECT_EQ(empty.rating, Rating::safe);
}

TEST(RaterTest, listKeepsItsLengthOrderAndOtherFields)
{
    EXPECT_TRUE(Rater::rate({}).empty());

    std::vector<Finding> findings;
    for (const FindingKind kind : allKinds())
        findings.emplace_back(kind, std::vector{entry("/h/plain")});
    const std::vector<Finding> result = Rater::rate(findings);
    ASSERT_EQ(result.size(), findings.size());
    for (std::size_t i = 0; i < findings.size(); ++i) {
        SCOPED_TRACE(findings[i].id());
        EXPECT_NE(result[i].rating, Rating::keep);
        EXPECT_FALSE(result[i].reason.empty());
        EXPECT_NE(result[i].reason.base(), "Check before cleaning.");
        findings[i].rating = result[i].rating;
        findings[i].reason = result[i].reason;
        EXPECT_EQ(result[i], findings[i]);
    }
}

} // namespace
} // namespace orlen
