// A range of the log on its way to another program: plain text, made each time when somebody pastes
// it.
//
// Until then it shares the memory of the log's pieces that hold the range, also when the log has
// removed them since. Main thread only, as the clipboard.

#pragma once

#include "platform/qt/LogCaretMovement.h"

#include <QMimeData>

namespace kx {

// The text of a range as it is shown (see LogText::shownText()), in Qt's form.
QString shownLogText(const LogText& text, LogRange range);

// The same for other programs (see LogText::copiedText()).
QString copiedLogText(const LogText& text, LogRange range);

class LogMimeData final : public QMimeData {
public:
    LogMimeData(const LogText& text, LogRange range);

    QStringList formats() const override;
    bool hasFormat(const QString& format) const override;

protected:
    QVariant retrieveData(const QString& format, QMetaType type) const override;

private:
    LogText::Excerpt _excerpt;
    LogRange _range; // in the excerpt
};

} // namespace kx
