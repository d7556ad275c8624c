// The pane's members.
#include "panes/bookmarks/bookmark_control.h"

namespace qz {

// Host and outline
// ---------------------------------------------------------------------------------------------

STDMETHODIMP BookmarkControl::Initialize(IDispatch* pDispatch) { return InitializePane(pDispatch); }

STDMETHODIMP BookmarkControl::InitializeV(VARIANT Var) {
    const VARIANT* held = &Var;
    if (Var.vt == (VT_BYREF | VT_VARIANT) && Var.pvarVal) held = Var.pvarVal;
    IUnknown* object = nullptr;
    if (held->vt == VT_DISPATCH || held->vt == VT_UNKNOWN) object = held->punkVal;
    const bool byReference = held->vt == (VT_BYREF | VT_DISPATCH) || held->vt == (VT_BYREF | VT_UNKNOWN);
    if (byReference && held->ppunkVal) object = *held->ppunkVal;
    ComPtr<IDispatch> host;
    return Run([&]() -> HRESULT {
        if (!object) Throw(E_INVALIDARG, L"The variant holds no object");
        ThrowIfFailed(object->QueryInterface(IID_PPV_ARGS(&host)), L"The object is no host control");
        return Initialize(host.Get());
    });
}

STDMETHODIMP BookmarkControl::Refresh() {
    return Run([this]() -> HRESULT {
        Rebuild(oneLevel);
        return S_OK;  // also when it comes later, or is being done
    });
}

STDMETHODIMP BookmarkControl::ExpandAll() {
    return Run([this]() -> HRESULT {
        if (othersTurn_) return S_FALSE;
        const ShownDocument shown = Shown();
        const HRESULT result = Rebuild(everyLevel);
        // By now the tree may be another host's.
        if (result == S_OK && !shown.HostLeft() && tree_ && tree_.Root())
            tree_.Expand(tree_.Root(), TVE_EXPAND);
        return result;
    });
}

STDMETHODIMP BookmarkControl::CollapseAll() {
    return Run([this]() -> HRESULT {
        if (othersTurn_) return S_FALSE;
        if (!Host() || !tree_) return S_OK;
        const TreeRedrawScope still(tree_);
        tree_.CollapseAll();
        return S_OK;
    });
}

// Properties
// ---------------------------------------------------------------------------------------------------

/// The tree's own answer counts: it may have been given another colour directly.
STDMETHODIMP BookmarkControl::get_TextColor(OLE_COLOR* pVal) {
    return Run([&] {
        RequirePointer(pVal);
        if (tree_) {
            const auto shown = static_cast<COLORREF>(tree_.Send(TVM_GETTEXTCOLOR));
            if (shown != TreeColour(colours_.text)) colours_.text = shown;
        }
        *pVal = colours_.text;
    });
}

STDMETHODIMP BookmarkControl::put_TextColor(OLE_COLOR newVal) {
    return Run([&] {
        TreeColour(newVal);
        colours_.text = newVal;
        SetDirty(true);
        ApplyColours();
        ApplyImages();
    });
}

STDMETHODIMP BookmarkControl::get_SelectedTextColor(OLE_COLOR* pVal) {
    return Answer(pVal, colours_.selectedText);
}

STDMETHODIMP BookmarkControl::put_SelectedTextColor(OLE_COLOR newVal) {
    return Run([&] {
        TreeColour(newVal);
        colours_.selectedText = newVal;
        SetDirty(true);
        Redraw();
    });
}

STDMETHODIMP BookmarkControl::get_SelectedTextBackColor(OLE_COLOR* pVal) {
    return Answer(pVal, colours_.selectedBack);
}

STDMETHODIMP BookmarkControl::put_SelectedTextBackColor(OLE_COLOR newVal) {
    return Run([&] {
        TreeColour(newVal);
        colours_.selectedBack = newVal;
        SetDirty(true);
        Redraw();
    });
}

STDMETHODIMP BookmarkControl::get_IconSet(qzBookmarksCtrlIconSetConsts* pVal) {
    return Answer(pVal, iconSet_);
}

STDMETHODIMP BookmarkControl::put_IconSet(qzBookmarksCtrlIconSetConsts newVal) {
    return Run([&] {
        if (newVal < qzBookmarksCtrlIconSet_None || newVal > qzBookmarksCtrlIconSet_Style2) {
            Throw(E_INVALIDARG, L"There is no icon set of that number");
        }
        iconSet_ = newVal;
        SetDirty(true);
        ApplyImages();
    });
}

std::span<const PersistentProperty> BookmarkControl::PersistentProperties() const {
    static constexpr PersistentProperty properties[] = {
        {L"FitToParent", 4, VT_I4},
        {L"ReadOnly", 5, VT_I4},
        {L"EnableDragDrop", 6, VT_I4},
        {L"TextColor", 9, VT_UI4},
        {L"SelectedTextColor", 10, VT_UI4},
        {L"SelectedTextBackColor", 11, VT_UI4},
        {L"IconSet", 12, VT_I4},
        {L"BackColor", DISPID_BACKCOLOR, VT_UI4},
    };
    return properties;
}

}  // namespace qz
