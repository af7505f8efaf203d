#include "app/AppModel.h"
#include "app/AppTexts.h"
#include "app/Format.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/PathArgument.h"
#include "cli/Table.h"
#include "model/Words.h"
#include "platform/files/FileStatus.h"
#include "platform/text/PathText.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <system_error>

namespace orlen {

namespace {

using Lines = std::vector<Exclusion>;

bool isPath(const Exclusion& exclusion)
{
    return exclusion.kind == Exclusion::Kind::path;
}

/// The place of a sentence that names a path or a name.
Place what(const Exclusion& exclusion)
{
    return {"what", isPath(exclusion) ? Format::shownPath(exclusion.text) : Format::quoted(exclusion.text)};
}

void printLines(const Lines& lines)
{
    const Colours colours = Session::colours();
    Table table({{"", Table::Kind::text}, {shown(CliTexts::kExcludedHeading), Table::Kind::path}});
    for (const Exclusion& line : lines)
        table.addRow({{shown(isPath(line) ? AppTexts::kPath : AppTexts::kName), Style::dim},
                      {isPath(line) ? Format::shownPath(line.text) : PathText::forDisplay(line.text)}});
    Session::print(
        (lines.empty() ? shown(AppTexts::kNothingExcluded) + '\n' : table.text(colours, Session::width())) +
        '\n' + colours.styled(Style::dim, shown(CliTexts::kHowToExclude)) + '\n');
}

class ExcludeCommand final : public Command {
public:
    ExcludeCommand() : Command({"exclude", CliTexts::kExcludeSummary}) {}

    void addOptions(CLI::App& app) override
    {
        m_add = addChange(app, "add", CliTexts::kAddSummary);
        m_remove = addChange(app, "remove", CliTexts::kRemoveSummary);
        app.require_subcommand(0, 1);
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        const bool isChange = m_add->parsed() || m_remove->parsed();
        AppModel model({AppModel::Startup::filesOnly,
                        isChange ? AppModel::Access::writer : AppModel::Access::reader,
                        {}});
        session.complain(model.notices());
        const ExclusionList& list = *model.exclusions();
        if (isChange) {
            if (!model.isWriter())
                return session.refuse(CliTexts::kOtherWriter);
            if (const ExitStatus status = change(session, *model.exclusions()); status != ExitStatus::done)
                return status;
        }
        if (wantsJson())
            Session::printDocument(JsonDocuments::exclusions(list.current().lines()));
        else if (!isChange)
            printLines(list.current().lines());
        return ExitStatus::done;
    }

private:
    CLI::App* addChange(CLI::App& app, const char* name, const Text& summary)
    {
        CLI::App* own = app.add_subcommand(name, shown(summary));
        CLI::Option* path = own->add_option("PATH", m_path, shown(CliTexts::kPathHelp));
        own->add_option("--name", m_name, shown(CliTexts::kEveryNameHelp))->excludes(path);
        own->fallthrough();
        return own;
    }

    [[nodiscard]] ExitStatus change(Session& session, ExclusionList& list)
    {
        const auto wanted = m_name.empty() ? pathLine(list.current().lines()) : Exclusion::ofName(m_name);
        if (!wanted)
            return session.refuse(problem());
        const auto done = m_add->parsed() ? list.add(*wanted) : list.remove(*wanted);
        if (done.error() == ENOENT && m_remove->parsed())
            return session.refuse({CliTexts::kNotExcluded, {what(*wanted)}});
        if (done.error() == EFBIG)
            return session.refuse(CliTexts::kTooManyExclusions);
        if (!done.ok()) {
            session.complain(
                {CliTexts::kExclusionsNotSaved, {{"error", std::generic_category().message(done.error())}}});
            return ExitStatus::someFailed;
        }
        if (m_add->parsed() && isPath(*wanted) && !exists(wanted->text))
            session.complain({CliTexts::kExclusionNotThere, {what(*wanted)}});
        if (!wantsJson())
            Session::print(m_remove->parsed() ? AppTexts::noLongerExcluded(*wanted)
                                              : AppTexts::nowExcluded(*wanted));
        return ExitStatus::done;
    }

    /// A line is removed by the path it shows, even if links lead elsewhere by now.
    [[nodiscard]] std::optional<Exclusion> pathLine(const Lines& lines) const
    {
        auto asGiven = Exclusion::ofPath(PathArgument::absolute(m_path));
        if (m_remove->parsed() && asGiven && std::ranges::find(lines, *asGiven) != lines.end())
            return asGiven;
        return Exclusion::ofPath(PathArgument::located(m_path));
    }

    [[nodiscard]] Message problem() const
    {
        if (!m_name.empty())
            return {CliTexts::kNoName, {{"what", Format::quoted(m_name)}}};
        if (m_path.empty())
            return CliTexts::kPathOrName;
        return {CliTexts::kNoTextInDocument, {{"path", Format::quoted(m_path)}}};
    }

    std::string m_path;
    std::string m_name;
    CLI::App* m_add = nullptr; ///< owned by the main parser
    CLI::App* m_remove = nullptr;
};

} // namespace

std::unique_ptr<Command> makeExcludeCommand()
{
    return std::make_unique<ExcludeCommand>();
}

} // namespace orlen
