// print_effect FILE: loads an effect as a host does and prints its name.
#define CORVEL_PLUGIN_FILE ""
#include "abi/LoadedPlugin.h"

#include <cstdio>
#include <exception>

namespace {

std::intptr_t answer(AEffect *, std::int32_t opcode, std::int32_t, std::intptr_t, void *, float) {
    return opcode == audioMasterVersion ? kVstVersion : 0;
}

}  // namespace

int main(int, char **arguments) {
    try {
        const CPluginFile file(arguments[1]);
        const CLoadedEffect effect(file, answer);
        std::printf("%s\n", effect.text(effGetEffectName).c_str());
        return 0;
    } catch (const std::exception &error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}
