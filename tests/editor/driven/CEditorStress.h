#pragma once

#include "CEffectInHost.h"

#include <functional>
#include <random>
#include <string>

/// A user and a host who do things at random to an editor, beside a model of the chain of modules
/// and of the values that the host has set.
class CEditorStress {
public:
    CEditorStress(CDesktop &desktop, const CPluginFile &file, unsigned seed);
    ~CEditorStress() { m_driven.close(); }
    CEditorStress(const CEditorStress &) = delete;
    CEditorStress &operator=(const CEditorStress &) = delete;

    /// Does one thing. @return a word for it.
    const char *act();
    /// @return what the last action has left different from what it should be; "" if nothing.
    std::string difference() const;

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
    const char *changeParametersInDrag();
    const char *changeChunk();
    const char *openAgain();
    /// Compares the editor with a new one.
    const char *look();

    /// Sets values on another thread, as a host's automation does, and plays a little, while the
    /// user does something else to the parameters below `first`.
    void automate(int first, const std::function<void()> &user);
    void play(int blocks) const;
    /// @param limit  of how many modules it may have.
    void restoreChain(int limit);

    CDesktop &m_desktop;
    const CPluginFile &m_file;
    std::mt19937 m_random;
    CEffectInHost m_driven;
    CChainModel m_chain;
    std::vector<CChainModel::Links> m_programs;
    int m_program = 0;
    std::string m_wrongValue, m_wrongPicture;
};
