#include "platform/text/Lemmatizer.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <thread>

namespace orlen {
namespace {

TEST(LemmatizerTest, inflectionsAreUndoneAndDerivationsAreNot)
{
    struct Case {
        const char* word;
        const char* lemma;
    };
    constexpr Case cases[] = {
        {"leases", "lease"},
        {"leased", "lease"},
        {"leasing", "lease"},
        {"lease", "lease"},
        {"certificates", "certificate"},
        {"warranties", "warranty"},
        {"certified", "certify"},
        {"taxes", "tax"},
        {"bank's", "bank"},
        {"contracting", "contract"},
        {"licensed", "license"},
        // The dictionary forms these with a prefix ("re" + "turn"), which belongs to the word.
        {"returns", "return"},
        {"deeds", "deed"},
        {"invoiced", "invoice"},
        {"invoicing", "invoice"},
        {"released", "release"},
        // These are words of their own, however they were formed.
        {"statement", "statement"},
        {"medically", "medically"},
        {"contractor", "contractor"},
        {"children", "children"},
        {"unwilling", "unwilling"},
    };
    const Lemmatizer english(Places::current().dictionaries);
    for (const Case& c : cases)
        EXPECT_EQ(english.lemma(c.word), c.lemma) << c.word;
}

TEST(LemmatizerTest, whatIsNoWordHasNoLemma)
{
    const Lemmatizer english(Places::current().dictionaries);
    const std::string words[] = {
        "",
        "xqzzyv",
        "1040",
        "w2",
        "two words",
        "tax\xFF",
        "\xC3",
        "契約書",
        "leases\n",
        std::string("leases\0", 7),
        "'",
        "''''",
        std::string(64, 'a'),
        std::string(65, 'a'),
        std::string(1'000'000, 's'),
        std::string(64, '\''),
    };
    for (const std::string& word : words)
        EXPECT_EQ(english.lemma(word), std::nullopt) << word.substr(0, 80);
}

TEST(LemmatizerTest, firstFolderWithBothFilesIsTaken)
{
    const TempHome home;
    home.file("half/en_US.aff", "SET UTF-8\n");
    home.file("first/en_US.aff", "SET UTF-8\nSFX S Y 1\nSFX S 0 s .\n");
    home.file("first/en_US.dic", "1\norlen/S\n");
    home.file("second/en_US.aff", "SET UTF-8\n");
    home.file("second/en_US.dic", "1\nlease\n");
    const Lemmatizer own({home.path("missing"), home.path("half"), home.path("first"), home.path("second")});
    EXPECT_EQ(own.lemma("orlens"), "orlen");
    EXPECT_EQ(own.lemma("lease"), std::nullopt);
}

TEST(LemmatizerTest, missingOrBrokenDictionaryMeansNoLemma)
{
    const TempHome home;
    EXPECT_EQ(Lemmatizer({}).lemma("leases"), std::nullopt);
    EXPECT_EQ(Lemmatizer({home.path(), home.path("missing")}).lemma("leases"), std::nullopt);
    home.file("empty/en_US.aff", "");
    home.file("empty/en_US.dic", "");
    EXPECT_EQ(Lemmatizer({home.path("empty")}).lemma("leases"), std::nullopt);
    home.file("broken/en_US.aff", "SET nothing\nSFX S Y 99\nPFX\n\xFF\xFE\n");
    home.file("broken/en_US.dic", "many\n\xFF/\n/S\n");
    EXPECT_EQ(Lemmatizer({home.path("broken")}).lemma("leases"), std::nullopt);
}

TEST(LemmatizerTest, threadsMayShareOne)
{
    const Lemmatizer english(Places::current().dictionaries);
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 200; ++round)
                EXPECT_EQ(english.lemma("warranties"), "warranty");
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace
} // namespace orlen
