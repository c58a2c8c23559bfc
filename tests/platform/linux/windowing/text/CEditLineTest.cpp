#include "platform/linux/windowing/text/CEditLine.h"

#include <gtest/gtest.h>

namespace {

using enum EEditReach;

/// The text with "[" and "]" around the selection and "|" for the caret.
std::string shown(const CEditLine &line) {
    std::string text;
    const bool isSelected = line.hasSelection();
    for (std::size_t i = 0; i <= line.getText().size(); ++i) {
        if (isSelected && i == line.getSelectionStart())
            text += '[';
        if (i == line.getCaret())
            text += '|';
        if (isSelected && i == line.getSelectionEnd())
            text += ']';
        if (i < line.getText().size())
            text += line.getText()[i];
    }
    return text;
}

/// A line with the caret at a position and nothing selected.
CEditLine lineAt(const char *text, std::size_t caret, std::size_t maximumLength = 0) {
    CEditLine line(text, maximumLength);
    line.moveTo(caret, false);
    return line;
}

TEST(CEditLine, SelectsAllAtFirst) {
    EXPECT_EQ(shown(CEditLine("old", 0)), "[old|]");
    EXPECT_EQ(CEditLine("old", 0).getSelectedText(), "old");
    EXPECT_EQ(shown(CEditLine("", 0)), "|");
}

TEST(CEditLine, ReplacesTheSelection) {
    CEditLine line("old", 0);
    line.insert("n");
    line.insert("ew");
    EXPECT_EQ(shown(line), "new|");
    line.moveTo(1, false);
    line.moveTo(2, true);
    line.insert("o");
    EXPECT_EQ(shown(line), "no|w");
}

TEST(CEditLine, CutsAtTheLimitButNeverInsideACharacter) {
    CEditLine line = lineAt("ab", 2, 5);
    line.insert("cö€");
    EXPECT_EQ(shown(line), "abcö|");
    line.insert("x");
    EXPECT_EQ(shown(line), "abcö|");
    line = lineAt("ab", 1, 5);
    line.insert("€€");
    EXPECT_EQ(shown(line), "a€|b");
}

TEST(CEditLine, CountsTheSelectionAsRoom) {
    CEditLine line("abc", 3);
    line.insert("xyz");
    EXPECT_EQ(shown(line), "xyz|");
}

TEST(CEditLine, KeepsTheSelectionIfNotEvenOneCharacterFits) {
    CEditLine line = lineAt("abc", 0, 3);
    line.moveTo(1, true);
    line.insert("€");
    EXPECT_EQ(shown(line), "[a|]bc");
}

TEST(CEditLine, KeepsATextThatIsLongerThanTheLimit) {
    CEditLine line = lineAt("abcdef", 6, 3);
    line.insert("x");
    EXPECT_EQ(line.getText(), "abcdef");
    line.eraseBefore(Character);
    EXPECT_EQ(line.getText(), "abcde");
}

TEST(CEditLine, GivesWholeCharactersUpToALength) {
    const CEditLine line("aö€", 0);
    EXPECT_EQ(line.getText(100), "aö€");
    EXPECT_EQ(line.getText(6), "aö€");
    EXPECT_EQ(line.getText(5), "aö");
    EXPECT_EQ(line.getText(2), "a");
    EXPECT_EQ(line.getText(0), "");
}

TEST(CEditLine, TurnsLineBreaksAndTabsIntoBlanks) {
    CEditLine line("", 0);
    line.insert("a\r\nb\nc\rd\te");
    EXPECT_EQ(line.getText(), "a b c d e");
}

TEST(CEditLine, LeavesOutLineBreaksAtTheEndAndControlCharacters) {
    CEditLine line("", 0);
    line.insert(std::string_view("a\x01\x00\x7F\xC2\x85"
                                 "b\r\n\n",
                                 9));
    EXPECT_EQ(line.getText(), "ab");
    line.insert("\r\n");
    EXPECT_EQ(line.getText(), "ab");
    line.selectAll();
    line.insert("\x1B");
    EXPECT_EQ(shown(line), "[ab|]");
}

TEST(CEditLine, ErasesWholeCharacters) {
    CEditLine line = lineAt("aö€b", 6);
    line.eraseBefore(Character);
    EXPECT_EQ(shown(line), "aö|b");
    line.eraseBefore(Character);
    EXPECT_EQ(shown(line), "a|b");
    line = lineAt("aö€b", 1);
    line.eraseAfter(Character);
    EXPECT_EQ(shown(line), "a|€b");
    line.eraseAfter(Character);
    line.eraseAfter(Character);
    line.eraseAfter(Character);
    EXPECT_EQ(shown(line), "a|");
    line.eraseBefore(Character);
    line.eraseBefore(Character);
    EXPECT_EQ(shown(line), "|");
}

TEST(CEditLine, ErasesTheSelectionInstead) {
    CEditLine line("abc", 0);
    line.moveTo(1, false);
    line.moveTo(2, true);
    line.eraseBefore(Character);
    EXPECT_EQ(shown(line), "a|c");
    line.selectAll();
    line.eraseAfter(Word);
    EXPECT_EQ(shown(line), "|");
}

TEST(CEditLine, ErasesWordsAndTheRestOfTheLine) {
    CEditLine line = lineAt("one two three", 7);
    line.eraseBefore(Word);
    EXPECT_EQ(shown(line), "one | three");
    line.eraseAfter(Word);
    EXPECT_EQ(shown(line), "one |three");
    line.eraseAfter(Line);
    EXPECT_EQ(shown(line), "one |");
    line.eraseBefore(Line);
    EXPECT_EQ(shown(line), "|");
}

TEST(CEditLine, MovesByCharacters) {
    CEditLine line = lineAt("ö€", 0);
    line.moveLeft(Character, false);
    EXPECT_EQ(shown(line), "|ö€");
    line.moveRight(Character, false);
    EXPECT_EQ(shown(line), "ö|€");
    line.moveRight(Character, false);
    line.moveRight(Character, false);
    EXPECT_EQ(shown(line), "ö€|");
    line.moveLeft(Character, false);
    EXPECT_EQ(shown(line), "ö|€");
}

TEST(CEditLine, MovesByWords) {
    CEditLine line = lineAt("one  two", 0);
    line.moveRight(Word, false);
    EXPECT_EQ(shown(line), "one  |two");
    line.moveRight(Word, false);
    EXPECT_EQ(shown(line), "one  two|");
    line.moveLeft(Word, false);
    EXPECT_EQ(shown(line), "one  |two");
    line.moveLeft(Word, false);
    line.moveLeft(Word, false);
    EXPECT_EQ(shown(line), "|one  two");
}

TEST(CEditLine, MovesToTheEnds) {
    CEditLine line = lineAt("abc", 1);
    line.moveRight(Line, false);
    EXPECT_EQ(shown(line), "abc|");
    line.moveLeft(Line, true);
    EXPECT_EQ(shown(line), "[|abc]");
}

TEST(CEditLine, ExtendsTheSelectionInBothDirections) {
    CEditLine line = lineAt("abcd", 2);
    line.moveRight(Character, true);
    EXPECT_EQ(shown(line), "ab[c|]d");
    line.moveLeft(Character, true);
    line.moveLeft(Character, true);
    EXPECT_EQ(shown(line), "a[|b]cd");
    EXPECT_EQ(line.getSelectedText(), "b");
}

TEST(CEditLine, LeavesTheSelectionAtItsEdge) {
    CEditLine line("abc", 0);
    line.moveLeft(Character, false);
    EXPECT_EQ(shown(line), "|abc");
    line.selectAll();
    line.moveRight(Character, false);
    EXPECT_EQ(shown(line), "abc|");
}

TEST(CEditLine, LeavesTheSelectionByWordsFromTheCaret) {
    CEditLine line("one two three", 0);
    line.moveTo(9, false);
    line.moveTo(5, true);
    line.moveRight(Word, false);
    EXPECT_EQ(shown(line), "one two |three");
    line.moveTo(5, false);
    line.moveTo(9, true);
    line.moveLeft(Word, false);
    EXPECT_EQ(shown(line), "one two |three");
}

TEST(CEditLine, PutsTheCaretBetweenCharacters) {
    CEditLine line = lineAt("ö€", 1);
    EXPECT_EQ(shown(line), "|ö€");
    line.moveTo(3, false);
    EXPECT_EQ(shown(line), "ö|€");
    line.moveTo(100, true);
    EXPECT_EQ(shown(line), "ö[€|]");
}

TEST(CEditLine, SelectsAWordWithTheBlanksAfterIt) {
    CEditLine line("one two  three", 0);
    line.selectWord(5);
    EXPECT_EQ(shown(line), "one [two  |]three");
    line.selectWord(4);
    EXPECT_EQ(shown(line), "one [two  |]three");
    line.selectWord(7);
    EXPECT_EQ(shown(line), "one [two  |]three");
    line.selectWord(0);
    EXPECT_EQ(shown(line), "[one |]two  three");
    line.selectWord(14);
    EXPECT_EQ(shown(line), "one two  [three|]");
    CEditLine empty("", 0);
    empty.selectWord(3);
    EXPECT_EQ(shown(empty), "|");
}

TEST(CEditLine, TakesEachBrokenByteAsACharacter) {
    const std::string broken = "\xC3(\xFF\xE2\x82";
    CEditLine line(broken, 0);
    EXPECT_EQ(line.getText(), broken);
    for (std::size_t i = broken.size(); i > 0; --i) {
        line.moveTo(i, false);
        EXPECT_EQ(line.getCaret(), i);
    }
    line.moveRight(Line, false);
    line.eraseBefore(Character);
    EXPECT_EQ(line.getText(), "\xC3(\xFF\xE2");
    line.selectAll();
    line.insert(broken);
    EXPECT_EQ(line.getText(), broken);
}

TEST(CEditLine, KeepsTheCaretOutOfACharacterThatBrokenBytesMake) {
    CEditLine line = lineAt("\xC3x\xB6", 2);
    line.eraseBefore(Character);
    EXPECT_EQ(line.getText(), "ö");
    EXPECT_EQ(line.getCaret(), 0u);
    line = lineAt("\xB6", 0);
    line.insert("\xC3");
    EXPECT_EQ(line.getText(), "ö");
    EXPECT_EQ(line.getCaret(), 0u);
}

}  // namespace
