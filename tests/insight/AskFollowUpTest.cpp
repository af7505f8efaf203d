#include "insight/AskWorld.h"

#include <chrono>

namespace orlen {
namespace {

using testing::HasSubstr;
using testing::Le;

using AskFollowUpTest = AskWorld;

/// Questions of one conversation.
constexpr Row kAfterAList[] = {
    {"five biggest videos", "wedding.mp4|holiday.mkv|cut.mov"},
    {"and the second one?", "holiday.mkv (4 GB)|Review", "wedding"},
    {"why?", "Large but maybe wanted."},
    {"why not", "Large but maybe wanted."},
    {"and the third?", "cut.mov (2 GB)", "holiday"},
    {"can I delete it", "cut.mov|Trash", "could free"},
    {"the oldest ones", "Of videos|The oldest:|wedding.mp4 (9 GB), changed 5 May 2019"},
    {"over 3 GB", "Of videos over 3 GB the last scan lists 2", "cut.mov"},
    {"and photos?", "photos over 3 GB"},
};

constexpr Row kNarrowed[] = {
    {"biggest files", "wedding.mp4|slack"},
    {"only in Downloads", "in ~/Downloads|debian.iso", "wedding"},
    {"and in Pictures?", "in ~/Pictures|sea2.jpg", "debian"},
    {"the newest", "The newest:|in ~/Pictures"},
};

constexpr Row kAfterFindings[] = {
    {"What is using the most space?", "Large files (18 GB)"},
    {"the second one", "Files you haven't opened|9 GB", "App caches"},
    {"how many screenshots do I have", "Screenshots: 2 MB"},
    {"and memes?", "found no memes"},
    {"what about duplicates", "Duplicate files: 40 MB"},
    {"can I delete them?", "Duplicate files: 40 MB — rated Safe"},
    {"how much space is left", "120 GB is free"},
    {"why so little?", "By category|largest findings"},
};

constexpr Row kWithout[] = {
    {"what can I safely delete", "App caches (4 GB)"},
    {"except caches", "Left out: caches.|60 MB", "App caches"},
    {"how many screenshots", "Screenshots: 2 MB"},
    {"show them", "Of screenshots the last scan lists 1|Screenshot 1.png"},
    {"files over 3 GB", "wedding.mp4|holiday.mkv"},
    {"and the first?", "wedding.mp4 (9 GB)", "holiday"},
    {"and the next one", "holiday.mkv (4 GB)", "wedding"},
    {"but not mkv files", "Left out: .mkv.|wedding.mp4", "holiday"},
    {"videos over 3 gb", "wedding.mp4|holiday.mkv"},
    {"and over 8?", "Of videos over 8 GB the last scan lists 1|wedding", "holiday"},
    {"oldest files", "wedding.mp4|contract"},
    {"only pdfs", "Of PDFs the last scan lists 2"},
    {"in Downloads", "Of PDFs in ~/Downloads the last scan lists 1|The oldest:"},
    {"when is my disk full", "30 August 2026"},
    {"and by Christmas?", "Probably yes."},
    {"old files in Documents", "report.pdf|contract-2021"},
    {"not the report", "Left out: report.|contract-2021", "report.pdf"},
};

/// What "they" and "it" are, and what is no follow-up.
constexpr Row kPronouns[] = {
    {"biggest video", "wedding.mp4", "holiday"},
    {"and the second one?", "holiday.mkv (4 GB)", "wedding"},
    {"files over 3 GB", "wedding.mp4|holiday.mkv"},
    {"which of these can go?", "wedding.mp4|holiday.mkv", "slack"},
    {"the two biggest videos", "wedding.mp4|holiday.mkv", "cut.mov"},
    {"which are safe?", "wedding.mp4|holiday.mkv", "cut.mov"},
    {"what does 'Review' mean", "only you can tell", "wedding"},
    {"how big is my disk and how much of it is used", "120 GB is free", "wedding|Large files"},
    {"can I undo the last clean-up", "History"},
    {"how?", "History"},
    {"did my disk grow", "Videos"},
    {"why", "I can answer", "By category"},
    {"how much would deleting them free", "I can answer", "rated Safe"},
};

constexpr Row kPronounsElsewhere[] = {
    {"los dos vídeos más grandes", "wedding.mp4|holiday.mkv"},
    {"y cuánto liberaría si los borro", "Together they take 13 GB", "rated Safe:"},
    {"puedo borrarlos", "Together they take 13 GB"},
    {"was ist die holiday.mkv", "holiday.mkv (4 GB)"},
    {"und wie groß ist die?", "holiday.mkv (4 GB)"},
    {"combien elle pèse", "holiday.mkv (4 GB)"},
    {"y cuánto ocupa", "holiday.mkv (4 GB)"},
    {"e quanto pesa", "holiday.mkv (4 GB)"},
    {"dov'è", "holiday.mkv (4 GB)"},
    {"when did I last use blender", "2025"},
    {"and when did I last open it?", "2025"},
};

constexpr Row kInGerman[] = {
    {"fünf größte videos", "wedding.mp4"},    {"und das zweite?", "holiday.mkv", "wedding"},
    {"warum?", "Large but maybe wanted."},    {"kann ich das löschen", "holiday.mkv", "could free"},
    {"nur über 3 GB", "Of videos over 3 GB"}, {"und fotos?", "photos over 3 GB"},
};

constexpr Row kInFrench[] = {
    {"les cinq plus grosses vidéos", "wedding.mp4"},
    {"et la deuxième ?", "holiday.mkv", "wedding"},
    {"pourquoi ?", "Large but maybe wanted."},
    {"seulement dans téléchargements", "videos in ~/Downloads"},
    {"et les photos ?", "photos in ~/Downloads"},
};

constexpr Row kInSpanish[] = {
    {"los cinco vídeos más grandes", "wedding.mp4"}, {"y el segundo?", "holiday.mkv", "wedding"},
    {"por qué?", "Large but maybe wanted."},         {"solo en descargas", "videos in ~/Downloads"},
    {"los más antiguos", "videos in ~/Downloads"},
};

constexpr Row kInItalian[] = {
    {"i cinque video più grandi", "wedding.mp4"}, {"e il secondo?", "holiday.mkv", "wedding"},
    {"perché?", "Large but maybe wanted."},       {"solo in download", "videos in ~/Downloads"},
    {"e le foto?", "photos in ~/Downloads"},
};

} // namespace

TEST_F(AskFollowUpTest, whatWasSaidBeforeCounts)
{
    for (const auto& rows : {std::span<const Row>(kAfterAList), std::span<const Row>(kNarrowed),
                             std::span<const Row>(kAfterFindings), std::span<const Row>(kWithout),
                             std::span<const Row>(kPronouns), std::span<const Row>(kPronounsElsewhere),
                             std::span<const Row>(kInGerman), std::span<const Row>(kInFrench),
                             std::span<const Row>(kInSpanish), std::span<const Row>(kInItalian)}) {
        Conversation conversation;
        for (const Row& row : rows) {
            Turn turn = AskEngine::turn(row.question, context, conversation);
            conversation = std::move(turn.next);
            expectAnswer(row, turn.answer);
        }
    }
}

TEST_F(AskFollowUpTest, withoutAnythingSaidBeforeNothingIsMadeUp)
{
    for (const char* question :
         {"and the second one?", "why?", "und die zweite?", "can I delete it?", "only", "et ?"}) {
        const std::string text = AskEngine::answer(question, context).text.base();
        EXPECT_THAT(text, HasSubstr("I can answer")) << question;
    }
    const Turn list = AskEngine::turn("biggest videos", context, {});
    EXPECT_THAT(AskEngine::turn("and the ninth?", context, list.next).answer.text.base(),
                HasSubstr("I can answer"));
    context.findings.clear();
    EXPECT_FALSE(AskEngine::turn("and the second one?", context, list.next).answer.text.base().empty());
}

TEST_F(AskFollowUpTest, answersComeAtOnce)
{
    std::vector<FileEntry> items;
    constexpr int kMany = 100'000;
    for (int i = 0; i < kMany; ++i)
        items.push_back(entry("Pictures/holiday " + std::to_string(i) + ".jpg", kBytesInMB + i));
    add(FindingKind::photoDuplicates, Rating::review, message("Similar shots."), std::move(items));
    Conversation conversation;
    for (const char* question :
         {"biggest photos", "and the second one?", "only over 1 MB", "can i delte holidy.mkv",
          "wieviele bielder habe ich", "et pourqoi", "what is xyzzy plugh frobnicate quux wibble wobble",
          "two questoins adn mroe tyops heer"}) {
        const auto start = std::chrono::steady_clock::now();
        conversation = AskEngine::turn(question, context, conversation).next;
        const auto took = std::chrono::steady_clock::now() - start;
        // Many times what it takes, since tests run beside each other, and under sanitizers.
        EXPECT_THAT(std::chrono::duration_cast<std::chrono::milliseconds>(took).count(), Le(3'000))
            << question;
    }
}

} // namespace orlen
