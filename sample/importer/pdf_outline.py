"""The outline as a flat list in reading order: level, title, page (0: none), open."""
import pikepdf

from pdf_text import entry, identity, is_array, is_dictionary, is_text, text_of

MOST_ITEMS = 200000


class Destinations:
    """Finds the page number that a destination leads to."""

    def __init__(self, pdf):
        self.numbers = {identity(page.obj): number for number, page in enumerate(pdf.pages, 1)}
        self.count = len(self.numbers)
        self.dictionary = entry(pdf.Root, "/Dests")
        try:
            tree = entry(pdf.Root, "/Names", "/Dests")
            self.tree = {str(k): v for k, v in pikepdf.NameTree(tree).items()} if tree is not None else {}
        except (pikepdf.PdfError, ValueError, TypeError, RuntimeError, RecursionError):
            self.tree = {}  # a broken tree: its destinations lead nowhere, the rest still does

    def _named(self, name):
        found = self.tree.get(name)
        return found if found is not None else entry(self.dictionary, "/" + name.lstrip("/"))

    def page(self, destination):
        for _ in range(8):  # names may lead to names
            if is_dictionary(destination) and destination.get("/D") is not None:
                destination = destination.get("/D")
            elif is_text(destination) or getattr(destination, "_type_name", "") == "name":
                destination = self._named(str(destination))
            else:
                break
        if not is_array(destination) or len(destination) == 0:
            return 0
        target = destination[0]
        if isinstance(target, int):
            return target + 1 if 0 <= target < self.count else 0
        return self.numbers.get(identity(target), 0)

    def of_item(self, item):
        direct = item.get("/Dest")
        if direct is not None:
            return self.page(direct)
        action = item.get("/A")
        return self.page(entry(action, "/D")) if text_of(entry(action, "/S")) == "/GoTo" else 0


def outline_of(pdf):
    """Walks the linked items without recursion; an item met a second time (a circle) ends its chain."""
    destinations = Destinations(pdf)
    items, seen = [], set()
    pending = [(entry(pdf.Root, "/Outlines", "/First"), 0)]
    while pending and len(items) < MOST_ITEMS:
        item, level = pending.pop()
        key = identity(item) if is_dictionary(item) else None
        if not is_dictionary(item) or (key and key in seen):
            continue
        seen.add(key)
        count = item.get("/Count")
        items.append({"level": level, "title": text_of(item.get("/Title")), "page": destinations.of_item(item),
                      "open": isinstance(count, int) and count > 0})
        pending.append((item.get("/Next"), level))
        pending.append((item.get("/First"), level + 1))
    return items
