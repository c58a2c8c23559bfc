#pragma once

#include "dspclasses/modules/CDSPBase.h"

#include <cmath>

/// The plain versions of the level and stereo modules: frame by frame, each gain read at each use.

class CPlainGain : public CDSPBase {
public:
    void setParameter(int, float value) override {
        if (value == decibels)
            return;
        decibels = value;
        if (value > -60.0f)
            gain = static_cast<float>(std::exp(double{2.30258509f * value * 0.05f}));
        else
            gain = 0.0f;
    }
    float getParameter(int) override { return decibels; }
    void processReplacing(float **in, float **out, int frames) override {
        for (int channel = 0; channel < 2; ++channel)
            for (int i = 0; i < frames; ++i)
                out[channel][i] = in[channel][i] * gain;
    }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        for (int channel = 0; channel < 2; ++channel)
            for (int i = 0; i < frames; ++i)
                out[channel][i] = in[channel][i] * static_cast<double>(gain);
    }

private:
    float gain = 1.0f;
    float decibels = 0.0f;
};

class CPlainMono : public CDSPBase {
public:
    void setParameter(int, float value) override { mode = static_cast<int>(value * 3.0f); }
    float getParameter(int) override { return static_cast<float>(mode) / 3.0f; }
    int getMode() const { return mode; }
    void processReplacing(float **in, float **out, int frames) override {
        run(in, out, frames, 0.70710677f);
    }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        run(in, out, frames, 0.7071067690849304);
    }

private:
    template <typename Sample>
    void run(Sample **in, Sample **out, int frames, Sample rootHalf) const {
        for (int i = 0; i < frames; ++i) {
            const Sample left = in[0][i], right = in[1][i];
            switch (mode) {
            case 0:
                out[0][i] = (left + right) * rootHalf;
                out[1][i] = out[0][i];
                break;
            case 1:
                out[0][i] = left;
                out[1][i] = left;
                break;
            case 2:
                out[0][i] = right;
                out[1][i] = right;
                break;
            case 3:
                out[0][i] = left;
                out[1][i] = right;
                break;
            default:
                return;
            }
        }
    }

    int mode = 0;
};

class CPlainBalance : public CDSPBase {
public:
    void setParameter(int, float value) override {
        if (value == balance)
            return;
        balance = value;
        const float b = value * 2.0f - 1.0f;
        if (0.0f > b) {
            leftGain = 1.0f;
            rightGain = std::sqrt(b + 1.0f);
            if (rightGain < 1e-20f)
                rightGain = 0.0f;
        } else {
            rightGain = 1.0f;
            leftGain = std::sqrt(1.0f - b);
            if (leftGain < 1e-20f)
                leftGain = 0.0f;
        }
    }
    float getParameter(int) override { return balance; }
    void processReplacing(float **in, float **out, int frames) override {
        for (int i = 0; i < frames; ++i)
            out[0][i] = in[0][i] * leftGain;
        for (int i = 0; i < frames; ++i)
            out[1][i] = in[1][i] * rightGain;
    }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        for (int i = 0; i < frames; ++i)
            out[0][i] = in[0][i] * static_cast<double>(leftGain);
        for (int i = 0; i < frames; ++i)
            out[1][i] = in[1][i] * static_cast<double>(rightGain);
    }

private:
    float balance = 0.5f;
    float leftGain = 1.0f, rightGain = 1.0f;
};

class CPlainPan : public CDSPBase {
public:
    void setParameter(int, float value) override {
        if (value == pan)
            return;
        pan = value;
        if (value < 0.5f) {
            leftToLeft = 1.0f;
            leftToRight = 0.0f;
            const float p = 1.0f - value * 2.0f;
            if (p == leftHalfSpread)
                return;
            leftHalfSpread = p;
            rightToLeft = zeroIfInaudible(std::sqrt(p * 0.5f + 0.5f));
            rightToRight = zeroIfInaudible(std::sqrt(0.5f - p * 0.5f));
        } else {
            rightToRight = 1.0f;
            rightToLeft = 0.0f;
            const float p = value * 2.0f - 1.0f;
            if (p == rightHalfSpread)
                return;
            rightHalfSpread = p;
            leftToLeft = zeroIfInaudible(std::sqrt(0.5f - p * 0.5f));
            leftToRight = zeroIfInaudible(std::sqrt(p * 0.5f + 0.5f));
        }
    }
    float getParameter(int) override { return pan; }
    void processReplacing(float **in, float **out, int frames) override {
        for (int i = 0; i < frames; ++i) {
            out[0][i] = in[0][i] * leftToLeft + in[1][i] * rightToLeft;
            out[1][i] = in[0][i] * leftToRight + in[1][i] * rightToRight;
        }
    }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        for (int i = 0; i < frames; ++i) {
            out[0][i] = in[0][i] * static_cast<double>(leftToLeft) +
                        in[1][i] * static_cast<double>(rightToLeft);
            out[1][i] = in[0][i] * static_cast<double>(leftToRight) +
                        in[1][i] * static_cast<double>(rightToRight);
        }
    }

private:
    static float zeroIfInaudible(float gain) { return gain < 1e-20f ? 0.0f : gain; }

    float pan = 0.5f;
    float rightHalfSpread = 1.0f, leftHalfSpread = 1.0f;
    float leftToLeft = 1.0f, leftToRight = 0.0f, rightToLeft = 0.0f, rightToRight = 1.0f;
};
