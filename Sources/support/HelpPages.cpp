#include "support/HelpPages.h"

#include "support/URLEncoding.h"

namespace kx {

bool openHelpFile(std::string_view page, HelpServices& services) {
    const auto path = services.pathForResource(page, "html", "homepage");
    const auto url = path.has_value() ? fileURLForPath(*path) : std::nullopt;
    return url.has_value() && services.openInBrowser(*url);
}

bool openHelpAnchor(std::string_view anchor, HelpServices& services) {
    if ((services.modifierFlags() & optionKeyFlag) == 0) {
        return openHelpFile(anchor, services);
    }
    const auto book = services.helpBookName();
    return book.has_value() && services.openAnchorInBook(anchor, *book);
}

} // namespace kx
