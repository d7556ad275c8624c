#include "settings/xml_writer.h"

#include "settings/utf8.h"
#include "settings/xml_element.h"

#include <cstddef>
#include <string>
#include <vector>

namespace qz {

namespace {

class Writer {
  public:
    explicit Writer(const XmlSink& sink) noexcept : sink_(sink) {}

    // The open elements are kept in a list instead of on the stack, for a tree may be of any depth.
    void Write(const qzSimpleXmlElement& top) {
        Open(top);
        while (!open_.empty()) {
            OpenElement& last = open_.back();
            if (last.nextChild < last.element->Children().size()) {
                Open(*last.element->Children()[last.nextChild++]);
            } else {
                Close();
            }
        }
    }

  private:
    struct OpenElement {
        const qzSimpleXmlElement* element;
        std::size_t nextChild = 0;
    };

    void Open(const qzSimpleXmlElement& element) {
        Indent();
        sink_("<");
        Put(element.Name());
        for (const auto& attribute : element.Attributes()) {
            sink_(" ");
            Put(attribute->GetName());
            sink_("=\"");
            Put(attribute->GetValue());
            sink_("\"");
        }
        if (element.Children().empty() && element.Value().empty()) return sink_("/>\n");
        sink_(">\n");
        Put(element.Value());
        open_.push_back({&element});
    }

    void Close() {
        const qzSimpleXmlElement& element = *open_.back().element;
        open_.pop_back();
        Indent();
        sink_("</");
        Put(element.Name());
        sink_(">\n");
    }

    void Indent() {
        blanks_.resize(open_.size(), ' ');
        if (!blanks_.empty()) sink_(blanks_);
    }

    void Put(std::wstring_view text) {
        if (text.empty()) return;
        bytes_.clear();
        AppendUtf8(text, bytes_);
        sink_(bytes_);
    }

    const XmlSink& sink_;
    std::vector<OpenElement> open_;
    std::string blanks_;
    std::string bytes_;
};

}  // namespace

void WriteXml(const qzSimpleXmlElement& top, const XmlSink& sink) { Writer(sink).Write(top); }

}  // namespace qz
