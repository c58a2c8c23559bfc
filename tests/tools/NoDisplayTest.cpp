#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <fstream>
#include <gmock/gmock.h>

// `corvel` with the built effect on machines that lack what only the editor needs

namespace {

class NoDisplay : public testing::Test {
protected:
    NoDisplay() {
        writeSound(folder / "in.wav", voice(3, 5000));
        usual = render("");
    }
    SSound render(const std::string &environment, const std::string &effect = CORVEL_EFFECT) {
        const SProgramRun run =
            corvel({"render", folder / "in.wav", folder / "out.wav", "--force", "--plugin", effect},
                   environment);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.errors, "");
        return readSound(folder / "out.wav");
    }
    void expectAsUsual(const std::string &environment, const std::string &effect = CORVEL_EFFECT) {
        EXPECT_THAT(render(environment, effect).samples, testing::ContainerEq(usual.samples));
    }

    CTemporaryFolder folder;
    SSound usual;
};

}  // namespace

TEST_F(NoDisplay, RendersWithoutADisplay) {
    expectAsUsual("unset DISPLAY;");
    expectAsUsual("DISPLAY=:9999");
}

TEST_F(NoDisplay, RendersWithoutFonts) {
    const std::string configuration = (folder / "fonts.conf").string();
    std::ofstream(configuration) << "<fontconfig></fontconfig>";
    expectAsUsual("FONTCONFIG_FILE=" + configuration);
}

TEST_F(NoDisplay, RendersWithoutTheFolderOfResources) {
    const std::string copy = (folder / "Corvel.so").string();
    std::filesystem::copy_file(CORVEL_EFFECT, copy);
    expectAsUsual("", copy);
}
