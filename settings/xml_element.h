// Elements and attributes of the simple XML document.
#pragma once

#include "settings/simple_xml.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qz {

class XmlLookup;

struct qzNameValuePair {
    std::wstring name;
    std::wstring value;
};

/// A null string is an empty one.
inline std::wstring_view OrEmpty(const wchar_t* text) noexcept {
    return text ? std::wstring_view(text) : std::wstring_view();
}

class qzSimpleXmlAttribute final : public IqzSimpleXmlAttribute, public qzNameValuePair {
  public:
    qzSimpleXmlAttribute() = default;
    qzSimpleXmlAttribute(std::wstring_view attributeName, std::wstring_view attributeValue)
        : qzNameValuePair{std::wstring(attributeName), std::wstring(attributeValue)} {}

    void SetName(const wchar_t* text) override { name = std::wstring(OrEmpty(text)); }
    const wchar_t* GetName() const override { return name.c_str(); }
    void SetValue(const wchar_t* text) override { value = std::wstring(OrEmpty(text)); }
    const wchar_t* GetValue() const override { return value.c_str(); }
};

/// Trees may be of any depth: nothing here recurses.
class qzSimpleXmlElement final : public IqzSimpleXmlElement, private qzNameValuePair {
  public:
    using OwnedElement = std::unique_ptr<qzSimpleXmlElement>;
    using OwnedAttribute = std::unique_ptr<IqzSimpleXmlAttribute>;

    explicit qzSimpleXmlElement(std::wstring_view elementName = {}, std::wstring_view elementValue = {})
        : qzNameValuePair{std::wstring(elementName), std::wstring(elementValue)} {}
    qzSimpleXmlElement(const qzSimpleXmlElement&) = delete;
    qzSimpleXmlElement& operator=(const qzSimpleXmlElement&) = delete;
    ~qzSimpleXmlElement() override { FreeChildren(); }

    void SetName(const wchar_t* text) override;
    const wchar_t* GetName() const override { return name.c_str(); }
    void SetValue(const wchar_t* text) override { value = std::wstring(OrEmpty(text)); }
    const wchar_t* GetValue() const override { return value.c_str(); }

    qzSimpleXmlElement* FindChild(const wchar_t* childName) const override {
        return ChildNamed(OrEmpty(childName));
    }
    std::size_t GetChildren(std::vector<IqzSimpleXmlElement*>& children) const override;
    qzSimpleXmlElement* AddChild(const wchar_t* childName, const wchar_t* childValue) override {
        return Add(OrEmpty(childName), OrEmpty(childValue));
    }
    void AppendChild(std::unique_ptr<IqzSimpleXmlElement> child) override;
    void RemoveChild(const IqzSimpleXmlElement* child) override;
    void RemoveAllChildren() override;

    IqzSimpleXmlAttribute* FindAttribute(const wchar_t* attributeName) const override;
    std::size_t GetAttributes(std::vector<IqzSimpleXmlAttribute*>& attributes) const override;
    IqzSimpleXmlAttribute* AddAttribute(const wchar_t* attributeName, const wchar_t* attributeValue) override;
    void AppendAttribute(std::unique_ptr<IqzSimpleXmlAttribute> attribute) override;
    void RemoveAttribute(const IqzSimpleXmlAttribute* attribute) override;
    void RemoveAllAttributes() override { attributes_.clear(); }

    /// SetValue for text that is already measured.
    void SetText(std::wstring_view text) { value = text; }

    const std::wstring& Name() const noexcept { return name; }
    const std::wstring& Value() const noexcept { return value; }
    /// Null for a root and for an element that stands alone.
    qzSimpleXmlElement* Parent() const noexcept { return parent_; }
    const std::vector<OwnedElement>& Children() const noexcept { return children_; }
    const std::vector<OwnedAttribute>& Attributes() const noexcept { return attributes_; }

    qzSimpleXmlElement* ChildNamed(std::wstring_view childName) const noexcept;
    /// AddChild for text that is already measured.
    qzSimpleXmlElement* Add(std::wstring_view childName, std::wstring_view childValue = {});

    /// The element with all below it, standing alone.
    OwnedElement Copy() const;

    /// Tells `lookup` of every renaming and removal in this tree; it must outlive the element.
    void Report(XmlLookup* lookup);

  private:
    qzSimpleXmlElement* Adopt(OwnedElement child);
    OwnedElement CopyAlone() const;
    void FreeChildren() noexcept;
    void Changed() const noexcept;

    qzSimpleXmlElement* parent_ = nullptr;
    XmlLookup* lookup_ = nullptr;
    std::vector<OwnedAttribute> attributes_;
    std::vector<OwnedElement> children_;
};

}  // namespace qz
