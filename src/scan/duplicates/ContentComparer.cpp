#include "scan/duplicates/ContentComparer.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace orlen {

namespace {

// Large enough to keep the disk busy, small enough that the blocks of two files stay in the processor's cache
// between reading and comparing.
constexpr std::int64_t kBlock = 262'144;
constexpr auto kStride = static_cast<std::size_t>(kBlock);

void dropLone(std::vector<ContentComparer::Same>& groups)
{
    std::erase_if(groups, [](const ContentComparer::Same& group) { return group.size() < 2; });
}

} // namespace

std::vector<ContentComparer::Same> ContentComparer::identical(std::span<const Suspect> suspects,
                                                              const Watch& watch)
{
    m_files.clear();
    Same opened;
    for (const Suspect& suspect : suspects) {
        auto file = open(suspect);
        if (file) {
            announceSequentialRead(file->get());
            opened.push_back(m_files.size());
        }
        m_files.push_back({file ? std::move(*file) : UniqueFd(), {}});
    }
    m_buffer.resize(std::max(m_buffer.size(), suspects.size() * kStride));
    const std::int64_t length = suspects.front().seen.length;
    std::vector<Same> groups{std::move(opened)};
    dropLone(groups);
    for (std::int64_t offset = 0; !groups.empty();) {
        if (m_stop.stop_requested())
            return {};
        const FileRange next = nextBlock(groups, offset, length);
        if (next.start >= length)
            break;
        groups =
            splitByNextBlock(std::move(groups), next.start, static_cast<std::size_t>(next.end - next.start));
        offset = next.end;
        watch(offset);
    }
    for (Same& group : groups)
        std::erase_if(group, [&](std::size_t i) { return !isUnchanged(m_files[i].fd, suspects[i]); });
    dropLone(groups);
    m_files.clear();
    return groups;
}

/// Also drops files whose data ranges cannot be read.
FileRange ContentComparer::nextBlock(std::vector<Same>& groups, std::int64_t offset, std::int64_t length)
{
    FileRange next{length, length};
    for (Same& group : groups) {
        std::erase_if(group, [&](std::size_t i) { return !findData(m_files[i], offset, length); });
        for (const std::size_t i : group)
            next.start = std::min(next.start, std::max(offset, m_files[i].data.start));
    }
    dropLone(groups);
    // Up to the end of the data that starts here: gaps common to all are not read.
    next.end = next.start;
    for (const Same& group : groups) {
        for (const std::size_t i : group) {
            if (m_files[i].data.start <= next.start)
                next.end = std::max(next.end, m_files[i].data.end);
        }
    }
    next.end = std::min(next.end, next.start + std::min(kBlock, length - next.start));
    return next;
}

bool ContentComparer::findData(Open& file, std::int64_t offset, std::int64_t length) const
{
    if (offset < file.data.end || file.data.start >= length)
        return true;
    const auto data = nextData(file.fd.get(), offset, length);
    if (data.ok())
        file.data = data.value().value_or(FileRange{length, length});
    return data.ok();
}

std::vector<ContentComparer::Same> ContentComparer::splitByNextBlock(std::vector<Same> groups,
                                                                     std::int64_t offset, std::size_t length)
{
    std::vector<Same> after;
    for (Same& group : groups) {
        std::erase_if(group, [&](std::size_t i) {
            const auto got = readAt(m_files[i].fd.get(), offset, std::span(block(i), length));
            m_bytesRead += got.ok() ? static_cast<std::int64_t>(got.value()) : 0;
            return !got.ok() || got.value() < length;
        });
        std::ranges::move(split(group, length), std::back_inserter(after));
    }
    dropLone(after);
    return after;
}

/// Splits a group by the blocks in memory.
std::vector<ContentComparer::Same> ContentComparer::split(const Same& files, std::size_t length)
{
    std::vector<Same> groups;
    for (const std::size_t i : files) {
        const auto group = std::ranges::find_if(groups, [&](const Same& candidate) {
            return std::memcmp(block(candidate.front()), block(i), length) == 0;
        });
        if (group == groups.end())
            groups.push_back({i});
        else
            group->push_back(i);
    }
    return groups;
}

std::byte* ContentComparer::block(std::size_t index)
{
    return m_buffer.data() + index * kStride;
}

} // namespace orlen
