#include "window/preview/FilePreview.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/text/PathText.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/preview/PictureReader.h"

#include <QMimeDatabase>

#include <algorithm>
#include <iterator>
#include <span>

namespace orlen {

namespace {

constexpr std::size_t kTextBytes = 65'536;
constexpr std::size_t kNames = 500;
constexpr std::size_t kLongestCharacter = 4;

QString typeOf(const std::string& path, FileType type)
{
    if (type == FileType::link)
        return DisplayText::text(WindowTexts::kLink);
    const QMimeDatabase database;
    const auto mime = type == FileType::folder ? database.mimeTypeForName(QStringLiteral("inode/directory"))
                                               : database.mimeTypeForFile(QString::fromStdString(path),
                                                                          QMimeDatabase::MatchExtension);
    QString words = mime.comment();
    if (!words.isEmpty())
        words[0] = words[0].toUpper();
    return words;
}

bool isTextCharacter(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return byte >= 0x20 ? byte != 0x7f
                        : byte == '\t' || byte == '\n' || byte == '\r' || byte == '\f' || byte == 0x1b;
}

/// The text without a truncated last character; nothing when it is not text.
std::optional<std::string_view> validText(std::string_view bytes, bool isCut)
{
    if (!std::all_of(bytes.begin(), bytes.end(), isTextCharacter))
        return std::nullopt;
    for (std::size_t dropped = 0; dropped < (isCut ? kLongestCharacter : 1); ++dropped) {
        if (dropped > bytes.size())
            break;
        const std::string_view text = bytes.substr(0, bytes.size() - dropped);
        if (PathText::isValidUtf8(text))
            return text;
    }
    return std::nullopt;
}

void readText(FilePreview& preview, const UniqueFd& file, std::int64_t length)
{
    std::string bytes(kTextBytes, '\0');
    const Result<std::size_t> read = readAt(file.get(), 0, std::as_writable_bytes(std::span(bytes)));
    if (!read.ok())
        return;
    bytes.resize(read.value());
    const bool isCut = length > static_cast<std::int64_t>(bytes.size());
    if (const auto text = validText(bytes, isCut); text && !text->empty()) {
        preview.kind = FilePreview::Kind::text;
        preview.text = QString::fromUtf8(text->data(), static_cast<qsizetype>(text->size()));
        preview.isCut = isCut;
    }
}

void readDocument(FilePreview& preview, const std::string& path, const std::stop_token& stop)
{
    const auto page = PictureReader::page(path, {1, 1}, stop);
    preview.kind = page ? FilePreview::Kind::page : FilePreview::Kind::damaged;
    if (!page)
        return;
    preview.pixels = page->points;
    preview.pages = page->count;
}

void readMedia(FilePreview& preview, const std::string& path, const std::stop_token& stop)
{
    auto facts = PictureReader::media(path, stop);
    preview.kind = facts ? FilePreview::Kind::media : FilePreview::Kind::damaged;
    if (facts)
        preview.media = *std::move(facts);
}

void readArchive(FilePreview& preview, const std::string& path, const std::stop_token& stop)
{
    auto contents = PictureReader::archive(path, stop);
    if (!contents) {
        preview.kind = FilePreview::Kind::damaged;
        return;
    }
    preview.kind = FilePreview::Kind::archive;
    preview.isCut = contents->extent != ArchiveContents::Extent::whole;
    preview.isDamaged = contents->extent == ArchiveContents::Extent::damaged;
    for (ArchiveContents::Item& item : contents->items)
        preview.names.push_back({std::move(item.name), item.bytes, item.isFolder});
    preview.nameCount = std::ssize(preview.names);
}

void readThumbnail(FilePreview& preview, const std::string& path, const std::stop_token& stop)
{
    using enum FilePreview::Kind;
    if (preview.kind != media && preview.kind != other && preview.kind != damaged)
        return;
    // Of the largest; only the size is needed.
    if (const auto kept = PictureReader::thumbnail(path, {1'024, 1'024}, PictureReader::Fit::inside, stop))
        preview.thumbnail = kept->whole;
}

void readFile(FilePreview& preview, const std::string& path, std::int64_t length, const std::stop_token& stop)
{
    if (PictureReader::looksReadable(path)) {
        // Only the full size is needed, which comes with the smallest thumbnail too.
        if (const auto picture = PictureReader::read(path, {1, 1}, PictureReader::Fit::inside, stop)) {
            preview.kind = FilePreview::Kind::picture;
            preview.pixels = picture->whole;
            return;
        }
    }
    const Result<UniqueFd> file = openFile(path);
    if (!file.ok())
        preview.kind = FilePreview::Kind::locked;
    else if (length > 0 && PictureReader::looksLikeDocument(path))
        readDocument(preview, path, stop);
    else if (length > 0 && PictureReader::looksLikeMedia(path))
        readMedia(preview, path, stop);
    else if (length > 0 && PictureReader::looksLikeArchive(path))
        readArchive(preview, path, stop);
    // "ts" is the name of films and of programs.
    const bool isNoMedia = preview.kind == FilePreview::Kind::damaged && PictureReader::looksLikeMedia(path);
    if (isNoMedia || preview.kind == FilePreview::Kind::other)
        readText(preview, file.value(), length);
    readThumbnail(preview, path, stop);
}

FilePreview::Name nameOf(int folder, const std::string& name)
{
    const Result<FileStatus> status = statusAt(folder, name.c_str());
    if (!status.ok() || status.value().type == FileType::folder)
        return {name, -1, status.ok()};
    return {name, status.value().allocatedBytes, false};
}

void readFolder(FilePreview& preview, const std::string& path, const std::stop_token& stop)
{
    const Result<UniqueFd> folder = openFolder(path);
    if (!folder.ok()) {
        preview.kind = FilePreview::Kind::locked;
        return;
    }
    preview.kind = FilePreview::Kind::folder;
    FolderReader reader(folder.value().get());
    for (auto chunk = reader.next(); chunk && !stop.stop_requested(); chunk = reader.next()) {
        chunk->forEach([&](const FolderEntry& entry) {
            if (++preview.nameCount <= static_cast<std::int64_t>(kNames))
                preview.names.push_back(nameOf(folder.value().get(), entry.name));
        });
    }
    preview.isCut = preview.nameCount > static_cast<std::int64_t>(kNames);
    std::sort(preview.names.begin(), preview.names.end(), [](const auto& a, const auto& b) {
        return a.isFolder != b.isFolder ? a.isFolder : a.name < b.name;
    });
}

} // namespace

FilePreview FilePreview::of(const std::string& path, const std::stop_token& stop)
{
    FilePreview preview;
    const Result<FileStatus> status = statusOf(path);
    if (!status.ok())
        return preview;
    preview.kind = Kind::other;
    preview.type = typeOf(path, status.value().type);
    preview.modified = status.value().modified;
    preview.opened = status.value().accessed;
    if (status.value().type == FileType::folder) {
        readFolder(preview, path, stop);
        return preview;
    }
    preview.bytes = status.value().allocatedBytes;
    if (status.value().type == FileType::regular)
        readFile(preview, path, status.value().length, stop);
    return preview;
}

} // namespace orlen
