#include "insight/AskEngine.h"
#include "insight/ChatMessage.h"
#include "model/Words.h"
#include "support/Command.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::int64_t kMB = 1'000'000;
constexpr std::int64_t kGB = 1'000 * kMB;

FileEntry entry(std::string path, std::int64_t size, std::optional<Rating> rating = {})
{
    return {std::move(path), size, {}, {}, rating, {}};
}

Finding finding(FindingKind kind, Rating rating, std::vector<FileEntry> items)
{
    Finding made(kind, std::move(items));
    made.rating = rating;
    made.reason = message("Reason.");
    return made;
}

AskContext unscanned()
{
    AskContext context;
    context.prediction.headline = message("Headline");
    context.prediction.detail = message("Detail.");
    return context;
}

/// One finding of every kind, each of 1 MB and Safe.
AskContext everything()
{
    AskContext context = unscanned();
    for (const FindingKind kind : allKinds())
        context.findings.push_back(
            finding(kind, Rating::safe, {entry("/x/" + std::string(rawValue(kind)), kMB)}));
    return context;
}

/// What the program says in English, with links.
Answer says(std::string text, std::vector<std::string> findingIDs = {})
{
    return {Message::verbatim(std::move(text)), std::move(findingIDs)};
}

Answer inEnglish(Answer answer)
{
    answer.text = Message::verbatim(answer.text.base());
    return answer;
}

/// Answers as it is told to and keeps what it was asked.
class FakeModel final : public LanguageModel {
public:
    FakeModel(bool available, std::optional<std::string> reply)
        : m_available(available), m_reply(std::move(reply))
    {
    }
    [[nodiscard]] bool isAvailable() const override { return m_available; }
    [[nodiscard]] std::optional<std::string> respond(const std::string& instructions,
                                                     const std::string& prompt) const override
    {
        asked.push_back({instructions, prompt});
        return m_reply;
    }

    mutable std::vector<std::pair<std::string, std::string>> asked;

private:
    bool m_available;
    std::optional<std::string> m_reply;
};

class AskEngineTest : public testing::Test {
protected:
    TempHome home;

    [[nodiscard]] FileEntry download(const std::string& name, std::int64_t size) const
    {
        return entry(home.path("Downloads/" + name), size);
    }
};

} // namespace

TEST_F(AskEngineTest, theFirstIntentWithAWordInTheQuestionAnswers)
{
    struct Case {
        const char* question;
        const char* start;
    };
    constexpr Case cases[] = {
        {"What can I delete from my Downloads folder?", "I didn't find anything in Downloads"},
        {"is my DOWNLOAD folder full", "I didn't find anything in Downloads"},
        {"When will my disk be full?", "Headline. Detail."},
        {"carefully, the most", "Headline. Detail."},
        {"What is using the most space?", "By category: "},
        {"almost clean", "By category: "},
        {"What can I safely free up?", "You could free about 23 MB from items rated Safe: "},
        {"is it safe to clear the cache", "You could free about"},
        {"Are there duplicate files?", "Duplicate files: 1 MB — rated Safe. Reason."},
        {"copies of photos", "Duplicate files: "},
        {"blurry", "Similar photos: 1 MB — rated Safe. Reason.\nScreenshots: 1 MB"},
        {"cached build", "Xcode build data: "},
        {"cache logs", "App caches: "},
        {"the catalog of backups", "Log files: "},
        {"old iPad", "iPhone & iPad backups: "},
        {"curious", "I can answer questions"},
        {"my IOS updates", "iPhone & iPad backups: "},
        {"translations of movies", "Language packs: "},
        {"old video", "Large files: "},
        {"how big is my folder", "Files you haven't opened in a long time: 1 MB — rated Safe. Reason.\nOld"},
        {"what haven't I opened in the bin", "Files you haven't opened"},
        {"combine them", "Trash: 1 MB"},
        {"why attachments", "Mail attachments: "},
        {"WHY?", "Nothing in the last scan is rated Keep."},
        {"hello", "I can answer questions about your scan, for example “what is using"},
        {"", "I can answer questions"},
        {"\xff\xfe?", "I can answer questions"},
    };
    const AskContext context = everything();
    for (const Case& c : cases) {
        const Answer answer = AskEngine::fallback(c.question, context);
        EXPECT_THAT(answer.text.base(), StartsWith(c.start)) << c.question;
        EXPECT_FALSE(answer.usedModel);
    }
}

TEST_F(AskEngineTest, beforeTheFirstScanOnlySomeQuestionsHaveAnAnswer)
{
    struct Case {
        const char* question;
        const char* text;
    };
    constexpr const char* kNoScan =
        "I don't have scan results yet. Run a Smart Scan from the Home screen and ask me again.";
    constexpr Case cases[] = {
        {"downloads", kNoScan},
        {"what can I remove", kNoScan},
        {"logs", kNoScan},
        {"attachment", kNoScan},
        {"is this important", kNoScan},
        {"how long will it last", "Headline. Detail."},
        {"the biggest",
         "By category: Media 4 GB, Apps 3 GB, System 3 GB, Caches 2 GB. Run a Smart Scan for a detailed "
         "breakdown."},
    };
    AskContext context = unscanned();
    context.breakdown.cats = {{OrlenCategory::caches, 2 * kGB},
                              {OrlenCategory::system, 3 * kGB},
                              {OrlenCategory::apps, 3 * kGB},
                              {OrlenCategory::photos, -1},
                              {OrlenCategory::media, 4 * kGB}};
    for (const Case& c : cases)
        EXPECT_EQ(inEnglish(AskEngine::fallback(c.question, context)), says(c.text)) << c.question;
}

TEST_F(AskEngineTest, downloadsAreListedOnceLargestFirst)
{
    AskContext context = unscanned();
    context.findings = {finding(FindingKind::oldFiles, Rating::review, {entry(home.path("Downloads"), kGB)}),
                        finding(FindingKind::oldDownloads, Rating::review, {download("b.iso", 5 * kMB)}),
                        finding(FindingKind::duplicates, Rating::review,
                                {download("b.iso", 5 * kMB), entry(home.path("Downloads2/x"), kMB),
                                 entry(home.path("Docs/Downloads/x"), kMB)})};
    Answer answer = AskEngine::fallback("downloads", context);
    EXPECT_EQ(answer.text.base(),
              "Downloads has 1 item you haven't touched in over a month, about 5 MB:\n"
              "• b.iso — 5 MB\n"
              "Installers (.dmg, .pkg) are usually safe to remove; check the rest first.");
    EXPECT_THAT(answer.findingIDs, ElementsAre("oldDownloads", "duplicates"));

    std::vector<FileEntry>& items = context.findings[1].items;
    for (const char* name : {"1", "2", "3", "4", "5\n• fake"})
        items.push_back(download(name, 7 * kMB));
    answer = AskEngine::fallback("downloads", context);
    EXPECT_THAT(answer.text.base(),
                HasSubstr("has 6 items you haven't touched in over a month, about 40 MB:\n• 1 — 7"));
    EXPECT_THAT(answer.text.base(), HasSubstr("• 5?• fake — 7 MB\n• b.iso — 5 MB\nInstallers"));

    items.push_back(download("6", 6 * kMB));
    answer = AskEngine::fallback("downloads", context);
    EXPECT_THAT(answer.text.base(),
                HasSubstr("has 7 items you haven't touched in over a month, about 46 MB:"));
    EXPECT_THAT(answer.text.base(), HasSubstr("• 6 — 6 MB\nInstallers"));
}

TEST_F(AskEngineTest, theDownloadsFolderOfTheSettingsCountsAsWell)
{
    home.folder("Empfangen");
    home.file(".config/user-dirs.dirs", "XDG_DOWNLOAD_DIR=\"$HOME/Empfangen\"\n");
    TempHome::reloadPlaces();
    const std::vector<Finding> findings{
        finding(FindingKind::oldDownloads, Rating::review,
                {entry(home.path("Empfangen/a"), 2), download("b", 1), entry(home.path("Empfangen"), 3)})};
    EXPECT_THAT(AskEngine::downloadsItems(findings),
                ElementsAre(entry(home.path("Empfangen/a"), 2), download("b", 1)));
}

TEST_F(AskEngineTest, theLargestFindingsAreNamed)
{
    AskContext context = unscanned();
    context.breakdown.cats = {{OrlenCategory::documents, 12 * kGB}};
    context.findings = {finding(FindingKind::caches, Rating::safe, {entry("/a", kMB)}),
                        finding(FindingKind::logs, Rating::safe, {entry("/b", 2 * kMB)}),
                        finding(FindingKind::trash, Rating::review, {entry("/c", kMB), entry("/d", 2 * kMB)}),
                        finding(FindingKind::largeFiles, Rating::review, {entry("/e", kMB)})};
    EXPECT_EQ(inEnglish(AskEngine::fallback("most", context)),
              says("By category: Documents 12 GB. The largest findings are Trash (3 MB), Log files (2 MB), "
                   "App caches (1 MB).",
                   {"trash", "logs", "caches"}));
}

TEST_F(AskEngineTest, safeBytesAreThoseOfTheSafeEntriesOnly)
{
    AskContext context = unscanned();
    context.findings = {
        finding(FindingKind::trash, Rating::safe, {entry("/t", kGB)}),
        finding(FindingKind::caches, Rating::safe, {entry("/a", 8 * kMB, Rating::review)}),
    };
    EXPECT_THAT(AskEngine::fallback("clean", context).text.base(),
                StartsWith("Nothing is rated Safe right now. Look"));

    context.findings[1].items.push_back(entry("/b", kMB));
    for (const FindingKind kind : {FindingKind::logs, FindingKind::npm, FindingKind::pip})
        context.findings.push_back(finding(kind, Rating::review, {entry("/c", 2 * kMB, Rating::safe)}));
    EXPECT_EQ(inEnglish(AskEngine::fallback("clean", context)),
              says("You could free about 7 MB from items rated Safe: Log files (2 MB), npm & Yarn cache (2 "
                   "MB), pip cache (2 MB), App caches (1 MB). Ratings are suggestions, so you can look at "
                   "every file before anything moves to the Trash.",
                   {"logs", "npm", "pip", "caches"}));
}

TEST_F(AskEngineTest, aTopicWithoutFindingsSaysSo)
{
    AskContext context = everything();
    std::erase_if(context.findings, [](const Finding& each) { return each.kind == FindingKind::logs; });
    EXPECT_EQ(inEnglish(AskEngine::fallback("logs", context)),
              says("Logs: I found nothing in the last scan."));
    EXPECT_THAT(AskEngine::fallback("photo", context).findingIDs,
                ElementsAre("photoDuplicates", "screenshots", "receipts", "memes", "blurry"));
    EXPECT_THAT(AskEngine::fallback("code", context).findingIDs,
                ElementsAre("xcodeDerived", "xcodeArchives", "simulators", "deviceSupport", "homebrew", "npm",
                            "pip", "gradle"));
}

TEST_F(AskEngineTest, keptEntriesAreCountedAndThreeNamed)
{
    AskContext context = everything();
    for (const char* name : {"/p/tax.pdf", "/p/lease.pdf"})
        context.findings[3].items.push_back(entry(name, 1, Rating::keep));
    for (const char* name : {"/p/cv.pdf", "/p/other.pdf"})
        context.findings[5].items.push_back(entry(name, 1, Rating::keep));
    EXPECT_EQ(inEnglish(AskEngine::fallback("what is important", context)),
              says("4 item(s) are rated Keep, such as tax.pdf, lease.pdf, cv.pdf. Their names or locations "
                   "suggest they matter.",
                   {"softwareUpdates", "xcodeArchives"}));
}

TEST_F(AskEngineTest, theModelSeesThisMuchOfTheScan)
{
    AskContext context = everything();
    context.breakdown = {500 * kGB, -1, {{OrlenCategory::media, kGB}, {OrlenCategory::apps, 2 * kGB}}};
    for (int i = 0; i < 11; ++i)
        context.findings.back().items.push_back(download(std::to_string(i), 100 - i));
    const std::string text = AskEngine::contextText(context);
    EXPECT_THAT(text, StartsWith("Disk: 500 GB total, 0 bytes free.\nCategories: Apps 2 GB, Media 1 GB\n"
                                 "- App caches: 1 MB, rated Safe. Reason.\n- Log files: 1 MB"));
    EXPECT_THAT(text, HasSubstr("- Mail attachments: 1 MB, rated Safe. Reason.\nItems in Downloads:\n"
                                "- 0 (100 bytes)\n"));
    EXPECT_THAT(text, testing::EndsWith("\n- 9 (91 bytes)\nPrediction: Headline. Detail."));

    EXPECT_EQ(AskEngine::contextText(unscanned()), "Disk: 0 bytes total, 0 bytes free.\nCategories: \n"
                                                   "Items in Downloads:\nPrediction: Headline. Detail.");
}

TEST_F(AskEngineTest, anAvailableModelWritesTheText)
{
    const AskContext context = everything();
    const std::string question = "Where are my LOGS?";
    const FakeModel model(true, "In a forest.");
    EXPECT_EQ(AskEngine::answer(question, context, model),
              (Answer{Message::verbatim("In a forest."), {"logs"}, true}));
    ASSERT_EQ(model.asked.size(), 1U);
    EXPECT_THAT(model.asked[0].first,
                StartsWith("You are Orlen, a careful Mac storage assistant. Answer using"));
    EXPECT_EQ(model.asked[0].second,
              "Scan data:\n" + AskEngine::contextText(context) + "\n\nQuestion: " + question);
    EXPECT_THAT(AskEngine::introduction(model).base(), HasSubstr("language model"));
}

TEST_F(AskEngineTest, withoutAModelOrItsReplyTheMatcherAnswers)
{
    const AskContext context = everything();
    const Answer matched = AskEngine::fallback("logs", context);
    const FakeModel absent(false, "unasked");
    EXPECT_EQ(AskEngine::answer("logs", context, absent), matched);
    EXPECT_THAT(absent.asked, IsEmpty());
    const FakeModel failing(true, std::nullopt);
    EXPECT_EQ(AskEngine::answer("logs", context, failing), matched);
    EXPECT_EQ(failing.asked.size(), 1U);
    EXPECT_EQ(AskEngine::answer("logs", context), matched);
    EXPECT_THAT(AskEngine::introduction().base(), HasSubstr("built-in on-device matcher"));
}

TEST_F(AskEngineTest, suggestedQuestionsAreUnderstoodInThePersonsLanguage)
{
    const std::string catalogue = home.path("words/de/LC_MESSAGES/orlen.mo");
    home.folder("words/de/LC_MESSAGES");
    const std::string source =
        home.file("de.po", "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                           "msgid \"When will my disk be full?\"\nmsgstr \"Wann ist die Platte voll?\"\n");
    ASSERT_EQ(runCommand({"msgfmt", "-o", catalogue, source}).status, 0);
    const std::string german[] = {"de"};
    Words::use(german, home.path("words"));
    const AskContext context = everything();
    const Answer english = AskEngine::answer("When will my disk be full?", context);
    EXPECT_EQ(AskEngine::answer("Wann ist die Platte voll?", context), english);
    EXPECT_EQ(AskEngine::answer(" wann ist die platte voll", context), english);
    EXPECT_NE(AskEngine::answer("Wann ist die Platte leer?", context), english);
    EXPECT_NE(AskEngine::answer("???", context), english);
    Words::use({}, {});
}

TEST_F(AskEngineTest, aReplyIsAMessageOfItsOwn)
{
    const ChatMessage reply = ChatMessage::reply({message("Text."), {"logs"}, true});
    EXPECT_FALSE(reply.fromUser);
    EXPECT_EQ(reply.text, message("Text."));
    EXPECT_THAT(reply.findingIDs, ElementsAre("logs"));
    EXPECT_TRUE(reply.usedModel);
    EXPECT_TRUE(ChatMessage::question("?").fromUser);
    EXPECT_NE(ChatMessage::question("?").id, ChatMessage::question("?").id);
}

TEST(AskEngineDeathTest, sizesThatDoNotFitStopTheProgram)
{
    const TempHome home;
    AskContext context = unscanned();
    const std::int64_t most = std::numeric_limits<std::int64_t>::max();
    context.findings = {finding(FindingKind::caches, Rating::safe, {entry("/a", most)}),
                        finding(FindingKind::logs, Rating::safe, {entry("/b", 1)})};
    EXPECT_DEATH((void)AskEngine::fallback("clean", context), "does not fit");
}

} // namespace orlen
