#include "Layout.h"

namespace Layout {

namespace {

constexpr EControl knob = EControl::Knob, menuKnob = EControl::MenuKnob, button = EControl::Button;

constexpr SPlace balance[] = {{2, knob, centred, 0}};
constexpr SPlace pan[] = {{3, knob, centred, 0}};
constexpr SPlace gain[] = {{4, knob, centred, 0}};
constexpr SPlace equaliser[] = {{5, knob, centred, 2},
                                {6, knob, centred, 1},
                                {7, knob, centred, 0},
                                {8, knob, 0, 3},
                                {9, knob, 1, 3}};
constexpr SPlace rumble[] = {{10, knob, centred, 0}};
constexpr SPlace hiPass[] = {{11, knob, centred, 0}};
constexpr SPlace presence[] = {{12, knob, 0, 0}, {13, knob, 1, 0}};
constexpr SPlace parametric[] = {{14, knob, 0, 0}, {15, knob, 1, 0}, {16, knob, centred, 1}};
constexpr SPlace gate[] = {{17, knob, centred, 0}, {18, knob, 0, 1}, {19, knob, 1, 1}};
constexpr SPlace compressor[] = {{20, knob, 0, 0},       {21, knob, 0, 1},
                                 {22, knob, 1, 1},       {23, knob, 1, 0},
                                 {24, knob, centred, 2}, {25, button, centred, 3}};
constexpr SPlace deEsser[] = {{26, knob, 0, 0}, {27, knob, 1, 1},         {28, knob, 1, 0},
                              {29, knob, 0, 1}, {30, button, centred, 2}, {31, button, centred, 3}};
constexpr SPlace modulator1[] = {
    {32, menuKnob, centred, 0}, {33, knob, 0, 1}, {34, knob, 1, 1}, {35, knob, 0, 2},
    {36, knob, 1, 2},           {37, knob, 0, 3}, {38, knob, 1, 3}};
constexpr SPlace modulator2[] = {
    {39, menuKnob, centred, 0}, {40, knob, 0, 1}, {41, knob, 1, 1}, {42, knob, 0, 2},
    {43, knob, 1, 2},           {44, knob, 0, 3}, {45, knob, 1, 3}};
constexpr SPlace warmer[] = {{46, knob, centred, 0}};
constexpr SPlace delay[] = {{47, knob, 0, 0},   {48, menuKnob, 0, 1}, {49, knob, 1, 0},
                            {50, button, 1, 1}, {51, knob, 0, 2},     {52, knob, 1, 2}};
constexpr SPlace reverb[] = {{53, knob, 0, 0}, {54, knob, 0, 1}, {55, knob, 1, 0},
                             {56, knob, 1, 1}, {57, knob, 0, 2}, {58, knob, 1, 2},
                             {59, knob, 0, 3}, {60, knob, 1, 3}};

constexpr std::span<const SPlace> panels[] = {
    balance, pan,        gain,    equaliser,  rumble,     hiPass, presence, parametric,
    gate,    compressor, deEsser, modulator1, modulator2, warmer, delay,    reverb};

constexpr double stereoModes[] = {0.0, 1.0 / 3.0, 2.0 / 3.0, 1.0};
constexpr double modulations[] = {0.0, 0.5, 1.0};
constexpr double delayTimes[] = {0.0, 1.0, 0.5};

}  // namespace

std::span<const SPlace> placesOf(int module) {
    return panels[module - kFirstModuleSlot];
}

std::span<const double> menuValues(int id) {
    switch (id) {
    case kInMono:
    case kOutMono:
        return stereoModes;
    case kDlySync:
        return delayTimes;
    default:
        return modulations;
    }
}

}  // namespace Layout
