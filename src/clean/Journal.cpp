#include "clean/Journal.h"

#include "clean/Persist.h"
#include "clean/Reserve.h"
#include "platform/files/FileContent.h"
#include "platform/files/Folder.h"
#include "platform/files/OwnFile.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace orlen {

namespace {

using Json = nlohmann::ordered_json;

/// A clean-up whose journal would be longer is refused.
constexpr std::size_t kJournalLimit = 32'000'000;

std::optional<Journal::Item> itemOf(const Json& object)
{
    Journal::Item item;
    const auto number = [&](const char* key, auto& field) {
        const auto found = object.find(key);
        if (found == object.end() || !found->is_number_unsigned())
            return false;
        found->get_to(field);
        return true;
    };
    const auto path = object.find("path");
    if (path == object.end() || !path->is_string() || !number("size", item.size) || item.size < 0 ||
        !number("device", item.device) || !number("inode", item.identity.number))
        return std::nullopt;
    path->get_to(item.path);
    if (const auto born = object.find("born"); born != object.end() && born->is_number_integer())
        item.identity.born = TimePoint(TimePoint::duration(born->get<std::int64_t>()));
    return item;
}

Json encoded(const Journal::Item& item)
{
    Json object{
        {"path", item.path}, {"size", item.size}, {"device", item.device}, {"inode", item.identity.number}};
    if (item.identity.born)
        object["born"] = item.identity.born->time_since_epoch().count();
    return object;
}

std::optional<std::string> textOf(const Json& object, const char* key)
{
    const auto found = object.find(key);
    if (found == object.end() || !found->is_string())
        return std::nullopt;
    return found->get<std::string>();
}

std::string_view suffixOf(Journals::State state)
{
    switch (state) {
    case Journals::State::cleaning:
        return ".cleaning.json";
    case Journals::State::cleaned:
        return ".cleaned.json";
    case Journals::State::restoring:
        return ".restoring.json";
    }
    return "";
}

std::string journalFolder()
{
    return PathText::join(Persist::dir(), "journal");
}

std::string journalPath(const Uuid& id, Journals::State state)
{
    return PathText::join(journalFolder(), id.text().append(suffixOf(state)));
}

} // namespace

std::string Journal::text() const
{
    auto array = Json::array();
    for (const Item& item : items)
        array.push_back(encoded(item));
    const Json object{
        {"id", id.text()}, {"started", isoText(started)}, {"title", title}, {"items", std::move(array)}};
    return object.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::optional<Journal> Journal::parse(std::string_view text)
{
    const Json object = Json::parse(text, nullptr, false);
    if (!object.is_object())
        return std::nullopt;
    const auto id = Uuid::parse(textOf(object, "id").value_or(""));
    const auto started = timeFromIso(textOf(object, "started").value_or(""));
    auto title = textOf(object, "title");
    const auto items = object.find("items");
    if (!id || !started || !title || items == object.end() || !items->is_array())
        return std::nullopt;
    Journal journal{*id, *started, *std::move(title), {}};
    for (const Json& element : *items) {
        if (auto item = element.is_object() ? itemOf(element) : std::nullopt)
            journal.items.push_back(*std::move(item));
    }
    return journal;
}

namespace Journals {

Result<void> write(const Journal& journal, State state)
{
    const std::string text = journal.text();
    if (text.size() > kJournalLimit)
        return Errno{EFBIG};
    return Reserve::withRoom(Reserve::Use::record, [&]() -> Result<void> {
        if (const auto folder = Persist::makeDir(); !folder.ok())
            return Errno{folder.error()};
        if (const auto made = makeFolders(journalFolder(), 0700); !made.ok())
            return made;
        return OwnFile::replace(journalPath(journal.id, state), text);
    });
}

std::optional<Journal> read(const Uuid& id, State state)
{
    auto journal = Journal::parse(readSmallFile(journalPath(id, state), kJournalLimit).value_or(""));
    return journal && journal->id == id ? std::move(journal) : std::nullopt;
}

std::vector<Uuid> all(State state)
{
    const std::string_view suffix = suffixOf(state);
    std::vector<Uuid> ids;
    for (const std::string& name : listNames(journalFolder())) {
        if (!name.ends_with(suffix))
            continue;
        if (const auto id = Uuid::parse(std::string_view(name).substr(0, name.size() - suffix.size())))
            ids.push_back(*id);
    }
    return ids;
}

void remove(const Uuid& id, State state)
{
    (void)OwnFile::remove(journalPath(id, state));
}

void settle(const Uuid& id)
{
    (void)OwnFile::renameOver(journalPath(id, State::cleaning), id.text().append(suffixOf(State::cleaned)));
}

void removeUnfinished()
{
    OwnFile::removeUnfinished(journalFolder());
}

} // namespace Journals
} // namespace orlen
