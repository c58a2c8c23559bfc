#include "toolkit/controls/CControlPanel.h"
#include "toolkit/controls/IControlFactory.h"

namespace Tessitor::GUI::Controls {

namespace {

class CStandardFactory : public IControlFactory {
public:
    IControl *createControl(const Tessitor::Basics::CString &className,
                            IControlRoot *root) const override {
        if (className == "CControlPanel")
            return new CControlPanel(root->getParentWindow(), root, -1, MathTools::CRect(),
                                     nullptr);
        return nullptr;
    }
};

}  // namespace

const IControlFactory &standardControlFactory() {
    static const CStandardFactory factory;
    return factory;
}

}  // namespace Tessitor::GUI::Controls
