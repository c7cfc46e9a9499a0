// A tour of the running program: what a person would do with the mouse and the keyboard to see the
// units of a network, with a printed record and pictures.
//
// It knows the program from outside, as controls with object names, and reaches it through the
// window system's own events. Main thread only; run() waits in nested event loops.
//
// Environment: KX_TOUR_UNITS, the number of units expected, 0 for a tour that picks none;
// KX_TOUR_PICTURES, the folder for pictures, none when absent; KX_TOUR_INTERFACE, the name in the
// system of the interface to choose before the discovery, none when absent. It may come up while
// the tour looks for it.

#pragma once

#include <QComboBox>
#include <QMainWindow>
#include <QMenu>
#include <QString>
#include <functional>

namespace kx {

class Tour final {
public:
    // Takes the whole tour and closes the window, which ends the program. After a failure it says
    // on standard error what was missing, and ends the program with exit status 1.
    void run();

private:
    void visit();
    void pickInterface(const QString& name);
    void discover();
    void pickUnit();
    void pickParameter();
    void openLog();
    void showOtherLooks();
    void showMenus();

    void findWindow();
    void printChoice(const QString& heading, const char* popUp);
    void printUnits();
    void printParameters();
    void printLog();

    template<class Control>
    Control& control(const char* objectName) const;
    void click(QWidget& widget, QPoint position);
    void click(QWidget& widget);
    void pickFromList(QComboBox& popUp, int row);
    void waitFor(const QString& what, const std::function<bool()>& condition) const;
    void takePicture(const QString& name, QMenu* menu = nullptr) const;

    QMainWindow* _window = nullptr;
};

} // namespace kx
