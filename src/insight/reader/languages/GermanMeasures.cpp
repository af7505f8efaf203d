#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::german_words {

namespace {

constexpr WordRow kMeasures[] = {
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
                  "monat,zeitpunkt,demnächst,wann ungefähr,wann etwa,bis zu welchem datum,wann wird,wan"},
    {Sense::most,
     "am meisten,meisten,meiste,die meisten,den meisten,den größten teil,das meiste,am "
     "meißten,hauptsächlich,am schnellsten,schnellsten,den meisten platz,den meisten "
     "speicher,hauptverursacher,übeltäter,schlimmsten,schlimmste,meisten platz,meisten speicher,meisten "
     "speicherplatz,größten platzfresser,größten speicherfresser,größte "
     "platzfresser,hauptschuldige,schuld,schuld daran,schuldig,verantwortlich,verantwortlich "
     "dafür,schuldige"},
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
     "intelligenz,liest du meine mails,liest du meine emails,liest du meine e-mails,liest du meine "
     "nachrichten,liest du meine dateien,liest du meine dokumente,meine mails lesen,meine e-mails "
     "lesen,liest orlen meine mails,liest orlen meine dateien,siehst du meine fotos,siehst du meine "
     "dateien,liest du meine mails mit,liest du meine e-mails mit"},
    {Sense::hidden, "versteckt,versteckte,versteckten,versteckter,unsichtbare,unsichtbaren,verborgene,"
                    "verborgenen,verborgen,unsichtbar,verstecktes,verborgener"},
    {Sense::folder, "ordner,ordnern,verzeichnis,verzeichnisse,verzeichnissen,unterordner,mappe,mappen,"
                    "ordners,ordnerl,unterordnern,unterverzeichnisse,folder"},
    {Sense::general, "abschalten,ausschalten,deaktivieren,deaktiviere,verhindern,verhindere,stoppen,schalte,"
                     "prognose,vorhersage,sprache,sprachen,wichtige,wichtigen,scan,ergebnis,ergebnisse,kram,"
                     "krempel,zeug,kategorie,kategorien,mehr,zuerst,als "
                     "erstes,besser,gut,lang,lange,länger,funde,fund,andere,anderen,anderes,tag,tage,woche,"
                     "monat,jahr,male,dauert,reste,chaos,durcheinander,unordnung,ausmachen,aus "
                     "machen,abstellen,verhindert,stoppe,stopp,stop,hindern,unterbinden,unterbinde,abdrehen,"
                     "ausstellen,modell,modelle,modellen"},
    // Of applications: their sizes are with it anyway.
    {Sense::filler, "mit ihren daten,mit daten,samt daten,samt ihren daten,mitsamt daten,mitsamt ihren "
                    "daten,inklusive daten,einschließlich daten"},
};

} // namespace

std::span<const WordRow> measures()
{
    return kMeasures;
}

} // namespace orlen::AskReader::german_words
