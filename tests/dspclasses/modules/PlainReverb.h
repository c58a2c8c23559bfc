#pragma once

#include "dspclasses/blocks/PlainAllPass.h"
#include "dspclasses/blocks/PlainDelayLine.h"
#include "dspclasses/blocks/PlainOnePole.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/Truncation.h"

#include <cmath>
#include <cstddef>

/// The plain version of the reverb: one frame after the other, every field read at each use.
class CPlainReverb final : public CDSPBase {
public:
    CPlainReverb() {
        setParameter(2, 0.75f);
        setParameter(3, 0.4f);
        setParameter(1, 2.0f);
        setParameter(0, 100.0f);
        earlyLevel = 0.7f;
        tailLevel = 0.6f;
        setParameter(4, 0.3f);
    }

    void setParameter(int index, float value) override {
        switch (index) {
        case 0:
            setRoomSize(value);
            break;
        case 1:
            setReverbTime(value);
            break;
        case 2:
            if (value == inputDamping)
                return;
            inputDamping = value;
            inputFilter.setPole(1.0f - value);
            break;
        case 3:
            if (value == wallDamping)
                return;
            wallDamping = value;
            for (CPlainOnePole &damper : tailDampers)
                damper.setPole(value);
            break;
        case 4:
            setSpread(value);
            break;
        case 5:
            dryLevel = value;
            break;
        case 6:
            earlyLevel = value;
            break;
        case 7:
            tailLevel = value;
            break;
        default:
            break;
        }
    }

    float getParameter(int index) override {
        const float values[] = {roomSize, reverbTime, inputDamping, wallDamping,
                                spread,   dryLevel,   earlyLevel,   tailLevel};
        return index >= 0 && index < 8 ? values[index] : 0.0f;
    }

    void processReplacing(float **in, float **out, int frames) override {
        for (int i = 0; i < frames; ++i) {
            const float left = in[0][i], right = in[1][i];
            float wetL, wetR;
            frame(left, right, wetL, wetR);
            out[0][i] = left * dryLevel + wetL;
            out[1][i] = right * dryLevel + wetR;
        }
    }

    void processDoubleReplacing(double **in, double **out, int frames) override {
        for (int i = 0; i < frames; ++i) {
            const double left = in[0][i], right = in[1][i];
            float wetL, wetR;
            frame(static_cast<float>(left), static_cast<float>(right), wetL, wetR);
            out[0][i] = left * static_cast<double>(dryLevel) + static_cast<double>(wetL);
            out[1][i] = right * static_cast<double>(dryLevel) + static_cast<double>(wetR);
        }
    }

    void reset() override {
        inputFilter.clear();
        earlyLine.clear();
        for (std::size_t k = 0; k < 4; ++k) {
            tailDampers[k].clear();
            tailDelays[k].clear();
            diffuserLeft[k].clear();
            diffuserRight[k].clear();
            earlyOut[k] = tailOut[k] = feedback[k] = 0.0f;
        }
    }

private:
    static float power(float base, float exponent) {
        return static_cast<float>(std::pow(double{base}, double{exponent}));
    }

    void setRoomSize(float value) {
        if (value == roomSize)
            return;
        roomSize = value <= 1.0f ? 1.0f : value;
        delayBase = sampleRate * roomSize * 0.00294f;
        const float lengths[4] = {1.0f, 0.81649f, 0.7071f, 0.63245f};
        const float taps[4] = {0.41f, 0.3f, 0.155f, 0.0f};
        for (std::size_t k = 0; k < 4; ++k) {
            tailLengths[k] = std::floor(delayBase * lengths[k]);
            tapOffsets[k] = std::floor(delayBase * taps[k]) + 5.0f;
        }
        for (std::size_t k = 0; k < 4; ++k) {
            tailGains[k] = -power(static_cast<float>(decayBase), tailLengths[k]);
            tapGains[k] = power(static_cast<float>(decayBase), tapOffsets[k]);
        }
    }

    void setReverbTime(float value) {
        if (value == reverbTime)
            return;
        reverbTime = value;
        decayBase = std::pow(0.001, 1.0 / static_cast<double>(reverbTime * sampleRate));
        for (std::size_t k = 0; k < 4; ++k)
            tailGains[k] = -power(static_cast<float>(decayBase), tailLengths[k]);
    }

    void setSpread(float s) {
        if (s == spread)
            return;
        spread = s;
        const float scale = tailLengths[3] / 1341.0f;
        const int n0 = truncated(scale * 210.0f);
        const int A = truncated(s * 50.0f * -0.125541f);
        const int B = 931 - truncated(s * 3.0f * 50.0f * -0.854046f);
        diffuserLeft[0].setDelayLength(n0);
        diffuserLeft[1].setDelayLength(truncated(static_cast<float>(159 - A) * scale));
        diffuserLeft[2].setDelayLength(truncated(static_cast<float>(B - (369 - A)) * scale));
        diffuserLeft[3].setDelayLength(truncated(static_cast<float>(1341 - B) * scale));
        const int C = truncated(s * 50.0f * 0.568366f);
        const int D = truncated(s * 3.0f * 50.0f * 0.126815f);
        diffuserRight[0].setDelayLength(n0);
        diffuserRight[1].setDelayLength(truncated(static_cast<float>(159 - C) * scale));
        diffuserRight[2].setDelayLength(truncated(static_cast<float>(931 - D - (369 - C)) * scale));
        diffuserRight[3].setDelayLength(truncated(static_cast<float>(D + 410) * scale));
        const float coefficients[4] = {0.75f, 0.75f, 0.625f, 0.625f};
        for (std::size_t k = 0; k < 4; ++k) {
            diffuserLeft[k].coefficient = coefficients[k];
            diffuserRight[k].coefficient = coefficients[k];
        }
    }

    void frame(float left, float right, float &wetL, float &wetR) {
        const float filteredL = inputFilter.tick(left);
        const float diffusedL = diffuserLeft[0].tick(filteredL);
        const float filteredR = inputFilter.tick(right);
        const float diffusedR = diffuserRight[0].tick(filteredR);
        const float mono = (diffusedL + diffusedR) * 0.5f;
        for (std::size_t k = 0; k < 4; ++k)
            earlyOut[k] = earlyLine.read(tapOffsets[k]) * tapGains[k];
        earlyLine.write(mono);
        for (std::size_t k = 0; k < 4; ++k)
            tailOut[k] = tailDampers[k].tick(tailDelays[k].read(tailLengths[k]) * tailGains[k]);
        float y[4];
        for (std::size_t k = 0; k < 4; ++k)
            y[k] = earlyLevel * earlyOut[k] + tailLevel * tailOut[k];
        const float wet = y[0] - y[1] + y[2] - y[3];
        const float a = tailOut[0], b = tailOut[1], c = tailOut[2], d = tailOut[3];
        feedback[0] = (a + b - c - d) * 0.5f;
        feedback[1] = (a - b - c + d) * 0.5f;
        feedback[2] = (b - a - c + d) * 0.5f;
        feedback[3] = (a + b + c + d) * 0.5f;
        for (std::size_t k = 0; k < 4; ++k)
            tailDelays[k].write(feedback[k] + earlyOut[k]);
        wetL = diffuserLeft[3].tick(diffuserLeft[2].tick(diffuserLeft[1].tick(wet)));
        wetR = diffuserRight[3].tick(diffuserRight[2].tick(diffuserRight[1].tick(wet)));
    }

    float inputDamping = -1.0f;
    float dryLevel = -1.0f;
    float earlyLevel = -1.0f;
    float tailLevel = -1.0f;
    float roomSize = -1.0f;
    float reverbTime = -1.0f;
    float delayBase = 0.0f;
    float spread = -1.0f;
    CPlainOnePole inputFilter;
    CPlainDelayLine tailDelays[4]{CPlainDelayLine(52882), CPlainDelayLine(52882),
                                  CPlainDelayLine(52882), CPlainDelayLine(52882)};
    float tailGains[4]{};
    float tailLengths[4]{};
    CPlainOnePole tailDampers[4];
    float wallDamping = -1.0f;
    float tapOffsets[4]{};
    float tapGains[4]{};
    CPlainDelayLine earlyLine{4};
    CPlainAllPass diffuserLeft[4];
    CPlainAllPass diffuserRight[4];
    float earlyOut[4]{};
    float tailOut[4]{};
    float feedback[4]{};
    double decayBase = -1.0;
};
