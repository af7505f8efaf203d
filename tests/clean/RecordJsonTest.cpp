#include "clean/RecordJson.h"

#include "platform/values/CheckedSum.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <optional>
#include <string>

namespace orlen {

namespace {

const std::string kItem = R"({"original":"/a","trashed":"/t","size":5,"restored":false})";

std::string historyWith(const std::string& items)
{
    return R"([{"id":"123E4567-E89B-42D3-A456-426614174000","date":"2025-03-01T09:30:00Z","title":"T","failed":1,)"
           R"("items":[)" +
           items + "]}]";
}

std::string replaced(std::string text, const std::string& from, const std::string& to)
{
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
}

CleanRecord sampleRecord()
{
    return {*Uuid::parse("123e4567-e89b-42d3-a456-426614174000"),
            *timeFromIso("2025-03-01T09:30:00Z"),
            "Caches \"and\" more \xE2\x80\x94 \n",
            {{"/home/b/\xC3\xBC", "/t/a", kMostBytes, false}, {"/home/b/c", "", 0, true}},
            2};
}

} // namespace

TEST(RecordJsonTest, whatIsWrittenIsReadBack)
{
    const CleanRecord record = sampleRecord();
    const auto history = RecordJson::decodeHistory("[" + RecordJson::encode(record).dump() + "]");
    EXPECT_TRUE(history.isWhole);
    EXPECT_EQ(history.records, std::vector{record});

    const Snapshot snapshot{record.date, 0, kMostBytes, {{"apps", 1}, {"caches", kMostBytes - 1}}};
    const auto snapshots = RecordJson::decodeSnapshots("[" + RecordJson::encode(snapshot).dump() + "]");
    EXPECT_TRUE(snapshots.isWhole);
    EXPECT_EQ(snapshots.records, std::vector{snapshot});
}

TEST(RecordJsonTest, theFormIsTheOneOthersRead)
{
    CleanRecord record = sampleRecord();
    record.title = "T";
    record.items = {{"/a", "/t", 5, false}};
    record.failed = 1;
    EXPECT_EQ(
        "[" + RecordJson::encode(record).dump() + "]",
        R"([{"id":"123E4567-E89B-42D3-A456-426614174000","date":"2025-03-01T09:30:00Z","title":"T","items":[)" +
            kItem + R"(],"failed":1}])");
    const Snapshot snapshot{record.date, 1, 2, {{"apps", 3}}};
    EXPECT_EQ(RecordJson::encode(snapshot).dump(),
              R"({"date":"2025-03-01T09:30:00Z","free":1,"total":2,"cats":{"apps":3}})");
}

TEST(RecordJsonTest, anEntryHasOnlyTheOptionalKeysItNeeds)
{
    FileEntry entry{"/a", 5, {}, {}, {}, {}};
    EXPECT_EQ(RecordJson::encode(entry).dump(), R"({"path":"/a","size":5})");
    entry = {"/a",
             5,
             timeFromIso("2025-03-01T09:30:00Z"),
             timeFromIso("2025-03-02T09:30:00Z"),
             Rating::keep,
             {Message::verbatim("N")}};
    EXPECT_EQ(
        RecordJson::encode(entry).dump(),
        R"({"path":"/a","size":5,"modified":"2025-03-01T09:30:00Z","lastOpened":"2025-03-02T09:30:00Z",)"
        R"("rating":"keep","note":"N"})");
}

TEST(RecordJsonTest, aBadRecordCostsNoOther)
{
    enum Outcome { whole, cut, lost };
    struct Case {
        const char* name;
        const char* from;
        const char* to;
        Outcome outcome;
    };
    constexpr Case cases[] = {
        {"as written", "{", "{", whole},
        {"an unknown key", R"("failed")", R"("new":{"deep":[null,{"id":1}]},"failed")", whole},
        {"an id in small letters", "123E4567-E89B", "123e4567-e89b", whole},
        {"no failed", R"("failed":1,)", "", lost},
        {"no items", R"("items")", R"("item")", lost},
        {"no title", R"("title":"T",)", "", lost},
        {"no size", R"("size":5,)", "", lost},
        {"no restored", R"(,"restored":false)", "", lost},
        {"failed beyond an int", R"("failed":1)", R"("failed":2147483648)", cut},
        {"the largest failed", R"("failed":1)", R"("failed":2147483647)", whole},
        {"failed as text", R"("failed":1)", R"("failed":"1")", lost},
        {"failed with a fraction", R"("failed":1)", R"("failed":1.0)", lost},
        {"negative failed", R"("failed":1)", R"("failed":-1)", cut},
        {"negative size", R"("size":5)", R"("size":-5)", cut},
        {"sizes that just fit a sum", R"("size":5)", R"("size":9007199254740987)", whole},
        {"sizes that do not", R"("size":5)", R"("size":9007199254740988)", cut},
        {"a size beyond 64 bits", R"("size":5)", R"("size":99999999999999999999)", cut},
        {"a size beyond everything", R"("size":5)", R"("size":1e999)", lost},
        {"a size as null", R"("size":5)", R"("size":null)", lost},
        {"restored as a number", "false", "0", lost},
        {"a path as a number", R"("/a")", "1", lost},
        {"a date with an offset", "09:30:00Z", "09:30:00+01:00", lost},
        {"an impossible date", "2025-03-01", "2025-02-30", lost},
        {"half an id", "123E4567-E89B-", "", lost},
        {"items as an object", "[{\"original\"", "{\"original\"", lost},
        {"an item as a number", R"("items":[)", R"("items":[7,)", cut},
        {"an item as an array", R"("items":[)", R"("items":[[{}],)", cut},
        {"not UTF-8", "/a", "\xFF", lost},
        {"a quotation mark lost", R"("T")", R"("T)", lost},
        {"another one lost", R"("failed")", R"("failed)", lost},
        {"an item not closed", R"(false})", R"(false)", lost},
        {"items not closed", "}]}", "}}", lost},
        {"the record not closed", "}]}", "}]", lost},
        {"no comma before the next", "}]},", "}]}", cut},
        {"garbage before the next", "}]},", "}]},7,", cut},
        {"no array around it", "[{", "{", cut},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string next = replaced(historyWith(kItem), R"("T")", R"("next")").substr(1);
        std::string text = historyWith(kItem);
        text.back() = ',';
        const auto history = RecordJson::decodeHistory(replaced(text, c.from, c.to) + next);
        EXPECT_EQ(history.isWhole, c.outcome == whole);
        ASSERT_EQ(history.records.size(), c.outcome == lost ? 1U : 2U);
        EXPECT_EQ(history.records.back().title, "next");
    }
}

TEST(RecordJsonTest, aTextThatIsCutAnywhereKeepsWhatStandsBefore)
{
    const std::string one = historyWith(kItem);
    const std::string text = one.substr(0, one.size() - 1) + "," + one.substr(1);
    for (std::size_t length = 0; length < text.size(); ++length) {
        const auto history = RecordJson::decodeHistory(text.substr(0, length));
        EXPECT_FALSE(history.isWhole);
        EXPECT_EQ(history.records.size(), (length + 1) / one.size() + length / (text.size() - 1)) << length;
    }
    EXPECT_TRUE(RecordJson::decodeHistory("[]").isWhole);
    EXPECT_FALSE(RecordJson::decodeHistory(one + "x").isWhole);
}

TEST(RecordJsonTest, sizesAreCutSoThatTheyCanBeSummed)
{
    const std::string largest = replaced(kItem, "5", "9007199254740992");
    const auto history = RecordJson::decodeHistory(historyWith(largest + "," + kItem));
    EXPECT_FALSE(history.isWhole);
    ASSERT_EQ(history.records.size(), 1U);
    EXPECT_EQ(history.records.front().freed(), kMostBytes);
}

TEST(RecordJsonTest, aBadSnapshotCostsNoOther)
{
    const std::string good =
        R"({"date":"2025-03-01T09:30:00Z","free":1,"total":2,"cats":{"apps":3,"new":4}})";
    const auto decoded = [](std::int64_t free, std::int64_t total, std::int64_t apps) {
        return Snapshot{*timeFromIso("2025-03-01T09:30:00Z"), free, total, {{"apps", apps}, {"new", 4}}};
    };
    struct Case {
        const char* name;
        const char* from;
        const char* to;
        std::optional<Snapshot> read;
    };
    const Case cases[] = {
        {"as written", "{", "{", decoded(1, 2, 3)},
        {"no free", R"("free":1,)", "", {}},
        {"negative free", R"("free":1)", R"("free":-9223372036854775808)", decoded(0, 2, 3)},
        {"a total beyond 64 bits", R"("total":2)", R"("total":1e19)", decoded(1, kMostBytes, 3)},
        {"a total with a fraction", R"("total":2)", R"("total":2.5)", {}},
        {"categories as an array", R"({"apps":3,"new":4})", "[]", {}},
        {"a category as text", R"("apps":3)", R"("apps":"3")", {}},
        {"a negative category", R"("apps":3)", R"("apps":-3)", decoded(1, 2, 0)},
        {"a year beyond reckoning", "2025", "1700", {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto snapshots =
            RecordJson::decodeSnapshots("[" + replaced(good, c.from, c.to) + "," + good + "]");
        EXPECT_EQ(snapshots.isWhole, c.read == decoded(1, 2, 3));
        std::vector<Snapshot> expected{decoded(1, 2, 3)};
        if (c.read)
            expected.insert(expected.begin(), *c.read);
        EXPECT_EQ(snapshots.records, expected);
    }
}

TEST(RecordJsonTest, deepNestingIsPassedOverAndBracketsInTextAreRead)
{
    EXPECT_FALSE(RecordJson::decodeHistory(std::string(20'000'000, '[')).isWhole);
    std::string deep;
    for (int level = 0; level < 100'000; ++level)
        deep += R"({"a":)";
    const auto nested = RecordJson::decodeHistory(
        replaced(historyWith(kItem), R"("failed")",
                 R"("x":)" + deep + "1" + std::string(100'000, '}') + R"(,"failed")"));
    EXPECT_EQ(nested.records.size(), 1U);
    const std::string brackets = std::string(100, '[') + R"(\"[{\\)" + std::string(100, '{');
    const auto history =
        RecordJson::decodeHistory(replaced(historyWith(kItem), "\"T\"", "\"" + brackets + "\""));
    ASSERT_EQ(history.records.size(), 1U);
    EXPECT_EQ(history.records.front().title.size(), 100U + 4U + 100U);
}

} // namespace orlen
