#pragma once

#include "foundation/ExceptionFence.h"

/// The texts that each operation of CString adds to an exception that passes through it.
namespace Tessitor::Basics::StringFences {

using Exceptions::SFence;

constexpr SFence construction{"Caught exception during string construction, more below\n\n",
                              "Caught unknown exception during string construction",
                              "Tessitor::Basics::CString::CString"};
constexpr SFence destruction{"Caught exception during string destruction, more below\n\n",
                             "Caught unknown exception during string destruction",
                             "Tessitor::Basics::CString::~CString"};
constexpr SFence assignment{"Caught exception during string assignment, more below\n\n",
                            "Caught unknown exception during string assignment",
                            "Tessitor::Basics::CString::operator ="};
constexpr SFence addition{"Caught exception during string append, more below\n\n",
                          "Caught unknown exception during string append",
                          "Tessitor::Basics::CString::operator +="};
constexpr SFence equality{"Caught exception during string comparison, more below\n\n",
                          "Caught unknown exception during string comparison",
                          "Tessitor::Basics::CString::operator =="};
constexpr SFence inequality{"Caught exception during string comparison, more below\n\n",
                            "Caught unknown exception during string comparison",
                            "Tessitor::Basics::CString::operator !="};
constexpr SFence indexing{"Caught exception during string indexing, more below\n\n",
                          "Caught unknown exception during string indexing",
                          "Tessitor::Basics::CString::operator []"};
constexpr SFence conversion{"Caught exception during string conversion, more below\n\n",
                            "Caught unknown exception during string conversion",
                            "Tessitor::Basics::CString::operator CPascalString"};
constexpr SFence setString{"Caught exception during string storing, more below\n\n",
                           "Caught unknown exception during string storing",
                           "Tessitor::Basics::CString::setString"};
constexpr SFence setStringWithFormat{
    "Caught exception during string storing (printf), more below\n\n",
    "Caught unknown exception during string storing (printf)",
    "Tessitor::Basics::CString::setStringWithFormat"};
constexpr SFence appendString{"Caught exception during string append, more below\n\n",
                              "Caught unknown exception during string append",
                              "Tessitor::Basics::CString::appendString"};
constexpr SFence getString{"Caught exception during string get, more below\n\n",
                           "Caught unknown exception during string get",
                           "Tessitor::Basics::CString::getString"};
constexpr SFence getSubString{"Caught exception during sub string get, more below\n\n",
                              "Caught unknown exception during sub string get",
                              "Tessitor::Basics::CString::getSubString"};
constexpr SFence characterAt{"Caught exception during character get, more below\n\n",
                             "Caught unknown exception during character get",
                             "Tessitor::Basics::CString::characterAt"};
constexpr SFence toUpperCase{"Caught exception during upper case change, more below\n\n",
                             "Caught unknown exception upper case change",
                             "Tessitor::Basics::CString::toUpperCase"};
constexpr SFence toLowerCase{"Caught exception during lower case change, more below\n\n",
                             "Caught unknown exception lower case change",
                             "Tessitor::Basics::CString::toLowerCase"};
constexpr SFence removeTrailingAndLeadingWhiteSpace{
    "Caught exception during white space removal, more below\n\n",
    "Caught unknown exception during white space removal",
    "Tessitor::Basics::CString::removeTrailingAndLeadingWhiteSpace"};
constexpr SFence removeLeadingWhiteSpace{
    "Caught exception during leading white space removal, more below\n\n",
    "Caught unknown exception during leading white space removal",
    "Tessitor::Basics::CString::removeLeadingWhiteSpace"};
constexpr SFence removeTrailingWhiteSpace{
    "Caught exception during trailing white space removal, more below\n\n",
    "Caught unknown exception during trailing white space removal",
    "Tessitor::Basics::CString::removeTrailingWhiteSpace"};
constexpr SFence removeLastCharacter{
    "Caught exception during removal of last character, more below\n\n",
    "Caught unknown exception during removal of last character",
    "Tessitor::Basics::CString::removeLastCharacter"};
constexpr SFence replaceCharWithChar{
    "Caught exception during character replacement, more below\n\n",
    "Caught unknown exception during character replacement",
    "Tessitor::Basics::CString::replaceCharWithChar"};
constexpr SFence replaceCharWithString{
    "Caught exception during character replacement, more below\n\n",
    "Caught unknown exception during character replacement",
    "Tessitor::Basics::CString::replaceCharWithString"};
constexpr SFence replaceStringWithChar{
    "Caught exception during character replacement, more below\n\n",
    "Caught unknown exception during character replacement",
    "Tessitor::Basics::CString::replaceStringWithChar"};
constexpr SFence equals{"Caught exception during string comparison, more below\n\n",
                        "Caught unknown exception string comparison",
                        "Tessitor::Basics::CString::equals"};
constexpr SFence equalsIgnoringCase{"Caught exception during string comparison, more below\n\n",
                                    "Caught unknown exception string comparison",
                                    "Tessitor::Basics::CString::equalsIgnoringCase"};
constexpr SFence findForward{"Caught exception during forward find, more below\n\n",
                             "Caught unknown exception forward find",
                             "Tessitor::Basics::CString::findForward"};
constexpr SFence findBackwards{"Caught exception during backwards find, more below\n\n",
                               "Caught unknown exception backwards find",
                               "Tessitor::Basics::CString::findBackwards"};
constexpr SFence findSubString{"Caught exception during substring find, more below\n\n",
                               "Caught unknown exception substring find",
                               "Tessitor::Basics::CString::findSubString"};
constexpr SFence getObjectDescription{
    "Caught exception during get object description, more below\n\n",
    "Caught unknown exception get object description",
    "Tessitor::Basics::CString::getObjectDescription"};

}  // namespace Tessitor::Basics::StringFences
