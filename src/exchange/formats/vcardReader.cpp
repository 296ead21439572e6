#include "core/encoding.h"
#include "core/text.h"
#include "core/translate.h"
#include "exchange/formats/formats.h"
#include "exchange/formats/sheetNumbers.h"
#include "exchange/formats/vcardFields.h"

#include <algorithm>
#include <charconv>

namespace exchange {

namespace {

// "item1.TEL;TYPE=cell:+49 ..." without the group.
struct CardLine {
    std::string name;                    // in capitals
    std::vector<std::string> parameters; // in capitals too: "TYPE=CELL", and in old cards "CELL" alone
    std::string value;

    bool has(std::string_view word) const {
        return std::ranges::any_of(parameters, [&](const std::string& each) {
            const std::size_t equals = each.find('=');
            const std::string_view values =
                std::string_view(each).substr(equals == std::string::npos ? 0 : equals + 1);
            for (const std::string_view one : core::split(values, ','))
                if (one == word) return true;
            return false;
        });
    }
};

std::string fromQuotedPrintable(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at < text.size(); ++at) {
        unsigned code = 0;
        const std::string_view digits = text[at] == '=' ? text.substr(at + 1, 2) : std::string_view();
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
        if (digits.size() == 2 && error == std::errc() && end == digits.data() + 2) {
            out.push_back(static_cast<char>(code));
            at += 2;
        } else {
            out.push_back(text[at]);
        }
    }
    return out;
}

// A separator within quotes or behind a backslash separates nothing.
std::vector<std::string_view> splitUnescaped(std::string_view text, char separator, bool bQuotes) {
    constexpr std::size_t mostPieces = 64; // what a hostile line has more is one
    std::vector<std::string_view> pieces;
    bool bQuoted = false;
    std::size_t from = 0;
    for (std::size_t at = 0; at < text.size() && pieces.size() < mostPieces; ++at) {
        if (text[at] == '\\' && !bQuotes)
            ++at;
        else if (text[at] == '"' && bQuotes)
            bQuoted = !bQuoted;
        else if (text[at] == separator && !bQuoted) {
            pieces.push_back(text.substr(from, at - from));
            from = at + 1;
        }
    }
    pieces.push_back(text.substr(from));
    return pieces;
}

std::string unescaped(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool bEscape = text[at] == '\\' && at + 1 < text.size();
        if (bEscape) ++at;
        out.push_back(bEscape && (text[at] == 'n' || text[at] == 'N') ? '\n' : text[at]);
    }
    std::erase(out, '\r');
    return out;
}

// The lines of a text, those that were folded put together again.
class CardLines {
public:
    explicit CardLines(std::string_view text) : text_(text) {}

    bool next(CardLine& line) {
        std::string whole;
        do {
            if (at_ >= text_.size()) return false;
            whole = physical();
            while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t'))
                whole.append(physical().substr(1));
        } while (core::trim(whole).empty());
        constexpr std::size_t longestHead = 4096;
        const std::string_view front = std::string_view(whole).substr(0, longestHead);
        const auto head = splitUnescaped(front, ':', true).front();
        if (head.size() == front.size()) refuseSheet(core::tr("one of its lines is no line of a vCard"));
        auto pieces = splitUnescaped(head, ';', true);
        line.name = core::upper(pieces.front().substr(pieces.front().find('.') + 1));
        line.parameters.clear();
        for (std::size_t i = 1; i < pieces.size(); ++i) {
            std::string parameter = core::upper(pieces[i]);
            std::erase(parameter, '"');
            line.parameters.push_back(std::move(parameter));
        }
        line.value = whole.substr(head.size() + 1);
        if (!line.has("QUOTED-PRINTABLE")) return true;
        // Such a text ends in "=" where it goes on in the next line.
        while (line.value.ends_with('=') && at_ < text_.size()) {
            line.value.pop_back();
            line.value.append(physical());
        }
        line.value = fromQuotedPrintable(line.value);
        if (core::sanitizeUtf8(line.value) != line.value) line.value = core::fromWindows1252(line.value);
        return true;
    }

private:
    std::string physical() {
        const std::size_t end = std::min(text_.find('\n', at_), text_.size());
        std::string line(text_.substr(at_, end - at_));
        at_ = end + 1;
        if (line.ends_with('\r')) line.pop_back();
        return line;
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

// "19850412", "1985-04-12T00:00:00Z", "--0412"; what has no year stays as it is.
SheetCell birthday(std::string text) {
    constexpr std::size_t digits = 8;
    const std::string_view date = std::string_view(text).substr(0, text.find('T'));
    if (date.size() == digits && std::ranges::all_of(date, core::isDigit)) {
        std::string iso(date.substr(0, 4));
        iso.append("-").append(date.substr(4, 2)).append("-").append(date.substr(6));
        return isoCell(iso);
    }
    SheetCell cell = isoCell(date);
    if (cell.kind != SheetCell::Kind::Date) cell = {SheetCell::Kind::Text, std::move(text)};
    return cell;
}

class CardReader {
public:
    Sheet read(std::string_view text, const Progress& progress) {
        CardLines lines(text);
        CardLine line;
        bool bInCard = false;
        while (lines.next(line)) {
            const bool bCard = core::equalsNoCase(core::trim(line.value), "VCARD");
            if (line.name == "BEGIN" && bCard) {
                if (bInCard) refuseSheet(core::tr("one of its cards has no end"));
                bInCard = true;
                card_.assign(vcardFields.size(), {});
            } else if (line.name == "END" && bCard && bInCard) {
                bInCard = false;
                keepCard(progress);
            } else if (bInCard) {
                take(line);
            } else {
                refuseSheet(core::tr("it is no vCard"));
            }
        }
        if (bInCard) refuseSheet(core::tr("one of its cards has no end"));
        return sheet();
    }

private:
    static constexpr std::size_t mostCards = SheetBounds::rows - 1;

    // Whether a field says where the line goes by its type; then it does not go to the one without.
    static bool hasTypedField(const CardLine& line) {
        return std::ranges::any_of(vcardFields, [&](const VcardField& field) {
            return field.property == line.name && !field.type.empty() && line.has(field.type);
        });
    }

    // Of a second address nothing fits beside the first.
    bool isFilled(std::string_view property) const {
        for (std::size_t i = 0; i < vcardFields.size(); ++i)
            if (vcardFields[i].property == property && vcardFields[i].part >= 0 && !card_[i].empty())
                return true;
        return false;
    }

    void take(const CardLine& line) {
        const bool bTyped = hasTypedField(line), bFilled = isFilled(line.name);
        const auto parts = splitUnescaped(line.value, ';', false);
        for (std::size_t i = 0; i < vcardFields.size(); ++i) {
            const VcardField& field = vcardFields[i];
            if (field.property != line.name || (!field.type.empty()) != bTyped) continue;
            if (bTyped && !line.has(field.type)) continue;
            if (field.part < 0)
                addWhole(card_[i], line);
            else if (!bFilled && static_cast<std::size_t>(field.part) < parts.size())
                card_[i] = unescaped(parts[static_cast<std::size_t>(field.part)]);
        }
    }

    static void addWhole(std::string& into, const CardLine& line) {
        std::string value = unescaped(line.value);
        if (line.name == "TEL" && value.starts_with("tel:")) value.erase(0, 4);
        if (value.empty()) return;
        if (!into.empty()) into.append(line.name == "NOTE" ? "\n" : ", ");
        into.append(value);
    }

    void keepCard(const Progress& progress) {
        constexpr std::size_t cardsBetween = 500;
        if (cards_.size() >= mostCards) refuseSheet(core::tr("it has too many cards"));
        for (const std::string& value : card_) bytes_ += value.size();
        if (bytes_ > SheetBounds::textBytes) refuseSheet(core::tr("its texts are too long"));
        cards_.push_back(std::move(card_));
        if (cards_.size() % cardsBetween == 0) tellProgress(progress, cards_.size(), mostCards);
    }

    // The columns that any card has something for.
    Sheet sheet() {
        if (cards_.empty()) refuseSheet(core::tr("it has no cards"));
        SheetCollector collector;
        std::vector<std::size_t> used;
        for (std::size_t i = 0; i < vcardFields.size(); ++i)
            if (std::ranges::any_of(cards_, [&](const auto& card) { return !card[i].empty(); }))
                used.push_back(i);
        for (const std::size_t i : used)
            collector.text(std::string(core::split(vcardFields[i].names, ' ').front()));
        collector.endRow();
        for (auto& card : cards_) {
            for (const std::size_t i : used) {
                SheetCell cell{SheetCell::Kind::Text, std::move(card[i])};
                if (vcardFields[i].property == "BDAY" && !cell.text.empty()) cell = birthday(cell.text.str());
                collector.cell(std::move(cell));
            }
            collector.endRow();
        }
        Sheet sheet = collector.take();
        sheet.bTyped = true;
        return sheet;
    }

    std::vector<std::string> card_; // by field
    std::vector<std::vector<std::string>> cards_;
    std::size_t bytes_ = 0;
};

} // namespace

Sheet readVcardSheet(const std::string& text, const Progress& progress) {
    return CardReader().read(text, progress);
}

} // namespace exchange
