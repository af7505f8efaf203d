#include "tools/TreeNode.h"

#include "tools/ToolsTexts.h"

namespace orlen {

Message TreeNode::title() const
{
    return isOther ? Message{ToolsTexts::kSmallerItems, {{"count", smaller}}} : Message::verbatim(name);
}

} // namespace orlen
