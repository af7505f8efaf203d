#pragma once

#include <string>

/// Property lists of application bundles (XML and binary), untrusted input.
namespace orlen::BundleInfo {

/// The text behind "CFBundleIdentifier" of the bundle's "Contents/Info.plist"; empty when there is none, or
/// the list is broken or unreasonably large. Blocks on the disk; any thread.
[[nodiscard]] std::string identifier(const std::string& bundle);

} // namespace orlen::BundleInfo
