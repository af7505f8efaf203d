#pragma once

#include "platform/values/Result.h"

#include <string>
#include <vector>

/// Decides whether a path is safe to touch before the first call on it: a call on a mount whose server or
/// program is gone never returns. Paths on local disks pass by looking at the mount table alone. Foreign
/// mounts below the home folder are skipped without asking, since nothing there is ever offered or moved; any
/// other, including the home folder's own, is asked once by a `MountProbe`. Links are resolved one by one, so
/// that none is followed onto a mount that has not been judged. Every function of this folder that takes a
/// path checks here first; calls relative to an open folder do not. Any thread.
namespace orlen::Reachability {

/// Whether the intended call follows a link in the last component.
enum class LastLink { kept, followed };

/// ETIMEDOUT if the path lies on a mount that is skipped or does not answer. Waits for at most one probe, and
/// only for the first path on a mount.
[[nodiscard]] Result<void> check(const std::string& path, LastLink last = LastLink::kept);

/// The same, but from now on also asks the mounts on the way that would be skipped: for the program's own
/// folders and for what the user names. Links are followed.
[[nodiscard]] Result<void> admit(const std::string& path);

/// Starts asking what `admit` would ask first, without waiting, so that several mounts can be probed at once.
void askAhead(const std::string& path);

/// Reads the mount table again. `home` is the home folder without links; empty while unknown. Mounts that
/// answered are asked again when next needed; those that did not stay skipped until their answer arrives.
/// Before the first call, the kernel's own table is used.
void refresh(const std::string& mountTable, const std::string& home);

struct LeftOut {
    std::string point; ///< as the kernel spells it
    /// `unasked`: foreign and below the home folder.
    enum class Reason { unasked, silent } reason = Reason::unasked;
    friend bool operator==(const LeftOut&, const LeftOut&) = default;
};

/// The mounts on which something could not be looked up so far, sorted by point. Those that have answered
/// since are not included.
[[nodiscard]] std::vector<LeftOut> leftOut();

} // namespace orlen::Reachability
