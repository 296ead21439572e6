#include "platform/mailMessage.h"

#include <string_view>

namespace platform {

namespace {

constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
constexpr std::string_view inAddresses = "@,+!$'*"; // of several people as well

void appendEncoded(std::string& link, std::string_view text, std::string_view alsoPlain = {}) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    for (const char c : text) {
        if (letters.find(c) != std::string_view::npos || alsoPlain.find(c) != std::string_view::npos) {
            link += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        link += '%';
        link += digits[byte >> 4];
        link += digits[byte & 15];
    }
}

std::string withLineEnds(std::string_view text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (isPair) ++i;
        if (isPair || text[i] == '\r' || text[i] == '\n')
            lines += "\r\n";
        else
            lines += text[i];
    }
    return lines;
}

} // namespace

std::string mailtoLink(const MailMessage& message) {
    std::string link = "mailto:";
    appendEncoded(link, message.address, inAddresses);
    link += "?Subject=";
    appendEncoded(link, message.subject);
    link += "&Body=";
    appendEncoded(link, withLineEnds(message.body));
    return link;
}

} // namespace platform
