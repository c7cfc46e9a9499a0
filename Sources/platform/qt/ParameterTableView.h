// A table of parameters as the main window shows it: rows of name and value, sized in rows.
//
// While the cells are empty, the table shows a short text in their place; the text is also its
// description for a screen reader. Tab leaves the table, also out of an open editor, and keeps the
// editor's text. Return and a double click choose a row, because a table of text alone has no other
// use for them. Return inside a table must not press the window's default button.

#pragma once

#include <QTableView>

namespace kx {

class ParameterTableView final : public QTableView {
    Q_OBJECT
    Q_PROPERTY(int preferredRows READ preferredRows WRITE setPreferredRows)
    Q_PROPERTY(int minimumRows READ minimumRows WRITE setMinimumRows)
    Q_PROPERTY(QString placeholderText READ placeholderText WRITE setPlaceholderText)

public:
    explicit ParameterTableView(QWidget* parent = nullptr);

    // The number of rows that the table wants to show, and the smallest number that is still
    // useful.
    int preferredRows() const { return _preferredRows; }
    void setPreferredRows(int rows);
    int minimumRows() const { return _minimumRows; }
    void setMinimumRows(int rows);

    QString placeholderText() const { return _placeholderText; }
    void setPlaceholderText(const QString& text);

    // Opens the editor of the first editable cell and gives it the keyboard. Does nothing when no
    // cell can be edited.
    void beginTyping();

    // Whether the placeholder is shown: no cell holds a text and none is being edited.
    bool showsPlaceholder() const;

    void setModel(QAbstractItemModel* model) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void rowChosen();

    // The text in the open editor of a cell changed. An editor that closes tells the text that the
    // cell then has, so the last text told is always the text of the cell.
    void textEdited(const QString& text);

    // Return has closed the editor and kept its text.
    void textKept();

protected slots:
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    class TypingDelegate;

    void describe();
    QModelIndex firstEditableCell() const;
    int heightForRows(int rows) const;
    void fitRowsToFont();

    int _preferredRows = 8;
    int _minimumRows = 4;
    QString _placeholderText;
    QPersistentModelIndex _editedCell; // the cell in which the latest editor was opened
};

} // namespace kx
