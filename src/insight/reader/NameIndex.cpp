#include "insight/reader/NameIndex.h"

#include "insight/reader/Lexicon.h"
#include "insight/reader/LowerName.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

/// Findings of a scan change as a whole: their sizes and ends tell them from others.
std::vector<std::size_t> signatureOf(const std::vector<Finding>& findings)
{
    const std::hash<std::string> hash;
    std::vector<std::size_t> signature;
    for (const Finding& finding : findings) {
        signature.push_back(static_cast<std::size_t>(finding.kind));
        signature.push_back(finding.items.size());
        if (!finding.items.empty()) {
            signature.push_back(hash(finding.items.front().path));
            signature.push_back(hash(finding.items.back().path));
        }
    }
    return signature;
}

std::string_view folderOf(std::string_view path)
{
    const std::string& home = Places::current().home;
    if (PathText::isAtOrBelow(path, home))
        path.remove_prefix(home.size());
    return path.substr(0, path.size() - PathText::lastComponent(path).size());
}

} // namespace

NameIndex::NameIndex(const std::vector<Finding>& findings)
{
    std::unordered_map<std::string_view, std::uint32_t> folders;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> uses; // word and item
    std::string lower;
    for (std::size_t i = 0; i < findings.size(); ++i) {
        for (std::size_t j = 0; j < findings[i].items.size(); ++j) {
            const std::string_view path = findings[i].items[j].path;
            const auto [folder, isNew] =
                folders.try_emplace(folderOf(path), static_cast<std::uint32_t>(m_folders.size()));
            if (isNew)
                m_folders.push_back(AskReader::lowered(folder->first));
            AskReader::lowerInto(lower, PathText::lastComponent(path));
            const auto item = static_cast<std::uint32_t>(m_items.size());
            m_items.push_back({{static_cast<std::uint32_t>(i), static_cast<std::uint32_t>(j)},
                               folder->second,
                               static_cast<std::uint32_t>(lower.size())});
            AskReader::anyWord(lower, [&](std::string_view word) {
                uses.emplace_back(idOf(word), item);
                return false;
            });
        }
    }
    m_firstUses.assign(m_starts.size() + 1, 0);
    for (const auto& [word, item] : uses)
        ++m_firstUses[word + 1];
    for (std::size_t i = 1; i < m_firstUses.size(); ++i)
        m_firstUses[i] += m_firstUses[i - 1];
    m_uses.resize(uses.size());
    std::vector<std::size_t> next = m_firstUses;
    for (const auto& [word, item] : uses)
        m_uses[next[word]++] = item;
}

std::uint32_t NameIndex::idOf(std::string_view word)
{
    if (const auto known = m_ids.find(word); known != m_ids.end())
        return known->second;
    const auto id = static_cast<std::uint32_t>(m_starts.size());
    m_starts.push_back(static_cast<std::uint32_t>(m_text.size()));
    m_text.append(word).push_back('\n');
    m_ids.emplace(word, id);
    return id;
}

std::string_view NameIndex::word(std::size_t id) const
{
    const std::size_t end = id + 1 < m_starts.size() ? m_starts[id + 1] : m_text.size();
    return std::string_view(m_text).substr(m_starts[id], end - m_starts[id] - 1);
}

NameIndex::IDs NameIndex::holding(std::string_view part) const
{
    IDs ids;
    for (std::size_t at = m_text.find(part); at != std::string::npos;) {
        const auto next = std::ranges::upper_bound(m_starts, at);
        ids.push_back(static_cast<std::size_t>(next - m_starts.begin()) - 1);
        at = next == m_starts.end() ? std::string::npos : m_text.find(part, *next);
    }
    return ids;
}

NameIndex::IDs NameIndex::like(std::string_view wanted, bool mayBeMistyped) const
{
    IDs ids;
    if (!mayBeMistyped) {
        if (const auto known = m_ids.find(wanted); known != m_ids.end())
            ids.push_back(known->second);
        return ids;
    }
    for (std::size_t id = 0; id < m_starts.size(); ++id) {
        const std::string_view each = word(id);
        if (each.size() + 1 >= wanted.size() && each.size() <= wanted.size() + 1 &&
            (each == wanted || AskReader::isOneLetterApart(wanted, each)))
            ids.push_back(id);
    }
    return ids;
}

void NameIndex::markItems(Marks& marks, const IDs& words) const
{
    for (const std::size_t id : words) {
        for (std::size_t i = m_firstUses[id]; i < m_firstUses[id + 1]; ++i)
            marks[m_uses[i]] = 1;
    }
}

std::vector<NameIndex::Place> NameIndex::marked(const Marks& marks) const
{
    std::vector<Place> places;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        if (marks[i] != 0)
            places.push_back(m_items[i].place);
    }
    return places;
}

std::vector<NameIndex::Place> NameIndex::withWords(std::span<const std::string> words) const
{
    Marks all(m_items.size(), words.empty() ? 0 : 1);
    std::vector<std::uint8_t> folders(m_folders.size());
    for (const std::string& wanted : words) {
        Marks marks(m_items.size());
        markItems(marks, like(wanted, false));
        std::ranges::transform(m_folders, folders.begin(), [&](const std::string& folder) {
            return static_cast<std::uint8_t>(AskReader::holdsWord(folder, wanted));
        });
        const bool isInFolder = std::ranges::find(folders, 1) != folders.end();
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            const bool fits = marks[i] != 0 || (isInFolder && folders[m_items[i].folder] != 0);
            all[i] = all[i] != 0 && fits ? 1 : 0;
        }
    }
    return marked(all);
}

std::vector<NameIndex::Place> NameIndex::withParts(std::span<const std::string> words) const
{
    Marks all(m_items.size(), words.empty() ? 0 : 1);
    for (const std::string& wanted : words) {
        Marks marks(m_items.size());
        markItems(marks, holding(wanted));
        std::ranges::transform(all, marks, all.begin(), std::bit_and<>());
    }
    return marked(all);
}

std::vector<NameIndex::Place> NameIndex::mistyped(std::string_view name, std::span<const std::string> words,
                                                  std::size_t shortest) const
{
    if (words.empty())
        return {};
    Marks all(m_items.size(), 1);
    for (const std::string& wanted : words) {
        Marks marks(m_items.size());
        markItems(marks, like(wanted, wanted.size() >= shortest));
        std::ranges::transform(all, marks, all.begin(), std::bit_and<>());
    }
    Marks near(m_items.size());
    markItems(near, like(*std::ranges::max_element(words, {}, &std::string::size), true));
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        const std::size_t length = m_items[i].length;
        if (near[i] != 0 && length + 1 >= name.size() && length <= name.size() + 1)
            all[i] = 1;
    }
    return marked(all);
}

std::shared_ptr<const NameIndex> NameCache::of(const std::vector<Finding>& findings)
{
    const std::lock_guard lock(m_mutex);
    keepFor(findings);
    if (!m_index)
        m_index = std::make_shared<const NameIndex>(findings);
    return m_index;
}

std::shared_ptr<const Overlaps> NameCache::overlapsOf(const std::vector<Finding>& findings)
{
    const std::lock_guard lock(m_mutex);
    keepFor(findings);
    if (!m_overlaps)
        m_overlaps = std::make_shared<const Overlaps>(findings);
    return m_overlaps;
}

void NameCache::keepFor(const std::vector<Finding>& findings)
{
    std::vector<std::size_t> signature = signatureOf(findings);
    if (signature == m_signature)
        return;
    m_signature = std::move(signature);
    m_index = nullptr;
    m_overlaps = nullptr;
}

std::shared_ptr<const HomeNames> NameCache::of(const std::shared_ptr<const HomeFiles>& home)
{
    const std::lock_guard lock(m_mutex);
    if (m_home != home) {
        m_homeNames = std::make_shared<const HomeNames>(home);
        m_home = home;
    }
    return m_homeNames;
}

} // namespace orlen
