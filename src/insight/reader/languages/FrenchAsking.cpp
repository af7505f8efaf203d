#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::french_words {

namespace {

constexpr WordRow kAsking[] = {
    {Sense::ending, "(fichier|fichiers) (texte|textes|txt|de texte brut),texte"},
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
     "là,ceux,celui,celle,celles,ça,cela,en,ceci,lui"},
    {Sense::therein, "(là|) dedans"},
    {Sense::how, "comment"},
    {Sense::general, "le reste,les restants,les suivants,les suivantes"},
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
     "nous,as tu,a t il,ont ils,a t elle,ait,puissent,seraient,étant,fut,sois,suffisamment,pour une mise à "
     "jour,pour la mise à jour,pour les mises à jour,pour une mise à niveau,direct"},
    {Sense::negation, "ne,pas,jamais,plus jamais,aucun,aucune,rien,n ai pas,n est pas,ne "
                      "pas,nan,nul,nulle,guère,point de,n ont pas,n a pas,ni l un,aucuns,aucunes,personne"},
    {Sense::except,
     "qui n est pas une,qui n est pas un,qui ne sont pas des,qui ne soit pas une,qui ne soit pas un,sauf,à "
     "part,hormis,excepté,à l exception de,à l exception des,à l exception du,en dehors de,en dehors des,en "
     "dehors du,mis à part,hors,autre que,autres que,autre chose que,sans,sans compter,mais pas,et "
     "pas,exclure,sans les,sans le,sans la,à l exclusion de,à l exclusion des,en excluant,sans "
     "toucher à,sans toucher aux,sans toucher,sans supprimer,sans effacer,sans perdre,mais sans,mais "
     "laisse,laisse de côté,ni,à part les,sauf les,sauf le,sauf la,et sans,au lieu de,sauf "
     "mes,sauf mon,sauf ma,à part mes,à part mon,à part ma,hormis les,hormis "
     "mes,hormis le,excepté les,excepté mes,en dehors de mes,sans compter les,sans compter mes,sans mes,sans "
     "mon,sans ma,mais pas les,mais pas mes,mais pas le,pas les,mais garde,mais garde mes,pas ceux,pas "
     "celles,en laissant,laisse mes,laisser,si ce n est,plutôt que,sans inclure,ne pas compter,sans rien"},
    {Sense::outside, "pas dans,sauf dans,sauf ceux dans,sauf celles dans"},
    {Sense::lasts, "tiendra,tient,tenir,suffit,suffira,suffire,suffisant,dure,durera,durer,va tenir,aurai "
                   "je,aura t on,y aura t il,aurons nous,tiendra t il,tiendra t on,ça tient,ça va tenir,vais "
                   "tenir,suffira t il,suffiront,suffisante,suffisants,tenir le coup,va suffire,assez "
                   "jusqu,survivre,survivra,il y aura assez,ça ira,passera,sera suffisant,va durer"},
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
     "z,récupérables,récupérable,ressusciter,récupéré un,reviens,reviens en arrière"},
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
     "été,cumulé,en cumulé,dans le passé,depuis le tout début,déjà nettoyé,déjà supprimé,déjà effacé,déjà "
     "viré,déjà enlevé,déjà fait le ménage,ai déjà nettoyé,ai déjà supprimé,déjà libéré,déjà récupéré,déjà "
     "gagné,déjà jeté,déjà retiré,déjà fait le tri,tous les nettoyages passés,tous les nettoyages "
     "précédents,tous mes nettoyages,déjà supprimé des trucs,déjà supprimé des choses,déjà supprimé quelque "
     "chose,déjà supprimé des fichiers,déjà effacé des trucs"},
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
};

} // namespace

std::span<const WordRow> asking()
{
    return kAsking;
}

} // namespace orlen::AskReader::french_words
