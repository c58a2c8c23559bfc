#pragma once

#include "hostlayer/VstInterface.h"

class AudioEffect;

/// An effect's editor as the dispatcher sees it. The rectangle is valid whether the editor is open
/// or not: Audacity 3.2.4 asks for it before it opens the editor, Ardour 7.3 afterwards.
///
/// [gui thread], which in Ardour 7.3 is not the thread that created the effect.
class AEffEditor {
public:
    /// @param owner  outlives the editor; may be null.
    explicit AEffEditor(AudioEffect *owner = nullptr) : effect(owner) {}
    /// Removes the editor from its effect: if a constructor throws, the effect must not delete the
    /// editor again.
    virtual ~AEffEditor();
    AEffEditor(const AEffEditor &) = delete;
    AEffEditor &operator=(const AEffEditor &) = delete;

    AudioEffect *getEffect() const { return effect; }

    /// Points `rect` at a record that the editor owns. @return false if there is none.
    virtual bool getRect(ERect **rect) = 0;
    /// @param parent  HWND or X window id. It may not be mapped yet, or not have its size.
    /// @return true if the editor is open.
    virtual bool open(void *parent);
    virtual void close() { systemWindow = nullptr; }
    virtual bool isOpen() { return systemWindow != nullptr; }
    virtual void idle() {}

    /// @return true if the key was used; otherwise the host handles it.
    virtual bool onKeyDown(VstKeyCode &) { return false; }
    virtual bool onKeyUp(VstKeyCode &) { return false; }
    /// @param mode  VstKnobMode. @return true if the editor adopts it.
    virtual bool setKnobMode(int /*mode*/) { return false; }

protected:
    AudioEffect *effect;
    void *systemWindow = nullptr;  // the parent while open, null otherwise
};
