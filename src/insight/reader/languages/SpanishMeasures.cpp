#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::spanish_words {

namespace {

constexpr WordRow kMeasures[] = {
    {Sense::full,
     "poco espacio en disco,espacio bajo,espacio insuficiente,memoria llena,almacenamiento "
     "lleno,lleno,llena,casi lleno,tan lleno,llenando,se llena,llenará,llenarse,se llenará,sin espacio,falta "
     "espacio,no queda espacio,no tengo espacio,no hay espacio,poco espacio,tan poco espacio,llenado,sin "
     "sitio,quedarme sin espacio,quedaré sin espacio,quedo sin espacio,me quedo sin espacio,a tope,queda sin "
     "espacio,se me llena,me quedaré sin espacio,se acaba el espacio,acabando el espacio,lleno "
     "todo,llenar,no queda sitio,saturado,acabe el espacio,se llene,llene,acabará el "
     "espacio,petado,repleto,acaba el espacio,todo mi espacio,se fue mi espacio,se ha ido el espacio,se ha "
     "ido mi espacio,se fue el espacio,se fue todo mi espacio,no tengo espacio en,no hay sitio,sin espacio "
     "en,no me queda espacio,no me cabe nada,disco lleno,llena mi,se está llenando,se va a llenar,se va "
     "llenando,va a llenar,se llenó,se me llenó,se me está llenando,se me va a llenar,se me llene,estar "
     "lleno,estará lleno,está llenísimo,llenísimo,full,atascado,atiborrado,abarrotado,al tope,al "
     "límite,hasta el tope,hasta arriba,hasta las trancas,saturada,saturará,se satura,sin memoria,sin "
     "almacenamiento,sin disco,sin lugar,no hay lugar,no tengo lugar,no tengo sitio,no tengo memoria,no "
     "tengo almacenamiento,no me queda sitio,no me queda memoria,no me queda lugar,no me queda nada de "
     "espacio,ya no tengo espacio,ya no hay espacio,ya no me queda espacio,ya no cabe nada,ya no me cabe "
     "nada,no cabe nada,no cabe más,no cabe nada más,no entra nada,no me entra nada,no queda nada,no queda "
     "memoria,no queda lugar,no hay memoria,poca memoria,tan poca memoria,poco almacenamiento,poco "
     "lugar,poco sitio,tan poco sitio,tan poco lugar,falta de espacio,falta espacio en,falta memoria,me "
     "falta espacio,me falta memoria,memoria insuficiente,almacenamiento insuficiente,casi sin espacio,casi "
     "no tengo espacio,casi no queda espacio,casi no hay espacio,apenas queda espacio,apenas tengo "
     "espacio,quedando sin espacio,quedado sin espacio,quedé sin espacio,me quedé sin espacio,me estoy "
     "quedando sin espacio,me quedaré sin memoria,me quedo sin memoria,me quedaré sin sitio,me quedo sin "
     "sitio,se me acaba el espacio,se me acabe el espacio,se me acabará el espacio,se me acaba la memoria,se "
     "me acabó el espacio,se acabó el espacio,se acabe el espacio,se acabará el espacio,se acaba la "
     "memoria,se termina el espacio,se agota,se agote,se agotará,agota el espacio,agotará el "
     "espacio,agotado,agotando,a dónde fue mi espacio,dónde se fue mi espacio,dónde está mi espacio,se fue "
     "todo el espacio,se me fue el espacio,se me fue todo el espacio,desapareció mi espacio,desapareció el "
     "espacio,llenos,rebosa,rebosante,colmado,topado,reventar,revienta,a reventar"},
    {Sense::free,
     "libre,libres,disponible,disponibles,queda,quedan,me queda,sobrante,restante,sin usar,me "
     "quedan,resta,libre todavía,disponible todavía,libre aún,queda libre,quedan libres,me quedan libres,me "
     "queda libre,tengo libre,tengo libres,tengo disponible,tengo disponibles,hay libre,hay libres,hay "
     "disponible,hay disponibles,me sobra,me sobran,desocupado,sobrando,vacante,espacio "
     "restante,restantes,quedará,quedaría,disponibilidad,espacio disponible todavía,sin ocupar,quedando"},
    {Sense::total,
     "total,capacidad,en total,totales,tamaño total,capacidad total,resumen,estado,panorama,capacidad del "
     "disco,vista general,resumen general,balance,estado general,en conjunto,todo junto,en su "
     "totalidad,suma,suma total,global,totalidad,tamaño total de mi,de cuánto es,de cuántos gb es,cuánta "
     "capacidad,situación"},
    {Sense::disk, "disco,disco "
                  "duro,ssd,hdd,ordenador,computadora,computador,pc,equipo,portátil,máquina,partición,"
                  "almacenamiento,unidad,laptop,compu,discos,ordena,memoria "
                  "interna,ordenatas,compus,computadoras,notebook,netbook,lap,mac,volumen,disco rígido,disco "
                  "sólido,disco interno,disco principal,unidad de disco,unidades,almacén,almacenamiento "
                  "interno,memoria del ordenador,memoria del equipo,memoria de la computadora,ordenador "
                  "portátil,compu portátil,nvme,disko,equipos,pc de escritorio,tarro"},
    {Sense::space, "espacio,sitio,lugar,espacio en disco,memoria,espacio de disco,espacio de "
                   "almacenamiento,hueco,cabe,caben,cabrá,espacios,espacio de memoria,espasio,memoria de "
                   "almacenamiento,gb de espacio,gigas de espacio,entra,entran,cupo,caberá,quepa,quepan"},
    {Sense::howMuch,
     "cuánto,cuánta,qué cantidad,qué cantidad de,quanto,kuanto,cuánto me,qué gano,cuánto gano,qué "
     "ganaría,qué consigo,cuánto se libera,cuánto libera,cuánto más,qué tanta,cuánto espacio extra,cuánto "
     "consigo,cuánto obtengo,cuánto obtendría,cuánto ganaría,cuánto gano si,cuánto ahorro,cuánto "
     "ahorraría,cuánto me ahorro,cuánto me ahorraría,cuánto recupero,cuánto recuperaría,cuánto libero,cuánto "
     "liberaría,cuánto liberaría si,cuánto se liberaría,cuánto liberan,cuánto me libera,cuánto me queda "
     "si,qué gano si,qué ganancia,qué obtengo,qué obtendría,qué consigo si,de cuánto,cuántas en total,cuanto "
     "espasio"},
    {Sense::why,
     "por qué,porqué,porque,a qué se debe,cómo es que,por qué razón,razón,motivo,debido a qué,xq,pq,a qué "
     "viene,cómo es posible,cómo puede ser,debido a,cuál es la razón,cuál es el motivo,cuál es la "
     "causa,causa,causas,razones,motivos,qué causa,qué provoca,qué hace que,culpa,culpa de qué,a causa de "
     "qué,por q,x q,xk,xke,pork,porke,pa qué,por qué motivo,cómo así que"},
    {Sense::when,
     "cuándo,en qué fecha,cuánto tiempo,cuántos días,en cuánto tiempo,pronto,qué día,qué fecha,cuánto "
     "falta,cuánto tardará,para cuándo,cuántos meses,dentro de cuánto,cuánto tarda,cuántas semanas,cuánto "
     "tiempo más,para qué fecha,en qué mes,qué mes,en cuántos días,en cuántos meses,en cuántas "
     "semanas,cuántos años,dentro de cuánto tiempo,hasta cuándo,desde cuándo,a partir de cuándo,cuánto "
     "tiempo me queda,cuánto tiempo queda,cuánto tiempo falta,cuánto falta para,cuánto queda para,cuánto "
     "dura,cuánto durará,qué hora,próximamente,en breve,cuándo va a,cuándo es que,fecha en que,cuánto "
     "demora,cuánto demorará"},
    {Sense::most,
     "más,la mayor parte,mayoría,la mayoría,lo que más,más espacio,más sitio,lo más,más rápido,más "
     "deprisa,más rápidamente,el mayor espacio,más memoria,más lugar,más almacenamiento,más disco,más que "
     "nada,principal,principales,principalmente,culpable,culpables,culpa,tiene la culpa,tienen la "
     "culpa,responsable,responsables,peor,peores,más "
     "gastan,más consumen,sobre todo lo,mayormente,la gran parte,más veloz mente,primer lugar en,lo más "
     "rápido posible,más rápido posible"},
    {Sense::takes,
     "ocupa,ocupan,ocupando,usa,usan,usando,consume,consumen,come,comen,comiendo,gasta,gastan,consumiendo,"
     "toma,toman,tomando,llenan,utiliza,utilizan,chupa,chupando,acapara,gastando,devora,ocupar,come "
     "tanto,desperdicia,tragando,acaparan,acaparando,devoran,tragan,traga,se traga,se come,se comen,se está "
     "comiendo,me come,me comen,se lleva,se llevan,quita espacio,quitan espacio,roba,roban,robando,me "
     "roba,chupan,abarca,abarcan,abarcando,gastaría,malgasta,malgastan,desperdician,llena mi "
     "disco,utilizando,ocupado por,está llenando,ocupará,ocuparán,engulle,tragón,tragones,come espacio,comen "
     "espacio,hogs,consumidores,monopoliza"},
    {Sense::biggest,
     "más grande,más grandes,los más grandes,el más grande,la más grande,las más grandes,mayor,mayores,más "
     "pesado,más pesados,más pesada,más "
     "pesadas,grande,grandes,enormes,enorme,pesados,pesadas,pesado,gigantes,gigante,top,los mayores,las "
     "mayores,por tamaño,el mayor,la mayor,más gordos,los más pesados,las más pesadas,gordos,más "
     "voluminosos,grandotes,grandote,gigantesco,gigantescos,inmenso,inmensos,más enorme,más enormes,más "
     "gordo,más gorda,gordo,gorda,gordas,masivo,masivos,grandísimo,grandísimos,más "
     "voluminoso,voluminoso,voluminosos,más extensos,ordenados por tamaño,ordenado por tamaño,de mayor a "
     "menor,por peso,de mayor tamaño,mayor tamaño,de gran tamaño,el que más pesa,los que más pesan,que más "
     "pesan,que más pesa,las que más pesan,más "
     "espaciosas,monstruo,tochos,tocho,bestias,pesadísimos,pesada,más largos,más grande de la,más grandes de "
     "la,más grande de mi,más grandes de mi,más grandes de mis,más grande del,más grandes del,más grandes de "
     "todas,más grandes de todos,más grande de todos,más grande de todas,más grandes de,más grande de"},
    {Sense::smallest, "más pequeño,más pequeños,más pequeña,más pequeñas,el más pequeño,los más pequeños,la "
                      "más pequeña,menores,más chico,más "
                      "chicos,pequeño,pequeños,pequeña,pequeñas,chico,chicos,chica,chiquitos,diminutos,menor,"
                      "el menor,los menores,más chicas,más chica,más livianos,más ligeros"},
    {Sense::oldest,
     "más antiguo,más antiguos,más antigua,más antiguas,los más antiguos,el más antiguo,las más antiguas,más "
     "viejo,más viejos,más vieja,más viejas,los más viejos,las más "
     "viejas,viejo,viejos,viejas,antiguos,antiguas,vieja,antiguo,la más antigua,el más viejo,la más "
     "vieja,antigua,antigüedad,viejísimo,viejísimos,antiquísimo,antiquísimos,anticuado,anticuados,obsoleto,"
     "obsoletos,obsoletas,del año de la pera,de hace tiempo,de hace mucho tiempo,de hace "
     "años,vetusto,añejo,añejos,más añejo,más añejos,primeros de todos,caducos,desfasados,más antiguo de "
     "todos,más viejo de todos"},
    {Sense::newest,
     "últimamente,más reciente,más recientes,los más recientes,el más reciente,las más recientes,más "
     "nuevo,más nuevos,recientes,reciente,nuevos,nuevas,nuevo,más nuevas,último añadido,la más reciente,más "
     "nueva,recientemente,cambiado,cambiados,modificado,modificados,modificadas,añadido,añadidos,cambió,"
     "agregado,últimos añadidos,últimas añadidas,último modificado,últimos modificados,últimamente "
     "modificado,modificada,modificó,cambiada,cambiadas,cambiaron,cambiando,alterado,alterados,editado,"
     "editados,editada,actualizado,actualizados,agregados,agregada,agregadas,agregué,añadida,añadidas,añadí,"
     "aparecido,aparecidos,aparecieron,apareció,creado,creados,creada,creadas,llegado,llegaron,recién,recién "
     "descargado,recién descargados,recién llegados,lo nuevo,lo más nuevo,lo más reciente,lo último,hace "
     "poco,de hace poco,fresco,frescos,novedades,novedad"},
    {Sense::grow,
     "ha engordado,se ha hecho más grande,se hizo más grande,ha subido,ha "
     "aumentado,crecido,crece,creció,creciendo,crecimiento,crecer,aumentado,aumentó,aumenta,engordado,han "
     "crecido,ha crecido,crecieron,han engordado,engordó,engordaron,engorda,aumentaron,han "
     "aumentado,aumentando,aumentar,incrementado,incrementó,incremento de,se agrandó,agrandado,se ha "
     "agrandado,se ha inflado,inflado,hinchado,se hinchó,se ha hinchado,se infló,se disparó,disparado,se ha "
     "disparado,subió,subieron,ha ganado tamaño,ganado peso,ha ganado peso,acumulado más,se ha acumulado,se "
     "acumuló,acumulando,expandido,se expandió,ocupa más que antes,ocupan más que antes,pesa más que "
     "antes,más grande que antes,se puso más grande,se ha vuelto más grande,ampliado,crecen"},
    {Sense::above,
     "compara,comparar,comparado con,más de,mayor que,mayores que,mayor de,mayores de,más grande que,más "
     "grandes que,superior a,superiores a,al menos,por encima de,mínimo,>,que pesen más de,o más,que "
     "superen,por lo menos,que pasen de,más pesados que,sobre los,superan,supera,que pese más de,que pesen "
     "mas de,que ocupe más de,que ocupen más de,pese más de,que pase de,pase de,pasen de,que supere,que "
     "pesen,entre,comparados con,comparada con,versus,vs,frente a,compárame,mayores a,mayor a,más grandes "
     "a,arriba de,por arriba de,encima de,a partir de los,que sobrepasen,que "
     "sobrepasan,sobrepasan,sobrepasa,sobrepasen,exceden,excede,excedan,que excedan,que excedan de,que "
     "superan,que pasan de,pasan de,que ocupan más de,que ocupa más de,ocupan más de,ocupa más de,ocupen más "
     "de,que pesan más de,que pesa más de,pesan más de,pesa más de,pesen más de,que tengan más de,de arriba "
     "de,o mayores,o mayor,y más,para arriba,pa arriba,hacia arriba,mínimo de,como mínimo,más pesadas "
     "que,más largo que,no menos de,entre los"},
    {Sense::below,
     "menos de,menor que,menores que,menor de,menores de,más pequeño que,más pequeños que,inferior "
     "a,inferiores a,como máximo,por debajo de,máximo,<,o menos,debajo de,menor a,menores a,abajo de,por "
     "abajo de,que pesen menos de,que pesan menos de,pesan menos de,ocupan menos de,que ocupan menos de,que "
     "no superen,no más de,no mayor a,máximo de,y menos,o menores,hasta un máximo de,más chicos que,más "
     "pequeñas que,inferior,como mucho,a lo sumo"},
    {Sense::inside, "en,dentro,dentro de,desde la carpeta,en la carpeta,de la carpeta,adentro de,adentro,al "
                    "interior de,desde mi carpeta,en mi carpeta,en la carpeta de,de mi carpeta,dentro del,en "
                    "el,en mi,en los,en las,en mis,en la,metidos en"},
    {Sense::unopened,
     "sin abrir,no abiertos,no abierto,nunca abierto,nunca abiertos,no usado,no usados,sin usar "
     "desde,olvidado,olvidados,sin utilizar,no utilizados,no he abierto,no he usado,no uso,ya no uso,nunca "
     "uso,no utilizo,no utilizadas,no usadas,no abro,no he tocado,no he utilizado,no abierta,no "
     "abiertas,nunca he abierto,olvidadas,nunca abro,sin tocar,nunca utilizo,no he vuelto a abrir,no he "
     "visto,no he leído,no he escuchado,no he jugado,no he mirado,no veo nunca,no usados desde,sin "
     "usarse,sin abrirse,sin ver,sin leer,sin escuchar,sin utilizar desde,que no uso,que ya no uso,que nunca "
     "uso,que no abro,que no utilizo,que nunca he abierto,que no he abierto,que no he usado,no toco,no he "
     "tocado desde,nunca he usado,nunca usado,nunca usados,nunca usadas,nunca he visto,nunca vistos,nunca "
     "vistas,nunca leídos,casi no uso,casi nunca uso,apenas uso,poco usado,poco usados,poco usadas,poco "
     "uso,rara vez uso,raramente uso,en "
     "desuso,abandonado,abandonados,abandonadas,olvidada,olvidé,empolvados,llenos de polvo,no leídos,no "
     "vistos,no jugados,llevo sin abrir,llevo sin usar,hace tiempo que no uso,hace mucho que no uso,hace "
     "mucho que no abro,hace tiempo que no abro"},
    {Sense::before,
     "antes,antes de,antes del,más antiguo que,más antiguos que,más viejo que,más viejos que,anterior "
     "a,anteriores a,más viejas que,más antiguas que,hasta,de hace más de,hace más de,más viejos a,más "
     "antiguos a,con más de un,con más de,de antes de,de antes del,anteriores al,anterior al,previo "
     "a,previos a,previas a,de hace más,hace más,que tengan más de un,que tienen más de un,antigüedad mayor "
     "a,con una antigüedad de,de más de hace,para antes de,antes que"},
    {Sense::since,
     "desde el principio de,desde principios de,desde comienzos de,desde inicios de,desde el inicio de,desde "
     "el comienzo de,desde principio de,desde,más reciente que,más recientes que,a partir de,desde hace,más "
     "nuevos que,de hace menos de,desde la,desde el,desde los,desde hace unos,de menos de hace,más nueva "
     "que,más nuevas que,más nuevo que,posteriores al,a contar de,de desde,desde finales de,desde mediados "
     "de,desde mitad de"},
    {Sense::after, "después,después de,posterior a,posteriores a,tras,luego de,pasado el,pasada la,posterior "
                   "al,siguientes a,después del,después de la,tras el,tras la"},
    {Sense::last, "último,última,últimos,últimas,anterior,la última vez,última vez,pasada vez,última "
                  "ocasión,vez pasada,la vez pasada,la vez anterior,último de,pasadas,la "
                  "anterior,previa,previo,más reciente limpieza,postrera"},
    {Sense::privacy,
     "necesita internet,necesitas internet,conexión a internet,sin internet,miras mis archivos,lees mis "
     "archivos,lees mis correos,lees mi correo,lees mis mensajes,leer mis correos,ves mis archivos,ve mis "
     "archivos,ver mis archivos,ver mis fotos,ve mis fotos,tu empresa,vuestra empresa,se quedan en mi "
     "ordenador,se quedan en mi equipo,quedan en mi ordenador,salen de mi ordenador,internet,en "
     "línea,online,red,privado,privada,privacidad,privados,nube,telemetría,enviar,envía,envías,enviados,"
     "servidor,servidores,espía,espías,compartir,comparte,compartes,cuenta,sin "
     "conexión,subir,sube,subes,recopila,recopilas,datos "
     "personales,terceros,google,wifi,mandas,manda,espiar,offline,sale,salen,confidencial,protección de "
     "datos,recoge,transmite,ia,filtra,publicidad,subidos,quién puede ver,quién puede leer,quién tiene "
     "acceso,conectado,conectada,ve mis contraseñas,a dónde mandas,mandas mis datos,mandan mis datos,salen "
     "mis datos,salen de mi,salen de mi equipo,salen de mi pc,sale de mi pc,sale de mi equipo,sale de mi "
     "ordenador,sale de mi computadora,salen de mi computadora,se queda en mi,se quedan en mi,se queda en mi "
     "equipo,se queda en mi ordenador,se queda en mi computadora,se envía,se "
     "envían,envían,enviando,enviado,enviada,enviadas,enviarás,se comparte,se "
     "comparten,compartidos,compartido,compartes mis,compartiendo,vendes,vendes mis datos,vende,vender mis "
     "datos,venden,vendido,roban mis datos,robas mis datos,robarme,datos privados,mis datos privados,datos "
     "míos,mis datos personales,información personal,información privada,espiando,espías mis,me espías,me "
     "espía,nos espías,vigilas,vigila,rastreas,rastrea,rastreo,rastreador,rastreadores,tracking,subes "
     "mis,subes algo,subir mis,subido,subida,se sube,se "
     "suben,suben,colectas,recolecta,recolectas,recopilan,recolección,recogida de "
     "datos,recoges,registrarme,registro en línea,crear cuenta,iniciar sesión en,requiere internet,requieres "
     "internet,funciona sin internet,funciona sin conexión,usa internet,usas internet,conecta a "
     "internet,conectas a internet,conectas,conecta,te conectas,se conecta,conexión,a la red,a la web,la "
     "web,a la nube,en la nube,inteligencia "
     "artificial,chatgpt,facebook,hackers,hacker,anuncios,confidenciales,secretos,secreto,público,públicos,"
     "privada mi,íntimo,ver mis contraseñas,lees mis contraseñas,ves mis contraseñas,sabes mis "
     "contraseñas,ve mis datos,ven mis datos,ves mis datos,lees mis,miras mis,ves mis,ver mis datos,leer mis "
     "archivos,leer mis mensajes,acceso a mis,accedes a mis,accedes a,tienes acceso a,tiene acceso a,quién "
     "ve,quién lee,alguien puede ver,alguien ve,ver alguien,fugas de datos,filtras,filtrar,se suben a algún "
     "sitio,se suben a algún lado,se suben a alguna parte,se suben a internet"},
    {Sense::hidden, "oculto,ocultos,oculta,ocultas,invisibles,escondido,escondidos,escondida,escondidas,"
                    "invisible,ocultas por"},
    {Sense::folder, "carpeta,carpetas,directorio,directorios,subcarpeta,subcarpetas,subdirectorio,"
                    "subdirectorios,folder,folders,carpetitas"},
    {Sense::general,
     "desactivar,desactiva,evitar,evita,impedir,impide,parar,para que "
     "no,detener,pronóstico,previsión,idioma,idiomas,análisis,resultado,resultados,categoría,categorías,"
     "mejor,otro,otra,otros,primero,primer lugar,largo,demás,día,días,semana,mes,año,vez,veces,tarda,cosa "
     "así,bien,mal,hacia,restos,apagar,apaga,quitar "
     "del,deshabilitar,deshabilita,bloquear,bloquea,frenar,para "
     "de,impido,evito,detengo,detén,desactivo,parar que,hago para que "
     "no,activar,desorden,desmadre,despelote,relajo,ubicación,ruta,escaneo,hallazgos,modelo,modelos"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler,
     "que tengo,que tenga,con sus datos,con datos,incluidos sus datos,incluidos los datos,datos incluidos"},
};

} // namespace

std::span<const WordRow> measures()
{
    return kMeasures;
}

} // namespace orlen::AskReader::spanish_words
