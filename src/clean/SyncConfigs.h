#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The folders that the settings files of sync programs name, as written there: not standardised, a "~" kept.
/// The files are untrusted: what is broken gives fewer folders. Pure, any thread.
namespace orlen::SyncConfigs {

/// Dropbox's "info.json": the "path" of each account.
[[nodiscard]] std::vector<std::string> fromDropbox(std::string_view text);

/// "nextcloud.cfg" and "owncloud.cfg": every "localPath", with the escapes of that format decoded.
[[nodiscard]] std::vector<std::string> fromNextcloud(std::string_view text);

/// Syncthing's "config.xml": the "path" of each folder.
[[nodiscard]] std::vector<std::string> fromSyncthing(std::string_view text);

/// The OneDrive client's "config": "sync_dir", with or without quotes.
[[nodiscard]] std::vector<std::string> fromOneDrive(std::string_view text);

} // namespace orlen::SyncConfigs
