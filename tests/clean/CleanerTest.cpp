#include "clean/Cleaner.h"

#include "clean/Journal.h"
#include "clean/TrashProbe.h"
#include "clean/trash/Trash.h"
#include "platform/files/UniqueFd.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <tuple>
#include <unistd.h>

namespace orlen {

namespace {

using namespace TrashProbe;
using testing::ElementsAre;
using testing::IsEmpty;

using Step = std::tuple<int, int, std::string>;

FileEntry entry(const std::string& path, std::int64_t size = 10)
{
    return {path, size, {}, {}, {}, {}};
}

class CleanerTest : public testing::Test {
protected:
    CleanRecord clean(std::vector<FileEntry> entries, const std::stop_token& stop = {},
                      const std::vector<CopySet>& sets = {})
    {
        steps.clear();
        Cleaner::Cleaned cleaned = Cleaner::run(
            std::move(entries), "Test",
            [this](int index, int total, const std::string& name) { steps.emplace_back(index, total, name); },
            stop, {}, sets);
        failures = std::move(cleaned.failures);
        EXPECT_EQ(failures.size(), static_cast<std::size_t>(cleaned.record.failed));
        Journals::settle(cleaned.record.id);
        return std::move(cleaned.record);
    }

    /// As a scan lists it: with what stands there now.
    static FileEntry seen(const std::string& path)
    {
        FileEntry entry{path, 10, {}, {}, {}, {}};
        entry.stamp = FileStamp::of(statusOf(path).value());
        return entry;
    }

    /// The same as one of two copies, of which `kept` stays.
    static FileEntry copyOf(const std::string& path, const std::string& kept)
    {
        FileEntry entry = seen(path);
        entry.kept = KeptFile{kept, FileStamp::of(statusOf(kept).value())};
        return entry;
    }

    static std::vector<std::string> originals(const CleanRecord& record)
    {
        std::vector<std::string> paths;
        for (const TrashedItem& item : record.items)
            paths.push_back(item.original);
        return paths;
    }

    TempHome home;
    std::vector<Step> steps;
    std::vector<CleanFailure> failures;
};

} // namespace

TEST_F(CleanerTest, dropsWhatIsNestedOrRepeatedAndReportsEachStep)
{
    (void)home.file("a/b");
    const CleanRecord record =
        clean({entry(home.path("a"), 7), entry(home.path("a/b")), entry(home.path("a"))});
    EXPECT_THAT(originals(record), ElementsAre(home.path("a")));
    EXPECT_EQ(record.failed, 0);
    EXPECT_EQ(record.freed(), 7);
    EXPECT_EQ(record.title, "Test");
    EXPECT_THAT(steps, ElementsAre(Step{0, 1, "a"}, Step{1, 1, ""}));
    EXPECT_TRUE(TempHome::exists(record.items.front().trashed));
}

TEST_F(CleanerTest, aChildGoesAlongThoughASiblingSortsBetween)
{
    (void)home.file("a/b");
    (void)home.file("a b");
    const CleanRecord record =
        clean({entry(home.path("a/b")), entry(home.path("a b")), entry(home.path("a"))});
    EXPECT_THAT(originals(record), ElementsAre(home.path("a"), home.path("a b")));
    EXPECT_EQ(record.failed, 0);
    EXPECT_THAT(steps, ElementsAre(Step{0, 2, "a"}, Step{1, 2, "a b"}, Step{2, 2, ""}));
}

TEST_F(CleanerTest, countsWhatItMayNotOrCannotMove)
{
    (void)home.file(".ssh/id");
    (void)home.file("Documents/letter");
    (void)home.file("\xFF name");
    (void)home.file("locked/file");
    TempHome::setMode(home.path("locked"), 0555);
    const CleanRecord record =
        clean({entry(home.path(".ssh/id")), entry(home.path("Documents")), entry(home.path("\xFF name")),
               entry(home.path("locked/file")), entry(home.path("gone")), entry(""), entry("/")});
    EXPECT_THAT(record.items, IsEmpty());
    EXPECT_EQ(record.failed, 7);
    const auto reason = [&](const std::string& path) {
        return std::ranges::find(failures, path, &CleanFailure::path)->reason;
    };
    EXPECT_EQ(reason(home.path(".ssh/id")), FailureReason::isProtected);
    EXPECT_EQ(reason(home.path("locked/file")), FailureReason::permission);
    EXPECT_EQ(reason(home.path("gone")), FailureReason::missing);
    for (const char* name : {".ssh/id", "Documents/letter", "\xFF name", "locked/file"})
        EXPECT_TRUE(TempHome::exists(home.path(name))) << name;
    EXPECT_EQ(clean({entry(home.path()), entry(home.path("locked/file"))}).failed, 1);
}

TEST_F(CleanerTest, whatIsExcludedStaysUnderWhateverName)
{
    (void)home.file("a/kept");
    (void)home.file("b/x");
    (void)home.link("link", home.path("a"));
    const Exclusions exclusions({{Exclusion::Kind::path, home.path("a/kept")}}, home.path());
    const auto cleaned = Cleaner::run(
        {entry(home.path("a")), entry(home.path("link/kept")), entry(home.path("b"))}, "Test",
        [](int, int, const std::string&) {}, {}, exclusions);
    EXPECT_THAT(cleaned.failures, ElementsAre(CleanFailure{home.path("a"), FailureReason::excluded},
                                              CleanFailure{home.path("link/kept"), FailureReason::excluded}));
    EXPECT_TRUE(TempHome::exists(home.path("a/kept")));
    EXPECT_FALSE(TempHome::exists(home.path("b")));
}

TEST_F(CleanerTest, movesNothingWithoutAUsableHome)
{
    const std::string path = home.file("a");
    const CleanRecord cleaned = clean({entry(path)});
    TempHome::reloadPlaces([](Places& places) { places.isHomeUsable = false; });
    EXPECT_EQ(Cleaner::restore(cleaned).restored, 0);
    (void)home.file("b");
    EXPECT_EQ(clean({entry(home.path("b"))}).failed, 1);
    EXPECT_TRUE(TempHome::exists(home.path("b")));
}

TEST_F(CleanerTest, aStopLetsTheItemInHandFinishAndCountsNothingElse)
{
    for (const char* name : {"a", "b", "c", "d"})
        (void)home.file(name);
    std::stop_source source;
    const Cleaner::Cleaned cleaned = Cleaner::run(
        {entry(home.path("a")), entry(home.path("b")), entry(home.path("c")), entry(home.path("d"))}, "Test",
        [&](int, int, const std::string& name) {
            if (name == "b")
                source.request_stop();
        },
        source.get_token());
    EXPECT_THAT(originals(cleaned.record), ElementsAre(home.path("a"), home.path("b")));
    EXPECT_EQ(cleaned.record.failed, 0);
    EXPECT_TRUE(TempHome::exists(home.path("c")) && TempHome::exists(home.path("d")));
}

TEST_F(CleanerTest, recordsWhenItFinishedAndAnIdentityOfItsOwn)
{
    const TimePoint before = std::chrono::system_clock::now();
    const CleanRecord first = clean({});
    EXPECT_GE(first.date, before);
    EXPECT_LE(first.date, std::chrono::system_clock::now());
    EXPECT_NE(first.id, clean({}).id);
    EXPECT_THAT(steps, ElementsAre(Step{0, 0, ""}));
}

TEST_F(CleanerTest, restoresEachItemOnce)
{
    (void)home.file("a", "first");
    (void)home.file("deep/folder/b", "second");
    const CleanRecord cleaned = clean({entry(home.path("a")), entry(home.path("deep"))});
    const auto back = Cleaner::restore(cleaned);
    EXPECT_EQ(back.restored, 2);
    EXPECT_EQ(back.failed, 0);
    EXPECT_TRUE(back.record.items[0].restored && back.record.items[1].restored);
    EXPECT_EQ(TempHome::content(home.path("deep/folder/b")), "second");
    const auto again = Cleaner::restore(back.record);
    EXPECT_EQ(again.restored + again.failed, 0);
    EXPECT_EQ(again.record, back.record);
}

TEST_F(CleanerTest, restoresWhatIsWantedAndTheRestLater)
{
    const CleanRecord cleaned = clean({entry(home.file("a")), entry(home.file("b")), entry(home.file("c"))});
    std::vector<std::pair<int, int>> reports;
    const auto report = [&](int done, int total, const std::string&) { reports.emplace_back(done, total); };
    const auto one = Cleaner::restore(cleaned, {}, report, std::set{home.path("b"), home.path("elsewhere")});
    EXPECT_EQ(one.restored, 1);
    EXPECT_TRUE(TempHome::exists(home.path("b")));
    EXPECT_FALSE(TempHome::exists(home.path("a")));
    EXPECT_EQ(Cleaner::restore(one.record, {}, report, std::set<std::string>()).restored, 0);
    EXPECT_EQ(Cleaner::restore(one.record, {}, report).restored, 2);
    EXPECT_THAT(reports, ElementsAre(std::pair(0, 1), std::pair(1, 1), std::pair(0, 0), std::pair(0, 2),
                                     std::pair(1, 2), std::pair(2, 2)));
}

TEST_F(CleanerTest, aRestoreThatFailsForSomeCanBeTriedAgain)
{
    (void)home.file("a", "old");
    (void)home.file("b");
    (void)home.file("c");
    CleanRecord cleaned = clean({entry(home.path("a")), entry(home.path("b")), entry(home.path("c"))});
    cleaned.items.push_back({home.path("d"), "", 1, false});
    (void)home.file("a", "new");                                 // taken
    ASSERT_EQ(std::remove(cleaned.items[1].trashed.c_str()), 0); // emptied by the user
    const auto back = Cleaner::restore(cleaned);
    EXPECT_EQ(back.restored, 1);
    EXPECT_EQ(back.failed, 3);
    EXPECT_EQ(TempHome::content(home.path("a")), "new");
    EXPECT_FALSE(back.record.items[0].restored);
    ASSERT_EQ(std::remove(home.path("a").c_str()), 0);
    EXPECT_EQ(Cleaner::restore(back.record).restored, 1);
    EXPECT_EQ(TempHome::content(home.path("a")), "old");
}

TEST_F(CleanerTest, aNameThatWasReusedAfterEmptyingIsNotRestored)
{
    const CleanRecord cleaned = clean({entry(home.file("one/same"))});
    const TrashedItem& item = cleaned.items.front();
    ASSERT_EQ(std::remove(item.trashed.c_str()) + std::remove(infoFile(item.trashed).c_str()), 0);
    const CleanRecord later = clean({entry(home.file("two/same"))});
    ASSERT_EQ(later.items.front().trashed, item.trashed);
    EXPECT_EQ(Cleaner::restore(cleaned).failures,
              (std::vector<CleanFailure>{{home.path("one/same"), FailureReason::replaced}}));
    EXPECT_FALSE(TempHome::exists(home.path("one/same")));

    EXPECT_EQ(Cleaner::restore(later).restored, 1);
}

TEST_F(CleanerTest, onlyWhatWasShownMoves)
{
    struct Case {
        const char* name;
        FailureReason reason;
        std::function<FileEntry()> shown;
        std::function<void()> then;
    };
    const std::string path = home.path("it");
    const std::string kept = home.path("kept");
    const auto file = [&] { return seen(home.file("it", "shown")); };
    const auto folder = [&] { return home.file("it/a"), seen(path); };
    const auto copy = [&] { return copyOf(home.file("it", "same"), home.file("kept", "same")); };
    UniqueFd writer;
    const Case cases[] = {
        {"written to", FailureReason::changed, file, [&] { (void)home.file("it", "writ!"); }},
        {"another file of the same length", FailureReason::changed, file,
         [&] { (void)std::rename(home.file("other", "other").c_str(), path.c_str()); }},
        {"a folder in place of a file", FailureReason::changed, file,
         [&] { (void)std::remove(path.c_str()), (void)home.folder("it"); }},
        {"another folder", FailureReason::changed, folder,
         [&] { (void)std::rename(path.c_str(), home.path("aside").c_str()), (void)home.file("it/mine"); }},
        {"open for writing", FailureReason::inUse, file,
         [&] { writer = UniqueFd(::open(path.c_str(), O_WRONLY | O_CLOEXEC)); }},
        {"a copy whose kept one is gone", FailureReason::changed, copy,
         [&] { (void)std::remove(kept.c_str()); }},
        {"a copy whose kept one was written to", FailureReason::changed, copy,
         [&] { (void)home.file("kept", "new!"); }},
        {"gone", FailureReason::missing, file, [&] { (void)std::remove(path.c_str()); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const FileEntry shown = c.shown();
        c.then();
        EXPECT_THAT(clean({shown}).items, IsEmpty());
        EXPECT_EQ(failures, (std::vector<CleanFailure>{{path, c.reason}}));
        EXPECT_EQ(TempHome::exists(path), c.reason != FailureReason::missing);
        EXPECT_THAT(sortedNames(home.path(".local/share/Trash/info")), IsEmpty());
        writer.reset();
        std::filesystem::remove_all(path);
        std::filesystem::remove_all(home.path("aside"));
    }
}

TEST_F(CleanerTest, aCopyStaysWhenTheKeptOneGoesToo)
{
    const FileEntry copy = copyOf(home.file("a/copy"), home.file("b/kept"));
    EXPECT_THAT(originals(clean({copy, seen(home.path("b"))})), ElementsAre(home.path("b")));
    EXPECT_TRUE(TempHome::exists(home.path("a/copy")));
}

TEST_F(CleanerTest, theKeptFileOfASetStaysWhenItsCopiesMove)
{
    // Neither is listed as a copy, one lies in a folder that moves.
    const FileEntry kept = seen(home.file("a/kept"));
    const FileEntry folder{home.folder("b")};
    const CopySet set{copyOf(home.file("b/copy"), kept.path).kept.value(), {home.path("b/copy")}};
    EXPECT_THAT(originals(clean({kept, folder}, {}, {set})), ElementsAre(home.path("b")));
    EXPECT_EQ(failures, (std::vector<CleanFailure>{{kept.path, FailureReason::keptOfSet}}));

    const FileEntry copy = seen(home.file("b/copy"));
    ASSERT_EQ(std::remove(kept.path.c_str()), 0);
    EXPECT_THAT(clean({copy}, {}, {set}).items, IsEmpty()) << "without the kept one, the last is left";
    const FileEntry both{home.path("a")};
    (void)home.file("a/kept"), (void)home.file("a/copy");
    EXPECT_EQ(clean({both}, {}, {{{home.path("a/kept"), {}}, {home.path("a/copy")}}}).failed, 0);
}

TEST_F(CleanerTest, theOtherNamesOfAMovedFileAreNotTakenForChanged)
{
    const std::string first = home.file("first");
    const std::string second = home.path("second");
    const std::string kept = home.path("kept");
    ASSERT_EQ(::link(first.c_str(), second.c_str()) + ::link(first.c_str(), kept.c_str()), 0);
    const FileEntry copy = copyOf(home.file("third"), kept);
    EXPECT_EQ(clean({seen(first), seen(second), copy}).failed, 0);
}

TEST_F(CleanerTest, whoeverTravelsCanStillRestore)
{
    TempHome::setVariable("TZ", "Asia/Tokyo");
    ::tzset();
    const CleanRecord cleaned = clean({entry(home.file("a"))});
    TempHome::setVariable("TZ", "America/Los_Angeles");
    ::tzset();
    EXPECT_EQ(Cleaner::restore(cleaned).restored, 1);
}

TEST_F(CleanerTest, noticesWhatBecameProtectedSinceTheClean)
{
    const CleanRecord cleaned = clean({entry(home.file("shared/a"))});
    (void)home.folder("shared/.stfolder"); // the folder is now mirrored to other devices
    EXPECT_EQ(Cleaner::restore(cleaned).failed, 1);
    (void)home.file("shared/b");
    EXPECT_EQ(clean({entry(home.path("shared/b"))}).failed, 1);
}

TEST_F(CleanerTest, anOverflowingSumStopsTheProgram)
{
    CleanRecord record;
    record.items = {{"a", "", INT64_MAX, false}, {"b", "", 0, true}};
    EXPECT_EQ(record.freed(), INT64_MAX);
    record.items[1].size = 1;
    EXPECT_DEATH((void)record.freed(), "64 bits");
}

} // namespace orlen
