#include "effect/CLibrarySession.h"

#include <gtest/gtest.h>
#include <optional>

namespace {

/// The class library runs during all tests, as it does while a host uses the effect.
class CRunningLibrary : public testing::Environment {
public:
    void SetUp() override { m_session.emplace(); }
    void TearDown() override { m_session.reset(); }

private:
    std::optional<Tessitor::Corvel::CLibrarySession> m_session;
};

const testing::Environment *const library = testing::AddGlobalTestEnvironment(new CRunningLibrary);

}  // namespace
