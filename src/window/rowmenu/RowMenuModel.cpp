#include "window/rowmenu/RowMenuModel.h"

#include "app/ExplanationText.h"
#include "clean/Safety.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/lists/PathCode.h"
#include "window/rowmenu/ExclusionChange.h"
#include "window/shell/Reveal.h"
#include "window/shell/WindowState.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

namespace orlen {

RowMenuModel::RowMenuModel(AppModel& app) : m_app(app) {}

QString RowMenuModel::name() const
{
    return m_subject ? DisplayText::nameOf(m_subject->path) : QString();
}

QString RowMenuModel::path() const
{
    return m_subject ? PathCode::of(m_subject->path) : QString();
}

QString RowMenuModel::refusal() const
{
    if (!m_subject || !m_subject->entry)
        return {};
    Explanation told{.path = m_subject->path};
    told.protection =
        PathText::isValidUtf8(told.path) ? Safety::protection(told.path) : Protection::unclearPath;
    if (const Exclusion* line = m_app.exclusions()->current().excludes(told.path))
        told.exclusion = *line;
    if (told.protection == Protection::none && !told.exclusion)
        return {};
    return DisplayText::text(
        Message::joined(ExplanationText::sentences(told, {}), Several::Joint::sentences));
}

bool RowMenuModel::setSubject(RowsModel* list, int row)
{
    m_list = list;
    m_subject = list == nullptr ? std::nullopt : list->subject(row);
    resetRows(m_actions, actions());
    Q_EMIT subjectChanged();
    return !m_actions.empty();
}

std::vector<RowMenuModel::Action> RowMenuModel::actions() const
{
    if (!m_subject)
        return {};
    std::vector<Action> actions;
    if (m_subject->isThere)
        actions = {Preview, Reveal};
    actions.push_back(CopyPath);
    if (m_subject->isTickable)
        actions.push_back(TickFolder);
    if (m_subject->isCopy)
        actions.push_back(KeepFolder);
    if (m_subject->entry)
        actions.push_back(MoveToTrash);
    if (!m_subject->isOffered || isExcluded())
        return actions;
    std::ranges::copy_if(std::vector{ExcludePath, ExcludeFolder, ExcludeName}, std::back_inserter(actions),
                         [this](Action action) { return exclusionOf(action).has_value(); });
    return actions;
}

/// Whether it is on the list already, not only something inside it.
bool RowMenuModel::isExcluded() const
{
    const Exclusion* line = m_app.exclusions()->current().excludes(m_subject->path);
    return line != nullptr &&
           (line->kind == Exclusion::Kind::name || PathText::isAtOrBelow(m_subject->path, line->text));
}

std::optional<Exclusion> RowMenuModel::exclusionOf(Action action) const
{
    const std::string_view path = m_subject->path;
    switch (action) {
    case ExcludePath:
        return Exclusion::ofPath(path);
    case ExcludeFolder:
        // Not the whole home folder, and nothing that contains it.
        return PathText::isAtOrBelow(Places::current().home, PathText::parent(path))
                   ? std::nullopt
                   : Exclusion::ofPath(PathText::parent(path));
    case ExcludeName:
        return Exclusion::ofName(PathText::lastComponent(path));
    case Preview:
    case Reveal:
    case CopyPath:
    case TickFolder:
    case KeepFolder:
    case MoveToTrash:
        break;
    }
    return std::nullopt;
}

void RowMenuModel::choose(Action action)
{
    if (!m_subject || std::ranges::find(m_actions, action) == m_actions.end())
        return;
    switch (action) {
    case Preview:
        return;
    case Reveal:
        Reveal::show(m_subject->path);
        return;
    case CopyPath:
        QGuiApplication::clipboard()->setText(DisplayText::line(m_subject->path));
        return;
    case TickFolder:
        if (m_list != nullptr)
            m_list->tickIn(std::string(PathText::parent(m_subject->path)));
        return;
    case KeepFolder:
        m_app.results()->setKeepRule({.references = {std::string(PathText::parent(m_subject->path))}});
        return;
    case MoveToTrash:
        review();
        return;
    case ExcludePath:
    case ExcludeFolder:
    case ExcludeName:
        if (const auto line = exclusionOf(action))
            ExclusionChange::add(m_app, *line);
        return;
    }
}

void RowMenuModel::review()
{
    WindowState& window = WindowState::of(m_app);
    if (const QString reason = refusal(); !reason.isEmpty()) {
        window.say(reason);
        return;
    }
    CleanPlan plan;
    plan.title = WindowTexts::kDiskMap;
    plan.sections.push_back(
        {"map", WindowTexts::kDiskMap, "square.grid.3x3.fill", {*m_subject->entry}, std::nullopt});
    window.setSheet(PlanSheet{std::move(plan)});
}

QVariant RowMenuModel::value(std::size_t number, int role) const
{
    const Action action = m_actions[number];
    switch (static_cast<Role>(role)) {
    case Role::choice:
        return action;
    case Role::startsGroup:
        return action == TickFolder || action == MoveToTrash ||
               (action >= ExcludePath && m_actions[number - 1] < ExcludePath);
    }
    return {};
}

} // namespace orlen
