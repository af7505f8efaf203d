#include "scan/photos/PictureFile.h"

#include "platform/files/OwnFile.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

namespace {

constexpr std::size_t kUnbounded = 1'000'000;

/// Three records, the second one with an empty answer.
struct PictureFileTest : testing::Test {
    TempHome home;
    std::vector<std::string> answers{"the first", "", "the third and last"};
    std::vector<std::string> records;
    std::string whole{PictureRecords::header()};

    void SetUp() override
    {
        for (std::size_t i = 0; i < answers.size(); ++i) {
            const PictureRecords::Key key{{7, i}, static_cast<std::int64_t>(100 + i), TimePoint{}};
            records.push_back(PictureRecords::encoded({key, TimePoint{}, answers[i]}));
            whole += records.back();
        }
    }

    /// The number of records that lie completely in front of a byte.
    [[nodiscard]] std::size_t recordsBefore(std::size_t end) const
    {
        std::size_t at = PictureRecords::header().size();
        std::size_t count = 0;
        while (count < records.size() && at + records[count].size() <= end)
            at += records[count++].size();
        return count;
    }

    /// How many records are read; each must be what was written, and lie where it says.
    [[nodiscard]] std::size_t countRead(const std::string& path, std::size_t mostBytes = kUnbounded) const
    {
        const PictureFile file(path, mostBytes);
        std::size_t count = 0;
        file.visit([&](const PictureRecords::Record& record, PictureFile::Place place) {
            ASSERT_LT(count, records.size());
            EXPECT_EQ(record.answer, answers[count]);
            EXPECT_EQ(record.key.identity.number, count);
            EXPECT_EQ(file.bytes(place), records[count]);
            ++count;
        });
        return count;
    }
};

} // namespace

TEST_F(PictureFileTest, whateverIsCutOffTheRecordsInFrontOfItAreRead)
{
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        SCOPED_TRACE(length);
        EXPECT_EQ(countRead(home.file("cut", whole.substr(0, length))), recordsBefore(length));
    }
    const std::string path = home.file("whole", whole);
    for (std::size_t most = 0; most <= whole.size(); ++most)
        EXPECT_EQ(countRead(path, most), recordsBefore(most)) << most;
}

TEST_F(PictureFileTest, whateverBitIsWrongNothingWrongIsRead)
{
    for (std::size_t at = 0; at < whole.size(); ++at) {
        SCOPED_TRACE(at);
        const bool isInHeader = at < PictureRecords::header().size();
        std::string damaged = whole;
        damaged[at] = static_cast<char>(static_cast<unsigned char>(damaged[at]) ^ (1U << at % 8));
        EXPECT_EQ(countRead(home.file("damaged", damaged)), isInHeader ? 0 : recordsBefore(at));
    }
}

TEST_F(PictureFileTest, whatIsNoSuchFileHoldsNothing)
{
    EXPECT_EQ(countRead(home.path("missing")), 0U);
    EXPECT_EQ(countRead(home.folder("folder")), 0U);
    std::string older = whole;
    older[older.find_first_of("0123456789")] = '0';
    EXPECT_EQ(countRead(home.file("older", older)), 0U);
}

TEST_F(PictureFileTest, aRecordCanBeReadAgainWhileAnotherProgramReplacesTheFile)
{
    const std::string path = home.file("file", whole);
    const PictureFile file(path, kUnbounded);
    std::vector<PictureFile::Place> places;
    file.visit([&](const PictureRecords::Record&, PictureFile::Place place) { places.push_back(place); });
    ASSERT_EQ(places.size(), records.size());
    ASSERT_TRUE(OwnFile::replace(path, "another").ok());
    for (std::size_t i = 0; i < places.size(); ++i)
        EXPECT_EQ(file.bytes(places[i]), records[i]);
    EXPECT_EQ(file.bytes({static_cast<std::int64_t>(whole.size()), 1}), std::nullopt);
}

TEST_F(PictureFileTest, recordsAcrossTheReadPiecesAreWhole)
{
    // Larger than what is read at a time, and of a length that divides no power of two.
    constexpr std::size_t kCount = 400;
    std::string bytes(PictureRecords::header());
    for (std::size_t i = 0; i < kCount; ++i)
        bytes += PictureRecords::encoded({{{1, i}, 1, {}}, {}, std::string(4'001, static_cast<char>(i))});
    const PictureFile file(home.file("large", bytes), 2 * bytes.size());
    std::size_t count = 0;
    file.visit([&](const PictureRecords::Record& record, PictureFile::Place place) {
        EXPECT_EQ(record.key.identity.number, count);
        EXPECT_EQ(file.bytes(place), PictureRecords::encoded(record));
        ++count;
    });
    EXPECT_EQ(count, kCount);
}

} // namespace orlen
