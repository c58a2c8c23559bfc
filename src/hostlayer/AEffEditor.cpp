#include "hostlayer/AEffEditor.h"

#include "hostlayer/AudioEffect.h"

AEffEditor::~AEffEditor() {
    if (effect != nullptr && effect->getEditor() == this)
        effect->setEditor(nullptr);
}

bool AEffEditor::open(void *parent) {
    systemWindow = parent;
    return true;
}
