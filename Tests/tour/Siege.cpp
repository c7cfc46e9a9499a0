#include "Siege.h"

#include "ResponsivenessProbe.h"

#include <QDeadlineTimer>

namespace kx {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr milliseconds drawerMoves{500};

// What a flood brings at least, and no real network.
constexpr int fewestInvented = 1000;

void expectAtMost(milliseconds found, const char* limit, const QString& what) {
    if (found > milliseconds(qEnvironmentVariableIntValue(limit))) {
        throw Disappointment{"too long: " + what};
    }
}

} // namespace

Siege::Siege(WindowDriver& driver)
    : _driver(driver)
    , _serials(qEnvironmentVariable("KX_SIEGE_UNITS").split(',')) {}

void Siege::run() {
    ResponsivenessProbe probe(*_driver.window().windowHandle());
    probe.start();
    const QDeadlineTimer end(seconds(qEnvironmentVariableIntValue("KX_SIEGE_SECONDS")));
    while (!end.hasExpired()) {
        discover();
        for (const QString& serial : _serials) {
            _driver.pickUnit(serial);
        }
        _driver.press("logDrawerButton");
        WindowDriver::letRun(drawerMoves);
    }
    print(QString("Discoveries: %1, each of %2 real units found among %3 in the end")
              .arg(_discoveries)
              .arg(_serials.size())
              .arg(_listed));
    const milliseconds gap = probe.longestGap();
    const milliseconds computing = probe.longestComputing();
    print(QString("Longest wait of a person: %1 ms. Most that the program computed in one: %2 ms")
              .arg(gap.count())
              .arg(computing.count()));
    expectAtMost(gap, "KX_SIEGE_WAIT", "a person's longest wait");
    expectAtMost(computing, "KX_SIEGE_COMPUTING", "the program's own part in a wait");
    if (_listed < fewestInvented) {
        throw Disappointment{"there was no flood"};
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
