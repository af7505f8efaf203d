#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::italian_words {

namespace {

constexpr WordRow kAsking[] = {
    {Sense::ending, "file di testo,file txt,file testo"},
    {Sense::installed, "installato,installati,installata,installate,è installato,sono installate,sono "
                       "installati,ho installato,abbiamo installato,è installata"},
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
     "piano,antimalware,velocizzo,schermo rotto,installare aggiornamenti"},
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
                      "ne,quell,loro"},
    {Sense::how, "come"},
    {Sense::general, "il resto,i restanti,i rimanenti,i seguenti"},
    {Sense::filler, "insieme,tutti insieme,tutte insieme"},
    {Sense::filler,
     "ho fatto,fatto,hai fatto,funzionare,mio nipote,nipote,vorrei sapere,mi sai "
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
     "vari,tot,altrui,totalmente,dal,dall,potreste,potreste dirmi,potreste mostrarmi,dirmi,mi sapreste "
     "dire,per un aggiornamento,per l aggiornamento,per gli aggiornamenti,per aggiornare,per un "
     "update,rendere,rende,rendi,direttamente"},
    {Sense::negation,
     "non,mai,nessun,nessuno,nessuna,niente,nulla,n,mai più,neanche,nemmeno,neppure,nessuna delle,no"},
    {Sense::except,
     "che non sia un,che non sia una,che non è un,che non è una,che non siano,tranne,eccetto,salvo,a "
     "parte,escluso,esclusi,esclusa,escluse,ad eccezione di,ad eccezione dei,ad eccezione delle,ad eccezione "
     "del,oltre a,oltre ai,oltre alle,oltre agli,all infuori di,senza,senza contare,ma non,che non siano,che "
     "non sia,e non,fuorché,escludendo,meno,eccetto i,a parte i,senza toccare,senza "
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
     "basta,basterà,bastare,bastano,dura,durerà,durare,regge,reggerà,resiste,resisterà,sufficiente,avrò,ci "
     "sarà,avremo,mi basta,ci basta,mi basterà,ci basterà,basterebbe,bastasse,bastino,è abbastanza,sarà "
     "abbastanza,è sufficiente,sarà sufficiente,sufficienti,ce la faccio,ce la farò,ce la fa,ce la "
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
     "(eliminar|cancellar|toglier|buttar)(lo|la|li|le),eliminare,elimino,elimina,eliminato,eliminati,"
     "eliminata,eliminate,cancellare,cancello,cancella,"
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
     "via,buttando,buttassi,butterei,cestina,cestino tutto,cestinarlo,cestinato,cestinati,cestinabili,"
     "mettere nel cestino,metto nel cestino,metti nel cestino,sposto nel cestino,spostare nel "
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
     "idea,brutta idea,problematico,fa male,gravi,inoffensivo,inoffensivi,tutto ciò che è sicuro,tutto "
     "quello che è sicuro,ciò che è sicuro,quello che è sicuro"},
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
     "questo tempo,già pulito,già cancellato,già eliminato,già ripulito,già rimosso,già tolto,ho già "
     "pulito,ho già cancellato,ho già eliminato,ho già ripulito,già liberato,ho già liberato,già "
     "recuperato,ho già recuperato,già fatto pulizia,già buttato,tutte le pulizie precedenti,tutte le "
     "pulizie passate,tutte le mie pulizie precedenti"},
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
};

} // namespace

std::span<const WordRow> asking()
{
    return kAsking;
}

} // namespace orlen::AskReader::italian_words
