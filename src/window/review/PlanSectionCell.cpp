#include "window/review/PlanSectionCell.h"

#include "model/FindingKind.h"
#include "window/lists/DisplayText.h"
#include "window/lists/RatingValue.h"

namespace orlen::PlanSectionCell {

namespace {

constexpr QRgb kUsualTone = 0xff5b5fe0; // for a section that matches no kind of finding

} // namespace

QVariant value(const PlanSection& section, PlanModel::Role role, const PlanTicks& ticks, std::size_t number,
               int count)
{
    if (role == PlanModel::Role::name)
        return DisplayText::text(section.title);
    if (role == PlanModel::Role::folder)
        return DisplayText::selectedOf(ticks.count(number), count);
    if (role == PlanModel::Role::size)
        return DisplayText::size(ticks.bytes(number));
    if (role == PlanModel::Role::symbol)
        return DisplayText::text(section.symbol);
    return role == PlanModel::Role::rating ? QVariant::fromValue(RatingValue()) : QString();
}

QColor tone(const PlanSection& section)
{
    const auto kind = kindFromRaw(section.id);
    return kind ? DisplayText::colour(meta(*kind).category) : QColor(kUsualTone);
}

} // namespace orlen::PlanSectionCell
