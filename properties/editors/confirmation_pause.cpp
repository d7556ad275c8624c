#include "properties/editors/confirmation_pause.h"

#include "host/attributes.h"
#include "host/object_path.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace qz {

namespace {

struct OpenPause {
    IUnknown* host;  ///< Its identity; not counted here, but by the pause as long as that lives.
    std::weak_ptr<ConfirmationPause> pause;
};

/// Hosts on several threads share the list, not its entries.
struct OpenPauses {
    std::mutex mutex;
    std::vector<OpenPause> entries;
};

OpenPauses& Open() {
    static OpenPauses open;
    return open;
}

void SetConfirmation(IVandraX* host, bool asked) {
    WriteAttribute(host, documentPath, confirmAttribute, _variant_t(asked ? 1L : 0L));
}

}  // namespace

std::shared_ptr<ConfirmationPause> ConfirmationPause::On(IVandraX* host) {
    ComPtr<IUnknown> identity;
    ThrowIfFailed(host->QueryInterface(IID_PPV_ARGS(&identity)));
    auto made = std::make_shared<ConfirmationPause>(host);
    {
        OpenPauses& open = Open();
        const std::lock_guard lock(open.mutex);
        std::erase_if(open.entries, [](const OpenPause& entry) { return entry.pause.expired(); });
        const auto found = std::ranges::find(open.entries, identity.Get(), &OpenPause::host);
        if (found != open.entries.end()) return found->pause.lock();
        open.entries.push_back({identity.Get(), made});
    }
    // Known by now: the host may come back with another editor.
    Guard(IID_NULL, [&] { made->Begin(); });
    return made;
}

void ConfirmationPause::Begin() {
    _variant_t value = ReadAttribute(host_.Get(), documentPath, confirmAttribute);
    ThrowIfFailed(VariantChangeType(&value, &value, 0, VT_BOOL));
    before_ = value.boolVal != VARIANT_FALSE;
    SetConfirmation(host_.Get(), false);
}

ConfirmationPause::~ConfirmationPause() {
    if (!before_) return;
    const auto giveBack = [this] {
        return Guard(IID_NULL, [this] { SetConfirmation(host_.Get(), *before_); });
    };
    // It is the document's setting, and nobody is left to tell: a host that is just busy is asked twice.
    if (FAILED(giveBack())) giveBack();
}

}  // namespace qz
