#include "insight/AskWorld.h"

namespace orlen {
namespace {

using AskParaphrasesTest = AskWorld;

constexpr Row kWhatMatters[] = {
    {"anything over half a gig", "files over 500 MB", "I don't know"},
    {"did i download anything today", "changed from 1 June 2026", "takes 15 GB"},
    {"what can i delete today", "You could free about"},
    {"my ssd is 256 gb, how much is left", "120 GB is free", "No."},
    {"how much have I used more than last month", "I don't know that", "changed"},
    {"did anything shrink", "I don't know that", "could free"},
    {"why did my free space drop since yesterday", "grew the most|~/Videos"},
    {"did my caches grow", "~/.cache has grown by 2 GB", "full"},
    {"are there duplicate files and how much would i gain", "Without the duplicate files|40 MB", "4.1 GB"},
    {"if i delete all caches how much do i get back", "Without the caches|4 GB more"},
    {"are my documents bigger than my music", "Of documents|Of audio files"},
    {"how often should i clean", "", "2 clean-ups"},
    {"what are all those crash dumps", "Log files: 20 MB", "could free"},
    {"where did all my space go, I only have 4 gb of stuff", "120 GB is free|By category", "Yes."},
    {"I get a message that my disk is almost full, what should I do?", "120 GB is free|You could free"},
    {"fastest way to get some space back", "You could free about"},
    {"which folder should i clean first", "You could free about"},
    {"why is / nearly full when my home is only 3 gigs", "120 GB is free|By category", "Yes."},
    {"why is my disk so full if i only have 2 gb of photos", "120 GB is free|By category"},
    {"i want to record a 2 hour session at 130 gb, will it fit", "No.|120 GB is free"},
    {"what's the quickest way to get 1 gb without losing anything important", "To free 1 GB|Safe"},
    {"quickest way to get 1 GB back without touching my caches", "caches|1 GB", "App caches"},
    {"what counts as spreadsheets", "ending in xlsx, xls, xlsm, ods, csv, tsv, numbers."},
    {"'; DROP TABLE files; --", "I don't know that", "Safe"},
    {"is 67% full bad", "120 GB is free"},
    {"what has grown since the beginning of the year", "Since 28 April 2026|~/Videos: 49 GB"},
};

constexpr Row kWhereElse[] = {
    {"old kernels", "orlen advice"},
    {"clear apt cache", "orlen advice"},
    {"leftovers of apps I removed", "orlen leftovers", "55 GB"},
    {"how do i exclude a folder", "orlen exclude"},
    {"how do i stop nextcloud from starting", "Nextcloud|orlen startup"},
    {"what does orlen refuse to delete", "never touches what is protected"},
    {"where do deleted things go and can I empty it", "History can put it back", "could free"},
    {"can anyone at your company see my photos", "Nothing leaves this computer"},
    {"does orlen run in the background", "only while it is open", "Nextcloud"},
    {"does nextcloud run in the background", "Nextcloud", "only while"},
    {"how do i uninstall orlen", "doesn't remove itself", "orlen uninstall"},
    {"does it scan my private keys in .ssh", "Nothing leaves this computer|keys, passwords"},
    {"can you delete files permanently or shred them", "nothing is deleted by Orlen", "I don't know"},
    {"does orlen remove viruses", "not what Orlen is for"},
    {"what can't you do", "never touches what is protected|Nothing leaves"},
    {"will you ever delete my documents", "deletes nothing", "The biggest"},
    {"last time i used blender", "last used on 10 January 2025"},
    {"when did i last use spotify", "When Spotify was last used has not been noted"},
    {"what is counted as System", "no other category counts"},
    {"what is in the 'System' slice of the chart", "no other category counts"},
    {"what does Review mean compared to Safe", "Safe:|Review:", "Keep:"},
    {"diffrence between safe and keep", "Safe:|Keep:", "Review:"},
    {"does Orlen use AI or a language model", "Nothing leaves this computer"},
    {"what will you never ever touch", "never touches what is protected"},
};

constexpr Row kOtherLanguages[] = {
    {"was bringt es wenn ich alle caches lösche", "Without the caches"},
    {"reste deinstallierter programme", "orlen leftovers"},
    {"wieviel hab ich bisher insgesamt freigeräumt", "2 clean-ups"},
    {"was bedeutet Prüfen im Unterschied zu Sicher", "Safe:|Review:", "lists"},
    {"restes d'applications désinstallées", "orlen leftovers", "55 GB"},
    {"que se passe-t-il au démarrage de la session", "Nextcloud"},
    {"est-ce que mes données restent sur mon ordinateur", "Nothing leaves"},
    {"que aplicaciones tengo instaladas", "lists 3 applications"},
    {"que significa la etiqueta Conservar", "Keep:"},
    {"puedo borrar mis backups del iphone", "no device backups"},
    {"quando ho fatto l'ultima pulizia", "20 May 2026"},
    {"hai bisogno di internet per funzionare", "Nothing leaves"},
    {"cosa è cresciuto dall'inizio dell'anno", "Since 28 April 2026"},
};

} // namespace

TEST_F(AskParaphrasesTest, saidInOtherWords)
{
    for (const auto& rows : {std::span<const Row>(kWhatMatters), std::span<const Row>(kWhereElse),
                             std::span<const Row>(kOtherLanguages)})
        expectAnswers(rows);
}

} // namespace orlen
