#include "insight/AskWorld.h"

namespace orlen {
namespace {

using AskSpanishTest = AskWorld;

constexpr Row kSpanish[] = {
    {"borras mis contraseñas de Firefox", "deletes nothing"},
    {"cuál es el vídeo más grande que tengo", "wedding.mp4"},
    {"borra todo lo seguro", "You could free about"},
    {"cada cuánto tengo que limpiar", "no fixed rhythm"},
    {"archivos grandes fuera de Descargas", "Left out: ~/Downloads."},
    {"cuánto espacio libre me queda", "120 GB is free"},
    {"cuanto espacio tengo", "120 GB is free"},
    {"cómo de lleno está el disco", "120 GB is free"},
    {"tengo 20 GB libres", "Yes.|120 GB"},
    {"por qué está tan lleno mi disco", "By category"},
    {"cuándo se llenará el disco", "30 August 2026"},
    {"cuando estara lleno mi disco duro", "30 August 2026"},
    {"qué puedo borrar sin riesgo", "You could free about|App caches"},
    {"que puedo eliminar", "You could free about|App caches"},
    {"cómo libero espacio", "You could free about|App caches"},
    {"qué puedo borrar de descargas", "Downloads has|debian.iso"},
    {"puedo borrar wedding.mp4?", "wedding.mp4|9 GB|Review"},
    {"qué es holiday.mkv", "holiday.mkv|4 GB"},
    {"cuánto ocupa holiday.mkv", "holiday.mkv|4 GB"},
    {"puedo tirar contract-2021.docx", "contract-2021.docx|rated Keep"},
    {"puedo borrar ~/.ssh", "protected"},
    {"los cinco vídeos más grandes", "wedding.mp4 (9 GB)"},
    {"archivos mas grandes", "wedding.mp4 (9 GB)"},
    {"vídeos de más de 3 GB", "Of videos over 3 GB the last scan lists 2"},
    {"videos mayores de 3 gigas", "Of videos over 3 GB the last scan lists 2"},
    {"pdf en la carpeta de descargas", "report-final.pdf"},
    {"archivos que no he abierto desde 2023", "before 1 January 2024|wedding"},
    {"vídeos de hace más de dos años", "last changed before 1 June 2024|cut.mov"},
    {"los archivos más antiguos", "wedding.mp4 (9 GB), changed 5 May 2019"},
    {"la descarga más reciente", "report-final.pdf|24 December 2025"},
    {"archivos de más de 1,5 GB", "Of files over 1.5 GB"},
    {"cuántas capturas de pantalla tengo", "Screenshots: 2 MB"},
    {"hay archivos duplicados", "Duplicate files: 40 MB"},
    {"fotos repetidas", "Similar photos: 11 MB"},
    {"cuánto ocupan mis fotos", "Photos takes 34 GB"},
    {"cuánto ocupa la caché", "App caches: 4 GB"},
    {"tamaño de la carpeta de vídeos", "~/Videos takes 80 GB"},
    {"cuándo fue la última limpieza", "20 May 2026"},
    {"cómo deshago la limpieza", "History"},
    {"cuánto he liberado hasta ahora", "2 clean-ups|3 GB"},
    {"envías mis archivos a internet", "Nothing leaves"},
    {"qué no borra nunca orlen", "never touches"},
    {"qué significa conservar", "Keep:|warning"},
    {"liberar 4 GB", "rated Safe is enough|App caches"},
    {"cuánto ocupa blender", "Blender takes 3 GB"},
    {"desinstalar gimp", "GIMP|Flatpak"},
    {"qué se inicia automáticamente", "Nextcloud"},
    {"cuánto espacio usa docker", "podman system df"},
    {"qué aplicaciones no uso",
     "not used since 1 December 2025: Blender (3 GB, last used 10 January 2025)|When 1 other"},
    {"qué aplicaciones no he usado desde hace 12 meses",
     "not used since 1 June 2025: Blender (3 GB, last used 10 January 2025)|When 1 other"},
    {"programas que no uso desde hace dos años", "known was used since 1 June 2024|When 1 other", "Blender"},
    {"las aplicaciones más grandes con sus datos",
     "With their data, the biggest applications that Orlen lists are Blender (3 GB), GIMP (500 MB)"},
    {"qué carpetas ocupan más espacio", "~/Videos — 80 GB"},
    {"qué ha crecido desde ayer", "~/Videos: 9 GB more"},
    {"fotos borrosas", "found no blurry"},
    {"cuánto espacio libre hay y qué puedo borrar?", "120 GB is free|You could free about"},
    {"qué tiempo hará mañana", "I can answer"},
    {"qué pasa si borro algo", "moves what you tick"},
    {"los archivos más grandes menos los vídeos", "Left out: videos.|slack", "wedding"},
    {"qué puedo borrar aparte de las fotos", "Left out: photos.|You could free"},
    {"me alcanza el espacio hasta semana santa", "Probably not.|30 August 2026"},
    {"tendré sitio el mes que viene", "Probably yes."},
    {"qué puedo quitar sin tocar mis fotos", "Left out: photos.|You could free"},
    {"lista todas las limpiezas", "2 clean-ups", "could free"},
    {"cuantas limpiezas he hecho", "2 clean-ups|3 GB"},
    {"ocupo 4 gb libres", "rated Safe is enough"},
    {"que quiere decir revisar en un archivo", "Review:", "incluye"},
    {"que se abre cuando prendo la compu", "Nextcloud"},
    {"los archivos más grandes de descargas", "debian.iso", "over"},
    {"archivos más grandes de 2 GB", "over 2 GB"},
    {"arcihvos mas grandes", "wedding.mp4 (9 GB)"},
};

} // namespace

TEST_F(AskSpanishTest, questionsAreUnderstood)
{
    expectAnswers(kSpanish);
}

} // namespace orlen
