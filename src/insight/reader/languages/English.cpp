#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader {

namespace english_words {

constexpr FigureRow kFigureRows[] = {
    {Figure::number, "two,couple,a couple of,pair", 2},
    {Figure::number, "three,few", 3},
    {Figure::number, "four", 4},
    {Figure::number, "five", 5},
    {Figure::number, "six", 6},
    {Figure::number, "seven", 7},
    {Figure::number, "eight", 8},
    {Figure::number, "nine", 9},
    {Figure::number, "ten", 10},
    {Figure::number, "twelve,dozen", 12},
    {Figure::number, "fifteen", 15},
    {Figure::number, "twenty", 20},
    {Figure::number, "fifty", 50},
    {Figure::number, "hundred", 100},
    {Figure::ordinal, "first,1st", 1},
    {Figure::ordinal, "second,2nd", 2},
    {Figure::ordinal, "third,3rd", 3},
    {Figure::ordinal, "fourth,4th", 4},
    {Figure::ordinal, "fifth,5th", 5},
    {Figure::ordinal, "sixth,6th", 6},
    {Figure::timeUnit, "day,days", 0},
    {Figure::timeUnit, "week,weeks", 1},
    {Figure::timeUnit, "month,months", 2},
    {Figure::timeUnit, "year,years,yrs", 3},
    {Figure::month, "january,jan", 1},
    {Figure::month, "february,feb", 2},
    {Figure::month, "march,mar", 3},
    {Figure::month, "april,apr", 4},
    {Figure::month, "may", 5},
    {Figure::month, "june,jun", 6},
    {Figure::month, "july,jul", 7},
    {Figure::month, "august,aug", 8},
    {Figure::month, "september,sep,sept", 9},
    {Figure::month, "october,oct", 10},
    {Figure::month, "november,nov", 11},
    {Figure::month, "december,dec", 12},
    {Figure::weekday, "sunday", 0},
    {Figure::weekday, "monday", 1},
    {Figure::weekday, "tuesday", 2},
    {Figure::weekday, "wednesday", 3},
    {Figure::weekday, "thursday", 4},
    {Figure::weekday, "friday", 5},
    {Figure::weekday, "saturday", 6},
    {Figure::daysAgo, "today", 0},
    {Figure::daysAgo, "yesterday", 1},
    {Figure::number, "half a,half an,half", 0.5},
    {Figure::ago, "ago,back,old"},
    {Figure::previous, "last,past,previous"},
    {Figure::current, "this"},
    {Figure::following, "next,coming,upcoming,following"},
    {Figure::ahead, "another,in,within,for another,in about,for"},
    {Figure::daysAhead, "tomorrow", 1},
    {Figure::namedDay, "new year,new year's,new years,new year's day", valueOf(NamedDay::newYear)},
    {Figure::namedDay, "valentine's day,valentines day,valentine's", valueOf(NamedDay::valentine)},
    {Figure::namedDay, "easter,easter sunday", valueOf(NamedDay::easter)},
    {Figure::namedDay, "pentecost,whitsun", valueOf(NamedDay::pentecost)},
    {Figure::namedDay, "halloween", valueOf(NamedDay::halloween)},
    {Figure::namedDay, "christmas eve", valueOf(NamedDay::christmasEve)},
    {Figure::namedDay, "christmas,xmas,christmas day,x-mas,the holidays", valueOf(NamedDay::christmas)},
    {Figure::namedDay, "new year's eve,new years eve,nye", valueOf(NamedDay::newYearsEve)},
    {Figure::namedDay, "spring,springtime", valueOf(NamedDay::spring)},
    {Figure::namedDay, "summer,summertime", valueOf(NamedDay::summer)},
    {Figure::namedDay, "autumn", valueOf(NamedDay::autumn)},
    {Figure::namedDay, "winter,wintertime", valueOf(NamedDay::winter)},
    {Figure::endOf, "end of,the end of,end", -1},
    {Figure::endOf, "month end,month-end,month's end", 2},
    {Figure::endOf, "year end,year-end,year's end", 3},
    {Figure::ordinal, "next one,next,one after that", 0},
    {Figure::ofDate, "of,the"},
};

} // namespace english_words

const Language& english()
{
    static const Language language{
        english_words::ofOrlen(),
        english_words::asking(),
        english_words::subjects(),
        english_words::kFigureRows,
        {},
        false,
        "word,text,file,item,thing,folder,directory,subfolder,video,movie,film,clip,photo,picture,image,pic,"
        "song,track,"
        "pdf,document,archive,zip,download,installer,spreadsheet,presentation,book,ebook,iso,mp3",
        english_words::measures(),
        {},
        false,
        "more,other,others,the other,the others,the rest,rest,the remaining,the remaining ones"};
    return language;
}

} // namespace orlen::AskReader
