#include "foundation/TemplateClassName.h"

#include "foundation/TPointerCollection.h"

#include <gtest/gtest.h>

using namespace std::string_view_literals;
using Tessitor::Basics::templateClassName;

namespace {

struct SInner {};

TEST(TemplateClassName, UsesThePartAfterTheLastColon) {
    EXPECT_EQ(templateClassName("TPointerDeleter<TypeName>", "Tessitor::Basics::CClass"sv),
              "TPointerDeleter<CClass>");
}

TEST(TemplateClassName, UsesThePartAfterTheLastBlankIfThereIsNoColon) {
    EXPECT_EQ(templateClassName("TList<TypeName>", "class CClass"sv), "TList<CClass>");
    EXPECT_EQ(templateClassName("TList<TypeName>", "class Tessitor::CClass"sv), "TList<CClass>");
    EXPECT_EQ(templateClassName("TList<TypeName>", "unsigned long int"sv), "TList<int>");
}

TEST(TemplateClassName, UsesAPlainNameUnchanged) {
    EXPECT_EQ(templateClassName("TList<TypeName>", "CClass"sv), "TList<CClass>");
}

TEST(TemplateClassName, KeepsALiteralWithoutABracket) {
    EXPECT_EQ(templateClassName("CList", "Tessitor::CClass"sv), "CList");
    EXPECT_EQ(templateClassName("", "CClass"sv), "");
}

TEST(TemplateClassName, DemanglesTypeNames) {
    EXPECT_EQ(templateClassName("TList<TypeName>", typeid(Tessitor::Basics::CClass)),
              "TList<CClass>");
    EXPECT_EQ(templateClassName("TList<TypeName>", typeid(SInner)), "TList<SInner>");
    EXPECT_EQ(templateClassName("TList<TypeName>", typeid(int)), "TList<int>");
}

// The search for the last colon ignores brackets.
TEST(TemplateClassName, KeepsTheBracketOfANestedTemplate) {
    using Nested = Tessitor::Collections::TPointerCollection<Tessitor::Basics::CClass>;
    EXPECT_EQ(templateClassName("TList<TypeName>", typeid(Nested)), "TList<CClass>>");
}

}  // namespace
