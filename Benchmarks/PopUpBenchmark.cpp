// The unit pop-up with as many units as a network can hold. Filling it is compared with adding
// plain items to a combo box. Opening its list for the first time is compared with opening a list
// of a hundred units.

#include "Comparison.h"
#include "ProcessorTime.h"
#include "platform/qt/QtPopUpButton.h"
#include "platform/qt/QtText.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <cstdio>

namespace kx {

namespace {

TitleList serialNumbers(int count) {
    TitleList titles;
    for (int unit = 0; unit < count; ++unit) {
        char title[18];
        std::snprintf(title, sizeof title, "4B 58 00 00 %02X %02X", (unit >> 8) & 0xFF,
                      unit & 0xFF);
        titles.push_back(title);
    }
    return titles;
}

constexpr int everyUnit = 65'536;

// Times the work alone, without the steps before and after it, such as releasing the items.
template<class Work>
void time(benchmark::State& state, Work work) {
    const auto before = processorTime();
    work();
    state.SetIterationTime((processorTime() - before).count());
}

void fillPlainComboBox(benchmark::State& state) {
    const auto titles = serialNumbers(everyUnit);
    for (auto _ : state) {
        QComboBox comboBox;
        time(state, [&] {
            QStringList texts;
            for (const std::string_view title : titles) {
                texts.append(qtText(title));
            }
            comboBox.addItems(texts);
        });
    }
}
BENCHMARK(fillPlainComboBox)->UseManualTime()->Unit(benchmark::kMillisecond);

void fillUnitPopUp(benchmark::State& state) {
    const auto titles = serialNumbers(everyUnit);
    for (auto _ : state) {
        QComboBox comboBox;
        QtPopUpButton popUp(comboBox);
        time(state, [&] { popUp.addItemsWithTitles(titles); });
    }
}
BENCHMARK(fillUnitPopUp)->UseManualTime()->Unit(benchmark::kMillisecond);

const Comparison fillRow("fill the unit pop-up with 65,536 units, beside adding plain items",
                         "fillUnitPopUp", "fillPlainComboBox");

// Times the opening up to the first paint of the list.
void openUnitPopUp(benchmark::State& state, int units) {
    const auto titles = serialNumbers(units);
    for (auto _ : state) {
        QComboBox comboBox;
        comboBox.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        QtPopUpButton popUp(comboBox);
        popUp.addItemsWithTitles(titles);
        comboBox.show();
        QApplication::processEvents();
        time(state, [&] {
            comboBox.showPopup();
            QApplication::processEvents();
        });
        comboBox.hidePopup();
    }
}

void openPopUpOfAHundred(benchmark::State& state) {
    openUnitPopUp(state, 100);
}
BENCHMARK(openPopUpOfAHundred)->UseManualTime()->Unit(benchmark::kMillisecond);

void openPopUpOfEveryUnit(benchmark::State& state) {
    openUnitPopUp(state, everyUnit);
}
BENCHMARK(openPopUpOfEveryUnit)->UseManualTime()->Unit(benchmark::kMillisecond);

const Comparison openRow("open the list of 65,536 units for the first time, beside one of 100",
                         "openPopUpOfEveryUnit", "openPopUpOfAHundred");

} // namespace

} // namespace kx
