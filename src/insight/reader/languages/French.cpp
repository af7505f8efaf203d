#include "insight/reader/Language.h"

namespace orlen::AskReader {

namespace french_words {

constexpr WordRow kWords[] = {
    {Sense::ruleOut, "exclure un dossier,exclure un fichier,comment exclure,exclure du scan,exclure de l "
                     "analyse,exclusions,ajouter une exception,liste blanche,ne plus proposer,ne plus "
                     "suggérer,ne jamais analyser,comment j exclus,exclure des dossiers,ne pas "
                     "analyser,ignorer un dossier,dossier à ignorer,liste d exclusion,ajouter une "
                     "exclusion,exclure mon,exclure le dossier,exclure ce dossier,mettre de côté un dossier"},
    {Sense::installed, "installé,installés,installée,installées,est installé,sont installées,sont installés"},
    {Sense::self,
     "que peux tu faire,que sais tu faire,tu peux faire quoi,que puis je te demander,qui es tu,tu es "
     "qui,aide,à l aide,aide moi,bonjour,salut,bonsoir,coucou,merci,comment ça marche,c est quoi orlen,que "
     "fait orlen,qu est ce que orlen,comment fonctionne orlen,à quoi sert orlen,qu est ce que tu peux "
     "faire,que peux tu me dire,tu sais faire quoi,à quoi sert ce programme,comment utiliser orlen,comment "
     "peux tu m aider,que peux tu faire pour moi,t es qui,tu sers à quoi,à quoi tu sers,tu fais quoi,que "
     "fais tu,c est quoi ce programme,c est quoi ce logiciel,c est quoi cette appli,comment ça "
     "fonctionne,comment tu fonctionnes,comment t utiliser,que peut faire orlen,que peut faire ce "
     "programme,aide moi stp,merci beaucoup,hello,hey,yo,cc,bjr,slt,en quoi peux tu m aider,en quoi tu peux "
     "m aider,de quoi es tu capable,quelles questions puis je poser,je peux te demander quoi,qu est ce que "
     "tu fais,au secours"},
    {Sense::advise,
     "conseilles,conseiller,conseil,conseils,recommandes,recommander,recommandation,recommandations,suggères,"
     "suggestion,suggestions,suggérer,commencer,que faire,le mieux,en priorité,vaut la "
     "peine,proposes,conseillez,recommandez,quoi faire,que dois je faire,je fais quoi,je dois faire quoi,que "
     "puis je faire,que faire maintenant,astuces,je devrais faire,par quoi commencer,par où commencer,je "
     "commence par quoi,par quoi je commence,je commence par où,recommande,suggère,propose,conseille,tu "
     "ferais quoi,que ferais tu,vaut le coup,vaut mieux,il faut faire quoi,qu est ce que je fais,y faire "
     "quoi,astuce,que me conseilles tu,tu me conseilles quoi,tu me conseilles,faire quoi"},
    {Sense::trust, "confiance,fiable,orlen est il sûr,sérieux,en danger,menacés,en sécurité avec,logiciel "
                   "libre,te faire confiance,faire confiance,fiabilité,orlen est sûr,es tu fiable,t es "
                   "fiable,open source,code ouvert,digne de confiance"},
    {Sense::beyond,
     "virus,malveillant,logiciel malveillant,plus "
     "rapide,accélérer,accélère,lent,lente,lenteur,ralentit,rame,performance,performances,défragmenter,"
     "mémoire vive,ram,processeur,cpu,batterie,pilotes,pilote,pare feu,antivirus,température,carte "
     "graphique,que ne peux tu pas faire,que ne sais tu pas faire,tu ne sais pas faire quoi,tu peux pas "
     "faire quoi,que ne fait pas orlen,que ne peut pas faire orlen,que ne peut pas "
     "faire,imprimante,bluetooth,formater,chiffrer,piraté,pirater,surchauffe,surchauffe pas,mettre à jour "
     "linux,mettre à jour le système,mot de passe wifi,clavier,souris,écran,fond d écran,volume du "
     "son,internet lent,rapide mon,rendre plus rapide,ramer,lenteurs,tu ne sais pas faire,tu ne peux pas "
     "faire,tu sais pas faire,tu peux pas faire,ne sais pas faire,ne peux pas faire,sais pas faire quoi,tu "
     "ne fais pas,tu fais pas,vous ne savez pas faire,vous ne pouvez pas faire"},
    {Sense::happens,
     "où finissent,où atterrissent,où passent,vont où,pas définitivement,supprimes pas définitivement,se "
     "passe,passe t il,arrive t il,que se passe t il,définitivement,pour "
     "toujours,définitif,irréversible,arrive,se passera,se passerait,où vont,pour de "
     "bon,passe,casser,abîmer,casse,bugger,nuire,planter,tout seul,toute seule,automatiquement,sans "
     "demander,sans me demander,sans prévenir,pour toujours perdu,perdu,perdus,perdre,je perds,perd "
     "on,vraiment disparu,vraiment supprimé,disparaissent,disparaît,où est ce que ça va,où ça va,où ça "
     "part,où partent,ça va où,ils vont où,vont ils,que deviennent,que devient,deviennent "
     "quoi,regretter,regrette,endommager,abîme,détruire,détruit,foutre en l air mon,faire planter,de façon "
     "permanente,tout casser,casser quelque chose,de lui même,sans mon accord,sans permission,sans "
     "autorisation,sans mon autorisation"},
    {Sense::only, "seulement,uniquement,juste,que dans,rien que,exclusivement,rien que les,que les,que "
                  "des,seulement les,seul les"},
    {Sense::also, "et,aussi,ainsi que,qu en est il de,qu en est il des,et pour,et les,et le,et la,&,et qu en "
                  "est il de,qu en est il du,et concernant,et au fait,de même,ou,plus aussi,de plus,et "
                  "aussi,puis aussi,et quid de,quid de,quid des,et puis,ou bien,ou encore"},
    {Sense::backward,
     "il,elle,ils,elles,celui ci,celle ci,ceux ci,celles ci,celui là,celle là,ceux là,celles "
     "là,ceux,celui,celle,celles,ça,cela,le supprimer,les supprimer,la supprimer,en,ceci,lui"},
    {Sense::filler,
     "petit fils,petite fille,mon petit fils,dites moi,pourriez vous me dire,pouvez vous me dire,j aimerais "
     "savoir,je voudrais savoir,peux tu me,moi s il te "
     "plaît,le,la,les,l,un,une,du,de,d,à,a,au,aux,mon,ma,mes,notre,nos,ton,ta,tes,votre,vos,son,sa,ses,leur,"
     "leurs,je,j,me,m,moi,nous,on,tu,te,t,toi,vous,se,s,est,sont,était,étaient,suis,es,sera,serait,seront,"
     "être,été,ai,as,avons,avez,ont,avais,avait,avoir,eu,y,il y a,y en "
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
     "nuit,font,listées,listés,affichées,pour un fichier,à côté d un fichier,sur un fichier,pour des "
     "fichiers,pour mes fichiers,gros comme,peux tu me montrer les,tu peux me dire,tu peux me montrer,tu "
     "peux me lister,tu peux me donner,tu peux,tu pourrais,tu pourrais me dire,pouvez vous me "
     "montrer,pourriez vous,pourriez vous me montrer,pourrais tu me dire,peux tu s il te plaît,peux tu me "
     "donner,peux tu me lister,j aimerais,j aimerais bien,j aimerais bien savoir,je voudrais,je veux "
     "savoir,je veux,je me demande,me demande,demande,stp merci,merci d avance,d avance,par "
     "avance,pardon,désolé,excuse moi,excusez moi,question,petite question,une question,au fait,sinon,du "
     "coup,en gros,quoi déjà,y a,ya,il y a t il,j sais pas,jsp,je sais pas,je ne sais pas,chais "
     "pas,bah,ben,ah,oh,oups,ouais,wesh,mec,frère,chef,copain,ami,papa,maman,papy,mamie,mamy,grand "
     "mère,grand père,fille,fils,mari,femme,voila,hop,allez,genre là,énumère,énumérer,donne moi la "
     "liste,donne moi une liste,la liste de,la liste des,liste de,liste des,fais moi voir,fais voir,fais moi "
     "la liste,fais la liste,détaille,complet,complète,existe,existant,existants,existantes,sont ils,sont "
     "elles,sont là,se trouve,se trouvent,trouve t "
     "on,situés,situé,stocker,enregistrés,enregistré,enregistrées,possibles,éventuellement,éventuels,"
     "bizarrement,étrange,étrangement,vite fait,tout court,tout de suite,de suite,dès "
     "maintenant,immédiatement,désormais,à l heure actuelle,à présent,pour l instant,pour le moment,au "
     "moment,à ce jour,jour là,par hasard,carrément,vachement,grave vite,plein de,tas de,un tas de,tout "
     "plein,plusieurs,divers,diverses,contenu,contenus,contenant,toutes "
     "sortes,quelconque,quelconques,perso,personnelles,celui qui,ceux qui,celles qui,celle qui,genre "
     "quoi,par rapport à,s agit il,il s agit,il s,qu il,qu elle,qu ils,qu on,qu en,lorsque,quelque "
     "chose,suite,ma machine actuelle,fait il,pile,précis,précisément,à quelque chose près,prête,avons "
     "nous,as tu,a t il,ont ils,a t elle,ait,puissent,seraient,étant,fut,sois"},
    {Sense::negation, "ne,pas,jamais,plus jamais,aucun,aucune,rien,n ai pas,n est pas,ne "
                      "pas,nan,nul,nulle,guère,point de,n ont pas,n a pas,ni l un,aucuns,aucunes,personne"},
    {Sense::except,
     "qui n est pas une,qui n est pas un,qui ne sont pas des,qui ne soit pas une,qui ne soit pas un,sauf,à "
     "part,hormis,excepté,à l exception de,à l exception des,à l exception du,en dehors de,en dehors des,en "
     "dehors du,mis à part,hors,autre que,autres que,autre chose que,sans,sans compter,mais pas,et "
     "pas,exclure,sans les,sans le,sans la,à l exclusion de,à l exclusion des,pas dans,en excluant,sans "
     "toucher à,sans toucher aux,sans toucher,sans supprimer,sans effacer,sans perdre,mais sans,mais "
     "laisse,laisse de côté,ni,à part les,sauf les,sauf le,sauf la,sauf dans,et sans,au lieu de,sauf "
     "mes,sauf mon,sauf ma,sauf ceux dans,sauf celles dans,à part mes,à part mon,à part ma,hormis les,hormis "
     "mes,hormis le,excepté les,excepté mes,en dehors de mes,sans compter les,sans compter mes,sans mes,sans "
     "mon,sans ma,mais pas les,mais pas mes,mais pas le,pas les,mais garde,mais garde mes,pas ceux,pas "
     "celles,en laissant,laisse mes,laisser,si ce n est,plutôt que,sans inclure,ne pas compter,sans rien"},
    {Sense::lasts,
     "tiendra,tient,tenir,suffit,suffira,suffire,suffisant,dure,durera,durer,va tenir,assez de place,assez d "
     "espace,aurai je,aura t on,y aura t il,aurons nous,tiendra t il,tiendra t on,ça tient,ça va tenir,vais "
     "tenir,suffira t il,suffiront,suffisamment de place,suffisamment d espace,suffisante,suffisants,tenir "
     "le coup,va suffire,assez jusqu,survivre,survivra,il y aura assez,ça ira,passera,sera suffisant,va "
     "durer,il y a assez"},
    {Sense::speed, "à quelle vitesse,vitesse,à quel rythme,rythme,par jour,par semaine,par mois,chaque "
                   "jour,chaque semaine,chaque mois,à quel vitesse,à quelle cadence,cadence,en moyenne,par "
                   "heure,tous les jours,toutes les semaines,tous les mois,quotidiennement,quelle "
                   "vitesse,vitesse de,par an,quel rythme,la semaine,le mois en moyenne"},
    {Sense::what,
     "quoi,que,qu est ce que,qu est ce que c est que,qu est ce "
     "qui,quel,quelle,quels,quelles,lequel,laquelle,lesquels,lesquelles,où,où est,où sont,c est quoi,qu y a "
     "t il,est ce qu il y a,y a t il,il y a des,ai je,est ce que j ai,quels sont,quelles sont,quel "
     "est,quelle est,montre moi les,montre les,as tu trouvé,qu est ce,de quoi,à quoi,quoi dans,kel,kels,il y "
     "aura,que virer,où se trouve,où se trouvent,où est ce que,où j ai mis,où sont passés,où est "
     "rangé,kesako,c quoi,cest quoi,c koi,koi,qu est ce que c est,qu est ce qui est,qu ai je,qu est ce que j "
     "ai,qu as tu trouvé,il existe,existe t il,existe t elle,as tu des,as tu vu,est ce que tu vois,y a til,y "
     "a t il des,ya t il,y a ti,est ce qu il existe,j ai des,j ai quoi,j ai quoi comme,quoi comme,c est quoi "
     "ces,c est quoi les,c est quoi le,c est quoi la,c est quoi mes,décris,décrire,explique moi,expliquez "
     "moi,explique moi ce qu est,parle moi de,parle moi des,ki,montrez moi,y a quoi,y a quoi dans,il y a "
     "quoi,il y a quoi dans,laquel,lesquel,quel genre de,quel type de,quels types de,quelle sorte de,ce qui"},
    {Sense::howBig,
     "combien de place ils prennent,combien de place elles prennent,ils prennent combien,elles prennent "
     "combien,quelle taille,quelle est la taille,taille,taille de,la taille,combien pèse,combien "
     "pèsent,combien de place prend,combien de place prennent,combien d espace prend,combien d espace "
     "prennent,combien de place occupe,combien de place occupent,combien d espace occupe,combien d espace "
     "occupent,combien prend,combien prennent,pèse,pèsent,poids,combien de go,combien occupe,combien "
     "occupent,tailles,volume de,place prend,place prennent,combien de place prend il,combien de giga,poids "
     "de,combien de place font,combien de gigas,quelle place prennent,quelle place prend,quelle place "
     "occupe,quelle place occupent,quel espace occupent,quel espace occupe,combien fait,combien font,combien "
     "de place ça prend,ça prend combien,ça prend combien de place,ça pèse combien,ça fait combien,ça occupe "
     "combien,ça bouffe combien,prend combien,prend combien de place,prennent combien,prennent combien de "
     "place,occupe combien,occupe combien de place,occupent combien,occupent combien de place,pèse "
     "combien,pèsent combien,fait combien,font combien,fait combien de go,bouffe combien,bouffent "
     "combien,combien bouffe,combien bouffent,combien mesure,combien de place bouffe,combien de place "
     "bouffent,combien de place utilise,combien de place utilisent,combien d espace utilise,combien d espace "
     "utilisent,combien utilise,combien utilisent,combien de place représente,combien représentent,combien "
     "représente,combien consomme,combien consomment,combien de mo,combien de gigaoctets,combien de "
     "megas,combien d octets,taille totale de,taille totale des,taille des,taille du,la taille des,la taille "
     "du,quelle taille font,quelle taille fait,quelle taille ont,quelle taille a,la place de,la place "
     "des,place occupée par,espace occupé par,espace utilisé par,place utilisée par,le poids,le poids de,le "
     "poids des,poids total,quel poids,quel est le poids,quelle est la place,gros comment,grand comment,de "
     "quelle taille,c est gros comment,est gros,quel pourcentage,quelle part,quelle proportion,pourcentage "
     "de,quel volume,combien y a t il dans,y a combien dans,il y a combien dans,combien il y a dans,combien "
     "dans,peser,combien de giga prend,volume des,volume du"},
    {Sense::howMany, "nombre de,combien de fois,combien de fichiers,nombre,combien y a t il,combien ai "
                     "je,combien j ai,j ai combien,quel nombre,combien en,combien j en ai,combien en ai je,y "
                     "en a combien,il y en a combien,compte les,compte mes,compter,compte le nombre,nb "
                     "de,nb,le nombre de,le nombre,quelle fréquence,à quelle fréquence,tous les combien"},
    {Sense::can,
     "puis je,peux,peut,peut on,pourrais,pouvons,dois,doit,devrais,doit on,faut il,est il possible de,est ce "
     "que je peux,je peux,ai je le droit,peuvent,pourrait,on peut,puis,devrait,sans risque de,pouvoir,dois "
     "je,il faut,est ce qu on peut,je peux tu,peux je,on devrait,je dois,je pourrais,je devrais,pourrait "
     "on,pouvez,est ce que je dois,ai je besoin de,ai je besoin,j ai encore besoin,est ce grave si,c est "
     "grave si,est il utile de,est ce utile de,est ce une bonne idée,c est une bonne idée,est il prudent "
     "de,est il sûr de,est il possible,est ce possible,possible de,capable de,y a moyen,y a moyen de,y a t "
     "il moyen,moyen de,je peut,tu peux pas,autorisé,permis de"},
    {Sense::makeRoom,
     "libérer,libère,libéré,libérés,gagner,gagne,faire de la place,faire place,faire du vide,récupérer de la "
     "place,récupérer de l "
     "espace,économiser,dégager,libérerait,libérerais,gagnerais,gagnerait,désencombrer,économise,libération,"
     "faire un peu de place,libérerai,gagnerai,avoir plus de place,manque de place pour,rendre de la "
     "place,besoin de place,besoin d espace,libérerons,récupérerais,de la place,j ai besoin de,il me faut,me "
     "faut,j ai besoin d,alléger,moins plein,soulager,besoin de,j ai besoin,il me faudrait,faudrait que je "
     "libère,me faudrait,faudrait,dois libérer,faut libérer,gagner de la place,gagner de l espace,gagner en "
     "place,récupérée,récupérer d espace,récupérerai,libérée,libérées,libérez,libérez moi,libère moi,me "
     "libérer,dégage,dégage moi,désencombre,faire du tri,faire de l espace,faire du place,faire une "
     "place,fais de la place,fais moi de la place,trouve moi de la place,créer de l espace,créer de la "
     "place,plus d espace libre,plus de place libre,avoir de la place,avoir plus d espace,obtenir de la "
     "place,obtenir de l espace,obtenir,retrouver de la place,retrouver de l espace,alléger mon,moins "
     "rempli,moins pleine,gagnés,gagnée,libérera,libéreront,libèrent,libérant,en libérant,manque,il "
     "manque,il me manque,faire le vide,fais le vide,vider un peu,rendre de l "
     "espace,regagner,regagne,récupéré,récupérés,j ai récupéré,ai récupéré,espace récupéré,place "
     "récupérée,place récupéré,avons récupéré,on a récupéré,as récupéré,a récupéré"},
    {Sense::make,
     "fais moi,trouve moi,donne moi,fais,faire,fait,procure moi,débrouille toi,obtiens,fabrique"},
    {Sense::unknown, "mots de passe,mot de passe"},
    {Sense::filler, "dans la répartition,de la répartition"},
    {Sense::untouched,
     "tu touches,touches tu,touches-tu,vous touchez,touchez-vous,jamais "
     "touché,protégé,protégés,protégée,protégées,intouchable,intouchables,touche jamais,touches "
     "jamais,supprime jamais,supprimes jamais,ne touche pas,protège,intact,laisse tranquille,efface "
     "jamais,jamais toucher,jamais supprimé,jamais supprimés,jamais supprimer,jamais effacés,jamais "
     "effacé,déplace jamais,jamais touchés,jamais déplacés,touchera jamais,supprimera jamais,touche "
     "pas,laisses tranquille,laisses intact,intacts,intactes,sacré,hors limites,hors de "
     "portée,interdit,interdits,n efface jamais,ne supprime jamais,ne supprimes jamais,ne touches jamais,ne "
     "touche jamais,ne toucheras jamais,ne touchera jamais,ne touches pas,ne touches tu pas,ne toucheras tu "
     "jamais,ne toucherais jamais,supprimeras jamais,toucheras jamais,toucherais jamais,ne déplace "
     "jamais,déplaces jamais,n effaces jamais,effaces jamais,n effacera jamais,effacera jamais,pas "
     "toucher,touches à,touche à mes,touches à mes,touches tu à,est ce que tu touches,tu vas toucher,va "
     "toucher,vas tu toucher,préservé,préservés,épargné,épargnés,protection"},
    {Sense::cleanUp,
     "nettoyage,nettoyer,nettoie,nettoyé,ménage,nettoyés,faire le ménage,faire du ménage,nettoyée,fait le "
     "ménage,tri,faire le tri,du tri,nettoies,nettoyant,nettoyais,nettoies tu,dernier "
     "nettoyage,clean,cleanup,rangement,grand ménage,vidage,coup de balai,purge,un nettoyage,ménage de "
     "printemps"},
    {Sense::uninstall,
     "désinstaller,désinstalle,désinstallation,désinstallé,désinstaller l appli,désinstalles,désinstalle "
     "moi,supprimer l application,supprimer l appli,supprimer le programme,supprimer le logiciel,enlever l "
     "application,enlever le logiciel,enlever l appli,virer l appli,virer le "
     "logiciel,désinstallée,désintaller,desinstale"},
    {Sense::remove,
     "supprimer,supprime,supprimé,supprimés,supprimée,supprimées,effacer,efface,effacé,effacés,enlever,"
     "enlève,enlevé,jeter,jette,jeté,jetés,virer,vire,retirer,retire,débarrasser,débarrasse,déplacer,déplacé,"
     "vider,vide,vidé,suppression,mettre à la corbeille,éliminer,élimine,me passer "
     "de,bazarder,suprimer,balancer,poubelle,supprimables,supprimable,inutile,inutiles,superflu,superflus,"
     "passer de,déplace,m en passer,mettre à la poubelle,foutre en l air,dégager de,pas besoin,plus besoin,n "
     "ai pas besoin,n ai plus besoin,me servent pas,sert à rien,servent à rien,dont je n ai pas besoin,dont "
     "je n ai plus besoin,supprimant,en supprimant,effaçant,vidant,en "
     "vidant,enlevant,virant,ôter,ôte,jarter,jarte,dégagent,foutre à la poubelle,fous à la "
     "poubelle,balance,bazarde,liquider,supprimez,suprime,supprimmer,éfacer,effaçable,effaçables,jeter à la "
     "poubelle,mets à la corbeille,mettre dans la corbeille,à la corbeille,à la poubelle,à la benne,envoyer "
     "à la corbeille,faire disparaître,fais disparaître,se débarrasser,se débarrasser de,me débarrasser,me "
     "débarrasser de,débarrasser de,débarrasse moi de,à supprimer,à effacer,à jeter,à virer,à "
     "enlever,jetable,jetables,superflue,encombrant,encombrants,encombrantes,en trop,de "
     "trop,déchets,déchet,saletés,saloperies,cochonneries,merdes,bordel,ne me sert plus,ne me sert à rien,ne "
     "sert à rien,ne sert plus,ne servent à rien,ne servent plus,ne me servent plus,sert plus à rien,servent "
     "plus,je n ai plus besoin,n en ai plus besoin,j ai plus besoin,j ai pas besoin,dont j ai pas "
     "besoin,dont j ai plus besoin,ai plus besoin,peut partir,peuvent partir,peut dégager,peuvent "
     "dégager,peut sauter,peuvent sauter,doit partir,bon à jeter,bons à jeter,bonne à "
     "jeter,virés,virée,enlevés,enlevée,enlevées,jetée,retirés,retirée,déplaces,supprimais,supprimerais,"
     "effacerais,vides,vidais,vide moi,vidée,viderais,nettoyer la corbeille,sacrifier,sacrifie,m en "
     "débarrasser,m en passer de,poubelliser,del,delete"},
    {Sense::undo,
     "réversible,annuler,annule,restaurer,restaure,récupérer,récupère,rétablir,revenir en "
     "arrière,remettre,restauré,restauration,retour en arrière,ravoir,retrouver,par erreur,remets,remis,en "
     "arrière,par accident,faire marche arrière,restaurés,annulation,réversibles,undo,remettre en "
     "place,remets en place,remettre comme avant,remets moi,redonne moi,rends moi,rendre,récupérer mes "
     "fichiers,récupérer mes,récupérer ce que,récupérer un fichier,récupérer les fichiers,récupérer le "
     "fichier,récupérer les,récupérer un,récupérer des,récupérer ma,récupérer mon,récupère mes,récupère ce "
     "que,récupérer ce,récupérer l,récupérer quelque chose,comment récupérer,peut on récupérer,puis je "
     "récupérer,je peux récupérer,faire revenir,revienne,revenir,retour "
     "arrière,rétablis,rétablit,restaurez,restaurée,annules,annulez,défaire,défais,me suis "
     "trompé,trompé,erreur,changé d avis,sans faire exprès,ctrl "
     "z,récupérables,récupérable,ressusciter,récupéré un"},
    {Sense::safe,
     "sûr,sans risque,sans danger,risqué,dangereux,dangereuse,danger,sûre,sûrs,sans problème,sans crainte,en "
     "toute sécurité,risque,safe,grave,tranquillement,risques,problème,sans "
     "souci,inoffensif,inoffensifs,sûres,est sûr,c est sûr,qui est sûr,sont sûrs,vraiment sûr,est il sûr,sûr "
     "à,éléments sûrs,sans risques,pas dangereux,dangereuses,risquée,sans dommage,sans dommages,sans danger "
     "de,inoffensive,inoffensives,sereinement,en sécurité,sécurisé,mauvaise idée,gênant,sans regret,sans "
     "conséquence,sans conséquences,l esprit tranquille,impunément,craint,craint pas,les yeux fermés,ok "
     "de,ça craint,sans hésiter"},
    {Sense::review, "review,à vérifier,vérifier,à examiner,à "
                    "revoir,examiner,vérifie,vérifiés,revoir,contrôler,à contrôler,passer en revue"},
    {Sense::keep, "garder,conserver,garde,à garder,keep,à "
                  "conserver,gardé,conservé,important,importants,gardez,gardés,gardée,gardées,conserves,"
                  "essentiel,essentiels,nécessaire,nécessaires,indispensable,indispensables,utile,utiles,"
                  "précieux,précieuse,importante,importantes,à garder absolument,sauvegarder,préserver"},
    {Sense::mean,
     "étiquette,l étiquette,mention,compte comme,comptent comme,comptabilisé,fait partie de,veut "
     "dire,signifie,signifient,signification,sens de,différence,veulent dire,différence "
     "entre,note,notes,évaluation,évaluations,évalué,couleurs,vouloir "
     "dire,classé,classés,règles,règle,critères,classement,marqué,marqués,noté,notés,classée,classées,"
     "évalués,sens des,définition,définitions,définir,qu entends tu par,entends tu par,tu entends quoi "
     "par,entendez vous par,signification de,catégorise,étiquettes,label,labels,notation,notations,système "
     "de notation,jugé,jugés,juger,juges tu,décides,décide,décides tu,évaluer,évalues tu,classer,classes "
     "tu,classé comme,considéré comme,considérés comme,correspond à,correspond,correspondent,inclus "
     "dans,rangé dans,comptabilisés,faut comprendre"},
    {Sense::soFar,
     "jusqu ici,jusqu à présent,jusqu à maintenant,en tout déjà,historique,au total déjà,depuis le début,en "
     "tout et pour tout,par le passé,jusque là,nettoyages,les nettoyages,tous les nettoyages,historique des "
     "nettoyages,précédents nettoyages,depuis que je t utilise,depuis que j utilise orlen,depuis l "
     "installation,depuis toujours,à ce jour au total,tout au long,au fil du temps,jusqu à aujourd hui,jusqu "
     "aujourd hui,au total jusqu ici,clean ups,anciens nettoyages,nettoyages précédents,nettoyages "
     "passés,mes nettoyages,liste des nettoyages,derniers nettoyages,journal des nettoyages,déjà "
     "été,cumulé,en cumulé,dans le passé,depuis le tout début"},
    {Sense::used, "pris,plein à,rempli à,utilisation du disque,espace occupé,place occupée,espace "
                  "utilisé,occupée,occupés,utilisation,utilisation disque,taux d occupation,taux de "
                  "remplissage,remplissage,à quel point plein,à quel point mon "
                  "disque,consommée,consommés,taux d utilisation,occupé,consommé"},
    {Sense::handled, "utilisé,utilisés,utilise,utilisée,utilisées,utilises,sers,sert,servi,utiliser,employé,"
                     "employés,servie,serve,sers plus"},
    {Sense::opened,
     "ouvert,ouverts,ouverte,ouvertes,touché,touchés,consulté,consultés,regardé,regardés,ouvre,regardées,lu,"
     "lus,vu,vus,vues,consultée,consultées,lancé,lancés,regarder,écouté,écoutés,joué,visionné,visionnés,"
     "regardée,lue,lues,jouer,joués,parcouru,lancée,cliqué,écoutée,écoutées"},
    {Sense::full,
     "espace disque faible,espace faible,disque saturé,mémoire pleine,stockage plein,stockage saturé,presque "
     "pleine,plein,pleine,presque plein,rempli,remplit,saturé,saturée,plus de place,plus d espace,manque de "
     "place,manque d espace,à court de place,à court d espace,si plein,rempli si,se remplit,sera plein,plus "
     "assez de place,plus assez d espace,si peu de place,peu de place,peu d espace,plus de place sur,pas "
     "assez de place,sature,plus aucune place,plein à craquer,plus du tout de place,pleins,remplir,manquer "
     "de place,aussi plein,où est passé,où est passée,est passé tout mon espace,où est partie,où est "
     "parti,disque plein,à ras bord,blindé,blindée,archi plein,tout plein "
     "mon,bourré,bourrée,encombrée,engorgé,engorgée,surchargé,surchargée,débordé,plus de mémoire,plus de "
     "stockage,plus assez de mémoire,pas assez d espace,pas assez de mémoire,pas assez d espace disque,plus "
     "aucun espace,espace insuffisant,place insuffisante,stockage insuffisant,manque d espace disque,manque "
     "de stockage,manque de mémoire,à court de stockage,à court de mémoire,à sec,épuisé,épuisée,s "
     "épuise,sera saturé,sera rempli,sera remplie,sera pleine,va se remplir,va être plein,va être saturé,se "
     "remplira,se remplissent,remplie,remplis,remplira,remplis si vite,si rempli,aussi rempli,aussi "
     "pleine,déjà plein,encore plein,autant plein,de nouveau plein,toujours plein,tout le temps plein,où est "
     "passé l espace,où est passée ma place,où est passée la place,passé mon espace,passé l espace,passé "
     "tout l espace,passée toute la place,passée toute ma place,disparu mon espace,disparu l espace,a "
     "disparu mon espace,mon espace a disparu,plus un octet,n ai plus de place,plus de place du tout,presque "
     "plus de place,presque plus d espace,presque pas de place,quasiment plus de place,quasiment plus d "
     "espace,bientôt plein,bientôt plus de place,j aurai plus de place,tout mon espace,toute ma place,plus "
     "la place,plus de place disponible,limite atteinte"},
    {Sense::free,
     "libre,libres,disponible,disponibles,reste,restant,restante,reste t il,inutilisé,il reste,restent,me "
     "reste,de libre,dispo,vacant,restera,il restera,resterait,restera t il,encore de la place,y aura,libres "
     "encore,inoccupé,inoccupée,inutilisé encore,restants,restantes,il reste combien,reste combien,combien "
     "il reste,combien reste t il,combien me reste t il,me restent,il me reste,reste t il encore,y "
     "reste,encore libre,encore disponible,de dispo,dispos,disponible encore,de disponible,espace libre "
     "restant,espace restant,place restante,place disponible,espace disponible,marge,de reste,de "
     "marge,inoccupés,vacante"},
    {Sense::total, "total,totale,capacité,au total,en tout,globale,taille totale,au "
                   "totale,aperçu,résumé,bilan,état,au total mon,la totalité,totalité,vue d "
                   "ensemble,récap,récapitulatif,synthèse,globalement,globales,global,état des lieux,état "
                   "de,le tout,tailles totales,somme,capacité totale"},
    {Sense::disk,
     "disque,disque dur,ssd,hdd,ordinateur,ordi,pc,machine,portable,partition,stockage,disques,le "
     "disk,disque système,mon mac,bécane,disk,disque interne,disque ssd,pc portable,mac,volume,ordinateur "
     "portable,ordis,ordinateurs,laptop,machine linux,support de stockage,mémoire interne,stockage "
     "interne,nvme,unité,partition home,tour"},
    {Sense::space, "place,espace,espace disque,espace de stockage,mémoire,place "
                   "disque,rentre,rentrent,tiennent,loger,place libre,stockage "
                   "disponible,emplacement,espaces,place de libre,espace de libre,d espace,gigas d espace"},
    {Sense::howMuch,
     "combien,combien de,combien d,conbien,cb de,cb,combien reste,quelle quantité,quelle quantité "
     "de,combiens,qu est ce que je gagne,que gagne,je gagne quoi,ça libère combien,combien ça libère,qu est "
     "ce que ça libère,cmb,cmb de,combien ça,ça fait gagner combien,je gagne combien,je récupère "
     "combien,combien je gagne,combien je récupère,combien je libère,je libère combien,combien libère,ça me "
     "libère combien,ça libère quoi,ça me fait gagner combien,ça rapporte combien,combien ça "
     "rapporte,combien ça me rapporte,que gagnerais je,qu est ce que je gagnerais,combien gagnerais je,quel "
     "gain,gain,combien en plus,quelle quantité d,de combien,à combien,sur combien,combien est ce "
     "que,combien est ce,quel espace,quelle place"},
    {Sense::why, "pourquoi,pour quelle raison,pour quelles raisons,comment se fait il,comment ça se "
                 "fait,raison,pk,pourkoi,d où vient,à cause de quoi,pourquoi est ce que,pour quoi,prkoi,pq,c "
                 "est à cause de quoi,quelle est la raison,quelles raisons,la cause,cause,causes,d où vient "
                 "que,d où ça vient,comment ça se fait que,comment se fait il que,qu est ce qui fait que,à "
                 "quoi est dû,à quoi c est dû,qu est ce qui explique,la raison"},
    {Sense::when,
     "quand,à quelle date,dans combien de temps,dans combien de jours,combien de temps,d ici combien,quel "
     "jour,bientôt,à quel moment,quelle date,d ici quand,combien de jours,combien de mois,à partir de "
     "quand,jusqu à quand,encore combien de temps,quand est ce que,quand est ce qu,c est quand,c était "
     "quand,quel mois,en quel mois,d ici combien de temps,au bout de combien de temps,combien de temps "
     "avant,combien de temps reste t il,encore combien,dans combien de mois,combien de semaines,combien d "
     "années,à quelle échéance,dans longtemps,prochainement,quand va,d ici peu,date à laquelle,pour "
     "quand,dans combien,il me reste combien de temps,combien de temps il reste"},
    {Sense::most,
     "le plus,la plus,les plus,le plus de place,le plus d espace,la plupart,le plus gros de,l "
     "essentiel,principalement,le plus vite,plus vite,le plus rapidement,plus rapidement,en "
     "majorité,majoritairement,la majorité,majorité,le plus gourmand,les plus gourmands,plus gourmands,plus "
     "gourmandes,les plus gourmandes,le plus de mémoire,plus de place que les autres,le pire,les "
     "pires,pire,principal coupable,coupable,coupables,responsable,responsables,le plus de stockage,en "
     "premier,surtout,davantage"},
    {Sense::takes,
     "prend,prennent,occupe,occupent,consomme,consomment,bouffe,bouffent,mange,mangent,utilisent,gaspille,"
     "monopolise,encombre,encombrent,squatte,squattent,prendre,prends,dévore,dévorent,remplissent,pompe,"
     "pompent,consommateurs,gourmands,gourmand,boulotte,boulottent,grignote,grignotent,accapare,accaparent,"
     "monopolisent,bouffer,occuper,occupait,prendrait,prendra,utilise de la place,prend de la place,prennent "
     "de la place,prend toute la place,bouffe de la place,bouffe tout,bouffent "
     "tout,bouffeurs,bouffeur,gouffre,gouffres,rempli "
     "de,gaspillent,gaspillée,engloutit,engloutissent,ronge,consommer,mobilise,mobilisent,squatter,gourmande,"
     "gourmandes,envahit,envahissent"},
    {Sense::biggest,
     "plus gros,plus grand,plus grands,plus grosse,plus grosses,plus grande,plus grandes,les plus gros,le "
     "plus gros,la plus grosse,les plus grosses,les plus grands,plus lourd,plus lourds,plus "
     "volumineux,gros,grosse,grosses,volumineux,énormes,énorme,le plus grand,la plus grande,les plus "
     "lourds,top,le plus volumineux,les plus volumineux,lourds,plus lourdes,les plus grandes,par taille,le "
     "plus lourd,plus volumineuses,lourdes,les plus lourdes,la plus "
     "lourde,grands,gigantesque,gigantesques,massif,massifs,immense,immenses,maxi,mastodonte,mastodontes,"
     "plus encombrant,plus encombrants,par ordre de taille,classés par taille,triés par taille,trié par "
     "taille,du plus gros au plus petit,plus lourde,le plus large,les plus imposants,imposants,imposant,plus "
     "imposants,balèze,balèzes,grande,grandes,grand,lourd,lourde,volumineuses,volumineuse,le plus "
     "énorme,gros de"},
    {Sense::smallest, "plus petit,plus petits,plus petite,plus petites,les plus petits,le plus petit,les "
                      "plus petites,la plus petite,petit,petits,petite,petites,minuscule,minuscules,moins "
                      "gros,le moins gros,les moins gros,plus léger,plus légers"},
    {Sense::oldest,
     "plus vieux,plus ancien,plus anciens,plus ancienne,plus anciennes,les plus vieux,le plus vieux,les plus "
     "anciens,le plus ancien,les plus anciennes,la plus "
     "ancienne,vieux,vieille,vieilles,anciens,anciennes,plus vieilles,plus vieille,ancien,les plus "
     "vieilles,la plus vieille,ancienne,quel "
     "âge,âge,vieillot,antique,antiques,périmé,périmés,obsolète,obsolètes,datés de longtemps,d époque,d il y "
     "a longtemps,le plus âgé,plus âgé,plus âgés,vieu,d antan,les premiers,vétuste,anciennement"},
    {Sense::newest,
     "dernièrement,ces derniers temps,plus récent,plus récents,plus récente,plus récentes,les plus "
     "récents,le plus récent,récent,récents,les plus récentes,la plus "
     "récente,nouveaux,nouveau,nouvelles,récentes,récemment,plus "
     "récemment,changé,changés,modifié,modifiés,modifiées,ajouté,ajoutés,nouveautés,tout récent,tout "
     "récents,toute récente,tout nouveau,tout nouveaux,tout neuf,dernier ajouté,derniers "
     "ajoutés,ajoutée,ajoutées,changée,changées,modifiée,apparu,apparus,apparues,créé,créés,créées,neuf,"
     "neufs,fraîchement,fraîchement téléchargé,arrivés,arrivées,dernier en date,derniers en date,dernières "
     "en date,plus frais,nouvellement,nouvelle,il y a peu,édités,édité,bougé,dernière modification"},
    {Sense::grow,
     "a pris du poids,a gonflé,a pris de la place,prend du volume,grossi,grossit,a grandi,ont "
     "grandi,grandit,augmenté,augmente,croissance,pris du volume,pris de la place,gonflé,enflé,a "
     "augmenté,agrandi,grossissent,grossir,grossis,grossies,grossie,agrandit,agrandis,agrandie,agrandissent,"
     "s est agrandi,s est "
     "alourdi,alourdi,gonflés,gonflent,augmentent,augmentés,augmentée,augmentation,augmenter,pris de l "
     "ampleur,prend de l ampleur,prend du poids,pris du poids,pris plus de place,prend plus de place,prend "
     "plus de place qu avant,progression,progressé,évolué,évolution,accroissement,accru,explosé,s est "
     "accumulé,accumulé,entassé,doublé de volume,pris de la place en plus,plus gros qu avant"},
    {Sense::above,
     "compare,comparer,comparé à,comparés à,plus de,au dessus de,supérieur à,supérieurs à,plus grand "
     "que,plus gros que,plus grands que,au moins,dépassant,dépassent,de plus de,supérieures à,plus lourd "
     "que,plus lourds que,ou plus,minimum,>,faisant plus de,plus grosses que,plus grandes que,et plus,pesant "
     "plus de,plus d,dépasse,plus volumineux que,entre,supérieure à,au delà de,plus lourde que,plus lourdes "
     "que,minimum de,et au dessus,ou plus gros,ou plus grand,dépassant les,dépassent les,qui dépassent,qui "
     "dépasse,excédant,excède,versus,vs,par rapport aux,comparaison,compare moi,qui font plus de,font plus "
     "de,qui pèsent plus de,pèsent plus de,qui fait plus de,fait plus de,plus longs que,pèse plus de,au "
     "minimum,dépasser"},
    {Sense::below, "moins de,en dessous de,inférieur à,inférieurs à,plus petit que,plus petits que,au "
                   "plus,inférieures à,ou moins,maximum,<,de moins de,moins d,au maximum,sous,inférieure "
                   "à,plus petite que,plus petites que,moins gros que,moins lourd que,qui font moins de,font "
                   "moins de,qui pèsent moins de,pèsent moins de,pas plus de,et moins,et en dessous"},
    {Sense::inside, "dans,dedans,depuis le dossier,à l intérieur de,du dossier,dans le,dans le dossier,dans "
                    "mon,dans mes,au sein de,dans ma,à l intérieur du,à l intérieur,venant de,sous le "
                    "dossier,dans les,sur mon bureau dans,en provenance de"},
    {Sense::unopened,
     "pas ouvert,pas ouverts,jamais ouvert,jamais ouverts,pas utilisé,pas utilisés,non "
     "ouverts,inutilisés,inutilisées,oubliés,oublié,non utilisés,pas ouverte,pas ouvertes,plus ouvert,plus "
     "ouverts,plus utilisé,n utilise pas,n utilise plus,n utilise jamais,utilise pas,utilise plus,utilise "
     "jamais,pas touché,plus touché,jamais utilisé,jamais utilisés,jamais utilisées,me servent plus,sert "
     "plus,oubliées,non utilisées,n ai pas ouvert,n ai pas ouverts,n ai plus ouverts,n ai jamais "
     "ouverts,inutilisée,jamais lu,jamais lus,jamais regardé,jamais regardés,jamais écouté,jamais "
     "écoutés,jamais lancé,jamais lancés,jamais joué,plus regardé,plus regardés,pas regardé,pas regardés,pas "
     "consulté,pas consultés,plus consultés,plus touchés,pas touchés,plus utilisés,plus utilisées,plus "
     "utilisée,pas utilisée,pas utilisées,jamais utilisée,n utilise plus jamais,me sers plus,me sers pas,me "
     "sers jamais,ne me sers plus,ne me sers pas,ne me sers jamais,peu utilisé,peu utilisés,peu "
     "utilisées,rarement utilisé,rarement utilisés,rarement utilisées,rarement ouvert,rarement ouverts,n "
     "utilise presque plus,prennent la poussière,qui dorment,dorment,traînent "
     "depuis,délaissés,abandonnés,abandonné,laissés à l abandon,non lus,non lu,non ouvert,n ai pas utilisé,n "
     "ai pas utilisées,n ai pas utilisés,n ai plus utilisé,n ai plus utilisées,n ai plus utilisés,n ai plus "
     "touché,n ai pas touché,n ai jamais utilisé,n ai jamais utilisées,n ai jamais ouvert,n ai jamais "
     "ouvertes,n ai jamais lu,n ai pas regardé,n ai pas vu,n ouvre plus,n ouvre jamais,n ouvre pas,j ouvre "
     "jamais,j utilise pas,j utilise plus,j utilise jamais,pas ouvertes depuis,plus ouvertes,plus ouverte"},
    {Sense::before,
     "avant,plus vieux que,plus ancien que,plus anciens que,antérieur à,antérieurs à,plus vieilles que,plus "
     "anciennes que,d ici,avant le,avant la,antérieures à,d avant,jusqu à,jusqu au,jusqu aux,jusqu "
     "en,jusque,jusqu à la,jusqu à l,plus vieux qu,plus anciens qu,plus ancienne que,plus vieille que,plus "
     "âgés que,de plus d,vieux de plus de,datant d avant,datent d avant,d avant le,date d avant,remontant à "
     "plus de,vieux de,qui ont plus de,qui ont plus d,ont plus de,ont plus d,qui datent de plus de,qui "
     "datent de plus d,datant de plus de,datant de plus d,il y a plus de,il y a plus d,avant l"},
    {Sense::since, "depuis le début de,depuis début,depuis le début du,depuis le commencement de,depuis,plus "
                   "récent que,plus récents que,à partir de,depuis la,depuis le,depuis les,plus récente "
                   "que,plus récentes que,plus jeunes que,plus jeune que,à compter de,dès le,depuis la mi,à "
                   "partir du,de moins d,datant de moins de,depuis l"},
    {Sense::after, "après,postérieur à,postérieurs à,après le,après la,passé le,suivant le,postérieure "
                   "à,postérieures à,ultérieurs à"},
    {Sense::last, "dernier,dernière,derniers,dernières,précédent,la dernière fois,précédente,dernière "
                  "fois,précédents,dernier coup,la fois d avant,la dernière foi,dernière foi,précédentes,la "
                  "toute dernière"},
    {Sense::privacy,
     "restent sur mon ordinateur,reste sur mon ordinateur,restent sur mon pc,restent chez moi,reste chez "
     "moi,besoin d internet,besoin d une connexion,connexion internet,sans internet,hors connexion,regardes "
     "mes fichiers,lis mes fichiers,lis tu mes,voit mes fichiers,voir mes fichiers,voir mes photos,voit mes "
     "photos,ton entreprise,votre entreprise,votre société,internet,en ligne,réseau,privé,privées,vie "
     "privée,confidentialité,confidentiel,cloud,nuage,télémétrie,envoyer,envoie,envoies,envoyé,envoyées,"
     "envoyés,serveur,serveurs,espionne,espionnes,espionner,partager,partage,partages,compte,hors "
     "ligne,téléverser,upload,collecte,collectes,données personnelles,transmet,transmises,transmet "
     "tu,tiers,google,wifi,quitte,quittent,mes données privées,rgpd,sur le net,espion,le "
     "web,transmettre,ia,sortent,pub,récolte,qui peut voir,qui peut lire,qui a accès,connecté,connectée,voit "
     "mes mots de passe,mes données partent,partent sur internet,quelque part sur internet,sort de mon "
     "ordinateur,sort de mon pc,sortent de mon ordinateur,sortent de mon pc,quittent mon ordinateur,quittent "
     "mon pc,envoyées quelque part,récupères mes données,récupère mes "
     "données,revends,revend,revendre,revendues,vends,vend,vendre mes "
     "données,vendues,fuite,fuites,fuiter,partagées,surveille,surveilles,surveiller,surveillance,traque,"
     "traques,tracer,traceurs,pister,pisté,mouchard,mouchards,en ligne "
     "mes,téléversé,téléverses,uploader,uploades,uploadé,mes infos,données privées,mes données perso,données "
     "perso,intimité,confidentielles,confidentielle,lis tu,lit mes,lire mes,regarde mes,regardes tu "
     "mes,accès à mes,as accès à,a accès à,a accès,vois tu mes,tu vois mes,tu lis mes,tu regardes "
     "mes,connexion,besoin du wifi,besoin d être connecté,besoin du net,le net,intelligence "
     "artificielle,chatgpt,facebook,hackers,hacker,pirates,publicités,sur le "
     "web,publique,publiques,secret,secrets,voir mes mots de passe,lire mes mots de passe,connaître mes mots "
     "de passe,voir mes fichiers perso,qui voit,qui lit,tu lis mes mails,tu lis mes messages,lis mes "
     "mails,lire mes mails"},
    {Sense::hidden,
     "masqué,masqués,masquée,masquées,invisible,invisibles,cachée,cachées,planqué,planqués,cachés,caché"},
    {Sense::folder, "dossier,dossiers,répertoire,répertoires,sous dossier,sous dossiers,sous "
                    "répertoires,sous répertoire,arborescence,doss,sous-dossiers,sous-dossier"},
    {Sense::general,
     "désactiver,désactive,empêcher,empêche,arrêter,arrête,couper,prévision,langue,langues,analyse,résultat,"
     "résultats,bazar,catégorie,catégories,mieux,autre,autres,premier,abord,premier "
     "lieu,long,longtemps,seul,bon,temps,jour,jours,mois,année,fois,vers "
     "quoi,plus,ordures,restes,cesser,cesse,stopper,stoppe,stop,rompt,rompre,bloquer,bloque,interdire,"
     "interdis,éteindre,éteins,éviter,évite,prévisions,activer,scan,emplacement de,pire "
     "encore,désordre,foutoir,fouillis,désactivation,empêches,empêcher que,arrêtes,arrêter que,arrêtez"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler, "avec leurs données,avec données,données comprises,données incluses,avec leurs fichiers"},
};

constexpr SubjectRow kSubjects[] = {
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
     "applications,données en cache,cache du navigateur,mémoire cache,cache des applis,fichiers temp,le "
     "cache,caches des applis,caches d applications,cache d application,caches des applications,fichier "
     "cache,fichiers en cache,données cache,temporaires,fichiers tmp,dossier cache,dossiers cache,dossiers "
     "de cache,dossier de cache,cache des navigateurs,cache navigateur,cache firefox,fichier "
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
    {SubjectID::photos,
     "photo,photos,image,images,clichés,photographies,fichiers image,fichiers images,selfies,photos de "
     "vacances,photos de famille,cliché,photographie,image et photo,fotos,fichier image,fichiers "
     "photo,fichiers photos,fichiers jpg,jpeg,jpegs,jpgs,images jpg,prises de vue,photos du "
     "téléphone,dessins,selfie,photos perso,illustrations"},
    {SubjectID::audio,
     "musique,musiques,chansons,chanson,audio,fichiers audio,mp3,albums,morceaux,podcasts,fichiers "
     "mp3,fichiers son,livres audio,zik,zique,sons,titres,pistes,pistes audio,fichier audio,fichiers "
     "musicaux,fichiers de musique,fichiers musique,album,mp3s,fichier mp3,bandes son,livres "
     "audios,podcast,morceau"},
    {SubjectID::pdfs,
     "pdf,pdfs,fichiers pdf,documents pdf,fichier pdf,document pdf,documents en pdf,fichiers en pdf"},
    {SubjectID::archives,
     "archive,archives,zip,zips,fichiers zip,fichiers compressés,archives zip,fichier zip,archives "
     "zippées,fichiers zippés,fichiers rar,rar,fichiers archives,archives compressées,archive "
     "zip,tar,tarballs,fichiers tar,fichier compressé,dossiers compressés,zippés"},
    {SubjectID::installers,
     "installateur,installateurs,programmes d installation,fichiers d "
     "installation,paquets,installeurs,paquets d installation,installeur,fichier d "
     "installation,setup,setups,fichiers setup,programme d installation,installers,installer,paquets "
     "deb,fichiers deb,deb,appimages,paquet d installation,fichiers d install"},
    {SubjectID::diskImages, "image disque,images disque,iso,isos,fichiers iso,images iso,machines "
                            "virtuelles,machine virtuelle,disques virtuels,images de disque,image "
                            "iso,fichier iso,image de disque,vm,vms,images de cd,images d installation iso"},
    {SubjectID::spreadsheets, "feuilles de calcul,tableurs,tableaux,fichiers excel,tableaux excel,feuille de "
                              "calcul,excel,tableur,fichier excel,tableaux de calcul,csv,fichiers "
                              "csv,fichiers calc,feuilles excel,classeurs,tableaux xls"},
    {SubjectID::presentations,
     "présentation,présentations,diapositives,powerpoints,diapos,powerpoint,diaporamas,diaporama,fichiers "
     "powerpoint,présentations powerpoint,ppt,powerpoint présentations,diapositive,exposés"},
    {SubjectID::ebooks,
     "livres,ebooks,livres numériques,e books,livre,ebook,livre numérique,epub,epubs,bouquins,liseuse"},
    {SubjectID::documents,
     "document,documents,papiers,fichiers texte,courriers,documents word,fichiers word,documents "
     "texte,lettres,docs,doc,papier,fichiers textes,fichier texte,texte,textes,document word,fichier "
     "word,courrier,lettre,papiers administratifs,paperasse,documents administratifs,factures"},
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
    {Figure::month, "janvier,janv,jan,janv.", 1},
    {Figure::month, "février,fév", 2},
    {Figure::month, "mars", 3},
    {Figure::month, "avril", 4},
    {Figure::month, "mai", 5},
    {Figure::month, "juin", 6},
    {Figure::month, "juillet,juil", 7},
    {Figure::month, "août", 8},
    {Figure::month, "septembre,sept", 9},
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
    {Figure::agoBefore, "il y a,y a,ya,il y a environ"},
    {Figure::previous, "dernier,dernière,derniers,dernières,passé,passée,précédent,précédente,passés,"
                       "dernières années,écoulé,écoulés,écoulée,écoulées"},
    {Figure::current, "ce,cette,cet"},
    {Figure::following, "prochain,prochaine,prochains,prochaines,qui vient,à venir,suivants,d après"},
    {Figure::ahead, "dans,d ici,encore,pendant,d ici à,pour encore,au bout de"},
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
