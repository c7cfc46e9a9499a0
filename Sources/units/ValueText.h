// The text of one value, or none.
//
// A plain value without heap storage: copying one copies its bytes. Any thread, one at a time.

#pragma once

#include "support/Require.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kx {

class ValueText {
public:
    // In bytes: that of a hardware address or a serial number.
    static constexpr std::size_t longestText = 17;

    // No text.
    ValueText() = default;

    // Contract: "text.size() <= longestText".
    explicit ValueText(std::string_view text) {
        require(text.size() <= longestText, "text.size() <= longestText",
                "Sources/units/ValueText");
        _length = static_cast<std::uint8_t>(text.copy(_bytes.data(), longestText));
    }

    // Takes the text that `write` makes: it gets room for `longestText` bytes, and returns the end
    // of what it wrote.
    template<typename Write>
    void write(Write write) {
        _length = static_cast<std::uint8_t>(write(_bytes.data()) - _bytes.data());
    }

    // A view of this value, absent when it is none.
    std::optional<std::string_view> view() const {
        return _length == none ? std::nullopt
                               : std::optional(std::string_view(_bytes.data(), _length));
    }

private:
    static constexpr std::uint8_t none = 255;

    std::array<char, longestText> _bytes{};
    std::uint8_t _length = none;
};

} // namespace kx
