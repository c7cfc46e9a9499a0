#include "platform/qt/QtHelpServices.h"

#include "platform/qt/HelpLanguage.h"
#include "platform/qt/HelpViewer.h"
#include "platform/qt/QtText.h"
#include "support/LocalizedText.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>

namespace kx {

namespace {

constexpr int answerPatienceInMilliseconds = 3'000;

// Whether the variable BROWSER names a program that can be run. It is a list of commands with ":"
// between them. The desktop's opener tries them one after the other and passes over itself.
bool environmentNamesABrowser() {
    const QStringList commands = qEnvironmentVariable("BROWSER").split(':');
    return std::ranges::any_of(commands, [](const QString& command) {
        const QString program = command.simplified().section(' ', 0, 0);
        return !program.isEmpty() && program != "xdg-open" &&
               !QStandardPaths::findExecutable(program).isEmpty();
    });
}

// The desktop's opener reports success even when it then finds no application. So the desktop's own
// register is asked first. Where it cannot be asked, the opener may try.
bool desktopKnowsABrowser() {
    if (environmentNamesABrowser()) {
        return true;
    }
    QProcess query;
    query.start("xdg-mime", {"query", "default", "text/html"}, QIODevice::ReadOnly);
    if (!query.waitForFinished(answerPatienceInMilliseconds)) {
        return true;
    }
    return !query.readAllStandardOutput().trimmed().isEmpty();
}

} // namespace

QtHelpServices::QtHelpServices(QString resourceFolder, Browser browser, QString language)
    : _resourceFolder(std::move(resourceFolder))
    , _browser(browser)
    , _language(std::move(language)) {}

QtHelpServices::Browser QtHelpServices::browserForUser(unsigned userID) {
    return userID == 0 ? Browser::isNot : Browser::isAllowed;
}

QtHelpServices::~QtHelpServices() = default;

std::uint32_t QtHelpServices::modifierFlags() const {
    return QGuiApplication::keyboardModifiers().testFlag(Qt::AltModifier) ? optionKeyFlag : 0;
}

std::optional<std::string> QtHelpServices::pathForResource(std::string_view name,
                                                           std::string_view type,
                                                           std::string_view folder) const {
    if (name.empty() || name.find('/') != name.npos) {
        return std::nullopt;
    }
    const QDir resources(QDir(_resourceFolder).filePath(qtText(folder)));
    const QFileInfo file(fileInLanguage(resources, qtText(name) + '.' + qtText(type), _language));
    return file.isFile() ? std::optional(utf8Text(file.absoluteFilePath())) : std::nullopt;
}

bool QtHelpServices::openInBrowser(std::string_view url) {
    return _browser == Browser::isAllowed && desktopKnowsABrowser() &&
           QDesktopServices::openUrl(QUrl::fromEncoded(utf8Text(qtText(url)).c_str()));
}

std::optional<std::string> QtHelpServices::helpBookName() const {
    if (!pathForResource("index", "html", "homepage").has_value()) {
        return std::nullopt;
    }
    return localizedText("KXConfig Help");
}

bool QtHelpServices::openAnchorInBook(std::string_view anchor, std::string_view book) {
    const auto path = pathForResource(anchor, "html", "homepage");
    if (!path.has_value()) {
        return false;
    }
    if (_viewer == nullptr || _viewer->isHidden()) {
        _viewer =
            std::make_unique<HelpViewer>(QDir(_resourceFolder).filePath("homepage"), _language);
    }
    _viewer->showPage(qtText(anchor), qtText(book));
    return true;
}

} // namespace kx
