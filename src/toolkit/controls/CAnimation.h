#pragma once

#include "toolkit/controls/CControl.h"
#include "toolkit/graphics/CImageManager.h"

namespace Tessitor::GUI::Controls {

/// Shows its value as one frame of its primary image, whose frames lie below each other. Its value
/// is 0 at first, and it takes no mouse events.
class CAnimation : public CControl {
public:
    CAnimation(IControlRoot *root, std::int32_t id, const MathTools::CRect &area);
    ~CAnimation() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    /// Sets the image alone: how it divides into frames stays.
    using CControl::setPrimaryImage;
    /// Takes image, frame height and number of frames from the reference.
    /// @param reference  null for no image.
    virtual void setPrimaryImage(Graphics::CImageManager::CAnimationReference *reference,
                                 bool isInverted);
    /// @param image        null for none; height and number are then left as they are.
    /// @param frameHeight  pixels. A frame that is not wholly inside the image is not drawn.
    /// @param isInverted   false to show the first frame for the value 0, true to show the last.
    virtual void setPrimaryImage(Graphics::IImage *image, std::int32_t frameHeight,
                                 std::int32_t numberOfFrames, bool isInverted);
    std::int32_t getFrameHeight() const { return m_frameHeight; }  ///< pixels
    std::int32_t getNumberOfFrames() const { return m_numberOfFrames; }
    /// The frame that was drawn last, in the image.
    const MathTools::CRect &getFrameArea() const { return m_frameArea; }
    void setInverted(bool isInverted) { m_isInverted = isInverted; }
    bool isInverted() const { return m_isInverted; }

    void getDescriptors(DescriptorList &descriptors) const override;
    bool setFromDescriptor(const CControlDescriptor &descriptor) override;
    bool getDescriptorValue(CControlDescriptor &descriptor) const override;
    void drawControl(Graphics::CGraphics &graphics) override;

private:
    void selectFrame();
    bool isFrameInImage() const;

    static Tessitor::Basics::TClassRecord<CAnimation> s_class;

    std::int32_t m_frameHeight = 0;  // pixels
    std::int32_t m_numberOfFrames = 0;
    MathTools::CRect m_frameArea;  // in the image; may lie outside
    bool m_isInverted = false;
};

}  // namespace Tessitor::GUI::Controls
