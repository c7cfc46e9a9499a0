// A desktop for the help whose pages, keys and browser the test scripts.

#pragma once

#include "support/HelpPages.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kx {

class ScriptedHelpServices final : public HelpServices {
public:
    // The folder of the program's resources. A relative folder makes every path relative.
    explicit ScriptedHelpServices(std::string folder = "/opt/kxconfig")
        : _folder(std::move(folder)) {}

    void addPage(const std::string& name) { _pages.insert(name); }
    void setModifierFlags(std::uint32_t flags) { _modifierFlags = flags; }
    void setBrowser(bool exists) { _hasBrowser = exists; }

    std::uint32_t modifierFlags() const override { return _modifierFlags; }

    std::optional<std::string> pathForResource(std::string_view name, std::string_view type,
                                               std::string_view folder) const override {
        const bool exists =
            type == "html" && folder == "homepage" && _pages.contains(std::string(name));
        return exists ? std::optional(_folder + "/homepage/" + std::string(name) + ".html")
                      : std::nullopt;
    }

    bool openInBrowser(std::string_view url) override {
        if (_hasBrowser) {
            openedURLs.emplace_back(url);
        }
        return _hasBrowser;
    }

    std::optional<std::string> helpBookName() const override {
        return _pages.empty() ? std::nullopt : std::optional<std::string>("KXConfig Help");
    }

    bool openAnchorInBook(std::string_view anchor, std::string_view book) override {
        const bool exists = _pages.contains(std::string(anchor));
        if (exists) {
            shownAnchors.push_back(std::string(book) + ": " + std::string(anchor));
        }
        return exists;
    }

    std::vector<std::string> openedURLs;
    std::vector<std::string> shownAnchors; // in the form "BOOK: ANCHOR"

private:
    std::string _folder;
    std::set<std::string> _pages;
    std::uint32_t _modifierFlags = 0;
    bool _hasBrowser = true;
};

} // namespace kx
