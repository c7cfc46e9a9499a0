#include "support/HelpPages.h"

#include "contracts/HelpServicesContract.h"
#include "doubles/ScriptedHelpServices.h"

namespace kx {

namespace {

using URLs = std::vector<std::string>;

class HelpPages : public testing::Test {
protected:
    HelpPages() {
        services.addPage("index");
        services.addPage("event log");
    }

    ScriptedHelpServices services;
};

class ScriptedHelpServicesTrait {
public:
    HelpServices& services() { return _services; }
    void addPage(const std::string& name) { _services.addPage(name); }
    void holdOptionKey(bool held) { _services.setModifierFlags(held ? optionKeyFlag : 0); }
    void setBrowser(bool exists) { _services.setBrowser(exists); }
    std::vector<std::string> openedURLs() { return _services.openedURLs; }
    std::string shownPage() {
        const std::string shown =
            _services.shownAnchors.empty() ? "" : _services.shownAnchors.back();
        return shown.substr(std::min(shown.size(), std::string("Help: ").size()));
    }

private:
    ScriptedHelpServices _services;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Scripted, HelpServicesContract, ScriptedHelpServicesTrait);

TEST_F(HelpPages, AFileOpensInTheBrowserAsAURL) {
    EXPECT_TRUE(openHelpFile("event log", services));
    EXPECT_EQ(services.openedURLs, URLs{"file:///opt/kxconfig/homepage/event%20log.html"});
}

TEST_F(HelpPages, AFileThatIsNotThereOpensNothing) {
    EXPECT_FALSE(openHelpFile("missing", services));
    EXPECT_FALSE(openHelpFile("", services));
    EXPECT_TRUE(services.openedURLs.empty());
}

TEST_F(HelpPages, APageIsThereOrNot) {
    EXPECT_TRUE(hasHelpPage("index", services));
    EXPECT_FALSE(hasHelpPage("missing", services));
    EXPECT_FALSE(hasHelpPage("", services));
    EXPECT_TRUE(services.openedURLs.empty());
}

TEST_F(HelpPages, APathThatMakesNoURLOpensNothing) {
    ScriptedHelpServices relative("share/kxconfig");
    relative.addPage("index");
    EXPECT_FALSE(openHelpFile("index", relative));
    EXPECT_TRUE(relative.openedURLs.empty());
}

TEST_F(HelpPages, WithoutABrowserTheResultIsFalse) {
    services.setBrowser(false);
    EXPECT_FALSE(openHelpFile("index", services));
    EXPECT_FALSE(openHelpAnchor("index", services));
}

TEST_F(HelpPages, AnAnchorOpensThePageOfItsNameInTheBrowser) {
    EXPECT_TRUE(openHelpAnchor("index", services));
    EXPECT_EQ(services.openedURLs, URLs{"file:///opt/kxconfig/homepage/index.html"});
    EXPECT_TRUE(services.shownAnchors.empty());
}

TEST_F(HelpPages, AnAnchorWithoutAPageOpensNothing) {
    EXPECT_FALSE(openHelpAnchor("missing", services));
    EXPECT_TRUE(services.openedURLs.empty());
    EXPECT_TRUE(services.shownAnchors.empty());
}

TEST_F(HelpPages, WithTheOptionKeyTheAnchorOpensInTheViewer) {
    services.setModifierFlags(optionKeyFlag);
    EXPECT_TRUE(openHelpAnchor("index", services));
    EXPECT_EQ(services.shownAnchors, URLs{"KXConfig Help: index"});
    EXPECT_TRUE(services.openedURLs.empty());
}

TEST_F(HelpPages, OtherModifierKeysChangeNothing) {
    services.setModifierFlags(~optionKeyFlag);
    EXPECT_TRUE(openHelpAnchor("index", services));
    EXPECT_EQ(services.openedURLs.size(), 1U);
    services.setModifierFlags(~0U);
    EXPECT_TRUE(openHelpAnchor("index", services));
    EXPECT_EQ(services.shownAnchors.size(), 1U);
}

TEST_F(HelpPages, TheViewerNeedsNoBrowser) {
    services.setBrowser(false);
    services.setModifierFlags(optionKeyFlag);
    EXPECT_TRUE(openHelpAnchor("index", services));
}

TEST_F(HelpPages, TheViewerNeedsABookWithThePage) {
    services.setModifierFlags(optionKeyFlag);
    EXPECT_FALSE(openHelpAnchor("missing", services));
    ScriptedHelpServices withoutBook;
    withoutBook.setModifierFlags(optionKeyFlag);
    EXPECT_FALSE(openHelpAnchor("index", withoutBook));
    EXPECT_TRUE(withoutBook.shownAnchors.empty());
}

} // namespace kx
