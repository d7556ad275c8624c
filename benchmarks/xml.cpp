#include "benchmarks/subjects.h"

#include "com/stream.h"
#include "settings/xml_document.h"

#include <xmllite.h>

#include <memory>
#include <string>

namespace qz::bench {

namespace {

/// Settings as the records have them, over and over, at least that long.
std::string LongDocument(std::size_t size) {
    std::string text = "<settings>\n";
    for (int i = 0; text.size() < size; ++i) {
        text += " <Section:Key" + std::to_string(i % 100) + " unit=\"twips\">\n" + std::to_string(i * 7) +
                " </Section:Key" + std::to_string(i % 100) + ">\n";
    }
    return text + "</settings>\n";
}

std::string DeepDocument(int depth) {
    std::string text;
    for (int i = 0; i < depth; ++i) text += "<Level:Down>";
    text += "reached";
    for (int i = 0; i < depth; ++i) text += "</Level:Down>";
    return text;
}

class Subject {
  public:
    explicit Subject(const std::string& text) : stream_(MakeMemoryStream()) {
        WriteBytes(stream_.Get(), std::as_bytes(std::span(text)));
    }

    /// Loading is into a new document, and does not end the one before.
    void Prepare() {
        Rewind();
        document_ = std::make_unique<qzSimpleXml>();
    }

    void Load() {
        if (!document_->Load(stream_.Get())) Throw(E_UNEXPECTED, L"The document is not loaded");
    }

    /// The reader's own work: every node, name and value.
    void ReadBarely() {
        ComPtr<IXmlReader> reader;
        ThrowIfFailed(CreateXmlReader(__uuidof(IXmlReader), &reader, nullptr));
        ThrowIfFailed(reader->SetProperty(XmlReaderProperty_MaxElementDepth, 0));
        ThrowIfFailed(reader->SetInput(stream_.Get()));
        XmlNodeType type = XmlNodeType_None;
        HRESULT result = S_OK;
        while ((result = reader->Read(&type)) == S_OK) {
            Ask(*reader.Get());
            if (type != XmlNodeType_Element) continue;
            for (HRESULT found = reader->MoveToFirstAttribute(); found == S_OK;
                 found = reader->MoveToNextAttribute()) {
                Ask(*reader.Get());
            }
        }
        ThrowIfFailed(result, L"The document is not read");
    }

  private:
    static void Ask(IXmlReader& reader) {
        const wchar_t* text = nullptr;
        ThrowIfFailed(reader.GetLocalName(&text, nullptr));
        ThrowIfFailed(reader.GetValue(&text, nullptr));
    }

    void Rewind() { ThrowIfFailed(stream_->Seek({}, STREAM_SEEK_SET, nullptr)); }

    ComPtr<IStream> stream_;
    std::unique_ptr<qzSimpleXml> document_;
};

void Measure(Report& report, const std::string& name, const std::string& text) {
    Subject subject(text);
    const auto prepare = [&] { subject.Prepare(); };
    report.AddTime(name,
                   MeasureBoth(UsingUp{prepare, [&] { subject.Load(); }},
                               UsingUp{prepare, [&] { subject.ReadBarely(); }}),
                   1.3);
}

}  // namespace

void MeasureXml(Report& report) {
    Measure(report, "load 50 MB of XML to a bare reader pass", LongDocument(std::size_t{50} << 20));
    Measure(report, "load XML 10,000 deep to a bare reader pass", DeepDocument(10'000));
}

}  // namespace qz::bench
