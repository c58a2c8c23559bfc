#include "platform/linux/windowing/keyboard/CKeyComposer.h"

#include <cstdlib>
#include <string_view>

namespace {

// The host may not have set the locale of the process, so that the environment counts.
std::string_view userLocale() {
    for (const char *name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char *value = std::getenv(name);
        if (value != nullptr && *value != '\0')
            return value;
    }
    return "";
}

/// @return the locale whose tables count. Only those of UTF-8 hold whatever the keys can type.
std::string tableLocale() {
    const std::string_view locale = userLocale();
    const bool isUtf8 = locale.find("UTF-8") != locale.npos || locale.find("utf8") != locale.npos;
    return isUtf8 ? std::string(locale) : "en_US.UTF-8";
}

}  // namespace

void CKeyComposer::load() {
    m_isLoaded = true;
    const std::unique_ptr<xkb_context, SDelete> context(
        xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES));
    if (!context)
        return;
    xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
    const std::unique_ptr<xkb_compose_table, SDelete> table(xkb_compose_table_new_from_locale(
        context.get(), tableLocale().c_str(), XKB_COMPOSE_COMPILE_NO_FLAGS));
    if (table)
        m_state.reset(xkb_compose_state_new(table.get(), XKB_COMPOSE_STATE_NO_FLAGS));
}

CKeyComposer::EResult CKeyComposer::feed(xkb_keysym_t keysym) {
    if (!m_isLoaded)
        load();
    if (!m_state || xkb_compose_state_feed(m_state.get(), keysym) == XKB_COMPOSE_FEED_IGNORED)
        return EResult::Nothing;
    switch (xkb_compose_state_get_status(m_state.get())) {
    case XKB_COMPOSE_COMPOSING:
        return EResult::Waiting;
    case XKB_COMPOSE_COMPOSED:
        return EResult::Composed;
    case XKB_COMPOSE_CANCELLED:
        return EResult::Cancelled;
    default:
        return EResult::Nothing;
    }
}

void CKeyComposer::reset() {
    if (m_state)
        xkb_compose_state_reset(m_state.get());
}

std::string CKeyComposer::getText() const {
    char text[64] = {};
    if (m_state)
        xkb_compose_state_get_utf8(m_state.get(), text, sizeof text);
    return text;
}
