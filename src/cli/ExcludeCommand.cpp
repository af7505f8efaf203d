#include "app/AppModel.h"
#include "app/Format.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/PathArgument.h"
#include "cli/Table.h"
#include "cli/Texts.h"
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

std::string shown(const Exclusion& exclusion)
{
    return isPath(exclusion) ? Format::shownPath(exclusion.text) : Format::quoted(exclusion.text);
}

void printLines(const Lines& lines)
{
    const Colours colours = Session::colours();
    Table table({{"", Table::Kind::text}, {"Excluded", Table::Kind::path}});
    for (const Exclusion& line : lines)
        table.addRow({{isPath(line) ? "Path" : "Name", Style::dim},
                      {isPath(line) ? Format::shownPath(line.text) : PathText::forDisplay(line.text)}});
    Session::print((lines.empty() ? std::string(Texts::kNothingExcluded) + "\n"
                                  : table.text(colours, Session::width())) +
                   '\n' + colours.styled(Style::dim, Texts::kHowToExclude) + '\n');
}

class ExcludeCommand final : public Command {
public:
    ExcludeCommand() : Command({"exclude", "Show and change what is never offered"}) {}

    void addOptions(CLI::App& app) override
    {
        m_add = addChange(app, "add", "Never offer a path and what is below it, or any entry of a name");
        m_remove = addChange(app, "remove", "Offer a path or a name again");
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
                return session.refuse(Texts::kOtherWriter);
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
    CLI::App* addChange(CLI::App& app, const char* name, const char* summary)
    {
        CLI::App* own = app.add_subcommand(name, summary);
        CLI::Option* path = own->add_option("PATH", m_path, "File or folder");
        own->add_option("--name", m_name, "Every file or folder of this name")->excludes(path);
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
            return session.refuse(shown(*wanted).append(Texts::kNotExcluded));
        if (done.error() == EFBIG)
            return session.refuse(Texts::kTooManyExclusions);
        if (!done.ok()) {
            session.complain(std::string(Texts::kExclusionsNotSaved) +
                             std::generic_category().message(done.error()) + '.');
            return ExitStatus::someFailed;
        }
        if (m_add->parsed() && isPath(*wanted) && !exists(wanted->text))
            session.complain(shown(*wanted).append(Texts::kExclusionNotThere));
        if (!wantsJson())
            Session::print(shown(*wanted).append(outcome(*wanted)) + '\n');
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

    [[nodiscard]] std::string problem() const
    {
        if (!m_name.empty())
            return Format::quoted(m_name).append(Texts::kNoName);
        return m_path.empty() ? std::string(Texts::kPathOrName)
                              : Format::quoted(m_path).append(Texts::kNoTextInDocument);
    }

    [[nodiscard]] std::string_view outcome(const Exclusion& exclusion) const
    {
        if (m_remove->parsed())
            return Texts::kNoLongerExcluded;
        return isPath(exclusion) ? Texts::kNowExcluded : Texts::kNameNowExcluded;
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
