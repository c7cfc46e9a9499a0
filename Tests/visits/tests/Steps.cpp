#include "tests/Steps.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QThread>
#include <cstdlib>
#include <ctime>

namespace kx {

namespace {

constexpr int alertWatchInMilliseconds = 50;

void closeAlert() {
    auto* const alert = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (alert == nullptr || alert->buttons().isEmpty()) {
        return;
    }
    print(QString("Alert: %1: %2").arg(alert->windowTitle(), alert->text()));
    alert->buttons().constFirst()->click();
}

std::chrono::nanoseconds computed() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

void keepBusy(std::chrono::milliseconds time) {
    const auto end = computed() + time;
    while (computed() < end) {
    }
}

} // namespace

Steps::Steps(WindowDriver& driver)
    : _driver(driver) {
    QObject::connect(&_alertWatch, &QTimer::timeout, &_alertWatch, closeAlert);
    _alertWatch.start(alertWatchInMilliseconds);
    ::getrlimit(RLIMIT_NOFILE, &_usualDescriptors);
}

void Steps::run() {
    for (const QString& line : qEnvironmentVariable("KX_STEPS").split('\n', Qt::SkipEmptyParts)) {
        const QString step = line.trimmed();
        if (!step.isEmpty()) {
            take(step.section(' ', 0, 0), step.section(' ', 1));
        }
    }
}

void Steps::take(const QString& verb, const QString& argument) {
    if (verb == "interface") {
        _driver.pickInterface(argument);
    } else if (verb == "interfaces") {
        _driver.printInterfaces();
    } else if (verb == "discover") {
        _driver.discover(argument.toInt());
    } else if (verb == "unit") {
        _driver.pickUnit(argument);
    } else if (verb == "parameter") {
        pickParameter(argument);
    } else if (verb == "type") {
        _driver.typeValue(argument);
    } else if (verb == "press") {
        _driver.press(argument.toLatin1().constData());
    } else if (verb == "presses") {
        for (int left = argument.section(' ', 0, 0).toInt(); left > 0; --left) {
            _driver.press(argument.section(' ', 1).toLatin1().constData());
        }
    } else if (verb == "log") {
        _driver.openLog();
    } else if (verb == "shows") {
        expectParameter(argument);
    } else if (verb == "lacks") {
        expectNoParameter(argument);
    } else if (verb == "logs") {
        expectText("event log", argument, [this] { return _driver.logText(); });
    } else if (verb == "line") {
        expectText("quiet line", argument,
                   [this] { return _driver.control<QLabel>("quietLine").text(); });
    } else if (verb == "picture") {
        _driver.takePicture(argument);
    } else if (verb == "print") {
        _driver.printParameters();
        _driver.printLog();
    } else if (verb == "stay") {
        _driver.leaveOpen();
    } else if (verb == "cancel") {
        cancelNextPanel();
    } else if (verb == "keep") {
        _alertWatch.stop();
    } else if (verb == "read") {
        printFile(qEnvironmentVariable(argument.toLatin1().constData()));
    } else if (verb == "run") {
        run(argument);
    } else if (verb == "last") {
        takeAtLast(argument.section(' ', 0, 0), argument.section(' ', 1));
    } else if (verb == "descriptors") {
        allowDescriptors(argument);
    } else {
        takeOfCrowd(verb, argument);
    }
}

void Steps::takeOfCrowd(const QString& verb, const QString& argument) {
    if (verb == "crowd") {
        discoverCrowd(argument.toInt());
    } else if (verb == "replies") {
        expectReplies(argument.toInt());
    } else if (verb == "finding") {
        expectFinding(argument);
    } else if (verb == "watch") {
        watch();
    } else if (verb == "waited") {
        expectAtMost("waited", probe().longestGap(), argument);
    } else if (verb == "worked") {
        expectAtMost("worked", probe().longestComputing(), argument);
    } else if (verb == "work") {
        keepBusy(std::chrono::milliseconds(argument.toInt()));
    } else if (verb == "pause") {
        QThread::msleep(argument.toULong());
    } else {
        throw VisitFailure{"there is no step " + verb};
    }
}

void Steps::discoverCrowd(int units) {
    constexpr int longestRestInMilliseconds = 16'000;
    const auto& list = _driver.control<QComboBox>("unitSelectPopUp");
    const auto discoveryIsOver = [&] { return list.count() > 0; };
    _driver.waitFor("the units of the launch", discoveryIsOver);
    for (int rest = 2000; rest <= longestRestInMilliseconds; rest *= 2) {
        _driver.press("discoverButton");
        _driver.waitFor("an empty unit pop-up after Discover", [&] { return list.count() == 0; });
        _driver.waitFor("the units of the crowd", discoveryIsOver);
        if (list.count() >= units) {
            return;
        }
        QTest::qWait(rest);
    }
    throw VisitFailure{QString("%1 units are listed, not %2").arg(list.count()).arg(units)};
}

void Steps::expectReplies(int units) {
    static const QRegularExpression reply("^Received command: .* serial:([0-9A-F ]+) cidString:",
                                          QRegularExpression::MultilineOption);
    _driver.waitFor(QString("replies of %1 units").arg(units), [&] {
        const QString log = _driver.logText();
        const int wanted = units - droppedDatagrams();
        if (log.count("serial:") < wanted) {
            return false; // counted fast, without looking at each line
        }
        QSet<QString> serials;
        for (const auto& match : reply.globalMatch(log)) {
            serials.insert(match.captured(1));
        }
        return serials.size() == wanted;
    });
    print(
        QString("Replies: %1 units, of which %2 were dropped").arg(units).arg(droppedDatagrams()));
}

QString Steps::discoveryLine() const {
    const auto& line = _driver.control<QLabel>("discoveryLine");
    return line.isVisible() ? line.text() : QString();
}

int Steps::droppedDatagrams() const {
    static const QRegularExpression sentence("^The system dropped ([0-9]+)");
    return sentence.match(discoveryLine()).captured(1).toInt();
}

void Steps::expectFinding(const QString& text) {
    if (!text.isEmpty()) {
        expectText("line below Discover", text, [this] { return discoveryLine(); });
        return;
    }
    static const QRegularExpression answers("^(Asking |No unit answered\\.|[0-9]+ units? "
                                            "answered|[0-9]+ of the [0-9]+ listed answered)");
    if (!answers.match(discoveryLine()).hasMatch()) {
        throw VisitFailure{discoveryLine()};
    }
}

void Steps::watch() {
    _probe = std::make_unique<ResponsivenessProbe>(*_driver.window().windowHandle());
    _probe->start();
}

const ResponsivenessProbe& Steps::probe() const {
    if (_probe == nullptr) {
        throw VisitFailure{"nobody watches how long an event waits"};
    }
    return *_probe;
}

void Steps::expectAtMost(const QString& what, std::chrono::milliseconds longest,
                         const QString& limit) {
    const auto found = static_cast<int>(longest.count());
    print(QString("Longest time %1: %2 ms").arg(what).arg(found));
    if (found > limit.toInt()) {
        throw VisitFailure{QString("%1 for %2 ms").arg(what).arg(found)};
    }
}

void Steps::pickParameter(const QString& name) {
    const int row = _driver.rowOfParameter(name);
    if (row < 0) {
        throw VisitFailure{"there is no parameter " + name};
    }
    _driver.pickParameter(row);
}

void Steps::expectParameter(const QString& nameAndValue) {
    const QString name = nameAndValue.section(": ", 0, 0);
    const QString value = nameAndValue.section(": ", 1);
    const auto& table = _driver.control<QTableView>("unitParameterTableView");
    _driver.waitFor(nameAndValue, [&] {
        const int row = _driver.rowOfParameter(name);
        return row >= 0 && WindowDriver::cellText(table, row, 1) == value;
    });
    print("Shown: " + nameAndValue);
}

void Steps::expectNoParameter(const QString& name) {
    _driver.waitFor("no " + name, [&] { return _driver.rowOfParameter(name) < 0; });
}

void Steps::printFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        throw VisitFailure{"cannot read " + path};
    }
    while (!file.atEnd()) {
        print("Read: " + QString::fromUtf8(file.readLine()).trimmed());
    }
}

// Does not use Qt, which needs descriptors of its own to run a program.
void Steps::run(const QString& command) const {
    rlimit present{};
    ::getrlimit(RLIMIT_NOFILE, &present);
    ::setrlimit(RLIMIT_NOFILE, &_usualDescriptors);
    const int status = std::system(command.toLocal8Bit().constData());
    ::setrlimit(RLIMIT_NOFILE, &present);
    if (status != 0) {
        throw VisitFailure{"failed: " + command};
    }
}

// The program is told of its end before the visit is, which takes this step later. The window is
// hidden then, so the only way to click a button is through its own function.
void Steps::takeAtLast(const QString& verb, const QString& argument) {
    if (verb != "click" && verb != "run") {
        throw VisitFailure{"there is no last step " + verb};
    }
    auto* const button = verb == "click"
                             ? &_driver.control<QAbstractButton>(argument.toLatin1().constData())
                             : nullptr;
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, [button, argument] {
        if (button != nullptr) {
            button->click();
        } else if (std::system(argument.toLocal8Bit().constData()) != 0) {
            print("failed: " + argument);
        }
    });
}

void Steps::allowDescriptors(const QString& number) const {
    rlimit limit = _usualDescriptors;
    if (number != "all") {
        limit.rlim_cur = number.toULong();
    }
    if (::setrlimit(RLIMIT_NOFILE, &limit) != 0) {
        throw VisitFailure{"the system does not allow descriptors: " + number};
    }
}

void Steps::cancelNextPanel() {
    auto* const look = new QTimer(&_alertWatch);
    QObject::connect(look, &QTimer::timeout, look, [look] {
        QWidget* const panel = QApplication::activeModalWidget();
        if (panel != nullptr && panel->objectName() == "waitingPanel") {
            print("Waiting: " + panel->findChild<QLabel*>()->text());
            look->deleteLater();
            QTest::keyClick(panel, Qt::Key_Escape);
        }
    });
    look->start(alertWatchInMilliseconds);
}

void Steps::expectText(const QString& where, const QString& text,
                       const std::function<QString()>& shown) {
    _driver.waitFor(QString("\"%1\" in the %2").arg(text, where),
                    [&] { return shown().contains(text); });
}

} // namespace kx
