// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/slot.h"

#include <QStringList>

namespace nubivane::testing {

/// The names of a record's slots, in their order.
template <class Object>
QStringList slotsOf(const Object& object) {
    QStringList names;
    Object::forEachSlot(object, [&](const Slot& slot, const auto&) { names += slot.name; });
    return names;
}

}  // namespace nubivane::testing
