#include "tools/advice/AdviceItem.h"

#include "tools/ToolsTexts.h"

namespace orlen {

Message AdviceItem::sizeText() const
{
    switch (known) {
    case Known::all:
        return {{}, {{"size", Bytes{size}}}};
    case Known::part:
        return {ToolsTexts::kAtLeast, {{"size", Bytes{size}}}};
    case Known::nothing:
        return ToolsTexts::kNeedsAdministrator;
    case Known::shared:
        return ToolsTexts::kCannotBeTold;
    }
    return {};
}

} // namespace orlen
