#pragma once

#include "core/document.h"

#include <functional>

namespace entry {

// Runs a routine that adds records behind the others. What it raises leaves neither records nor used keys and
// serial numbers behind.
void addAllOrNone(core::Document& document, const std::function<void()>& add);

} // namespace entry
