#include "tests/Siege.h"

#include "tests/ResponsivenessProbe.h"

#include <sys/resource.h>

#include <QDeadlineTimer>

namespace kx {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr milliseconds drawerMoves{500};

// A flood brings at least this many invented units; a real network brings fewer.
constexpr int fewestInvented = 1000;

constexpr int mostListed = 1'048'576;

// The most MiB of memory that the process ever held.
qint64 mostMemoryHeld() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

void expectAtMost(milliseconds found, const char* limit, const QString& what) {
    if (found > milliseconds(qEnvironmentVariableIntValue(limit))) {
        throw VisitFailure{"too long: " + what};
    }
}

} // namespace

Siege::Siege(WindowDriver& driver)
    : _driver(driver)
    , _serials(qEnvironmentVariable("KX_SIEGE_UNITS").split(',')) {}

void Siege::run() {
    ResponsivenessProbe probe(*_driver.window().windowHandle());
    probe.start();
    const milliseconds duration = seconds(qEnvironmentVariableIntValue("KX_SIEGE_SECONDS"));
    const QDeadlineTimer end(duration);
    WindowDriver::letRun(duration / 3);
    _driver.press("logDrawerButton");
    while (!end.hasExpired()) {
        discover();
        lookForUnits();
        _driver.press("logDrawerButton");
        WindowDriver::letRun(drawerMoves);
    }
    print(QString("Discoveries: %1, real units found %2 times of %3, among %4 in the end")
              .arg(_discoveries)
              .arg(_found)
              .arg(_discoveries * _serials.size())
              .arg(_listed));
    if (!_missed.isEmpty()) {
        throw VisitFailure{"there is no unit " + _missed.join(", ")};
    }
    const milliseconds gap = probe.longestGap();
    const milliseconds computing = probe.longestComputing();
    print(QString("Longest wait of a person: %1 ms. Most that the program computed in one: %2 ms")
              .arg(gap.count())
              .arg(computing.count()));
    expectAtMost(gap, "KX_SIEGE_WAIT", "a person's longest wait");
    expectAtMost(computing, "KX_SIEGE_COMPUTING", "the program's own part in a wait");
    const qint64 held = mostMemoryHeld();
    print(QString("Most memory: %1 MiB").arg(held));
    if (held > qEnvironmentVariableIntValue("KX_SIEGE_MEMORY")) {
        throw VisitFailure{"the program takes too much memory"};
    }
    if (_listed > mostListed) {
        throw VisitFailure{"the list is longer than its limit"};
    }
    if (_listed < fewestInvented) {
        throw VisitFailure{"there was no flood"};
    }
}

// The system drops datagrams that do not fit into the listener's buffer, and may drop a real unit's
// reply. A person then presses Discover again.
void Siege::lookForUnits() {
    _missed.clear();
    for (const QString& serial : _serials) {
        try {
            _driver.pickUnit(serial);
            ++_found;
        } catch (const VisitFailure&) {
            _missed.append(serial);
        }
    }
}

void Siege::discover() {
    auto& list = _driver.control<QComboBox>("unitSelectPopUp");
    _driver.press("discoverButton");
    WindowDriver::waitFor("an empty unit pop-up after Discover", [&] { return list.count() == 0; });
    WindowDriver::waitFor("units", [&] { return list.count() > 0; });
    ++_discoveries;
    _listed = list.count();
}

} // namespace kx
