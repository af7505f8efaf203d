#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::french_words {

namespace {

constexpr SubjectRow kSubjects[] = {
    {SubjectID::virtualMachines,
     "(machine virtuelle|machines virtuelles),(disque virtuel|disques virtuels),vm,vms,virtualbox"},
    {SubjectID::systemAdvice,
     "anciens noyaux,vieux noyaux,noyaux,cache apt,apt,cache des paquets,journal système,journaux "
     "système,anciens snaps,vieux kernels,kernels,ancien noyau,noyau,journald,journal systemd,logs "
     "système,cache pacman,cache dnf,vieilles versions snap,anciennes versions snap"},
    {SubjectID::leftovers,
     "restes d applications,restes d applications désinstallées,restes de programmes,restes de "
     "logiciels,restes d applis,résidus,résidus d applications,résidus de programmes,applications "
     "désinstallées,applis désinstallées,programmes désinstallés,logiciels désinstallés,applications "
     "supprimées,programmes supprimés,laissé derrière,laissés derrière,laissent derrière,laissé des "
     "fichiers,orphelins,fichiers orphelins,dossiers orphelins,vestiges,traces d applications,résidus de "
     "logiciels,restes de logiciels désinstallés,restes de programmes désinstallés,restes d anciennes "
     "applications,restes d anciens programmes,restes des applications,restes des programmes,restes des "
     "applis,restes des logiciels,applis supprimées,logiciels supprimés,applis que j ai "
     "supprimées,programmes que j ai supprimés,logiciels que j ai désinstallés,applis que j ai "
     "désinstallées,programmes que j ai désinstallés,applications que j ai désinstallées,laissé des "
     "traces,laissent des traces,traces de logiciels,traces de programmes,fichiers résiduels,dossiers "
     "résiduels,résiduels,laissé par,laissés par,laissés par des,dossiers laissés,fichiers laissés"},
    {SubjectID::similarPhotos,
     "photos similaires,images similaires,photos en double,images en double,photos semblables,doublons de "
     "photos,photos identiques,images identiques,photos qui se ressemblent,images qui se "
     "ressemblent,doublons photos,photos doublons,photos ressemblantes,photos dupliquées,photos presque "
     "identiques,photos en doublon,mêmes photos,images semblables,se "
     "ressemblent,ressemblent,similaires,semblables,ressemblants,similaire"},
    {SubjectID::screenshots,
     "capture d écran,captures d écran,captures écran,capture écran,screenshot,screenshots,copies d "
     "écran,copie d écran,captures,copies écran,impressions écran,impression écran,captures d "
     "ecrans,screens,screen,capture"},
    {SubjectID::receipts,
     "ticket de caisse,tickets de caisse,reçu,reçus,photos de tickets,photos de reçus,tickets,photos de "
     "factures,notes de frais,reçus photographiés,factures photographiées,facturettes,tickets de "
     "caisses,photos de ticket,photos de tickets de caisse"},
    {SubjectID::memes, "memes,images drôles,mèmes,images rigolotes,images humoristiques,blagues en "
                       "images,images marrantes,images comiques,mème"},
    {SubjectID::blurry,
     "photos floues,images floues,flou,floue,flous,floues,photos ratées,photo floue,clichés flous,photos pas "
     "nettes,pas nettes,pas nette,images pas nettes,bougées,photos bougées,images ratées,ratées,photos mal "
     "prises,flouté,floutées"},
    {SubjectID::duplicates,
     "doublon,doublons,fichiers en double,en double,dupliqué,dupliqués,fichiers identiques,copies,fichiers "
     "dupliqués,doubles,fichier en double,en doublon,plusieurs fois,en plusieurs exemplaires,copies "
     "identiques,deux fois,fichiers doublons,copies de fichiers,fichier doublon,copie de,copie d,fichiers en "
     "doublon,fichiers identique,même fichier,mêmes fichiers,dupliquée,dupliquées,en trop d exemplaires,deux "
     "exemplaires,en deux exemplaires,duplicatas,duplicata,dédoublés,exemplaires,une "
     "copie,doublond,doublont"},
    {SubjectID::largeFiles,
     "gros fichiers,fichiers volumineux,gros fichier,grands fichiers,fichiers lourds,fichier volumineux,très "
     "gros fichiers,énormes fichiers,fichiers énormes,fichiers gros,fichier lourd,fichier énorme,gros "
     "trucs,fichiers imposants,plus lourds fichiers de tous"},
    {SubjectID::oldFiles,
     "vieux fichiers,anciens fichiers,fichiers anciens,fichiers inutilisés,fichiers oubliés,vieux "
     "trucs,vieilles choses,vieux fichier,ancien fichier,vieilleries,vieux machins,vieux dossiers et "
     "fichiers,fichiers vieux,fichiers obsolètes,vieux documents et fichiers,fichiers jamais ouverts"},
    {SubjectID::oldDownloads,
     "vieux téléchargements,anciens téléchargements,téléchargements oubliés,téléchargements anciens,vieux "
     "fichiers téléchargés,anciens fichiers téléchargés,téléchargements vieux,vieux trucs téléchargés,vieux "
     "téléchargement"},
    {SubjectID::logs, "rapports de plantage,vidages mémoire,journaux,logs,log,fichiers journaux,fichiers de "
                      "log,fichiers log,journal,fichiers logs,journaux système,fichier log,fichier "
                      "journal,fichiers de journal,journaux d erreurs,core dump,core dumps,rapports de "
                      "crash,rapport de plantage,rapports d erreur,fichiers core,vidage mémoire"},
    {SubjectID::trash,
     "corbeille,la corbeille,fichiers supprimés,la poubelle,bac,ma corbeille,corbeilles,fichiers "
     "effacés,corbeil,corbeile,trash,ma poubelle,une poubelle"},
    {SubjectID::deviceBackups,
     "sauvegardes iphone,sauvegarde iphone,sauvegarde d iphone,sauvegardes d iphone,sauvegardes "
     "ipad,iphone,ipad,sauvegardes de téléphone,sauvegarde de téléphone,sauvegardes du téléphone,sauvegardes "
     "de mon iphone,sauvegardes de mon téléphone,sauvegardes d appareils,sauvegardes du tel,sauvegarde du "
     "tel,sauvegardes de mon portable,sauvegardes mobile,sauvegardes du mobile,sauvegardes du "
     "portable,backup iphone,backups iphone,backup du téléphone,backups du téléphone,backup "
     "téléphone,sauvegardes téléphone,sauvegarde téléphone,sauvegarde du téléphone,sauvegarde de mon "
     "téléphone,sauvegarde de mon iphone,sauvegarde de l iphone,sauvegardes de l iphone,sauvegarde "
     "ipad,téléphone,smartphone,natel,sauvegardes ios"},
    {SubjectID::mailAttachments, "pièces jointes,pièce jointe,pièces jointes des mails,pièce jointe de "
                                 "mail,pièces jointes de mails,pièces jointes email,pièces jointes des "
                                 "emails,pièces jointes mail,pj,fichiers joints,fichier joint,pieces jointe"},
    {SubjectID::languagePacks,
     "paquets de langue,packs de langue,fichiers de langue,traductions,langues inutilisées,fichiers de "
     "traduction,packs linguistiques,pack de langue,langues inutiles"},
    {SubjectID::npm, "cache npm,npm,yarn,cache yarn,cache de npm,cache node,cache de yarn"},
    {SubjectID::pip, "cache pip,pip,cache python,cache de pip,cache de python,paquets python"},
    {SubjectID::gradle, "gradle,cache gradle,cache de gradle"},
    {SubjectID::homebrew, "homebrew,cache homebrew"},
    {SubjectID::caches,
     "cache,caches,fichiers temporaires,fichiers de cache,données temporaires,fichiers cache,cache des "
     "applications,données en cache,mémoire cache,cache des applis,fichiers temp,le "
     "cache,caches des applis,caches d applications,cache d application,caches des applications,fichier "
     "cache,fichiers en cache,données cache,temporaires,fichiers tmp,dossier cache,dossiers cache,dossiers "
     "de cache,dossier de cache,fichier "
     "temporaire,cache disque,mes caches,données mises en cache,antémémoire"},
    {SubjectID::developer,
     "données de développement,données développeur,développeur,fichiers de "
     "développement,développement,fichiers de compilation,fichiers de build,fichiers de dev,données de "
     "dev,dev,trucs de dev,développeurs,builds,build,fichiers compilés,artefacts,artefacts de build,restes "
     "de build,dossiers de build,fichiers développeur,code compilé"},
    {SubjectID::system, "système,system,fichiers système,données système,système d exploitation,fichiers du "
                        "système,linux lui même,os,fichier système,le système,données du système"},
    {SubjectID::apps,
     "application,applications,appli,applis,programme,programmes,logiciel,logiciels,apps,app,logiciels "
     "installés,programmes installés,applications installées,applis "
     "installées,soft,softs,apli,aplis,appplications,appli installée,application installée,progs,prog"},
    {SubjectID::media, "médias,fichiers multimédia,multimédia"},
    {SubjectID::downloads,
     "téléchargement,téléchargements,dossier téléchargements,dossier de téléchargements,dossier "
     "téléchargement,dossier des téléchargements,fichiers téléchargés,téléchargé,téléchargés,trucs "
     "téléchargés,downloads,dossier de téléchargement,fichiers que j ai téléchargés,trucs que j ai "
     "téléchargés,choses téléchargées,téléchargées,téléchargée,télécharger,dossier download,dossier "
     "downloads,répertoire de téléchargement,répertoire téléchargements,downloadé,downloadés,dl,fichier "
     "téléchargé"},
    {SubjectID::desktop, "bureau,le bureau,mon bureau,dossier bureau,du bureau,desktop"},
    {SubjectID::documentsFolder, "dossier documents,dossier des documents,de mes documents,dans mes "
                                 "documents,parmi mes documents,répertoire documents,mon dossier documents"},
    {SubjectID::picturesFolder, "dossier images,dossier photos,dossier des photos,dossier des images,dossier "
                                "image,dossier photo,mon dossier images,mon dossier photos,répertoire "
                                "images,répertoire photos,dossier de photos,dossier d images"},
    {SubjectID::videosFolder,
     "dossier vidéos,dossier vidéo,dossier des vidéos,dossier de vidéos,répertoire vidéos,dossier films"},
    {SubjectID::musicFolder,
     "dossier musique,dossier de musique,répertoire musique,dossier musiques,dossier de musiques"},
    {SubjectID::home, "dossier personnel,répertoire personnel,home,mon home,dossier home,dossier "
                      "utilisateur,répertoire home,dossier de l utilisateur,répertoire utilisateur"},
    {SubjectID::videos, "vidéo,vidéos,film,films,fichiers vidéo,clips,clip,enregistrements vidéo,fichiers "
                        "vidéos,enregistrements,mp4,séries,vidéos et films,fichier vidéo,clips "
                        "vidéo,vids,vid,rushs,rushes,enregistrement vidéo,enregistrements d écran,longs "
                        "métrages,séries télé,mkv,mp4s,filmés,séquences vidéo"},
    {SubjectID::photos, "photo,photos,image,images,clichés,photographies,fichiers image,fichiers "
                        "images,selfies,photos de vacances,photos de famille,cliché,photographie,image et "
                        "photo,fotos,fichier image,fichiers photo,fichiers photos,jpeg,jpegs,jpgs,prises de "
                        "vue,photos du téléphone,dessins,selfie,photos perso,illustrations"},
    {SubjectID::audio,
     "musique,musiques,chansons,chanson,audio,fichiers audio,mp3,albums,morceaux,fichiers "
     "son,zik,zique,sons,titres,pistes,pistes audio,fichier audio,fichiers musicaux,fichiers de "
     "musique,fichiers musique,album,mp3s,bandes son,morceau"},
    {SubjectID::pdfs,
     "pdf,pdfs,fichiers pdf,documents pdf,fichier pdf,document pdf,documents en pdf,fichiers en pdf"},
    {SubjectID::archives,
     "archive,archives,zip,zips,fichiers compressés,archives zippées,fichiers zippés,rar,fichiers "
     "archives,archives compressées,tar,tarballs,fichier compressé,dossiers compressés,zippés"},
    {SubjectID::installers,
     "installateur,installateurs,programmes d installation,fichiers d "
     "installation,paquets,installeurs,paquets d installation,installeur,fichier d "
     "installation,setup,setups,fichiers setup,programme d "
     "installation,installers,installer,deb,appimages,paquet d installation,fichiers d install"},
    {SubjectID::diskImages,
     "image disque,images disque,iso,isos,images iso,machines virtuelles,machine virtuelle,disques "
     "virtuels,images de disque,image iso,image de disque,vm,vms,images de cd,images d installation iso"},
    {SubjectID::spreadsheets, "feuilles de calcul,tableurs,tableaux,fichiers excel,tableaux excel,feuille de "
                              "calcul,excel,tableur,fichier excel,tableaux de calcul,csv,fichiers "
                              "calc,feuilles excel,classeurs,tableaux xls"},
    {SubjectID::presentations,
     "présentation,présentations,diapositives,powerpoints,diapos,powerpoint,diaporamas,diaporama,fichiers "
     "powerpoint,présentations powerpoint,ppt,powerpoint présentations,diapositive,exposés"},
    {SubjectID::ebooks,
     "livres,ebooks,livres numériques,e books,livre,ebook,livre numérique,epub,epubs,bouquins,liseuse"},
    {SubjectID::textDocuments,
     "(document|documents|fichier|fichiers) (word|de texte|texte word|openoffice|open office|libreoffice|"
     "writer|docx|odt),documents texte,document texte"},
    {SubjectID::documents,
     "document,documents,papiers,courriers,lettres,docs,doc,papier,textes,courrier,lettre,papiers "
     "administratifs,paperasse,documents administratifs"},
    {SubjectID::files,
     "fichier,fichiers,élément,éléments,chose,choses,truc,trucs,données,tout "
     "ça,machins,fichié,fichiés,machin,bidule,bidules,fihciers,ficher,fichers,files,file,objets,objet,tout "
     "ce qui,tout ce que,n importe quoi,fic,données et fichiers,trucs et machins"},
    {SubjectID::startup,
     "démarre avec,démarrent avec,se lance avec,démarre avec l ordinateur,au démarrage de la session,au "
     "demarrage de la session,ouverture de session,à l ouverture de session,à l ouverture de ma "
     "session,session démarre,de démarrer,se lancer au démarrage,se lance au démarrage,de se lancer,démarre "
     "lentement,lent à démarrer,met longtemps à démarrer,démarrage,au démarrage,démarre "
     "automatiquement,démarrent automatiquement,se lance au démarrage,programmes au démarrage,à l ouverture "
     "de session,éléments de démarrage,lance automatiquement,se lancent automatiquement,se lance tout "
     "seul,démarre tout seul,au lancement,se lancent toutes seules,se lancent tout seuls,démarrage "
     "automatique,démarrent,se lancent au démarrage,allume,ouverture de session,au boot,boot,boote,au "
     "login,login,à la connexion,à ma connexion,quand j allume,quand j allume l ordi,quand j allume le "
     "pc,quand je démarre,quand je démarre l ordi,quand je démarre le pc,quand je me connecte,quand j ouvre "
     "ma session,à l allumage,allumage,se lance,se lancent,se lance seul,se lancent seuls,se lancent tous "
     "seuls,se lancer,se lancer tout seul,s ouvre au démarrage,s ouvrent au démarrage,s ouvre tout seul,s "
     "ouvrent tout seuls,s ouvre automatiquement,s ouvrent automatiquement,lancé au démarrage,lancés au "
     "démarrage,lancées au démarrage,lancement automatique,lancement auto,autostart,démarrage auto,démarre "
     "au boot,démarre,démarrer au démarrage,démarrer automatiquement,démarrer tout seul,démarrent tout "
     "seuls,démarrent toutes seules,démarrent seuls,démarre seul,à chaque démarrage,à l ouverture,à l "
     "ouverture de la session,ouverture de ma session,lancent,logiciels au démarrage,applis au "
     "démarrage,applications au démarrage,services au démarrage,en arrière plan,en tâche de fond,tâche de "
     "fond,met du temps à démarrer,long à démarrer,lent au démarrage,démarrage lent,services,programmes qui "
     "démarrent"},
    {SubjectID::containers,
     "docker,podman,conteneur,conteneurs,images docker,containers,conteneurs docker,conteneurs podman,images "
     "de conteneurs,images docker inutiles,container,volumes docker,image docker,images podman"},
    {SubjectID::flatpak, "flatpak,flatpaks,flathub,applis flatpak,applications flatpak,runtimes flatpak"},
    {SubjectID::snap, "snap,snaps,paquets snap,snapd,applis snap,applications snap,paquet snap"},
    {SubjectID::games, "jeu,jeux,steam,jeux vidéo,jeux steam,jeux installés,jeu vidéo,lutris,jeux "
                       "pc,bibliothèque steam,gaming,jeux d ordinateur"},
};

} // namespace

std::span<const SubjectRow> subjects()
{
    return kSubjects;
}

} // namespace orlen::AskReader::french_words
