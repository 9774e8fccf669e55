// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <iterator>

namespace morrowleaf {

// Walks over a JSON text and leaves out what follows the second digit of every
// run of digits outside strings: the text keeps its grammar, and no number in
// it is too large for a reader that refuses what it cannot represent.
class ShortNumbers {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    ShortNumbers(const char* at, const char* end)
        : at_(at)
        , end_(end) {}

    reference operator*() const { return *at_; }
    ShortNumbers& operator++() {
        step();
        while (digits_ >= 2 && at_ != end_ && isDigit(*at_)) {
            ++at_;
        }
        return *this;
    }
    ShortNumbers operator++(int) {
        const ShortNumbers before = *this;
        ++*this;
        return before;
    }
    bool operator==(const ShortNumbers& other) const { return at_ == other.at_; }

private:
    static bool isDigit(char byte) { return byte >= '0' && byte <= '9'; }

    void step() {
        const char byte = *at_++;
        if (inString_) {
            inString_ = escaped_ || byte != '"';
            escaped_ = !escaped_ && byte == '\\';
        } else {
            inString_ = byte == '"';
            digits_ = isDigit(byte) ? digits_ + 1 : 0;
        }
    }

    const char* at_;
    const char* end_;
    int digits_ = 0;
    bool inString_ = false;
    bool escaped_ = false;
};

} // namespace morrowleaf
