#pragma once

#include "editor/CCorvelEditor.h"
#include "effect/CCorvel.h"
#include "hostlayer/FakeHost.h"

/// An effect that notes whether its editor was making a change itself at each change of a
/// parameter.
class CSpyEffect : public Tessitor::Corvel::CCorvel {
public:
    CSpyEffect() : CCorvel(FakeHost::callback) {}

    void setParameter(int index, float value) override {
        const auto *shown = dynamic_cast<Tessitor::Vst::CVstWindow *>(getEditor());
        wasEditing.push_back(shown != nullptr && shown->getIsEditing());
        CCorvel::setParameter(index, value);
    }

    std::vector<bool> wasEditing;
};
