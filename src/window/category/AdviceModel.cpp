#include "window/category/AdviceModel.h"

#include "app/AppTexts.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

namespace orlen {

namespace {

Message textOf(const AdviceItem& item)
{
    if (item.isOnHomeDisk)
        return item.text;
    return Message::joined({item.text, AppTexts::kOnOtherDisk}, Several::Joint::sentences);
}

} // namespace

void AdviceModel::setAdvice(std::vector<AdviceItem> advice)
{
    setRows(m_rows, std::move(advice), &AdviceItem::topic);
}

void AdviceModel::copy(int row) const
{
    if (hasRow(row))
        QGuiApplication::clipboard()->setText(
            DisplayText::text(m_rows[static_cast<std::size_t>(row)].command));
}

QVariant AdviceModel::value(std::size_t number, int role) const
{
    const AdviceItem& item = m_rows[number];
    switch (static_cast<Role>(role)) {
    case Role::title:
        return DisplayText::text(item.title);
    case Role::place:
        return DisplayText::shortPath(item.places.front());
    case Role::size:
        return DisplayText::text(item.sizeText());
    case Role::text:
        return DisplayText::text(textOf(item));
    case Role::command:
        return DisplayText::text(item.command);
    }
    return {};
}

} // namespace orlen
