// A visit to the running program in steps that a test writes, one on a line, with any number of
// blank lines between them:
//
//   interface NAME           chooses the interface of this name in the system
//   interfaces               opens the list of interfaces, prints its titles, and closes it
//   discover COUNT           presses Discover and waits for this many units
//   crowd COUNT              waits for the discovery of the launch, then presses Discover until
//                            this many units are listed, with pauses: replies that a slow machine
//                            reads later than after two seconds are listed by the next Discover
//   unit SERIAL              chooses the unit with this serial number
//   parameter NAME           clicks this row of the parameter table
//   type TEXT                types over the value in the edit row, and leaves the editor open
//   press BUTTON             clicks the button of this object name
//   presses COUNT BUTTON     clicks it this many times
//   log                      opens the event log
//   shows NAME: VALUE        waits until the parameter table has this row
//   lacks NAME               waits until the parameter table has no row of this name
//   logs TEXT                waits until the event log, whose drawer must be open, has the text
//   replies COUNT            waits until the event log, whose drawer must be open, holds replies
//                            of this many units, less those that the line below Discover counts
//   line TEXT                waits until the quiet line contains the text
//   finding TEXT             waits until the line below Discover contains the text
//   finding                  expects that this line tells of answers only
//   watch                    begins to watch how long a user's event has to wait
//   waited MILLISECONDS      prints the longest wait of an event, and expects no longer one
//   worked MILLISECONDS      does the same for the time that the program worked for an event
//   wait MILLISECONDS        lets the program run for this long
//   pause MILLISECONDS       keeps the program from handling anything for this long
//   work MILLISECONDS        does the same by keeping the program busy
//   save ACTION PATH         chooses this action of the menus, and saves in this file, which may
//                            be there already
//   print                    prints the shown parameters and the event log
//   cancel                   presses Escape in the panel that comes up the next time while
//                            something is waited for, and prints "Waiting: SENTENCE"
//   keep alerts              leaves message boxes open from now on
//   stay                     leaves the window open at the end; nothing watches it any more
//   read VARIABLE            prints the lines of the file that this environment variable names
//   run COMMAND              runs a command of the shell, which must succeed; the program does
//                            nothing meanwhile
//   last run COMMAND         runs a command of the shell when the program has put away its work and
//                            its window still exists; the command's output follows the record
//   last click BUTTON        clicks the button of this object name at that time
//   descriptors NUMBER       makes the system open no descriptor from this number on, except for
//                            commands; "descriptors all" restores the system's own limit
//
// A message box that comes up meanwhile is printed as "Alert: TITLE: TEXT" and closed by its
// button.
//
// Main thread only; run() waits in nested event loops. Environment: KX_STEPS, the steps.

#pragma once

#include "driver/WindowDriver.h"
#include "tests/ResponsivenessProbe.h"

#include <sys/resource.h>

#include <QTimer>
#include <memory>

namespace kx {

class Steps final {
public:
    explicit Steps(WindowDriver& driver);

    // Takes every step. A step that is not in the list above throws a VisitFailure.
    void run();

private:
    void take(const QString& verb, const QString& argument);
    void takeOfCrowd(const QString& verb, const QString& argument);
    void discoverCrowd(int units);
    void expectReplies(int units);
    QString discoveryLine() const;
    int droppedDatagrams() const;
    void expectFinding(const QString& text);
    void watch();
    const ResponsivenessProbe& probe() const;
    static void expectAtMost(const QString& what, std::chrono::milliseconds longest,
                             const QString& limit);
    void pickParameter(const QString& name);
    void expectParameter(const QString& nameAndValue);
    void expectNoParameter(const QString& name);
    static void printFile(const QString& path);
    void run(const QString& command) const;
    void takeAtLast(const QString& verb, const QString& argument);
    void allowDescriptors(const QString& number) const;
    void cancelNextPanel();
    void expectText(const QString& where, const QString& text,
                    const std::function<QString()>& shown);

    WindowDriver& _driver;
    QTimer _alertWatch;
    std::unique_ptr<ResponsivenessProbe> _probe;
    rlimit _usualDescriptors{}; // the system's own limit
};

} // namespace kx
