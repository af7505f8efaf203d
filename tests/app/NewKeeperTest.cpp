#include "app/NewKeeper.h"

#include "clean/Cleaner.h"
#include "scan/ScanTexts.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace orlen {

namespace {

using testing::ElementsAre;
using testing::SizeIs;

FileStamp stampOf(const std::string& path)
{
    return FileStamp::of(statusOf(path).value());
}

FileEntry similar(const std::string& path, const std::string& kept, std::int64_t size)
{
    FileEntry entry{path, size};
    entry.stamp = stampOf(path);
    entry.kept = KeptFile{kept, stampOf(kept)};
    addNote(entry,
            Message::joined({{ScanTexts::kSimilar, {{"name", std::string("a.jpg")}}}, ScanTexts::kSofterShot},
                            Several::Joint::facts));
    addNote(entry, ScanTexts::kInRepository);
    return entry;
}

std::vector<std::string> paths(const Finding& finding)
{
    std::vector<std::string> all;
    for (const FileEntry& entry : finding.items)
        all.push_back(entry.path);
    return all;
}

/// Three shots of one scene, of which the first is kept, and another set.
struct NewKeeperTest : testing::Test {
    TempHome home;
    std::string first = home.fileOfSize("Pictures/a.jpg", 40'960);
    std::string second = home.fileOfSize("Pictures/b.jpg", 20'480);
    std::string third = home.fileOfSize("Pictures/c.jpg", 8'192);
    std::string stranger = home.fileOfSize("Pictures/x.jpg", 8'192);
    std::string strangersCopy = home.fileOfSize("Pictures/y.jpg", 4'096);
    std::vector<Finding> findings{
        Finding(FindingKind::photoDuplicates, {similar(second, first, 20'480), similar(third, first, 8'192),
                                               similar(strangersCopy, stranger, 4'096)})};
};

} // namespace

TEST_F(NewKeeperTest, theFormerOneIsListedAndAllDependOnTheNewOne)
{
    const auto exchange = NewKeeper::of(findings, third);
    ASSERT_TRUE(exchange);
    const auto former = NewKeeper::listed(*exchange);
    ASSERT_TRUE(former);
    NewKeeper::apply(findings, *exchange, *former);
    const Finding& finding = findings.front();
    EXPECT_THAT(paths(finding), ElementsAre(first, second, strangersCopy));
    EXPECT_EQ(finding.items[0].size, 40'960);
    EXPECT_EQ(finding.items[0].stamp, stampOf(first));
    EXPECT_EQ(noteOf(finding.items[0]).base(), "Similar to c.jpg — the one you keep");
    EXPECT_EQ(noteOf(finding.items[1]).base(), "Similar to c.jpg — the one you keep · Part of a repository");
    for (const std::size_t number : {0U, 1U})
        EXPECT_EQ(finding.items[number].kept, (KeptFile{third, stampOf(third)}));
    EXPECT_EQ(finding.items[2].kept->path, stranger);

    // And back again.
    const auto back = NewKeeper::of(findings, first);
    NewKeeper::apply(findings, *back, *NewKeeper::listed(*back));
    EXPECT_THAT(paths(findings.front()), ElementsAre(second, third, strangersCopy));
}

TEST_F(NewKeeperTest, anEntryMovesOnlyWhileTheNewOneIsThere)
{
    const auto exchange = NewKeeper::of(findings, third);
    NewKeeper::apply(findings, *exchange, *NewKeeper::listed(*exchange));
    const auto& items = findings.front().items;
    std::filesystem::remove(third);
    EXPECT_THAT(Cleaner::run(items, "test", [](int, int, const std::string&) {}).record.items, SizeIs(1))
        << "only what the other set lists";
    EXPECT_TRUE(TempHome::exists(first));
    EXPECT_TRUE(TempHome::exists(second));
}

TEST_F(NewKeeperTest, nothingIsExchangedWhenEitherHasChanged)
{
    const auto exchange = NewKeeper::of(findings, second);
    ASSERT_TRUE(exchange);
    home.fileOfSize("Pictures/b.jpg", 24'576);
    EXPECT_FALSE(NewKeeper::listed(*exchange));
    const auto other = NewKeeper::of(findings, third);
    std::filesystem::remove(first);
    EXPECT_FALSE(NewKeeper::listed(*other));
    EXPECT_FALSE(NewKeeper::of(findings, first)) << "it is kept already";
    EXPECT_FALSE(NewKeeper::of(findings, "/nowhere"));
}

TEST_F(NewKeeperTest, aFormerOneInARepositoryIsTickedAloneOnly)
{
    home.folder("Pictures/.git");
    const auto former = NewKeeper::listed(*NewKeeper::of(findings, second));
    ASSERT_TRUE(former);
    EXPECT_TRUE(former->isTickedAlone);
}

} // namespace orlen
