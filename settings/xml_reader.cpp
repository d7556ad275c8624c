#include "settings/xml_reader.h"

#include "settings/colon_hiding.h"
#include "settings/reader_memory.h"
#include "settings/xml_source.h"
#include "settings/xml_text.h"

#include <xmllite.h>

#include <string>
#include <string_view>
#include <utility>

namespace qz {

namespace {

/// What the reader tells of the node it stands on.
using StringGetter = HRESULT (STDMETHODCALLTYPE IXmlReader::*)(const wchar_t**, UINT*);

std::wstring_view TextOf(IXmlReader& reader, StringGetter getter) {
    const wchar_t* text = nullptr;
    UINT length = 0;
    ThrowIfFailed((reader.*getter)(&text, &length), L"The XML cannot be read");
    return {text, length};
}

ComPtr<IXmlReader> MakeReader(ISequentialStream* source) {
    ComPtr<IXmlReader> reader;
    constexpr LONG_PTR noLimit = 0;
    const ComPtr<ReaderMemory> memory = MakeObject<ReaderMemory>();
    ThrowIfFailed(CreateXmlReader(__uuidof(IXmlReader), &reader, memory.Get()));
    ThrowIfFailed(reader->SetProperty(XmlReaderProperty_DtdProcessing, DtdProcessing_Prohibit));
    ThrowIfFailed(reader->SetProperty(XmlReaderProperty_MaxElementDepth, noLimit));
    ThrowIfFailed(reader->SetInput(source));
    return reader;
}

/// Builds the tree as the nodes come.
class TreeBuilder {
  public:
    TreeBuilder(IXmlReader& reader, XmlTree& tree) noexcept : reader_(reader), tree_(tree) {}

    void Take(XmlNodeType type) {
        switch (type) {
            case XmlNodeType_Element:
                return BeginElement();
            case XmlNodeType_EndElement:
                return EndElement();
            case XmlNodeType_Text:
            case XmlNodeType_CDATA:
                return KeepText();
            case XmlNodeType_Whitespace:
                return KeepBlanks();
            default:
                return;
        }
    }

    /// Whether a whole document was taken.
    bool Complete() const noexcept { return began_ && !current_; }

  private:
    enum class Kept { Nothing, Text, Blanks };

    void BeginElement() {
        if (kept_ == Kept::Text) SetValue(depth_ + 1);
        kept_ = Kept::Nothing;
        // Afterwards the reader stands on an attribute and tells of that.
        const bool empty = reader_.IsEmptyElement() != FALSE;
        qzSimpleXmlElement* element = AddElement(Name());
        AddAttributes(*element);
        if (empty) return;
        if (current_) ++depth_;
        current_ = element;
    }

    void EndElement() {
        if (!current_) return;
        if (kept_ != Kept::Nothing) SetValue(depth_);
        kept_ = Kept::Nothing;
        current_ = current_->Parent();
        if (current_) --depth_;
    }

    // The indent at the end of a text is told from the text by what follows.
    void KeepText() {
        if (!current_) return;
        text_ = TextOf(reader_, &IXmlReader::GetValue);
        kept_ = Kept::Text;
    }

    void KeepBlanks() {
        if (!current_ || kept_ == Kept::Text || !current_->Children().empty() || !current_->Value().empty())
            return;
        const std::wstring_view blanks = TextOf(reader_, &IXmlReader::GetValue);
        if (!blanks.starts_with(L'\n')) return;
        text_ = blanks;
        kept_ = Kept::Blanks;
    }

    void SetValue(std::size_t depth) { current_->SetText(ValueOfText(text_, depth)); }

    qzSimpleXmlElement* AddElement(std::wstring_view name) {
        if (current_) return current_->Add(name);
        began_ = true;
        const bool fresh = !tree_.HasRoot();
        qzSimpleXmlElement* root = tree_.GetRoot();
        if (fresh) root->SetName(std::wstring(name).c_str());
        return root;
    }

    void AddAttributes(qzSimpleXmlElement& element) {
        for (HRESULT found = reader_.MoveToFirstAttribute(); found == S_OK;
             found = reader_.MoveToNextAttribute()) {
            if (reader_.IsDefault()) continue;
            const std::wstring_view name = Name();
            element.AppendAttribute(
                std::make_unique<qzSimpleXmlAttribute>(name, TextOf(reader_, &IXmlReader::GetValue)));
        }
    }

    std::wstring_view Name() {
        const std::wstring_view hidden = TextOf(reader_, &IXmlReader::GetLocalName);
        if (hidden.find(L'_') == std::wstring_view::npos) return hidden;
        RestoreName(hidden, name_);
        return name_;
    }

    IXmlReader& reader_;
    XmlTree& tree_;
    bool began_ = false;
    qzSimpleXmlElement* current_ = nullptr;
    std::size_t depth_ = 0;  // of the current element
    Kept kept_ = Kept::Nothing;
    std::wstring text_;
    std::wstring name_;
};

/// The failure or the end is given.
HRESULT ReadNodes(IXmlReader& reader, const XmlSource& source, TreeBuilder& builder) {
    for (;;) {
        XmlNodeType type = XmlNodeType_None;
        const HRESULT result = reader.Read(&type);
        if (source.Failed()) return E_FAIL;
        if (result != S_OK) return result;
        builder.Take(type);
    }
}

}  // namespace

bool ReadXml(IStream* stream, XmlTree& tree) {
    if (!stream) return false;
    const ComPtr<XmlSource> source = MakeObject<XmlSource>(ComPtr<IStream>(stream));
    try {
        const ComPtr<IXmlReader> reader = MakeReader(source.Get());
        TreeBuilder builder(*reader.Get(), tree);
        return ReadNodes(*reader.Get(), *source.Get(), builder) == S_FALSE && builder.Complete();
    } catch (const ComError&) {
        return false;  // the reader's
    }
}

}  // namespace qz
