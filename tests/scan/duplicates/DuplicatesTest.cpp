#include "scan/duplicates/Duplicates.h"

#include "platform/files/FileStatus.h"
#include "support/TempHome.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Paths = std::vector<std::string>;

constexpr TimePoint kToday{std::chrono::sys_days{std::chrono::year{2025} / 3 / 1}};
constexpr std::int64_t kPiece = 65'536;

Cand candOf(const std::string& path)
{
    const auto status = statusOf(path);
    if (!status.ok())
        return {path, 0, kToday};
    return {path, status.value().allocatedBytes, status.value().modified, FileStamp::of(status.value())};
}

std::vector<Cand> candsOf(const Paths& paths)
{
    std::vector<Cand> cands;
    std::ranges::transform(paths, std::back_inserter(cands), candOf);
    return cands;
}

/// The sets as lists of paths, the kept one first.
std::vector<Paths> pathsOf(const Duplicates::Result& result)
{
    std::vector<Paths> sets;
    for (const Duplicates::Set& set : result.sets) {
        Paths& paths = sets.emplace_back(Paths{set.kept.path});
        for (const Duplicates::Copy& copy : set.copies)
            paths.push_back(copy.file.path);
    }
    return sets;
}

std::string text(std::int64_t length, std::int64_t differsAt = -1, char with = '#')
{
    std::string content(static_cast<std::size_t>(length), 'x');
    if (differsAt >= 0)
        content[static_cast<std::size_t>(differsAt)] = with;
    return content;
}

TEST(DuplicatesTest, everyByteDecides)
{
    struct Case {
        const char* name;
        std::int64_t length;
        std::int64_t differsAt; ///< -1: nowhere
    };
    constexpr Case cases[] = {
        {"one piece", kPiece, -1},
        {"one piece, last byte", kPiece, kPiece - 1},
        {"a byte more than a piece", kPiece + 1, -1},
        {"a byte more than a piece, last byte", kPiece + 1, kPiece},
        {"two pieces", 2 * kPiece, -1},
        {"two pieces, first byte of the second", 2 * kPiece, kPiece},
        {"two pieces, last byte", 2 * kPiece, 2 * kPiece - 1},
        {"a byte more than two pieces, the byte between head and tail", 2 * kPiece + 1, kPiece},
        {"long", 5'000'000, -1},
        {"long, first byte", 5'000'000, 0},
        {"long, first byte behind the head", 5'000'000, kPiece},
        {"long, middle byte", 5'000'000, 2'500'000},
        {"long, last byte before the tail", 5'000'000, 5'000'000 - kPiece - 1},
        {"long, last byte", 5'000'000, 4'999'999},
    };
    // Few files are compared all with one another, many in portions that are joined by their hashes.
    for (const std::size_t copies : {1U, 16U, 40U}) {
        for (const Case& c : cases) {
            SCOPED_TRACE(testing::Message() << c.name << ", " << copies + 1 << " files");
            const TempHome home;
            Paths same;
            for (std::size_t i = 0; i < copies; ++i)
                same.push_back(home.file("same" + std::string(i, '+'), text(c.length)));
            Paths all = same;
            all.push_back(home.file(std::string(99, '~'), text(c.length, c.differsAt)));
            const auto sets = pathsOf(Duplicates::find(candsOf(all), {}));
            if (c.differsAt < 0)
                EXPECT_THAT(sets, ElementsAre(all));
            else if (copies > 1)
                EXPECT_THAT(sets, ElementsAre(same));
            else
                EXPECT_THAT(sets, IsEmpty());
        }
    }
}

TEST(DuplicatesTest, oneQuickHashMayHoldSeveralSets)
{
    for (const int copies : {2, 8, 20}) {
        SCOPED_TRACE(copies);
        const TempHome home;
        std::vector<Paths> expected;
        Paths all{home.file("only one", text(1'000'000, 400'000, '?'))};
        for (const char letter : {'a', 'b', 'c'}) {
            Paths& set = expected.emplace_back();
            for (int i = 0; i < copies; ++i)
                set.push_back(home.file(letter + std::to_string(i), text(1'000'000, 500'000 + letter)));
            all.insert(all.begin(), set.begin(), set.end());
        }
        ScanProgress progress;
        EXPECT_EQ(pathsOf(Duplicates::find(candsOf(all), {}, {}, &progress)), expected);
        const auto bytes = static_cast<std::int64_t>(all.size()) * 1'000'000;
        EXPECT_EQ(progress.amount(StepKind::duplicates), (StepAmount{bytes, bytes}));
    }
}

TEST(DuplicatesTest, noMoreIsReadThanDecides)
{
    struct Case {
        const char* name;
        std::int64_t length;
        std::int64_t differsAt;
        std::int64_t readOfEach;
    };
    constexpr Case cases[] = {
        {"a short file only once", kPiece, -1, kPiece},
        {"the whole, when the head is not the whole", kPiece + 1, -1, 2 * kPiece + 1},
        {"only the head up to two pieces", 2 * kPiece, 0, kPiece},
        {"head and tail above", 2 * kPiece + 1, 0, 2 * kPiece},
        {"head, tail and the whole", 5'000'000, -1, 2 * kPiece + 5'000'000},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const TempHome home;
        const Paths paths{home.file("a", text(c.length)), home.file("b", text(c.length, c.differsAt))};
        const auto result = Duplicates::find(candsOf(paths), {});
        EXPECT_EQ(result.filesHashed, 2);
        EXPECT_EQ(result.bytesHashed, 2 * c.readOfEach);
    }
}

TEST(DuplicatesTest, aFileWithALengthOfItsOwnIsNotOpened)
{
    const TempHome home;
    const Cand a = candOf(home.file("a", text(100'000)));
    const Cand b = candOf(home.file("b", text(200'000)));
    const Cand sameSizeOtherLength = candOf(home.file("c", text(100'001)));
    ASSERT_EQ(a.size, sameSizeOtherLength.size);
    const auto result = Duplicates::find({a, b, sameSizeOtherLength, a}, {});
    EXPECT_EQ(result.filesConsidered, 3) << "a path given twice counts once";
    EXPECT_EQ(result.filesHashed, 0);
    EXPECT_THAT(result.sets, IsEmpty());
    EXPECT_THAT(Duplicates::finding(Duplicates::find({}, {})).items, IsEmpty());
}

TEST(DuplicatesTest, occupiedBytesNeedNotMatchTheContent)
{
    const TempHome home;
    const auto withHole = [&](const char* name, const char* tail) {
        std::string path = home.file(name, text(300'000));
        std::filesystem::resize_file(path, 20'000'000);
        std::ofstream(path, std::ios::app | std::ios::binary) << tail;
        return path;
    };
    const Paths sparse{withHole("a", "same"), withHole("b", "same"), withHole("c", "else")};
    EXPECT_THAT(pathsOf(Duplicates::find(candsOf(sparse), {})), ElementsAre(Paths{sparse[0], sparse[1]}));

    // Blocks reserved behind the end make a file look longer than it is.
    std::vector<Cand> reserved = candsOf({home.file("d", text(300'000)), home.file("e", text(300'000)),
                                          home.file("f", text(300'000, 299'999))});
    for (Cand& cand : reserved)
        cand.size = 50'000'000;
    const auto result = Duplicates::find(reserved, {});
    EXPECT_THAT(pathsOf(result), ElementsAre(Paths{reserved[0].path, reserved[1].path}));
    EXPECT_EQ(result.bytesHashed, 6 * kPiece + 600'000) << "the tail is where the content ends";

    // A download in many pieces has a block more.
    reserved[1].size += 4096;
    EXPECT_EQ(Duplicates::find(reserved, {}).sets.size(), 1U);
}

TEST(DuplicatesTest, theBestPlacedCopyIsKept)
{
    struct File {
        const char* path;
        int daysOld;
    };
    struct Case {
        const char* name;
        std::vector<File> inOrder; ///< of preference
    };
    const Case cases[] = {
        {"Downloads goes, the shallow one stays",
         {{"Documents/a.pdf", 0}, {"Documents/Work/a.pdf", 9}, {"Downloads/a.pdf", 99}}},
        {"the user's own Downloads folder goes too", {{"Documents/deep/er/a.pdf", 0}, {"Hämtat/a", 9}}},
        {"a folder whose name begins like it is another one", {{"Downloads2/long", 0}, {"Downloads/a", 9}}},
        {"Downloads deeper down is another one", {{"Old/Downloads/a", 0}, {"Downloads/a", 9}}},
        {"characters count, not bytes", {{"D/ääää", 0}, {"D/abcde", 9}}},
        {"of paths of one length the older one stays", {{"D/b", 3}, {"D/c", 2}, {"D/a", 1}}},
        {"of files of one age the first path", {{"D/a", 1}, {"D/b", 1}, {"D/c", 1}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const TempHome home;
        TempHome::reloadPlaces([&](Places& places) { places.downloads = home.path("Hämtat"); });
        Paths expected;
        // Made in the opposite order, so that the order on disk is no help.
        for (auto file = c.inOrder.rbegin(); file != c.inOrder.rend(); ++file) {
            expected.insert(expected.begin(), home.file(file->path, text(30'000)));
            TempHome::setTimes(expected.front(), kToday, kToday - std::chrono::days(file->daysOld));
        }
        Paths given = expected;
        std::ranges::sort(given);
        do {
            EXPECT_THAT(pathsOf(Duplicates::find(candsOf(given), {})), ElementsAre(expected));
        } while (std::ranges::next_permutation(given).found);
    }
}

TEST(DuplicatesTest, namesOfOneFileAreNoDuplicates)
{
    const TempHome home;
    const std::string good = home.file("Pictures/a.jpg", text(100'000));
    const std::string other = home.folder("Downloads") + "/a.jpg";
    std::filesystem::create_hard_link(good, other);
    EXPECT_THAT(Duplicates::find(candsOf({other, good}), {}).sets, IsEmpty());

    const std::string copy = home.file("Pictures/copy of a.jpg", text(100'000));
    EXPECT_THAT(pathsOf(Duplicates::find(candsOf({other, copy, good}), {})), ElementsAre(Paths{good, copy}));
}

TEST(DuplicatesTest, whatCannotBeReadIsLeftOutSilently)
{
    const TempHome home;
    const std::string good = home.file("a", text(100'000));
    const std::string secret = home.file("secret", text(100'000));
    const std::string pipe = home.path("pipe");
    TempHome::setMode(secret, 0);
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::vector<Cand> cands =
        candsOf({good, secret, pipe, home.path("missing"), home.folder("folder"), home.link("link", good)});
    for (Cand& cand : cands)
        cand.size = 102'400;
    EXPECT_THAT(Duplicates::find(cands, {}).sets, IsEmpty());

    const std::string odd = home.file("-- a\tb\n\"c\" 🗂 .bin", text(100'000));
    cands.push_back(cands.front());
    cands.back().path = odd;
    EXPECT_THAT(pathsOf(Duplicates::find(cands, {})), ElementsAre(Paths{good, odd}));
}

/// Bytes that this process has read so far.
std::int64_t bytesReadByProcess()
{
    std::ifstream counters("/proc/self/io");
    std::string name;
    std::int64_t value = 0;
    counters >> name >> value;
    return value;
}

TEST(DuplicatesTest, holesAreNotReadAndEqualWrittenZeros)
{
    constexpr std::int64_t kHuge = 10'000'000'000'000; // hours of reading
    const auto zeros = [](std::int64_t length) {
        return std::string(static_cast<std::size_t>(length), '\0');
    };
    struct Piece {
        std::int64_t at;
        std::string content;
    };
    struct Kind {
        const char* name;
        std::vector<Piece> pieces;
        bool isAlike = true;
    };
    const std::string data = text(2 * kPiece);
    const std::int64_t middle = kHuge / 2 / 4096 * 4096;
    const Kind kinds[] = {
        {"a", {{0, data}, {middle, data}}},
        {"zeros before", {{0, data}, {middle - 500'000, zeros(500'000) + data}}},
        {"zeros elsewhere", {{0, data + zeros(3 * kPiece)}, {1'000'000'000, zeros(4096)}, {middle, data}}},
        {"other data", {{0, data}, {middle, text(2 * kPiece, kPiece)}}, false},
        {"data elsewhere", {{0, data}, {middle + 4096, data}}, false},
        {"one byte among zeros", {{0, data}, {777, "y"}, {middle, data}}, false},
        {"nothing there", {{0, data}}, false},
    };
    // Few files are compared with one another, many in portions that are joined by their hashes.
    for (const int copies : {1, 9}) {
        SCOPED_TRACE(copies);
        const TempHome home;
        Paths alike;
        std::vector<Cand> cands;
        for (const Kind& kind : kinds) {
            for (int i = 0; i < (kind.isAlike ? copies : 1); ++i) {
                const std::string path = home.file(kind.name + std::string(static_cast<std::size_t>(i), '+'));
                std::filesystem::resize_file(path, kHuge);
                for (const Piece& piece : kind.pieces) {
                    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
                    file.seekp(piece.at).write(piece.content.data(), std::ssize(piece.content));
                }
                cands.push_back(candOf(path));
                cands.back().size = 1'000'000; // whatever the file system counts for its own books
                if (kind.isAlike)
                    alike.push_back(path);
            }
        }
        const auto result = Duplicates::find(cands, {});
        ASSERT_EQ(result.sets.size(), 1U);
        Paths found = pathsOf(result).front();
        std::ranges::sort(found);
        std::ranges::sort(alike);
        EXPECT_EQ(found, alike);
        EXPECT_LT(result.bytesHashed, std::ssize(cands) * 5'000'000);
    }
}

TEST(DuplicatesTest, aStopInsideLongFilesIsFeltAtOnceAndLeavesNoSets)
{
    const TempHome home;
    const std::string content = text(150'000'000);
    const Paths paths{home.file("long", content), home.file("long too", content), home.file("short", "x"),
                      home.file("short too", "x")};
    const std::int64_t before = bytesReadByProcess();
    std::stop_source stop;
    std::chrono::steady_clock::time_point stopped;
    Duplicates::Result result;
    {
        const std::jthread search([&] { result = Duplicates::find(candsOf(paths), stop.get_token()); });
        while (bytesReadByProcess() < before + 10'000'000)
            std::this_thread::yield();
        stopped = std::chrono::steady_clock::now();
        stop.request_stop();
    }
    EXPECT_LT(std::chrono::steady_clock::now() - stopped, std::chrono::milliseconds(400)) << "a busy machine";
    EXPECT_GT(result.bytesHashed, 0);
    if (result.bytesHashed < 2 * std::ssize(content)) {
        // The set that was complete before the stop is not reported either.
        EXPECT_THAT(result.sets, IsEmpty());
    }
}

TEST(DuplicatesTest, entriesTellWhenRemovingThemFreesLittleOrTouchesARepository)
{
    const TempHome home;
    home.fileOfSize("a", 8192);
    const std::string linked = home.fileOfSize("b/linked", 8192);
    const std::string tracked = home.fileOfSize("b/tracked", 8192);
    ASSERT_EQ(::link(linked.c_str(), home.path(".other-name").c_str()), 0);
    std::vector<Cand> cands = candsOf({home.path("a"), linked, tracked});
    cands[2].isInRepository = true;
    const Finding finding = Duplicates::finding(Duplicates::find(cands, {}));
    ASSERT_EQ(finding.items.size(), 2U);
    EXPECT_EQ(finding.items[0].size, 8192);
    EXPECT_EQ(noteOf(finding.items[0]).base(),
              "Identical to a — Orlen keeps that copy · Part of a repository");
    EXPECT_TRUE(finding.items[0].isTickedAlone);
    EXPECT_EQ(finding.items[1].size, 0);
    EXPECT_EQ(noteOf(finding.items[1]).base(),
              "Identical to a — Orlen keeps that copy · Frees nothing: the file has another name elsewhere");
    EXPECT_FALSE(finding.items[1].isTickedAlone);
}

TEST(DuplicatesTest, theFindingListsAllCopiesButTheKeptOneAndNamesIt)
{
    const auto cand = [](const char* path, std::int64_t size) { return Cand{path, size, kToday}; };
    Duplicates::Result result;
    result.sets = {
        {.kept = cand("/h/a b.txt", 5000), .copies = {{cand("/h/x", 5000)}, {cand("/h/y", 5000), true}}},
        {.kept = cand("/h/ü", 9000), .copies = {{cand("/h/z", 9000)}}}};
    const Finding finding = Duplicates::finding(result);
    EXPECT_EQ(finding.kind, FindingKind::duplicates);
    ASSERT_EQ(finding.items.size(), 3U);
    EXPECT_EQ(finding.items[0].path, "/h/z");
    EXPECT_EQ(noteOf(finding.items[0]).base(), "Identical to ü — Orlen keeps that copy");
    EXPECT_EQ(finding.items[1].path, "/h/x");
    EXPECT_EQ(finding.items[1].size, 5000);
    EXPECT_EQ(finding.items[1].modified, kToday);
    EXPECT_EQ(noteOf(finding.items[1]).base(), "Identical to a b.txt — Orlen keeps that copy");
    EXPECT_EQ(
        noteOf(finding.items[2]).base(),
        "Identical to a b.txt — Orlen keeps that copy · Shares its data on disk; removing it frees little");
}

} // namespace
} // namespace orlen
