#pragma once

#include "hostlayer/VstInterface.h"

class AudioEffect;

/// An effect's editor, as the dispatcher drives it. Hosts differ in what they ask first, so the
/// rectangle is right whether the editor is open or not. [gui thread], which need not be the thread
/// that made the effect.
class AEffEditor {
public:
    /// @param owner  outlives the editor; may be null.
    explicit AEffEditor(AudioEffect *owner = nullptr) : effect(owner) {}
    /// Takes the editor out of its effect, so that one whose construction fails is not deleted
    /// twice.
    virtual ~AEffEditor();
    AEffEditor(const AEffEditor &) = delete;
    AEffEditor &operator=(const AEffEditor &) = delete;

    AudioEffect *getEffect() const { return effect; }

    /// Points `rect` at a record that stays the editor's. @return false if there is none.
    virtual bool getRect(ERect **rect) = 0;
    /// @param parent  HWND or X window id; need not be mapped nor have its size yet.
    /// @return whether the editor is open.
    virtual bool open(void *parent);
    virtual void close() { systemWindow = nullptr; }
    virtual bool isOpen() { return systemWindow != nullptr; }
    virtual void idle() {}

    /// @return whether the key was used; the host takes it otherwise.
    virtual bool onKeyDown(VstKeyCode &) { return false; }
    virtual bool onKeyUp(VstKeyCode &) { return false; }
    /// @param mode  VstKnobMode. @return whether the editor follows it.
    virtual bool setKnobMode(int /*mode*/) { return false; }

protected:
    AudioEffect *effect;
    void *systemWindow = nullptr;  // the parent while open, null otherwise
};
