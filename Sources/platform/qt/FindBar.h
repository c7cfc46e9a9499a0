// The bar below the log that finds a text in it.
//
// Hidden at first. What is typed is sought at once, from the selection on; Return and the arrow
// buttons go on to the next match, or with Shift to the one before, and round the ends of the log.
// A match becomes the log's selection. Letters match in either case. Escape closes the bar and
// gives the keyboard back to the log.
//
// Main thread only.

#pragma once

#include "platform/qt/LogTextView.h"
#include "platform/qt/SpokenLabel.h"

#include <QLineEdit>
#include <QShortcut>
#include <QWidget>
#include <optional>

namespace kx {

class FindBar final : public QWidget {
    Q_OBJECT

public:
    // Escape closes it from anywhere in `parent`. The log must outlive it.
    FindBar(LogTextView& log, QWidget* parent);

    // Shows the bar and puts the keyboard into it. A word that is selected in the log is sought.
    void open();
    void close();

    // Without anything to look for they open the bar instead.
    void findNext();
    void findPrevious();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    using Search = std::optional<LogRange> (*)(const LogText&, const QString&, std::size_t);

    void findTyped();
    void findFrom(std::size_t start, Search search, std::size_t otherEnd,
                  const QString& fromOtherEnd);

    LogTextView& _log;
    QLineEdit& _field;
    SpokenLabel& _result;
    QShortcut& _escape;
};

} // namespace kx
