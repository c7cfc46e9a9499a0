// Sets the language of the process's texts from its construction to its destruction.

#pragma once

#include "platform/qt/QtText.h"
#include "platform/qt/QtTranslations.h"
#include "support/TextCatalogue.h"
#include "translations/Translations.h"

#include <string>

namespace kx {

class InLanguage {
public:
    explicit InLanguage(const std::string& language)
        : _translation(firstTranslation({language}))
        , _previous(installLocalizedText(&_texts)) {}
    ~InLanguage() { installLocalizedText(_previous); }
    InLanguage(const InLanguage&) = delete;
    InLanguage& operator=(const InLanguage&) = delete;

    QString language() const { return qtText(_translation.language); }

private:
    Translation _translation;
    QtTranslations _textsOfQt{_translation.language};
    TextCatalogue _texts{_translation.entries};
    const LocalizedText* _previous;
};

} // namespace kx
