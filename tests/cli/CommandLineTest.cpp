#include "app/Sizes.h"
#include "clean/Persist.h"
#include "cli/Process.h"
#include "platform/files/FolderLock.h"
#include "support/TempHome.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

namespace orlen {

namespace {

using Json = nlohmann::ordered_json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> keys(const Json& object)
{
    std::vector<std::string> names;
    for (const auto& [name, value] : object.items())
        names.push_back(name);
    return names;
}

/// Two safe caches, a safe log, and two identical files, one of them in Downloads.
struct CommandHome : TempHome {
    CommandHome()
    {
        fileOfSize(".cache/chromium/pages", 400 * kKiB);
        fileOfSize(".cache/mozilla/covers", 800 * kKiB);
        fileOfSize(".xsession-errors", 64 * kKiB);
        fileOfSize("Videos/film.mkv", 1200 * kKiB, 7);
        fileOfSize("Downloads/film.mkv", 1200 * kKiB, 7);
    }
    [[nodiscard]] bool isUntouched() const
    {
        return exists(path(".cache/chromium")) && exists(path(".cache/mozilla")) &&
               exists(path(".xsession-errors")) && exists(path("Downloads/film.mkv")) &&
               !exists(path(".local/share/Trash"));
    }
};

} // namespace

TEST(CommandLineTest, theVersionTellsWhatKeepsTheRecognizerIn)
{
    const auto plain = orlen({"--version"});
    EXPECT_EQ(plain.status, 0);
    const auto verbose = orlen({"--version", "--verbose"});
    EXPECT_EQ(verbose.status, 0);
    EXPECT_TRUE(verbose.out.starts_with(plain.out));
    // What holds differs from system to system; that it was asked does not.
    EXPECT_THAT(verbose.out, HasSubstr("\n  Files: none can be opened"));
    EXPECT_THAT(verbose.out, HasSubstr("\n  Environment: empty\n"));
}

TEST(CommandLineTest, aWrongCallEndsWithTwoAndMovesNothing)
{
    const CommandHome home;
    const std::string file = home.path(".xsession-errors");
    struct Case {
        const char* name;
        std::vector<std::string> arguments;
        const char* message;
    };
    const Case cases[] = {
        {"no command", {}, "orlen scan"},
        {"unknown command", {"frob"}, "\"frob\""},
        {"unknown option", {"scan", "--frob"}, "--frob"},
        {"something too much", {"history", "extra"}, "extra"},
        {"no number", {"scan", "--large-mb", "many"}, "--large-mb"},
        {"not a number", {"scan", "--large-mb", "nan"}, "--large-mb"},
        {"negative", {"scan", "--large-mb", "-1"}, "--large-mb"},
        {"too large for bytes", {"scan", "--large-mb", "1e13"}, "--large-mb"},
        {"unknown kind", {"clean", "--yes", "--kind", "cache"}, "\"cache\""},
        {"kind that never moves", {"clean", "--yes", "--all", "--kind", "trash"}, "Trash"},
        {"all of nothing", {"clean", "--yes", "--all"}, "--kind"},
        {"path and kind", {"clean", "--yes", "--kind", "logs", "--path", file}, "--path"},
        {"no entry of the scan", {"clean", "--yes", "--path", file, "--path", home.path("Videos")}, "Videos"},
        {"nobody to ask", {"clean"}, "--yes"},
        {"nobody to ask, as a document", {"clean", "--json"}, "--yes"},
        {"no record", {"restore", "--yes", "0E7C"}, "0E7C"},
        {"record missing", {"restore"}, "ID"},
        {"question missing", {"ask"}, "question"},
        {"no folder", {"duplicates", "Nowhere"}, "Nowhere"},
        {"a file", {"duplicates", file}, ".xsession-errors"},
        {"protected", {"duplicates", "/usr"}, "protected"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Process::Outcome outcome = orlen(c.arguments);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.err, HasSubstr(c.message));
        if (std::string_view(c.name) != "nobody to ask") {
            EXPECT_THAT(outcome.out, IsEmpty());
        }
        EXPECT_TRUE(home.isUntouched());
    }
}

TEST(CommandLineTest, everyCommandTellsHelpAndVersion)
{
    const TempHome home;
    for (const char* command : {"scan", "clean", "history", "restore", "breakdown", "predict", "ask",
                                "duplicates", "map", "apps", "leftovers", "uninstall"}) {
        SCOPED_TRACE(command);
        const Process::Outcome help = orlen({command, "--help"});
        EXPECT_EQ(help.status, 0);
        EXPECT_THAT(help.out, HasSubstr("--json"));
        const Process::Outcome version = orlen({command, "--version"});
        EXPECT_EQ(version.status, 0);
        EXPECT_EQ(version.out, "orlen 0.1.0\n");
    }
    EXPECT_EQ(orlen({"--version"}).out, "orlen 0.1.0\n");
}

TEST(CommandLineTest, theDocumentOfAScanHoldsItsResults)
{
    const CommandHome home;
    const Process::Outcome outcome = orlen({"scan", "--json"});
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    const Json scan = outcome.document();
    EXPECT_THAT(keys(scan),
                ElementsAre("findings", "sets", "unreadable", "selection", "totalFound", "safeBytes",
                            "breakdown", "filesExamined", "steps", "fullDiskAccess", "date", "seconds"));
    EXPECT_EQ(scan["unreadable"], Json::array());
    EXPECT_THAT(keys(scan["findings"][0]),
                ElementsAre("kind", "title", "explanation", "symbol", "category", "rating", "reason",
                            "cleanable", "size", "safeSize", "items"));
    EXPECT_EQ(scan["findings"][0]["kind"], "caches");
    EXPECT_EQ(scan["findings"][0]["items"][0]["path"], home.path(".cache/mozilla"));
    EXPECT_EQ(scan["findings"][0]["items"][0]["size"], 800 * kKiB);
    EXPECT_EQ(scan["selection"], Json({home.path(".cache/chromium"), home.path(".cache/mozilla"),
                                       home.path(".xsession-errors")}));
    EXPECT_EQ(scan["safeBytes"], (800 + 400 + 64) * kKiB);
    EXPECT_EQ(scan["steps"].size(), 10U);
    EXPECT_EQ(scan["steps"][9]["state"], "done");
    EXPECT_EQ(scan["breakdown"]["cats"].size(), 7U);
    EXPECT_TRUE(timeFromIso(scan["date"].get<std::string>()).has_value());
    EXPECT_EQ(Persist::loadSnapshots().records.size(), 1U);
}

TEST(CommandLineTest, aQuestionIsAnsweredFromAScan)
{
    const CommandHome home;
    const Json answer = orlen({"ask", "--json", "What about LOGS?"}).document();
    EXPECT_THAT(keys(answer), ElementsAre("text", "findingIDs", "usedModel"));
    EXPECT_THAT(answer["text"].get<std::string>(), HasSubstr("Log files: 66 KB — rated Safe. "));
    EXPECT_EQ(answer["findingIDs"], Json({"logs"}));
    EXPECT_EQ(answer["usedModel"], false);
    EXPECT_THAT(Persist::loadSnapshots().records, IsEmpty()) << "a question is no scan of its own";
    EXPECT_THAT(orlen({"ask", "--large-mb", "1", "what is large"}).out, HasSubstr("Large files ("));

    const std::string proposal = orlen({"ask", "free 300 KB"}).out;
    EXPECT_THAT(proposal, HasSubstr(".cache/chromium\n")) << "what it proposes";
    EXPECT_THAT(proposal, testing::Not(HasSubstr(".cache/mozilla")));
    EXPECT_TRUE(home.isUntouched());
}

TEST(CommandLineTest, oddNamesAreHarmless)
{
    const TempHome home;
    const std::string odd = ".cache/cargo-line\nbreak \"quoted\" \x1b[31mred";
    home.fileOfSize(odd + "/x", 400 * kKiB);
    home.fileOfSize(".cache/\xff\xfe/x", 300 * kKiB);
    const Json scan = orlen({"scan", "--json"}).document();
    ASSERT_TRUE(scan.is_object());
    EXPECT_EQ(scan["selection"], Json({home.path(odd)}));

    const Process::Outcome shown = orlen({"scan"});
    EXPECT_THAT(shown.out, HasSubstr("~/.cache/cargo-line?break \"quoted\" ?[31mred"));
    EXPECT_EQ(shown.out.find('\x1b'), std::string::npos);
    EXPECT_EQ(orlen({"clean", "--yes"}).status, 0);
    EXPECT_FALSE(TempHome::exists(home.path(odd)));
    EXPECT_TRUE(TempHome::exists(home.path(".cache/\xff\xfe")));
}

TEST(CommandLineTest, aDryRunShowsThePlanAndMovesNothing)
{
    const CommandHome home;
    const Process::Outcome outcome = orlen({"clean", "--dry-run", "--json", "--kind", "caches"});
    EXPECT_EQ(outcome.status, 0);
    const Json shown = outcome.document();
    EXPECT_THAT(keys(shown), ElementsAre("plan"));
    EXPECT_EQ(shown["plan"]["title"], "Smart Scan clean-up");
    ASSERT_EQ(shown["plan"]["sections"].size(), 1U);
    EXPECT_EQ(shown["plan"]["sections"][0]["entries"].size(), 2U);
    EXPECT_THAT(orlen({"clean", "--dry-run"}).out, HasSubstr("~/.cache/mozilla"));
    EXPECT_TRUE(home.isUntouched());
    EXPECT_THAT(Persist::loadHistory().records, IsEmpty());
}

TEST(CommandLineTest, whatWasCleanedIsInTheHistoryAndComesBack)
{
    const CommandHome home;
    const std::string copy = home.path("Downloads/film.mkv");
    const Process::Outcome clean = orlen({"clean", "--yes", "--json", "--path", copy});
    ASSERT_EQ(clean.status, 0) << clean.err;
    EXPECT_THAT(clean.err, HasSubstr("~/Downloads/film.mkv"));
    const Json cleaned = clean.document();
    EXPECT_THAT(keys(cleaned), ElementsAre("plan", "record", "freed", "failures"));
    EXPECT_EQ(cleaned["record"]["items"][0]["original"], copy);
    EXPECT_EQ(cleaned["freed"], 1200 * kKiB);
    EXPECT_FALSE(TempHome::exists(copy));
    EXPECT_TRUE(TempHome::exists(home.path(".cache/chromium")));

    const Json history = orlen({"history", "--json"}).document();
    ASSERT_EQ(history.size(), 1U);
    EXPECT_EQ(history[0]["id"], cleaned["record"]["id"]);
    EXPECT_EQ(history[0]["freed"], 1200 * kKiB);

    std::string id = history[0]["id"].get<std::string>();
    std::transform(id.begin(), id.end(), id.begin(), [](unsigned char c) { return std::tolower(c); });
    EXPECT_EQ(orlen({"restore", id}).status, 2);
    EXPECT_EQ(orlen({"restore", id.substr(0, 3), "--yes"}).status, 2);
    EXPECT_FALSE(TempHome::exists(copy));
    const Process::Outcome restore = orlen({"restore", id.substr(0, 4), "--yes", "--json"});
    EXPECT_EQ(restore.status, 0);
    const Json restored = restore.document();
    EXPECT_THAT(keys(restored), ElementsAre("record", "restored", "failed", "message", "failures"));
    EXPECT_EQ(restored["message"], "Restored 1 item.");
    EXPECT_TRUE(TempHome::exists(copy));
    EXPECT_EQ(orlen({"restore", id}).out, "Restored 0 items.\n");
}

TEST(CommandLineTest, aRestoreThatFailsEndsWithOne)
{
    const CommandHome home;
    ASSERT_EQ(orlen({"clean", "--yes", "--kind", "logs"}).status, 0);
    home.file(".xsession-errors", "new");
    const Process::Outcome outcome =
        orlen({"restore", Persist::loadHistory().records.front().id.text(), "--yes"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasSubstr("Restored 0; 1 couldn't be restored"));
}

TEST(CommandLineTest, theUserIsAskedOnTheTerminal)
{
    struct Case {
        const char* name;
        const char* typed;
        int status;
        bool isMoved;
    };
    constexpr Case cases[] = {{"yes", "y\n", 0, true},           {"in full", "YES\n", 0, true},
                              {"no", "n\n", 2, false},           {"nothing", "\n", 2, false},
                              {"something", "yeah\n", 2, false}, {"end of input", "\x04", 2, false},
                              {"Ctrl-C", "\x03", 130, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const CommandHome home;
        const auto typed = [&] {
            EXPECT_TRUE(home.isUntouched());
            return std::string(c.typed);
        };
        const Process::Outcome outcome = Process{{"clean"}}.runOnTerminal("[y/N]", typed);
        EXPECT_EQ(outcome.status, c.status) << outcome.out;
        EXPECT_THAT(outcome.out, HasSubstr("3 items"));
        EXPECT_EQ(!TempHome::exists(home.path(".cache/chromium")), c.isMoved);
        EXPECT_EQ(Persist::loadHistory().records.size(), c.isMoved ? 1U : 0U);
    }
}

TEST(CommandLineTest, whatVanishesBeforeItMovesCountsAsFailed)
{
    const CommandHome home;
    const auto typed = [&] {
        std::rename(home.path(".xsession-errors").c_str(), home.path("elsewhere").c_str());
        return std::string("y\n");
    };
    const Process::Outcome outcome = Process{{"clean"}}.runOnTerminal("[y/N]", typed);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.out, HasSubstr("1 item couldn't be moved"));
    EXPECT_EQ(Persist::loadHistory().records.front().items.size(), 2U);
}

TEST(CommandLineTest, ctrlCEndsAnyWorkWithoutAResult)
{
    const CommandHome home;
    for (const char* command : {"scan", "breakdown", "duplicates", "photos", "map"}) {
        SCOPED_TRACE(command);
        const Process::Outcome outcome = Process{{command, "--json"}}.runInterrupted();
        EXPECT_EQ(outcome.status, 130);
        EXPECT_THAT(outcome.out, IsEmpty());
    }
    EXPECT_EQ((Process{{"clean", "--yes"}}.runInterrupted().status), 130);
    EXPECT_TRUE(home.isUntouched());
    EXPECT_THAT(Persist::loadSnapshots().records, IsEmpty());
}

TEST(CommandLineTest, ctrlCDuringACleanUpRecordsWhatWasMoved)
{
    const TempHome home;
    constexpr int kItems = 600;
    for (int i = 0; i < kItems; ++i)
        home.fileOfSize(".cache/cargo-" + std::to_string(i), 100 * kKiB);
    // Typed in one go: the terminal delivers the answer, then the interrupt while the items move.
    const Process::Outcome outcome =
        Process{{"clean"}}.runOnTerminal("[y/N]", [] { return std::string("y\n\x03\x03\x03"); });
    std::size_t left = 0;
    for (int i = 0; i < kItems; ++i)
        left += TempHome::exists(home.path(".cache/cargo-" + std::to_string(i))) ? 1 : 0;
    const std::vector<CleanRecord> history = Persist::loadHistory().records;
    const std::size_t moved = history.empty() ? 0 : history.front().items.size();
    EXPECT_EQ(outcome.status, 130);
    EXPECT_EQ(moved + left, static_cast<std::size_t>(kItems));
}

TEST(CommandLineTest, whileAnotherOrlenIsOpenNothingIsWritten)
{
    const CommandHome home;
    ASSERT_EQ(orlen({"clean", "--yes", "--kind", "logs"}).status, 0);
    const std::string id = Persist::loadHistory().records.front().id.text();
    const std::size_t snapshots = Persist::loadSnapshots().records.size();
    const auto lock = FolderLock::take(Persist::dir());
    ASSERT_TRUE(lock.ok());
    const Process::Outcome scan = orlen({"scan", "--json"});
    EXPECT_EQ(scan.status, 0);
    EXPECT_TRUE(scan.document().is_object());
    EXPECT_THAT(scan.err, HasSubstr("another Orlen"));
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"clean", "--yes"}, std::vector<std::string>{"restore", "--yes", id}}) {
        const Process::Outcome outcome = orlen(arguments);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.err, HasSubstr("another Orlen"));
    }
    EXPECT_EQ(orlen({"history"}).status, 0);
    EXPECT_EQ(orlen({"clean", "--dry-run"}).status, 0);
    EXPECT_TRUE(TempHome::exists(home.path(".cache/chromium")));
    EXPECT_FALSE(TempHome::exists(home.path(".xsession-errors")));
    EXPECT_EQ(Persist::loadSnapshots().records.size(), snapshots);
}

TEST(CommandLineTest, duplicatesAreSoughtInTheFoldersGiven)
{
    const CommandHome home;
    home.fileOfSize("Pictures/small.png", 40 * kKiB, 9);
    home.fileOfSize("Projects/a copy of it.png", 40 * kKiB, 9);
    home.folder("Empty");
    const Json everywhere = orlen({"duplicates", "--json"}).document();
    EXPECT_THAT(keys(everywhere),
                ElementsAre("finding", "sets", "filesConsidered", "filesHashed", "bytesHashed", "seconds"));
    // A picture outside the picture folders is too small to be a candidate of the home folder's walk.
    ASSERT_EQ(everywhere["sets"].size(), 1U);
    EXPECT_EQ(everywhere["sets"][0]["kept"], home.path("Videos/film.mkv"));
    EXPECT_EQ(everywhere["sets"][0]["copies"], Json({home.path("Downloads/film.mkv")}));
    EXPECT_EQ(everywhere["finding"]["items"].size(), 1U);

    const Json pictures =
        orlen({"duplicates", "--json", home.path("Pictures"), home.path("Projects")}).document();
    ASSERT_EQ(pictures["sets"].size(), 1U);
    EXPECT_EQ(pictures["sets"][0]["kept"], home.path("Pictures/small.png"));
    EXPECT_EQ(orlen({"duplicates", "--json", home.path("Empty")}).document()["sets"].size(), 0U);
}

TEST(CommandLineTest, aRuleSaysWhichOfTheDuplicatesIsKept)
{
    const TempHome home;
    const TimePoint now = std::chrono::system_clock::now();
    const std::string oldest = home.fileOfSize("Pictures/by year/oldest.bin", 2'000'000, 9);
    const std::string newest = home.fileOfSize("Pictures/this/newest.bin", 2'000'000, 9);
    const std::string brief = home.fileOfSize("Pictures/a/b.bin", 2'000'000, 9);
    TempHome::setTimes(oldest, now - std::chrono::hours(72), now - std::chrono::hours(72));
    TempHome::setTimes(brief, now - std::chrono::hours(48), now - std::chrono::hours(48));
    const auto sets = [&](std::vector<std::string> options) {
        options.insert(options.begin(), {"duplicates", "--json", home.path("Pictures")});
        return orlen(std::move(options)).document()["sets"];
    };
    EXPECT_EQ(sets({"--keep", "newest"})[0]["kept"], newest);
    EXPECT_EQ(sets({"--keep", "oldest"})[0]["kept"], oldest);
    EXPECT_EQ(sets({"--keep", "shortest"})[0]["kept"], brief);
    const Json set = sets({"--keep", "newest", "--reference", home.path("Pictures/by year")})[0];
    EXPECT_EQ(set["kept"], oldest);
    EXPECT_EQ(set["copies"].size(), 2U);
    EXPECT_TRUE(sets({"--reference", home.path("Pictures")}).empty()) << "none may go";
    EXPECT_EQ(sets({"--keep-in", home.path("Pictures/this")})[0]["kept"], newest);
    EXPECT_EQ(sets({"--keep-in", home.path("Pictures/this")})[0]["copies"].size(), 2U);
    const Json two = sets({"--keep", "oldest", "--reference", home.path("Pictures/this"), "--reference",
                           home.path("Pictures/a")})[0];
    EXPECT_EQ(two["kept"], brief);
    EXPECT_EQ(two["copies"], Json({oldest}));
    EXPECT_EQ(orlen({"duplicates", "--keep", "largest"}).status, 2);
    EXPECT_EQ(orlen({"duplicates", "--reference", home.path("Nowhere")}).status, 2);
}

TEST(CommandLineTest, neverDoAllCopiesOfAFileMove)
{
    const TempHome home;
    const std::string copy = home.fileOfSize("Videos/of the year/film.mkv", 2'000'000, 9);
    const std::string kept = home.fileOfSize("Videos/film.mkv", 2'000'000, 9);
    const Process::Outcome both =
        orlen({"clean", "--yes", "--large-mb", "1", "--path", copy, "--path", kept});
    EXPECT_EQ(both.status, 2);
    EXPECT_THAT(both.err, HasSubstr("is what stays of a set of copies"));
    const Process::Outcome all =
        orlen({"clean", "--yes", "--large-mb", "1", "--kind", "largeFiles", "--all"});
    EXPECT_EQ(all.status, 0);
    EXPECT_THAT(all.err, HasSubstr("1 item stays, as its copies are selected."));
    EXPECT_TRUE(TempHome::exists(kept));
    EXPECT_FALSE(TempHome::exists(copy));
    EXPECT_EQ(orlen({"clean", "--yes", "--large-mb", "1", "--path", kept}).status, 0)
        << "the last one, by itself";
}

TEST(CommandLineTest, breakdownAndForecastAreDocuments)
{
    const TempHome home;
    const Json breakdown = orlen({"breakdown", "--json"}).document();
    EXPECT_THAT(keys(breakdown), ElementsAre("total", "free", "cats"));
    EXPECT_THAT(keys(breakdown["cats"]),
                ElementsAre("apps", "photos", "media", "documents", "developer", "system", "caches"));

    const TimePoint now = std::chrono::system_clock::now();
    (void)Persist::saveSnapshots(
        {{now - std::chrono::hours(48), 9'000'000'000, 10'000'000'000, {{"media", 1}}},
         {now, 5'000'000'000, 10'000'000'000, {{"media", 2'000'000'001}}}});
    const Json forecast = orlen({"predict", "--json"}).document();
    EXPECT_THAT(keys(forecast), ElementsAre("enoughData", "headline", "detail", "warn", "perCategory",
                                            "freeSeries", "snapshots"));
    EXPECT_EQ(forecast["snapshots"], 2);
    EXPECT_EQ(forecast["perCategory"][0]["category"], "media");
    EXPECT_EQ(forecast["warn"], true);
    EXPECT_THAT(orlen({"predict"}).out, HasSubstr("+1 GB a day"));

    home.file(".local/share/Orlen/scans.json",
              R"([{"date":"1900-01-01T00:00:00Z","free":9223372036854775807,"total":0,"cats":{}},)"
              R"({"date":"2190-12-31T00:00:00Z","free":9223372036854775807,"total":0,"cats":{}},)"
              R"({"date":"2190-12-31T06:00:00Z","free":0,"total":9223372036854775807,"cats":{"apps":-1}}])");
    const Process::Outcome extreme = orlen({"predict"});
    EXPECT_EQ(extreme.status, 0);
    EXPECT_THAT(extreme.err, HasSubstr("scans.unreadable-"));
}

} // namespace orlen
