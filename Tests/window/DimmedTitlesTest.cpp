// Titles of units that did not answer the latest Discover: drawn fainter, and told to a screen
// reader.

#include "Looks.h"
#include "MainWindowFixture.h"
#include "platform/qt/QtPopUpButton.h"
#include "platform/qt/TitleListModel.h"

#include <QAccessible>
#include <set>

namespace kx {

namespace {

class DimmedTitlesTest : public ::testing::Test {
protected:
    DimmedTitlesTest() {
        comboBox.resize(250, 30);
        popUp.addItemsWithTitles({"one", "two", "three"});
        popUp.setDimming([this](std::string_view title) { return silent.contains(title); },
                         "Did not answer.");
    }

    void dim(std::initializer_list<std::string> titles) {
        silent = titles;
        popUp.refreshDimming();
    }

    void show() {
        comboBox.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&comboBox));
    }

    QVariant inList(int row, int role) { return comboBox.model()->index(row, 0).data(role); }

    // The text stands out by so much in the closed pop-up.
    double contrast() { return contrastOfTextIn(comboBox); }

    std::string description() {
        return QAccessible::queryAccessibleInterface(&comboBox)
            ->text(QAccessible::Description)
            .toStdString();
    }

    std::set<std::string, std::less<>> silent;
    QComboBox comboBox;
    QtPopUpButton popUp{comboBox};
};

class DimmedUnitsTest : public MainWindowTest {
protected:
    QComboBox& units() { return control<QComboBox>("unitSelectPopUp"); }
};

} // namespace

TEST_F(DimmedTitlesTest, KeepTheirTextAndHaveAForegroundAndADescriptionOfTheirOwn) {
    dim({"two"});
    EXPECT_EQ(inList(1, Qt::DisplayRole).toString(), "two");
    EXPECT_TRUE(inList(1, Qt::ForegroundRole).isValid());
    EXPECT_EQ(inList(1, Qt::AccessibleDescriptionRole).toString(), "Did not answer.");
    for (const int row : {0, 2}) {
        EXPECT_FALSE(inList(row, Qt::ForegroundRole).isValid()) << row;
        EXPECT_FALSE(inList(row, Qt::AccessibleDescriptionRole).isValid()) << row;
    }
    popUp.setDimming({}, {});
    EXPECT_FALSE(inList(1, Qt::ForegroundRole).isValid());
}

TEST_F(DimmedTitlesTest, CanBeReadOnEveryDesktop) {
    for (const Looks looks : allLooks) {
        const UsedPalette palette(looks);
        dim({"two"});
        const auto text = inList(1, Qt::ForegroundRole).value<QBrush>().color();
        const QPalette used = QApplication::palette();
        EXPECT_GE(contrastOf(text, used.color(QPalette::Base)), 4.5) << nameOf(looks);
        EXPECT_LT(contrastOf(text, used.color(QPalette::Base)),
                  contrastOf(used.color(QPalette::Text), used.color(QPalette::Base)))
            << nameOf(looks);
    }
}

TEST_F(DimmedTitlesTest, AreDimmedInTheClosedPopUpTooWhileTheyAreSelected) {
    show();
    const double usual = contrast();
    dim({"one"});
    const double dimmed = contrast();
    EXPECT_LT(dimmed, usual);
    EXPECT_GE(dimmed, 4.5);
    popUp.selectItemWithTitle("two");
    const double usualOfOther = contrast();
    EXPECT_GT(usualOfOther, dimmed) << "this one is not dimmed";
    dim({"two"});
    EXPECT_LT(contrast(), usualOfOther);
    dim({});
    EXPECT_DOUBLE_EQ(contrast(), usualOfOther);
}

TEST_F(DimmedTitlesTest, TheSelectedOneIsDescribedToAScreenReader) {
    EXPECT_EQ(description(), "");
    dim({"one", "three"});
    EXPECT_EQ(description(), "Did not answer.");
    popUp.selectItemWithTitle("two");
    EXPECT_EQ(description(), "");
    popUp.selectItemAtIndex(2);
    EXPECT_EQ(description(), "Did not answer.");
    popUp.removeAllItems();
    EXPECT_EQ(description(), "");
}

TEST_F(DimmedTitlesTest, ALongListDimsThemToo) {
    std::vector<std::string> many;
    for (int i = 0; i < 200; ++i) {
        many.push_back("unit " + std::to_string(1000 + i));
    }
    popUp.removeAllItems();
    popUp.addItemsWithTitles(many);
    dim({"unit 1150"});
    EXPECT_TRUE(inList(150, Qt::ForegroundRole).isValid());
    EXPECT_FALSE(inList(149, Qt::ForegroundRole).isValid());
    EXPECT_EQ(comboBox.style()->styleHint(QStyle::SH_ComboBox_Popup, nullptr, &comboBox), 0)
        << "it still opens as a scrolling list";
}

TEST_F(DimmedUnitsTest, AUnitThatDoesNotAnswerTheNextDiscoverIsDescribed) {
    launchWithTwoUnits();
    EXPECT_EQ(units().accessibleDescription(), "");
    click("discoverButton");
    receive(secondSampleUnit().reply());
    runLoop.advanceBy(std::chrono::seconds(2));
    EXPECT_EQ(units().currentText(), "01 02 03 04 05 06");
    EXPECT_EQ(units().accessibleDescription(), "Did not answer the latest Discover.");
    EXPECT_FALSE(units().model()->index(1, 0).data(Qt::ForegroundRole).isValid());
    units().setCurrentIndex(1);
    EXPECT_EQ(units().accessibleDescription(), "");
    units().setCurrentIndex(0);
    EXPECT_EQ(units().accessibleDescription(), "Did not answer the latest Discover.");
}

} // namespace kx
