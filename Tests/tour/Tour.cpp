#include "Tour.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTableView>
#include <QTest>
#include <algorithm>
#include <cstdio>

namespace kx {

namespace {

constexpr int patienceInMilliseconds = 10'000;

// The drawer takes no click while it moves.
constexpr int drawerMovesInMilliseconds = 500;

// What ends a tour early; the text says what was expected.
struct Disappointment {
    QString text;
};

void print(const QString& line) {
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

int expectedUnits() {
    return qEnvironmentVariableIntValue("KX_TOUR_UNITS");
}

QString cellText(const QTableView& table, int row, int column) {
    return table.model()->index(row, column).data().toString();
}

QPalette darkPalette() {
    QPalette dark(QColor(53, 53, 53), QColor(45, 45, 45));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::AlternateBase, QColor(38, 38, 38));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

} // namespace

void Tour::run() {
    try {
        visit();
    } catch (const Disappointment& disappointment) {
        std::fprintf(stderr, "kxtour: %s\n", qPrintable(disappointment.text));
        QCoreApplication::exit(1);
        return;
    }
    print("Tour complete.");
    _window->close();
}

void Tour::visit() {
    findWindow();
    if (const QString interface = qEnvironmentVariable("KX_TOUR_INTERFACE"); !interface.isEmpty()) {
        pickInterface(interface);
    }
    discover();
    if (expectedUnits() > 0) {
        pickUnit();
        pickParameter();
    }
    takePicture("window");
    openLog();
    takePicture("window-log");
    showOtherLooks();
    showMenus();
}

void Tour::findWindow() {
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

// Opens the list until it offers the interface.
void Tour::pickInterface(const QString& name) {
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
    printChoice("Interface", "interfacePopUp");
}

void Tour::discover() {
    auto& units = control<QComboBox>("unitSelectPopUp");
    click(control<QPushButton>("discoverButton"));
    waitFor("an empty unit pop-up after Discover", [&] { return units.count() == 0; });
    takePicture("window-discovering");
    waitFor(QString("%1 units").arg(expectedUnits()),
            [&] { return units.count() >= expectedUnits(); });
    printUnits();
}

void Tour::pickUnit() {
    auto& units = control<QComboBox>("unitSelectPopUp");
    const int wanted = std::min(1, units.count() - 1);
    click(units);
    pickFromList(units, wanted);
    auto& parameters = control<QTableView>("unitParameterTableView");
    waitFor("the second unit's parameters",
            [&] { return units.currentIndex() == wanted && parameters.model()->rowCount() > 0; });
    printParameters();
}

void Tour::pickParameter() {
    auto& parameters = control<QTableView>("unitParameterTableView");
    auto& editRow = control<QTableView>("editParameterTableView");
    const QModelIndex cell = parameters.model()->index(0, 0);
    parameters.scrollTo(cell);
    click(*parameters.viewport(), parameters.visualRect(cell).center());
    waitFor("the chosen parameter in the edit row", [&] {
        return cellText(editRow, 0, 0) == cellText(parameters, 0, 0) &&
               cellText(editRow, 0, 1) == cellText(parameters, 0, 1);
    });
}

void Tour::openLog() {
    auto& log = control<QPlainTextEdit>("logTextView");
    click(control<QPushButton>("logDrawerButton"));
    waitFor("the event log",
            [&] { return log.isVisible() && log.toPlainText().contains("Begin Discover"); });
    QTest::qWait(drawerMovesInMilliseconds);
    printLog();
}

void Tour::showOtherLooks() {
    const QPalette light = QApplication::palette();
    QApplication::setPalette(darkPalette());
    takePicture("window-log-dark");
    click(control<QPushButton>("logDrawerButton"));
    waitFor("a closed drawer", [&] { return !control<QWidget>("eventLogDrawer").isVisible(); });
    takePicture("window-dark");
    QApplication::setPalette(light);

    const QSize size = _window->size();
    _window->resize(420, 480);
    takePicture("window-small");
    _window->resize(1200, 700);
    takePicture("window-large");
    _window->resize(size);
}

void Tour::showMenus() {
    QMenuBar& bar = *_window->menuBar();
    for (QAction* action : bar.actions()) {
        click(bar, bar.actionGeometry(action).center());
        waitFor("an open menu", [&] { return action->menu()->isVisible(); });
        takePicture("menu-" + action->text().remove('&').toLower(), action->menu());
        QTest::keyClick(action->menu(), Qt::Key_Escape);
        waitFor("a closed menu", [&] { return !action->menu()->isVisible(); });
    }
}

void Tour::printChoice(const QString& heading, const char* popUp) {
    print(heading + ": " + control<QComboBox>(popUp).currentText());
}

void Tour::printUnits() {
    const auto& units = control<QComboBox>("unitSelectPopUp");
    print(QString("Units: %1").arg(units.count()));
    for (int index = 0; index < units.count(); ++index) {
        print("  " + units.itemText(index));
    }
}

void Tour::printParameters() {
    printChoice("Selected unit", "unitSelectPopUp");
    print("Unit ID: " + control<QLineEdit>("unitIDField").text());
    const auto& table = control<QTableView>("unitParameterTableView");
    print("Parameters:");
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        print(QString("  %1: %2").arg(cellText(table, row, 0), cellText(table, row, 1)));
    }
}

void Tour::printLog() {
    print("Event log:");
    for (const QString& line : control<QPlainTextEdit>("logTextView").toPlainText().split('\n')) {
        print("  " + line);
    }
}

template<class Control>
Control& Tour::control(const char* objectName) const {
    auto* const found = _window->findChild<Control*>(objectName);
    if (found == nullptr) {
        throw Disappointment{QString("there is no control %1").arg(objectName)};
    }
    return *found;
}

// Through the window system's events, so that what lies on top of the widget gets the click.
void Tour::click(QWidget& widget, QPoint position) {
    auto& content = control<QScrollArea>("contentArea");
    if (content.widget()->isAncestorOf(&widget)) {
        content.ensureWidgetVisible(&widget);
    }
    QTest::mouseClick(_window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      widget.mapTo(_window, position));
}

void Tour::click(QWidget& widget) {
    click(widget, widget.rect().center());
}

// The list is open, or is about to be.
void Tour::pickFromList(QComboBox& popUp, int row) {
    QAbstractItemView& list = *popUp.view();
    waitFor("an open list", [&] { return list.isVisible(); });
    QTest::keyClick(&list, Qt::Key_Home);
    for (int step = 0; step < row; ++step) {
        QTest::keyClick(&list, Qt::Key_Down);
    }
    QTest::keyClick(&list, Qt::Key_Return);
}

void Tour::waitFor(const QString& what, const std::function<bool()>& condition) const {
    if (!QTest::qWaitFor(condition, patienceInMilliseconds)) {
        throw Disappointment{QString("waited in vain for %1").arg(what)};
    }
}

void Tour::takePicture(const QString& name, QMenu* menu) const {
    const QString folder = qEnvironmentVariable("KX_TOUR_PICTURES");
    if (folder.isEmpty()) {
        return;
    }
    if (menu == nullptr) {
        // The pointer away from the buttons, which light up below it.
        QTest::mouseMove(_window->windowHandle(), QPoint(1, _window->height() - 2));
    }
    QTest::qWait(50);
    QPixmap picture = _window->grab();
    if (menu != nullptr) {
        QPainter(&picture).drawPixmap(menu->pos() - _window->pos(), menu->grab());
    }
    const QString path = QDir(folder).filePath(name + ".png");
    if (!QDir().mkpath(folder) || !picture.save(path)) {
        throw Disappointment{QString("could not write %1").arg(path)};
    }
}

} // namespace kx
