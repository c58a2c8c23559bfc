#include "CDemoWindow.h"

#include "Pictures.h"
#include "toolkit/controls/CClickableKnob.h"
#include "toolkit/controls/CClickableLabel.h"
#include "toolkit/controls/CImageLabel.h"
#include "toolkit/controls/CKnob.h"
#include "toolkit/controls/CLatchingButton.h"
#include "toolkit/controls/CMomentaryButton.h"
#include "toolkit/controls/CSlider.h"
#include "toolkit/controls/CSliderArray.h"
#include "toolkit/controls/IControlRoot.h"
#include "toolkit/events/CActionEvent.h"
#include "toolkit/events/CMouseEvent.h"

#include <algorithm>
#include <cmath>
#include <string>

using Tessitor::Basics::CString;
using Tessitor::Collections::TCountedObjectDeleter;
using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Events::CActionEvent;
using Tessitor::GUI::Events::CMouseEvent;
using Tessitor::GUI::Fonts::CFont;
using Tessitor::GUI::Graphics::IImage;
using Tessitor::GUI::Windowing::CMouse;
using namespace Tessitor::GUI::Controls;

namespace {

constexpr int windowWidth = 960, windowHeight = 742, margin = 12, nameWidth = 132, gap = 14,
              captionHeight = 14, captionWidth = 72;

/// Makes the highlight of its base accessible.
class CHotSpot : public CClickableLabel {
public:
    using CClickableLabel::CClickableLabel;
    using CClickableLabel::setHighlighted;
};

}  // namespace

CDemoWindow::CDemoWindow()
    : CWindow(CRect(40, 20, windowWidth, windowHeight)),
      m_captionFont(TCountedObjectDeleter<CFont>::getStaticDeleter()),
      m_nameFont(TCountedObjectDeleter<CFont>::getStaticDeleter()) {
    m_captionFont.setPointer(new CFont("Arial", 9, false, false));
    m_nameFont.setPointer(new CFont("Arial", 12, false, true));
    const CRect line(margin, windowHeight - 52, windowWidth - 2 * margin, 18);
    m_report =
        new CTextLabel(getControlRoot(), 0, line, "Use a control: this line says what it reports.");
    getControlRoot()->addControl(m_report);
    addAnimations();
    addKnobs();
    addLabels();
    addButtons();
    addSliders();
    addSliderArrays();
    addTextEdits();
    addImageLabels();
    addClickables();
}

void CDemoWindow::handleActionEvent(const CActionEvent &event) {
    const IControl &control = *event.getSender();
    CString text = control.getClass().getClassName();
    text.appendString(" reports ");
    text.appendString(std::to_string(control.getValue()).c_str());
    m_report->setText(text);
    getControlRoot()->updateControl(m_report);
}

void CDemoWindow::startEditing() {
    pointAt(*m_edit, 5, 5, true);
}

// Layout

void CDemoWindow::startRow(const char *className, int height) {
    m_y += m_y == 0 ? margin : m_rowHeight + captionHeight + gap;
    m_rowHeight = height;
    m_x = margin + nameWidth;
    addText(CRect(margin, m_y, nameWidth, 18), className, m_nameFont.getPointer());
}

Tessitor::MathTools::CRect CDemoWindow::placeOf(int width, int height) {
    m_place = CRect(m_x, m_y, width, height);
    m_x += std::max(width, captionWidth) + gap;
    return m_place;
}

void CDemoWindow::add(CControl *control, const char *caption) {
    getControlRoot()->addControl(control);
    addText(CRect(m_place.getLeft(), m_y + m_rowHeight, captionWidth + gap, captionHeight), caption,
            m_captionFont.getPointer());
}

void CDemoWindow::addText(const CRect &area, const char *text, CFont *font) {
    auto *label = new CTextLabel(getControlRoot(), 0, area, text);
    label->setFont(font);
    getControlRoot()->addControl(label);
}

void CDemoWindow::pointAt(CControl &control, int x, int y, bool isPressed) {
    CMouse mouse;
    mouse.setPosition({x, y});
    CMouseEvent event(&mouse);
    if (isPressed)
        control.handleLeftButtonDown(event);
    else
        control.handleMouseMovement(event);
}

// The controls

void CDemoWindow::addAnimations() {
    startRow("CAnimation", knobSize);
    for (const auto &[value, isInverted, caption] : {std::tuple(0.0, false, "0"),
                                                     {0.25, false, "0.25"},
                                                     {1.0, false, "1"},
                                                     {0.25, true, "0.25, inverted"}}) {
        auto *animation = new CAnimation(getControlRoot(), 1, placeOf(knobSize, knobSize));
        animation->setPrimaryImage(createKnobStrip(), knobSize, knobFrames, isInverted);
        animation->setValue(value);
        add(animation, caption);
    }
}

void CDemoWindow::addKnobs() {
    startRow("CKnob", knobSize);
    for (const auto &[value, caption] : {std::pair(0.0, "0"), {0.5, "0.5"}, {1.0, "1"}}) {
        auto *knob = new CKnob(getControlRoot(), 2, placeOf(knobSize, knobSize), this);
        knob->setPrimaryImage(createKnobStrip(), knobSize, knobFrames, false);
        knob->setValue(value);
        add(knob, caption);
    }
    auto *plain = new CKnob(getControlRoot(), 2, placeOf(knobSize, knobSize), this);
    plain->setDefaultDrawing(true);
    add(plain, "without image");
    auto *disabled = new CKnob(getControlRoot(), 2, placeOf(knobSize, knobSize), this);
    disabled->setDisabledImage(createCross(knobSize, knobSize));
    disabled->disableControl();
    add(disabled, "disabled");
}

void CDemoWindow::addLabels() {
    const char *const alignments[] = {"left top",     "centre top", "right top",   "left",
                                      "centre",       "right",      "left bottom", "centre bottom",
                                      "right bottom", "label",      "single line"};
    for (int format = 0; format <= 10; ++format) {
        if (format % 6 == 0)
            startRow("CTextLabel", 30);
        auto *label = new CTextLabel(getControlRoot(), 3, placeOf(110, 30), alignments[format]);
        label->setTextFormat(format);
        label->setDefaultDrawing(true);
        label->setColours(CAlphaColour(120, 120, 120), CAlphaColour(245, 240, 230),
                          CAlphaColour(20, 40, 90));
        add(label, "");
    }
    auto *disabled = new CTextLabel(getControlRoot(), 3, placeOf(110, 30), "disabled");
    disabled->setDisabledImage(createCross(110, 30));
    disabled->disableControl();
    add(disabled, "");
}

void CDemoWindow::addButtons() {
    const auto addAll = [this]<typename Button>(const char *name, Button *) {
        startRow(name, 24);
        for (const bool hasImages : {true, false})
            for (const bool isDown : {false, true}) {
                auto *button =
                    new Button(getControlRoot(), 4, placeOf(hasImages ? 48 : 72, 24), this);
                button->setText("Button");
                if (hasImages) {
                    button->setPrimaryImage(createLamp(false));
                    button->setDownImage(createLamp(true));
                }
                button->setValue(isDown ? 1.0 : 0.0);
                add(button, isDown ? "down" : "up");
            }
        auto *disabled = new Button(getControlRoot(), 4, placeOf(48, 24), this);
        disabled->setDisabledImage(createCross(48, 24));
        disabled->disableControl();
        add(disabled, "disabled");
    };
    addAll("CLatchingButton", static_cast<CLatchingButton *>(nullptr));
    addAll("CMomentaryButton", static_cast<CMomentaryButton *>(nullptr));
}

void CDemoWindow::addSliders() {
    startRow("CSlider", 62);
    const char *const captions[] = {"normal", "mouse over", "pressed"};
    for (const bool hasImage : {true, false})
        for (int state = 0; state < 3; ++state) {
            auto *slider = new CSlider(getControlRoot(), 5, placeOf(20, 62), this);
            slider->setDefaultDrawing(true);
            if (hasImage)
                slider->setPrimaryImage(createSliderHandles(20, 12));
            slider->setValue(0.5);
            add(slider, captions[state]);
            if (state > 0)
                pointAt(*slider, 10, 31, state == 2);
            getControlRoot()->unlockControl();
        }
    auto *across = new CSlider(getControlRoot(), 5, placeOf(120, 20), this);
    across->setDefaultDrawing(true);
    across->setValue(0.75);
    add(across, "horizontal");
}

void CDemoWindow::addSliderArrays() {
    startRow("CSliderArray", 40);
    for (const bool isPressed : {false, true}) {
        auto *bars = new CSliderArray(getControlRoot(), 6, placeOf(160, 40), this);
        for (int i = 0; i < bars->getNumberOfBars(); ++i)
            bars->setBarValue(i, 0.5 + 0.45 * std::sin(i * 0.4));
        add(bars, isPressed ? "dragging" : "normal");
        if (isPressed)
            pointAt(*bars, 81, 12, true);
        getControlRoot()->unlockControl();
    }
}

void CDemoWindow::addTextEdits() {
    startRow("CTextEdit", 22);
    m_edit = new CTextEdit(getControlRoot(), 7, placeOf(180, 22), "click me", this);
    m_edit->setDefaultDrawing(true);
    add(m_edit, "one click");
    auto *twice = new CTextEdit(getControlRoot(), 7, placeOf(180, 22), "double click", this);
    twice->setDefaultDrawing(true);
    twice->setEditOnSingleClick(false);
    add(twice, "two clicks");
    auto *fixed = new CTextEdit(getControlRoot(), 7, placeOf(180, 22), "read only", this);
    fixed->setDefaultDrawing(true);
    fixed->setEditable(false);
    add(fixed, "not editable");
}

void CDemoWindow::addImageLabels() {
    startRow("CImageLabel", 24);
    for (const auto &[hasImage, hasFrame, caption] :
         {std::tuple(true, false, "image"), {true, true, "with frame"}, {false, true, "empty"}}) {
        auto *label = new CImageLabel(getControlRoot(), 8, placeOf(48, 24), this);
        label->setDropFileEnabled(true);
        label->setDefaultDrawing(hasFrame);
        if (hasImage)
            label->setPrimaryImage(createLamp(true));
        add(label, caption);
    }
}

void CDemoWindow::addClickables() {
    startRow("CClickableKnob", knobSize);
    for (const bool isDragEnabled : {true, false}) {
        auto *knob = new CClickableKnob(getControlRoot(), 9, placeOf(knobSize, knobSize), this,
                                        isDragEnabled);
        knob->setPrimaryImage(createKnobStrip(), knobSize, knobFrames, false);
        knob->setValue(0.6);
        add(knob, isDragEnabled ? "drag" : "click only");
    }
    m_x += 40;
    addText(CRect(m_x, m_y, nameWidth, 18), "CClickableLabel", m_nameFont.getPointer());
    m_x += nameWidth;
    for (const bool isHighlighted : {false, true}) {
        auto *label = new CHotSpot(getControlRoot(), 10, placeOf(110, 22), "press me", this);
        label->setDefaultDrawing(true);
        label->setHighlighted(isHighlighted);
        add(label, isHighlighted ? "highlighted" : "normal");
    }
}
