#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::spanish_words {

namespace {

constexpr SubjectRow kSubjects[] = {
    {SubjectID::virtualMachines,
     "(máquina virtual|máquinas virtuales),(disco virtual|discos virtuales),vm,vms,virtualbox"},
    {SubjectID::trash, "en la basura,en el (basurero|cubo)"},
    {SubjectID::systemAdvice,
     "núcleos antiguos,kernels antiguos,kernels viejos,kernels,caché de apt,apt,caché de paquetes,registros "
     "del sistema,snaps antiguos,kernel antiguo,kernel viejo,núcleos viejos,núcleo "
     "antiguo,kernel,journal,journald,logs del sistema,caché de pacman,caché de dnf,snaps viejos,versiones "
     "viejas de snap,versiones antiguas de snap"},
    {SubjectID::leftovers,
     "restos de aplicaciones,restos de programas,restos de apps,restos,residuos,residuos de "
     "programas,aplicaciones desinstaladas,programas desinstalados,apps desinstaladas,aplicaciones "
     "borradas,programas borrados,aplicaciones eliminadas,programas eliminados,que dejaron,dejaron "
     "atrás,dejado atrás,huérfanos,huérfanas,archivos huérfanos,carpetas huérfanas,restos de apps "
     "desinstaladas,restos de programas desinstalados,restos de aplicaciones desinstaladas,restos de "
     "programas borrados,sobras de programas,sobras de aplicaciones,sobras,rastros de programas,rastros de "
     "aplicaciones,rastros,residuos de aplicaciones,residuos de apps,apps borradas,apps eliminadas,apps que "
     "borré,apps que desinstalé,apps que ya no tengo,programas que borré,programas que desinstalé,programas "
     "que ya no tengo,programas que eliminé,aplicaciones que borré,aplicaciones que desinstalé,aplicaciones "
     "que eliminé,archivos residuales,carpetas residuales,residuales,dejaron los programas,dejan los "
     "programas,dejan las aplicaciones,dejan atrás,dejaron las aplicaciones,dejaron al desinstalar,quedaron "
     "de"},
    {SubjectID::similarPhotos,
     "fotos similares,imágenes similares,fotos parecidas,imágenes parecidas,fotos duplicadas,imágenes "
     "duplicadas,fotos repetidas,imágenes repetidas,fotos iguales,fotos idénticas,fotos casi "
     "iguales,duplicados de fotos,imágenes iguales,fotos que se parecen,fotos dobles,se "
     "parecen,parecidas,parecidos,similares,parecen iguales,que se parecen,fotos muy parecidas,fotos que son "
     "iguales,parecida,parecido"},
    {SubjectID::screenshots,
     "captura de pantalla,capturas de pantalla,pantallazo,pantallazos,capturas "
     "pantalla,captura,capturas,screenshots,screenshot,captura pantalla,screen shots,capturas del "
     "escritorio,pantallazo de,impresiones de pantalla,impresión de pantalla,screens"},
    {SubjectID::receipts, "recibo,recibos,fotos de recibos,tickets,tiques,fotos de tickets,fotos de "
                          "facturas,recibos fotografiados,facturas fotografiadas,boletas,boleta,fotos de "
                          "boletas,comprobantes,fotos de comprobantes,ticket,tique,fotos de tiques"},
    {SubjectID::memes, "meme,memes,imágenes graciosas,fotos graciosas,imágenes chistosas,imágenes "
                       "divertidas,fotos chistosas,memazos"},
    {SubjectID::blurry,
     "fotos borrosas,imágenes borrosas,borroso,borrosa,borrosos,borrosas,fotos "
     "desenfocadas,desenfocadas,fotos movidas,foto borrosa,imágenes desenfocadas,foto "
     "movida,movidas,movida,fotos mal tomadas,fotos mal enfocadas,fuera de foco,fotos fuera de "
     "foco,desenfocado,desenfocados,desenfocada,imagen borrosa,fotos malas,fotos feas,no nítidas"},
    {SubjectID::duplicates,
     "duplicado,duplicados,archivos duplicados,ficheros duplicados,repetidos,archivos "
     "repetidos,copias,archivos iguales,archivos idénticos,duplicadas,repetidas,repetido,ficheros "
     "repetidos,dos veces,dobles,varias veces,copias iguales,archivo duplicado,archivo repetido,documentos "
     "duplicados,documentos repetidos,duplicada,cosas repetidas,cosas duplicadas,copias de archivos,copias "
     "repetidas,copias duplicadas,copia de,copias de,copia exacta,copias exactas,por duplicado,más de una "
     "vez,dos copias,repetida,doble,archivos dobles,clones,clonados,mismos archivos,el mismo archivo,mismo "
     "archivo,archivos clonados,dupes,duplicidades"},
    {SubjectID::largeFiles,
     "archivos grandes,ficheros grandes,archivo grande,archivos pesados,archivos enormes,archivo "
     "pesado,archivo enorme,archivos gigantes,ficheros pesados,ficheros enormes,archivos muy "
     "grandes,archivos gordos,archivos voluminosos,ficheros gigantes,fichero grande"},
    {SubjectID::oldFiles, "archivos viejos,archivos antiguos,ficheros antiguos,ficheros viejos,archivos "
                          "olvidados,cosas viejas,cosas antiguas,archivo viejo,archivo antiguo,archivos "
                          "obsoletos,archivos sin usar,archivos abandonados,cosas olvidadas,fichero "
                          "antiguo,vejestorios,archivos desactualizados,trastos viejos,trastos"},
    {SubjectID::oldDownloads, "descargas viejas,descargas antiguas,descargas olvidadas,descargas sin "
                              "usar,descargas abandonadas,archivos descargados viejos,archivos descargados "
                              "antiguos,viejas descargas,antiguas descargas"},
    {SubjectID::logs,
     "registros,logs,log,archivos de registro,registro,archivos log,ficheros de registro,archivos de "
     "log,bitácoras,bitácora,archivos de bitácora,volcados,volcados de memoria,volcado de memoria,informes "
     "de errores,informes de fallos,reportes de errores,reportes de fallos,core dumps,core dump,registros de "
     "errores,ficheros de log,archivos de registros"},
    {SubjectID::trash,
     "papelera,la papelera,papelera de reciclaje,archivos borrados,basurero,papelera del sistema,tacho,tacho "
     "de basura,bote de basura,cesto,cesto de basura,cubo de basura,caneca,archivos eliminados,papelera "
     "de,en la papelera,basurero de,zafacón,ficheros borrados"},
    {SubjectID::deviceBackups,
     "backups del iphone,backup del iphone,backups de iphone,backup de iphone,backups del móvil,backup del "
     "móvil,backups del teléfono,copias de iphone,copia de iphone,copias de seguridad del iphone,copia de "
     "seguridad del iphone,copias de seguridad de iphone,iphone,ipad,copias de seguridad del móvil,copias de "
     "seguridad del teléfono,copia de seguridad del móvil,copias de seguridad de dispositivos,copia de "
     "seguridad del teléfono,respaldo del iphone,respaldos del iphone,respaldo de iphone,respaldos de "
     "iphone,respaldo del celular,respaldos del celular,respaldo del móvil,respaldos del móvil,respaldo del "
     "teléfono,respaldos del teléfono,respaldo de mi celular,respaldos de mi celular,copias del móvil,copia "
     "del móvil,copias del celular,copia del celular,copias de mi móvil,backup del celular,backups del "
     "celular,backup del teléfono,backup de mi teléfono,celular,teléfono,móvil,copias de seguridad de mi "
     "móvil,copia de seguridad de mi móvil,copias de seguridad de mi teléfono,respaldos"},
    {SubjectID::mailAttachments, "adjuntos,archivos adjuntos,adjuntos de correo,adjunto,adjuntos del "
                                 "correo,archivo adjunto,adjuntos de correos,adjuntos de email,adjuntos de "
                                 "mails,adjuntos de los correos,anexos,anexos de correo,archivos anexos"},
    {SubjectID::languagePacks,
     "paquetes de idioma,paquetes de idiomas,traducciones,idiomas sin usar,idiomas que no uso,paquete de "
     "idioma,archivos de idioma,archivos de idiomas,lenguajes,archivos de traducción"},
    {SubjectID::npm, "caché de npm,npm,yarn,caché npm,cache de node,caché de yarn"},
    {SubjectID::pip, "caché de pip,pip,caché pip,caché de python,paquetes de python,caché python"},
    {SubjectID::gradle, "gradle,caché de gradle,caché gradle"},
    {SubjectID::homebrew, "homebrew"},
    {SubjectID::caches,
     "caché,cachés,archivos temporales,ficheros temporales,datos temporales,archivos de caché,memoria "
     "caché,temporales,caché de las aplicaciones,datos en caché,cache de apps,cachés de "
     "aplicaciones,cachés de las aplicaciones,cachés de las apps,caché de las apps,caché de "
     "aplicaciones,caché de la app,caché de programas,caché de los programas,archivo temporal,archivos en "
     "caché,archivos caché,datos de caché,datos caché,carpeta caché,carpeta de caché,carpetas de "
     "caché,memoria temporal,temporal,tmp,archivos tmp,ficheros de caché,chache,cahce,cachee"},
    {SubjectID::developer,
     "datos de desarrollo,datos de desarrollador,desarrollador,archivos de desarrollo,desarrollo,archivos de "
     "compilación,archivos de desarrollador,datos de programación,archivos de "
     "programación,builds,compilaciones,compilados,archivos compilados,programación,carpetas de build,cosas "
     "de desarrollo,archivos de build,herramientas de desarrollo"},
    {SubjectID::system,
     "sistema,archivos del sistema,archivos de sistema,sistema operativo,datos del sistema,ficheros del "
     "sistema,so,el sistema,sistema linux,linux mismo,archivo del sistema"},
    {SubjectID::apps,
     "aplicación,aplicaciones,programa,programas,app,apps,software,programas instalados,aplicaciones "
     "instaladas,apps instaladas,software instalado,aplis,apli,programitas,aplicasiones"},
    {SubjectID::media, "multimedia,archivos multimedia,medios"},
    {SubjectID::downloads,
     "descarga,descargas,carpeta descargas,carpeta de descargas,archivos "
     "descargados,descargado,descargados,downloads,cosas descargadas,bajados,archivos que descargué,cosas "
     "que descargué,archivos que bajé,cosas que "
     "bajé,descargué,descargo,descargar,descargadas,descargada,bajé,bajado,bajada,bajadas,me bajé,me "
     "descargué,he bajado,he descargado,descargado de internet,descargas de internet,bajado de "
     "internet,ficheros descargados,directorio de descargas,carpeta downloads,mis "
     "descargas,desacargas,descaragas,lo descargado,lo que descargué,lo que he descargado,lo que bajé"},
    {SubjectID::desktop, "escritorio,mi escritorio,carpeta escritorio,carpeta del escritorio,desktop"},
    {SubjectID::documentsFolder,
     "carpeta documentos,carpeta de documentos,de mis documentos,en mis documentos,carpeta de mis "
     "documentos,mi carpeta documentos,directorio documentos,mi carpeta de documentos"},
    {SubjectID::picturesFolder,
     "carpeta imágenes,carpeta de imágenes,carpeta de fotos,carpeta fotos,carpeta de mis fotos,mi carpeta de "
     "fotos,mi carpeta de imágenes,directorio de imágenes,carpeta de fotografías,carpeta fotografías"},
    {SubjectID::videosFolder, "carpeta vídeos,carpeta de vídeos,mi carpeta de vídeos,carpeta de "
                              "películas,directorio de vídeos,carpeta películas"},
    {SubjectID::musicFolder,
     "carpeta música,carpeta de música,mi carpeta de música,directorio de música,carpeta de canciones"},
    {SubjectID::home, "carpeta personal,carpeta de usuario,home,directorio personal,mi home,mi carpeta "
                      "personal,carpeta home,directorio home,carpeta del usuario,carpeta de inicio"},
    {SubjectID::videos,
     "vídeo,vídeos,película,películas,pelis,peli,clips,clip,archivos de vídeo,grabaciones,ficheros de "
     "vídeo,mp4,series,grabación,archivo de vídeo,filmaciones,filmes,largometrajes,vídeos "
     "grabados,grabaciones de pantalla,cortos,mp4s,mkv,videítos,vídeoclips,serie,archivos de "
     "películas,videos y películas,grabados"},
    {SubjectID::photos,
     "foto,fotos,imagen,imágenes,fotografía,fotografías,archivos de imagen,selfies,fotos de las "
     "vacaciones,fotos de familia,imagenes y fotos,foto y imagen,fotitos,retratos,archivos de fotos,archivo "
     "de imagen,archivos de imágenes,ficheros de imagen,jpg,jpgs,jpeg,fotos del móvil,fotos del "
     "celular,fotografía digital,fotos mías,selfie,dibujos,imágens"},
    {SubjectID::audio,
     "música,canción,canciones,audio,archivos de audio,mp3,álbumes,archivos de "
     "música,músicas,temas,tema,pistas,pistas de audio,rolas,rola,álbum,mp3s,archivos de "
     "sonido,archivo de audio,sonidos,audios,discos de música,grabaciones de audio,ficheros de "
     "audio,cancionero"},
    {SubjectID::pdfs, "pdf,pdfs,archivos pdf,documentos pdf,ficheros pdf,archivo pdf,documento "
                      "pdf,documentos en pdf,archivos en pdf,pedeefes"},
    {SubjectID::archives,
     "zip,zips,archivos comprimidos,comprimidos,archivo comprimido,carpetas comprimidas,ficheros "
     "comprimidos,rar,zipeados,tar,tarballs,paquetes comprimidos,archivos comprimidos en zip,comprimido"},
    {SubjectID::installers,
     "instalador,instaladores,archivos de instalación,paquetes,paquetes de instalación,archivo de "
     "instalación,archivos instaladores,instaladores de programas,setup,setups,programa de "
     "instalación,programas de instalación,ejecutables de instalación,deb,debs,appimages,ficheros de "
     "instalación,paquete de instalación"},
    {SubjectID::diskImages,
     "imagen de disco,imágenes de disco,iso,isos,imágenes iso,máquinas virtuales,máquina virtual,discos "
     "virtuales,imagen iso,imágenes de discos,imágenes de cd,máquina virtual de,vms,vm"},
    {SubjectID::spreadsheets,
     "hoja de cálculo,hojas de cálculo,archivos de excel,excel,tablas,archivos excel,hojas de excel,hoja de "
     "excel,tablas de excel,archivo de excel,csv,planillas,planilla,planillas de excel,planillas de "
     "cálculo,excels,libros de excel,documentos de excel"},
    {SubjectID::presentations,
     "presentación,presentaciones,diapositivas,powerpoints,powerpoint,archivos de powerpoint,presentaciones "
     "de powerpoint,diapositiva,ppt,powerpoint presentaciones,archivos powerpoint"},
    {SubjectID::ebooks,
     "libros,ebooks,libros electrónicos,libro,ebook,libro electrónico,libros digitales,epub,epubs,novelas"},
    {SubjectID::textDocuments,
     "(documento|documentos|archivo|archivos|fichero|ficheros) (word|de word|openoffice|de openoffice|"
     "libreoffice|de libreoffice|writer|de writer|docx|odt),documentos de texto,documento de texto"},
    {SubjectID::documents, "documento,documentos,papeles,cartas,textos,docs,doc,texto,word,carta,escritos,"
                           "papeleo,trabajos,apuntes,ensayos,tareas,oficios"},
    {SubjectID::files,
     "archivo,archivos,fichero,ficheros,elemento,elementos,cosa,cosas,datos,fichero "
     "y,archvio,archvios,arhivos,ficeros,objeto,objetos,todo lo que,algo grande,todo lo que tengo,cosa "
     "que,cacharros,files,file,dato,chismes,elementos y cosas,archiivos,achivos,archibos"},
    {SubjectID::startup,
     "que arranque,que se inicie,que se abra,se inicie,arranque solo,al iniciar sesión,al encender,arranca "
     "lento,arranca despacio,tarda en arrancar,arranca lentamente,inicio,al inicio,arranque,al arrancar,al "
     "iniciar,arranca automáticamente,arrancan automáticamente,programas de inicio,se inicia "
     "automáticamente,se inician automáticamente,al encender,inicio de sesión,al iniciar sesión,inicio "
     "automático,se abren solos,arrancan solos,se inician solos,se inician,se abren solas,se inicia "
     "solo,enciendo,arrancan solas,arrancan,arranca,encender,se abren,se ejecutan,al prender,prender,se "
     "abre,que se abra solo,que se ejecute,que inicie,que se encienda,que se lance,se abra,se abra solo,se "
     "abra al iniciar,se abra al inicio,se abra al arrancar,se inicie solo,se inicie al arrancar,se inicie "
     "automáticamente,inicie solo,inicie automáticamente,inicie con,arranque automáticamente,arranque "
     "con,arranque al inicio,arranque al iniciar,al inicio de sesión,al entrar,al loguearme,al prender la "
     "compu,al encender la compu,al encender el pc,al encender el ordenador,cuando enciendo,cuando enciendo "
     "el pc,cuando enciendo el ordenador,cuando prendo,cuando prendo la compu,cuando prendo el pc,cuando "
     "arranco,cuando arranca,cuando inicio,cuando inicio sesión,cuando inicia,cuando "
     "entro,prendo,prende,enciende,arranco,arrancar,se arranca,se arrancan,inicia solo,inician solos,inician "
     "solas,inician automáticamente,inicia automáticamente,inicia con,inician con,se inicia con,se inician "
     "con,se inicia,se inician al arrancar,se inician al encender,se ejecuta,se ejecuta al inicio,se "
     "ejecutan al inicio,se ejecutan al iniciar,se ejecutan al arrancar,se ejecutan solos,se lanza,se "
     "lanzan,se lanzan solos,se carga,se cargan,se cargan al inicio,carga al inicio,cargan al inicio,carga "
     "al iniciar,abre al inicio,abren al inicio,abre al iniciar,abren al iniciar,abre solo,abren solos,abre "
     "automáticamente,abren automáticamente,se abre automáticamente,se abren automáticamente,se abren al "
     "inicio,se abren al iniciar,se abren al encender,se abren al arrancar,autoarranque,auto "
     "arranque,autoinicio,auto inicio,autostart,arranque automático,aplicaciones de inicio,apps de "
     "inicio,programas de arranque,aplicaciones al inicio,programas al inicio,apps al inicio,servicios al "
     "inicio,servicios,elementos de inicio,en segundo plano,segundo plano,tarda mucho en arrancar,tarda "
     "mucho en iniciar,tarda en iniciar,tarda en encender,demora en arrancar,demora en prender,demora en "
     "iniciar,inicia lento,inicia despacio,arranque lento,inicio lento,login"},
    {SubjectID::containers,
     "docker,podman,contenedor,contenedores,imágenes de docker,imágenes docker,contenedores de "
     "docker,contenedor docker,contenedor de docker,contenedores podman,contenedores de podman,imágenes de "
     "contenedores,volúmenes de docker,imágenes de podman,dockers,distrobox"},
    {SubjectID::flatpak,
     "flatpak,flatpaks,flathub,apps flatpak,aplicaciones flatpak,programas flatpak,paquetes flatpak"},
    {SubjectID::snap,
     "snap,snaps,paquetes snap,snapd,apps snap,aplicaciones snap,paquete snap,programas snap"},
    {SubjectID::games,
     "juego,juegos,steam,videojuegos,juegos de steam,videojuego,juegos instalados,jueguitos,lutris,juegos de "
     "pc,juegos steam,biblioteca de steam,gaming,juegos de ordenador,juegos de computadora"},
};

} // namespace

std::span<const SubjectRow> subjects()
{
    return kSubjects;
}

} // namespace orlen::AskReader::spanish_words
