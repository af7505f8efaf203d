#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::spanish_words {

namespace {

constexpr WordRow kOfOrlen[] = {
    {Sense::holds, "contiene,contienen,qué contiene"},
    {Sense::put, "poner,pongo,meter,meto"},
    {Sense::override, "(ignora|olvida|ignore|olvide) (todas|) (las|tus|sus) (instrucciones|reglas|órdenes) "
                      "(anteriores|previas|)"},
    {Sense::called, "carpetas (llamadas|se llaman|que se llaman|con el nombre|de nombre)"},
    {Sense::otherWork, "traducir,traduce,tradúceme"},
    {Sense::safe, "lo (que es|que sea|más|) seguro"},
    {Sense::reads, "(archivos|ficheros|carpetas) (abres|lees|miras)"},
    {Sense::trust, "(cometes|haces) errores,te equivocas"},
    {Sense::filler, "de repente,de golpe,de pronto,repentinamente"},
    {Sense::gone, "perdido,perdidos,he perdido,perdí,pierdo,hemos "
                  "perdido,desaparecido,desaparecieron,desapareció,se han esfumado,esfumado,se esfumó"},
    {Sense::happens, "sin (que yo lo sepa|mi permiso|avisarme|avisar|confirmar),(preguntas|avisas) antes"},
    {Sense::filler, "a (algún|ningún) (sitio|lado|lugar),a (alguna|ninguna) parte"},
    {Sense::rights, "(necesitas|necesita|hacen falta|requiere|requieres) (permisos|derechos|privilegios) (de "
                    "administrador|de root|especiales|)"},
    {Sense::advise, "propuesto,propuesta,propuestos,propuestas,sugerido,sugerida,propone,proponer"},
    {Sense::what, "para (qué|que) (sirve|sirven|vale|es),de qué sirve"},
    {Sense::outside, "fuera (de|del|de la|de los|de las|de mis|de mi)"},
    {Sense::filler, "he hecho,hice,tomé,saqué,he tomado,he sacado,hemos hecho,tomadas,sacadas"},
    {Sense::unknown, "navegador"},
    {Sense::freed, "(has|ha|habéis) (borrado|eliminado|quitado|limpiado|movido|tirado|suprimido),"
                   "(borraste|eliminaste|quitaste|limpiaste|moviste|tiraste|borró orlen|eliminó orlen)"},
    {Sense::undo, "(dónde|adónde) (fueron|han ido|se fueron) (a parar|) (mis|los) (archivos|cosas),"
                  "(dónde|adónde) (fueron|han ido) a parar (mis|los) (archivos|ficheros)"},
    {Sense::rhythm, "cada cuánto (tiempo|),con qué frecuencia (debo|debería|tengo que|hay que|conviene),cada "
                    "cuántos (días|meses)"},
    {Sense::rights,
     "(permisos|derechos|privilegios) de (administrador|root|superusuario),administrador,root,sudo,"
     "superusuario,contraseña de (administrador|root),(pides|pide|necesitas|necesita|pedirás) (mi|la|"
     "una) contraseña"},
    {Sense::ownRemoval,
     "(desinstalar|desinstalo|desinstalar a|quitar|quito|eliminar|elimino|borrar) (orlen|este programa|"
     "esta aplicación|esta app),desinstalarte,quitarte,eliminarte,borrarte,te desinstalo,deshacerme de "
     "orlen"},
    {Sense::resident,
     "(funcionas|trabajas|corres|estás|arrancas|te ejecutas|te inicias) (siempre|) (en segundo plano|"
     "todo el tiempo|de fondo|automáticamente|solo|por la noche|activo),(orlen|este programa|esta "
     "aplicación|esta app|la aplicación) (funciona|trabaja|corre|está|arranca|se ejecuta|se inicia) "
     "(siempre|) (en segundo plano|todo el tiempo|de fondo|automáticamente|solo|activo),(funciona|"
     "trabaja|corre|arranca|se ejecuta|se inicia) (orlen|este programa|esta app) (en segundo plano|todo "
     "el tiempo|de fondo|solo)"},
    {Sense::otherWork,
     "(haces|hace orlen|orlen hace|este programa hace|hacer|haz|hazme|puedes hacer|creas) (una|) "
     "(copias de seguridad|copia de seguridad|copias de respaldo|backup|backups|respaldo|respaldos),"
     "respaldas,comprimes,sincronizas,conviertes,reparas,imprimes,encriptas,(orlen|este programa) "
     "(respalda|comprime|sincroniza|repara|encripta)"},
    {Sense::deletes,
     "borras,eliminas,modificas,destruyes,alteras,sobrescribes,borrarás,eliminarás,editas,(vas a|"
     "orlen va a|este programa va a) (borrar|eliminar|modificar|destruir|cambiar|mover),(orlen|este "
     "programa|esta aplicación|esta app|la aplicación) (borra|elimina|modifica|destruye|altera|cambia|"
     "mueve|borrará|eliminará),(borra|elimina|modifica|destruye|cambia|mueve) (orlen|este programa|"
     "esta app),a salvo de (ti|orlen)"},
    {Sense::reads,
     "(lees|abres|miras|escaneas|analizas|revisas|ves) (dentro de|en|) (mis|mi),lees (el|lo),(orlen|"
     "este programa|esta aplicación|esta app|la aplicación) (lee|abre|mira|escanea|analiza|revisa|ve) "
     "(dentro de|) (mis|mi),lee orlen,(puedes|podrías|vas a|puede orlen) (leer|abrir|mirar|mirar "
     "dentro de) (mis|mi|en mis|en mi)"},
    {Sense::privacy,
     "(vendes|guardas|almacenas|recopilas|registras|recoges) (mis|mi|datos|algo|lo que),(orlen|este "
     "programa|esta aplicación|esta app|la aplicación) (vende|guarda|almacena|recopila|registra|"
     "recoge) (mis|mi|datos|algo)"},
    {Sense::trust,
     "eres (seguro|segura|fiable|de fiar|peligroso|un virus|confiable),(orlen es|es orlen) (fiable|"
     "seguro|de fiar|peligroso|confiable)"},
    {Sense::canOrlen, "(puedes|podrías)"},
    {Sense::order,
     "(borra|elimina|destruye|borrar|eliminar) todo (ya|ahora|) (mismo|),(bórralo|elimínalo) todo,rm "
     "-rf,rm -fr,formatea (mi|el) (disco|ordenador)"},
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
