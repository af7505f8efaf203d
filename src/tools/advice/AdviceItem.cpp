#include "tools/advice/AdviceItem.h"

#include "platform/text/ByteCount.h"

namespace orlen {

std::string AdviceItem::sizeText() const
{
    switch (known) {
    case Known::all:
        return byteCount(size);
    case Known::part:
        return "at least " + byteCount(size);
    case Known::nothing:
        return "needs administrator rights";
    case Known::shared:
        return "cannot be told";
    }
    return {};
}

} // namespace orlen
