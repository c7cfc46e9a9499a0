// A pattern for keys of the configuration store: text with "[^/]+" in it, which stands for any one
// component or any part of one that is not empty. A value type; any thread.
//
// Only this part of regular expressions is in use. A general matcher is not used: its stack grows
// with the key, and other people choose the names in keys.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

class KeyPattern {
public:
    // Absent for text with any other construct of regular expressions.
    static std::optional<KeyPattern> parse(std::string_view text);

    // Whether the pattern describes the whole key. The time it takes grows with the product of the
    // two lengths at most.
    bool matches(std::string_view key) const;

private:
    std::vector<std::string> _literals; // the texts before, between and behind the constructs
};

} // namespace kx
