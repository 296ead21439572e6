#pragma once

#include <string>

namespace platform {

// A message as the user's mail program is to show it. Text is UTF-8; a line of the body ends with CR LF, CR
// or LF.
struct MailMessage {
    std::string address;
    std::string subject;
    std::string body;
    std::string attachment; // the whole path of a file
};

// The message but its attachment as "mailto:ADDRESS?Subject=SUBJECT&Body=BODY". Whatever has a meaning in an
// address is percent-encoded, so that no character of the texts is lost.
std::string mailtoLink(const MailMessage& message);

} // namespace platform
