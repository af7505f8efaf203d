#include "insight/reader/Language.h"

namespace orlen::AskReader {

namespace german_words {

constexpr WordRow kWords[] = {
    {Sense::ruleOut,
     "ausschließen,schließe aus,ordner ausschließen,ausnahme hinzufügen,ausnahmen,ausnahmeliste,nie "
     "scannen,nicht scannen,vom scan ausnehmen,whitelist,nie wieder vorschlagen,nicht mehr vorschlagen"},
    {Sense::installed, "installiert,sind installiert,ist installiert"},
    {Sense::self, "was kannst du,was kannst du alles,was kann ich dich fragen,was kann ich fragen,wer bist "
                  "du,was bist du,hilfe,hallo,hi,guten tag,guten morgen,moin,servus,danke,vielen dank,wie "
                  "funktioniert das,was ist orlen,was macht orlen,wie funktioniert orlen,was kann orlen,was "
                  "macht dieses programm,was weißt du,grüß gott,hilf mir,was kannst du für mich tun,wie "
                  "kannst du helfen,wie kannst du mir helfen,was kannst du tun"},
    {Sense::advise,
     "empfiehlst,empfehlen,empfehlung,empfehlungen,rätst,raten,vorschlag,vorschläge,vorschlagen,schlägst,"
     "anfangen,am besten,was tun,was jetzt,beginnen,lohnt sich,lohnt,was soll ich tun,was soll ich "
     "machen,was mache ich,was mach ich,was machen,was kann ich tun,was kann ich machen,was tue ich,tipps"},
    {Sense::trust,
     "vertrauen,vertrauenswürdig,seriös,ist orlen sicher,trauen,in gefahr,gefährdet,open source"},
    {Sense::beyond, "virus,viren,schadsoftware,trojaner,malware,schneller "
                    "machen,schneller,beschleunigen,langsam,leistung,defragmentieren,arbeitsspeicher,ram,"
                    "prozessor,cpu,akku,treiber,firewall,virenscanner,temperatur,grafikkarte"},
    {Sense::happens,
     "wohin kommen,wo landen,landen,wo kommt,wohin gehen,wohin verschwinden,nur in den papierkorb,endgültig "
     "gelöscht,passiert,passieren,was passiert,geschieht,endgültig,für "
     "immer,unwiderruflich,dauerhaft,wohin,kaputt,schadet,schaden,kaputtgehen,geht kaputt,zerstört,von "
     "allein,ohne zu fragen,ohne nachzufragen,eigenmächtig,automatisch,ungefragt,von sich aus"},
    {Sense::only, "nur,bloß,lediglich,ausschließlich"},
    {Sense::also,
     "und,auch,außerdem,und was ist mit,was ist mit,wie steht es mit,wie sieht es aus mit,wie sieht es "
     "mit,wie siehts mit,sowie,&,und wie ist es mit,wie ist es mit,und wie sieht es mit,oder"},
    {Sense::backward, "sie,ihn,es,diese,dieser,dieses,diesen,davon,die da,denen,jene,welche davon,ihnen,eins "
                      "davon,von denen,dazu,das da,dieselben,das hier,daran"},
    {Sense::filler,
     "mein rechner sagt,mein computer sagt,zurzeit,zur zeit,insgesamt so,grad,mir bitte,bitte mal,drauf "
     "ist,mein "
     "enkel,enkelin,opa,oma,der,die,das,den,dem,des,ein,eine,einen,einem,einer,eines,mein,meine,meinen,"
     "meinem,meiner,meines,unser,"
     "unsere,dein,deine,ich,mir,mich,wir,uns,du,dir,dich,man,ist,sind,war,waren,bin,sein,habe,hab,hast,hat,"
     "haben,hatte,wird,werden,würde,wurden,wurde,worden,geworden,zu,zum,zur,für,auf,an,am,mit,bei,bitte,mal,"
     "denn,eigentlich,gerade,jetzt,momentan,aktuell,derzeit,heute,zeig,zeige,zeigen,sag,sage,sagen,gib,liste,"
     "auflisten,finde,finden,such,suche,suchen,such mir,wissen,will,möchte,möchten,würde "
     "gern,gern,gerne,wirklich,etwa,ungefähr,circa,genau,ganz,alle,allen,aller,alles "
     "was,so,da,hier,dort,schon,noch,immer "
     "noch,wohl,eben,halt,doch,namens,genannt,orlen,wenn,falls,als,wie,wie ist,gibt,kannst du mir "
     "sagen,kannst du mir zeigen,kannst du,weißt du,ob,dass,daß,sich,mir "
     "mal,lass,lassen,art,arten,sorte,ok,okay,also "
     "gut,tja,hm,äh,ne,na,geht,gehen,gehts,viel,viele,wenig,etwas,einige,paar,herum,rum,rumliegen,"
     "herumliegen,liegt,liegen,befindet,befinden,gespeichert,gesamte,gesamten,ganze,ganzen,eigenen,eigene,"
     "insgesamt "
     "alle,bekomme,kriege,krieg,kriegen,bekommen,brauchbar,danach,damit,darin,drin,drauf,darauf,dabei,da "
     "drauf,raus,weg,aus versehen da,vom,im moment,in der "
     "regel,überhaupt,irgendwelche,irgendein,irgendwo,irgendwas,sonst,jeweils,pro,bzw,nach,übersicht,"
     "anzeigen,angezeigt,erklär,erkläre,erklären,ja,nein,ihr,euch,euer,seinen,ihre,ihren,nun,gleich,"
     "bestimmte,bestimmten,verschiedene,waere,wäre,wären,schnell,schnellsten,einfach,lieber,eh,selbst,selber,"
     "wieder,sammlung,sammlungen,is,nich,isses,n,nem,ner,nen,sagt,fast,beinahe,jemand,genug,ausreichend,tun,"
     "immer,oft,manchmal,später,sehr,leider,wegen,dafür,kurz,schauen,guck,guckst,check,würdest,irgendwohin,"
     "steht,stehen,her,hin,von,scheint,glaube,denke,meinst,meine "
     "ich,würdet,rauf,drüben,ebenfalls,trotzdem,erst,hallo "
     "du,mann,kind,wozu,deren,dessen,hättest,hätte,gibs,ziemlich,ob ich,da drin,gesamten "
     "inhalt,jede,jeder,jedes,mehrere,allem,umgehen,hilfst,durch,gegen,um,während,trotz,statt,hinter,beim,"
     "bezüglich,ungefaehr,sowas,so was,kinder,enkel,seltsam,komisch,plötzlich,leute,keine ahnung,im "
     "grunde,quasi,übers,ums,fürs,falls möglich,gefunden hast,du gefunden,gefunden,die "
     "du,zusammen,läuft,laufen,meines "
     "wissens,mist,verdammt,übrigens,bescheid,zufällig,vielleicht,villeicht,bräucht,tatsächlich,noch "
     "mal,nochmal,offensichtlich,anteil,anteil an,über nacht,fasst,fass,gelistet,aufgelistet,listest"},
    {Sense::negation, "nicht,nie,niemals,kein,keine,keinen,nicht mehr,nichts,nirgends,keinesfalls"},
    {Sense::except,
     "das kein,die kein,die keine,der kein,was kein,was keine,außer,ausser,ausgenommen,abgesehen von,bis "
     "auf,mit ausnahme von,mit ausnahme der,ohne,aber nicht,aber "
     "keine,nur nicht,und nicht,exklusive,außerhalb,außerhalb von,lass weg,neben,nur keine,nicht aus,nicht "
     "in,ohne anzufassen,ohne dass,ohne zu löschen,ausgenommen von,anstatt,und keine,abzüglich,ohne "
     "meine,mit ausnahme,ohne die aus,weder"},
    {Sense::lasts,
     "reicht,reichen,reicht es,hält,halten,genügt,genügen,langt,langen,ausreichen,ausreicht,auskommen,komme "
     "aus,überlebt,durchhalten"},
    {Sense::speed, "wie schnell,wachstumsrate,tempo,in welchem tempo,pro tag,pro woche,pro "
                   "monat,täglich,wöchentlich,monatlich,am tag,in der woche,im monat"},
    {Sense::what, "was,was ist,was sind,welche,welcher,welches,welchen,welchem,wo,wo ist,wo sind,wer,was "
                  "für,was für ein,gibt es,gibts,habe ich,hab ich,zeig mir,zeige mir,welch,woraus,was "
                  "davon,wodurch,womit,hast du gefunden,liste mir,nenne,nenn mir,nenne mir,wofür,wozu ist"},
    {Sense::howBig,
     "wie groß,wie schwer,größe von,die größe,wie viel platz braucht,wie viel platz brauchen,wieviel platz "
     "braucht,wieviel platz brauchen,wie viel platz belegt,wie viel platz belegen,wie viel platz nimmt,wie "
     "viel platz nehmen,wie viel speicher braucht,wie viel speicher brauchen,wieviel speicher "
     "braucht,wieviel speicher brauchen,wie viel speicher belegt,wie viel speicher belegen,wie viel "
     "speicherplatz braucht,wie viel speicherplatz brauchen,wie viel speicherplatz belegen,wie viel "
     "speicherplatz belegt,wieviel platz belegen,wieviel platz belegt,wieviel platz nehmen,wieviel platz "
     "nimmt,wie viele gb,wieviel gb,wie viel gb,dateigröße,wie umfangreich,wie viele "
     "gigabyte,wiegt,wiegen,wie gross,wieviele gb,größe der,größe des,größe meiner,größe meines,welche "
     "größe,wie groß sind,wie groß ist,welchen anteil,wie viel prozent"},
    {Sense::howMany, "wie viele,wieviele,wie oft,anzahl,anzahl der,zahl der,wie häufig"},
    {Sense::can,
     "kann,können,könnte,darf,dürfen,soll,sollte,sollten,sollen,muss,müssen,brauche ich,brauch ich,ist es "
     "sicher,ist es okay,ist es ok,kann ich gefahrlos,ist es möglich,ist es in ordnung,kann man,könnten"},
    {Sense::makeRoom, "freigeräumt,frei geräumt,freigeschaufelt,geschafft,freigeben,freimachen,frei "
                      "machen,platz schaffen,platz machen,frei bekommen,frei "
                      "kriegen,freibekommen,gewinnen,gewinne,sparen,spare,einsparen,freiräumen,platz "
                      "gewinnen,platz sparen,schaffen,mehr platz,frei räumen,freigegeben,freigemacht,frei "
                      "gemacht,gespart,gewonnen,freiwerden,frei werden,frei wird,zurückgewinnen,mehr "
                      "speicher,mehr speicherplatz,platz frei,frei würde,frei würden,bringt,bringen,bringen "
                      "würde,freischaufeln,entrümpeln,ausmisten,verschlanken,speicherplatz frei,platz "
                      "bekommen,ich brauche platz,brauche platz,ich brauche,brauche noch,ich "
                      "bräuchte,bräuchte,benötige,ich benötige,leerer,entlasten,weniger voll,erleichtern"},
    {Sense::make, "mach,machen,macht,machst,mache,schaff,schaffe,gib mir"},
    {Sense::filler, "wenn es so weitergeht,wenn das so weitergeht,so weiter geht,weiterhin"},
    {Sense::untouched,
     "fasst du,rührst du,fasst es,nie anfassen,fasst nie "
     "an,geschützt,geschützte,geschützten,schützt,tabu,unangetastet,in ruhe,rührt nie "
     "an,nie an,niemals an,nie löschen,nie gelöscht,löscht nie,rührt nicht an,nie löscht,niemals "
     "gelöscht,niemals löschen,bleibt unberührt,nie berührt,nicht angerührt,nicht angefasst,nie "
     "anrührt,lässt in ruhe,finger weg,nie verschoben,fasst nicht an"},
    {Sense::cleanUp,
     "aufräumen,aufräumung,bereinigung,bereinigen,aufgeräumt,reinigung,putzen,säubern,räum auf,räume "
     "auf,bereinigt,ausgemistet,aufräumaktion,reinigen,gesäubert,gereinigt,räume,räumt,räum,aufräume,räumen"},
    {Sense::uninstall, "deinstallieren,deinstalliere,deinstallation,deinstalliert"},
    {Sense::remove,
     "löschen,lösche,löscht,gelöscht,lösch,entfernen,entferne,entfernt,wegwerfen,wegwerf,werfen,weggeworfen,"
     "loswerden,loswerde,werde "
     "los,verschieben,verschoben,wegmachen,wegtun,leeren,geleert,leere,vernichten,verzichten,beseitigen,in "
     "den papierkorb,raushauen,wegschmeißen,schmeißen,entbehrlich,entbehren,löschbar,überflüssig,kann "
     "weg,können weg,gelöscht werden,weghauen,weg kann,weg können,kann das "
     "weg,rausschmeißen,tonne,löscgen,verwerfen,leerst,löschst,verschiebt,verschiebst,brauche ich "
     "nicht,nicht mehr brauche,nicht brauche,brauch ich nicht,nicht mehr benötigt,nicht gebraucht,nicht mehr "
     "brauch,nicht mehr gebraucht,brauche ich nicht mehr,brauch ich nicht mehr,nicht benötigt,ich nicht "
     "brauche,ich nicht mehr brauche"},
    {Sense::undo, "umkehrbar,rückgängig,rückgängig "
                  "machen,wiederherstellen,wiederherstelle,zurückholen,zurückbekommen,zurück,zurücknehmen,"
                  "wiederhergestellt,stelle wieder her,stell wieder her,wieder her,zurücksetzen,aus "
                  "versehen,versehentlich,zurückhole,wiederbekommen,wiederbekomme,hole zurück,wieder "
                  "zurück,retten,aus versehen gelöscht,wieder holen,zurückkriegen,zurückbekomme"},
    {Sense::safe, "sicher,gefahrlos,ungefährlich,gefährlich,harmlos,riskant,bedenkenlos,unbedenklich,schlimm,"
                  "risiko,ohne bedenken,ohne risiko,problemlos,ohne gefahr,safe,probleme"},
    {Sense::review, "review,prüfen,überprüfen,durchsehen,ansehen"},
    {Sense::keep, "behalten,behalte,aufheben,keep,aufbewahren,wichtig,bleiben,behältst"},
    {Sense::mean,
     "zählt zu,zählt als,gehört zu,gehören zu,zählt zur "
     "kategorie,bedeutet,bedeuten,bedeutung,heißen,unterschied,bewertung,bewertungen,meint,heisst,was "
     "heißt,was "
     "bedeutet,eingestuft,einstufung,farben,bewertet,regeln,regel,kriterien,entscheidet,eingeteilt,markiert,"
     "eingestufte,bewertete,was ist mit sicher gemeint,bewerteten,eingestuften"},
    {Sense::soFar, "bisher,bislang,insgesamt schon,bis jetzt,bis heute,insgesamt bisher,jemals,verlauf,schon "
                   "insgesamt,alles in allem,in der vergangenheit,im laufe der "
                   "zeit,aufräumungen,bereinigungen,reinigungen,aufräumaktionen,alle "
                   "aufräumungen,bisherige,bisherigen,frühere,früheren"},
    {Sense::used, "belegt,besetzt,in gebrauch,wie voll,verbraucht,in benutzung,voll ist,weg "
                  "ist,speicherbelegung,belegung,auslastung"},
    {Sense::handled, "benutzt,verwendet,genutzt,gebraucht,benutze,verwende,nutze,gebrauche,benütze"},
    {Sense::opened, "geöffnet,öffne,öffnen,angefasst,angesehen,angeschaut,angerührt,aufgemacht,angeguckt,"
                    "berührt,geschaut,gehört,gelesen,aufgerufen,gesehen,geguckt,angehört,gespielt"},
    {Sense::full,
     "speicher ist knapp,wenig speicherplatz,speicher knapp,speicherplatz knapp,zu wenig speicher,zu wenig "
     "speicherplatz,voller,voll,fast voll,so voll,vollgelaufen,voll laufen,vollläuft,läuft voll,voll "
     "wird,kein platz,kein platz "
     "mehr,kein speicher,kein speicher mehr,kein speicherplatz,kein speicherplatz mehr,zu wenig platz,so "
     "wenig platz,wenig platz,platz geht aus,knapp,randvoll,volllaufen,keinen platz,keinen platz mehr,keinen "
     "speicher mehr,keinen speicherplatz mehr,füllt,vollgestopft,vollgemüllt,geht der platz aus,platz "
     "aus,speicher aus,voll werden,kaum platz,kaum noch platz,nicht genug platz,zu voll,zugemüllt,platz "
     "hin,speicher hin,ausgeht,speicherplatz aus,speicherplatz hin,keinen platz mehr auf"},
    {Sense::free, "frei,freier,freien,freie,freies,verfügbar,verfügbarer,übrig,übriggeblieben,verbleibend,"
                  "ungenutzt,bleibt,unbelegt,leer,hab ich noch,habe ich noch,noch übrig,übrig hab"},
    {Sense::total, "insgesamt,gesamt,kapazität,gesamtgröße,zusammen,gesamtkapazität,in "
                   "summe,summe,übersicht,überblick,status,zusammenfassung"},
    {Sense::disk, "festplatte,platte,laufwerk,ssd,hdd,rechner,computer,laptop,pc,datenträger,partition,kiste,"
                  "gerät,notebook,speicher,speichers,festplatten,harddisk,systemlaufwerk"},
    {Sense::space, "platz,speicherplatz,raum,festplattenplatz,festplattenspeicher,plattenplatz,"
                   "plattenspeicher,passt,passen,reinpassen,draufpassen"},
    {Sense::howMuch,
     "was bringt es,was bringt,was bringt mir,was würde es bringen,was gewinne ich,wie viel gewinne ich,wie "
     "viel bringt,wie viel würde,was spare ich,wie viel,wieviel,wievil,wie fiel,wifiel,wiviel"},
    {Sense::why,
     "warum,wieso,weshalb,weswegen,woran liegt,wie kommt es,woran,grund,aus welchem grund,woher kommt"},
    {Sense::when, "wann,wie lange,wie lang,bis wann,in wie vielen tagen,ab wann,wie bald,an welchem "
                  "tag,bald,wie viele tage,wie viele wochen,wie viele monate,zu welchem zeitpunkt"},
    {Sense::most, "am meisten,meisten,meiste,die meisten,den meisten,den größten teil,das meiste,am "
                  "meißten,hauptsächlich,am schnellsten,schnellsten"},
    {Sense::takes, "braucht,brauchen,belegen,verbraucht "
                   "so,verbrauchen,verbraucht,frisst,fressen,nimmt,nehmen,nimmt weg,einnehmen,belegt "
                   "so,benötigt,benötigen,verschwendet,platzfresser,verbrauch,speicherfresser,schluckt,"
                   "verstopft,verstopfen,müllt,kostet,frist,nimmt ein,nehmen ein"},
    {Sense::biggest, "größte,größten,größter,größtes,die größten,schwersten,dicksten,am "
                     "größten,große,großen,großer,großes,riesige,riesigen,fetteste,top,gross,nach "
                     "größe,groß,grosse,dicke,dicken,umfangreichsten"},
    {Sense::smallest, "kleinste,kleinsten,am kleinsten,kleine,kleinen"},
    {Sense::oldest,
     "älteste,ältesten,ältester,am ältesten,alte,alten,alter,uralte,altes,uralten,veraltete,alt,uralt"},
    {Sense::newest,
     "neulich,in letzter zeit,dazu gekommen,neu dazugekommen,neu hinzugekommen,zuletzt runtergeladen,zuletzt "
     "gespeichert,neueste,neuesten,neuester,jüngste,jüngsten,neuste,neusten,am "
     "neuesten,neue,neuen,kürzlich,aktuellste,frischeste,aktuellsten,zuletzt geändert,zuletzt "
     "geänderte,zuletzt geänderten,zuletzt hinzugefügt,zuletzt hinzugefügte,zuletzt bearbeitet,zuletzt "
     "heruntergeladen,geändert,geänderte,geänderten,verändert,bearbeitet,dazugekommen,hinzugekommen,neues"},
    {Sense::grow, "wuchs,wuchsen,größer wurde,größer wurden,angestiegen,mehr geworden "
                  "ist,zunahm,gewachsen,wachsen,wächst,wachstum,größer "
                  "geworden,zugenommen,zunahme,zugelegt,angewachsen,gestiegen,mehr geworden"},
    {Sense::above, "vergleiche,vergleich,verglichen mit,im vergleich zu,im vergleich,über,größer als,mehr "
                   "als,mindestens,ab,grösser als,oder mehr,oder größer,schwerer "
                   "als,größer,länger als,minimum,>,und mehr,und größer,zwischen"},
    {Sense::below,
     "unter,kleiner als,weniger als,höchstens,maximal,bis zu,oder weniger,oder kleiner,kleiner,<"},
    {Sense::inside, "in,im,innerhalb,aus,in meinem,im ordner,ins,aus dem,in den,auf dem"},
    {Sense::unopened,
     "nicht angefasst hab,nicht angefasst habe,nicht angerührt,nicht angefasst,nicht angeschaut,nicht "
     "gehört,nicht abgespielt,nie abgespielt,nie angesehen,nie angeschaut,nicht aufgemacht,nicht "
     "angeguckt,nicht geöffnet,ungeöffnet,nie geöffnet,nicht benutzt,unbenutzt,nicht angefasst,nicht "
     "angesehen,nicht "
     "verwendet,vergessen,unbenutzte,ungenutzte,nicht mehr geöffnet,nicht mehr benutzt,nicht genutzt,nicht "
     "mehr angesehen,vergessene,selten benutzt,nicht mehr genutzt,nicht mehr angerührt,nie benutze"},
    {Sense::before, "vor,älter als,früher als,vor dem,bevor,bis,bis zum,ältere als"},
    {Sense::since, "seit anfang,seit beginn,seit anfang des,seit beginn des,seit anfang von,seit,neuer "
                   "als,jünger als,seit dem,neuere als"},
    {Sense::after, "nach dem,später als"},
    {Sense::last, "letzte,letzten,letzter,letztes,vorige,letztens,vorherige,beim letzten mal,letztes mal,das "
                  "letzte mal,vorigen,zuletzt"},
    {Sense::privacy,
     "verlassen meine daten,bleiben meine daten,auf meinem rechner,auf meinem computer,internet "
     "nötig,braucht internet,braucht orlen internet,brauchst du internet,internetverbindung,ohne "
     "internet,liest du,meine passwörter lesen,meine dokumente lesen,eure firma,deine firma,sieht "
     "jemand,jemand meine,hochladen,hochgeladen,lädt "
     "hoch,internet,online,netz,netzwerk,privat,privatsphäre,datenschutz,cloud,telemetrie,überwacht,schickt,"
     "senden,sendet,gesendet,verschickt,server,ausspionieren,spioniert,teilen,teilt,konto,anmelden,offline,"
     "übertragen,übertragt,sammelt,daten ab,ins netz,wlan,google,verlässt,verlassen,wer "
     "sieht,überträgt,dritte,weitergegeben,ki,hoch,meine daten "
     "sicher,weitergeben,spionage,werbung,dsgvo,lädt,hochlädt,lädst,laden,wer kann sehen,wer kann lesen,wer "
     "hat zugriff,zugriff auf,wer kann meine,kann meine daten,daten sehen,meine daten sehen,kann jemand "
     "sehen,einsehen,verbunden,meine passwörter,sieht orlen meine passwörter"},
    {Sense::hidden, "versteckt,versteckte,versteckten,versteckter,unsichtbare,unsichtbaren"},
    {Sense::folder, "ordner,ordnern,verzeichnis,verzeichnisse,verzeichnissen,unterordner"},
    {Sense::general,
     "abschalten,ausschalten,deaktivieren,deaktiviere,verhindern,verhindere,stoppen,schalte,prognose,"
     "vorhersage,sprache,sprachen,wichtige,wichtigen,scan,ergebnis,ergebnisse,unnütz,unnötig,"
     "unnötige,unnötigen,müll,kram,krempel,zeug,kategorie,kategorien,mehr,zuerst,als "
     "erstes,besser,gut,lang,lange,länger,funde,fund,andere,anderen,anderes,überflüssige,tag,tage,woche,"
     "monat,jahr,male,dauert,reste,chaos,durcheinander,unordnung"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler, "mit ihren daten,mit daten,samt daten,samt ihren daten,mitsamt daten,mitsamt ihren "
                    "daten,inklusive daten,einschließlich daten"},
};

constexpr SubjectRow kSubjects[] = {
    {SubjectID::systemAdvice,
     "alte kernel,kernel,apt-cache,apt "
     "cache,apt,paketcache,paket-cache,journal,systemprotokolle,systemlogs,alte snaps"},
    {SubjectID::leftovers,
     "reste von programmen,reste von "
     "apps,programmreste,überreste,überbleibsel,app-reste,zurückgelassen,hinterlassen,übrig gelassen,liegen "
     "gelassen,deinstallierte programme,deinstallierten programme,deinstallierte apps,deinstallierter "
     "programme,deinstallierten programmen,gelöschte programme,gelöschter programme,entfernte "
     "programme,entfernter programme,verwaiste,verwaiste ordner,reste deinstallierter programme,reste "
     "gelöschter programme,programme die ich gelöscht habe"},
    {SubjectID::similarPhotos,
     "ähnliche fotos,ähnliche bilder,doppelte fotos,doppelte bilder,doppelten fotos,doppelten "
     "bilder,ähnlichen fotos,ähnlichen bilder,fotos doppelt,bilder doppelt,fotoduplikate,ähnliche "
     "aufnahmen,gleiche fotos,gleiche bilder,identische fotos,identische bilder,serienbilder,fast gleiche "
     "fotos,fast gleiche bilder,mehrfache fotos,sehen gleich aus,gleich aus,gleich "
     "aussehen,ähnlich,ähnliche,ähneln,ähnlich sehen,ähnlich aus,sich ähneln,fast identisch"},
    {SubjectID::screenshots, "screenshot,screenshots,bildschirmfoto,bildschirmfotos,bildschirmaufnahmen,"
                             "bildschirmabzüge,bildschirmfotografien"},
    {SubjectID::receipts, "kassenbon,kassenbons,quittung,quittungen,belege,beleg,rechnungsfotos,kassenzettel,"
                          "fotografierte rechnungen"},
    {SubjectID::memes, "meme,memes,lustige bilder,witzbilder,spaßbilder"},
    {SubjectID::blurry,
     "unscharfe fotos,unscharfe bilder,unscharf,unscharfe,verwackelte fotos,verwackelte bilder,verwackelt,"
     "verwackelte,verschwommene bilder,verschwommene fotos,verschwommen,unscharfen fotos,unscharfen bilder,"
     "verschwommene,unscharfe aufnahmen,misslungene fotos"},
    {SubjectID::duplicates, "duplikat,duplikate,doppelte dateien,doppelte,doppelten "
                            "dateien,doppelt,doppelten,identische dateien,gleiche "
                            "dateien,kopien,dubletten,mehrfach,zweimal,doppeltes,dublikate,doubletten"},
    {SubjectID::largeFiles, "große dateien,große datei,großen dateien,riesige dateien,grosse dateien"},
    {SubjectID::oldFiles,
     "alte dateien,alten dateien,alte datei,ungenutzte dateien,unbenutzte dateien,vergessene "
     "dateien,alte sachen,alter kram,altes zeug"},
    {SubjectID::oldDownloads, "alte downloads,alten downloads,vergessene downloads"},
    {SubjectID::logs, "absturzberichte,crash "
                      "dumps,absturzprotokolle,absturzdateien,log,logs,logdatei,logdateien,protokolle,"
                      "protokolldateien,protokolldatei,log-dateien"},
    {SubjectID::trash, "papierkorb,mülleimer,papierkorbs,gelöschte dateien,abfalleimer,trash"},
    {SubjectID::deviceBackups,
     "iphone backup,iphone backups,iphone-backup,iphone-backups,iphone sicherung,ipad "
     "backup,gerätesicherungen,handy backup,handy backups,handysicherung,iphone,ipad,"
     "handysicherungen,handy-backups"},
    {SubjectID::mailAttachments,
     "mailanhänge,mail anhänge,anhänge,e-mail anhänge,email anhänge,e-mail-anhänge,"
     "anhang"},
    {SubjectID::languagePacks, "sprachpakete,sprachpaket,sprachdateien,übersetzungen"},
    {SubjectID::npm, "npm cache,npm,yarn cache,yarn,npm-cache"},
    {SubjectID::pip, "pip cache,pip,pip-cache,python cache,python pakete"},
    {SubjectID::gradle, "gradle cache,gradle,gradle-cache"},
    {SubjectID::homebrew, "homebrew,homebrew cache"},
    {SubjectID::caches,
     "cache,caches,zwischenspeicher,cache dateien,temporäre dateien,temporären dateien,temp "
     "dateien,temporäre "
     "daten,cachedateien,app-cache,zwischengespeicherte daten,browsercache,browser cache,puffer,cacheordner"},
    {SubjectID::developer, "entwicklerdaten,entwicklerdateien,entwickler,entwicklungsdaten,build dateien,"
                           "entwicklerkram,builddateien,programmierkram"},
    {SubjectID::system, "system,systemdateien,systemdaten,betriebssystem,das system"},
    {SubjectID::apps,
     "app,apps,programm,programme,programmen,anwendung,anwendungen,software,installierte programme"},
    {SubjectID::media, "medien,mediendateien"},
    {SubjectID::downloads,
     "downloads,download,downloadordner,download-ordner,downloads-ordner,heruntergeladen,heruntergeladene "
     "dateien,"
     "heruntergeladenen dateien,heruntergeladene,runtergeladen,runtergeladene sachen,heruntergeladene sachen,"
     "runtergeladene dateien"},
    {SubjectID::desktop, "desktop,schreibtisch,arbeitsfläche,schreibtischordner"},
    {SubjectID::documentsFolder, "dokumentenordner,dokumenteordner,dokumente-ordner,ordner dokumente,in "
                                 "meinen dokumenten,meiner dokumente"},
    {SubjectID::picturesFolder, "bilderordner,bilder-ordner,fotoordner,ordner bilder,foto-ordner"},
    {SubjectID::videosFolder, "videoordner,video-ordner,videos-ordner,ordner videos,filmordner"},
    {SubjectID::musicFolder, "musikordner,musik-ordner,ordner musik"},
    {SubjectID::home, "home,persönlicher ordner,persönlichen ordner,heimordner,heimverzeichnis,home-ordner,"
                      "home-verzeichnis,benutzerordner"},
    {SubjectID::videos,
     "video,videos,film,filme,filmen,clip,clips,videodatei,videodateien,aufnahmen,videoclips,"
     "filmdateien,filmaufnahmen,mp4,bildschirmaufzeichnungen"},
    {SubjectID::photos,
     "foto,fotos,bild,bilder,bildern,aufnahme,fotografien,bilddateien,fotodateien,schnappschüsse,"
     "photos,photo,bilddatei,urlaubsfotos,urlaubsbilder,selfies,familienfotos"},
    {SubjectID::audio,
     "musik,lieder,lied,songs,song,audio,audiodateien,musikdateien,mp3s,podcasts,alben,mp3,hörbücher,"
     "musikstücke,tonaufnahmen"},
    {SubjectID::pdfs, "pdf,pdfs,pdf-dateien,pdf dateien,pdf-datei,pdf datei"},
    {SubjectID::archives,
     "archiv,archive,zip,zips,zip-dateien,zip dateien,archivdateien,gepackte dateien,zip-archive,"
     "zip datei,komprimierte dateien"},
    {SubjectID::installers, "installer,installationsdateien,installationspakete,setup-dateien,pakete,"
                            "installationsprogramme,setups,setup dateien"},
    {SubjectID::diskImages,
     "abbild,abbilder,iso,isos,iso-dateien,iso dateien,plattenabbilder,virtuelle festplatten,"
     "virtuelle maschinen,festplattenabbilder,iso-abbilder,datenträgerabbilder"},
    {SubjectID::spreadsheets,
     "tabelle,tabellen,tabellenblätter,excel-dateien,excel dateien,exceltabellen,csv dateien,"
     "excel"},
    {SubjectID::presentations, "präsentation,präsentationen,folien,powerpoints,powerpoint"},
    {SubjectID::ebooks, "ebook,ebooks,e-books,bücher,e-book"},
    {SubjectID::documents,
     "dokument,dokumente,dokumenten,unterlagen,textdateien,textdokumente,papiere,schriftstücke,"
     "word dateien,word-dateien,briefe"},
    {SubjectID::files,
     "datei,dateien,daten,ding,dinge,dingen,sache,sachen,elemente,objekte,alles,irgendetwas,zeugs,"
     "einträge"},
    {SubjectID::startup,
     "am starten hindern,vom starten abhalten,nicht mehr starten,nicht mehr automatisch starten,langsam "
     "startet,startet langsam,langsamer start,startet mein rechner langsam,läuft beim start,startet "
     "beim,beim start mit,läuft "
     "mit,autostart,autostartprogramme,startprogramme,startet automatisch,starten automatisch,beim "
     "anmelden,beim "
     "starten,beim start,beim hochfahren,startobjekte,automatisch gestartet,automatisch startet,automatisch "
     "starten,von selbst,beim einschalten,von alleine,mitgestartet,autostart-programme,beim "
     "booten,systemstart,beim systemstart,bei der anmeldung,hochfahren,startet "
     "mit,starten,startet,gestartet,rechner starte,computer starte,einschalte,hochfahre,anmelde"},
    {SubjectID::containers,
     "docker,podman,container,containern,docker images,containerabbilder,docker-images"},
    {SubjectID::flatpak, "flatpak,flatpaks,flathub,flatpak-apps,flatpak apps"},
    {SubjectID::snap, "snap,snaps,snap-pakete,snap pakete,snapd"},
    {SubjectID::games,
     "spiel,spiele,spielen,steam,steam-spiele,games,videospiele,computerspiele,steam spiele"},
};

constexpr FigureRow kFigureRows[] = {
    {Figure::number, "zwei,paar", 2},
    {Figure::number, "drei", 3},
    {Figure::number, "vier", 4},
    {Figure::number, "fünf", 5},
    {Figure::number, "sechs", 6},
    {Figure::number, "sieben", 7},
    {Figure::number, "acht", 8},
    {Figure::number, "neun", 9},
    {Figure::number, "zehn", 10},
    {Figure::number, "zwölf,dutzend", 12},
    {Figure::number, "zwanzig", 20},
    {Figure::number, "fünfzig", 50},
    {Figure::number, "hundert", 100},
    {Figure::ordinal, "erste,erster,erstes,ersten", 1},
    {Figure::ordinal, "zweite,zweiter,zweites,zweiten", 2},
    {Figure::ordinal, "dritte,dritter,drittes,dritten", 3},
    {Figure::ordinal, "vierte,vierter,viertes,vierten", 4},
    {Figure::ordinal, "fünfte,fünfter,fünftes,fünften", 5},
    {Figure::timeUnit, "tag,tage,tagen", 0},
    {Figure::timeUnit, "woche,wochen", 1},
    {Figure::timeUnit, "monat,monate,monaten,monats", 2},
    {Figure::timeUnit, "jahr,jahre,jahren,jahres", 3},
    {Figure::month, "januar,jänner,jan", 1},
    {Figure::month, "februar,feber,feb", 2},
    {Figure::month, "märz", 3},
    {Figure::month, "april", 4},
    {Figure::month, "mai", 5},
    {Figure::month, "juni", 6},
    {Figure::month, "juli", 7},
    {Figure::month, "august", 8},
    {Figure::month, "september,sept", 9},
    {Figure::month, "oktober,okt", 10},
    {Figure::month, "november,nov", 11},
    {Figure::month, "dezember,dez", 12},
    {Figure::weekday, "sonntag", 0},
    {Figure::weekday, "montag", 1},
    {Figure::weekday, "dienstag", 2},
    {Figure::weekday, "mittwoch", 3},
    {Figure::weekday, "donnerstag", 4},
    {Figure::weekday, "freitag", 5},
    {Figure::weekday, "samstag,sonnabend", 6},
    {Figure::daysAgo, "heute", 0},
    {Figure::number, "ein halbes,halbes,halbe,ein halber", 0.5},
    {Figure::daysAgo, "gestern", 1},
    {Figure::daysAgo, "vorgestern", 2},
    {Figure::agoBefore, "vor,seit"},
    {Figure::previous,
     "letzte,letzten,letzter,letztes,letztem,vorige,vorigen,voriges,vergangenen,vergangene"},
    {Figure::current, "diese,diesen,dieser,dieses,diesem"},
    {Figure::following, "nächste,nächsten,nächster,nächstes,nächstem,kommende,kommenden,kommendes,kommender"},
    {Figure::ahead, "in,binnen,innerhalb von,noch,für"},
    {Figure::daysAhead, "morgen", 1},
    {Figure::daysAhead, "übermorgen", 2},
    {Figure::namedDay, "neujahr,neujahrstag,neues jahr", valueOf(NamedDay::newYear)},
    {Figure::namedDay, "valentinstag", valueOf(NamedDay::valentine)},
    {Figure::namedDay, "ostern,ostersonntag", valueOf(NamedDay::easter)},
    {Figure::namedDay, "pfingsten", valueOf(NamedDay::pentecost)},
    {Figure::namedDay, "halloween", valueOf(NamedDay::halloween)},
    {Figure::namedDay, "allerheiligen", valueOf(NamedDay::allSaints)},
    {Figure::namedDay, "heiligabend,heiliger abend,heiligen abend", valueOf(NamedDay::christmasEve)},
    {Figure::namedDay, "weihnachten,weihnacht", valueOf(NamedDay::christmas)},
    {Figure::namedDay, "silvester,sylvester", valueOf(NamedDay::newYearsEve)},
    {Figure::namedDay, "frühling,frühjahr", valueOf(NamedDay::spring)},
    {Figure::namedDay, "sommer", valueOf(NamedDay::summer)},
    {Figure::namedDay, "herbst", valueOf(NamedDay::autumn)},
    {Figure::namedDay, "winter", valueOf(NamedDay::winter)},
    {Figure::endOf, "ende,ende von", -1},
    {Figure::endOf, "wochenende", 1},
    {Figure::endOf, "monatsende", 2},
    {Figure::endOf, "jahresende", 3},
    {Figure::ordinal, "nächste,nächstes,nächster,nächsten,das danach", 0},
    {Figure::ofDate, "den,dem,des"},
};

} // namespace german_words

const Language& german()
{
    static constexpr Language language{
        german_words::kWords,
        german_words::kSubjects,
        german_words::kFigureRows,
        {},
        true,
        "datei,ding,sache,verzeichnis,video,film,clip,videodatei,foto,bild,lied,song,pdf,pdf-datei,dokument,"
        "archiv,download,tabelle,präsentation,buch"};
    return language;
}

} // namespace orlen::AskReader
