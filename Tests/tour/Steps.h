// A visit to the running program whose steps a test writes, one on a line:
//
//   interface NAME           chooses the interface of this name in the system
//   discover COUNT           presses Discover and waits for so many units
//   unit SERIAL              chooses the unit with this serial number
//   parameter NAME           clicks this row of the parameter table
//   type TEXT                types over the value in the edit row, and leaves the editor open
//   press BUTTON             clicks the button of this object name
//   log                      opens the event log
//   shows NAME: VALUE        waits until the parameter table has this row
//   lacks NAME               waits until the parameter table has no row of this name
//   logs TEXT                waits until the event log, whose drawer must be open, has the text
//   line TEXT                waits until the quiet line contains the text
//   picture NAME             leaves a picture (KX_TOUR_PICTURES)
//   print                    prints the shown parameters and the event log
//   read VARIABLE            prints the lines of the file that this environment variable names
//
// A message box that comes up meanwhile is printed as "Alert: TITLE: TEXT" and closed by its
// button.
//
// Main thread only; run() waits in nested event loops. Environment: KX_STEPS, the steps.

#pragma once

#include "WindowDriver.h"

#include <QTimer>

namespace kx {

class Steps final {
public:
    explicit Steps(WindowDriver& driver);

    // Takes every step. A step that is not one of the above throws a Disappointment.
    void run();

private:
    void take(const QString& verb, const QString& argument);
    void pickParameter(const QString& name);
    void expectParameter(const QString& nameAndValue);
    void expectNoParameter(const QString& name);
    static void printFile(const QString& path);
    void expectText(const QString& where, const QString& text,
                    const std::function<QString()>& shown);

    WindowDriver& _driver;
    QTimer _alertWatch;
};

} // namespace kx
