#include "app/Format.h"
#include "cli/CliTexts.h"
#include "cli/FolderSearch.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "model/Rater.h"
#include "model/Words.h"
#include "scan/ScanProgress.h"
#include "scan/duplicates/Duplicates.h"
#include "scan/walk/Walk.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace orlen {

namespace {

using Seconds = std::chrono::duration<double>;

const std::map<std::string, KeepRule::Order> kOrders{{"newest", KeepRule::Order::newest},
                                                     {"oldest", KeepRule::Order::oldest},
                                                     {"shortest", KeepRule::Order::shortest}};
constexpr std::int64_t kSmallestCandidate = 1'000'000;

/// Larger images are already among the candidates.
std::vector<Cand> input(Walk::Found found)
{
    std::vector<Cand> cands = std::move(found.cands);
    std::copy_if(found.images.begin(), found.images.end(), std::back_inserter(cands),
                 [](const Cand& image) { return image.size < kSmallestCandidate; });
    return cands;
}

/// An excluded file is no copy to remove, but may be the one that is kept.
void dropCopies(Duplicates::Result& result, const Exclusions& exclusions)
{
    for (Duplicates::Set& set : result.sets) {
        std::erase_if(set.copies, [&](const Duplicates::Copy& copy) {
            return exclusions.excludes(copy.file.path) != nullptr;
        });
    }
    std::erase_if(result.sets, [](const Duplicates::Set& set) { return set.copies.empty(); });
}

struct Search {
    Duplicates::Result result;
    Seconds duration{0};
};

/// Rated as in a scan.
Finding rated(const Duplicates::Result& result)
{
    return Rater::rate({Duplicates::finding(result)}).front();
}

void printSets(const Search& found, const Finding& finding)
{
    const Colours colours = Session::colours();
    if (found.result.sets.empty()) {
        Session::print(CliTexts::kNoDuplicates);
        return;
    }
    Table table({{shown(CliTexts::kSizeHeading), Table::Kind::number},
                 {"", Table::Kind::text},
                 {shown(CliTexts::kFileHeading), Table::Kind::path}});
    for (const Duplicates::Set& set : found.result.sets) {
        table.addGap();
        table.addRow({{Words::figures().bytes(set.kept.size)},
                      {shown(CliTexts::kKeeps), Style::dim},
                      {Format::shownPath(set.kept.path)}});
        for (const Duplicates::Copy& copy : set.copies)
            table.addRow({{}, {shown(CliTexts::kCopy), Style::orange}, {Format::shownPath(copy.file.path)}});
    }
    const Message copies{CliTexts::kCopies,
                         {{"count", std::ssize(finding.items)}, {"size", Bytes{finding.totalSize()}}}};
    const Message compared{CliTexts::kComparedIn,
                           {{"count", found.result.filesConsidered}, {"time", found.duration}}};
    Session::print(colours.styled(Style::bold, shown(copies)) + '\n' +
                   colours.styled(Style::dim, shown(compared)) + "\n\n" +
                   table.text(colours, Session::width()));
}

class DuplicatesCommand final : public FolderCommand<Search> {
public:
    DuplicatesCommand()
        : FolderCommand({"duplicates", CliTexts::kDuplicatesSummary}, CliTexts::kDuplicateFoldersHelp)
    {
    }

    void addOptions(CLI::App& app) override
    {
        FolderCommand::addOptions(app);
        app.add_option("--keep", m_keep, shown(CliTexts::kKeepHelp))
            ->type_name("newest|oldest|shortest")
            ->check([](const std::string& word) {
                return kOrders.contains(word) ? std::string() : shown(CliTexts::kNoOrder);
            });
        app.add_option("--keep-in", m_folder, shown(CliTexts::kKeepInHelp))->type_name("DIR");
        app.add_option("--reference", m_references, shown(CliTexts::kReferenceHelp))->type_name("DIR");
    }

private:
    [[nodiscard]] bool takeOptions(Session& session, std::vector<std::string>& folders) override
    {
        auto references = FolderSearch::checked(session, m_references);
        const auto kept = FolderSearch::checked(session, m_folder.empty() ? std::vector<std::string>()
                                                                          : std::vector{m_folder});
        if (!references || !kept)
            return false;
        if (!kept->empty())
            m_rule.folder = kept->back();
        m_rule.references = std::move(*references);
        if (!m_keep.empty())
            m_rule.order = kOrders.at(m_keep);
        // Without folders the whole home folder is looked into.
        if (!folders.empty())
            folders.insert(folders.end(), m_rule.references.begin(), m_rule.references.end());
        return true;
    }

    [[nodiscard]] Search search(const std::vector<std::string>& folders, const Exclusions& exclusions,
                                ScanProgress& progress, const std::stop_token& stop) override
    {
        const auto started = std::chrono::steady_clock::now();
        const Walk::Found found = FolderSearch::walked(folders, progress, stop);
        Search search{Duplicates::find(input(found), stop, m_rule, &progress)};
        dropCopies(search.result, exclusions);
        search.duration = std::chrono::steady_clock::now() - started;
        return search;
    }

    [[nodiscard]] JsonDocuments::Json document(const Search& found) const override
    {
        return JsonDocuments::duplicates(rated(found.result), found.result, found.duration);
    }

    void print(const Search& found) const override { printSets(found, rated(found.result)); }

    std::string m_keep;
    std::string m_folder;
    std::vector<std::string> m_references;
    KeepRule m_rule;
};

} // namespace

std::unique_ptr<Command> makeDuplicatesCommand()
{
    return std::make_unique<DuplicatesCommand>();
}

} // namespace orlen
