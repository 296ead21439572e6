#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace core {

// Stands behind each value of a cell that has one for each item row of an invoice.
constexpr char itemSeparator = '@';

// The text of one cell in 16 bytes. Texts of up to 15 bytes, which is nearly every cell of a real
// database, live inside the object; longer ones own a block of exactly their size. A list of a
// million cells therefore costs a small factor of the file it came from.
class CellText {
public:
    CellText() noexcept { raw_[tagAt] = 0; }
    CellText(std::string_view text) { store(text); }                 // NOLINT(google-explicit-constructor)
    CellText(const char* text) : CellText(std::string_view(text)) {} // NOLINT(google-explicit-constructor)
    CellText(const std::string& text) : CellText(std::string_view(text)) {} // NOLINT
    CellText(const CellText& other) {
        if (other.isInline())
            std::memcpy(raw_, other.raw_, sizeof raw_);
        else
            store(other.view());
    }
    CellText(CellText&& other) noexcept {
        std::memcpy(raw_, other.raw_, sizeof raw_);
        other.raw_[tagAt] = 0;
    }
    CellText& operator=(const CellText& other) {
        if (this != &other) assign(other.view());
        return *this;
    }
    CellText& operator=(CellText&& other) noexcept {
        if (this != &other) {
            release();
            std::memcpy(raw_, other.raw_, sizeof raw_);
            other.raw_[tagAt] = 0;
        }
        return *this;
    }
    CellText& operator=(std::string_view text) {
        assign(text);
        return *this;
    }
    CellText& operator=(const std::string& text) { return *this = std::string_view(text); }
    CellText& operator=(const char* text) { return *this = std::string_view(text); }
    ~CellText() { release(); }

    std::string_view view() const noexcept {
        if (isInline()) return {raw_, static_cast<unsigned char>(raw_[tagAt])};
        return {block(), blockSize()};
    }
    operator std::string_view() const noexcept { return view(); } // NOLINT(google-explicit-constructor)
    std::string str() const { return std::string(view()); }
    bool empty() const noexcept { return raw_[tagAt] == 0; }
    std::size_t size() const noexcept { return view().size(); }

    friend bool operator==(const CellText& a, std::string_view b) noexcept { return a.view() == b; }
    friend bool operator==(const CellText& a, const CellText& b) noexcept { return a.view() == b.view(); }
    friend bool operator==(const CellText& a, const char* b) noexcept { return a.view() == b; }
    friend bool operator==(const CellText& a, const std::string& b) noexcept { return a.view() == b; }

private:
    static constexpr std::size_t tagAt = 15; // length of an inline text, or blockTag
    static constexpr char blockTag = 127;

    bool isInline() const noexcept { return raw_[tagAt] != blockTag; }
    char* block() const noexcept {
        char* data = nullptr;
        std::memcpy(&data, raw_, sizeof data);
        return data;
    }
    std::uint32_t blockSize() const noexcept {
        std::uint32_t size = 0;
        std::memcpy(&size, raw_ + 8, sizeof size);
        return size;
    }
    // The text may be a piece of this very object, so the new value is built before the old one goes.
    void assign(std::string_view text) {
        CellText fresh(text);
        *this = std::move(fresh);
    }
    void store(std::string_view text) {
        if (text.size() <= tagAt) {
            if (!text.empty()) std::memcpy(raw_, text.data(), text.size());
            // A text of 15 bytes has its length in the last byte too, since its characters end at byte 14.
            raw_[tagAt] = static_cast<char>(text.size());
            return;
        }
        storeBlock(text);
    }
    void storeBlock(std::string_view text);
    void release() noexcept {
        if (!isInline()) delete[] block();
    }

    alignas(8) char raw_[16] = {};
};

} // namespace core
