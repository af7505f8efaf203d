#include "insight/reader/Language.h"

namespace orlen::AskReader {

namespace italian_words {

constexpr WordRow kWords[] = {
    {Sense::ruleOut,
     "escludere una cartella,escludere un file,come escludo,come escludere,escludere dalla "
     "scansione,esclusioni,aggiungere un eccezione,lista bianca,non suggerire più,non scansionare,escludere "
     "cartelle,escludere la cartella,escludere la mia cartella,escludi una cartella,escludi la cartella,non "
     "analizzare,non suggerirmi più,non proporre più,ignorare una cartella,ignora la cartella,ignorare "
     "cartelle,aggiungere esclusioni,lista di esclusione,elenco delle esclusioni,elenco esclusioni,lasciare "
     "fuori una cartella,tenere fuori una cartella,mai scansionare,mai più suggerire"},
    {Sense::installed, "installato,installati,installata,installate,è installato,sono installate,sono "
                       "installati,ho installato,abbiamo installato,è installata"},
    {Sense::self,
     "cosa puoi fare,cosa sai fare,che cosa puoi fare,cosa ti posso chiedere,cosa posso chiederti,chi "
     "sei,cosa sei,aiuto,aiutami,ciao,buongiorno,buonasera,salve,grazie,come funziona,cos è orlen,cosa fa "
     "orlen,che cos è orlen,come funziona orlen,a cosa serve orlen,cosa fa questo programma,a che serve "
     "orlen,come si usa orlen,come puoi aiutarmi,cosa puoi fare per me,cosa fai,che cosa fai,che fai,che sai "
     "fare,che puoi fare,chi sei tu,cos è questo programma,a cosa servi,a cosa serve questo programma,a che "
     "serve questo programma,a cosa serve questa app,come funziona questo programma,come funziona "
     "questo,come funzioni,come ti uso,come ti si usa,come si usa,come si usa questo programma,come uso "
     "orlen,cosa può fare orlen,cosa può fare questo programma,cosa fa questa app,in cosa puoi aiutarmi,in "
     "cosa mi puoi aiutare,mi aiuti,mi puoi aiutare,puoi aiutarmi,cosa posso chiedere,che domande posso "
     "fare,che ti posso chiedere,cosa sai,che sai,hey,ehi,buondì,buona sera,buon giorno,ciao orlen,grazie "
     "mille,mille grazie,tante grazie,di cosa sei capace,soccorso"},
    {Sense::advise,
     "consigli,consigliare,consiglio,consiglieresti,suggerisci,suggerimento,suggerimenti,suggerire,"
     "raccomandi,cominciare,iniziare,comincio,inizio da,cosa faccio,che faccio,conviene,vale la "
     "pena,iniziamo,da dove parto,cosa devo fare,cosa posso fare,che devo fare,che posso fare,trucchi,cosa "
     "faccio adesso,cosa dovrei fare,cosa fare,da dove comincio,da dove inizio,da dove cominciare,da dove "
     "iniziare,da cosa comincio,da cosa inizio,da cosa parto,da che parte comincio,cosa mi consigli,che mi "
     "consigli,che "
     "consigli,consigliami,consigliato,consigliati,suggeriscimi,suggerito,raccomandazioni,raccomanda,cosa "
     "faresti,che faresti,tu cosa faresti,cosa mi conviene,mi conviene cancellare,converrebbe,cosa potrei "
     "fare,che dovrei fare,che devo fare adesso,cosa si fa,come procedo,da dove si parte,vale la pena "
     "cancellare,il modo migliore,modo migliore,dritte,dritta,trucco,trucchetti"},
    {Sense::trust,
     "fidarmi,fidare,affidabile,fiducia,mi posso fidare,orlen è sicuro,posso fidarmi,in pericolo,a "
     "rischio,open source,mi fido,mi posso fidare di te,posso fidarmi di te,posso fidarmi di "
     "orlen,fidarsi,fido,affidabilità,sei affidabile,sei sicuro,è affidabile,codice aperto,serio"},
    {Sense::beyond,
     "virus,malware,trojan,più "
     "veloce,velocizzare,velocizza,lento,lenta,prestazioni,deframmentare,ram,memoria "
     "ram,processore,cpu,batteria,driver,firewall,antivirus,temperatura,scheda grafica,cosa non puoi "
     "fare,che cosa non puoi fare,cosa non sai fare,che non puoi fare,che non sai fare,cosa non fai,cosa non "
     "fa orlen,cosa non può fare,cosa non può fare orlen,cosa non può fare questo programma,non può fare "
     "questo programma,cosa non riesci a "
     "fare,stampante,bluetooth,formattare,formatto,partizionare,criptare,cifrare,hackerato,surriscalda,"
     "tastiera,mouse,sfondo del desktop,volume audio,password del wifi,password wifi,aggiornare "
     "linux,aggiornare il sistema,settori danneggiati,rallenta,rallentato,lentezza,lentissimo,va "
     "piano,antimalware,aggiornamenti,velocizzo,schermo rotto"},
    {Sense::happens,
     "dove vanno a finire,vanno a finire,dove va a finire,succede,succederebbe,accade,cosa succede,per "
     "sempre,definitivamente,definitivo,permanentemente,succederà,dove finiscono,dove vanno,dove "
     "finisce,irreversibile,rompere,rompo,danneggia,danni,danneggiare,rompe,rompersi,da "
     "solo,automaticamente,senza chiedere,da sola,senza permesso,senza avvisare,cosa accade,che succede,che "
     "cosa succede,che succederebbe,si perde,si perdono,perdo,perdo qualcosa,perso,persi,perdere "
     "qualcosa,perduto,perduti,persa,perse,perso per sempre,dove va,dove va tutto,dove vanno i,dove finisce "
     "tutto,dove finiscono i,dove finisce la,che fine fa,che fine fanno,fine "
     "fanno,sparisce,spariscono,spariti davvero,sparito davvero,pentirmi,mi pento,me ne pento,si rompe,si "
     "rompe qualcosa,rompere qualcosa,rompo qualcosa,danneggiato,si danneggia,combinare guai,faccio "
     "danni,fare danni,in automatico,senza chiedermelo,senza chiedermi,senza il mio permesso,senza "
     "avvisarmi,di tua iniziativa,di sua iniziativa,in modo permanente,in modo definitivo,cancellato per "
     "sempre,irrecuperabile,autonomamente,distruggere,distrugge"},
    {Sense::only, "solo,soltanto,solamente,unicamente,esclusivamente,solo i,solo le,solo quelli,solo "
                  "quelle,nient altro che,appena i"},
    {Sense::also, "e,ed,anche,inoltre,e per quanto riguarda,che mi dici di,e i,e le,e gli,e la,e il,e "
                  "lo,cosa mi dici di,&,e di,e che dire di,nonché,e riguardo,o,oppure,più anche,e poi,poi "
                  "anche,e inoltre,e pure,e cosa mi dici,e invece,e quelli,e quelle,ovvero"},
    {Sense::backward, "quello,quella,quelli,quelle,questo,questa,questi,queste,ciò,esso,essi,essa,lo,"
                      "eliminarlo,eliminarla,eliminarli,eliminarle,cancellarlo,cancellarla,cancellarli,"
                      "cancellarle,ne,quell,loro,toglierli,toglierlo,buttarli,buttarlo"},
    {Sense::filler,
     "ho fatto,fatto,hai fatto,funzionare,a cosa serve,a che serve,mio nipote,nipote,vorrei sapere,mi sai "
     "dire,potresti dirmi,mi potresti "
     "dire,il,la,i,gli,le,l,un,uno,una,di,d,del,dello,della,dell,dei,degli,delle,da,dalla,dallo,dai,dagli,"
     "dalle,a,al,allo,alla,all,ai,agli,alle,mio,mia,miei,mie,nostro,nostra,tuo,tua,tuoi,tue,suo,sua,suoi,sue,"
     "io,mi,m,noi,ci,c,tu,ti,t,te,si,s,se,vi,v,è,sono,era,erano,sei,essere,stato,stati,state,stata,sta,"
     "stanno,sto,c è,ho,hai,ha,abbiamo,hanno,avere,aver,avevo,ed "
     "ecco,per,con,su,sul,sulla,sullo,sui,sugli,sulle,sull,che,come,per favore,per "
     "piacere,perfavore,adesso,ora,attualmente,oggi,al momento,in questo "
     "momento,davvero,veramente,esattamente,circa,più o meno,mostra,mostrami,mostrare,dimmi,dire,dai "
     "a,elenca,elencare,elenco,trova,trovare,cerca,cercami,cercare,sapere,so,voglio,vorrei,mi "
     "piacerebbe,puoi dirmi,mi puoi dire,puoi "
     "mostrarmi,puoi,potresti,tutto,tutta,tutti,tutte,molto,molta,molti,molte,tanto,tanta,tanti,tante,poco,"
     "pochi,qualche,alcuni,alcune,qualcosa,già,ancora,stesso,stessa,chiamato,chiamata,di "
     "nome,orlen,quindi,allora,dunque,ok,beh,mah,eh,faccio,fa,tipo,tipi,genere,salvato,salvati,salvate,qui,"
     "qua,lì,là,in giro,intero,intera,proprio,propri,fammi "
     "vedere,vedere,vedo,va,vanno,vado,andare,messo,velocemente,facilmente,rapidamente,spiega,spiegami,"
     "indica,ogni,dettagli,informazioni,sì,contiene,contengono,usando orlen,con "
     "orlen,voi,vostro,trovano,trova si,sia,siano,abbia,ce,cui,ma,davvero tanto,così,c "
     "erano,troppo,pure,po,un po,bisogno,rimane "
     "chiaro,sarebbe,sarebbero,guarda,forse,sarà,saranno,qualcuno,quasi,abbastanza,da qualche "
     "parte,viene,vengono,sempre,a volte,poi,sembra,credo,dice,dici,gente,penso,figlio,anche se,mentre,così "
     "tanto,soprattutto,appena,probabilmente,chissà,ognuno,sono stati,sono state,è stato,facile,riguardo "
     "a,stesse,stessi,quei,avrei,messa,esattezza,qualsiasi,attuale,ecco,invece,contro,durante,tramite,presso,"
     "secondo,improvvisamente,strano,bambini,nessuna idea,rispetto,in realtà,in pratica,ad,ci saranno,hai "
     "trovato,che hai trovato,a proposito,accidenti,cavolo,insomma,magari,stanotte,questa notte,per un "
     "file,su un file,accanto a un file,vicino a un file,per i file,di un file significa,mi puoi mostrare,mi "
     "puoi dare,mi puoi elencare,mi puoi far vedere,mi potresti mostrare,mi dici,mi dai,mi mostri,mi fai "
     "vedere,mi elenchi,puoi elencarmi,puoi darmi,puoi farmi vedere,potresti mostrarmi,potresti "
     "elencarmi,potrebbe dirmi,può dirmi,saprebbe dirmi,sapresti dirmi,sai dirmi,sai,sa,saresti,gradirei "
     "sapere,gradirei,volevo sapere,voglio sapere,volevo,vorrei vedere,desidero,mi chiedo,mi chiedevo,mi "
     "domando,chiedo,domanda,una domanda,scusa,scusami,scusi,mi "
     "scusi,perdonami,senti,senta,amico,amica,bello,fratello,zio,zia,mamma,papà,babbo,nonno,nonna,figlia,"
     "moglie,marito,capo,grazie in anticipo,in anticipo,anticipatamente,cortesemente,gentilmente,per "
     "cortesia,pls,plz,x favore,xfavore,al giorno d oggi,in questo preciso momento,proprio ora,proprio "
     "adesso,subito,immediatamente,appena possibile,prima possibile,il prima "
     "possibile,urgente,urgentemente,in fretta,una volta,d un colpo,in un colpo,a occhio e croce,grosso "
     "modo,più o meno tutti,indicativamente,precisamente,con precisione,di preciso,nello "
     "specifico,specifico,specifici,specifiche,lista,una lista,la lista,la lista di,la lista dei,una lista "
     "di,una lista dei,l elenco,l elenco di,l elenco dei,l elenco delle,un elenco,un elenco di,fai un "
     "elenco,fammi un elenco,fammi una lista,dammi una lista,dammi un elenco,dammi l "
     "elenco,completo,completa,completi,esistente,vari,varie,diversi,diverse,differenti,certi,certe,certo,"
     "determinati,parecchi,parecchie,parecchio,un sacco,un sacco di,sacco di,mucchio di,un mucchio di,un bel "
     "po,bel po,qualche parte,da "
     "qualche,conservo,memorizzati,memorizzato,archiviati,archiviato,sparsi,sparse,buttati lì,lasciati "
     "lì,presenti,presente,si trova sul,esattamente dove,mica,pertanto,cioè,ossia,diciamo,a dire il "
     "vero,onestamente,sinceramente,in effetti,effettivamente,per caso,magari per,boh,non so,non so se,non "
     "lo so,uffa,uff,ops,ahia,mannaggia,dannazione,porca miseria,ecc,eccetera,del genere,di questo "
     "tipo,questo programma,il programma dice,dicono,generale,in "
     "generale,vicenda,possa,possano,potessi,fosse,avessi,avrebbe,verrebbe,essendo,avendo,siccome,poiché,"
     "dato che,visto che,quanto prima,seguenti,seguente,i "
     "vari,tot,altrui,totalmente,dal,dall,potreste,potreste dirmi,potreste mostrarmi,dirmi,mi sapreste dire"},
    {Sense::negation,
     "non,mai,nessun,nessuno,nessuna,niente,nulla,n,mai più,neanche,nemmeno,neppure,nessuna delle,no"},
    {Sense::except,
     "che non sia un,che non sia una,che non è un,che non è una,che non siano,tranne,eccetto,salvo,a "
     "parte,escluso,esclusi,esclusa,escluse,ad eccezione di,ad eccezione dei,ad eccezione delle,ad eccezione "
     "del,oltre a,oltre ai,oltre alle,oltre agli,all infuori di,senza,senza contare,ma non,che non siano,che "
     "non sia,e non,fuorché,al di fuori di,escludendo,meno,eccetto i,a parte i,senza toccare,senza "
     "cancellare,senza eliminare,senza perdere,ma lascia,lascia fuora,lascia fuori,né,tranne quelle "
     "in,tranne quelli in,invece di,meno che,oltre alla,oltre al,oltre allo,oltre all,tranne i,tranne "
     "le,tranne gli,tranne il,tranne la,tranne i miei,eccetto le,eccetto il,eccetto la,eccetto gli,salvo "
     "le,salvo i,a parte le,a parte il,a parte la,a parte gli,esclusi i,escluse le,escluso il,esclusa "
     "la,senza i,senza le,senza il,senza la,senza gli,senza i miei,senza le mie,senza contare i,senza "
     "contare le,senza considerare,senza toccare i,senza toccare le,ma non i,ma non le,ma non il,ma non "
     "la,ma non gli,e non i,e non le,non quelli,non quelle,non contando,non considerando,ma lascia stare,ma "
     "tieni,lasciando stare,lasciando fuori,ad esclusione di,ad esclusione dei,ad esclusione delle,ad "
     "eccezione della,anziché,al posto di,al netto di,che non stanno in,che non sono in,che non siano "
     "in,eccettuati,eccettuato,senza spostare"},
    {Sense::lasts,
     "basta,basterà,bastare,bastano,dura,durerà,durare,regge,reggerà,resiste,resisterà,sufficiente,"
     "abbastanza spazio,avrò,ci sarà,avremo,mi basta,ci basta,mi basterà,ci "
     "basterà,basterebbe,bastasse,bastino,è abbastanza,sarà abbastanza,è sufficiente,sarà "
     "sufficiente,sufficienti,ce la faccio,ce la farò,ce la fa,ce la "
     "farà,arrivo,arriverò,arriva,arriverà,arrivare,arriviamo,mi dura,mi durerà,andrò avanti,vado "
     "avanti,andare avanti,sopravvive,sopravvivrà,ci starò,ci starà,tiene,terrà,resistere"},
    {Sense::speed,
     "quanto velocemente,a che velocità,con che velocità,quanto in fretta,a che ritmo,ritmo,velocità,al "
     "giorno,alla settimana,al mese,ogni giorno,ogni settimana,ogni mese,con quale velocità,con che "
     "ritmo,quanto rapidamente,quanto veloce,quanto è veloce,a quale velocità,a quale ritmo,in "
     "media,mediamente,all ora,all anno,giornalmente,quotidianamente,settimanalmente,mensilmente,tutti i "
     "giorni,tutte le settimane,tutti i mesi,per giorno,per settimana,per mese,di media"},
    {Sense::what,
     "cosa,che cosa,cos,quale,quali,qual,dove,dov,chi,cos è,che cos è,cosa sono,qual è,quali sono,cosa c "
     "è,che tipo di,che genere di,hai trovato,esistono,dove sono,dove si trova,dove si trovano,ci sono,ho "
     "dei,ho delle,cs,ke,c è qualche,ho qualche,di cosa,dove tengo,dove ho messo,dove ho salvato,dove "
     "sta,dove stanno,dove stava,in che cartella,in quale cartella,cosa sarebbe,cosa sarebbero,cosa cavolo "
     "è,che roba è,che diavolo è,che roba c è,che c è,che c è in,cosa c è dentro,cosa contiene,cosa "
     "contengono,descrivi,descrivimi,parlami di,parlami dei,raccontami di,spiegami cos è,spiegami cosa "
     "sono,fammi vedere i,fammi vedere le,fammi vedere gli,fammi vedere tutti i,mostrami i,mostrami "
     "le,mostrami gli,mostrami tutti i,quali file,quali tra,quali fra,quale tra,ho qualcosa,ho file,ho "
     "foto,ho video,ho cartelle,abbiamo dei,c è un,c è una,c è del,c è della,c è dei,ci sono dei,ci sono "
     "delle,ci sono degli,ci sono file,esiste,esiste qualche,che altro,cos altro,cosa altro,k,ce l ho,ce li "
     "ho,hai visto,kosa,che cosa sono,chi è,ci sarebbero"},
    {Sense::howBig,
     "quanto è grande,quanto sono grandi,quanto grande,quanto grandi,dimensione,dimensioni,dimensione "
     "di,quanto pesa,quanto pesano,quanto occupa,quanto occupano,quanto spazio occupa,quanto spazio "
     "occupano,quanto spazio prende,quanto spazio prendono,quanto spazio usa,quanto spazio "
     "usano,pesa,pesano,peso,quanti gb,quanti giga,quanto prende,quanto prendono,grandezza,quanto "
     "misura,quanto è grosso,quanto è grossa,quanto sono grosse,quanto sono grossi,quanto posto "
     "occupano,quanto posto occupa,quanto consumano,quanto consuma,quanto c è in,quanto spazio "
     "consumano,quanto spazio consuma,quanto è grossa la,quanto sono grosse le,quanto grosso,quanto "
     "grossa,quanto grossi,quanto spazio sta occupando,quanto spazio stanno occupando,quanto sta "
     "occupando,quanto stanno occupando,quanto spazio mi occupa,quanto spazio mi occupano,quanto mi "
     "occupa,quanto mi occupano,quanto spazio mangia,quanto spazio mangiano,quanto mangia,quanto "
     "mangiano,quanto spazio ruba,quanto spazio rubano,quanto usa,quanto usano,quanto utilizza,quanto "
     "utilizzano,quanto spazio utilizza,quanto spazio utilizzano,quanto spazio porta via,quanto spazio "
     "portano via,quanto spazio ci vuole per,quanto posto prende,quanto posto prendono,quanto disco "
     "occupa,quanto disco occupano,quanta memoria occupa,quanta memoria occupano,quanta memoria usa,quanta "
     "memoria usano,quanta memoria prende,quanti mb,quanti mega,quanti byte,quanti gigabyte,quanti gb "
     "occupa,quanti gb occupano,quanti giga occupa,quanti giga occupano,quanti mega occupa,quanti mega "
     "occupano,quanti giga prende,quanti giga prendono,quanti gb prende,quanti gb prendono,quanti giga "
     "pesa,quanti giga pesano,occupa quanto,occupano quanto,pesa quanto,pesano quanto,di quanto spazio,di "
     "che dimensione,di che dimensioni,che dimensione ha,che dimensioni ha,che dimensione hanno,che "
     "dimensioni hanno,la dimensione di,la dimensione della,la dimensione del,le dimensioni di,dimensione "
     "della,dimensione del,dimensione dei,dimensione delle,dimensioni della,dimensioni del,dimensioni "
     "dei,dimensioni delle,quale dimensione,che peso ha,il peso di,il peso della,peso di,peso totale,peso "
     "della,peso dei,peso delle,che percentuale,quale percentuale,percentuale di,percentuale dei,quale "
     "parte,che parte,che porzione,spazio occupato da,spazio occupato dai,spazio occupato dalle,spazio "
     "occupato dalla,spazio che occupa,spazio che occupano,spazio usato da,quanto c è dentro,quanta roba c è "
     "in,quanta roba c è nei,quanto sono pesanti,quanto è pesante,misura,misurano,grande quanto,taglia,quant "
     "è grande,quant è grosso,quant è grossa,ingombro,ingombro di"},
    {Sense::howMany, "quanti,quante,numero di,quante volte,il numero di,conta,quanti sono,quante sono,quanti "
                     "ce ne sono,quante ce ne sono,quanti ne ho,quante ne ho,conta i,conta le,conta i "
                     "miei,contami,contare,conteggio,il totale dei,ogni quanto,con che "
                     "frequenza,frequenza,quantità di,la quantità di,qnti,qnte,quanti file"},
    {Sense::can,
     "posso,può,possono,potrei,possiamo,devo,dovrei,si può,si possono,bisogna,è possibile,è "
     "sicuro,dobbiamo,va bene,potremmo,debbo,potrebbe,poter,mi "
     "conviene,deve,devono,dovremmo,debba,dovrebbe,dovrebbero,va bene se,va bene cancellare,è un problema "
     "se,succede qualcosa se,è il caso di,il caso di,è meglio,è giusto,è prudente,è consigliabile,è "
     "opportuno,è necessario,è bene,si riesce a,riesco a,riesco,potrò,potrebbero,si potrebbe,si "
     "potrebbero,serve ancora,mi serve ancora,mi servono ancora,serve davvero,mi serve davvero,mi serve "
     "il,mi serve la,mi servono i,mi servono le,mi serve questo,ho ancora bisogno di,ho bisogno ancora di,ho "
     "bisogno del,ho bisogno della,ha senso,possibile,è ok,è ok se,è permesso,c è modo di,modo di"},
    {Sense::makeRoom,
     "quanti giga ho recuperato,ho recuperato,ho liberato,liberati,recuperati,liberare,libero spazio,libera "
     "spazio,liberato,guadagnare,guadagno,fare spazio,fare posto,recuperare "
     "spazio,risparmiare,risparmio,libererei,guadagnerei,fare un po di spazio,liberati,ottenere "
     "spazio,libererebbe,guadagnerebbe,creare spazio,serve spazio,mi serve "
     "spazio,liberando,recupererei,avere più spazio,serve più spazio,liberarmi "
     "spazio,liberiamo,alleggerire,fare un po di posto,più posto,liberarsi,bisogno di spazio,mi serve,mi "
     "servono,ho bisogno di,bisogno di,mi occorrono,meno pieno,libero un po,libera un po,liberami,liberare "
     "spazio,liberarne,libererò,libereremmo,liberiamo spazio,si libera spazio,si liberano,si libererebbe,si "
     "libererebbero,libererebbero,libereranno,libererà,liberano,liberasse,liberi "
     "spazio,liberata,liberate,liberi un po,ho liberato spazio,abbiamo liberato,hai liberato,ha liberato,è "
     "stato liberato,ho guadagnato,guadagnato,guadagnati,guadagnare spazio,guadagna spazio,guadagni "
     "spazio,guadagnerò,recuperare un po,recuperare gb,recuperare giga,recuperare memoria,recupera "
     "spazio,recupero spazio,recuperando spazio,hai recuperato,abbiamo recuperato,ha "
     "recuperato,recuperato,recuperata,recupererò,ricavare,ricavo spazio,ricavare spazio,fai spazio,fai "
     "posto,fammi spazio,fammi posto,faccio spazio,faccio posto,fare largo,fai largo,farmi spazio,fare un po "
     "di largo,creare posto,crea spazio,ottenere posto,avere più posto,avere spazio,avere più memoria,avere "
     "posto,più spazio libero,più spazio sul,più spazio su,più spazio nel,altro spazio,serve posto,serve più "
     "posto,serve memoria,mi serve posto,mi serve più spazio,mi serve un po di,mi servirebbero,mi "
     "servirebbe,servono,servirebbero,occorrono,mi occorre,necessito di,necessito,ho necessità di,mi "
     "mancano,mi manca,avrei bisogno di,avrei bisogno,bisogno di più,bisogno di altro,ho bisogno di "
     "più,voglio liberare,vorrei liberare,devo liberare,devo recuperare,devo fare,devo guadagnare,devo "
     "ottenere,sgomberare,sgombera,sgombro,alleggerisci,alleggerisco,alleggerirlo,snellire,snellisci,"
     "svuotare un po,sfoltire,sfoltisci,meno piena,risparmia,risparmierei,risparmiare spazio,si guadagna"},
    {Sense::make, "fai,fare,fammi,dammi,trovami,procurami,ottieni,dammi altri,ricava,crea,trovami"},
    {Sense::untouched,
     "tocchi,toccherai,toccherà,mai tocca,non tocca,non tocca mai,non tocchi "
     "mai,protetto,protetti,protetta,protette,protegge,intoccabile,intoccabili,mai cancellati,non cancella "
     "mai,non elimina mai,non cancelli mai,non elimini mai,mai eliminati,mai toccati,mai toccherà,non "
     "toccherà mai,mai cancellare,mai eliminare,mai toccato,non sposta mai,mai "
     "spostati,intatto,intatti,lascia stare,non tocchi,non cancellerà mai,non eliminerà mai,non cancellerai "
     "mai,non tocchi tu,non toccherai mai,non toccherai,non toccherà,non toccheresti mai,non tocca orlen,mai "
     "tocchi,tocca mai,toccheresti mai,tocchi mai,mai toccare,non cancella,non cancelli,non elimina,non "
     "elimini,non cancelleresti mai,non elimineresti mai,non eliminerai mai,non cancellerebbe mai,cancelli "
     "mai,cancella mai,elimini mai,elimina mai,mai cancella,mai cancelli,mai elimina,mai elimini,non sposti "
     "mai,non sposti,non sposta,sposta mai,sposti mai,non si tocca,non si toccano,non si cancella,non si "
     "cancellano,non viene mai toccato,non viene toccato,non vengono toccati,viene mai toccato,vengono mai "
     "toccati,mai toccate,mai toccata,mai cancellate,mai cancellato,mai eliminate,mai eliminato,lasci "
     "stare,lasci in pace,lascia in pace,lasci intatto,lasci intatti,intoccato,intoccati,intoccabile per "
     "te,al sicuro da te,off "
     "limits,vietato,vietati,proibito,protezione,proteggi,tutelato,tutelati,sacro,risparmi sempre,mi "
     "tocchi,tocchi i miei,tocchi le mie,tocchi anche,toccherai i miei,tocca i miei,tocca le mie"},
    {Sense::cleanUp, "pulizia,pulire,pulito,pulisci,ripulire,fare pulizia,ripulito,ordine,fare "
                     "ordine,pulita,fatto pulizia,ripulisco,pulisco,pulizia generale,pulizia recente,pulizia "
                     "più recente,pulita generale,fare le pulizie,ripulita,ripulito "
                     "tutto,ripuliamo,ripulisci,puliamo,pulendo,ripulendo,sistemato,riordinato,riordinare,"
                     "riordino,fatto ordine,messo in ordine,mettere in ordine,fatto le pulizie "
                     "di,cleanup,bonifica,dato una pulita,dare una pulita,repulisti,pulire il disco"},
    {Sense::uninstall,
     "disinstallare,disinstallo,disinstalla,disinstallazione,disinstallato,disinstalli,disinstallarla,"
     "disinstallarlo,disinstallarle,disinstallate,disinstallata,disinstallami,rimuovere l app,rimuovere il "
     "programma,rimuovere l applicazione,togliere il programma,togliere l app,togliere l "
     "applicazione,eliminare l app,eliminare il programma,eliminare l applicazione,cancellare l "
     "app,cancellare il programma,cancellare l applicazione,levare il programma,disintallare,disistallare"},
    {Sense::remove,
     "eliminare,elimino,elimina,eliminato,eliminati,eliminata,eliminate,cancellare,cancello,cancella,"
     "cancellato,cancellati,cancellate,rimuovere,rimuovo,rimosso,rimossi,togliere,tolgo,tolto,buttare,butto,"
     "butto via,buttare via,cestinare,cestino via,liberarmi,liberarmi "
     "di,spostare,spostato,svuotare,svuoto,svuota,fare a meno di,fare a meno,sbarazzarmi,sbarazzarmi "
     "di,superfluo,superflui,inutile,inutili,cancelare,gettare,getto,spazzatura,eliminabili,cancellabili,"
     "cancelli,elimini,sposta,sposti,rimuovi,tolti,buttato,superflue,non mi serve,non mi servono,non ho "
     "bisogno,che non mi serve,che non mi servono,non servono,non mi servono più,non mi serve "
     "più,eliminarne,eliminerei,eliminando,eliminabile,elimini "
     "tu,eliminassi,cancellassi,cancellabile,cancellando,cancellerei,cancellarne,cancella "
     "tutto,cancelliamo,cancelo,canello,cancellere,eliminaro,elimiare,eiminare,rimuovere "
     "tutto,rimuovendo,rimossa,rimosse,rimuovibili,rimuovibile,tolgono,togli,toglierei,togliessi,togliendo,"
     "tolta,tolte,levo,levare,leva,levato,levati,levando,levarmi,levarmi di,levarmi di torno,levarmi dai "
     "piedi,togliermi,togliermi di torno,butta,butti,butta via,buttata,buttate,buttati,buttarne,buttar "
     "via,buttando,buttassi,butterei,cestina,cestino tutto,cestinarlo,cestinato,cestinati,cestinabili,nel "
     "cestino,mettere nel cestino,metto nel cestino,metti nel cestino,sposto nel cestino,spostare nel "
     "cestino,mandare nel cestino,gettare via,getto via,scarto,scartare,scarta,fare fuori,faccio fuori,far "
     "fuori,far sparire,faccio sparire,fai sparire,disfarmi,disfarmi di,disfarsi,disfarsi "
     "di,disfarmene,sbarazzarsi,sbarazzarsi di,sbarazzarci,liberarmene,liberarci di,eliminami,fare piazza "
     "pulita,svuotando,svuotassi,svuoterei,svuotato,svuoti,svuotarlo,spostati,spostando,sposto,superflua,"
     "inutili da,inutilità,sacrificare,sacrificabile,sacrificabili,sacrifico,di troppo,di più "
     "inutile,ciarpame,robaccia,schifezze,monnezza,immondizia,porcherie,rottami,zavorra,cianfrusaglie,"
     "spazzature,che non servono,che non servono più,che non serve,che non serve più,non serve,non serve "
     "più,non serve a niente,non serve a nulla,non servono più,non servono a niente,non servono a nulla,non "
     "mi serve a niente,non mi servono a niente,non ho più bisogno,di cui non ho bisogno,di cui non ho più "
     "bisogno,non voglio,non voglio più,che non voglio,che non voglio più,non necessari,non necessarie,non "
     "necessario,se ne può andare,può andare via,possono andare via,può sparire,possono sparire,si butta,si "
     "buttano,si cancella,si elimina,si toglie,si tolgono,fare via,via "
     "tutto,delete,cancellazione,cancellazioni,eliminazione,eliminazioni,rimozione"},
    {Sense::undo,
     "reversibile,annullare,annulla,annullo,ripristinare,ripristino,ripristina,recuperare,recupero,recupera,"
     "tornare indietro,riavere,rimettere,ripristinato,indietro,per errore,per "
     "sbaglio,riportare,rimetto,riportare indietro,recuperarlo,recuperarli,riprendere,rimettere a "
     "posto,annullarla,annullarlo,annulla l "
     "ultima,disfare,disfa,revert,ripristinarlo,ripristinarli,ripristinarla,ripristinarle,ripristini,"
     "ripristinabili,ripristinabile,ripristinati,ripristinare i,recuperare i,recuperare i file,recuperare "
     "il,recuperare le,recuperare la,recuperare un,recuperare un file,recuperare file,recuperare "
     "una,recuperare ciò,recuperare quello,recuperare quello che,recuperare gli,recuperare l,recupero "
     "un,recupero i,recupero le,recupero il,recupero quello,come recupero,posso recuperare,si può "
     "recuperare,si possono recuperare,si recupera,si "
     "recuperano,recuperabile,recuperabili,recuperarle,recuperarla,ridammi,restituisci,restituiscimi,"
     "restituire,rimetti,rimettere tutto,rimetti tutto,rimettili,rimettilo,rimetti a posto,rimettere a posto "
     "quello,rimettere al loro posto,rimetti al suo posto,riporta,riporta indietro,riportami,fai tornare,far "
     "tornare,farlo tornare,tornare come prima,come "
     "prima,riaverlo,riaverli,riaverla,riaverle,riprendo,riprendermi,riprenderlo,riprenderli,tirare fuori "
     "dal cestino,tira fuori dal cestino,ho sbagliato,sbagliato,errore,mi sono sbagliato,ho cambiato "
     "idea,cambiato idea,pentito,mi sono pentito,accidentalmente,involontariamente,senza volere,senza "
     "volerlo,undo,ctrl z,ripescare,ripesco,ripescare dal cestino,salvare dal cestino"},
    {Sense::safe,
     "grave,sicuro,sicura,sicuri,sicure,senza rischi,senza "
     "rischio,pericoloso,pericolosa,rischio,rischioso,innocuo,tranquillamente,senza problemi,in sicurezza,in "
     "modo sicuro,safe,senza pericolo,rischi,innocui,pericolosi,problema,problemi,senza timore,male,sicuro "
     "che,in tutta sicurezza,senza pensieri,senza pensarci,senza paura,tranquillo,tranquilla,senza "
     "danni,senza conseguenze,senza problemi di,senza preoccupazioni,a cuor "
     "leggero,rischiosa,rischiosi,rischiose,pericolose,pericolo,innocua,innocue,sicurezza,cattiva "
     "idea,brutta idea,problematico,fa male,gravi,inoffensivo,inoffensivi"},
    {Sense::review,
     "review,controllare,da controllare,da rivedere,verificare,rivedere,da verificare,verifica,da "
     "ricontrollare,ricontrollare,rivedi,da esaminare,esaminare,controlla,controllo,da guardare"},
    {Sense::keep,
     "tenere,conservare,mantenere,tengo,keep,importante,importanti,da conservare,da "
     "tenere,conservato,teniamo,tenuto,tenuti,tenerlo,tenerli,conservo tutto,conservare "
     "tutto,conservarlo,conservarli,conservati,mantengo,mantenuto,essenziale,essenziali,necessario,necessari,"
     "necessaria,indispensabile,indispensabili,utile,utili,prezioso,preziosi,preziose,imprescindibili,"
     "fondamentale,fondamentali,salvaguardare,preservare,custodire"},
    {Sense::mean, "etichetta,l etichetta,conta come,contano come,fa parte di,rientra "
                  "in,significa,significano,significato,vuol dire,vogliono dire,differenza,differenza "
                  "tra,valutazione,valutazioni,giudizio,giudizi,intende,colori,valutato,classificato,vuole "
                  "dire,regole,regola,criteri,decide,classifica,contrassegnati,contrassegnato,classificati,"
                  "valutati,segnati,segnato,definizione,definizioni,definire,cosa intendi con,cosa intendi "
                  "per,intendi,intendi per,intendi con,si intende,si intende per,sta per,starebbe per,senso "
                  "di,che vuol dire,che significa,differenze,differenza c è,che differenza c "
                  "è,etichette,etichettato,etichettati,classifichi,classificare,classificazione,"
                  "classificazioni,classificata,valuti,valuta,valutare,valutata,valutate,giudichi,giudica,"
                  "giudicato,decidi,stabilisci,stabilisce,categorizza,considerato,considerati,considera "
                  "come,viene considerato,appartiene a,appartengono a,fanno parte di,rientrano "
                  "in,criterio,punteggio,rating,segno,contrassegno,contrassegnata,colore,rientra nel,rientra "
                  "nella,rientrano nel,rientrano nella,conta per"},
    {Sense::soFar,
     "finora,fino ad ora,fino a oggi,fin qui,cronologia,fino a ora,fino adesso,fino ad adesso,dall "
     "inizio,nel tempo,in tutto finora,fino ad oggi,pulizie,le pulizie,tutte le pulizie,pulizie "
     "precedenti,pulizie passate,da sempre,da quando ti uso,da quando uso orlen,da quando lo uso,da quando l "
     "ho installato,dall installazione,dal principio,dagli inizi,in tutta la storia,storico,storia,nel "
     "passato,in passato,fino a questo momento,fin ora,sinora,fino a quest oggi,nel corso del tempo,pulizie "
     "fatte,pulizie che ho fatto,tutte le mie pulizie,le mie pulizie,elenco delle pulizie,elenco "
     "pulizie,lista delle pulizie,ultime pulizie,complessivamente finora,cumulativo,già in tutto,in tutto "
     "questo tempo"},
    {Sense::used, "occupato,occupati,consumato,in uso,quanto è pieno,occupata,spazio occupato,spazio "
                  "usato,spazio utilizzato,utilizzo del disco,uso del disco,utilizzo "
                  "disco,occupazione,occupazione disco,occupazione del disco,riempimento,quanto "
                  "pieno,consumati,impegnato,impegnati,pieno per,livello di riempimento,tasso di utilizzo"},
    {Sense::handled, "usato,usati,utilizzato,utilizzati,uso,utilizzo,usata,usate,utilizzate,utilizzata,usi,"
                     "usavo,adopero,adoperato,adoperati,utilizzai,usiamo,usare,utilizzare"},
    {Sense::opened,
     "aperto,aperti,aperta,aperte,apro,toccato,toccati,visto,visti,guardato,guardati,consultato,aprire,"
     "guardate,viste,letto,letti,ascoltato,toccate,consultati,giocato,ascoltati,vedo "
     "da,riprodotto,riprodotti,ascoltate,ascoltata,guardata,visionato,visionati,lette,letta,giocati,"
     "sfogliato,eseguito,lanciato,avviato,acceduto,sfogliati"},
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
     "tutto,colpevole,colpevoli,responsabile,responsabili,principale,principali,peggiore,peggiori,più "
     "avido,più avidi,più memoria,più veloce di tutti,in prevalenza"},
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
     "da,levare da,attivare,disordine,casino,confusione,percorso,posizione,scansioni,scan,caos"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler,
     "con i loro dati,con dati,con i dati,dati compresi,dati inclusi,compresi i dati,inclusi i dati"},
};

constexpr SubjectRow kSubjects[] = {
    {SubjectID::systemAdvice,
     "vecchi kernel,kernel vecchi,kernel,cache di apt,cache apt,apt,cache dei pacchetti,registri di "
     "sistema,log di sistema,vecchi snap,kernel vecchio,vecchio kernel,journal,journald,log del "
     "sistema,cache di pacman,cache di dnf,snap vecchi,vecchie versioni snap,vecchie versioni di snap"},
    {SubjectID::leftovers,
     "resti di applicazioni,resti di programmi,resti di app,resti,residui,residui di programmi,residui di "
     "app,app disinstallate,programmi disinstallati,applicazioni disinstallate,app rimosse,programmi "
     "rimossi,programmi cancellati,applicazioni rimosse,lasciato indietro,lasciati indietro,lasciato "
     "file,orfani,file orfani,cartelle orfane,resti di app disinstallate,resti di programmi "
     "disinstallati,resti di applicazioni disinstallate,resti delle app,resti dei programmi,resti delle "
     "applicazioni,resti di programmi cancellati,residui delle app,residui dei programmi,residui di "
     "applicazioni,residui di app disinstallate,residui di programmi disinstallati,residui di "
     "disinstallazione,residui di disinstallazioni,avanzi,avanzi di programmi,avanzi di app,tracce di "
     "programmi,tracce di app,strascichi,app cancellate,app eliminate,app che ho cancellato,app che ho "
     "disinstallato,app che ho rimosso,app che non ho più,programmi che ho cancellato,programmi che ho "
     "disinstallato,programmi che ho rimosso,programmi che non ho più,programmi eliminati,applicazioni "
     "cancellate,applicazioni eliminate,applicazioni che ho disinstallato,file residui,cartelle "
     "residue,lasciati dai programmi,lasciati dalle app,lasciato dai programmi,lasciato dalle app,lasciano "
     "dietro,lasciati da app,lasciati da programmi,rimasugli,rimasuglio"},
    {SubjectID::similarPhotos,
     "foto simili,immagini simili,foto doppie,immagini doppie,foto duplicate,immagini duplicate,foto "
     "uguali,immagini uguali,foto identiche,foto quasi uguali,doppioni di foto,foto ripetute,foto che si "
     "somigliano,foto doppioni,duplicati di foto,foto quasi identiche,si somigliano,somigliano,simili,si "
     "assomigliano,assomigliano,sembrano uguali"},
    {SubjectID::screenshots,
     "schermata,schermate,screenshot,screenshots,istantanee schermo,catture schermo,catture dello "
     "schermo,cattura schermo,istantanee dello schermo,schermata salvata,screen,screenshoot,screenshots "
     "vecchi,catture schermate,cattura dello schermo,cattura di schermo,catture di schermo,screen "
     "shot,screen shots,fermo immagine dello schermo,stamp schermo,istantanea dello schermo"},
    {SubjectID::receipts,
     "scontrino,scontrini,ricevuta,ricevute,foto di scontrini,foto di ricevute,foto di ricevuta,fatture "
     "fotografate,scontrini fotografati,ricevute fotografate,foto di fatture,foto dello scontrino"},
    {SubjectID::memes,
     "meme,memes,immagini divertenti,foto divertenti,immagini buffe,foto buffe,immagini spiritose,memini"},
    {SubjectID::blurry,
     "foto sfocate,immagini sfocate,sfocato,sfocata,sfocati,sfocate,foto mosse,mosse,foto "
     "sfuocate,sfuocate,foto venute male,foto sfuocata,foto sfocata,immagine sfocata,foto "
     "mossa,mosso,sfuocati,sfuocato,foto brutte,foto riuscite male,riuscite male,fuori fuoco,foto fuori "
     "fuoco,immagini sfuocate,immagini mosse,non nitide,poco nitide,foto non a fuoco"},
    {SubjectID::duplicates,
     "duplicato,duplicati,file duplicati,doppioni,doppione,copie,file doppi,file identici,file "
     "uguali,doppi,duplicate,file ripetuti,due volte,ripetuti,più volte,copie identiche,copie "
     "uguali,doppio,doppia,doppie,file doppio,file doppioni,documenti doppi,documenti "
     "duplicati,duplicata,cose doppie,roba doppia,copie di file,copie doppie,copia di,copie di,copia "
     "esatta,copie esatte,in doppia copia,doppia copia,due copie,più copie,più di una "
     "volta,ripetute,ripetuto,ripetuta,cloni,clonati,stessi file,lo stesso file,stesso file,file "
     "clonati,duplicazioni,dupli,file uguale,stessa cosa due volte"},
    {SubjectID::largeFiles, "file grandi,file grossi,file grande,grandi file,file pesanti,file enormi,grossi "
                            "file,file pesante,file grosso,file enorme,file giganti,file molto grandi,file "
                            "grossissimi,file voluminosi,file ingombranti,file grandissimi,pesi massimi"},
    {SubjectID::oldFiles,
     "file vecchi,vecchi file,file dimenticati,file vecchio,vecchie cose,roba vecchia,cose vecchie,file "
     "antichi,file obsoleti,file inutilizzati,file non usati,file abbandonati,vecchiume,robe vecchie,file "
     "superati,vecchio file,vecchi documenti e file,file datati"},
    {SubjectID::oldDownloads,
     "vecchi download,download vecchi,vecchi scaricamenti,download dimenticati,download non usati,download "
     "abbandonati,file scaricati vecchi,vecchi file scaricati,vecchio download,download vecchio,download "
     "datati"},
    {SubjectID::logs,
     "log,logs,file di log,registri,file log,registri di sistema,registro,file di registro,registri "
     "errori,registri degli errori,rapporti di crash,rapporto di crash,report di crash,segnalazioni di "
     "crash,core dump,core dumps,dump,dump di memoria,log degli errori,log di errore,crash report,file core"},
    {SubjectID::trash, "cestino,il cestino,file cancellati,file eliminati,cestini,nel cestino "
                       "sono,pattumiera,secchio,bidone,spazzatura del computer,file buttati,trash,cestinno"},
    {SubjectID::deviceBackups,
     "backup iphone,backup dell iphone,backup di iphone,backup ipad,iphone,ipad,backup del telefono,backup "
     "telefono,backup del cellulare,backup dei dispositivi,backup del mio telefono,backup del mio "
     "iphone,backup del mio cellulare,backup cellulare,backup di telefono,backup dello smartphone,backup "
     "smartphone,copie del telefono,copia del telefono,copie dell iphone,copia dell iphone,copie di "
     "sicurezza del telefono,copia di sicurezza del telefono,copie di backup del telefono,salvataggi del "
     "telefono,telefono,telefonino,cellulare,smartphone,natel,backup ios,backup dell ipad,backup di ipad"},
    {SubjectID::mailAttachments,
     "allegati,allegati di posta,allegato,allegati mail,allegati email,allegati delle mail,allegati della "
     "posta,allegati di email,allegati di mail,allegati alle mail,allegati alle email,allegato mail,allegati "
     "dei messaggi,file allegati,allegati delle email"},
    {SubjectID::languagePacks,
     "pacchetti lingua,pacchetti di lingua,traduzioni,lingue inutilizzate,lingue non usate,lingue che non "
     "uso,file di lingua,file delle lingue,file di traduzione,pacchetto lingua"},
    {SubjectID::npm, "cache di npm,npm,yarn,cache npm,cache di yarn,cache di node,cache node"},
    {SubjectID::pip, "cache di pip,pip,cache pip,cache di python,cache python,pacchetti python"},
    {SubjectID::gradle, "gradle,cache di gradle,cache gradle"},
    {SubjectID::homebrew, "homebrew"},
    {SubjectID::caches,
     "cache,file temporanei,dati temporanei,file di cache,memoria cache,cache del browser,cache delle "
     "app,dati in cache,temporanei,cache delle applicazioni,cache dei programmi,cache app,cache delle mie "
     "app,cache di applicazioni,cache di app,cache di programmi,file in cache,file cache,file "
     "temporaneo,file temp,file tmp,dati di cache,dati cache,cartella cache,cartella di cache,cartelle "
     "cache,cartelle di cache,cache dei browser,cache browser,cache di firefox,cache "
     "firefox,temporaneo,temporanea,chache,cahce,dati temporaneamente salvati"},
    {SubjectID::developer,
     "dati di sviluppo,sviluppatore,dati sviluppatore,file di sviluppo,sviluppo,file di compilazione,dati "
     "dello sviluppatore,dati da sviluppatore,file da sviluppatore,file dello sviluppatore,build,file di "
     "build,cartelle di build,artefatti,artefatti di build,compilazioni,file compilati,programmazione,dati "
     "di programmazione,file di programmazione,sviluppatori,strumenti di sviluppo,roba di sviluppo,dev"},
    {SubjectID::system, "sistema,file di sistema,sistema operativo,dati di sistema,il sistema,so linux,linux "
                        "stesso,file del sistema,dati del sistema,os"},
    {SubjectID::apps,
     "app,applicazione,applicazioni,programma,programmi,software,apps,programmi installati,applicazioni "
     "installate,app installate,programma installato,software installato,software "
     "installati,appplicazioni,aplicazioni,programmini,applicativi,applicativo"},
    {SubjectID::media, "multimedia,file multimediali,contenuti multimediali"},
    {SubjectID::downloads,
     "download,downloads,scaricati,cartella download,cartella scaricati,cartella dei download,file "
     "scaricati,scaricato,cartella downloads,scaricate,roba scaricata,cose scaricate,scaricamenti,file che "
     "ho scaricato,cose che ho scaricato,roba che ho scaricato,ciò che ho scaricato,quello che ho "
     "scaricato,scaricata,scarico,scaricare,scarica,cartella scaricamenti,cartella dei file "
     "scaricati,cartella di download,cartella dei "
     "downloads,downlod,dowload,donwload,donwloads,dowloads,scaricatti,scaricato da internet,scaricati da "
     "internet,miei download"},
    {SubjectID::desktop, "desktop,scrivania,cartella desktop,cartella scrivania,mio desktop"},
    {SubjectID::documentsFolder,
     "cartella documenti,cartella dei documenti,dei miei documenti,nei miei documenti,cartella documento,mia "
     "cartella documenti,directory documenti,la cartella documenti"},
    {SubjectID::picturesFolder,
     "cartella immagini,cartella foto,cartella delle foto,cartella delle immagini,mia cartella immagini,mia "
     "cartella foto,cartella di foto,cartella di immagini,directory immagini,cartella fotografie"},
    {SubjectID::videosFolder, "cartella video,cartella dei video,mia cartella video,cartella di "
                              "video,cartella film,cartella filmati,cartella dei film,directory video"},
    {SubjectID::musicFolder, "cartella musica,cartella della musica,mia cartella musica,cartella di "
                             "musica,directory musica,cartella della mia musica"},
    {SubjectID::home, "cartella personale,home,cartella home,cartella utente,mia home,mia cartella "
                      "personale,directory home,cartella dell utente,mia cartella home"},
    {SubjectID::videos,
     "video,filmati,filmato,film,clip,file video,registrazioni,videoclip,filmini,mp4,serie "
     "tv,filmino,registrazioni dello schermo,pellicole,pellicola,lungometraggi,video e film,clip "
     "video,mp4s,mkv,riprese,ripresa,serie,file di video,telefilm,filmatini"},
    {SubjectID::photos, "foto,fotografie,fotografia,immagini,immagine,file immagine,scatti,selfie,foto delle "
                        "vacanze,foto di famiglia,foto e immagini,scatto,file di immagine,file di foto,file "
                        "foto,jpg,jpeg,ritratti,ritratto,foto del telefono,foto del cellulare,foto "
                        "digitali,disegni,photo,fotina,fotine,foto mie,immaggini,imagini,fotto"},
    {SubjectID::audio, "musica,canzone,canzoni,audio,file audio,mp3,brani,brano,album,podcast,file "
                       "musicali,audiolibri,musiche,pezzi,pezzo musicale,pezzi musicali,tracce,traccia "
                       "audio,tracce audio,file musicale,audiolibro,suoni,suono,file sonori,dischi "
                       "musicali,registrazioni audio,canzoncine,cd musicali,file di musica"},
    {SubjectID::pdfs, "pdf,file pdf,documenti pdf,pdfs,documento pdf,documenti in pdf,file in pdf"},
    {SubjectID::archives, "archivio,archivi,zip,file zip,file compressi,archivi compressi,archivi zip,file "
                          "zippati,file compresso,zippati,cartelle zippate,cartelle compresse,rar,file "
                          "rar,archivio zip,tar,tarball,file tar,zip file,archivi rar,compressi"},
    {SubjectID::installers,
     "installatore,installatori,programmi di installazione,file di installazione,pacchetti,pacchetti di "
     "installazione,file d installazione,installer,setup,file setup,programma di installazione,programma d "
     "installazione,programmi d installazione,pacchetti deb,file deb,deb,appimage,pacchetto di "
     "installazione,eseguibili di installazione,file di setup"},
    {SubjectID::diskImages,
     "immagine disco,immagini disco,iso,file iso,immagini iso,macchine virtuali,macchina virtuale,dischi "
     "virtuali,immagini di disco,immagine iso,immagini di dischi,immagini cd,iso scaricate,disco "
     "virtuale,vm,immagini dei dischi,file immagine disco"},
    {SubjectID::spreadsheets,
     "foglio di calcolo,fogli di calcolo,tabelle,file excel,excel,fogli excel,file di excel,foglio "
     "excel,fogli di excel,foglio di excel,csv,file csv,foglio elettronico,fogli elettronici,tabella,tabelle "
     "excel,documenti excel,file calc"},
    {SubjectID::presentations,
     "presentazione,presentazioni,diapositive,powerpoint,slide,file powerpoint,file di "
     "powerpoint,presentazioni powerpoint,ppt,slides,diapositiva"},
    {SubjectID::ebooks,
     "libri,ebook,libri elettronici,e book,libro,libro elettronico,libri digitali,epub,e-book,romanzi"},
    {SubjectID::documents,
     "documento,documenti,carte,file di testo,documenti word,file word,documenti di "
     "testo,lettere,docs,doc,testo,testi,file word di,documento word,documento di "
     "testo,word,lettera,scritti,scartoffie,appunti,tesine,relazioni,fatture,pratiche,carta"},
    {SubjectID::files, "file,elemento,elementi,cose,dati,files,oggetti,documenti e file,oggetto,roba "
                       "mia,tutta la roba,qualcosa di grande,dato,filee,flie,fie,fiel,file e cartelle,dati e "
                       "file,cosette,cose mie,ogni cosa,tutto quello che,tutto ciò che,quello che"},
    {SubjectID::startup,
     "all avvio,si avvii,parta all avvio,di avviarsi,avviarsi,partire all avvio,all accensione,al "
     "login,parte lentamente,si avvia lentamente,lento ad avviarsi,avvio lento,avvio,all avvio,all "
     "accensione,si avvia automaticamente,si avviano automaticamente,avvio automatico,programmi all avvio,al "
     "login,all accesso,parte da solo,partono da soli,partono all avvio,si avviano,si avvia,si aprono da "
     "soli,partono da sole,accendo,esecuzione automatica,si avvia da solo,si avviano da soli,parte all "
     "avvio,partono automaticamente,elementi di avvio,si apra,si apra da solo,si apra all avvio,parta da "
     "solo,parta da sola,parta automaticamente,parta al login,parta quando accendo,si avvii da solo,si avvii "
     "da sola,si avvii automaticamente,si avvii all avvio,si lanci,aprirsi,aprirsi da solo,aprirsi all "
     "avvio,di aprirsi,avviarsi da solo,avviarsi all avvio,avviarsi automaticamente,di partire,partire da "
     "solo,partire automaticamente,partire in automatico,partire al login,all apertura della sessione,all "
     "inizio della sessione,all accesso al sistema,quando accendo,quando accendo il pc,quando accendo il "
     "computer,quando avvio,quando avvio il pc,quando avvio il computer,quando si avvia,quando si "
     "accende,quando entro,quando accedo,accensione,alla partenza,ad ogni avvio,a ogni avvio,in "
     "avvio,login,al boot,boot,autostart,avviati,avviate,avviano,avvia,avviano da soli,avvia da "
     "solo,partono,partono al login,partono all accensione,partono in automatico,parte in automatico,parte "
     "automaticamente,parte al login,parte all accensione,parte da sola,parte con,partono con,si avvia "
     "con,si avviano con,si avvia in automatico,si avviano in automatico,si avviano da sole,si avvia da "
     "sola,si avvia all avvio,si avviano all avvio,si avvia al login,si avviano al login,si apre,si "
     "aprono,si apre da solo,si apre da sola,si aprono da sole,si apre all avvio,si aprono all avvio,si apre "
     "automaticamente,si aprono automaticamente,si carica,si caricano,si carica all avvio,si caricano all "
     "avvio,si lancia,si lanciano,vengono avviati,viene avviato,programmi di avvio,app di avvio,app all "
     "avvio,applicazioni all avvio,programmi in avvio,voci di avvio,servizi all avvio,servizi,in "
     "background,in sottofondo,ci mette tanto ad avviarsi,ci mette molto ad avviarsi,lento all avvio,lento a "
     "partire,lento ad accendersi,partenza lenta,parte lento,avvio lentissimo"},
    {SubjectID::containers, "docker,podman,container,contenitori,contenitore,immagini docker,container "
                            "docker,container podman,immagini di container,immagini container,volumi "
                            "docker,immagini podman,contenitori docker,distrobox"},
    {SubjectID::flatpak,
     "flatpak,flatpaks,flathub,app flatpak,applicazioni flatpak,programmi flatpak,pacchetti flatpak"},
    {SubjectID::snap,
     "snap,snaps,pacchetti snap,snapd,app snap,applicazioni snap,pacchetto snap,programmi snap"},
    {SubjectID::games,
     "gioco,giochi,steam,videogiochi,giochi di steam,giochi steam,videogioco,giochi "
     "installati,giochini,lutris,giochi per pc,giochi del pc,libreria di steam,gaming,game,games"},
};

constexpr FigureRow kFigureRows[] = {
    {Figure::number, "due,paio,un paio,un paio di", 2},
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
    {Figure::month, "gennaio,gen", 1},
    {Figure::month, "febbraio,feb", 2},
    {Figure::month, "marzo", 3},
    {Figure::month, "aprile", 4},
    {Figure::month, "maggio", 5},
    {Figure::month, "giugno", 6},
    {Figure::month, "luglio", 7},
    {Figure::month, "agosto", 8},
    {Figure::month, "settembre,sett", 9},
    {Figure::month, "ottobre,ott", 10},
    {Figure::month, "novembre,nov", 11},
    {Figure::month, "dicembre,dic", 12},
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
    {Figure::daysAgo, "l altro ieri,altroieri,altro ieri,avantieri", 2},
    {Figure::ago, "fa,or sono"},
    {Figure::agoBefore, "da"},
    {Figure::previous,
     "scorso,scorsa,scorsi,ultimo,ultima,ultimi,ultime,passato,passata,precedente,precedenti,appena passato"},
    {Figure::current, "questo,questa,quest"},
    {Figure::following, "prossimo,prossima,prossimi,prossime,venturo,ventura,entrante,che viene,che verrà"},
    {Figure::ahead, "fra,tra,in,entro,per,entro i,entro le,fino a tra,nei"},
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
    {Figure::fromDate, "dal,dall,dalla,dallo,da"},
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
