// The viewer of the help pages.

#include "platform/qt/HelpViewer.h"

#include "HelpFolder.h"
#include "Looks.h"
#include "platform/qt/QtHelpServices.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QWindow>
#include <memory>

namespace kx {

class HelpViewerTest : public testing::Test {
protected:
    HelpViewerTest() {
        folder.addPage("index", "<a href='log.html'>Log</a>");
        folder.addPage("log");
        viewer = std::make_unique<HelpViewer>(folder.pages());
        viewer->showPage("index", "Help");
        EXPECT_TRUE(QTest::qWaitForWindowActive(viewer.get()));
    }

    QPushButton& button(const char* name) { return *viewer->findChild<QPushButton*>(name); }
    QTextBrowser& pages() { return *viewer->findChild<QTextBrowser*>(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(viewer->windowHandle(), key, modifiers);
    }
    void followLink() {
        pages().setFocus();
        press(Qt::Key_Tab); // moves to the first link
        press(Qt::Key_Return);
    }

    HelpFolder folder;
    std::unique_ptr<HelpViewer> viewer;
};

TEST_F(HelpViewerTest, IsTitledWithThePageAndTheBook) {
    EXPECT_EQ(viewer->windowTitle(), "Page index – Help");
    viewer->showPage("log", "Other Help");
    EXPECT_EQ(viewer->windowTitle(), "Page log – Other Help");
}

TEST_F(HelpViewerTest, GoesBackAndForwardAndToTheContents) {
    EXPECT_FALSE(button("helpBackButton").isEnabled());
    EXPECT_FALSE(button("helpForwardButton").isEnabled());
    followLink();
    EXPECT_EQ(pageInViewer(), "log");
    button("helpBackButton").click();
    EXPECT_EQ(pageInViewer(), "index");
    EXPECT_FALSE(button("helpBackButton").isEnabled());
    button("helpForwardButton").click();
    EXPECT_EQ(pageInViewer(), "log");
    button("helpContentsButton").click();
    EXPECT_EQ(pageInViewer(), "index");
}

TEST_F(HelpViewerTest, StaysInItsLanguageAlongLinksAndOnTheWayToTheContents) {
    folder.addPage("de/index", "<a href='log.html'>Log</a>");
    folder.addPage("de/log");
    viewer = std::make_unique<HelpViewer>(folder.pages(), "de");
    viewer->showPage("index", "Hilfe");
    ASSERT_TRUE(QTest::qWaitForWindowActive(viewer.get()));
    followLink();
    EXPECT_EQ(viewer->windowTitle(), "Page de/log – Hilfe");
    button("helpContentsButton").click();
    EXPECT_EQ(viewer->windowTitle(), "Page de/index – Hilfe");
}

TEST_F(HelpViewerTest, ShowsThePicturesThatTheLanguagesShare) {
    folder.addPage("de/index");
    QDir().mkpath(folder.pages() + "/pictures");
    writeFile(folder.pages() + "/pictures/a.png", "picture", QFile::ReadOwner);
    ASSERT_TRUE(QFile::link("../pictures", folder.pages() + "/de/pictures"));
    viewer = std::make_unique<HelpViewer>(folder.pages(), "de");
    viewer->showPage("index", "Hilfe");
    const QVariant picture =
        pages().loadResource(QTextDocument::ImageResource, QUrl("pictures/a.png"));
    EXPECT_EQ(picture.toByteArray(), "picture");
}

TEST_F(HelpViewerTest, IsDrivenByTheKeyboardAlone) {
    followLink();
    EXPECT_EQ(pageInViewer(), "log");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return pageInViewer() == "index"; }));
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return pageInViewer() == "log"; }));
    press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return pageInViewer() == "index"; }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([] { return openViewer() == nullptr; }));
}

TEST_F(HelpViewerTest, ClosesByItsButtonAndByTheKeysOfTheDesktop) {
    button("helpCloseButton").click();
    EXPECT_FALSE(viewer->isVisible());
    viewer->showPage("index", "Help");
    ASSERT_TRUE(QTest::qWaitForWindowActive(viewer.get()));
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !viewer->isVisible(); }));
}

TEST_F(HelpViewerTest, LinksThatLeadOutOfTheBookDoNothing) {
    folder.addPage("links", "<a href='http://127.0.0.1/'>network</a>");
    folder.addPage("outside", "<a href='../secret.html'>file</a>");
    writeFile(folder.path() + "/secret.html", "secret", QFile::ReadOwner);
    for (const char* page : {"links", "outside"}) {
        viewer->showPage(page, "Help");
        followLink();
        EXPECT_EQ(pageInViewer(), page);
    }
}

TEST_F(HelpViewerTest, OnlyFilesOfTheBookAreRead) {
    writeFile(folder.path() + "/secret.css", "p { color: red }", QFile::ReadOwner);
    for (const char* url : {"../secret.css", "http://127.0.0.1/style.css", "/etc/passwd"}) {
        EXPECT_FALSE(pages().loadResource(QTextDocument::StyleSheetResource, QUrl(url)).isValid())
            << url;
    }
    EXPECT_TRUE(pages().loadResource(QTextDocument::HtmlResource, QUrl("log.html")).isValid());
}

TEST_F(HelpViewerTest, RemembersNothingOnceItWasClosed) {
    QtHelpServices services(folder.path());
    viewer.reset();
    ASSERT_TRUE(services.openAnchorInBook("index", "Help"));
    ASSERT_TRUE(services.openAnchorInBook("log", "Help"));
    EXPECT_TRUE(openViewer()->findChild<QPushButton*>("helpBackButton")->isEnabled());
    openViewer()->close();
    ASSERT_TRUE(services.openAnchorInBook("log", "Help"));
    EXPECT_FALSE(openViewer()->findChild<QPushButton*>("helpBackButton")->isEnabled());
}

TEST_F(HelpViewerTest, FollowsTheColoursOfTheApplication) {
    const QPalette before = QApplication::palette();
    const auto corner = [this] { return pages().grab().toImage().pixelColor(20, 60).lightness(); };
    EXPECT_GT(corner(), 200);
    QApplication::setPalette(QPalette(QColor(53, 53, 53), QColor(45, 45, 45)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return corner() < 100; }));
    EXPECT_EQ(pageInViewer(), "index");
    QApplication::setPalette(before);
}

TEST_F(HelpViewerTest, LinksAreReadableWhereADarkPaletteHasNoColourForThem) {
    const UsedPalette dark{QPalette(QColor(53, 53, 53), QColor(30, 30, 30))};
    QTest::qWait(10);
    QTextCursor cursor(pages().document());
    cursor.movePosition(QTextCursor::End);
    const QColor link = cursor.charFormat().foreground().color();
    EXPECT_TRUE(cursor.charFormat().isAnchor());
    EXPECT_GE(contrastOf(link, pages().palette().color(QPalette::Base)), 4.5)
        << link.name().toStdString();
}

TEST_F(HelpViewerTest, TheFieldToFindATextStandsBesideTheButtonsAndAboveThePage) {
    const auto& field = *viewer->findChild<QLineEdit*>("helpFindField");
    const QPushButton& contents = button("helpContentsButton");
    EXPECT_GT(field.x(), contents.geometry().right());
    EXPECT_LE(field.geometry().bottom(), pages().y());
    EXPECT_GT(field.geometry().bottom(), contents.y());
}

TEST_F(HelpViewerTest, FindsATextInThePageAndGoesOnAtItsOtherEnd) {
    folder.addPage("words", "<p>one two</p><p>three Two</p>");
    viewer->showPage("words", "Help");
    press(Qt::Key_F, Qt::ControlModifier);
    auto& field = *viewer->findChild<QLineEdit*>("helpFindField");
    auto& result = *viewer->findChild<QLabel*>("helpFindResult");
    ASSERT_TRUE(field.hasFocus());
    QTest::keyClicks(&field, "two");
    press(Qt::Key_Return);
    EXPECT_EQ(pages().textCursor().selectedText(), "two");
    press(Qt::Key_F3);
    EXPECT_EQ(pages().textCursor().selectedText(), "Two");
    press(Qt::Key_F3);
    EXPECT_EQ(pages().textCursor().selectedText(), "two");
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(pages().textCursor().selectedText(), "Two");
    EXPECT_EQ(result.text(), "");
    QTest::keyClicks(&field, "x");
    press(Qt::Key_Return);
    EXPECT_EQ(result.text(), "Not found");
}

} // namespace kx
