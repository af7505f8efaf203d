#include "insight/reader/Language.h"

namespace orlen::AskReader {

namespace german_words {

constexpr WordRow kWords[] = {
    {Sense::ruleOut,
     "ausschließen,schließe aus,ordner ausschließen,ausnahme hinzufügen,ausnahmen,ausnahmeliste,nie "
     "scannen,nicht scannen,vom scan ausnehmen,whitelist,nie wieder vorschlagen,nicht mehr "
     "vorschlagen,ordner auslassen,ordner überspringen,wie schließe ich,wie nehme ich aus,nie mehr "
     "vorschlagen,ordner ignorieren,ordner zu ignorieren,ignorierliste,nie mehr "
     "scannen,ausschlussliste,ordner auszuschließen,schließ aus,ausgeschlossen,schließe ich,schließ ich"},
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
     "finden,existierende,schlimmes,schlimmes passieren"},
    {Sense::negation, "nicht,nie,niemals,kein,keine,keinen,nicht "
                      "mehr,nichts,nirgends,keinesfalls,nimmer,ned,nit,nöd,keinem,keiner,keins,nix,niemand"},
    {Sense::except,
     "das kein,die kein,die keine,der kein,was kein,was keine,außer,ausser,ausgenommen,abgesehen von,bis "
     "auf,mit ausnahme von,mit ausnahme der,ohne,aber nicht,aber keine,nur nicht,und "
     "nicht,exklusive,außerhalb,außerhalb von,lass weg,neben,nur keine,nicht aus,nicht in,ohne "
     "anzufassen,ohne dass,ohne zu löschen,ausgenommen von,anstatt,und keine,abzüglich,ohne meine,mit "
     "ausnahme,ohne die aus,weder,außer die,außer den,außer denen,außer in,außer meinen,außer meine,außer "
     "der,nicht aber,lass die,ausgenommen die,ohne den,ohne das,ohne meinen,mit ausnahme meiner,aber "
     "lass,lass meine,aber nicht die,aber nicht meine,aber nicht in,nicht zählen,nicht mitzählen,ohne "
     "dabei,abgesehen vom"},
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
    {Sense::howMany,
     "wie viele,wieviele,wie oft,anzahl,anzahl der,zahl der,wie häufig,wievielmal,wie viel mal,wieviel "
     "mal,zähle,zähl,wie viel stück,wieviel stück,anzahl an,anzahl von,wie viele male,zähl mir,menge an"},
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
     "mir,löschung,löschungen,gelöschtes,gelöschte"},
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
    {Sense::soFar, "bisher,bislang,insgesamt schon,bis jetzt,bis heute,insgesamt bisher,jemals,verlauf,schon "
                   "insgesamt,alles in allem,in der vergangenheit,im laufe der "
                   "zeit,aufräumungen,bereinigungen,reinigungen,aufräumaktionen,alle "
                   "aufräumungen,bisherige,bisherigen,frühere,früheren,seit anfang an,von anfang an,seit ich "
                   "dich habe,seit ich orlen habe,seit der installation,schon alles,bis "
                   "dato,säuberungen,clean-ups,cleanups,alle bereinigungen,alle reinigungen,frühere "
                   "bereinigungen,bisherigen bereinigungen,schon mal,schonmal,historie,seit beginn an,alle "
                   "säuberungen,über die zeit,seit es orlen gibt"},
    {Sense::used, "belegt,besetzt,in gebrauch,wie voll,verbraucht,in benutzung,voll ist,weg "
                  "ist,speicherbelegung,belegung,auslastung,in "
                  "verwendung,füllstand,speicherverbrauch,plattenbelegung,ausgelastet,belegter,belegte,"
                  "belegten,gefüllt,vergeben,genutzter,benutzter"},
    {Sense::handled, "benutzt,verwendet,genutzt,gebraucht,benutze,verwende,nutze,gebrauche,benütze,benutzen,"
                     "nutzen,gebrauchen"},
    {Sense::opened,
     "geöffnet,öffne,öffnen,angefasst,angesehen,angeschaut,angerührt,aufgemacht,angeguckt,berührt,geschaut,"
     "gehört,gelesen,aufgerufen,gesehen,geguckt,angehört,gespielt,reingeschaut,angeklickt,durchgesehen"},
    {Sense::full,
     "speicher ist knapp,wenig speicherplatz,speicher knapp,speicherplatz knapp,zu wenig speicher,zu wenig "
     "speicherplatz,voller,voll,fast voll,so voll,vollgelaufen,voll laufen,vollläuft,läuft voll,voll "
     "wird,kein platz,kein platz mehr,kein speicher,kein speicher mehr,kein speicherplatz,kein speicherplatz "
     "mehr,zu wenig platz,so wenig platz,wenig platz,platz geht aus,knapp,randvoll,volllaufen,keinen "
     "platz,keinen platz mehr,keinen speicher mehr,keinen speicherplatz "
     "mehr,füllt,vollgestopft,vollgemüllt,geht der platz aus,platz aus,speicher aus,voll werden,kaum "
     "platz,kaum noch platz,nicht genug platz,zu voll,zugemüllt,platz hin,speicher hin,ausgeht,speicherplatz "
     "aus,speicherplatz hin,keinen platz mehr auf,überfüllt,rappelvoll,proppenvoll,brechend voll,voller "
     "wird,voll läuft,vollgeworden,voll geworden,platzmangel,speichermangel,wenig speicher,so wenig "
     "speicher,kaum speicher,kaum noch speicher,passt nichts mehr,passt nix mehr,nichts mehr frei,zur "
     "neige,ausgegangen,platz geblieben,platz verschwunden,speicherplatz verschwunden,speicher "
     "verschwunden,speicher voll,geht der speicher aus,speicher ausgeht,platz ausgeht,keinen freien "
     "speicher,keinen freien platz,kein freier platz,kein freier speicher,kein freier "
     "speicherplatz,vollgeschrieben,kein platz auf,kein platz mehr auf,zugeballert,zugestopft,bis oben voll"},
    {Sense::free, "frei,freier,freien,freie,freies,verfügbar,verfügbarer,übrig,übriggeblieben,verbleibend,"
                  "ungenutzt,bleibt,unbelegt,leer,hab ich noch,habe ich noch,noch übrig,übrig "
                  "hab,unbelegter,zur verfügung,steht zur "
                  "verfügung,verbleibt,verbleiben,verbleibende,restlich,restlicher,restlichen,luft,spielraum,"
                  "verfügbare,verfügbaren,freigeblieben,unbenutzter"},
    {Sense::total, "insgesamt,gesamt,kapazität,gesamtgröße,zusammen,gesamtkapazität,in "
                   "summe,summe,übersicht,überblick,status,zusammenfassung,im ganzen,alles "
                   "zusammen,gesamter,gesamtes,gesamtspeicher,zustand,lage,speicherübersicht,gesamten "
                   "speicher,in total,total,aufs ganze"},
    {Sense::disk, "festplatte,platte,laufwerk,ssd,hdd,rechner,computer,laptop,pc,datenträger,partition,kiste,"
                  "gerät,notebook,speicher,speichers,festplatten,harddisk,systemlaufwerk,harddisc,disk,"
                  "platten,nvme,maschine,computers,rechners,pcs,compi,laptops,systemplatte,hauptplatte,home-"
                  "partition,internen speicher,interner speicher,computa,läppi,festplattn"},
    {Sense::space,
     "platz,speicherplatz,raum,festplattenplatz,festplattenspeicher,plattenplatz,plattenspeicher,passt,"
     "passen,reinpassen,draufpassen,speicherplatzes,platzes,gb platz,platzerl"},
    {Sense::howMuch,
     "was bringt es,was bringt,was bringt mir,was würde es bringen,was gewinne ich,wie viel gewinne ich,wie "
     "viel bringt,wie viel würde,was spare ich,wie viel,wieviel,wievil,wie fiel,wifiel,wiviel,wieviel an,wie "
     "viel an,was erspare ich,was spart mir,was spart,was krieg ich,was kriege ich,was bekomme ich,was "
     "bekomm ich,was bringts,was bringts mir,was bringt's,was bringt mir das,wie viel spare ich,wieviel "
     "gewinne ich,wieviel spare ich,wieviel bringt,wieviel würde,wieviel krieg ich,wieviel kriege ich,wie "
     "viel kriege ich,wie viel bekomme ich,wieviel bekomme ich,wieviel wird,wie viel wird,wievui,was würde "
     "ich gewinnen,was würde das bringen,was würde mir das bringen,was gewinne ich damit,wieviel gewinn "
     "ich,was gewinn ich"},
    {Sense::why, "warum,wieso,weshalb,weswegen,woran liegt,wie kommt es,woran,grund,aus welchem grund,woher "
                 "kommt,wie kommts,wie kommt's,was ist der grund,was ist die "
                 "ursache,ursache,ursachen,gründe,aus welchen gründen,was verursacht,woran liegts,woran "
                 "liegt's,wieso denn,woran liegt es,woran liegt das,wie kommt das,wegen was"},
    {Sense::when, "wann,wie lange,wie lang,bis wann,in wie vielen tagen,ab wann,wie bald,an welchem "
                  "tag,bald,wie viele tage,wie viele wochen,wie viele monate,zu welchem zeitpunkt,wie lange "
                  "noch,wie lang noch,in wieviel tagen,in wie viel tagen,welches datum,an welchem "
                  "datum,wieviel zeit,wie viel zeit,wie viele jahre,wieviele tage,wieviel tage,in welchem "
                  "monat,zeitpunkt,demnächst,wann ungefähr,wann etwa,bis zu welchem datum,wann wird"},
    {Sense::most,
     "am meisten,meisten,meiste,die meisten,den meisten,den größten teil,das meiste,am "
     "meißten,hauptsächlich,am schnellsten,schnellsten,den meisten platz,den meisten "
     "speicher,hauptverursacher,übeltäter,schlimmsten,schlimmste,meisten platz,meisten speicher,meisten "
     "speicherplatz,größten platzfresser,größten speicherfresser,größte platzfresser,hauptschuldige"},
    {Sense::takes,
     "braucht,brauchen,belegen,verbraucht so,verbrauchen,verbraucht,frisst,fressen,nimmt,nehmen,nimmt "
     "weg,einnehmen,belegt "
     "so,benötigt,benötigen,verschwendet,platzfresser,verbrauch,speicherfresser,schluckt,verstopft,"
     "verstopfen,müllt,kostet,frist,nimmt ein,nehmen "
     "ein,zieht,ziehen,saugt,klaut,klauen,zumüllt,zumüllen,vergeudet,verschwenden,beansprucht,beanspruchen,"
     "einnimmt,wegnimmt,wegnehmen,nehmen weg,auffrisst,platzräuber,speicherräuber,frisst "
     "auf,fressn,blockiert,blockieren,wegfrisst,verschlingt,verschlingen,benötigst"},
    {Sense::biggest,
     "größte,größten,größter,größtes,die größten,schwersten,dicksten,am "
     "größten,große,großen,großer,großes,riesige,riesigen,fetteste,top,gross,nach "
     "größe,groß,grosse,dicke,dicken,umfangreichsten,schwerste,schwerster,dickste,dickster,fettesten,"
     "umfangreichste,riesig,riesiger,riesen,enorm,enorme,enormen,gewaltige,gewaltigen,gigantische,"
     "gigantischen,sperrige,nach größe sortiert,sortiert nach größe,der größe "
     "nach,speicherintensive,speicherintensivsten,größtmöglichen,monster,gröste,grösten,fett,fette,fetten,"
     "schwere,schweren,dick,größe nach"},
    {Sense::smallest,
     "kleinste,kleinsten,am "
     "kleinsten,kleine,kleinen,winzige,winzigste,winzigsten,kleinster,kleinstes,winzig,kleines"},
    {Sense::oldest,
     "älteste,ältesten,ältester,am "
     "ältesten,alte,alten,alter,uralte,altes,uralten,veraltete,alt,uralt,ältere,älteren,älterer,älteres,"
     "steinalt,steinalte,steinalten,von früher,von damals,angestaubte,verstaubte"},
    {Sense::newest,
     "neulich,in letzter zeit,dazu gekommen,neu dazugekommen,neu hinzugekommen,zuletzt runtergeladen,zuletzt "
     "gespeichert,neueste,neuesten,neuester,jüngste,jüngsten,neuste,neusten,am "
     "neuesten,neue,neuen,kürzlich,aktuellste,frischeste,aktuellsten,zuletzt geändert,zuletzt "
     "geänderte,zuletzt geänderten,zuletzt hinzugefügt,zuletzt hinzugefügte,zuletzt bearbeitet,zuletzt "
     "heruntergeladen,geändert,geänderte,geänderten,verändert,bearbeitet,dazugekommen,hinzugekommen,neues,"
     "vor kurzem,unlängst,jüngst,frisch,frische,neu,neuer,neu dazu,neu "
     "hinzu,hinzugefügt,hinzugefügte,angelegt,angelegte,erstellt,erstellte,zuletzt verändert,zuletzt "
     "veränderte,dazukam,hinzukam,zuletzt dazugekommen,jüngsten "
     "downloads,veränderte,veränderten,bearbeitete,bearbeiteten,neulich geändert"},
    {Sense::grow,
     "wuchs,wuchsen,größer wurde,größer wurden,angestiegen,mehr geworden "
     "ist,zunahm,gewachsen,wachsen,wächst,wachstum,größer "
     "geworden,zugenommen,zunahme,zugelegt,angewachsen,gestiegen,mehr "
     "geworden,angeschwollen,aufgebläht,explodiert,größer werden,größer wird,mehr wurde,mehr wird,dicker "
     "geworden,fetter geworden,angesammelt,ansammelt,vergrößert,vermehrt,anstieg,steigt,zuwachs,mehr platz "
     "als vorher,anwächst,anwuchs,gewachsn,dazugewachsen,kommt,kommt hinzu,kommt dazu"},
    {Sense::above, "vergleiche,vergleich,verglichen mit,im vergleich zu,im vergleich,über,größer als,mehr "
                   "als,mindestens,ab,grösser als,oder mehr,oder größer,schwerer als,größer,länger "
                   "als,minimum,>,und mehr,und größer,zwischen,mehr wie,größer wie,schwerer wie,länger "
                   "wie,ab einer größe von,größer sind als,im vergleich mit,oder darüber,und "
                   "darüber,wenigstens,zumindest,drüber,oder schwerer,größere als,gegenüber"},
    {Sense::below, "unter,kleiner als,weniger als,höchstens,maximal,bis zu,oder weniger,oder "
                   "kleiner,kleiner,<,kleiner wie,weniger wie,unterhalb,unterhalb von,nicht größer als,nicht "
                   "mehr als,oder darunter,drunter,kleiner sind als,kleinere als"},
    {Sense::inside, "in,im,innerhalb,aus,in meinem,im ordner,ins,aus dem,in den,auf dem,auf meinem "
                    "schreibtisch liegen,im verzeichnis,aus dem ordner,in dem ordner,in diesem "
                    "ordner,innerhalb des,ausm,innen,aus meinem,in meiner,in meinen,auf der"},
    {Sense::unopened,
     "nicht angefasst hab,nicht angefasst habe,nicht angerührt,nicht angefasst,nicht angeschaut,nicht "
     "gehört,nicht abgespielt,nie abgespielt,nie angesehen,nie angeschaut,nicht aufgemacht,nicht "
     "angeguckt,nicht geöffnet,ungeöffnet,nie geöffnet,nicht benutzt,unbenutzt,nicht angefasst,nicht "
     "angesehen,nicht verwendet,vergessen,unbenutzte,ungenutzte,nicht mehr geöffnet,nicht mehr benutzt,nicht "
     "genutzt,nicht mehr angesehen,vergessene,selten benutzt,nicht mehr genutzt,nicht mehr angerührt,nie "
     "benutze,nicht reingeschaut,nie reingeschaut,nicht gebraucht hab,nie benutzt,nie genutzt,nie "
     "verwendet,nie gebraucht,nicht mehr verwendet,nicht mehr gebraucht hab,nicht mehr verwende,nicht mehr "
     "benutze,nicht mehr nutze,nicht nutze,nicht benutze,nicht verwende,nie nutze,nie verwende,nie "
     "brauche,kaum benutzt,kaum nutze,kaum benutze,selten genutzt,selten nutze,selten "
     "benutze,brachliegen,verstaubt,verstauben,nicht gespielt,nie gespielt,nicht gelesen,nie gelesen,nicht "
     "gesehen,nie gesehen,nicht geschaut"},
    {Sense::before,
     "vor,älter als,früher als,vor dem,bevor,bis,bis zum,ältere als,älter wie,früher wie,älter sind als,vor "
     "mehr als,die älter als,die älter sind als,noch vor,bis spätestens,länger her als,länger als ein"},
    {Sense::since,
     "seit anfang,seit beginn,seit anfang des,seit beginn des,seit anfang von,seit,neuer als,jünger als,seit "
     "dem,neuere als,jünger wie,neuer wie,seit dem anfang,ab dem,seit letztem,seit mitte"},
    {Sense::after, "nach dem,später als,danach ab,nach"},
    {Sense::last,
     "letzte,letzten,letzter,letztes,vorige,letztens,vorherige,beim letzten mal,letztes mal,das letzte "
     "mal,vorigen,zuletzt,letztmals,zuletzt mal,vorigen mal,letzt,letztn,letztmalig,jüngste bereinigung"},
    {Sense::privacy,
     "verlassen meine daten,bleiben meine daten,internet nötig,braucht internet,braucht orlen "
     "internet,brauchst du internet,internetverbindung,ohne internet,liest du,meine passwörter lesen,meine "
     "dokumente lesen,eure firma,deine firma,sieht jemand,jemand meine,hochladen,hochgeladen,lädt "
     "hoch,internet,online,netz,netzwerk,privat,privatsphäre,datenschutz,cloud,telemetrie,überwacht,schickt,"
     "senden,sendet,gesendet,verschickt,server,ausspionieren,spioniert,teilen,teilt,konto,anmelden,offline,"
     "übertragen,übertragt,sammelt,daten ab,ins netz,wlan,google,verlässt,verlassen,wer "
     "sieht,überträgt,dritte,weitergegeben,ki,hoch,meine daten "
     "sicher,weitergeben,spionage,werbung,dsgvo,lädt,hochlädt,lädst,laden,wer kann sehen,wer kann lesen,wer "
     "hat zugriff,zugriff auf,wer kann meine,kann meine daten,daten sehen,meine daten sehen,kann jemand "
     "sehen,einsehen,verbunden,meine passwörter,sieht orlen meine passwörter,bleibt alles auf meinem "
     "rechner,bleibt auf meinem rechner,bleiben auf meinem rechner,bleibt auf meinem computer,bleiben auf "
     "meinem computer,bleibt alles auf meinem computer,verlässt meinen rechner,verlassen meinen "
     "rechner,sehen kann,irgendwo hin,geschickt,weiterleiten,weitergeleitet,weiter "
     "gegeben,mitlesen,mitlesest,mithören,schaust du in meine,schaust du meine,liest orlen,siehst du "
     "meine,sieht orlen,lest ihr,privater,private,persönliche daten,datenschützer,registrieren,ins "
     "internet,nach hause telefonieren,telefoniert nach hause,mit dem internet,wer liest,künstliche "
     "intelligenz"},
    {Sense::hidden, "versteckt,versteckte,versteckten,versteckter,unsichtbare,unsichtbaren,verborgene,"
                    "verborgenen,verborgen,unsichtbar,verstecktes,verborgener"},
    {Sense::folder, "ordner,ordnern,verzeichnis,verzeichnisse,verzeichnissen,unterordner,mappe,mappen,"
                    "ordners,ordnerl,unterordnern,unterverzeichnisse,folder"},
    {Sense::general,
     "abschalten,ausschalten,deaktivieren,deaktiviere,verhindern,verhindere,stoppen,schalte,prognose,"
     "vorhersage,sprache,sprachen,wichtige,wichtigen,scan,ergebnis,ergebnisse,kram,krempel,zeug,kategorie,"
     "kategorien,mehr,zuerst,als "
     "erstes,besser,gut,lang,lange,länger,funde,fund,andere,anderen,anderes,tag,tage,woche,monat,jahr,male,"
     "dauert,reste,chaos,durcheinander,unordnung,ausmachen,aus "
     "machen,abstellen,verhindert,stoppe,stopp,stop,hindern,unterbinden,unterbinde,abdrehen,ausstellen"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler, "mit ihren daten,mit daten,samt daten,samt ihren daten,mitsamt daten,mitsamt ihren "
                    "daten,inklusive daten,einschließlich daten"},
};

constexpr SubjectRow kSubjects[] = {
    {SubjectID::systemAdvice,
     "alte kernel,kernel,apt-cache,apt "
     "cache,apt,paketcache,paket-cache,journal,systemprotokolle,systemlogs,alte snaps,alte "
     "kernels,kernels,pakete-cache,paketzwischenspeicher,systemprotokoll,journald,pacman cache,dnf "
     "cache,snap revisionen"},
    {SubjectID::leftovers,
     "reste von programmen,reste von "
     "apps,programmreste,überreste,überbleibsel,app-reste,zurückgelassen,hinterlassen,übrig gelassen,liegen "
     "gelassen,deinstallierte programme,deinstallierten programme,deinstallierte apps,deinstallierter "
     "programme,deinstallierten programmen,gelöschte programme,gelöschter programme,entfernte "
     "programme,entfernter programme,verwaiste,verwaiste ordner,reste deinstallierter programme,reste "
     "gelöschter programme,programme die ich gelöscht habe,reste von deinstallierten programmen,reste von "
     "gelöschten programmen,programme übrig gelassen,programmüberreste,app überreste,apps die ich gelöscht "
     "habe,programme die ich deinstalliert habe,apps die ich deinstalliert habe,programme die ich entfernt "
     "habe,reste alter programme,gelöschte apps,gelöschter "
     "apps,hinterlassenschaften,datenreste,rückstände,übrig geblieben,programmreste von"},
    {SubjectID::similarPhotos,
     "ähnliche fotos,ähnliche bilder,doppelte fotos,doppelte bilder,doppelten fotos,doppelten "
     "bilder,ähnlichen fotos,ähnlichen bilder,fotos doppelt,bilder doppelt,fotoduplikate,ähnliche "
     "aufnahmen,gleiche fotos,gleiche bilder,identische fotos,identische bilder,serienbilder,fast gleiche "
     "fotos,fast gleiche bilder,mehrfache fotos,sehen gleich aus,gleich aus,gleich "
     "aussehen,ähnlich,ähnliche,ähneln,ähnlich sehen,ähnlich aus,sich ähneln,fast identisch"},
    {SubjectID::screenshots, "screenshot,screenshots,bildschirmfoto,bildschirmfotos,bildschirmaufnahmen,"
                             "bildschirmabzüge,bildschirmfotografien,bildschirm-screenshots,bildschirmkopien,"
                             "screenshoots,sreenshots,bildschirmaufnahme,hardcopy"},
    {SubjectID::receipts,
     "kassenbon,kassenbons,quittung,quittungen,belege,beleg,rechnungsfotos,kassenzettel,fotografierte "
     "rechnungen,kassabon,kassabons,rechnungen fotografiert,bons,bon,kassazettel,rechnungsbilder"},
    {SubjectID::memes,
     "meme,memes,lustige bilder,witzbilder,spaßbilder,sprüchebilder,witzige bilder,funny bilder"},
    {SubjectID::blurry,
     "unscharfe fotos,unscharfe bilder,unscharf,unscharfe,verwackelte fotos,verwackelte "
     "bilder,verwackelt,verwackelte,verschwommene bilder,verschwommene fotos,verschwommen,unscharfen "
     "fotos,unscharfen bilder,verschwommene,unscharfe aufnahmen,misslungene fotos,verwackelten "
     "bilder,verwackelten fotos,nicht scharf,verschwommenen,verwackelten,unscharfes,misslungene "
     "bilder,misslungen,schlechte fotos"},
    {SubjectID::duplicates,
     "duplikat,duplikate,doppelte dateien,doppelte,doppelten dateien,doppelt,doppelten,identische "
     "dateien,gleiche dateien,kopien,dubletten,mehrfach,zweimal,doppeltes,dublikate,doubletten,kopie "
     "von,doppelten datein,doppelte datein,doppelte sachen,doppeltem,duplikaten,duplizierte,duplizierte "
     "dateien,duplizierten,doppelt vorhanden,doppelt vorhandene,doppelt gespeichert,doppelt "
     "gespeicherte,mehrfach vorhanden,mehrfach vorhandene,mehrfach gespeichert,gleichen dateien,gleiche "
     "datei,zweifach,duplikat von,kopien von"},
    {SubjectID::largeFiles, "große dateien,große datei,großen dateien,riesige dateien,grosse "
                            "dateien,großdateien,riesendateien,dicke dateien,riesigen dateien,schwere "
                            "dateien,fette dateien,große datein,riesen dateien,große brocken"},
    {SubjectID::oldFiles,
     "alte dateien,alten dateien,alte datei,ungenutzte dateien,unbenutzte dateien,vergessene dateien,alte "
     "sachen,alter kram,altes zeug,alte datein,uralte dateien,alten kram,lange nicht benutzte "
     "dateien,altlasten,vergessenen dateien,ältere dateien"},
    {SubjectID::oldDownloads,
     "alte downloads,alten downloads,vergessene downloads,uralte downloads,alte heruntergeladene "
     "dateien,alte runtergeladene dateien,ältere downloads,alte download"},
    {SubjectID::logs, "absturzberichte,crash "
                      "dumps,absturzprotokolle,absturzdateien,log,logs,logdatei,logdateien,protokolle,"
                      "protokolldateien,protokolldatei,log-dateien,core dump,core "
                      "dumps,coredump,coredumps,speicherauszug,speicherauszüge,absturzbericht,logs "
                      "dateien,log dateien,ereignisprotokolle,systemlog"},
    {SubjectID::trash, "papierkorb,mülleimer,papierkorbs,gelöschte "
                       "dateien,abfalleimer,trash,abfall,abfalleimers,müllkorb,mistkübel,kübel,papirkorb,"
                       "mülltonne,papierkörbe,im papierkorb liegende,recycle bin"},
    {SubjectID::deviceBackups,
     "iphone backup,iphone backups,iphone-backup,iphone-backups,iphone sicherung,ipad "
     "backup,gerätesicherungen,handy backup,handy "
     "backups,handysicherung,iphone,ipad,handysicherungen,handy-backups,handy-backup,handy "
     "sicherung,telefonsicherung,telefon backup,telefon sicherung,handy,smartphone "
     "backup,gerätebackups,natel,iphone sicherungen,ios backup,ios backups,telefonsicherungen"},
    {SubjectID::mailAttachments,
     "mailanhänge,mail anhänge,anhänge,e-mail anhänge,email anhänge,e-mail-anhänge,anhang,mailanhang,e-mail "
     "anhang,emailanhang,emailanhänge,anhänge aus mails,anhänge aus e-mails,anhängen"},
    {SubjectID::languagePacks, "sprachpakete,sprachpaket,sprachdateien,übersetzungen,unbenutzte "
                               "sprachen,ungenutzte sprachen,sprachpakete von,übersetzungsdateien"},
    {SubjectID::npm,
     "npm cache,npm,yarn cache,yarn,npm-cache,npm-zwischenspeicher,node cache,npm zwischenspeicher"},
    {SubjectID::pip, "pip cache,pip,pip-cache,python cache,python "
                     "pakete,pip-zwischenspeicher,python-cache,pip zwischenspeicher"},
    {SubjectID::gradle, "gradle cache,gradle,gradle-cache"},
    {SubjectID::homebrew, "homebrew,homebrew cache"},
    {SubjectID::caches,
     "cache,caches,zwischenspeicher,cache dateien,temporäre dateien,temporären dateien,temp "
     "dateien,temporäre daten,cachedateien,app-cache,zwischengespeicherte daten,browsercache,browser "
     "cache,puffer,cacheordner,cachespeicher,cache-dateien,cache-ordner,cache "
     "ordner,temp-dateien,tempdateien,temp,temporäres,tmp dateien,browser-cache,app "
     "cache,programmcache,caches von,zwischengespeicherte "
     "dateien,zwischengespeichertes,temporärdateien,cashe,chache"},
    {SubjectID::developer,
     "entwicklerdaten,entwicklerdateien,entwickler,entwicklungsdaten,build "
     "dateien,entwicklerkram,builddateien,programmierkram,entwicklungsdateien,build-dateien,buildreste,build "
     "reste,entwicklerzeug,entwicklerordner,builds,kompilate,programmierdateien,programmierdaten"},
    {SubjectID::system, "system,systemdateien,systemdaten,betriebssystem,das "
                        "system,betriebssystems,systemdatei,os,linux selbst,systems"},
    {SubjectID::apps, "app,apps,programm,programme,programmen,anwendung,anwendungen,software,installierte "
                      "programme,programms,programmes,anwendungsprogramme,applikation,applikationen,"
                      "anwendungsprogramm,progs,proggis,softwarepakete,programm auf dem"},
    {SubjectID::media, "medien,mediendateien"},
    {SubjectID::downloads,
     "downloads,download,downloadordner,download-ordner,downloads-ordner,heruntergeladen,heruntergeladene "
     "dateien,heruntergeladenen dateien,heruntergeladene,runtergeladen,runtergeladene "
     "sachen,heruntergeladene sachen,runtergeladene dateien,download "
     "ordner,downloadverzeichnis,runtergeladenes,runterglodn,heruntergladen,runter geladen,herunter "
     "geladen,runterladen,heruntergeladenes,gedownloadet,gedownloaded,gedownloadete,downloadete,donwloads,"
     "dowloads,downlods,runtergezogen,runtergeladenen,runtergeladene"},
    {SubjectID::desktop, "desktop,schreibtisch,arbeitsfläche,schreibtischordner,desktop "
                         "ordner,desktopordner,schreibtisch-ordner"},
    {SubjectID::documentsFolder,
     "dokumentenordner,dokumenteordner,dokumente-ordner,ordner dokumente,in meinen dokumenten,meiner "
     "dokumente,dokumente ordner,dokumentenverzeichnis,ordner mit dokumenten"},
    {SubjectID::picturesFolder, "bilderordner,bilder-ordner,fotoordner,ordner bilder,foto-ordner,bilder "
                                "ordner,fotos ordner,ordner mit bildern,bilderverzeichnis,fotosordner"},
    {SubjectID::videosFolder,
     "videoordner,video-ordner,videos-ordner,ordner videos,filmordner,videos ordner,video ordner"},
    {SubjectID::musicFolder, "musikordner,musik-ordner,ordner musik,musik ordner,musikverzeichnis"},
    {SubjectID::home, "home,persönlicher ordner,persönlichen "
                      "ordner,heimordner,heimverzeichnis,home-ordner,home-verzeichnis,benutzerordner,mein "
                      "home,benutzerverzeichnis,persönliches verzeichnis,home ordner,home verzeichnis"},
    {SubjectID::videos, "video,videos,film,filme,filmen,clip,clips,videodatei,videodateien,aufnahmen,"
                        "videoclips,filmdateien,filmaufnahmen,mp4,bildschirmaufzeichnungen,videos und "
                        "filme,videoaufnahmen,filmchen,kinofilme,serien,movies,videoaufzeichnungen,viedos,"
                        "vidos,filmdatei,bildschirmvideos,mp4s,mkvs"},
    {SubjectID::photos, "foto,fotos,bild,bilder,bildern,aufnahme,fotografien,bilddateien,fotodateien,"
                        "schnappschüsse,photos,photo,bilddatei,urlaubsfotos,urlaubsbilder,selfies,"
                        "familienfotos,fotografie,pics,schnappschuss,bildl,fotosammlung,bildersammlung,"
                        "aufgenommene bilder,jpgs,jpegs,kamerabilder,handyfotos,foddos,fotoaufnahmen"},
    {SubjectID::audio, "musik,lieder,lied,songs,song,audio,audiodateien,musikdateien,mp3s,podcasts,alben,mp3,"
                       "hörbücher,musikstücke,tonaufnahmen,musikstück,titel,tracks,hörspiele,hörbuch,podcast,"
                       "lieder und musik,tondateien,soundfiles,sounds,musikalben,muzik,musiksammlung"},
    {SubjectID::pdfs, "pdf,pdfs,pdf-dateien,pdf dateien,pdf-datei,pdf datei"},
    {SubjectID::archives,
     "archiv,archive,zip,zips,zip-dateien,zip dateien,archivdateien,gepackte dateien,zip-archive,zip "
     "datei,komprimierte dateien,zip-datei,zipdateien,zip-ordner,gezippte dateien,gezippte,rar,rar "
     "dateien,rar-dateien,tar,tarballs,archivdatei,gepackten dateien,komprimierten dateien,tar-archive"},
    {SubjectID::installers,
     "installer,installationsdateien,installationspakete,setup-dateien,pakete,installationsprogramme,setups,"
     "setup dateien,installationsdatei,installationspaket,installationsprogramm,setup datei,deb-dateien,deb "
     "dateien,debs,appimages,installern,setup-datei,programminstaller"},
    {SubjectID::diskImages,
     "abbild,abbilder,iso,isos,iso-dateien,iso dateien,plattenabbilder,virtuelle festplatten,virtuelle "
     "maschinen,festplattenabbilder,iso-abbilder,datenträgerabbilder,iso-datei,iso "
     "datei,isodateien,iso-images,iso images,disk images,festplattenabbild,plattenabbild,image-dateien,image "
     "dateien,isos und images"},
    {SubjectID::spreadsheets,
     "tabelle,tabellen,tabellenblätter,excel-dateien,excel dateien,exceltabellen,csv "
     "dateien,excel,excel-datei,excel datei,excel-tabellen,excel tabellen,kalkulationstabellen,calc "
     "dateien,csv-dateien,csvs,exceldateien"},
    {SubjectID::presentations, "präsentation,präsentationen,folien,powerpoints,powerpoint,powerpoint-dateien,"
                               "powerpoint dateien,präsis,vorträge,foliensätze,powerpoint präsentationen"},
    {SubjectID::ebooks, "ebook,ebooks,e-books,bücher,e-book,elektronische bücher,buch,epubs,e-book dateien"},
    {SubjectID::documents,
     "dokument,dokumente,dokumenten,unterlagen,textdateien,textdokumente,papiere,schriftstücke,word "
     "dateien,word-dateien,briefe,schriftstück,schreiben,textdatei,textdokument,unterlage,word-dokumente,"
     "word dokumente,worddokumente,briefen,papierkram,officedokumente,office dokumente,docs"},
    {SubjectID::files,
     "datei,dateien,daten,ding,dinge,dingen,sache,sachen,elemente,objekte,alles,irgendetwas,zeugs,einträge,"
     "datein,dateein,zeug da,brocken,krams,element,objekt,objekten,elementen,fiels,etwas großes,irgendetwas "
     "großes,daten und dateien,dateiein,krimskrams,filez,files,file"},
    {SubjectID::startup,
     "am starten hindern,vom starten abhalten,nicht mehr starten,nicht mehr automatisch starten,langsam "
     "startet,startet langsam,langsamer start,startet mein rechner langsam,läuft beim start,startet "
     "beim,beim start mit,läuft mit,autostart,autostartprogramme,startprogramme,startet automatisch,starten "
     "automatisch,beim anmelden,beim starten,beim start,beim hochfahren,startobjekte,automatisch "
     "gestartet,automatisch startet,automatisch starten,von selbst,beim einschalten,von "
     "alleine,mitgestartet,autostart-programme,beim booten,systemstart,beim systemstart,bei der "
     "anmeldung,hochfahren,startet mit,starten,startet,gestartet,rechner starte,computer "
     "starte,einschalte,hochfahre,anmelde,beim einloggen,einloggen,einlogge,login,beim login,mit "
     "hochfährt,mit hoch,startet von allein,startet von alleine,startet von selbst,öffnet sich,öffnen "
     "sich,automatisch geöffnet,geht automatisch auf,gehen automatisch auf,gehen von selbst auf,startet beim "
     "hochfahren,beim aufdrehen,aufdrehe,autostarts,automatischer start,automatische start,automatischen "
     "start,autostart einträge,autostarteinträge,hochfährt,bootet,booten,langsam hochfährt,fährt langsam "
     "hoch,lange zum starten,lange zum hochfahren,dauert das starten,hintergrunddienste,im hintergrund,beim "
     "rechnerstart,rechnerstart,beim pc start,pc start,mitstarten,startet alles,automatisch "
     "mit,autostartet,anschalte,anmache,einschalten"},
    {SubjectID::containers, "docker,podman,container,containern,docker "
                            "images,containerabbilder,docker-images,docker container,docker-container,podman "
                            "container,container-images,container images,dockerimages,dockercontainer"},
    {SubjectID::flatpak, "flatpak,flatpaks,flathub,flatpak-apps,flatpak apps,flatpak "
                         "programme,flatpak-programme,flatpak laufzeiten,flatpak runtimes"},
    {SubjectID::snap,
     "snap,snaps,snap-pakete,snap pakete,snapd,snap apps,snap-apps,snappakete,snap programme,snap-programme"},
    {SubjectID::games, "spiel,spiele,spielen,steam,steam-spiele,games,videospiele,computerspiele,steam "
                       "spiele,spielen auf,spiele von steam,lutris,pc-spiele,pc "
                       "spiele,computerspielen,zocken,videospielen,steamspiele,gaming,game"},
};

constexpr FigureRow kFigureRows[] = {
    {Figure::number, "zwei,paar,ein paar", 2},
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
    {Figure::daysAgo, "gestern,gestan", 1},
    {Figure::daysAgo, "vorgestern", 2},
    {Figure::agoBefore, "vor,seit,seit über"},
    {Figure::previous,
     "letzte,letzten,letzter,letztes,letztem,vorige,vorigen,voriges,vergangenen,vergangene"},
    {Figure::current, "diese,diesen,dieser,dieses,diesem,heurigen"},
    {Figure::following,
     "nächste,nächsten,nächster,nächstes,nächstem,kommende,kommenden,kommendes,kommender,nächst"},
    {Figure::ahead, "in,binnen,innerhalb von,noch,für,in den nächsten"},
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
