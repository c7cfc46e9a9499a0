#include "platform/qt/EditCommands.h"

#include "platform/qt/LogTextView.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>

namespace kx {

namespace {

QString selectedCells(const QAbstractItemView& view) {
    QStringList texts;
    for (const QModelIndex& cell : view.selectionModel()->selectedIndexes()) {
        texts.append(cell.data().toString());
    }
    return texts.join('\t');
}

QString selectedText(QWidget* control) {
    if (const auto* field = qobject_cast<QLineEdit*>(control)) {
        return field->selectedText();
    }
    if (const auto* view = qobject_cast<QAbstractItemView*>(control)) {
        return selectedCells(*view);
    }
    if (const auto* popUp = qobject_cast<QComboBox*>(control)) {
        return popUp->currentText();
    }
    return {};
}

} // namespace

void copySelection(QWidget* control) {
    if (const auto* log = qobject_cast<LogTextView*>(control)) {
        log->copy();
        return;
    }
    const QString selected = selectedText(control);
    if (!selected.isEmpty()) {
        QGuiApplication::clipboard()->setText(selected);
    }
}

void selectAll(QWidget* control) {
    if (auto* field = qobject_cast<QLineEdit*>(control)) {
        field->selectAll();
    } else if (auto* log = qobject_cast<LogTextView*>(control)) {
        log->selectAll();
    }
}

} // namespace kx
