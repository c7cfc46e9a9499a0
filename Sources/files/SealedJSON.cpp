#include "files/SealedJSON.h"

#include "files/JSONReading.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace kx {

namespace {

constexpr const char* checksumKey = "checksum";

constexpr std::array<std::uint32_t, 256> remainders = [] {
    constexpr std::uint32_t polynomial = 0xEDB88320U;
    std::array<std::uint32_t, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        auto remainder = static_cast<std::uint32_t>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            remainder = (remainder >> 1U) ^ ((remainder & 1U) != 0 ? polynomial : 0U);
        }
        table[byte] = remainder;
    }
    return table;
}();

// A line break stands between values only: within them it is escaped.
std::string checksumOf(std::string_view text) {
    std::uint32_t remainder = ~0U;
    for (const char character : text) {
        if (character != '\n') {
            const auto byte = static_cast<std::uint8_t>(character);
            remainder = (remainder >> 8U) ^ remainders[(remainder ^ byte) & 0xFFU];
        }
    }
    remainder = ~remainder;
    std::string digits;
    for (int shift = 28; shift >= 0; shift -= 4) {
        digits += "0123456789abcdef"[(remainder >> static_cast<unsigned>(shift)) & 0xFU];
    }
    return digits;
}

bool isObjectWith(const Json& json, const char* key) {
    return json.is_object() && json.contains(key);
}

bool isOfKind(const Json& json, std::string_view kind) {
    return json.contains("kind") && json["kind"] == kind;
}

// Writing a value goes as deep as the value does. What lies deeper than any format is left out,
// and the checksum then tells so.
Json parsed(std::string_view text) {
    constexpr int mostDepth = 16;
    return Json::parse(
        text, [](int depth, Json::parse_event_t /*event*/, Json&) { return depth < mostDepth; },
        false);
}

} // namespace

std::string sealedText(std::string_view object) {
    std::string text(object.substr(0, object.size() - 1));
    return text += ",\"" + std::string(checksumKey) + "\":\"" + checksumOf(object) + "\"}\n";
}

std::optional<Json> unsealedObject(std::string_view text) {
    Json json = parsed(text);
    if (!isObjectWith(json, checksumKey)) {
        return std::nullopt;
    }
    const Json checksum = json[checksumKey];
    json.erase(checksumKey);
    return checksum == checksumOf(textOfJson(json)) ? std::optional(std::move(json)) : std::nullopt;
}

namespace {

// Whether a text without a seal is something else, and not a damaged document of this kind.
bool isSomethingElse(std::string_view text, std::string_view kind) {
    const Json json = parsed(text);
    if (!json.is_discarded()) {
        return !isObjectWith(json, checksumKey) && !isObjectWith(json, "kind");
    }
    const auto firstLine = unsealedObject(text.substr(0, text.find('\n')));
    return firstLine.has_value() ? !isOfKind(*firstLine, kind) : isNoJSONAtAll(text);
}

} // namespace

std::variant<Json, DocumentFault> unsealedDocument(std::string_view text, std::string_view kind,
                                                   int version) {
    auto object = unsealedObject(text);
    if (!object.has_value()) {
        return isSomethingElse(text, kind) ? DocumentFault::otherKind : DocumentFault::damaged;
    }
    if (!isOfKind(*object, kind)) {
        return DocumentFault::otherKind;
    }
    if (!object->contains("schema") || (*object)["schema"] != version) {
        return DocumentFault::otherVersion;
    }
    return *std::move(object);
}

} // namespace kx
