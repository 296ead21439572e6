#include "codes/checkedText.h"

#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"

#include <cctype>

namespace codes {

namespace {

constexpr std::size_t mostInBars = 80; // characters of Code 128: about 30 cm at its usual size

struct KindNames {
    std::string_view name, word;
    std::size_t digits; // with the check digit; 0 where any text goes
};

const KindNames& namesOf(Kind kind) {
    static constexpr std::array<KindNames, allKinds.size()> names = {{{"QR", "qr", 0},
                                                                      {"EAN-13", "ean13", 13},
                                                                      {"EAN-8", "ean8", 8},
                                                                      {"UPC-A", "upca", 12},
                                                                      {"Code 128", "code128", 0},
                                                                      {"Data Matrix", "datamatrix", 0}}};
    return names.at(static_cast<std::size_t>(kind));
}

std::string character(std::string_view text, std::size_t place) {
    const std::string_view one = core::mid(text, place, 1);
    if (one.size() == 1 && static_cast<unsigned char>(one.front()) < ' ')
        return core::tr("a control character");
    std::string quoted = "\"";
    quoted.append(one).push_back('"');
    return quoted;
}

// The first character, from 1, that is none of those; 0 for none.
template <typename Test>
std::size_t placeOfOther(std::string_view text, Test&& isGood) {
    const std::size_t count = core::length(text);
    for (std::size_t place = 1; place <= count; ++place)
        if (const std::string_view one = core::mid(text, place, 1); one.size() != 1 || !isGood(one.front()))
            return place;
    return 0;
}

std::string atPlace(std::string_view text, std::size_t place, std::string_view reason) {
    return core::fill(reason, {character(text, place), std::to_string(place)});
}

// Each second digit counts three times, the last one before the check digit too.
char checkDigit(std::string_view digits) {
    int sum = 0, weight = 3;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, weight = 4 - weight)
        sum += (*digit - '0') * weight;
    return static_cast<char>('0' + (10 - sum % 10) % 10);
}

std::string checkedNumber(Kind kind, std::string_view text, std::size_t wanted) {
    const auto isSeparator = [](char c) { return c == ' ' || c == '-'; };
    if (const std::size_t place =
            placeOfOther(text, [&](char c) { return core::isDigit(c) || isSeparator(c); }))
        refuse(kind, text, atPlace(text, place, core::tr("%1 at place %2 is no digit")));
    std::string digits;
    for (const char c : text)
        if (core::isDigit(c)) digits.push_back(c);
    if (digits.size() == wanted - 1) return digits + checkDigit(digits);
    if (digits.size() != wanted) {
        const std::string reason =
            core::tr("it has %n digit, and should have %1, or %2 without the check digit",
                     "it has %n digits, and should have %1, or %2 without the check digit",
                     static_cast<int>(digits.size()));
        refuse(kind, text, core::fill(reason, {std::to_string(wanted), std::to_string(wanted - 1)}));
    }
    const char check = checkDigit(std::string_view(digits).substr(0, wanted - 1));
    if (digits.back() != check)
        refuse(kind, text,
               core::fill(core::tr("the last digit should be %1"), {std::string_view(&check, 1)}));
    return digits;
}

void checkBars(std::string_view text) {
    if (const std::size_t place = placeOfOther(text, [](char c) { return c >= ' ' && c <= '~'; }))
        refuse(Kind::Code128, text,
               atPlace(text, place, core::tr("%1 at place %2 has no bars, but a QR code takes it")));
    if (text.size() > mostInBars)
        refuse(Kind::Code128, text,
               core::fill(core::tr("it has %1 characters, and at most %2 fit"),
                          {std::to_string(text.size()), std::to_string(mostInBars)}));
}

} // namespace

void refuse(Kind kind, std::string_view text, std::string_view reason) {
    constexpr std::size_t shown = 40;
    std::string told(core::left(text, shown));
    if (core::length(text) > shown) told.append("...");
    throw core::RunTimeError(core::errors::typeMismatch,
                             core::fill(core::tr("%1 of %2: %3"), {kindName(kind), told, reason}));
}

std::string_view kindName(Kind kind) {
    return namesOf(kind).name;
}

std::string_view kindWord(Kind kind) {
    return namesOf(kind).word;
}

std::optional<Kind> kindOf(std::string_view word) {
    for (const Kind kind : allKinds)
        if (core::equalsNoCase(word, kindName(kind)) || core::equalsNoCase(word, kindWord(kind))) return kind;
    return std::nullopt;
}

std::string encodedText(Kind kind, std::string_view text) {
    text = core::trim(text);
    if (text.empty())
        throw core::RunTimeError(core::errors::typeMismatch,
                                 core::fill(core::tr("%1: there is no text"), {kindName(kind)}));
    if (text.find('\0') != std::string_view::npos)
        refuse(kind, text, core::tr("it holds a character that is none"));
    if (const std::size_t digits = namesOf(kind).digits; digits != 0)
        return checkedNumber(kind, text, digits);
    if (kind == Kind::Code128) checkBars(text);
    return std::string(text);
}

} // namespace codes
