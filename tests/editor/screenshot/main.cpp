// editor_screenshot FILE.pam PROGRAM [SLOT MODULE]: writes what the editor shows after a change to
// a program. With SLOT, counted from 0, the menu for inserting a module there is open, with the
// mouse on MODULE. On Linux it starts an X server of its own.
#include "editor/driven/CEffectInHost.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string_view>

namespace {

constexpr float inputGain = 0.55f;  // a user has set it

int numberOfProgram(const CLoadedEffect &effect, std::string_view name) {
    for (int number = 0; number < effect.record().numPrograms; ++number)
        if (effect.text(effGetProgramNameIndexed, number) == name)
            return number;
    throw std::runtime_error("there is no such program");
}

int numberOfModule(std::string_view name) {
    const auto found = std::ranges::find(slotLabels, name);
    if (found == slotLabels.end())
        throw std::runtime_error("there is no such module");
    return static_cast<int>(found - slotLabels.begin());
}

SNativeRect unionOf(const SNativeRect &one, const SNativeRect &other) {
    return {std::min(one.left, other.left), std::min(one.top, other.top),
            std::max(one.right, other.right), std::max(one.bottom, other.bottom)};
}

/// Writes what the screen shows of two windows, and nothing around them.
void write(const CDesktop &desktop, const SNativeRect &editor, const SNativeRect &menu,
           const char *path) {
    const SNativeRect area = unionOf(editor, menu);
    const CPicture picture = desktop.pictureOfScreen(area);
    std::ofstream file(path, std::ios::binary);
    file << "P7\nWIDTH " << picture.getWidth() << "\nHEIGHT " << picture.getHeight()
         << "\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n";
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            const bool isSeen = contains(editor, x, y) || contains(menu, x, y);
            const std::uint32_t colour = picture.at(x - area.left, y - area.top);
            const std::uint32_t pixel = isSeen ? colour << 8 | 0xFF : 0;
            for (const int shift : {24, 16, 8, 0})
                file.put(static_cast<char>(pixel >> shift));
        }
    }
    if (!file.flush())
        throw std::runtime_error("cannot write the picture");
}

void takeScreenshot(std::span<char *const> arguments) {
    CDesktop desktop;
    const CPluginFile file;
    FakeHost host;
    CEffectInHost driven(desktop, file);
    driven.effect.send(effSetProgram, 0, numberOfProgram(driven.effect, arguments[1]));
    driven.effect.setParameter(kInGain, inputGain);
    driven.open();
    if (arguments.size() == 4) {
        driven.clickHotSpot(Layout::EHotSpot::Insert, std::atoi(arguments[2]));
        driven.pointAtModule(numberOfModule(arguments[3]));
    }
    const auto [left, top] = driven.onScreen({0, 0});
    const SNativeRect editor = {left, top, left + Layout::width, top + Layout::height};
    write(desktop, editor, desktop.openMenu().value_or(editor), arguments[0]);
    driven.effect.send(effEditClose);
}

}  // namespace

int main(int argc, char **argv) {
    if (argc != 3 && argc != 5) {
        std::cerr << "usage: editor_screenshot FILE.pam PROGRAM [SLOT MODULE]\n";
        return 2;
    }
    try {
        takeScreenshot({argv + 1, argv + argc});
    } catch (const std::exception &exception) {
        std::cerr << "editor_screenshot: " << exception.what() << '\n';
        return 1;
    }
    return 0;
}
