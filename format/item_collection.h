// The members that the formatter's collections have in common.
#pragma once

#include "com/dispatch.h"
#include "com/enumerator.h"
#include "com/text.h"
#include "format/numbered_items.h"

namespace qz {

/// Base of an object with the dual interface `I`, a collection of `Item`s that are made of one text. What
/// goes out in a variant is an object reference. E_POINTER for null slots, DISP_E_BADINDEX for unknown ids.
template <class I, class Item>
class ItemCollection : public Dispatch<I> {
  public:
    STDMETHODIMP get_Count(long* pVal) override {
        return Guard(__uuidof(I), [&] {
            RequirePointer(pVal);
            *pVal = items_->Count();
        });
    }

    STDMETHODIMP Add(BSTR text, VARIANT* pItem) override {
        return Guard(__uuidof(I), [&] {
            RequirePointer(pItem);
            VariantInit(pItem);
            GiveOut(AddItem(TextView(text)), pItem);
        });
    }

    STDMETHODIMP Remove(long id) override {
        return Guard(__uuidof(I), [&] { items_->Remove(id); });
    }

    STDMETHODIMP get_Item(long id, VARIANT* pVal) override {
        return Guard(__uuidof(I), [&] {
            RequirePointer(pVal);
            VariantInit(pVal);
            GiveOut(items_->At(id), pVal);
        });
    }

    /// Enumerates what is there now, in the order of the ids.
    STDMETHODIMP get__NewEnum(IUnknown** pVal) override {
        return Guard(__uuidof(I), [&] {
            RequirePointer(pVal);
            *pVal = nullptr;
            using Items = Enumerator<IEnumVARIANT, VARIANT, _variant_t, CopyVariant>;
            *pVal = static_cast<IEnumVARIANT*>(MakeObject<Items>(items_->All()).Detach());
        });
    }

  protected:
    ComPtr<Item> AddItem(std::wstring_view text) {
        auto item = MakeObject<Item>(std::wstring(text));
        items_->Add(item);
        return item;
    }

  private:
    static void GiveOut(const ComPtr<Item>& item, VARIANT* slot) {
        slot->vt = VT_DISPATCH;
        item.CopyTo(&slot->pdispVal);
    }

    std::shared_ptr<NumberedItems<Item>> items_ = std::make_shared<NumberedItems<Item>>();
};

}  // namespace qz
