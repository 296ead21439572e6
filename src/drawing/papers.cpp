#include "drawing/papers.h"

#include "core/text.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace drawing {

namespace {

constexpr double twipsPerInch = 1440;

PaperSize inches(int code, std::string_view name, double width, double height) {
    return {code, name, std::lround(width * twipsPerInch), std::lround(height * twipsPerInch)};
}

PaperSize millimetres(int code, std::string_view name, double width, double height) {
    constexpr double perInch = 25.4;
    return inches(code, name, width / perInch, height / perInch);
}

} // namespace

std::span<const PaperSize> papers() {
    static const std::vector<PaperSize> all = {
        inches(1, "Letter", 8.5, 11),
        inches(2, "Letter small", 8.5, 11),
        inches(3, "Tabloid", 11, 17),
        inches(4, "Ledger", 17, 11),
        inches(5, "Legal", 8.5, 14),
        inches(6, "Statement", 5.5, 8.5),
        inches(7, "Executive", 7.25, 10.5),
        millimetres(8, "A3", 297, 420),
        millimetres(9, "A4", 210, 297),
        millimetres(10, "A4 small", 210, 297),
        millimetres(11, "A5", 148, 210),
        millimetres(12, "B4 (JIS)", 257, 364),
        millimetres(13, "B5 (JIS)", 182, 257),
        inches(14, "Folio", 8.5, 13),
        millimetres(15, "Quarto", 215, 275),
        inches(16, "10 x 14 in", 10, 14),
        inches(17, "11 x 17 in", 11, 17),
        inches(18, "Note", 8.5, 11),
        inches(19, "Envelope #9", 3.875, 8.875),
        inches(20, "Envelope #10", 4.125, 9.5),
        inches(21, "Envelope #11", 4.5, 10.375),
        inches(22, "Envelope #12", 4.75, 11),
        inches(23, "Envelope #14", 5, 11.5),
        inches(24, "C", 17, 22),
        inches(25, "D", 22, 34),
        inches(26, "E", 34, 44),
        millimetres(27, "Envelope DL", 110, 220),
        millimetres(28, "Envelope C5", 162, 229),
        millimetres(29, "Envelope C3", 324, 458),
        millimetres(30, "Envelope C4", 229, 324),
        millimetres(31, "Envelope C6", 114, 162),
        millimetres(32, "Envelope C65", 114, 229),
        millimetres(33, "Envelope B4", 250, 353),
        millimetres(34, "Envelope B5", 176, 250),
        millimetres(35, "Envelope B6", 176, 125),
        millimetres(36, "Envelope Italian", 110, 230),
        inches(37, "Envelope Monarch", 3.875, 7.5),
        inches(38, "Envelope Personal", 3.625, 6.5),
        inches(39, "Fanfold US", 14.875, 11),
        inches(40, "Fanfold German", 8.5, 12),
        inches(41, "Fanfold German Legal", 8.5, 13),
        millimetres(42, "B4 (ISO)", 250, 353),
        millimetres(43, "Postcard (JIS)", 100, 148),
        inches(44, "9 x 11 in", 9, 11),
        inches(45, "10 x 11 in", 10, 11),
        inches(46, "15 x 11 in", 15, 11),
        millimetres(47, "Envelope Invite", 220, 220),
        millimetres(57, "Super A", 227, 356),
        millimetres(58, "Super B", 305, 487),
        inches(59, "Letter Plus", 8.5, 12.69),
        millimetres(60, "A4 Plus", 210, 330),
        millimetres(63, "A3 Extra", 322, 445),
        millimetres(64, "A5 Extra", 174, 235),
        millimetres(65, "B5 Extra", 201, 276),
        millimetres(66, "A2", 420, 594),
        millimetres(69, "Double Postcard (JIS)", 200, 148),
        millimetres(70, "A6", 105, 148),
    };
    return all;
}

const PaperSize* findPaper(int code) {
    const auto paper = std::ranges::find(papers(), code, &PaperSize::code);
    return paper == papers().end() ? nullptr : &*paper;
}

const PaperSize* findPaper(std::string_view name) {
    const auto isCalled = [name](const PaperSize& paper) { return core::equalsNoCase(paper.name, name); };
    const auto paper = std::ranges::find_if(papers(), isCalled);
    return paper == papers().end() ? nullptr : &*paper;
}

} // namespace drawing
