#include "clean/RecordJson.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

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
            {{"/home/b/\xC3\xBC", "/t/a", INT64_MAX, false}, {"/home/b/c", "", 0, true}},
            2};
}

} // namespace

TEST(RecordJsonTest, whatIsWrittenIsReadBack)
{
    const CleanRecord record = sampleRecord();
    const auto history = RecordJson::decodeHistory("[" + RecordJson::encode(record).dump() + "]");
    ASSERT_TRUE(history.has_value());
    EXPECT_EQ(*history, std::vector{record});

    const Snapshot snapshot{record.date, 0, INT64_MAX, {{"apps", 1}, {"caches", INT64_MAX - 1}}};
    const auto snapshots = RecordJson::decodeSnapshots("[" + RecordJson::encode(snapshot).dump() + "]");
    ASSERT_TRUE(snapshots.has_value());
    EXPECT_EQ(*snapshots, std::vector{snapshot});
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
    entry = {"/a",         5,  timeFromIso("2025-03-01T09:30:00Z"), timeFromIso("2025-03-02T09:30:00Z"),
             Rating::keep, "N"};
    EXPECT_EQ(
        RecordJson::encode(entry).dump(),
        R"({"path":"/a","size":5,"modified":"2025-03-01T09:30:00Z","lastOpened":"2025-03-02T09:30:00Z",)"
        R"("rating":"keep","note":"N"})");
}

TEST(RecordJsonTest, aHistoryIsReadWhollyOrNotAtAll)
{
    struct Case {
        const char* name;
        const char* from;
        const char* to;
        bool isRead;
    };
    constexpr Case cases[] = {
        {"as written", "{", "{", true},
        {"an unknown key", R"("failed")", R"("new":{"deep":[null]},"failed")", true},
        {"an id in small letters", "123E4567-E89B", "123e4567-e89b", true},
        {"no failed", R"("failed":1,)", "", false},
        {"no items", R"("items")", R"("item")", false},
        {"no title", R"("title":"T",)", "", false},
        {"no size", R"("size":5,)", "", false},
        {"no restored", R"(,"restored":false)", "", false},
        {"failed beyond an int", R"("failed":1)", R"("failed":2147483648)", false},
        {"the largest failed", R"("failed":1)", R"("failed":2147483647)", true},
        {"failed as text", R"("failed":1)", R"("failed":"1")", false},
        {"failed with a fraction", R"("failed":1)", R"("failed":1.0)", false},
        {"negative failed", R"("failed":1)", R"("failed":-1)", false},
        {"negative size", R"("size":5)", R"("size":-5)", false},
        {"the largest size", R"("size":5)", R"("size":9223372036854775807)", true},
        {"a size beyond that", R"("size":5)", R"("size":9223372036854775808)", false},
        {"a size beyond everything", R"("size":5)", R"("size":1e999)", false},
        {"a size as null", R"("size":5)", R"("size":null)", false},
        {"restored as a number", "false", "0", false},
        {"a path as a number", R"("/a")", "1", false},
        {"a date with an offset", "09:30:00Z", "09:30:00+01:00", false},
        {"an impossible date", "2025-03-01", "2025-02-30", false},
        {"half an id", "123E4567-E89B-", "", false},
        {"items as an object", "[{\"original\"", "{\"original\"", false},
        {"an item as a number", R"("items":[)", R"("items":[7,)", false},
        {"not UTF-8", "/a", "\xFF", false},
        {"an object instead of the array", "[{", "{", false},
        {"something behind it", "}]}]", "}]}]x", false},
        {"half a file", "}]}]", "}]", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto history = RecordJson::decodeHistory(replaced(historyWith(kItem), c.from, c.to));
        EXPECT_EQ(history.has_value(), c.isRead);
    }
    EXPECT_FALSE(RecordJson::decodeHistory("").has_value());
    EXPECT_TRUE(RecordJson::decodeHistory("[]").has_value());
}

TEST(RecordJsonTest, sizesThatCannotBeSummedMakeAFileMalformed)
{
    const std::string largest = replaced(kItem, "5", "9223372036854775807");
    const std::string nothing = replaced(kItem, "5", "0");
    EXPECT_TRUE(RecordJson::decodeHistory(historyWith(largest + "," + nothing)).has_value());
    EXPECT_FALSE(RecordJson::decodeHistory(historyWith(largest + "," + kItem)).has_value());

    const std::string record = historyWith(largest).substr(1, historyWith(largest).size() - 2);
    EXPECT_FALSE(RecordJson::decodeHistory("[" + record + "," + record + "]").has_value())
        << "across records";
}

TEST(RecordJsonTest, snapshotsAreReadWhollyOrNotAtAll)
{
    const std::string good =
        R"([{"date":"2025-03-01T09:30:00Z","free":1,"total":2,"cats":{"apps":3,"new":4}}])";
    struct Case {
        const char* name;
        const char* from;
        const char* to;
        bool isRead;
    };
    constexpr Case cases[] = {
        {"as written", "[", "[", true},
        {"no categories", R"({"apps":3,"new":4})", "{}", true},
        {"no free", R"("free":1,)", "", false},
        {"negative free", R"("free":1)", R"("free":-1)", false},
        {"a total with a fraction", R"("total":2)", R"("total":2.5)", false},
        {"categories as an array", R"({"apps":3,"new":4})", "[]", false},
        {"a category as text", R"("apps":3)", R"("apps":"3")", false},
        {"categories that overflow", R"("apps":3)", R"("apps":9223372036854775807)", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(RecordJson::decodeSnapshots(replaced(good, c.from, c.to)).has_value(), c.isRead);
    }
}

TEST(RecordJsonTest, deepNestingIsRefusedAndBracketsInTextAreNot)
{
    std::string deep;
    deep.resize(50'000'000, '[');
    EXPECT_FALSE(RecordJson::decodeHistory(deep).has_value());
    deep.clear();
    for (int level = 0; level < 100'000; ++level)
        deep += R"({"a":)";
    EXPECT_FALSE(RecordJson::decodeHistory("[" + deep).has_value());
    const std::string brackets = std::string(100, '[') + R"(\"[{\\)" + std::string(100, '{');
    const auto history =
        RecordJson::decodeHistory(replaced(historyWith(kItem), "\"T\"", "\"" + brackets + "\""));
    ASSERT_TRUE(history.has_value());
    EXPECT_EQ(history->front().title.size(), 100U + 4U + 100U);
}

} // namespace orlen
