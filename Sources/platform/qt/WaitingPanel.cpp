#include "platform/qt/WaitingPanel.h"

#include "platform/qtcore/EventLoopWaiting.h"
#include "platform/qtcore/QtText.h"
#include "support/RunLoop.h"

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
    const auto first = handleEventsUntil(isDone, moment, QEventLoop::ExcludeUserInputEvents);
    if (first != EventsEnd::timeUp) {
        return first == EventsEnd::done;
    }
    Panel panel(_window, qtText(sentence));
    bool isCancelled = false;
    QObject::connect(&panel, &QDialog::rejected, &panel, [&] { isCancelled = true; });
    panel.show();
    const auto end = handleEventsUntil([&] { return isCancelled || isDone(); },
                                       RunLoop::longestDelay, QEventLoop::AllEvents);
    return end == EventsEnd::done && !isCancelled;
}

} // namespace kx
