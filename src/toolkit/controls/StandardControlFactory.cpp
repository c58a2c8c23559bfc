#include "toolkit/controls/CClickableKnob.h"
#include "toolkit/controls/CClickableLabel.h"
#include "toolkit/controls/CControlPanel.h"
#include "toolkit/controls/CImageLabel.h"
#include "toolkit/controls/CLatchingButton.h"
#include "toolkit/controls/CMomentaryButton.h"
#include "toolkit/controls/CSlider.h"
#include "toolkit/controls/CSliderArray.h"
#include "toolkit/controls/CTextEdit.h"
#include "toolkit/controls/IControlFactory.h"

namespace Tessitor::GUI::Controls {

using MathTools::CRect;

namespace {

struct SControlClass {
    const char *name;
    IControl *(*create)(IControlRoot *root);
};

/// For the classes whose only further argument is the listener.
template <typename Control>
IControl *create(IControlRoot *root) {
    return new Control(root, -1, CRect(), nullptr);
}

constexpr SControlClass classes[] = {
    {"CAnimation",
     [](IControlRoot *root) -> IControl * { return new CAnimation(root, -1, CRect()); }},
    {"CClickableKnob",
     [](IControlRoot *root) -> IControl * {
         return new CClickableKnob(root, -1, CRect(), nullptr, true);
     }},
    {"CClickableLabel",
     [](IControlRoot *root) -> IControl * {
         return new CClickableLabel(root, -1, CRect(), "", nullptr);
     }},
    {"CControlPanel",
     [](IControlRoot *root) -> IControl * {
         return new CControlPanel(root->getParentWindow(), root, -1, CRect(), nullptr);
     }},
    {"CImageLabel", create<CImageLabel>},
    {"CKnob", create<CKnob>},
    {"CLatchingButton", create<CLatchingButton>},
    {"CMomentaryButton", create<CMomentaryButton>},
    {"CSlider", create<CSlider>},
    {"CSliderArray", create<CSliderArray>},
    {"CTextEdit",
     [](IControlRoot *root) -> IControl * {
         return new CTextEdit(root, -1, CRect(), "", nullptr);
     }},
    {"CTextLabel",
     [](IControlRoot *root) -> IControl * { return new CTextLabel(root, -1, CRect(), ""); }},
};

class CStandardFactory : public IControlFactory {
public:
    IControl *createControl(const Tessitor::Basics::CString &className,
                            IControlRoot *root) const override {
        for (const SControlClass &known : classes)
            if (className == known.name)
                return known.create(root);
        return nullptr;
    }
};

}  // namespace

const IControlFactory &standardControlFactory() {
    static const CStandardFactory factory;
    return factory;
}

}  // namespace Tessitor::GUI::Controls
