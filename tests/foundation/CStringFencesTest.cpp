#include "Allocation.h"
#include "foundation/CException.h"
#include "foundation/CPascalString.h"
#include "foundation/CString.h"

#include <gtest/gtest.h>
#include <ostream>
#include <stdexcept>
#include <string>

using Tessitor::Basics::CPascalString;
using Tessitor::Basics::CString;
using Tessitor::Exceptions::CException;

namespace {

/// The texts that the fence of an operation adds. The words that all fences share are left out.
struct SExpected {
    const char *function, *lead, *unknown;

    std::string fullFunction() const {
        return std::string("Tessitor::Basics::CString::") + function;
    }
    std::string fullLead() const {
        return std::string("Caught exception during ") + lead + ", more below\n\n";
    }
    std::string fullUnknown() const { return std::string("Caught unknown exception ") + unknown; }
};

constexpr SExpected construction{"CString", "string construction", "during string construction"};
constexpr SExpected assignment{"operator =", "string assignment", "during string assignment"};
constexpr SExpected addition{"operator +=", "string append", "during string append"};
constexpr SExpected equality{"operator ==", "string comparison", "during string comparison"};
constexpr SExpected inequality{"operator !=", "string comparison", "during string comparison"};
constexpr SExpected indexing{"operator []", "string indexing", "during string indexing"};
constexpr SExpected storing{"setString", "string storing", "during string storing"};
constexpr SExpected formatting{"setStringWithFormat", "string storing (printf)",
                               "during string storing (printf)"};
constexpr SExpected appending{"appendString", "string append", "during string append"};
constexpr SExpected getting{"getString", "string get", "during string get"};
constexpr SExpected conversion{"operator CPascalString", "string conversion",
                               "during string conversion"};
constexpr SExpected subString{"getSubString", "sub string get", "during sub string get"};
constexpr SExpected whiteSpace{"removeTrailingAndLeadingWhiteSpace", "white space removal",
                               "during white space removal"};
constexpr SExpected leading{"removeLeadingWhiteSpace", "leading white space removal",
                            "during leading white space removal"};
constexpr SExpected trailing{"removeTrailingWhiteSpace", "trailing white space removal",
                             "during trailing white space removal"};
constexpr SExpected lastCharacter{"removeLastCharacter", "removal of last character",
                                  "during removal of last character"};
constexpr SExpected charByString{"replaceCharWithString", "character replacement",
                                 "during character replacement"};
constexpr SExpected stringByChar{"replaceStringWithChar", "character replacement",
                                 "during character replacement"};
constexpr SExpected equals{"equals", "string comparison", "string comparison"};
constexpr SExpected equalsIgnoringCase{"equalsIgnoringCase", "string comparison",
                                       "string comparison"};
constexpr SExpected needle{"findSubString", "substring find", "substring find"};
constexpr SExpected description{"getObjectDescription", "get object description",
                                "get object description"};

struct SReport {
    std::string reason, function;
};

/// @return what the operation on the string threw; both texts are empty if it threw nothing.
template <typename Operation, typename String>
SReport reportOf(Operation operation, String &string) {
    try {
        operation(string);
    } catch (const CException &exception) {
        return {exception.getErrorReason().getString(), exception.getFunctionName().getString()};
    }
    return {};
}

enum class EFailure { Known, Unknown };

/// The string "e", with overrides that fail. The tests call an operation of CString by its
/// qualified name, and the overrides that it calls fail inside its fence.
class CFailingString : public CString {
public:
    explicit CFailingString(EFailure failure) : CString("e"), m_failure(failure) {}

    bool operator==(const CString &) const override { fail(); }
    bool operator==(const char *) const override { fail(); }
    void setString(const CString &) override { fail(); }
    void setString(const char *) override { fail(); }
    void appendString(const CString &) override { fail(); }
    void appendString(const char *) override { fail(); }
    const char *getString() const override { fail(); }
    void getString(char *, long) const override { fail(); }
    CString getSubString(long, long) const override { fail(); }
    char characterAt(long) const override { fail(); }
    void removeLeadingWhiteSpace() override { fail(); }
    bool equals(const CString &) const override { fail(); }
    bool equals(const char *) const override { fail(); }
    bool equalsIgnoringCase(const char *) const override { fail(); }
    std::int32_t findForward(char) const override { fail(); }

private:
    [[noreturn]] void fail() const {
        if (m_failure == EFailure::Known)
            throw CException("the first failure", "its function", true);
        throw std::runtime_error("not one of ours");
    }

    const EFailure m_failure;
};

struct SFailingOperation {
    const char *name;
    SExpected expected;
    void (*run)(CFailingString &string);
};

void PrintTo(const SFailingOperation &operation, std::ostream *out) {
    *out << operation.name;
}

const SFailingOperation failingOperations[] = {
    {"Copy", construction, [](CFailingString &s) { static_cast<void>(CString(s)); }},
    {"AssignBool", assignment, [](CFailingString &s) { s.CString::operator=(true); }},
    {"AssignLong", assignment, [](CFailingString &s) { s.CString::operator=(7L); }},
    {"AssignInt", assignment, [](CFailingString &s) { s.CString::operator=(7); }},
    {"AssignFloat", assignment, [](CFailingString &s) { s.CString::operator=(7.0f); }},
    {"AssignText", assignment, [](CFailingString &s) { s.CString::operator=("x"); }},
    {"AssignConst", assignment, [](CFailingString &s) { s.CString::operator=(CString("x")); }},
    {"AssignChangeable", assignment,
     [](CFailingString &s) {
         CString other("x");
         s.CString::operator=(other);
     }},
    {"AddText", addition, [](CFailingString &s) { s.CString::operator+=("x"); }},
    {"AddString", addition, [](CFailingString &s) { s.CString::operator+=(CString("x")); }},
    {"EqualsText", equality, [](CFailingString &s) { s.CString::operator==("x"); }},
    {"EqualsString", equality, [](CFailingString &s) { s.CString::operator==(CString("x")); }},
    {"DiffersFromText", inequality, [](CFailingString &s) { s.CString::operator!=("x"); }},
    {"DiffersFromString", inequality,
     [](CFailingString &s) { s.CString::operator!=(CString("x")); }},
    {"Index", indexing, [](CFailingString &s) { s.CString::operator[](0); }},
    {"SetString", storing, [](CFailingString &s) { s.CString::setString(CString("x")); }},
    {"Format", formatting, [](CFailingString &s) { s.CString::setStringWithFormat("%d", 1); }},
    {"AppendString", appending, [](CFailingString &s) { s.CString::appendString(CString("x")); }},
    {"AppendCharacter", appending, [](CFailingString &s) { s.CString::appendString('x'); }},
    {"GetIntoBuffer", getting,
     [](CFailingString &s) {
         char buffer[8];
         s.CString::getString(buffer);
     }},
    {"TrimBothEnds", whiteSpace,
     [](CFailingString &s) { s.CString::removeTrailingAndLeadingWhiteSpace(); }},
    {"TrimFront", leading, [](CFailingString &s) { s.CString::removeLeadingWhiteSpace(); }},
    {"TrimEnd", trailing, [](CFailingString &s) { s.CString::removeTrailingWhiteSpace(); }},
    {"RemoveLast", lastCharacter, [](CFailingString &s) { s.CString::removeLastCharacter(); }},
    {"CharWithString", charByString,
     [](CFailingString &s) { s.CString::replaceCharWithString('e', "x"); }},
    {"StringWithChar", stringByChar,
     [](CFailingString &s) { s.CString::replaceStringWithChar('x', s); }},
    {"Equals", equals, [](CFailingString &s) { s.CString::equals(CString("x")); }},
    {"EqualsIgnoringCase", equalsIgnoringCase,
     [](CFailingString &s) { s.CString::equalsIgnoringCase(CString("x")); }},
    {"FindSubString", needle, [](CFailingString &s) { s.CString::findSubString("x"); }},
    {"Describe", description,
     [](CFailingString &s) {
         char buffer[8];
         s.CString::getObjectDescription(buffer, sizeof buffer);
     }},
};

class CStringFences : public testing::TestWithParam<SFailingOperation> {};

TEST_P(CStringFences, PutTheirLeadBeforeAKnownFailure) {
    const auto &[name, expected, run] = GetParam();
    CFailingString string(EFailure::Known);
    const SReport report = reportOf(run, string);
    EXPECT_EQ(report.reason, expected.fullLead() + "the first failure\n\nits function");
    EXPECT_EQ(report.function, expected.fullFunction());
}

TEST_P(CStringFences, ReportAnUnknownFailure) {
    const auto &[name, expected, run] = GetParam();
    CFailingString string(EFailure::Unknown);
    const SReport report = reportOf(run, string);
    EXPECT_EQ(report.reason, expected.fullUnknown());
    EXPECT_EQ(report.function, expected.fullFunction());
}

INSTANTIATE_TEST_SUITE_P(Operations, CStringFences, testing::ValuesIn(failingOperations),
                         [](const auto &test) { return test.param.name; });

struct SAllocatingOperation {
    const char *name;
    SExpected expected;
    void (*run)(CString &string);
    const char *result;
};

void PrintTo(const SAllocatingOperation &operation, std::ostream *out) {
    *out << operation.name;
}

const char *const blockText = " longer than what a string keeps within itself ";

const SAllocatingOperation allocatingOperations[] = {
    {"Construct", construction, [](CString &) { const CString made("x"); }, blockText},
    {"Copy", construction, [](CString &s) { static_cast<void>(CString(s)); }, blockText},
    {"AssignBool", assignment, [](CString &s) { s = true; }, "True"},
    {"AssignLong", assignment, [](CString &s) { s = 7L; }, "007"},
    {"AssignInt", assignment, [](CString &s) { s = 7; }, "007"},
    {"AssignFloat", assignment, [](CString &s) { s = 1e20f; }, "100000002004087734272.000"},
    {"AssignText", assignment, [](CString &s) { s = "x"; }, "x"},
    {"AddText", addition, [](CString &s) { s += "x"; },
     " longer than what a string keeps within itself x"},
    {"SetText", storing, [](CString &s) { s.setString("x"); }, "x"},
    {"Format", formatting, [](CString &s) { s.setStringWithFormat("%i", 7); }, "7"},
    {"AppendText", appending, [](CString &s) { s.appendString("x"); },
     " longer than what a string keeps within itself x"},
    {"GetSubString", subString, [](CString &s) { s.getSubString(0, 40); }, blockText},
    {"ToPascalString", conversion,
     [](CString &s) { static_cast<void>(static_cast<CPascalString>(s)); }, blockText},
    {"TextOfDouble", construction, [](CString &) { CString::toString(1e300); }, blockText},
    {"TextOfFloat", construction, [](CString &) { CString::toString(1e30f); }, blockText},
    {"TextOfInt", construction, [](CString &) { CString::toString(7); }, blockText},
    {"TextOfLong", construction, [](CString &) { CString::toString(7L); }, blockText},
    {"TrimBothEnds", whiteSpace, [](CString &s) { s.removeTrailingAndLeadingWhiteSpace(); },
     "longer than what a string keeps within itself"},
    {"TrimFront", leading, [](CString &s) { s.removeLeadingWhiteSpace(); },
     "longer than what a string keeps within itself "},
    {"TrimEnd", trailing, [](CString &s) { s.removeTrailingWhiteSpace(); },
     " longer than what a string keeps within itself"},
    {"RemoveLast", lastCharacter, [](CString &s) { s.removeLastCharacter(); },
     " longer than what a string keeps within itself"},
    {"CharWithString", charByString,
     [](CString &s) {
         static const CString replacement("LO");
         s.replaceCharWithString('l', replacement);
     },
     " LOonger than what a string keeps within itseLOf "},
    {"StringWithChar", stringByChar,
     [](CString &s) {
         static const CString find("onger");
         s.replaceStringWithChar('x', find);
     },
     " lx than what a string keeps within itself "},
};

/// Runs the operation on blockText while the allocation with this number, from 0, fails.
template <typename Operation>
SReport reportWithoutMemory(int allocation, Operation operation, CString &string) {
    string.setString(blockText);
    const CFailingAllocation failing(allocation);
    return reportOf(operation, string);
}

class CStringFencesWithoutMemory : public testing::TestWithParam<SAllocatingOperation> {};

// Runs each operation again and again: its first allocation fails, then its second, and so on until
// it succeeds.
TEST_P(CStringFencesWithoutMemory, ReportEachFailedAllocationAndLeaveTheStringValid) {
    const auto &[name, expected, run, result] = GetParam();
    CString string(blockText);
    run(string);
    ASSERT_STREQ(string.getString(), result);

    int failures = 0;
    for (SReport report = reportWithoutMemory(0, run, string); !report.reason.empty();
         report = reportWithoutMemory(++failures, run, string)) {
        EXPECT_EQ(report.function, expected.fullFunction());
        EXPECT_TRUE(report.reason == expected.fullUnknown() ||
                    report.reason.starts_with(expected.fullLead()))
            << report.reason;
        EXPECT_EQ(string.getNumberOfCharacters(), std::string(string.getString()).size() + 1);
    }
    EXPECT_GT(failures, 0) << "no allocation was made to fail";
    EXPECT_STREQ(string.getString(), result);
}

INSTANTIATE_TEST_SUITE_P(Operations, CStringFencesWithoutMemory,
                         testing::ValuesIn(allocatingOperations),
                         [](const auto &test) { return test.param.name; });

TEST(CStringFences, ReadFromTheOutermostOperationDownToTheFirstFailure) {
    CString string;
    const SReport report = reportWithoutMemory(
        0, [](CString &s) { s.removeTrailingAndLeadingWhiteSpace(); }, string);
    EXPECT_EQ(report.reason, "Caught exception during white space removal, more below\n\n"
                             "Caught exception during leading white space removal, more below\n\n"
                             "Caught exception during sub string get, more below\n\n"
                             "Caught unknown exception during string construction\n\n"
                             "Tessitor::Basics::CString::CString\n\n"
                             "Tessitor::Basics::CString::getSubString\n\n"
                             "Tessitor::Basics::CString::removeLeadingWhiteSpace");
    EXPECT_EQ(report.function, "Tessitor::Basics::CString::removeTrailingAndLeadingWhiteSpace");
}

TEST(CStringFences, AFailedConstructionIsNotCounted) {
    CString string;
    const auto instances = string.getClass().getInstanceCount();
    reportWithoutMemory(
        0, [](CString &) { const CString made("x"); }, string);
    reportWithoutMemory(
        0, [](CString &s) { static_cast<void>(CString(s)); }, string);
    EXPECT_EQ(string.getClass().getInstanceCount(), instances);
}

}  // namespace
