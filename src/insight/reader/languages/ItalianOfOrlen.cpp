#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::italian_words {

namespace {

constexpr WordRow kOfOrlen[] = {
    {Sense::ruleOut,
     "escludere una cartella,escludere un file,come escludo,come escludere,escludere dalla "
     "scansione,esclusioni,aggiungere un eccezione,lista bianca,non suggerire più,non scansionare,escludere "
     "cartelle,escludere la cartella,escludere la mia cartella,escludi una cartella,escludi la cartella,non "
     "analizzare,non suggerirmi più,non proporre più,ignorare una cartella,ignora la cartella,ignorare "
     "cartelle,aggiungere esclusioni,lista di esclusione,elenco delle esclusioni,elenco esclusioni,lasciare "
     "fuori una cartella,tenere fuori una cartella,mai scansionare,mai più suggerire"},
};

} // namespace

std::span<const WordRow> ofOrlen()
{
    return kOfOrlen;
}

} // namespace orlen::AskReader::italian_words
