#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::italian_words {

namespace {

constexpr WordRow kMeasures[] = {
    {Sense::full,
     "poco spazio su disco,poco spazio disco,spazio in esaurimento,memoria piena,disco "
     "pieno,pieno,piena,quasi pieno,così pieno,riempito,riempiendo,si riempie,riempirà,si riempirà,senza "
     "spazio,manca spazio,non ho spazio,non c è spazio,non ho più spazio,non c è più spazio,poco spazio,così "
     "poco spazio,esaurito,finito lo spazio,finendo lo spazio,finisce lo spazio,finirà lo "
     "spazio,strapieno,esaurirà,spazio è finito,esaurire,riempie,non c è più posto,tutto pieno,finire lo "
     "spazio,riempirsi,saturo,spazio insufficiente,pieni,esaurisce,finito,tutto il mio spazio,finito il mio "
     "spazio,pienissimo,pienissima,piena zeppa,pieno "
     "zeppo,zeppo,zeppa,stracolmo,colmo,intasato,intasata,intasando,intasa,affollato,sovraccarico,al "
     "limite,al completo,full,quasi esaurito,quasi piena,quasi finito,quasi finito lo spazio,sta per "
     "riempirsi,sta per finire,sta finendo,sta finendo lo spazio,sta esaurendo,si sta riempiendo,si sta "
     "esaurendo,si è riempito,si è riempita,si esaurisce,si esaurirà,si "
     "riempia,riempita,riempiranno,riempire,riempirò,finisco lo spazio,finirò lo spazio,finisco la "
     "memoria,finirò la memoria,finire la memoria,finire spazio,finisca lo spazio,finisce spazio,finisce la "
     "memoria,finirà la memoria,finirà spazio,finisce il posto,finire il posto,finito la memoria,finito "
     "spazio,finito il posto,finito tutto,finita la memoria,è finito lo spazio,è finita la memoria,rimanere "
     "senza spazio,rimango senza spazio,rimarrò senza spazio,rimanendo senza spazio,rimasto senza "
     "spazio,resto senza spazio,resterò senza spazio,restare senza spazio,restando senza spazio,senza "
     "memoria,senza posto,a corto di spazio,a corto di memoria,a corto,corto di spazio,scarso,scarsa,spazio "
     "scarso,memoria scarsa,memoria insufficiente,poca memoria,poco posto,così poco posto,così poca "
     "memoria,manca lo spazio,mancanza di spazio,manca posto,manca memoria,non ho posto,non ho più posto,non "
     "ho più memoria,non ho memoria,non c è posto,non c è memoria,non c è più memoria,non ci sta più "
     "niente,non ci sta più nulla,non ci sta niente,non ci entra più niente,non entra più niente,non entra "
     "più nulla,non rimane spazio,non resta spazio,non mi resta spazio,non mi rimane spazio,non rimane più "
     "spazio,non resta più spazio,niente spazio,nessuno spazio,zero spazio,dove è finito lo spazio,dov è "
     "finito lo spazio,dov è andato lo spazio,dove è andato lo spazio,dov è sparito lo spazio,sparito lo "
     "spazio,sparito il mio spazio,sparito tutto lo spazio,andato tutto lo spazio,finito tutto lo spazio,è "
     "andato lo spazio,scomparso lo spazio,mangiato tutto lo spazio,saturando,satura,saturata,a "
     "tappo,scoppia,scoppiando,esaurita,esaurisco"},
    {Sense::free,
     "libero,liberi,libera,disponibile,disponibili,resta,rimane,rimasto,mi resta,mi "
     "rimane,restano,rimangono,avanza,rimasti,residuo,restante,rimanente,disponibilità,mi avanza,mi "
     "avanzano,avanzano,avanzato,avanzati,ancora libero,ancora liberi,ancora disponibile,ancora "
     "disponibili,libere,inutilizzato sul,non occupato,non utilizzato sul,mi restano,mi rimangono,ci "
     "resta,ci rimane,resta libero,rimane libero,restano liberi,rimangono liberi,è libero,è "
     "disponibile,residua,residui liberi,restanti,rimanenti,rimasta,vuoto "
     "ancora,margine,resterà,resterebbe,rimarrà,rimarrebbe"},
    {Sense::total, "totale,capacità,in totale,in tutto,complessiva,complessivo,capienza,dimensione "
                   "totale,riepilogo,stato,panoramica,dimensione complessiva,capacità totale,capacità "
                   "complessiva,in complesso,complessivamente,sommato,tutto insieme,in "
                   "somma,sommando,somma,totali,complessive,complessivi,visione d insieme,quadro "
                   "generale,situazione,globale,nel complesso,di quanto è"},
    {Sense::disk,
     "disco,disco fisso,disco rigido,hard disk,ssd,hdd,computer,pc,portatile,macchina,partizione,memoria di "
     "massa,archiviazione,notebook,dischi,unità,memoria interna,harddisk,disco interno,disco "
     "principale,disco ssd,disco di sistema,hd,mac,laptop,computer portatile,pc "
     "portatile,fisso,elaboratore,memoria del pc,memoria del "
     "computer,volume,harddisc,drive,nvme,supporto,unità disco,memoria di archiviazione,partizione "
     "home,compiuter"},
    {Sense::space, "spazio,posto,spazio su disco,spazio disco,memoria,spazio di archiviazione,ci sta,ci "
                   "stanno,entra,spazi,spazio di memoria,gb di spazio,giga di spazio,entrano,ci entra,ci "
                   "entrano,ci starebbe,ci starebbero,spaziio,spasio,capienza libera"},
    {Sense::howMuch,
     "quanto,quanta,quant,che quantità,che quantità di,cuanto,quale quantità di,qnt,qnto,cosa "
     "guadagno,quanto guadagno,cosa ottengo,quanto si libera,quanto libera,cosa guadagnerei,di quanto,quanto "
     "ancora,quanto altro,quanto ne,quanto mi fa risparmiare,quanto risparmio,quanto risparmierei,quanto si "
     "risparmia,quanto si recupera,quanto si guadagna,quanto si guadagnerebbe,quanto si libererebbe,quanto "
     "si recupererebbe,quanto ottengo,quanto otterrei,quanto ricavo,quanto ricaverei,quanto recupero,quanto "
     "recupererei,quanto libererei,quanto libero,quanto libererebbe,quanto guadagnerei,che guadagno,cosa ci "
     "guadagno,che ci guadagno,cosa recupero,cosa ricavo,cosa si guadagna,cosa otterrei,che ottengo,a quanto "
     "ammonta,a quanto ammontano,ammonta,quanto fa,quanti in più,quanta roba,qto,quato,quano"},
    {Sense::why,
     "perché,come mai,per quale motivo,motivo,ragione,a causa di cosa,perche,xke,xché,da cosa dipende,a cosa "
     "è dovuto,per quale ragione,qual è il motivo,qual è la ragione,qual è la causa,come si spiega,cosa "
     "causa,cosa provoca,cosa fa sì che,com è che,com è possibile che,come è possibile "
     "che,causa,cause,colpa,colpa di chi,motivi,ragioni,per via di cosa,x che,xke mai,perke,come mai è"},
    {Sense::when,
     "quando,in che data,tra quanto,fra quanto,tra quanto tempo,quanto tempo,quanti giorni,in quanto "
     "tempo,presto,che giorno,a breve,quale data,quanto manca,tra quanti giorni,per quando,fino a "
     "quando,quanti mesi,fra quanto tempo,per quanto ancora,quanto durerà ancora,quanto durerà,in quale "
     "data,entro quando,quanto ci vuole,quanto tempo ho,quanto tempo mi resta,quanto tempo manca,quanto "
     "tempo resta,quanto tempo passerà,quanto ci metterà,quanto ci mette,quanto tempo ci vuole,quante "
     "settimane,quanti anni,in che mese,in quale mese,quale mese,che mese,in che giorno,quale giorno,fra "
     "quanti giorni,fra quanti mesi,tra quanti mesi,tra quante settimane,in quanti giorni,in quanti "
     "mesi,prossimamente,quanto ancora prima,a partire da quando,da quando,fin quando,per quanto tempo,per "
     "quanto tempo ancora,ancora per quanto,verso quando,che data"},
    {Sense::most,
     "più,di più,la maggior parte,maggior parte,più spazio,maggiormente,il grosso,principalmente,più "
     "velocemente,più in fretta,più rapidamente,la maggioranza,maggioranza,il più dello spazio,gran parte,la "
     "gran parte,di più di tutti,più di tutti,più di "
     "tutto,colpevole,colpevoli,colpa,ha la colpa,la "
     "colpa,responsabile,responsabili,principale,principali,peggiore,peggiori,più "
     "avido,più avidi,più memoria,più veloce di tutti,in prevalenza,il più in fretta possibile,più in fretta "
     "possibile,il più velocemente possibile"},
    {Sense::takes,
     "occupa,occupano,occupando,prende,prendono,usa,usano,consuma,consumano,mangia,mangiano,mangiando,spreca,"
     "ruba,rubano,riempiono,utilizza,utilizzano,ingombra,ingombrano,consumando,divora,succhia,divorano,"
     "sprecano,occupare,porta via,portano via,occupando spazio,occuperà,occuperanno,occupa spazio,occupano "
     "spazio,prende spazio,prendono spazio,si mangia,si mangiano,mi mangia,mi mangiano,mangiaspazio,mangia "
     "spazio,mangiano spazio,mi occupa,mi occupano,mi ruba,mi rubano,mi prende,rubando,si prende,si "
     "prendono,si porta "
     "via,sprecando,sprecato,prosciuga,prosciugano,succhiano,ingozza,intasano,ingombrante,ingombranti,"
     "assorbe,assorbono,impegna,impegnano,riempie il,riempiendo il,sta riempiendo,tiene occupato,tengono "
     "occupato,divorando,usando,monopolizza,pesare,fagocita,sfrutta,sfruttano"},
    {Sense::biggest,
     "più grande,più grandi,i più grandi,il più grande,la più grande,le più grandi,maggiore,maggiori,più "
     "pesante,più pesanti,grande,grandi,enormi,enorme,pesanti,pesante,grossi,grosso,più grosso,più "
     "grossi,grosse,grossa,più grosse,più grossa,top,i più pesanti,le più pesanti,per dimensione,i più "
     "grossi,le più grosse,il più grosso,il più pesante,la più pesante,voluminosi,più "
     "voluminosi,giganti,enormemente "
     "grandi,gigante,gigantesco,gigantesca,gigantesche,giganteschi,immenso,immensi,immensa,immense,massiccio,"
     "massicci,mastodontici,mastodontico,smisurati,grandissimi,grandissimo,grandissime,grossissimi,più "
     "massiccio,più ingombrante,più ingombranti,più voluminosa,più voluminose,più "
     "voluminoso,voluminosa,voluminose,voluminoso,più enormi,più enorme,in ordine di dimensione,ordinati per "
     "dimensione,ordinati per grandezza,per grandezza,per peso,dal più grande,dal più grande al più "
     "piccolo,di maggiori dimensioni,di grandi dimensioni,di grosse dimensioni,più "
     "corposi,bestioni,bestia,più lunghi,più estesi,molto grandi,molto grossi,molto pesanti,più grande "
     "dei,più grandi dei,più grande del,più grandi del,più grande della,più grandi della,più grandi nei,più "
     "grande di tutti"},
    {Sense::smallest,
     "più piccolo,più piccoli,più piccola,più piccole,i più piccoli,il più piccolo,le più "
     "piccole,piccolo,piccoli,piccola,piccole,piccolissimi,minuscoli,minuscolo,minore,minori,più leggero,più "
     "leggeri,più leggera,il più leggero,i più leggeri,la più piccola"},
    {Sense::oldest,
     "più vecchio,più vecchi,più vecchia,più vecchie,i più vecchi,il più vecchio,le più vecchie,più "
     "antico,più datati,vecchio,vecchi,vecchia,vecchie,meno recente,meno recenti,la più "
     "vecchia,datati,vecchissimo,vecchissimi,vecchissime,antichi,antico,antica,antiche,più antichi,più "
     "antica,più antiche,antichissimi,obsoleto,obsoleti,obsolete,superato,superati,decrepiti,di tanto tempo "
     "fa,di molto tempo fa,di anni fa,d epoca,più datato,più datata,più datate,datato,datate,anzianità,più "
     "anziano,più anziani,stantii,remoti,primi in assoluto,più remoti,risalenti"},
    {Sense::newest,
     "ultimamente,più recente,più recenti,i più recenti,il più recente,le più recenti,più nuovo,più "
     "nuovi,recenti,recente,nuovi,nuove,nuovo,più nuove,la più recente,più "
     "nuova,recentemente,nuova,cambiato,cambiati,modificato,modificati,modificate,aggiunto,aggiunti,ultimi "
     "aggiunti,ultime aggiunte,ultimo aggiunto,ultimo modificato,ultimi modificati,ultime "
     "modifiche,modificata,cambiata,cambiate,cambiano,variati,variato,editati,editato,aggiornati,aggiornato,"
     "aggiunta,aggiunte,comparso,comparsi,comparse,apparso,apparsi,creato,creati,creata,create,arrivato,"
     "arrivati,arrivate,appena scaricato,appena scaricati,appena aggiunti,appena arrivati,appena "
     "creati,novità,recentissimi,di recente,di recente modificati,da "
     "poco,freschi,fresco,nuovissimi,nuovissimo,ultimissimi,più fresco,più freschi"},
    {Sense::grow,
     "si è ingrandito,si è gonfiato,è aumentato,è "
     "ingrassato,cresciuto,cresciuti,cresciute,cresce,crescendo,crescita,aumentato,aumentati,aumenta,"
     "ingrandito,ingranditi,diventato più grande,aumentata,lievitato,si è allargato,si è "
     "espanso,espanso,espansi,si è "
     "dilatato,dilatato,gonfiato,gonfiati,gonfiata,gonfia,gonfiano,ingrassato,ingrassati,ingrassa,ingrandita,"
     "ingrandite,ingrandisce,aumentate,aumento,aumentano,aumentando,aumentare,incremento,incrementato,"
     "incrementati,incrementata,crescono,crescere,è cresciuto,sono cresciuti,sono cresciute,è "
     "cresciuta,cresciuta,cresciuto di più,è lievitata,lievitati,lievitata,esploso,esplosa,esplose,esplosi,è "
     "salito,salito,salita,saliti,accumulato,accumulati,si è accumulato,accumula,accumulando,diventata più "
     "grande,diventati più grandi,diventate più grandi,diventato enorme,diventato così grande,diventata così "
     "grande,fatto più grande,messo su peso,preso peso,più grande di prima,più grandi di prima,più pesante "
     "di prima,ampliato,moltiplicati"},
    {Sense::above,
     "confronta,confrontare,rispetto ai,rispetto alle,più di,maggiore di,maggiori di,più grande di,più "
     "grandi di,superiore a,superiori a,almeno,oltre,sopra,sopra i,sopra il,minimo,>,che superano,oltre i,o "
     "più,più pesanti di,più grossi di,oltre il,superano,supera,più grosse di,di più di,da più "
     "di,tra,fra,compresi tra,più grossa di,più grosso di,più pesante di,maggiori dei,maggiori a,maggiore "
     "a,superiori ai,superiori al,superiore al,superiore ai,sopra gli,sopra la,oltre gli,oltre le,oltre "
     "la,al di sopra di,al di sopra dei,al di sopra del,al minimo,come minimo,minimo di,che supera,che "
     "superino,superino,che superano i,superano i,che eccedono,eccedono,eccede,che occupano più di,occupano "
     "più di,che occupa più di,occupa più di,che pesano più di,pesano più di,che pesa più di,pesa più di,che "
     "pesano oltre,pesano oltre,pesa oltre,o maggiori,o maggiore,in su,e oltre,e più,di oltre,da oltre,non "
     "meno di,non inferiori a,più lunghi di,confrontami,paragona,paragonare,rispetto a,a confronto "
     "con,versus,vs"},
    {Sense::below,
     "meno di,minore di,minori di,più piccolo di,più piccoli di,inferiore a,inferiori a,al "
     "massimo,sotto,sotto i,sotto il,massimo,<,o meno,più piccola di,più piccole di,minori a,minore "
     "a,inferiori ai,inferiori al,inferiore al,inferiore ai,sotto gli,sotto la,al di sotto di,al di sotto "
     "dei,al di sotto del,massimo di,non più di,non superiori a,non più grandi di,che pesano meno di,pesano "
     "meno di,che occupano meno di,occupano meno di,più leggeri di,e meno,o minori,o inferiori,di meno di"},
    {Sense::inside, "in,nel,nella,nei,nelle,negli,nell,nello,dentro,all interno di,dalla cartella,nella "
                    "cartella,all interno della,all interno del,all interno,dentro la,dentro il,dentro "
                    "i,dentro alla,dentro al,nella mia,nel mio,nei miei,nelle mie,presenti in,contenuti "
                    "in,in cartella,dalla mia cartella,sul desktop nella"},
    {Sense::unopened,
     "non aperto,non aperti,mai aperto,mai aperti,non usato,non "
     "usati,inutilizzati,inutilizzato,dimenticato,dimenticati,non utilizzati,non apro,non ho aperto,non ho "
     "usato,non uso,non uso più,non uso mai,non utilizzo,mai usato,mai usati,inutilizzate,non apro da,non ho "
     "toccato,mai aperte,mai usate,non tocco,non guardo,non ho più aperto,non aperte,dimenticate,non ho mai "
     "aperto,non ho aperto da,non apro mai,non apro più,mai usata,mai visto,mai visti,mai viste,mai "
     "letto,mai letti,mai lette,mai ascoltato,mai ascoltati,mai ascoltate,mai guardato,mai guardati,mai "
     "guardate,mai giocato,mai giocati,mai aperta,mai toccato da me,mai avviato,mai avviati,mai avviate,mai "
     "lanciato,mai utilizzato,mai utilizzati,mai utilizzate,mai utilizzata,che non uso,che non uso più,che "
     "non uso mai,che non apro,che non apro mai,che non utilizzo,che non ho mai aperto,che non ho mai "
     "usato,che non ho aperto,non utilizzate,non utilizzata,non utilizzato,non usate,non usata,non visti,non "
     "letti,non guardati,non ho mai usato,non ho mai visto,non ho mai guardato,non ho mai letto,non ho mai "
     "toccato,non ho mai ascoltato,non ho visto,non ho guardato,non ho letto,non ho ascoltato,non ho "
     "utilizzato,non ho più usato,non ho più toccato,non ho più visto,non tocco da,non tocco più,non guardo "
     "mai,non guardo da,non guardo più,uso poco,uso raramente,uso di rado,poco usato,poco usati,poco "
     "usate,poco utilizzati,poco utilizzate,quasi mai usato,quasi mai usati,quasi mai usate,non uso quasi "
     "mai,abbandonato,abbandonati,abbandonate,dimenticata,scordati,scordato,trascurati,ad ammuffire,a "
     "prendere polvere,prendono polvere,impolverati,inattivi,inattivo,inutilizzata,fermi da,fermi lì da,non "
     "giocati,non aprivo"},
    {Sense::before,
     "prima,prima di,prima del,prima della,più vecchio di,più vecchi di,precedente a,precedenti a,più "
     "vecchie di,entro,prima dell,anteriori a,anteriori al,precedenti al,più vecchio del,più vecchi del,più "
     "vecchie del,più vecchia del,fino a,fino al,fino alla,fino all,fino ad,fino ai,più vecchia "
     "di,precedente al,antecedente a,antecedenti a,antecedenti al,anteriore a,anteriore al,che hanno più "
     "di,hanno più di,che ha più di,ha più di,risalenti a più di,di più di un,prima che,prima dello,prima "
     "dei,entro il,entro la,entro l,entro i,fino allo,sino a,sino al,sino alla,da prima del,da prima di,da "
     "più di un,datati oltre"},
    {Sense::since,
     "dall inizio dell,dall inizio del,dall inizio di,da inizio,dagli inizi di,dopo il,più recente di,più "
     "recenti di,a partire da,a partire dal,più nuovi di,da quando è iniziato,più nuova di,più nuove di,più "
     "nuovo di,più giovani di,più giovane di,più recenti del,più recente del,successivi al,a cominciare da,a "
     "cominciare dal,con inizio da,a decorrere da,dalla metà di,da metà,dagli inizi del,da inizio dell"},
    {Sense::after, "dopo,successivo a,successivi a,dopo il,in seguito a,successivo al,successivamente "
                   "a,successiva a,successive a,posteriore a,posteriori a,posteriori al,dopo la,dopo l,dopo "
                   "lo,in seguito al,passato il,passata la"},
    {Sense::last, "ultimo,ultima,ultimi,ultime,scorsa volta,precedente,l ultima volta,ultima "
                  "volta,penultima,passata pulizia,scorse volte,volta scorsa,la volta scorsa,la volta "
                  "precedente,precedenti,l ultima,più recente pulizia"},
    {Sense::privacy,
     "bisogno di internet,serve internet,connessione internet,connessione a internet,senza internet,usi "
     "internet,leggi i miei,guardi i miei,vedi i miei file,vedere i miei file,vedere le mie foto,vede le mie "
     "foto,vede i miei file,la tua azienda,vostra azienda,restano sul mio computer,rimangono sul mio "
     "computer,restano sul "
     "computer,internet,online,rete,privato,privata,privati,privacy,cloud,nuvola,telemetria,inviare,invia,"
     "invii,inviati,server,spia,spii,spiare,condividere,condivide,condividi,account,offline,caricare,carica,"
     "carichi,raccoglie,raccogli,dati "
     "personali,terzi,google,wifi,mandi,manda,escono,trasmette,esce,riservatezza,riservati,terze parti,in "
     "rete,ia,mandati,spiando,pubblicità,caricate,caricati,caricata,chi può vedere,chi può leggere,chi ha "
     "accesso,connesso,connessa,vede le mie password,dove vanno i miei dati,vanno su internet,finiscono su "
     "internet,finiscono online,finiscono in rete,vanno in rete,vanno online,vanno da qualche parte,lascia "
     "il mio computer,lasciano il mio computer,lascia il computer,lasciano il computer,lascia questo "
     "computer,lasciano questo computer,lascia il pc,lasciano il pc,lasciano il mio pc,esce dal mio "
     "computer,esce dal computer,escono dal computer,escono dal mio computer,escono dal pc,esce dal "
     "pc,escono dal mio pc,resta sul mio computer,restano sul pc,restano sul mio pc,resta tutto sul,resta "
     "tutto qui,rimane tutto "
     "sul,inviate,inviata,inviato,inviano,inviando,inviarli,invierai,spedisci,spedisce,spedire,spediti,"
     "condivisi,condivise,condiviso,condivisa,condividono,condividendo,venduti,vendi,vende,vendere i "
     "miei,vendere,vendi i miei,rubare i miei,rubi,rubati,dati privati,dati riservati,i miei dati privati,i "
     "miei dati personali,informazioni personali,informazioni private,spiate,spiato,mi spii,mi spia,ci "
     "spii,traccia,tracci,tracciare,tracciamento,tracciato,monitora,monitori,sorvegli,sorveglia,controlli i "
     "miei,curiosare,curiosi,ficcanaso,raccolta dati,raccolta di "
     "dati,raccolti,raccolgono,registrarmi,registrazione,devo registrarmi,serve un account,creare un "
     "account,iscrivermi,ti connetti,si connette,si collega,ti "
     "colleghi,connessione,connette,connetti,collega,colleghi,funziona offline,funziona senza rete,sul "
     "web,il web,in cloud,sul cloud,nel cloud,intelligenza "
     "artificiale,chatgpt,facebook,hacker,annunci,confidenziali,confidenziale,segreti,segreto,segrete,"
     "pubblici,pubblico,protezione dei dati,gdpr,leggi le mie,leggi i miei file,leggi i file,leggi le "
     "mail,leggi la posta,leggi le mie mail,legge i miei,legge le mie,leggere i miei,leggere le mie,guardi "
     "le mie,guarda i miei,guarda le mie,vedi i miei,vedi le mie,vede i miei,vede le mie,vedere i "
     "miei,vedere le mie,vedi le mie password,sai le mie password,leggi le mie password,conosci le mie "
     "password,accesso ai miei,accedi ai miei,accede ai miei,hai accesso,ha accesso,chi vede,chi "
     "legge,qualcuno può vedere,qualcuno vede,fuga di dati,caricato,caricano,carichi i miei,carica i "
     "miei,uploadi,upload,telemetrie,trasmetti,trasmessi,trasmettere"},
    {Sense::hidden,
     "nascosto,nascosti,nascosta,nascoste,invisibili,invisibile,occulti,occulto,celati,celate,nascosti in"},
    {Sense::folder, "cartella,cartelle,directory,sottocartella,sottocartelle,sottodirectory,dir,cartelline,"
                    "cartellina,folder,directories"},
    {Sense::general,
     "disattivare,disattiva,disabilita,disabilitare,impedire,impedisci,evitare,fermare,bloccare,previsione,"
     "lingua,lingue,scansione,analisi,risultato,risultati,roba,categoria,categorie,meglio,altro,altra,altri,"
     "primo luogo,per primo,lungo,giorno,giorni,settimana,mese,anno,volta,volte,bene,buona "
     "idea,verso,resti,residui,spegnere,spegni,disattivo,disabilito,disattivazione,impedisco,impedire "
     "che,evito,evita,blocco,blocca,fermo,ferma,smettere,smetta,smettila,stop,interrompere,togliere "
     "da,levare "
     "da,attivare,disordine,casino,confusione,percorso,posizione,scansioni,scan,caos,modello,modelli"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler,
     "con i loro dati,con dati,con i dati,dati compresi,dati inclusi,compresi i dati,inclusi i dati"},
};

} // namespace

std::span<const WordRow> measures()
{
    return kMeasures;
}

} // namespace orlen::AskReader::italian_words
