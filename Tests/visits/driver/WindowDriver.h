// Drives the running program's window from outside: it acts as a person with the mouse and the
// keyboard, and reads the texts that a person would read.
//
// It knows the program as controls with object names, and reaches it through the window system's
// own events. Main thread only. Operations that wait do so in a nested event loop, for a minute at
// most, because sanitizers make everything slow, and throw a VisitFailure when the wait was in
// vain.

#pragma once

#include <QComboBox>
#include <QMainWindow>
#include <QMenu>
#include <QString>
#include <QTableView>
#include <chrono>
#include <functional>

namespace kx {

// Ends a visit early. The text says what was expected.
struct VisitFailure {
    QString text;
};

// Prints a line of the record to standard output.
void print(const QString& line);

class WindowDriver final {
public:
    // Waits for the program's main window; everything else needs it.
    void findWindow();
    QMainWindow& window() const { return *_window; }

    // Keeps the window open at the end of the visit, so that the program runs on.
    void leaveOpen() { _isLeftOpen = true; }
    bool isLeftOpen() const { return _isLeftOpen; }

    template<class Control>
    Control& control(const char* objectName) const {
        auto* const found = _window->findChild<Control*>(objectName);
        if (found == nullptr) {
            throw VisitFailure{QString("there is no control %1").arg(objectName)};
        }
        return *found;
    }

    // Clicks through the window system's events, so that a widget on top gets the click.
    void click(QWidget& widget, QPoint position) const;
    void click(QWidget& widget) const;
    void press(const char* buttonName) const;

    // Chooses a row of a list that is open, or is about to open.
    void pickFromList(QComboBox& popUp, int row) const;

    // Opens the list until it offers the interface of this name in the system.
    void pickInterface(const QString& name) const;

    // Opens the list of interfaces, prints its titles in one line, and closes it.
    void printInterfaces() const;

    // Presses Discover, and waits until at least this many units are listed.
    void discover(int units) const;

    // Chooses a unit of the list, and waits for its parameters.
    void pickUnit(int row) const;

    // Chooses a unit of the list by its title, as a person who types the beginning of a title in a
    // long list.
    void pickUnit(const QString& serial) const;

    // Clicks a row of the parameter table, so that the edit row gets its texts.
    void clickParameter(int row) const;

    // Clicks a row of the parameter table, and waits until the edit row has its texts.
    void pickParameter(int row) const;

    // Opens the value in the edit row, types over it, and leaves the editor open.
    void typeValue(const QString& text) const;

    // The row of the parameter table with this name, -1 without one.
    int rowOfParameter(const QString& name) const;

    // The text that a table shows.
    static QString cellText(const QTableView& table, int row, int column);

    // Chooses an action of the menus that asks for a file, and saves in this one. Agrees to replace
    // it when it is there already.
    void save(const QString& actionName, const QString& path) const;

    // Opens the event log, and waits until the drawer stands still.
    void openLog() const;

    // The whole text of the event log.
    QString logText() const;

    void printUnits() const;
    void printParameters() const;
    void printLog() const;

    static void waitFor(const QString& what, const std::function<bool()>& condition);

    // Lets the program run as it runs without a driver. The first function ends early, and returns
    // true, when the condition has become true; it checks the condition every few milliseconds.
    static bool letRunUntil(const std::function<bool()>& condition,
                            std::chrono::milliseconds patience);
    static void letRun(std::chrono::milliseconds time);

    // Saves a picture of the window, with an open menu where one is given, in the folder that
    // KX_TOUR_PICTURES names. Saves none when the variable is absent.
    void takePicture(const QString& name, QMenu* menu = nullptr) const;

private:
    QMainWindow* _window = nullptr;
    bool _isLeftOpen = false;
};

} // namespace kx
