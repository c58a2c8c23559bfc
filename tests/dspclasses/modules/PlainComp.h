#pragma once

#include "dspclasses/blocks/PlainDetector.h"
#include "dspclasses/modules/CDSPBase.h"

#include <cmath>

/// The plain version of the compressor: each sample goes through the six steps, with all running
/// state in the fields.
class CPlainComp : public CDSPBase {
public:
    void setParameter(int index, float value) override {
        if (index == 0)
            detector.setThreshold(value);
        if (index == 1 && value != attackMs) {
            attackMs = value;
            detector.attackCoef = 1.0f - 1.0f / (attackMs * sampleRate * 0.001f);
        }
        if (index == 2 && value != releaseMs) {
            releaseMs = value;
            detector.releaseCoef = 1.0f - 1.0f / (releaseMs * sampleRate * 0.001f);
        }
        if (index == 3 && value != ratio) {
            ratio = value;
            slope = 1.0f / value - 1.0f;
        }
        if (index == 4 && value != makeUpDb) {
            makeUpDb = value;
            makeUpLinear = expSingle(value * K);
        }
        if (index == 5) {
            linked = value >= 0.5f;
            reset();
        }
    }

    float getParameter(int index) override {
        const float values[] = {detector.thresholdDb, attackMs, releaseMs, ratio, makeUpDb,
                                linked ? 1.0f : 0.0f};
        return index >= 0 && index <= 5 ? values[index] : 0.0f;
    }

    void processReplacing(float **in, float **out, int frames) override {
        for (int i = 0; linked && i < frames; ++i) {
            flush(in[0][i]);
            flush(in[1][i]);
            const float a = detector.larger(std::fabs(in[0][i]), std::fabs(in[1][i]));
            moveLeftGain(detectLeft(a));
            out[0][i] = in[0][i] * gainLeft;
            out[1][i] = in[1][i] * gainLeft;
        }
        for (int i = 0; !linked && i < frames; ++i) {
            flush(in[0][i]);
            moveLeftGain(detectLeft(std::fabs(in[0][i])));
            out[0][i] = in[0][i] * gainLeft;
        }
        for (int i = 0; !linked && i < frames; ++i) {
            flush(in[1][i]);
            moveRightGain(detectRight(std::fabs(in[1][i])));
            out[1][i] = in[1][i] * gainRight;
        }
    }

    void processDoubleReplacing(double **in, double **out, int frames) override {
        for (int i = 0; linked && i < frames; ++i) {
            const double a = detector.larger(std::fabs(in[0][i]), std::fabs(in[1][i]));
            moveLeftGain(detectLeft(a));
            out[0][i] = in[0][i] * double{gainLeft};
            out[1][i] = in[1][i] * double{gainLeft};
        }
        for (int i = 0; !linked && i < frames; ++i) {
            moveLeftGain(detectLeft(std::fabs(in[0][i])));
            out[0][i] = in[0][i] * double{gainLeft};
        }
        for (int i = 0; !linked && i < frames; ++i) {
            moveRightGain(detectRight(std::fabs(in[1][i])));
            out[1][i] = in[1][i] * double{gainRight};
        }
    }

    void reset() override {
        gainLeft = gainRight = 1.0f;
        smoothedExcessDbLeft = smoothedExcessDbRight = 0.0f;
        peakLeft = peakRight = 0.0f;
        gainDbLeft = gainDbRight = 0.0f;
    }

private:
    static constexpr float K = SPlainDetector::K;

    // Step 1
    static void flush(float &sample) {
        if (exponentIsZero(sample))
            sample = 0.0f;
    }

    // Steps 2 to 4
    bool detectLeft(float a) {
        detector.follow(peakLeft, a);
        const bool above = detector.isAbove(peakLeft);
        detector.smooth(smoothedExcessDbLeft, above, a);
        return above;
    }
    bool detectLeft(double a) {
        detector.follow(peakLeft, peakRight, a);
        const bool above = detector.isAbove(peakLeft);
        detector.smooth(smoothedExcessDbLeft, smoothedExcessDbRight, above, a);
        return above;
    }
    bool detectRight(float a) {
        detector.follow(peakRight, a);
        const bool above = detector.isAbove(peakRight);
        detector.smooth(smoothedExcessDbRight, above, a);
        return above;
    }
    bool detectRight(double a) {
        detector.follow(peakRight, gainDbLeft, a);
        const bool above = detector.isAbove(peakRight);
        detector.smooth(smoothedExcessDbRight, detector.thresholdDb, above, a);
        return above;
    }

    // Step 5
    void moveLeftGain(bool above) {
        if (above || smoothedExcessDbLeft > 0.01f) {
            gainDbLeft = slope * smoothedExcessDbLeft + makeUpDb;
            gainLeft = expSingle(gainDbLeft * K);
        } else {
            gainDbLeft = makeUpDb;
            gainLeft = makeUpLinear;
        }
    }
    void moveRightGain(bool above) {
        if (above || smoothedExcessDbRight > 0.01f) {
            gainDbRight = slope * smoothedExcessDbLeft + makeUpDb;
            gainRight = expSingle(gainDbLeft * K);
        } else {
            gainDbRight = makeUpDb;
            gainRight = makeUpLinear;
        }
    }

    float attackMs = 10.0f;
    float releaseMs = 100.0f;
    SPlainDetector detector{.attackCoef = 0.9977324f, .releaseCoef = 0.99977326f};
    float smoothedExcessDbLeft = 0.0f;
    float smoothedExcessDbRight = 0.0f;
    float peakLeft = 0.0f;
    float peakRight = 0.0f;
    float gainDbLeft = 0.0f;
    float gainDbRight = 0.0f;
    float gainLeft = 1.0f;
    float gainRight = 1.0f;
    float ratio = 1.0f;
    float makeUpDb = 0.0f;
    float slope = 1.0f;
    float makeUpLinear = 1.0f;
    bool linked = true;
};
