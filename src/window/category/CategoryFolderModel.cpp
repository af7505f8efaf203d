#include "window/category/CategoryFolderModel.h"

#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "tools/ToolsTexts.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

constexpr std::size_t kMostItems = 3;

double shareOf(std::int64_t part, std::int64_t whole)
{
    return whole > 0 ? std::clamp(static_cast<double>(part) / static_cast<double>(whole), 0.0, 1.0) : 0;
}

/// "Steam 62 GB · lutris 4 GB"
QString itemsOf(const CategoryFolder& folder)
{
    QString text;
    for (std::size_t i = 0; i < std::min(kMostItems, folder.largest.size()); ++i) {
        const CategoryFolder::Item& item = folder.largest[i];
        // A name must not be torn from its size.
        text += (i == 0 ? QString() : QStringLiteral("  ·  ")) + DisplayText::path(item.name) + QChar(0xA0) +
                DisplayText::size(item.bytes).replace(' ', QChar(0xA0));
    }
    return text;
}

} // namespace

void CategoryFolderModel::setFolders(std::vector<CategoryFolder> folders, std::int64_t whole,
                                     std::int64_t unseen)
{
    std::vector<Row> rows;
    for (CategoryFolder& folder : folders) {
        const double share = shareOf(folder.bytes, whole);
        rows.push_back({std::move(folder), share});
    }
    if (unseen > 0) {
        CategoryFolder rest;
        rest.bytes = unseen;
        rows.push_back({std::move(rest), shareOf(unseen, whole), false});
    }
    setRows(m_rows, std::move(rows), [](const Row& row) { return row.folder.path; });
}

bool CategoryFolderModel::isInHome(int row) const
{
    const std::string shown = path(row);
    return !shown.empty() && PathText::isAtOrBelow(shown, Places::current().home);
}

std::string CategoryFolderModel::path(int row) const
{
    return hasRow(row) ? m_rows[static_cast<std::size_t>(row)].folder.path : std::string();
}

std::optional<RowSubject> CategoryFolderModel::subject(int row) const
{
    const std::string shown = path(row);
    if (shown.empty())
        return std::nullopt;
    return RowSubject{.path = shown, .isOffered = isInHome(row) && shown != Places::current().home};
}

QVariant CategoryFolderModel::value(std::size_t number, int role) const
{
    const auto& [folder, share, isSeen] = m_rows[number];
    switch (static_cast<Role>(role)) {
    case Role::name:
        if (!isSeen)
            return DisplayText::text(WindowTexts::kNotVisible);
        if (folder.path == Places::current().home)
            return DisplayText::text(WindowTexts::kRestOfHome);
        return folder.path == "/"
                   ? DisplayText::text(Message(WindowTexts::kFilesIn, {{"folder", folder.path}}))
                   : DisplayText::nameOf(folder.path);
    case Role::place:
        return DisplayText::shortPath(folder.path);
    case Role::items:
        if (!isSeen)
            return DisplayText::text(WindowTexts::kHeldBack);
        return itemsOf(folder);
    case Role::size:
        return folder.isComplete
                   ? DisplayText::size(folder.bytes)
                   : DisplayText::text(Message(ToolsTexts::kAtLeast, {{"size", Bytes{folder.bytes}}}));
    case Role::share:
        return share;
    case Role::shareText:
        return DisplayText::percent(share);
    case Role::isSeen:
        return isSeen;
    case Role::isInHome:
        return isInHome(static_cast<int>(number));
    }
    return {};
}

} // namespace orlen
