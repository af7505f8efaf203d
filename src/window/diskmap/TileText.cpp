#include "window/diskmap/TileText.h"

#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

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

} // namespace

QString spoken(const TreeNode& node)
{
    if (node.isOther && node.reading == TreeNode::Reading::whole)
        return DisplayText::facts({DisplayText::text(node.title()), DisplayText::size(node.size)});
    return DisplayText::text(
        Message(spokenText(node), {{"name", within(node.title())}, {"size", Bytes{node.size}}}));
}

} // namespace orlen::TileText
