#include "System Configuration/InterfaceTitles.h"

#include "support/TextFormat.h"

#include <cstddef>

namespace kx {

namespace {

// A character may take several bytes in UTF-8: a leading byte and continuation bytes.
std::string_view withoutFinalCharacter(std::string_view text) {
    while (!text.empty()) {
        const auto byte = static_cast<unsigned char>(text.back());
        text.remove_suffix(1);
        if ((byte & 0xC0U) != 0x80U) {
            break;
        }
    }
    return text;
}

} // namespace

std::string titleForNameAndID(std::string_view userName, std::string_view interfaceID) {
    const std::string suffix = filledText(" (%@)", {interfaceID});
    std::string title(userName);
    if (!title.ends_with(suffix)) {
        title += suffix;
    }
    return title;
}

std::string userNameForTitle(std::string_view title) {
    return std::string(title.substr(0, title.rfind(" (")));
}

std::string interfaceIDForTitle(std::string_view title) {
    const std::size_t parenthesis = title.rfind('(');
    if (parenthesis == std::string_view::npos) {
        return std::string(title);
    }
    return std::string(withoutFinalCharacter(title.substr(parenthesis + 1)));
}

std::string bsdNameForInterfaceID(std::string_view interfaceID) {
    return std::string(interfaceID.substr(0, interfaceID.rfind(':')));
}

std::string bsdNameForTitle(std::string_view title) {
    return bsdNameForInterfaceID(interfaceIDForTitle(title));
}

} // namespace kx
