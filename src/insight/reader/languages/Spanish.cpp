#include "insight/reader/Language.h"

namespace orlen::AskReader {

namespace spanish_words {

constexpr WordRow kWords[] = {
    {Sense::ruleOut,
     "excluir una carpeta,excluir un archivo,cómo excluyo,cómo excluir,excluir del "
     "análisis,exclusiones,añadir una excepción,lista blanca,no volver a sugerir,no analizar,excluir "
     "carpetas,excluir mi carpeta,excluir archivos,agregar una excepción,añadir una exclusión,agregar una "
     "exclusión,ignorar una carpeta,ignorar carpetas,no escanear,no vuelvas a sugerir,no sugerir más,no me "
     "sugieras,dejar fuera del análisis,lista de exclusión,lista de exclusiones,que no analice,excluyo una "
     "carpeta,excluyo"},
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
     "veloz,lag,gusano,lentísimo,tarjeta de video,actualizaciones"},
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
                      "ellas,él,ella,los que,las que,el que,la "
                      "que,borrarlo,borrarla,borrarlos,borrarlas,eliminarlo,eliminarlos,eliminarla,"
                      "eliminarlas,quitarlo,quitarlos"},
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
     "golpe,seguido,siguen,sigue,sigo,volver,vuelve,vuelto,podrían decirme,me podrían decir"},
    {Sense::negation, "no,nunca,jamás,ningún,ninguno,ninguna,nada,tampoco,nadie,nunca más,ya no,tampoco "
                      "los,en absoluto,ningunos,ninguna de"},
    {Sense::except,
     "que no sea un,que no sea una,que no sean,excepto,salvo,menos,a excepción de,aparte de,además "
     "de,quitando,sin contar,que no sean,que no sea,excluyendo,pero no,sin,con excepción de,y no,fuera "
     "de,sin incluir,pero sin,ignorando,sin tocar,sin borrar,sin eliminar,sin perder,pero deja,deja "
     "fuera,dejando fuera,ni,menos las de,menos los de,menos lo de,en vez de,sin que,excepto los,excepto "
     "las,excepto mis,salvo los,salvo las,salvo mis,menos mis,menos los,menos las,menos el,menos la,aparte "
     "de los,aparte de las,aparte de mis,a parte de,fuera de los,fuera de mis,sin mis,sin los,sin las,sin "
     "contar los,sin contar mis,sin incluir los,pero no los,pero no las,pero no mis,pero no el,pero no la,y "
     "no los,y no mis,que no estén en,que no son,que no sea "
     "el,exceptuando,descontando,omitiendo,exceptúa,excluye,obviando,deja mis,deja los,no incluyas,no "
     "toques,quita los que,sin quitar,sin mover,sin perder mis,en lugar de,pero respeta"},
    {Sense::lasts,
     "alcanza,alcanzará,alcanzar,basta,bastará,bastar,dura,durará,aguanta,aguantará,aguantar,llega,llegará,"
     "será suficiente,suficiente espacio,tendré,habrá,tendremos,me alcanza,me alcanzará,nos "
     "alcanza,alcance,me dura,me durará,me dará,dará,da abasto,llegaré,llego,llegamos,va a alcanzar,va a "
     "durar,va a bastar,me llega,me bastará,será bastante,es suficiente,sea suficiente,será suficiente "
     "el,resiste,resistirá,tendrá suficiente,me va a alcanzar,me va a durar,va a llegar,aguantaré"},
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
     "borrar,borro,borra,borrado,borrados,borrada,borradas,eliminar,elimino,elimina,eliminado,eliminados,"
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
     "hechas,limpiezas pasadas,lista de limpiezas,últimas limpiezas,limpiadas anteriores"},
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
     "nada,principal,principales,principalmente,culpable,culpables,responsable,responsables,peor,peores,más "
     "gastan,más consumen,sobre todo lo,mayormente,la gran parte,más veloz mente,primer lugar en"},
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
     "todas,más grandes de todos,más grande de todos,más grande de todas"},
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
     "superen,por lo menos,más grandes de,que pasen de,más pesados que,sobre los,superan,supera,que pese más "
     "de,que pesen mas de,que ocupe más de,que ocupen más de,pese más de,que pase de,pase de,pasen de,que "
     "supere,que pesen,entre,comparados con,comparada con,versus,vs,frente a,compárame,mayores a,mayor a,más "
     "grandes a,arriba de,por arriba de,encima de,a partir de los,que sobrepasen,que "
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
     "ve,quién lee,alguien puede ver,alguien ve,ver alguien,fugas de datos,filtras,filtrar"},
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
     "no,activar,desorden,desmadre,despelote,relajo,ubicación,ruta,escaneo,hallazgos"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler, "con sus datos,con datos,incluidos sus datos,incluidos los datos,datos incluidos"},
};

constexpr SubjectRow kSubjects[] = {
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
     "caché,caché del navegador,temporales,caché de las aplicaciones,datos en caché,cache de apps,cachés de "
     "aplicaciones,cachés de las aplicaciones,cachés de las apps,caché de las apps,caché de "
     "aplicaciones,caché de la app,caché de programas,caché de los programas,archivo temporal,archivos en "
     "caché,archivos caché,datos de caché,datos caché,carpeta caché,carpeta de caché,carpetas de "
     "caché,memoria temporal,temporal,tmp,archivos tmp,ficheros de caché,caché de los navegadores,caché de "
     "firefox,chache,cahce,cachee"},
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
     "música,canción,canciones,audio,archivos de audio,mp3,álbumes,podcasts,audiolibros,archivos de "
     "música,músicas,temas,tema,pistas,pistas de audio,rolas,rola,álbum,podcast,mp3s,archivos de "
     "sonido,archivo de audio,sonidos,audios,discos de música,grabaciones de audio,audiolibro,ficheros de "
     "audio,cancionero"},
    {SubjectID::pdfs, "pdf,pdfs,archivos pdf,documentos pdf,ficheros pdf,archivo pdf,documento "
                      "pdf,documentos en pdf,archivos en pdf,pedeefes"},
    {SubjectID::archives,
     "zip,zips,archivos zip,archivos comprimidos,comprimidos,ficheros zip,archivo zip,archivo "
     "comprimido,carpetas comprimidas,ficheros comprimidos,rar,archivos rar,zipeados,archivos "
     "tar,tar,tarballs,paquetes comprimidos,archivos comprimidos en zip,comprimido"},
    {SubjectID::installers,
     "instalador,instaladores,archivos de instalación,paquetes,paquetes de instalación,archivo de "
     "instalación,archivos instaladores,instaladores de programas,setup,setups,programa de "
     "instalación,programas de instalación,ejecutables de instalación,paquetes deb,archivos "
     "deb,deb,debs,appimages,ficheros de instalación,paquete de instalación"},
    {SubjectID::diskImages, "imagen de disco,imágenes de disco,iso,isos,imágenes iso,archivos iso,máquinas "
                            "virtuales,máquina virtual,discos virtuales,imagen iso,archivo iso,imágenes de "
                            "discos,imágenes de cd,máquina virtual de,vms,vm,ficheros iso"},
    {SubjectID::spreadsheets,
     "hoja de cálculo,hojas de cálculo,archivos de excel,excel,tablas,archivos excel,hojas de excel,hoja de "
     "excel,tablas de excel,archivo de excel,csv,archivos csv,planillas,planilla,planillas de "
     "excel,planillas de cálculo,excels,libros de excel,documentos de excel"},
    {SubjectID::presentations,
     "presentación,presentaciones,diapositivas,powerpoints,powerpoint,archivos de powerpoint,presentaciones "
     "de powerpoint,diapositiva,ppt,powerpoint presentaciones,archivos powerpoint"},
    {SubjectID::ebooks,
     "libros,ebooks,libros electrónicos,libro,ebook,libro electrónico,libros digitales,epub,epubs,novelas"},
    {SubjectID::documents,
     "documento,documentos,papeles,archivos de texto,documentos de word,cartas,textos,docs,doc,texto,archivo "
     "de texto,ficheros de texto,documento de word,archivos de word,archivos word,documentos "
     "word,word,carta,escritos,papeleo,trabajos,apuntes,ensayos,tareas,oficios,facturas"},
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

constexpr FigureRow kFigureRows[] = {
    {Figure::number, "dos,par,un par,un par de", 2},
    {Figure::number, "tres,unos tres", 3},
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
    {Figure::number, "cien,ciento", 100},
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
    {Figure::month, "enero,ene", 1},
    {Figure::month, "febrero,feb", 2},
    {Figure::month, "marzo", 3},
    {Figure::month, "abril", 4},
    {Figure::month, "mayo", 5},
    {Figure::month, "junio", 6},
    {Figure::month, "julio", 7},
    {Figure::month, "agosto,ago", 8},
    {Figure::month, "septiembre,setiembre,sep,sept", 9},
    {Figure::month, "octubre,oct", 10},
    {Figure::month, "noviembre,nov", 11},
    {Figure::month, "diciembre,dic", 12},
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
    {Figure::daysAgo, "anteayer,antier,antes de ayer,antes de anoche", 2},
    {Figure::agoBefore, "hace,desde hace,hace unos,hace como"},
    {Figure::previous, "pasado,pasada,último,última,últimos,últimas,anterior,anteriores,previo,previa"},
    {Figure::current, "este,esta"},
    {Figure::following,
     "próximo,próxima,próximos,próximas,que viene,siguiente,siguientes,entrante,venidero,venidera,que entra"},
    {Figure::ahead, "en,dentro de,de aquí a,durante,de aquí,en los próximos,para dentro de,por"},
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
