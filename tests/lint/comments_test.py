import unittest

from comments import early_ends, marker_of


def lines_in(text, path="Example.h"):
    return early_ends(text.strip("\n"), marker_of(path))


class EarlyEnds(unittest.TestCase):
    def test_word_left_alone_in_a_paragraph(self):
        self.assertEqual(lines_in("""
/// The strip and its modules allocate only for a block that is longer than any they have
/// seen. A null `in` or `out` does
/// nothing more; out[1] may be null with a mono input.
"""), [2])

    def test_word_left_alone_in_the_text_of_a_tag(self):
        self.assertEqual(lines_in("""
/// @return the program or library that this code is linked into, as the system knows it: the
/// address
///         it was loaded at.
"""), [2])

    def test_tag_that_ends_early(self):
        self.assertEqual(lines_in("""
/// @param gain  above zero and
///              at most one
"""), [1])

    def test_comment_beside_code(self):
        self.assertEqual(lines_in("""
float gain = 1.0f;  // linear, and the
                    // same for both channels
"""), [1])

    def test_comments_of_scripts(self):
        text = "# A paragraph that ends\n# early.\n"
        self.assertEqual(lines_in(text, "script.sh"), [1])
        self.assertEqual(lines_in(text, "CMakeLists.txt"), [1])
        self.assertEqual(lines_in(text, "Example.h"), [])

    def test_word_that_fits_in_column_90_only(self):
        self.assertEqual(lines_in("// " + 76 * "x" + "\n// ten-letter"), [1])
        self.assertEqual(lines_in("// " + 77 * "x" + "\n// ten-letter"), [])

    def test_last_line_of_a_paragraph(self):
        self.assertEqual(lines_in("// Short\n\n// new one\nint x;\n// Short\n//\n// new one"), [])

    def test_end_of_a_sentence(self):
        for end in ".:!?":
            self.assertEqual(lines_in(f"// Coefficients of a band{end}\n// source unknown"), [])

    def test_title(self):
        self.assertEqual(lines_in("// add_tests(NAME SOURCES)\n// Adds one program."), [])
        self.assertEqual(lines_in("// First of all.\n// No title here, for\n// Windows asks first."),
                         [2])

    def test_tags_and_lists(self):
        self.assertEqual(lines_in("""
/// @param low   the lower end
/// @param high  the upper end
/// @return the middle
/// - first
/// - second
/// 1. one
/// 2. two
"""), [])

    def test_comments_of_neighbouring_members(self):
        self.assertEqual(lines_in("int a;  ///< frames\nint b;  ///< beats"), [])
        self.assertEqual(lines_in("int a;  // frames\n// beats of a bar\nint b;"), [])

    def test_code_samples_tables_and_drawings(self):
        self.assertEqual(lines_in("""
///     class CPoint : public CCountedObject {
///     public:
/// in --> low --> out
/// in --> high --> out
/// name    law
/// gain    decibels
"""), [])

    def test_string_is_no_comment(self):
        self.assertEqual(lines_in('text = " // a";\n         // b'), [])


if __name__ == "__main__":
    unittest.main()
