#include "codes/code.h"
#include "codes/gif.h"
#include "table.h"

#include <gtest/gtest.h>

#include <random>

namespace {

// The pixels of a GIF that the codes make, read as any other program reads them.
std::string pixelsOf(const std::string& gif) {
    constexpr std::size_t head = 6 + 7 + 6 + 10;
    const int bits = gif.at(head), clear = 1 << bits;
    std::string packed, pixels;
    for (std::size_t at = head + 1; gif.at(at) != 0; at += 1 + static_cast<unsigned char>(gif[at]))
        packed += gif.substr(at + 1, static_cast<unsigned char>(gif[at]));
    std::vector<std::string> words;
    int width = bits + 1, before = clear;
    for (std::size_t bit = 0;;) {
        int code = 0;
        for (int i = 0; i < width; ++i, ++bit) code |= (packed.at(bit / 8) >> (bit % 8) & 1) << i;
        if (code == clear + 1) return pixels;
        if (code == clear) {
            words = {"0", "1", "", "", "", ""};
            width = bits + 1;
        } else {
            const std::string last = before == clear ? "" : words.at(static_cast<std::size_t>(before));
            const auto place = static_cast<std::size_t>(code);
            const std::string word = place < words.size() ? words[place] : last + last.at(0);
            if (!last.empty() && words.size() < 4096) words.push_back(last + word.at(0));
            pixels += word;
            if (words.size() == 1U << static_cast<unsigned>(width) && width < 12) ++width;
        }
        before = code;
    }
}

} // namespace

TEST(Gif, HoldsItsPixels) {
    std::mt19937 random(5);
    for (const int size : {1, 2, 7, 60, 300}) {
        std::string pixels;
        const bool bNoise = size != 60;
        for (int i = 0; i < size * size; ++i) pixels += bNoise ? (random() % 2 == 0 ? '1' : '0') : '0';
        EXPECT_EQ(pixelsOf(codes::blackAndWhiteGif(pixels, size, size)), pixels) << size;
    }
}

// What the bars say, or why there are none. Check digits are worked examples of the numbering's own tables.
TEST(Codes, WhatTheBarsSayOrWhyThereAreNone) {
    for (const auto& row :
         table("ean13 400638133393 -> 4006381333931; ean13 978-3-16-148410-0 -> 9783161484100; "
               "ean8 9638507 -> 96385074; upca 03600029145 -> 036000291452; "
               "ean13 4006381333932 -> EAN-13 of 4006381333932: the last digit should be 1; "
               "ean13 40063x -> EAN-13 of 40063x: \"x\" at place 6 is no digit; "
               "ean8 12 -> EAN-8 of 12: it has 2 digits, and should have 8, or 7 without the check "
               "digit; qr   -> QR: there is no text; qr \u00fc\u20ac -> \u00fc\u20ac; "
               "code128 M\u00fc -> Code 128 of M\u00fc: \"\u00fc\" at place 2 has no bars, but a QR code "
               "takes it; datamatrix A b -> A b")) {
        const std::size_t blank = row[0].find(' ');
        const codes::Kind kind = codes::kindOf(row[0].substr(0, blank)).value();
        std::string told;
        try {
            told = codes::encodedText(kind, row[0].substr(blank + 1));
            EXPECT_EQ(codes::makeCode(kind, row[0].substr(blank + 1)).substr(0, 6), "GIF87a");
        } catch (const std::exception& error) {
            told = error.what();
        }
        EXPECT_EQ(told, row[1]);
    }
    EXPECT_ANY_THROW(codes::makeCode(codes::Kind::QR, std::string(3000, 'x')));
    EXPECT_ANY_THROW(codes::makeCode(codes::Kind::Code128, std::string(81, 'x')));
}
