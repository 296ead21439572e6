#pragma once

#include "platform/platform.h"

#include <QObject>

#include <functional>

namespace gui {

// Starts "xdg-email" with the message, which finds out what the user's mail program is, and does not wait for
// it. False when it is not there, or cannot be started. When it ends with an error soon after, the function
// is called, as long as the owner lives.
bool startMailProgram(const platform::MailMessage& message, QObject* owner, std::function<void()> failed);

} // namespace gui
