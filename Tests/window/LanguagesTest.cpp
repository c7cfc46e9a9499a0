// The window in every language: each text comes from the catalogues, none is cut off, and all of it
// fits the screen. Runs at 100 % and at 150 %, on a screen for each.

#include "InLanguage.h"
#include "MainWindowFixture.h"
#include "doubles/MarkedLocalizedText.h"
#include "platform/qt/FindBar.h"
#include "platform/qt/HelpViewer.h"
#include "platform/qt/ParameterTableView.h"
#include "words/DiscoveryLine.h"

#include <QApplication>
#include <QDir>
#include <QHeaderView>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QToolButton>
#include <algorithm>

namespace kx {

namespace {

// The height that a desktop takes from the screen for its panel and for the window's title.
constexpr int heightOfDesktop = 72;

constexpr QSize leastScreen(1280, 720);

const std::vector<std::string> languages{"en", "de", "es", "fr", "ja"};

std::string describe(const QWidget& widget) {
    return (widget.objectName() + ' ' + widget.metaObject()->className()).toStdString();
}

void expectRoomForItself(const QWidget& widget) {
    EXPECT_GE(widget.width(), widget.sizeHint().width()) << describe(widget);
    EXPECT_GE(widget.height(), widget.sizeHint().height()) << describe(widget);
}

// A letter with a mnemonic mark is drawn by itself, without the kerning of the measured whole text.
void expectRoomForPieces(const QLabel& label) {
    const QString text = label.text();
    const auto mark = text.indexOf('&');
    if (mark >= 0) {
        const QFontMetrics metrics = label.fontMetrics();
        EXPECT_GE(label.width(), metrics.horizontalAdvance(text.left(mark)) +
                                     metrics.horizontalAdvance(text.mid(mark + 1, 1)) +
                                     metrics.horizontalAdvance(text.mid(mark + 2)))
            << text.toStdString();
    }
}

void expectRoomForText(const QComboBox& popUp, const QString& text) {
    QStyleOptionComboBox option;
    option.initFrom(&popUp);
    const int room =
        popUp.style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &popUp)
            .width();
    EXPECT_GE(room, popUp.fontMetrics().horizontalAdvance(text))
        << describe(popUp) << ": " << text.toStdString();
}

void expectRoomForTexts(const QComboBox& popUp) {
    expectRoomForText(popUp, popUp.placeholderText());
    for (int index = 0; index < popUp.count(); ++index) {
        expectRoomForText(popUp, popUp.itemText(index));
    }
}

void expectRoomForCells(const QTableView& table) {
    EXPECT_EQ(table.horizontalScrollBar()->maximum(), 0) << describe(table);
    EXPECT_GE(table.columnWidth(0), table.horizontalHeader()->sectionSizeHint(0));
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        for (int column = 0; column < table.model()->columnCount(); ++column) {
            const QModelIndex cell = table.model()->index(row, column);
            const QSize wanted = table.sizeHintForIndex(cell);
            EXPECT_GE(table.columnWidth(column), wanted.width()) << describe(table) << row;
            EXPECT_GE(table.rowHeight(row), wanted.height()) << describe(table) << row;
        }
    }
}

void expectRoomForPlaceholder(const ParameterTableView& table) {
    const QRect room = table.viewport()->rect();
    const QRect wanted = table.fontMetrics().boundingRect(
        room, static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap, table.placeholderText());
    EXPECT_TRUE(room.contains(wanted)) << table.placeholderText().toStdString();
}

// Checks everything in a window that shows text and cannot scroll.
void expectRoomForEverything(const QWidget& window) {
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->wordWrap()) {
            expectRoomForItself(*label);
            expectRoomForPieces(*label);
        }
    }
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && !button->text().isEmpty()) {
            expectRoomForItself(*button);
        }
    }
    for (const auto* popUp : window.findChildren<QComboBox*>()) {
        expectRoomForTexts(*popUp);
    }
    for (const auto* table : window.findChildren<ParameterTableView*>()) {
        expectRoomForPlaceholder(*table);
    }
}

bool isMarked(const QString& text) {
    return text.isEmpty() || text.contains('<');
}

void expectMarked(const QString& text, const QObject& object) {
    EXPECT_TRUE(isMarked(text)) << object.objectName().toStdString() << ": " << text.toStdString();
}

} // namespace

class WithMarkedTexts {
private:
    MarkedLocalizedText _texts;
};

class EveryTextTest : private WithMarkedTexts, public MainWindowTest {};

class LanguagesTest : public ::testing::WithParamInterface<std::string>,
                      private InLanguage,
                      public MainWindowTest {
public:
    LanguagesTest()
        : InLanguage(GetParam()) {}

protected:
    // Saves a picture when KX_PICTURES names a folder.
    void takePicture(QWidget& widget, const char* name) const {
        const QString folder = qEnvironmentVariable("KX_PICTURES");
        if (!folder.isEmpty()) {
            const QString scale = QString::number(widget.devicePixelRatioF() * 100);
            const QString file = language() + '-' + scale + '-' + name + ".png";
            ASSERT_TRUE(QDir().mkpath(folder));
            ASSERT_TRUE(widget.grab().save(QDir(folder).filePath(file)));
        }
    }

    QSize roomOfDesktop() const { return window.screen()->size() - QSize(0, heightOfDesktop); }

    // The content needs no scroll bar, and the window fits into the given room.
    void expectInSight(QSize room) {
        EXPECT_LE(window.width(), room.width());
        EXPECT_LE(window.height(), room.height());
        const auto& area = control<QScrollArea>("contentArea");
        EXPECT_EQ(area.verticalScrollBar()->maximum(), 0);
        EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0);
    }
};

TEST_F(EveryTextTest, ThatTheWindowShowsIsLookedUp) {
    launchWithTwoUnits();
    clickCell("unitParameterTableView", 3, 0);
    for (const auto* label : window.findChildren<QLabel*>()) {
        expectMarked(label->text(), *label);
    }
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        expectMarked(button->text(), *button);
        expectMarked(button->toolTip(), *button);
    }
    for (const auto* action : window.findChildren<QAction*>()) {
        const bool isOfTheWindow = !action->objectName().startsWith('_'); // Qt's own names begin so
        expectMarked(isOfTheWindow ? action->text() : QString(), *action);
    }
    for (const auto* menu : window.findChildren<QMenu*>()) {
        expectMarked(menu->title(), *menu);
    }
    for (const auto* popUp : window.findChildren<QComboBox*>()) {
        expectMarked(popUp->placeholderText(), *popUp);
    }
    for (const auto* widget : window.findChildren<QWidget*>()) {
        expectMarked(widget->accessibleName(), *widget);
    }
    for (const auto* table : window.findChildren<ParameterTableView*>()) {
        expectMarked(table->placeholderText(), *table);
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            expectMarked(table->model()->headerData(column, Qt::Horizontal).toString(), *table);
        }
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            expectMarked(table->model()->index(row, 0).data().toString(), *table);
        }
    }
    expectMarked(control<QComboBox>("optionCommandPopUp").itemText(0), window);
}

TEST_F(EveryTextTest, OfTheEventLogIsLookedUp) {
    launchWithTwoUnits();
    for (const QString& line : QString::fromStdString(controller.eventLog()).split('\n')) {
        expectMarked(line.contains("0.0.0.0") ? QString() : line, window); // 0.0.0.0: no words
    }
}

TEST_F(EveryTextTest, OfTheAboutBoxAndTheHelpViewerIsLookedUp) {
    launch();
    control<QAction>("aboutAction").trigger();
    const auto& box = control<QMessageBox>("aboutBox");
    expectMarked(box.windowTitle(), box);
    expectMarked(box.text(), box);
    for (const QString& line : box.informativeText().split('\n')) {
        expectMarked(line, box);
    }
    const HelpViewer viewer{QString()};
    for (const auto* button : viewer.findChildren<QPushButton*>()) {
        expectMarked(button->text(), *button);
    }
    expectMarked(viewer.findChild<QTextBrowser*>()->accessibleName(), viewer);
}

TEST_P(LanguagesTest, BeforeAUnitAnsweredNothingIsCutOff) {
    launch();
    expectRoomForEverything(window);
    expectInSight(roomOfDesktop());
    takePicture(window, "empty");
}

TEST_P(LanguagesTest, WithAUnitNothingIsCutOffAndEveryParameterIsInSight) {
    launchWithTwoUnits();
    clickCell("unitParameterTableView", 3, 0);
    expectRoomForEverything(window);
    expectRoomForCells(control<QTableView>("unitParameterTableView"));
    expectRoomForCells(control<QTableView>("editParameterTableView"));
    EXPECT_EQ(control<QTableView>("unitParameterTableView").verticalScrollBar()->maximum(), 0);
    expectInSight(roomOfDesktop());
    takePicture(window, "unit");
}

TEST_P(LanguagesTest, TheLongestNoteHasRoom) {
    launchWithTwoUnits();
    auto& line = control<QLabel>("quietLine");
    line.setText(QString::fromStdString(
        warningOfTarget({.reach = RequestReach::everybodyWithoutAddress}) + ' ' +
        localizedText("Apply asks for administrator rights, but no MAC address is known for an "
                      "ARP entry.") +
        ' ' + localizedText("No unit is selected.") + ' ' +
        localizedText("Apply sends %@ to 0.0.0.0, because “%@” is not an IPv4 address.",
                      {"^^IdI00000000", std::string(32, 'w')})));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return line.height() >= line.heightForWidth(line.width()); }));
    expectRoomForEverything(window);
    takePicture(window, "note");
}

TEST_P(LanguagesTest, WithTheEventLogAndTheFindBarNothingIsCutOff) {
    launchWithTwoUnits();
    click("logDrawerButton");
    ASSERT_TRUE(drawerComesToRest());
    control<QAction>("findAction").trigger();
    for (const char* key : {"From the beginning", "From the end", "Not found"}) {
        const std::string count = " – " + localizedText("%d matches or more", {1000LL});
        control<QLabel>("logFindResult")
            .setText(QString::fromStdString(localizedText(key) + count));
        QTest::qWait(1);
        expectRoomForEverything(window);
    }
    expectInSight(window.screen()->availableSize());
    takePicture(window, "log");
}

TEST_P(LanguagesTest, AtTheSmallestWidthNothingIsCutOff) {
    launchWithTwoUnits();
    window.resize(1, window.height());
    QTest::qWait(10);
    expectRoomForEverything(window);
    EXPECT_EQ(control<QScrollArea>("contentArea").horizontalScrollBar()->maximum(), 0);
    EXPECT_LE(window.width(), leastScreen.width() / 2);
    takePicture(window, "small");
}

TEST_P(LanguagesTest, NothingMovesWhileAnAddressIsTyped) {
    launchWithTwoUnits();
    clickCell("unitParameterTableView", static_cast<int>(UnitParameter::internalIPAddress), 1);
    const auto placeOf = [this](const char* name) { return control<QWidget>(name).geometry(); };
    const QRect applyBefore = placeOf("applyButton");
    const QRect sendBefore = placeOf("sendOptionButton");
    std::string typed;
    for (const char each : std::string_view("192.168.1.211x")) {
        typed += each;
        controller.editTextDidChange(typed);
        QTest::qWait(1);
        EXPECT_EQ(placeOf("applyButton"), applyBefore) << quietLine();
        EXPECT_EQ(placeOf("sendOptionButton"), sendBefore) << quietLine();
    }
    for (const char* address : {"192.168.1.11", "10.0.0.7", "192.168.1.20", "192.168.1.255"}) {
        controller.editTextDidChange(address);
        QTest::qWait(1);
        EXPECT_EQ(placeOf("applyButton"), applyBefore) << quietLine();
        takePicture(window, address);
    }
}

TEST_P(LanguagesTest, NothingMovesWhenTheHolderOfAnAddressIsSaidAndReturnIsPressed) {
    launchWithTwoUnits();
    receive(SampleUnit().reply(), 2);
    clickCell("unitParameterTableView", static_cast<int>(UnitParameter::internalIPAddress), 1);
    const QRect applyBefore = control<QWidget>("applyButton").geometry();
    neighbours.entries[ipForString("192.168.1.211")] = {.state = NeighbourState::reachable,
                                                        .hardwareAddress = "00:1A:2B:3C:4D:5F"};
    controller.editTextDidChange("192.168.1.211");
    runLoop.advanceBy(std::chrono::milliseconds(550));
    const auto expectHolder = [&](const char* what) {
        QTest::qWait(1);
        EXPECT_NE(quietLine().find("00:1A:2B:3C:4D:5F"), std::string::npos) << quietLine();
        EXPECT_EQ(control<QWidget>("applyButton").geometry(), applyBefore) << quietLine();
        takePicture(window, what);
    };
    expectHolder("held");
    controller.editTextWasKept();
    expectHolder("held-and-return");
}

TEST_P(LanguagesTest, NothingMovesWhenNobodyAnswersWithoutAnInterface) {
    launchWithTwoUnits();
    const QRect unitsBefore = control<QWidget>("unitSelectPopUp").geometry();
    DiscoveryFacts facts;
    facts.asked = Everybody{.address = limitedBroadcastAddress};
    facts.listed = 200;
    facts.cause = localizedText("The request left, and nothing came back.");
    window.outlets().discoveryLine->setMeansTrouble(true);
    window.outlets().discoveryLine->setStringValue(discoveryLine(facts));
    QTest::qWait(1);
    EXPECT_EQ(control<QWidget>("unitSelectPopUp").geometry(), unitsBefore) << discoveryLine(facts);
    takePicture(window, "nobody");
}

TEST_P(LanguagesTest, TheMenusFitTheScreen) {
    launch();
    EXPECT_GE(window.width(), window.menuBar()->sizeHint().width());
    for (const QAction* action : window.menuBar()->actions()) {
        EXPECT_LE(action->menu()->sizeHint().width(), leastScreen.width() / 2);
    }
}

TEST_P(LanguagesTest, TheHelpViewerAndTheAboutBoxCutNothingOff) {
    launch();
    HelpViewer viewer{QString()};
    viewer.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&viewer));
    expectRoomForEverything(viewer);
    control<QAction>("aboutAction").trigger();
    auto& box = control<QMessageBox>("aboutBox");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&box));
    expectRoomForEverything(box);
    takePicture(box, "about");
}

INSTANTIATE_TEST_SUITE_P(Every, LanguagesTest, ::testing::ValuesIn(languages),
                         [](const auto& each) { return each.param; });

} // namespace kx
