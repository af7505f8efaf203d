#include "window/shell/ScreenListModel.h"

#include "window/lists/DisplayText.h"
#include "window/shell/ScreenTable.h"

namespace orlen {

int ScreenListModel::length() const
{
    return static_cast<int>(kScreens);
}

QVariant ScreenListModel::value(std::size_t number, int role) const
{
    const ScreenMeta& meta = screenTable()[number];
    switch (static_cast<Role>(role)) {
    case Role::title:
        return DisplayText::text(meta.title);
    case Role::symbol:
        return DisplayText::text(meta.symbol);
    case Role::tone:
        return QColor(meta.colour);
    case Role::section:
        return DisplayText::text(meta.section);
    case Role::screen:
        return static_cast<int>(meta.screen);
    }
    return {};
}

} // namespace orlen
