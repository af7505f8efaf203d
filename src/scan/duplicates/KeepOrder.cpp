#include "scan/duplicates/KeepOrder.h"

#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

/// Characters of UTF-8 text: all bytes but continuation bytes.
std::ptrdiff_t characters(const std::string& text)
{
    return std::ranges::count_if(text,
                                 [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
}

} // namespace

KeepOrder::KeepOrder(const Places& places, KeepRule rule)
    : m_rule(std::move(rule)), m_downloads{places.home + "/Downloads/"}
{
    if (!places.downloads.empty())
        m_downloads.push_back(places.downloads + "/");
}

bool KeepOrder::isDownload(const std::string& path) const
{
    return std::ranges::any_of(m_downloads,
                               [&](const std::string& folder) { return path.starts_with(folder); });
}

bool KeepOrder::isReference(const std::string& path) const
{
    return std::ranges::any_of(
        m_rule.references, [&](const std::string& folder) { return PathText::isAtOrBelow(path, folder); });
}

std::strong_ordering KeepOrder::byPlace(const std::string& a, const std::string& b) const
{
    if (const auto order = isReference(b) <=> isReference(a); std::is_neq(order) || m_rule.folder.empty())
        return order;
    return PathText::isAtOrBelow(b, m_rule.folder) <=> PathText::isAtOrBelow(a, m_rule.folder);
}

bool KeepOrder::operator()(const Cand& a, const Cand& b) const
{
    if (const auto order = byPlace(a.path, b.path); std::is_neq(order))
        return std::is_lt(order);
    if (m_rule.order == KeepRule::Order::newest && a.modified != b.modified)
        return a.modified > b.modified;
    if (m_rule.order == KeepRule::Order::oldest && a.modified != b.modified)
        return a.modified < b.modified;
    if (m_rule.order == KeepRule::Order::shortest && characters(a.path) != characters(b.path))
        return characters(a.path) < characters(b.path);
    if (const bool isDownloadA = isDownload(a.path); isDownloadA != isDownload(b.path))
        return !isDownloadA;
    const auto lengthA = characters(a.path);
    const auto lengthB = characters(b.path);
    if (lengthA != lengthB)
        return lengthA < lengthB;
    if (a.modified != b.modified)
        return a.modified < b.modified;
    return a.path < b.path;
}

} // namespace orlen
