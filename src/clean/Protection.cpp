#include "clean/Protection.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace orlen {

namespace {

using enum Protection;

struct Texts {
    Protection protection;
    Text label;
    Text reason;
};

constexpr std::array kTexts{
    Texts{outside, message("Outside your folders"),
          message("Orlen works in your home folder and in the folders for applications, nowhere else.")},
    Texts{systemFolders, message("System folders"), message("The system needs them to run.")},
    Texts{mainFolders, message("Main folders"), message("They stay; only what is in them may be moved.")},
    Texts{settingsBesideCaches, message("Folders of programs"),
          message("Settings or live data are kept beside the caches.")},
    Texts{cloudStores, message("Cloud stores"),
          message("What is removed here is removed on your other devices.")},
    Texts{credentials, message("Keys and credentials"),
          message("They sign you in, and nothing can recreate them.")},
    Texts{keyrings, message("Keyrings and wallets"),
          message("Passwords, accounts, money and the desktop's settings.")},
    Texts{browserProfiles, message("Browser profiles"), message("Passwords, history and open tabs.")},
    Texts{mail, message("Mail"), message("Messages and address books that may exist nowhere else.")},
    Texts{conversations, message("Conversations"), message("Your chats, also those with assistants.")},
    Texts{savedState, message("Saved games and work"),
          message("Only the program that saved them can bring them back.")},
    Texts{managedStores, message("Managed stores"),
          message("Only the program that manages them can tidy them.")},
    Texts{trash, message("The Trash"), message("The Trash itself and its notes on where things came from.")},
    Texts{ownData, message("Orlen's own data"), message("The history, which knows how to put things back.")},
    Texts{repositories, message("Repositories"),
          message("The history of a project, damaged when a part is missing.")},
    Texts{encryption, message("Encryption and snapshots"),
          message("Without them, other files cannot be read or brought back.")},
    Texts{mediaLibraries, message("Photo and film libraries"),
          message("A program keeps them as one; a missing part damages the rest.")},
    Texts{placeholders, message("Files kept on a server"),
          message("Removing the placeholder removes the file on the server.")},
    Texts{catalogues, message("Catalogues"),
          message("Tags and albums of a photo manager, or the mark of a synced folder.")},
    Texts{syncFolders, message("Synced folders"),
          message("What is removed here is removed on the server and on other devices.")},
    Texts{mountPoints, message("Mount points"), message("Another disk is attached here.")},
    Texts{otherFileSystems, message("Other file systems"),
          message("A server, an archive or memory, not this computer's disk.")},
    Texts{holdsProtected, message("Folders around something protected"),
          message("What is protected inside would move along.")},
    Texts{unclearPath, message("Unclear paths"), message("Orlen moves only what it can name exactly.")},
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

Text label(Protection protection)
{
    return textsOf(protection).label;
}

Text reason(Protection protection)
{
    return textsOf(protection).reason;
}

std::span<const Protection> allProtections()
{
    return kAll;
}

} // namespace orlen
