#pragma once

#include "foundation/CCountedObject.h"

namespace Tessitor::Music {

/// Beats per bar over the note value of one beat, 4/4 by default. The values are not checked.
class CTimeSignature : public Basics::CCountedObject {
public:
    CTimeSignature() { s_class.incrementInstanceCount(); }
    CTimeSignature(std::int32_t numerator, std::int32_t denominator);
    CTimeSignature(const CTimeSignature &other);
    CTimeSignature &operator=(const CTimeSignature &) = default;
    ~CTimeSignature() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    void setTimeSignature(std::int32_t numerator, std::int32_t denominator);
    void setNumerator(std::int32_t numerator) { m_numerator = numerator; }
    void setDenominator(std::int32_t denominator) { m_denominator = denominator; }
    std::int32_t getNumerator() const { return m_numerator; }
    std::int32_t getDenominator() const { return m_denominator; }

    /// @return numerator / denominator, rounded towards 0: 0 for 3/4, 1 for 6/4. The denominator
    ///         must not be 0.
    double getBeats() const;

private:
    static Basics::TClassRecord<CTimeSignature> s_class;

    std::int32_t m_numerator = 4;
    std::int32_t m_denominator = 4;
};

}  // namespace Tessitor::Music
