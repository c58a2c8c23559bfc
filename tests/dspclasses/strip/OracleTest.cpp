#include "dspclasses/support/Oracle.h"

#include <gtest/gtest-spi.h>
#include <memory>

namespace {

/// Scales the signal by its parameter, with one of several faults built in.
class CScale : public CDSPBase {
public:
    enum EFault { None, LateFrame, RightChannel, DoubleOnly, InputWritten, SkippedFrame, Getter };

    explicit CScale(EFault newFault = None) : fault(newFault) {}
    void setParameter(int, float value) override { scale = value; }
    float getParameter(int) override { return fault == Getter ? scale + 1e-6f : scale; }
    void processReplacing(float **in, float **out, int frames) override { run(in, out, frames); }
    void processDoubleReplacing(double **in, double **out, int frames) override {
        run(in, out, frames);
    }

private:
    template <typename Sample>
    void run(Sample **in, Sample **out, int frames) {
        for (int channel = 0; channel < 2; ++channel) {
            for (int i = 0; i < frames; ++i) {
                if (!(fault == SkippedFrame && i == 40))
                    out[channel][i] = in[channel][i] * static_cast<Sample>(scale);
                if ((fault == LateFrame && i == 3000) || (fault == RightChannel && channel == 1) ||
                    (fault == DoubleOnly && sizeof(Sample) == 8))
                    out[channel][i] = std::nextafter(out[channel][i], Sample{9});
                if (fault == InputWritten)
                    in[channel][i] = Sample{0};
            }
        }
    }

    EFault fault;
    float scale = 1.0f;
};

void compareWith(CScale::EFault fault) {
    expectSameBits([fault] { return std::make_unique<CScale>(fault); },
                   [] { return std::make_unique<CScale>(); }, {{0, 0.5f, 1.0f}}, 300);
}

}  // namespace

TEST(Oracle, AcceptsEqualModules) {
    compareWith(CScale::None);
}

TEST(Oracle, FindsADifferenceOfOneBitWhereverItIs) {
    EXPECT_NONFATAL_FAILURE(compareWith(CScale::LateFrame), "frame");
    EXPECT_NONFATAL_FAILURE(compareWith(CScale::RightChannel), "channel 1");
    EXPECT_NONFATAL_FAILURE(compareWith(CScale::DoubleOnly), "double output");
}

TEST(Oracle, FindsASampleThatWasNotWritten) {
    EXPECT_NONFATAL_FAILURE(compareWith(CScale::SkippedFrame), "got 77");
}

TEST(Oracle, FindsAnInputThatWasWritten) {
    EXPECT_NONFATAL_FAILURE(compareWith(CScale::InputWritten), "input");
}

TEST(Oracle, FindsAParameterThatReadsDifferently) {
    EXPECT_NONFATAL_FAILURE(compareWith(CScale::Getter), "parameter 0");
}
