#include "System Configuration/InterfaceTitles.h"

#include <algorithm>
#include <cstddef>

namespace kx {

std::string bsdNameForInterfaceID(std::string_view interfaceID) {
    return std::string(interfaceID.substr(0, interfaceID.rfind(':')));
}

std::string bsdNameForTitle(std::string_view title) {
    const std::size_t parenthesis = title.rfind('(');
    if (parenthesis == std::string_view::npos) {
        return bsdNameForInterfaceID(title);
    }
    std::string_view interfaceID = title.substr(parenthesis + 1);
    interfaceID.remove_suffix(std::min<std::size_t>(interfaceID.size(), 1));
    return bsdNameForInterfaceID(interfaceID);
}

} // namespace kx
