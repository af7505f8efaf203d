#include "scan/photos/PhotoAnalyzer.h"

#include "scan/ScanFlag.h"
#include "scan/ScanProgress.h"
#include "scan/photos/PhotoGroups.h"
#include "scan/photos/PrintDistance.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <map>
#include <thread>

namespace orlen {

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::int64_t kMB = 1'000'000;
constexpr int kWide = 4000;

/// Prints of the same number are alike, others are not. In one place each shot shows something else.
FeaturePrint printOf(std::size_t number, std::size_t shot = 0)
{
    FeaturePrint::Vector vector{};
    vector[number] = 1;
    FeaturePrint::Tile tile{};
    auto noise = static_cast<std::uint32_t>(number + 1);
    for (std::uint8_t& value : tile) {
        noise = noise * 1'664'525U + 1'013'904'223U;
        value = static_cast<std::uint8_t>(noise >> 24U);
    }
    constexpr std::size_t kPlace = 16;
    for (std::size_t i = 0; shot > 0 && i < kPlace * kPlace; ++i) {
        const std::size_t x = i % kPlace + kPlace * (shot - 1);
        std::uint8_t& value = tile[i / kPlace * FeaturePrint::kTileSide + x];
        value = static_cast<std::uint8_t>(255 - value);
    }
    return {vector, tile};
}

struct Photo {
    std::string path;
    std::vector<ImageLabel> labels;
    double sharpness = 100;
    int width = kWide;
    std::int64_t size = kMB;
    std::optional<std::size_t> print;
    std::size_t shot = 0;
    PictureTraits traits;
};

PhotoInfo info(const Photo& photo)
{
    PhotoInfo info{
        {photo.path, photo.size, {}}, {}, photo.sharpness, photo.labels, photo.width, 10, photo.traits};
    if (photo.print)
        info.print = printOf(*photo.print, photo.shot);
    return info;
}

std::vector<Finding> findingsOf(const std::vector<Photo>& photos)
{
    std::vector<PhotoInfo> infos;
    infos.reserve(photos.size());
    for (const Photo& photo : photos)
        infos.push_back(info(photo));
    return PhotoAnalyzer::findings(infos);
}

/// What a single photo is found to be: "kind: note", or nothing.
std::string verdict(const Photo& photo)
{
    for (const Finding& finding : findingsOf({photo})) {
        if (!finding.items.empty())
            return std::string(finding.id()) + ": " + noteOf(finding.items.front()).base();
    }
    return {};
}

std::vector<std::string> pathsOf(const Finding& finding)
{
    std::vector<std::string> paths;
    for (const FileEntry& entry : finding.items)
        paths.push_back(entry.path);
    return paths;
}

constexpr const char* kScreenshot = "screenshots: Looks like a screenshot";
constexpr const char* kReceipt = "receipts: Looks like a receipt or document — check before removing";
constexpr const char* kMeme = "memes: Looks like a meme or captioned image";

} // namespace

TEST(PhotoAnalyzerTest, theFirstRuleThatHoldsDecides)
{
    struct Case {
        const char* name;
        Photo photo;
        const char* expected;
    };
    const Case cases[] = {
        {"a plain photo", {"/p/a.jpg", {{"flower", 0.9F}}}, ""},
        {"named screenshot", {"/p/Screen Shot 2023-01-02 at 10.00.00.png", {{"receipt", 0.9F}}}, kScreenshot},
        {"named in one word", {"/p/SCREENSHOT_1.jpg"}, kScreenshot},
        {"named in the middle", {"/p/my screenshot.jpg"}, ""},
        {"named in German", {"/p/Bildschirmfoto vom 2024.png"}, kScreenshot},
        {"named in Chinese", {"/p/屏幕截图 2024-01-02.png"}, kScreenshot},
        {"named in Russian", {"/p/Снимок экрана от 2024.png"}, kScreenshot},
        {"named in Japanese", {"/p/スクリーンショット 1.png"}, kScreenshot},
        {"in the folder for them", {"/p/Screenshots/1.png"}, kScreenshot},
        {"below that folder", {"/p/Screenshots/old/1.png"}, ""},
        {"screenshot 0.3", {"/p/a.jpg", {{"screenshot", 0.3F}}}, kScreenshot},
        {"screenshot 0.29", {"/p/a.jpg", {{"screenshot", 0.29F}}}, ""},
        {"receipt 0.2", {"/p/a.jpg", {{"receipt", 0.2F}}}, kReceipt},
        {"receipt 0.19", {"/p/a.jpg", {{"receipt", 0.19F}}}, ""},
        {"invoice inside a word", {"/p/a.jpg", {{"old_invoices", 0.2F}}}, kReceipt},
        {"document 0.55", {"/p/a.jpg", {{"document", 0.55F}}}, ""},
        {"document 0.6", {"/p/a.jpg", {{"document", 0.6F}}}, kReceipt},
        {"paper 0.6", {"/p/a.jpg", {{"paper", 0.6F}}}, kReceipt},
        {"meme 0.2", {"/p/a.jpg", {{"meme", 0.2F}}}, kMeme},
        {"meme 0.19", {"/p/a.jpg", {{"meme", 0.19F}}}, ""},
        {"text alone", {"/p/a.jpg", {{"text", 0.9F}}}, ""},
        {"text 0.6, people 0.29", {"/p/a.jpg", {{"text", 0.6F}, {"people", 0.29F}}}, ""},
        {"text 0.6, people 0.3", {"/p/a.jpg", {{"text", 0.6F}, {"people", 0.3F}}}, kMeme},
        {"text 0.49, comic", {"/p/a.jpg", {{"text", 0.49F}, {"comic", 0.9F}}}, ""},
        {"text 0.5, poster", {"/p/a.jpg", {{"poster", 0.4F}, {"text", 0.5F}}}, kMeme},
        {"screenshot before receipt", {"/p/a.jpg", {{"receipt", 0.9F}, {"screenshot", 0.4F}}}, kScreenshot},
        {"receipt before meme", {"/p/a.jpg", {{"meme", 0.9F}, {"invoice", 0.3F}}}, kReceipt},
        {"meme before blurry", {"/p/a.jpg", {{"meme", 0.9F}}, 1}, kMeme},
        {"blurry", {"/p/a.jpg", {}, 21.9, 301}, "blurry: Sharpness score 22 — likely out of focus"},
        {"blurry but small", {"/p/a.jpg", {}, 21.9, 300}, ""},
        {"sharp enough", {"/p/a.jpg", {}, 22.0, 301}, ""},
        {"of one colour", {.path = "/p/a.jpg", .sharpness = 0, .traits = {.isFlat = true}}, ""},
        {"read in part", {.path = "/p/a.jpg", .sharpness = 5, .traits = {.isDamaged = true}}, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(verdict(c.photo), c.expected);
    }
}

TEST(PhotoAnalyzerTest, ofDifferentShotsTheSharpestIsKeptOrOfTwoAlikeTheLargest)
{
    struct Case {
        const char* name;
        std::vector<std::pair<double, std::int64_t>> sharpnessAndMB;
        std::size_t keeper;
    };
    const Case cases[] = {
        {"each compared with the keeper so far", {{40.0, 2}, {40.8, 3}, {39.5, 5}}, 1},
        {"sharper by more than one", {{40.0, 9}, {41.1, 1}}, 1},
        {"sharper by exactly one, smaller", {{40.0, 9}, {41.0, 1}}, 0},
        {"less sharp by exactly one, larger", {{41.0, 1}, {40.0, 9}}, 1},
        {"less sharp by more than one, larger", {{41.1, 1}, {40.0, 9}}, 0},
        {"a full tie", {{40.0, 2}, {40.5, 2}, {40.0, 2}}, 0},
        {"within a fortieth, smaller", {{400.0, 9}, {409.0, 1}}, 0},
        {"beyond a fortieth, smaller", {{400.0, 9}, {411.0, 1}}, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::vector<Photo> photos;
        for (const auto& [sharpness, megabytes] : c.sharpnessAndMB)
            photos.push_back({"/p/" + std::to_string(photos.size()) + ".jpg",
                              {},
                              sharpness,
                              kWide,
                              megabytes * kMB,
                              1,
                              photos.size()});
        const Finding alike = findingsOf(photos).front();
        EXPECT_EQ(alike.items.size(), photos.size() - 1);
        for (const FileEntry& entry : alike.items) {
            EXPECT_NE(entry.path, photos[c.keeper].path);
            EXPECT_THAT(noteOf(entry).base(), StartsWith("Similar to " + std::to_string(c.keeper) +
                                                         ".jpg — keeping the sharpest · Similar shot"));
        }
    }
}

TEST(PhotoAnalyzerTest, ofCopiesTheOneThatLostLeastIsKeptAndTheOthersSayWhatTheyLack)
{
    using enum PictureFormat;
    const PictureTraits camera{.format = jpeg, .isFromCamera = true};
    const PictureTraits plain{.format = jpeg};
    const Photo original{"/p/o.jpg", {}, 100, kWide, 5'000, 1, 0, camera};
    struct Case {
        const char* name;
        Photo copy;
        const char* lacks;
    };
    const Case cases[] = {
        {"smaller, though sharper and heavier", {"/p/c", {}, 900, 3999, 9'000, 1, 0, camera}, "smaller"},
        {"grey",
         {"/p/c", {}, 900, kWide, 9'000, 1, 0, {.format = png, .isGrey = true, .isFromCamera = true}},
         "without colours"},
        {"dithered",
         {"/p/c", {}, 900, kWide, 90'000, 1, 0, {.format = gif, .hasPalette = true}},
         "fewer colours"},
        {"stripped", {"/p/c", {}, 900, kWide, 9'000, 1, 0, {.format = png}}, "without camera data"},
        {"of a lower quality", {"/p/c", {}, 900, kWide, 4'999, 1, 0, camera}, "more compressed"},
        {"in another format",
         {"/p/c", {}, 90, kWide, 4'999, 1, 0, {.format = webp, .isFromCamera = true}},
         "smaller file"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Finding alike = findingsOf({c.copy, original}).front();
        ASSERT_EQ(alike.items.size(), 1U);
        EXPECT_EQ(alike.items[0].path, "/p/c");
        EXPECT_EQ(noteOf(alike.items[0]).base(),
                  "Similar to o.jpg — keeping the sharpest · Identical picture, " + std::string(c.lacks));
    }
    const Photo drawing{"/p/drawing.png", {}, 10, kWide, 2'000, 1, 0, {.format = png}};
    const Photo sent{"/p/sent.jpg", {}, 10, kWide, 9'000, 1, 0, plain};
    EXPECT_THAT(pathsOf(findingsOf({sent, drawing}).front()), ElementsAre("/p/sent.jpg"));
}

TEST(PhotoAnalyzerTest, ofCopiesThatSayTheSameOfThemselvesTheEarlierOneIsKept)
{
    constexpr std::chrono::days kDay{1};
    const auto kept = [&](std::int64_t earlierBytes, std::int64_t laterBytes) {
        std::vector<PhotoInfo> photos{info({"/p/later.jpg", {}, 90, kWide, laterBytes, 1}),
                                      info({"/p/earlier.jpg", {}, 50, kWide, earlierBytes, 1})};
        photos[0].cand.modified = TimePoint{} + 9 * kDay;
        photos[1].cand.modified = TimePoint{} + 8 * kDay;
        return pathsOf(PhotoAnalyzer::findings(photos).front()) == std::vector<std::string>{"/p/later.jpg"};
    };
    EXPECT_TRUE(kept(5'000, 9'000)) << "saved again";
    EXPECT_TRUE(kept(5'000, 4'000));
    EXPECT_TRUE(kept(5'000, 10'000));
    EXPECT_FALSE(kept(5'000, 10'001)) << "much coarser than the later one";
}

TEST(PhotoAnalyzerTest, pagesStayTogetherOnlyIfACloserLookAgrees)
{
    // What is written on them goes by the first letter of their name.
    const auto look = [](const std::string& path) -> std::optional<RgbImage> {
        if (path == "/p/unreadable.jpg")
            return std::nullopt;
        RgbImage image{.width = 256, .height = 256, .pixels = {}};
        std::uint32_t noise = static_cast<unsigned char>(path[3]);
        for (int i = 0; i < 256 * 256; ++i) {
            noise = noise * 1'664'525U + 1'013'904'223U;
            image.pixels.insert(image.pixels.end(), 3, static_cast<std::uint8_t>(noise >> 24U));
        }
        return image;
    };
    const std::vector<ImageLabel> receipt{{"receipt", 0.9F}};
    std::vector<PhotoInfo> photos;
    for (const char* path :
         {"/p/a1.jpg", "/p/b1.jpg", "/p/a2.jpg", "/p/b2.jpg", "/p/unreadable.jpg", "/p/c.jpg"})
        photos.push_back(info({path, receipt, 50, kWide, kMB, 1}));
    photos.push_back(info({"/p/photo1.jpg", {}, 50, kWide, kMB, 2}));
    photos.push_back(info({"/p/photo2.jpg", {}, 50, kWide, kMB, 2}));
    const auto findings = PhotoAnalyzer::findings(photos, {}, look);
    EXPECT_THAT(pathsOf(findings[0]), ElementsAre("/p/a2.jpg", "/p/b2.jpg", "/p/photo2.jpg"));
    EXPECT_THAT(pathsOf(findings[2]), ElementsAre("/p/a1.jpg", "/p/b1.jpg", "/p/unreadable.jpg", "/p/c.jpg"));
}

TEST(PhotoAnalyzerTest, aShotIsKeptInItsBestCopy)
{
    const Finding alike = findingsOf({
                                         {"/p/soft.jpg", {}, 50, kWide, 9 * kMB, 1},
                                         {"/p/sharp, sent.jpg", {}, 120, 1000, kMB, 1, 2},
                                         {"/p/sharp.jpg", {}, 100, kWide, 4 * kMB, 1, 2},
                                     })
                              .front();
    EXPECT_THAT(pathsOf(alike), ElementsAre("/p/soft.jpg", "/p/sharp, sent.jpg"));
    EXPECT_THAT(noteOf(alike.items[0]).base(), EndsWith("Similar shot, softer"));
    EXPECT_THAT(noteOf(alike.items[1]).base(), EndsWith("Identical picture, smaller"));
}

TEST(PhotoAnalyzerTest, aDamagedPictureIsInNoSet)
{
    const auto findings = findingsOf({
        {"/p/cut.jpg", {}, 900, kWide, 9 * kMB, 1, 0, {.isDamaged = true}},
        {"/p/a.jpg", {}, 100, kWide, kMB, 1},
        {"/p/b.jpg", {}, 100, kWide, kMB, 1},
    });
    EXPECT_THAT(pathsOf(findings.front()), ElementsAre("/p/b.jpg"));
}

TEST(PhotoGroupsTest, manyPhotosAreGroupedAsIfTheyCameOneByOne)
{
    // Around a circle, each like those near it, in an order that jumps about; every tenth has no print.
    constexpr std::size_t kCount = 200;
    std::vector<PhotoInfo> photos(kCount);
    for (std::size_t i = 0; i < kCount; ++i) {
        const double angle = 0.37 * static_cast<double>(i * i % 997);
        photos[i].cand.size = static_cast<std::int64_t>(kCount - i); // the first of a group is the keeper
        if (i % 10 == 9)
            continue;
        FeaturePrint::Vector vector{};
        vector[0] = static_cast<float>(std::cos(angle));
        vector[1] = static_cast<float>(std::sin(angle));
        FeaturePrint::Tile plain;
        plain.fill(128);
        photos[i].print = FeaturePrint(vector, plain);
    }
    std::vector<std::vector<std::size_t>> expected;
    for (std::size_t i = 0; i < kCount; ++i) {
        if (!photos[i].print)
            continue;
        const auto alike = std::find_if(expected.begin(), expected.end(), [&](const auto& group) {
            return distance(*photos[group.front()].print, *photos[i].print) < 0.32F;
        });
        if (alike == expected.end())
            expected.push_back({i});
        else
            alike->push_back(i);
    }
    std::vector<std::vector<std::size_t>> grouped;
    for (const PhotoGroups::Group& group : PhotoGroups::of(photos, {})) {
        grouped.push_back({group.keeper});
        grouped.back().insert(grouped.back().end(), group.others.begin(), group.others.end());
    }
    std::erase_if(expected, [](const auto& group) { return group.size() == 1; });
    EXPECT_GT(expected.size(), 5U);
    EXPECT_EQ(grouped, expected);
}

TEST(PhotoAnalyzerTest, aNearDuplicateIsListedOnceAndItsKeeperByItsOwnRule)
{
    const auto findings = findingsOf({
        {"/p/Screenshot 1.png", {}, 100, kWide, 2 * kMB, 1},
        {"/p/Screenshot 2.png", {}, 100, kWide, kMB, 1},
        {"/p/other.png", {}, 100, kWide, kMB, 2},
        {"/p/flat.png", {}, 100, kWide, kMB, std::nullopt},
        {"/p/flat too.png", {}, 100, kWide, kMB, std::nullopt},
    });
    ASSERT_EQ(findings.size(), 5U);
    EXPECT_THAT(pathsOf(findings[0]), ElementsAre("/p/Screenshot 2.png"));
    EXPECT_THAT(pathsOf(findings[1]), ElementsAre("/p/Screenshot 1.png"));
    for (std::size_t i = 2; i < findings.size(); ++i)
        EXPECT_THAT(findings[i].items, IsEmpty());
}

TEST(PhotoAnalyzerTest, whatCannotBeReadIsLeftOutAndTheOthersKeepTheirOrder)
{
    std::vector<Cand> images;
    images.reserve(200);
    for (int i = 0; i < 200; ++i)
        images.push_back({"/p/" + std::to_string(1000 + i), i * kMB, {}});
    ScanProgress progress;
    const ScanFlag flag;
    const PhotoAnalyzer analyzer(progress, flag, [](const std::string& path) -> std::optional<ImageAnalysis> {
        if (path.back() == '3')
            return std::nullopt;
        return ImageAnalysis{640, 480, {}, 50, {{"MEME", 0.9F}, {"Floor", 0.15F}, {"Above", 0.151F}}};
    });
    const auto [photos, coverage] = analyzer.analyze(images);
    ASSERT_EQ(photos.size(), 180U);
    EXPECT_EQ(coverage, (PhotoCoverage{200, 200}));
    EXPECT_EQ(progress.files(), 200);
    for (std::size_t i = 1; i < photos.size(); ++i)
        ASSERT_LT(photos[i - 1].cand.path, photos[i].cand.path);
    EXPECT_THAT(photos[0].labels, ElementsAre(ImageLabel{"meme", 0.9F}, ImageLabel{"above", 0.151F}));
    EXPECT_EQ(photos[0].width, 640);

    const auto findings = analyzer.run(images).findings;
    ASSERT_EQ(findings.size(), 5U);
    EXPECT_EQ(findings[3].kind, FindingKind::memes);
    EXPECT_EQ(findings[3].items.size(), 180U);
    EXPECT_THAT(analyzer.run({}).findings, IsEmpty());
}

TEST(PhotoAnalyzerTest, aCancelledScanLooksAtNothingMore)
{
    const std::vector<Cand> images(500, Cand{"/p/a", kMB, {}});
    ScanProgress progress;
    ScanFlag flag;
    std::atomic<int> looked{0};
    const PhotoAnalyzer analyzer(progress, flag, [&](const std::string&) -> std::optional<ImageAnalysis> {
        const int number = ++looked;
        if (number == 20)
            flag.cancel();
        // Another thread must not be through with all before this one comes to cancel.
        while (number > 20 && !flag.isCancelled())
            std::this_thread::yield();
        return ImageAnalysis{640, 480};
    });
    const auto photos = analyzer.analyze(images).photos;
    EXPECT_EQ(photos.size(), static_cast<std::size_t>(looked));
    EXPECT_EQ(progress.files(), looked);
    EXPECT_LT(looked, 500);
    EXPECT_EQ(analyzer.run(images).findings.size(), 5U);
}

} // namespace orlen
