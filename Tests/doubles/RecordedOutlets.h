// The main window's controls in memory. They keep the rules of Outlets.h. A test can read the texts
// that a person would see, and act as a person would.

#pragma once

#include "Outlets.h"
#include "doubles/RecordedDialogs.h"
#include "support/QuotedLines.h"
#include "tables/GXArrayTable.h"
#include "tables/TableViewDataSource.h"

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kx {

class RecordedPopUpButton final : public PopUpButton {
public:
    RecordedPopUpButton() = default;
    explicit RecordedPopUpButton(const TitleList& titles) {
        RecordedPopUpButton::addItemsWithTitles(titles);
    }

    void removeAllItems() override {
        _titles.clear();
        _selected.reset();
    }

    void addItemsWithTitles(TitleList titles) override {
        for (const std::string_view title : titles) {
            std::erase(_titles, title);
            _titles.emplace_back(title);
        }
        if (!_selected.has_value()) {
            selectItemAtIndex(0);
        }
    }

    void selectItemAtIndex(int index) override {
        if (index >= 0 && index < static_cast<int>(_titles.size())) {
            _selected = _titles[static_cast<std::size_t>(index)];
        }
    }

    void selectItemWithTitle(std::string_view title) override {
        const bool exists = std::find(_titles.begin(), _titles.end(), title) != _titles.end();
        _selected = exists ? std::optional<std::string>(title) : std::nullopt;
    }

    std::optional<std::string> titleOfSelectedItem() const override { return _selected; }

    void setEnabled(bool enabled) override { _isEnabled = enabled; }
    void setDescription(std::string_view text) override { _description = text; }

    void setDimming(std::function<bool(std::string_view title)> isDimmed,
                    std::string_view description) override {
        _isDimmed = std::move(isDimmed);
        _dimmedDescription = description;
    }

    void refreshDimming() override { ++_refreshCount; }

    // The titles that a person sees dimmed, and how they are described.
    std::vector<std::string> dimmedTitles() const {
        std::vector<std::string> dimmed;
        for (const std::string& title : _titles) {
            if (_isDimmed && _isDimmed(title)) {
                dimmed.push_back(title);
            }
        }
        return dimmed;
    }
    const std::string& dimmedDescription() const { return _dimmedDescription; }
    int refreshCount() const { return _refreshCount; }

    // Sets the action that runs when a person chooses an item.
    void setAction(std::function<void()> action) { _action = std::move(action); }

    // Acts as a person who chooses an item.
    void chooseItem(std::string_view title) {
        selectItemWithTitle(title);
        if (_action) {
            _action();
        }
    }

    const std::vector<std::string>& titles() const { return _titles; }
    bool isEnabled() const { return _isEnabled; }
    const std::string& description() const { return _description; }

private:
    std::string _description;
    std::vector<std::string> _titles;
    std::optional<std::string> _selected;
    bool _isEnabled = true;
    std::function<bool(std::string_view title)> _isDimmed;
    std::string _dimmedDescription;
    int _refreshCount = 0;
    std::function<void()> _action;
};

class RecordedTextField final : public TextField {
public:
    void setStringValue(std::string_view text) override { _text = text; }
    std::string stringValue() const override { return _text; }

    // Sets the action that runs when a person types.
    void setAction(std::function<void()> action) { _action = std::move(action); }

    // Acts as a person who types at the end.
    void type(std::string_view text) {
        _text += text;
        if (_action) {
            _action();
        }
    }

private:
    std::string _text;
    std::function<void()> _action;
};

class RecordedButton final : public Button {
public:
    void setDescription(std::string_view text) override { _description = text; }

    const std::string& description() const { return _description; }

private:
    std::string _description;
};

class RecordedTextLabel final : public TextLabel {
public:
    void setMeansTrouble(bool meansTrouble) override { _meansTrouble = meansTrouble; }
    void setStringValue(std::string_view text) override {
        _text = text;
        ++_setCount;
    }

    const std::string& text() const { return _text; }
    bool meansTrouble() const { return _meansTrouble; }

    // How often a text was set, also the same one again: a screen reader says each.
    int setCount() const { return _setCount; }

private:
    bool _meansTrouble = false;
    std::string _text;
    int _setCount = 0;
};

// Asks its data source only in reloadData(), and shows the answers of that time.
class RecordedTableView final : public TableView {
public:
    using Row = std::map<std::string, std::string>; // texts of cells by column identifier

    // `dataSource` may be null and set later.
    explicit RecordedTableView(TableViewDataSource* dataSource)
        : _dataSource(dataSource) {}

    void setDataSource(TableViewDataSource* dataSource) { _dataSource = dataSource; }

    void reloadData() override {
        ++_reloadCount;
        _rows.clear();
        for (int row = 0; row < _dataSource->numberOfRowsInTableView(); ++row) {
            Row cells;
            for (const char* const identifier : {"parameterName", "parameterValue"}) {
                const auto value =
                    _dataSource->tableViewObjectValueForTableColumnRow({identifier}, row);
                cells[identifier] = value.has_value() ? value->description() : std::string();
            }
            _rows.push_back(std::move(cells));
        }
        if (_selectedRow >= static_cast<int>(_rows.size())) {
            _selectedRow = -1;
        }
    }

    int selectedRow() const override { return _selectedRow; }

    // Sets the action that runs when a person selects another row or none.
    void setAction(std::function<void()> action) { _action = std::move(action); }

    // Acts as a person who selects a row; -1 selects nothing.
    void selectRow(int row) {
        const int before = std::exchange(_selectedRow, row);
        if (row != before && _action) {
            _action();
        }
    }

    // Acts as a person who types into a cell and ends the edit.
    void typeIntoCell(int row, const std::string& identifier, const std::string& text) {
        _dataSource->tableViewSetObjectValueForTableColumnRow(text, {identifier}, row);
    }

    const std::vector<Row>& rows() const { return _rows; }
    int reloadCount() const { return _reloadCount; }

private:
    TableViewDataSource* _dataSource;
    std::vector<Row> _rows;
    int _selectedRow = -1;
    int _reloadCount = 0;
    std::function<void()> _action;
};

class RecordedTextView final : public TextView {
public:
    void setString(const LogText& text) override {
        _text = text.text();
        _isEndVisible = false;
    }

    void shareMemoryOf(const LogText& /*equalText*/) override {}

    void insertAtEnd(std::string_view text) override {
        _text += unquotedLines(std::string(text));
        _isEndVisible = false;
        ++_insertCount;
    }

    void scrollEndToVisible() override {
        _isEndVisible = true;
        ++_scrollCount;
    }

    const std::string& text() const { return _text; }
    bool isEndVisible() const { return _isEndVisible; }
    int insertCount() const { return _insertCount; }
    int scrollCount() const { return _scrollCount; }

private:
    std::string _text;
    bool _isEndVisible = true;
    int _insertCount = 0;
    int _scrollCount = 0;
};

// Moves only when the test says so: open() and close() begin a movement, finishMoving() ends it.
class RecordedDrawer final : public Drawer {
public:
    void open() override {
        if (_state != DrawerState::open) {
            _state = DrawerState::opening;
        }
    }
    void close() override {
        if (_state != DrawerState::closed) {
            _state = DrawerState::closing;
        }
    }
    DrawerState state() const override { return _state; }

    void finishMoving() {
        if (_state == DrawerState::opening) {
            _state = DrawerState::open;
        } else if (_state == DrawerState::closing) {
            _state = DrawerState::closed;
        }
    }

    void setState(DrawerState state) { _state = state; }

private:
    DrawerState _state = DrawerState::closed;
};

class RecordedWindow final : public Window {
public:
    bool makeFirstResponder() override {
        if (_editRefusesToEnd) {
            return false;
        }
        commitEdit();
        return true;
    }

    void endEditing() override {
        ++_endEditingCount;
        commitEdit();
    }

    // Opens an edit. `commit` stores the typed text, once, when the edit ends.
    void beginEdit(std::function<void()> commit, bool refusesToEnd) {
        _commit = std::move(commit);
        _editRefusesToEnd = refusesToEnd;
    }

    bool isEditing() const { return _commit != nullptr; }
    int endEditingCount() const { return _endEditingCount; }

private:
    void commitEdit() {
        const auto commit = std::exchange(_commit, nullptr);
        _editRefusesToEnd = false;
        if (commit) {
            commit();
        }
    }

    std::function<void()> _commit;
    bool _editRefusesToEnd = false;
    int _endEditingCount = 0;
};

class RecordedApplication final : public Application {
public:
    void terminate() override { ++_terminateCount; }

    int terminateCount() const { return _terminateCount; }

private:
    int _terminateCount = 0;
};

// All controls of the main window, with the ports and options of the real one.
struct RecordedMainWindow {
    RecordedWindow window;
    RecordedPopUpButton interfacePopUp;
    RecordedPopUpButton udpPortPopUp{{"3520", "3521", "3522", "3523"}};
    RecordedTextLabel discoveryLine;
    RecordedPopUpButton unitSelectPopUp;
    RecordedTextField unitIDField;
    RecordedButton reloadButton;
    GXArrayTable unitParameterTable;
    RecordedTableView unitParameterTableView{&unitParameterTable};
    RecordedTableView editParameterTableView{nullptr}; // the controller becomes its data source
    RecordedTextLabel quietLine;
    RecordedPopUpButton optionCommandPopUp{{"V  Version", "-Z  Set clock"}};
    RecordedTextField optionCommandField;
    RecordedButton restoreButton;
    RecordedDrawer eventLogDrawer;
    RecordedTextView logTextView;
    RecordedAlert alert;
    RecordedSavePanel savePanel;

    MainWindowOutlets outlets() {
        MainWindowOutlets outlets;
        outlets.window = &window;
        outlets.interfacePopUp = &interfacePopUp;
        outlets.udpPortPopUp = &udpPortPopUp;
        outlets.discoveryLine = &discoveryLine;
        outlets.unitSelectPopUp = &unitSelectPopUp;
        outlets.unitIDField = &unitIDField;
        outlets.reloadButton = &reloadButton;
        outlets.unitParameterTableView = &unitParameterTableView;
        outlets.unitParameterTable = &unitParameterTable;
        outlets.editParameterTableView = &editParameterTableView;
        outlets.quietLine = &quietLine;
        outlets.optionCommandPopUp = &optionCommandPopUp;
        outlets.optionCommandField = &optionCommandField;
        outlets.restoreButton = &restoreButton;
        outlets.eventLogDrawer = &eventLogDrawer;
        outlets.logTextView = &logTextView;
        outlets.alert = &alert;
        outlets.savePanel = &savePanel;
        return outlets;
    }
};

} // namespace kx
