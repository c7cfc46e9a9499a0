// The Qt controls keep the rules of the outlets.

#include "contracts/OutletsContract.h"
#include "platform/qt/QtDrawer.h"
#include "platform/qt/QtPopUpButton.h"
#include "platform/qt/QtTableView.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtTextField.h"
#include "platform/qt/QtTextView.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QScrollBar>
#include <QTest>
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

private:
    QComboBox _comboBox;
    QtPopUpButton _popUp{_comboBox};
};

class QtTextFieldTrait {
public:
    TextField& control() { return _field; }

private:
    QLineEdit _lineEdit;
    QtTextField _field{_lineEdit};
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
        _textEdit.resize(300, 200);
        _textEdit.show();
    }

    TextView& control() { return _view; }
    std::string text() const { return utf8Text(_textEdit.toPlainText()); }
    bool isEndVisible() const {
        const QScrollBar* bar = _textEdit.verticalScrollBar();
        return bar->value() == bar->maximum();
    }

private:
    QPlainTextEdit _textEdit;
    QtTextView _view{_textEdit};
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

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, PopUpButtonContract, QtPopUpButtonTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, TextFieldContract, QtTextFieldTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, TableViewContract, QtTableViewTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, TextViewContract, QtTextViewTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, DrawerContract, QtDrawerTrait);

} // namespace

} // namespace kx
