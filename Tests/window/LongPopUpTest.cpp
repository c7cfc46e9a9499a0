// A pop-up with as many titles as a network has units.

#include "platform/qt/QtPopUpButton.h"
#include "platform/qt/QtText.h"
#include "platform/qt/UniformListView.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QScrollBar>
#include <QStyleHints>
#include <QTest>
#include <array>
#include <string>
#include <vector>

namespace kx {

namespace {

constexpr int everyUnit = 65'536;

std::string serialNumber(int unit) {
    std::array<char, 18> text{};
    std::snprintf(text.data(), text.size(), "4B 58 00 00 %02X %02X", (unit >> 8) & 0xFF,
                  unit & 0xFF);
    return text.data();
}

class LongPopUpTest : public ::testing::Test {
protected:
    LongPopUpTest() {
        for (int unit = 0; unit < everyUnit; ++unit) {
            titles.push_back(serialNumber(unit));
        }
        comboBox.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        comboBox.resize(250, 30);
        comboBox.show();
    }

    void open() {
        comboBox.showPopup();
        EXPECT_TRUE(QTest::qWaitFor([this] { return list().isVisible(); }));
    }
    QAbstractItemView& list() { return *comboBox.view(); }
    void press(Qt::Key key) { QTest::keyClick(&list(), key); }
    QModelIndex item(int row) { return list().model()->index(row, 0); }
    bool isInSight(int row) {
        return list().viewport()->rect().contains(list().visualRect(item(row)).center());
    }
    std::string selected() { return popUp.titleOfSelectedItem().value_or("(none)"); }

    std::vector<std::string> titles;
    QComboBox comboBox;
    QtPopUpButton popUp{comboBox};
};

} // namespace

TEST_F(LongPopUpTest, OpensAsAListBelowThatScrolls) {
    popUp.addItemsWithTitles(titles);
    open();
    EXPECT_LT(list().window()->height(), 600);
    EXPECT_EQ(list().verticalScrollBar()->maximum(),
              everyUnit - list().verticalScrollBar()->pageStep());
    EXPECT_TRUE(QTest::qWaitFor([this] { return list().verticalScrollBar()->isVisible(); }));
    EXPECT_TRUE(isInSight(0));
    EXPECT_GT(list().visualRect(item(0)).height(), list().fontMetrics().height());
}

TEST_F(LongPopUpTest, OpensWhereTheSelectedTitleIs) {
    popUp.addItemsWithTitles(titles);
    popUp.selectItemWithTitle(serialNumber(40'000));
    open();
    EXPECT_EQ(list().currentIndex().row(), 40'000);
    EXPECT_TRUE(isInSight(40'000));
}

TEST_F(LongPopUpTest, TheKeyboardReachesEveryTitle) {
    popUp.addItemsWithTitles(titles);
    open();
    press(Qt::Key_End);
    EXPECT_EQ(list().currentIndex().row(), everyUnit - 1);
    EXPECT_TRUE(isInSight(everyUnit - 1));
    press(Qt::Key_Down);
    EXPECT_EQ(list().currentIndex().row(), everyUnit - 1);
    press(Qt::Key_Up);
    EXPECT_EQ(list().currentIndex().row(), everyUnit - 2);
    press(Qt::Key_PageUp);
    EXPECT_LT(list().currentIndex().row(), everyUnit - 5);
    press(Qt::Key_Home);
    press(Qt::Key_PageDown);
    press(Qt::Key_Down);
    EXPECT_GT(list().currentIndex().row(), 5);
    EXPECT_TRUE(isInSight(list().currentIndex().row()));
    press(Qt::Key_Home);
    press(Qt::Key_Up);
    EXPECT_EQ(list().currentIndex().row(), 0);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), serialNumber(1));
}

TEST_F(LongPopUpTest, TypingTheBeginningOfATitleFindsIt) {
    popUp.addItemsWithTitles(titles);
    open();
    QTest::keyClicks(&list(), "4B 58 00 00 8");
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), serialNumber(0x8000));
}

TEST_F(LongPopUpTest, AClickChoosesTheTitleBelowIt) {
    int actions = 0;
    QObject::connect(&comboBox, &QComboBox::activated, [&] { ++actions; });
    popUp.addItemsWithTitles(titles);
    open();
    list().verticalScrollBar()->setValue(30'000);
    QTest::qWait(2 * QGuiApplication::styleHints()->mouseDoubleClickInterval()); // no double click
    const QPoint place = list().visualRect(item(30'003)).center();
    EXPECT_EQ(list().indexAt(place), item(30'003));
    QTest::mouseMove(list().viewport(), place);
    QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(selected(), serialNumber(30'003));
    EXPECT_EQ(actions, 1);
}

TEST_F(LongPopUpTest, BelowTheLastTitleThereIsNothing) {
    popUp.addItemsWithTitles(std::vector(titles.begin(), titles.begin() + 100));
    open();
    list().verticalScrollBar()->setValue(list().verticalScrollBar()->maximum());
    const QRect last = list().visualRect(item(99));
    EXPECT_FALSE(list().indexAt(last.bottomLeft() + QPoint(0, 5)).isValid());
    EXPECT_FALSE(list().visualRect({}).isValid());
}

TEST_F(LongPopUpTest, AListThatIsFilledWhileItIsOpenClosesFirst) {
    popUp.addItemsWithTitles({"one", "two"});
    open();
    popUp.removeAllItems();
    popUp.addItemsWithTitles(titles);
    EXPECT_EQ(selected(), serialNumber(0));
    open();
    press(Qt::Key_End);
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), serialNumber(everyUnit - 1));
    popUp.removeAllItems();
    popUp.addItemsWithTitles({"one", "two"});
    open();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), "two");
}

TEST_F(LongPopUpTest, EqualTitlesAreReplacedInWhateverOrderTheyCome) {
    popUp.addItemsWithTitles(titles);
    popUp.selectItemAtIndex(5);
    const std::vector<std::string> backwards(titles.rbegin(), titles.rend());
    popUp.addItemsWithTitles(backwards);
    ASSERT_EQ(comboBox.count(), everyUnit);
    EXPECT_EQ(utf8Text(comboBox.itemText(0)), titles.back());
    EXPECT_EQ(utf8Text(comboBox.itemText(everyUnit - 1)), titles.front());
    EXPECT_EQ(selected(), titles[5]);
    popUp.selectItemWithTitle(titles[77]);
    EXPECT_EQ(comboBox.currentIndex(), everyUnit - 1 - 77);
    popUp.addItemsWithTitles({"", titles[77], ""});
    EXPECT_EQ(comboBox.count(), everyUnit + 1);
    EXPECT_EQ(utf8Text(comboBox.itemText(everyUnit - 1)), titles[77]);
    EXPECT_EQ(comboBox.itemText(everyUnit), "");
    EXPECT_EQ(selected(), titles[77]);
}

TEST_F(LongPopUpTest, ScrollsToATitleAsItIsTold) {
    popUp.addItemsWithTitles(titles);
    open();
    EXPECT_FALSE(list().grab().isNull());
    auto& view = dynamic_cast<UniformListView&>(list());
    view.scrollTo(item(50'000), QAbstractItemView::PositionAtCenter);
    EXPECT_TRUE(isInSight(50'000));
    view.scrollTo(item(100), QAbstractItemView::PositionAtTop);
    EXPECT_EQ(view.visualRect(item(100)).top(), 0);
    view.scrollTo(item(100), QAbstractItemView::PositionAtBottom);
    EXPECT_TRUE(isInSight(100));
    EXPECT_FALSE(isInSight(101));
}

TEST_F(LongPopUpTest, TwentyRowsFitAndShowTheirDetails) {
    popUp.setDetails([](std::string_view) { return std::vector<std::string>{"RACK"}; });
    popUp.addItemsWithTitles(titles);
    open();
    EXPECT_TRUE(isInSight(19));
    const QRect row = list().visualRect(item(3));
    const QRect behind = row.adjusted(row.width() / 2, 0, 0, 0);
    const QImage withDetails = list().viewport()->grab(behind).toImage();
    popUp.setDetails({});
    EXPECT_NE(withDetails, list().viewport()->grab(behind).toImage());
}

TEST_F(LongPopUpTest, TypingAnAddressFindsItsUnitInALongList) {
    popUp.setDetails([](std::string_view title) {
        return std::vector<std::string>{title == "4B 58 00 00 9C 40" ? "192.0.2.77" : "192.0.2.1"};
    });
    popUp.addItemsWithTitles(titles);
    open();
    QTest::keyClicks(&list(), "192.0.2.77");
    EXPECT_EQ(list().currentIndex().row(), 40'000);
}

} // namespace kx
