#include "words/DocumentFaultText.h"

#include "support/LocalizedText.h"
#include "words/QuotedText.h"

namespace kx {

std::string textOfDocumentFault(DocumentFault fault, std::string_view path) {
    const std::string shown = safeForSentence(path);
    switch (fault) {
    case DocumentFault::damaged:
        return localizedText("“%@” is damaged.", {shown});
    case DocumentFault::otherVersion:
        return localizedText("“%@” has the format of another version of kxctl.", {shown});
    case DocumentFault::otherKind:
        break;
    }
    return localizedText("“%@” is another kind of file than the one that is wanted.", {shown});
}

} // namespace kx
