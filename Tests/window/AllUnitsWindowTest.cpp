// The window of all units: what it shows, says, copies and exports.

#include "AllUnitsFixture.h"
#include "ScreenReader.h"
#include "files/CSV.h"

#include <nlohmann/json.hpp>
#include <sys/resource.h>

#include <QAccessible>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QGuiApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <csignal>

namespace kx {

namespace {

using Texts = std::vector<std::string>;

class AllUnitsWindowExport : public AllUnitsWindowTest {
protected:
    QString path(const char* name) const { return folder.filePath(name); }

    static std::string contents(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
    }

    QTemporaryDir folder;
};

// No file can grow beyond some bytes meanwhile, as if the disk were full.
class NoRoomForFiles {
public:
    NoRoomForFiles()
        : _signal(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &_before);
        rlimit little = _before;
        little.rlim_cur = 100;
        ::setrlimit(RLIMIT_FSIZE, &little);
    }
    ~NoRoomForFiles() {
        ::setrlimit(RLIMIT_FSIZE, &_before);
        std::signal(SIGXFSZ, _signal);
    }
    NoRoomForFiles(const NoRoomForFiles&) = delete;
    NoRoomForFiles& operator=(const NoRoomForFiles&) = delete;

private:
    rlimit _before{};
    void (*_signal)(int);
};

std::string clipboard() {
    return utf8Text(QGuiApplication::clipboard()->text());
}

} // namespace

// --- Rows ---

TEST_F(AllUnitsWindowTest, WithoutUnitsItSaysWhatToDo) {
    open();
    EXPECT_EQ(count(), "");
    EXPECT_EQ(utf8Text(table().placeholderText()),
              "No unit has answered yet. Press Discover in the main window.");
    EXPECT_EQ(table().accessibleDescription(), table().placeholderText());
    EXPECT_FALSE(control<QPushButton>("allUnitsExportButton").isEnabled());
}

TEST_F(AllUnitsWindowTest, EveryUnitIsARowWithItsStateInWords) {
    hearFour();
    open();
    EXPECT_EQ(count(), "4 units");
    EXPECT_EQ(column(UnitColumn::serialNumber),
              (Texts{sampleSerial(1), sampleSerial(2), sampleSerial(3), sampleSerial(4)}));
    EXPECT_EQ(column(UnitColumn::state),
              (Texts{"Answered", "⚠ Address used twice", "⚠ Address used twice", "○ No answer"}));
    EXPECT_EQ(text(0, UnitColumn::interface), "eth2");
}

TEST_F(AllUnitsWindowTest, UnitsThatAnswerWhileItIsOpenComeIn) {
    hear(heardUnit(1));
    open();
    EXPECT_EQ(count(), "1 unit");
    hear(heardUnit(3));
    hear(heardUnit(2));
    settle();
    EXPECT_EQ(column(UnitColumn::serialNumber),
              (Texts{sampleSerial(1), sampleSerial(2), sampleSerial(3)}));
    EXPECT_EQ(count(), "3 units");
}

TEST_F(AllUnitsWindowTest, UnitsThatAnswerWhileItIsClosedAreThereWhenItOpensAgain) {
    hear(heardUnit(1));
    open();
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    hear(heardUnit(2));
    table().sortByColumn(0, Qt::DescendingOrder);
    QTest::qWait(200);
    EXPECT_EQ(model().rowCount(), 1) << "a hidden window does no work";
    open();
    EXPECT_EQ(model().rowCount(), 2);
}

TEST_F(AllUnitsWindowTest, TheTimeOfTheLatestAnswerHasADateOnAnotherDay) {
    now = QDateTime::currentDateTime().toMSecsSinceEpoch();
    hear(heardUnit(1));
    now -= 86'400'000;
    hear(heardUnit(2));
    open();
    EXPECT_EQ(text(0, UnitColumn::lastHeard).size(), std::string("14:03:22").size());
    EXPECT_EQ(text(1, UnitColumn::lastHeard).size(), std::string("2026-11-22 14:03:22").size());
}

TEST_F(AllUnitsWindowTest, AForeignUnitIDCannotActInTheTable) {
    HeardUnit unit = heardUnit(1);
    setUnitID(unit, {'a', '\n', '\t', 0x1B, 'b', 0});
    hear(unit);
    open();
    EXPECT_EQ(text(0, UnitColumn::unitID), "a\uFFFD\uFFFD\uFFFDb");
}

TEST_F(AllUnitsWindowTest, UnitsThatAreClearedMeanwhileLeaveEmptyRowsUntilTheyGo) {
    hearFour();
    open();
    units.clear();
    EXPECT_EQ(text(0, UnitColumn::serialNumber), "");
    table().grab();
    settle();
    EXPECT_EQ(model().rowCount(), 0);
}

TEST_F(AllUnitsWindowTest, SelectedRowsStaySelectedWhileOthersComeAndGo) {
    for (const int number : {2, 4, 6}) {
        hear(heardUnit(static_cast<std::uint32_t>(number)));
    }
    open();
    select(1);
    for (const int number : {1, 3, 5}) {
        hear(heardUnit(static_cast<std::uint32_t>(number)));
    }
    settle();
    const auto selected = [this] {
        Texts serials;
        for (const QModelIndex& index : table().selectionModel()->selectedRows()) {
            serials.push_back(text(index.row(), UnitColumn::serialNumber));
        }
        return serials;
    };
    EXPECT_EQ(selected(), (Texts{sampleSerial(4)}));
    EXPECT_EQ(table().currentIndex().row(), 3);
    table().sortByColumn(0, Qt::DescendingOrder);
    settle();
    EXPECT_EQ(selected(), (Texts{sampleSerial(4)}));
    typeFilter("4B5800000004");
    EXPECT_EQ(selected(), (Texts{sampleSerial(4)}));
    typeFilter("4B5800000005");
    EXPECT_EQ(selected(), Texts{});
}

// --- Filter and keys ---

TEST_F(AllUnitsWindowTest, TheFilterHidesAndTheCountSaysSo) {
    hearFour();
    open();
    type("used twice");
    settle();
    EXPECT_EQ(count(), "4 units, 2 shown");
    typeFilter("nowhere");
    EXPECT_EQ(count(), "4 units, 0 shown");
    EXPECT_EQ(utf8Text(table().placeholderText()), "No unit contains the text of the filter.");
    EXPECT_FALSE(control<QPushButton>("allUnitsExportButton").isEnabled());
}

TEST_F(AllUnitsWindowTest, EscapeTakesTheFilterAwayAndThenTheWindow) {
    hearFour();
    open();
    typeFilter("4B5800000001");
    press(Qt::Key_Escape);
    settle();
    EXPECT_EQ(filter().text(), "");
    EXPECT_EQ(model().rowCount(), 4);
    EXPECT_TRUE(window.isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(AllUnitsWindowTest, TypingInTheTableGoesToTheFilter) {
    hearFour();
    open();
    filter().setText("0");
    table().setFocus();
    type("4");
    settle();
    EXPECT_TRUE(filter().hasFocus());
    EXPECT_EQ(filter().text(), "04");
    table().setFocus();
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(filter().hasFocus());
    EXPECT_EQ(filter().selectedText(), "04");
}

TEST_F(AllUnitsWindowTest, TheKeyboardLeadsFromTheFilterToAUnit) {
    hearFour();
    open();
    EXPECT_TRUE(filter().hasFocus());
    press(Qt::Key_Return);
    EXPECT_TRUE(table().hasFocus());
    EXPECT_EQ(table().selectionModel()->selectedRows().value(0).row(), 0);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(picked, (Texts{sampleSerial(2)}));
    press(Qt::Key_Tab);
    EXPECT_TRUE(control<QPushButton>("allUnitsExportButton").hasFocus());
    press(Qt::Key_Backtab);
    press(Qt::Key_Backtab);
    EXPECT_TRUE(control<QPushButton>("allUnitsColumnsButton").hasFocus());
}

TEST_F(AllUnitsWindowTest, ADoubleClickPicksItsUnit) {
    hearFour();
    open();
    const QPoint place = table().visualRect(cell(2, UnitColumn::internalIPAddress)).center();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(picked, (Texts{sampleSerial(3)}));
    control<QAction>("showUnitAction").trigger();
    EXPECT_EQ(picked, (Texts{sampleSerial(3), sampleSerial(3)}));
}

TEST_F(AllUnitsWindowTest, HelpOpensItsOwnPage) {
    open();
    press(Qt::Key_F1);
    QTest::mouseClick(&control<QPushButton>("allUnitsHelpButton"), Qt::LeftButton);
    EXPECT_EQ(helpPages, (Texts{"all-units", "all-units"}));
}

// --- A screen reader ---

TEST_F(AllUnitsWindowTest, AScreenReaderHearsHeadsValuesAndWhatIsWrong) {
    hearFour();
    open();
    EXPECT_EQ(table().accessibleName(), "All Units");
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&table());
    QAccessibleTableInterface* const cells = accessible->tableInterface();
    ASSERT_NE(cells, nullptr);
    const auto destination = static_cast<int>(UnitColumn::destinationMACAddress);
    EXPECT_EQ(utf8Text(cells->columnDescription(destination).replace('\n', ' ')),
              "Destination MAC address");
    const auto of = [&](int row, UnitColumn column, QAccessible::Text kind) {
        return utf8Text(cells->cellAt(row, static_cast<int>(column))->text(kind));
    };
    EXPECT_EQ(of(1, UnitColumn::state, QAccessible::Name), "Address used twice");
    EXPECT_EQ(of(1, UnitColumn::internalIPAddress, QAccessible::Description),
              "The unit 4B 58 00 00 00 03 has the address 192.0.2.2, too.");
    EXPECT_EQ(of(3, UnitColumn::state, QAccessible::Name), "No answer");
    EXPECT_EQ(of(3, UnitColumn::state, QAccessible::Description),
              "It did not answer the latest Discover.");
}

TEST_F(AllUnitsWindowTest, TheCountIsANotification) {
    hearFour();
    open();
    QAccessibleInterface* const accessible =
        QAccessible::queryAccessibleInterface(&control<QLabel>("allUnitsCount"));
    EXPECT_EQ(accessible->role(), QAccessible::Notification);
    EXPECT_EQ(accessible->text(QAccessible::Name), "4 units");
}

// --- Copying ---

TEST_F(AllUnitsWindowTest, SeveralRowsAreCopiedAsATable) {
    hearFour();
    open();
    for (const UnitColumn column : table().shownColumns()) {
        const bool isWanted = column == UnitColumn::serialNumber || column == UnitColumn::state;
        table().setColumnShown(column, isWanted);
    }
    table().setFocus();
    select(0);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "Serial number\tState\n"
                           "4B 58 00 00 00 01\tAnswered\n"
                           "4B 58 00 00 00 02\t⚠ Address used twice\n");
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(clipboard(), "4B 58 00 00 00 02");
}

TEST_F(AllUnitsWindowTest, AForeignUnitIDCannotForgeACopiedCell) {
    HeardUnit unit = heardUnit(1);
    setUnitID(unit, {'a', '\n', 'b', '\t', 'c', 0});
    hear(unit);
    open();
    select(0);
    control<QAction>("copyRowsAction").trigger();
    EXPECT_EQ(std::ranges::count(clipboard(), '\n'), 2);
    EXPECT_EQ(std::ranges::count(clipboard(), '\t'), 2 * (static_cast<int>(unitColumnCount) - 1));
}

TEST_F(AllUnitsWindowTest, WithoutASelectionTheClipboardStays) {
    hearFour();
    open();
    QGuiApplication::clipboard()->setText("before");
    control<QAction>("copyRowsAction").trigger();
    control<QAction>("copyCellAction").trigger();
    EXPECT_EQ(clipboard(), "before");
}

// --- Export ---

TEST_F(AllUnitsWindowExport, TheShownUnitsAreWrittenWithTheColumnsOfTheCommandLine) {
    hearFour();
    open();
    table().sortByColumn(0, Qt::DescendingOrder);
    typeFilter("used twice");
    table().setColumnShown(UnitColumn::internalIPAddress, false);
    window.exportTo(path("units.csv"), AllUnitsWindow::FileFormat::csv);
    const auto records = csvRecords(contents(path("units.csv")));
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[0],
              (Texts{"serial", "unit-id", "internal-ip", "internal-mac", "destination-ip",
                     "destination-mac", "destination-port", "device-port", "unit_id_bytes",
                     "source_ip", "interface", "answered_ms"}));
    EXPECT_EQ(records[1][0], sampleSerial(3));
    EXPECT_EQ(records[2][2], "192.0.2.2");
    EXPECT_EQ(records[2][10], "eth2");
    EXPECT_EQ(note(), "2 units are written to “units.csv”.");
}

TEST_F(AllUnitsWindowExport, HostileUnitIDsAreReadBackAsTheyWere) {
    const std::vector<UnitIDBytes> ids{
        {'a', ',', '"', '\n', '\r', 'b'}, {'=', '1', '+', '2', '-', '3'}, {0xFF, 1, 2, 3, 4, 5},
        {' ', 'a', ' ', 0, 0, 0},         {0xE2, 0x80, 0xAE, 'x', 0, 0},  {0, 0, 0, 0, 0, 0}};
    std::uint32_t number = 0;
    for (const UnitIDBytes& id : ids) {
        HeardUnit unit = heardUnit(++number);
        setUnitID(unit, id);
        hear(unit);
    }
    open();
    window.exportTo(path("units.csv"), AllUnitsWindow::FileFormat::csv);
    window.exportTo(path("units.json"), AllUnitsWindow::FileFormat::json);
    const auto records = csvRecords(contents(path("units.csv")));
    const auto json = nlohmann::json::parse(contents(path("units.json")));
    ASSERT_EQ(records.size(), ids.size() + 1);
    ASSERT_EQ(json["units"].size(), ids.size());
    for (std::size_t i = 0; i < ids.size(); ++i) {
        EXPECT_EQ(records[i + 1].size(), records[0].size());
        EXPECT_EQ(records[i + 1][0], sampleSerial(static_cast<std::uint32_t>(i + 1)));
        EXPECT_EQ(records[i + 1][8], textOfSixBytes(numberOfUnitID(ids[i]), ""));
        EXPECT_EQ(json["units"][i]["unit_id_bytes"], records[i + 1][8]);
        EXPECT_EQ(json["units"][i]["device_port"], 10000);
    }
    EXPECT_EQ(records[2][1], "=1+2-3");
}

TEST_F(AllUnitsWindowExport, AFileThatCannotBeWrittenIsToldAndTheOldOneStays) {
    hearFour();
    open();
    EXPECT_EQ(note(), "(hidden)");
    window.exportTo("/nowhere/units.csv", AllUnitsWindow::FileFormat::csv);
    EXPECT_EQ(note(), "“units.csv” cannot be written: No such file or directory.");
}

TEST_F(AllUnitsWindowExport, AFileThatDoesNotFitOnTheDiskLeavesTheOldOneAndNoOther) {
    hearFour();
    open();
    QFile old(path("units.csv"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    const NoRoomForFiles noRoom;
    window.exportTo(path("units.csv"), AllUnitsWindow::FileFormat::csv);
    EXPECT_TRUE(note().ends_with("cannot be written: File too large.")) << note();
    EXPECT_EQ(contents(path("units.csv")), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(AllUnitsWindowExport, ADeviceIsNotReplaced) {
    hearFour();
    open();
    window.exportTo("/dev/full", AllUnitsWindow::FileFormat::csv);
    EXPECT_TRUE(note().starts_with("“full” cannot be written: ")) << note();
}

TEST_F(AllUnitsWindowExport, TheDialogOffersBothFormatsAndDoesNotStopTheWindow) {
    hearFour();
    open();
    press(Qt::Key_E, Qt::ControlModifier);
    auto* const dialog = window.findChild<QFileDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->nameFilters().size(), 2);
    EXPECT_EQ(dialog->defaultSuffix(), "csv");
    emit dialog->filterSelected(dialog->nameFilters().last());
    EXPECT_EQ(dialog->defaultSuffix(), "json");
    emit dialog->fileSelected(path("units.json"));
    EXPECT_EQ(nlohmann::json::parse(contents(path("units.json")))["units"].size(), 4U);
    hear(heardUnit(9));
    settle();
    EXPECT_EQ(model().rowCount(), 5);
    dialog->close();
}

} // namespace kx
