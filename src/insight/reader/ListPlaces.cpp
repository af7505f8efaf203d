#include "insight/reader/ListPlaces.h"

#include "insight/reader/LowerName.h"
#include "insight/reader/Names.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

namespace orlen::AskReader {

namespace {

/// "The smallest audiobooks": what lies in the person's own folder of that name. False if there is none.
bool takeOwnFolder(const Question& question, const AskContext& context, const std::string& name,
                   ListRequest& request)
{
    constexpr SenseSet kOfMany{Sense::biggest, Sense::smallest, Sense::oldest, Sense::newest, Sense::howMany};
    const bool isOfKind = request.subject != nullptr && !request.subject->extensions.empty();
    if (context.home == nullptr || !request.folder.empty() || question.senses.has(Sense::folder) ||
        (!isOfKind && !question.senses.meets(kOfMany)))
        return false;
    for (const std::string& each : {name, name + "s"}) {
        const std::string path = folderNamed(context, each);
        const auto folder = path.empty() ? std::nullopt : context.home->folderAt(path);
        if (folder && context.home->folder(*folder).isOwn) {
            request.folder = path;
            return true;
        }
    }
    return false;
}

/// "The oldest tax documents": files of a kind with a word in their names.
bool takeWords(const AskContext& context, const std::string& name, ListRequest& request,
               bool isBesideFiles = false)
{
    if (context.home == nullptr || request.subject == nullptr ||
        (request.subject->extensions.empty() && !isBesideFiles))
        return false;
    request.name = name;
    request.words = wordsOfName(lowered(name));
    return !request.words.empty();
}

} // namespace

bool isName(const Phrase& phrase)
{
    return phrase.sense == Sense::unknown || phrase.sense == Sense::quoted;
}

bool isAfterInside(const Question& question, std::size_t at)
{
    while (at > 0 && question.phrases[at - 1].sense == Sense::folder)
        --at;
    return at > 0 && question.phrases[at - 1].sense == Sense::inside;
}

bool takeFolder(const Question& question, const AskContext& context, ListRequest& request)
{
    const std::vector<Phrase>& phrases = question.phrases;
    const auto first = std::ranges::find_if(phrases, isName);
    if (first == phrases.end())
        return true;
    const auto last = std::find_if_not(first, phrases.end(), isName);
    // "How many songs of Bach": in many languages the word before it says nothing.
    const bool isCounted = context.home != nullptr && question.senses.has(Sense::howMany) &&
                           request.subject != nullptr && !request.subject->isAnyFile;
    if (std::any_of(last, phrases.end(), isName))
        return false;
    std::string name;
    for (auto each = first; each != last; ++each)
        name += (name.empty() ? "" : " ") + each->text;
    const bool isPlace = isAfterInside(question, static_cast<std::size_t>(first - phrases.begin()));
    // "Backup files bigger than 1 MB"
    const auto isFiles = [](const Phrase& each) {
        return each.subject != nullptr && each.subject->isAnyFile;
    };
    const bool isBesideFiles = (last != phrases.end() && !last->isJoined && isFiles(*last)) ||
                               (first != phrases.begin() && isFiles(*std::prev(first)));
    if (!isPlace && !isCounted)
        return takeOwnFolder(question, context, name, request) ||
               takeWords(context, name, request, isBesideFiles);
    if (!request.folder.empty())
        return !isPlace && takeWords(context, name, request);
    request.folder = folderNamed(context, name);
    if (request.folder.empty() && request.subject != nullptr && !request.subject->isAnyFile)
        request.folder = folderHolding(context, name);
    return !request.folder.empty() || (!isPlace && takeWords(context, name, request));
}

} // namespace orlen::AskReader
