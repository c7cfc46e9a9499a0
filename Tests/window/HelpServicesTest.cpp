// Help over the real desktop seam: the adapter of the services.

#include "HelpFolder.h"
#include "RecordedBrowser.h"
#include "contracts/HelpServicesContract.h"
#include "platform/qt/InstalledResources.h"
#include "platform/qt/QtHelpServices.h"

#include <QTest>
#include <QWidget>
#include <QWindow>
#include <string>
#include <vector>

namespace kx {

namespace {

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

} // namespace kx
