// A small XML document in memory: elements with attributes and a text, reached by paths.
//
// Strings are wide; a null string argument stands for an empty one unless said otherwise. Strings handed out
// belong to the document and last until that name or value is set, or its element goes. Children and
// attributes keep the order in which they came, a name may stand more than once, and look-ups give the first.
// A missing thing is told by null or false. One document is for one thread at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

struct IStream;

namespace qz {

struct IqzSimpleXmlAttribute {
    virtual void SetName(const wchar_t* name) = 0;
    virtual const wchar_t* GetName() const = 0;
    virtual void SetValue(const wchar_t* value) = 0;
    virtual const wchar_t* GetValue() const = 0;
    virtual ~IqzSimpleXmlAttribute() = default;
};

/// An element's value is its text. It owns its attributes and its children.
struct IqzSimpleXmlElement {
    virtual void SetName(const wchar_t* name) = 0;
    virtual const wchar_t* GetName() const = 0;
    virtual void SetValue(const wchar_t* value) = 0;
    virtual const wchar_t* GetValue() const = 0;

    virtual IqzSimpleXmlElement* FindChild(const wchar_t* name) const = 0;
    /// Fills `children`, which own nothing; gives their count.
    virtual std::size_t GetChildren(std::vector<IqzSimpleXmlElement*>& children) const = 0;
    virtual IqzSimpleXmlElement* AddChild(const wchar_t* name, const wchar_t* value) = 0;
    /// Takes a qzSimpleXmlElement, the only kind there is, that is not this element's own ancestor. Null is
    /// passed over.
    virtual void AppendChild(std::unique_ptr<IqzSimpleXmlElement> child) = 0;
    /// Destroys the child; one that is not this element's is left alone.
    virtual void RemoveChild(const IqzSimpleXmlElement* child) = 0;
    virtual void RemoveAllChildren() = 0;

    virtual IqzSimpleXmlAttribute* FindAttribute(const wchar_t* name) const = 0;
    virtual std::size_t GetAttributes(std::vector<IqzSimpleXmlAttribute*>& attributes) const = 0;
    /// Always adds, whether the name is there already or not.
    virtual IqzSimpleXmlAttribute* AddAttribute(const wchar_t* name, const wchar_t* value) = 0;
    /// Null is passed over.
    virtual void AppendAttribute(std::unique_ptr<IqzSimpleXmlAttribute> attribute) = 0;
    virtual void RemoveAttribute(const IqzSimpleXmlAttribute* attribute) = 0;
    virtual void RemoveAllAttributes() = 0;
    virtual ~IqzSimpleXmlElement() = default;
};

enum class XmlCode : std::int32_t { Found = 0, Missing = 1, NotConverted = 2 };

/// What a typed getter gives: the element's text, null when it is missing, and the text converted.
template <typename Value>
struct XmlResult {
    XmlCode code = XmlCode::Missing;
    const wchar_t* text = nullptr;
    Value value = {};
};

struct XmlRawResult {
    XmlCode code = XmlCode::Missing;
    const wchar_t* text = nullptr;
};

/// How the typed setters write.
struct XmlSetOptions {
    bool create = true;                  ///< makes what is missing
    const wchar_t* attribute = nullptr;  ///< where the text goes; null: the element's value
};

/// A path is names with "/" between them, beginning below the root; empty names are skipped, so that an empty
/// path is the root itself.
struct IqzSimpleXml {
    virtual ~IqzSimpleXml() = default;
    /// Whether paths once found are remembered, as they are from the beginning. A change forgets them.
    virtual void SetLookupFlag(bool remember) = 0;
    /// False when the stream cannot be read as XML to its end; what was read until then stays.
    virtual bool Load(IStream* stream) = 0;
    /// False when there is no root. Throws ComError when the stream does not take the text.
    virtual bool Save(IStream* stream) = 0;
    /// Makes a root without name when there is none.
    virtual IqzSimpleXmlElement* GetRoot() = 0;
    virtual IqzSimpleXmlElement* GetElement(const wchar_t* path, bool create) = 0;
    /// Looks among the children of `start` (null: the root), then, when `recursive`, below each in turn.
    virtual IqzSimpleXmlElement* FindElement(const wchar_t* name, IqzSimpleXmlElement* start,
                                             bool recursive) const = 0;
    /// Either result may be null. The attribute is asked for when both its name and its result are given.
    virtual bool GetString(const wchar_t* path, const wchar_t** value, const wchar_t* attributeName,
                           const wchar_t** attributeValue) = 0;
    /// A null value is not set, a null attribute name sets no attribute.
    virtual bool SetString(const wchar_t* path, const wchar_t* value, const wchar_t* attributeName,
                           const wchar_t* attributeValue, bool create) = 0;

    /// The getters give true for XmlCode::Found alone. Only a colour can be NotConverted.
    virtual bool GetBool(const wchar_t* path, XmlResult<bool>& result) = 0;
    /// 0xAARRGGBB.
    virtual bool GetColor(const wchar_t* path, XmlResult<std::uint32_t>& result) = 0;
    virtual bool GetFloat(const wchar_t* path, XmlResult<float>& result) = 0;
    virtual bool GetRaw(const wchar_t* path, XmlRawResult& result) = 0;

    /// The setters give false when something is missing that they may not make.
    virtual bool SetBool(const wchar_t* path, bool value, const XmlSetOptions& options) = 0;
    virtual bool SetInteger(const wchar_t* path, std::int32_t value, const XmlSetOptions& options) = 0;
    virtual bool SetFloat(const wchar_t* path, float value, const XmlSetOptions& options) = 0;
    virtual bool SetText(const wchar_t* path, const wchar_t* text, const XmlSetOptions& options) = 0;
};

}  // namespace qz
