#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader {

namespace german_words {

constexpr FigureRow kFigureRows[] = {
    {Figure::number, "zwei,paar,ein paar", 2},
    {Figure::number, "drei", 3},
    {Figure::number, "vier", 4},
    {Figure::number, "fünf", 5},
    {Figure::number, "sechs", 6},
    {Figure::number, "sieben", 7},
    {Figure::number, "acht", 8},
    {Figure::number, "neun", 9},
    {Figure::number, "zehn", 10},
    {Figure::number, "zwölf,dutzend", 12},
    {Figure::number, "zwanzig", 20},
    {Figure::number, "fünfzig", 50},
    {Figure::number, "hundert", 100},
    {Figure::ordinal, "erste,erster,erstes,ersten", 1},
    {Figure::ordinal, "zweite,zweiter,zweites,zweiten", 2},
    {Figure::ordinal, "dritte,dritter,drittes,dritten", 3},
    {Figure::ordinal, "vierte,vierter,viertes,vierten", 4},
    {Figure::ordinal, "fünfte,fünfter,fünftes,fünften", 5},
    {Figure::timeUnit, "tag,tage,tagen", 0},
    {Figure::timeUnit, "woche,wochen", 1},
    {Figure::timeUnit, "monat,monate,monaten,monats", 2},
    {Figure::timeUnit, "jahr,jahre,jahren,jahres", 3},
    {Figure::month, "januar,jänner,jan", 1},
    {Figure::month, "februar,feber,feb", 2},
    {Figure::month, "märz", 3},
    {Figure::month, "april", 4},
    {Figure::month, "mai", 5},
    {Figure::month, "juni", 6},
    {Figure::month, "juli", 7},
    {Figure::month, "august", 8},
    {Figure::month, "september,sept", 9},
    {Figure::month, "oktober,okt", 10},
    {Figure::month, "november,nov", 11},
    {Figure::month, "dezember,dez", 12},
    {Figure::weekday, "sonntag", 0},
    {Figure::weekday, "montag", 1},
    {Figure::weekday, "dienstag", 2},
    {Figure::weekday, "mittwoch", 3},
    {Figure::weekday, "donnerstag", 4},
    {Figure::weekday, "freitag", 5},
    {Figure::weekday, "samstag,sonnabend", 6},
    {Figure::daysAgo, "heute", 0},
    {Figure::number, "ein halbes,halbes,halbe,ein halber", 0.5},
    {Figure::daysAgo, "gestern,gestan", 1},
    {Figure::daysAgo, "vorgestern", 2},
    {Figure::agoBefore, "vor,seit,seit über"},
    {Figure::previous,
     "letzte,letzten,letzter,letztes,letztem,vorige,vorigen,voriges,vergangenen,vergangene"},
    {Figure::current, "diese,diesen,dieser,dieses,diesem,heurigen"},
    {Figure::following,
     "nächste,nächsten,nächster,nächstes,nächstem,kommende,kommenden,kommendes,kommender,nächst"},
    {Figure::ahead, "in,binnen,innerhalb von,noch,für,in den nächsten"},
    {Figure::daysAhead, "morgen", 1},
    {Figure::daysAhead, "übermorgen", 2},
    {Figure::namedDay, "neujahr,neujahrstag,neues jahr", valueOf(NamedDay::newYear)},
    {Figure::namedDay, "valentinstag", valueOf(NamedDay::valentine)},
    {Figure::namedDay, "ostern,ostersonntag", valueOf(NamedDay::easter)},
    {Figure::namedDay, "pfingsten", valueOf(NamedDay::pentecost)},
    {Figure::namedDay, "halloween", valueOf(NamedDay::halloween)},
    {Figure::namedDay, "allerheiligen", valueOf(NamedDay::allSaints)},
    {Figure::namedDay, "heiligabend,heiliger abend,heiligen abend", valueOf(NamedDay::christmasEve)},
    {Figure::namedDay, "weihnachten,weihnacht", valueOf(NamedDay::christmas)},
    {Figure::namedDay, "silvester,sylvester", valueOf(NamedDay::newYearsEve)},
    {Figure::namedDay, "frühling,frühjahr", valueOf(NamedDay::spring)},
    {Figure::namedDay, "sommer", valueOf(NamedDay::summer)},
    {Figure::namedDay, "herbst", valueOf(NamedDay::autumn)},
    {Figure::namedDay, "winter", valueOf(NamedDay::winter)},
    {Figure::endOf, "ende,ende von", -1},
    {Figure::endOf, "wochenende", 1},
    {Figure::endOf, "monatsende", 2},
    {Figure::endOf, "jahresende", 3},
    {Figure::ordinal, "nächste,nächstes,nächster,nächsten,das danach", 0},
    {Figure::ofDate, "den,dem,des"},
};

} // namespace german_words

const Language& german()
{
    static const Language language{
        german_words::ofOrlen(),
        german_words::asking(),
        german_words::subjects(),
        german_words::kFigureRows,
        {},
        true,
        "word-dokument,worddokument,textdokument,textdatei,word-datei,datei,ding,sache,verzeichnis,video,"
        "film,clip,videodatei,foto,bild,lied,song,pdf,pdf-datei,dokument,"
        "archiv,download,tabelle,präsentation,buch",
        german_words::measures(),
        "der,die,das,den,dem",
        false,
        "weitere,weiteren,andere,anderen,die restlichen,die übrigen,der rest,den rest,noch 5,noch fünf,noch "
        "mehr,noch welche"};
    return language;
}

} // namespace orlen::AskReader
