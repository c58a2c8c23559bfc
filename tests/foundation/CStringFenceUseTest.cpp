// Some operations of CString cannot fail, so no failure shows which fence they use. This program
// compiles its own CString, with fences that record which one is entered.
#include "foundation/CPascalString.h"
#include "foundation/CString.h"
#include "foundation/CStringFences.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

using Tessitor::Exceptions::SFence;

namespace {

const SFence *outermostFence = nullptr;

template <typename Operation>
decltype(auto) noted(const SFence &fence, Operation &&operation) {
    if (outermostFence == nullptr)
        outermostFence = &fence;
    return std::forward<Operation>(operation)();
}

}  // namespace

#define fenced(...) noted(__VA_ARGS__)
#include "foundation/CString.cpp"
#undef fenced

using Tessitor::Basics::CString;

namespace {

/// An operation that cannot fail, with the texts of its fence. The words that all fences share are
/// left out.
struct SUse {
    void (*run)(CString &string);
    std::string function, lead, unknown;
};

TEST(CStringFences, NameTheirOperationEvenIfItCannotFail) {
    const SUse uses[] = {
        {[](CString &) {
             const CString passing;
             outermostFence = nullptr;
         },
         "~CString", "string destruction", "during string destruction"},
        {[](CString &s) { s.characterAt(0); }, "characterAt", "character get",
         "during character get"},
        {[](CString &s) { s.toUpperCase(); }, "toUpperCase", "upper case change",
         "upper case change"},
        {[](CString &s) { s.toLowerCase(); }, "toLowerCase", "lower case change",
         "lower case change"},
        {[](CString &s) { s.replaceCharWithChar('a', 'b'); }, "replaceCharWithChar",
         "character replacement", "during character replacement"},
        {[](CString &s) { s.findForward('a'); }, "findForward", "forward find", "forward find"},
        {[](CString &s) { s.findBackwards('a'); }, "findBackwards", "backwards find",
         "backwards find"},
        {[](CString &s) { s.getString(); }, "getString", "string get", "during string get"},
        {[](CString &s) { s.getString(nullptr, 0); }, "getString", "string get",
         "during string get"},
        {[](CString &s) { s.equals("x"); }, "equals", "string comparison", "string comparison"},
        {[](CString &s) { s.equalsIgnoringCase("x"); }, "equalsIgnoringCase", "string comparison",
         "string comparison"},
    };
    for (const SUse &use : uses) {
        CString string("text");
        outermostFence = nullptr;
        use.run(string);
        ASSERT_NE(outermostFence, nullptr) << use.function;
        EXPECT_EQ(outermostFence->function, "Tessitor::Basics::CString::" + use.function);
        EXPECT_EQ(outermostFence->lead, "Caught exception during " + use.lead + ", more below\n\n");
        EXPECT_EQ(outermostFence->unknown, "Caught unknown exception " + use.unknown);
    }
}

}  // namespace
