#include "corvel/effect/EffectPlaces.h"

#include <gmock/gmock.h>

using Tessitor::Tool::effectPlaces;
using testing::ElementsAre;

TEST(EffectPlaces, AreNearTheProgramAndThenWhereHostsSearch) {
    EXPECT_THAT(effectPlaces("/opt/corvel/bin", "", "/home/me"),
                ElementsAre("/opt/corvel/plugin/Corvel.so", "/opt/corvel/bin/Corvel.so",
                            "/opt/corvel/lib/vst/Corvel.so", "/home/me/.vst/Corvel.so",
                            "/usr/local/lib/vst/Corvel.so", "/usr/lib/vst/Corvel.so"));
}

TEST(EffectPlaces, TheVariableOfHostsReplacesTheirUsualFolders) {
    EXPECT_THAT(effectPlaces("/b", "/x:/y z::/x/", "/home/me"),
                ElementsAre("/plugin/Corvel.so", "/b/Corvel.so", "/lib/vst/Corvel.so",
                            "/x/Corvel.so", "/y z/Corvel.so"));
}

TEST(EffectPlaces, EachIsListedOnce) {
    EXPECT_THAT(effectPlaces("/usr/bin", "", ""),
                ElementsAre("/usr/plugin/Corvel.so", "/usr/bin/Corvel.so", "/usr/lib/vst/Corvel.so",
                            "/usr/local/lib/vst/Corvel.so"));
}
