#include "tools/TreeNode.h"

#include "platform/text/PathText.h"
#include "tools/ToolsTexts.h"

namespace orlen {

bool TreeNode::isNameable() const
{
    return PathText::isValidUtf8(name);
}

Message TreeNode::title() const
{
    return isOther ? Message{ToolsTexts::kSmallerItems, {{"count", smaller}}} : Message::verbatim(name);
}

} // namespace orlen
