#include "platform/images/ImageMessages.h"
#include "platform/images/ImageWorkers.h"
#include "support/TempHome.h"
#include "support/TestMedia.h"

#include <gtest/gtest.h>

#include <string>

namespace orlen {

namespace {

using Sounds = std::vector<MediaFacts::Sound>;
using std::chrono::seconds;

} // namespace

TEST(MediaReaderTest, aSoundFileTellsItsLengthTagsAndCodecInsideTheCage)
{
    const TempHome home;
    ImageWorkers workers(ImageWorkers::Options{ORLEN_RECOGNIZER});
    const auto quiet = workers.media(home.file("a.wav", TestMedia::wave()), {});
    ASSERT_TRUE(quiet);
    EXPECT_EQ(quiet->length, seconds(2));
    EXPECT_EQ(quiet->kilobits, 64);
    EXPECT_EQ(quiet->title, "Quiet\xc3\xa9");
    EXPECT_EQ(quiet->artist, "Nobody");
    EXPECT_EQ(quiet->codec, "") << "no film";
    EXPECT_EQ(quiet->sounds, (Sounds{{"PCM", "", 8'000, 1}}));
    const auto song = workers.media(home.file("b.mp3", TestMedia::mp3()), {});
    ASSERT_TRUE(song);
    EXPECT_NEAR(static_cast<double>(song->length.count()), 2'612, 30);
    EXPECT_EQ(song->kilobits, 128);
    EXPECT_EQ(song->title, "Song");
    EXPECT_EQ(song->artist, "Singer");
    EXPECT_EQ(song->sounds, (Sounds{{"MP3", "", 44'100, 2}}));
    const auto lossless = workers.media(home.file("c.flac", TestMedia::flac(337'500)), {});
    ASSERT_TRUE(lossless);
    EXPECT_EQ(lossless->length, seconds(3));
    EXPECT_EQ(lossless->kilobits, 900);
    EXPECT_EQ(lossless->sounds, (Sounds{{"FLAC", "", 44'100, 2}}));
    EXPECT_FALSE(workers.media(home.file("d.mp3", "words only"), {}));
}

TEST(MediaReaderTest, aFilmTellsWhatItIsMadeOf)
{
    const TempHome home;
    ImageWorkers workers(ImageWorkers::Options{ORLEN_RECOGNIZER});
    struct Case {
        const char* name;
        std::string bytes;
        MediaFacts facts; ///< but for the rate
    };
    MediaFacts matroska{
        .length = seconds(5'400), .title = "Evening", .container = "Matroska", .codec = "H.264"};
    matroska.width = 1920;
    matroska.height = 1080;
    matroska.frames = 25;
    matroska.sounds = {{"AAC", "de", 48'000, 2}, {"AC-3", "fr", 48'000, 6}};
    MediaFacts mpeg4{.length = seconds(10), .container = "MPEG-4", .codec = "H.264"};
    mpeg4.width = 640;
    mpeg4.height = 480;
    mpeg4.frames = 30;
    mpeg4.sounds = {{"AAC", "en", 44'100, 2}};
    MediaFacts upright = mpeg4;
    std::swap(upright.width, upright.height);
    MediaFacts avi{.length = seconds(4), .container = "AVI", .codec = "MPEG-4 Visual"};
    avi.width = 320;
    avi.height = 240;
    avi.frames = 10;
    const Case cases[] = {
        {"a.mkv", TestMedia::matroska(), matroska},
        {"a.mp4", TestMedia::mpeg4(), mpeg4},
        {"upright.mp4", TestMedia::mpeg4(true), upright},
        {"a.avi", TestMedia::avi(), avi},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        auto facts = workers.media(home.file(c.name, c.bytes), {});
        ASSERT_TRUE(facts);
        facts->kilobits = 0;
        EXPECT_EQ(facts->length, c.facts.length);
        EXPECT_EQ(facts->codec, c.facts.codec);
        EXPECT_EQ(*facts, c.facts);
    }
    const auto stream = workers.media(home.file("a.ts", TestMedia::transportStream()), {});
    ASSERT_TRUE(stream);
    EXPECT_EQ(stream->container, "MPEG-TS");
    EXPECT_EQ(stream->width, 720);
    EXPECT_EQ(stream->height, 576);
}

TEST(MediaReaderTest, aDamagedOneDoesNoHarm)
{
    const TempHome home;
    ImageWorkers workers(ImageWorkers::Options{ORLEN_RECOGNIZER});
    for (const std::string& whole :
         {TestMedia::wave(), TestMedia::mp3(), TestMedia::matroska(), TestMedia::mpeg4(), TestMedia::avi()}) {
        for (std::size_t length = 0; length < whole.size(); length += whole.size() / 40 + 1) {
            const auto facts = workers.media(home.file("cut", whole.substr(0, length)), {});
            EXPECT_TRUE(!facts || facts->length <= seconds(5'400)) << length;
        }
    }
    EXPECT_TRUE(workers.media(home.file("whole.wav", TestMedia::wave()), {}));
}

TEST(MediaMessageTest, nothingElseIsBelieved)
{
    using namespace ImageMessages;
    const MediaFacts facts{seconds(3),
                           64,
                           "caf\xc3\xa9",
                           "",
                           "c",
                           "AVI",
                           "VP9",
                           1920,
                           1080,
                           25,
                           {{"AAC", "de", 48'000, 2}, {"FLAC", "", 1, 1}}};
    const std::string bytes = encoded(MediaAnswer{facts});
    ASSERT_TRUE(decodedMediaAnswer(bytes));
    EXPECT_EQ(decodedMediaAnswer(bytes)->facts, facts);
    EXPECT_FALSE(decodedMediaAnswer(encoded(MediaAnswer{}))->facts);
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(decodedMediaAnswer(bytes.substr(0, length))) << length;
    EXPECT_FALSE(decodedMediaAnswer(encoded(MediaAnswer{MediaFacts{.kilobits = -1}})));
    EXPECT_FALSE(decodedMediaAnswer(encoded(MediaAnswer{MediaFacts{.title = "caf\xe9"}})));
    MediaFacts endless;
    endless.sounds.resize(kMostSounds + 1);
    EXPECT_FALSE(decodedMediaAnswer(encoded(MediaAnswer{endless})));
    endless.sounds.assign(kMostSounds, {std::string(200, 'a'), std::string(200, 'b'), 1, 1});
    for (std::string* text :
         {&endless.title, &endless.artist, &endless.album, &endless.container, &endless.codec})
        text->assign(200, 'c');
    EXPECT_LE(encoded(MediaAnswer{endless}).size(), kLongest);
}

} // namespace orlen
