#include "app/Sizes.h"
#include "clean/Persist.h"
#include "cli/CommandLine.h"
#include "cli/Process.h"
#include "model/Words.h"
#include "support/TestCatalogue.h"
#include "tools/apps/AppHome.h"

#include <QCoreApplication>

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace orlen {

namespace {

using Json = nlohmann::ordered_json;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

using Call = std::vector<std::string>;

/// Polish has three plural forms and a comma before decimals.
constexpr const char* kPlurals =
    "nplurals=3; plural=(n==1 ? 0 : n%10>=2 && n%10<=4 && (n%100<12 || n%100>14) ? 1 : 2);";

constexpr const char* kPolish = R"po(
msgid "You can safely free {size}"
msgstr "{size} można bezpiecznie zwolnić"

msgid "App caches"
msgstr "Pamięci podręczne"

msgid "{count} item ({size})"
msgid_plural "{count} items ({size})"
msgstr[0] "{count} element ({size})"
msgstr[1] "{count} elementy ({size})"
msgstr[2] "{count} elementów ({size})"

msgid "Move {count} item ({size}) to the Trash?"
msgid_plural "Move {count} items ({size}) to the Trash?"
msgstr[0] "Przenieść {count} element ({size}) do kosza?"
msgstr[1] "Przenieść {count} elementy ({size}) do kosza?"
msgstr[2] "Przenieść {count} elementów ({size}) do kosza?"

msgctxt "behind a question"
msgid "[y/N]"
msgstr "[t/N]"

msgctxt "letters that mean yes"
msgid "y"
msgstr "t tak"

msgctxt "heading in --help"
msgid "Usage"
msgstr "Użycie"

msgctxt "heading in --help"
msgid "Options"
msgstr "Opcje"

msgctxt "heading in --help"
msgid "Subcommands"
msgstr "Polecenia"

msgid "List the clean-ups made so far, newest first"
msgstr "Lista porządków, od najnowszych"

msgid "Smart Scan clean-up"
msgstr "Porządki po skanowaniu"

msgid "Uninstall {name}"
msgstr "Odinstaluj: {name}"
)po";

/// What stands between the quotation marks of this line and those below it.
std::string quotedText(std::istream& lines, std::string& line)
{
    std::string text;
    do {
        const std::size_t open = line.find('"');
        text += line.substr(open + 1, line.rfind('"') - open - 1);
    } while (std::getline(lines, line) && line.starts_with('"'));
    return text;
}

/// Every text of the program, translated to itself in brackets.
std::string everyTextInBrackets()
{
    std::ifstream lines(ORLEN_TEMPLATE);
    std::string entries;
    std::string line;
    std::string one;
    std::getline(lines, line);
    while (lines) {
        const std::string keyword = line.substr(0, line.find(' '));
        if (!keyword.starts_with("msg")) {
            std::getline(lines, line);
            continue;
        }
        const std::string text = quotedText(lines, line);
        if (keyword == "msgid")
            one = text;
        if (one.empty() && keyword != "msgctxt")
            continue; // the header
        const bool isTranslation = keyword.starts_with("msgstr");
        if (keyword == "msgstr[1]")
            continue; // Polish has others
        if (keyword == "msgstr[0]") {
            for (const char* form : {"[0]", "[1]", "[2]"})
                entries += std::string("msgstr") + form + " \"[" + one + "]\"\n";
            continue;
        }
        entries += keyword + " \"" + (isTranslation ? '[' + one + ']' : text) + "\"\n";
    }
    return entries;
}

/// Catches what is printed while it exists.
class Caught {
public:
    explicit Caught(std::ostream& stream) : m_stream(stream), m_before(stream.rdbuf(m_text.rdbuf())) {}
    ~Caught() { m_stream.rdbuf(m_before); }
    Caught(const Caught&) = delete;
    Caught& operator=(const Caught&) = delete;

    [[nodiscard]] std::string text() const { return m_text.str(); }

private:
    std::ostream& m_stream;
    std::ostringstream m_text;
    std::streambuf* m_before;
};

/// The command line in this process, in the language that it speaks now.
Process::Outcome spoken(Call arguments)
{
    arguments.insert(arguments.begin(), "orlen");
    std::vector<char*> words;
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    const Caught out(std::cout);
    const Caught err(std::cerr);
    const int status = CommandLine::run(static_cast<int>(words.size()), words.data());
    return {status, out.text(), err.text()};
}

/// Something for every command to tell.
struct FullHome : AppHome {
    FullHome()
    {
        fileOfSize(".cache/chromium/pages", 400 * kKiB);
        fileOfSize(".cache/mozilla/covers", 800 * kKiB);
        fileOfSize(".xsession-errors", 64 * kKiB);
        fileOfSize("Videos/film.mkv", 1200 * kKiB, 7);
        fileOfSize("Downloads/film.mkv", 1200 * kKiB, 7);
        for (int i = 0; i < 200; ++i)
            file("Many/" + std::to_string(i));
        launcher(".local/share/applications/org.fooqux.Fooqux.desktop", "Foo Qux", program);
        fileOfSize(".config/org.fooqux.Fooqux/settings", 8 * kKiB);
        fileOfSize(".cache/foo-qux/x", 16 * kKiB);
        folder(".local/share/flatpak/app/org.fooqux.Managed");
        const TimePoint longAgo = *timeFromIso("2024-05-01T10:00:00Z");
        for (const char* name : {".config/Barquux", ".cache/Barquux"}) {
            setTimes(fileOfSize(std::string(name) + "/a", 8 * kKiB), longAgo, longAgo);
            setTimes(path(name), longAgo, longAgo);
        }
        const std::string entry = "[Desktop Entry]\nExec=\"/opt/My Chat\"\nHidden=false\n";
        file(".config/autostart/chat.desktop", entry);
        link(".config/autostart/linked.desktop", file("dotfiles/linked.desktop", entry));
        file(outside("system/usr/bin/apt"));
        file(outside("system/usr/bin/snapper"));
        fileOfSize(outside("system/var/cache/apt/archives/a.deb"), 2'048 * kKiB);
        folder(outside("system/.snapshots"));
        const TimePoint first = *timeFromIso("2026-03-01T10:00:00Z");
        (void)Persist::saveSnapshots(
            {{first, 9'000'000'000, 10'000'000'000, {{"media", 1}}},
             {first + std::chrono::hours(48), 5'000'000'000, 10'000'000'000, {{"media", 2'000'000'001}}}});
    }

    const std::string program = image("Applications/Fooqux-1.0.AppImage");
};

/// Takes out what differs from run to run.
void settle(Json& value)
{
    constexpr std::array kPassing{"date", "free", "id", "lastOpened", "modified", "seconds", "system"};
    for (const auto& [name, member] : value.items()) {
        if (value.is_object() && std::ranges::find(kPassing, name) != kPassing.end())
            member = nullptr;
        else if (member.is_structured())
            settle(member);
    }
}

/// The document of each call, in order, in a home folder made for them.
std::vector<std::string> documents()
{
    const FullHome home;
    const Call calls[] = {
        {"predict"},
        {"breakdown"},
        {"scan"},
        {"ask", "What about LOGS?"},
        {"ask", "What can I delete from my Downloads folder?"},
        {"ask", "Are there duplicate files?"},
        {"map", home.path("Many")},
        {"duplicates"},
        {"photos"},
        {"apps"},
        {"leftovers"},
        {"leftovers", "--id", "org.fooqux.Fooqux", "--name", "Foo Qux"},
        {"startup"},
        {"startup", "disable", "chat"},
        {"explain", home.path(".ssh/id")},
        {"explain", home.path(".cache/mozilla/covers")},
        {"explain", home.path("Downloads/film.mkv")},
        {"advice"},
        {"exclude", "add", home.path(".xsession-errors")},
        {"explain", home.path(".xsession-errors")},
        {"exclude"},
        {"clean", "--dry-run"},
        {"clean", "--yes", "--kind", "caches"},
        {"uninstall", "Foo Qux", "--dry-run", "--by-name"},
        {"uninstall", "Foo Qux", "--yes"},
        {"history"},
    };
    std::vector<std::string> documents;
    const auto add = [&](Call call) {
        call.emplace_back("--json");
        Json document = spoken(call).document();
        EXPECT_TRUE(document.is_structured()) << call.front();
        settle(document);
        documents.push_back(call.front() + ": " + document.dump());
    };
    for (const Call& call : calls)
        add(call);
    add({"restore", Persist::loadHistory().records.front().id.text(), "--yes"});
    return documents;
}

class LanguageTest : public testing::Test {
protected:
    LanguageTest() : m_application(m_count, m_arguments.data()) {}
    void TearDown() override { Words::use({}, {}); }

private:
    std::string m_name = "cli_tests";
    std::array<char*, 2> m_arguments{m_name.data(), nullptr};
    int m_count = 1;
    QCoreApplication m_application;
};

} // namespace

TEST_F(LanguageTest, documentsAreTheSameInEveryLanguage)
{
    const std::vector<std::string> english = documents();
    {
        const TempHome home;
        TestCatalogue::write(home.outside("locale"), "pl", kPlurals, everyTextInBrackets());
        Words::use(std::array<std::string, 1>{"pl_PL"}, home.outside("locale"));
    }
    EXPECT_EQ(Words::figures().number(12'345), "12\u00a0345");
    const std::vector<std::string> polish = documents();
    ASSERT_EQ(polish.size(), english.size());
    for (std::size_t i = 0; i < english.size(); ++i)
        EXPECT_EQ(polish[i], english[i]);
    const FullHome home;
    EXPECT_THAT(spoken({"scan"}).out, HasSubstr("[App caches]")) << "what people read is another language";
}

TEST_F(LanguageTest, aPersonReadsTheirOwnLanguage)
{
    const FullHome home;
    TestCatalogue::write(home.outside("locale"), "pl", kPlurals, kPolish);
    Words::use(std::array<std::string, 1>{"pl_PL"}, home.outside("locale"));
    EXPECT_THAT(spoken({"scan"}).out,
                AllOf(HasSubstr("1,3\u00a0MB można bezpiecznie zwolnić\n"), HasSubstr("Pamięci podręczne")));
    EXPECT_THAT(spoken({"clean", "--dry-run"}).out, HasSubstr("\n3 elementy (1,3\u00a0MB)\n"));
    EXPECT_THAT(spoken({"clean", "--dry-run", "--kind", "logs"}).out, HasSubstr("\n1 element ("));
    EXPECT_THAT(spoken({"--help"}).out, AllOf(HasSubstr("Użycie: orlen"), HasSubstr("\nOpcje:\n"),
                                              HasSubstr("\nPolecenia:\n"), HasSubstr("Lista porządków")));

    EXPECT_THAT(spoken({"startup", "disable", "--help"}).out,
                AllOf(HasSubstr("\nOpcje:\n"), Not(HasSubstr("Options"))));

    EXPECT_EQ(spoken({"clean", "--yes", "--kind", "logs"}).status, 0);
    EXPECT_EQ(spoken({"uninstall", "Foo Qux", "--yes"}).status, 0);
    const std::vector<CleanRecord> history = Persist::loadHistory().records;
    ASSERT_EQ(history.size(), 2U);
    EXPECT_EQ(history[0].title, "Uninstall Foo Qux") << "the history stays English";
    EXPECT_THAT(spoken({"history"}).out,
                AllOf(HasSubstr("Odinstaluj: Foo Qux"), HasSubstr("Porządki po skanowaniu")));
}

TEST_F(LanguageTest, namesKeepTheirDirectionAmongWordsFromRightToLeft)
{
    const FullHome home;
    TestCatalogue::write(home.outside("locale"), "ar", "nplurals=2; plural=(n != 1);", R"(
msgid "there is no kind {word}"
msgstr "لا يوجد نوع باسم {word}"
)");
    Words::use(std::array<std::string, 1>{"ar"}, home.outside("locale"));
    EXPECT_THAT(spoken({"clean", "--kind", "x\u202e"}).err,
                HasSubstr("--kind: لا يوجد نوع باسم \u2068\"x?\"\u2069"));
    EXPECT_THAT(spoken({"scan", "--\u202e"}).err, HasSubstr("--?"));
}

TEST_F(LanguageTest, theAnswerMayBeGivenInTheSameLanguage)
{
    struct Case {
        const char* typed;
        bool isMoved;
    };
    for (const Case& c : {Case{"T\n", true}, Case{"tak\n", true}, Case{"y\n", true}, Case{"n\n", false}}) {
        SCOPED_TRACE(c.typed);
        const FullHome home;
        // The catalogues are looked for beside the program.
        Process process{{"clean"}};
        process.program = home.outside("installed/bin/orlen");
        std::filesystem::create_directories(home.outside("installed/bin"));
        std::filesystem::copy_file(ORLEN_BINARY, process.program);
        TestCatalogue::write(home.outside("installed/share/locale"), "pl", kPlurals, kPolish);
        TempHome::setVariable("LANGUAGE", "pl_PL");
        const Process::Outcome outcome = process.runOnTerminal("[t/N]", [&] { return std::string(c.typed); });
        EXPECT_THAT(outcome.out, HasSubstr("Przenieść 3 elementy (1,3\u00a0MB) do kosza?"));
        EXPECT_EQ(outcome.status, c.isMoved ? 0 : 2);
        EXPECT_EQ(TempHome::exists(home.path(".cache/chromium")), !c.isMoved);
    }
}

} // namespace orlen
