#include "dspclasses/parameters/ParameterLaws.h"

#include "dspclasses/kernels/SingleMath.h"

namespace ParameterLaws {

static float twoTo(float exponent) {
    return powSingle(2.0f, exponent);
}

float raw(float v) {
    return v;
}

float gain(float v) {
    if (v > 0.5f)
        return (v - 0.5f) * 12.0f;
    // Kept: the two lines meet at 0.2, but this one is used up to 0.25. The gain drops 5 dB there.
    if (v < 0.25f)
        return (0.2f - v) * -180.0f - 24.0f;
    return (0.5f - v) * -80.0f;
}

float plusMinus12(float v) {
    return 24.0f * v - 12.0f;
}

float threshold(float v) {
    return 60.0f * v - 60.0f;
}

float lowCrossover(float v) {
    return 100.0f * twoTo(3.0f * v);
}

float highCrossover(float v) {
    return 100.0f * twoTo(2.0f * v + 4.0f);
}

float rumbleFrequency(float v) {
    return powSingle(5.0f, 3.0f * v);
}

float hiPassFrequency(float v) {
    constexpr float log2Of20 = 4.32192802f;
    return 100.0f * twoTo(log2Of20 * v);
}

float presenceFrequency(float v) {
    constexpr float log2Of6 = 2.58496261f;
    return 1000.0f * twoTo(log2Of6 * v);
}

float parametricFrequency(float v) {
    constexpr float log2Of60 = 5.90689039f;
    return v > 0.999f ? 6000.0f : 100.0f * twoTo(log2Of60 * v);
}

float bandwidth(float v) {
    return twoTo(3.0f * v - 3.0f);
}

float deEsserFrequency(float v) {
    return v > 0.999f ? 8000.0f : 1000.0f * twoTo(2.0f * v + 1.0f);
}

float modulationSpeed(float v) {
    constexpr float log2Of10 = 3.32192802f;
    return 2.0f * twoTo(-log2Of10 * (1.0f - v));
}

float gateAttack(float v) {
    return 499.0f * v + 1.0f;
}

float gateRelease(float v) {
    return 950.0f * v + 50.0f;
}

float compressorAttack(float v) {
    return 99.0f * v + 1.0f;
}

float compressorRelease(float v) {
    return 198.0f * v + 2.0f;
}

float compressorRatio(float v) {
    return 7.0f * v + 1.0f;
}

float deEsserRatio(float v) {
    return 6.0f * v + 1.0f;
}

float modulationWidth(float v) {
    return 35.0f * v + 5.0f;
}

float modulationDepth(float v) {
    return 0.5f * v;
}

float delayTime(float v) {
    return 1450.0f * v + 50.0f;
}

float roomSize(float v) {
    return v < 0.5f ? 198.0f * v + 1.0f : 600.0f * (v - 0.5f) + 100.0f;
}

float reverbTime(float v) {
    return 7.8f * v + 0.2f;
}

}  // namespace ParameterLaws
