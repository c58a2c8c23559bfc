#include "FakeNativeShell.h"

#include "platform/NativeShell.h"

std::vector<std::string> &openedDocuments() {
    static std::vector<std::string> documents;
    return documents;
}

bool openNativeDocument(const std::string &document) {
    openedDocuments().push_back(document);
    return true;
}
