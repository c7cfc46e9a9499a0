#include "driver/WindowDriver.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <utility>

namespace kx {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds longestPatience{60'000};
constexpr milliseconds betweenLooks{10};

// The drawer takes no click while it moves.
constexpr milliseconds drawerMoves{500};
constexpr milliseconds pictureSettles{50};

} // namespace

void print(const QString& line) {
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

void WindowDriver::findWindow() {
    waitFor("the main window", [this] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* const window = qobject_cast<QMainWindow*>(widget);
            if (window != nullptr && window->isVisible()) {
                _window = window;
            }
        }
        return _window != nullptr && _window->windowHandle()->isExposed();
    });
}

void WindowDriver::click(QWidget& widget, QPoint position) const {
    auto& content = control<QScrollArea>("contentArea");
    if (content.widget()->isAncestorOf(&widget)) {
        content.ensureWidgetVisible(&widget);
    }
    QTest::mouseClick(_window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      widget.mapTo(_window, position));
}

void WindowDriver::click(QWidget& widget) const {
    click(widget, widget.rect().center());
}

void WindowDriver::press(const char* buttonName) const {
    click(control<QPushButton>(buttonName));
}

void WindowDriver::pickFromList(QComboBox& popUp, int row) const {
    QAbstractItemView& list = *popUp.view();
    waitFor("an open list", [&] { return list.isVisible(); });
    QTest::keyClick(&list, Qt::Key_Home);
    for (int step = 0; step < row; ++step) {
        QTest::keyClick(&list, Qt::Key_Down);
    }
    QTest::keyClick(&list, Qt::Key_Return);
}

void WindowDriver::pickInterface(const QString& name) const {
    auto& interfaces = control<QComboBox>("interfacePopUp");
    const QString suffix = QString("(%1)").arg(name);
    int row = -1;
    waitFor("the interface " + name, [&] {
        click(interfaces);
        row = interfaces.findText(suffix, Qt::MatchEndsWith);
        if (row < 0) {
            QTest::keyClick(interfaces.view(), Qt::Key_Escape);
        }
        return row >= 0;
    });
    pickFromList(interfaces, row);
    print("Interface: " + interfaces.currentText());
}

void WindowDriver::printInterfaces() const {
    auto& interfaces = control<QComboBox>("interfacePopUp");
    click(interfaces);
    QStringList titles;
    for (int index = 0; index < interfaces.count(); ++index) {
        titles += interfaces.itemText(index);
    }
    if (interfaces.view()->isVisible()) {
        QTest::keyClick(interfaces.view(), Qt::Key_Escape);
    }
    print("Interfaces: " + titles.join("; "));
}

void WindowDriver::discover(int units) const {
    auto& list = control<QComboBox>("unitSelectPopUp");
    bool wasEmptied = false;
    const QObject watch;
    // An earlier Discover may fill it again at once.
    QObject::connect(list.model(), &QAbstractItemModel::modelReset, &watch,
                     [&] { wasEmptied = wasEmptied || list.count() == 0; });
    press("discoverButton");
    waitFor("an empty unit pop-up after Discover", [&] { return wasEmptied; });
    takePicture("window-discovering");
    waitFor(QString("%1 units").arg(units), [&] { return list.count() >= units; });
    printUnits();
}

void WindowDriver::pickUnit(int row) const {
    auto& units = control<QComboBox>("unitSelectPopUp");
    click(units);
    pickFromList(units, row);
    auto& parameters = control<QTableView>("unitParameterTableView");
    waitFor("the unit's parameters",
            [&] { return units.currentIndex() == row && parameters.model()->rowCount() > 0; });
}

// The list's search starts anew with the first key. The program runs between keys. This may take so
// long that the list would take the next key for the beginning of another title.
void WindowDriver::pickUnit(const QString& serial) const {
    auto& units = control<QComboBox>("unitSelectPopUp");
    click(units);
    QAbstractItemView& list = *units.view();
    waitFor("an open list", [&] { return list.isVisible(); });
    QApplication::setKeyboardInputInterval(static_cast<int>(longestPatience.count()));
    list.keyboardSearch({});
    for (const QChar character : serial) {
        QTest::keyClick(&list, character.toLatin1());
        QCoreApplication::processEvents();
    }
    const bool found = list.currentIndex().data().toString() == serial;
    QTest::keyClick(&list, found ? Qt::Key_Return : Qt::Key_Escape);
    if (!found) {
        throw VisitFailure{"there is no unit " + serial};
    }
    auto& parameters = control<QTableView>("unitParameterTableView");
    waitFor("the parameters of unit " + serial,
            [&] { return units.currentText() == serial && parameters.model()->rowCount() > 0; });
}

void WindowDriver::clickParameter(int row) const {
    auto& parameters = control<QTableView>("unitParameterTableView");
    const QModelIndex cell = parameters.model()->index(row, 0);
    parameters.scrollTo(cell);
    click(*parameters.viewport(), parameters.visualRect(cell).center());
}

void WindowDriver::pickParameter(int row) const {
    auto& parameters = control<QTableView>("unitParameterTableView");
    auto& editRow = control<QTableView>("editParameterTableView");
    clickParameter(row);
    waitFor("the chosen parameter in the edit row", [&] {
        return cellText(editRow, 0, 0) == cellText(parameters, row, 0) &&
               cellText(editRow, 0, 1) == cellText(parameters, row, 1);
    });
}

void WindowDriver::typeValue(const QString& text) const {
    auto& editRow = control<QTableView>("editParameterTableView");
    const QRect cell = editRow.visualRect(editRow.model()->index(0, 1));
    const QPoint center = editRow.viewport()->mapTo(_window, cell.center());
    _window->activateWindow(); // off screen nobody else does this after an alert
    QTest::mouseDClick(_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, center);
    QLineEdit* editor = nullptr;
    waitFor("an open editor", [&] {
        editor = editRow.viewport()->findChild<QLineEdit*>();
        return editor != nullptr && editor->hasFocus();
    });
    editor->selectAll();
    QTest::keyClicks(editor, text);
}

int WindowDriver::rowOfParameter(const QString& name) const {
    const auto& table = control<QTableView>("unitParameterTableView");
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        if (cellText(table, row, 0) == name) {
            return row;
        }
    }
    return -1;
}

QString WindowDriver::cellText(const QTableView& table, int row, int column) {
    return table.model()->index(row, column).data().toString();
}

void WindowDriver::save(const QString& actionName, const QString& path) const {
    control<QAction>(actionName.toLatin1().constData()).trigger();
    QWidget* panel = nullptr;
    waitFor("the panel of " + actionName, [&] {
        panel = QApplication::activeModalWidget();
        return panel != nullptr && panel->objectName() == "savePanel";
    });
    auto& name = *panel->findChild<QLineEdit*>("fileNameEdit");
    name.setText(path);
    QTest::keyClick(&name, Qt::Key_Return);
    waitFor("the end of the panel of " + actionName,
            [] { return QApplication::activeModalWidget() == nullptr; });
    print("Saved: " + path);
}

void WindowDriver::openLog() const {
    auto& log = control<QWidget>("logTextView");
    press("logDrawerButton");
    waitFor("the event log", [&] { return log.isVisible() && !logText().isEmpty(); });
    letRun(drawerMoves);
}

QString WindowDriver::logText() const {
    return control<QWidget>("logTextView").property("plainText").toString();
}

void WindowDriver::printUnits() const {
    const auto& units = control<QComboBox>("unitSelectPopUp");
    print(QString("Units: %1").arg(units.count()));
    for (int index = 0; index < units.count(); ++index) {
        print("  " + units.itemText(index));
    }
}

void WindowDriver::printParameters() const {
    print("Selected unit: " + control<QComboBox>("unitSelectPopUp").currentText());
    print("Unit ID: " + control<QLineEdit>("unitIDField").text());
    const auto& table = control<QTableView>("unitParameterTableView");
    print("Parameters:");
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        print(QString("  %1: %2").arg(cellText(table, row, 0), cellText(table, row, 1)));
    }
}

void WindowDriver::printLog() const {
    print("Event log:");
    for (const QString& line : logText().split('\n')) {
        print("  " + line);
    }
}

void WindowDriver::waitFor(const QString& what, const std::function<bool()>& condition) {
    if (!letRunUntil(condition, longestPatience)) {
        throw VisitFailure{QString("waited in vain for %1").arg(what)};
    }
}

bool WindowDriver::letRunUntil(const std::function<bool()>& condition, milliseconds patience) {
    QTimer looks;
    bool looksNow = true;
    QObject::connect(&looks, &QTimer::timeout, &looks, [&] { looksNow = true; });
    looks.start(betweenLooks);
    const QDeadlineTimer end(patience);
    while (true) {
        if (std::exchange(looksNow, false)) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QElapsedTimer look;
            look.start();
            if (condition()) {
                return true;
            }
            // Most of the time belongs to the program, also when a look at a long log takes long.
            looks.start(std::max(betweenLooks, milliseconds(4 * look.elapsed())));
            if (end.hasExpired()) {
                return false;
            }
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
}

void WindowDriver::letRun(milliseconds time) {
    letRunUntil([] { return false; }, time);
}

void WindowDriver::takePicture(const QString& name, QMenu* menu) const {
    const QString folder = qEnvironmentVariable("KX_TOUR_PICTURES");
    if (folder.isEmpty()) {
        return;
    }
    if (menu == nullptr) {
        // Moves the pointer away from the buttons, because a button lights up under it.
        QTest::mouseMove(_window->windowHandle(), QPoint(1, _window->height() - 2));
    }
    letRun(pictureSettles);
    QPixmap picture = _window->grab();
    if (menu != nullptr) {
        QPainter(&picture).drawPixmap(menu->pos() - _window->pos(), menu->grab());
    }
    const QString path = QDir(folder).filePath(name + ".png");
    if (!QDir().mkpath(folder) || !picture.save(path)) {
        throw VisitFailure{QString("could not write %1").arg(path)};
    }
}

} // namespace kx
