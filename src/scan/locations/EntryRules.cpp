#include "scan/locations/EntryRules.h"

#include "clean/trash/Trash.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/text/PathText.h"
#include "scan/ScanTexts.h"
#include "scan/locations/KeptLanguages.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace orlen::EntryRules {

namespace {

bool isDigitAt(std::string_view text, std::size_t at)
{
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

/// "x.log.2" and "x.log-20250301", whatever follows the digits.
bool isRotated(std::string_view name)
{
    constexpr std::string_view kLog = ".log";
    for (std::size_t at = name.find(kLog); at != std::string_view::npos; at = name.find(kLog, at + 1)) {
        const std::size_t separator = at + kLog.size();
        if (separator < name.size() && (name[separator] == '.' || name[separator] == '-') &&
            isDigitAt(name, separator + 1))
            return true;
    }
    return false;
}

bool isRegular(const std::string& path)
{
    const auto status = statusOf(path);
    return status.ok() && status.value().type == FileType::regular;
}

bool startsLikeProgram(const std::string& path)
{
    constexpr std::string_view kMagic = "\x7F"
                                        "ELF";
    const auto file = openFile(path);
    std::array<std::byte, kMagic.size()> head{};
    if (!file.ok())
        return false;
    const auto length = readAt(file.value().get(), 0, head);
    return length.ok() && length.value() == head.size() &&
           std::ranges::equal(head, kMagic, {}, [](std::byte b) { return static_cast<char>(b); });
}

/// Two or three letters, perhaps with a region or a variant.
bool isLanguageCode(std::string_view code)
{
    const std::string language = KeptLanguages::languageOf(code);
    return (language.size() == 2 || language.size() == 3) &&
           std::ranges::all_of(language, [](char c) { return c >= 'a' && c <= 'z'; });
}

/// The code in "de.pak", "de.pak.info", "qtbase_pt_BR.qm", or the whole name of a folder.
std::string_view translationCode(std::string_view name)
{
    if (name.ends_with(".qm"))
        return name.substr(name.find('_') + 1,
                           name.size() - name.find('_') - std::string_view("_.qm").size());
    return name.substr(0, name.find('.'));
}

} // namespace

bool isLogName(std::string_view name)
{
    constexpr std::array<std::string_view, 6> kEnds{".log",    ".log.old", ".log.bak",
                                                    ".log.gz", ".log.xz",  ".log.zst"};
    return isRotated(name) ||
           std::any_of(kEnds.begin(), kEnds.end(), [&](std::string_view end) { return name.ends_with(end); });
}

bool isNamedLikeLog(const std::string& path)
{
    return isLogName(PathText::lastComponent(path));
}

bool isLogFileOrLogsFolder(const std::string& path)
{
    const std::string_view name = PathText::lastComponent(path);
    const bool mayBeFolder = name == "log" || name == "logs";
    if (!mayBeFolder && !isLogName(name))
        return false;
    const auto status = statusOf(path);
    return status.ok() && status.value().type == (mayBeFolder ? FileType::folder : FileType::regular);
}

bool isCrashDump(const std::string& path)
{
    const std::string_view name = PathText::lastComponent(path);
    if (name.ends_with(".log"))
        return isRegular(path);
    const std::string_view number = name.substr(std::min(name.size(), std::string_view("core.").size()));
    return std::ranges::all_of(number, [](char c) { return c >= '0' && c <= '9'; }) && name != "core." &&
           startsLikeProgram(path);
}

bool isUnusedTranslation(const std::string& path)
{
    const std::string_view name = PathText::lastComponent(path);
    const std::string_view code = translationCode(name);
    if (!isLanguageCode(code) || KeptLanguages::contains(code))
        return false;
    return name.ends_with(".qm") || name.find(".pak") != std::string_view::npos ? isRegular(path)
                                                                                : isRealFolder(path);
}

Message trashNote(const std::string& trashed)
{
    const std::string original = Trash::originalPath(trashed);
    const std::string_view folder = PathText::parent(original);
    if (folder.empty() || !PathText::isValidUtf8(folder))
        return {};
    return {ScanTexts::kDeletedFrom, {{"folder", std::string(folder)}}};
}

} // namespace orlen::EntryRules
