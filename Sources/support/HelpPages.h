// Opens the application's help: its pages in the person's browser, or in the application's own
// viewer when the Option key is held, which is the Alt key on most keyboards.
//
// Main thread only.

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// The bit of the Option key in the flags of an event.
inline constexpr std::uint32_t optionKeyFlag = 1U << 19U;

// The services that help needs from the desktop and from the installed program.
class HelpServices {
public:
    virtual ~HelpServices() = default;

    // The modifier keys that are down at the present event; only optionKeyFlag is used.
    virtual std::uint32_t modifierFlags() const = 0;

    // The absolute path of a resource of the program; absent when there is no such file. An empty
    // name, and a name that leads out of its folder, have no path.
    virtual std::optional<std::string> pathForResource(std::string_view name, std::string_view type,
                                                       std::string_view folder) const = 0;

    // Hands a URL to the application that shows web pages; false when there is none or it could not
    // be started. Does not wait for it.
    virtual bool openInBrowser(std::string_view url) = 0;

    // The name of the help book, as the viewer shows it; absent when the program came without one.
    virtual std::optional<std::string> helpBookName() const = 0;

    // Shows the viewer with the book's page at `anchor`. When the book has no such page, returns
    // false and shows nothing.
    virtual bool openAnchorInBook(std::string_view anchor, std::string_view book) = 0;
};

// Whether the program came with this page of the help.
bool hasHelpPage(std::string_view page, const HelpServices& services);

// Opens a page of the help in the browser; false when there is no such page or no browser.
bool openHelpFile(std::string_view page, HelpServices& services);

// Opens the help at an anchor. Without the Option key it calls openHelpFile() for the page with the
// anchor's name. With the Option key held it opens the viewer. False when nothing was opened.
bool openHelpAnchor(std::string_view anchor, HelpServices& services);

} // namespace kx
