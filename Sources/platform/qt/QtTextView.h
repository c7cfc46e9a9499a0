// The event log's view over the widget that shows it, which must outlive it.

#pragma once

#include "Outlets.h"
#include "platform/qt/LogTextView.h"

namespace kx {

class QtTextView final : public TextView {
public:
    explicit QtTextView(LogTextView& view);

    void setString(const LogText& text) override;
    void insertAtEnd(std::string_view text) override;
    void shareMemoryOf(const LogText& equalText) override;
    void scrollEndToVisible() override;

private:
    LogTextView& _view;
};

} // namespace kx
