#include "tests/Soak.h"

#include <QLineEdit>
#include <algorithm>

namespace kx {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

// After this time, or after a third of a shorter visit, every function has been used once.
constexpr seconds longestFirstPart{60};

// The time that the end of the visit takes.
constexpr seconds timeToEnd{16};

// Longer than a discovery, and longer than the delay of a late reply.
constexpr milliseconds discoveryTakes{2500};

// An invented unit stays listed and takes some hundred bytes. Qt remembers what it has drawn. Both
// together took up to 360 KiB.
constexpr std::size_t heapMayGrow = std::size_t{1024} * 1024;

constexpr int longestPauseInMilliseconds = 400;

QString describe(const ShownParameters& parameters) {
    QStringList lines;
    for (auto entry = parameters.begin(); entry != parameters.end(); ++entry) {
        lines.append(entry.key() + ": " + entry.value());
    }
    return lines.join(", ");
}

} // namespace

Soak::Soak(WindowDriver& driver)
    : _driver(driver)
    , _random(qEnvironmentVariable("KX_SOAK_SEED").toUInt()) {}

void Soak::run() {
    print("Seed: " + qEnvironmentVariable("KX_SOAK_SEED"));
    const seconds whole(qEnvironmentVariableIntValue("KX_SOAK_SECONDS"));
    const auto begin = Clock::now();
    _driver.pickInterface("kx0");
    takeStepsUntil(begin + std::min(longestFirstPart, whole / 3));
    const ResourceUse before = useAtRest();
    print("After the first part: " + before.text());
    takeStepsUntil(begin + whole - timeToEnd);
    const ResourceUse after = useAtRest();
    print(QString("After %1 steps: %2").arg(_steps).arg(after.text()));

    makeUnitsHonest();
    WindowDriver::letRun(discoveryTakes); // lets datagrams on their way arrive
    discoverAtRest();
    expectShown(askUnitsForStates(qEnvironmentVariableIntValue("KX_SOAK_UNITS")));

    if (after.heapBytes > before.heapBytes + heapMayGrow) {
        throw VisitFailure{"the heap has grown"};
    }
    if (after.descriptors > before.descriptors || after.threads > before.threads) {
        throw VisitFailure{"there are more descriptors or threads than before"};
    }
}

// Takes a step of each kind once at first, so that its resources exist before they are measured.
void Soak::takeStepsUntil(Clock::time_point until) {
    while (Clock::now() < until) {
        takeStep(_steps < 20 ? _steps : below(20));
        ++_steps;
        WindowDriver::letRun(milliseconds(below(longestPauseInMilliseconds)));
    }
}

void Soak::takeStep(int kind) {
    switch (kind) {
    case 0:
        return discover();
    case 1:
        discover();
        return letDiscoveryEnd();
    case 2:
    case 3:
    case 4:
    case 5:
        return pickUnit();
    case 6:
        return restore();
    case 7:
    case 8:
        return reload();
    case 9:
        return sendOption();
    case 10:
        return toggleLog();
    default:
        return edit();
    }
}

void Soak::discover() {
    _driver.press("discoverButton");
    _discoveryEnds = Clock::now() + discoveryTakes;
}

void Soak::letDiscoveryEnd() {
    const auto left = std::chrono::ceil<milliseconds>(_discoveryEnds - Clock::now());
    WindowDriver::letRun(std::max(left, milliseconds::zero()));
}

// Waits first, because a discovery may fill the list anew.
void Soak::pickUnit() {
    letDiscoveryEnd();
    const auto& units = _driver.control<QComboBox>("unitSelectPopUp");
    if (units.count() > 0) {
        _driver.pickUnit(units.itemText(below(units.count())));
    }
}

void Soak::edit() {
    static const QStringList parameters{"destination IP address",  "destination MAC address",
                                        "destination Port number", "device Port number",
                                        "internal IP address",     "internal MAC address",
                                        "serial number",           "unit ID"};
    const QString& parameter = parameters[below(static_cast<int>(parameters.size()))];
    const QString value = newValue(parameter);
    const int row = _driver.rowOfParameter(parameter);
    if (row < 0) {
        return; // no unit is selected, or its reply lacked this parameter
    }
    _driver.clickParameter(row);
    const auto& editRow = _driver.control<QTableView>("editParameterTableView");
    if (WindowDriver::cellText(editRow, 0, 0) != parameter) {
        return; // this row was selected before, with another parameter
    }
    _driver.typeValue(value);
    _driver.press("applyButton");
}

void Soak::reload() {
    _driver.press("reloadButton");
}

void Soak::restore() {
    _driver.press("restoreButton");
}

void Soak::sendOption() {
    auto& options = _driver.control<QComboBox>("optionCommandPopUp");
    const int row = below(options.count());
    _driver.click(options);
    _driver.pickFromList(options, row);
    _driver.press("sendOptionButton");
}

void Soak::toggleLog() {
    _driver.press("logDrawerButton");
}

// A new value; one in eight is no valid value for a unit. No unit gets an address at which it could
// not be heard, such as the host's own or a broadcast address, or a port at which nobody can reach
// it.
QString Soak::newValue(const QString& parameter) {
    if (parameter == "device Port number") {
        return QString::number(1 + below(70'000));
    }
    if (below(8) == 0) {
        return "no such value";
    }
    if (parameter == "internal IP address") {
        const int last = 2 + below(253);
        return below(4) == 0 ? QString("10.0.%1.%2").arg(below(256)).arg(last)
                             : QString("192.0.2.%1").arg(last);
    }
    if (parameter == "destination IP address") {
        return QString("%1.%2.%3.%4")
            .arg(below(256))
            .arg(below(256))
            .arg(below(256))
            .arg(below(256));
    }
    if (parameter == "internal MAC address") {
        return "02:" + hexadecimal(5, ':');
    }
    if (parameter == "destination MAC address") {
        return hexadecimal(6, ':');
    }
    if (parameter == "serial number") {
        return hexadecimal(6, ' ');
    }
    if (parameter == "unit ID") {
        return below(2) == 0 ? QString::number(below(1000)) : "U" + hexadecimal(1 + below(3), ' ');
    }
    return QString::number(3518 + below(8));
}

QString Soak::hexadecimal(int bytes, QChar separator) {
    QStringList pairs;
    for (int byte = 0; byte < bytes; ++byte) {
        pairs.append(QString("%1").arg(below(256), 2, 16, QChar('0')).toUpper());
    }
    return pairs.join(separator);
}

// Gives the same on every machine; the standard distributions may not.
int Soak::below(int bound) {
    return static_cast<int>(_random() % static_cast<unsigned>(bound));
}

void Soak::discoverAtRest() {
    auto& list = _driver.control<QComboBox>("unitSelectPopUp");
    _driver.press("discoverButton");
    WindowDriver::waitFor("an empty unit pop-up after Discover", [&] { return list.count() == 0; });
    WindowDriver::waitFor("units", [&] { return list.count() > 0; });
    WindowDriver::letRun(discoveryTakes);
}

// The resources with the drawer closed and with the log and the list of units just emptied.
ResourceUse Soak::useAtRest() {
    auto& drawer = _driver.control<QWidget>("eventLogDrawer");
    if (drawer.isVisible()) {
        toggleLog();
        WindowDriver::waitFor("a closed drawer", [&] { return !drawer.isVisible(); });
    }
    WindowDriver::letRun(discoveryTakes);
    discoverAtRest();
    WindowDriver::waitFor("the end of every child",
                          [] { return ResourceUse::now().children == 0; });
    discover();
    return ResourceUse::now();
}

// When several units have the same serial number, the registry holds one of them.
void Soak::expectShown(const std::vector<ShownParameters>& units) {
    QMap<QString, std::vector<ShownParameters>> unitsOfSerial;
    for (const ShownParameters& unit : units) {
        unitsOfSerial[unit["serial number"]].push_back(unit);
    }
    for (auto entry = unitsOfSerial.begin(); entry != unitsOfSerial.end(); ++entry) {
        _driver.pickUnit(entry.key());
        const ShownParameters shown = shownNow();
        const std::vector<ShownParameters>& held = entry.value();
        if (std::ranges::find(held, shown) == held.end()) {
            throw VisitFailure{QString("the window shows\n  %1\nand the unit holds\n  %2")
                                   .arg(describe(shown), describe(held.front()))};
        }
    }
    print(QString("Every one of %1 serial numbers is shown as its unit holds it, of %2 listed.")
              .arg(unitsOfSerial.size())
              .arg(_driver.control<QComboBox>("unitSelectPopUp").count()));
}

ShownParameters Soak::shownNow() const {
    ShownParameters shown;
    const auto& table = _driver.control<QTableView>("unitParameterTableView");
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        shown[WindowDriver::cellText(table, row, 0)] = WindowDriver::cellText(table, row, 1);
    }
    const QString unitID = _driver.control<QLineEdit>("unitIDField").text();
    if (unitID != shown.value("unit ID")) {
        throw VisitFailure{"the unit ID field shows " + unitID};
    }
    return shown;
}

} // namespace kx
