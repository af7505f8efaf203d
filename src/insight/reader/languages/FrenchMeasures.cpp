#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::french_words {

namespace {

constexpr WordRow kMeasures[] = {
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
     "pires,pire,principal coupable,coupable,coupables,en cause,fautif,fautifs,en est la "
     "cause,responsable,responsables,le plus de stockage,en "
     "premier,surtout,davantage,le plus vite possible,le plus rapidement possible"},
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
    {Sense::general, "désactiver,désactive,empêcher,empêche,arrêter,arrête,couper,prévision,langue,langues,"
                     "analyse,résultat,résultats,bazar,catégorie,catégories,mieux,autre,autres,premier,abord,"
                     "premier lieu,long,longtemps,seul,bon,temps,jour,jours,mois,année,fois,vers "
                     "quoi,plus,ordures,restes,cesser,cesse,stopper,stoppe,stop,rompt,rompre,bloquer,bloque,"
                     "interdire,interdis,éteindre,éteins,éviter,évite,prévisions,activer,scan,emplacement "
                     "de,pire encore,désordre,foutoir,fouillis,désactivation,empêches,empêcher "
                     "que,arrêtes,arrêter que,arrêtez,modèle,modèles"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler, "avec leurs données,avec données,données comprises,données incluses,avec leurs fichiers"},
};

} // namespace

std::span<const WordRow> measures()
{
    return kMeasures;
}

} // namespace orlen::AskReader::french_words
