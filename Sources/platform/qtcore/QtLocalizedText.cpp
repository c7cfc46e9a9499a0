#include "platform/qtcore/QtLocalizedText.h"

#include "platform/qtcore/QtText.h"

#include <QCoreApplication>

namespace kx {

std::string QtLocalizedText::textForKey(std::string_view key) const {
    const std::string terminated(key);
    return utf8Text(QCoreApplication::translate("KXConfig", terminated.c_str()));
}

} // namespace kx
