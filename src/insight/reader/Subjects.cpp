#include "insight/reader/Subjects.h"

#include "insight/InsightTexts.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>

namespace orlen::AskReader {

std::span<const Subject> subjects()
{
    using enum FindingKind;
    using Category = OrlenCategory;
    static const std::vector<Subject> all{
        {"similar photos,similar pictures,similar images,similar shots,duplicate photos,duplicate pictures,"
         "duplicate images,duplicated photos,duplicated pictures,duplicate shots,near identical photos,"
         "near-identical photos,photos twice,photo duplicates,copies of photos,copies of pictures,"
         "copies of my photos,copies of my pictures",
         messageIn("files, within a sentence", "similar photos"),
         "",
         {photoDuplicates},
         {},
         ""},
        {"screenshot,screenshots,screen shots,screen shot,screen captures,screen grabs",
         messageIn("files, within a sentence", "screenshots"),
         "",
         {screenshots},
         {},
         ""},
        {"receipt,receipts,photos of receipts,pictures of receipts,receipt photos",
         messageIn("files, within a sentence", "photos of receipts"),
         "",
         {receipts},
         {},
         ""},
        {"meme,memes,text images,funny pictures",
         messageIn("files, within a sentence", "memes"),
         "",
         {memes},
         {},
         ""},
        {"blurry photos,blurry pictures,blurry images,blurry shots,blurry,blurred photos,blurred pictures,"
         "out of focus photos,unsharp photos,blurred",
         messageIn("files, within a sentence", "blurry shots"),
         "",
         {blurry},
         {},
         ""},
        {"duplicate,duplicates,duplicate files,duplicated files,identical files,same files,double files,"
         "copies of files,file duplicates",
         messageIn("files, within a sentence", "duplicate files"),
         "",
         {duplicates},
         {},
         ""},
        {"large files,big files,huge files,large file,big file",
         messageIn("files, within a sentence", "large files"),
         "",
         {largeFiles},
         {},
         ""},
        {"old files,unused files,forgotten files,old file",
         messageIn("files, within a sentence", "old files"),
         "",
         {oldFiles},
         {},
         ""},
        {"old downloads,forgotten downloads",
         messageIn("files, within a sentence", "old downloads"),
         "",
         {oldDownloads},
         {},
         ""},
        {"log,logs,log files,logfiles,log file",
         messageIn("files, within a sentence", "log files"),
         "",
         {logs},
         {},
         ""},
        {"trash,bin,rubbish,recycle bin,waste basket,wastebasket,trash can,rubbish bin",
         messageIn("files, within a sentence", "items in the Trash"),
         "",
         {trash},
         {},
         ""},
        {"iphone backup,iphone backups,ipad backup,ipad backups,phone backups,phone backup,device backups,"
         "ios backups,iphone,ipad",
         messageIn("files, within a sentence", "device backups"),
         "",
         {iosBackups},
         {},
         ""},
        {"mail attachments,attachments,mail downloads,email attachments,e-mail attachments",
         messageIn("files, within a sentence", "mail attachments"),
         "",
         {mailDownloads},
         {},
         ""},
        {"language packs,translations,language files,language pack",
         messageIn("files, within a sentence", "language packs"),
         "",
         {languagePacks},
         {},
         ""},
        {"npm cache,npm,yarn cache,yarn,node cache",
         messageIn("files, within a sentence", "npm and Yarn caches"),
         "",
         {npm},
         {},
         ""},
        {"pip cache,pip,python cache,python packages",
         messageIn("files, within a sentence", "pip caches"),
         "",
         {pip},
         {},
         ""},
        {"gradle cache,gradle", messageIn("files, within a sentence", "Gradle caches"), "", {gradle}, {}, ""},
        {"homebrew,homebrew cache,homebrew downloads",
         messageIn("files, within a sentence", "Homebrew downloads"),
         "",
         {homebrew},
         {},
         ""},
        {"cache,caches,app caches,cache files,cached files,application caches,cached data,app cache,"
         "temporary data,temporary files,temp files",
         messageIn("files, within a sentence", "caches"),
         "",
         {caches},
         Category::caches,
         ""},
        {"developer data,developer files,developer,dev files,developer tools,build files,build data",
         messageIn("files, within a sentence", "developer data"),
         "",
         {xcodeDerived, xcodeArchives, simulators, deviceSupport, homebrew, npm, pip, gradle},
         Category::developer,
         ""},
        {"system,system data,system files,the system,operating system", {}, "", {}, Category::system, ""},
        {"app,apps,applications,programs,application,software", {}, "", {}, Category::apps, ""},
        {"media,media files", {}, "", {}, Category::media, ""},
        {"downloads,download folder,downloads folder,downloaded files,download,downloads directory",
         messageIn("files, within a sentence", "downloads"),
         "",
         {oldDownloads},
         {},
         "{DOWNLOAD}"},
        {"desktop,desktop folder", {}, "", {}, {}, "{DESKTOP}"},
        {"documents folder,document folder,documents directory", {}, "", {}, {}, "{DOCUMENTS}"},
        {"pictures folder,photos folder,photo folder,picture folder,images folder",
         {},
         "",
         {},
         {},
         "{PICTURES}"},
        {"videos folder,video folder,movies folder", {}, "", {}, {}, "{VIDEOS}"},
        {"music folder", {}, "", {}, {}, "{MUSIC}"},
        {"home,home folder,home directory,my folders", {}, "", {}, {}, "{H}"},
        {"video,videos,movie,movies,film,films,clip,clips,video files,recordings,footage",
         messageIn("files, within a sentence", "videos"),
         "mp4 mkv mov avi webm m4v wmv flv mpg mpeg ogv ts m2ts 3gp",
         {},
         {},
         "{VIDEOS}"},
        {"photo,photos,picture,pictures,image,images,pic,pics,photographs,snapshots,shots",
         messageIn("files, within a sentence", "photos"),
         "jpg jpeg png heic heif gif webp tif tiff bmp raw cr2 cr3 nef arw dng orf rw2 avif svg",
         {},
         Category::photos,
         "{PICTURES}"},
        {"music,song,songs,audio,audio files,tracks,mp3s,podcasts,sound files,albums",
         messageIn("files, within a sentence", "audio files"),
         "mp3 flac ogg opus m4a wav aac wma aiff",
         {},
         {},
         "{MUSIC}"},
        {"pdf,pdfs,pdf files,pdf documents",
         messageIn("files, within a sentence", "PDFs"),
         "pdf",
         {},
         {},
         ""},
        {"archive,archives,zip,zips,zip files,compressed files,zip archives,tarballs",
         messageIn("files, within a sentence", "archives"),
         "zip tar gz tgz bz2 xz zst 7z rar lz4",
         {},
         {},
         ""},
        {"installer,installers,installation files,setup files,packages",
         messageIn("files, within a sentence", "installers"),
         "deb rpm dmg pkg exe msi appimage run flatpakref snap",
         {},
         {},
         ""},
        {"disk image,disk images,iso,isos,iso files,iso images,virtual disks,vm images",
         messageIn("files, within a sentence", "disk images"),
         "iso img qcow2 vdi vmdk vhd vhdx",
         {},
         {},
         ""},
        {"spreadsheet,spreadsheets,tables,excel files",
         messageIn("files, within a sentence", "spreadsheets"),
         "xlsx xls ods csv numbers",
         {},
         {},
         ""},
        {"presentation,presentations,slides,powerpoints",
         messageIn("files, within a sentence", "presentations"),
         "pptx ppt odp key",
         {},
         {},
         ""},
        {"ebook,ebooks,e-books,books",
         messageIn("files, within a sentence", "e-books"),
         "epub mobi azw3 djvu",
         {},
         {},
         ""},
        {"document,documents,docs,text documents,papers,paperwork",
         messageIn("files, within a sentence", "documents"),
         "pdf doc docx odt rtf txt md tex pages xlsx xls ods csv pptx ppt odp epub",
         {},
         Category::documents,
         "{DOCUMENTS}"},
        {"file,files,item,items,stuff,thing,things,data,everything,anything",
         InsightTexts::kFiles,
         "",
         {},
         {},
         "",
         true},
    };
    return all;
}

std::string folderOf(const Subject& subject)
{
    if (subject.folder.empty())
        return {};
    const std::vector<std::string> folders = Places::current().expand(subject.folder);
    if (!folders.empty())
        return folders.front();
    // Without a setting, the name everybody knows.
    if (subject.folder == "{DOWNLOAD}")
        return Places::current().home + "/Downloads";
    return {};
}

bool hasExtensionOf(const Subject& subject, std::string_view path)
{
    const std::string extension = PathText::asciiLower(PathText::extension(path));
    if (extension.empty())
        return false;
    std::string_view rest = subject.extensions;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        if (rest.substr(0, end) == extension)
            return true;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return false;
}

} // namespace orlen::AskReader
