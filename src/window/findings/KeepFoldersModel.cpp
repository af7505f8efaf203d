#include "window/findings/KeepFoldersModel.h"

#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "window/findings/KeptFolders.h"
#include "window/lists/DisplayText.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace orlen {

namespace {

constexpr std::size_t kMostFolders = 10;

/// How many files of sets lie at or below each folder of the home folder.
using Counts = std::unordered_map<std::string_view, int>;

void count(Counts& counts, std::string_view path)
{
    for (std::string_view folder = PathText::parent(path);
         folder.size() > 1 && !PathText::isAtOrBelow(Places::current().home, folder);
         folder = PathText::parent(folder))
        ++counts[folder];
}

} // namespace

KeepFoldersModel::KeepFoldersModel(AppModel& app) : m_app(app)
{
    connect(m_app.results(), &Results::keepRuleChanged, this, &KeepFoldersModel::chosenChanged);
}

int KeepFoldersModel::chosenCount() const
{
    return static_cast<int>(m_app.results()->keepRule().references.size());
}

/// Of a folder and the one that it is in, with the same files, only the inner one.
std::vector<std::string> KeepFoldersModel::others() const
{
    Counts counts;
    std::unordered_set<std::string_view> kept;
    for (const Finding& finding : m_app.results()->findings()) {
        if (finding.id() != m_findingId.toStdString())
            continue;
        for (const FileEntry& entry : finding.items) {
            count(counts, entry.path);
            if (entry.kept && kept.insert(entry.kept->path).second)
                count(counts, entry.kept->path);
        }
    }
    std::vector<std::pair<int, std::string_view>> folders;
    std::unordered_set<std::string_view> same;
    for (const auto& [folder, files] : counts) {
        const auto outer = counts.find(PathText::parent(folder));
        if (outer != counts.end() && outer->second == files)
            same.insert(outer->first);
    }
    for (const auto& [folder, files] : counts) {
        if (!same.contains(folder) && !KeptFolders::isAlways(*m_app.results(), std::string(folder)))
            folders.emplace_back(-files, folder);
    }
    std::ranges::sort(folders);
    folders.resize(std::min(folders.size(), kMostFolders));
    std::vector<std::string> others;
    others.reserve(folders.size());
    for (const auto& [files, folder] : folders)
        others.emplace_back(folder);
    std::ranges::sort(others);
    return others;
}

void KeepFoldersModel::refresh()
{
    std::vector<std::string> folders = m_app.results()->keepRule().references;
    for (std::string& folder : others())
        folders.push_back(std::move(folder));
    resetRows(m_folders, std::move(folders));
}

void KeepFoldersModel::toggle(int row)
{
    if (!hasRow(row))
        return;
    const std::string folder = m_folders[static_cast<std::size_t>(row)];
    KeptFolders::setAlways(*m_app.results(), folder, !KeptFolders::isAlways(*m_app.results(), folder));
}

QVariant KeepFoldersModel::value(std::size_t number, int role) const
{
    const std::string& folder = m_folders[number];
    const auto isChosen = [this](const std::string& one) {
        return KeptFolders::isAlways(*m_app.results(), one);
    };
    switch (static_cast<Role>(role)) {
    case Role::place:
        return DisplayText::shortPath(folder);
    case Role::chosen:
        return isChosen(folder);
    case Role::startsGroup:
        return number > 0 && isChosen(m_folders[number - 1]) && !isChosen(folder);
    }
    return {};
}

} // namespace orlen
