#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::german_words {

namespace {

constexpr SubjectRow kSubjects[] = {
    {SubjectID::startup, "(startet|starten|läuft|laufen|lädt|laden) (beim|bei der|bei) "
                         "(anmelden|anmeldung|login|start|systemstart|hochfahren|einschalten|booten)"},
    {SubjectID::virtualMachines, "(virtuelle|virtuellen|virtueller) "
                                 "(maschine|maschinen|platte|platten),vm,vms,virtualbox,virtualbox vms"},
    {SubjectID::trash, "im (müll|abfall|kübel),in der tonne"},
    {SubjectID::systemAdvice,
     "alte kernel,kernel,apt-cache,apt "
     "cache,apt,paketcache,paket-cache,journal,systemprotokolle,systemlogs,alte snaps,alte "
     "kernels,kernels,pakete-cache,paketzwischenspeicher,systemprotokoll,journald,pacman cache,dnf "
     "cache,snap revisionen"},
    {SubjectID::leftovers,
     "reste von programmen,reste von "
     "apps,programmreste,überreste,überbleibsel,app-reste,zurückgelassen,hinterlassen,übrig gelassen,liegen "
     "gelassen,deinstallierte programme,deinstallierten programme,deinstallierte apps,deinstallierter "
     "programme,deinstallierten programmen,gelöschte programme,gelöschter programme,entfernte "
     "programme,entfernter programme,verwaiste,verwaiste ordner,reste deinstallierter programme,reste "
     "gelöschter programme,programme die ich gelöscht habe,reste von deinstallierten programmen,reste von "
     "gelöschten programmen,programme übrig gelassen,programmüberreste,app überreste,apps die ich gelöscht "
     "habe,programme die ich deinstalliert habe,apps die ich deinstalliert habe,programme die ich entfernt "
     "habe,reste alter programme,gelöschte apps,gelöschter "
     "apps,hinterlassenschaften,datenreste,rückstände,übrig geblieben,programmreste von"},
    {SubjectID::similarPhotos,
     "ähnliche fotos,ähnliche bilder,doppelte fotos,doppelte bilder,doppelten fotos,doppelten "
     "bilder,ähnlichen fotos,ähnlichen bilder,fotos doppelt,bilder doppelt,fotoduplikate,ähnliche "
     "aufnahmen,gleiche fotos,gleiche bilder,identische fotos,identische bilder,serienbilder,fast gleiche "
     "fotos,fast gleiche bilder,mehrfache fotos,sehen gleich aus,gleich aus,gleich "
     "aussehen,ähnlich,ähnliche,ähneln,ähnlich sehen,ähnlich aus,sich ähneln,fast identisch"},
    {SubjectID::screenshots, "screenshot,screenshots,bildschirmfoto,bildschirmfotos,bildschirmaufnahmen,"
                             "bildschirmabzüge,bildschirmfotografien,bildschirm-screenshots,bildschirmkopien,"
                             "screenshoots,sreenshots,bildschirmaufnahme,hardcopy"},
    {SubjectID::receipts,
     "kassenbon,kassenbons,quittung,quittungen,belege,beleg,rechnungsfotos,kassenzettel,fotografierte "
     "rechnungen,kassabon,kassabons,rechnungen fotografiert,bons,bon,kassazettel,rechnungsbilder"},
    {SubjectID::memes,
     "meme,memes,lustige bilder,witzbilder,spaßbilder,sprüchebilder,witzige bilder,funny bilder"},
    {SubjectID::blurry,
     "unscharfe fotos,unscharfe bilder,unscharf,unscharfe,verwackelte fotos,verwackelte "
     "bilder,verwackelt,verwackelte,verschwommene bilder,verschwommene fotos,verschwommen,unscharfen "
     "fotos,unscharfen bilder,verschwommene,unscharfe aufnahmen,misslungene fotos,verwackelten "
     "bilder,verwackelten fotos,nicht scharf,verschwommenen,verwackelten,unscharfes,misslungene "
     "bilder,misslungen,schlechte fotos"},
    {SubjectID::duplicates,
     "duplikat,duplikate,doppelte dateien,doppelte,doppelten dateien,doppelt,doppelten,identische "
     "dateien,gleiche dateien,kopien,dubletten,mehrfach,zweimal,doppeltes,dublikate,doubletten,kopie "
     "von,doppelten datein,doppelte datein,doppelte sachen,doppeltem,duplikaten,duplizierte,duplizierte "
     "dateien,duplizierten,doppelt vorhanden,doppelt vorhandene,doppelt gespeichert,doppelt "
     "gespeicherte,mehrfach vorhanden,mehrfach vorhandene,mehrfach gespeichert,gleichen dateien,gleiche "
     "datei,zweifach,duplikat von,kopien von"},
    {SubjectID::largeFiles, "große dateien,große datei,großen dateien,riesige dateien,grosse "
                            "dateien,großdateien,riesendateien,dicke dateien,riesigen dateien,schwere "
                            "dateien,fette dateien,große datein,riesen dateien,große brocken"},
    {SubjectID::oldFiles,
     "alte dateien,alten dateien,alte datei,ungenutzte dateien,unbenutzte dateien,vergessene dateien,alte "
     "sachen,alter kram,altes zeug,alte datein,uralte dateien,alten kram,lange nicht benutzte "
     "dateien,altlasten,vergessenen dateien,ältere dateien"},
    {SubjectID::oldDownloads,
     "alte downloads,alten downloads,vergessene downloads,uralte downloads,alte heruntergeladene "
     "dateien,alte runtergeladene dateien,ältere downloads,alte download"},
    {SubjectID::logs, "absturzberichte,crash "
                      "dumps,absturzprotokolle,absturzdateien,log,logs,logdatei,logdateien,protokolle,"
                      "protokolldateien,protokolldatei,log-dateien,core dump,core "
                      "dumps,coredump,coredumps,speicherauszug,speicherauszüge,absturzbericht,logs "
                      "dateien,log dateien,ereignisprotokolle,systemlog"},
    {SubjectID::trash, "papierkorb,mülleimer,papierkorbs,gelöschte "
                       "dateien,abfalleimer,trash,abfall,abfalleimers,müllkorb,mistkübel,kübel,papirkorb,"
                       "mülltonne,papierkörbe,im papierkorb liegende,recycle bin"},
    {SubjectID::deviceBackups,
     "iphone backup,iphone backups,iphone-backup,iphone-backups,iphone sicherung,ipad "
     "backup,gerätesicherungen,handy backup,handy "
     "backups,handysicherung,iphone,ipad,handysicherungen,handy-backups,handy-backup,handy "
     "sicherung,telefonsicherung,telefon backup,telefon sicherung,handy,smartphone "
     "backup,gerätebackups,natel,iphone sicherungen,ios backup,ios backups,telefonsicherungen"},
    {SubjectID::mailAttachments,
     "mailanhänge,mail anhänge,anhänge,e-mail anhänge,email anhänge,e-mail-anhänge,anhang,mailanhang,e-mail "
     "anhang,emailanhang,emailanhänge,anhänge aus mails,anhänge aus e-mails,anhängen"},
    {SubjectID::languagePacks, "sprachpakete,sprachpaket,sprachdateien,übersetzungen,unbenutzte "
                               "sprachen,ungenutzte sprachen,sprachpakete von,übersetzungsdateien"},
    {SubjectID::npm,
     "npm cache,npm,yarn cache,yarn,npm-cache,npm-zwischenspeicher,node cache,npm zwischenspeicher"},
    {SubjectID::pip, "pip cache,pip,pip-cache,python cache,python "
                     "pakete,pip-zwischenspeicher,python-cache,pip zwischenspeicher"},
    {SubjectID::gradle, "gradle cache,gradle,gradle-cache"},
    {SubjectID::homebrew, "homebrew,homebrew cache"},
    {SubjectID::caches,
     "cache,caches,zwischenspeicher,cache dateien,temporäre dateien,temporären dateien,temp "
     "dateien,temporäre daten,cachedateien,app-cache,zwischengespeicherte "
     "daten,puffer,cacheordner,cachespeicher,cache-dateien,cache-ordner,cache "
     "ordner,temp-dateien,tempdateien,temp,temporäres,tmp dateien,app "
     "cache,programmcache,caches von,zwischengespeicherte "
     "dateien,zwischengespeichertes,temporärdateien,cashe,chache"},
    {SubjectID::developer,
     "entwicklerdaten,entwicklerdateien,entwickler,entwicklungsdaten,build "
     "dateien,entwicklerkram,builddateien,programmierkram,entwicklungsdateien,build-dateien,buildreste,build "
     "reste,entwicklerzeug,entwicklerordner,builds,kompilate,programmierdateien,programmierdaten"},
    {SubjectID::system, "system,systemdateien,systemdaten,betriebssystem,das "
                        "system,betriebssystems,systemdatei,os,linux selbst,systems"},
    {SubjectID::apps, "app,apps,programm,programme,programmen,anwendung,anwendungen,software,installierte "
                      "programme,programms,programmes,anwendungsprogramme,applikation,applikationen,"
                      "anwendungsprogramm,progs,proggis,softwarepakete,programm auf dem"},
    {SubjectID::media, "medien,mediendateien"},
    {SubjectID::downloads,
     "downloads,download,downloadordner,download-ordner,downloads-ordner,heruntergeladen,heruntergeladene "
     "dateien,heruntergeladenen dateien,heruntergeladene,runtergeladen,runtergeladene "
     "sachen,heruntergeladene sachen,runtergeladene dateien,download "
     "ordner,downloadverzeichnis,runtergeladenes,runterglodn,heruntergladen,runter geladen,herunter "
     "geladen,runterladen,heruntergeladenes,gedownloadet,gedownloaded,gedownloadete,downloadete,donwloads,"
     "dowloads,downlods,runtergezogen,runtergeladenen,runtergeladene"},
    {SubjectID::desktop, "desktop,schreibtisch,arbeitsfläche,schreibtischordner,desktop "
                         "ordner,desktopordner,schreibtisch-ordner"},
    {SubjectID::documentsFolder,
     "dokumentenordner,dokumenteordner,dokumente-ordner,ordner dokumente,in meinen dokumenten,meiner "
     "dokumente,dokumente ordner,dokumentenverzeichnis,ordner mit dokumenten"},
    {SubjectID::picturesFolder, "bilderordner,bilder-ordner,fotoordner,ordner bilder,foto-ordner,bilder "
                                "ordner,fotos ordner,ordner mit bildern,bilderverzeichnis,fotosordner"},
    {SubjectID::videosFolder,
     "videoordner,video-ordner,videos-ordner,ordner videos,filmordner,videos ordner,video ordner"},
    {SubjectID::musicFolder, "musikordner,musik-ordner,ordner musik,musik ordner,musikverzeichnis"},
    {SubjectID::home, "home,persönlicher ordner,persönlichen "
                      "ordner,heimordner,heimverzeichnis,home-ordner,home-verzeichnis,benutzerordner,mein "
                      "home,benutzerverzeichnis,persönliches verzeichnis,home ordner,home verzeichnis"},
    {SubjectID::videos, "video,videos,film,filme,filmen,clip,clips,videodatei,videodateien,aufnahmen,"
                        "videoclips,filmdateien,filmaufnahmen,mp4,bildschirmaufzeichnungen,videos und "
                        "filme,videoaufnahmen,filmchen,kinofilme,serien,movies,videoaufzeichnungen,viedos,"
                        "vidos,filmdatei,bildschirmvideos,mp4s,mkvs"},
    {SubjectID::photos, "foto,fotos,bild,bilder,bildern,aufnahme,fotografien,bilddateien,fotodateien,"
                        "schnappschüsse,photos,photo,bilddatei,urlaubsfotos,urlaubsbilder,selfies,"
                        "familienfotos,fotografie,pics,schnappschuss,bildl,fotosammlung,bildersammlung,"
                        "aufgenommene bilder,jpgs,jpegs,kamerabilder,handyfotos,foddos,fotoaufnahmen"},
    {SubjectID::audio, "musik,lieder,lied,songs,song,audio,audiodateien,musikdateien,mp3s,alben,mp3,"
                       "musikstücke,tonaufnahmen,musikstück,titel,tracks,"
                       "lieder und musik,tondateien,soundfiles,sounds,musikalben,muzik,musiksammlung"},
    {SubjectID::pdfs, "pdf,pdfs,pdf-dateien,pdf dateien,pdf-datei,pdf datei"},
    {SubjectID::archives, "archiv,archive,zip,zips,archivdateien,gepackte dateien,zip-archive,zip "
                          "datei,komprimierte dateien,zip-datei,zipdateien,zip-ordner,gezippte "
                          "dateien,gezippte,rar,rar-dateien,tar,tarballs,archivdatei,gepackten "
                          "dateien,komprimierten dateien,tar-archive"},
    {SubjectID::installers,
     "installer,installationsdateien,installationspakete,setup-dateien,pakete,installationsprogramme,setups,"
     "setup dateien,installationsdatei,installationspaket,installationsprogramm,setup "
     "datei,debs,appimages,installern,setup-datei,programminstaller"},
    {SubjectID::diskImages,
     "abbild,abbilder,iso,isos,plattenabbilder,virtuelle festplatten,virtuelle "
     "maschinen,festplattenabbilder,iso-abbilder,datenträgerabbilder,iso-datei,iso "
     "datei,isodateien,iso-images,iso images,disk images,festplattenabbild,plattenabbild,image-dateien,image "
     "dateien,isos und images"},
    {SubjectID::spreadsheets,
     "tabelle,tabellen,tabellenblätter,excel-dateien,excel dateien,exceltabellen,excel,excel-datei,excel "
     "datei,excel-tabellen,excel tabellen,exceldatei,excel-dokumente,kalkulationstabellen,calc "
     "dateien,csvs,exceldateien"},
    {SubjectID::presentations, "präsentation,präsentationen,folien,powerpoints,powerpoint,powerpoint-dateien,"
                               "powerpoint "
                               "dateien,präsis,powerpoint-präsentationen,powerpointdateien,powerpoint-datei,"
                               "vorträge,foliensätze,powerpoint präsentationen"},
    {SubjectID::ebooks, "ebook,ebooks,e-books,bücher,e-book,elektronische bücher,buch,epubs,e-book dateien"},
    {SubjectID::textDocuments,
     "textdokumente,textdokument,textdokumenten,(word|office|openoffice|open "
     "office|libreoffice|writer|docx|odt) "
     "(dokument|dokumente|dokumenten|datei|dateien),worddokumente,worddokument,worddateien,word-dokumente,"
     "word-dokument,word-dateien,word-datei,writer-dokumente,openoffice-dokumente,libreoffice-dokumente"},
    {SubjectID::documents,
     "dokument,dokumente,dokumenten,unterlagen,papiere,schriftstücke,briefe,schriftstück,schreiben,unterlage,"
     "briefen,papierkram,officedokumente,office dokumente,docs"},
    {SubjectID::files,
     "datei,dateien,daten,ding,dinge,dingen,sache,sachen,elemente,objekte,alles,irgendetwas,zeugs,einträge,"
     "datein,dateein,zeug da,brocken,krams,element,objekt,objekten,elementen,fiels,etwas großes,irgendetwas "
     "großes,daten und dateien,dateiein,krimskrams,filez,files,file"},
    {SubjectID::startup,
     "am starten hindern,vom starten abhalten,nicht mehr starten,nicht mehr automatisch starten,langsam "
     "startet,startet langsam,langsamer start,startet mein rechner langsam,läuft beim start,startet "
     "beim,beim start mit,läuft mit,autostart,autostartprogramme,startprogramme,startet automatisch,starten "
     "automatisch,beim anmelden,beim starten,beim start,beim hochfahren,startobjekte,automatisch "
     "gestartet,automatisch startet,automatisch starten,von selbst,beim einschalten,von "
     "alleine,mitgestartet,autostart-programme,beim booten,systemstart,beim systemstart,bei der "
     "anmeldung,hochfahren,startet mit,starten,startet,gestartet,rechner starte,computer "
     "starte,einschalte,hochfahre,anmelde,beim einloggen,einloggen,einlogge,login,beim login,mit "
     "hochfährt,mit hoch,startet von allein,startet von alleine,startet von selbst,öffnet sich,öffnen "
     "sich,automatisch geöffnet,geht automatisch auf,gehen automatisch auf,gehen von selbst auf,startet beim "
     "hochfahren,beim aufdrehen,aufdrehe,autostarts,automatischer start,automatische start,automatischen "
     "start,autostart einträge,autostarteinträge,hochfährt,bootet,booten,langsam hochfährt,fährt langsam "
     "hoch,lange zum starten,lange zum hochfahren,dauert das starten,hintergrunddienste,im hintergrund,beim "
     "rechnerstart,rechnerstart,beim pc start,pc start,mitstarten,startet alles,automatisch "
     "mit,autostartet,anschalte,anmache,einschalten"},
    {SubjectID::containers, "docker,podman,container,containern,docker "
                            "images,containerabbilder,docker-images,docker container,docker-container,podman "
                            "container,container-images,container images,dockerimages,dockercontainer"},
    {SubjectID::flatpak, "flatpak,flatpaks,flathub,flatpak-apps,flatpak apps,flatpak "
                         "programme,flatpak-programme,flatpak laufzeiten,flatpak runtimes"},
    {SubjectID::snap,
     "snap,snaps,snap-pakete,snap pakete,snapd,snap apps,snap-apps,snappakete,snap programme,snap-programme"},
    {SubjectID::games, "spiel,spiele,spielen,steam,steam-spiele,games,videospiele,computerspiele,steam "
                       "spiele,spielen auf,spiele von steam,lutris,pc-spiele,pc "
                       "spiele,computerspielen,zocken,videospielen,steamspiele,gaming,game"},
};

} // namespace

std::span<const SubjectRow> subjects()
{
    return kSubjects;
}

} // namespace orlen::AskReader::german_words
