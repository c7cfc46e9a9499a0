// The event log's view over a plain text widget.
//
// Sets the system's fixed-width font. What the user has selected stays selected while text arrives
// at the end. The widget must outlive it.

#pragma once

#include "Outlets.h"

#include <QPlainTextEdit>

namespace kx {

class QtTextView final : public TextView {
public:
    explicit QtTextView(QPlainTextEdit& textEdit);

    void setString(std::string_view text) override;
    void insertAtEnd(std::string_view text) override;
    void scrollEndToVisible() override;

private:
    QPlainTextEdit& _textEdit;
};

} // namespace kx
