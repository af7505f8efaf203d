#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::french_words {

namespace {

constexpr WordRow kOfOrlen[] = {
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
