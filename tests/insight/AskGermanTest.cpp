#include "insight/AskWorld.h"

namespace orlen {
namespace {

using AskGermanTest = AskWorld;

constexpr Row kGerman[] = {
    {"wie viel platz hab ich noch", "120 GB is free"},
    {"wieviel speicher ist noch frei auf der festplatte", "120 GB is free"},
    {"Wie voll ist meine Platte?", "120 GB is free"},
    {"hab ich noch 20 gb frei", "Yes.|120 GB"},
    {"warum is meine festplatte so voll", "By category"},
    {"wann ist der Speicher voll?", "30 August 2026"},
    {"wird die festplatte bald voll", "30 August 2026"},
    {"was kann ich gefahrlos löschen", "You could free about|App caches"},
    {"was kann weg", "You could free about|App caches"},
    {"wie raeume ich am besten auf", "You could free about|App caches"},
    {"Was kann ich aus dem Downloadordner loeschen", "Downloads has|debian.iso"},
    {"kann ich wedding.mp4 löschen?", "wedding.mp4|9 GB|Review"},
    {"was ist holiday.mkv", "holiday.mkv|4 GB"},
    {"wie groß ist „holiday.mkv“", "holiday.mkv|4 GB"},
    {"darf ich contract-2021.docx wegwerfen", "contract-2021.docx|rated Keep"},
    {"kann ich ~/.ssh löschen", "protected"},
    {"die fünf größten Videos", "wedding.mp4 (9 GB)"},
    {"größte videodateien", "wedding.mp4 (9 GB)"},
    {"Videos über 3 GB", "Of videos over 3 GB the last scan lists 2"},
    {"videos die größer als 3 gb sind", "Of videos over 3 GB the last scan lists 2"},
    {"pdfs im downloadordner", "report-final.pdf"},
    {"welche dateien habe ich seit 2023 nicht geöffnet", "before 1 January 2024|wedding"},
    {"videos älter als zwei jahre", "last changed before 1 June 2024|cut.mov"},
    {"videos von vor mehr als 2 jahren", "last changed before 1 June 2024|cut.mov"},
    {"älteste dateien", "wedding.mp4 (9 GB), changed 5 May 2019"},
    {"neuester download", "report-final.pdf|24 December 2025"},
    {"Dateien über 1,5 GB", "Of files over 1.5 GB"},
    {"wieviele bildschirmfotos habe ich", "Screenshots: 2 MB"},
    {"gibt es duplikate", "Duplicate files: 40 MB"},
    {"doppelte fotos", "Similar photos: 11 MB"},
    {"wie viel platz brauchen meine fotos", "Photos takes 34 GB"},
    {"wie groß ist der cache", "App caches: 4 GB"},
    {"wie groß ist mein videoordner", "~/Videos takes 80 GB"},
    {"wann hab ich zuletzt aufgeräumt", "20 May 2026"},
    {"wie mach ich das rückgängig", "History"},
    {"wie viel hab ich bisher freigegeben", "2 clean-ups|3 GB"},
    {"lädt orlen meine Daten ins Internet hoch", "Nothing leaves"},
    {"was löscht orlen niemals", "never touches"},
    {"was bedeutet behalten", "Keep:|warning"},
    {"ich brauche 4 GB platz", "rated Safe is enough|App caches"},
    {"wie groß ist blender", "Blender takes 3 GB"},
    {"gimp deinstallieren", "GIMP|Flatpak"},
    {"was startet automatisch beim anmelden", "Nextcloud"},
    {"wie viel platz braucht docker", "podman system df"},
    {"welche programme benutze ich nicht",
     "not used since 1 December 2025: Blender (3 GB, last used 10 January 2025)|When 1 other"},
    {"welche apps habe ich seit einem jahr nicht benutzt",
     "not used since 1 June 2025: Blender (3 GB, last used 10 January 2025)|When 1 other"},
    {"programme die ich seit zwei jahren nicht genutzt habe", "known was used since 1 June 2024|When 1 other",
     "Blender"},
    {"größte programme samt daten",
     "With their data, the biggest applications that Orlen lists are Blender (3 GB), GIMP (500 MB)"},
    {"welche ordner sind am größten", "~/Videos — 80 GB"},
    {"was ist seit gestern gewachsen", "~/Videos: 9 GB more"},
    {"unscharfe bilder", "found no blurry"},
    {"wie viel speicher ist frei und was kann ich löschen?", "120 GB is free|You could free about"},
    {"wie wird das wetter morgen", "I can answer"},
    {"was passiert wenn ich etwas lösche", "moves what you tick"},
    {"grösten datein", "wedding.mp4 (9 GB)"},
    {"größte dateien außer videos", "Left out: videos.|slack", "wedding"},
    {"was kann ich löschen, nur nicht die fotos", "Left out: photos.|You could free"},
    {"reicht der platz bis weihnachten", "Probably not.|30 August 2026"},
    {"ist die platte am jahresende voll", "Probably yes."},
    {"hab ich in drei wochen noch platz", "Probably yes."},
    {"mach 5 GB frei", "For the rest of 5 GB", "Yes."},
    {"wie mache ich das rückgängig", "History|restore"},
    {"zeig sichere sachen über 1 gb", "Of files rated Safe over 1 GB", "wedding"},
    {"große videos", "Of videos the last scan lists 3|wedding.mp4"},
    {"liste alle aufräumaktionen", "2 clean-ups", "could free"},
    {"wieviele bereinigungen hab ich gemacht", "2 clean-ups|3 GB"},
    {"brauche 4 gb platz", "rated Safe is enough"},
    {"was heißt prüfen bei einer datei", "Review:", "lists"},
    {"was kannst du nicht", "not what Orlen is for"},
    {"welche grossen dateien liegen am rechner", "Large files: 18 GB"},
};

} // namespace

TEST_F(AskGermanTest, questionsAreUnderstood)
{
    expectAnswers(kGerman);
}

} // namespace orlen
