// Help through the desktop: the page opens in the application that the desktop uses for web pages,
// or in the built-in viewer. Needs a QApplication, which must outlive it.

#pragma once

#include "support/HelpPages.h"

#include <QString>
#include <memory>

namespace kx {

class HelpViewer;

class QtHelpServices final : public HelpServices {
public:
    enum class Browser {
        isAllowed,
        isNot, // no browser is looked for and none is started
    };

    // `resourceFolder` is the folder of the program's resources. The pages are in its folder
    // "homepage". `language`, a name such as "de", is that of the window; a page is opened in it
    // where there is one, and in English elsewhere.
    explicit QtHelpServices(QString resourceFolder, Browser browser = Browser::isAllowed,
                            QString language = "en");

    // A browser that root starts shows the pages of the whole world with the rights of root, so
    // root reads the help in the viewer.
    static Browser browserForUser(unsigned userID);

    ~QtHelpServices() override; // closes the viewer

    std::uint32_t modifierFlags() const override;
    std::optional<std::string> pathForResource(std::string_view name, std::string_view type,
                                               std::string_view folder) const override;
    bool openInBrowser(std::string_view url) override;
    std::optional<std::string> helpBookName() const override;
    bool openAnchorInBook(std::string_view anchor, std::string_view book) override;

private:
    QString _resourceFolder;
    Browser _browser;
    QString _language;
    std::unique_ptr<HelpViewer>
        _viewer; // null until it is first needed; a viewer that was closed is made anew
};

} // namespace kx
