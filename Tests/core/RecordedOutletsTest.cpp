// The recorded controls keep the rules that the real ones keep.

#include "doubles/RecordedOutlets.h"

#include "contracts/OutletsContract.h"
#include "contracts/PopUpButtonContract.h"
#include "contracts/TableViewContract.h"
#include "contracts/WindowContract.h"

namespace kx {

struct RecordedPopUpButtonTrait {
    PopUpButton& control() { return popUp; }
    Titles titles() const { return popUp.titles(); }
    bool isEnabled() const { return popUp.isEnabled(); }
    void chooseItem(const std::string& title) { popUp.chooseItem(title); }
    void setAction(std::function<void()> action) { popUp.setAction(std::move(action)); }
    Titles dimmedTitles() const { return popUp.dimmedTitles(); }
    std::string spokenDescriptionOfSelected() const {
        const auto dimmed = popUp.dimmedTitles();
        const auto selected = popUp.titleOfSelectedItem();
        const bool isDimmed =
            selected.has_value() && std::ranges::find(dimmed, *selected) != dimmed.end();
        return isDimmed ? popUp.dimmedDescription() : std::string();
    }

    RecordedPopUpButton popUp;
};

struct RecordedTextFieldTrait {
    TextField& control() { return field; }
    void type(const std::string& text) { field.type(text); }
    void setAction(std::function<void()> action) { field.setAction(std::move(action)); }

    RecordedTextField field;
};

struct RecordedButtonTrait {
    Button& control() { return button; }
    std::string toolTip() const { return button.description(); }
    std::string spokenDescription() const { return button.description(); }

    RecordedButton button;
};

struct RecordedTextLabelTrait {
    TextLabel& control() { return label; }
    std::string shownText() const { return label.text(); }

    RecordedTextLabel label;
};

struct RecordedTableViewTrait {
    explicit RecordedTableViewTrait(TableViewDataSource& source)
        : view(&source) {}

    TableView& control() { return view; }
    int rowCount() const { return static_cast<int>(view.rows().size()); }
    std::string cellText(int row, const std::string& identifier) const {
        return view.rows().at(static_cast<std::size_t>(row)).at(identifier);
    }
    void selectRow(int row) { view.selectRow(row); }
    void typeIntoCell(int row, const std::string& identifier, const std::string& text) {
        view.typeIntoCell(row, identifier, text);
    }
    void setAction(std::function<void()> action) { view.setAction(std::move(action)); }

    RecordedTableView view;
};

struct RecordedTextViewTrait {
    TextView& control() { return view; }
    std::string text() const { return view.text(); }
    bool isEndVisible() const { return view.isEndVisible(); }

    RecordedTextView view;
};

struct RecordedDrawerTrait {
    Drawer& control() { return drawer; }
    void finishMoving() { drawer.finishMoving(); }

    RecordedDrawer drawer;
};

struct RecordedSavePanelTrait {
    SavePanel& control() { return panel; }
    bool isOpen() const { return panel.isOpen(); }
    std::string title() const { return panel.questions().back().title; }
    std::string suggestedName() const { return panel.questions().back().suggestedName; }
    void choose(const std::string& path) { panel.choose(path); }
    void cancel() { panel.cancel(); }
    static std::string pathOf(const std::string& name) { return "/there/" + name; }

    RecordedSavePanel panel;
};

struct RecordedWindowTrait {
    Window& control() { return window; }
    void type(const std::string& text) {
        typed = text;
        beginEdit(false);
    }
    void refuseToEnd() { beginEdit(true); }
    bool isEditing() const { return window.isEditing(); }
    Texts stored() const { return texts; }

    void beginEdit(bool refusesToEnd) {
        window.beginEdit([this] { texts.push_back(typed); }, refusesToEnd);
    }

    RecordedWindow window;
    std::string typed;
    Texts texts;
};

struct RecordedAlertTrait {
    Alert& control() { return alert; }
    Texts runAlert(const std::string& title, const std::string& message,
                   const std::string& button) {
        control().runModal(title, message, button);
        const RecordedAlert::Shown& shown = alert.shown().back();
        return {shown.title, shown.message, shown.button};
    }

    RecordedAlert alert;
};

struct RecordedApplicationTrait {
    Application& control() { return application; }
    bool runEvent(const std::function<void()>& event) {
        const int before = application.terminateCount();
        event();
        return application.terminateCount() > before;
    }

    RecordedApplication application;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, PopUpButtonContract, RecordedPopUpButtonTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, TextFieldContract, RecordedTextFieldTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, ButtonContract, RecordedButtonTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, TextLabelContract, RecordedTextLabelTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, TableViewContract, RecordedTableViewTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, TextViewContract, RecordedTextViewTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, DrawerContract, RecordedDrawerTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, SavePanelContract, RecordedSavePanelTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, WindowContract, RecordedWindowTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, AlertContract, RecordedAlertTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, ApplicationContract, RecordedApplicationTrait);

TEST(RecordedWindow, FocusIsRefusedByAnEditThatRefusesToEnd) {
    RecordedWindow window;
    window.beginEdit([] {}, true);
    EXPECT_FALSE(window.makeFirstResponder());
    EXPECT_TRUE(window.isEditing());
    EXPECT_EQ(window.endEditingCount(), 0);
    window.endEditing();
    EXPECT_EQ(window.endEditingCount(), 1);
    EXPECT_TRUE(window.makeFirstResponder());
}

} // namespace kx
