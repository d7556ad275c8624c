#!/usr/bin/python3
"""Turns a PDF file into a document file for the reference host.

Usage: import_pdf.py in.pdf out.vdoc [--seconds N]
The structure is read with pikepdf, the page pictures are drawn by poppler's pdftoppm. A file that cannot be
imported gives one line on the error output, exit code 1, and no output file.
"""
import argparse
import os
import sys
import tempfile

try:
    import pikepdf
except ImportError:
    sys.exit("import_pdf.py: python3-pikepdf is not installed for this Python")

import document_file
import page_pictures
from pdf_information import fonts_of, information_of, security_of
from pdf_layers import layers_of
from pdf_outline import outline_of
from pdf_pages import PageGeometry, objects_of


class CannotImport(Exception):
    """The one line that the user sees."""


def open_pdf(path):
    try:
        with open(path, "rb") as file:
            if b"%PDF-" not in file.read(1024):
                raise CannotImport("this is not a PDF file")
        return pikepdf.open(path)
    except pikepdf.PasswordError as error:
        raise CannotImport("the file is encrypted and needs a password") from error
    except pikepdf.PdfError as error:
        raise CannotImport("the file is damaged") from error
    except OSError as error:
        raise CannotImport(error.strerror or "the file cannot be read") from error


def pages_of(pdf):
    try:
        pages = [page.obj for page in pdf.pages]
    except (pikepdf.PdfError, RuntimeError, ValueError, TypeError) as error:
        raise CannotImport("the file is damaged: its pages cannot be found") from error
    if not pages:
        raise CannotImport("the file holds no pages")
    return pages


def describe(pdf, path):
    """The header of the document file, and of each page whether its crop box is what is shown."""
    pages = pages_of(pdf)
    geometries = [PageGeometry(page) for page in pages]
    fields, further = information_of(pdf)
    layers, configurations = layers_of(pdf, pages)
    header = {
        "pages": [{"width": g.width, "height": g.height, "picture": i} for i, g in enumerate(geometries)],
        "outline": outline_of(pdf),
        "objects": [o for n, (p, g) in enumerate(zip(pages, geometries), 1) for o in objects_of(p, g, n)],
        "layers": layers,
        "configurations": configurations,
        "fonts": fonts_of(path),
        "information": further,
        "document": {**fields, **security_of(pdf)},
    }
    return header, [geometry.cropped for geometry in geometries]


def import_pdf(source, target, seconds):
    with open_pdf(source) as pdf:
        header, cropped = describe(pdf, os.path.abspath(source))
    with tempfile.TemporaryDirectory() as folder:
        pictures = page_pictures.draw(os.path.abspath(source), folder, cropped, seconds)
        document_file.write(target, header, pictures)
    missing = pictures.count(None)
    if missing:
        print(f"{source}: {missing} of {len(pictures)} pages could not be drawn", file=sys.stderr)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("source", metavar="in.pdf")
    parser.add_argument("target", metavar="out.vdoc")
    parser.add_argument("--seconds", type=float, default=120, help="time limit of drawing the pages")
    arguments = parser.parse_args()
    try:
        import_pdf(arguments.source, arguments.target, arguments.seconds)
    except CannotImport as error:
        sys.exit(f"{arguments.source}: {error}")
    except OSError as error:
        sys.exit(f"{arguments.target}: {error.strerror or error}")
    except (pikepdf.PdfError, RuntimeError, ValueError, TypeError, RecursionError, UnicodeError) as error:
        line = " ".join(str(error).split()) or type(error).__name__
        sys.exit(f"{os.fspath(arguments.source)}: the file is damaged ({line[:200]})")


if __name__ == "__main__":
    main()
