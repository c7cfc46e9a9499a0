#include "platform/qt/QtWindow.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>

namespace kx {

bool QtWindow::makeFirstResponder() {
    endEditing();
    return true;
}

void QtWindow::endEditing() {
    // An open cell editor is a child of its view's viewport. A search there finds it even when the
    // window is not the active one. The application's focus would not: in such a window no editor
    // has it.
    for (QAbstractItemView* view : _window.findChildren<QAbstractItemView*>()) {
        const auto editors =
            view->viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget* editor : editors) {
            if (editor->isHidden()) {
                continue; // it is closed; the next turn of the event loop deletes it
            }
            QAbstractItemDelegate* delegate = view->itemDelegate();
            emit delegate->commitData(editor);
            emit delegate->closeEditor(editor, QAbstractItemDelegate::NoHint);
        }
    }
}

} // namespace kx
