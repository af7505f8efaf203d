#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::german_words {

namespace {

constexpr WordRow kAsking[] = {
    {Sense::ending, "textdateien,textdatei,text-dateien,text-datei,txt-dateien,txt dateien"},
    {Sense::installed, "installiert,sind installiert,ist installiert"},
    {Sense::self,
     "was kannst du,was kannst du alles,was kann ich dich fragen,was kann ich fragen,wer bist du,was bist "
     "du,hilfe,hallo,hi,guten tag,guten morgen,moin,servus,danke,vielen dank,wie funktioniert das,was ist "
     "orlen,was macht orlen,wie funktioniert orlen,was kann orlen,was macht dieses programm,was weißt "
     "du,grüß gott,hilf mir,was kannst du für mich tun,wie kannst du helfen,wie kannst du mir helfen,was "
     "kannst du tun,was machst du,was kann man dich fragen,was kannst du so,was kannst du denn,was kann das "
     "programm,was kann dieses programm,wofür ist orlen,wofür ist dieses programm,wie benutze ich orlen,wie "
     "benutze ich das,wie geht das,grüezi,salü,hey,tschüss,merci,dankeschön,danke dir,danke schön,guten "
     "abend,wobei kannst du helfen,wobei hilfst du,womit kannst du helfen,wie funktionierst du,was bist du "
     "eigentlich,wer bist du eigentlich,was kann die app,was macht die app"},
    {Sense::advise,
     "empfiehlst,empfehlen,empfehlung,empfehlungen,rätst,raten,vorschlag,vorschläge,vorschlagen,schlägst,"
     "anfangen,am besten,was tun,was jetzt,beginnen,lohnt sich,lohnt,was soll ich tun,was soll ich "
     "machen,was mache ich,was mach ich,was machen,was kann ich tun,was kann ich machen,was tue "
     "ich,tipps,womit anfangen,womit fange ich an,womit fang ich an,wo anfangen,wo fange ich an,wo fang ich "
     "an,fange ich an,fang ich "
     "an,tipp,ratschlag,ratschläge,rat,empfiehl,empfehle,empfohlen,sinnvoll,sinnvollsten,lohnen,was "
     "hilft,was sollte ich tun,was sollte ich machen,was nun,was kann ich dagegen tun,was kann ich dagegen "
     "machen,was tun dagegen,lohnt es sich,rate mir,was würdest du tun,was würdest du machen,was mach i"},
    {Sense::trust,
     "vertrauen,vertrauenswürdig,seriös,ist orlen sicher,trauen,in gefahr,gefährdet,open source,kann ich dir "
     "vertrauen,kann ich orlen vertrauen,quelloffen,verlässlich,zuverlässig,glaubwürdig,vertraue"},
    {Sense::beyond,
     "virus,viren,schadsoftware,trojaner,malware,schneller "
     "machen,schneller,beschleunigen,langsam,leistung,defragmentieren,arbeitsspeicher,ram,prozessor,cpu,akku,"
     "treiber,firewall,virenscanner,temperatur,grafikkarte,was kannst du nicht,was kannst du alles nicht,was "
     "kann orlen nicht,was machst du nicht,was macht orlen nicht,was tust du nicht,was kann dieses programm "
     "nicht,was kann das programm nicht,was kannst du denn nicht,wobei kannst du nicht "
     "helfen,lahm,ruckelt,drucker,bluetooth,formatieren,partitionieren,verschlüsseln,gehackt,überhitzt,"
     "tastatur,defekte sektoren,antivirus,langsamer,system aktualisieren,linux aktualisieren,wlan "
     "passwort,lautstärke,hintergrundbild,passwort vergessen,spiele besser"},
    {Sense::happens,
     "wohin kommen,wo landen,landen,wo kommt,wohin gehen,wohin verschwinden,nur in den papierkorb,endgültig "
     "gelöscht,passiert,passieren,was passiert,geschieht,endgültig,für "
     "immer,unwiderruflich,dauerhaft,wohin,kaputt,schadet,schaden,kaputtgehen,geht kaputt,zerstört,von "
     "allein,ohne zu fragen,ohne nachzufragen,eigenmächtig,automatisch,ungefragt,von sich aus,was wäre "
     "wenn,was wenn,verloren,verliere ich,geht verloren,gehen verloren,für immer weg,wirklich weg,ganz "
     "weg,endgültig weg,wo sind die gelöschten,wohin werden,landet,landet das,bereue,etwas kaputt,was "
     "kaputt,kaputt machen,geht was kaputt,geht etwas kaputt,unwiederbringlich,zerstören,automatisch "
     "gelöscht,selbstständig,selbständig,ohne mich zu fragen,ohne meine erlaubnis,ohne erlaubnis"},
    {Sense::only, "nur,bloß,lediglich,ausschließlich"},
    {Sense::also, "und,auch,außerdem,und was ist mit,was ist mit,wie steht es mit,wie sieht es aus mit,wie "
                  "sieht es mit,wie siehts mit,sowie,&,und wie ist es mit,wie ist es mit,und wie sieht es "
                  "mit,oder,plus,und auch,sowie auch,und was is mit"},
    {Sense::backward, "sie,ihn,es,diese,dieser,dieses,diesen,davon,die da,denen,jene,welche davon,ihnen,eins "
                      "davon,von denen,dazu,das da,dieselben,das hier,daran"},
    {Sense::therein, "(da|dort|hier|) (drin|drinnen),darin"},
    {Sense::how, "wie"},
    {Sense::general,
     "die restlichen,die übrigen,der rest,den rest,weitere,weiteren,noch (5|fünf|mehr|welche)"},
    {Sense::filler,
     "mein rechner sagt,mein computer sagt,zurzeit,zur zeit,insgesamt so,grad,mir bitte,bitte mal,drauf "
     "ist,mein "
     "enkel,enkelin,opa,oma,der,die,das,den,dem,des,ein,eine,einen,einem,einer,eines,mein,meine,meinen,"
     "meinem,meiner,meines,unser,unsere,dein,deine,ich,mir,mich,wir,uns,du,dir,dich,man,ist,sind,war,waren,"
     "bin,sein,habe,hab,hast,hat,haben,hatte,wird,werden,würde,wurden,wurde,worden,geworden,zu,zum,zur,für,"
     "auf,an,am,mit,bei,bitte,mal,denn,eigentlich,gerade,jetzt,momentan,aktuell,derzeit,heute,zeig,zeige,"
     "zeigen,sag,sage,sagen,gib,liste,auflisten,finde,finden,such,suche,suchen,such "
     "mir,wissen,will,möchte,möchten,würde "
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
     "regel,überhaupt,irgendwelche,irgendein,irgendwo,irgendwas,sonst,jeweils,pro,bzw,übersicht,anzeigen,"
     "angezeigt,erklär,erkläre,erklären,ja,nein,ihr,euch,euer,seinen,ihre,ihren,nun,gleich,bestimmte,"
     "bestimmten,verschiedene,waere,wäre,wären,schnell,schnellsten,einfach,lieber,eh,selbst,selber,wieder,"
     "sammlung,sammlungen,is,nich,isses,n,nem,ner,nen,sagt,fast,beinahe,jemand,genug,ausreichend,tun,immer,"
     "oft,manchmal,später,sehr,leider,wegen,dafür,kurz,schauen,guck,guckst,check,würdest,irgendwohin,steht,"
     "stehen,her,hin,von,scheint,glaube,denke,meinst,meine "
     "ich,würdet,rauf,drüben,ebenfalls,trotzdem,erst,hallo "
     "du,mann,kind,wozu,deren,dessen,hättest,hätte,gibs,ziemlich,ob ich,da drin,gesamten "
     "inhalt,jede,jeder,jedes,mehrere,allem,umgehen,hilfst,durch,gegen,um,während,trotz,statt,hinter,beim,"
     "bezüglich,ungefaehr,sowas,so was,kinder,enkel,seltsam,komisch,plötzlich,leute,keine ahnung,im "
     "grunde,quasi,übers,ums,fürs,falls möglich,gefunden hast,du gefunden,gefunden,die "
     "du,zusammen,läuft,laufen,meines "
     "wissens,mist,verdammt,übrigens,bescheid,zufällig,vielleicht,villeicht,bräucht,tatsächlich,noch "
     "mal,nochmal,offensichtlich,anteil,anteil an,über nacht,fasst,fass,gelistet,aufgelistet,listest,bei "
     "einer datei,bei dateien,bei meinen dateien,neben einer datei,gemacht,könntest du mir bitte "
     "sagen,könnten sie mir bitte sagen,könnten sie mir sagen,können sie mir sagen,können sie mir bitte "
     "sagen,könnten sie mir bitte,könnten sie mir,können sie mir,können sie bitte,könntest du mir "
     "sagen,könntest du mir bitte,könntest du mir,könntest du bitte,könntest du,könntest,kannst du mir "
     "bitte,kannst du mir bitte sagen,kannst du bitte,kannst du mal,kannst du mir mal,würden sie,wären "
     "sie,sagen sie mir,zeigen sie mir,ich wüsste gern,ich wüsste gerne,wüsste gern,wüsste gerne,mich "
     "interessiert,mich würde interessieren,interessieren,ich frage mich,frage mich,frag "
     "mich,frage,frag,kurze frage,sorry,entschuldigung,entschuldige,im voraus,wärs,gäbe,gäbs,gebe,und "
     "so,oder so,rund,ca,stell,stelle,wieda,einmal,bissl,bisschen,bissel,bisserl,isch,hob,hätt,halt "
     "mal,jemals so,grade,grad mal,irgendwie,irgendwann,irgendeine,irgendeinen,irgendwelchen,was so alles,so "
     "alles,alles so,denn so,mei,mir grad,da so,gesamten rechner,drinnen,drauf sind,drauf hab,drauf "
     "habe,liegts,steckt,stecken,übrigends,bitteschön,bitte schön,danke schonmal,hallo orlen,lieber "
     "orlen,liebes "
     "orlen,hoffentlich,hoffe,freundlicherweise,tät,täte,tu,zeigst,zeigt,nennst,findest,aufführen,auflistung,"
     "eine liste,liste aller,liste von,aufzählen,zähl "
     "auf,lies,komplett,komplette,kompletten,sämtliche,sämtlichen,sogar,bestimmt,wahrscheinlich,möglich,"
     "möglichst,derweil,inzwischen,mittlerweile,nämlich,dein programm,meinem pc so,ich mein,mein ich,na "
     "ja,naja,nunja,ach,oh,hmm,ups,mensch,alter schwede,oida,heast,gell,ge,weisst,wisst "
     "ihr,wisst,kriegst,hättest du,lang her,vorhanden,vorhandenen,vorhandene,auffindbar,zu "
     "finden,existierende,schlimmes,schlimmes passieren,für ein update,für das update,für updates,für ein "
     "upgrade,für das upgrade,fürs update,für eine aktualisierung,für die aktualisierung,so schnell wie "
     "möglich,möglichst schnell,direkt"},
    {Sense::negation, "nicht,nie,niemals,kein,keine,keinen,nicht "
                      "mehr,nichts,nirgends,keinesfalls,nimmer,ned,nit,nöd,keinem,keiner,keins,nix,niemand"},
    {Sense::yet, "aber,jedoch"},
    {Sense::except,
     "das kein,die kein,die keine,der kein,was kein,was keine,außer,ausser,ausgenommen,abgesehen von,bis "
     "auf,mit ausnahme von,mit ausnahme der,ohne,aber nicht,aber keine,nur nicht,und "
     "nicht,exklusive,lass weg,neben,nur keine,nicht aus,ohne "
     "anzufassen,ohne dass,ohne zu löschen,ausgenommen von,anstatt,und keine,abzüglich,ohne meine,mit "
     "ausnahme,ohne die aus,weder,außer die,außer den,außer denen,außer meinen,außer meine,außer "
     "der,nicht aber,lass die,ausgenommen die,ohne den,ohne das,ohne meinen,mit ausnahme meiner,aber "
     "lass,lass meine,aber nicht die,aber nicht meine,nicht zählen,nicht mitzählen,ohne "
     "dabei,abgesehen vom"},
    {Sense::outside,
     "außerhalb,außerhalb von,außerhalb des,nicht in,nicht im,außer in,aber nicht in,aber nicht im"},
    {Sense::lasts,
     "reicht,reichen,reicht es,hält,halten,genügt,genügen,langt,langen,ausreichen,ausreicht,auskommen,komme "
     "aus,überlebt,durchhalten,reichts,reicht's,reicht der,reicht das,hälts,hält's,langts,langt's,haut "
     "hin,ausreicht der,ausreichen wird,noch ausreicht,reichen wird"},
    {Sense::speed, "wie schnell,wachstumsrate,tempo,in welchem tempo,pro tag,pro woche,pro "
                   "monat,täglich,wöchentlich,monatlich,am tag,in der woche,im monat,wie rasch,in welcher "
                   "geschwindigkeit,geschwindigkeit,jeden tag,jede woche,jeden monat,je tag,je woche,je "
                   "monat,im schnitt,durchschnittlich,mit welcher geschwindigkeit,wie zügig,im "
                   "durchschnitt,die woche,pro monat im schnitt"},
    {Sense::what,
     "was,was ist,was sind,welche,welcher,welches,welchen,welchem,wo,wo ist,wo sind,wer,was für,was für "
     "ein,gibt es,gibts,habe ich,hab ich,zeig mir,zeige mir,welch,woraus,was davon,wodurch,womit,hast du "
     "gefunden,liste mir,nenne,nenn mir,nenne mir,wofür,wozu ist,wo liegt,wo liegen,wo befindet sich,wo "
     "befinden sich,wo finde ich,wo steckt,wo stecken,wat,wos,was fürn,was für eine,was für einen,was "
     "gibts,was gibt es,gibt's,existiert,existieren,erklär mir,erkläre mir,erklären sie "
     "mir,beschreib,beschreibe,hast du,hast du was gefunden,welche sind,wasn,was'n,was is,was is das,was ist "
     "denn,habe ich irgendwelche,hab i,sind irgendwo,was hab ich,was habe ich,was alles,zeig mir mal,sag mir "
     "was"},
    {Sense::howBig,
     "wie groß,wie schwer,größe von,die größe,wie viel platz braucht,wie viel platz brauchen,wieviel platz "
     "braucht,wieviel platz brauchen,wie viel platz belegt,wie viel platz belegen,wie viel platz nimmt,wie "
     "viel platz nehmen,wie viel speicher braucht,wie viel speicher brauchen,wieviel speicher "
     "braucht,wieviel speicher brauchen,wie viel speicher belegt,wie viel speicher belegen,wie viel "
     "speicherplatz braucht,wie viel speicherplatz brauchen,wie viel speicherplatz belegen,wie viel "
     "speicherplatz belegt,wieviel platz belegen,wieviel platz belegt,wieviel platz nehmen,wieviel platz "
     "nimmt,wie viele gb,wieviel gb,wie viel gb,dateigröße,wie umfangreich,wie viele "
     "gigabyte,wiegt,wiegen,wie gross,wieviele gb,größe der,größe des,größe meiner,größe meines,welche "
     "größe,wie groß sind,wie groß ist,welchen anteil,wie viel prozent,wie viel platz frisst,wieviel platz "
     "frisst,wie viel platz fressen,wieviel platz fressen,wie viel speicher frisst,wie viel nimmt,wieviel "
     "nimmt,wie viel nehmen,wieviel nehmen,wie viel braucht,wieviel braucht,wie viel brauchen,wieviel "
     "brauchen,wie viel belegt,wieviel belegt,wie viel belegen,wieviel belegen,wie viel platz "
     "verbraucht,wieviel platz verbraucht,wie viel platz verbrauchen,wieviel platz verbrauchen,wieviel "
     "speicherplatz belegt,wieviel speicherplatz belegen,wieviel speicherplatz braucht,wieviel speicherplatz "
     "brauchen,wieviel speicher belegt,wieviel speicher belegen,wie viel speicherplatz nimmt,wie viel "
     "mb,wieviel mb,wie viele mb,wieviele mb,wieviel gigabyte,wie viel gigabyte,wieviele "
     "gigabyte,umfang,umfang von,ordnergröße,speicherbedarf,platzbedarf,gewicht,wie dick,wie fett,wie viel "
     "platz benötigt,wie viel platz benötigen,wieviel platz benötigt,wieviel platz benötigen,wieviel "
     "prozent,wieviel verbraucht,wie viel verbraucht,wie viel verbrauchen,wieviel verbrauchen,wie viel "
     "frisst,wieviel frisst,wie viel fressen,wieviel fressen,wie viel wiegt,wieviel wiegt,wie groß san,wie "
     "groß wird,wie viel ist in,wieviel ist in,wie viel liegt in,wieviel liegt in,wie viel gibts,welcher "
     "anteil,wie viel speicher nimmt,wieviel speicher nimmt,größe,größen"},
    {Sense::howMany, "wie viele,wieviele,wie oft,anzahl,anzahl der,zahl der,wie häufig,wievielmal,wie viel "
                     "mal,wieviel mal,zähle,zähl,wie viel stück,wieviel stück,anzahl an,anzahl von,wie viele "
                     "male,zähl mir,menge an,wievile,wie vile"},
    {Sense::can,
     "kann,können,könnte,darf,dürfen,soll,sollte,sollten,sollen,muss,müssen,brauche ich,brauch ich,ist es "
     "sicher,ist es okay,ist es ok,kann ich gefahrlos,ist es möglich,ist es in ordnung,kann "
     "man,könnten,dürfte,könnt,müsste,müsst,sollt,benötige ich,brauch i,brauchen wir,ist es klug,ist es "
     "schlimm wenn,ist es okay wenn,ist es ok wenn,ist es sicher wenn,macht es etwas wenn,macht es was "
     "wenn,kann ich einfach,kann ich ruhig,darf man,soll ich,kann i,derf i,möglich zu"},
    {Sense::makeRoom,
     "freigeräumt,frei geräumt,freigeschaufelt,geschafft,freigeben,freimachen,frei machen,platz "
     "schaffen,platz machen,frei bekommen,frei "
     "kriegen,freibekommen,gewinnen,gewinne,sparen,spare,einsparen,freiräumen,platz gewinnen,platz "
     "sparen,schaffen,mehr platz,frei räumen,freigegeben,freigemacht,frei "
     "gemacht,gespart,gewonnen,freiwerden,frei werden,frei wird,zurückgewinnen,mehr speicher,mehr "
     "speicherplatz,platz frei,frei würde,frei würden,bringt,bringen,bringen "
     "würde,freischaufeln,entrümpeln,ausmisten,verschlanken,speicherplatz frei,platz bekommen,ich brauche "
     "platz,brauche platz,ich brauche,brauche noch,ich bräuchte,bräuchte,benötige,ich "
     "benötige,leerer,entlasten,weniger voll,erleichtern,brauche,brauch,bräucht noch,entmüllen,miste "
     "aus,räume frei,räum frei,mach frei,mache frei,mach platz,mache platz,schaff platz,schaffe platz,frei "
     "haben,freihaben,freikriegen,mehr freien speicher,mehr freien platz,mehr freier platz,mehr freier "
     "speicher,platz freigeben,befreien,befreie,speicher freigeben,speicherplatz freigeben,speicher "
     "sparen,gewinnt,im nu frei,wieder "
     "frei,freischaufle,freischaufel,freiräum,freimach,freiräume,freimache,frei machst,frei "
     "geworden,freigeworden,frei werden würde,platz frei machen,platz freimachen,platz frei räumen,speicher "
     "frei machen,speicher freimachen,speicher frei,platz zurück,platz zurückgewinnen,mehr raum,luft "
     "schaffen,luft machen,loskriegen und platz"},
    {Sense::make, "mach,machen,macht,machst,mache,schaff,schaffe,gib mir,besorg,besorge,hol "
                  "mir,verschaff,verschaffe,schaff mir"},
    {Sense::filler, "wenn es so weitergeht,wenn das so weitergeht,so weiter geht,weiterhin"},
    {Sense::untouched,
     "fasst du,rührst du,fasst es,nie anfassen,fasst nie "
     "an,geschützt,geschützte,geschützten,schützt,tabu,unangetastet,in ruhe,rührt nie an,nie an,niemals "
     "an,nie löschen,nie gelöscht,löscht nie,rührt nicht an,nie löscht,niemals gelöscht,niemals "
     "löschen,bleibt unberührt,nie berührt,nicht angerührt,nicht angefasst,nie anrührt,lässt in ruhe,finger "
     "weg,nie verschoben,fasst nicht an,fasst ihr,rührt ihr,rührt orlen,fasst orlen,nie verändert,nie "
     "verändern,verändert nie,lässt du in ruhe,lässt orlen in ruhe,unangetastet bleibt,niemals "
     "anfassen,niemals anrühren,nie anrühren,nie angefasst,niemals angefasst,nie angerührt,niemals "
     "angerührt,nicht anfassen,nicht anrührt,nicht anfasst,niemals verschoben,niemals verschieben,nie "
     "verschieben,nie verschiebt,niemals löscht,würdest du nie löschen,wird nie gelöscht,wird niemals "
     "gelöscht,nie etwas,schutz,unberührt,nie anfasst,niemals anfasst,niemals anrührt,lasst ihr in "
     "ruhe,verschont,verschonst,was kannst du nicht löschen,was kannst du nicht anfassen,was kann orlen "
     "nicht löschen,was darfst du nicht löschen"},
    {Sense::cleanUp,
     "aufräumen,aufräumung,bereinigung,bereinigen,aufgeräumt,reinigung,putzen,säubern,räum auf,räume "
     "auf,bereinigt,ausgemistet,aufräumaktion,reinigen,gesäubert,gereinigt,räume,räumt,räum,aufräume,räumen,"
     "säuberung,sauber machen,saubermachen,sauber "
     "gemacht,putzaktion,cleanup,clean-up,aufgräumt,bereinige,säubere,entrümpelt,entrümpelung,großputz,"
     "aufräumerei,letzte aktion,geputzt,durchgeputzt,aufräumvorgang,aufräumungsaktion,säuberungsaktion"},
    {Sense::uninstall,
     "deinstallieren,deinstalliere,deinstallation,deinstalliert,programm entfernen,app entfernen,programm "
     "löschen,app löschen,programme entfernen,apps entfernen,deinstallier,deinstallierst"},
    {Sense::remove,
     "löschen,lösche,löscht,gelöscht,lösch,entfernen,entferne,entfernt,wegwerfen,wegwerf,werfen,weggeworfen,"
     "loswerden,loswerde,werde "
     "los,verschieben,verschoben,wegmachen,wegtun,leeren,geleert,leere,vernichten,verzichten,beseitigen,in "
     "den papierkorb,raushauen,wegschmeißen,schmeißen,entbehrlich,entbehren,löschbar,überflüssig,kann "
     "weg,können weg,gelöscht werden,weghauen,weg kann,weg können,kann das "
     "weg,rausschmeißen,tonne,löscgen,verwerfen,leerst,löschst,verschiebt,verschiebst,brauche ich "
     "nicht,nicht mehr brauche,nicht brauche,brauch ich nicht,nicht mehr benötigt,nicht gebraucht,nicht mehr "
     "brauch,nicht mehr gebraucht,brauche ich nicht mehr,brauch ich nicht mehr,nicht benötigt,ich nicht "
     "brauche,ich nicht mehr brauche,wegschmeiß,wegschmeiße,schmeiß,schmeiße,wegtu,weg tun,weg "
     "machen,wegräumen,rauswerfen,rauswerf,entsorgen,entsorge,entsorgt,eliminieren,eliminier,killen,kill,"
     "kübeln,in den müll,in den mist,in die tonne,loszuwerden,zu löschen,zum löschen,weglöschen,lösche "
     "ich,wirf,werfe,wirf "
     "weg,verzichtbar,nutzlos,nutzlose,nutzlosen,wertlos,wertlose,sinnlose,unnütze,unnützes,ballast,"
     "datenmüll,nicht mehr brauchen,nicht brauchen,nicht mehr nötig,nicht nötig,darf weg,dürfen weg,soll "
     "weg,sollen weg,muss weg,müssen weg,weg damit,weg mit,könnte weg,könnten weg,weg darf,weg dürfen,weg "
     "sollen,weg soll,raus damit,kann raus,können "
     "raus,unnötiges,unnütz,unnötig,unnötige,unnötigen,müll,überflüssige,überflüssigen,überflüssiges,"
     "weggeben,weg geben,weg haben,weghaben,weg bekommen,wegbekommen,wegkriegen,weg "
     "kriegen,wegkommen,löschbare,löschbaren,entbehrliche,entbehrlichen,papierkorb mit,löscht man,gelöscht "
     "habe,nicht mehr gebrauchen,aussortieren,aussortiere,löchen,löschn,lösch "
     "mir,löschung,löschungen,gelöschtes,gelöschte,ausleeren,ausleere,ausleert,ausgeleert,entleeren,entleere,"
     "entleert"},
    {Sense::undo,
     "umkehrbar,rückgängig,rückgängig "
     "machen,wiederherstellen,wiederherstelle,zurückholen,zurückbekommen,zurück,zurücknehmen,"
     "wiederhergestellt,stelle wieder her,stell wieder her,wieder her,zurücksetzen,aus "
     "versehen,versehentlich,zurückhole,wiederbekommen,wiederbekomme,hole zurück,wieder zurück,retten,aus "
     "versehen gelöscht,wieder holen,zurückkriegen,zurückbekomme,undo,wiederhaben,wieder "
     "haben,zurückhaben,zurück haben,zurücklegen,wieder herstellen,wieder "
     "herzustellen,wiederherzustellen,zurückspielen,hol zurück,ungeschehen,ungeschehen machen,gelöschtes "
     "zurück,wiederherstellung,rückgänig,rückgaengig,widerrufen,zurück holen,wieder bekommen,zurück "
     "bekommen,wiederhole gelöschte,rückgängigmachen"},
    {Sense::safe,
     "sicher,gefahrlos,ungefährlich,gefährlich,harmlos,riskant,bedenkenlos,unbedenklich,schlimm,risiko,ohne "
     "bedenken,ohne risiko,problemlos,ohne "
     "gefahr,safe,probleme,ungefährliche,unbedenkliche,unbedenklichen,unbedenkliches,unbedenklicher,"
     "gefährliche,problem,ohne probleme,ohne problem,ohne sorge,ohne angst,getrost,ruhigen gewissens,guten "
     "gewissens,gefahr,heikel,safety,sichere,sicheren,sicheres,ohne schaden,bedenken"},
    {Sense::review, "review,prüfen,überprüfen,durchsehen,ansehen,prüf,prüfe,zu prüfen,zum "
                    "prüfen,überprüfe,kontrollieren,durchschauen,geprüft,geprüft werden"},
    {Sense::keep, "behalten,behalte,aufheben,keep,aufbewahren,wichtig,bleiben,behältst,behält,aufgehoben,"
                  "wertvoll,unverzichtbar,notwendig,nötig,unentbehrlich,bewahren,zu behalten,aufhebe,aufheb"},
    {Sense::mean,
     "zählt zu,zählt als,gehört zu,gehören zu,zählt zur "
     "kategorie,bedeutet,bedeuten,bedeutung,heißen,unterschied,bewertung,bewertungen,meint,heisst,was "
     "heißt,was "
     "bedeutet,eingestuft,einstufung,farben,bewertet,regeln,regel,kriterien,entscheidet,eingeteilt,markiert,"
     "eingestufte,bewertete,was ist mit sicher gemeint,bewerteten,eingestuften,steht für,wofür steht,was "
     "soll das heißen,definition,rating,ratings,beurteilt,beurteilung,unterschied "
     "zwischen,unterscheidet,gemeint,etikett,label,kennzeichnung,gekennzeichnet,einteilung,zugeordnet,meint "
     "ihr mit,meinst du mit,was meinst du mit,wie bewertest du,bewertest,bewerten,zu "
     "bedeuten,dahinter,wonach bewertet,zählt zum,zählen zum,zählen zu,zählt zur,zählt alles zum,gehört "
     "zum,gehören zum,gehört zur,zählt dazu,zählt alles zu"},
    {Sense::soFar,
     "bisher,bislang,insgesamt schon,bis jetzt,bis heute,insgesamt bisher,jemals,verlauf,schon "
     "insgesamt,alles in allem,in der vergangenheit,im laufe der "
     "zeit,aufräumungen,bereinigungen,reinigungen,aufräumaktionen,alle "
     "aufräumungen,bisherige,bisherigen,frühere,früheren,seit anfang an,von anfang an,seit ich dich "
     "habe,seit ich orlen habe,seit der installation,schon alles,bis "
     "dato,säuberungen,clean-ups,cleanups,alle bereinigungen,alle reinigungen,frühere "
     "bereinigungen,bisherigen bereinigungen,schon mal,schonmal,historie,seit beginn an,alle "
     "säuberungen,über die zeit,seit es orlen gibt,schon aufgeräumt,alles schon aufgeräumt,schon alles "
     "aufgeräumt,bereits aufgeräumt,schon bereinigt,alles schon bereinigt,bereits bereinigt,schon "
     "gelöscht,alles schon gelöscht,schon alles gelöscht,bereits gelöscht,schon alles bereinigt,schon "
     "entfernt,bereits entfernt,schon weggeräumt,bereits freigegeben,schon freigeräumt,schon "
     "freigegeben,schon freigemacht,bereits freigeräumt"},
    {Sense::used, "belegt,besetzt,in gebrauch,wie voll,verbraucht,in benutzung,voll ist,weg "
                  "ist,speicherbelegung,belegung,auslastung,in "
                  "verwendung,füllstand,speicherverbrauch,plattenbelegung,ausgelastet,belegter,belegte,"
                  "belegten,gefüllt,vergeben,genutzter,benutzter"},
    {Sense::handled, "benutzt,verwendet,genutzt,gebraucht,benutze,verwende,nutze,gebrauche,benütze,benutzen,"
                     "nutzen,gebrauchen"},
    {Sense::opened,
     "geöffnet,öffne,öffnen,angefasst,angesehen,angeschaut,angerührt,aufgemacht,angeguckt,berührt,geschaut,"
     "gehört,gelesen,aufgerufen,gesehen,geguckt,angehört,gespielt,reingeschaut,angeklickt,durchgesehen"},
};

} // namespace

std::span<const WordRow> asking()
{
    return kAsking;
}

} // namespace orlen::AskReader::german_words
