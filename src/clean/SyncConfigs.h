#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The folders named in the settings of sync programs, as written there: not standardized, "~" kept.
/// Untrusted input; broken files just give fewer folders. Pure; any thread.
namespace orlen::SyncConfigs {

/// Dropbox's "info.json": the "path" of each account.
[[nodiscard]] std::vector<std::string> fromDropbox(std::string_view text);

/// Maestral's configuration files: "path".
[[nodiscard]] std::vector<std::string> fromMaestral(std::string_view text);

/// "nextcloud.cfg" and "owncloud.cfg": every "localPath", unescaped.
[[nodiscard]] std::vector<std::string> fromNextcloud(std::string_view text);

/// Syncthing's "config.xml": the "path" of each folder.
[[nodiscard]] std::vector<std::string> fromSyncthing(std::string_view text);

/// The OneDrive client's "config": "sync_dir", quoted or not.
[[nodiscard]] std::vector<std::string> fromOneDrive(std::string_view text);

} // namespace orlen::SyncConfigs
