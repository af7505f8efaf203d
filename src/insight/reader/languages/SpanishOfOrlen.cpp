#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::spanish_words {

namespace {

constexpr WordRow kOfOrlen[] = {
    {Sense::ruleOut,
     "excluir una carpeta,excluir un archivo,cómo excluyo,cómo excluir,excluir del "
     "análisis,exclusiones,añadir una excepción,lista blanca,no volver a sugerir,no analizar,excluir "
     "carpetas,excluir mi carpeta,excluir archivos,agregar una excepción,añadir una exclusión,agregar una "
     "exclusión,ignorar una carpeta,ignorar carpetas,no escanear,no vuelvas a sugerir,no sugerir más,no me "
     "sugieras,dejar fuera del análisis,lista de exclusión,lista de exclusiones,que no analice,excluyo una "
     "carpeta,excluyo"},
};

} // namespace

std::span<const WordRow> ofOrlen()
{
    return kOfOrlen;
}

} // namespace orlen::AskReader::spanish_words
