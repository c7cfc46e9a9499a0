// The contract of support/HelpPages.h: tests that every desktop must pass for the help.
//
// A test program runs them against its services with a trait. The trait is made anew for each test,
// has a browser and no pages then, and has
//
//     HelpServices& services();
//     void addPage(const std::string& name);
//     void holdOptionKey(bool held);          for the events that follow
//     void setBrowser(bool exists);
//     std::vector<std::string> openedURLs();
//     std::string shownPage();                the page in the viewer; empty when it is not open

#pragma once

#include "support/HelpPages.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

template<typename Trait>
class HelpServicesContract : public testing::Test {
protected:
    HelpServices& services() { return trait.services(); }

    Trait trait;
};

TYPED_TEST_SUITE_P(HelpServicesContract);

TYPED_TEST_P(HelpServicesContract, TheOptionKeyShowsInTheFlags) {
    EXPECT_EQ(this->services().modifierFlags() & optionKeyFlag, 0U);
    this->trait.holdOptionKey(true);
    EXPECT_EQ(this->services().modifierFlags() & optionKeyFlag, 0x80000U);
    this->trait.holdOptionKey(false);
    EXPECT_EQ(this->services().modifierFlags() & optionKeyFlag, 0U);
}

TYPED_TEST_P(HelpServicesContract, APageHasAnAbsolutePath) {
    this->trait.addPage("index");
    const auto path = this->services().pathForResource("index", "html", "homepage");
    ASSERT_TRUE(path.has_value());
    EXPECT_TRUE(path->starts_with('/')) << *path;
    EXPECT_TRUE(path->ends_with("/homepage/index.html")) << *path;
}

TYPED_TEST_P(HelpServicesContract, WhatIsNotThereHasNoPath) {
    this->trait.addPage("index");
    EXPECT_EQ(this->services().pathForResource("log", "html", "homepage"), std::nullopt);
    EXPECT_EQ(this->services().pathForResource("index", "pdf", "homepage"), std::nullopt);
    EXPECT_EQ(this->services().pathForResource("index", "html", "elsewhere"), std::nullopt);
    EXPECT_EQ(this->services().pathForResource("", "html", "homepage"), std::nullopt);
    EXPECT_EQ(this->services().pathForResource("../homepage/index", "html", "homepage"),
              std::nullopt);
}

TYPED_TEST_P(HelpServicesContract, TheBrowserIsHandedTheURL) {
    EXPECT_TRUE(this->services().openInBrowser("file:///opt/my%20help/index.html"));
    EXPECT_EQ(this->trait.openedURLs(),
              std::vector<std::string>{"file:///opt/my%20help/index.html"});
}

TYPED_TEST_P(HelpServicesContract, WithoutABrowserNothingIsOpened) {
    this->trait.setBrowser(false);
    EXPECT_FALSE(this->services().openInBrowser("file:///opt/help/index.html"));
    EXPECT_TRUE(this->trait.openedURLs().empty());
}

TYPED_TEST_P(HelpServicesContract, ABookWithoutPagesHasNoName) {
    EXPECT_EQ(this->services().helpBookName(), std::nullopt);
    this->trait.addPage("index");
    EXPECT_EQ(this->services().helpBookName(), "KXConfig Help");
}

TYPED_TEST_P(HelpServicesContract, TheViewerShowsThePageOfTheAnchor) {
    this->trait.addPage("index");
    this->trait.addPage("log");
    EXPECT_EQ(this->trait.shownPage(), "");
    EXPECT_TRUE(this->services().openAnchorInBook("index", "Help"));
    EXPECT_EQ(this->trait.shownPage(), "index");
    EXPECT_TRUE(this->services().openAnchorInBook("log", "Help"));
    EXPECT_EQ(this->trait.shownPage(), "log");
    EXPECT_TRUE(this->trait.openedURLs().empty());
}

TYPED_TEST_P(HelpServicesContract, AnAnchorWithoutAPageShowsNothing) {
    this->trait.addPage("index");
    EXPECT_FALSE(this->services().openAnchorInBook("log", "Help"));
    EXPECT_EQ(this->trait.shownPage(), "");
}

REGISTER_TYPED_TEST_SUITE_P(HelpServicesContract, TheOptionKeyShowsInTheFlags,
                            APageHasAnAbsolutePath, WhatIsNotThereHasNoPath,
                            TheBrowserIsHandedTheURL, WithoutABrowserNothingIsOpened,
                            ABookWithoutPagesHasNoName, TheViewerShowsThePageOfTheAnchor,
                            AnAnchorWithoutAPageShowsNothing);

} // namespace kx
