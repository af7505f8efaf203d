#include "platform/images/ImageMessages.h"
#include "platform/images/ImageWorkers.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <string>

namespace orlen {

namespace {

std::string littleEndian(std::uint32_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(value >> (8 * i) & 0xff);
    return text;
}

std::string chunk(const std::string& name, const std::string& content)
{
    const std::string padding(content.size() % 2, '\0');
    return name + littleEndian(static_cast<std::uint32_t>(content.size()), 4) + content + padding;
}

/// Two seconds of silence, 8,000 bytes each.
std::string wave()
{
    const std::string format = littleEndian(1, 2) + littleEndian(1, 2) + littleEndian(8'000, 4) +
                               littleEndian(8'000, 4) + littleEndian(1, 2) + littleEndian(8, 2);
    return chunk("RIFF",
                 "WAVE" + chunk("fmt ", format) + chunk("data", std::string(16'000, '\x80')) +
                     chunk("LIST", "INFO" + chunk("INAM", "Quiet\xc3\xa9") + chunk("IART", "Nobody")));
}

/// 100 frames of 128 kbit/s, and an old-fashioned tag.
std::string mp3()
{
    std::string frame("\xff\xfb\x90\x00", 4);
    frame.resize(417, '\0');
    std::string file;
    for (int i = 0; i < 100; ++i)
        file += frame;
    std::string tag = "TAGSong";
    tag.resize(33, '\0');
    tag += "Singer";
    tag.resize(128, '\0');
    return file + tag;
}

} // namespace

TEST(MediaReaderTest, aSoundFileTellsItsLengthAndTagsInsideTheCage)
{
    const TempHome home;
    ImageWorkers workers(ImageWorkers::Options{ORLEN_RECOGNIZER});
    const auto quiet = workers.media(home.file("a.wav", wave()), {});
    ASSERT_TRUE(quiet);
    EXPECT_EQ(quiet->length, std::chrono::seconds(2));
    EXPECT_EQ(quiet->kilobits, 64);
    EXPECT_EQ(quiet->title, "Quiet\xc3\xa9");
    EXPECT_EQ(quiet->artist, "Nobody");
    const auto song = workers.media(home.file("b.mp3", mp3()), {});
    ASSERT_TRUE(song);
    EXPECT_NEAR(static_cast<double>(song->length.count()), 2'612, 30);
    EXPECT_EQ(song->kilobits, 128);
    EXPECT_EQ(song->title, "Song");
    EXPECT_EQ(song->artist, "Singer");
    EXPECT_FALSE(workers.media(home.file("c.mp3", "words only"), {}));
}

TEST(MediaReaderTest, aDamagedOneDoesNoHarm)
{
    const TempHome home;
    ImageWorkers workers(ImageWorkers::Options{ORLEN_RECOGNIZER});
    for (const std::string& whole : {wave(), mp3()}) {
        for (std::size_t length = 0; length < whole.size(); length += whole.size() / 40 + 1) {
            const auto facts = workers.media(home.file("cut", whole.substr(0, length)), {});
            EXPECT_TRUE(!facts || facts->length < std::chrono::seconds(3)) << length;
        }
    }
    EXPECT_TRUE(workers.media(home.file("whole.wav", wave()), {}));
}

TEST(MediaMessageTest, nothingElseIsBelieved)
{
    using namespace ImageMessages;
    const MediaFacts facts{std::chrono::seconds(3), 64, "caf\xc3\xa9", "", "c"};
    const std::string bytes = encoded(MediaAnswer{facts});
    ASSERT_TRUE(decodedMediaAnswer(bytes));
    EXPECT_EQ(decodedMediaAnswer(bytes)->facts, facts);
    EXPECT_FALSE(decodedMediaAnswer(encoded(MediaAnswer{}))->facts);
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(decodedMediaAnswer(bytes.substr(0, length))) << length;
    EXPECT_FALSE(decodedMediaAnswer(encoded(MediaAnswer{MediaFacts{.kilobits = -1}})));
    EXPECT_FALSE(decodedMediaAnswer(encoded(MediaAnswer{MediaFacts{.title = "caf\xe9"}})));
}

} // namespace orlen
