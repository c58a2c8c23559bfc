#include "toolkit/controls/FakeNativeTextField.h"

#include <cstdio>

namespace {

class CFakeField : public INativeTextField {
public:
    CFakeField() { fakeNativeTextField().isOpen = true; }
    ~CFakeField() override { fakeNativeTextField().isOpen = false; }
    void *getHandle() const override { return &fakeNativeTextField(); }
    std::intptr_t colour(void *deviceContext) override {
        fakeNativeTextField().deviceContext = deviceContext;
        return 42;
    }
    void getText(char *buffer, std::int32_t size) const override {
        std::snprintf(buffer, static_cast<std::size_t>(size), "%s",
                      fakeNativeTextField().text.c_str());
    }
};

}  // namespace

SFakeNativeTextField &fakeNativeTextField() {
    static SFakeNativeTextField field;
    return field;
}

std::unique_ptr<INativeTextField> createNativeTextField(void *window,
                                                        const SNativeTextFieldSettings &settings,
                                                        INativeTextFieldListener &listener) {
    SFakeNativeTextField &fake = fakeNativeTextField();
    if (fake.isRefused)
        return nullptr;
    fake.window = window;
    fake.settings = settings;
    fake.text = settings.text;
    fake.settings.text = nullptr;
    fake.listener = &listener;
    return std::make_unique<CFakeField>();
}
