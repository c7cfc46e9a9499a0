// The window of all units over units that the test invents, with a clock that the test moves.

#pragma once

#include "conversation/AllUnits.h"
#include "core/conversation/HeardUnitSamples.h"
#include "platform/qt/AllUnitsModel.h"
#include "platform/qt/AllUnitsView.h"
#include "platform/qt/AllUnitsWindow.h"
#include "platform/qt/QtText.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <string>
#include <vector>

namespace kx {

class AllUnitsWindowTest : public ::testing::Test {
protected:
    void open() {
        window.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        settle();
    }

    // Waits until the table shows the units as they are.
    void settle() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return model().isUpToDate(); }, 60'000));
    }

    void hear(const HeardUnit& unit) { units.unitDidTell(unit); }

    // Units 1 to 4: the third has the address of the second, and the fourth answers no more.
    void hearFour() {
        hear(heardUnit(4));
        now += 60'000;
        units.discoveryDidBegin();
        units.everybodyWasAsked(2);
        for (std::uint32_t number = 1; number <= 3; ++number) {
            hear(heardUnit(number));
        }
        HeardUnit third = heardUnit(3);
        third.record.setValue(UnitParameter::internalIPAddress, "192.0.2.2");
        hear(third);
        units.discoveryDidEnd();
    }

    template<class Control>
    Control& control(const char* objectName) {
        return *window.findChild<Control*>(objectName);
    }
    AllUnitsView& table() { return control<AllUnitsView>("allUnitsTable"); }
    AllUnitsModel& model() { return dynamic_cast<AllUnitsModel&>(*table().model()); }
    QLineEdit& filter() { return control<QLineEdit>("allUnitsFilter"); }
    std::string count() { return utf8Text(control<QLabel>("allUnitsCount").text()); }
    std::string note() {
        const auto& label = control<QLabel>("allUnitsNote");
        return label.isVisible() ? utf8Text(label.text()) : "(hidden)";
    }

    QModelIndex cell(int row, UnitColumn column) {
        return model().index(row, static_cast<int>(column));
    }
    std::string text(int row, UnitColumn column) {
        return utf8Text(cell(row, column).data().toString());
    }
    std::vector<std::string> column(UnitColumn column) {
        std::vector<std::string> texts;
        for (int row = 0; row < model().rowCount(); ++row) {
            texts.push_back(text(row, column));
        }
        return texts;
    }

    // Sends keys as the window system does it, so that shortcuts take part.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }
    void type(const char* text) {
        for (const char* letter = text; *letter != 0; ++letter) {
            QTest::keyClick(window.windowHandle(), *letter);
        }
    }
    // Whatever modifier keys the test pressed last.
    void select(int row) {
        table().selectionModel()->setCurrentIndex(
            model().index(row, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    void typeFilter(const QString& text) {
        filter().setText(text);
        settle();
    }

    std::int64_t now = QDateTime(QDate(2026, 11, 22), QTime(14, 3, 22)).toMSecsSinceEpoch();
    AllUnits units{[](std::uint32_t link) { return "eth" + std::to_string(link); },
                   AllUnits::defaultLimit,
                   {.steady = [this] { return std::chrono::milliseconds(now); },
                    .calendar =
                        [this] {
                            return std::chrono::system_clock::time_point(
                                std::chrono::milliseconds(now));
                        }}};
    std::vector<std::string> picked;
    std::vector<std::string> helpPages;
    AllUnitsWindow window{units,
                          {[this](std::string_view serial) { picked.emplace_back(serial); },
                           [this](std::string_view page) { helpPages.emplace_back(page); }}};
};

} // namespace kx
