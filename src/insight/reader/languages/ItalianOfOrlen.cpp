#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::italian_words {

namespace {

constexpr WordRow kOfOrlen[] = {
    {Sense::holds, "contiene,contengono,cosa contiene,che cosa contiene"},
    {Sense::put, "mettere,metto"},
    {Sense::override,
     "(ignora|dimentica|ignori) (tutte|) (le|le tue|le sue) (istruzioni|regole|disposizioni) (precedenti|)"},
    {Sense::called, "cartelle (chiamate|si chiamano|che si chiamano|di nome|con il nome)"},
    {Sense::otherWork, "tradurre,traduci,traducimi"},
    {Sense::mean, "(cosa|che cosa) (significa|vuol dire|vuole dire|significano)"},
    {Sense::reads, "(file|cartelle) (apri|leggi|guardi)"},
    {Sense::trust, "(fai|commetti) errori,ti sbagli"},
    {Sense::above, "(è|sono|sia) più (grande|grandi|grosso|grossa|grossi|grosse|pesante|piena|pieno) "
                   "(di|del|della|dell|dello|rispetto al|rispetto a)"},
    {Sense::filler, "all improvviso,improvvisamente,d un tratto,di colpo,di botto"},
    {Sense::most, "è la colpa,di chi è la colpa,la colpa"},
    {Sense::gone, "perso,persi,ho perso,perdo,abbiamo "
                  "perso,sparito,spariti,spariscono,scomparso,scomparsi,svanito,svaniti"},
    {Sense::happens, "senza (che io lo sappia|il mio consenso|avvertirmi|conferma),(chiedi|avvisi) prima"},
    {Sense::filler, "da (qualche|nessuna) parte"},
    {Sense::rights, "(serve|servono|ti servono|richiede|hai bisogno di) (i|dei|) (permessi|diritti) (di "
                    "amministratore|da amministratore|speciali|)"},
    {Sense::advise, "proposta,proposto,proposti,proposte,suggerita,suggeriti,proporre,propone"},
    {Sense::what, "(a cosa|a che|a che cosa|per cosa) (serve|servono)"},
    {Sense::outside, "(al di |)fuori (di|da|del|della|dai|dalla|dalle|dei)"},
    {Sense::filler,
     "ho scattato,ho scattate,scattato,scattate,ho fatte,ho girato,abbiamo scattato,fotografate"},
    {Sense::freed, "(hai|ha|avete) (cancellato|eliminato|rimosso|tolto|pulito|spostato|buttato|ripulito)"},
    {Sense::undo, "dove sono (finiti|andati|finite) (i miei|tutti i miei|i|le mie) (file|documenti|cose)"},
    {Sense::rhythm,
     "ogni quanto (tempo|),(con che frequenza|con quale frequenza|quanto spesso) (devo|dovrei|conviene|"
     "bisogna|si deve)"},
    {Sense::rights,
     "(permessi|diritti|privilegi) (di|da) (amministratore|root),amministratore,root,sudo,superutente,"
     "password di (amministratore|root),(chiedi|chiede|serve|ti serve|vuoi) (la mia|una|la) password"},
    {Sense::ownRemoval,
     "(disinstallare|disinstallo|rimuovere|rimuovo|eliminare|elimino|cancellare|togliere) (orlen|questo "
     "programma|questa app),disinstallarti,rimuoverti,eliminarti,cancellarti,ti disinstallo,liberarmi "
     "di (orlen|te)"},
    {Sense::resident,
     "(giri|lavori|funzioni|resti|parti|rimani|ti avvii) (sempre|) (in background|in sottofondo|sullo "
     "sfondo|tutto il tempo|automaticamente|da solo|di notte|attivo),(orlen|questo programma|questa app|"
     "l app|il programma) (gira|lavora|funziona|resta|parte|rimane|si avvia) (sempre|) (in background|"
     "in sottofondo|sullo sfondo|automaticamente|da solo|attivo),(gira|lavora|funziona|si avvia|parte) "
     "(orlen|questo programma) (in background|in sottofondo|sullo sfondo|da solo)"},
    {Sense::otherWork,
     "(fai|fa orlen|orlen fa|questo programma fa|fare|puoi fare|crei|fammi) (un|dei|i|una|delle|) "
     "(backup|copia di sicurezza|copie di sicurezza|copia di riserva|copie di riserva),comprimi,"
     "sincronizzi,converti,ripari,stampi,cripti,(orlen|questo programma) (comprime|sincronizza|ripara|"
     "cripta)"},
    {Sense::deletes,
     "cancelli,elimini,modifichi,distruggi,sovrascrivi,cancellerai,eliminerai,(orlen|questo programma|"
     "questa app|l app|il programma) (cancella|elimina|modifica|distrugge|sovrascrive|cambia|sposta|"
     "cancellerà|eliminerà),(cancella|elimina|modifica|distrugge|cambia|sposta) (orlen|questo "
     "programma|questa app),(stai per|hai intenzione di) (cancellare|eliminare|modificare),al sicuro da "
     "(te|orlen)"},
    {Sense::reads,
     "(leggi|guardi|apri|scansioni|analizzi|controlli|vedi|sbirci|frughi) (dentro|in|tra|) (i miei|le "
     "mie|il mio|la mia),(leggi|guardi|frughi) (nei miei|nelle mie|nella mia|nel mio),(orlen|questo "
     "programma|questa app|l app|il programma) (legge|guarda|apre|scansiona|analizza|vede) (dentro|) (i "
     "miei|le mie|il mio|la mia),legge orlen,(puoi|potresti|può orlen) (leggere|guardare|aprire|"
     "vedere) (dentro|) (i miei|le mie|il mio|la mia),(puoi|potresti) (guardare|leggere|frugare) (nei "
     "miei|nelle mie|nella mia|nel mio)"},
    {Sense::privacy,
     "(vendi|conservi|memorizzi|registri|raccogli|salvi) (i miei|le mie|il mio|la mia),(orlen|questo "
     "programma|questa app|l app|il programma) (vende|conserva|memorizza|registra|raccoglie|salva) (i "
     "miei|le mie|il mio|la mia),(vendi|raccogli|conservi|registri) (dati|qualcosa)"},
    {Sense::trust,
     "sei (sicuro|sicura|affidabile|pericoloso|un virus|serio),(orlen è|è orlen) (affidabile|sicuro|"
     "pericoloso|serio)"},
    {Sense::canOrlen, "(puoi|potresti)"},
    {Sense::order,
     "(cancella|elimina|distruggi|cancellare|eliminare) (subito|) tutto (subito|adesso|ora|),rm -rf,rm "
     "-fr,formatta (il|il mio) (disco|computer)"},
    {Sense::ruleOut,
     "escludere una cartella,escludere un file,come escludo,come escludere,escludere dalla "
     "scansione,esclusioni,aggiungere un eccezione,lista bianca,non suggerire più,non scansionare,escludere "
     "cartelle,escludere la cartella,escludere la mia cartella,escludi una cartella,escludi la cartella,non "
     "analizzare,non suggerirmi più,non proporre più,ignorare una cartella,ignora la cartella,ignorare "
     "cartelle,aggiungere esclusioni,lista di esclusione,elenco delle esclusioni,elenco esclusioni,lasciare "
     "fuori una cartella,tenere fuori una cartella,mai scansionare,mai più suggerire"},
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
};

} // namespace

std::span<const WordRow> ofOrlen()
{
    return kOfOrlen;
}

} // namespace orlen::AskReader::italian_words
