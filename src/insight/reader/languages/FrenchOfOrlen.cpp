#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::french_words {

namespace {

constexpr WordRow kOfOrlen[] = {
    {Sense::holds, "contient,contiennent,renferme"},
    {Sense::put, "mettre,mets"},
    {Sense::override, "(ignore|oublie|ignorez|oubliez) (toutes|) (les|tes|vos) "
                      "(instructions|consignes|règles|ordres) (précédentes|)"},
    {Sense::called, "dossiers (nommés|appelés|s appellent|du nom de|qui s appellent)"},
    {Sense::otherWork, "traduire,traduis,traduisez,traduis moi"},
    {Sense::reads, "(ouvres|lis) tu,(tu|orlen) (ouvres|ouvre)"},
    {Sense::trust, "(fais tu|tu fais|commets tu) (des|parfois des) erreurs,(te trompes tu|tu te trompes)"},
    {Sense::filler, "d un coup,tout d un coup,soudain,soudainement,subitement"},
    {Sense::gone,
     "perdu,perdus,perdue,ai je perdu,j ai perdu,je perds,disparu,disparus,disparaît,envolé,envolés,évaporé"},
    {Sense::happens,
     "sans (que je le sache|mon accord|me prévenir|confirmation),(préviens|demandes) tu (avant|)"},
    {Sense::filler, "quelque part,nulle part ailleurs"},
    {Sense::what, "à quoi (sert|servent|ça sert|me sert),ça sert à quoi,pour quoi faire"},
    {Sense::outside, "hors (de|du|des),en dehors (de|du|des)"},
    {Sense::filler, "j ai prises,j ai pris,photographiées,que j ai filmées,que j ai filmés"},
    {Sense::unknown, "navigateur"},
    {Sense::freed, "(que|qu|) (tu as|tu a|t as|orlen a|as tu|a t il|vous avez) (tout|) "
                   "(supprimé|supprimés|supprimées|effacé|effacés|"
                   "enlevé|enlevés|retiré|retirés|jeté|jetés|nettoyé|nettoyés|déplacé|déplacés|viré|virés)"},
    {Sense::undo, "où sont passés (mes|les|tous mes) (fichiers|trucs|documents)"},
    {Sense::rhythm, "à quelle fréquence,tous les combien,combien de fois (dois je|faut il|devrais je)"},
    {Sense::rights,
     "droits (d administrateur|administrateur|admin|d admin|root),administrateur,admin,root,sudo,"
     "superutilisateur,mot de passe (administrateur|root|admin|de session),(demandes tu|tu demandes|"
     "demande|besoin) (mon|un|le|de mon|d un|du) mot de passe"},
    {Sense::ownRemoval,
     "(désinstaller|désinstalle|supprimer|enlever|retirer) (orlen|ce programme|ce logiciel|cette "
     "appli|cette application),te (désinstaller|désinstalle|supprimer|enlever),me débarrasser (d "
     "orlen|de toi),désinstalle t on orlen"},
    {Sense::resident,
     "(tu|orlen|ce programme|ce logiciel|cette appli|cette application|l application|l appli) (tournes|"
     "tourne|fonctionnes|fonctionne|travailles|travaille|restes|reste|démarres|démarre) (en arrière "
     "plan|en tâche de fond|en permanence|tout seul|automatiquement|la nuit),(tournes|fonctionnes|"
     "travailles|restes|démarres) tu (en arrière plan|en tâche de fond|en permanence|tout seul|"
     "automatiquement|la nuit),(tourne|fonctionne|travaille|démarre) t (il|elle) (en arrière plan|en "
     "permanence|tout seul|la nuit)"},
    {Sense::otherWork,
     "(fais tu|tu fais|orlen fait|ce programme fait|faire|peux tu faire|fait orlen) (des|une|) "
     "(sauvegardes|sauvegarde|copies de sécurité|copies de secours|copie de sécurité|backup|"
     "backups),(sauvegardes|chiffres|compresses|synchronises|convertis|répares|imprimes|copies) tu,(tu|"
     "orlen|ce programme|ce logiciel|cette appli|cette application|l application|l appli) (sauvegardes|"
     "sauvegarde|chiffres|chiffre|compresses|compresse|synchronises|synchronise|répares|répare)"},
    {Sense::deletes,
     "(tu|orlen|ce programme|ce logiciel|cette appli|cette application|l application|l appli) "
     "(supprimes|supprime|effaces|efface|modifies|modifie|changes|change|détruis|détruit|déplaces|"
     "déplace|supprimeras|supprimera),(supprimes|effaces|modifies|changes|détruis|déplaces) tu,(vas "
     "tu|tu vas|orlen va|ce programme va) (supprimer|effacer|modifier|détruire|déplacer|toucher à),"
     "à l abri (de toi|d orlen)"},
    {Sense::reads,
     "(tu|orlen|ce programme|ce logiciel|cette appli|cette application|l application|l appli) (lis|lit|"
     "regardes|regarde|ouvres|ouvre|scannes|scanne|fouilles|fouille|consultes|consulte|analyses|"
     "analyse) (dans|) (mes|mon|ma),(lis|regardes|ouvres|scannes|fouilles|consultes|analyses) tu (dans|"
     ") (mes|mon|ma),lis tu,(tu|orlen|ce programme|ce logiciel|cette appli|cette application|l "
     "application|l appli) (lis|lit),(peux|vas|pourrais) tu (lire|regarder|ouvrir|fouiller|consulter) "
     "(dans|) (mes|mon|ma),(tu peux|tu vas|orlen peut|orlen va) (lire|regarder|ouvrir|fouiller|"
     "consulter) (dans|) (mes|mon|ma)"},
    {Sense::privacy,
     "(tu|orlen|ce programme|ce logiciel|cette appli|cette application|l application|l appli) (vends|"
     "vend|stockes|stocke|enregistres|enregistre|collectes|collecte|gardes|garde) (mes|mon|ma|des),"
     "(vends|stockes|enregistres|collectes) tu"},
    {Sense::trust, "(es tu|tu es|orlen est) (fiable|sûr|sérieux|dangereux|un virus|digne de confiance)"},
    {Sense::ofOrlen, "vas tu,tu vas"},
    {Sense::otherWork,
     "fais (des|une) (sauvegardes|sauvegarde|copies de sécurité|copies de secours|backup|backups)"},
    {Sense::reads, "(lis|lisez|fouilles|ouvres) (mes|mon|ma),(lisez|ouvrez) vous"},
    {Sense::advise, "proposé,proposée,proposés,proposées,suggéré,suggérée"},
    {Sense::canOrlen, "(peux|pourrais) tu,tu (peux|pourrais),est ce que tu peux"},
    {Sense::order,
     "(supprime|efface|supprimez|effacez|détruis) (absolument|) tout (maintenant|de suite|),tout "
     "(supprimer|effacer),rm -rf,rm -fr,formate (mon|le) (disque|ordinateur)"},
    {Sense::ruleOut, "exclure un dossier,exclure un fichier,comment exclure,exclure du scan,exclure de l "
                     "analyse,exclusions,ajouter une exception,liste blanche,ne plus proposer,ne plus "
                     "suggérer,ne jamais analyser,comment j exclus,exclure des dossiers,ne pas "
                     "analyser,ignorer un dossier,dossier à ignorer,liste d exclusion,ajouter une "
                     "exclusion,exclure mon,exclure le dossier,exclure ce dossier,mettre de côté un dossier"},
};

} // namespace

std::span<const WordRow> ofOrlen()
{
    return kOfOrlen;
}

} // namespace orlen::AskReader::french_words
