// The About box: its text, and how a person opens and closes it.

#include "InLanguage.h"
#include "MainWindowFixture.h"
#include "platform/qt/ApplicationIcon.h"

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>

namespace kx {

class AboutBoxTest : public MainWindowTest {
public:
    AboutBoxTest() { QCoreApplication::setApplicationVersion("12.3.4"); }
    ~AboutBoxTest() override { QCoreApplication::setApplicationVersion({}); }

protected:
    QMessageBox* openBox() {
        control<QAction>("aboutAction").trigger();
        return window.findChild<QMessageBox*>("aboutBox");
    }
};

class GermanAboutBoxTest : private InLanguage, public AboutBoxTest {
public:
    GermanAboutBoxTest()
        : InLanguage("de") {}
};

TEST_F(AboutBoxTest, ItSaysWhatTheProgramIsAndWhichVersionRuns) {
    launch();
    const QMessageBox* const box = openBox();
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(box->windowTitle(), "About KXConfig");
    EXPECT_EQ(box->text(), "KXConfig 12.3.4");
    EXPECT_EQ(box->informativeText(), "Finds and configures small networked units over UDP.\n\n"
                                      "Qt " +
                                          QString(qVersion()));
}

TEST_F(AboutBoxTest, ItShowsThePictureOfTheWindow) {
    window.setWindowIcon(applicationIcon());
    const QMessageBox* const box = openBox();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->iconPixmap().deviceIndependentSize(), QSizeF(64, 64));
}

TEST_F(AboutBoxTest, TheMenuEntryHasTheRoleThatDesktopsKnow) {
    EXPECT_EQ(control<QAction>("aboutAction").menuRole(), QAction::AboutRole);
}

TEST_F(AboutBoxTest, EscapeClosesItAndTheMenuOpensItAnew) {
    launch();
    const QPointer<QMessageBox> box(openBox());
    QTest::keyClick(box.data(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return box.isNull(); }));
    ASSERT_NE(openBox(), nullptr);
    EXPECT_TRUE(openBox()->isVisible());
}

TEST_F(AboutBoxTest, ThereIsOneBoxHoweverOftenItIsOpened) {
    launch();
    const QMessageBox* const box = openBox();
    EXPECT_EQ(openBox(), box);
    EXPECT_EQ(window.findChildren<QMessageBox*>().size(), 1);
}

TEST_F(AboutBoxTest, ItDoesNotStopTheProgram) {
    launchWithInterface();
    ASSERT_NE(openBox(), nullptr);
    receive(SampleUnit().reply());
    runLoop.advanceBy(std::chrono::seconds(2));
    EXPECT_EQ(control<QComboBox>("unitSelectPopUp").count(), 1);
}

TEST_F(GermanAboutBoxTest, ItSpeaksTheLanguageOfThePerson) {
    launch();
    const QMessageBox* const box = openBox();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->windowTitle(), "Über KXConfig");
    EXPECT_TRUE(box->informativeText().startsWith("Findet und konfiguriert kleine Netzwerkgeräte"));
    EXPECT_EQ(box->button(QMessageBox::Close)->text().remove('&'), "Schließen");
}

} // namespace kx
