#include "recognition/MediaReader.h"

#include "platform/files/FileContent.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <fileref.h>
#include <span>
#include <tiostream.h>
#include <tpropertymap.h>
#include <unistd.h>

namespace orlen::MediaReader {

namespace {

using TagLib::ByteVector;

/// Of one text, in bytes.
constexpr std::size_t kLongestText = 200;

/// An open file that is only read.
class Stream : public TagLib::IOStream {
public:
    explicit Stream(int descriptor)
        : m_descriptor(descriptor), m_length(std::max<std::int64_t>(0, ::lseek(descriptor, 0, SEEK_END)))
    {
    }

    /// None, so that the content decides.
    [[nodiscard]] TagLib::FileName name() const override { return ""; }
    ByteVector readBlock(unsigned long length) override
    {
        const auto left = static_cast<unsigned long>(std::max<std::int64_t>(0, m_length - m_place));
        ByteVector block(static_cast<unsigned>(std::min({length, left, kMostAtOnce})), '\0');
        const auto got =
            readAt(m_descriptor, m_place, std::as_writable_bytes(std::span(block.data(), block.size())));
        block.resize(static_cast<unsigned>(got.ok() ? got.value() : 0));
        m_place += block.size();
        return block;
    }
    void seek(long offset, Position from) override
    {
        const std::int64_t start = from == Beginning ? 0 : from == Current ? m_place : m_length;
        m_place = std::max<std::int64_t>(0, start + offset);
    }
    [[nodiscard]] long tell() const override { return m_place; }
    long length() override { return m_length; }
    [[nodiscard]] bool readOnly() const override { return true; }
    [[nodiscard]] bool isOpen() const override { return true; }

    void writeBlock(const ByteVector& /*data*/) override {}
    void insert(const ByteVector& /*data*/, unsigned long /*start*/, unsigned long /*replace*/) override {}
    void removeBlock(unsigned long /*start*/, unsigned long /*length*/) override {}
    void truncate(long /*length*/) override {}

private:
    static constexpr unsigned long kMostAtOnce = 64UL * 1024 * 1024;

    int m_descriptor;
    std::int64_t m_length;
    std::int64_t m_place = 0;
};

std::string textOf(const TagLib::String& text)
{
    std::string bytes = text.to8Bit(true).substr(0, kLongestText);
    // The last letter may have been cut.
    for (std::size_t cut = 0; cut < 4 && !bytes.empty() && !PathText::isValidUtf8(bytes); ++cut)
        bytes.pop_back();
    return PathText::isValidUtf8(bytes) ? bytes : std::string();
}

} // namespace

std::optional<MediaFacts> read(int descriptor)
{
    Stream stream(descriptor);
    const TagLib::FileRef file(&stream);
    if (file.isNull())
        return std::nullopt;
    MediaFacts facts;
    if (const TagLib::AudioProperties* sound = file.audioProperties()) {
        facts.length = std::chrono::milliseconds(std::max(0, sound->lengthInMilliseconds()));
        facts.kilobits = std::max(0, sound->bitrate());
    }
    const TagLib::PropertyMap tags = file.file()->properties();
    facts.title = textOf(tags["TITLE"].toString(", "));
    facts.artist = textOf(tags["ARTIST"].toString(", "));
    facts.album = textOf(tags["ALBUM"].toString(", "));
    return facts;
}

} // namespace orlen::MediaReader
