import unittest

from writing.prose import anchor, to_html


def html(text, **parts):
    return to_html(text, parts, lambda run: f"<{len(run)} entries>")


class Prose(unittest.TestCase):
    def test_a_paragraph_is_one_line(self):
        self.assertEqual(html("One\ntwo\n\n\nthree"), "<p>One two</p>\n<p>three</p>")

    def test_headings_have_an_anchor(self):
        self.assertEqual(html("# The window"), '<h2 id="the-window">The window</h2>')
        self.assertEqual(html("## A & b"), '<h3 id="a-b">A &amp; b</h3>')
        self.assertEqual(anchor("BV (Pop)"), "bv-pop")

    def test_list_items_go_on_in_the_next_line(self):
        self.assertEqual(html("- one\n  more\n- two"), "<ul>\n<li>one more</li>\n<li>two</li>\n</ul>")

    def test_numbered_lists(self):
        self.assertEqual(html("9. nine\n10. ten"), "<ol>\n<li>nine</li>\n<li>ten</li>\n</ol>")

    def test_a_remark_may_have_the_mark_on_every_line_or_on_the_first(self):
        expected = '<p class="remark"><strong>Mind.</strong> The step.</p>'
        self.assertEqual(html("> **Mind.** The\n> step."), expected)
        self.assertEqual(html("> **Mind.** The\nstep."), expected)

    def test_code_keeps_its_lines(self):
        self.assertIn("<code>a &lt;b&gt;\n  c</code>", html("    a <b>\n      c"))

    def test_marks_inside_a_text(self):
        self.assertEqual(
            html("Set `In`, see [there](#the-window) & **go**"),
            '<p>Set <code>In</code>, see <a href="#the-window">there</a> &amp; <strong>go</strong></p>',
        )

    def test_a_number_stays_with_its_unit(self):
        self.assertEqual(html("6 dB, 3 downs, 44.1 kHz"), "<p>6\u00a0dB, 3 downs, 44.1\u00a0kHz</p>")

    def test_a_part_is_put_in_its_place(self):
        self.assertEqual(html("one\n\n{window}", window="<svg>"), "<p>one</p>\n<svg>")

    def test_an_unknown_part_is_an_error(self):
        with self.assertRaises(KeyError):
            html("{windoe}")

    def test_entries_that_follow_each_other_are_one_run(self):
        text = "[A] one\n\n[B = 3 dB] two\n\nbetween\n\n[C, D] three"
        self.assertEqual(html(text), "<2 entries>\n<p>between</p>\n<1 entries>")
