#include "window/lists/FileSymbol.h"

#include "platform/text/PathText.h"

#include <algorithm>
#include <array>

namespace orlen::FileSymbol {

namespace {

struct Kind {
    std::string_view extension;
    const char* symbol;
};

constexpr const char* kImage = "doc.image";
constexpr const char* kMovie = "doc.movie";
constexpr const char* kMusic = "doc.music";
constexpr const char* kArchive = "doc.archive";
constexpr const char* kCode = "doc.code";
constexpr const char* kText = "doc.text";
constexpr const char* kDisk = "doc.disk";
constexpr const char* kApp = "app.fill";

// clang-format off
constexpr auto kKinds = std::to_array<Kind>({
    {"avif", kImage}, {"bmp", kImage}, {"gif", kImage}, {"heic", kImage}, {"ico", kImage}, {"jpeg", kImage},
    {"jpg", kImage}, {"jxl", kImage}, {"png", kImage}, {"raw", kImage}, {"svg", kImage}, {"tif", kImage},
    {"tiff", kImage}, {"webp", kImage}, {"xcf", kImage},
    {"avi", kMovie}, {"flv", kMovie}, {"m4v", kMovie}, {"mkv", kMovie}, {"mov", kMovie}, {"mp4", kMovie},
    {"mpeg", kMovie}, {"mpg", kMovie}, {"ogv", kMovie}, {"webm", kMovie}, {"wmv", kMovie},
    {"aac", kMusic}, {"aiff", kMusic}, {"flac", kMusic}, {"m4a", kMusic}, {"mid", kMusic}, {"mp3", kMusic},
    {"ogg", kMusic}, {"opus", kMusic}, {"wav", kMusic}, {"wma", kMusic},
    {"7z", kArchive}, {"bz2", kArchive}, {"gz", kArchive}, {"rar", kArchive}, {"tar", kArchive},
    {"tgz", kArchive}, {"xz", kArchive}, {"zip", kArchive}, {"zst", kArchive},
    {"img", kDisk}, {"iso", kDisk}, {"ipsw", kDisk}, {"qcow2", kDisk}, {"vdi", kDisk}, {"vmdk", kDisk},
    {"c", kCode}, {"cpp", kCode}, {"css", kCode}, {"go", kCode}, {"h", kCode}, {"html", kCode}, {"java", kCode},
    {"js", kCode}, {"json", kCode}, {"py", kCode}, {"qml", kCode}, {"rs", kCode}, {"sh", kCode}, {"ts", kCode},
    {"xml", kCode}, {"yaml", kCode}, {"yml", kCode},
    {"csv", kText}, {"doc", kText}, {"docx", kText}, {"log", kText}, {"md", kText}, {"odt", kText},
    {"rtf", kText}, {"txt", kText},
    {"pdf", "doc.pdf"},
    {"app", kApp}, {"appimage", kApp}, {"apk", kApp}, {"deb", kApp}, {"exe", kApp}, {"flatpak", kApp},
    {"rpm", kApp}, {"snap", kApp},
});
// clang-format on

} // namespace

QString ofName(std::string_view path)
{
    const std::string extension = PathText::asciiLower(PathText::extension(path));
    const auto kind = std::find_if(kKinds.begin(), kKinds.end(),
                                   [&](const Kind& known) { return known.extension == extension; });
    return QString::fromLatin1(kind == kKinds.end() ? "doc" : kind->symbol);
}

QString ofFolder()
{
    return QStringLiteral("folder");
}

} // namespace orlen::FileSymbol
