#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::english_words {

namespace {

constexpr SubjectRow kSubjects[] = {
    {SubjectID::virtualMachines,
     "virtual machine,virtual machines,vm,vms,vm image,vm images,virtual machine image,virtual machine "
     "images,virtual "
     "disk,virtual disks,vm disk,vm disks,virtualbox,gnome boxes,virtualbox vms,virtual box,qemu,android "
     "emulator,android emulators,emulators"},
    {SubjectID::buildOutput, "build artifacts,build artefacts,build artifact,build output,build "
                             "outputs,build folders,build directories,build "
                             "leftovers,compiled files,compile output,build dirs,"
                             "build products,compiler output,leftovers of builds,leftovers of building"},
    {SubjectID::rawPhotos,
     "raw,raws,raw file,raw files,raw photo,raw photos,raw picture,raw pictures,raw image,raw images,raw "
     "shots,camera raw,camera raws,camera raw files,raw format,raw camera files"},
    {SubjectID::environments,
     "venv,venvs,virtualenv,virtualenvs,virtual environment,virtual environments,virtual envs,python "
     "environments,python venvs,python virtual environments"},
    {SubjectID::wine,
     "wine,wine prefix,wine prefixes,wineprefix,wineprefixes,bottles,wine bottles,wine bottle"},
    {SubjectID::systemAdvice, "old kernels,kernels,old kernel,apt cache,apt-cache,apt,package cache,package "
                              "downloads,pacman cache,dnf cache,journal,journald,systemd journal,system "
                              "logs"},
    {SubjectID::similarPhotos,
     "similar photos,similar pictures,similar images,similar shots,duplicate photos,duplicate "
     "pictures,duplicate images,duplicated photos,duplicated pictures,duplicate shots,near identical "
     "photos,near-identical photos,photos twice,photo duplicates,copies of photos,copies of pictures,copies "
     "of my photos,copies of my pictures,double photos,double pictures,identical photos,same photos,same "
     "photo,same picture,same pictures,pictures that look the same,photos that look the same,photos that "
     "look alike,lookalike photos,similar looking photos,near duplicates,bursts,burst photos,pictures "
     "twice,photos more than once,pictures more than once,near-duplicate photos,look the same,look "
     "alike,looks the same,similar,look similar,looking the same,alike,similar ones,look almost the "
     "same,nearly the same,resemble"},
    {SubjectID::screenshots, "screenshot,screenshots,screen shots,screen shot,screen captures,screen "
                             "grabs,screengrabs,screen capture,"
                             "screencaps"},
    {SubjectID::receipts,
     "receipt,receipts,photos of receipts,pictures of receipts,receipt photos,photographed "
     "receipts,photographed bills,pictures of bills"},
    {SubjectID::memes, "meme,memes,text images,funny pictures,joke pictures,jokes"},
    {SubjectID::blurry,
     "blurry photos,blurry pictures,blurry images,blurry shots,blurry,blurred photos,blurred pictures,out of "
     "focus photos,unsharp photos,blurred,out of focus,blurry ones,unsharp,shaky photos,bad photos,not "
     "sharp,out "
     "of focus pictures,fuzzy photos,fuzzy pictures,shaky pictures"},
    {SubjectID::duplicates,
     "duplicate,duplicates,duplicate files,duplicated files,identical files,same files,double files,copies "
     "of "
     "files,file duplicates,duplicate documents,duplicated,doubles,copies,files twice,file twice,twice,"
     "duplicate copies,redundant files,same file twice,more than once,multiple copies,dupes,redundant copies,"
     "identical,several times,a copy,copy of,copy of something,a copy of something,a duplicate of,dups,dup "
     "files,only copy,last copy,only one copy,just one copy"},
    {SubjectID::largeFiles, "large files,big files,huge files,large file,big file"},
    {SubjectID::oldFiles, "old files,unused files,forgotten files,old file,old stuff,old things"},
    {SubjectID::oldDownloads, "old downloads,forgotten downloads"},
    {SubjectID::logs, "crash dumps,crash dump,crash reports,crash files,core dumps,core dump,core "
                      "files,log,logs,log files,logfiles,log file,logfile"},
    {SubjectID::trash,
     "trash,bin,the bin,rubbish,recycle bin,waste basket,wastebasket,trash can,rubbish bin,trash "
     "bin,recycling bin,trashcan,dustbin,deleted files,wastepaper basket"},
    {SubjectID::deviceBackups, "backups on my phone,phone,iphone backup,iphone backups,ipad backup,ipad "
                               "backups,phone backups,phone backup,device backups,ios "
                               "backups,iphone,ipad,backup of my phone,backups of my phone"},
    {SubjectID::mailAttachments,
     "mail attachments,attachments,mail downloads,email attachments,e-mail attachments,mail attachment,email "
     "attachment"},
    {SubjectID::languagePacks, "unused languages,language packs,translations,language files,language pack"},
    {SubjectID::npm, "npm cache,npm,yarn cache,yarn,node cache,npm caches"},
    {SubjectID::pip, "pip cache,pip,python cache,python packages,pip caches"},
    {SubjectID::gradle, "gradle cache,gradle,gradle caches"},
    {SubjectID::homebrew, "homebrew,homebrew cache,homebrew downloads"},
    {SubjectID::caches,
     "cache,caches,app caches,cache files,cached files,application caches,cached data,app cache,temporary "
     "data,"
     "temporary files,temp files,cache folder,cache folders,tmp files,cache "
     "data,temp data"},
    {SubjectID::developer,
     "dev caches,dev cache,developer caches,developer cache,development caches,package manager caches,"
     "developer data,developer files,developer,dev files,developer tools,build files,build data,build "
     "artifacts,development files,dev stuff,build output,build leftovers"},
    {SubjectID::system, "system,system data,system files,the system,operating system,linux itself,os"},
    {SubjectID::apps,
     "app,apps,applications,programs,application,software,program,installed software,installed "
     "programs,installed apps,packages installed"},
    {SubjectID::media, "media,media files"},
    {SubjectID::downloads,
     "downloads,download folder,downloads folder,downloaded files,download,downloads "
     "directory,downloaded,stuff i "
     "downloaded,things i downloaded,files i downloaded,downloaded stuff,downlods,downloaded things"},
    {SubjectID::desktop, "desktop,desktop folder"},
    {SubjectID::documentsFolder, "documents folder,document folder,documents directory"},
    {SubjectID::picturesFolder, "pictures folder,photos folder,photo folder,picture folder,images folder"},
    {SubjectID::videosFolder, "videos folder,video folder,movies folder"},
    {SubjectID::musicFolder, "music folder"},
    {SubjectID::home, "home,home folder,home directory,user folder"},
    {SubjectID::videos,
     "video,videos,movie,movies,film,films,clip,clips,video files,footage,vids,video "
     "clips,"
     "mp4s,mp4,mp4 files,mkv files,vid,screen recordings,mkvs,video recordings,home movies"},
    {SubjectID::photos,
     "photo,photos,picture,pictures,image,images,pic,pics,photographs,snapshots,shots,photograph,fotos,jpegs,"
     "jpgs,snaps of,photo files,image files,camera pictures,jpg files,jpeg,selfies"},
    {SubjectID::audio, "music,song,songs,audio,audio files,tracks,mp3s,sound files,albums,mp3,mp3 files,"
                       "music files,sounds"},
    {SubjectID::pdfs, "pdf,pdfs,pdf files,pdf documents,pdf file"},
    {SubjectID::archives,
     "archive,archives,zip,zips,zip files,compressed files,zip archives,tarballs,zip file,rar files,zipped "
     "files,zip folders,tarball,tar.gz,tar,gz,rar,7z,tar files,gzip"},
    {SubjectID::installers,
     "installer,installers,installation files,setup files,packages,install files,deb files,debs,appimages,"
     "installer files,setup file,setups"},
    {SubjectID::diskImages, "disk image,disk images,iso,isos,iso files,iso images,iso "
                            "file"},
    {SubjectID::spreadsheets, "spreadsheet,spreadsheets,tables,excel files,excel file,excel documents,calc "
                              "files,excel,excel sheets,csv files,csvs"},
    {SubjectID::presentations, "presentation,presentations,slides,powerpoints,powerpoint,powerpoint "
                               "files,powerpoint file,powerpoint presentations,slideshows,slide shows"},
    {SubjectID::ebooks, "ebook,ebooks,e-books,books,e-book"},
    {SubjectID::textDocuments,
     "text documents,text document,text docs,word (document|documents|file|files|docs|doc),(open office|"
     "openoffice|libre office|libreoffice) (document|documents|text documents|docs),office "
     "(writer|text) documents,writer (document|documents|files),docx files,doc files,odt files,microsoft "
     "word "
     "(document|documents|files),ms word (document|documents|files)"},
    {SubjectID::documents, "document,documents,docs,papers,paperwork,letters,"
                           "essays,doc"},
    {SubjectID::files,
     "file,files,item,items,stuff,thing,things,data,everything,anything,something,ones i have"},
    {SubjectID::leftovers,
     "left of apps,left of programs,left of applications,uninstall leftovers,leftovers,leftover,leftover "
     "folders,leftover stuff,leftover files,leftovers of "
     "apps,leftovers of programs,leftovers of applications,leftovers of removed apps,app "
     "leftovers,flatpak leftovers,snap leftovers,program leftovers,leftovers from apps,leftovers from "
     "programs,left over from apps,left behind,leave behind,leave data,leaves data,leave data behind,leaves "
     "data behind,left data behind,leave stuff behind,leave anything behind,leave "
     "files behind,leaves behind,left stuff behind,left anything behind,left files behind,leftover "
     "data,remains of apps,remains of programs,remnants,residue,orphaned,orphans,uninstalled "
     "apps,uninstalled programs,removed apps,removed programs,deleted apps,deleted programs,apps i "
     "removed,programs i removed,apps i deleted,apps i uninstalled,programs i uninstalled,programs i "
     "deleted,apps i no longer have,programs i no longer have"},
    {SubjectID::startup,
     "(start|starts|load|loads|run|runs|open|opens) with (the|my) "
     "(computer|laptop|pc|system|machine|session),from starting,from loading,from launching,from "
     "opening,from running,starting at login,starting "
     "with,loading at login,load at login,loads at login,starting up,starting automatically,starting by "
     "itself,start slowly,starts slowly,slow to start,boot slowly,boots slowly,takes long to start,takes "
     "ages to "
     "start,start slow,boot slow,runs at boot,run at boot,runs on boot,run on boot,starts at boot,start at "
     "boot,starts on boot,loads at "
     "startup,launches,launch,launching,loads when,load when,autorun,start on their own,starts on its "
     "own,run automatically,runs automatically,opens automatically,run in the background,runs in the "
     "background,at start,on start,boot time,startup,startup items,startup programs,startup "
     "apps,start-up,start up,autostart,login items,starts "
     "automatically,start automatically,starts by itself,start by themselves,start when i log in,starts when "
     "i log in,boot,at login,on login,when i log in,start by itself,at boot,on boot,at startup,on "
     "startup,launches automatically,launch at login,when i turn on,when i start,starts up,start at "
     "login,when i switch on,slow start,starts with,opens by itself,open by themselves,startup "
     "services,services,start when,starts when,start up when,turn the computer on,turn on,switch "
     "on,autostarts,run at startup,runs at startup,start with,launch when,open when i log in,opens when i "
     "log in"},
    {SubjectID::containers,
     "docker,podman,container,containers,docker images,container images,docker containers,"
     "docker volumes,kubernetes,distrobox,toolbox"},
    {SubjectID::flatpak, "flatpak,flatpaks,flatpak runtime stuff,flatpak runtime,flatpak stuff,flatpak "
                         "apps,flathub,flatpak runtimes"},
    {SubjectID::snap, "old snaps,old snap versions,snap revisions,old revisions,old snap "
                      "revisions,snap,snaps,snap packages,snap apps,snapd,snap store"},
    {SubjectID::games,
     "games,installed games,game,steam,steam games,video games,steam library,computer games,lutris,proton"},
};

} // namespace

std::span<const SubjectRow> subjects()
{
    return kSubjects;
}

} // namespace orlen::AskReader::english_words
