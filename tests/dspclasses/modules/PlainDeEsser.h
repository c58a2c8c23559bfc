#pragma once

#include "dspclasses/blocks/PlainDetector.h"
#include "dspclasses/modules/CDSPBase.h"
#include "dspclasses/modules/PlainRBJFilter.h"

#include <algorithm>
#include <cmath>
#include <vector>

/// The plain version of the de-esser: the filter runs over the whole block, then each frame goes
/// through the steps, with all running state in the fields.
class CPlainDeEsser : public CDSPBase {
public:
    void setParameter(int index, float value) override {
        if (index == 0)
            detector.setThreshold(value);
        if (index == 1 && value != speed) {
            speed = value;
            attackMs = 2.0f + 48.0f * speed;
            releaseMs = 100.0f + 400.0f * speed;
            detector.attackCoef = 1.0f - 1.0f / (sampleRate * attackMs * 0.001f);
            detector.releaseCoef = 1.0f - 1.0f / (releaseMs * sampleRate * 0.001f);
        }
        if (index == 2 && value != ratio) {
            ratio = value;
            slope = 1.0f / value - 1.0f;
        }
        if (index == 3 && value != frequency) {
            frequency = value;
            filter.setFrequency(value);
        }
        if (index == 4)
            narrow = value >= 0.5f;
        if (index == 5)
            listen = value >= 0.5f;
    }

    float getParameter(int index) override {
        const float values[] = {detector.thresholdDb, speed, ratio, frequency, narrow ? 1.0f : 0.0f,
                                listen ? 1.0f : 0.0f};
        return index >= 0 && index <= 5 ? values[index] : 0.0f;
    }

    void processReplacing(float **in, float **out, int frames) override {
        grow(side, frames);
        float *sides[] = {side[0].data(), side[1].data()};
        filter.processReplacing(in, sides, frames);
        if (listen)
            return copy(sides, out, frames);
        for (int i = 0; i < frames; ++i) {
            const float left = std::fabs(sides[0][i]), right = std::fabs(sides[1][i]);
            const float a = narrow ? right : detector.larger(left, right);
            detector.follow(peak, a);
            const bool above = detector.isAbove(peak);
            detector.smooth(smoothedExcessDb, above, a);
            moveGain(above);
            write(in, sides, out, i);
        }
    }

    void processDoubleReplacing(double **in, double **out, int frames) override {
        grow(doubleSide, frames);
        double *sides[] = {doubleSide[0].data(), doubleSide[1].data()};
        filter.processDoubleReplacing(in, sides, frames);
        if (listen)
            return copy(sides, out, frames);
        for (int i = 0; i < frames; ++i) {
            const double left = std::fabs(sides[0][i]), right = std::fabs(sides[1][i]);
            const double candidate = narrow ? std::fabs(double{singleLeftAt(i)}) : left;
            const double a = candidate > right ? left : right;
            detector.follow(peak, gainDb, a);
            const bool above = detector.isAbove(peak);
            detector.smooth(smoothedExcessDb, detector.thresholdDb, above, a);
            moveGain(above);
            write(in, sides, out, i);
        }
    }

    void reset() override {
        gain = 1.0f;
        smoothedExcessDb = peak = gainDb = 0.0f;
        filter.reset();
    }

private:
    template <typename Sample>
    static void grow(std::vector<Sample> (&buffers)[2], int frames) {
        if (static_cast<std::size_t>(frames) <= buffers[0].size())
            return;
        for (std::vector<Sample> &buffer : buffers)
            buffer.assign(static_cast<std::size_t>(frames), 0);
    }

    template <typename Sample>
    static void copy(Sample **from, Sample **to, int frames) {
        std::copy_n(from[0], frames, to[0]);
        std::copy_n(from[1], frames, to[1]);
    }

    /// The sample that the last single-precision block left there, or 0 past the end of the buffer.
    float singleLeftAt(int frame) const {
        const auto index = static_cast<std::size_t>(frame);
        return index < side[0].size() ? side[0][index] : 0.0f;
    }

    // Step 8
    void moveGain(bool above) {
        if (above || smoothedExcessDb > 0.01f) {
            gainDb = slope * smoothedExcessDb + floorDb;
            gain = expSingle(gainDb * SPlainDetector::K);
        } else {
            gainDb = floorDb;
            gain = floorLinear;
        }
    }

    // Step 9
    template <typename Sample>
    void write(Sample **in, Sample **sides, Sample **out, int i) const {
        for (int channel = 0; channel < 2; ++channel) {
            const Sample x = in[channel][i], s = sides[channel][i];
            out[channel][i] = narrow ? (x - s) + s * Sample{gain} : x * Sample{gain};
        }
    }

    float speed = 0.5f;
    float attackMs = 26.0f;
    float releaseMs = 300.0f;
    SPlainDetector detector{.attackCoef = 0.99912786f, .releaseCoef = 0.99992442f};
    float smoothedExcessDb = 0.0f;
    float peak = 0.0f;
    float gainDb = 0.0f;
    float gain = 1.0f;
    float ratio = 1.0f;
    float floorDb = 0.0f;
    float slope = 1.0f;
    float floorLinear = 1.0f;
    bool narrow = false;
    bool listen = false;
    float frequency = 1000.0f;
    CPlainRBJFilter filter{1, 1000.0f, 0.0f, 0.5f, true};
    std::vector<float> side[2] = {std::vector<float>(512), std::vector<float>(512)};
    std::vector<double> doubleSide[2] = {std::vector<double>(512), std::vector<double>(512)};
};
