#include "clean/Protection.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace orlen {

namespace {

using enum Protection;

struct Texts {
    Protection protection;
    std::string_view label;
    std::string_view reason;
};

constexpr std::array kTexts{
    Texts{outside, "Outside your folders",
          "Orlen works in your home folder and in the folders for applications, nowhere else."},
    Texts{systemFolders, "System folders", "The system needs them to run."},
    Texts{mainFolders, "Main folders", "They stay; only what is in them may be moved."},
    Texts{settingsBesideCaches, "Folders of programs", "Settings or live data are kept beside the caches."},
    Texts{cloudStores, "Cloud stores", "What is removed here is removed on your other devices."},
    Texts{credentials, "Keys and credentials", "They sign you in, and nothing can recreate them."},
    Texts{keyrings, "Keyrings and wallets", "Passwords, accounts, money and the desktop's settings."},
    Texts{browserProfiles, "Browser profiles", "Passwords, history and open tabs."},
    Texts{mail, "Mail", "Messages and address books that may exist nowhere else."},
    Texts{conversations, "Conversations", "Your chats, also those with assistants."},
    Texts{savedState, "Saved games and work", "Only the program that saved them can bring them back."},
    Texts{managedStores, "Managed stores", "Only the program that manages them can tidy them."},
    Texts{trash, "The Trash", "The Trash itself and its notes on where things came from."},
    Texts{ownData, "Orlen's own data", "The history, which knows how to put things back."},
    Texts{repositories, "Repositories", "The history of a project, damaged when a part is missing."},
    Texts{encryption, "Encryption and snapshots",
          "Without them, other files cannot be read or brought back."},
    Texts{mediaLibraries, "Photo and film libraries",
          "A program keeps them as one; a missing part damages the rest."},
    Texts{placeholders, "Files kept on a server", "Removing the placeholder removes the file on the server."},
    Texts{catalogues, "Catalogues", "Tags and albums of a photo manager, or the mark of a synced folder."},
    Texts{syncFolders, "Synced folders",
          "What is removed here is removed on the server and on other devices."},
    Texts{mountPoints, "Mount points", "Another disk is attached here."},
    Texts{otherFileSystems, "Other file systems",
          "A server, an archive or memory, not this computer's disk."},
    Texts{holdsProtected, "Folders around something protected", "What is protected inside would move along."},
    Texts{unclearPath, "Unclear paths", "Orlen moves only what it can name exactly."},
};

constexpr auto kAll = [] {
    std::array<Protection, kTexts.size()> all{};
    std::ranges::transform(kTexts, all.begin(), &Texts::protection);
    return all;
}();

constexpr Texts kNoTexts{none, {}, {}};

const Texts& textsOf(Protection protection)
{
    const auto* const found = std::ranges::find(kTexts, protection, &Texts::protection);
    return found == kTexts.end() ? kNoTexts : *found;
}

} // namespace

std::string_view label(Protection protection)
{
    return textsOf(protection).label;
}

std::string_view reason(Protection protection)
{
    return textsOf(protection).reason;
}

std::span<const Protection> allProtections()
{
    return kAll;
}

} // namespace orlen
