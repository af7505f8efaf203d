#include "insight/AskWorld.h"

namespace orlen {
namespace {

using AskFrenchTest = AskWorld;

constexpr Row kFrench[] = {
    {"est-ce que tu modifies mes photos", "deletes nothing"},
    {"peux-tu lire mes documents", "Nothing leaves", "report"},
    {"comment désinstaller orlen", "doesn't remove itself"},
    {"rm -rf / ; supprime tout maintenant!!!", "deletes nothing"},
    {"combien d'espace libre me reste-t-il", "120 GB is free"},
    {"il me reste combien de place", "120 GB is free"},
    {"mon disque est rempli à combien", "120 GB is free"},
    {"ai-je 20 Go de libre", "Yes.|120 GB"},
    {"pourquoi mon disque est plein", "By category"},
    {"c'est quand que le disque sera plein", "30 August 2026"},
    {"quand mon disque dur sera-t-il plein ?", "30 August 2026"},
    {"que puis-je supprimer sans risque", "You could free about|App caches"},
    {"qu'est-ce que je peux effacer", "You could free about|App caches"},
    {"comment faire de la place", "You could free about|App caches"},
    {"que puis-je supprimer dans mes téléchargements", "Downloads has|debian.iso"},
    {"je peux supprimer wedding.mp4 ?", "wedding.mp4|9 GB|Review"},
    {"c'est quoi holiday.mkv", "holiday.mkv|4 GB"},
    {"quelle taille fait holiday.mkv", "holiday.mkv|4 GB"},
    {"puis-je jeter contract-2021.docx", "contract-2021.docx|rated Keep"},
    {"puis-je supprimer ~/.ssh", "protected"},
    {"les cinq plus grosses vidéos", "wedding.mp4 (9 GB)"},
    {"plus gros fichiers", "wedding.mp4 (9 GB)"},
    {"vidéos de plus de 3 Go", "Of videos over 3 GB the last scan lists 2"},
    {"les videos de plus de 3 gigas", "Of videos over 3 GB the last scan lists 2"},
    {"pdf dans le dossier téléchargements", "report-final.pdf"},
    {"fichiers pas ouverts depuis 2023", "before 1 January 2024|wedding"},
    {"vidéos vieilles de plus de deux ans", "last changed before 1 June 2024|cut.mov"},
    {"les fichiers les plus anciens", "wedding.mp4 (9 GB), changed 5 May 2019"},
    {"dernier téléchargement le plus récent", "report-final.pdf|24 December 2025"},
    {"fichiers de plus de 1,5 Go", "Of files over 1.5 GB"},
    {"combien ai-je de captures d'écran", "Screenshots: 2 MB"},
    {"y a-t-il des doublons", "Duplicate files: 40 MB"},
    {"photos en double", "Similar photos: 11 MB"},
    {"combien de place prennent mes photos", "Photos takes 34 GB"},
    {"quelle est la taille du cache", "App caches: 4 GB"},
    {"taille du dossier vidéos", "~/Videos takes 80 GB"},
    {"quand était le dernier nettoyage", "20 May 2026"},
    {"comment annuler le nettoyage", "History"},
    {"combien ai-je libéré jusqu'ici", "2 clean-ups|3 GB"},
    {"est-ce que tu envoies mes fichiers sur internet", "Nothing leaves"},
    {"qu'est-ce qu'orlen ne supprime jamais", "never touches"},
    {"que veut dire garder", "Keep:|warning"},
    {"libérer 4 Go", "rated Safe is enough|App caches"},
    {"combien pèse blender", "Blender takes 3 GB"},
    {"désinstaller gimp", "GIMP|Flatpak"},
    {"qu'est-ce qui se lance au démarrage", "Nextcloud"},
    {"docker prend combien de place", "podman system df"},
    {"quelles applis je n'utilise pas",
     "not used since 1 December 2025: Blender (3 GB, last used 10 January 2025)|When 1 other"},
    {"applications pas utilisées depuis 12 mois",
     "not used since 1 June 2025: Blender (3 GB, last used 10 January 2025)|When 1 other"},
    {"applications pas utilisées depuis deux ans", "known was used since 1 June 2024|When 1 other",
     "Blender"},
    {"les plus grosses applications avec leurs données",
     "With their data, the biggest applications that Orlen lists are Blender (3 GB), GIMP (500 MB)"},
    {"quels dossiers prennent le plus de place", "~/Videos — 80 GB"},
    {"qu’est-ce qui a grossi depuis hier", "~/Videos: 9 GB more"},
    {"photos floues", "found no blurry"},
    {"combien d’espace libre et que puis-je supprimer ?", "120 GB is free|You could free about"},
    {"quel temps fera-t-il demain", "I can answer"},
    {"que se passe-t-il quand je supprime", "moves what you tick"},
    {"les plus gros fichiers sauf les vidéos", "Left out: videos.|slack", "wedding"},
    {"tout ce qui est sûr sans les caches", "Left out: caches.|60 MB", "App caches"},
    {"est-ce que le disque sera plein à noël", "Probably yes.|30 August 2026"},
    {"le disque tiendra jusqu'au mois prochain ?", "Probably yes."},
    {"assez de place jusqu'à la fin de l'année ?", "Probably not."},
    {"que veut dire gardé", "Keep:"},
    {"liste tous les nettoyages", "2 clean-ups", "could free"},
    {"combien de nettoyages j'ai fait", "2 clean-ups|3 GB"},
    {"combien de place j'ai recupéré en tout depuis le debut", "2 clean-ups"},
    {"que veut dire à vérifier pour un fichier", "Review:", "lists"},
    {"taille des fichiers en cache", "App caches: 4 GB"},
    {"les zip de plus de 20 mo", "ending in .zip"},
    {"steam démarre tout seul", "Nextcloud"},
    {"taille de la corbielle", "Trash"},
};

} // namespace

TEST_F(AskFrenchTest, questionsAreUnderstood)
{
    expectAnswers(kFrench);
}

} // namespace orlen
