// The recorded controls keep the rules that the real ones keep.

#include "doubles/RecordedOutlets.h"

#include "contracts/OutletsContract.h"

namespace kx {

struct RecordedPopUpButtonTrait {
    PopUpButton& control() { return popUp; }
    Titles titles() const { return popUp.titles(); }
    bool isEnabled() const { return popUp.isEnabled(); }

    RecordedPopUpButton popUp;
};

struct RecordedTextFieldTrait {
    TextField& control() { return field; }

    RecordedTextField field;
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

INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, PopUpButtonContract, RecordedPopUpButtonTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, TextFieldContract, RecordedTextFieldTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, TableViewContract, RecordedTableViewTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, TextViewContract, RecordedTextViewTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, DrawerContract, RecordedDrawerTrait);

} // namespace kx
