#include "platform/qt/QtTranslations.h"

#include "platform/qt/QtText.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace kx {

QtTranslations::QtTranslations(std::string_view language) {
    if (language != "en" && _texts.load("qtbase_" + qtText(language),
                                        QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&_texts);
    }
}

} // namespace kx
