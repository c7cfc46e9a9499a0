#include "tests/Siege.h"

#include "tests/ResponsivenessProbe.h"

#include <sys/resource.h>

#include <QDeadlineTimer>
#include <QLabel>

namespace kx {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr milliseconds drawerMoves{500};

// A flood brings at least this many invented units; a real network brings fewer.
constexpr int fewestInvented = 1000;

// The most units that the program keeps.
constexpr int fullList = 1'048'576;

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
    if (qEnvironmentVariableIsSet("KX_SIEGE_FULL")) {
        fillList(end);
    }
    while (!end.hasExpired()) {
        findUnits();
        _driver.press("logDrawerButton");
        WindowDriver::letRun(drawerMoves);
    }
    print(
        QString("Discoveries: %1, of which %2 were pressed again; the real units were found after "
                "each, among %3 in the end")
            .arg(_discoveries)
            .arg(_repeated)
            .arg(_listed));
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
    if (_listed < fewestInvented) {
        throw VisitFailure{"there was no flood"};
    }
}

// From then on each new unit takes the place of another one, so the list has to stay as long as it
// is.
void Siege::fillList(const QDeadlineTimer& end) {
    while (_listed < fullList) {
        if (end.hasExpired()) {
            throw VisitFailure{QString("the list is not full but has %1 units").arg(_listed)};
        }
        discover();
    }
    print(QString("The list is full after %1 Discovers").arg(_discoveries));
    discover();
    if (_listed != fullList) {
        throw VisitFailure{QString("the full list has %1 units").arg(_listed)};
    }
}

// The system drops datagrams that do not fit into the listener's buffer, and may drop a real unit's
// reply. The line below Discover says so, and a person then presses Discover again, once.
void Siege::findUnits() {
    discover();
    QStringList missed = missedUnits();
    const auto& line = _driver.control<QLabel>("discoveryLine");
    if (!missed.isEmpty() && line.text().startsWith("The system dropped")) {
        ++_repeated;
        discover();
        missed = missedUnits();
    }
    if (!missed.isEmpty()) {
        throw VisitFailure{QString("Discover %1 does not find %2. %3")
                               .arg(_discoveries)
                               .arg(missed.join(", "), line.text())};
    }
}

QStringList Siege::missedUnits() {
    QStringList missed;
    for (const QString& serial : _serials) {
        try {
            _driver.pickUnit(serial);
        } catch (const VisitFailure&) {
            missed.append(serial);
        }
    }
    return missed;
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
