#include "platform/values/Sha256.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace orlen {
namespace {

std::span<const std::byte> bytesOf(std::string_view text)
{
    return std::as_bytes(std::span(text));
}

std::string hex(const Digest& digest)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    for (const std::byte byte : digest) {
        text += kDigits[std::to_integer<std::size_t>(byte >> 4U)];
        text += kDigits[std::to_integer<std::size_t>(byte & std::byte{15})];
    }
    return text;
}

TEST(Sha256Test, publishedValuesComeOutAndOneObjectServesThemAll)
{
    struct Case {
        const char* name;
        std::string content;
        const char* digest;
    };
    const Case cases[] = {
        {"a million letters", std::string(1'000'000, 'a'),
         "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"},
        {"nothing", "", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        {"three letters", "abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
    };
    Sha256 hash;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        hash.update(bytesOf(c.content));
        EXPECT_EQ(hex(hash.finish()), c.digest);
    }
}

TEST(Sha256Test, howTheBytesAreCutDoesNotMatter)
{
    const std::string content(1000, 'x');
    Sha256 hash;
    hash.update(bytesOf(content));
    const Digest whole = hash.finish();
    for (const std::size_t cut : std::initializer_list<std::size_t>{1, 55, 63, 64, 65, 999}) {
        SCOPED_TRACE(cut);
        for (std::size_t at = 0; at < content.size(); at += cut)
            hash.update(bytesOf(std::string_view(content).substr(at, cut)));
        EXPECT_EQ(hash.finish(), whole);
    }
}

} // namespace
} // namespace orlen
