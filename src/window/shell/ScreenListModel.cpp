#include "window/shell/ScreenListModel.h"

#include "window/lists/DisplayText.h"
#include "window/shell/ScreenTable.h"

namespace orlen {

int ScreenListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kScreens);
}

QVariant ScreenListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ScreenMeta& meta = screenTable()[static_cast<std::size_t>(index.row())];
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

QHash<int, QByteArray> ScreenListModel::roleNames() const
{
    return {{static_cast<int>(Role::title), "title"},
            {static_cast<int>(Role::symbol), "symbol"},
            {static_cast<int>(Role::tone), "tone"},
            {static_cast<int>(Role::section), "section"},
            {static_cast<int>(Role::screen), "screen"}};
}

} // namespace orlen
