#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::italian_words {

namespace {

constexpr SubjectRow kSubjects[] = {
    {SubjectID::virtualMachines,
     "(macchina virtuale|macchine virtuali),(disco virtuale|dischi virtuali),vm,vms,virtualbox"},
    {SubjectID::trash, "nella spazzatura,nel bidone,nell immondizia"},
    {SubjectID::systemAdvice,
     "vecchi kernel,kernel vecchi,kernel,cache di apt,cache apt,apt,cache dei pacchetti,registri di "
     "sistema,log di sistema,vecchi snap,kernel vecchio,vecchio kernel,journal,journald,log del "
     "sistema,cache di pacman,cache di dnf,snap vecchi,vecchie versioni snap,vecchie versioni di snap"},
    {SubjectID::leftovers,
     "resti di applicazioni,resti di programmi,resti di app,resti,residui,residui di programmi,residui di "
     "app,app disinstallate,programmi disinstallati,applicazioni disinstallate,app rimosse,programmi "
     "rimossi,programmi cancellati,applicazioni rimosse,lasciato indietro,lasciati indietro,lasciato "
     "file,orfani,file orfani,cartelle orfane,resti di app disinstallate,resti di programmi "
     "disinstallati,resti di applicazioni disinstallate,resti delle app,resti dei programmi,resti delle "
     "applicazioni,resti di programmi cancellati,residui delle app,residui dei programmi,residui di "
     "applicazioni,residui di app disinstallate,residui di programmi disinstallati,residui di "
     "disinstallazione,residui di disinstallazioni,avanzi,avanzi di programmi,avanzi di app,tracce di "
     "programmi,tracce di app,strascichi,app cancellate,app eliminate,app che ho cancellato,app che ho "
     "disinstallato,app che ho rimosso,app che non ho più,programmi che ho cancellato,programmi che ho "
     "disinstallato,programmi che ho rimosso,programmi che non ho più,programmi eliminati,applicazioni "
     "cancellate,applicazioni eliminate,applicazioni che ho disinstallato,file residui,cartelle "
     "residue,lasciati dai programmi,lasciati dalle app,lasciato dai programmi,lasciato dalle app,lasciano "
     "dietro,lasciati da app,lasciati da programmi,rimasugli,rimasuglio"},
    {SubjectID::similarPhotos,
     "foto simili,immagini simili,foto doppie,immagini doppie,foto duplicate,immagini duplicate,foto "
     "uguali,immagini uguali,foto identiche,foto quasi uguali,doppioni di foto,foto ripetute,foto che si "
     "somigliano,foto doppioni,duplicati di foto,foto quasi identiche,si somigliano,somigliano,simili,si "
     "assomigliano,assomigliano,sembrano uguali"},
    {SubjectID::screenshots,
     "schermata,schermate,screenshot,screenshots,istantanee schermo,catture schermo,catture dello "
     "schermo,cattura schermo,istantanee dello schermo,schermata salvata,screen,screenshoot,screenshots "
     "vecchi,catture schermate,cattura dello schermo,cattura di schermo,catture di schermo,screen "
     "shot,screen shots,fermo immagine dello schermo,stamp schermo,istantanea dello schermo"},
    {SubjectID::receipts,
     "scontrino,scontrini,ricevuta,ricevute,foto di scontrini,foto di ricevute,foto di ricevuta,fatture "
     "fotografate,scontrini fotografati,ricevute fotografate,foto di fatture,foto dello scontrino"},
    {SubjectID::memes,
     "meme,memes,immagini divertenti,foto divertenti,immagini buffe,foto buffe,immagini spiritose,memini"},
    {SubjectID::blurry,
     "foto sfocate,immagini sfocate,sfocato,sfocata,sfocati,sfocate,foto mosse,mosse,foto "
     "sfuocate,sfuocate,foto venute male,foto sfuocata,foto sfocata,immagine sfocata,foto "
     "mossa,mosso,sfuocati,sfuocato,foto brutte,foto riuscite male,riuscite male,fuori fuoco,foto fuori "
     "fuoco,immagini sfuocate,immagini mosse,non nitide,poco nitide,foto non a fuoco"},
    {SubjectID::duplicates,
     "duplicato,duplicati,file duplicati,doppioni,doppione,copie,file doppi,file identici,file "
     "uguali,doppi,duplicate,file ripetuti,due volte,ripetuti,più volte,copie identiche,copie "
     "uguali,doppio,doppia,doppie,file doppio,file doppioni,documenti doppi,documenti "
     "duplicati,duplicata,cose doppie,roba doppia,copie di file,copie doppie,copia di,copie di,copia "
     "esatta,copie esatte,in doppia copia,doppia copia,due copie,più copie,più di una "
     "volta,ripetute,ripetuto,ripetuta,cloni,clonati,stessi file,lo stesso file,stesso file,file "
     "clonati,duplicazioni,dupli,file uguale,stessa cosa due volte"},
    {SubjectID::largeFiles, "file grandi,file grossi,file grande,grandi file,file pesanti,file enormi,grossi "
                            "file,file pesante,file grosso,file enorme,file giganti,file molto grandi,file "
                            "grossissimi,file voluminosi,file ingombranti,file grandissimi,pesi massimi"},
    {SubjectID::oldFiles,
     "file vecchi,vecchi file,file dimenticati,file vecchio,vecchie cose,roba vecchia,cose vecchie,file "
     "antichi,file obsoleti,file inutilizzati,file non usati,file abbandonati,vecchiume,robe vecchie,file "
     "superati,vecchio file,vecchi documenti e file,file datati"},
    {SubjectID::oldDownloads,
     "vecchi download,download vecchi,vecchi scaricamenti,download dimenticati,download non usati,download "
     "abbandonati,file scaricati vecchi,vecchi file scaricati,vecchio download,download vecchio,download "
     "datati"},
    {SubjectID::logs,
     "log,logs,file di log,registri,file log,registri di sistema,registro,file di registro,registri "
     "errori,registri degli errori,rapporti di crash,rapporto di crash,report di crash,segnalazioni di "
     "crash,core dump,core dumps,dump,dump di memoria,log degli errori,log di errore,crash report,file core"},
    {SubjectID::trash, "cestino,il cestino,file cancellati,file eliminati,cestini,nel cestino "
                       "sono,pattumiera,secchio,bidone,spazzatura del computer,file buttati,trash,cestinno"},
    {SubjectID::deviceBackups,
     "backup iphone,backup dell iphone,backup di iphone,backup ipad,iphone,ipad,backup del telefono,backup "
     "telefono,backup del cellulare,backup dei dispositivi,backup del mio telefono,backup del mio "
     "iphone,backup del mio cellulare,backup cellulare,backup di telefono,backup dello smartphone,backup "
     "smartphone,copie del telefono,copia del telefono,copie dell iphone,copia dell iphone,copie di "
     "sicurezza del telefono,copia di sicurezza del telefono,copie di backup del telefono,salvataggi del "
     "telefono,telefono,telefonino,cellulare,smartphone,natel,backup ios,backup dell ipad,backup di ipad"},
    {SubjectID::mailAttachments,
     "allegati,allegati di posta,allegato,allegati mail,allegati email,allegati delle mail,allegati della "
     "posta,allegati di email,allegati di mail,allegati alle mail,allegati alle email,allegato mail,allegati "
     "dei messaggi,file allegati,allegati delle email"},
    {SubjectID::languagePacks,
     "pacchetti lingua,pacchetti di lingua,traduzioni,lingue inutilizzate,lingue non usate,lingue che non "
     "uso,file di lingua,file delle lingue,file di traduzione,pacchetto lingua"},
    {SubjectID::npm, "cache di npm,npm,yarn,cache npm,cache di yarn,cache di node,cache node"},
    {SubjectID::pip, "cache di pip,pip,cache pip,cache di python,cache python,pacchetti python"},
    {SubjectID::gradle, "gradle,cache di gradle,cache gradle"},
    {SubjectID::homebrew, "homebrew"},
    {SubjectID::caches,
     "cache,file temporanei,dati temporanei,file di cache,memoria cache,cache delle "
     "app,dati in cache,temporanei,cache delle applicazioni,cache dei programmi,cache app,cache delle mie "
     "app,cache di applicazioni,cache di app,cache di programmi,file in cache,file cache,file "
     "temporaneo,file temp,file tmp,dati di cache,dati cache,cartella cache,cartella di cache,cartelle "
     "cache,cartelle di cache,temporaneo,temporanea,chache,cahce,dati temporaneamente salvati"},
    {SubjectID::developer,
     "dati di sviluppo,sviluppatore,dati sviluppatore,file di sviluppo,sviluppo,file di compilazione,dati "
     "dello sviluppatore,dati da sviluppatore,file da sviluppatore,file dello sviluppatore,build,file di "
     "build,cartelle di build,artefatti,artefatti di build,compilazioni,file compilati,programmazione,dati "
     "di programmazione,file di programmazione,sviluppatori,strumenti di sviluppo,roba di sviluppo,dev"},
    {SubjectID::system, "sistema,file di sistema,sistema operativo,dati di sistema,il sistema,so linux,linux "
                        "stesso,file del sistema,dati del sistema,os"},
    {SubjectID::apps,
     "app,applicazione,applicazioni,programma,programmi,software,apps,programmi installati,applicazioni "
     "installate,app installate,programma installato,software installato,software "
     "installati,appplicazioni,aplicazioni,programmini,applicativi,applicativo"},
    {SubjectID::media, "multimedia,file multimediali,contenuti multimediali"},
    {SubjectID::downloads,
     "download,downloads,scaricati,cartella download,cartella scaricati,cartella dei download,file "
     "scaricati,scaricato,cartella downloads,scaricate,roba scaricata,cose scaricate,scaricamenti,file che "
     "ho scaricato,cose che ho scaricato,roba che ho scaricato,ciò che ho scaricato,quello che ho "
     "scaricato,scaricata,scarico,scaricare,scarica,cartella scaricamenti,cartella dei file "
     "scaricati,cartella di download,cartella dei "
     "downloads,downlod,dowload,donwload,donwloads,dowloads,scaricatti,scaricato da internet,scaricati da "
     "internet,miei download"},
    {SubjectID::desktop, "desktop,scrivania,cartella desktop,cartella scrivania,mio desktop"},
    {SubjectID::documentsFolder,
     "cartella documenti,cartella dei documenti,dei miei documenti,nei miei documenti,cartella documento,mia "
     "cartella documenti,directory documenti,la cartella documenti"},
    {SubjectID::picturesFolder,
     "cartella immagini,cartella foto,cartella delle foto,cartella delle immagini,mia cartella immagini,mia "
     "cartella foto,cartella di foto,cartella di immagini,directory immagini,cartella fotografie"},
    {SubjectID::videosFolder, "cartella video,cartella dei video,mia cartella video,cartella di "
                              "video,cartella film,cartella filmati,cartella dei film,directory video"},
    {SubjectID::musicFolder, "cartella musica,cartella della musica,mia cartella musica,cartella di "
                             "musica,directory musica,cartella della mia musica"},
    {SubjectID::home, "cartella personale,home,cartella home,cartella utente,mia home,mia cartella "
                      "personale,directory home,cartella dell utente,mia cartella home"},
    {SubjectID::videos,
     "video,filmati,filmato,film,clip,file video,registrazioni,videoclip,filmini,mp4,serie "
     "tv,filmino,registrazioni dello schermo,pellicole,pellicola,lungometraggi,video e film,clip "
     "video,mp4s,mkv,riprese,ripresa,serie,file di video,telefilm,filmatini"},
    {SubjectID::photos, "foto,fotografie,fotografia,immagini,immagine,file immagine,scatti,selfie,foto delle "
                        "vacanze,foto di famiglia,foto e immagini,scatto,file di immagine,file di foto,file "
                        "foto,jpg,jpeg,ritratti,ritratto,foto del telefono,foto del cellulare,foto "
                        "digitali,disegni,photo,fotina,fotine,foto mie,immaggini,imagini,fotto"},
    {SubjectID::audio, "musica,canzone,canzoni,audio,file audio,mp3,brani,brano,album,file "
                       "musicali,musiche,pezzi,pezzo musicale,pezzi musicali,tracce,traccia "
                       "audio,tracce audio,file musicale,suoni,suono,file sonori,dischi "
                       "musicali,registrazioni audio,canzoncine,cd musicali,file di musica"},
    {SubjectID::pdfs, "pdf,file pdf,documenti pdf,pdfs,documento pdf,documenti in pdf,file in pdf"},
    {SubjectID::archives,
     "archivio,archivi,zip,file compressi,archivi compressi,file zippati,file compresso,zippati,cartelle "
     "zippate,cartelle compresse,rar,tar,tarball,zip file,compressi"},
    {SubjectID::installers,
     "installatore,installatori,programmi di installazione,file di installazione,pacchetti,pacchetti di "
     "installazione,file d installazione,installer,setup,file setup,programma di installazione,programma d "
     "installazione,programmi d installazione,deb,appimage,pacchetto di installazione,eseguibili di "
     "installazione,file di setup"},
    {SubjectID::diskImages,
     "immagine disco,immagini disco,iso,immagini iso,macchine virtuali,macchina virtuale,dischi "
     "virtuali,immagini di disco,immagine iso,immagini di dischi,immagini cd,iso scaricate,disco "
     "virtuale,vm,immagini dei dischi,file immagine disco"},
    {SubjectID::spreadsheets,
     "foglio di calcolo,fogli di calcolo,tabelle,file excel,excel,fogli excel,file di excel,foglio "
     "excel,fogli di excel,foglio di excel,csv,foglio elettronico,fogli elettronici,tabella,tabelle "
     "excel,documenti excel,documenti di excel,file calc"},
    {SubjectID::presentations,
     "presentazione,presentazioni,diapositive,powerpoint,slide,file powerpoint,file di "
     "powerpoint,presentazioni powerpoint,ppt,slides,diapositiva"},
    {SubjectID::ebooks,
     "libri,ebook,libri elettronici,e book,libro,libro elettronico,libri digitali,epub,e-book,romanzi"},
    {SubjectID::textDocuments,
     "(documento|documenti|file) (word|di word|openoffice|open office|di openoffice|libreoffice|di "
     "libreoffice|writer|di writer|docx|odt),documenti di testo,documento di testo"},
    {SubjectID::documents, "documento,documenti,carte,lettere,docs,doc,testo,testi,word,lettera,scritti,"
                           "scartoffie,appunti,tesine,relazioni,pratiche,carta"},
    {SubjectID::files, "file,elemento,elementi,cose,dati,files,oggetti,documenti e file,oggetto,roba "
                       "mia,tutta la roba,qualcosa di grande,dato,filee,flie,fie,fiel,file e cartelle,dati e "
                       "file,cosette,cose mie,ogni cosa,tutto quello che,tutto ciò che,quello che"},
    {SubjectID::startup,
     "all avvio,si avvii,parta all avvio,di avviarsi,avviarsi,partire all avvio,all accensione,al "
     "login,parte lentamente,si avvia lentamente,lento ad avviarsi,avvio lento,avvio,all avvio,all "
     "accensione,si avvia automaticamente,si avviano automaticamente,avvio automatico,programmi all avvio,al "
     "login,all accesso,parte da solo,partono da soli,partono all avvio,si avviano,si avvia,si aprono da "
     "soli,partono da sole,accendo,esecuzione automatica,si avvia da solo,si avviano da soli,parte all "
     "avvio,partono automaticamente,elementi di avvio,si apra,si apra da solo,si apra all avvio,parta da "
     "solo,parta da sola,parta automaticamente,parta al login,parta quando accendo,si avvii da solo,si avvii "
     "da sola,si avvii automaticamente,si avvii all avvio,si lanci,aprirsi,aprirsi da solo,aprirsi all "
     "avvio,di aprirsi,avviarsi da solo,avviarsi all avvio,avviarsi automaticamente,di partire,partire da "
     "solo,partire automaticamente,partire in automatico,partire al login,all apertura della sessione,all "
     "inizio della sessione,all accesso al sistema,quando accendo,quando accendo il pc,quando accendo il "
     "computer,quando avvio,quando avvio il pc,quando avvio il computer,quando si avvia,quando si "
     "accende,quando entro,quando accedo,accensione,alla partenza,ad ogni avvio,a ogni avvio,in "
     "avvio,login,al boot,boot,autostart,avviati,avviate,avviano,avvia,avviano da soli,avvia da "
     "solo,partono,partono al login,partono all accensione,partono in automatico,parte in automatico,parte "
     "automaticamente,parte al login,parte all accensione,parte da sola,parte con,partono con,si avvia "
     "con,si avviano con,si avvia in automatico,si avviano in automatico,si avviano da sole,si avvia da "
     "sola,si avvia all avvio,si avviano all avvio,si avvia al login,si avviano al login,si apre,si "
     "aprono,si apre da solo,si apre da sola,si aprono da sole,si apre all avvio,si aprono all avvio,si apre "
     "automaticamente,si aprono automaticamente,si carica,si caricano,si carica all avvio,si caricano all "
     "avvio,si lancia,si lanciano,vengono avviati,viene avviato,programmi di avvio,app di avvio,app all "
     "avvio,applicazioni all avvio,programmi in avvio,voci di avvio,servizi all avvio,servizi,in "
     "background,in sottofondo,ci mette tanto ad avviarsi,ci mette molto ad avviarsi,lento all avvio,lento a "
     "partire,lento ad accendersi,partenza lenta,parte lento,avvio lentissimo,cosa parte,che parte all "
     "avvio,parte quando"},
    {SubjectID::containers, "docker,podman,container,contenitori,contenitore,immagini docker,container "
                            "docker,container podman,immagini di container,immagini container,volumi "
                            "docker,immagini podman,contenitori docker,distrobox"},
    {SubjectID::flatpak,
     "flatpak,flatpaks,flathub,app flatpak,applicazioni flatpak,programmi flatpak,pacchetti flatpak"},
    {SubjectID::snap,
     "snap,snaps,pacchetti snap,snapd,app snap,applicazioni snap,pacchetto snap,programmi snap"},
    {SubjectID::games,
     "gioco,giochi,steam,videogiochi,giochi di steam,giochi steam,videogioco,giochi "
     "installati,giochini,lutris,giochi per pc,giochi del pc,libreria di steam,gaming,game,games"},
};

} // namespace

std::span<const SubjectRow> subjects()
{
    return kSubjects;
}

} // namespace orlen::AskReader::italian_words
