#pragma once

/// The contract of every processing module. A module processes exactly two channels, never in
/// place: `in` and `out` are different buffers. Unless getOutput() says otherwise, every sample of
/// both outputs is written.
class CDSPBase {
public:
    CDSPBase() = default;
    CDSPBase(const CDSPBase &) = delete;
    CDSPBase &operator=(const CDSPBase &) = delete;
    virtual ~CDSPBase();

    /// @param index  the module's own parameter, from 0.
    /// @param value  in the parameter's unit (dB, Hz, ms, ratio), or raw from 0 to 1. Not clamped.
    /// [any thread] The base does nothing.
    virtual void setParameter(int index, float value);

    /// @return the value as last set, in the unit of setParameter; 0 from the base. [any thread]
    virtual float getParameter(int index);

    /// @param in, out  two channels of `frames` samples each. [audio thread] The base does nothing.
    virtual void processReplacing(float **in, float **out, int frames);

    /// The same in double precision. [audio thread] The base does nothing.
    virtual void processDoubleReplacing(double **in, double **out, int frames);

    /// What a block leaves in the output buffers.
    enum class EOutput {
        Processed,
        Copied,     ///< the input, unchanged
        Unwritten,  ///< what they held before
    };
    /// @return what the next block does. [audio thread] EOutput::Processed from the base.
    virtual EOutput getOutput() const { return EOutput::Processed; }

    /// Clears the running state, now or when the next block begins, and keeps the parameters. The
    /// base does nothing. [any thread]
    virtual void reset();

    /// Stores a new rate in Hz; 0 and the present rate are ignored. Kept: nothing in the strip
    /// calls it. The strip is tuned for 44.1 kHz; at other rates, frequencies and times scale with
    /// the rate. [before any other call]
    void setSampleRate(float rate);

    float getSampleRate() const { return sampleRate; }
    float getInvSampleRate() const { return invSampleRate; }
    float getRateRatio() const { return rateRatio; }

protected:
    float sampleRate = 44100.0f;            // Hz
    float invSampleRate = 1.0f / 44100.0f;  // seconds
    float rateRatio = 1.0f;                 // new rate / old rate, at the last change
};
