#include "settings/xml_element.h"

#include "settings/xml_lookup.h"

#include <algorithm>
#include <utility>

namespace qz {

namespace {

template <typename Owned, typename Interface>
std::size_t List(const std::vector<Owned>& items, std::vector<Interface*>& list) {
    list.clear();
    list.reserve(items.size());
    for (const Owned& item : items) list.push_back(item.get());
    return list.size();
}

template <typename Owned, typename Interface>
auto PlaceOf(const std::vector<Owned>& items, const Interface* wanted) noexcept {
    return std::find_if(items.begin(), items.end(), [&](const Owned& item) { return item.get() == wanted; });
}

}  // namespace

void qzSimpleXmlElement::SetName(const wchar_t* text) {
    name = std::wstring(OrEmpty(text));
    Changed();
}

std::size_t qzSimpleXmlElement::GetChildren(std::vector<IqzSimpleXmlElement*>& children) const {
    return List(children_, children);
}

void qzSimpleXmlElement::AppendChild(std::unique_ptr<IqzSimpleXmlElement> child) {
    if (!child) return;
    OwnedElement element(static_cast<qzSimpleXmlElement*>(child.release()));
    element->Report(lookup_);
    Adopt(std::move(element));
}

void qzSimpleXmlElement::RemoveChild(const IqzSimpleXmlElement* child) {
    const auto place = PlaceOf(children_, child);
    if (place == children_.end()) return;
    Changed();
    children_.erase(place);
}

void qzSimpleXmlElement::RemoveAllChildren() {
    Changed();
    FreeChildren();
}

IqzSimpleXmlAttribute* qzSimpleXmlElement::FindAttribute(const wchar_t* attributeName) const {
    const std::wstring_view wanted = OrEmpty(attributeName);
    const auto place = std::find_if(attributes_.begin(), attributes_.end(),
                                    [&](const OwnedAttribute& item) { return item->GetName() == wanted; });
    return place == attributes_.end() ? nullptr : place->get();
}

std::size_t qzSimpleXmlElement::GetAttributes(std::vector<IqzSimpleXmlAttribute*>& attributes) const {
    return List(attributes_, attributes);
}

IqzSimpleXmlAttribute* qzSimpleXmlElement::AddAttribute(const wchar_t* attributeName,
                                                        const wchar_t* attributeValue) {
    AppendAttribute(std::make_unique<qzSimpleXmlAttribute>(OrEmpty(attributeName), OrEmpty(attributeValue)));
    return attributes_.back().get();
}

void qzSimpleXmlElement::AppendAttribute(std::unique_ptr<IqzSimpleXmlAttribute> attribute) {
    if (attribute) attributes_.push_back(std::move(attribute));
}

void qzSimpleXmlElement::RemoveAttribute(const IqzSimpleXmlAttribute* attribute) {
    const auto place = PlaceOf(attributes_, attribute);
    if (place != attributes_.end()) attributes_.erase(place);
}

qzSimpleXmlElement* qzSimpleXmlElement::ChildNamed(std::wstring_view childName) const noexcept {
    const auto place = std::find_if(children_.begin(), children_.end(),
                                    [&](const OwnedElement& child) { return child->name == childName; });
    return place == children_.end() ? nullptr : place->get();
}

qzSimpleXmlElement* qzSimpleXmlElement::Add(std::wstring_view childName, std::wstring_view childValue) {
    OwnedElement child = std::make_unique<qzSimpleXmlElement>(childName, childValue);
    child->lookup_ = lookup_;
    return Adopt(std::move(child));
}

qzSimpleXmlElement::OwnedElement qzSimpleXmlElement::Copy() const {
    OwnedElement top = CopyAlone();
    std::vector<std::pair<const qzSimpleXmlElement*, qzSimpleXmlElement*>> pending{{this, top.get()}};
    while (!pending.empty()) {
        const auto [source, copy] = pending.back();
        pending.pop_back();
        for (const OwnedElement& child : source->children_) {
            pending.emplace_back(child.get(), copy->Adopt(child->CopyAlone()));
        }
    }
    return top;
}

void qzSimpleXmlElement::Report(XmlLookup* lookup) {
    std::vector<qzSimpleXmlElement*> pending{this};
    while (!pending.empty()) {
        qzSimpleXmlElement* element = pending.back();
        pending.pop_back();
        element->lookup_ = lookup;
        for (const OwnedElement& child : element->children_) pending.push_back(child.get());
    }
}

qzSimpleXmlElement* qzSimpleXmlElement::Adopt(OwnedElement child) {
    child->parent_ = this;
    children_.push_back(std::move(child));
    return children_.back().get();
}

qzSimpleXmlElement::OwnedElement qzSimpleXmlElement::CopyAlone() const {
    OwnedElement copy = std::make_unique<qzSimpleXmlElement>(name, value);
    for (const OwnedAttribute& attribute : attributes_) {
        copy->AddAttribute(attribute->GetName(), attribute->GetValue());
    }
    return copy;
}

// Down to the last leaf and back up by the parents: no recursion, and nothing is allocated on the way.
void qzSimpleXmlElement::FreeChildren() noexcept {
    qzSimpleXmlElement* element = this;
    while (true) {
        if (!element->children_.empty()) {
            element = element->children_.back().get();
        } else if (element == this) {
            return;
        } else {
            element = element->parent_;
            element->children_.pop_back();
        }
    }
}

void qzSimpleXmlElement::Changed() const noexcept {
    if (lookup_) lookup_->Forget();
}

}  // namespace qz
