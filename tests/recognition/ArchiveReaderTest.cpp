#include "platform/images/ArchiveMessage.h"
#include "platform/images/ImageWorkers.h"
#include "support/TempHome.h"

#include <archive.h>
#include <archive_entry.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>

namespace orlen {

namespace {

using testing::SizeIs;
using Extent = ArchiveContents::Extent;
using SetFormat = std::function<void(archive*)>;

struct Entry {
    std::string name;
    std::string content;
};

/// An archive of these files, and of a folder "deep/".
std::string packed(const SetFormat& setFormat, const std::vector<Entry>& entries)
{
    const std::unique_ptr<archive, int (*)(archive*)> made(::archive_write_new(), ::archive_write_free);
    setFormat(made.get());
    std::string bytes(4'000'000, '\0');
    std::size_t used = 0;
    EXPECT_EQ(::archive_write_open_memory(made.get(), bytes.data(), bytes.size(), &used), ARCHIVE_OK);
    const std::unique_ptr<archive_entry, void (*)(archive_entry*)> entry(::archive_entry_new(),
                                                                         ::archive_entry_free);
    const auto add = [&](const Entry& wanted, unsigned type) {
        ::archive_entry_clear(entry.get());
        ::archive_entry_set_pathname(entry.get(), wanted.name.c_str());
        ::archive_entry_set_filetype(entry.get(), type);
        ::archive_entry_set_perm(entry.get(), 0644);
        ::archive_entry_set_size(entry.get(), static_cast<la_int64_t>(wanted.content.size()));
        EXPECT_EQ(::archive_write_header(made.get(), entry.get()), ARCHIVE_OK);
        EXPECT_EQ(::archive_write_data(made.get(), wanted.content.data(), wanted.content.size()),
                  static_cast<la_ssize_t>(wanted.content.size()));
    };
    add({"deep/", ""}, AE_IFDIR);
    for (const Entry& wanted : entries)
        add(wanted, AE_IFREG);
    EXPECT_EQ(::archive_write_close(made.get()), ARCHIVE_OK);
    bytes.resize(used);
    return bytes;
}

void asZip(archive* made)
{
    ::archive_write_set_format_zip(made);
}

void asPackedTar(archive* made)
{
    ::archive_write_set_format_gnutar(made);
    ::archive_write_add_filter_xz(made);
}

void asSevenZip(archive* made)
{
    ::archive_write_set_format_7zip(made);
}

class ArchiveReaderTest : public testing::Test {
protected:
    [[nodiscard]] std::optional<ArchiveContents> read(const std::string& bytes)
    {
        return workers.archive(home.file("archive", bytes), {});
    }

    const TempHome home;
    ImageWorkers workers{ImageWorkers::Options{ORLEN_RECOGNIZER}};
};

} // namespace

TEST_F(ArchiveReaderTest, theItemsAreListedInsideTheCage)
{
    const std::vector<Entry> entries{{"deep/a.txt", "four"}, {"b\xff.bin", std::string(70'000, 'b')}};
    const std::vector<std::pair<const char*, SetFormat>> formats{
        {"zip", asZip}, {"tar.xz", asPackedTar}, {"7z", asSevenZip}};
    for (const auto& [name, format] : formats) {
        SCOPED_TRACE(name);
        const bool isTar = std::string_view(name) == "tar.xz";
        const auto contents = read(
            packed(format, isTar ? entries : std::vector{entries[0], Entry{"b.bin", entries[1].content}}));
        ASSERT_TRUE(contents);
        EXPECT_EQ(contents->extent, Extent::whole);
        ASSERT_THAT(contents->items, SizeIs(3));
        const auto find = [&](std::string_view start) {
            const auto found = std::ranges::find_if(
                contents->items, [&](const auto& item) { return item.name.starts_with(start); });
            return found == contents->items.end() ? ArchiveContents::Item{} : *found;
        };
        EXPECT_EQ(find("deep/a"), (ArchiveContents::Item{"deep/a.txt", 4}));
        EXPECT_EQ(find("b").bytes, 70'000);
        EXPECT_TRUE(std::ranges::any_of(contents->items, &ArchiveContents::Item::isFolder));
    }
}

TEST_F(ArchiveReaderTest, ofManyItemsTheFirstAreListed)
{
    std::vector<Entry> entries;
    for (int i = 0; i < 600; ++i)
        entries.push_back({std::string(i == 0 ? 2'000 : 10, 'x') + std::to_string(i), "x"});
    const auto contents = read(packed(asPackedTar, entries));
    ASSERT_TRUE(contents);
    EXPECT_EQ(contents->extent, Extent::beginning);
    EXPECT_THAT(contents->items, SizeIs(ArchiveContents::kMostItems));
    EXPECT_THAT(contents->items[1].name, SizeIs(ArchiveContents::kLongestName)) << "its end";
}

TEST_F(ArchiveReaderTest, ofADamagedOneWhatCanBeReadIsListed)
{
    const std::vector<Entry> entries{{"first", "one"}, {"second", std::string(900'000, 'x')}};
    const std::string tar = packed([](archive* made) { ::archive_write_set_format_ustar(made); }, entries);
    const auto cut = read(tar.substr(0, tar.size() / 2));
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->extent, Extent::damaged);
    EXPECT_GE(cut->items.size(), 2U);
    const std::string zip = packed(asZip, entries);
    for (const std::size_t length : {0U, 4U, 30U, 60U}) {
        const auto contents = read(zip.substr(0, length));
        EXPECT_TRUE(!contents || contents->extent == Extent::damaged) << length;
    }
    EXPECT_FALSE(read("no archive at all, but some words that are long enough to be one"));
    EXPECT_TRUE(read(zip)) << "the recognizer still works";
}

TEST(ArchiveMessageTest, nothingElseIsBelieved)
{
    const ArchiveContents contents{{{"a", 3, false}, {"b\xff/", -1, true}}, Extent::damaged};
    const std::vector<std::uint8_t> bytes = ArchiveMessage::encoded(contents);
    EXPECT_EQ(ArchiveMessage::decoded(bytes), contents);
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(ArchiveMessage::decoded(std::span(bytes).first(length))) << length;
    for (const auto& [at, value] : {std::pair(0, 3), std::pair(1, 9), std::pair(3, 2), std::pair(12, 0)}) {
        std::vector<std::uint8_t> wrong = bytes;
        wrong[static_cast<std::size_t>(at)] = static_cast<std::uint8_t>(value);
        EXPECT_FALSE(ArchiveMessage::decoded(wrong)) << at;
    }
}

} // namespace orlen
