#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader {

namespace french_words {

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
    {Figure::ordinal, "premier,première,premiers,premières,1er,1ère", 1},
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
    static const Language language{
        french_words::ofOrlen(),
        french_words::asking(),
        french_words::subjects(),
        french_words::kFigureRows,
        "l,d,j,m,t,s,n,c,qu,jusqu,lorsqu,puisqu,quelqu,aujourd",
        false,
        "word,texte,de,fichier,élément,chose,truc,dossier,répertoire,vidéo,film,clip,photo,"
        "image,chanson,pdf,document,archive,téléchargement,téléchargé,dernier",
        french_words::measures(),
        "le,la,les,l",
        false,
        "autres,le reste,les restants,les (suivants|suivantes)"};
    return language;
}

} // namespace orlen::AskReader
