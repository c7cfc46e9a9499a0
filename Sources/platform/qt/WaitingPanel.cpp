#include "platform/qt/WaitingPanel.h"

#include "platform/qt/EventHandling.h"
#include "platform/qt/QtText.h"
#include "support/RunLoop.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kx {

namespace {

class Panel final : public QDialog {
public:
    Panel(QWidget& window, const QString& sentence)
        : QDialog(&window) {
        setWindowTitle(localizedQtText("KXConfig"));
        setWindowModality(Qt::ApplicationModal);
        setObjectName("waitingPanel");
        setAccessibleDescription(sentence); // a screen reader says it when the panel opens
        auto* const label = new QLabel(sentence);
        label->setTextFormat(Qt::PlainText);
        auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
        buttons->button(QDialogButtonBox::Cancel)->setText(localizedQtText("Cancel"));
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        auto* const column = new QVBoxLayout(this);
        column->addWidget(label);
        column->addWidget(buttons);
    }
};

} // namespace

bool WaitingPanel::until(const std::function<bool()>& isDone, std::string_view sentence) {
    bool isCancelled = false;
    const auto isOver = [&, before = _given] {
        isCancelled = isCancelled || _given != before;
        return isCancelled || isDone();
    };
    const auto first = handleEventsUntil(isOver, moment, QEventLoop::ExcludeUserInputEvents);
    if (first != EventsEnd::timeUp) {
        return first == EventsEnd::done && !isCancelled;
    }
    // A dialog may go meanwhile, and the panel with it.
    QWidget* const active = QApplication::activeWindow();
    const bool isLasting = active != nullptr && qobject_cast<QDialog*>(active) == nullptr;
    Panel panel(isLasting ? *active : _window, qtText(sentence));
    QObject::connect(&panel, &QDialog::rejected, &panel, [&] { isCancelled = true; });
    panel.show();
    const auto end = handleEventsUntil(isOver, RunLoop::longestDelay, QEventLoop::AllEvents);
    return end == EventsEnd::done && !isCancelled;
}

} // namespace kx
