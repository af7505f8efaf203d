#include "app/Format.h"
#include "cli/FolderSearch.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "cli/Texts.h"
#include "model/Rater.h"
#include "platform/text/ByteCount.h"
#include "scan/ScanProgress.h"
#include "scan/duplicates/Duplicates.h"
#include "scan/walk/Walk.h"

#include <algorithm>

namespace orlen {

namespace {

using Seconds = std::chrono::duration<double>;

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
        Session::print(std::string(Texts::kNoDuplicates) + '\n');
        return;
    }
    Table table({{"Size", Table::Kind::number}, {"", Table::Kind::text}, {"File", Table::Kind::path}});
    for (const Duplicates::Set& set : found.result.sets) {
        table.addGap();
        table.addRow({{byteCount(set.kept.size)}, {"keeps", Style::dim}, {Format::shownPath(set.kept.path)}});
        for (const Duplicates::Copy& copy : set.copies)
            table.addRow({{}, {"copy", Style::orange}, {Format::shownPath(copy.file.path)}});
    }
    const auto copies = static_cast<std::int64_t>(finding.items.size());
    Session::print(
        colours.styled(Style::bold, Format::counted(copies, "copy") + ", " + byteCount(finding.totalSize())) +
        '\n' +
        colours.styled(Style::dim, Format::counted(found.result.filesConsidered, "file") + " compared in " +
                                       Format::duration(found.duration.count())) +
        "\n\n" + table.text(colours, Session::width()));
}

class DuplicatesCommand final : public FolderCommand<Search> {
public:
    DuplicatesCommand()
        : FolderCommand(
              {"duplicates", "Find files with the same content below folders, or in the home folder"},
              "Folders to look into; the home folder when there are none")
    {
    }

private:
    [[nodiscard]] Search search(const std::vector<std::string>& folders, const Exclusions& exclusions,
                                ScanProgress& progress, const std::stop_token& stop) override
    {
        const auto started = std::chrono::steady_clock::now();
        const Walk::Found found = FolderSearch::walked(folders, progress, stop);
        Search search{Duplicates::find(input(found), stop)};
        dropCopies(search.result, exclusions);
        search.duration = std::chrono::steady_clock::now() - started;
        return search;
    }

    [[nodiscard]] JsonDocuments::Json document(const Search& found) const override
    {
        return JsonDocuments::duplicates(rated(found.result), found.result, found.duration);
    }

    void print(const Search& found) const override { printSets(found, rated(found.result)); }
};

} // namespace

std::unique_ptr<Command> makeDuplicatesCommand()
{
    return std::make_unique<DuplicatesCommand>();
}

} // namespace orlen
