#pragma once

#include "editor/CCorvelEditor.h"
#include "toolkit/menus/CMenuEvent.h"

/// An editor that notes which menu has been opened last.
class CMenuSpy : public Tessitor::Corvel::CCorvelEditor {
public:
    using CCorvelEditor::CCorvelEditor;
    void menuOpened(Tessitor::GUI::Events::CMenuEvent &event) override {
        lastMenu = event.getMenu();
    }

    Tessitor::GUI::Controls::CMenu *lastMenu = nullptr;
};
