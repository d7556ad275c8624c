#!/usr/bin/python3
"""The importer on PDF files made here: ordinary, odd, broken, encrypted ones."""
import json
import os
import struct
import subprocess
import sys
import tempfile
import unittest

import pikepdf
from pikepdf import Array, Dictionary, Name, String

IMPORTER = os.path.join(os.path.dirname(__file__), "..", "..", "sample", "importer", "import_pdf.py")


def add_page(pdf, **entries):
    page = Dictionary(Type=Name.Page, Contents=pdf.make_stream(b"1 0 0 rg 0 0 50 50 re f"))
    for key, value in entries.items():
        page["/" + key] = value
    pdf.pages.append(pikepdf.Page(pdf.make_indirect(page)))
    return pdf.pages[-1].obj


def box(*sides):
    return Array(sides)


def layer(pdf, name, **entries):
    return pdf.make_indirect(Dictionary(Type=Name.OCG, Name=String(name), **entries))


class ImporterTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.pdf = pikepdf.new()

    def path(self, name):
        return os.path.join(self.folder.name, name)

    def run_importer(self, source):
        return subprocess.run([sys.executable, "-B", IMPORTER, source, self.path("out.vdoc")], capture_output=True,
                              text=True, timeout=60, check=False)

    def imported(self, **save):
        """The header of the document file made of self.pdf."""
        self.pdf.save(self.path("in.pdf"), **save)
        done = self.run_importer(self.path("in.pdf"))
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        with open(self.path("out.vdoc"), "rb") as file:
            data = file.read()
        self.assertEqual(data[:8], b"VDOC\r\n\x1a\n")
        _, head, pictures = struct.unpack("<IIQ", data[8:24])
        self.assertEqual(len(data), 24 + head + pictures)
        header = json.loads(data[24:24 + head])
        for picture in header["pictures"]:
            start = 24 + head + picture["offset"]
            self.assertIn(data[start:start + 2], (b"\xff\xd8", b"\x89P"))
            self.assertLessEqual(picture["offset"] + picture["size"], pictures)
        return header

    def refused(self, source):
        done = self.run_importer(source)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(len(done.stderr.strip().splitlines()), 1, done.stderr)
        self.assertNotIn("Traceback", done.stderr)
        self.assertEqual([n for n in os.listdir(self.folder.name) if "vdoc" in n or n.startswith(".import")], [])
        return done.stderr

    def sizes(self):
        return [(page["width"], page["height"]) for page in self.imported()["pages"]]

    def test_page_boxes(self):
        letter = (12240, 15840)
        cases = [
            (dict(MediaBox=box(0, 0, 612, 792)), letter),
            (dict(MediaBox=box(612, 792, 0, 0)), letter),
            (dict(MediaBox=box(0, 0, 612, 792), Rotate=90), letter[::-1]),
            (dict(MediaBox=box(0, 0, 612, 792), Rotate=-270), letter[::-1]),
            (dict(MediaBox=box(0, 0, 612, 792), Rotate=180), letter),
            (dict(MediaBox=box(-100, -100, 512, 692), CropBox=box(0, 0, 100, 200)), (2000, 4000)),
            (dict(MediaBox=box(0, 0, 100, 100), CropBox=box(50, 50, 900, 900)), (1000, 1000)),
            (dict(MediaBox=box(0, 0, 100, 100), CropBox=box(200, 200, 300, 300)), (2000, 2000)),
            (dict(MediaBox=box(0, 0, 100, 100), CropBox=box(10, 10, 10, 90)), (2000, 2000)),
            (dict(MediaBox=box(0, 0, 0, 0)), letter),
            (dict(MediaBox=box(0, 0, Name.Bad, 5)), letter),
            (dict(), letter),
            (dict(MediaBox=box(0, 0, 100, 50), UserUnit=2), (4000, 2000)),
            (dict(MediaBox=box(0, 0, 1, 1)), (20, 20)),
            (dict(MediaBox=box(0, 0, 14400, 14400)), (288000, 288000)),
        ]
        for entries, _ in cases:
            add_page(self.pdf, **entries)
        self.assertEqual(self.sizes(), [size for _, size in cases])

    def test_inherited_attributes(self):
        page = add_page(self.pdf)
        page["/Parent"] = self.pdf.Root.Pages
        self.pdf.Root.Pages["/MediaBox"] = box(0, 0, 200, 100)
        self.pdf.Root.Pages["/Rotate"] = 90
        self.assertEqual(self.sizes(), [(2000, 4000)])

    def test_outline(self):
        pages = [add_page(self.pdf, MediaBox=box(0, 0, 100, 100)) for _ in range(3)]

        def item(title, **entries):
            return self.pdf.make_indirect(Dictionary(Title=String(title), **entries))

        child = item("child", Dest=Array([pages[2], Name.Fit]))
        first = item("first \u65e5", Dest=String("two"), First=child, Last=child, Count=1)
        second = item("second", A=Dictionary(S=Name.GoTo, D=Array([pages[0], Name.XYZ, 0, 0, 0])), First=child, Count=-1)
        third = item("third", A=Dictionary(S=Name.URI, URI=String("http://example.invalid/")))
        first["/Next"], second["/Next"], third["/Next"] = second, third, first  # a circle
        child["/Next"] = child
        self.pdf.Root["/Outlines"] = self.pdf.make_indirect(Dictionary(First=first, Last=third))
        self.pdf.Root["/Names"] = Dictionary(Dests=Dictionary(Names=Array([
            String("two"), Dictionary(D=Array([pages[1], Name.Fit]))])))
        self.assertEqual(self.imported()["outline"], [
            {"level": 0, "title": "first \u65e5", "page": 2, "open": True},
            {"level": 1, "title": "child", "page": 3, "open": False},
            {"level": 0, "title": "second", "page": 1, "open": False},
            {"level": 0, "title": "third", "page": 0, "open": False}])

    def test_layers(self):
        add_page(self.pdf, MediaBox=box(0, 0, 100, 100))
        a, b, c, d = (layer(self.pdf, name) for name in ("A/1.", "B", "B", "Group"))
        self.pdf.Root["/OCProperties"] = Dictionary(
            OCGs=Array([a, b, c, d]),
            D=Dictionary(Name=String("Default"), Order=Array([a, Array([b, c]), Array([String("Group"), d])]),
                         RBGroups=Array([Array([b, c])]), ON=Array([c]), OFF=Array([b, d])),
            Configs=Array([Dictionary(Name=String("Other"), BaseState=Name.OFF, ON=Array([a]))]))
        header = self.imported()
        self.assertEqual([(g["name"], g["values"]["DisplayName"], g["values"]["CurrentViewState"])
                          for g in header["layers"]],
                         [("A1", "A/1.", "ON"), ("B", "B", "OFF"), ("B 2", "B", "ON"), ("Group", "Group", "OFF")])
        default, other = header["configurations"]
        self.assertEqual(default["values"], {
            "ConfigOrder": "(A1)[(B)(B 2)](Group:)[(Group)]", "ConfigRBGroups": "[(B)(B 2)]", "ConfigON": "(B 2)",
            "ConfigOFF": "(B)(Group)", "BaseState": "ON"})
        self.assertEqual(other["values"]["ConfigOrder"], "(A1)(B)(B 2)(Group)")
        self.assertEqual(other["values"]["ConfigON"], "(A1)")

    def test_layers_know_their_pages(self):
        marked, formed, noted, unused = (layer(self.pdf, name) for name in "MFNU")
        either = self.pdf.make_indirect(Dictionary(Type=Name.OCMD, OCGs=Array([marked, formed])))
        form = self.pdf.make_stream(b"", Subtype=Name.Form, OC=formed)
        form["/Resources"] = Dictionary(XObject=Dictionary(Self=form), Properties=Dictionary(P0=noted))
        add_page(self.pdf, Resources=Dictionary(Properties=Dictionary(P0=marked)))
        add_page(self.pdf, Resources=Dictionary(XObject=Dictionary(F0=form)))
        add_page(self.pdf, Resources=Dictionary(Properties=Dictionary(P0=either, P1=7)))
        add_page(self.pdf, Annots=Array([Dictionary(Type=Name.Annot, Subtype=Name.Link, OC=noted), 7]))
        self.pdf.Root["/OCProperties"] = Dictionary(OCGs=Array([marked, formed, noted, unused]), D=Dictionary())
        pages = {g["name"]: g["further"][0]["value"] for g in self.imported()["layers"]}
        self.assertEqual(pages, {"M": [1, 3], "F": [2, 3], "N": [2, 4], "U": []})

    def test_layers_in_circles(self):
        add_page(self.pdf, MediaBox=box(0, 0, 100, 100))
        a = layer(self.pdf, "A")
        order = self.pdf.make_indirect(Array([a]))
        order.append(order)
        self.pdf.Root["/OCProperties"] = Dictionary(OCGs=Array([a]), D=Dictionary(Order=order, BaseState=Name.OFF))
        header = self.imported()
        self.assertEqual(header["configurations"][0]["values"]["ConfigOrder"], "(A)")
        self.assertEqual(header["layers"][0]["values"]["CurrentViewState"], "OFF")

    def test_form_fields_lie_where_the_page_shows_them(self):
        field = Dictionary(Type=Name.Annot, Subtype=Name.Widget, FT=Name.Tx, T=String("Name"), V=String("x"),
                           Rect=box(10, 20, 60, 40))
        tick = Dictionary(Type=Name.Annot, Subtype=Name.Widget, FT=Name.Btn, T=String("Tick"), AS=Name.Yes,
                          Rect=box(0, 0, 10, 10))
        add_page(self.pdf, MediaBox=box(0, 0, 100, 200), Rotate=90, Annots=Array([field, tick, 7]))
        described = self.imported()["objects"]
        self.assertEqual([(o["type"], o["name"], o["page"]) for o in described], [(6, "Name", 1), (21, "Tick", 1)])
        self.assertEqual(described[0]["values"], {"Left": 400, "Top": 200, "Right": 800, "Bottom": 1200, "Text": "x"})
        self.assertTrue(described[1]["values"]["Checked"])

    def test_information_and_encryption(self):
        add_page(self.pdf, MediaBox=box(0, 0, 100, 100))
        self.pdf.docinfo["/Title"] = "T\u00efle"
        self.pdf.docinfo["/CreationDate"] = "D:20110626132603Z"
        self.pdf.docinfo["/Custom"] = "more"
        header = self.imported(encryption=pikepdf.Encryption(owner="owner", user="", R=4, allow=pikepdf.Permissions(
            print_highres=False, print_lowres=False)))
        self.assertEqual(header["document"]["Title"], "T\u00efle")
        self.assertEqual(header["document"]["Security"], 128)
        self.assertEqual(header["document"]["Permissions"] & 60, 16 | 8 | 32)
        self.assertFalse(header["document"]["OwnerAccess"])
        self.assertEqual(header["information"]["CreationDate"], "2011-06-26 13:26:03")
        self.assertEqual(header["information"]["Custom"], "more")

    def test_files_that_cannot_be_imported(self):
        add_page(self.pdf, MediaBox=box(0, 0, 100, 100))
        self.pdf.save(self.path("locked.pdf"), encryption=pikepdf.Encryption(owner="o", user="u"))
        self.assertIn("password", self.refused(self.path("locked.pdf")))
        self.pdf.save(self.path("whole.pdf"))
        with open(self.path("whole.pdf"), "rb") as file:
            whole = file.read()
        for name, data in (("text.pdf", b"hello"), ("empty.pdf", b""), ("start.pdf", b"%PDF-1.7\n%%EOF"),
                           ("cut.pdf", whole[:200]), ("noise.pdf", b"%PDF-1.4\n" + os.urandom(5000))):
            with open(self.path(name), "wb") as file:
                file.write(data)
            self.refused(self.path(name))
        self.refused(self.path("missing.pdf"))
        self.refused(self.folder.name)
        pikepdf.new().save(self.path("nopages.pdf"))
        self.refused(self.path("nopages.pdf"))

    def test_an_output_that_cannot_be_written(self):
        add_page(self.pdf, MediaBox=box(0, 0, 100, 100))
        self.pdf.save(self.path("in.pdf"))
        done = subprocess.run([sys.executable, "-B", IMPORTER, self.path("in.pdf"), self.path("no/such/folder.vdoc")],
                              capture_output=True, text=True, timeout=60, check=False)
        self.assertEqual((done.returncode, len(done.stderr.splitlines())), (1, 1))


if __name__ == "__main__":
    unittest.main()
