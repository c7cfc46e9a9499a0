// The controls that the controller talks to. Each has only the few operations that the controller
// needs.
//
// Main thread only. The controller never owns a control. No operation calls back into the
// controller from inside itself, with three exceptions: Window::makeFirstResponder() and
// endEditing() may hand a half-typed value to the table's data source, and TableView::reloadData()
// may ask that data source for its values. In particular, no action runs when code selects an item,
// sets a text, or reloads a table and drops its selection. While Alert::runModal() waits, a
// person's actions do not reach the controller. The event loop runs meanwhile, so the controller
// holds the run loop's callbacks back.

#pragma once

#include "support/TitleList.h"
#include "words/LogText.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

class GXArrayTable;

// A pop-up button: a list of titles of which one is selected.
class PopUpButton {
public:
    virtual ~PopUpButton() = default;

    virtual void removeAllItems() = 0;

    // Appends one item for each title, in order. No two items have equal titles: an item that
    // already has the title is replaced, and the new one stands at the end. When nothing was
    // selected, the first item becomes selected; otherwise the selected title stays selected.
    virtual void addItemsWithTitles(TitleList titles) = 0;

    // Does nothing when there is no such item.
    virtual void selectItemAtIndex(int index) = 0;

    // Selects nothing when there is no such item.
    virtual void selectItemWithTitle(std::string_view title) = 0;

    // Absent when nothing is selected, as in an empty pop-up.
    virtual std::optional<std::string> titleOfSelectedItem() const = 0;

    virtual void setEnabled(bool enabled) = 0;

    // Titles for which `isDimmed` is true are drawn fainter, and a screen reader reads the
    // description with them. The function is asked whenever a title is drawn or read, until another
    // one is set; it must be quick and change nothing. An empty one dims nothing.
    virtual void setDimming(std::function<bool(std::string_view title)> isDimmed,
                            std::string_view description) = 0;

    // The results of that function may have changed.
    virtual void refreshDimming() = 0;
    // A sentence about the choice: the tool tip, and the description for a screen reader. While the
    // pop-up says in its own place why nothing is selected, that is the description.
    virtual void setDescription(std::string_view text) = 0;
};

class Button {
public:
    virtual ~Button() = default;

    // A sentence that says what pressing the button does: its tool tip, and its description for a
    // screen reader.
    virtual void setDescription(std::string_view text) = 0;
};

class TextField {
public:
    virtual ~TextField() = default;

    virtual void setStringValue(std::string_view text) = 0;
    virtual std::string stringValue() const = 0;
};

// A text that a person cannot edit. Every character of it is shown unchanged.
class TextLabel {
public:
    virtual ~TextLabel() = default;

    // Whether the next text means trouble. Then it has a sign as well as its words, which a screen
    // reader says, too.
    virtual void setMeansTrouble(bool meansTrouble) = 0;

    virtual void setStringValue(std::string_view text) = 0;
};

// A table view. The maker of the view connects it to the TableViewDataSource that gives its values.
class TableView {
public:
    virtual ~TableView() = default;

    // Asks the data source for everything again. The selection is kept by row number as far as the
    // rows still exist.
    virtual void reloadData() = 0;

    // The index of the selected row, -1 when none is selected.
    virtual int selectedRow() const = 0;
};

// The view of the event log.
class TextView {
public:
    virtual ~TextView() = default;

    // Replaces all of the text by a copy of this one. The cost does not depend on the length of the
    // text, except that a screen reader is told all of it.
    virtual void setString(const LogText& text) = 0;

    // Replaces the empty range at the end of the text. Where the text has a limit, its oldest
    // pieces beyond it go.
    virtual void insertAtEnd(std::string_view text) = 0;

    // The view's text is equal to this one and grew with it, so the two may share their memory.
    // Changes nothing that can be seen.
    virtual void shareMemoryOf(const LogText& equalText) = 0;

    // Scrolls so that the end of the text is visible.
    virtual void scrollEndToVisible() = 0;
};

enum class DrawerState { closed = 0, opening = 1, open = 2, closing = 3 };

class Drawer {
public:
    virtual ~Drawer() = default;

    // open() and close() may take some time. Until they are done the state is opening or closing.
    virtual void open() = 0;
    virtual void close() = 0;
    virtual DrawerState state() const = 0;
};

class Window {
public:
    virtual ~Window() = default;

    // Ends any edit in progress by taking the keyboard focus; false when the edit refuses to end.
    virtual bool makeFirstResponder() = 0;

    // Ends every edit in the window by force, storing what was typed.
    virtual void endEditing() = 0;
};

class Alert {
public:
    virtual ~Alert() = default;

    // Shows a message above the window and returns when the person has dismissed it with its one
    // button. The window takes no other input meanwhile.
    virtual void runModal(std::string_view title, std::string_view message,
                          std::string_view button) = 0;
};

// Asks a person for the file to save something in.
class SavePanel {
public:
    struct Question {
        std::string title;
        std::string suggestedName;
        std::string kind;   // of the file, in words
        std::string suffix; // of its name; a name that is typed without one gets it
    };

    virtual ~SavePanel() = default;

    // Shows the question and returns at once. `chosen` is called once with the path of the file, in
    // UTF-8, from the event loop; never when the person cancels. A file that is there already is
    // chosen only when the person agrees to replace it. The window takes no other input meanwhile.
    virtual void ask(const Question& question,
                     std::function<void(const std::string& path)> chosen) = 0;
};

// Asks a person for a file to read.
class OpenPanel {
public:
    struct Question {
        std::string title;
        std::string kind;                  // of the files, in words
        std::vector<std::string> suffixes; // of their names; files of other names can be shown too
    };

    virtual ~OpenPanel() = default;

    // Shows the question and returns at once. `chosen` is called once with the path of a file that
    // is there, in UTF-8, from the event loop; never when the person cancels. The window takes no
    // other input meanwhile.
    virtual void ask(const Question& question,
                     std::function<void(const std::string& path)> chosen) = 0;
};

class Application {
public:
    virtual ~Application() = default;

    // Asks the application to end. The loop runs on until its current event has been handled.
    virtual void terminate() = 0;
};

// The main window's controls, under their object names. All are set before launch. The log's button
// and its scroll view belong to the window alone: no code of the controller reads them.
struct MainWindowOutlets {
    Window* window = nullptr;
    PopUpButton* interfacePopUp = nullptr;
    PopUpButton* udpPortPopUp = nullptr;
    TextLabel* discoveryLine = nullptr; // says the weightiest thing about the latest discovery
    PopUpButton* unitSelectPopUp = nullptr;
    TextField* unitIDField = nullptr;
    Button* reloadButton = nullptr;
    TableView* unitParameterTableView = nullptr;
    GXArrayTable* unitParameterTable = nullptr;  // the data source of unitParameterTableView
    TableView* editParameterTableView = nullptr; // its data source is the controller
    TextLabel* quietLine = nullptr;              // says what Apply will send, and its outcome
    PopUpButton* optionCommandPopUp = nullptr;
    TextField* optionCommandField = nullptr;
    Button* restoreButton = nullptr;
    Drawer* eventLogDrawer = nullptr;
    TextView* logTextView = nullptr;
    Alert* alert = nullptr;
    SavePanel* savePanel = nullptr; // may be null, then nothing is saved
};

} // namespace kx
