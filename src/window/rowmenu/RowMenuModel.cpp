#include "window/rowmenu/RowMenuModel.h"

#include "app/ExplanationText.h"
#include "clean/Safety.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "window/WindowTexts.h"
#include "window/findings/KeptFolders.h"
#include "window/lists/DisplayText.h"
#include "window/lists/PathCode.h"
#include "window/rowmenu/ExclusionChange.h"
#include "window/shell/Reveal.h"
#include "window/shell/WindowState.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <string_view>

namespace orlen {

namespace {

constexpr int kMostFolders = 3;

/// A line stands between two groups.
int groupOf(RowMenuModel::Action action)
{
    switch (action) {
    case RowMenuModel::Preview:
    case RowMenuModel::Reveal:
    case RowMenuModel::CopyPath:
        return 0;
    case RowMenuModel::TickFolder:
        return 1;
    case RowMenuModel::KeepFolder:
    case RowMenuModel::AlwaysKeep:
        return 2;
    case RowMenuModel::MoveToTrash:
        return 3;
    case RowMenuModel::ExcludePath:
    case RowMenuModel::ExcludeFolder:
    case RowMenuModel::ExcludeName:
        break;
    }
    return 4;
}

} // namespace

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
    resetRows(m_choices, choices());
    Q_EMIT subjectChanged();
    return !m_choices.empty();
}

std::vector<RowMenuModel::Choice> RowMenuModel::choices() const
{
    if (!m_subject)
        return {};
    std::vector<Choice> choices;
    if (m_subject->isThere)
        choices = {{Preview, {}}, {Reveal, {}}};
    choices.push_back({CopyPath, {}});
    if (m_subject->isTickable)
        choices.push_back({TickFolder, {}});
    if (m_subject->isCopy)
        addFolders(choices);
    if (m_subject->entry)
        choices.push_back({MoveToTrash, {}});
    if (!m_subject->isOffered || isExcluded())
        return choices;
    for (const Action action : {ExcludePath, ExcludeFolder, ExcludeName}) {
        if (exclusionOf(action))
            choices.push_back({action, {}});
    }
    return choices;
}

/// The nearest folders around the item, none of which holds the whole home folder.
void RowMenuModel::addFolders(std::vector<Choice>& choices) const
{
    std::string_view folder = PathText::parent(m_subject->path);
    const std::string_view nearest = folder;
    for (int number = 0; number < kMostFolders && folder.size() > 1; ++number) {
        if (PathText::isAtOrBelow(Places::current().home, folder))
            break;
        choices.push_back({KeepFolder, std::string(folder)});
        folder = PathText::parent(folder);
    }
    if (folder != nearest)
        choices.push_back({AlwaysKeep, std::string(nearest)});
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
    case AlwaysKeep:
    case MoveToTrash:
        break;
    }
    return std::nullopt;
}

void RowMenuModel::choose(Action action, const QString& place)
{
    const auto chosen = std::ranges::find_if(m_choices, [&](const Choice& choice) {
        return choice.action == action && (place.isEmpty() || choice.folder == PathCode::path(place));
    });
    if (!m_subject || chosen == m_choices.end())
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
        KeptFolders::prefer(*m_app.results(), chosen->folder);
        return;
    case AlwaysKeep:
        KeptFolders::setAlways(*m_app.results(), chosen->folder, true);
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
    const auto& [action, folder] = m_choices[number];
    switch (static_cast<Role>(role)) {
    case Role::choice:
        return action;
    case Role::folder:
        return DisplayText::nameOf(folder);
    case Role::place:
        return PathCode::of(folder);
    case Role::startsGroup:
        return number > 0 && groupOf(action) != groupOf(m_choices[number - 1].action);
    }
    return {};
}

} // namespace orlen
