#pragma once

#include "core/objectRef.h"
#include "core/runTimeError.h"

// An object that the test knows to be there.
inline core::LayoutObject& objectAt(core::LayoutObjects& layout, core::ObjectRef ref) {
    core::LayoutObject* object = core::findObject(layout, ref);
    if (object == nullptr) core::raise(core::errors::subscriptOutOfRange, ref.name());
    return *object;
}
