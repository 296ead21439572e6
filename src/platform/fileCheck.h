#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace platform {

// Whether there is something at each path. A share of a network whose server is gone may keep the caller of
// the system waiting for minutes; here nobody waits longer than that time, and what is not known by then
// counts as there.
[[nodiscard]] std::vector<bool> arePresent(const std::vector<std::string>& paths,
                                           std::chrono::milliseconds longest);

} // namespace platform
