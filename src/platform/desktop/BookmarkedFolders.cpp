#include "platform/desktop/BookmarkedFolders.h"

#include "platform/files/FileContent.h"
#include "platform/text/FileUri.h"
#include "platform/text/PathText.h"

#include <pugixml.hpp>

#include <algorithm>
#include <string_view>
#include <utility>

namespace orlen::BookmarkedFolders {

namespace {

constexpr std::size_t kLargestFile = 1024UL * 1024;

using Paths = std::vector<std::string>;

void add(Paths& paths, std::string_view address)
{
    if (const auto path = FileUri::path(address))
        paths.push_back(PathText::standardized(*path));
}

/// A line is an address and, after a space, a name.
void addLines(Paths& paths, std::string_view lines)
{
    while (!lines.empty()) {
        const std::string_view line = lines.substr(0, lines.find('\n'));
        lines.remove_prefix(std::min(lines.size(), line.size() + 1));
        add(paths, line.substr(0, line.find(' ')));
    }
}

bool isHidden(const pugi::xml_node& bookmark)
{
    for (const pugi::xml_node metadata : bookmark.child("info").children("metadata")) {
        if (std::string_view(metadata.child_value("IsHidden")) == "true")
            return true;
    }
    return false;
}

void addXbel(Paths& paths, std::string xml)
{
    pugi::xml_document document;
    if (!document.load_buffer_inplace(xml.data(), xml.size(), pugi::parse_default, pugi::encoding_utf8))
        return;
    for (const pugi::xml_node bookmark : document.child("xbel").children("bookmark")) {
        if (!isHidden(bookmark))
            add(paths, bookmark.attribute("href").value());
    }
}

} // namespace

Paths paths(const Places& places)
{
    Paths paths;
    for (const std::string& file : places.expand("{CONFIG}/gtk-3.0/bookmarks")) {
        if (const auto lines = readSmallFile(file, kLargestFile))
            addLines(paths, *lines);
    }
    for (const std::string& file : places.expand("{DATA}/user-places.xbel")) {
        if (auto xml = readSmallFile(file, kLargestFile))
            addXbel(paths, std::move(*xml));
    }
    return paths;
}

} // namespace orlen::BookmarkedFolders
