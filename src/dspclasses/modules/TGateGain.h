#pragma once

#include "dspclasses/blocks/DynamicsMath.h"

#include <limits>
#include <type_traits>

/// The gain of the gate, which moves in decibels:
///
///     -60 dB          opening: decibels * attackFactor            -0.5 dB
///     gain 0   ------------------------------------------------>   gain 1
///              <------------------------------------------------
///                     closing: decibels * releaseFactor
///
/// Past either end the gain jumps to exactly 1 or exactly 0 and rests there.
template <typename Sample>
class TGateGain {
public:
    static constexpr float closedDb = -60.0f;  // below, the gain jumps to 0

    /// The natural logarithms of the two resting gains.
    static constexpr float exponentOfOne = 0.0f;
    static constexpr float exponentOfZero = -std::numeric_limits<float>::infinity();

    float attackFactor = 0.0f, releaseFactor = 0.0f;  // of the decibels, per frame

    /// @param linear  the gain that belongs to the decibels, or the 1 or 0 at which it rests.
    TGateGain(float decibels, float linear)
        : m_decibels(decibels), m_exponent(linear == 0.0f   ? exponentOfZero
                                           : linear == 1.0f ? exponentOfOne
                                                            : decibels * exponentPerDecibel) {}

    float decibels() const { return m_decibels; }
    /// @return the natural logarithm of the gain.
    float exponent() const { return m_exponent; }

    /// @return whether the gain stays where it is for all frames of a step. openFrames has one bit
    ///         per frame, set if the gate is open; allFrames has all of these bits set.
    bool rests(int openFrames, int allFrames) const {
        if (openFrames == allFrames)
            return !isBelowOne();
        return openFrames == 0 && (!isAboveZero() || m_decibels == 0.0f);
    }

    /// Advances by one frame.
    void move(bool isOpen) {
        if (isOpen && isBelowOne()) {
            moveBy(attackFactor);
            if (m_decibels > openDb) {
                m_decibels = fullyOpenDb;
                m_exponent = exponentOfOne;
            }
        } else if (!isOpen && isAboveZero()) {
            moveBy(releaseFactor);
            if (m_decibels < closedDb) {
                m_decibels = closedDb;
                m_exponent = exponentOfZero;
            }
        }
    }

private:
    static constexpr float openDb = -0.5f;  // above, the gain jumps to 1

    /// The decibels from which a fully open gate begins to close. Kept: in double precision they
    /// are 0, which no factor moves, so a gate that has opened fully stays open until it is reset.
    static constexpr float fullyOpenDb = std::is_same_v<Sample, double> ? 0.0f : openDb;

    // The limits beyond which e to the power of the exponent rounds to 1 or to 0 as a float.
    bool isBelowOne() const { return m_exponent < -0x1p-25f; }
    bool isAboveZero() const { return m_exponent > -0x1.9fe36ap6f; }

    void moveBy(float factor) {
        m_decibels = factor * m_decibels;
        m_exponent = m_decibels * exponentPerDecibel;
    }

    float m_decibels;
    float m_exponent;
};
