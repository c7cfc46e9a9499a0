// The window of all units with a hundred thousand of them: the processor time until it is open,
// sorted and filtered, and the longest that a key waits for it while ten thousand units arrive.

#include "Comparison.h"
#include "ProcessorTime.h"
#include "core/conversation/HeardUnitSamples.h"
#include "platform/qt/AllUnitsModel.h"
#include "platform/qt/AllUnitsView.h"
#include "platform/qt/AllUnitsWindow.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>
#include <chrono>

namespace kx {

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr std::uint32_t many = 100'000;
constexpr std::uint32_t arriving = 10'000;

constexpr Milliseconds allowed{100};
constexpr Milliseconds allowedForKeys{50};

HeardUnit numberedUnit(std::uint32_t number) {
    HeardUnit unit = heardUnit(number & 0xFFFFU);
    unit.record.setValue(UnitParameter::serialNumber, sampleSerial(number));
    unit.record.setValue(UnitParameter::internalMACAddress, sampleHardwareAddress(number));
    unit.record.setValue(UnitParameter::internalIPAddress, stringForIP(0x0A000000U + number));
    return unit;
}

class ManyUnits {
public:
    ManyUnits() {
        for (std::uint32_t number = 0; number < many; ++number) {
            units.unitDidTell(numberedUnit(number * 7919 % many)); // in no order
        }
    }

    void open() {
        window = std::make_unique<AllUnitsWindow>(
            units, AllUnitsWindow::Actions{[](std::string_view) {}, [](std::string_view) {}});
        table = window->findChild<AllUnitsView*>();
        model = dynamic_cast<AllUnitsModel*>(table->model());
        filter = window->findChild<QLineEdit*>("allUnitsFilter");
        window->present();
    }

    // Until the table shows what it should and is painted.
    void settle() const {
        while (!model->isUpToDate()) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QApplication::processEvents();
        window->repaint();
    }

    void typeIntoFilter(QChar letter) const {
        QKeyEvent press(QEvent::KeyPress, letter.toUpper().unicode(), Qt::NoModifier, letter);
        QApplication::sendEvent(filter, &press);
    }

    AllUnits units{[](std::uint32_t /*link*/) { return std::string("eth0"); }};
    std::unique_ptr<AllUnitsWindow> window;
    AllUnitsView* table = nullptr;
    AllUnitsModel* model = nullptr;
    QLineEdit* filter = nullptr;
};

// Processor time. Nothing waits here, so on an idle machine a person waits as long.
template<class Act>
Milliseconds timeOf(const Act& act) {
    const auto before = processorTime();
    act();
    return processorTime() - before;
}

void openAllUnits(benchmark::State& state) {
    ManyUnits all;
    Milliseconds taken{};
    for (auto _ : state) {
        taken = timeOf([&all] {
            all.open();
            all.settle();
        });
    }
    state.counters["ratio"] = taken / allowed;
}
BENCHMARK(openAllUnits)->Iterations(1)->Unit(benchmark::kMillisecond);

const MeasuredRatio openRow("open All Units with 100,000 units, beside 100 ms", "openAllUnits", 1);

// The slowest of all columns, in both directions.
void sortAllUnits(benchmark::State& state) {
    ManyUnits all;
    all.open();
    all.settle();
    Milliseconds longest{};
    for (auto _ : state) {
        for (int column = 0; column < all.model->columnCount(); ++column) {
            for (const Qt::SortOrder order : {Qt::DescendingOrder, Qt::AscendingOrder}) {
                longest = std::max(longest, timeOf([&] {
                                       all.table->sortByColumn(column, order);
                                       all.settle();
                                   }));
            }
        }
    }
    state.counters["ratio"] = longest / allowed;
}
BENCHMARK(sortAllUnits)->Iterations(1)->Unit(benchmark::kMillisecond);

const MeasuredRatio sortRow("sort 100,000 units, the slowest column, beside 100 ms", "sortAllUnits",
                            1);

// The slowest of the keys of a text that more and more units do not contain.
void filterAllUnits(benchmark::State& state) {
    ManyUnits all;
    all.open();
    all.settle();
    Milliseconds longest{};
    for (auto _ : state) {
        for (const QChar key : QString("10.1.23.4")) {
            longest = std::max(longest, timeOf([&] {
                                   all.typeIntoFilter(key);
                                   all.settle();
                               }));
        }
        longest = std::max(longest, timeOf([&] {
                               all.filter->clear();
                               all.settle();
                           }));
    }
    state.counters["ratio"] = longest / allowed;
}
BENCHMARK(filterAllUnits)->Iterations(1)->Unit(benchmark::kMillisecond);

const MeasuredRatio filterRow("filter 100,000 units, the slowest key, beside 100 ms",
                              "filterAllUnits", 1);

// The longest turn of the event loop, or of a key itself, while units arrive and a person types and
// sorts.
void typeWhileUnitsArrive(benchmark::State& state) {
    ManyUnits all;
    all.open();
    all.settle();
    Milliseconds longest{};
    const auto look = [&longest](const auto& act) { longest = std::max(longest, timeOf(act)); };
    for (auto _ : state) {
        const QString keys = "10.1.23.4";
        for (std::uint32_t number = 0; number < arriving; ++number) {
            all.units.unitDidTell(numberedUnit(many + number));
            if (number % 20 == 0) {
                look([] { QApplication::processEvents(); });
            }
            if (number % 1000 == 500) {
                look([&] { all.typeIntoFilter(keys[static_cast<int>(number / 1000) % 9]); });
            }
            if (number % 2000 == 1500) {
                all.filter->clear();
                look([&] {
                    all.table->sortByColumn(number % 4000 == 1500 ? 3 : 11, Qt::DescendingOrder);
                });
            }
        }
        while (!all.model->isUpToDate()) {
            look([] { QApplication::processEvents(); });
        }
    }
    state.counters["ratio"] = longest / allowedForKeys;
}
BENCHMARK(typeWhileUnitsArrive)->Iterations(1)->Unit(benchmark::kMillisecond);

const MeasuredRatio arriveRow("10,000 units arrive at 100,000: longest wait of a key, beside 50 ms",
                              "typeWhileUnitsArrive", 1);

} // namespace

} // namespace kx
