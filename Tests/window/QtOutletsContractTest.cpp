// The Qt controls keep the rules of the outlets.

#include "contracts/OutletsContract.h"
#include "contracts/PopUpButtonContract.h"
#include "contracts/TableViewContract.h"
#include "contracts/WindowContract.h"
#include "platform/qt/QtAlert.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtButton.h"
#include "platform/qt/QtDrawer.h"
#include "platform/qt/QtPopUpButton.h"
#include "platform/qt/QtSavePanel.h"
#include "platform/qt/QtTableView.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtTextField.h"
#include "platform/qt/QtTextLabel.h"
#include "platform/qt/QtTextView.h"
#include "platform/qt/QtWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <QVBoxLayout>

namespace kx {

namespace {

class QtPopUpButtonTrait {
public:
    PopUpButton& control() { return _popUp; }
    Titles titles() const {
        Titles titles;
        for (int index = 0; index < _comboBox.count(); ++index) {
            titles.push_back(utf8Text(_comboBox.itemText(index)));
        }
        return titles;
    }
    bool isEnabled() const { return _comboBox.isEnabled(); }

    void chooseItem(const std::string& title) {
        _comboBox.show();
        _comboBox.showPopup();
        QAbstractItemView* list = _comboBox.view();
        ASSERT_TRUE(QTest::qWaitFor([list] { return list->isVisible(); }));
        list->setCurrentIndex(list->model()->index(_comboBox.findText(qtText(title)), 0));
        QTest::keyClick(list, Qt::Key_Return);
    }
    void setAction(std::function<void()> action) {
        QObject::connect(&_comboBox, &QComboBox::activated, &_comboBox, std::move(action));
    }
    Titles dimmedTitles() const {
        Titles dimmed;
        for (int index = 0; index < _comboBox.count(); ++index) {
            if (_comboBox.itemData(index, Qt::ForegroundRole).isValid()) {
                dimmed.push_back(utf8Text(_comboBox.itemText(index)));
            }
        }
        return dimmed;
    }
    std::string spokenDescriptionOfSelected() const {
        return utf8Text(_comboBox.accessibleDescription());
    }

private:
    QComboBox _comboBox;
    QtPopUpButton _popUp{_comboBox};
};

class QtTextFieldTrait {
public:
    TextField& control() { return _field; }
    void type(const std::string& text) { QTest::keyClicks(&_lineEdit, qtText(text)); }
    void setAction(std::function<void()> action) {
        QObject::connect(&_lineEdit, &QLineEdit::textEdited, &_lineEdit, std::move(action));
    }

private:
    QLineEdit _lineEdit;
    QtTextField _field{_lineEdit};
};

class QtButtonTrait {
public:
    Button& control() { return _button; }
    // Qt shows a tool tip as markup when it looks like it.
    std::string toolTip() const {
        QTextDocument shown;
        shown.setHtml(_pushButton.toolTip());
        return utf8Text(shown.toPlainText());
    }
    std::string spokenDescription() const { return utf8Text(_pushButton.accessibleDescription()); }

private:
    QPushButton _pushButton;
    QtButton _button{_pushButton};
};

class QtTextLabelTrait {
public:
    TextLabel& control() { return _textLabel; }
    std::string shownText() const {
        // The label shows the text itself only when it takes nothing in it for markup.
        EXPECT_EQ(_label.textFormat(), Qt::PlainText);
        return utf8Text(_label.text());
    }

private:
    AnnouncedLabel _label;
    QtTextLabel _textLabel{_label};
};

class QtTableViewTrait {
public:
    explicit QtTableViewTrait(TableViewDataSource& source) {
        _table.setDataSource(&source);
        _view.setEditTriggers(QAbstractItemView::DoubleClicked);
        _view.resize(400, 300);
        _view.show();
    }

    TableView& control() { return _table; }
    int rowCount() const { return _view.model()->rowCount(); }
    std::string cellText(int row, const std::string& identifier) const {
        return utf8Text(cell(row, identifier).data().toString());
    }

    void selectRow(int row) {
        const QPoint below(5, _view.viewport()->height() - 2);
        const QPoint position =
            row < 0 ? below : _view.visualRect(cell(row, "parameterName")).center();
        QTest::mouseClick(_view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
    }

    void typeIntoCell(int row, const std::string& identifier, const std::string& text) {
        const QPoint position = _view.visualRect(cell(row, identifier)).center();
        QTest::mouseClick(_view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
        QTest::mouseDClick(_view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
        auto* const editor = _view.viewport()->findChild<QLineEdit*>();
        ASSERT_NE(editor, nullptr);
        for (const QChar character : qtText(text)) {
            QTest::keyPress(editor, character.toLatin1());
        }
        QTest::keyPress(editor, Qt::Key_Return);
        const auto editorIsGone = [this] {
            return _view.viewport()->findChild<QLineEdit*>() == nullptr;
        };
        EXPECT_TRUE(QTest::qWaitFor(editorIsGone));
    }
    void setAction(std::function<void()> action) { _table.setSelectionAction(std::move(action)); }

private:
    QModelIndex cell(int row, const std::string& identifier) const {
        return _view.model()->index(row, identifier == "parameterName" ? 0 : 1);
    }

    QTableView _view;
    QtTableView _table{
        _view, {{{"parameterName"}, "Parameter", true}, {{"parameterValue"}, "Value", true}}};
};

class QtTextViewTrait {
public:
    QtTextViewTrait() {
        _logView.resize(300, 200);
        _logView.show();
    }

    TextView& control() { return _view; }
    std::string text() const { return _logView.text().text(); }
    bool isEndVisible() {
        const auto endIsInSight = [this] {
            const QRect end = _logView.rectOf(_logView.text().size());
            return _logView.showsEnd() && _logView.viewport()->rect().contains(end.center());
        };
        return QTest::qWaitFor(endIsInSight);
    }

private:
    LogTextView _logView;
    QtTextView _view{_logView};
};

class QtDrawerTrait {
public:
    QtDrawerTrait() {
        _window.setCentralWidget(&_splitter);
        _splitter.setOrientation(Qt::Vertical);
        _splitter.addWidget(&_content);
        _splitter.addWidget(&_pane);
        (new QVBoxLayout(&_pane))->addWidget(&_panel);
        _drawer = std::make_unique<QtDrawer>(_splitter, _content, _pane, _panel);
        _window.resize(300, 200);
        _window.show();
    }
    ~QtDrawerTrait() { _window.takeCentralWidget(); }

    Drawer& control() { return *_drawer; }
    void finishMoving() {
        EXPECT_TRUE(QTest::qWaitFor([this] {
            const DrawerState state = _drawer->state();
            return state == DrawerState::open || state == DrawerState::closed;
        }));
    }

private:
    QMainWindow _window;
    QSplitter _splitter;
    QWidget _content;
    QWidget _pane;
    QWidget _panel;
    std::unique_ptr<QtDrawer> _drawer;
};

// A cell that is empty and records the texts that were stored into it.
class OneCell final : public TableViewDataSource {
public:
    Texts stored;

    int numberOfRowsInTableView() override { return 1; }
    std::optional<PropertyListValue>
    tableViewObjectValueForTableColumnRow(const TableColumn& /*column*/, int /*row*/) override {
        return std::nullopt;
    }
    void tableViewSetObjectValueForTableColumnRow(const PropertyListValue& value,
                                                  const TableColumn& /*column*/,
                                                  int /*row*/) override {
        stored.push_back(value.description());
    }
};

class QtWindowTrait {
public:
    QtWindowTrait() {
        _mainWindow.setCentralWidget(&_view);
        _view.setEditTriggers(QAbstractItemView::DoubleClicked);
        _table.setDataSource(&_cell);
        _mainWindow.resize(300, 200);
        _mainWindow.show();
    }
    ~QtWindowTrait() { _mainWindow.takeCentralWidget(); }

    Window& control() { return _window; }
    void type(const std::string& text) {
        const QPoint position = _view.visualRect(_view.model()->index(0, 0)).center();
        QTest::mouseClick(_view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
        QTest::mouseDClick(_view.viewport(), Qt::LeftButton, Qt::NoModifier, position);
        ASSERT_TRUE(isEditing());
        QTest::keyClicks(editor(), qtText(text));
    }
    void refuseToEnd() {} // Qt's editors never refuse
    bool isEditing() const { return editor() != nullptr && editor()->isVisible(); }
    Texts stored() const { return _cell.stored; }

private:
    // The editor, including one that is closed and waits for its deletion.
    QLineEdit* editor() const { return _view.viewport()->findChild<QLineEdit*>(); }

    OneCell _cell;
    QMainWindow _mainWindow;
    QTableView _view;
    QtTableView _table{_view, {{{"parameterValue"}, "Value", true}}};
    QtWindow _window{_mainWindow};
};

class QtAlertTrait {
public:
    QtAlertTrait() { _window.show(); }

    Alert& control() { return _alert; }
    Texts runAlert(const std::string& title, const std::string& message,
                   const std::string& button) {
        Texts seen;
        QTimer person;
        QObject::connect(&person, &QTimer::timeout, &person, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr || !box->isVisible()) {
                return;
            }
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            seen = {utf8Text(box->windowTitle()), utf8Text(box->text())};
            for (const QAbstractButton* each : box->buttons()) {
                seen.push_back(utf8Text(each->text()));
            }
            person.stop();
            QTest::mouseClick(box->buttons().constFirst(), Qt::LeftButton);
        });
        person.start(std::chrono::milliseconds(1));
        control().runModal(title, message, button);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        return seen;
    }

private:
    QMainWindow _window;
    QtAlert _alert{_window};
};

class QtSavePanelTrait {
public:
    QtSavePanelTrait() { _window.show(); }

    SavePanel& control() { return _panel; }
    bool isOpen() const { return openPanel() != nullptr; }
    std::string title() const { return utf8Text(openPanel()->windowTitle()); }
    std::string suggestedName() const { return utf8Text(nameField().text()); }
    void choose(const std::string& path) {
        nameField().setText(qtText(path));
        QTest::keyClick(&nameField(), Qt::Key_Return);
    }
    void cancel() { QTest::keyClick(openPanel(), Qt::Key_Escape); }
    std::string pathOf(const std::string& name) const {
        return utf8Text(_folder.filePath(qtText(name)));
    }

private:
    QFileDialog* openPanel() const {
        auto* const panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        return panel != nullptr && panel->isVisible() ? panel : nullptr;
    }
    QLineEdit& nameField() const { return *openPanel()->findChild<QLineEdit*>("fileNameEdit"); }

    QTemporaryDir _folder;
    QMainWindow _window;
    QtSavePanel _panel{_window};
};

class QtApplicationTrait {
public:
    Application& control() { return _application; }
    bool runEvent(const std::function<void()>& event) {
        constexpr int wentOn = 1;
        QTimer afterwards;
        afterwards.setSingleShot(true);
        QObject::connect(&afterwards, &QTimer::timeout, [] { QCoreApplication::exit(wentOn); });
        QTimer::singleShot(0, &afterwards, [&] {
            event();
            afterwards.start(std::chrono::milliseconds(20));
        });
        return QCoreApplication::exec() != wentOn;
    }

private:
    QtApplication _application;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, PopUpButtonContract, QtPopUpButtonTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, TextFieldContract, QtTextFieldTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, ButtonContract, QtButtonTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, TextLabelContract, QtTextLabelTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, TableViewContract, QtTableViewTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, TextViewContract, QtTextViewTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, DrawerContract, QtDrawerTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, WindowContract, QtWindowTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, AlertContract, QtAlertTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, SavePanelContract, QtSavePanelTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, ApplicationContract, QtApplicationTrait);

} // namespace

} // namespace kx
