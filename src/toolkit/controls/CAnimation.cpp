#include "toolkit/controls/CAnimation.h"

#include "foundation/CBool.h"
#include "foundation/WrappingArithmetic.h"
#include "toolkit/controls/ControlProperties.h"
#include "toolkit/graphics/CGraphics.h"
#include "values/Truncation.h"

namespace Tessitor::GUI::Controls {

using Graphics::CImageManager;
using Graphics::IImage;
using MathTools::CRect;
using MathTools::wrappedDifference;
using MathTools::wrappedProduct;
using MathTools::wrappedSum;
using Tessitor::Basics::CBool;

Tessitor::Basics::TClassRecord<CAnimation> CAnimation::s_class("CAnimation", "CControl");

namespace {

/// The image alone is stored in files; its frames are those that the image manager knows.
void setImageAsRegistered(CAnimation &control, IImage *image) {
    auto *reference = CImageManager::getAnimationReference(CImageManager::getReferenceName(image));
    if (reference != nullptr)
        control.setPrimaryImage(reference, control.isInverted());
    else
        control.setPrimaryImage(image);
}

constexpr SControlProperty<CAnimation> properties[] = {
    {"Invert", EDescriptorType::Boolean,
     [](const CAnimation &control, CControlDescriptor &descriptor) {
         descriptor.setValue(new CBool(control.isInverted()));
     },
     [](CAnimation &control, const CControlDescriptor &descriptor) {
         return applyValue<CBool>(
             descriptor, [&](const CBool &value) { control.setInverted(value.getValue()); });
     }},
    // CControl lists its own property of this name, too.
    {"Primary Image", EDescriptorType::Image,
     [](const CAnimation &control, CControlDescriptor &descriptor) {
         descriptor.setValue(control.getPrimaryImage());
     },
     [](CAnimation &control, const CControlDescriptor &descriptor) {
         return applyShared<IImage>(descriptor,
                                    [&](IImage *value) { setImageAsRegistered(control, value); });
     }},
};

}  // namespace

CAnimation::CAnimation(IControlRoot *root, std::int32_t id, const CRect &area)
    : CControl(root, id, area, nullptr) {
    CControl::setValue(0.0);
    CControl::setMouseEnabled(false);
    s_class.incrementInstanceCount();
}

void CAnimation::setPrimaryImage(CImageManager::CAnimationReference *reference, bool isInverted) {
    if (reference == nullptr)
        setPrimaryImage(nullptr, 0, 0, isInverted);
    else
        setPrimaryImage(reference->getImageReference().getImage(), reference->getFrameHeight(),
                        reference->getNumberOfFrames(), isInverted);
}

void CAnimation::setPrimaryImage(IImage *image, std::int32_t frameHeight,
                                 std::int32_t numberOfFrames, bool isInverted) {
    CControl::setPrimaryImage(image);
    if (image != nullptr) {
        m_frameHeight = frameHeight;
        m_numberOfFrames = numberOfFrames;
        m_frameArea.setRect(0, 0, image->getImageSize().getWidth(), frameHeight);
    }
    m_isInverted = isInverted;
}

void CAnimation::drawControl(Graphics::CGraphics &graphics) {
    if (!drawEnabledControl(graphics))
        return;
    if (getPrimaryImage() == nullptr) {
        drawPrimaryImage(graphics, isDefaultDrawing());
        return;
    }
    selectFrame();
    if (isFrameInImage())
        graphics.drawImage(getPrimaryImage(), getNormalisedArea(), m_frameArea);
}

void CAnimation::selectFrame() {
    if (getValue() < 0.0)
        return;
    const double position = m_isInverted ? 1.0 - getValue() : getValue();
    std::int32_t frame = truncated(wrappedDifference(m_numberOfFrames, 1) * position);
    if (frame < 0)
        frame = wrappedSum(frame, m_numberOfFrames);
    if (frame >= m_numberOfFrames)
        frame = wrappedDifference(frame, m_numberOfFrames);
    m_frameArea.setTop(wrappedProduct(m_frameHeight, frame));
}

// The numbers come from files. Some systems crash when they scale a part that is far outside.
bool CAnimation::isFrameInImage() const {
    const CRect &image = getPrimaryImage()->getNormalisedImageArea();
    return m_frameArea.getHeight() > 0 && m_frameArea.getTop() >= 0 &&
           m_frameArea.getTop() <= wrappedDifference(image.getHeight(), m_frameArea.getHeight());
}

// Properties

void CAnimation::getDescriptors(DescriptorList &descriptors) const {
    CControl::getDescriptors(descriptors);
    addDescriptors(properties, *this, descriptors);
}

bool CAnimation::setFromDescriptor(const CControlDescriptor &descriptor) {
    return setFromTable<CControl>(properties, *this, descriptor);
}

bool CAnimation::getDescriptorValue(CControlDescriptor &descriptor) const {
    return readFromTable<CControl>(properties, *this, descriptor);
}

}  // namespace Tessitor::GUI::Controls
