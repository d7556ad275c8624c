// The simple XML document but for its streams.
#pragma once

#include "settings/simple_xml.h"
#include "settings/xml_element.h"
#include "settings/xml_lookup.h"
#include "settings/xml_writer.h"

#include <memory>
#include <string_view>

namespace qz {

class XmlTree : public IqzSimpleXml {
  public:
    XmlTree() = default;
    XmlTree(const XmlTree&) = delete;
    XmlTree& operator=(const XmlTree&) = delete;

    void SetLookupFlag(bool remember) override { lookup_.Enable(remember); }
    qzSimpleXmlElement* GetRoot() override;
    qzSimpleXmlElement* GetElement(const wchar_t* path, bool create) override;
    qzSimpleXmlElement* FindElement(const wchar_t* name, IqzSimpleXmlElement* start,
                                    bool recursive) const override;
    bool GetString(const wchar_t* path, const wchar_t** value, const wchar_t* attributeName,
                   const wchar_t** attributeValue) override;
    bool SetString(const wchar_t* path, const wchar_t* value, const wchar_t* attributeName,
                   const wchar_t* attributeValue, bool create) override;
    bool GetBool(const wchar_t* path, XmlResult<bool>& result) override;
    bool GetColor(const wchar_t* path, XmlResult<std::uint32_t>& result) override;
    bool GetFloat(const wchar_t* path, XmlResult<float>& result) override;
    bool GetRaw(const wchar_t* path, XmlRawResult& result) override;
    bool SetBool(const wchar_t* path, bool value, const XmlSetOptions& options) override;
    bool SetInteger(const wchar_t* path, std::int32_t value, const XmlSetOptions& options) override;
    bool SetFloat(const wchar_t* path, float value, const XmlSetOptions& options) override;
    bool SetText(const wchar_t* path, const wchar_t* text, const XmlSetOptions& options) override;

    bool HasRoot() const noexcept { return root_ != nullptr; }
    /// Writes the whole document; a root without name is named "root". False when there is no root.
    bool Write(const XmlSink& sink);

  private:
    qzSimpleXmlElement* Walk(std::wstring_view path, bool create);

    // The elements report to the look-up: it goes last.
    XmlLookup lookup_;
    std::unique_ptr<qzSimpleXmlElement> root_;
};

}  // namespace qz
