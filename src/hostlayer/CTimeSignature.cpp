#include "hostlayer/CTimeSignature.h"

namespace Tessitor::Music {

Basics::TClassRecord<CTimeSignature> CTimeSignature::s_class("CTimeSignature", "CCountedObject");

CTimeSignature::CTimeSignature(std::int32_t numerator, std::int32_t denominator)
    : m_numerator(numerator), m_denominator(denominator) {
    s_class.incrementInstanceCount();
}

// The copy is counted as an instance and has no references yet.
CTimeSignature::CTimeSignature(const CTimeSignature &other) : CTimeSignature() {
    *this = other;
}

void CTimeSignature::setTimeSignature(std::int32_t numerator, std::int32_t denominator) {
    m_numerator = numerator;
    m_denominator = denominator;
}

double CTimeSignature::getBeats() const {
    // Kept: an integer division.
    const std::int32_t wholeBeats = m_numerator / m_denominator;
    return wholeBeats;
}

}  // namespace Tessitor::Music
