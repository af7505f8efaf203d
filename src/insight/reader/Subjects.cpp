#include "insight/reader/Subjects.h"

#include "insight/InsightTexts.h"
#include "insight/InsightTextsNames.h"
#include "insight/InsightTextsWhatIf.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace orlen::AskReader {

namespace {

/// In the order of their identifiers.
const std::vector<Subject>& subjects()
{
    using ID = SubjectID;
    using enum FindingKind;
    using Category = OrlenCategory;
    static const std::vector<Subject> all{
        {ID::similarPhotos,
         messageIn("files, within a sentence", "similar photos"),
         "",
         {photoDuplicates},
         {},
         ""},
        {ID::screenshots, messageIn("files, within a sentence", "screenshots"), "", {screenshots}, {}, ""},
        {ID::receipts, messageIn("files, within a sentence", "photos of receipts"), "", {receipts}, {}, ""},
        {ID::memes, messageIn("files, within a sentence", "memes"), "", {memes}, {}, ""},
        {ID::blurry, messageIn("files, within a sentence", "blurry shots"), "", {blurry}, {}, ""},
        {ID::duplicates, messageIn("files, within a sentence", "duplicate files"), "", {duplicates}, {}, ""},
        {ID::largeFiles, messageIn("files, within a sentence", "large files"), "", {largeFiles}, {}, ""},
        {ID::oldFiles, messageIn("files, within a sentence", "old files"), "", {oldFiles}, {}, ""},
        {ID::oldDownloads,
         messageIn("files, within a sentence", "old downloads"),
         "",
         {oldDownloads},
         {},
         ""},
        {ID::logs, messageIn("files, within a sentence", "log files"), "", {logs}, {}, ""},
        {ID::trash, messageIn("files, within a sentence", "items in the Trash"), "", {trash}, {}, ""},
        {ID::deviceBackups,
         messageIn("files, within a sentence", "device backups"),
         "",
         {iosBackups},
         {},
         ""},
        {ID::mailAttachments,
         messageIn("files, within a sentence", "mail attachments"),
         "",
         {mailDownloads},
         {},
         ""},
        {ID::languagePacks,
         messageIn("files, within a sentence", "language packs"),
         "",
         {languagePacks},
         {},
         ""},
        {ID::npm, messageIn("files, within a sentence", "npm and Yarn caches"), "", {npm}, {}, ""},
        {ID::pip, messageIn("files, within a sentence", "pip caches"), "", {pip}, {}, ""},
        {ID::gradle, messageIn("files, within a sentence", "Gradle caches"), "", {gradle}, {}, ""},
        {ID::homebrew, messageIn("files, within a sentence", "Homebrew downloads"), "", {homebrew}, {}, ""},
        {ID::caches, messageIn("files, within a sentence", "caches"), "", {caches}, Category::caches, ""},
        {ID::developer,
         messageIn("files, within a sentence", "developer data"),
         "",
         {xcodeDerived, xcodeArchives, simulators, deviceSupport, homebrew, npm, pip, gradle},
         Category::developer,
         ""},
        {ID::system, {}, "", {}, Category::system, ""},
        {ID::apps, {}, "", {}, Category::apps, "", false, true},
        {ID::media, {}, "", {}, Category::media, ""},
        {ID::downloads,
         messageIn("files, within a sentence", "downloads"),
         "",
         {oldDownloads},
         {},
         "{DOWNLOAD}"},
        {ID::desktop, {}, "", {}, {}, "{DESKTOP}"},
        {ID::documentsFolder, {}, "", {}, {}, "{DOCUMENTS}"},
        {ID::picturesFolder, {}, "", {}, {}, "{PICTURES}"},
        {ID::videosFolder, {}, "", {}, {}, "{VIDEOS}"},
        {ID::musicFolder, {}, "", {}, {}, "{MUSIC}"},
        {ID::home, {}, "", {}, {}, "{H}"},
        {ID::videos,
         messageIn("files, within a sentence", "videos"),
         "mp4 mkv mov avi webm m4v wmv flv mpg mpeg ogv ts m2ts mts 3gp 3g2 dv vob asf divx m2v mxf f4v rm "
         "rmvb",
         {},
         {},
         "{VIDEOS}"},
        {ID::photos,
         messageIn("files, within a sentence", "photos"),
         "jpg jpeg png heic heif gif webp tif tiff bmp raw cr2 cr3 crw nef nrw arw sr2 srf dng orf rw2 raf "
         "pef srw x3f avif svg jxl jp2 psd xcf kra",
         {},
         Category::photos,
         "{PICTURES}"},
        {ID::audio,
         messageIn("files, within a sentence", "audio files"),
         "mp3 flac ogg oga opus m4a m4b wav aac wma aiff aif ape wv mka mid midi amr",
         {},
         {},
         "{MUSIC}"},
        {ID::pdfs, messageIn("files, within a sentence", "PDFs"), "pdf", {}, {}, ""},
        {ID::archives,
         messageIn("files, within a sentence", "archives"),
         "zip tar gz tgz bz2 tbz2 xz txz zst 7z rar lz4 lzma cab",
         {},
         {},
         ""},
        {ID::installers,
         messageIn("files, within a sentence", "installers"),
         "deb rpm dmg pkg exe msi appimage run flatpakref snap iso",
         {},
         {},
         ""},
        {ID::diskImages,
         messageIn("files, within a sentence", "disk images"),
         "iso img qcow2 vdi vmdk vhd vhdx nrg",
         {},
         {},
         ""},
        {ID::spreadsheets,
         messageIn("files, within a sentence", "spreadsheets"),
         "xlsx xls xlsm ods csv tsv numbers",
         {},
         {},
         ""},
        {ID::presentations,
         messageIn("files, within a sentence", "presentations"),
         "pptx ppt ppsx pps odp key",
         {},
         {},
         ""},
        {ID::ebooks,
         messageIn("files, within a sentence", "e-books"),
         "epub mobi azw azw3 fb2 djvu cbz cbr",
         {},
         {},
         ""},
        {ID::documents,
         messageIn("files, within a sentence", "documents"),
         "pdf doc docx docm odt rtf txt md tex pages wpd xlsx xls xlsm ods csv pptx ppt ppsx odp epub",
         {},
         Category::documents,
         "{DOCUMENTS}"},
        {ID::files, InsightTexts::kFiles, "", {}, {}, "", true},
        {ID::startup, {}, "", {}, {}, "", false, true},
        {ID::containers, {}, "", {}, {}, "", false, true},
        {ID::flatpak, {}, "", {}, {}, "", false, true},
        {ID::snap, {}, "", {}, {}, "", false, true},
        {ID::games, {}, "", {}, {}, "", false, true},
        {ID::leftovers, {}, "", {}, {}, "", false, true},
        {ID::systemAdvice, {}, "", {}, {}, "", false, true},
        {ID::virtualMachines,
         messageIn("files, within a sentence", "virtual machines"),
         "",
         {},
         {},
         "",
         false,
         true},
        {ID::wine, messageIn("files, within a sentence", "folders of Wine"), "", {}, {}, "", false, true},
        {ID::buildOutput, InsightTexts::kBuildOutput, "", {}, {}, "", false, true},
        {ID::environments, InsightTexts::kVirtualEnvironments, "", {}, {}, "", false, true},
        {ID::rawPhotos,
         InsightTexts::kRawPhotos,
         "raw cr2 cr3 crw nef nrw arw sr2 srf dng orf rw2 raf pef srw x3f",
         {},
         {},
         ""},
        {ID::textDocuments,
         messageIn("files, within a sentence", "text documents"),
         "doc docx docm dotx odt fodt rtf",
         {},
         {},
         ""},
    };
    return all;
}

} // namespace

const Subject& subjectFor(SubjectID id)
{
    return subjects()[static_cast<std::size_t>(id)];
}

const Subject* folderSubject(const Subject& subject)
{
    const auto found = std::ranges::find_if(subjects(), [&](const Subject& each) {
        return !each.folder.empty() && each.folder == subject.folder && each.extensions.empty();
    });
    return found == subjects().end() ? nullptr : &*found;
}

std::string folderOf(const Subject& subject)
{
    if (subject.folder.empty())
        return {};
    const std::vector<std::string> folders = Places::current().expand(subject.folder);
    if (!folders.empty())
        return folders.front();
    // Without a setting, the name everybody knows.
    constexpr std::pair<std::string_view, std::string_view> kUsual[] = {
        {"{DOWNLOAD}", "Downloads"}, {"{MUSIC}", "Music"},         {"{VIDEOS}", "Videos"},
        {"{PICTURES}", "Pictures"},  {"{DOCUMENTS}", "Documents"}, {"{DESKTOP}", "Desktop"}};
    for (const auto& [pattern, name] : kUsual) {
        if (subject.folder == pattern)
            return PathText::join(Places::current().home, name);
    }
    return {};
}

std::string endingIn(std::string_view word)
{
    constexpr std::size_t kLongest = 8;
    const bool isDotted = word.starts_with('.') || word.starts_with("*.");
    std::string ending = PathText::asciiLower(word.substr(isDotted ? word.find('.') + 1 : 0));
    if (!isDotted && ending.ends_with('s') && isKnownEnding(ending.substr(0, ending.size() - 1)))
        ending.pop_back();
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); };
    const auto isFigure = [](char c) { return c >= '0' && c <= '9'; };
    if (ending.size() < 2 || ending.size() > kLongest || !std::ranges::all_of(ending, isLetter) ||
        std::ranges::all_of(ending, isFigure) || (!isDotted && !isKnownEnding(ending)))
        return {};
    return ending == "jpeg" ? "jpg" : ending;
}

bool isNamed(std::string_view path, std::string_view ending)
{
    const std::string its = PathText::asciiLower(PathText::extension(path));
    return its == ending || (ending == "jpg" && its == "jpeg");
}

bool isEndingOfKind(std::string_view ending)
{
    return std::ranges::any_of(subjects(), [&](const Subject& subject) {
        return (" " + std::string(subject.extensions) + " ").find(" " + std::string(ending) + " ") !=
               std::string::npos;
    });
}

bool isKnownEnding(std::string_view ending)
{
    // Words of their own, and what has a subject of its own.
    constexpr std::string_view kElse[] = {"pdf",  "pages", "numbers", "key",  "run", "raw", "ts",
                                          "snap", "doc",   "tex",     "opus", "pkg", "img", "md"};
    return std::ranges::find(kElse, ending) == std::end(kElse) && isEndingOfKind(ending);
}

bool isListedAs(const Subject& subject, FindingKind kind)
{
    using enum FindingKind;
    const bool isPackages = kind == npm || kind == pip || kind == gradle || kind == homebrew;
    return (subject.id == SubjectID::caches && isPackages) ||
           std::ranges::find(subject.kinds, kind) != subject.kinds.end();
}

bool isInstalledImage(std::string_view path)
{
    constexpr std::string_view kFolders[] = {"{H}/Applications",
                                             "{H}/AppImages",
                                             "{H}/.local/bin",
                                             "{H}/.local/opt",
                                             "{H}/bin",
                                             "{H}/opt",
                                             "{H}/.local/share/applications"};
    if (PathText::asciiLower(PathText::extension(path)) != "appimage")
        return false;
    return std::ranges::any_of(kFolders, [&](std::string_view pattern) {
        const std::vector<std::string> folders = Places::current().expand(pattern);
        return std::ranges::any_of(
            folders, [&](const std::string& folder) { return PathText::isAtOrBelow(path, folder); });
    });
}

bool hasExtensionOf(const Subject& subject, std::string_view path)
{
    if (subject.id == SubjectID::installers && isInstalledImage(path))
        return false;
    const std::string extension = PathText::asciiLower(PathText::extension(path));
    const std::string_view all = subject.extensions;
    if (extension.empty() || extension.find(' ') != std::string::npos)
        return false;
    for (std::size_t at = all.find(extension); at != std::string_view::npos;
         at = all.find(extension, at + 1)) {
        const std::size_t end = at + extension.size();
        if ((at == 0 || all[at - 1] == ' ') && (end == all.size() || all[end] == ' '))
            return true;
    }
    return false;
}

} // namespace orlen::AskReader
