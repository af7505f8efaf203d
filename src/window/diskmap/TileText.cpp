#include "window/diskmap/TileText.h"

#include "model/Rating.h"
#include "window/WindowTexts.h"
#include "window/diskmap/TileShade.h"
#include "window/lists/DisplayText.h"

#include <cstdlib>
#include <initializer_list>

namespace orlen::TileText {

namespace {

const Text& spokenText(const TreeNode& node)
{
    switch (node.reading) {
    case TreeNode::Reading::none:
        return WindowTexts::kSpokenUnread;
    case TreeNode::Reading::partly:
        return WindowTexts::kSpokenPartlyRead;
    case TreeNode::Reading::whole:
        break;
    }
    return node.isDir ? WindowTexts::kSpokenFolder : WindowTexts::kSpokenFile;
}

QStringList textsOf(std::initializer_list<Text> texts)
{
    QStringList shown;
    for (const Text& text : texts)
        shown << DisplayText::text(text);
    return shown;
}

} // namespace

QString spoken(const TreeNode& node)
{
    if (node.isOther && node.reading == TreeNode::Reading::whole)
        return DisplayText::facts({DisplayText::text(node.title()), DisplayText::size(node.size)});
    return DisplayText::text(
        Message(spokenText(node), {{"name", within(node.title())}, {"size", Bytes{node.size}}}));
}

Kind kindOf(const TreeNode& node)
{
    if (node.isOther)
        return Kind::rest;
    return node.isDir ? Kind::folder : Kind::file;
}

QStringList kinds()
{
    return textsOf({WindowTexts::kFoldersShown, WindowTexts::kFilesShown, WindowTexts::kRestShown});
}

QStringList ages()
{
    return textsOf({WindowTexts::kWithinWeek, WindowTexts::kWithinMonth, WindowTexts::kWithinYear,
                    WindowTexts::kWithinTwoYears, WindowTexts::kEarlier, WindowTexts::kNotKnown});
}

QStringList growths()
{
    QStringList texts = textsOf({WindowTexts::kSmaller, WindowTexts::kAsBefore});
    for (const TileShade::Growth step :
         {TileShade::Growth::some, TileShade::Growth::much, TileShade::Growth::most}) {
        texts << DisplayText::text(Message(WindowTexts::kGrown, {{"size", Bytes{TileShade::leastOf(step)}}}));
    }
    return texts << DisplayText::text(WindowTexts::kNotKnown);
}

QStringList advice()
{
    return textsOf({label(Rating::safe), label(Rating::review), label(Rating::keep), WindowTexts::kProtected,
                    WindowTexts::kNotRated});
}

QStringList adviceSymbols()
{
    QStringList symbols;
    for (const Rating rating : {Rating::safe, Rating::review, Rating::keep})
        symbols << DisplayText::text(symbol(rating));
    return symbols << QStringLiteral("hand.raised.fill") << QString();
}

QString change(std::optional<std::int64_t> bytes)
{
    if (!bytes)
        return {};
    return DisplayText::text(
        Message(*bytes < 0 ? WindowTexts::kLost : WindowTexts::kGrown, {{"size", Bytes{std::abs(*bytes)}}}));
}

} // namespace orlen::TileText
