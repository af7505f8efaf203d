#pragma once

#include "model/FindingKind.h"
#include "model/OrlenCategory.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen::AskReader {

enum class SubjectID : std::uint8_t {
    similarPhotos,
    screenshots,
    receipts,
    memes,
    blurry,
    duplicates,
    largeFiles,
    oldFiles,
    oldDownloads,
    logs,
    trash,
    deviceBackups,
    mailAttachments,
    languagePacks,
    npm,
    pip,
    gradle,
    homebrew,
    caches,
    developer,
    system,
    apps,
    media,
    downloads,
    desktop,
    documentsFolder,
    picturesFolder,
    videosFolder,
    musicFolder,
    home,
    videos,
    photos,
    audio,
    pdfs,
    archives,
    installers,
    diskImages,
    spreadsheets,
    presentations,
    ebooks,
    documents,
    files,
    startup,
    containers,
    flatpak,
    snap,
    games,
    leftovers,
    systemAdvice,
    virtualMachines,
    wine,
    buildOutput,
    environments,
    rawPhotos,
    textDocuments,
};

/// Something a question can be about: a kind of file, a kind of finding, a category or a folder. Often
/// several at once: "photos" are files with certain extensions and a category. The words for it stand in the
/// tables of the languages.
struct Subject {
    SubjectID id;
    Text name;                   ///< as a sentence names several of them: "videos"; empty if none does
    std::string_view extensions; ///< of its files, lower case, separated by spaces; empty if no kind of file
    std::vector<FindingKind> kinds;
    std::optional<OrlenCategory> category;
    std::string_view folder; ///< pattern as Places::expand reads it; empty if it is no folder
    bool isAnyFile = false;  ///< files of every kind
    bool isProgram = false;  ///< applications and what belongs to them
};

[[nodiscard]] const Subject& subjectFor(SubjectID id);

/// The subject that is only the folder of this one: of photos, the pictures folder. Null if there is none.
[[nodiscard]] const Subject* folderSubject(const Subject& subject);

/// The folder in use that the subject stands for; empty if none.
[[nodiscard]] std::string folderOf(const Subject& subject);

/// The ending of file names that a word is: of "mp3s", ".img" and "*.JPEG". Empty if it is none; of words
/// without a dot only those that mean nothing else.
[[nodiscard]] std::string endingIn(std::string_view word);
/// Whether a file has that ending.
[[nodiscard]] bool isNamed(std::string_view path, std::string_view ending);
/// Whether files of a subject have it.
[[nodiscard]] bool isEndingOfKind(std::string_view ending);
/// The same, and it is no word of its own.
[[nodiscard]] bool isKnownEnding(std::string_view ending);

/// Whether a finding of this kind is of the subject. Whoever says "caches" means those of package managers
/// too.
[[nodiscard]] bool isListedAs(const Subject& subject, FindingKind kind);

/// Whether it is an AppImage in a folder for applications: that is the application, and no installer.
[[nodiscard]] bool isInstalledImage(std::string_view path);

/// Whether a file of this name is of the subject's kind.
[[nodiscard]] bool hasExtensionOf(const Subject& subject, std::string_view path);

} // namespace orlen::AskReader
