#include "settings/xml_tree.h"

#include "settings/xml_values.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace qz {

namespace {

/// The next name of a path, which is cut off it; empty at the end.
std::wstring_view TakeName(std::wstring_view& path) noexcept {
    path.remove_prefix(std::min(path.find_first_not_of(L'/'), path.size()));
    const std::wstring_view name = path.substr(0, path.find(L'/'));
    path.remove_prefix(name.size());
    return name;
}

/// The common part of the typed getters: `convert` gives nothing for a text of another kind.
template <typename Value, typename Convert>
bool GetConverted(XmlTree& tree, const wchar_t* path, XmlResult<Value>& result, const Convert& convert) {
    result = {};
    XmlRawResult raw;
    if (!tree.GetRaw(path, raw)) return false;
    result.text = raw.text;
    const std::optional<Value> value = convert(raw.text);
    result.code = value ? XmlCode::Found : XmlCode::NotConverted;
    result.value = value.value_or(Value());
    return value.has_value();
}

}  // namespace

qzSimpleXmlElement* XmlTree::GetRoot() {
    if (!root_) {
        root_ = std::make_unique<qzSimpleXmlElement>();
        root_->Report(&lookup_);
    }
    return root_.get();
}

qzSimpleXmlElement* XmlTree::GetElement(const wchar_t* path, bool create) {
    const std::wstring_view wanted = OrEmpty(path);
    if (qzSimpleXmlElement* known = lookup_.Find(wanted)) return known;
    qzSimpleXmlElement* element = Walk(wanted, create);
    if (element) lookup_.Remember(wanted, element);
    return element;
}

qzSimpleXmlElement* XmlTree::FindElement(const wchar_t* name, IqzSimpleXmlElement* start,
                                         bool recursive) const {
    const std::wstring_view wanted = OrEmpty(name);
    std::vector<qzSimpleXmlElement*> pending;
    if (start || root_) pending.push_back(start ? static_cast<qzSimpleXmlElement*>(start) : root_.get());
    while (!pending.empty()) {
        const qzSimpleXmlElement* element = pending.back();
        pending.pop_back();
        qzSimpleXmlElement* found = element->ChildNamed(wanted);
        if (found || !recursive) return found;
        const auto& children = element->Children();
        for (auto child = children.rbegin(); child != children.rend(); ++child)
            pending.push_back(child->get());
    }
    return nullptr;
}

bool XmlTree::GetString(const wchar_t* path, const wchar_t** value, const wchar_t* attributeName,
                        const wchar_t** attributeValue) {
    if (value) *value = nullptr;
    if (attributeValue) *attributeValue = nullptr;
    const qzSimpleXmlElement* element = GetElement(path, false);
    if (!element) return false;
    if (value) *value = element->GetValue();
    if (!attributeName || !attributeValue) return true;
    const IqzSimpleXmlAttribute* attribute = element->FindAttribute(attributeName);
    if (attribute) *attributeValue = attribute->GetValue();
    return attribute != nullptr;
}

bool XmlTree::SetString(const wchar_t* path, const wchar_t* value, const wchar_t* attributeName,
                        const wchar_t* attributeValue, bool create) {
    qzSimpleXmlElement* element = GetElement(path, create);
    if (!element) return false;
    if (value) element->SetValue(value);
    if (!attributeName) return true;
    IqzSimpleXmlAttribute* attribute = element->FindAttribute(attributeName);
    if (!attribute && create) attribute = element->AddAttribute(attributeName, nullptr);
    if (attribute) attribute->SetValue(attributeValue);
    return attribute != nullptr;
}

bool XmlTree::GetBool(const wchar_t* path, XmlResult<bool>& result) {
    return GetConverted(*this, path, result,
                        [](const wchar_t* text) { return std::optional(BoolFromText(text)); });
}

bool XmlTree::GetColor(const wchar_t* path, XmlResult<std::uint32_t>& result) {
    return GetConverted(*this, path, result, [](const wchar_t* text) { return ColourFromText(text); });
}

bool XmlTree::GetFloat(const wchar_t* path, XmlResult<float>& result) {
    return GetConverted(*this, path, result,
                        [](const wchar_t* text) { return std::optional(FloatFromText(text)); });
}

bool XmlTree::GetRaw(const wchar_t* path, XmlRawResult& result) {
    result = {};
    if (!GetString(path, &result.text, nullptr, nullptr)) return false;
    result.code = XmlCode::Found;
    return true;
}

bool XmlTree::SetBool(const wchar_t* path, bool value, const XmlSetOptions& options) {
    return SetText(path, TextFromBool(value), options);
}

bool XmlTree::SetInteger(const wchar_t* path, std::int32_t value, const XmlSetOptions& options) {
    return SetText(path, TextFromInteger(value).c_str(), options);
}

bool XmlTree::SetFloat(const wchar_t* path, float value, const XmlSetOptions& options) {
    return SetText(path, TextFromFloat(value).c_str(), options);
}

bool XmlTree::SetText(const wchar_t* path, const wchar_t* text, const XmlSetOptions& options) {
    if (options.attribute) return SetString(path, nullptr, options.attribute, text, options.create);
    return SetString(path, text ? text : L"", nullptr, nullptr, options.create);
}

bool XmlTree::Write(const XmlSink& sink) {
    if (!root_) return false;
    if (root_->Name().empty()) root_->SetName(L"root");
    WriteXml(*root_, sink);
    return true;
}

qzSimpleXmlElement* XmlTree::Walk(std::wstring_view path, bool create) {
    qzSimpleXmlElement* element = create ? GetRoot() : root_.get();
    while (element) {
        const std::wstring_view name = TakeName(path);
        if (name.empty()) break;
        qzSimpleXmlElement* child = element->ChildNamed(name);
        if (!child && create) child = element->Add(name);
        element = child;
    }
    return element;
}

}  // namespace qz
