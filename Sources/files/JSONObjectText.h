// The text of one JSON object (RFC 8259), written member by member.
//
// It is what textOfJson() makes of the same object. No values are made of what is only written,
// because there may be ten thousand units.
//
// Pure; any thread. Texts are UTF-8; foreign texts may hold anything. What is written has no
// characters beyond ASCII, and a mark in the place of bytes that are no UTF-8.

#pragma once

#include <concepts>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

class JSONObjectText {
public:
    // Members are written in the order in which they are added. The caller gives each key once; a
    // key is of printable ASCII, without quotes and backslashes. No text is null.
    void add(std::string_view key, std::optional<std::string_view> text);
    void add(std::string_view key, const char* text) { add(key, std::string_view(text)); }

    // No number is null.
    template<std::integral Number>
    void add(std::string_view key, std::optional<Number> number) {
        addValue(key, number.has_value() ? std::to_string(*number) : "null");
    }

    template<std::integral Number>
    void add(std::string_view key, Number number) {
        addValue(key, std::to_string(number));
    }

    void add(std::string_view key, bool truth) { addValue(key, truth ? "true" : "false"); }

    // Any value, which is a text already.
    void addValue(std::string_view key, std::string_view json);

    // The object.
    std::string text() const { return _members.empty() ? "{}" : _members + "}"; }

private:
    void addKey(std::string_view key);

    std::string _members; // with a brace at the beginning
};

} // namespace kx
