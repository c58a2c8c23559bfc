import unittest

from pam_to_png import read_pam

HEAD = b"P7\nWIDTH 2\nHEIGHT 1\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n"
PIXELS = b"\x01\x02\x03\xff\x00\x00\x00\x00"


class Pam(unittest.TestCase):
    def test_holds_the_pixels_from_the_top_left(self):
        image = read_pam(HEAD + PIXELS)
        self.assertEqual((image.width, image.height), (2, 1))
        self.assertEqual((image.pixel(0, 0), image.pixel(1, 0)), ((1, 2, 3, 255), (0, 0, 0, 0)))

    def test_other_forms_are_refused(self):
        for wrong in (
            HEAD.replace(b"P7", b"P6") + PIXELS,
            HEAD.replace(b"DEPTH 4", b"DEPTH 3") + PIXELS,
            HEAD.replace(b"ENDHDR\n", b"") + PIXELS,
            HEAD + PIXELS[1:],
        ):
            with self.assertRaises(ValueError):
                read_pam(wrong)


if __name__ == "__main__":
    unittest.main()
