#include "insight/reader/Overlaps.h"

#include <string_view>
#include <unordered_map>

namespace orlen {

namespace {

std::string_view folderAbove(std::string_view path)
{
    const std::size_t end = path.rfind('/');
    return end == std::string_view::npos ? std::string_view() : path.substr(0, end);
}

} // namespace

Overlaps::Overlaps(const std::vector<Finding>& findings) : m_marks(findings.size())
{
    std::size_t count = 0;
    for (const Finding& finding : findings)
        count += finding.items.size();
    std::unordered_map<std::string_view, Marks*> first;
    first.reserve(count);
    for (std::size_t i = 0; i < findings.size(); ++i) {
        m_marks[i].resize(findings[i].items.size());
        for (std::size_t k = 0; k < m_marks[i].size(); ++k) {
            const auto [known, isNew] = first.try_emplace(findings[i].items[k].path, &m_marks[i][k]);
            if (!isNew) {
                known->second->isShared = true;
                m_marks[i][k].isShared = true;
            }
        }
    }
    // Neighbours mostly lie in one folder.
    std::string_view lastFolder;
    bool isListed = false;
    for (std::size_t i = 0; i < findings.size(); ++i) {
        for (std::size_t k = 0; k < m_marks[i].size(); ++k) {
            std::string_view folder = folderAbove(findings[i].items[k].path);
            if (folder != lastFolder) {
                lastFolder = folder;
                while (!folder.empty() && !first.contains(folder))
                    folder = folderAbove(folder);
                isListed = !folder.empty();
            }
            m_marks[i][k].isInside = isListed;
        }
    }
}

bool Overlaps::isShared(const std::vector<Finding>& findings, const Finding& finding,
                        const FileEntry& entry) const
{
    return marksOf(findings, finding, entry).isShared;
}

bool Overlaps::isInside(const std::vector<Finding>& findings, const Finding& finding,
                        const FileEntry& entry) const
{
    return marksOf(findings, finding, entry).isInside;
}

const Overlaps::Marks& Overlaps::marksOf(const std::vector<Finding>& findings, const Finding& finding,
                                         const FileEntry& entry) const
{
    const auto i = static_cast<std::size_t>(&finding - findings.data());
    return m_marks[i][static_cast<std::size_t>(&entry - finding.items.data())];
}

} // namespace orlen
