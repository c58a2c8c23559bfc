#pragma once

#include "dspclasses/blocks/PlainDelayLine.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/Truncation.h"

#include <cmath>
#include <cstdint>

/// The plain version of the delay: one frame after the other, every field read at each use.
class CPlainDelay : public CDSPBase {
public:
    CPlainDelay() { setDelay(1000); }

    void setParameter(int index, float value) override {
        switch (index) {
        case 0:
            setDelay(wholeCount(value));
            break;
        case 1:
            setSync(truncated(value * 2.0f));
            break;
        case 2:
            feedback = zeroIfInaudible(value);
            break;
        case 3:
            pingPong = value >= 0.5f;
            break;
        case 4:
            dryLevel = zeroIfInaudible(value);
            break;
        case 5:
            wetLevel = zeroIfInaudible(value);
            break;
        case 6:
            setTempo(value);
            break;
        case 7:
            setBeats(value);
            break;
        default:
            break;
        }
    }

    float getParameter(int index) override {
        switch (index) {
        case 0:
            return static_cast<float>(delayMs);
        case 1:
            return static_cast<float>(syncMode) * 0.5f;
        case 2:
            return feedback;
        case 3:
            return pingPong ? 1.0f : 0.0f;
        case 4:
            return dryLevel;
        case 5:
            return wetLevel;
        case 6:
            return tempo;
        case 7:
            return static_cast<float>(beatsPerBar);
        default:
            return 0.0f;
        }
    }

    void processReplacing(float **in, float **out, int frames) override {
        if (pingPong) {
            for (int i = 0; i < frames; ++i)
                crossFrame(in, out, i);
        } else {
            for (int i = 0; i < frames; ++i)
                frame(leftLine, in[0][i], out[0][i]);
            for (int i = 0; i < frames; ++i)
                frame(rightLine, in[1][i], out[1][i]);
        }
    }

    void processDoubleReplacing(double **in, double **out, int frames) override {
        if (pingPong) {
            for (int i = 0; i < frames; ++i)
                crossFrame(in, out, i);
        } else {
            for (int i = 0; i < frames; ++i)
                frame(leftLine, in[0][i], out[0][i]);
            for (int i = 0; i < frames; ++i)
                frame(rightLine, in[1][i], out[1][i]);
        }
    }

    void reset() override {
        leftLine.clear();
        rightLine.clear();
    }

    std::uint32_t getLineCapacity() const { return lineCapacity; }

private:
    static float zeroIfInaudible(float value) { return std::fabs(value) < 1e-20f ? 0.0f : value; }

    void setDelay(std::uint32_t ms) {
        if (ms == delayMs)
            return;
        delayMs = ms;
        delaySamples = static_cast<float>(delayMs) * 0.001f * sampleRate;
        if (delaySamples > static_cast<float>(lineCapacity)) {
            leftLine.resize(wholeCount(delaySamples));
            rightLine.resize(wholeCount(delaySamples));
            lineCapacity = leftLine.getCapacity();
        }
        leftLine.setConstantOffset(delaySamples);
        rightLine.setConstantOffset(delaySamples);
    }

    void setDelayInMode(std::uint32_t t) { setDelay(syncMode == 1 ? t >> 1 : t); }

    void setSync(int mode) {
        if (mode == syncMode)
            return;
        if (syncMode == 0)
            freeDelayMs = delayMs;
        syncMode = mode;
        if (mode == 0) {
            setDelay(freeDelayMs);
        } else {
            const std::int32_t quarters = beatsPerBar / 4;
            const float q = 60000.0f / tempo * static_cast<float>(quarters);
            setDelayInMode(wholeCount(q));
        }
    }

    void setTempo(float bpm) {
        if (bpm == tempo)
            return;
        tempo = bpm;
        if (syncMode != 0) {
            const std::int32_t quarters = beatsPerBar / 4;
            const float q = static_cast<float>(quarters) * (60000.0f / bpm);
            setDelayInMode(wholeCount(q));
        }
    }

    void setBeats(float value) {
        if (value == static_cast<float>(beatsPerBar))
            return;
        beatsPerBar = truncated(value);
        if (syncMode != 0) {
            const float q = 60000.0f / tempo * (value * 0.25f);
            setDelayInMode(wholeCount(q));
        }
    }

    void frame(CPlainDelayLine &line, float x, float &out) const {
        const float d = line.readConstant();
        out = dryLevel * x + wetLevel * d;
        line.write(d * feedback + x);
    }

    void frame(CPlainDelayLine &line, double x, double &out) const {
        const float d = line.readConstant();
        const float wet = wetLevel * d;
        out = static_cast<double>(dryLevel) * x + static_cast<double>(wet);
        const float recirculating = d * feedback;
        line.write(static_cast<float>(static_cast<double>(recirculating) + x));
    }

    void crossFrame(float **in, float **out, int i) {
        const float left = in[0][i], right = in[1][i];
        const float dL = leftLine.readConstant();
        const float dR = rightLine.readConstant();
        out[0][i] = dryLevel * left + wetLevel * dL;
        out[1][i] = dryLevel * right + wetLevel * dR;
        leftLine.write(dR * feedback + left);
        rightLine.write(dL * feedback + right);
    }

    void crossFrame(double **in, double **out, int i) {
        const double left = in[0][i], right = in[1][i];
        const float dL = leftLine.readConstant();
        const float dR = rightLine.readConstant();
        const float wetL = wetLevel * dL, wetR = wetLevel * dR;
        out[0][i] = static_cast<double>(dryLevel) * left + static_cast<double>(wetL);
        out[1][i] = static_cast<double>(dryLevel) * right + static_cast<double>(wetR);
        const float toLeft = dR * feedback, toRight = dL * feedback;
        leftLine.write(static_cast<float>(static_cast<double>(toLeft) + left));
        rightLine.write(static_cast<float>(static_cast<double>(toRight) + right));
    }

    std::uint32_t delayMs = 0;
    std::uint32_t freeDelayMs = 1000;
    std::uint32_t lineCapacity = 131072;
    float delaySamples = 0.0f;
    float feedback = 0.5f;
    float dryLevel = 1.0f;
    float wetLevel = 0.70710677f;
    float tempo = 120.0f;
    bool pingPong = false;
    std::int32_t beatsPerBar = 4;
    std::int32_t syncMode = 0;
    CPlainDelayLine leftLine{131072};
    CPlainDelayLine rightLine{131072};
};
