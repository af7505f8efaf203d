#include "window/about/ExclusionListModel.h"

#include "app/AppTexts.h"
#include "window/lists/DisplayText.h"
#include "window/rowmenu/ExclusionChange.h"

namespace orlen {

namespace {

bool isPath(const Exclusion& line)
{
    return line.kind == Exclusion::Kind::path;
}

QString whatOf(const Exclusion& line)
{
    return isPath(line) ? DisplayText::shortPath(line.text) : DisplayText::path(line.text);
}

} // namespace

ExclusionListModel::ExclusionListModel(AppModel& app) : m_app(app)
{
    connect(m_app.exclusions(), &ExclusionList::changed, this, [this] {
        update();
        Q_EMIT totalChanged();
    });
    update();
}

int ExclusionListModel::total() const
{
    return static_cast<int>(m_app.exclusions()->current().lines().size());
}

QString ExclusionListModel::emptyText()
{
    return DisplayText::text(AppTexts::kNothingExcluded);
}

void ExclusionListModel::setFilter(const QString& filter)
{
    if (m_filter == filter)
        return;
    m_filter = filter;
    Q_EMIT filterChanged();
    update();
}

void ExclusionListModel::update()
{
    std::vector<Exclusion> lines = m_app.exclusions()->current().lines();
    std::erase_if(lines, [this](const Exclusion& line) {
        return !whatOf(line).contains(m_filter, Qt::CaseInsensitive);
    });
    setRows(m_lines, std::move(lines),
            [](const Exclusion& line) { return (isPath(line) ? std::string() : "/") + line.text; });
}

void ExclusionListModel::remove(int row)
{
    if (hasRow(row))
        ExclusionChange::remove(m_app, Exclusion(m_lines[static_cast<std::size_t>(row)]));
}

std::optional<RowSubject> ExclusionListModel::subject(int row) const
{
    if (!hasRow(row) || !isPath(m_lines[static_cast<std::size_t>(row)]))
        return std::nullopt;
    return RowSubject{.path = m_lines[static_cast<std::size_t>(row)].text, .isOffered = false};
}

QVariant ExclusionListModel::value(std::size_t number, int role) const
{
    const Exclusion& line = m_lines[number];
    switch (static_cast<Role>(role)) {
    case Role::what:
        return whatOf(line);
    case Role::kind:
        return DisplayText::text(isPath(line) ? AppTexts::kPath : AppTexts::kName);
    case Role::symbol:
        return isPath(line) ? QStringLiteral("folder.fill") : QStringLiteral("doc.text");
    }
    return {};
}

} // namespace orlen
