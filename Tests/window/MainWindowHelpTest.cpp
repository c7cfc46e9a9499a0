// The main window's ways to open the help.

#include "HelpFolder.h"
#include "MainWindowFixture.h"
#include "platform/qt/QtHelpServices.h"

#include <QGuiApplication>
#include <QTest>
#include <string>
#include <vector>

namespace kx {

TEST_F(MainWindowTest, TheHelpButtonAndItsKeyOpenTheHelp) {
    launch();
    openHelp = [] { return true; };
    click("helpButton");
    EXPECT_EQ(helpAnchors, std::vector<std::string>{"index"});
    press(Qt::Key_F1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return helpAnchors.size() == 2; }));
    EXPECT_EQ(quietLine(), "");
}

TEST_F(MainWindowTest, WithAltTheKeyOpensTheHelpToo) {
    launch();
    Qt::KeyboardModifiers modifiers;
    openHelp = [&] {
        modifiers = QGuiApplication::keyboardModifiers();
        return true;
    };
    press(Qt::Key_F1, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return helpAnchors.size() == 1; }));
    EXPECT_EQ(modifiers, Qt::AltModifier);
    press(Qt::Key_F1, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return helpAnchors.size() == 2; }));
    EXPECT_TRUE(modifiers.testFlag(Qt::AltModifier));
}

TEST_F(MainWindowTest, AHelpThatCannotBeOpenedIsSaidInTheQuietLine) {
    launch();
    openHelp = [] { return false; };
    click("helpButton");
    EXPECT_EQ(quietLine(), "Help could not be opened in a web browser. To read it here, press "
                           "Alt+Shift+F1.");
    openHelp = [] { return true; };
    click("helpButton");
    EXPECT_EQ(quietLine(), "");
}

TEST_F(MainWindowTest, TheKeyOfTheViewerIsNotAdvisedWhereThatHasNothingToShow) {
    launch();
    const HelpFolder empty;
    QtHelpServices services(empty.path());
    openHelp = [&] { return openHelpAnchor("index", services); };
    helpIsThere = hasHelpPage("index", services);
    press(Qt::Key_F1, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return helpAnchors.size() == 1; }));
    EXPECT_EQ(quietLine(), "The pages of the help are not installed.");
}

} // namespace kx
