#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader {

namespace italian_words {

constexpr FigureRow kFigureRows[] = {
    {Figure::number, "due,paio,un paio,un paio di", 2},
    {Figure::number, "tre", 3},
    {Figure::number, "quattro", 4},
    {Figure::number, "cinque", 5},
    {Figure::number, "sei", 6},
    {Figure::number, "sette", 7},
    {Figure::number, "otto", 8},
    {Figure::number, "nove", 9},
    {Figure::number, "dieci", 10},
    {Figure::number, "dodici,dozzina", 12},
    {Figure::number, "quindici", 15},
    {Figure::number, "venti", 20},
    {Figure::number, "cinquanta", 50},
    {Figure::number, "cento", 100},
    {Figure::ordinal, "primo,prima,primi,prime,1º,1ª", 1},
    {Figure::ordinal, "secondo,seconda,2º,2ª", 2},
    {Figure::ordinal, "terzo,terza,3º,3ª", 3},
    {Figure::ordinal, "quarto,quarta,4º,4ª", 4},
    {Figure::ordinal, "quinto,quinta,5º,5ª", 5},
    {Figure::sizeUnit, "mega", 1e6},
    {Figure::sizeUnit, "giga", 1e9},
    {Figure::sizeUnit, "tera", 1e12},
    {Figure::timeUnit, "giorno,giorni", 0},
    {Figure::timeUnit, "settimana,settimane", 1},
    {Figure::timeUnit, "mese,mesi", 2},
    {Figure::timeUnit, "anno,anni", 3},
    {Figure::month, "gennaio,gen", 1},
    {Figure::month, "febbraio,feb", 2},
    {Figure::month, "marzo", 3},
    {Figure::month, "aprile", 4},
    {Figure::month, "maggio", 5},
    {Figure::month, "giugno", 6},
    {Figure::month, "luglio", 7},
    {Figure::month, "agosto", 8},
    {Figure::month, "settembre,sett", 9},
    {Figure::month, "ottobre,ott", 10},
    {Figure::month, "novembre,nov", 11},
    {Figure::month, "dicembre,dic", 12},
    {Figure::weekday, "domenica", 0},
    {Figure::weekday, "lunedì", 1},
    {Figure::weekday, "martedì", 2},
    {Figure::weekday, "mercoledì", 3},
    {Figure::weekday, "giovedì", 4},
    {Figure::weekday, "venerdì", 5},
    {Figure::weekday, "sabato", 6},
    {Figure::daysAgo, "oggi", 0},
    {Figure::number, "mezzo", 0.5},
    {Figure::daysAgo, "ieri", 1},
    {Figure::daysAgo, "l altro ieri,altroieri,altro ieri,avantieri", 2},
    {Figure::ago, "fa,or sono"},
    {Figure::agoBefore, "da"},
    {Figure::previous,
     "scorso,scorsa,scorsi,ultimo,ultima,ultimi,ultime,passato,passata,precedente,precedenti,appena passato"},
    {Figure::current, "questo,questa,quest"},
    {Figure::following, "prossimo,prossima,prossimi,prossime,venturo,ventura,entrante,che viene,che verrà"},
    {Figure::ahead, "fra,tra,in,entro,per,entro i,entro le,fino a tra,nei"},
    {Figure::daysAhead, "domani", 1},
    {Figure::daysAhead, "dopodomani", 2},
    {Figure::namedDay, "capodanno,anno nuovo", valueOf(NamedDay::newYear)},
    {Figure::namedDay, "san valentino", valueOf(NamedDay::valentine)},
    {Figure::namedDay, "pasqua", valueOf(NamedDay::easter)},
    {Figure::namedDay, "pentecoste", valueOf(NamedDay::pentecost)},
    {Figure::namedDay, "ferragosto", valueOf(NamedDay::midAugust)},
    {Figure::namedDay, "halloween", valueOf(NamedDay::halloween)},
    {Figure::namedDay, "ognissanti", valueOf(NamedDay::allSaints)},
    {Figure::namedDay, "vigilia di natale,vigilia", valueOf(NamedDay::christmasEve)},
    {Figure::namedDay, "natale", valueOf(NamedDay::christmas)},
    {Figure::namedDay, "san silvestro", valueOf(NamedDay::newYearsEve)},
    {Figure::namedDay, "primavera", valueOf(NamedDay::spring)},
    {Figure::namedDay, "estate", valueOf(NamedDay::summer)},
    {Figure::namedDay, "autunno", valueOf(NamedDay::autumn)},
    {Figure::namedDay, "inverno", valueOf(NamedDay::winter)},
    {Figure::endOf, "fine,la fine,fine di,la fine di,la fine del,fine del,la fine dell", -1},
    {Figure::ordinal, "prossimo,successivo,successiva,prossima", 0},
    {Figure::fromDate, "dal,dall,dalla,dallo,da"},
    {Figure::ofDate, "di,del,dell"},
};

} // namespace italian_words

const Language& italian()
{
    static const Language language{
        italian_words::ofOrlen(),
        italian_words::asking(),
        italian_words::subjects(),
        italian_words::kFigureRows,
        "l,d,dell,all,nell,sull,dall,quell,quest,un,c,cos,dov,quant,com,qual,s,t,m,v,n",
        false,
        "word,testo,di,elemento,cartella,filmato,fotografia,immagine,canzone,brano,documento,archivio,più,"
        "grande,grosso,"
        "pesante,vecchio,recente,nuovo,piccolo,grossa,vecchia,nuova,piccola,ultimo,scaricato,il,la",
        italian_words::measures(),
        "lo,la,li,le,gli",
        true,
        "altri,altre,il resto,(i|gli) (restanti|rimanenti|seguenti)"};
    return language;
}

} // namespace orlen::AskReader
