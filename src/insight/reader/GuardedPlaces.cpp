#include "insight/reader/GuardedPlaces.h"

#include "insight/reader/FoundReplies.h"
#include "insight/reader/LowerName.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <vector>

namespace orlen::AskReader {

namespace {

struct KnownPlace {
    std::string_view words; ///< phrases, separated by commas
    std::string_view pattern;
};

constexpr KnownPlace kKnownPlaces[] = {
    {"ssh,ssh keys,ssh key,.ssh,ssh schlussel,ssh-schlussel,cles ssh,claves ssh,chiavi ssh", "{H}/.ssh"},
    {"gpg,gpg keys,gpg key,pgp keys,.gnupg,gpg schlussel,cles gpg,claves gpg,chiavi gpg", "{H}/.gnupg"},
    {"firefox,firefox profile,firefox profiles,firefox "
     "bookmarks,.mozilla,bookmarks,lesezeichen,marque-pages,favoris,"
     "marcadores,favoritos,segnalibri,preferiti,firefox profil",
     "{H}/.mozilla"},
    {"chrome profile,chrome bookmarks", "{CONFIG}/google-chrome"},
    {"chromium profile,chromium bookmarks", "{CONFIG}/chromium"},
    {"thunderbird,thunderbird mail,thunderbird "
     "profile,thunderbird inbox,inbox,thunderbird "
     "folder,emails,email,mail,mails,e-mail,e-mails,courriels,correos,correo,posta",
     "{H}/.thunderbird"},
    {"keyring,keyrings,passwords,saved passwords,password,passworter,kennworter,schlusselbund,mots "
     "passe,mots de passe,mot de passe,contrasenas,"
     "claves",
     "{DATA}/keyrings"},
    {"password store,password stores,.password-store", "{H}/.password-store"},
    {".config", "{CONFIG}"},
    {".local/share", "{DATA}"},
};

/// Whether the walk of the home folder has met nothing at a path in it.
bool isMissing(const AskContext& context, std::string_view path)
{
    const std::string& home = Places::current().home;
    if (context.home == nullptr || path == home || !PathText::isAtOrBelow(path, home))
        return false;
    return !context.home->folderAt(path) &&
           !context.names->of(context.home)->at(lowered(path.substr(home.size())));
}

} // namespace

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

bool isKnownPlace(const std::string& name)
{
    const std::string lower = plainLetters(name);
    return std::ranges::any_of(kKnownPlaces,
                               [&](const KnownPlace& place) { return isListed(place.words, lower); });
}

bool isProgramOfPlace(const std::string& name)
{
    constexpr std::string_view kPrograms[] = {"firefox", "thunderbird", "chrome", "chromium"};
    const std::string lower = plainLetters(name);
    return std::ranges::any_of(kPrograms,
                               [&](std::string_view program) { return lower.starts_with(program); });
}

bool holdsSecrets(Protection protection)
{
    using enum Protection;
    constexpr Protection kSecret[] = {credentials, keyrings,      browserProfiles,
                                      mail,        conversations, encryption};
    return std::ranges::find(kSecret, protection) != std::end(kSecret);
}

std::string protectedPath(const Question& question, const AskContext& context, const std::string& name)
{
    std::vector<std::string> paths{pathIn(name)};
    if (paths.front().empty()) {
        const std::string lower = plainLetters(name);
        for (const KnownPlace& place : kKnownPlaces) {
            if (isListed(place.words, lower))
                std::ranges::copy_if(Places::current().expand(place.pattern), std::back_inserter(paths),
                                     [&](const std::string& path) { return !isMissing(context, path); });
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

} // namespace orlen::AskReader
