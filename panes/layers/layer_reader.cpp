#include "panes/layers/layer_reader.h"

#include "com/safe_array.h"
#include "host/array_elements.h"
#include "host/attributes.h"
#include "host/host_objects.h"
#include "host/late_bound.h"
#include "host/object_path.h"

#include <algorithm>

namespace qz {

namespace {

constexpr const wchar_t* textNames[] = {L"ConfigOrder", L"ConfigRBGroups", L"ConfigON", L"ConfigOFF"};
static_assert(std::size(textNames) == std::tuple_size_v<LayerTexts>);

std::wstring_view TextOf(const VARIANT& value) noexcept {
    if (value.vt != VT_BSTR || !value.bstrVal) return {};
    return {value.bstrVal, SysStringLen(value.bstrVal)};
}

bool IsOn(std::wstring_view state) noexcept {
    constexpr std::wstring_view on = L"ON";
    return CompareStringOrdinal(state.data(), static_cast<int>(state.size()), on.data(),
                                static_cast<int>(on.size()), TRUE) == CSTR_EQUAL;
}

using Configurations = std::vector<ComPtr<IDispatch>>;

/// None when the host has something else than an array. An element that is no object is null.
Configurations ReadConfigurations(IVandraX* host) {
    const _variant_t value = ReadAttribute(host, documentPath, L"LayerConfigs");
    if (!IsList(value)) return {};
    Configurations configurations;
    for (const _variant_t& element : ElementsOf(value)) configurations.push_back(ObjectOf(element));
    return configurations;
}

/// The texts of a configuration, read as they are needed.
class TextReader {
  public:
    explicit TextReader(const Configurations& configurations) {
        if (!configurations.empty()) configuration_ = configurations.front();
    }

    /// False for what is no text.
    bool Read(LayerTexts& texts, std::size_t which) {
        if (!configuration_) return false;
        const _variant_t value = attribute_.Get(configuration_.Get(), {_variant_t(textNames[which])});
        if (value.vt != VT_BSTR) return false;
        texts[which] = TextOf(value);
        return true;
    }

  private:
    ComPtr<IDispatch> configuration_;
    LateBoundMember attribute_{L"Attribute"};
};

/// A record of what the host tells of a layer, but for its name.
LayerRecord ReadLayer(LayerAttributes& attributes, const std::wstring& name) {
    const Bstr path(LayerPath(name));
    LayerRecord layer;
    layer.missing = !attributes.Exists(path);
    if (layer.missing) return layer;
    layer.visible = attributes.ReadVisible(path);
    layer.displayName = attributes.ReadDisplayName(path);
    return layer;
}

/// A layer that cannot be read is not listed, nor is what follows it.
void ReadOrder(LayerAttributes& attributes, const std::wstring& text, LayerRecords& records) {
    for (const OrderedName& item : ParseLayerOrder(text)) {
        LayerRecord read;
        if (!records.Find(item.name)) read = ReadLayer(attributes, item.name);
        const LayerRecords::Added added = records.AddItem(item.name, item.parent);
        if (!added.isNew) continue;
        LayerRecord& layer = records.All()[added.record];
        layer.missing = read.missing;
        layer.visible = read.visible;
        layer.displayName = std::move(read.displayName);
    }
}

/// Shows or hides the layers of a list, also those that the tree does not name.
void ApplyList(LayerAttributes& attributes, const std::wstring& text, LayerRecords& records, bool visible) {
    for (const std::wstring& name : ParseLayerNames(text)) {
        const auto known = records.Find(name);
        LayerRecord* const layer = known ? &records.All()[*known] : nullptr;
        const Bstr path(LayerPath(name));
        if (layer ? layer->missing : !attributes.Exists(path)) continue;
        if ((layer ? layer->visible : attributes.ReadVisible(path)) == visible) continue;
        attributes.WriteVisible(path, visible);
        if (layer) layer->visible = visible;
    }
}

}  // namespace

void ReadLayers(IVandraX* host, LayerDocument& document) {
    document.configurations = ReadConfigurations(host);
    LayerAttributes attributes(host);
    TextReader reader(document.configurations);
    LayerTexts& texts = document.texts;
    if (!reader.Read(texts, 0)) return;
    ReadOrder(attributes, *texts[0], document.records);
    if (!reader.Read(texts, 1)) return;
    for (const auto& group : ParseLayerGroups(*texts[1])) document.records.AddGroup(group);
    if (!reader.Read(texts, 2)) return;
    ApplyList(attributes, *texts[2], document.records, true);
    if (!reader.Read(texts, 3)) return;
    ApplyList(attributes, *texts[3], document.records, false);
}

LayerTexts ReadLayerTexts(IVandraX* host) {
    LayerTexts texts;
    TextReader reader(ReadConfigurations(host));
    for (std::size_t i = 0; i < texts.size() && reader.Read(texts, i); ++i) {
    }
    return texts;
}

// Attributes of layers
// ------------------------------------------------------------------------------------------

LayerPaths PathsOf(const LayerRecords& records) {
    auto paths = std::make_shared<std::vector<Bstr>>();
    paths->reserve(records.All().size());
    for (const LayerRecord& layer : records.All()) paths->emplace_back(LayerPath(layer.name));
    return paths;
}

bool LayerAttributes::Exists(const Bstr& path) {
    ComPtr<IDispatch> layer;
    return SUCCEEDED(host_->GetObjectByPath(path.Get(), &layer)) && layer;
}

bool LayerAttributes::ReadVisible(const Bstr& path) {
    ReadAttribute(host_, path.Get(), state_.Get(), value_);
    return IsOn(TextOf(value_));
}

std::wstring LayerAttributes::ReadDisplayName(const Bstr& path) {
    ReadAttribute(host_, path.Get(), displayName_.Get(), value_);
    return std::wstring(TextOf(value_));
}

void LayerAttributes::WriteVisible(const Bstr& path, bool visible) {
    const HRESULT result = host_->SetObjectAttribute(path.Get(), state_.Get(), visible ? on_ : off_);
    if (FAILED(result)) Throw(result, L"The host does not show or hide " + std::wstring(path.Get()));
}

bool LayerAttributes::IsOnPage(const Bstr& path, long page) {
    value_.Clear();
    const HRESULT result = host_->GetObjectAttribute(path.Get(), pages_.Get(), &value_);
    if (FAILED(result) || !IsList(value_)) return true;
    if (value_.vt == (VT_ARRAY | VT_I4)) {  // asked of every layer: without copies
        const SafeArrayView<long> view(value_.parray);
        return std::ranges::find(view.Elements(), page) != view.Elements().end();
    }
    bool found = true;  // an array of anything else tells nothing
    Guard(IID_NULL, [&] {
        found = std::ranges::any_of(ElementsOf(value_), [page](const _variant_t& element) {
            return ToLong(LookThrough(element)) == page;
        });
    });
    return found;
}

}  // namespace qz
