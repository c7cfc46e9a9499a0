// The bar below the log that finds a text in it.
//
// The bar is hidden at first. It searches while a person types, from the selection on. Return goes
// to the next match, and Shift with Return to the one before; the two arrow buttons do the same.
// The search goes on round the ends of the log, and the bar tells how many matches there are. A
// match becomes the log's selection. Letters match in either case. Escape closes the bar and gives
// the keyboard back to the log.
//
// Main thread only.

#pragma once

#include "platform/qt/AnnouncedLabel.h"
#include "platform/qt/LogTextView.h"

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

    // Shows the bar and gives it the keyboard. A text that is selected within one row of the log
    // becomes the text to find.
    void open();
    void close();

    // When there is no text to find, they open the bar instead.
    void findNext();
    void findPrevious();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    using Search = std::optional<LogRange> (*)(const LogText&, const QString&, std::size_t);

    void findTyped();
    QString textOfCount();
    void findFrom(std::size_t start, Search search, std::size_t otherEnd,
                  const QString& fromOtherEnd);

    LogTextView& _log;
    QLineEdit& _field;
    AnnouncedLabel& _result;
    QShortcut& _escape;

    // The latest count: of which text in how long a log.
    QString _counted;
    std::size_t _countedSize = 0;
    std::size_t _matches = 0;
};

} // namespace kx
