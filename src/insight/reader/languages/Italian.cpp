#include "insight/reader/Language.h"

namespace orlen::AskReader {

namespace italian_words {

constexpr WordRow kWords[] = {
    {Sense::ruleOut,
     "escludere una cartella,escludere un file,come escludo,come escludere,escludere dalla "
     "scansione,esclusioni,aggiungere un eccezione,lista bianca,non suggerire più,non scansionare"},
    {Sense::installed,
     "installato,installati,installata,installate,è installato,sono installate,sono installati"},
    {Sense::self,
     "cosa puoi fare,cosa sai fare,che cosa puoi fare,cosa ti posso chiedere,cosa posso chiederti,chi "
     "sei,cosa sei,aiuto,aiutami,ciao,buongiorno,buonasera,salve,grazie,come funziona,cos è orlen,cosa fa "
     "orlen,che cos è orlen,come funziona orlen,a cosa serve orlen,cosa fa questo programma,a che serve "
     "orlen,come si usa orlen,come puoi aiutarmi,cosa puoi fare per me"},
    {Sense::advise, "consigli,consigliare,consiglio,consiglieresti,suggerisci,suggerimento,suggerimenti,"
                    "suggerire,raccomandi,cominciare,iniziare,comincio,inizio da,cosa faccio,che "
                    "faccio,conviene,vale la pena,iniziamo,da dove parto,cosa devo fare,cosa posso fare,che "
                    "devo fare,che posso fare,trucchi,cosa faccio adesso,cosa dovrei fare,cosa fare"},
    {Sense::trust, "fidarmi,fidare,affidabile,fiducia,mi posso fidare,orlen è sicuro,posso fidarmi,in "
                   "pericolo,a rischio,open source"},
    {Sense::beyond, "virus,malware,trojan,più "
                    "veloce,velocizzare,velocizza,lento,lenta,prestazioni,deframmentare,ram,memoria "
                    "ram,processore,cpu,batteria,driver,firewall,antivirus,temperatura,scheda grafica"},
    {Sense::happens,
     "dove vanno a finire,vanno a finire,dove va a finire,succede,succederebbe,accade,cosa succede,per "
     "sempre,definitivamente,definitivo,permanentemente,succederà,dove finiscono,dove vanno,dove "
     "finisce,irreversibile,rompere,rompo,danneggia,danni,danneggiare,rompe,rompersi,da "
     "solo,automaticamente,senza chiedere,da sola,senza permesso,senza avvisare"},
    {Sense::only, "solo,soltanto,solamente,unicamente,esclusivamente"},
    {Sense::also, "e,ed,anche,inoltre,e per quanto riguarda,che mi dici di,e i,e le,e gli,e la,e il,e "
                  "lo,cosa mi dici di,&,e di,e che dire di,nonché,e riguardo,o,oppure"},
    {Sense::backward, "quello,quella,quelli,quelle,questo,questa,questi,queste,ciò,esso,essi,essa,lo,"
                      "eliminarlo,eliminarla,eliminarli,eliminarle,cancellarlo,cancellarla,cancellarli,"
                      "cancellarle,ne,quell,loro,toglierli,toglierlo,buttarli,buttarlo"},
    {Sense::filler,
     "ho fatto,fatto,hai fatto,funzionare,a cosa serve,a che serve,mio nipote,nipote,vorrei sapere,mi sai "
     "dire,potresti dirmi,mi potresti "
     "dire,il,la,i,gli,le,l,un,uno,una,di,d,del,dello,della,dell,dei,degli,delle,da,dalla,dallo,dai,dagli,"
     "dalle,"
     "dall,a,al,allo,alla,all,ai,agli,alle,mio,mia,miei,mie,nostro,nostra,tuo,tua,tuoi,tue,suo,sua,suoi,sue,"
     "io,mi,m,noi,ci,c,tu,ti,t,te,si,s,se,vi,v,è,sono,era,erano,sei,essere,stato,stati,state,stata,sta,"
     "stanno,sto,c è,ho,hai,ha,abbiamo,hanno,avere,aver,avevo,ed "
     "ecco,per,con,su,sul,sulla,sullo,sui,sugli,sulle,sull,che,come,per favore,per "
     "piacere,perfavore,adesso,ora,attualmente,oggi,al momento,in questo "
     "momento,davvero,veramente,esattamente,circa,più o meno,mostra,mostrami,mostrare,dimmi,dire,dai "
     "a,elenca,elencare,elenco,trova,trovami,trovare,cerca,cercami,cercare,sapere,so,voglio,vorrei,mi "
     "piacerebbe,puoi dirmi,mi puoi dire,puoi "
     "mostrarmi,puoi,potresti,tutto,tutta,tutti,tutte,molto,molta,molti,molte,tanto,tanta,tanti,tante,poco,"
     "pochi,qualche,alcuni,alcune,qualcosa,già,ancora,stesso,stessa,chiamato,chiamata,di "
     "nome,orlen,quindi,allora,dunque,ok,beh,mah,eh,faccio,fa,tipo,tipi,genere,salvato,salvati,salvate,qui,"
     "qua,lì,là,in giro,intero,intera,proprio,propri,fammi "
     "vedere,vedere,vedo,va,vanno,vado,andare,messo,velocemente,facilmente,rapidamente,spiega,spiegami,"
     "indica,ogni,dettagli,informazioni,sì,contiene,contengono,usando orlen,con "
     "orlen,voi,vostro,trovano,trova si,sia,siano,abbia,ce,cui,ma,davvero tanto,così,c "
     "erano,troppo,pure,po,un po,bisogno,rimane "
     "chiaro,tieni,sarebbe,sarebbero,guarda,forse,sarà,saranno,dal,qualcuno,quasi,abbastanza,da qualche "
     "parte,viene,vengono,sempre,a volte,poi,sembra,credo,dice,dici,gente,penso,figlio,anche se,mentre,così "
     "tanto,soprattutto,appena,probabilmente,chissà,ognuno,sono stati,sono state,è stato,facile,riguardo "
     "a,stesse,stessi,quei,avrei,messa,esattezza,qualsiasi,attuale,ecco,invece,contro,durante,tramite,presso,"
     "secondo,improvvisamente,strano,bambini,nessuna idea,rispetto,in realtà,in pratica,ad,ci saranno,hai "
     "trovato,che hai trovato,a proposito,accidenti,cavolo,insomma,magari,stanotte,questa notte"},
    {Sense::negation, "non,mai,nessun,nessuno,nessuna,niente,nulla,n"},
    {Sense::except, "che non sia un,che non sia una,che non è un,che non è una,che non "
                    "siano,tranne,eccetto,salvo,a parte,escluso,esclusi,esclusa,escluse,ad eccezione di,ad "
                    "eccezione dei,ad eccezione delle,ad eccezione del,oltre a,oltre ai,oltre alle,oltre "
                    "agli,all infuori di,senza,senza contare,ma non,che non siano,che non sia,e "
                    "non,fuorché,al di fuori di,escludendo,meno,eccetto i,a parte i,senza toccare,senza "
                    "cancellare,senza eliminare,senza perdere,ma lascia,lascia fuora,lascia fuori,né,tranne "
                    "quelle in,tranne quelli in,invece di,meno che,oltre alla,oltre al,oltre allo,oltre all"},
    {Sense::lasts, "basta,basterà,bastare,bastano,dura,durerà,durare,regge,reggerà,resiste,resisterà,"
                   "sufficiente,abbastanza spazio,avrò,ci sarà,avremo"},
    {Sense::speed,
     "quanto velocemente,a che velocità,con che velocità,quanto in fretta,a che ritmo,ritmo,velocità,al "
     "giorno,alla settimana,al mese,ogni giorno,ogni settimana,ogni mese"},
    {Sense::what, "cosa,che cosa,cos,quale,quali,qual,dove,dov,chi,cos è,che cos è,cosa sono,qual è,quali "
                  "sono,cosa c è,che tipo di,che genere di,hai trovato,esistono,dove sono,dove si trova,dove "
                  "si trovano,ci sono,ho dei,ho delle,cs,ke,c è qualche,ho qualche,di cosa"},
    {Sense::howBig,
     "quanto è grande,quanto sono grandi,quanto grande,quanto grandi,dimensione,dimensioni,dimensione "
     "di,quanto pesa,quanto pesano,quanto occupa,quanto occupano,quanto spazio occupa,quanto spazio "
     "occupano,quanto spazio prende,quanto spazio prendono,quanto spazio usa,quanto spazio "
     "usano,pesa,pesano,peso,quanti gb,quanti giga,quanto prende,quanto prendono,grandezza,quanto "
     "misura,quanto è grosso,quanto è grossa,quanto sono grosse,quanto sono grossi,quanto posto "
     "occupano,quanto posto occupa,quanto consumano,quanto consuma,quanto c è in,quanto spazio "
     "consumano,quanto spazio consuma"},
    {Sense::howMany, "quanti,quante,numero di,quante volte,il numero di,conta"},
    {Sense::can, "posso,può,possono,potrei,possiamo,devo,dovrei,si può,si possono,bisogna,è possibile,è "
                 "sicuro,dobbiamo,va bene,potremmo,debbo,potrebbe,poter,mi conviene,deve,devono"},
    {Sense::makeRoom,
     "quanti giga ho recuperato,ho recuperato,ho liberato,liberati,recuperati,liberare,libero spazio,libera "
     "spazio,liberato,guadagnare,guadagno,fare spazio,fare posto,recuperare "
     "spazio,risparmiare,risparmio,libererei,guadagnerei,fare un po di spazio,liberati,ottenere "
     "spazio,libererebbe,guadagnerebbe,creare spazio,serve spazio,mi serve "
     "spazio,liberando,recupererei,avere più spazio,serve più spazio,liberarmi "
     "spazio,liberiamo,alleggerire,fare un po di posto,più posto,liberarsi,bisogno di spazio,mi serve,mi "
     "servono,ho bisogno di,bisogno di,mi occorrono,meno pieno"},
    {Sense::make, "fai,fare,fammi,dammi,trovami"},
    {Sense::untouched, "tocchi,toccherai,toccherà,mai tocca,non tocca,non tocca mai,non tocchi "
                       "mai,protetto,protetti,protetta,protette,protegge,intoccabile,intoccabili,mai "
                       "cancellati,non cancella mai,non elimina mai,non cancelli mai,non elimini mai,mai "
                       "eliminati,mai toccati,mai toccherà,non toccherà mai,mai cancellare,mai eliminare,mai "
                       "toccato,non sposta mai,mai spostati,intatto,intatti,lascia stare,non tocchi,non "
                       "cancellerà mai,non eliminerà mai,non cancellerai mai"},
    {Sense::cleanUp, "pulizia,pulire,pulito,pulisci,ripulire,fare pulizia,ripulito,ordine,fare "
                     "ordine,pulita,fatto pulizia,ripulisco,pulisco"},
    {Sense::uninstall, "disinstallare,disinstallo,disinstalla,disinstallazione,disinstallato"},
    {Sense::remove,
     "eliminare,elimino,elimina,eliminato,eliminati,eliminata,eliminate,cancellare,cancello,cancella,"
     "cancellato,cancellati,cancellate,rimuovere,rimuovo,rimosso,rimossi,togliere,tolgo,tolto,buttare,butto,"
     "butto via,buttare via,cestinare,cestino via,liberarmi,liberarmi "
     "di,spostare,spostato,svuotare,svuoto,svuota,fare a meno di,fare a meno,sbarazzarmi,sbarazzarmi "
     "di,superfluo,superflui,inutile,inutili,cancelare,gettare,getto,spazzatura,eliminabili,cancellabili,"
     "cancelli,elimini,sposta,sposti,rimuovi,tolti,buttato,superflue,non mi serve,non mi servono,non ho "
     "bisogno,che non mi serve,che non mi servono,non servono,non mi servono più,non mi serve più"},
    {Sense::undo,
     "reversibile,annullare,annulla,annullo,ripristinare,ripristino,ripristina,recuperare,recupero,recupera,"
     "tornare "
     "indietro,riavere,rimettere,ripristinato,indietro,per errore,per sbaglio,riportare,rimetto,riportare "
     "indietro,recuperarlo,recuperarli,riprendere,rimettere a posto"},
    {Sense::safe,
     "grave,sicuro,sicura,sicuri,sicure,senza rischi,senza "
     "rischio,pericoloso,pericolosa,rischio,rischioso,innocuo,tranquillamente,senza problemi,in sicurezza,in "
     "modo sicuro,safe,senza pericolo,rischi,innocui,pericolosi,problema,problemi,senza timore,male"},
    {Sense::review, "review,controllare,da controllare,da rivedere,verificare,rivedere"},
    {Sense::keep,
     "tenere,conservare,mantenere,tengo,keep,importante,importanti,da conservare,da tenere,conservato"},
    {Sense::mean, "etichetta,l etichetta,conta come,contano come,fa parte di,rientra "
                  "in,significa,significano,significato,vuol dire,vogliono dire,differenza,differenza "
                  "tra,valutazione,valutazioni,giudizio,giudizi,intende,colori,valutato,classificato,vuole "
                  "dire,regole,regola,criteri,decide,classifica,contrassegnati,contrassegnato,classificati,"
                  "valutati,segnati,segnato"},
    {Sense::soFar, "finora,fino ad ora,fino a oggi,fin qui,cronologia,fino a ora,fino adesso,fino ad "
                   "adesso,dall inizio,nel tempo,in tutto finora,fino ad oggi,pulizie,le pulizie,tutte le "
                   "pulizie,pulizie precedenti,pulizie passate"},
    {Sense::used, "occupato,occupati,consumato,in uso,quanto è pieno,occupata"},
    {Sense::handled, "usato,usati,utilizzato,utilizzati,uso,utilizzo,usata,usate,utilizzate,utilizzata"},
    {Sense::opened,
     "aperto,aperti,aperta,aperte,apro,toccato,toccati,visto,visti,guardato,guardati,consultato,aprire,"
     "guardate,viste,letto,letti,ascoltato,toccate,consultati,giocato,ascoltati,vedo da"},
    {Sense::full,
     "poco spazio su disco,poco spazio disco,spazio in esaurimento,memoria piena,disco "
     "pieno,pieno,piena,quasi pieno,così pieno,riempito,riempiendo,si riempie,riempirà,si riempirà,senza "
     "spazio,manca spazio,non ho spazio,non c è spazio,non ho più spazio,non c è più spazio,poco spazio,così "
     "poco spazio,esaurito,finito lo spazio,finendo lo spazio,finisce lo spazio,finirà lo "
     "spazio,strapieno,esaurirà,spazio è finito,esaurire,riempie,non c è più posto,tutto pieno,finire lo "
     "spazio,riempirsi,saturo,spazio insufficiente,pieni,esaurisce,finito,tutto il mio spazio,finito il mio "
     "spazio"},
    {Sense::free, "libero,liberi,libera,disponibile,disponibili,resta,rimane,rimasto,mi resta,mi "
                  "rimane,restano,rimangono,avanza,rimasti,residuo,restante,rimanente"},
    {Sense::total, "totale,capacità,in totale,in tutto,complessiva,complessivo,capienza,dimensione "
                   "totale,riepilogo,stato,panoramica"},
    {Sense::disk,
     "disco,disco fisso,disco rigido,hard disk,ssd,hdd,computer,pc,portatile,macchina,partizione,memoria di "
     "massa,archiviazione,notebook,dischi,unità,memoria interna,harddisk"},
    {Sense::space,
     "spazio,posto,spazio su disco,spazio disco,memoria,spazio di archiviazione,ci sta,ci stanno,entra"},
    {Sense::howMuch,
     "quanto,quanta,quant,che quantità,che quantità di,cuanto,quale quantità di,qnt,qnto,cosa "
     "guadagno,quanto guadagno,cosa ottengo,quanto si libera,quanto libera,cosa guadagnerei"},
    {Sense::why, "perché,come mai,per quale motivo,motivo,ragione,a causa di cosa,perche,xke,xché,da cosa "
                 "dipende,a cosa è dovuto"},
    {Sense::when,
     "quando,in che data,tra quanto,fra quanto,tra quanto tempo,quanto tempo,quanti giorni,in quanto "
     "tempo,presto,che giorno,a breve,quale data,quanto manca,tra quanti giorni,per quando,fino a "
     "quando,quanti mesi,fra quanto tempo,per quanto ancora,quanto durerà ancora,quanto durerà"},
    {Sense::most, "più,di più,la maggior parte,maggior parte,più spazio,maggiormente,il "
                  "grosso,principalmente,più velocemente,più in fretta,più rapidamente"},
    {Sense::takes, "occupa,occupano,occupando,prende,prendono,usa,usano,consuma,consumano,mangia,mangiano,"
                   "mangiando,spreca,ruba,rubano,riempiono,utilizza,utilizzano,ingombra,ingombrano,"
                   "consumando,divora,succhia,divorano,sprecano,occupare,porta via,portano via"},
    {Sense::biggest,
     "più grande,più grandi,i più grandi,il più grande,la più grande,le più grandi,maggiore,maggiori,più "
     "pesante,più pesanti,grande,grandi,enormi,enorme,pesanti,pesante,grossi,grosso,più grosso,più "
     "grossi,grosse,grossa,più grosse,più grossa,top,i più pesanti,le più pesanti,per dimensione,i più "
     "grossi,le più grosse,il più grosso,il più pesante,la più pesante,voluminosi,più voluminosi,giganti"},
    {Sense::smallest,
     "più piccolo,più piccoli,più piccola,più piccole,i più piccoli,il più piccolo,le più piccole"},
    {Sense::oldest,
     "più vecchio,più vecchi,più vecchia,più vecchie,i più vecchi,il più vecchio,le più vecchie,più "
     "antico,più datati,vecchio,vecchi,vecchia,vecchie,meno recente,meno recenti,la più vecchia,datati"},
    {Sense::newest,
     "ultimamente,più recente,più recenti,i più recenti,il più recente,le più recenti,più nuovo,più "
     "nuovi,recenti,recente,nuovi,nuove,nuovo,più nuove,la più recente,più "
     "nuova,recentemente,nuova,cambiato,cambiati,modificato,modificati,modificate,aggiunto,aggiunti"},
    {Sense::grow,
     "si è ingrandito,si è gonfiato,è aumentato,è "
     "ingrassato,cresciuto,cresciuti,cresciute,cresce,crescendo,crescita,aumentato,aumentati,aumenta,"
     "ingrandito,ingranditi,diventato più grande,aumentata,lievitato"},
    {Sense::above,
     "confronta,confrontare,rispetto ai,rispetto alle,più di,maggiore di,maggiori di,più grande di,più "
     "grandi di,superiore a,superiori "
     "a,almeno,oltre,sopra,sopra i,sopra il,minimo,>,che superano,oltre i,o più,più pesanti di,più grossi "
     "di,oltre il,superano,supera,più grosse di,di più di,da più di,tra,fra,compresi tra"},
    {Sense::below, "meno di,minore di,minori di,più piccolo di,più piccoli di,inferiore a,inferiori a,al "
                   "massimo,sotto,sotto i,sotto il,massimo,<,o meno"},
    {Sense::inside,
     "in,nel,nella,nei,nelle,negli,nell,nello,dentro,all interno di,dalla cartella,nella cartella"},
    {Sense::unopened, "non aperto,non aperti,mai aperto,mai aperti,non usato,non "
                      "usati,inutilizzati,inutilizzato,dimenticato,dimenticati,non utilizzati,non apro,non "
                      "ho aperto,non ho usato,non uso,non uso più,non uso mai,non utilizzo,mai usato,mai "
                      "usati,inutilizzate,non apro da,non ho toccato,mai aperte,mai usate,non tocco,non "
                      "guardo,non ho più aperto,non aperte,dimenticate,non ho mai aperto"},
    {Sense::before,
     "prima,prima di,prima del,prima della,più vecchio di,più vecchi di,precedente a,precedenti a,più "
     "vecchie di,entro,prima dell,anteriori a,anteriori al,precedenti al,più vecchio del,più vecchi del,più "
     "vecchie del,più vecchia del,fino a,fino al,fino alla,fino all,fino ad,fino ai"},
    {Sense::since, "dall inizio dell,dall inizio del,dall inizio di,da inizio,dagli inizi di,dopo il,più "
                   "recente di,più recenti di,a partire da,a partire dal,più nuovi di"},
    {Sense::after, "dopo,successivo a,successivi a,dopo il,in seguito a"},
    {Sense::last, "ultimo,ultima,ultimi,ultime,scorsa volta,precedente,l ultima volta,ultima volta"},
    {Sense::privacy,
     "bisogno di internet,serve internet,connessione internet,connessione a internet,senza internet,usi "
     "internet,leggi i miei,guardi i miei,vedi i miei file,vedere i miei file,vedere le mie foto,vede le mie "
     "foto,vede i miei file,la tua azienda,vostra azienda,restano sul mio computer,rimangono sul mio "
     "computer,restano sul "
     "computer,internet,online,rete,privato,privata,privati,privacy,cloud,nuvola,telemetria,inviare,"
     "invia,invii,inviati,server,spia,spii,spiare,condividere,condivide,condividi,account,"
     "offline,caricare,carica,carichi,raccoglie,raccogli,dati "
     "personali,terzi,google,wifi,mandi,manda,escono,trasmette,esce,riservatezza,riservati,"
     "terze parti,in rete,ia,mandati,spiando,pubblicità,caricate,caricati,caricata,chi può "
     "vedere,chi può leggere,chi ha accesso,connesso,connessa,vede le mie password"},
    {Sense::hidden, "nascosto,nascosti,nascosta,nascoste,invisibili"},
    {Sense::folder, "cartella,cartelle,directory,sottocartella,sottocartelle"},
    {Sense::general,
     "disattivare,disattiva,disabilita,disabilitare,impedire,impedisci,evitare,fermare,bloccare,previsione,"
     "lingua,lingue,scansione,analisi,risultato,risultati,roba,categoria,categorie,meglio,altro,"
     "altra,altri,primo luogo,per primo,lungo,giorno,giorni,settimana,mese,anno,volta,volte,bene,buona "
     "idea,verso,resti,residui"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler,
     "con i loro dati,con dati,con i dati,dati compresi,dati inclusi,compresi i dati,inclusi i dati"},
};

constexpr SubjectRow kSubjects[] = {
    {SubjectID::systemAdvice, "vecchi kernel,kernel vecchi,kernel,cache di apt,cache apt,apt,cache dei "
                              "pacchetti,registri di sistema,log di sistema,vecchi snap"},
    {SubjectID::leftovers,
     "resti di applicazioni,resti di programmi,resti di app,resti,residui,residui di programmi,residui di "
     "app,app disinstallate,programmi disinstallati,applicazioni disinstallate,app rimosse,programmi "
     "rimossi,programmi cancellati,applicazioni rimosse,lasciato indietro,lasciati indietro,lasciato "
     "file,orfani,file orfani,cartelle orfane"},
    {SubjectID::similarPhotos,
     "foto simili,immagini simili,foto doppie,immagini doppie,foto duplicate,immagini duplicate,foto "
     "uguali,immagini uguali,foto identiche,foto quasi uguali,doppioni di foto,foto ripetute,foto che si "
     "somigliano,foto doppioni,duplicati di foto,foto quasi identiche,si somigliano,somigliano,simili,si "
     "assomigliano,assomigliano,sembrano uguali"},
    {SubjectID::screenshots,
     "schermata,schermate,screenshot,screenshots,istantanee schermo,catture schermo,catture dello "
     "schermo,cattura schermo,istantanee dello schermo"},
    {SubjectID::receipts, "scontrino,scontrini,ricevuta,ricevute,foto di scontrini,foto di ricevute"},
    {SubjectID::memes, "meme,memes,immagini divertenti,foto divertenti"},
    {SubjectID::blurry,
     "foto sfocate,immagini sfocate,sfocato,sfocata,sfocati,sfocate,foto mosse,mosse,foto sfuocate,"
     "sfuocate,foto venute male"},
    {SubjectID::duplicates, "duplicato,duplicati,file duplicati,doppioni,doppione,copie,file doppi,file "
                            "identici,file uguali,doppi,duplicate,"
                            "file ripetuti,due volte,ripetuti,più volte,copie identiche,copie uguali"},
    {SubjectID::largeFiles,
     "file grandi,file grossi,file grande,grandi file,file pesanti,file enormi,grossi file"},
    {SubjectID::oldFiles,
     "file vecchi,vecchi file,file dimenticati,file vecchio,vecchie cose,roba vecchia,cose vecchie"},
    {SubjectID::oldDownloads, "vecchi download,download vecchi,vecchi scaricamenti,download dimenticati"},
    {SubjectID::logs, "log,logs,file di log,registri,file log,registri di sistema"},
    {SubjectID::trash, "cestino,il cestino,file cancellati,file eliminati"},
    {SubjectID::deviceBackups,
     "backup iphone,backup dell iphone,backup di iphone,backup ipad,iphone,ipad,backup del "
     "telefono,backup telefono,backup del cellulare,backup dei dispositivi"},
    {SubjectID::mailAttachments,
     "allegati,allegati di posta,allegato,allegati mail,allegati email,allegati delle mail,"
     "allegati della posta"},
    {SubjectID::languagePacks, "pacchetti lingua,pacchetti di lingua,traduzioni"},
    {SubjectID::npm, "cache di npm,npm,yarn,cache npm"},
    {SubjectID::pip, "cache di pip,pip,cache pip,cache di python"},
    {SubjectID::gradle, "gradle,cache di gradle"},
    {SubjectID::homebrew, "homebrew"},
    {SubjectID::caches,
     "cache,file temporanei,dati temporanei,file di cache,memoria cache,cache del browser,cache delle app,"
     "dati in cache,temporanei,cache delle applicazioni,cache dei programmi"},
    {SubjectID::developer,
     "dati di sviluppo,sviluppatore,dati sviluppatore,file di sviluppo,sviluppo,file di compilazione"},
    {SubjectID::system, "sistema,file di sistema,sistema operativo,dati di sistema"},
    {SubjectID::apps, "app,applicazione,applicazioni,programma,programmi,software,apps"},
    {SubjectID::media, "multimedia,file multimediali,contenuti multimediali"},
    {SubjectID::downloads,
     "download,downloads,scaricati,cartella download,cartella scaricati,cartella dei download,file "
     "scaricati,scaricato,cartella downloads,scaricate,roba scaricata,cose scaricate,scaricamenti"},
    {SubjectID::desktop, "desktop,scrivania"},
    {SubjectID::documentsFolder,
     "cartella documenti,cartella dei documenti,dei miei documenti,nei miei documenti"},
    {SubjectID::picturesFolder,
     "cartella immagini,cartella foto,cartella delle foto,cartella delle immagini"},
    {SubjectID::videosFolder, "cartella video,cartella dei video"},
    {SubjectID::musicFolder, "cartella musica,cartella della musica"},
    {SubjectID::home, "cartella personale,home,cartella home,cartella utente"},
    {SubjectID::videos,
     "video,filmati,filmato,film,clip,file video,registrazioni,videoclip,filmini,mp4,serie tv"},
    {SubjectID::photos,
     "foto,fotografie,fotografia,immagini,immagine,file immagine,scatti,selfie,foto delle vacanze,foto di "
     "famiglia"},
    {SubjectID::audio,
     "musica,canzone,canzoni,audio,file audio,mp3,brani,brano,album,podcast,file musicali,audiolibri"},
    {SubjectID::pdfs, "pdf,file pdf,documenti pdf"},
    {SubjectID::archives,
     "archivio,archivi,zip,file zip,file compressi,archivi compressi,archivi zip,file zippati"},
    {SubjectID::installers,
     "installatore,installatori,programmi di installazione,file di installazione,pacchetti,pacchetti "
     "di installazione"},
    {SubjectID::diskImages,
     "immagine disco,immagini disco,iso,file iso,immagini iso,macchine virtuali,macchina virtuale,"
     "dischi virtuali,immagini di disco"},
    {SubjectID::spreadsheets, "foglio di calcolo,fogli di calcolo,tabelle,file excel,excel,fogli excel"},
    {SubjectID::presentations, "presentazione,presentazioni,diapositive,powerpoint,slide"},
    {SubjectID::ebooks, "libri,ebook,libri elettronici,e book"},
    {SubjectID::documents,
     "documento,documenti,carte,file di testo,documenti word,file word,documenti di testo,lettere"},
    {SubjectID::files, "file,elemento,elementi,cose,dati,files,oggetti"},
    {SubjectID::startup,
     "all avvio,si avvii,parta all avvio,di avviarsi,avviarsi,partire all avvio,all accensione,al "
     "login,parte lentamente,si avvia lentamente,lento ad avviarsi,avvio lento,avvio,all "
     "avvio,all accensione,si avvia automaticamente,si avviano "
     "automaticamente,avvio automatico,programmi all "
     "avvio,al login,all accesso,parte da solo,partono da soli,partono all avvio,si "
     "avviano,si avvia,si aprono da soli,"
     "partono da sole,accendo,esecuzione automatica,si avvia da solo,si avviano da "
     "soli,parte all avvio,partono "
     "automaticamente,elementi di avvio"},
    {SubjectID::containers, "docker,podman,container,contenitori,contenitore,immagini docker"},
    {SubjectID::flatpak, "flatpak,flatpaks,flathub"},
    {SubjectID::snap, "snap,snaps,pacchetti snap,snapd"},
    {SubjectID::games, "gioco,giochi,steam,videogiochi,giochi di steam,giochi steam,videogioco"},
};

constexpr FigureRow kFigureRows[] = {
    {Figure::number, "due,paio", 2},
    {Figure::number, "tre", 3},
    {Figure::number, "quattro", 4},
    {Figure::number, "cinque", 5},
    {Figure::number, "sei", 6},
    {Figure::number, "sette", 7},
    {Figure::number, "otto", 8},
    {Figure::number, "nove", 9},
    {Figure::number, "dieci", 10},
    {Figure::number, "dodici,dozzina", 12},
    {Figure::number, "quindici", 15},
    {Figure::number, "venti", 20},
    {Figure::number, "cinquanta", 50},
    {Figure::number, "cento", 100},
    {Figure::ordinal, "primo,prima,1º,1ª", 1},
    {Figure::ordinal, "secondo,seconda,2º,2ª", 2},
    {Figure::ordinal, "terzo,terza,3º,3ª", 3},
    {Figure::ordinal, "quarto,quarta,4º,4ª", 4},
    {Figure::ordinal, "quinto,quinta,5º,5ª", 5},
    {Figure::sizeUnit, "mega", 1e6},
    {Figure::sizeUnit, "giga", 1e9},
    {Figure::sizeUnit, "tera", 1e12},
    {Figure::timeUnit, "giorno,giorni", 0},
    {Figure::timeUnit, "settimana,settimane", 1},
    {Figure::timeUnit, "mese,mesi", 2},
    {Figure::timeUnit, "anno,anni", 3},
    {Figure::month, "gennaio", 1},
    {Figure::month, "febbraio", 2},
    {Figure::month, "marzo", 3},
    {Figure::month, "aprile", 4},
    {Figure::month, "maggio", 5},
    {Figure::month, "giugno", 6},
    {Figure::month, "luglio", 7},
    {Figure::month, "agosto", 8},
    {Figure::month, "settembre", 9},
    {Figure::month, "ottobre", 10},
    {Figure::month, "novembre", 11},
    {Figure::month, "dicembre", 12},
    {Figure::weekday, "domenica", 0},
    {Figure::weekday, "lunedì", 1},
    {Figure::weekday, "martedì", 2},
    {Figure::weekday, "mercoledì", 3},
    {Figure::weekday, "giovedì", 4},
    {Figure::weekday, "venerdì", 5},
    {Figure::weekday, "sabato", 6},
    {Figure::daysAgo, "oggi", 0},
    {Figure::number, "mezzo", 0.5},
    {Figure::daysAgo, "ieri", 1},
    {Figure::daysAgo, "l altro ieri,altroieri", 2},
    {Figure::ago, "fa"},
    {Figure::agoBefore, "da"},
    {Figure::previous, "scorso,scorsa,scorsi,ultimo,ultima,ultimi,ultime,passato,passata"},
    {Figure::current, "questo,questa,quest"},
    {Figure::following, "prossimo,prossima,prossimi,prossime"},
    {Figure::ahead, "fra,tra,in,entro,per"},
    {Figure::daysAhead, "domani", 1},
    {Figure::daysAhead, "dopodomani", 2},
    {Figure::namedDay, "capodanno,anno nuovo", valueOf(NamedDay::newYear)},
    {Figure::namedDay, "san valentino", valueOf(NamedDay::valentine)},
    {Figure::namedDay, "pasqua", valueOf(NamedDay::easter)},
    {Figure::namedDay, "pentecoste", valueOf(NamedDay::pentecost)},
    {Figure::namedDay, "ferragosto", valueOf(NamedDay::midAugust)},
    {Figure::namedDay, "halloween", valueOf(NamedDay::halloween)},
    {Figure::namedDay, "ognissanti", valueOf(NamedDay::allSaints)},
    {Figure::namedDay, "vigilia di natale,vigilia", valueOf(NamedDay::christmasEve)},
    {Figure::namedDay, "natale", valueOf(NamedDay::christmas)},
    {Figure::namedDay, "san silvestro", valueOf(NamedDay::newYearsEve)},
    {Figure::namedDay, "primavera", valueOf(NamedDay::spring)},
    {Figure::namedDay, "estate", valueOf(NamedDay::summer)},
    {Figure::namedDay, "autunno", valueOf(NamedDay::autumn)},
    {Figure::namedDay, "inverno", valueOf(NamedDay::winter)},
    {Figure::endOf, "fine,la fine,fine di,la fine di,la fine del,fine del,la fine dell", -1},
    {Figure::ordinal, "prossimo,successivo,successiva,prossima", 0},
    {Figure::ofDate, "di,del,dell"},
};

} // namespace italian_words

const Language& italian()
{
    static constexpr Language language{
        italian_words::kWords,
        italian_words::kSubjects,
        italian_words::kFigureRows,
        "l,d,dell,all,nell,sull,dall,quell,quest,un,c,cos,dov,quant,com,qual,s,t,m,v,n",
        false,
        "elemento,cartella,filmato,fotografia,immagine,canzone,brano,documento,archivio,più,grande,grosso,"
        "pesante,vecchio,recente,nuovo,piccolo,grossa,vecchia,nuova,piccola,ultimo,scaricato,il,la"};
    return language;
}

} // namespace orlen::AskReader
