// The names by which a person, a screen reader and a test from outside find the controls.

#include "MainWindowFixture.h"

#include <QAccessible>
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <map>

namespace kx {

namespace {

std::string accessibleName(QWidget& widget) {
    const QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(&widget);
    return interface != nullptr ? interface->text(QAccessible::Name).toStdString() : "(none)";
}

// The text of the visible label that a screen reader reads before the control.
std::string labelOf(QWidget& widget) {
    QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(&widget);
    for (const auto& [related, relation] : interface->relations(QAccessible::Label)) {
        if (!related->state().invisible) {
            return related->text(QAccessible::Name).toStdString();
        }
    }
    return "(none)";
}

} // namespace

TEST_F(MainWindowTest, PopUpsAndFieldsHaveAVisibleLabelAsTheirName) {
    launch();
    const std::map<const char*, std::string> labels = {
        {"interfacePopUp", "Network interface:"},
        {"udpPortPopUp", "UDP port:"},
        {"unitSelectPopUp", "Unit:"},
        {"unitIDField", "Unit ID:"},
        {"optionCommandPopUp", "Option command:"},
        {"optionCommandField", "Command text:"},
    };
    for (const auto& [objectName, label] : labels) {
        EXPECT_EQ(labelOf(control<QWidget>(objectName)), label) << objectName;
    }
}

TEST_F(MainWindowTest, TablesAndTheLogHaveAnAccessibleName) {
    EXPECT_EQ(accessibleName(control<QTableView>("unitParameterTableView")), "Unit parameters");
    EXPECT_EQ(accessibleName(control<QTableView>("editParameterTableView")), "Edit parameter");
    EXPECT_EQ(accessibleName(control<LogTextView>("logTextView")), "Event log text");
}

TEST_F(MainWindowTest, ButtonsAreNamedByTheirText) {
    const std::map<const char*, std::string> texts = {
        {"discoverButton", "Discover"},
        {"reloadButton", "Reload"},
        {"applyButton", "Apply"},
        {"sendOptionButton", "Send"},
        {"restoreButton", "Restore Defaults"},
        {"logDrawerButton", "Event Log"},
        {"helpButton", "Help"},
    };
    for (const auto& [objectName, text] : texts) {
        auto& button = control<QPushButton>(objectName);
        EXPECT_EQ(button.text().toStdString(), text);
        EXPECT_EQ(accessibleName(button), text);
    }
}

TEST_F(MainWindowTest, TheDrawerHoldsTheLogInItsScrollView) {
    const auto& drawer = control<QWidget>("eventLogDrawer");
    const auto& scrollView = control<QWidget>("logScrollView");
    EXPECT_TRUE(drawer.isAncestorOf(&scrollView));
    EXPECT_TRUE(scrollView.isAncestorOf(&control<LogTextView>("logTextView")));
}

TEST_F(MainWindowTest, PortsAndOptionsAreThoseOfTheInterfaceDescription) {
    launch();
    const auto titles = [&](const char* popUp) {
        const auto& comboBox = control<QComboBox>(popUp);
        QStringList result;
        for (int index = 0; index < comboBox.count(); ++index) {
            result.append(comboBox.itemText(index));
        }
        return result.join(", ").toStdString();
    };
    EXPECT_EQ(titles("udpPortPopUp"), "3520, 3521, 3522, 3523");
    EXPECT_EQ(selected("udpPortPopUp"), "3520");
    EXPECT_EQ(titles("optionCommandPopUp"), "V  Version, -Z  Set clock");
}

TEST_F(MainWindowTest, TablesHaveTheColumnsParameterAndValue) {
    launchWithTwoUnits();
    for (const char* table : {"unitParameterTableView", "editParameterTableView"}) {
        const auto* const model = control<QTableView>(table).model();
        ASSERT_EQ(model->columnCount(), 2) << table;
        EXPECT_EQ(model->headerData(0, Qt::Horizontal).toString(), "Parameter");
        EXPECT_EQ(model->headerData(1, Qt::Horizontal).toString(), "Value");
    }
    EXPECT_EQ(control<QTableView>("editParameterTableView").model()->rowCount(), 1);
}

TEST_F(MainWindowTest, TheColumnsOfBothTablesStayInLine) {
    launchWithTwoUnits();
    auto& parameters = control<QTableView>("unitParameterTableView");
    auto& editRow = control<QTableView>("editParameterTableView");
    const auto valueEdge = [&](const QTableView& table) {
        return table.viewport()->mapTo(&window, QPoint(table.columnViewportPosition(1), 0)).x();
    };
    EXPECT_EQ(valueEdge(parameters), valueEdge(editRow));
    parameters.setColumnWidth(0, 120);
    EXPECT_EQ(valueEdge(parameters), valueEdge(editRow));
}

TEST_F(MainWindowTest, DiscoverIsTheDefaultButton) {
    EXPECT_TRUE(control<QPushButton>("discoverButton").isDefault());
}

TEST_F(MainWindowTest, EveryMenuItemButAboutHasAShortcutOfItsOwn) {
    std::map<QString, QString> itemOfShortcut;
    int items = 0;
    for (const QAction* menu : window.menuBar()->actions()) {
        for (const QAction* item : menu->menu()->actions()) {
            if (!item->isSeparator() && item->menuRole() != QAction::AboutRole) {
                ++items;
                const QString shortcut = item->shortcut().toString();
                EXPECT_FALSE(shortcut.isEmpty()) << qPrintable(item->text());
                itemOfShortcut[shortcut] = item->text();
            }
        }
    }
    EXPECT_EQ(items, 22);
    EXPECT_EQ(static_cast<int>(itemOfShortcut.size()), items);
}

} // namespace kx
