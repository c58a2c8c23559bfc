#include "foundation/CRect.h"

#include "foundation/CStringTokeniser.h"
#include "foundation/CopyText.h"
#include "foundation/WrappingArithmetic.h"
#include "values/Truncation.h"

#include <algorithm>
#include <array>

namespace Tessitor::MathTools {

Basics::TClassRecord<CRect> CRect::s_class("CRect", "CCountedObject");

CRect::CRect(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    setRect(left, top, width, height);
    s_class.incrementInstanceCount();
}

CRect::CRect(const CPoint &origin, const CDimension &dimension)
    : CRect(origin.getXPosition(), origin.getYPosition(), dimension.getWidth(),
            dimension.getHeight()) {}

CRect::CRect(const Basics::CString &text) : CRect() {
    Basics::CStringTokeniser tokens(text, ',');
    std::array<std::int32_t, 4> values;
    if (tokens.countTokens() != static_cast<std::int32_t>(values.size()))
        return;
    for (std::int32_t &value : values) {
        Basics::CString token;
        tokens.getNextToken(token);
        value = Basics::CString::toInt(token);
    }
    setRect(values[0], values[1], values[2], values[3]);
}

CRect::CRect(const CRect &other)
    : CRect(other.m_left, other.m_top, other.m_width, other.m_height) {}

void CRect::getObjectDescription(char *array, long size) const {
    Basics::CString text("[");
    text += toString();
    text += "]";
    Basics::copyText(array, size, text.getString());
}

void CRect::setRect(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    m_left = left;
    m_top = top;
    m_width = width;
    m_height = height;
    m_right = wrappedSum(left, width);
    m_bottom = wrappedSum(top, height);
}

void CRect::setLeft(std::int32_t left) {
    setRect(left, m_top, m_width, m_height);
}

void CRect::setTop(std::int32_t top) {
    setRect(m_left, top, m_width, m_height);
}

void CRect::setWidth(std::int32_t width) {
    setRect(m_left, m_top, width, m_height);
}

void CRect::setHeight(std::int32_t height) {
    setRect(m_left, m_top, m_width, height);
}

void CRect::setOrigin(const CPoint &origin) {
    setRect(origin.getXPosition(), origin.getYPosition(), m_width, m_height);
}

void CRect::setDimension(const CDimension &dimension) {
    setRect(m_left, m_top, dimension.getWidth(), dimension.getHeight());
}

void CRect::setEdges(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
    setRect(left, top, wrappedDifference(right, left), wrappedDifference(bottom, top));
}

std::int32_t CRect::getCentreX() const {
    return wrappedSum(m_left, m_width / 2);
}

std::int32_t CRect::getCentreY() const {
    return wrappedSum(m_top, m_height / 2);
}

void CRect::offset(const CPoint &by) {
    setRect(wrappedSum(m_left, by.getXPosition()), wrappedSum(m_top, by.getYPosition()), m_width,
            m_height);
}

void CRect::inset(std::int32_t by) {
    setEdges(wrappedSum(m_left, by), wrappedSum(m_top, by), wrappedDifference(m_right, by),
             wrappedDifference(m_bottom, by));
}

void CRect::scale(double factor) {
    setRect(truncated(m_left * factor), truncated(m_top * factor), truncated(m_width * factor),
            truncated(m_height * factor));
}

void CRect::unionWith(const CRect &rect) {
    const std::int32_t left = std::min(m_left, rect.m_left), top = std::min(m_top, rect.m_top);
    setRect(left, top, std::max(m_right, wrappedDifference(rect.m_right, left)),
            std::max(m_bottom, wrappedDifference(rect.m_bottom, top)));
}

bool CRect::pointIsInside(const CPoint &point) const {
    return point.getXPosition() >= m_left && point.getXPosition() <= m_right &&
           point.getYPosition() >= m_top && point.getYPosition() <= m_bottom;
}

bool CRect::intersects(const CRect &a, const CRect &b) {
    return a.m_left <= b.m_right && a.m_top <= b.m_bottom && b.m_left <= a.m_right &&
           b.m_top <= a.m_bottom;
}

void CRect::getIntersection(const CRect &a, const CRect &b, CRect &out) {
    out.setEdges(std::max(a.m_left, b.m_left), std::max(a.m_top, b.m_top),
                 std::min(a.m_right, b.m_right), std::min(a.m_bottom, b.m_bottom));
}

std::unique_ptr<CRect> CRect::getNewIntersection(const CRect &a, const CRect &b) {
    auto common = std::make_unique<CRect>();
    getIntersection(a, b, *common);
    if (common->m_width < 0 || common->m_height < 0)
        common->setRect(0, 0, 0, 0);
    return common;
}

void CRect::fromNative(const SNativeRect &rect) {
    setEdges(rect.left, rect.top, rect.right, rect.bottom);
}

Basics::CString CRect::toString() const {
    Basics::CString text;
    text.setStringWithFormat("%li,%li,%li,%li", static_cast<long>(m_left), static_cast<long>(m_top),
                             static_cast<long>(m_width), static_cast<long>(m_height));
    return text;
}

}  // namespace Tessitor::MathTools
