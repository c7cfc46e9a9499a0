#include "files/JSONObjectText.h"

#include "files/UnitJSON.h"

#include <algorithm>

namespace kx {

namespace {

// Characters that stand in a JSON text as they are.
bool isPlain(char character) {
    return character >= ' ' && character <= '~' && character != '"' && character != '\\';
}

} // namespace

void JSONObjectText::addKey(std::string_view key) {
    _members += _members.empty() ? "{\"" : ",\"";
    _members += key;
    _members += "\":";
}

void JSONObjectText::addValue(std::string_view key, std::string_view json) {
    addKey(key);
    _members += json;
}

void JSONObjectText::add(std::string_view key, std::optional<std::string_view> text) {
    if (!text.has_value()) {
        addValue(key, "null");
    } else if (!std::ranges::all_of(*text, isPlain)) {
        addValue(key, textOfJson(*text));
    } else {
        addKey(key);
        _members += '"';
        _members += *text;
        _members += '"';
    }
}

} // namespace kx
