#include "exchange/formats/xmlPieces.h"

#include "core/translate.h"
#include "exchange/sheetCollector.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace exchange {

namespace {

// An element takes some sixteen times its text as a tree; a row of the widest sheet has less.
constexpr std::size_t mostElementBytes = std::size_t{4} << 20U;
constexpr unsigned treeOptions = pugi::parse_default | pugi::parse_ws_pcdata;

[[noreturn]] void refuseXml() {
    refuseSheet(core::tr("its XML is damaged"));
}

std::string_view withoutPrefix(std::string_view name) {
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

bool isIn(std::string_view names, std::string_view name) {
    for (std::size_t at = names.find(name); at != std::string_view::npos; at = names.find(name, at + 1))
        if (at > 0 && names[at - 1] == ' ' && at + name.size() < names.size() &&
            names[at + name.size()] == ' ')
            return true;
    return false;
}

} // namespace

// False at the end.
bool XmlPieces::more() {
    constexpr std::size_t pieceBytes = std::size_t{64} * 1024;
    const std::size_t before = text_.size();
    text_.resize(before + pieceBytes);
    text_.resize(before + part_.read(text_.data() + before, pieceBytes));
    return text_.size() > before;
}

std::size_t XmlPieces::find(std::string_view what, std::size_t from) {
    for (;;) {
        const std::size_t found = text_.find(what, from);
        if (found != std::string::npos) return found;
        if (text_.size() >= what.size()) from = std::max(from, text_.size() - what.size() + 1);
        if (!more()) return std::string::npos;
    }
}

bool XmlPieces::begins(std::string_view what) {
    return reaches(at_ + what.size() - 1) && text_.compare(at_, what.size(), what) == 0;
}

std::size_t XmlPieces::behindTag(std::size_t from) {
    char quote = 0;
    for (std::size_t at = from; reaches(at); ++at) {
        const char c = text_[at];
        if (quote != 0)
            quote = c == quote ? '\0' : quote;
        else if (c == '"' || c == '\'')
            quote = c;
        else if (c == '>')
            return at + 1;
    }
    refuseXml();
}

// At a "<": skips a comment and the like.
bool XmlPieces::skipMarkup() {
    const auto skipTo = [&](std::string_view end) {
        const std::size_t found = find(end, at_);
        if (found == std::string::npos) refuseXml();
        at_ = found + end.size();
        return true;
    };
    if (begins("<!--")) return skipTo("-->");
    if (begins("<![CDATA[")) return skipTo("]]>");
    if (begins("<?")) return skipTo("?>");
    if (begins("<!")) refuseSheet(core::tr("it has a document type, which no spreadsheet has"));
    return false;
}

XmlPieces::Element XmlPieces::next(std::string_view names, bool bEndsToo) {
    constexpr std::size_t keptBytes = std::size_t{64} * 1024; // so that what is left is not moved each time
    if (at_ > keptBytes) {
        text_.erase(0, at_);
        gone_ += std::exchange(at_, 0);
    }
    return find(names, bEndsToo);
}

XmlPieces::Element XmlPieces::find(std::string_view names, bool bEndsToo) {
    for (;;) {
        at_ = find("<", at_);
        if (at_ == std::string::npos) {
            at_ = text_.size();
            return {};
        }
        if (skipMarkup()) continue;
        Element element;
        element.begin = at_;
        element.isEnd = begins("</");
        const std::size_t from = at_ + (element.isEnd ? 2 : 1);
        std::size_t end = from;
        while (reaches(end) && std::string_view(" \t\r\n/>").find(text_[end]) == std::string_view::npos)
            ++end;
        at_ = end;
        if (element.isEnd && !bEndsToo) continue;
        const auto name = [&] { return withoutPrefix(std::string_view(text_).substr(from, end - from)); };
        if (name().empty() || !isIn(names, name())) continue;
        element.behindTag = at_ = behindTag(end);
        element.isEmpty = text_[at_ - 2] == '/';
        element.name = name(); // the text may have been moved until now
        return element;
    }
}

void XmlPieces::read(const Element& element, pugi::xml_document& tree) {
    at_ = element.behindTag;
    std::string name = " ";
    name.append(element.name).push_back(' ');
    for (int depth = element.isEmpty ? 0 : 1; depth > 0;) {
        const Element inner = find(name, true);
        if (inner.name.empty()) refuseXml();
        if (at_ - element.begin > mostElementBytes) refuseSheet(core::tr("one of its rows is too long"));
        if (inner.isEnd)
            --depth;
        else if (!inner.isEmpty)
            ++depth;
    }
    const std::size_t size = at_ - element.begin;
    if (!tree.load_buffer_inplace(text_.data() + element.begin, size, treeOptions, pugi::encoding_utf8))
        refuseXml();
}

void XmlPieces::readTag(const Element& element, pugi::xml_document& tree) const {
    std::string tag = text_.substr(element.begin, element.behindTag - element.begin);
    if (!element.isEmpty) tag.insert(tag.size() - 1, 1, '/');
    readXml(tag, tree);
}

void readXml(std::string_view text, pugi::xml_document& tree) {
    if (text.size() > mostElementBytes) refuseSheet(core::tr("its styles are too long"));
    if (text.find("<!DOCTYPE") != std::string_view::npos)
        refuseSheet(core::tr("it has a document type, which no spreadsheet has"));
    if (!tree.load_buffer(text.data(), text.size(), treeOptions)) refuseXml();
}

std::string_view localName(const pugi::xml_node& node) {
    return withoutPrefix(node.name());
}

pugi::xml_node childOf(const pugi::xml_node& node, std::string_view name) {
    return node.find_child([&](const pugi::xml_node& child) { return localName(child) == name; });
}

pugi::xml_attribute attributeOf(const pugi::xml_node& node, std::string_view name) {
    return node.find_attribute(
        [&](const pugi::xml_attribute& attribute) { return withoutPrefix(attribute.name()) == name; });
}

std::size_t countIn(const pugi::xml_attribute& attribute) {
    const std::string_view digits = attribute.value();
    std::size_t count = 0;
    if (digits.empty()) return 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), count);
    if (error == std::errc::result_out_of_range) return std::numeric_limits<std::uint32_t>::max();
    if (error != std::errc() || end != digits.data() + digits.size()) refuseXml();
    return std::min<std::size_t>(count, std::numeric_limits<std::uint32_t>::max());
}

} // namespace exchange
