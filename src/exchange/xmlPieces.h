#pragma once

#include <cstddef>
#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace exchange {

// A long XML text of a spreadsheet, read element by element: a tree of all of it would take ten times the
// memory. Names are compared without their prefix, which differs between programs.
class XmlPieces {
public:
    explicit XmlPieces(std::string& text, std::size_t from = 0) : text_(text), at_(from) {}

    // The next element of one of the names, from its "<"; an empty name where there is none. It is not
    // skipped: who asks again is told what is inside it. Raises badFileFormat for a document type, which no
    // spreadsheet has and which can make entities that grow without end.
    struct Element {
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

    std::size_t at() const { return at_; }
    std::size_t size() const { return text_.size(); }

private:
    std::size_t behindTag(std::size_t from) const;
    bool skipMarkup();

    std::string& text_;
    std::size_t at_;
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
