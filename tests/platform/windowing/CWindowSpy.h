#pragma once

#include "platform/INativeWindow.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

/// A window that remembers what it reports and paints itself blue. It is a visible child of 100 by
/// 50 at 10, 20 unless the options say otherwise.
class CWindowSpy : public INativeWindowListener {
public:
    struct SMessage {
        unsigned number;
        std::uintptr_t wParam;
        std::intptr_t lParam;
        bool operator==(const SMessage &) const = default;
    };
    using Result = std::optional<std::intptr_t>;

    static constexpr std::uint32_t colour = 0x0102FA;

    CWindowSpy() {
        options.className = "com.tessitor.Test.window";
        options.title = "window";
        options.style = 0x50000000;
        options.extendedStyle = 16;
        options.bounds = {10, 20, 110, 70};
    }

    void create() {
        window = createNativeWindow(options, *this, reason);
        ASSERT_NE(window, nullptr) << reason;
    }

    Result handleMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) override {
        messages.push_back({message, wParam, lParam});
        Result result;
        if (message == NativePaint && window != nullptr) {
            paint();
            result = 0;
        }
        if (onMessage)
            if (const Result other = onMessage(SMessage{message, wParam, lParam}))
                result = other;
        return result;
    }
    void handleTimer(int id) override {
        timers.push_back(id);
        if (onTimer)
            onTimer(id);
    }
    void handleNativeDestroyed() override {
        ++ends;
        if (onEnd)
            onEnd();
    }

    /// @return the lParams of a message since the last call of messages.clear().
    std::vector<std::intptr_t> all(unsigned number) const {
        std::vector<std::intptr_t> found;
        for (const SMessage &message : messages)
            if (message.number == number)
                found.push_back(message.lParam);
        return found;
    }

    SNativeWindowOptions options;
    std::string reason = "untouched";
    std::vector<SMessage> messages;
    std::vector<int> timers;
    std::vector<SNativeRect> painted;
    int ends = 0;
    std::function<Result(const SMessage &)> onMessage;
    std::function<void(int)> onTimer;
    std::function<void()> onEnd;
    std::function<void(INativeSurface &)> onPaint;  // may draw on the picture of a painting
    std::unique_ptr<INativeWindow> window;

private:
    void paint() {
        window->paint([this](INativePaintTarget &target, const SNativeRect &dirty) {
            painted.push_back(dirty);
            const auto picture =
                createNativeSurface(&target, dirty.right, dirty.bottom, {1, 2, 250});
            if (picture == nullptr)
                return;
            if (onPaint)
                onPaint(*picture);
            target.copyFrom(*picture, dirty);
        });
    }
};
