#include "codes/code.h"

#include "codes/checkedText.h"
#include "codes/gif.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"

#include <zint.h>

#include <cstdint>
#include <memory>

namespace codes {

namespace {

// Pixels a module: half of them are the scale of the library.
constexpr float scaleOfMatrix = 2, scaleOfBars = 1;
constexpr int mediumCorrection = 2; // 15 % of a QR code may be unreadable
constexpr int utf8 = 26;            // what a reader is told of the encoding
constexpr std::string_view nameHead = "code-", nameTail = ".gif";
constexpr std::size_t digitsOfName = 16;

using Symbol = std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)>;

int symbologyOf(Kind kind) {
    static constexpr std::array<int, allKinds.size()> symbologies = {
        BARCODE_QRCODE, BARCODE_EANX, BARCODE_EANX, BARCODE_UPCA, BARCODE_CODE128, BARCODE_DATAMATRIX};
    return symbologies.at(static_cast<std::size_t>(kind));
}

bool isArticleNumber(Kind kind) {
    return kind == Kind::EAN13 || kind == Kind::EAN8 || kind == Kind::UPCA;
}

Symbol makeSymbol(Kind kind, std::string_view text) {
    Symbol symbol(ZBarcode_Create(), &ZBarcode_Delete);
    if (!symbol) core::raise(core::errors::overflow, core::tr("memory for a code"));
    const bool isMatrix = kind == Kind::QR || kind == Kind::DataMatrix;
    symbol->symbology = symbologyOf(kind);
    symbol->scale = isMatrix ? scaleOfMatrix : scaleOfBars;
    symbol->input_mode = UNICODE_MODE;
    symbol->output_options = OUT_BUFFER_INTERMEDIATE | BARCODE_QUIET_ZONES | COMPLIANT_HEIGHT;
    if (kind == Kind::QR) symbol->option_1 = mediumCorrection;
    if (kind == Kind::DataMatrix) symbol->option_3 = DM_SQUARE;
    if (isMatrix && core::asciiLength(text) < text.size()) symbol->eci = utf8;
    return symbol;
}

std::uint64_t hashOf(std::string_view text) {
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return hash;
}

} // namespace

std::string makeCode(Kind kind, std::string_view text) {
    std::string encoded = encodedText(kind, text);
    // The library tells an EAN-8 from an EAN-13 by its length without the check digit, which it adds itself.
    if (isArticleNumber(kind)) encoded.pop_back();
    const Symbol symbol = makeSymbol(kind, encoded);
    constexpr std::size_t mostBytes = 8000; // more than any of them holds
    int fault = ZINT_ERROR_TOO_LONG;
    if (encoded.size() <= mostBytes)
        fault =
            ZBarcode_Encode_and_Buffer(symbol.get(), reinterpret_cast<const unsigned char*>(encoded.data()),
                                       static_cast<int>(encoded.size()), 0);
    if (fault == ZINT_ERROR_MEMORY) core::raise(core::errors::overflow, core::tr("memory for a code"));
    if (fault == ZINT_ERROR_TOO_LONG)
        refuse(kind, encoded,
               core::fill(core::tr("it has %1 bytes, which is too long for such a code"),
                          {std::to_string(encoded.size())}));
    if (fault >= ZINT_ERROR || symbol->bitmap == nullptr)
        refuse(kind, encoded, core::tr("it holds characters that such a code cannot"));
    const int width = symbol->bitmap_width, height = symbol->bitmap_height;
    const std::size_t pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    return blackAndWhiteGif({reinterpret_cast<const char*>(symbol->bitmap), pixels}, width, height);
}

std::string codeEntryName(Kind kind, std::string_view text) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string told(kindWord(kind));
    told.append("\n").append(encodedText(kind, text));
    std::uint64_t hash = hashOf(told);
    std::string hex(digitsOfName, '0');
    for (auto digit = hex.rbegin(); digit != hex.rend(); ++digit, hash >>= 4U) *digit = digits[hash & 0xFU];
    return std::string(nameHead).append(hex).append(nameTail);
}

bool isCodeEntryName(std::string_view name) {
    if (name.size() != nameHead.size() + digitsOfName + nameTail.size() || !name.starts_with(nameHead) ||
        !name.ends_with(nameTail))
        return false;
    const std::string_view hex = name.substr(nameHead.size(), digitsOfName);
    return hex.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

} // namespace codes
