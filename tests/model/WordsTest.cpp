#include "model/Words.h"

#include "support/TempHome.h"
#include "support/TestCatalogue.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace orlen {
namespace {

constexpr Text kItems = messages("{count} item in {name}", "{count} items in {name}");
constexpr Text kFreed = message("Frees {size}.");
constexpr Text kVerb = messageIn("verb", "Open");
constexpr Text kState = messageIn("state", "Open");

/// Polish has three forms, and a comma before decimals.
constexpr const char* kPolish = R"(
msgid "{count} item in {name}"
msgid_plural "{count} items in {name}"
msgstr[0] "{count} element w {name}"
msgstr[1] "{count} elementy w {name}"
msgstr[2] "{count} elementów w {name}"

msgctxt "verb"
msgid "Open"
msgstr "Otwórz"
)";

constexpr const char* kEnglish = R"(
msgid "Frees {size}."
msgstr "Makes {size} free."
)";

class WordsTest : public testing::Test {
protected:
    void TearDown() override { Words::use({}, home.path("none")); }

    void speak(const std::vector<std::string>& languages) const
    {
        Words::use(languages, home.path("locale"));
    }

    const TempHome home;
};

TEST_F(WordsTest, speaksTheFirstLanguageThereIsElseEnglish)
{
    TestCatalogue::write(
        home.path("locale"), "pl",
        "nplurals=3; plural=(n==1 ? 0 : n%10>=2 && n%10<=4 && (n%100<12 || n%100>14) ? 1 : 2);", kPolish);
    TestCatalogue::write(home.path("locale"), "en", "nplurals=2; plural=(n != 1);", kEnglish);
    home.file("locale/de/LC_MESSAGES/orlen.mo", "no catalogue");

    speak({"de_AT", "pl_PL", "en"});
    EXPECT_EQ(Words::language(), "pl") << "the German one is damaged";
    const auto items = [](std::int64_t count) {
        return shown(Message{kItems, {{"count", count}, {"name", "{count}"}}});
    };
    EXPECT_EQ(items(1), "1 element w {count}") << "a name is no place";
    EXPECT_EQ(items(3), "3 elementy w {count}");
    EXPECT_EQ(items(12'345'612), "12\u00a0345\u00a0612 elementów w {count}");
    EXPECT_EQ(shown(Message{kFreed, {{"size", Bytes{1'500'000}}}}), "Makes 1,5\u00a0MB free.")
        << "the English words where Polish has none, the figures as Polish writes them";
    EXPECT_EQ(shown(kVerb), "Otwórz");
    EXPECT_EQ(shown(kState), "Open");
    EXPECT_EQ(shown("Frees {size}."), "Makes {size} free.");
    EXPECT_EQ(shown(""), "");
    EXPECT_EQ(shown(Text()), "") << "not the header of the catalogue";

    speak({"../locale/pl"});
    EXPECT_EQ(Words::language(), "en") << "no language leads out of the folder";
    speak({"nl_NL"});
    EXPECT_EQ(Words::language(), "en");
    EXPECT_EQ(items(2), "2 items in {count}");
    speak({"en_GB", "pl"});
    EXPECT_EQ(Words::language(), "en") << "English is what the person wants";
    speak({});
    EXPECT_EQ(shown(Message{kFreed, {{"size", Bytes{1'500'000}}}}), "Makes 1.5 MB free.");
}

TEST_F(WordsTest, machinesReadTheTextsOfTheCodeWithPlainFigures)
{
    TestCatalogue::write(home.path("locale"), "en", "nplurals=2; plural=(n != 1);", kEnglish);
    speak({"en"});
    EXPECT_EQ((Message{kFreed, {{"size", Bytes{1'500'000}}}}.base()), "Frees 1.5 MB.");
    EXPECT_EQ((Message{kItems, {{"count", 12'345}, {"name", "a"}}}.base()), "12345 items in a");
    EXPECT_EQ((Message{kItems, {{"count", 1}}}.base()), "1 item in {name}") << "a place nobody fills stays";
}

TEST_F(WordsTest, namesKeepTheirDirectionAmongWordsFromTheRight)
{
    const Message message{kItems, {{"count", 2}, {"name", "~/a"}}};
    TestCatalogue::write(home.path("locale"), "en", "nplurals=2; plural=(n != 1);", kEnglish);
    speak({"en"});
    EXPECT_EQ(shown(message), "2 items in ~/a");
    TestCatalogue::write(home.path("locale"), "he", "nplurals=2; plural=(n != 1);", "");
    speak({"he"});
    EXPECT_EQ(shown(message), "2 items in \u2066~/a\u2069") << "a path is read from the left";
    EXPECT_EQ(shown(Message::verbatim("a")), "\u2068a\u2069");
    EXPECT_EQ(shown(Message{kItems, {{"name", Words::isolated("a")}}}), "{count} item in \u2068a\u2069")
        << "once";
    EXPECT_EQ(message.base(), "2 items in ~/a");
}

TEST_F(WordsTest, messagesHoldOthers)
{
    const std::vector<Message> names{
        Message::verbatim("a"), {}, Message::verbatim("b"), Message::verbatim("c")};
    EXPECT_EQ(Message::joined(names, Several::Joint::list).base(), "a, b and c");
    EXPECT_EQ(Message::joined(names, Several::Joint::facts).base(), "a · b · c");
    EXPECT_EQ(Message::joined({{}, {}}, Several::Joint::lines), Message());
    EXPECT_EQ((Message{kItems, {{"count", 2}, {"name", within(kVerb)}}}.base()), "2 items in Open");
}

} // namespace
} // namespace orlen
