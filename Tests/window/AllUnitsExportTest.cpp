// Export in the window of all units: both formats, hostile unit IDs, files that cannot be written.

#include "AllUnitsFixture.h"
#include "doubles/FileSizeLimit.h"
#include "files/CSV.h"

#include <nlohmann/json.hpp>

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>

namespace kx {

namespace {

class AllUnitsExport : public AllUnitsWindowTest {
protected:
    QString path(const char* name) const { return folder.filePath(name); }

    static std::string contents(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(AllUnitsExport, TheShownUnitsAreWrittenWithTheColumnsOfTheCommandLine) {
    hearFour();
    open();
    table().sortByColumn(0, Qt::DescendingOrder);
    typeFilter("used twice");
    table().setColumnShown(UnitColumn::internalIPAddress, false);
    window.exportTo(path("units.csv"), AllUnitsWindow::FileFormat::csv);
    const auto records = csvRecords(contents(path("units.csv")));
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[0], (std::vector<std::string>{
                              "serial", "unit-id", "internal-ip", "internal-mac", "destination-ip",
                              "destination-mac", "destination-port", "device-port", "unit_id_bytes",
                              "source_ip", "interface", "answered_ms"}));
    EXPECT_EQ(records[1][0], sampleSerial(3));
    EXPECT_EQ(records[2][2], "192.0.2.2");
    EXPECT_EQ(records[2][10], "eth2");
    EXPECT_EQ(note(), "2 units are written to “units.csv”.");
}

TEST_F(AllUnitsExport, HostileUnitIDsAreReadBackAsTheyWere) {
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
    EXPECT_EQ(records[2][1], ""); // a spreadsheet would compute it
    EXPECT_EQ(json["units"][1]["unit_id"], "=1+2-3");
}

TEST_F(AllUnitsExport, AFileThatCannotBeWrittenIsToldAndTheOldOneStays) {
    hearFour();
    open();
    EXPECT_EQ(note(), "(hidden)");
    window.exportTo("/nowhere/units.csv", AllUnitsWindow::FileFormat::csv);
    EXPECT_EQ(note(), "“units.csv” cannot be written: No such file or directory.");
}

TEST_F(AllUnitsExport, AFileThatDoesNotFitOnTheDiskLeavesTheOldOneAndNoOther) {
    hearFour();
    open();
    QFile old(path("units.csv"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    const FileSizeLimit limit(100);
    window.exportTo(path("units.csv"), AllUnitsWindow::FileFormat::csv);
    EXPECT_TRUE(note().ends_with("cannot be written: File too large.")) << note();
    EXPECT_EQ(contents(path("units.csv")), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(AllUnitsExport, ADeviceIsNotReplaced) {
    hearFour();
    open();
    window.exportTo("/dev/full", AllUnitsWindow::FileFormat::csv);
    EXPECT_TRUE(note().starts_with("“full” cannot be written: ")) << note();
}

TEST_F(AllUnitsExport, TheDialogOffersBothFormatsAndDoesNotStopTheWindow) {
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
