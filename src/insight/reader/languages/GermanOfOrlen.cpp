#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::german_words {

namespace {

constexpr WordRow kOfOrlen[] = {
    {Sense::holds, "enthält,beinhaltet"},
    {Sense::put, "legen,stecken,verschieben"},
    {Sense::override,
     "(ignorier|ignoriere|vergiss|missachte) (alle|deine|sämtliche|alle deine|) "
     "(vorherigen|bisherigen|früheren|) (anweisungen|regeln|instruktionen|befehle|vorgaben)"},
    {Sense::called, "(ordner|verzeichnisse) (heißen|namens|mit namen|mit dem namen|nennen sich)"},
    {Sense::otherWork, "übersetze,übersetzen,übersetz"},
    {Sense::reads, "(öffnest|liest|durchsuchst) du"},
    {Sense::trust, "(machst|begehst) du (auch|manchmal|) fehler,(irrst|täuschst) du dich"},
    {Sense::gone,
     "verloren,verliere ich,verschwunden,verschwindet,verschwand,abhandengekommen,flöten gegangen"},
    {Sense::self, "(kannst|könntest) du (mir|uns) (bitte|) helfen"},
    {Sense::happens,
     "ohne dass ich (gefragt werde|zustimme|es will|es merke|es weiß),(fragst|warnst) du (vorher|mich|)"},
    {Sense::privacy, "(schickst|sendest|überträgst|übermittelst|verschickst|funkst) du,nach hause "
                     "(telefonieren|telefoniert)"},
    {Sense::advise, "vorgeschlagen,vorgeschlagene"},
    {Sense::freed,
     "(die|was|das|den|) (du|orlen) "
     "(gelöscht|entfernt|weggeräumt|aufgeräumt|bereinigt|verschoben|weggeworfen|geleert) (hast|hat|"
     "hattest|hatte),(hast|hat) (du|orlen) (alles|) (gelöscht|entfernt|weggeräumt|aufgeräumt|bereinigt|"
     "verschoben|weggeworfen)"},
    {Sense::undo, "wo sind (meine|die|all meine) (dateien|sachen|daten) "
                  "(hin|geblieben|hingekommen|hingegangen),was ist mit "
                  "(meinen|den) (dateien|sachen|daten) passiert"},
    {Sense::what, "(wozu|wofür|für was) (dient|ist|brauche ich|braucht man|sind|dienen)"},
    {Sense::unknown, "browser"},
    {Sense::filler, "aufgenommen,geknipst,fotografiert,geschossen,gefilmt,aufgenommene"},
    {Sense::rhythm,
     "wie (oft|häufig|regelmäßig) (sollte|soll|muss|sollten|müsste|empfiehlt) (ich|man|wir|es sich),"
     "in welchen abständen,wie regelmäßig"},
    {Sense::rights,
     "(administrator|admin|root|root-|admin-)rechte,(admin|root) rechte,root,sudo,administrator,admin,"
     "als root,administratorpasswort,adminpasswort,superuser,nach (meinem|dem|einem) passwort,(mein|das|"
     "ein) passwort eingeben,besondere rechte"},
    {Sense::ownRemoval,
     "(orlen|dich|diese app|dieses programm) (wieder|selbst|) (deinstallieren|deinstalliert|entfernen|"
     "loswerden|los),deinstalliere ich (orlen|dich),werde ich (orlen|dich) (wieder|) los,orlen "
     "(löschen|runterschmeißen)"},
    {Sense::resident,
     "(läuft|arbeitet|bleibt|startet|scannt) (orlen|das programm|dieses programm|die app|diese app) "
     "(immer|ständig|auch|) (im hintergrund|weiter|automatisch|von selbst|von allein|beim anmelden|"
     "dauernd|nachts|aktiv),(läufst|arbeitest|bleibst|startest|scannst) du (immer|ständig|auch|) (im "
     "hintergrund|weiter|automatisch|von selbst|von allein|beim anmelden|dauernd|nachts|aktiv),(ist|"
     "bist) (orlen|du) (immer|ständig|dauernd) (aktiv|offen|an)"},
    {Sense::otherWork,
     "(machst|erstellst) du (auch|) (backups|ein backup|sicherungen|eine sicherung|sicherungskopien|"
     "eine sicherungskopie),(macht|erstellt) (orlen|das programm|dieses programm|die app|diese app) "
     "(auch|) (backups|ein backup|sicherungen|sicherungskopien|eine sicherungskopie),(backups|ein "
     "backup|sicherungen|sicherungskopien|eine sicherungskopie|eine sicherung|datensicherung|"
     "datensicherungen) (machen|erstellen|anlegen|von),(sicherst|verschlüsselst|komprimierst|"
     "synchronisierst|konvertierst|reparierst|druckst|übersetzt|kopierst|bearbeitest) du,(sichert|"
     "verschlüsselt|komprimiert|synchronisiert|konvertiert|repariert|kopiert) (orlen|das programm|"
     "dieses programm|die app|diese app)"},
    {Sense::deletes,
     "(löschst|entfernst|vernichtest|veränderst|änderst|überschreibst|verschiebst|zerstörst) du "
     "(jemals|auch|wirklich|heimlich|),(löscht|entfernt|vernichtet|verändert|ändert|überschreibt|"
     "verschiebt|zerstört) (orlen|das programm|dieses programm|die app|diese app) (jemals|auch|"
     "wirklich|heimlich|),vor (dir|orlen) sicher,sicher vor (dir|orlen)"},
    {Sense::reads,
     "(liest|scannst|durchsuchst|öffnest|analysierst|durchwühlst|siehst|schaust|guckst) du (auch|) "
     "(meine|in meine|in meinen|mein|meinen|den inhalt|die inhalte),(liest|scannt|durchsucht|öffnet|"
     "analysiert|durchwühlt|sieht|schaut|guckt) (orlen|das programm|dieses programm|die app|diese app) "
     "(auch|) (meine|in meine|in meinen|mein|meinen),liest du,(liest|durchsucht) (orlen|das programm|"
     "dieses programm|die app|diese app),was liest du"},
    {Sense::privacy,
     "(verkaufst|speicherst|protokollierst|sammelst|teilst|merkst|verrätst) du,(verkauft|speichert|"
     "protokolliert|sammelt|teilt|verrät) (orlen|das programm|dieses programm|die app|diese app)"},
    {Sense::trust, "bist du (sicher|seriös|gefährlich|vertrauenswürdig|zuverlässig|harmlos|ein virus|"
                   "schadsoftware)"},
    {Sense::ofOrlen,
     "(wirst|würdest|willst|darfst) du,(wird|würde|will|darf) (orlen|das programm|dieses programm|die "
     "app|diese app)"},
    {Sense::canOrlen,
     "(kannst|könntest) du,(kann|könnte) (orlen|das programm|dieses programm|die app|diese app)"},
    {Sense::opened, "lesen,mitlesen,reinschauen,hineinschauen,reingucken,durchlesen,hineinsehen"},
    {Sense::order,
     "(lösche|lösch|vernichte|entferne|zerstöre) (sofort|jetzt|einfach|bitte|) alles (sofort|jetzt|),"
     "alles (sofort|jetzt|) (löschen|vernichten),rm -rf,rm -fr,formatiere (meine|die) (festplatte|"
     "platte)"},
    {Sense::happens, "sind (die|sie) (dann|) (weg|futsch),ist (das|es|alles) dann weg,dann weg"},
    {Sense::filler, "klicke,klick,drücke,anklicke"},
    {Sense::ruleOut,
     "ausschließen,schließe aus,ordner ausschließen,ausnahme hinzufügen,ausnahmen,ausnahmeliste,nie "
     "scannen,nicht scannen,vom scan ausnehmen,whitelist,nie wieder vorschlagen,nicht mehr "
     "vorschlagen,ordner auslassen,ordner überspringen,wie schließe ich,wie nehme ich aus,nie mehr "
     "vorschlagen,ordner ignorieren,ordner zu ignorieren,ignorierliste,nie mehr "
     "scannen,ausschlussliste,ordner auszuschließen,schließ aus,ausgeschlossen,schließe ich,schließ ich"},
};

} // namespace

std::span<const WordRow> ofOrlen()
{
    return kOfOrlen;
}

} // namespace orlen::AskReader::german_words
