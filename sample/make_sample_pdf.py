#!/usr/bin/python3
"""Makes sample.pdf: a small atlas whose pages differ in size, orientation and colour, with an outline of three
levels, layers with a nested order and a radio group, form fields, and document information.

Usage: make_sample_pdf.py out.pdf
"""
import colorsys
import math
import random
import sys

import pikepdf
from pikepdf import Array, Dictionary, Name, String

A3, A4, A5, LETTER, LEGAL = (842, 1191), (595, 842), (420, 595), (612, 792), (612, 1008)
FONTS = {"F1": "Helvetica", "F2": "Helvetica-Bold", "F3": "Times-Italic", "F4": "Courier"}
NAVY, TEAL, ORANGE, PLUM, SAND, INK = ((0.09, 0.16, 0.36), (0.05, 0.45, 0.48), (0.88, 0.42, 0.12),
                                       (0.42, 0.16, 0.45), (0.96, 0.92, 0.82), (0.15, 0.17, 0.22))
WHITE = (1, 1, 1)


def hue(h, s=0.65, v=0.9):
    return colorsys.hsv_to_rgb(h % 1, s, v)


class Canvas:
    """Collects the operators of a page's content."""

    def __init__(self, size):
        self.width, self.height = size
        self.parts = []

    def add(self, *operators):
        self.parts.append(" ".join(f"{o:.3f}" if isinstance(o, float) else str(o) for o in operators))

    def fill(self, colour):
        self.add(*map(float, colour), "rg")

    def stroke(self, colour, width=1):
        self.add(*map(float, colour), "RG", float(width), "w")

    def rectangle(self, x, y, width, height, colour):
        self.fill(colour)
        self.add(float(x), float(y), float(width), float(height), "re f")

    def background(self, colour):
        self.rectangle(0, 0, self.width, self.height, colour)

    def polygon(self, points, colour, close="f"):
        self.fill(colour)
        for i, (x, y) in enumerate(points):
            self.add(float(x), float(y), "l" if i else "m")
        self.add("h", close)

    def line(self, points):
        for i, (x, y) in enumerate(points):
            self.add(float(x), float(y), "l" if i else "m")
        self.add("S")

    def circle(self, x, y, radius, colour):
        self.polygon(arc(x, y, radius, 0, 1), colour)

    def text(self, x, y, size, text, colour=INK, font="F1"):
        escaped = text.replace("\\", r"\\").replace("(", r"\(").replace(")", r"\)")
        self.fill(colour)
        self.add("BT", f"/{font}", size, "Tf", float(x), float(y), "Td", f"({escaped})", "Tj ET")

    def in_layer(self, name, draw):
        self.add("/OC", f"/{name}", "BDC")
        draw()
        self.add("EMC")

    def bytes(self):
        return "\n".join(self.parts).encode("cp1252")


def arc(x, y, radius, start, end, steps=48):
    angles = [math.tau * (start + (end - start) * i / steps) for i in range(steps + 1)]
    return [(x + radius * math.cos(a), y + radius * math.sin(a)) for a in angles]


def heading(c, title, note, colour=NAVY):
    c.rectangle(0, c.height - 70, c.width, 70, colour)
    c.text(36, c.height - 46, 24, title, WHITE, "F2")
    c.text(36, c.height - 96, 11, note, INK, "F3")


def paragraph(c, x, y, width, lines, seed):
    """Lines of words, for the look of a text."""
    words = "the chart shows how light water wind and time draw a coast anew with every tide".split()
    chance = random.Random(seed)
    for row in range(lines):
        text = ""
        while len(text) * 5.2 < width:
            text += chance.choice(words) + " "
        c.text(x, y - row * 15, 10.5, text.strip().capitalize() if row == 0 else text.strip(), INK, "F1")


def cover(c):
    c.background(NAVY)
    for i in range(9):
        c.circle(c.width / 2, 330, 250 - i * 24, hue(0.02 + i * 0.014, 0.8 - i * 0.05, 0.75 + i * 0.03))
    for i in range(7):
        wave = [(x, 300 - i * 42 + 16 * math.sin(x / 55 + i * 1.3)) for x in range(0, int(c.width) + 12, 12)]
        c.polygon(wave + [(c.width, 0), (0, 0)], (0.10 - i * 0.008, 0.32 - i * 0.03, 0.55 - i * 0.045))
    c.text(60, 730, 50, "A Small Atlas", WHITE, "F2")
    c.text(62, 696, 18, "of shapes, maps and charts", SAND, "F3")


def contents(c):
    heading(c, "Contents", "Four chapters on twenty pages of many sizes")
    chapters = [("Colours", 3, ORANGE), ("Maps", 7, TEAL), ("Charts", 11, PLUM), ("Odds and Ends", 16, NAVY)]
    for i, (name, page, colour) in enumerate(chapters):
        y = c.height - 180 - i * 110
        c.rectangle(50, y - 18, 60, 60, colour)
        c.text(70, y + 2, 30, str(i + 1), WHITE, "F2")
        c.text(130, y + 4, 22, name, INK, "F2")
        c.text(c.width - 110, y + 4, 18, str(page), colour, "F2")


def divider(number, name, colour):
    def draw(c):
        c.background(colour)
        for i in range(14):
            c.stroke(tuple(min(1.0, channel + 0.04 * i) for channel in colour), 6)
            c.line(arc(c.width, 0, 60 + i * 42, 0.25, 0.5))
        c.text(50, c.height - 190, 130, str(number), WHITE, "F2")
        c.text(56, c.height - 250, 40, name, WHITE, "F2")
    return draw


def wheel(c):
    c.background(WHITE)
    for ring in range(5):
        for i in range(36):
            part = arc(c.width / 2, c.height / 2 - 20, 200 - ring * 36, i / 36, (i + 1) / 36, 4)
            c.polygon([(c.width / 2, c.height / 2 - 20)] + part, hue(i / 36, 0.95 - ring * 0.18, 0.95))
    c.text(24, c.height - 36, 20, "The Colour Wheel", INK, "F2")


def spectrum(c):
    heading(c, "Spectrum", "From long waves to short ones", ORANGE)
    count = 60
    for i in range(count):
        height = 150 + 220 * abs(math.sin(i / 9))
        c.rectangle(40 + i * (c.width - 80) / count, 60, (c.width - 80) / count + 0.6, height, hue(i / count * 0.8))


def mosaic(c):
    chance = random.Random(4)
    c.background((0.12, 0.12, 0.16))
    for row in range(15):
        for column in range(10):
            c.rectangle(12 + column * 40, 12 + row * 38, 36, 34,
                        hue(row / 24 + chance.random() * 0.08, 0.5 + chance.random() * 0.4, 0.9))


def coast(radius, seed, x, y, stretch=1.0):
    chance = random.Random(seed)
    bumps = [(chance.random() * 0.08, k, chance.random() * 6) for k in range(2, 9)]
    points = []
    for i in range(120):
        a = math.tau * i / 120
        r = radius * (1 + sum(size * math.sin(k * a + shift) for size, k, shift in bumps))
        points.append((x + r * stretch * math.cos(a), y + r * math.sin(a)))
    return points


def island_map(c):
    c.background((0.86, 0.93, 0.97))

    def water():
        for i in range(22):
            c.stroke((0.55, 0.75, 0.9), 1.5)
            c.line([(x, 40 + i * 36 + 6 * math.sin(x / 30 + i)) for x in range(0, int(c.width) + 15, 15)])

    def land():
        c.polygon(coast(300, 3, 560, 400, 1.35), (0.93, 0.87, 0.68))
        c.polygon(coast(210, 5, 570, 410, 1.35), (0.75, 0.82, 0.52))
        c.polygon(coast(95, 8, 620, 440, 1.2), (0.55, 0.66, 0.42))

    def main_roads():
        c.stroke((0.8, 0.2, 0.15), 6)
        c.line([(260, 330), (420, 420), (600, 380), (760, 480), (880, 420)])

    def paths():
        c.stroke((0.45, 0.3, 0.2), 2)
        c.add("[6 4] 0 d")
        c.line([(420, 420), (520, 540), (640, 560), (760, 480)])
        c.line([(600, 380), (640, 280), (560, 200)])
        c.add("[] 0 d")

    def names(*places):
        def draw():
            for (x, y), place in zip(((300, 440), (560, 610), (760, 350), (80, 740)), places):
                c.text(x, y, 24, place, INK, "F3")
        return draw

    c.in_layer("Water", water)
    land()
    c.in_layer("MainRoads", main_roads)
    c.in_layer("Paths", paths)
    c.in_layer("English", names("West Harbour", "High Moor", "Long Beach", "The Island"))
    c.in_layer("German", names("Westhafen", "Hochmoor", "Langer Strand", "Die Insel"))
    c.in_layer("French", names("Port de l'Ouest", "Haute Lande", "Longue Plage", "L'\u00cele"))
    c.in_layer("Grid", lambda: grid(c, 100))


def grid(c, step):
    c.stroke((0.5, 0.5, 0.6), 0.7)
    for x in range(step, int(c.width), step):
        c.line([(x, 0), (x, c.height)])
    for y in range(step, int(c.height), step):
        c.line([(0, y), (c.width, y)])


def contours(c):
    heading(c, "Contours", "Heights of an imagined mountain", TEAL)
    for i in range(16):
        c.polygon(coast(250 - i * 15, 11, c.width / 2 + i * 4, 340 + i * 3, 1.0), hue(0.3 - i * 0.014, 0.5, 0.55 + i * 0.028))


def city(c):
    chance = random.Random(9)
    c.background((0.9, 0.9, 0.86))
    for column in range(13):
        for row in range(9):
            if chance.random() < 0.12:
                c.rectangle(24 + column * 58, 24 + row * 58, 46, 46, (0.5, 0.72, 0.45))
            else:
                c.rectangle(24 + column * 58, 24 + row * 58, 46, 46, hue(0.08 + chance.random() * 0.05, 0.25, 0.8))
    c.stroke((0.95, 0.75, 0.2), 10)
    c.line([(0, 130), (c.width, c.height - 90)])
    c.rectangle(18, c.height - 64, 250, 46, WHITE)
    c.text(30, c.height - 50, 26, "Grid City", TEAL, "F2")


def bars(c):
    heading(c, "Bars", "Visitors by month, in thousands", PLUM)
    for i, value in enumerate((12, 15, 22, 31, 44, 58, 67, 64, 47, 33, 20, 14)):
        c.rectangle(60 + i * 61, 70, 44, value * 5, hue(0.75 + i * 0.02, 0.5, 0.8))
        c.text(68 + i * 61, 52, 11, "JFMAMJJASOND"[i], INK, "F2")
    c.stroke(INK, 1.5)
    c.line([(50, 70), (c.width - 40, 70)])


def pie(c):
    heading(c, "Shares", "What the island lives on", PLUM)
    start = 0.25
    for i, (share, name) in enumerate(((0.38, "Fishing"), (0.27, "Guests"), (0.2, "Sheep"), (0.15, "Atlases"))):
        colour = hue(0.05 + i * 0.23, 0.7, 0.85)
        c.polygon([(c.width / 2, 430)] + arc(c.width / 2, 430, 200, start, start + share), colour)
        c.rectangle(110, 170 - i * 28, 18, 18, colour)
        c.text(140, 173 - i * 28, 14, f"{name}  {share:.0%}", INK)
        start += share


def curves(c):
    heading(c, "Tides", "A page that is stored lying on its side", PLUM)
    for i in range(6):
        c.stroke(hue(0.5 + i * 0.07, 0.8, 0.75), 3)
        c.line([(x, 260 + (90 - i * 9) * math.sin(x / (38 + i * 14) + i)) for x in range(40, int(c.width) - 40, 6)])


def table(c):
    heading(c, "Timetable", "Boats to the mainland", PLUM)
    for row in range(28):
        y = c.height - 150 - row * 29
        c.rectangle(40, y - 8, c.width - 80, 27, (0.93, 0.9, 0.96) if row % 2 else (0.83, 0.76, 0.88))
        c.text(60, y, 12, f"{6 + row // 2:02}:{row % 2 * 30:02}", INK, "F4")
        c.text(180, y, 12, ("West Harbour", "Long Beach", "High Moor")[row % 3], INK)
        c.text(400, y, 12, "weekdays" if row % 4 else "daily", INK, "F3")


def form(c):
    heading(c, "Guest Book", "Fields to fill in")
    for i, label in enumerate(("Name", "Where from", "How you came", "Stayed for")):
        y = c.height - 190 - i * 70
        c.text(60, y + 34, 12, label, INK, "F2")
        c.rectangle(60, y, 380, 26, (0.92, 0.95, 1.0))
    for i, label in enumerate(("Liked the weather", "Will come back")):
        y = c.height - 480 - i * 40
        c.rectangle(60, y, 18, 18, (0.92, 0.95, 1.0))
        c.text(90, y + 4, 12, label, INK)
    paragraph(c, 60, 220, 440, 8, 2)


def ticket(c):
    c.background((0.98, 0.85, 0.3))
    for i in range(10):
        c.circle(0, 30 + i * 60, 12, WHITE)
        c.circle(c.width, 30 + i * 60, 12, WHITE)
    c.text(44, 480, 34, "BOAT", INK, "F2")
    c.text(44, 430, 15, "one way", INK, "F3")
    for i in range(24):
        c.rectangle(40 + i * 5, 60, 1 + (i * 7 % 4), 90, INK)


def postcard(c):
    c.background((0.55, 0.8, 0.95))
    c.circle(330, 220, 40, (1, 0.9, 0.4))
    c.polygon(coast(150, 21, 150, 20, 1.5), (0.35, 0.6, 0.4))
    c.polygon([(0, 0), (c.width, 0), (c.width, 60), (0, 90)], (0.95, 0.87, 0.65))
    c.text(28, 250, 24, "Wish you were here", WHITE, "F3")


def colophon(c):
    heading(c, "Colophon", "Stored upside down and cut to its crop box")
    paragraph(c, 36, c.height - 140, c.width - 110, 12, 6)
    for i in range(20):
        c.rectangle(36 + i * 24, 90, 22, 22, hue(i / 20))


PAGES = [  # size, rotation, drawing
    (A4, 0, cover), (A4, 0, contents),
    (A4, 0, divider(1, "Colours", ORANGE)), ((500, 500), 0, wheel), (A4[::-1], 0, spectrum), (A5, 0, mosaic),
    (A4, 0, divider(2, "Maps", TEAL)), (A3[::-1], 0, island_map), (LETTER, 0, contours), (LETTER[::-1], 0, city),
    (A4, 0, divider(3, "Charts", PLUM)), (A4[::-1], 0, bars), (A4, 0, pie), (A4[::-1], 90, curves), (LEGAL, 0, table),
    (A4, 0, divider(4, "Odds and Ends", NAVY)), (A4, 0, form), ((200, 600), 0, ticket), ((420, 298), 270, postcard),
    (LETTER, 180, colophon),
]
OUTLINE = [  # title, page, open, children
    ("Cover", 1, False, []), ("Contents", 2, False, []),
    ("1 Colours", 3, True, [("The Colour Wheel", 4, False, []), ("Spectrum", 5, False, []), ("Mosaic", 6, False, [])]),
    ("2 Maps", 7, True, [
        ("The Island", 8, True, [("Harbours", 8, False, []), ("Moors", 8, False, [])]),
        ("Contours", 9, False, []), ("Grid City", 10, False, [])]),
    ("3 Charts", 11, False, [
        ("Bars", 12, False, []),
        ("Shares", 13, False, [("Fishing", 13, False, []), ("Guests", 13, False, [])]),
        ("Tides", 14, False, []), ("Timetable", 15, False, [])]),
    ("4 Odds and Ends", 16, False, [("Guest Book", 17, False, []), ("Ticket", 18, False, []),
                                   ("Postcard", 19, False, [])]),
    ("Colophon", 20, False, []),
]


def media_box(size, rotation, margin):
    width, height = size if rotation in (0, 180) else size[::-1]
    return Array([-margin, -margin, width + margin, height + margin]), Array([0, 0, width, height])


def upright(size, rotation):
    """The transformation that makes a page stand upright when it is shown turned."""
    width, height = size
    return {0: "", 90: f"0 1 -1 0 {height} 0 cm\n", 180: f"-1 0 0 -1 {width} {height} cm\n",
            270: f"0 -1 1 0 0 {width} cm\n"}[rotation].encode()


def add_pages(pdf, layers):
    fonts = Dictionary({f"/{key}": pdf.make_indirect(Dictionary(Type=Name.Font, Subtype=Name.Type1,
                                                                BaseFont=Name("/" + name),
                                                                Encoding=Name.WinAnsiEncoding))
                        for key, name in FONTS.items()})
    for number, (size, rotation, draw) in enumerate(PAGES, 1):
        canvas = Canvas(size)
        draw(canvas)
        if number > 1:
            canvas.text(size[0] - 30, 16, 9, str(number), (0.4, 0.4, 0.45))
        resources = Dictionary(Font=fonts)
        if draw is island_map:
            resources["/Properties"] = Dictionary({f"/{key}": group for key, group in layers.items()})
        media, crop = media_box(size, rotation, 24 if draw is colophon else 0)
        page = Dictionary(Type=Name.Page, MediaBox=media, CropBox=crop, Rotate=rotation, Resources=resources,
                          Contents=pdf.make_stream(upright(size, rotation) + canvas.bytes()))
        pdf.pages.append(pikepdf.Page(pdf.make_indirect(page)))


def add_layers(pdf):
    names = {"Water": "Water", "MainRoads": "Main roads", "Paths": "Paths", "English": "English", "German": "German",
             "French": "French", "Grid": "Grid", "Roads": "Roads"}
    layers = {key: pdf.make_indirect(Dictionary(Type=Name.OCG, Name=String(name))) for key, name in names.items()}
    of = layers.__getitem__
    pdf.Root["/OCProperties"] = Dictionary(
        OCGs=Array(list(layers.values())),
        D=Dictionary(Name=String("Map"), BaseState=Name.ON,
                     Order=Array([of("Water"), of("Roads"), Array([of("MainRoads"), of("Paths")]),
                                  Array([String("Place names"), of("English"), of("German"), of("French")]),
                                  of("Grid")]),
                     RBGroups=Array([Array([of("English"), of("German"), of("French")])]),
                     OFF=Array([of("German"), of("French"), of("Grid")])),
        Configs=Array([Dictionary(Name=String("Plain"), BaseState=Name.OFF, ON=Array([of("English")]))]))
    return layers


def add_outline(pdf, items, parent):
    made = []
    for title, page, is_open, children in items:
        item = pdf.make_indirect(Dictionary(Title=String(title), Parent=parent,
                                            Dest=Array([pdf.pages[page - 1].obj, Name.Fit])))
        if children:
            add_outline(pdf, children, item)
            item["/Count"] = len(children) if is_open else -len(children)
        made.append(item)
    for before, after in zip(made, made[1:]):
        before["/Next"], after["/Prev"] = after, before
    parent["/First"], parent["/Last"] = made[0], made[-1]


def add_fields(pdf):
    page, height = pdf.pages[16].obj, A4[1]
    fields = []
    for i, name in enumerate(("Name", "From", "Travel", "Stay")):
        y = height - 190 - i * 70
        fields.append(Dictionary(FT=Name.Tx, T=String(name), V=String(""), Rect=Array([60, y, 440, y + 26]),
                                 DA=String("/Helv 12 Tf 0 g")))
    for i, name in enumerate(("Weather", "Back")):
        y = height - 480 - i * 40
        fields.append(Dictionary(FT=Name.Btn, T=String(name), V=Name.Off, AS=Name.Off,
                                 Rect=Array([60, y, 78, y + 18])))
    made = []
    for field in fields:
        field["/Type"], field["/Subtype"], field["/P"] = Name.Annot, Name.Widget, page
        made.append(pdf.make_indirect(field))
    page["/Annots"] = Array(made)
    helvetica = Dictionary(Type=Name.Font, Subtype=Name.Type1, BaseFont=Name.Helvetica)
    pdf.Root["/AcroForm"] = Dictionary(Fields=Array(made), DR=Dictionary(Font=Dictionary(Helv=helvetica)))


def main(target):
    pdf = pikepdf.new()
    add_pages(pdf, add_layers(pdf))
    pdf.Root["/Outlines"] = pdf.make_indirect(Dictionary(Type=Name.Outlines, Count=len(OUTLINE)))
    add_outline(pdf, OUTLINE, pdf.Root.Outlines)
    add_fields(pdf)
    pdf.Root["/PageMode"] = Name.UseThumbs
    for key, value in (("Title", "A Small Atlas"), ("Subject", "Shapes, maps and charts"),
                       ("Author", "The makers of qzVandraExt"), ("Keywords", "sample, atlas, layers, outline"),
                       ("Creator", "make_sample_pdf.py"), ("Edition", "1")):
        pdf.docinfo["/" + key] = value
    pdf.save(target, compress_streams=True, object_stream_mode=pikepdf.ObjectStreamMode.generate,
             static_id=True)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit("usage: make_sample_pdf.py out.pdf")
    main(sys.argv[1])
