// Help over the real desktop seam: the adapters, the viewer, and the window's ways to open it.

#include "Looks.h"
#include "MainWindowFixture.h"
#include "RecordedBrowser.h"
#include "contracts/HelpServicesContract.h"
#include "platform/qt/HelpViewer.h"
#include "platform/qt/InstalledResources.h"
#include "platform/qt/QtHelpServices.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <memory>

namespace kx {

namespace {

void writeFile(const QString& path, const QByteArray& content, QFile::Permissions permissions) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(content);
    file.close();
    ASSERT_TRUE(file.setPermissions(permissions)) << path.toStdString();
}

// A program that takes the place of the desktop's register of applications.
class ScriptedRegister {
public:
    ScriptedRegister() {
        qputenv("PATH", _folder.path().toLocal8Bit());
        qunsetenv("BROWSER");
        setBrowser("browser.desktop");
    }
    ~ScriptedRegister() {
        qputenv("PATH", _pathBefore);
        if (!_browserBefore.isNull()) {
            qputenv("BROWSER", _browserBefore);
        }
    }
    ScriptedRegister(const ScriptedRegister&) = delete;
    ScriptedRegister& operator=(const ScriptedRegister&) = delete;

    void setBrowser(const char* desktopEntry) {
        const QByteArray script = QByteArray("#!/bin/sh\n"
                                             "[ \"$*\" = 'query default text/html' ] || exit 1\n"
                                             "echo ") +
                                  desktopEntry + '\n';
        writeFile(program(), script, executable);
    }
    void remove() { QFile::remove(program()); }

    // A file beside the register's program, in the folder where programs are searched for.
    QString addFile(const char* name, QFile::Permissions permissions) {
        writeFile(_folder.filePath(name), "#!/bin/sh\n", permissions);
        return _folder.filePath(name);
    }

    static constexpr QFile::Permissions executable =
        QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner;

private:
    QString program() const { return _folder.filePath("xdg-mime"); }

    QTemporaryDir _folder;
    QByteArray _pathBefore = qgetenv("PATH");
    QByteArray _browserBefore = qgetenv("BROWSER");
};

// A folder of resources with help pages.
class HelpFolder {
public:
    HelpFolder() { QDir(_folder.path()).mkdir("homepage"); }

    // `name` may begin with the folder of a language, as in "de/index".
    void addPage(const std::string& name, const QByteArray& body = {}) {
        const QByteArray page = "<!DOCTYPE html><html><head><title>Page " +
                                QByteArray::fromStdString(name) + "</title></head><body>" + body +
                                "</body></html>";
        const QString path = pages() + '/' + QString::fromStdString(name) + ".html";
        QDir().mkpath(QFileInfo(path).path());
        writeFile(path, page, QFile::ReadOwner);
    }

    QString path() const { return _folder.path(); }
    QString pages() const { return _folder.filePath("homepage"); }

private:
    QTemporaryDir _folder;
};

HelpViewer* openViewer() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* const viewer = qobject_cast<HelpViewer*>(widget);
        if (viewer != nullptr && viewer->isVisible()) {
            return viewer;
        }
    }
    return nullptr;
}

std::string pageInViewer() {
    const HelpViewer* viewer = openViewer();
    return viewer == nullptr ? ""
                             : viewer->findChild<QTextBrowser*>()
                                   ->source()
                                   .fileName()
                                   .chopped(static_cast<int>(sizeof ".html") - 1)
                                   .toStdString();
}

class QtHelpServicesTrait {
public:
    QtHelpServicesTrait() {
        _keyboard.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&_keyboard));
    }
    HelpServices& services() { return _services; }
    void addPage(const std::string& name) { _folder.addPage(name); }
    void holdOptionKey(bool held) {
        if (held) {
            QTest::keyPress(_keyboard.windowHandle(), Qt::Key_A, Qt::AltModifier);
        } else {
            QTest::keyRelease(_keyboard.windowHandle(), Qt::Key_A);
        }
    }
    void setBrowser(bool exists) { _register.setBrowser(exists ? "browser.desktop" : ""); }
    std::vector<std::string> openedURLs() { return _browser.urls; }
    std::string shownPage() { return pageInViewer(); }

private:
    HelpFolder _folder;
    ScriptedRegister _register;
    RecordedBrowser _browser;
    QWidget _keyboard;
    QtHelpServices _services{_folder.path()};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, HelpServicesContract, QtHelpServicesTrait);

TEST(QtHelpServices, TheProgramFindsItsResourcesBesideItsOwnFolder) {
    const QDir programs(QCoreApplication::applicationDirPath());
    EXPECT_EQ(QFileInfo(installedResourceFolder()).absoluteFilePath(),
              QFileInfo(programs.filePath("../share/kxconfig"))
                  .absoluteFilePath()
                  .replace("/bin/..", ""));
    EXPECT_TRUE(QtHelpServices(installedResourceFolder())
                    .pathForResource("index", "html", "homepage")
                    .has_value());
}

TEST(QtHelpServices, WhereTheRegisterCannotBeAskedTheDesktopMayTry) {
    RecordedBrowser browser;
    ScriptedRegister desktop;
    desktop.remove();
    EXPECT_TRUE(QtHelpServices("/nowhere").openInBrowser("file:///a.html"));
    EXPECT_EQ(browser.urls, std::vector<std::string>{"file:///a.html"});
}

TEST(QtHelpServices, ABrowserOfTheEnvironmentCounts) {
    RecordedBrowser browser;
    ScriptedRegister desktop;
    desktop.setBrowser("");
    EXPECT_FALSE(QtHelpServices("/nowhere").openInBrowser("file:///a.html"));
    const QByteArray path = desktop.addFile("lynx", ScriptedRegister::executable).toLocal8Bit();
    for (const QByteArray& value : {QByteArray("lynx"), path, path + " -force_html %s",
                                    QByteArray("no-such-browser:lynx"), ":" + path + ":"}) {
        qputenv("BROWSER", value);
        EXPECT_TRUE(QtHelpServices("/nowhere").openInBrowser("file:///a.html")) << value.data();
    }
    EXPECT_EQ(browser.urls.size(), 5U);
    qunsetenv("BROWSER");
}

// In this case the opener would try nothing and report success.
TEST(QtHelpServices, AnEnvironmentThatNamesNoProgramThatRunsLeavesItToTheRegister) {
    RecordedBrowser browser;
    ScriptedRegister desktop;
    desktop.addFile("xdg-open", ScriptedRegister::executable); // the opener does not call itself
    const QByteArray text = desktop.addFile("text", QFile::ReadOwner).toLocal8Bit();
    for (const QByteArray& value :
         {QByteArray(), QByteArray(":"), QByteArray("  "), QByteArray("no-such-browser %s"), text,
          QByteArray("/"), QByteArray("xdg-open"), QByteArray("xdg-open:no-such-browser")}) {
        qputenv("BROWSER", value);
        desktop.setBrowser("");
        EXPECT_FALSE(QtHelpServices("/nowhere").openInBrowser("file:///a.html")) << value.data();
        desktop.setBrowser("browser.desktop");
        EXPECT_TRUE(QtHelpServices("/nowhere").openInBrowser("file:///a.html")) << value.data();
    }
    EXPECT_EQ(browser.urls.size(), 8U);
    qunsetenv("BROWSER");
}

TEST(QtHelpServices, RootGetsNoBrowserAndReadsTheHelpInTheViewer) {
    RecordedBrowser browser;
    const ScriptedRegister desktop;
    qputenv("BROWSER", "xdg-mime"); // a program that can be run
    HelpFolder folder;
    folder.addPage("index");
    QtHelpServices services(folder.path(), QtHelpServices::browserForUser(0));
    EXPECT_FALSE(services.openInBrowser("file:///a.html"));
    EXPECT_FALSE(openHelpAnchor("index", services));
    EXPECT_EQ(browser.urls, std::vector<std::string>{});
    EXPECT_TRUE(services.openAnchorInBook("index", "Help"));
    EXPECT_EQ(pageInViewer(), "index");
    qunsetenv("BROWSER");
    EXPECT_TRUE(QtHelpServices(folder.path(), QtHelpServices::browserForUser(1000))
                    .openInBrowser("file:///a.html"));
}

TEST(QtHelpServices, AFolderIsNoPage) {
    HelpFolder folder;
    QDir(folder.pages()).mkdir("index.html");
    EXPECT_EQ(QtHelpServices(folder.path()).pathForResource("index", "html", "homepage"),
              std::nullopt);
}

TEST(QtHelpServices, APageIsOpenedInTheLanguageOfTheWindowAndOtherwiseInEnglish) {
    HelpFolder folder;
    for (const char* page : {"index", "log", "de/index", "fr/log"}) {
        folder.addPage(page);
    }
    QtHelpServices german(folder.path(), QtHelpServices::Browser::isAllowed, "de");
    const auto pathOf = [&](const char* page) {
        return german.pathForResource(page, "html", "homepage").value_or("nowhere");
    };
    EXPECT_EQ(pathOf("index"), folder.pages().toStdString() + "/de/index.html");
    EXPECT_EQ(pathOf("log"), folder.pages().toStdString() + "/log.html");
    EXPECT_EQ(pathOf("trust"), "nowhere");
    EXPECT_TRUE(german.openAnchorInBook("index", "Hilfe"));
    EXPECT_EQ(openViewer()->windowTitle(), "Page de/index – Hilfe");
    EXPECT_TRUE(german.openAnchorInBook("log", "Hilfe"));
    EXPECT_EQ(openViewer()->windowTitle(), "Page log – Hilfe");
}

TEST(QtHelpServices, TheViewerGoesWithItsServices) {
    HelpFolder folder;
    folder.addPage("index");
    {
        QtHelpServices services(folder.path());
        EXPECT_TRUE(services.openAnchorInBook("index", "Help"));
        EXPECT_NE(openViewer(), nullptr);
    }
    EXPECT_EQ(openViewer(), nullptr);
}

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
