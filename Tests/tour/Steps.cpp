#include "Steps.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

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

} // namespace

Steps::Steps(WindowDriver& driver)
    : _driver(driver) {
    QObject::connect(&_alertWatch, &QTimer::timeout, &_alertWatch, closeAlert);
    _alertWatch.start(alertWatchInMilliseconds);
}

void Steps::run() {
    for (const QString& line : qEnvironmentVariable("KX_STEPS").split('\n', Qt::SkipEmptyParts)) {
        const QString step = line.trimmed();
        take(step.section(' ', 0, 0), step.section(' ', 1));
    }
}

void Steps::take(const QString& verb, const QString& argument) {
    if (verb == "interface") {
        _driver.pickInterface(argument);
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
    } else if (verb == "read") {
        printFile(qEnvironmentVariable(argument.toLatin1().constData()));
    } else {
        throw Disappointment{"there is no step " + verb};
    }
}

void Steps::pickParameter(const QString& name) {
    const int row = _driver.rowOfParameter(name);
    if (row < 0) {
        throw Disappointment{"there is no parameter " + name};
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
        throw Disappointment{"cannot read " + path};
    }
    while (!file.atEnd()) {
        print("Read: " + QString::fromUtf8(file.readLine()).trimmed());
    }
}

void Steps::expectText(const QString& where, const QString& text,
                       const std::function<QString()>& shown) {
    _driver.waitFor(QString("\"%1\" in the %2").arg(text, where),
                    [&] { return shown().contains(text); });
}

} // namespace kx
