#include "insight/reader/Language.h"

namespace orlen::AskReader {

namespace spanish_words {

constexpr WordRow kWords[] = {
    {Sense::ruleOut,
     "excluir una carpeta,excluir un archivo,cómo excluyo,cómo excluir,excluir del "
     "análisis,exclusiones,añadir una excepción,lista blanca,no volver a sugerir,no analizar"},
    {Sense::installed, "instalado,instalados,instalada,instaladas,está instalado,están instaladas,tengo "
                       "instaladas,tengo instalado"},
    {Sense::self,
     "qué puedes hacer,qué sabes hacer,qué te puedo preguntar,qué puedo preguntar,quién eres,qué "
     "eres,ayuda,ayúdame,hola,buenos días,buenas tardes,buenas,gracias,cómo funciona esto,qué es orlen,qué "
     "hace orlen,cómo funciona orlen,para qué sirve orlen,qué puedes decirme,qué hace este programa,cómo se "
     "usa orlen,para qué sirves,cómo puedes ayudarme,qué puedes hacer por mí"},
    {Sense::advise,
     "recomiendas,recomendar,recomendación,recomendaciones,aconsejas,consejo,consejos,sugieres,sugerencia,"
     "sugerencias,empezar,empiezo,qué hago,lo mejor,sugerir,conviene,conviene borrar,vale la "
     "pena,empezando,recomendarías,sugieres,qué debo hacer,qué puedo hacer,qué hago ahora,qué debería "
     "hacer,trucos,qué hacer"},
    {Sense::trust, "confiar,confianza,fiable,de fiar,confiable,es seguro orlen,orlen es "
                   "seguro,fiarme,fiar,fío,me fío,en peligro,en riesgo,código abierto,software libre"},
    {Sense::beyond,
     "virus,malware,troyano,más rápida,más rápido "
     "mi,acelerar,acelera,lento,lenta,rendimiento,desfragmentar,ram,memoria "
     "ram,procesador,cpu,batería,controladores,cortafuegos,antivirus,temperatura,tarjeta gráfica"},
    {Sense::happens, "dónde acaban,dónde terminan,adónde van a parar,a dónde van a "
                     "parar,pasa,pasará,pasaría,ocurre,sucede,qué pasa,para "
                     "siempre,definitivamente,permanentemente,definitivo,adónde van,a dónde "
                     "van,irreversible,romper,rompe,dañar,estropear,estropea,romperá,daña,por su "
                     "cuenta,automáticamente,sin preguntar,por sí solo,por tu cuenta,sin permiso,sin avisar"},
    {Sense::only, "solo,sólo,solamente,únicamente,nada más,nomás"},
    {Sense::also, "y,e,también,además,y qué hay de,qué hay de,qué tal,y qué tal,y los,y las,y el,y la,qué "
                  "pasa con,y qué pasa con,así como,&,y qué hay de los,y respecto a,o,u"},
    {Sense::backward, "ese,esa,esos,esas,este,esta,estos,estas,eso,esto,aquel,aquella,aquellos,lo,ellos,"
                      "ellas,él,ella,los que,las que,el que,la "
                      "que,borrarlo,borrarla,borrarlos,borrarlas,eliminarlo,eliminarlos,eliminarla,"
                      "eliminarlas,quitarlo,quitarlos"},
    {Sense::filler,
     "para qué sirve,sirve,para que sirve,para qué es,mi nieto,nieta,me gustaría saber,quisiera "
     "saber,podrías decirme,me podrías decir,puedes decirme "
     "si,el,la,los,las,un,una,unos,unas,de,del,al,a,mi,mis,nuestro,nuestra,tu,tus,su,sus,yo,me,mí,nos,"
     "nosotros,"
     "te,ti,se,le,les,es,son,era,eran,soy,eres,está,están,estoy,estaba,ser,sea,estar,había,he,has,ha,hemos,"
     "han,haber,tienes,tiene,tenemos,tener,para,por,con,sin embargo,si,como,por "
     "favor,porfa,porfavor,ahora,ahora mismo,actualmente,hoy,en este momento,de "
     "momento,realmente,exactamente,aproximadamente,más o menos,unos "
     "cuantos,muestra,muéstrame,mostrar,dime,decir,da,dar,lista,listar,busca,buscar,encuentra,encontrar,"
     "saber,sé,quiero,quisiera,querría,gustaría,me gustaría,puedes decirme,me puedes decir,puedes "
     "mostrarme,me "
     "dices,todo,toda,todas,todos,muy,mucho,mucha,muchos,muchas,poco,pocos,algo,algún,alguna,algunos,algunas,"
     "ya,aún,todavía,mismo,misma,llamado,llamada,orlen,pues,vale,ok,eh,bueno,hago,hace "
     "falta,hacen,tipo,tipos,clase,guardado,guardados,guardadas,ahí,aquí,allí,por "
     "ahí,entero,entera,propio,propios,enseña,enséñame,ver,veo,va,van,voy,ir,puesto,dónde "
     "puse,rápido,fácilmente,rápidamente,explica,explícame,indica,necesito "
     "saber,cada,detalles,información,sí,otra vez,están ahí,contiene,contienen,usando orlen,con orlen,qué "
     "tanto,os,vosotros,usted,ustedes,haya,mostrarme,listado de,lleva,llevo,llevan,queda "
     "claro,tal,pero,tan,demasiado,tanto,tanta,alguien,casi,suficiente,bastante,alguna parte,siempre,a "
     "veces,luego,parece,creo,hagas,estén,haces,dice,gente,pienso,además de "
     "eso,hijo,aunque,mientras,entonces,así,sobre todo,apenas,casi todo,jamás visto,dónde exactamente,cosa "
     "de,pone,ponen,exactos,quizás,tal vez,hubiera,sería,serían,fácil,rápida,acerca de,fueron,fue,cada "
     "uno,según,contra,durante,mediante,vía,de repente,raro,niños,ni idea,respecto,en "
     "realidad,básicamente,tendría,tendrá,tendrás,que encontraste,encontraste,has visto,el portátil está,por "
     "cierto,a ver,oye,venga,caramba,jolín,quiero ver,vaya,esta noche,anoche"},
    {Sense::negation, "no,nunca,jamás,ningún,ninguno,ninguna,nada,tampoco"},
    {Sense::except, "que no sea un,que no sea una,que no sean,excepto,salvo,menos,a excepción de,aparte "
                    "de,además de,quitando,sin contar,que no "
                    "sean,que no sea,excluyendo,pero no,sin,con excepción de,y no,fuera de,sin incluir,pero "
                    "sin,ignorando,sin tocar,sin borrar,sin eliminar,sin perder,pero deja,deja fuera,dejando "
                    "fuera,ni,menos las de,menos los de,menos lo de,en vez de,sin que"},
    {Sense::lasts, "alcanza,alcanzará,alcanzar,basta,bastará,bastar,dura,durará,aguanta,aguantará,aguantar,"
                   "llega,llegará,será suficiente,suficiente espacio,tendré,habrá,tendremos"},
    {Sense::speed,
     "con qué rapidez,qué tan rápido,a qué velocidad,cómo de rápido,a qué ritmo,ritmo,velocidad,al día,por "
     "día,a la semana,por semana,al mes,por mes,cada día,cada semana,cada mes"},
    {Sense::what, "qué,cuál,cuáles,dónde,dónde está,dónde están,quién,qué es,qué son,qué hay,cuál es,cuáles "
                  "son,hay algún,hay alguna,tengo algún,qué clase de,qué tipo de,has "
                  "encontrado,existen,q,ke,hay,tengo,en qué,a qué,con qué"},
    {Sense::howBig,
     "cuánto pesan,y cuánto pesan,cuánto espacio ocupan todas,qué tamaño,tamaño,tamaño de,el tamaño,cuánto "
     "ocupa,cuánto ocupan,cuánto espacio ocupa,cuánto espacio "
     "ocupan,cuánto pesa,cuánto pesan,cómo de grande,qué tan grande,cuánto espacio usa,cuánto espacio "
     "usan,cuánto espacio toma,cuánto espacio toman,cuántos gb,cuántos gigas,pesa,pesan,peso,cuánto "
     "mide,cuánto usa,cuánto usan,cuánto ocupará,tamaños,cuánto lugar ocupan,cuánto lugar ocupa,qué tan "
     "grandes,cuánto espacio consumen,cuánto espacio consume,cuánto sitio ocupan,cuánto sitio ocupa,cuánto "
     "es,cuánto son,cuanto hay en,pese,pesen,ocupe,ocupen"},
    {Sense::howMany, "cuántos,cuántas,número de,cantidad de,cuántas veces,con qué frecuencia"},
    {Sense::can, "puedo,puede,pueden,podría,podrían,podemos,debo,debería,deberían,se puede,se pueden,tengo "
                 "que,es posible,es seguro,es buena idea,hay que,podré,poder,debemos,se podría"},
    {Sense::makeRoom,
     "liberar,libero,libera,liberado,ganar,gano,hacer sitio,hacer espacio,hacer lugar,recuperar "
     "espacio,ahorrar,ahorro,despejar,liberaría,ganaría,liberé,conseguir espacio,obtener "
     "espacio,liberando,hacer hueco,necesito espacio,necesito más "
     "espacio,descongestionar,liberan,ahorraría,recuperaría,recuperar sitio,necesito "
     "sitio,gane,libere,necesito,me hacen falta,me hace falta,menos lleno,aligerar,vaciar el disco,necesito "
     "más,me faltan,quiero liberar,quiero recuperar,hueco,hacer más sitio"},
    {Sense::make, "haz,hacer,hazme,dame,consigue,búscame"},
    {Sense::untouched,
     "tocas,tocarás,tocará,nunca toca,nunca tocas,nunca borra,nunca borras,nunca elimina,no toca,no "
     "tocas,protegido,protegidos,protegida,protegidas,protege,intocable,intocables,jamás toca,jamás borra,no "
     "borra,nunca se borra,nunca borrará,nunca tocará,nunca mueve,no tocará,nunca tocar,nunca "
     "borrar,intacto,jamás borrará,nunca borrarías,jamás tocará,nunca eliminará,no se toca,nunca se toca"},
    {Sense::cleanUp, "limpieza,limpiar,limpio,limpiado,limpié,limpiamos,limpia,ordenar,limpiada,limpiaste"},
    {Sense::uninstall, "desinstalar,desinstalo,desinstala,desinstalación,desinstalado"},
    {Sense::remove, "borrar,borro,borra,borrado,borrados,borrada,borradas,eliminar,elimino,elimina,eliminado,"
                    "eliminados,quitar,quito,quita,tirar,tiro,tirado,suprimir,deshacerme,deshacerme "
                    "de,mover,movido,vaciar,vacío,vacía,mandar a la papelera,prescindir,prescindir "
                    "de,sobra,sobran,eliminadas,desechar,borré,eliminé,borarr,inútil,inútiles,eliminable,"
                    "borrables,prescindible,prescindibles,innecesario,innecesarios,innecesarias,botar,mueve,"
                    "elimine,borre,quitado,no necesito,ya no necesito,no me hace falta,no me sirven,no me "
                    "sirve,que no necesito,que ya no necesito,no sirven"},
    {Sense::undo,
     "reversible,deshacer,deshago,restaurar,restauro,restaura,recuperar,recupero,recupera,revertir,devolver,"
     "volver "
     "atrás,dar marcha atrás,restaurado,recuperado,por error,sin querer,de vuelta,regresar,restablecer,traer "
     "de vuelta,por accidente,anular,recuperarlos,recuperarlo,restaurarlo,deshaz,echar atrás"},
    {Sense::safe, "seguro,segura,seguros,sin riesgo,sin "
                  "peligro,peligroso,peligrosa,riesgo,arriesgado,inofensivo,tranquilamente,sin problema,con "
                  "seguridad,de forma segura,seguras,sin miedo,safe,sin "
                  "problemas,inofensivos,peligrosos,riesgos,malo,problema,a salvo"},
    {Sense::review, "review,revisar,por revisar,repasar"},
    {Sense::keep,
     "conservar,guardar,mantener,conserva,keep,quedarme,importante,importantes,mantengo,conservo"},
    {Sense::mean,
     "etiqueta,la etiqueta,cuenta como,cuentan como,se considera,forma parte "
     "de,significa,significan,significado,quiere decir,quieren decir,diferencia,diferencia "
     "entre,valoración,valoraciones,calificación,calificaciones,clasificación,colores,calificado,marcado "
     "como,reglas,regla,criterios,decide,clasifica,marcado,marcados,marcadas,clasificado,clasificados,"
     "valorado,valorados,calificados"},
    {Sense::soFar, "hasta ahora,hasta el momento,hasta hoy,historial,en total ya,desde el principio,alguna "
                   "vez,hasta la fecha,a lo largo del tiempo,limpiezas,las limpiezas,todas las "
                   "limpiezas,historial de limpiezas,limpiezas anteriores"},
    {Sense::used, "ocupado,ocupados,consumido,ocupada,en uso,cómo de lleno,qué tan lleno"},
    {Sense::handled, "usado,usados,utilizado,utilizados,uso,utilizo,usada,usadas,utilizadas,utilizada,uses"},
    {Sense::opened, "abierto,abiertos,abierta,abiertas,abro,abrí,tocado,tocados,visto,vistos,consultado,"
                    "abrir,vistas,tocadas,mirado,escuchado,leído,he visto,jugado,oído,veo"},
    {Sense::full,
     "poco espacio en disco,espacio bajo,espacio insuficiente,memoria llena,almacenamiento "
     "lleno,lleno,llena,casi lleno,tan lleno,llenando,se llena,llenará,llenarse,se llenará,sin espacio,falta "
     "espacio,no queda espacio,no tengo espacio,no hay espacio,poco espacio,tan poco espacio,llenado,sin "
     "sitio,quedarme sin espacio,quedaré sin espacio,quedo sin espacio,me quedo sin espacio,a tope,queda sin "
     "espacio,se me llena,me quedaré sin espacio,se acaba el espacio,acabando el espacio,lleno "
     "todo,llenar,no queda sitio,saturado,acabe el espacio,se llene,llene,acabará el "
     "espacio,petado,repleto,acaba el espacio,todo mi espacio,se fue mi espacio,se ha ido el espacio,se ha "
     "ido mi espacio,se fue el espacio,se fue todo mi espacio,no tengo espacio en,no hay sitio,sin espacio "
     "en,no me queda espacio,no me cabe nada"},
    {Sense::free,
     "libre,libres,disponible,disponibles,queda,quedan,me queda,sobrante,restante,sin usar,me quedan,resta"},
    {Sense::total, "total,capacidad,en total,totales,tamaño total,capacidad total,resumen,estado,panorama"},
    {Sense::disk, "disco,disco "
                  "duro,ssd,hdd,ordenador,computadora,computador,pc,equipo,portátil,máquina,partición,"
                  "almacenamiento,unidad,laptop,compu,discos,ordena,memoria interna"},
    {Sense::space, "espacio,sitio,lugar,espacio en disco,memoria,espacio de disco,espacio de "
                   "almacenamiento,hueco,cabe,caben,cabrá"},
    {Sense::howMuch, "cuánto,cuánta,qué cantidad,qué cantidad de,quanto,kuanto,cuánto me,qué gano,cuánto "
                     "gano,qué ganaría,qué consigo,cuánto se libera,cuánto libera"},
    {Sense::why,
     "por qué,porqué,porque,a qué se debe,cómo es que,por qué razón,razón,motivo,debido a qué,xq,pq"},
    {Sense::when, "cuándo,en qué fecha,cuánto tiempo,cuántos días,en cuánto tiempo,pronto,qué día,qué "
                  "fecha,cuánto falta,cuánto tardará,para cuándo,cuántos meses,dentro de cuánto,cuánto "
                  "tarda,cuántas semanas,cuánto tiempo más"},
    {Sense::most, "más,la mayor parte,mayoría,la mayoría,lo que más,más espacio,más sitio,lo más,más "
                  "rápido,más deprisa,más rápidamente"},
    {Sense::takes, "ocupa,ocupan,ocupando,usa,usan,usando,consume,consumen,come,comen,comiendo,gasta,gastan,"
                   "consumiendo,toma,toman,tomando,llenan,utiliza,utilizan,chupa,chupando,acapara,gastando,"
                   "devora,ocupar,come tanto,desperdicia,tragando"},
    {Sense::biggest, "más grande,más grandes,los más grandes,el más grande,la más grande,las más "
                     "grandes,mayor,mayores,más pesado,más pesados,más pesada,más "
                     "pesadas,grande,grandes,enormes,enorme,pesados,pesadas,pesado,gigantes,gigante,top,los "
                     "mayores,las mayores,por tamaño,el mayor,la mayor,más gordos,los más pesados,las más "
                     "pesadas,gordos,más voluminosos"},
    {Sense::smallest, "más pequeño,más pequeños,más pequeña,más pequeñas,el más pequeño,los más pequeños,la "
                      "más pequeña,menores,más chico,más chicos"},
    {Sense::oldest, "más antiguo,más antiguos,más antigua,más antiguas,los más antiguos,el más antiguo,las "
                    "más antiguas,más viejo,más viejos,más vieja,más viejas,los más viejos,las más "
                    "viejas,viejo,viejos,viejas,antiguos,antiguas,vieja,antiguo,la más antigua,el más "
                    "viejo,la más vieja,antigua,antigüedad"},
    {Sense::newest,
     "últimamente,más reciente,más recientes,los más recientes,el más reciente,las más recientes,más "
     "nuevo,más "
     "nuevos,recientes,reciente,nuevos,nuevas,nuevo,más nuevas,último añadido,la más reciente,más "
     "nueva,recientemente,cambiado,cambiados,modificado,modificados,modificadas,añadido,añadidos,cambió,"
     "agregado"},
    {Sense::grow,
     "ha engordado,se ha hecho más grande,se hizo más grande,ha subido,ha "
     "aumentado,crecido,crece,creció,creciendo,crecimiento,crecer,aumentado,aumentó,aumenta,engordado,han "
     "crecido,ha crecido"},
    {Sense::above,
     "compara,comparar,comparado con,más de,mayor que,mayores que,mayor de,mayores de,más grande que,más "
     "grandes que,superior a,superiores "
     "a,al menos,por encima de,mínimo,>,que pesen más de,o más,que superen,por lo menos,más grandes de,que "
     "pasen de,más pesados que,sobre los,superan,supera,que pese más de,que pesen mas de,que ocupe más "
     "de,que ocupen más de,pese más de,que pase de,pase de,pasen de,que supere,que pesen,entre"},
    {Sense::below, "menos de,menor que,menores que,menor de,menores de,más pequeño que,más pequeños "
                   "que,inferior a,inferiores a,como máximo,por debajo de,máximo,<,o menos,debajo de"},
    {Sense::inside, "en,dentro,dentro de,desde la carpeta,en la carpeta,de la carpeta,adentro de"},
    {Sense::unopened,
     "sin abrir,no abiertos,no abierto,nunca abierto,nunca abiertos,no usado,no usados,sin usar "
     "desde,olvidado,olvidados,sin utilizar,no utilizados,no he abierto,no he usado,no uso,ya no uso,nunca "
     "uso,no utilizo,no utilizadas,no usadas,no abro,no he tocado,no he utilizado,no abierta,no "
     "abiertas,nunca he abierto,olvidadas,nunca abro,sin tocar,nunca utilizo,no he vuelto a abrir"},
    {Sense::before,
     "antes,antes de,antes del,más antiguo que,más antiguos que,más viejo que,más viejos que,anterior "
     "a,anteriores a,más viejas que,más antiguas que,hasta,de hace más de,hace más de"},
    {Sense::since, "desde el principio de,desde principios de,desde comienzos de,desde inicios de,desde el "
                   "inicio de,desde el comienzo de,desde principio de,desde,más reciente que,más recientes "
                   "que,a partir de,desde hace,más nuevos que,de hace menos de"},
    {Sense::after, "después,después de,posterior a,posteriores a,tras"},
    {Sense::last, "último,última,últimos,últimas,anterior,la última vez,última vez,pasada vez"},
    {Sense::privacy, "necesita internet,necesitas internet,conexión a internet,sin internet,miras mis "
                     "archivos,lees mis archivos,lees mis correos,lees mi correo,lees mis mensajes,leer mis "
                     "correos,ves mis archivos,ve mis archivos,ver mis archivos,ver mis "
                     "fotos,ve mis fotos,tu empresa,vuestra empresa,se quedan en mi ordenador,se quedan en "
                     "mi equipo,quedan en mi ordenador,salen de mi ordenador,internet,en "
                     "línea,online,red,privado,privada,privacidad,privados,nube,telemetría,enviar,envía,"
                     "envías,enviados,servidor,servidores,espía,espías,compartir,comparte,compartes,cuenta,"
                     "sin conexión,subir,sube,subes,recopila,recopilas,datos "
                     "personales,terceros,google,wifi,mandas,manda,espiar,offline,sale,salen,confidencial,"
                     "protección de datos,recoge,transmite,ia,filtra,publicidad,subidos,quién puede "
                     "ver,quién puede leer,quién tiene acceso,conectado,conectada,ve mis contraseñas"},
    {Sense::hidden, "oculto,ocultos,oculta,ocultas,invisibles"},
    {Sense::folder, "carpeta,carpetas,directorio,directorios,subcarpeta,subcarpetas"},
    {Sense::general,
     "desactivar,desactiva,evitar,evita,impedir,impide,parar,para que "
     "no,detener,pronóstico,previsión,idioma,idiomas,análisis,resultado,resultados,basura,porquería,"
     "categoría,"
     "categorías,mejor,otro,otra,otros,primero,primer "
     "lugar,largo,demás,día,días,semana,mes,año,vez,veces,tarda,cosa así,bien,mal,hacia,restos"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler, "con sus datos,con datos,incluidos sus datos,incluidos los datos,datos incluidos"},
};

constexpr SubjectRow kSubjects[] = {
    {SubjectID::systemAdvice, "núcleos antiguos,kernels antiguos,kernels viejos,kernels,caché de "
                              "apt,apt,caché de paquetes,registros del sistema,snaps antiguos"},
    {SubjectID::leftovers,
     "restos de aplicaciones,restos de programas,restos de apps,restos,residuos,residuos de "
     "programas,aplicaciones desinstaladas,programas desinstalados,apps desinstaladas,aplicaciones "
     "borradas,programas borrados,aplicaciones eliminadas,programas eliminados,que dejaron,dejaron "
     "atrás,dejado atrás,huérfanos,huérfanas,archivos huérfanos,carpetas huérfanas"},
    {SubjectID::similarPhotos,
     "fotos similares,imágenes similares,fotos parecidas,imágenes parecidas,fotos duplicadas,imágenes "
     "duplicadas,fotos repetidas,imágenes repetidas,fotos iguales,fotos idénticas,fotos casi "
     "iguales,duplicados de fotos,imágenes iguales,fotos que se parecen,fotos dobles,se "
     "parecen,parecidas,parecidos,similares,parecen iguales,que se parecen"},
    {SubjectID::screenshots,
     "captura de pantalla,capturas de pantalla,pantallazo,pantallazos,capturas pantalla,captura,"
     "capturas,screenshots,screenshot"},
    {SubjectID::receipts,
     "recibo,recibos,fotos de recibos,tickets,tiques,fotos de tickets,fotos de facturas"},
    {SubjectID::memes, "meme,memes,imágenes graciosas,fotos graciosas"},
    {SubjectID::blurry,
     "fotos borrosas,imágenes borrosas,borroso,borrosa,borrosos,borrosas,fotos desenfocadas,desenfocadas,"
     "fotos movidas,foto borrosa,imágenes desenfocadas"},
    {SubjectID::duplicates, "duplicado,duplicados,archivos duplicados,ficheros duplicados,repetidos,archivos "
                            "repetidos,copias,archivos iguales,"
                            "archivos idénticos,duplicadas,repetidas,repetido,ficheros repetidos,dos "
                            "veces,dobles,varias veces,copias iguales"},
    {SubjectID::largeFiles,
     "archivos grandes,ficheros grandes,archivo grande,archivos pesados,archivos enormes"},
    {SubjectID::oldFiles,
     "archivos viejos,archivos antiguos,ficheros antiguos,ficheros viejos,archivos olvidados,cosas "
     "viejas,cosas antiguas"},
    {SubjectID::oldDownloads, "descargas viejas,descargas antiguas,descargas olvidadas"},
    {SubjectID::logs,
     "registros,logs,log,archivos de registro,registro,archivos log,ficheros de registro,archivos de log"},
    {SubjectID::trash, "papelera,la papelera,papelera de reciclaje,archivos borrados,basurero"},
    {SubjectID::deviceBackups,
     "backups del iphone,backup del iphone,backups de iphone,backup de iphone,backups del móvil,backup del "
     "móvil,backups del teléfono,copias de iphone,copia de iphone,copias de seguridad del iphone,copia de "
     "seguridad del "
     "iphone,copias de seguridad de iphone,iphone,ipad,copias de seguridad del móvil,copias "
     "de seguridad del teléfono,copia de seguridad del móvil,copias de seguridad de "
     "dispositivos"},
    {SubjectID::mailAttachments, "adjuntos,archivos adjuntos,adjuntos de correo,adjunto,adjuntos del correo"},
    {SubjectID::languagePacks, "paquetes de idioma,paquetes de idiomas,traducciones"},
    {SubjectID::npm, "caché de npm,npm,yarn,caché npm"},
    {SubjectID::pip, "caché de pip,pip,caché pip,caché de python"},
    {SubjectID::gradle, "gradle,caché de gradle"},
    {SubjectID::homebrew, "homebrew"},
    {SubjectID::caches,
     "caché,cachés,archivos temporales,ficheros temporales,datos temporales,archivos de caché,memoria "
     "caché,caché del navegador,temporales,caché de las aplicaciones,datos en caché,cache de apps"},
    {SubjectID::developer,
     "datos de desarrollo,datos de desarrollador,desarrollador,archivos de desarrollo,desarrollo,"
     "archivos de compilación"},
    {SubjectID::system,
     "sistema,archivos del sistema,archivos de sistema,sistema operativo,datos del sistema,ficheros "
     "del sistema"},
    {SubjectID::apps, "aplicación,aplicaciones,programa,programas,app,apps,software"},
    {SubjectID::media, "multimedia,archivos multimedia,medios"},
    {SubjectID::downloads,
     "descarga,descargas,carpeta descargas,carpeta de descargas,archivos descargados,descargado,"
     "descargados,downloads,cosas descargadas,bajados"},
    {SubjectID::desktop, "escritorio"},
    {SubjectID::documentsFolder,
     "carpeta documentos,carpeta de documentos,de mis documentos,en mis documentos"},
    {SubjectID::picturesFolder, "carpeta imágenes,carpeta de imágenes,carpeta de fotos,carpeta fotos"},
    {SubjectID::videosFolder, "carpeta vídeos,carpeta de vídeos"},
    {SubjectID::musicFolder, "carpeta música,carpeta de música"},
    {SubjectID::home, "carpeta personal,carpeta de usuario,home,directorio personal"},
    {SubjectID::videos,
     "vídeo,vídeos,película,películas,pelis,peli,clips,clip,archivos de vídeo,grabaciones,ficheros de "
     "vídeo,mp4,series"},
    {SubjectID::photos,
     "foto,fotos,imagen,imágenes,fotografía,fotografías,archivos de imagen,selfies,fotos de las "
     "vacaciones,fotos de familia"},
    {SubjectID::audio,
     "música,canción,canciones,audio,archivos de audio,mp3,álbumes,podcasts,audiolibros,archivos de música"},
    {SubjectID::pdfs, "pdf,pdfs,archivos pdf,documentos pdf,ficheros pdf"},
    {SubjectID::archives, "zip,zips,archivos zip,archivos comprimidos,comprimidos,ficheros zip"},
    {SubjectID::installers,
     "instalador,instaladores,archivos de instalación,paquetes,paquetes de instalación"},
    {SubjectID::diskImages,
     "imagen de disco,imágenes de disco,iso,isos,imágenes iso,archivos iso,máquinas virtuales,"
     "máquina virtual,discos virtuales"},
    {SubjectID::spreadsheets,
     "hoja de cálculo,hojas de cálculo,archivos de excel,excel,tablas,archivos excel"},
    {SubjectID::presentations, "presentación,presentaciones,diapositivas,powerpoints,powerpoint"},
    {SubjectID::ebooks, "libros,ebooks,libros electrónicos"},
    {SubjectID::documents, "documento,documentos,papeles,archivos de texto,documentos de word,cartas,textos"},
    {SubjectID::files, "archivo,archivos,fichero,ficheros,elemento,elementos,cosa,cosas,datos"},
    {SubjectID::startup,
     "que arranque,que se inicie,que se abra,se inicie,arranque solo,al iniciar sesión,al encender,arranca "
     "lento,arranca despacio,tarda en arrancar,arranca lentamente,inicio,al inicio,arranque,al "
     "arrancar,al iniciar,arranca automáticamente,arrancan "
     "automáticamente,programas de inicio,se inicia automáticamente,se inician automáticamente,al "
     "encender,inicio de sesión,al iniciar sesión,inicio automático,se abren solos,arrancan solos,se inician "
     "solos,se inician,se abren solas,se inicia solo,enciendo,arrancan solas,arrancan,arranca,encender,se "
     "abren,se ejecutan,al prender,prender,se abre"},
    {SubjectID::containers,
     "docker,podman,contenedor,contenedores,imágenes de docker,imágenes docker,contenedores de "
     "docker"},
    {SubjectID::flatpak, "flatpak,flatpaks,flathub"},
    {SubjectID::snap, "snap,snaps,paquetes snap,snapd"},
    {SubjectID::games, "juego,juegos,steam,videojuegos,juegos de steam,videojuego"},
};

constexpr FigureRow kFigureRows[] = {
    {Figure::number, "dos,par", 2},
    {Figure::number, "tres", 3},
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
    {Figure::number, "cien", 100},
    {Figure::ordinal, "primero,primera,primer,1º,1ª", 1},
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
    {Figure::month, "enero", 1},
    {Figure::month, "febrero", 2},
    {Figure::month, "marzo", 3},
    {Figure::month, "abril", 4},
    {Figure::month, "mayo", 5},
    {Figure::month, "junio", 6},
    {Figure::month, "julio", 7},
    {Figure::month, "agosto", 8},
    {Figure::month, "septiembre,setiembre", 9},
    {Figure::month, "octubre", 10},
    {Figure::month, "noviembre", 11},
    {Figure::month, "diciembre", 12},
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
    {Figure::daysAgo, "anteayer,antier", 2},
    {Figure::agoBefore, "hace"},
    {Figure::previous, "pasado,pasada,último,última,últimos,últimas,anterior"},
    {Figure::current, "este,esta"},
    {Figure::following, "próximo,próxima,próximos,próximas,que viene,siguiente,siguientes"},
    {Figure::ahead, "en,dentro de,de aquí a,durante"},
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
    static constexpr Language language{
        spanish_words::kWords,
        spanish_words::kSubjects,
        spanish_words::kFigureRows,
        {},
        false,
        "archivo,fichero,elemento,cosa,carpeta,directorio,vídeo,película,peli,clip,foto,imagen,fotografía,"
        "canción,pdf,documento,descarga,descargado,último"};
    return language;
}

} // namespace orlen::AskReader
