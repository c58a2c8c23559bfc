#pragma once

#include "CEffectInHost.h"

#include <atomic>
#include <random>

/// A user and a host who do things at random to an editor, beside a model of the chain of modules.
class CEditorStress {
public:
    CEditorStress(CDesktop &desktop, const CPluginFile &file, unsigned seed);
    ~CEditorStress() { m_driven.close(); }
    CEditorStress(const CEditorStress &) = delete;
    CEditorStress &operator=(const CEditorStress &) = delete;

    /// Does one thing. @return a word for it.
    const char *act();
    /// @return whether the chain of the effect is that of the model.
    bool isAsExpected() const { return m_driven.stored().links == m_chain.getLinks(); }
    const CLoadedEffect &effect() const { return m_driven.effect; }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
    int randomSlot() { return below(Layout::slotCount); }
    /// A place without a hot spot; it may have a control.
    SNativePoint randomPlace();
    int moduleIn(int slot) const { return m_chain.getSlots().at(static_cast<std::size_t>(slot)); }

    // The user
    const char *insert();
    const char *replace();
    const char *moveLeft();
    const char *moveRight();
    const char *drag();
    const char *turnWheel();
    const char *click();
    const char *doubleClick();
    const char *typeKey();
    /// @return the chosen module; -1 for none, -2 if it could not be chosen.
    int chooseModule(bool isInserted);
    void endMenu();

    // The host
    const char *changeProgram();
    const char *changeParameters();
    const char *changeChunk();
    const char *openAgain();

    CDesktop &m_desktop;
    std::mt19937 m_random;
    CEffectInHost m_driven;
    CChainModel m_chain;
    std::vector<CChainModel::Links> m_programs;
    int m_program = 0;
};
