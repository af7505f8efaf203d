#include "scan/photos/PictureMemory.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileLock.h"
#include "platform/images/ImageMessages.h"
#include "scan/ScanFlag.h"
#include "scan/ScanProgress.h"
#include "scan/photos/PhotoAnalyzer.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace orlen {

namespace {

using Learned = std::vector<PictureMemory::Learned>;
using namespace std::chrono_literals;

constexpr std::size_t kPlenty = 200'000'000;

FileStamp stampOf(std::uint64_t number)
{
    return {FileType::regular, {7, number}, 1'000, TimePoint(std::chrono::hours(number)), {}};
}

ImageAnalysis analysisOf(std::uint64_t number)
{
    FeaturePrint::Vector vector{};
    vector[number % vector.size()] = 1;
    FeaturePrint::Tile tile{};
    tile.fill(static_cast<std::uint8_t>(number));
    return {.width = static_cast<int>(number),
            .height = 30,
            .print = FeaturePrint(vector, tile),
            .sharpness = 12.5,
            .labels = {{"receipt", 0.5F}},
            .traits = {.format = PictureFormat::png, .isGrey = true}};
}

struct PictureMemoryTest : testing::Test {
    TempHome home;
    const std::string path = home.path(".cache/Orlen/pictures");
    const TimePoint now = TimePoint(std::chrono::hours(500'000));

    void remember(std::uint64_t first, std::uint64_t last, TimePoint when,
                  std::size_t mostBytes = kPlenty) const
    {
        Learned learned;
        for (std::uint64_t number = first; number <= last; ++number)
            learned.emplace_back(stampOf(number), analysisOf(number));
        PictureMemory(path, mostBytes).remember(learned, when);
    }

    /// Which of the files with the numbers 1 to 9 are remembered.
    [[nodiscard]] std::string remembered(TimePoint when) const
    {
        std::vector<Cand> images;
        for (std::uint64_t number = 1; number <= 9; ++number)
            images.push_back({"/p", 1, {}, stampOf(number)});
        std::string numbers;
        PictureMemory memory(path);
        for (const auto& known : memory.recall(images, when))
            numbers += known && *known ? std::to_string((*known)->width) : known ? "x" : "-";
        return numbers;
    }

    [[nodiscard]] std::string bytes() const { return readSmallFile(path, kPlenty).value_or(""); }
};

} // namespace

TEST_F(PictureMemoryTest, whatWasLearnedIsKnownWhileTheFileIsWhatItWas)
{
    EXPECT_EQ(remembered(now), "---------") << "no file, no folder";
    remember(2, 3, now);
    EXPECT_EQ(remembered(now), "-23------");
    EXPECT_EQ(statusOf(path).value().mode, 0600U);

    const ImageAnalysis expected = analysisOf(2);
    PictureMemory memory(path);
    const auto known = memory.recall({{"/p", 1, {}, stampOf(2)}}, now);
    ASSERT_TRUE(known[0] && *known[0] && (*known[0])->print);
    EXPECT_EQ((*known[0])->print->direction(), expected.print->direction());
    EXPECT_EQ((*known[0])->print->packedTile(), expected.print->packedTile());
    EXPECT_EQ((*known[0])->print->outline(), expected.print->outline());
    EXPECT_EQ((*known[0])->labels, expected.labels);
    EXPECT_EQ((*known[0])->traits, expected.traits);
    EXPECT_EQ((*known[0])->sharpness, expected.sharpness);

    std::vector<Cand> others(5, Cand{"/p", 1, {}, stampOf(2)});
    others[0].stamp->changed += 1ns;
    others[1].stamp->length += 1;
    others[2].stamp->identity.number += 7;
    others[3].stamp->identity.device += 1;
    others[4].stamp.reset();
    for (const auto& other : memory.recall(others, now))
        EXPECT_FALSE(other);
}

TEST_F(PictureMemoryTest, aDamagedTailIsDroppedAndTheFileGrowsAgain)
{
    remember(1, 3, now);
    const std::string whole = bytes();
    const std::size_t record = (whole.size() - PictureRecords::header().size()) / 3;
    const std::string_view header = PictureRecords::header();
    struct Case {
        const char* name;
        std::string bytes;
        const char* remembered;
    };
    const auto flipped = [&](std::size_t at) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 1);
        return damaged;
    };
    const Case cases[] = {
        {"cut in the last record", whole.substr(0, whole.size() - 1), "12-------"},
        {"cut in its length", whole.substr(0, header.size() + 2 * record + 5), "12-------"},
        {"another last byte", flipped(whole.size() - 1), "12-------"},
        {"another checksum", flipped(header.size() + record), "1--------"},
        {"another length", flipped(header.size() + record + 14), "1--------"},
        {"other models", flipped(header.size() - 2), "---------"},
        {"nothing", "", "---------"},
        {"something after it", whole + "x", "123------"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        home.file(".cache/Orlen/pictures", c.bytes);
        EXPECT_EQ(remembered(now), c.remembered);
        remember(9, 9, now);
        EXPECT_EQ(remembered(now), std::string(c.remembered).substr(0, 8) + "9");
    }
}

TEST_F(PictureMemoryTest, whatAnEarlierBuildRememberedIsKnownAndRewritten)
{
    // Its answers said 1 in front of a print, and told no outline.
    const std::string answer = ImageMessages::encoded(ImageMessages::Answer{analysisOf(2)});
    const FeaturePrint print = *analysisOf(2).print;
    const std::size_t kind = answer.find(std::string(print.packedTile().begin(), print.packedTile().end())) -
                             sizeof(std::uint16_t) - print.direction().size() - 1;
    const std::size_t outline =
        kind + 1 + print.direction().size() + sizeof(std::uint16_t) + print.packedTile().size();
    const std::size_t length =
        sizeof(PictureOutline::Rows) + 1 + print.outline().blocks().size() * sizeof(PictureOutline::Block);
    std::string earlier = answer;
    earlier[kind] = 1;
    earlier.erase(outline, length);
    const PictureRecords::Key key = PictureRecords::Key::of(stampOf(2));
    home.file(".cache/Orlen/pictures",
              std::string(PictureRecords::header()) + PictureRecords::encoded({key, now, earlier}));
    PictureMemory memory(path);
    const auto known = memory.recall({{"/p", 1, {}, stampOf(2)}}, now);
    ASSERT_TRUE(known[0] && *known[0] && (*known[0])->print);
    EXPECT_EQ((*known[0])->print->outline(), print.outline());
    memory.remember({{stampOf(3), analysisOf(3)}}, now);
    EXPECT_EQ(remembered(now), "-23------");
    const std::string whole = bytes();
    EXPECT_EQ(PictureRecords::decoded(whole).back().answer, answer);
}

TEST_F(PictureMemoryTest, theLastUsedStayWhenTheFileIsFull)
{
    remember(1, 4, now);
    const std::size_t withOutlines = bytes().size();
    PictureMemory memory(path, withOutlines);
    (void)memory.recall({{"/p", 1, {}, stampOf(2)}, {"/p", 1, {}, stampOf(4)}}, now + 48h);
    memory.remember({}, now + 48h);
    EXPECT_EQ(remembered(now), "1234-----");
    const std::size_t full = bytes().size();
    EXPECT_LT(full, withOutlines) << "what can be made again goes first";
    remember(5, 6, now + 49h, full);
    EXPECT_EQ(remembered(now), "-2-456---");
    EXPECT_LE(bytes().size(), full);
}

TEST_F(PictureMemoryTest, whatOthersLearnedMeanwhileIsKept)
{
    PictureMemory one(path);
    (void)one.recall({}, now);
    remember(1, 1, now);
    one.remember({{stampOf(2), analysisOf(2)}}, now);
    EXPECT_EQ(remembered(now), "12-------");
    const auto lock = FileLock::take(path + ".lock");
    ASSERT_TRUE(lock.ok());
    remember(3, 3, now);
    EXPECT_EQ(remembered(now), "12-------") << "another process is writing";
}

TEST_F(PictureMemoryTest, twoProgramsThatWriteAtOnceLeaveAWholeFile)
{
    remember(1, 2, now);
    std::atomic<bool> isDone{false};
    const auto write = [&](std::uint64_t first) {
        for (std::uint64_t round = 0; round < 20; ++round)
            remember(first + round % 3, first + round % 3, now);
    };
    std::jthread one(write, 3);
    std::jthread two(write, 6);
    std::jthread reader([&] {
        while (!isDone)
            EXPECT_EQ(remembered(now).substr(0, 2), "12");
    });
    one.join();
    two.join();
    isDone = true;
    reader.join();
    const std::string whole = bytes();
    std::size_t length = PictureRecords::header().size();
    for (const PictureRecords::Record& record : PictureRecords::decoded(whole))
        length += PictureRecords::encoded(record).size();
    EXPECT_EQ(length, whole.size()) << "records to the end";
    EXPECT_EQ(remembered(now).substr(0, 2), "12");
}

TEST_F(PictureMemoryTest, whatWasNoPictureIsTriedAgainAfterAWeek)
{
    PictureMemory(path).remember({{stampOf(1), std::nullopt}}, now);
    EXPECT_EQ(remembered(now + 6 * 24h), "x--------");
    EXPECT_EQ(remembered(now + 8 * 24h), "---------");
}

TEST_F(PictureMemoryTest, aClockThatWasWrongOnceDoesNoLastingHarm)
{
    PictureMemory(path).remember({{stampOf(1), std::nullopt}}, now + 9'000h);
    remember(4, 4, TimePoint::min());
    remember(2, 3, TimePoint::max());
    EXPECT_EQ(remembered(now), "-234-----") << "the first is tried again";
    for (const TimePoint when : {now, now + 48h}) {
        PictureMemory memory(path);
        (void)memory.recall({{"/p", 1, {}, stampOf(3)}, {"/p", 1, {}, stampOf(4)}}, when);
        memory.remember({}, when);
    }
    remember(5, 5, now + 48h, bytes().size());
    EXPECT_EQ(remembered(now + 48h), "--345----");
}

TEST_F(PictureMemoryTest, aLargeLibraryIsCompleteAfterSomeScans)
{
    constexpr std::uint64_t kCount = 3'200;
    std::vector<Cand> images;
    for (std::uint64_t number = 0; number < kCount; ++number)
        images.push_back({"/p/" + std::to_string(10'000 + number), 1, {}, stampOf(number)});
    ScanProgress progress;
    const ScanFlag flag;
    std::atomic<int> looks{0};
    const auto recognize = [&](const std::string& name) -> std::optional<ImageAnalysis> {
        ++looks;
        if (name.back() == '3')
            return std::nullopt;
        return ImageAnalysis{640, 480};
    };
    struct Scan {
        std::int64_t lookedAt;
        int looks;
    };
    for (const Scan& scan : {Scan{1'500, 1'500}, Scan{3'000, 1'500}, Scan{3'200, 200}, Scan{3'200, 0}}) {
        looks = 0;
        PictureMemory memory(path);
        const auto analyzed = PhotoAnalyzer(progress, flag, recognize, &memory).analyze(images);
        EXPECT_EQ(analyzed.coverage, (PhotoCoverage{scan.lookedAt, static_cast<std::int64_t>(kCount)}));
        EXPECT_EQ(looks, scan.looks);
        EXPECT_EQ(progress.amount(StepKind::photos), (StepAmount{scan.lookedAt, scan.lookedAt}));
        EXPECT_EQ(analyzed.photos.size(), static_cast<std::size_t>(scan.lookedAt * 9 / 10));
    }
    // A recognizer that reads nothing at all is broken, which says nothing about the pictures.
    const std::vector<Cand> later{{"/p/later", 1, {}, stampOf(kCount)}};
    for (int i = 0; i < 2; ++i) {
        looks = 0;
        PictureMemory memory(path);
        const auto broken = [&](const std::string&) -> std::optional<ImageAnalysis> {
            ++looks;
            return std::nullopt;
        };
        (void)PhotoAnalyzer(progress, flag, broken, &memory).analyze(later);
        EXPECT_EQ(looks, 1);
    }
}

} // namespace orlen
