#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::spanish_words {

namespace {

constexpr WordRow kAsking[] = {
    {Sense::ending, "(archivo|archivos|fichero|ficheros) de texto,(archivos|ficheros) txt"},
    {Sense::installed, "instalado,instalados,instalada,instaladas,está instalado,están instaladas,tengo "
                       "instaladas,tengo instalado,instalé,instalamos,está instalada,están instalados"},
    {Sense::self,
     "qué puedes hacer,qué sabes hacer,qué te puedo preguntar,qué puedo preguntar,quién eres,qué "
     "eres,ayuda,ayúdame,hola,buenos días,buenas tardes,buenas,gracias,cómo funciona esto,qué es orlen,qué "
     "hace orlen,cómo funciona orlen,para qué sirve orlen,qué puedes decirme,qué hace este programa,cómo se "
     "usa orlen,para qué sirves,cómo puedes ayudarme,qué puedes hacer por mí,qué haces,quién eres tú,para "
     "qué es orlen,para qué es este programa,para qué sirve este programa,para qué sirve esto,cómo "
     "funciona,cómo funcionas,cómo te uso,cómo uso esto,cómo uso orlen,cómo se usa esto,en qué me puedes "
     "ayudar,en qué puedes ayudarme,en qué me ayudas,qué cosas puedes hacer,qué más puedes hacer,qué puede "
     "hacer orlen,qué puede hacer este programa,qué hace esta app,qué es este programa,qué es esto,qué te "
     "puedo pedir,qué te puedo consultar,buen día,buenas noches,hola orlen,hey,muchas gracias,mil "
     "gracias,auxilio,qué onda,quiubo,me ayudas,me puedes ayudar,qué sabes"},
    {Sense::advise,
     "recomiendas,recomendar,recomendación,recomendaciones,aconsejas,consejo,consejos,sugieres,sugerencia,"
     "sugerencias,empezar,empiezo,qué hago,lo mejor,sugerir,conviene,conviene borrar,vale la "
     "pena,empezando,recomendarías,sugieres,qué debo hacer,qué puedo hacer,qué hago ahora,qué debería "
     "hacer,trucos,qué hacer,por dónde empiezo,por dónde empezar,con qué empiezo,con qué empezar,qué me "
     "recomiendas,recomienda,recomiéndame,recomendado,recomendable,aconseja,aconséjame,sugiere,sugiéreme,qué "
     "harías,qué harías tú,me conviene,convendría,qué debo borrar primero,consejitos,tips,truco,vale la pena "
     "borrar,merece la pena,qué puedo hacer al respecto,qué tengo que hacer,qué "
     "debería,comenzar,comienzo,empezamos,qué me aconsejas"},
    {Sense::trust,
     "confiar,confianza,fiable,de fiar,confiable,es seguro orlen,orlen es seguro,fiarme,fiar,fío,me fío,en "
     "peligro,en riesgo,código abierto,software libre,confío,puedo confiar en ti,puedo confiar en orlen,me "
     "puedo fiar,puedo fiarme,fiarse,seriedad,open source,fiabilidad,confiarte,eres seguro,eres de fiar"},
    {Sense::beyond,
     "virus,malware,troyano,más rápida,más rápido "
     "mi,acelerar,acelera,lento,lenta,rendimiento,desfragmentar,ram,memoria "
     "ram,procesador,cpu,batería,controladores,cortafuegos,antivirus,temperatura,tarjeta gráfica,qué no "
     "puedes hacer,qué no sabes hacer,qué no haces,qué no hace orlen,qué no hace este programa,qué no puede "
     "hacer,qué no puede hacer orlen,qué cosas no puedes hacer,no puede hacer este "
     "programa,impresora,bluetooth,formatear,formateo,particionar,cifrar,encriptar,hackeado,hackearon,"
     "sobrecalienta,teclado,ratón,mouse,pantalla rota,fondo de pantalla,volumen del sonido,contraseña del "
     "wifi,clave del wifi,actualizar linux,actualizar el sistema,sectores defectuosos,lentitud,va lento,más "
     "veloz,lag,gusano,lentísimo,tarjeta de video,instalar actualizaciones,mi pc más rápido,pc más rápido,el "
     "pc más rápido,compu más rápida,mi compu más rápida,computadora más rápida,ordenador más rápido,vaya "
     "más rápido,ir más rápido"},
    {Sense::happens,
     "dónde acaban,dónde terminan,adónde van a parar,a dónde van a "
     "parar,pasa,pasará,pasaría,ocurre,sucede,qué pasa,para "
     "siempre,definitivamente,permanentemente,definitivo,adónde van,a dónde "
     "van,irreversible,romper,rompe,dañar,estropear,estropea,romperá,daña,por su cuenta,automáticamente,sin "
     "preguntar,por sí solo,por tu cuenta,sin permiso,sin avisar,qué sucede,qué ocurre,se pierde,se "
     "pierden,perder algo,pierdo,pierdo algo,perdidos,perdido para siempre,dónde van,a dónde se van,adónde "
     "se van,dónde quedan,a dónde van los,borrado para siempre,se borra para siempre,se borran para "
     "siempre,arrepiento,me arrepiento,dañado,se daña,se rompe,se estropea,se rompe algo,romper algo,dañar "
     "algo,estropear algo,por sí mismo,tú solo,él solo,sin consultarme,sin preguntarme,sin mi permiso,sin "
     "avisarme,va a pasar,se borra todo,de forma permanente,irrecuperable"},
    {Sense::only,
     "solo,sólo,solamente,únicamente,nada más,nomás,sólo los,solamente los,nada más los,exclusivamente"},
    {Sense::also, "y,e,también,además,y qué hay de,qué hay de,qué tal,y qué tal,y los,y las,y el,y la,qué "
                  "pasa con,y qué pasa con,así como,&,y qué hay de los,y respecto a,o,u,asimismo,y "
                  "también,más aparte,y de paso,igual que,y qué hay con,o bien"},
    {Sense::backward, "ese,esa,esos,esas,este,esta,estos,estas,eso,esto,aquel,aquella,aquellos,lo,ellos,"
                      "ellas,él,ella,los que,las que,el que,la que"},
    {Sense::how, "cómo"},
    {Sense::general, "el resto,los restantes,los siguientes,las siguientes"},
    {Sense::filler, "juntos,juntas"},
    {Sense::filler,
     "para qué sirve,sirve,para que sirve,para qué es,mi nieto,nieta,me gustaría saber,quisiera "
     "saber,podrías decirme,me podrías decir,puedes decirme "
     "si,el,la,los,las,un,una,unos,unas,de,del,al,a,mi,mis,nuestro,nuestra,tu,tus,su,sus,yo,me,mí,nos,"
     "nosotros,te,ti,se,le,les,es,son,era,eran,soy,eres,está,están,estoy,estaba,ser,sea,estar,había,he,has,"
     "ha,hemos,han,haber,tienes,tiene,tenemos,tener,para,por,con,sin embargo,si,como,por "
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
     "cierto,a ver,oye,venga,caramba,jolín,quiero ver,vaya,esta noche,anoche,para un archivo,en un "
     "archivo,en los archivos significa,al lado de un archivo,junto a un archivo,de un archivo "
     "significa,hecho,hechas,realizado,realizadas,podrías,podrías mostrarme,podrías darme,podrías "
     "enseñarme,puedes,puedes darme,puedes enseñarme,me puedes mostrar,me puedes dar,me podrías mostrar,me "
     "podrías dar,me dirías,me muestras,me das,me enseñas,me gustaría ver,quería saber,quiero saber,deseo "
     "saber,deseo,desearía,me pregunto,pregunta,una pregunta,una "
     "duda,duda,oiga,mira,mire,che,wey,güey,amigo,amiga,compa,tío,tía,hijole,ándale,porfis,porfavorcito,plis,"
     "pls,gracias de antemano,de antemano,disculpa,disculpe,perdón,perdona,perdone,lo siento,por el "
     "momento,de momento mi,en estos momentos,a día de hoy,ahorita,ahorita mismo,ya mismo,en este "
     "instante,hoy por hoy,o sea,osea,la verdad,digamos,más bien,este programa dice,a lo "
     "mejor,acaso,supongo,sabes,sabes cuánto,sabrías decirme,sabes si,sabes decirme,dices,listado,lista "
     "de,la lista de,haz una lista,hazme una lista,dame una lista,dame la lista,dame el "
     "listado,enumera,enumérame,enuméralos,detalla,detállame,completo,completa,completos,existente,"
     "existentes,que "
     "existen,guardo,guardando,almacenado,almacenados,almacenadas,almaceno,metido,metidos,regados,regadas,"
     "tirados por ahí,tiradas por ahí,hay por ahí,por aquí,acá,allá,en total "
     "y,varios,varias,diversos,distintos,distintas,diferentes,cualquier,cualquiera,ciertos,cierto,cierta,"
     "específico,específicos,concreto,concreta,concretos,montón,un montón,un montón "
     "de,montones,bastantes,harto,hartos,bien harto,nomás dime,exacto,exactitud,con "
     "exactitud,precisamente,casualmente,por "
     "casualidad,conmigo,contigo,nuestros,nuestras,vuestro,vuestra,vuestros,cuyo,cuyos,cuya,porfa dime,en "
     "general,general,abuela,abuelo,abuelita,mamá,papá,hija,esposa,marido,jefe,profe,gente dice,sería "
     "bueno,vez que,qué tan,no sé,no sé si,ni "
     "sé,ay,uy,uf,ups,caray,rayos,demonios,diablos,hazlo,hacerlo,hágalo,esté,estén "
     "ahí,tenga,tengan,tengas,pudiera,pudieras,pueda,puedan,dado que,ya que,puesto que,debido,cuanto "
     "antes,lo antes posible,urgente,urgentemente,de una vez,de "
     "golpe,seguido,siguen,sigue,sigo,volver,vuelve,vuelto,podrían decirme,me podrían decir,para una "
     "actualización,para la actualización,para actualizar,para las actualizaciones,para un update,así "
     "nomás,sirve todavía"},
    {Sense::negation, "no,nunca,jamás,ningún,ninguno,ninguna,nada,tampoco,nadie,nunca más,ya no,tampoco "
                      "los,en absoluto,ningunos,ninguna de"},
    {Sense::except,
     "que no sea un,que no sea una,que no sean,excepto,salvo,menos,a excepción de,aparte de,además "
     "de,quitando,sin contar,que no sean,que no sea,excluyendo,pero no,sin,con excepción de,y no,sin "
     "incluir,pero sin,ignorando,sin tocar,sin borrar,sin eliminar,sin perder,pero deja,deja "
     "fuera,dejando fuera,ni,menos las de,menos los de,menos lo de,en vez de,sin que,excepto los,excepto "
     "las,excepto mis,salvo los,salvo las,salvo mis,menos mis,menos los,menos las,menos el,menos la,aparte "
     "de los,aparte de las,aparte de mis,a parte de,sin mis,sin los,sin las,sin "
     "contar los,sin contar mis,sin incluir los,pero no los,pero no las,pero no mis,pero no el,pero no la,y "
     "no los,y no mis,que no estén en,que no son,que no sea "
     "el,exceptuando,descontando,omitiendo,exceptúa,excluye,obviando,deja mis,deja los,no incluyas,no "
     "toques,quita los que,sin quitar,sin mover,sin perder mis,en lugar de,pero respeta"},
    {Sense::lasts,
     "alcanza,alcanzará,alcanzar,basta,bastará,bastar,dura,durará,aguanta,aguantará,aguantar,llega,llegará,"
     "será suficiente,tendré,habrá,tendremos,me alcanza,me alcanzará,nos alcanza,alcance,me dura,me "
     "durará,me dará,dará,da abasto,llegaré,llego,llegamos,va a alcanzar,va a durar,va a bastar,me llega,me "
     "bastará,será bastante,es suficiente,sea suficiente,será suficiente el,resiste,resistirá,tendrá "
     "suficiente,me va a alcanzar,me va a durar,va a llegar,aguantaré"},
    {Sense::speed,
     "con qué rapidez,qué tan rápido,a qué velocidad,cómo de rápido,a qué ritmo,ritmo,velocidad,al día,por "
     "día,a la semana,por semana,al mes,por mes,cada día,cada semana,cada mes,qué tan de prisa,cuán "
     "rápido,con qué velocidad,a cuánto ritmo,en promedio,por "
     "hora,diariamente,semanalmente,mensualmente,diario,todos los días,todas las semanas,todos los meses,por "
     "año,de media,qué tan rápidamente,cómo de deprisa,qué velocidad,qué ritmo,a la hora"},
    {Sense::what,
     "qué,cuál,cuáles,dónde,dónde está,dónde están,quién,qué es,qué son,qué hay,cuál es,cuáles son,hay "
     "algún,hay alguna,tengo algún,qué clase de,qué tipo de,has encontrado,existen,q,ke,hay,tengo,en qué,a "
     "qué,con qué,dónde se encuentra,dónde se encuentran,dónde tengo,dónde quedó,dónde quedaron,dónde "
     "hay,dónde se guardan,en dónde,en dónde está,cuál de,qué cosa es,qué cosas,qué carajo es,qué diablos "
     "es,qué rayos es,qué contiene,explícame qué es,describe,descríbeme,háblame de,cuéntame de,me "
     "explicas,muéstrame los,muéstrame las,muéstrame todos los,qué clases de,qué tipos de,has visto "
     "algún,hay unos,hay alguno,hay algunos,hay algunas,tengo algo,tengo algunos,tengo algunas,tendré "
     "algún,tenemos algún,existe,existe algún,encontraste algún,k,qe,kual,qué otros,qué otras,qué más,cuáles "
     "de,qué significa eso de,hay muchos,habrá algún"},
    {Sense::howBig,
     "cuánto pesan,y cuánto pesan,cuánto espacio ocupan todas,qué tamaño,tamaño,tamaño de,el tamaño,cuánto "
     "ocupa,cuánto ocupan,cuánto espacio ocupa,cuánto espacio ocupan,cuánto pesa,cuánto pesan,cómo de "
     "grande,qué tan grande,cuánto espacio usa,cuánto espacio usan,cuánto espacio toma,cuánto espacio "
     "toman,cuántos gb,cuántos gigas,pesa,pesan,peso,cuánto mide,cuánto usa,cuánto usan,cuánto "
     "ocupará,tamaños,cuánto lugar ocupan,cuánto lugar ocupa,qué tan grandes,cuánto espacio consumen,cuánto "
     "espacio consume,cuánto sitio ocupan,cuánto sitio ocupa,cuánto es,cuánto son,cuanto hay "
     "en,pese,pesen,ocupe,ocupen,cuánto miden,cuánto espacio pesa,cuánto espacio pesan,cuánto está "
     "ocupando,cuánto están ocupando,cuánto espacio está ocupando,cuánto espacio están ocupando,cuánto "
     "espacio me ocupa,cuánto espacio me ocupan,cuánto me ocupa,cuánto me ocupan,cuánto me pesa,cuánto "
     "come,cuánto comen,cuánto chupa,cuánto chupan,cuánto gasta,cuánto gastan,cuánto espacio gasta,cuánto "
     "espacio gastan,cuánto consume,cuánto consumen,cuánto toma,cuánto toman,cuánto utiliza,cuánto "
     "utilizan,cuánto espacio utiliza,cuánto espacio utilizan,cuánto disco ocupa,cuánto disco ocupan,cuánta "
     "memoria ocupa,cuánta memoria ocupan,cuánta memoria usa,cuánta memoria consume,cuánto almacenamiento "
     "ocupa,cuánto almacenamiento ocupan,cuánto almacenamiento usa,cuánto almacenamiento usan,cuántos "
     "megas,cuántos mb,cuántos gigabytes,cuántas gigas,cuántos bytes,cuántos gb ocupa,cuántos gb "
     "ocupan,cuántos gigas ocupa,cuántos gigas ocupan,ocupa cuánto,ocupan cuánto,pesa cuánto,de qué "
     "tamaño,de qué tamaño es,de qué tamaño son,qué tamaño tiene,qué tamaño tienen,qué peso,qué peso "
     "tiene,qué espacio ocupa,qué espacio ocupan,qué tanto espacio ocupa,qué tanto espacio ocupan,qué tanto "
     "ocupa,qué tanto ocupan,qué tanto pesa,qué tanto pesan,el peso de,peso de,espacio que ocupa,espacio que "
     "ocupan,espacio ocupado por,cuánto espacio hay en,cuánto tengo en,qué porcentaje,qué porcentaje "
     "de,porcentaje de,qué parte,qué proporción,cómo de pesado,cuánto tamaño,ocupara,dimensiones,cuán "
     "grande,cuán grandes,cuánto sitio,cuánto se lleva,cuánto se llevan"},
    {Sense::howMany, "cuántos,cuántas,número de,cantidad de,cuántas veces,con qué frecuencia,cuántos "
                     "hay,cuenta los,cuenta mis,cuenta las,cuéntame los,contar,conteo,el número de,cada "
                     "cuánto,cuántos son,cuántas son,qué cantidad de archivos,cuánto archivos"},
    {Sense::can,
     "puedo,puede,pueden,podría,podrían,podemos,debo,debería,deberían,se puede,se pueden,tengo que,es "
     "posible,es seguro,es buena idea,hay que,podré,poder,debemos,se podría,podemos borrar,tendría "
     "que,habría que,debería yo,deba,puedo yo,se podrá,es bueno,es malo,es malo si,está bien si,pasa algo "
     "si,es prudente,es recomendable,es correcto,es necesario,sería seguro,se debe,se deben,se vale,hace "
     "falta que,me hace falta el,necesito todavía,todavía necesito,aún necesito,lo necesito,los necesito,la "
     "necesito,las necesito,podés,podrás,todavía lo necesito,necesito yo,debiera"},
    {Sense::makeRoom,
     "liberar,libero,libera,liberado,ganar,gano,hacer sitio,hacer espacio,hacer lugar,recuperar "
     "espacio,ahorrar,ahorro,despejar,liberaría,ganaría,liberé,conseguir espacio,obtener "
     "espacio,liberando,hacer hueco,necesito espacio,necesito más "
     "espacio,descongestionar,liberan,ahorraría,recuperaría,recuperar sitio,necesito "
     "sitio,gane,libere,necesito,me hacen falta,me hace falta,menos lleno,aligerar,vaciar el disco,necesito "
     "más,me faltan,quiero liberar,quiero recuperar,hueco,hacer más sitio,ocupo,requiero,preciso,me urge,me "
     "urgen,necesitamos,necesitaría,necesito liberar,necesito unos,hacen falta,me falta,me "
     "faltarían,liberame,liberarme,liberaré,libérenme,liberado ya,liberé ya,he liberado,he recuperado,hemos "
     "liberado,hemos recuperado,recuperé,recuperaré,recuperamos,recuperar gigas,recuperar memoria,recuperar "
     "el espacio,recuperar almacenamiento,recupera espacio,gana espacio,ganar espacio,gano "
     "espacio,ganamos,ganaré,hacer un hueco,haz espacio,haz sitio,haz hueco,haz lugar,hazme espacio,hazme "
     "sitio,hazme hueco,abrir espacio,abre espacio,abrir hueco,crear espacio,dejar espacio,dejar libre,dejar "
     "libres,dejar más espacio,tener más espacio,tener espacio,obtener más espacio,conseguir más espacio,más "
     "espacio libre,más sitio libre,más espacio en,optimizar espacio,ahorrar "
     "espacio,ahorra,ahorraré,ahorraría "
     "yo,despeja,despejo,desahogar,desahoga,aligera,alivianar,aliviana,vaciar disco,descargar el "
     "disco,desatascar,desocupar,desocupo,desocupa,despejado,me quedaría libre,quedaría libre,quedarían "
     "libres,se liberaría,se liberarían,se liberan,se libera,liberarían,liberarán,liberará,menos "
     "llena,quiero más espacio,quiero espacio,quiero ganar,limpiar espacio"},
    {Sense::make,
     "haz,hacer,hazme,dame,consigue,búscame,consígueme,dame otros,hágame,deme,encuéntrame,logra"},
    {Sense::untouched,
     "tocas,tocarás,tocará,nunca toca,nunca tocas,nunca borra,nunca borras,nunca elimina,no toca,no "
     "tocas,protegido,protegidos,protegida,protegidas,protege,intocable,intocables,jamás toca,jamás borra,no "
     "borra,nunca se borra,nunca borrará,nunca tocará,nunca mueve,no tocará,nunca tocar,nunca "
     "borrar,intacto,jamás borrará,nunca borrarías,jamás tocará,nunca eliminará,no se toca,nunca se "
     "toca,nunca se tocan,nunca se borran,nunca se eliminan,nunca se elimina,nunca se mueve,nunca se "
     "mueven,nunca tocarías,nunca tocarás,nunca borrarás,nunca eliminarías,nunca eliminas,nunca mueves,no se "
     "tocan,no se borra,no se borran,no borras,no eliminas,no elimina,no mueves,no mueve,no borrarías,no vas "
     "a tocar,no tocarías,no tocarás,no borrarás,jamás tocas,jamás tocarías,jamás borras,jamás "
     "eliminas,jamás borrarías,jamás moverías,dejas en paz,deja en paz,dejas intacto,dejas intactos,dejas "
     "quieto,respetas,respeta siempre,está protegido,están protegidos,está protegida,están "
     "protegidas,protección,proteges,intactos,intacta,intactas,fuera de "
     "límites,prohibido,prohibidos,sagrado,vas a tocar,va a tocar,tocaría,tocarías,tocarán,toca mis,tocas "
     "mis"},
    {Sense::cleanUp, "limpieza,limpiar,limpio,limpiado,limpié,limpiamos,limpia,ordenar,limpiada,limpiaste,"
                     "limpias,limpiando,limpiarlo,limpiarla,limpieza general,limpieza más "
                     "reciente,ordené,aseo,depurar,depuración,depuré,depurado,depura,hice limpieza,haz "
                     "limpieza,hacer limpieza,pasada la escoba,barrida,limpiadas"},
    {Sense::uninstall,
     "desinstalar,desinstalo,desinstala,desinstalación,desinstalado,desinstalé,desinstalas,desinstala "
     "el,desinstalarlo,desinstalarla,quitar la app,quitar la aplicación,quitar el programa,borrar la "
     "app,borrar la aplicación,borrar el programa,eliminar la app,eliminar la aplicación,eliminar el "
     "programa,remover la app,desinstaladas de,desintalar,desistalar"},
    {Sense::remove,
     "(borrar|eliminar|quitar)(lo|la|los|las),borrar,borro,borra,borrado,borrados,borrada,borradas,eliminar,"
     "elimino,elimina,eliminado,eliminados,"
     "quitar,quito,quita,tirar,tiro,tirado,suprimir,deshacerme,deshacerme "
     "de,mover,movido,vaciar,vacío,vacía,mandar a la papelera,prescindir,prescindir "
     "de,sobra,sobran,eliminadas,desechar,borré,eliminé,borarr,inútil,inútiles,eliminable,borrables,"
     "prescindible,prescindibles,innecesario,innecesarios,innecesarias,botar,mueve,elimine,borre,quitado,no "
     "necesito,ya no necesito,no me hace falta,no me sirven,no me sirve,que no necesito,que ya no "
     "necesito,no sirven,elimina "
     "todo,eliminada,eliminas,eliminando,eliminables,borras,borrando,borrable,borraré,borraría,borrara,boro,"
     "borar,eliminr,elimnar,remover,remuevo,remueve,removido,quitas,quité,quitados,quitadas,quitada,saco,"
     "sacar,saca,sacado,sacarme,tiras,tirados,tirada,tira,boto,bota,botado,a la basura,a la papelera,mandar "
     "a la basura,mando a la papelera,manda a la papelera,mandar al basurero,echar a la papelera,echar a la "
     "basura,enviar a la papelera,poner en la papelera,mover a la papelera,mover a la basura,meter en la "
     "papelera,deshacerse,deshacerse de,deshacerme del,deshago de,me deshago de,me deshago,librarme,librarme "
     "de,cargarme,cargar me,me "
     "cargo,fulminar,pelarme,descartar,descarto,descartables,descartable,desechables,desechable,limpiar la "
     "papelera,vaciarla,vaciado,vacié,vaciando,sobrante "
     "de,sobrantes,estorba,estorban,estorbo,inservible,inservibles,innecesaria,no necesarios,no "
     "necesarias,no hace falta,no hacen falta,no me hacen falta,ya no sirve,ya no sirven,ya no me sirve,ya "
     "no me sirven,ya no uso para nada,no sirve,no me sirve para nada,no sirve para nada,no sirven para "
     "nada,no ocupo,ya no ocupo,que no ocupo,no quiero,ya no quiero,que ya no quiero,que no quiero,sin "
     "importancia,porquerías,basuras,mugre,cochinada,cochinadas,chatarra,se puede ir,se pueden ir,puede "
     "irse,pueden irse,se van,se podría ir,delete,borrado de,último borrado,basura,porquería"},
    {Sense::undo,
     "reversible,deshacer,deshago,restaurar,restauro,restaura,recuperar,recupero,recupera,revertir,devolver,"
     "volver atrás,dar marcha atrás,restaurado,recuperado,por error,sin querer,de "
     "vuelta,regresar,restablecer,traer de vuelta,por "
     "accidente,anular,recuperarlos,recuperarlo,restaurarlo,deshaz,echar atrás,deshacer "
     "cambios,deshiciera,deshaz eso,deshaz "
     "la,revierte,revertido,reviertes,restaure,restaurarlos,restauración,recuperar lo que,recuperar "
     "mis,recuperar un,recuperar los,recuperar las,recuperar el archivo,recuperar los archivos,recuperar "
     "archivos,recuperar un archivo,recuperar fotos,recuperar una,recuperar algo,recuperar la,recuperar "
     "lo,puedo recuperar,se puede recuperar,se pueden recuperar,cómo recupero,cómo "
     "recuperar,recuperables,recuperable,recuperarla,recuperarlas,devuélveme,devuelve,devuelvo,devuelto,"
     "devolverme,devolverlo,devolverlos,regrésame,regrésamelo,regresa,regreso,regresarlo,regresarlos,volver "
     "a poner,vuelve a poner,volver a tener,vuélveme a poner,poner de vuelta,pon de vuelta,poner de "
     "nuevo,pon otra vez,traer de nuevo,tráeme de vuelta,me equivoqué,equivoqué,equivocado,por "
     "equivocación,accidentalmente,por accidente borré,sin querer borré,cambié de idea,cambié de "
     "opinión,arrepentí,me arrepentí,marcha atrás,atrás,undo,anula,anulo,cancelar la,cancela "
     "la,rescatar,rescata,ctrl z,restituir"},
    {Sense::safe,
     "seguro,segura,seguros,sin riesgo,sin "
     "peligro,peligroso,peligrosa,riesgo,arriesgado,inofensivo,tranquilamente,sin problema,con seguridad,de "
     "forma segura,seguras,sin miedo,safe,sin problemas,inofensivos,peligrosos,riesgos,malo,problema,a "
     "salvo,seguro que,con tranquilidad,tranquilo,sin temor,sin peligro de,sin riesgos,sin dañar nada,sin "
     "consecuencias,sin cuidado,con "
     "confianza,peligrosas,peligro,riesgosa,riesgoso,riesgosos,inofensiva,inofensivas,arriesgada,grave,mal "
     "si,mala idea,inocuo,inocuos,seguridad de,daño alguno,problemático,problemas si"},
    {Sense::review, "review,revisar,por "
                    "revisar,repasar,revisa,reviso,revisado,revisados,chequear,checar,examinar,verificar,"
                    "comprobar,para revisar"},
    {Sense::keep,
     "conservar,guardar,mantener,conserva,keep,quedarme,importante,importantes,mantengo,conservo,conservado,"
     "conservados,conserve,conservas,guarde,guardes,guardo algo,dejar,debo quedarme,quedar "
     "con,esencial,esenciales,necesario,necesarios,necesaria,indispensable,indispensables,imprescindible,"
     "imprescindibles,valioso,valiosos,útil,útiles,mantenerse,mantenga,preservar,quedármelo,quedármelos"},
    {Sense::mean,
     "etiqueta,la etiqueta,cuenta como,cuentan como,se considera,forma parte "
     "de,significa,significan,significado,quiere decir,quieren decir,diferencia,diferencia "
     "entre,valoración,valoraciones,calificación,calificaciones,clasificación,colores,calificado,marcado "
     "como,reglas,regla,criterios,decide,clasifica,marcado,marcados,marcadas,clasificado,clasificados,"
     "valorado,valorados,calificados,definición,definiciones,definir,a qué te refieres,te refieres con,se "
     "refiere,refieres,qué es eso de,sentido de,diferencias,diferencia "
     "hay,etiquetas,etiquetado,etiquetados,clasificas,clasificar,categoriza,calificas,califica,calificar,"
     "valoras,valora,evalúa,evalúas,evaluación,evaluaciones,evaluado,evaluados,decides,juzga,juzgas,"
     "puntuación,considera,considerado,considerados,contado como,incluye en,incluido en,corresponde "
     "a,pertenece a,pertenecen a,criterio,rating,sello,marca de"},
    {Sense::soFar,
     "hasta ahora,hasta el momento,hasta hoy,historial,en total ya,desde el principio,alguna vez,hasta la "
     "fecha,a lo largo del tiempo,limpiezas,las limpiezas,todas las limpiezas,historial de "
     "limpiezas,limpiezas anteriores,desde siempre,desde que te uso,desde que uso orlen,desde que lo "
     "uso,desde que lo instalé,desde la instalación,desde el comienzo,desde el inicio,en toda la historia,a "
     "lo largo,limpiezas que,hasta el día de hoy,hasta este momento,hasta "
     "ahorita,históricamente,histórico,acumulado,en el pasado,todas mis limpiezas,mis limpiezas,limpiezas "
     "hechas,limpiezas pasadas,lista de limpiezas,últimas limpiezas,limpiadas anteriores,ya limpié,ya he "
     "limpiado,he limpiado ya,ya borré,ya he borrado,he borrado ya,ya eliminé,ya he eliminado,limpiado "
     "ya,borrado ya,ya he liberado,ya liberé,ya recuperé,ya he recuperado,ya gané,todas las limpiezas "
     "anteriores,todas las limpiezas pasadas,todas mis limpiezas anteriores"},
    {Sense::used, "ocupado,ocupados,consumido,ocupada,en uso,cómo de lleno,qué tan lleno,ocupación,uso de "
                  "disco,uso del disco,espacio usado,espacio ocupado,espacio utilizado,llevo usado,llevo "
                  "ocupado,se ha usado,se está usando,tengo ocupado,tengo usado,tengo ocupados,tengo "
                  "usados,gastado,gastados,consumidos,consumida,porcentaje usado,porcentaje "
                  "ocupado,porcentaje de uso,uso total,consumo total"},
    {Sense::handled, "usado,usados,utilizado,utilizados,uso,utilizo,usada,usadas,utilizadas,utilizada,uses,"
                     "usé,usamos,utilice,empleo,uso yo,usaba"},
    {Sense::opened, "abierto,abiertos,abierta,abiertas,abro,abrí,tocado,tocados,visto,vistos,consultado,"
                    "abrir,vistas,tocadas,mirado,escuchado,leído,he "
                    "visto,jugado,oído,veo,miré,miro,vi,leo,leí,leídos,reproducido,reproducidos,escuchados,"
                    "jugados,jugué,juego ya,ejecutado,ejecutados,abierta ya,accedido,accedidos,visitado"},
};

} // namespace

std::span<const WordRow> asking()
{
    return kAsking;
}

} // namespace orlen::AskReader::spanish_words
