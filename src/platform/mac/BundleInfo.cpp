#include "platform/mac/BundleInfo.h"

#include "platform/mac/PropertyList.h"

namespace orlen::BundleInfo {

std::string identifier(const std::string& bundle)
{
    const auto list = PropertyList::read(bundle + "/Contents/Info.plist");
    return list ? list->text("CFBundleIdentifier") : std::string();
}

} // namespace orlen::BundleInfo
