#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader {

namespace spanish_words {

constexpr FigureRow kFigureRows[] = {
    {Figure::number, "dos,par,un par,un par de", 2},
    {Figure::number, "tres,unos tres", 3},
    {Figure::number, "cuatro", 4},
    {Figure::number, "cinco", 5},
    {Figure::number, "seis", 6},
    {Figure::number, "siete", 7},
    {Figure::number, "ocho", 8},
    {Figure::number, "nueve", 9},
    {Figure::number, "diez", 10},
    {Figure::number, "doce,docena", 12},
    {Figure::number, "quince", 15},
    {Figure::number, "veinte", 20},
    {Figure::number, "cincuenta", 50},
    {Figure::number, "cien,ciento", 100},
    {Figure::ordinal, "primero,primera,primer,primeros,primeras,1º,1ª", 1},
    {Figure::ordinal, "segundo,segunda,2º,2ª", 2},
    {Figure::ordinal, "tercero,tercera,tercer,3º,3ª", 3},
    {Figure::ordinal, "cuarto,cuarta,4º,4ª", 4},
    {Figure::ordinal, "quinto,quinta,5º,5ª", 5},
    {Figure::sizeUnit, "megas,mega", 1e6},
    {Figure::sizeUnit, "gigas,giga", 1e9},
    {Figure::sizeUnit, "teras,tera", 1e12},
    {Figure::timeUnit, "día,días", 0},
    {Figure::timeUnit, "semana,semanas", 1},
    {Figure::timeUnit, "mes,meses", 2},
    {Figure::timeUnit, "año,años", 3},
    {Figure::month, "enero,ene", 1},
    {Figure::month, "febrero,feb", 2},
    {Figure::month, "marzo", 3},
    {Figure::month, "abril", 4},
    {Figure::month, "mayo", 5},
    {Figure::month, "junio", 6},
    {Figure::month, "julio", 7},
    {Figure::month, "agosto,ago", 8},
    {Figure::month, "septiembre,setiembre,sep,sept", 9},
    {Figure::month, "octubre,oct", 10},
    {Figure::month, "noviembre,nov", 11},
    {Figure::month, "diciembre,dic", 12},
    {Figure::weekday, "domingo", 0},
    {Figure::weekday, "lunes", 1},
    {Figure::weekday, "martes", 2},
    {Figure::weekday, "miércoles", 3},
    {Figure::weekday, "jueves", 4},
    {Figure::weekday, "viernes", 5},
    {Figure::weekday, "sábado", 6},
    {Figure::daysAgo, "hoy", 0},
    {Figure::number, "medio", 0.5},
    {Figure::daysAgo, "ayer", 1},
    {Figure::daysAgo, "anteayer,antier,antes de ayer,antes de anoche", 2},
    {Figure::agoBefore, "hace,desde hace,hace unos,hace como"},
    {Figure::previous, "pasado,pasada,último,última,últimos,últimas,anterior,anteriores,previo,previa"},
    {Figure::current, "este,esta"},
    {Figure::following,
     "próximo,próxima,próximos,próximas,que viene,siguiente,siguientes,entrante,venidero,venidera,que entra"},
    {Figure::ahead, "en,dentro de,de aquí a,durante,de aquí,en los próximos,para dentro de,por"},
    {Figure::daysAhead, "mañana", 1},
    {Figure::daysAhead, "pasado mañana", 2},
    {Figure::namedDay, "año nuevo", valueOf(NamedDay::newYear)},
    {Figure::namedDay, "san valentín", valueOf(NamedDay::valentine)},
    {Figure::namedDay, "pascua,semana santa,domingo de pascua", valueOf(NamedDay::easter)},
    {Figure::namedDay, "pentecostés", valueOf(NamedDay::pentecost)},
    {Figure::namedDay, "halloween", valueOf(NamedDay::halloween)},
    {Figure::namedDay, "todos los santos", valueOf(NamedDay::allSaints)},
    {Figure::namedDay, "nochebuena", valueOf(NamedDay::christmasEve)},
    {Figure::namedDay, "navidad,navidades", valueOf(NamedDay::christmas)},
    {Figure::namedDay, "nochevieja,fin de año", valueOf(NamedDay::newYearsEve)},
    {Figure::namedDay, "primavera", valueOf(NamedDay::spring)},
    {Figure::namedDay, "verano", valueOf(NamedDay::summer)},
    {Figure::namedDay, "otoño", valueOf(NamedDay::autumn)},
    {Figure::namedDay, "invierno", valueOf(NamedDay::winter)},
    {Figure::endOf, "fin,fin de,el fin de,final de,finales de,finales del,final del,fines de,el final de",
     -1},
    {Figure::ordinal, "siguiente,próximo", 0},
    {Figure::ofDate, "de,del,el"},
};

} // namespace spanish_words

const Language& spanish()
{
    static const Language language{spanish_words::ofOrlen(),
                                   spanish_words::asking(),
                                   spanish_words::subjects(),
                                   spanish_words::kFigureRows,
                                   {},
                                   false,
                                   "word,texto,de,archivo,fichero,elemento,cosa,carpeta,directorio,vídeo,"
                                   "película,peli,clip,foto,imagen,fotografía,"
                                   "canción,pdf,documento,descarga,descargado,último",
                                   spanish_words::measures(),
                                   "lo,la,los,las",
                                   true,
                                   "más,otros,otras,demás,el resto,los restantes,(los|las) siguientes"};
    return language;
}

} // namespace orlen::AskReader
