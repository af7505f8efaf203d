#include "window/preview/MediaTexts.h"

#include "model/Words.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

namespace orlen::MediaTexts {

namespace {

constexpr qsizetype kMostLines = 4;

QString name(const std::string& text)
{
    return text.empty() ? QString() : DisplayText::path(text);
}

QString channels(int count)
{
    if (count <= 2)
        return count <= 0 ? QString()
                          : DisplayText::text(count == 1 ? WindowTexts::kMono : WindowTexts::kStereo);
    return DisplayText::counted(count, WindowTexts::kChannels);
}

QString sound(const MediaFacts::Sound& sound)
{
    const Figures& figures = Words::figures();
    return DisplayText::facts(
        {name(sound.codec), sound.hertz > 0 ? DisplayText::text(figures.frequency(sound.hertz)) : QString(),
         channels(sound.channels)});
}

QString language(const MediaFacts::Sound& sound)
{
    return sound.language.empty() ? QString() : name(Words::figures().language(sound.language));
}

} // namespace

QString tags(const MediaFacts& facts)
{
    QStringList lines{name(facts.title), name(facts.artist), name(facts.album)};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QString streams(const MediaFacts& facts)
{
    QStringList lines;
    if (!facts.codec.empty())
        lines << DisplayText::facts(
            {name(facts.container), name(facts.codec),
             facts.frames > 0 ? DisplayText::counted(facts.frames, WindowTexts::kFrames) : QString()});
    QString last;
    for (const MediaFacts::Sound& track : facts.sounds) {
        const QString line = sound(track);
        if (!last.isEmpty() && line == last) {
            lines.back() = DisplayText::facts({lines.back(), language(track)});
            continue;
        }
        if (lines.size() == kMostLines)
            break;
        last = line;
        lines << DisplayText::facts({line, language(track)});
    }
    lines.removeAll(QString());
    return lines.join(u'\n');
}

} // namespace orlen::MediaTexts
