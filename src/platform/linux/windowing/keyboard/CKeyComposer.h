#pragma once

#include <memory>
#include <string>
#include <xkbcommon/xkbcommon-compose.h>

/// Composes characters of several keys, such as an accent and its letter, as the tables of the
/// user's language say. They are read at first use. [gui thread]
class CKeyComposer {
public:
    enum class EResult {
        Nothing,    ///< the key is no part of a composition
        Waiting,    ///< it waits for the next
        Composed,   ///< getText() has what they type together
        Cancelled,  ///< it does not fit; all of them type nothing
    };
    EResult feed(xkb_keysym_t keysym);
    void reset();  ///< forgets what waits
    std::string getText() const;

private:
    struct SDelete {
        void operator()(xkb_context *context) const { xkb_context_unref(context); }
        void operator()(xkb_compose_table *table) const { xkb_compose_table_unref(table); }
        void operator()(xkb_compose_state *state) const { xkb_compose_state_unref(state); }
    };
    void load();

    bool m_isLoaded = false;
    std::unique_ptr<xkb_compose_state, SDelete> m_state;  // null if there are no tables
};
