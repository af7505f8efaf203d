#include "insight/reader/Language.h"

namespace orlen::AskReader {

namespace french_words {

constexpr WordRow kWords[] = {
    {Sense::ruleOut, "exclure un dossier,exclure un fichier,comment exclure,exclure du scan,exclure de l "
                     "analyse,exclusions,ajouter une exception,liste blanche,ne plus proposer,ne plus "
                     "suggérer,ne jamais analyser"},
    {Sense::installed, "installé,installés,installée,installées,est installé,sont installées,sont installés"},
    {Sense::self,
     "que peux tu faire,que sais tu faire,tu peux faire quoi,que puis je te demander,qui es tu,tu es "
     "qui,aide,à l aide,aide moi,bonjour,salut,bonsoir,coucou,merci,comment ça marche,c est quoi orlen,que "
     "fait orlen,qu est ce que orlen,comment fonctionne orlen,à quoi sert orlen,qu est ce que tu peux "
     "faire,que peux tu me dire,tu sais faire quoi,à quoi sert ce programme,comment utiliser orlen,comment "
     "peux tu m aider,que peux tu faire pour moi"},
    {Sense::advise,
     "conseilles,conseiller,conseil,conseils,recommandes,recommander,recommandation,recommandations,suggères,"
     "suggestion,suggestions,suggérer,commencer,que faire,le mieux,en priorité,vaut la "
     "peine,proposes,conseillez,recommandez,quoi faire,que dois je faire,je fais quoi,je dois faire quoi,que "
     "puis je faire,que faire maintenant,astuces,je devrais faire"},
    {Sense::trust,
     "confiance,fiable,orlen est il sûr,sérieux,en danger,menacés,en sécurité avec,logiciel libre"},
    {Sense::beyond, "virus,malveillant,logiciel malveillant,plus "
                    "rapide,accélérer,accélère,lent,lente,lenteur,ralentit,rame,performance,performances,"
                    "défragmenter,mémoire vive,ram,processeur,cpu,batterie,pilotes,pilote,pare "
                    "feu,antivirus,température,carte graphique"},
    {Sense::happens, "où finissent,où atterrissent,où passent,vont où,pas définitivement,supprimes pas "
                     "définitivement,se passe,passe t il,arrive t il,que se passe t il,définitivement,pour "
                     "toujours,définitif,irréversible,arrive,se passera,se passerait,où vont,pour de "
                     "bon,passe,casser,abîmer,casse,bugger,nuire,planter,tout seul,toute "
                     "seule,automatiquement,sans demander,sans me demander,sans prévenir"},
    {Sense::only, "seulement,uniquement,juste,que dans,rien que,exclusivement"},
    {Sense::also, "et,aussi,ainsi que,qu en est il de,qu en est il des,et pour,et les,et le,et la,&,et qu en "
                  "est il de,qu en est il du,et concernant,et au fait,de même,ou"},
    {Sense::backward,
     "il,elle,ils,elles,celui ci,celle ci,ceux ci,celles ci,celui là,celle là,ceux là,celles "
     "là,ceux,celui,celle,celles,ça,cela,le supprimer,les supprimer,la supprimer,en,ceci,lui"},
    {Sense::filler,
     "petit fils,petite fille,mon petit fils,dites moi,pourriez vous me dire,pouvez vous me dire,j aimerais "
     "savoir,je voudrais savoir,peux tu me,moi s il te "
     "plaît,le,la,les,l,un,une,du,de,d,à,a,au,aux,mon,ma,mes,notre,nos,ton,ta,tes,votre,vos,son,sa,ses,leur,"
     "leurs,"
     "je,j,me,m,moi,nous,on,tu,te,t,toi,vous,se,s,est,sont,était,étaient,suis,es,sera,serait,seront,être,été,"
     "ai,as,avons,avez,ont,avais,avait,avoir,eu,y,il y a,y en "
     "a,pour,avec,par,sur,ce,cet,cette,ces,c,ci,là,donc,alors,si,s il te plaît,s il vous plaît,svp,stp,s "
     "il,plaît,plait,actuellement,maintenant,en ce moment,aujourd "
     "hui,aujourd,hui,vraiment,exactement,environ,à peu "
     "près,montre,montrer,dis,dire,dites,donne,donner,liste,lister,affiche,afficher,trouve,trouver,cherche,"
     "chercher,savoir,veux,voudrais,aimerais,souhaite,peux tu me dire,peux tu me montrer,peux tu,pourrais "
     "tu,pouvez "
     "vous,tout,toute,toutes,tous,très,bien,encore,déjà,toujours,même,nommé,appelé,appelée,orlen,quand "
     "même,genre,sorte,sortes,types,type,ok,euh,hein,faut,va,vas,vais,aller,mettre,mis,beaucoup,peu,quelques,"
     "certains,certaines,autour,traîne,traînent,trouvent,stocké,stockés,stockées,entier,entière,propre,"
     "propres,comment,qui,qu,dont,n,environ combien,vite,facilement,rapidement,simplement,juste savoir,dis "
     "moi,montre moi,liste "
     "moi,explique,expliquer,besoin,puisse,soit,ensemble,personnel,personnels,différents,récupéré "
     "là,chaque,détails,information,infos,pas "
     "mal,or,car,mais,non,oui,chez,vers,ayant,soient,présent,présents,présentes,contient,contiennent,"
     "figurent,voir,vois,sans doute,histoire de,mettez,reste il,total de,sous linux,est ce,est ce que,trop,c "
     "est,des,quelqu un,quelque "
     "part,presque,assez,aurai,aurais,aura,ailleurs,souvent,parfois,tant,semble,voici,aimerai,moi même,peut "
     "être,afin,pendant,parce,comme,autant,vu que,dedans,gens,dit,crois,pense,elles,ils sont,ça fait,jamais "
     "vu,mettent,ranger,lieu,madame,monsieur,mon fils,puisque,plutôt,sous,encore une "
     "fois,ayez,aie,aies,simple,rapide,quoi que,presque tout,serait "
     "il,actuel,présente,parmi,contre,via,durant,selon,soudain,bizarre,enfants,aucune idée,à "
     "propos,concernant,en fait,quasi,date,datent,datant,datés,tu as trouvé,as trouvé,que tu,aura t il,en "
     "supprimant ça,voudrait,d ailleurs,franchement,au juste,zut,mince,punaise,cette nuit,pendant la "
     "nuit,font,listées,listés,affichées"},
    {Sense::negation, "ne,pas,jamais,plus jamais,aucun,aucune,rien,n ai pas,n est pas,ne pas"},
    {Sense::except,
     "qui n est pas une,qui n est pas un,qui ne sont pas des,qui ne soit pas une,qui ne soit pas un,sauf,à "
     "part,hormis,excepté,à l exception de,à l exception des,à l exception du,en dehors de,en dehors "
     "des,en dehors du,mis à part,hors,autre que,autres que,autre chose que,sans,sans compter,mais pas,et "
     "pas,exclure,sans les,sans le,sans la,à l exclusion de,à l exclusion des,pas dans,en excluant,sans "
     "toucher à,sans toucher aux,sans toucher,sans supprimer,sans effacer,sans perdre,mais sans,mais "
     "laisse,laisse de côté,ni,à part les,sauf les,sauf le,sauf la,sauf dans,et sans,au lieu de"},
    {Sense::lasts, "tiendra,tient,tenir,suffit,suffira,suffire,suffisant,dure,durera,durer,va tenir,assez de "
                   "place,assez d espace,aurai je,aura t on,y aura t il,aurons nous"},
    {Sense::speed, "à quelle vitesse,vitesse,à quel rythme,rythme,par jour,par semaine,par mois,chaque "
                   "jour,chaque semaine,chaque mois"},
    {Sense::what, "quoi,que,qu est ce que,qu est ce que c est que,qu est ce "
                  "qui,quel,quelle,quels,quelles,lequel,laquelle,lesquels,lesquelles,où,où est,où sont,c est "
                  "quoi,qu y a t il,est ce qu il y a,y a t il,il y a des,ai je,est ce que j ai,quels "
                  "sont,quelles sont,quel est,quelle est,montre moi les,montre les,as tu trouvé,qu est ce,de "
                  "quoi,à quoi,quoi dans,kel,kels,il y aura,que virer"},
    {Sense::howBig,
     "combien de place ils prennent,combien de place elles prennent,ils prennent combien,elles prennent "
     "combien,quelle taille,quelle est la taille,taille,taille de,la taille,combien pèse,combien "
     "pèsent,combien de "
     "place prend,combien de place prennent,combien d espace prend,combien d espace prennent,combien de "
     "place occupe,combien de place occupent,combien d espace occupe,combien d espace occupent,combien "
     "prend,combien prennent,pèse,pèsent,poids,combien de go,combien occupe,combien occupent,tailles,volume "
     "de,place prend,place prennent,combien de place prend il,combien de giga,poids de,combien de place "
     "font,combien de gigas,quelle place prennent,quelle place prend,quelle place occupe,quelle place "
     "occupent,quel espace occupent,quel espace occupe,combien fait,combien font"},
    {Sense::howMany, "nombre de,combien de fois,combien de fichiers,nombre,combien y a t il,combien ai "
                     "je,combien j ai,j ai combien,quel nombre,combien en"},
    {Sense::can, "puis je,peux,peut,peut on,pourrais,pouvons,dois,doit,devrais,doit on,faut il,est il "
                 "possible de,est ce que je peux,je peux,ai je le droit,peuvent,pourrait,on "
                 "peut,puis,devrait,sans risque de,pouvoir,dois je,il faut"},
    {Sense::makeRoom,
     "libérer,libère,libéré,libérés,gagner,gagne,faire de la place,faire place,faire du vide,récupérer de la "
     "place,récupérer de l "
     "espace,économiser,dégager,libérerait,libérerais,gagnerais,gagnerait,désencombrer,économise,libération,"
     "faire un peu de place,libérerai,gagnerai,avoir plus de place,manque de place pour,rendre de la "
     "place,besoin de place,besoin d espace,libérerons,récupérerais,de la place,j ai besoin de,il me faut,me "
     "faut,j ai besoin d,alléger,moins plein,soulager"},
    {Sense::make, "fais moi,trouve moi,donne moi,fais,faire,fait"},
    {Sense::unknown, "mots de passe,mot de passe"},
    {Sense::filler, "dans la répartition,de la répartition"},
    {Sense::untouched,
     "tu touches,touches tu,touches-tu,vous touchez,touchez-vous,jamais "
     "touché,protégé,protégés,protégée,protégées,intouchable,intouchables,touche jamais,touches "
     "jamais,supprime jamais,supprimes jamais,ne touche pas,protège,intact,laisse tranquille,efface "
     "jamais,jamais toucher,jamais supprimé,jamais supprimés,jamais supprimer,jamais effacés,jamais "
     "effacé,déplace jamais,jamais touchés,jamais déplacés,touchera jamais,supprimera jamais,touche pas"},
    {Sense::cleanUp, "nettoyage,nettoyer,nettoie,nettoyé,ménage,nettoyés,faire le ménage,faire du "
                     "ménage,nettoyée,fait le ménage,tri,faire le tri,du tri"},
    {Sense::uninstall, "désinstaller,désinstalle,désinstallation,désinstallé"},
    {Sense::remove,
     "supprimer,supprime,supprimé,supprimés,supprimée,supprimées,effacer,efface,effacé,effacés,enlever,"
     "enlève,enlevé,jeter,jette,jeté,jetés,virer,vire,retirer,retire,débarrasser,débarrasse,déplacer,déplacé,"
     "vider,vide,vidé,suppression,mettre à la corbeille,éliminer,élimine,me passer "
     "de,bazarder,suprimer,balancer,poubelle,supprimables,supprimable,inutile,inutiles,superflu,superflus,"
     "passer de,déplace,m en passer,mettre à la poubelle,foutre en l air,dégager de,pas besoin,plus besoin,n "
     "ai pas besoin,n ai plus besoin,me servent pas,sert à rien,servent à rien,dont je n ai pas besoin,dont "
     "je n ai plus besoin,supprimant,en supprimant,effaçant,vidant,en vidant,enlevant,virant"},
    {Sense::undo,
     "réversible,annuler,annule,restaurer,restaure,récupérer,récupère,rétablir,revenir en "
     "arrière,remettre,restauré,restauration,retour en arrière,ravoir,retrouver,par "
     "erreur,récupérés,remets,remis,en arrière,par accident,faire marche arrière,restaurés,annulation"},
    {Sense::safe,
     "sûr,sans risque,sans danger,risqué,dangereux,dangereuse,danger,sûre,sûrs,sans problème,sans crainte,en "
     "toute sécurité,risque,safe,grave,tranquillement,risques,problème,sans "
     "souci,inoffensif,inoffensifs,sûres,est sûr,c est sûr,qui est sûr,sont sûrs,vraiment sûr,est il sûr,sûr "
     "à,éléments sûrs"},
    {Sense::review, "review,à vérifier,vérifier,à examiner,à revoir,examiner"},
    {Sense::keep,
     "garder,conserver,garde,à garder,keep,à conserver,gardé,conservé,important,importants,gardez"},
    {Sense::mean, "étiquette,l étiquette,mention,compte comme,comptent comme,comptabilisé,fait partie "
                  "de,veut dire,signifie,signifient,signification,sens de,différence,veulent dire,différence "
                  "entre,note,notes,évaluation,évaluations,évalué,couleurs,vouloir "
                  "dire,classé,classés,règles,règle,critères,classement,marqué,marqués,noté,notés,classée,"
                  "classées,évalués"},
    {Sense::soFar, "jusqu ici,jusqu à présent,jusqu à maintenant,en tout déjà,historique,au total "
                   "déjà,depuis le début,en tout et pour tout,par le passé,jusque là,nettoyages,les "
                   "nettoyages,tous les nettoyages,historique des nettoyages,précédents nettoyages"},
    {Sense::used, "pris,plein à,rempli à,utilisation du disque,espace occupé,place occupée,espace utilisé"},
    {Sense::handled, "utilisé,utilisés,utilise,utilisée,utilisées,utilises,sers,sert,servi"},
    {Sense::opened,
     "ouvert,ouverts,ouverte,ouvertes,touché,touchés,consulté,consultés,regardé,regardés,ouvre,regardées,lu,"
     "lus,vu,vus,vues,consultée,consultées,lancé,lancés,regarder,écouté,écoutés,joué"},
    {Sense::full,
     "espace disque faible,espace faible,disque saturé,mémoire pleine,stockage plein,stockage saturé,presque "
     "pleine,plein,pleine,presque plein,rempli,remplit,saturé,saturée,plus de place,plus d espace,manque de "
     "place,manque d espace,à court de place,à court d espace,si plein,rempli si,se remplit,sera plein,plus "
     "assez de place,plus assez d espace,si peu de place,peu de place,peu d espace,plus de place sur,pas "
     "assez de place,sature,plus aucune place,plein à craquer,plus du tout de place,pleins,remplir,manquer "
     "de place,aussi plein,où est passé,où est passée,est passé tout mon espace,où est partie,où est parti"},
    {Sense::free,
     "libre,libres,disponible,disponibles,reste,restant,restante,reste t il,inutilisé,il reste,restent,me "
     "reste,de libre,dispo,vacant,restera,il restera,resterait,restera t il,encore de la place,y aura"},
    {Sense::total,
     "total,totale,capacité,au total,en tout,globale,taille totale,au totale,aperçu,résumé,bilan,état"},
    {Sense::disk,
     "disque,disque dur,ssd,hdd,ordinateur,ordi,pc,machine,portable,partition,stockage,disques,le "
     "disk,disque système,mon mac,bécane"},
    {Sense::space,
     "place,espace,espace disque,espace de stockage,mémoire,place disque,rentre,rentrent,tiennent,loger"},
    {Sense::howMuch, "combien,combien de,combien d,conbien,cb de,cb,combien reste,quelle quantité,quelle "
                     "quantité de,combiens,qu est ce que je gagne,que gagne,je gagne quoi,ça libère "
                     "combien,combien ça libère,qu est ce que ça libère"},
    {Sense::why, "pourquoi,pour quelle raison,pour quelles raisons,comment se fait il,comment ça se "
                 "fait,raison,pk,pourkoi,d où vient,à cause de quoi"},
    {Sense::when, "quand,à quelle date,dans combien de temps,dans combien de jours,combien de temps,d ici "
                  "combien,quel jour,bientôt,à quel moment,quelle date,d ici quand,combien de jours,combien "
                  "de mois,à partir de quand,jusqu à quand,encore combien de temps"},
    {Sense::most, "le plus,la plus,les plus,le plus de place,le plus d espace,la plupart,le plus gros de,l "
                  "essentiel,principalement,le plus vite,plus vite,le plus rapidement,plus rapidement"},
    {Sense::takes, "prend,prennent,occupe,occupent,consomme,consomment,bouffe,bouffent,mange,mangent,"
                   "utilisent,gaspille,monopolise,encombre,encombrent,squatte,squattent,prendre,prends,"
                   "dévore,dévorent,remplissent,pompe,pompent,consommateurs,gourmands,gourmand"},
    {Sense::biggest,
     "plus gros,plus grand,plus grands,plus grosse,plus grosses,plus grande,plus grandes,les plus gros,le "
     "plus gros,la plus grosse,les plus grosses,les plus grands,plus lourd,plus lourds,plus "
     "volumineux,gros,grosse,grosses,volumineux,énormes,énorme,le plus grand,la plus grande,les plus "
     "lourds,top,le plus volumineux,les plus volumineux,lourds,plus lourdes,les plus grandes,par taille,le "
     "plus lourd,plus volumineuses,lourdes,les plus lourdes,la plus lourde,grands"},
    {Sense::smallest, "plus petit,plus petits,plus petite,plus petites,les plus petits,le plus petit,les "
                      "plus petites,la plus petite"},
    {Sense::oldest, "plus vieux,plus ancien,plus anciens,plus ancienne,plus anciennes,les plus vieux,le plus "
                    "vieux,les plus anciens,le plus ancien,les plus anciennes,la plus "
                    "ancienne,vieux,vieille,vieilles,anciens,anciennes,plus vieilles,plus vieille,ancien,les "
                    "plus vieilles,la plus vieille,ancienne,quel âge,âge"},
    {Sense::newest, "dernièrement,ces derniers temps,plus récent,plus récents,plus récente,plus récentes,les "
                    "plus récents,le plus récent,récent,récents,les "
                    "plus récentes,la plus récente,nouveaux,nouveau,nouvelles,récentes,récemment,plus "
                    "récemment,changé,changés,modifié,modifiés,modifiées,ajouté,ajoutés,nouveautés"},
    {Sense::grow, "a pris du poids,a gonflé,a pris de la place,prend du "
                  "volume,grossi,grossit,a grandi,ont grandi,grandit,augmenté,augmente,croissance,pris du "
                  "volume,pris de la "
                  "place,gonflé,enflé,a augmenté,agrandi"},
    {Sense::above, "compare,comparer,comparé à,comparés à,plus de,au dessus de,supérieur à,supérieurs à,plus "
                   "grand que,plus gros que,plus grands "
                   "que,au moins,dépassant,dépassent,de plus de,supérieures à,plus lourd que,plus lourds "
                   "que,ou plus,minimum,>,faisant plus de,plus grosses que,plus grandes que,et plus,pesant "
                   "plus de,plus d,dépasse,plus volumineux que,entre"},
    {Sense::below, "moins de,en dessous de,inférieur à,inférieurs à,plus petit que,plus petits que,au "
                   "plus,inférieures à,ou moins,maximum,<,de moins de,moins d,au maximum,sous"},
    {Sense::inside,
     "dans,dedans,depuis le dossier,à l intérieur de,du dossier,dans le,dans le dossier,dans mon,dans mes"},
    {Sense::unopened,
     "pas ouvert,pas ouverts,jamais ouvert,jamais ouverts,pas utilisé,pas utilisés,non "
     "ouverts,inutilisés,inutilisées,oubliés,oublié,non utilisés,pas ouverte,pas ouvertes,plus ouvert,plus "
     "ouverts,plus utilisé,n utilise pas,n utilise plus,n utilise jamais,utilise pas,utilise plus,utilise "
     "jamais,pas touché,plus touché,jamais utilisé,jamais utilisés,jamais utilisées,me servent plus,sert "
     "plus,oubliées,non utilisées,n ai pas ouvert,n ai pas ouverts,n ai plus ouverts,n ai jamais "
     "ouverts,inutilisée"},
    {Sense::before, "avant,plus vieux que,plus ancien que,plus anciens que,antérieur à,antérieurs à,plus "
                    "vieilles que,plus anciennes que,d ici,avant le,avant la,antérieures à,d avant,jusqu "
                    "à,jusqu au,jusqu aux,jusqu en,jusque,jusqu à la,jusqu à l"},
    {Sense::since, "depuis le début de,depuis début,depuis le début du,depuis le commencement de,depuis,plus "
                   "récent que,plus récents que,à partir de"},
    {Sense::after, "après,postérieur à,postérieurs à"},
    {Sense::last, "dernier,dernière,derniers,dernières,précédent,la dernière fois,précédente,dernière fois"},
    {Sense::privacy,
     "restent sur mon ordinateur,reste sur mon ordinateur,restent sur mon pc,restent chez moi,reste chez "
     "moi,besoin d internet,besoin d une connexion,connexion internet,sans internet,hors connexion,regardes "
     "mes fichiers,lis mes fichiers,lis tu mes,voit mes fichiers,voir mes fichiers,voir mes photos,voit mes "
     "photos,ton entreprise,votre entreprise,votre société,internet,en ligne,réseau,privé,privées,vie "
     "privée,confidentialité,confidentiel,cloud,nuage,télémétrie,envoyer,envoie,envoies,"
     "envoyé,envoyées,envoyés,serveur,serveurs,espionne,espionnes,espionner,partager,partage,"
     "partages,compte,hors ligne,téléverser,upload,collecte,collectes,données "
     "personnelles,transmet,transmises,transmet tu,tiers,google,wifi,quitte,quittent,mes "
     "données privées,rgpd,sur le net,espion,le web,transmettre,ia,sortent,pub,récolte,qui "
     "peut voir,qui peut lire,qui a accès,connecté,connectée,voit mes mots de passe"},
    {Sense::hidden, "masqué,masqués,masquée,masquées,invisible,invisibles"},
    {Sense::folder, "dossier,dossiers,répertoire,répertoires,sous dossier,sous dossiers"},
    {Sense::general,
     "désactiver,désactive,empêcher,empêche,arrêter,arrête,couper,prévision,langue,langues,analyse,résultat,"
     "résultats,superflues,bazar,catégorie,catégories,mieux,autre,"
     "autres,premier,abord,premier lieu,long,longtemps,seul,bon,temps,jour,jours,mois,année,fois,vers "
     "quoi,plus,ordures,restes"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler, "avec leurs données,avec données,données comprises,données incluses,avec leurs fichiers"},
};

constexpr SubjectRow kSubjects[] = {
    {SubjectID::systemAdvice, "anciens noyaux,vieux noyaux,noyaux,cache apt,apt,cache des paquets,journal "
                              "système,journaux système,anciens snaps"},
    {SubjectID::leftovers,
     "restes d applications,restes d applications désinstallées,restes de programmes,restes de "
     "logiciels,restes d applis,résidus,résidus d applications,résidus de programmes,applications "
     "désinstallées,applis désinstallées,programmes désinstallés,logiciels désinstallés,applications "
     "supprimées,programmes supprimés,laissé derrière,laissés derrière,laissent derrière,laissé des "
     "fichiers,orphelins,fichiers orphelins,dossiers orphelins,vestiges,traces d applications"},
    {SubjectID::similarPhotos,
     "photos similaires,images similaires,photos en double,images en double,photos semblables,doublons de "
     "photos,photos identiques,images identiques,photos qui se ressemblent,images qui se "
     "ressemblent,doublons photos,photos doublons,photos ressemblantes,photos dupliquées,photos presque "
     "identiques,photos en doublon,mêmes photos,images semblables,se "
     "ressemblent,ressemblent,similaires,semblables,ressemblants,similaire"},
    {SubjectID::screenshots,
     "capture d écran,captures d écran,captures écran,capture écran,screenshot,screenshots,"
     "copies d écran,copie d écran,captures"},
    {SubjectID::receipts,
     "ticket de caisse,tickets de caisse,reçu,reçus,photos de tickets,photos de reçus,tickets,"
     "photos de factures"},
    {SubjectID::memes, "meme,memes,images drôles,mèmes,images rigolotes,images humoristiques"},
    {SubjectID::blurry,
     "photos floues,images floues,flou,floue,flous,floues,photos ratées,photo floue,clichés flous"},
    {SubjectID::duplicates, "doublon,doublons,fichiers en double,en double,dupliqué,dupliqués,fichiers "
                            "identiques,copies,fichiers dupliqués,"
                            "doubles,fichier en double,en doublon,plusieurs fois,en plusieurs "
                            "exemplaires,copies identiques,deux fois"},
    {SubjectID::largeFiles, "gros fichiers,fichiers volumineux,gros fichier,grands fichiers,fichiers lourds"},
    {SubjectID::oldFiles,
     "vieux fichiers,anciens fichiers,fichiers anciens,fichiers inutilisés,fichiers oubliés,vieux "
     "trucs,vieilles choses"},
    {SubjectID::oldDownloads, "vieux téléchargements,anciens téléchargements,téléchargements oubliés"},
    {SubjectID::logs, "rapports de plantage,vidages mémoire,journaux,logs,log,fichiers journaux,fichiers de "
                      "log,fichiers log,journal,fichiers logs,journaux "
                      "système"},
    {SubjectID::trash, "corbeille,la corbeille,fichiers supprimés,la poubelle"},
    {SubjectID::deviceBackups,
     "sauvegardes iphone,sauvegarde iphone,sauvegarde d iphone,sauvegardes d iphone,sauvegardes "
     "ipad,iphone,ipad,sauvegardes de téléphone,sauvegarde de téléphone,sauvegardes du "
     "téléphone,sauvegardes de mon iphone,sauvegardes de mon téléphone,sauvegardes "
     "d appareils"},
    {SubjectID::mailAttachments, "pièces jointes,pièce jointe,pièces jointes des mails"},
    {SubjectID::languagePacks, "paquets de langue,packs de langue,fichiers de langue,traductions"},
    {SubjectID::npm, "cache npm,npm,yarn,cache yarn"},
    {SubjectID::pip, "cache pip,pip,cache python"},
    {SubjectID::gradle, "gradle,cache gradle"},
    {SubjectID::homebrew, "homebrew,cache homebrew"},
    {SubjectID::caches,
     "cache,caches,fichiers temporaires,fichiers de cache,données temporaires,fichiers cache,cache des "
     "applications,"
     "données en cache,cache du navigateur,mémoire cache,cache des applis,fichiers temp,le cache"},
    {SubjectID::developer,
     "données de développement,données développeur,développeur,fichiers de développement,"
     "développement,fichiers de compilation,fichiers de build"},
    {SubjectID::system,
     "système,system,fichiers système,données système,système d exploitation,fichiers du système"},
    {SubjectID::apps,
     "application,applications,appli,applis,programme,programmes,logiciel,logiciels,apps,app"},
    {SubjectID::media, "médias,fichiers multimédia,multimédia"},
    {SubjectID::downloads, "téléchargement,téléchargements,dossier téléchargements,dossier de "
                           "téléchargements,dossier téléchargement,"
                           "dossier des téléchargements,fichiers téléchargés,téléchargé,téléchargés,trucs "
                           "téléchargés,downloads,dossier "
                           "de téléchargement"},
    {SubjectID::desktop, "bureau,le bureau"},
    {SubjectID::documentsFolder,
     "dossier documents,dossier des documents,de mes documents,dans mes documents,parmi mes documents"},
    {SubjectID::picturesFolder, "dossier images,dossier photos,dossier des photos,dossier des images"},
    {SubjectID::videosFolder, "dossier vidéos,dossier vidéo,dossier des vidéos"},
    {SubjectID::musicFolder, "dossier musique,dossier de musique"},
    {SubjectID::home, "dossier personnel,répertoire personnel,home"},
    {SubjectID::videos,
     "vidéo,vidéos,film,films,fichiers vidéo,clips,clip,enregistrements vidéo,fichiers vidéos,"
     "enregistrements,mp4,séries"},
    {SubjectID::photos,
     "photo,photos,image,images,clichés,photographies,fichiers image,fichiers images,selfies,photos "
     "de vacances,photos de famille"},
    {SubjectID::audio,
     "musique,musiques,chansons,chanson,audio,fichiers audio,mp3,albums,morceaux,podcasts,fichiers mp3,"
     "fichiers son,livres audio"},
    {SubjectID::pdfs, "pdf,pdfs,fichiers pdf,documents pdf"},
    {SubjectID::archives, "archive,archives,zip,zips,fichiers zip,fichiers compressés,archives zip"},
    {SubjectID::installers,
     "installateur,installateurs,programmes d installation,fichiers d installation,paquets,"
     "installeurs,paquets d installation"},
    {SubjectID::diskImages,
     "image disque,images disque,iso,isos,fichiers iso,images iso,machines virtuelles,machine "
     "virtuelle,disques virtuels,images de disque"},
    {SubjectID::spreadsheets,
     "feuilles de calcul,tableurs,tableaux,fichiers excel,tableaux excel,feuille de calcul,excel"},
    {SubjectID::presentations,
     "présentation,présentations,diapositives,powerpoints,diapos,powerpoint,diaporamas"},
    {SubjectID::ebooks, "livres,ebooks,livres numériques,e books"},
    {SubjectID::documents,
     "document,documents,papiers,fichiers texte,courriers,documents word,fichiers word,documents "
     "texte,lettres"},
    {SubjectID::files, "fichier,fichiers,élément,éléments,chose,choses,truc,trucs,données,tout ça,machins"},
    {SubjectID::startup,
     "démarre avec,démarrent avec,se lance avec,démarre avec l ordinateur,au démarrage de la session,au "
     "demarrage de la session,ouverture de session,à l ouverture de session,à "
     "l ouverture de ma session,session démarre,de démarrer,se lancer au démarrage,se lance au démarrage,de "
     "se lancer,démarre lentement,lent à démarrer,met longtemps à démarrer,démarrage,au "
     "démarrage,démarre automatiquement,démarrent automatiquement,se lance "
     "au démarrage,programmes au "
     "démarrage,à l ouverture de session,éléments de démarrage,lance automatiquement,se "
     "lancent automatiquement,se "
     "lance tout seul,démarre tout seul,au lancement,se lancent toutes seules,se lancent "
     "tout seuls,démarrage "
     "automatique,démarrent,se lancent au démarrage,allume,ouverture de session"},
    {SubjectID::containers, "docker,podman,conteneur,conteneurs,images docker,containers,conteneurs docker"},
    {SubjectID::flatpak, "flatpak,flatpaks,flathub"},
    {SubjectID::snap, "snap,snaps,paquets snap,snapd"},
    {SubjectID::games, "jeu,jeux,steam,jeux vidéo,jeux steam"},
};

constexpr FigureRow kFigureRows[] = {
    {Figure::number, "deux", 2},
    {Figure::number, "trois", 3},
    {Figure::number, "quatre", 4},
    {Figure::number, "cinq", 5},
    {Figure::number, "six", 6},
    {Figure::number, "sept", 7},
    {Figure::number, "huit", 8},
    {Figure::number, "neuf", 9},
    {Figure::number, "dix", 10},
    {Figure::number, "douze,douzaine", 12},
    {Figure::number, "quinze", 15},
    {Figure::number, "vingt", 20},
    {Figure::number, "cinquante", 50},
    {Figure::number, "cent", 100},
    {Figure::ordinal, "premier,première,1er,1ère", 1},
    {Figure::ordinal, "deuxième,second,seconde,2e,2ème", 2},
    {Figure::ordinal, "troisième,3e,3ème", 3},
    {Figure::ordinal, "quatrième,4e,4ème", 4},
    {Figure::ordinal, "cinquième,5e,5ème", 5},
    {Figure::sizeUnit, "o,octet,octets", 1},
    {Figure::sizeUnit, "ko,kilooctets,kilo-octets", 1e3},
    {Figure::sizeUnit, "mo,mégaoctet,mégaoctets,mégas,méga,méga-octets", 1e6},
    {Figure::sizeUnit, "go,gigaoctet,gigaoctets,gigas,giga,giga-octets", 1e9},
    {Figure::sizeUnit, "to,téraoctet,téraoctets,téras,téra", 1e12},
    {Figure::timeUnit, "jour,jours", 0},
    {Figure::timeUnit, "semaine,semaines", 1},
    {Figure::timeUnit, "mois", 2},
    {Figure::timeUnit, "an,ans,année,années", 3},
    {Figure::month, "janvier,janv", 1},
    {Figure::month, "février,fév", 2},
    {Figure::month, "mars", 3},
    {Figure::month, "avril", 4},
    {Figure::month, "mai", 5},
    {Figure::month, "juin", 6},
    {Figure::month, "juillet,juil", 7},
    {Figure::month, "août", 8},
    {Figure::month, "septembre", 9},
    {Figure::month, "octobre,oct", 10},
    {Figure::month, "novembre,nov", 11},
    {Figure::month, "décembre,déc", 12},
    {Figure::weekday, "dimanche", 0},
    {Figure::weekday, "lundi", 1},
    {Figure::weekday, "mardi", 2},
    {Figure::weekday, "mercredi", 3},
    {Figure::weekday, "jeudi", 4},
    {Figure::weekday, "vendredi", 5},
    {Figure::weekday, "samedi", 6},
    {Figure::daysAgo, "aujourd hui,aujourdhui", 0},
    {Figure::number, "un demi,demi", 0.5},
    {Figure::daysAgo, "hier", 1},
    {Figure::daysAgo, "avant-hier", 2},
    {Figure::agoBefore, "il y a"},
    {Figure::previous, "dernier,dernière,derniers,dernières,passé,passée,précédent,précédente"},
    {Figure::current, "ce,cette,cet"},
    {Figure::following, "prochain,prochaine,prochains,prochaines,qui vient,à venir"},
    {Figure::ahead, "dans,d ici,encore,pendant"},
    {Figure::daysAhead, "demain", 1},
    {Figure::daysAhead, "après-demain,après demain", 2},
    {Figure::namedDay, "nouvel an,jour de l an,premier de l an", valueOf(NamedDay::newYear)},
    {Figure::namedDay, "saint-valentin,saint valentin", valueOf(NamedDay::valentine)},
    {Figure::namedDay, "pâques,paques", valueOf(NamedDay::easter)},
    {Figure::namedDay, "pentecôte", valueOf(NamedDay::pentecost)},
    {Figure::namedDay, "halloween", valueOf(NamedDay::halloween)},
    {Figure::namedDay, "toussaint", valueOf(NamedDay::allSaints)},
    {Figure::namedDay, "veille de noël,réveillon de noël", valueOf(NamedDay::christmasEve)},
    {Figure::namedDay, "noël", valueOf(NamedDay::christmas)},
    {Figure::namedDay, "saint-sylvestre,saint sylvestre,réveillon", valueOf(NamedDay::newYearsEve)},
    {Figure::namedDay, "printemps", valueOf(NamedDay::spring)},
    {Figure::namedDay, "l été,cet été,en été", valueOf(NamedDay::summer)},
    {Figure::namedDay, "automne", valueOf(NamedDay::autumn)},
    {Figure::namedDay, "hiver", valueOf(NamedDay::winter)},
    {Figure::endOf, "fin,la fin,fin de,la fin de,la fin du,fin du", -1},
    {Figure::ordinal, "suivant,suivante", 0},
    {Figure::ofDate, "de,le,l"},
};

} // namespace french_words

const Language& french()
{
    static constexpr Language language{
        french_words::kWords,
        french_words::kSubjects,
        french_words::kFigureRows,
        "l,d,j,m,t,s,n,c,qu,jusqu,lorsqu,puisqu,quelqu,aujourd",
        false,
        "fichier,élément,chose,truc,dossier,répertoire,vidéo,film,clip,photo,"
        "image,chanson,pdf,document,archive,téléchargement,téléchargé,dernier"};
    return language;
}

} // namespace orlen::AskReader
