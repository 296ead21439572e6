#pragma once

#include "file/archive/zip.h"

#include <cstddef>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <utility>

namespace exchange {

// A long XML text of a spreadsheet, read element by element while it is unpacked: the text may have forty
// times the bytes of its cells, and a tree of it ten times the bytes of the text. Names are compared without
// their prefix, which differs between programs.
class XmlPieces {
public:
    explicit XmlPieces(file::Zip::Unpacking part) : part_(std::move(part)) {}

    // The next element of one of the names, from its "<"; an empty name where there is none. It is not
    // skipped: who asks again is told what is inside it. Raises badFileFormat for a document type, which no
    // spreadsheet has and which can make entities that grow without end.
    struct Element {           // good until the next one is asked for
        std::string_view name; // without the prefix
        std::size_t begin = 0;
        std::size_t behindTag = 0;
        bool isEmpty = false; // "<name/>"
        bool isEnd = false;   // "</name>"
    };
    // Names are given between blanks, " row sheetData ".
    Element next(std::string_view names, bool bEndsToo = false);
    // Skips a whole element, and reads it into a tree; in place, so that the text is spent.
    void read(const Element& element, pugi::xml_document& tree);
    // The tag alone, with its attributes; what is inside is next.
    void readTag(const Element& element, pugi::xml_document& tree) const;

    std::size_t at() const { return gone_ + at_; }
    std::size_t size() const { return part_.size; }

private:
    bool more();
    bool reaches(std::size_t place) { return place < text_.size() || more(); }
    std::size_t find(std::string_view what, std::size_t from);
    bool begins(std::string_view what);
    std::size_t behindTag(std::size_t from);
    bool skipMarkup();
    Element find(std::string_view names, bool bEndsToo);

    file::Zip::Unpacking part_;
    std::string text_; // what is unpacked and not yet read
    std::size_t at_ = 0;
    std::size_t gone_ = 0; // bytes in front of it
};

// The whole of a short text.
void readXml(std::string_view text, pugi::xml_document& tree);

std::string_view localName(const pugi::xml_node& node);
// The first child, the attribute, of that name, whatever its prefix.
pugi::xml_node childOf(const pugi::xml_node& node, std::string_view name);
pugi::xml_attribute attributeOf(const pugi::xml_node& node, std::string_view name);
// Raises badFileFormat where text stands that is no number of that size; 0 where there is none.
std::size_t countIn(const pugi::xml_attribute& attribute);

} // namespace exchange
