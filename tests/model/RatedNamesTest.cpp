#include "model/Rater.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <thread>
#include <vector>

namespace orlen {
namespace {

TEST(RatedNamesTest, sensitiveIsWhatHasAListedWordAmongItsFirstEight)
{
    struct Case {
        const char* name;
        bool isSensitive;
    };
    constexpr Case cases[] = {
        {"invoice.pdf", true},
        {"INVOICE.PDF", true},
        {"Invoice_2023.pdf", true},
        {"my-passport.scan.jpg", true},
        {"taxReturn.pdf", true},
        {"w2.pdf", true},
        {"Form 1040 (signed)", true},
        {"éTax.pdf", true},
        {"e\xCC\x81Tax.pdf", true}, // the accent on its own, as some systems store names
        {"leases.doc", true},
        {"Deeds.pdf", true},
        {"Returned_goods.txt", true},
        {"Birth Certificates.zip", true},
        {"Last Will.docx", true},
        {".tax", true},
        {"tax.", true},
        {"1 2 3 4 5 6 7 tax.txt", true},
        {"1 2 3 4 5 6 7 8 tax.txt", false},
        {"IMG_1234.jpg", false},
        {"holiday.tax", false}, // the extension does not count
        {"Rechnung_2024-05.pdf", true},
        {"umowa najmu.odt", true},
        {"Pasaporte (copia).jpg", true},
        {"فاتورة الكهرباء.pdf", true},
        {"2024年5月の請求書.pdf", true},
        {"发票20240501.jpg", true},
        {"tasse.jpg", false}, // taxes in Italian, a cup in German and French
        {"旅行写真.jpg", false},
        {"PDFInvoice.pdf", false},
        {"taxi.pdf", false},
        {"syntax.txt", false},
        {"willow.jpg", false},
        {"10400.txt", false},
        {"Steuererklärung.pdf", true},
        {"契約書.pdf", true},
        {"", false},
        {".", false},
        {"...", false},
        {"___---", false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Rater::isSensitiveName(c.name), c.isSensitive) << c.name;
}

TEST(RatedNamesTest, anyBytesAreSurvived)
{
    EXPECT_TRUE(Rater::isSensitiveName("\xFF\xFEtax\x80.pdf"));
    EXPECT_TRUE(Rater::isSensitiveName("caf\xE9 invoice.pdf"));
    EXPECT_TRUE(Rater::isSensitiveName(std::string_view("tax\0x.pdf", 9)));
    EXPECT_FALSE(Rater::isSensitiveName(std::string(100'000, 'a')));
    EXPECT_FALSE(Rater::isSensitiveName(std::string(300, '\xF0')));
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; second += 5) {
            const std::string pair{static_cast<char>(first), static_cast<char>(second)};
            EXPECT_FALSE(Rater::isSensitiveName(pair + pair)) << first << ' ' << second;
        }
    }
}

TEST(RatedNamesTest, threadsMayAskAtOnce)
{
    std::array<int, 4> sensitive{};
    std::vector<std::thread> threads;
    threads.reserve(sensitive.size());
    for (int& count : sensitive) {
        threads.emplace_back([&count] {
            for (int i = 0; i < 200; ++i) {
                count += Rater::isSensitiveName("subleases and leases.pdf") ? 1 : 0;
                count += Rater::isSensitiveName("Certificates" + std::to_string(i) + ".pdf") ? 1 : 0;
                count += Rater::isSensitiveName("old mortgaged houses.pdf") ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (const int count : sensitive)
        EXPECT_EQ(count, sensitive.front());
}

} // namespace
} // namespace orlen
