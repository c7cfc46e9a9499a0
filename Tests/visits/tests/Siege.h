// A visit to the running program while a sender floods it with datagrams. It watches for a third of
// the time, and opens the log that has grown meanwhile. Then it discovers again and again, and each
// time searches for the real units among those that the flood invents; every second time the event
// log is open. It measures how long a person has to wait meanwhile.
//
// Main thread only; run() waits in nested event loops. Environment: KX_SIEGE_SECONDS, the length of
// the visit; KX_SIEGE_UNITS, the serial numbers of the real units, with commas in between;
// KX_SIEGE_FULL, when it is set, that the flood has to fill the list first; KX_SIEGE_WAIT, the
// milliseconds that a person may have to wait; KX_SIEGE_COMPUTING, how many of them the program may
// compute; KX_SIEGE_MEMORY, the most MiB that the program may ever hold.

#pragma once

#include "driver/WindowDriver.h"

#include <QDeadlineTimer>
#include <QStringList>

namespace kx {

class Siege final {
public:
    explicit Siege(WindowDriver& driver);

    // Stays the whole time, and prints its results. Throws a VisitFailure when a Discover did not
    // find each unit, nor a second one where the system dropped datagrams, when a person had to
    // wait too long, when the program grew beyond its limit, when there was no flood, and when the
    // list was to be full and was not, or grew beyond its limit.
    void run();

private:
    void discover();
    void fillList(const QDeadlineTimer& end);
    void findUnits();
    QStringList missedUnits();

    WindowDriver& _driver;
    const QStringList _serials;
    int _discoveries = 0;
    int _repeated = 0;
    int _listed = 0;
};

} // namespace kx
