#pragma once

#include <string>

/// Property lists of application bundles (XML or binary). Untrusted input.
namespace orlen::BundleInfo {

/// "CFBundleIdentifier" in the bundle's "Contents/Info.plist"; empty if there is none, or the list is broken
/// or unreasonably large. Blocks on the disk; any thread.
[[nodiscard]] std::string identifier(const std::string& bundle);

} // namespace orlen::BundleInfo
