#pragma once

#include "model/Text.h"

/// What the answers say about the folders of a program, and about getting something back.
namespace orlen::InsightTexts {

// TRANSLATORS: {name} is a program: "Spotify"; a list of folders follows.
inline constexpr Text kPlacesOf =
    messages("“{name}” has {count} folder in your home folder, {size}:",
             "“{name}” has {count} folders in your home folder, {size} in all:");
// TRANSLATORS: {name} is a program: "Spotify"; a list of folders follows.
inline constexpr Text kCachesOf = messages("“{name}” has {count} cache folder, {size}:",
                                           "“{name}” has {count} cache folders, {size} in all:");
// TRANSLATORS: {name} is a program: "Spotify".
inline constexpr Text kNoCacheOf = message("I find no cache of “{name}” in your home folder.");
// TRANSLATORS: {name} is a program: "Spotify".
inline constexpr Text kNoLogsOf = message("I find no log files of “{name}” in your home folder.");
inline constexpr Text kIsCache =
    message("It is a cache: its program makes it again. Quit the program first.");

// TRANSLATORS: "orlen restore" is a command; {record} is the number of a clean-up.
inline constexpr Text kBackFromHistory =
    message("{path} ({size}) was moved to the Trash by the clean-up of {date}. History puts that clean-up "
            "back, and so does “orlen restore {record}”.");
// TRANSLATORS: {note} is "Deleted from ~/Videos".
inline constexpr Text kBackFromTrash =
    message("{name} ({size}) is in the Trash ({note}). Your file manager can restore it from there.");
inline constexpr Text kBackFromTrashPlain =
    message("{name} ({size}) is in the Trash. Your file manager can restore it from there.");
inline constexpr Text kStillThere = message("{path} ({size}) is still there.");
inline constexpr Text kNotInTrash =
    message("“{name}” is neither in the Trash nor in the history of clean-ups.");

// TRANSLATORS: follows a sentence about a folder; a list of these items follows.
inline constexpr Text kListedInsideUnsafe =
    messages("In it the last scan lists {count} item, {size}; none of it is rated Safe.",
             "In it the last scan lists {count} items, {size} in all; none of it is rated Safe.");
// TRANSLATORS: a list of files and folders follows.
inline constexpr Text kTogether = message("Together they take {size}:");
// TRANSLATORS: a list of these files follows.
inline constexpr Text kNamedAlike = messages(
    "{count} file has such a name:", "{count} files have nearly the same name and take the same space:");
inline constexpr Text kNoCopyListed =
    message("The last scan lists no duplicate of “{name}”. It compares files from {size} up, and pictures of "
            "any size.");
// TRANSLATORS: {files} is "documents"; "documents with “tax” in their names". Stands within a sentence.
inline constexpr Text kFilesNamed = message("{files} with “{name}” in their names");
// TRANSLATORS: {path} is a folder such as "/var"; {category} is "System".
inline constexpr Text kPartOfSystem =
    message("{path} counts for {category}, which takes {size} in all; Orlen does not measure it by itself.");
// TRANSLATORS: the answer to "What is …": {path} is a file or folder, {thing} a few words for what it is,
// one of those in the table of well-known names: "~/win.vdi: disk of a virtual machine."
inline constexpr Text kWhatItIs = message("{path}: {thing}.");

inline constexpr Text kRawPhotos = messageIn("files, within a sentence", "RAW photos");
// TRANSLATORS: {files} is "documents" and the like; {endings} is a list: "pdf, doc, odt".
inline constexpr Text kKindMeans = message("By {files} Orlen means files ending in {endings}.");

} // namespace orlen::InsightTexts
