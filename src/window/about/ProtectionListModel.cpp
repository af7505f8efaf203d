#include "window/about/ProtectionListModel.h"

#include "clean/Protection.h"
#include "window/lists/DisplayText.h"

namespace orlen {

int ProtectionListModel::length() const
{
    return static_cast<int>(allProtections().size());
}

QVariant ProtectionListModel::value(std::size_t number, int role) const
{
    const Protection protection = allProtections()[number];
    switch (static_cast<Role>(role)) {
    case Role::label:
        return DisplayText::text(label(protection));
    case Role::reason:
        return DisplayText::text(orlen::reason(protection));
    }
    return {};
}

} // namespace orlen
