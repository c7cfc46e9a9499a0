#include "support/URLEncoding.h"

#include "support/TextEncoding.h"

namespace kx {

namespace {

// The unreserved characters of RFC 3986, section 2.3.
bool isUnreserved(std::uint8_t byte) {
    constexpr std::string_view marks = "-._~";
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
           (byte >= '0' && byte <= '9') || marks.find(static_cast<char>(byte)) != marks.npos;
}

} // namespace

std::string stringByURLEncoding(std::string_view text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    encoded.reserve(text.size());
    for (const std::uint8_t byte : bytesOfText(text)) {
        if (isUnreserved(byte)) {
            encoded += static_cast<char>(byte);
        } else {
            encoded += '%';
            encoded += digits[byte >> 4U];
            encoded += digits[byte & 0x0FU];
        }
    }
    return encoded;
}

std::optional<std::string> fileURLForPath(std::string_view path) {
    if (!path.starts_with('/')) {
        return std::nullopt;
    }
    std::string url = "file://";
    while (!path.empty()) {
        const std::size_t end = path.find('/', 1);
        url += '/';
        url += stringByURLEncoding(path.substr(1, end == path.npos ? end : end - 1));
        path.remove_prefix(end == path.npos ? path.size() : end);
    }
    return url;
}

} // namespace kx
