#pragma once

#include "dspclasses/blocks/PlainDelayLine.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/Truncation.h"

#include <cmath>
#include <cstdint>

/// The plain version of the modulators: the whole left channel of a block, then the right, every
/// field read at each use.
class CPlainModulation : public CDSPBase {
public:
    CPlainModulation() {
        leftLine.resize(4096);
        rightLine.resize(4096);
    }

    void setParameter(int index, float value) override {
        switch (index) {
        case 0:
            setType(value);
            break;
        case 1:
            if (value == widthMs)
                return;
            widthMs = value;
            widthSamples = wholeCount(value * 0.001f * sampleRate);
            if (widthSamples > 4096) {
                leftLine.resize(widthSamples);
                rightLine.resize(widthSamples);
            }
            applyDepth();
            break;
        case 2:
            if (value == depth)
                return;
            depth = value;
            applyDepth();
            break;
        case 3:
            if (value == speedHz)
                return;
            speedHz = value;
            lfoIncrement = value * invSampleRate * 2.0f;
            break;
        case 4:
            if (value == spread)
                return;
            phaseRight += (value - spread) * 0.5f;
            if (phaseRight > 1.0f)
                phaseRight -= 2.0f;
            spread = value;
            break;
        case 5:
            if (value == feedback)
                return;
            feedback = value;
            if (type == 1) {
                feedbackGain = value;
            } else if (type == 2) {
                directGain = -value;
                feedbackGain = value;
            }
            break;
        case 6:
            if (value == mix)
                return;
            mix = value;
            dryGain = std::sqrt(0.5f - (value - 0.5f));
            wetGain = std::sqrt(value - 0.5f + 0.5f);
            break;
        default:
            break;
        }
    }

    float getParameter(int index) override {
        switch (index) {
        case 0:
            return type == 0 ? 0.0f : type == 1 ? 0.5f : 1.0f;
        case 1:
            return widthMs;
        case 2:
            return depth;
        case 3:
            return speedHz;
        case 4:
            return spread;
        case 5:
            return feedback;
        case 6:
            return mix;
        default:
            return 0.0f;
        }
    }

    void processReplacing(float **in, float **out, int frames) override {
        for (int i = 0; i < frames; ++i)
            frame(in[0][i], out[0][i], phaseLeft, leftLine);
        for (int i = 0; i < frames; ++i)
            frame(in[1][i], out[1][i], phaseRight, rightLine);
    }

    void processDoubleReplacing(double **in, double **out, int frames) override {
        for (int i = 0; i < frames; ++i)
            frame(in[0][i], out[0][i], phaseLeft, leftLine);
        for (int i = 0; i < frames; ++i)
            frame(in[1][i], out[1][i], phaseRight, rightLine);
    }

    void reset() override {
        leftLine.clear();
        rightLine.clear();
    }

private:
    void setType(float value) {
        const std::int32_t t = truncated(value * 10.0f);
        const std::int32_t newType = t < 0 || t > 6 ? 2 : t < 4 ? 0 : 1;
        if (newType == type)
            return;
        type = newType;
        delayedGain = 1.0f;
        if (type == 0) {
            directGain = 0.0f;
            feedbackGain = 0.0f;
        } else if (type == 1) {
            directGain = 0.0f;
            feedbackGain = feedback;
        } else {
            directGain = -feedback;
            feedbackGain = feedback;
        }
    }

    void applyDepth() {
        depthSamples = wholeCount(static_cast<float>(widthSamples) * depth);
        baseSamples = widthSamples - depthSamples;
    }

    float wave(float &phase) const {
        phase += lfoIncrement;
        if (phase > 1.0f)
            phase -= 2.0f;
        return (1.0f - std::fabs(phase)) * phase * 2.0f + 0.5f;
    }

    void frame(float x, float &out, float &phase, CPlainDelayLine &line) const {
        const float l = wave(phase);
        const float offset = l * static_cast<float>(depthSamples) + static_cast<float>(baseSamples);
        const float d = line.read(offset);
        const float y = d * delayedGain + x * directGain;
        out = dryGain * x + wetGain * y;
        line.write(y * feedbackGain + x);
    }

    void frame(double x, double &out, float &phase, CPlainDelayLine &line) const {
        const double l = wave(phase);
        const auto offset = static_cast<float>(l * static_cast<double>(depthSamples) +
                                               static_cast<double>(baseSamples));
        const float d = line.read(offset);
        const float delayed = d * delayedGain;
        const double y = static_cast<double>(delayed) + x * static_cast<double>(directGain);
        out = static_cast<double>(dryGain) * x + static_cast<double>(wetGain) * y;
        line.write(static_cast<float>(y * static_cast<double>(feedbackGain) + x));
    }

    float directGain = 0.0f;
    float delayedGain = 1.0f;
    float feedbackGain = 0.5f;
    float widthMs = 20.0f;
    float speedHz = 1.0f;
    float depth = 0.5f;
    float feedback = 0.5f;
    float mix = 0.5f;
    float spread = 0.5f;
    float dryGain = 0.70710677f;
    float wetGain = 0.70710677f;
    float lfoIncrement = 1.0f * invSampleRate * 2.0f;
    float phaseLeft = 0.5f;
    float phaseRight = 0.75f;
    std::int32_t type = 1;
    std::uint32_t widthSamples = 882;
    std::uint32_t depthSamples = 441;
    std::uint32_t baseSamples = 441;
    CPlainDelayLine leftLine{4};
    CPlainDelayLine rightLine{4};
};
