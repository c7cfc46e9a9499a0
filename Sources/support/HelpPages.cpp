#include "support/HelpPages.h"

#include "support/URLEncoding.h"

namespace kx {

namespace {

std::optional<std::string> pathOfPage(std::string_view page, const HelpServices& services) {
    return services.pathForResource(page, "html", "homepage");
}

} // namespace

bool hasHelpPage(std::string_view page, const HelpServices& services) {
    return pathOfPage(page, services).has_value();
}

bool openHelpFile(std::string_view page, HelpServices& services) {
    const auto path = pathOfPage(page, services);
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
