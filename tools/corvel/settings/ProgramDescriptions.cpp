#include "corvel/settings/ProgramDescriptions.h"

#include "effect/SProgram.h"

#include <array>

namespace Tessitor::Tool {

namespace {

struct SDescription {
    std::string_view name, text;
};

constexpr std::array<SDescription, Corvel::programCount> descriptions{{
    {"Lead Vocal", "A lead voice: rumble removed, gently compressed, in a small room"},
    {"Male Vocal", "A male voice: de-essed, with some body and a small room"},
    {"Female Vocal", "A female voice: de-essed, with some edge and a room"},
    {"BV (Pop)", "Backing voices for pop: thin, compressed, sweeping, with echoes in tempo"},
    {"BV (Ballad)", "Backing voices for ballads: thin and soft, in a wide room"},
    {"Pop Vocal", "A finished pop voice: dense, doubled, with echoes in tempo from side to side"},
    {"Bad Mic Correction", "A poor microphone: noise gated, hiss and harshness reduced"},
    {"Rock Vocal (Insert)", "A rough rock voice, to insert into its track"},
    {"Rock Vocal (Send)", "Echo and room for a rock voice, to mix with the dry track"},
    {"Pop Chorus (Insert)", "Warm and bright voices of a chorus, to insert into their track"},
    {"Pop Chorus (Send)", "Doubling, echo and room for a chorus, to mix with the dry track"},
    {"Choir", "Makes a few voices sound like a choir in a large hall"},
    {"Pub", "A voice in a small and crowded room"},
    {"Small Room (Send)", "The sound of a small room, to mix with the dry track"},
    {"Concert Hall (Send)", "The sound of a concert hall, to mix with the dry track"},
    {"Gated Cavern (Send)", "A huge reverb that a gate cuts off, to mix with the dry track"},
    {"Concrete Jungle", "An effect: a hollow, doubled voice between hard walls"},
    {"Close Vocal", "A voice close to the ear: lightly compressed, with presence and no room"},
    {"Punk Vocal", "A driven voice: de-essed, then overloaded"},
    {"Empty", "No modules: the signal passes unchanged, to start from"},
}};

}  // namespace

std::string_view programDescription(std::string_view name) {
    for (const SDescription &description : descriptions)
        if (description.name == name)
            return description.text;
    return "";
}

}  // namespace Tessitor::Tool
