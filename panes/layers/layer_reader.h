// What the pane reads from the host: the layer configuration, the layers' names and states.
#pragma once

#include "com/com_ptr.h"
#include "com/text.h"
#include "panes/layers/layer_records.h"

#include "generated/vandra_x.h"

#include <comdef.h>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qz {

/// The order, the radio-button groups, the ON list and the OFF list of the configuration in force; nothing
/// from the first one on that is no text.
using LayerTexts = std::array<std::optional<std::wstring>, 4>;

/// The document's layers as they were read.
struct LayerDocument {
    std::vector<ComPtr<IDispatch>> configurations;
    LayerTexts texts;
    LayerRecords records;
};

/// Reads the configuration and the layers it names, and shows and hides the layers of its lists. Throws the
/// host's failure; what was read until then is in `document`, also what was read up to a text that is none.
void ReadLayers(IVandraX* host, LayerDocument& document);

/// Reads the configuration's texts alone. Throws the host's failure.
LayerTexts ReadLayerTexts(IVandraX* host);

/// The object paths of the layers, by record. Shared, so that they outlive a call that replaces the records.
using LayerPaths = std::shared_ptr<const std::vector<Bstr>>;
LayerPaths PathsOf(const LayerRecords& records);

/// The layers' attributes. The host outlives it.
class LayerAttributes {
  public:
    explicit LayerAttributes(IVandraX* host) : host_(host) {}

    /// Whether there is such a layer.
    bool Exists(const Bstr& path);
    /// Throw the host's failure. A state of another type than text is hidden, such a display name is empty.
    bool ReadVisible(const Bstr& path);
    std::wstring ReadDisplayName(const Bstr& path);
    void WriteVisible(const Bstr& path, bool visible);
    /// Whether the layer has content on a page; true when the host does not tell.
    bool IsOnPage(const Bstr& path, long page);

  private:
    IVandraX* host_;
    Bstr state_{L"CurrentViewState"};
    Bstr displayName_{L"DisplayName"};
    Bstr pages_{L"Pages"};
    _variant_t on_{L"ON"};
    _variant_t off_{L"OFF"};
    _variant_t value_;  ///< Serves one read after the other.
};

}  // namespace qz
