#include "foundation/CException.h"
#include "hostlayer/ProbeEffect.h"

#include <gtest/gtest.h>

using Tessitor::Exceptions::CException;

TEST(AEffEditor, TellsTheUserWhyItDoesNotOpen) {
    class Editor : public ProbeEditor {
    public:
        using ProbeEditor::ProbeEditor;
        bool open(void *) override { throw CException("No display", "open()", true); }
    };
    ProbeEffect effect;
    effect.setEditor(new Editor(&effect));
    testing::internal::CaptureStderr();
    EXPECT_EQ(effect.call(14), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Exception occurred: No display\n\nopen()\n");
}
