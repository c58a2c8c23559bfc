import random
import struct
import unittest
import zlib

from drawing import png


def noise(width, height):
    return png.Image(width, height, random.Random(3).randbytes(4 * width * height))


def with_chunk(file, kind, data):
    """The file with one more chunk before its end."""
    end = png.chunk(b"IEND", b"")
    return file.removesuffix(end) + png.chunk(kind, data) + end


class Png(unittest.TestCase):
    def test_decoding_undoes_encoding(self):
        for width, height in ((1, 1), (1, 9), (9, 1), (24, 48)):
            image = noise(width, height)
            decoded = png.decode(png.encode(image))
            self.assertEqual((decoded.width, decoded.height), (width, height))
            self.assertEqual(decoded.rgba, image.rgba)

    def test_every_filter_can_be_undone(self):
        above, row = noise(20, 2).rows()
        for number in range(len(png.GUESSES)):
            filtered = png.filter_row(number, row, above)
            self.assertEqual(png.unfilter_row(number, filtered, above), row, f"filter {number}")

    def test_the_pixel_of_a_place(self):
        image = png.Image(2, 2, bytes(range(16)))
        self.assertEqual(image.pixel(1, 0), (4, 5, 6, 7))
        self.assertEqual(image.pixel(0, 1), (8, 9, 10, 11))

    def test_metadata_is_refused(self):
        with self.assertRaisesRegex(ValueError, "chunks other than"):
            png.decode(with_chunk(png.encode(noise(2, 2)), b"tEXt", b"Author\0me"))

    def test_a_changed_byte_is_found(self):
        file = bytearray(png.encode(noise(2, 2)))
        file[45] ^= 1
        with self.assertRaisesRegex(ValueError, "damaged IDAT"):
            png.decode(bytes(file))

    def test_other_files_are_refused(self):
        with self.assertRaisesRegex(ValueError, "no PNG signature"):
            png.decode(b"GIF89a")

    def test_pictures_without_alpha_are_refused(self):
        header = struct.pack(">IIBBBBB", 1, 1, 8, 2, 0, 0, 0)
        chunks = (b"IHDR", header), (b"IDAT", zlib.compress(bytes(4))), (b"IEND", b"")
        file = png.SIGNATURE + b"".join(png.chunk(*chunk) for chunk in chunks)
        with self.assertRaisesRegex(ValueError, "not 8-bit RGBA"):
            png.decode(file)


if __name__ == "__main__":
    unittest.main()
