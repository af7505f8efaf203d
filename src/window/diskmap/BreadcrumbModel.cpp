#include "window/diskmap/BreadcrumbModel.h"

#include "platform/files/Places.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

namespace orlen {

namespace {

/// More folders than these get a gap.
constexpr int kShown = 4;
/// Number of folders after a gap.
constexpr int kAfterGap = 2;

} // namespace

QString BreadcrumbModel::nameOfLast(std::span<const std::string> folders)
{
    return folders.size() == 1 ? startName(folders.front()) : DisplayText::nameOf(folders.back());
}

QString BreadcrumbModel::startName(const std::string& folder)
{
    return folder == Places::current().home ? DisplayText::text(WindowTexts::kHome)
                                            : DisplayText::shortPath(folder);
}

std::vector<BreadcrumbModel::Row> BreadcrumbModel::rowsOf(const std::vector<std::string>& folders)
{
    const int count = static_cast<int>(folders.size());
    const int gap = count > kShown ? count - kAfterGap - 1 : 0;
    std::vector<Row> rows;
    for (int step = 0; step < count; ++step) {
        if (step > 0 && step < gap)
            continue;
        const QString name = nameOfLast(std::span(folders).first(static_cast<std::size_t>(step) + 1));
        rows.push_back({name, step, gap > 0 && step == gap, step == count - 1});
    }
    return rows;
}

void BreadcrumbModel::setFolders(const std::vector<std::string>& folders)
{
    setRows(m_rows, rowsOf(folders), [](const Row& row) {
        return std::to_string(row.step) + (row.isGap ? "gap" : "") + row.name.toStdString();
    });
}

QVariant BreadcrumbModel::value(std::size_t number, int role) const
{
    const Row& row = m_rows[number];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return row.name;
    case Role::step:
        return row.step;
    case Role::isGap:
        return row.isGap;
    case Role::isLast:
        return row.isLast;
    }
    return {};
}

} // namespace orlen
