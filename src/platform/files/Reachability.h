#pragma once

#include "platform/values/Result.h"

#include <string>
#include <vector>

/// Judges a path before the first call on it: a call on a mount whose server or program is gone never
/// returns. Disks of this machine pass by the text of the mount table. What is mounted below the home folder
/// from elsewhere is left out unasked, since nothing there is ever offered or moved; any other such mount,
/// the home folder's own among them, is asked once by a `MountProbe`. Links are resolved one by one, so that
/// none into such a mount is followed before its mount is judged. Every function of this folder that takes a
/// path asks here first; calls relative to an open folder do not. Any thread.
namespace orlen::Reachability {

/// Whether the call that is going to be made follows a link in the path's last component.
enum class LastLink { kept, followed };

/// ETIMEDOUT when the path lies on a mount that is left out or does not answer. Waits as long as a probe at
/// most, and only for the first path on a mount.
[[nodiscard]] Result<void> check(const std::string& path, LastLink last = LastLink::kept);

/// The same, and asks the mounts on the way that would be left out unasked, from now on too: for the
/// program's own folders and for what the user names. Links are followed.
[[nodiscard]] Result<void> admit(const std::string& path);

/// Lets such mounts be asked at the same time: begins with what `admit` would ask first and waits for
/// nothing.
void askAhead(const std::string& path);

/// Reads the mount table again. `home` is the home folder without links; empty while it is not known.
/// A mount that answered is asked again when a path on it is next needed; one that did not stays left out
/// until its answer comes. Until the first call, the kernel's own table counts.
void refresh(const std::string& mountTable, const std::string& home);

struct LeftOut {
    std::string point; ///< the mount point, as the kernel spells it
    /// `unasked`: below the home folder, where what is mounted from elsewhere is left alone.
    enum class Reason { unasked, silent } reason = Reason::unasked;
    friend bool operator==(const LeftOut&, const LeftOut&) = default;
};

/// The mounts on which something was looked for and not found for that, up to now; those that have answered
/// meanwhile are not among them. By point.
[[nodiscard]] std::vector<LeftOut> leftOut();

} // namespace orlen::Reachability
