#include "insight/reader/NameReplies.h"

#include "insight/AskText.h"
#include "insight/reader/Names.h"
#include "platform/files/Places.h"
#include "platform/text/ByteCount.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orlen::AskReader {

namespace {

constexpr std::size_t kListed = 6;

/// Words for places that no scan lists because rules protect them.
struct KnownPlace {
    std::string_view words; ///< phrases, separated by commas
    std::string_view pattern;
};

constexpr KnownPlace kKnownPlaces[] = {
    {"ssh,ssh keys,ssh key,.ssh", "{H}/.ssh"},
    {"gpg,gpg keys,gpg key,pgp keys,.gnupg", "{H}/.gnupg"},
    {"firefox,firefox profile,firefox profiles,firefox bookmarks,.mozilla", "{H}/.mozilla"},
    {"chrome profile,chrome bookmarks", "{CONFIG}/google-chrome"},
    {"chromium profile,chromium bookmarks", "{CONFIG}/chromium"},
    {"thunderbird,thunderbird mail,thunderbird profile,emails,email,mails", "{H}/.thunderbird"},
    {"keyring,keyrings,passwords,saved passwords", "{DATA}/keyrings"},
    {".config", "{CONFIG}"},
    {".local/share", "{DATA}"},
};

bool isListed(std::string_view phrases, std::string_view phrase)
{
    while (!phrases.empty()) {
        const std::size_t end = std::min(phrases.find(','), phrases.size());
        if (phrases.substr(0, end) == phrase)
            return true;
        phrases.remove_prefix(std::min(end + 1, phrases.size()));
    }
    return false;
}

Protection protectionOf(const AskContext& context, std::string_view path)
{
    return context.protection ? context.protection(path) : Protection::none;
}

std::string protectedText(std::string_view path, Protection protection)
{
    return tilde(path) + " is protected, because it belongs to “" + std::string(label(protection)) +
           "”: " + std::string(reason(protection)) + " Orlen never moves it.";
}

std::string outcome(const AskContext& context, const Hit& hit)
{
    if (const Protection protection = protectionOf(context, hit.entry->path); protection != Protection::none)
        return "It is protected, because it belongs to “" + std::string(label(protection)) +
               "”: " + std::string(reason(protection));
    if (!hit.finding->cleanable)
        return "It is already in the Trash; Orlen never empties it for you.";
    if (hit.finding->effectiveRating(*hit.entry) == Rating::keep)
        return "Better leave it where it is. A clean-up would move it to the Trash, and History could put it "
               "back.";
    return "A clean-up moves it to the Trash, and History can put it back.";
}

std::string ratingText(const Hit& hit)
{
    std::string text = "rated " + std::string(label(hit.finding->effectiveRating(*hit.entry)));
    if (hit.entry->note)
        text += " (" + PathText::forDisplay(*hit.entry->note) + ")";
    return text;
}

std::string described(const AskContext& context, const Hit& hit)
{
    return AskText::sized(AskText::fileName(*hit.entry), hit.entry->size) + " in " +
           tilde(PathText::parent(hit.entry->path)) + ", listed under “" + hit.finding->title + "”, is " +
           ratingText(hit) + ". " + hit.finding->reason + ' ' + outcome(context, hit);
}

void addLink(std::vector<std::string>& ids, const Finding& finding)
{
    if (std::ranges::find(ids, finding.id()) == ids.end())
        ids.emplace_back(finding.id());
}

Answer listedHits(const AskContext& context, const Found& found, std::string_view name)
{
    Answer answer;
    if (found.hits.size() == 1) {
        answer.text = described(context, found.hits.front());
    } else {
        answer.text = std::to_string(found.hits.size()) + " items fit “" + std::string(name) + "”:";
        for (std::size_t i = 0; i < std::min(found.hits.size(), kListed); ++i) {
            const Hit& hit = found.hits[i];
            answer.text += "\n• " + AskText::sized(tilde(hit.entry->path), hit.entry->size) + " — " +
                           hit.finding->title + ", " + ratingText(hit) + ". " + hit.finding->reason;
        }
        if (found.hits.size() > kListed)
            answer.text += "\n… and " + std::to_string(found.hits.size() - kListed) + " more.";
        answer.text += "\nA clean-up moves what you tick to the Trash, and History can put it back.";
    }
    for (std::size_t i = 0; i < std::min(found.hits.size(), kListed); ++i)
        addLink(answer.findingIDs, *found.hits[i].finding);
    return answer;
}

Answer measuredOnly(const AskContext& context, const Found& found)
{
    Answer answer;
    for (std::size_t i = 0; i < std::min(found.measured.size(), kListed); ++i) {
        const Measured& each = found.measured[i];
        const Protection protection = protectionOf(context, each.path);
        answer.text += (i == 0 ? "" : "\n") + AskText::sized(tilde(each.path), each.bytes) + " counts for " +
                       std::string(label(each.category)) + ". ";
        answer.text += protection == Protection::none
                           ? "The last scan doesn't suggest it for a clean-up, so Orlen has no rating for it."
                           : "It is protected, because it belongs to “" + std::string(label(protection)) +
                                 "”: " + std::string(reason(protection));
    }
    return answer;
}

Answer inTrash(const Found& found)
{
    const TrashedItem& item = *found.trashed.front();
    return {AskText::sized(tilde(item.original), item.size) +
                " was moved to the Trash by an earlier clean-up. History can put it back.",
            {}};
}

/// The words that may be a name, as typed.
std::string nameIn(const Question& question)
{
    if (const Phrase* const quoted = question.first(Sense::quoted))
        return quoted->text;
    std::string name;
    for (const Phrase& phrase : question.phrases) {
        if (phrase.sense == Sense::unknown)
            name += (name.empty() ? "" : " ") + phrase.text;
    }
    return name;
}

/// The path of something protected that the question means; empty if none.
std::string protectedPath(const Question& question, const AskContext& context, const std::string& name)
{
    std::vector<std::string> paths{pathIn(name)};
    if (paths.front().empty()) {
        const std::string lower = PathText::asciiLower(name);
        for (const KnownPlace& place : kKnownPlaces) {
            if (isListed(place.words, lower))
                std::ranges::move(Places::current().expand(place.pattern), std::back_inserter(paths));
        }
        if (lower.starts_with('.') && lower.find('/') == std::string::npos)
            paths.push_back(PathText::join(Places::current().home, name));
    }
    if (const Subject* const subject = question.subject(); name.empty() && subject != nullptr)
        paths.push_back(folderOf(*subject));
    const auto found = std::ranges::find_if(paths, [&](const std::string& path) {
        return !path.empty() && protectionOf(context, path) != Protection::none;
    });
    return found == paths.end() ? std::string() : *found;
}

/// Written like the name of a file, so it can be nothing else.
bool isFileName(const Question& question, std::string_view name)
{
    const std::string_view extension = PathText::extension(name);
    return question.first(Sense::quoted) != nullptr || !pathIn(name).empty() ||
           (extension.size() >= 2 && extension.size() <= 8 && extension.find(' ') == std::string_view::npos);
}

Answer notListed(std::string_view name)
{
    return {
        "“" + PathText::forDisplay(name) +
            "” is not in the results of the last scan, so I have no rating for it. Check what it is before "
            "you remove it; “orlen explain” with its path tells more.",
        {}};
}

} // namespace

std::optional<Answer> aboutName(const Question& question, const AskContext& context)
{
    const std::string name = nameIn(question);
    if (name.empty())
        return std::nullopt;
    const Subject* const subject = question.subject();
    const bool isNarrowed = subject != nullptr && !subject->kinds.empty();
    Found found = isNarrowed ? findNamed(context, name, subject->kinds) : Found();
    if (found.fit == Fit::none)
        found = findNamed(context, name);
    const std::string guarded = protectedPath(question, context, name);
    if (!guarded.empty() && found.fit < Fit::whole)
        return Answer{protectedText(guarded, protectionOf(context, guarded)), {}};
    if (!found.hits.empty())
        return listedHits(context, found, PathText::forDisplay(name));
    if (!found.measured.empty())
        return measuredOnly(context, found);
    if (!found.trashed.empty())
        return inTrash(found);
    return isFileName(question, name) ? std::optional(notListed(name)) : std::nullopt;
}

} // namespace orlen::AskReader
