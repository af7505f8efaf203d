#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::german_words {

namespace {

constexpr WordRow kOfOrlen[] = {
    {Sense::ruleOut,
     "ausschließen,schließe aus,ordner ausschließen,ausnahme hinzufügen,ausnahmen,ausnahmeliste,nie "
     "scannen,nicht scannen,vom scan ausnehmen,whitelist,nie wieder vorschlagen,nicht mehr "
     "vorschlagen,ordner auslassen,ordner überspringen,wie schließe ich,wie nehme ich aus,nie mehr "
     "vorschlagen,ordner ignorieren,ordner zu ignorieren,ignorierliste,nie mehr "
     "scannen,ausschlussliste,ordner auszuschließen,schließ aus,ausgeschlossen,schließe ich,schließ ich"},
};

} // namespace

std::span<const WordRow> ofOrlen()
{
    return kOfOrlen;
}

} // namespace orlen::AskReader::german_words
