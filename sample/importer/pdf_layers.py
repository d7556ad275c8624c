"""Optional content: layers and configurations in the host's list syntax, such as (A)[(B)(C)](D)."""
import unicodedata

import pdf_layer_pages
from pdf_text import entry, identity, is_array, is_dictionary, is_text, text_of

MOST_LEVELS = 32
LONGEST_NAME = 240


def is_letter_or_digit(character):
    kind = unicodedata.category(character)
    return ord(character) < 0x10000 and (kind[0] == "L" or kind == "Nd")


def plain(text):
    """Only what the list syntax lets through in a name: letters, digits, blank, hyphen, colon, underscore."""
    kept = "".join(c for c in text if is_letter_or_digit(c) or c in " -:_")
    return " ".join(kept.split())[:LONGEST_NAME]


class Names:
    """Gives each layer a name of its own, and labels names that no layer has."""

    def __init__(self):
        self.taken = set()

    def layer(self, text):
        base = plain(text) or "Layer"
        name, number = base, 1
        while name.casefold() in self.taken:
            number += 1
            name = f"{base} {number}"
        self.taken.add(name.casefold())
        return name

    def label(self, text):
        name = plain(text) or "Group"
        while name.casefold() in self.taken:
            name += ":"
        return name


class Layers:
    def __init__(self, properties):
        self.names = Names()
        self.groups = {}  # identity of the layer's object -> (name, display name, object)
        members = entry(properties, "/OCGs")
        for group in members if is_array(members) else []:
            key = identity(group)
            if is_dictionary(group) and key and key not in self.groups:
                shown = text_of(group.get("/Name"))
                self.groups[key] = (self.names.layer(shown), shown or "Layer", group)

    def name(self, value):
        found = self.groups.get(identity(value))
        return found[0] if found else None

    def flat(self, values):
        """The names of the layers in an array, in parentheses."""
        names = [self.name(value) for value in values] if is_array(values) else []
        return "".join(f"({name})" for name in names if name)

    def order(self, values, path=()):
        """One level of the order: layers, labels of groups, and the levels below them."""
        key = identity(values)
        if not is_array(values) or len(path) > MOST_LEVELS or (key and key in path):
            return ""
        written = ""
        for value in values:
            if is_array(value):
                label = self.names.label(text_of(value[0])) if len(value) and is_text(value[0]) else None
                below = self.order(value, path + (key,))
                if label:
                    written += f"({label})" + (f"[{below}]" if below else "")
                elif below:  # below the item before; a level before any item stays on this one
                    written += f"[{below}]" if written.endswith(")") else below
            elif not is_text(value) and self.name(value):
                written += f"({self.name(value)})"
        return written

    def everything(self):
        return "".join(f"({name})" for name, _, _ in self.groups.values())

    def initial_states(self, configuration):
        """Which layers the configuration shows when the document is opened."""
        visible = text_of(entry(configuration, "/BaseState"), "/ON") != "/OFF"
        states = dict.fromkeys(self.groups, visible)
        for key, state in (("/ON", True), ("/OFF", False)):
            members = entry(configuration, key)
            for group in members if is_array(members) else []:
                if identity(group) in states:
                    states[identity(group)] = state
        for group, state in self._automatic(configuration):
            states[group] = state
        return states

    def _automatic(self, configuration):
        """States that layers take by themselves when the document is viewed."""
        rules = entry(configuration, "/AS")
        for rule in rules if is_array(rules) else []:
            members = entry(rule, "/OCGs")
            if text_of(entry(rule, "/Event")) != "/View" or not is_array(members):
                continue
            for group in members:
                state = text_of(entry(group, "/Usage", "/View", "/ViewState"))
                if identity(group) in self.groups and state:
                    yield identity(group), state != "/OFF"


def configuration_of(layers, configuration, number):
    order = entry(configuration, "/Order")
    groups = entry(configuration, "/RBGroups")
    radio = [layers.flat(group) for group in groups] if is_array(groups) else []
    name = text_of(entry(configuration, "/Name")) or f"Configuration {number}"
    return {"name": name, "values": {
        "ConfigOrder": layers.order(order) if is_array(order) else layers.everything(),
        "ConfigRBGroups": "".join(f"[{group}]" for group in radio if group),
        "ConfigON": layers.flat(entry(configuration, "/ON")),
        "ConfigOFF": layers.flat(entry(configuration, "/OFF")),
        "BaseState": text_of(entry(configuration, "/BaseState"), "/ON").lstrip("/"),
    }}


def layers_of(pdf, pages):
    """The layers with their state at opening and their pages, and the configurations, the default one first."""
    properties = entry(pdf.Root, "/OCProperties")
    layers = Layers(properties)
    if not layers.groups:
        return [], []
    others = entry(properties, "/Configs")
    configurations = [entry(properties, "/D")] + (list(others) if is_array(others) else [])
    states = layers.initial_states(configurations[0])
    numbers = pdf_layer_pages.pages_by_layer(pages)
    described = [{"name": name, "values": {"DisplayName": shown, "CurrentViewState": "ON" if states[key] else "OFF"},
                  "further": [pdf_layer_pages.described(numbers.get(key, []))]}
                 for key, (name, shown, _) in layers.groups.items()]
    return described, [configuration_of(layers, c, n) for n, c in enumerate(configurations, 1) if is_dictionary(c)]
