#include "RecordedBrowser.h"

#include <QDesktopServices>

namespace kx {

RecordedBrowser::RecordedBrowser() {
    QDesktopServices::setUrlHandler("file", this, "open");
}

RecordedBrowser::~RecordedBrowser() {
    QDesktopServices::unsetUrlHandler("file");
}

} // namespace kx
