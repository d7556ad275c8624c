// The bar's members, its tie to the host, and what its fields show.
#include "panes/status/status_control.h"

#include "panes/status/status_reader.h"
#include "res/strings.h"
#include "res/text_ids.h"

namespace qz {

// Members
// ------------------------------------------------------------------------------------------------------

STDMETHODIMP StatusControl::Initialize(IDispatch* pDispatch) { return InitializePane(pDispatch); }

STDMETHODIMP StatusControl::Reset() { return ResetPane(); }

STDMETHODIMP StatusControl::get_UnitOfMeasure(StatusCtrlUnitsOfMeasure* pVal) {
    return Answer(pVal, static_cast<StatusCtrlUnitsOfMeasure>(unit_));
}

/// Any value is taken; those that are no unit show twips.
STDMETHODIMP StatusControl::put_UnitOfMeasure(StatusCtrlUnitsOfMeasure newVal) {
    return Run([&] {
        unit_ = static_cast<LengthUnit>(newVal);
        SetDirty(true);
        ShowFields();
    });
}

HRESULT StatusControl::TellVisible(StatusField field, VARIANT_BOOL* answer) const {
    return Answer(answer, visible_[field] ? VARIANT_TRUE : VARIANT_FALSE);
}

HRESULT StatusControl::MakeVisible(StatusField field, VARIANT_BOOL visible) {
    return Run([&] {
        visible_[field] = visible != VARIANT_FALSE;
        SetDirty(true);
        ShowFields();
    });
}

STDMETHODIMP StatusControl::get_SelectedObjectNameVisible(VARIANT_BOOL* pVal) {
    return TellVisible(StatusField::ObjectName, pVal);
}

STDMETHODIMP StatusControl::put_SelectedObjectNameVisible(VARIANT_BOOL newVal) {
    return MakeVisible(StatusField::ObjectName, newVal);
}

STDMETHODIMP StatusControl::get_SelectedObjectCoordsVisible(VARIANT_BOOL* pVal) {
    return TellVisible(StatusField::ObjectCoords, pVal);
}

STDMETHODIMP StatusControl::put_SelectedObjectCoordsVisible(VARIANT_BOOL newVal) {
    return MakeVisible(StatusField::ObjectCoords, newVal);
}

STDMETHODIMP StatusControl::get_PageSizeVisible(VARIANT_BOOL* pVal) {
    return TellVisible(StatusField::PageSize, pVal);
}

STDMETHODIMP StatusControl::put_PageSizeVisible(VARIANT_BOOL newVal) {
    return MakeVisible(StatusField::PageSize, newVal);
}

STDMETHODIMP StatusControl::put_BackColor(OLE_COLOR newVal) {
    const ComPtr<IUnknown> alive = Identity();
    const HRESULT result = PutBackColor(newVal);
    view_.Invalidate();
    return result;
}

std::span<const PersistentProperty> StatusControl::PersistentProperties() const {
    static constexpr PersistentProperty properties[] = {
        {L"BackColor", DISPID_BACKCOLOR, VT_UI4},   {L"UnitOfMeasure", 3, VT_I4},
        {L"SelectedObjectNameVisible", 4, VT_BOOL}, {L"SelectedObjectCoordsVisible", 5, VT_BOOL},
        {L"PageSizeVisible", 6, VT_BOOL},
    };
    return properties;
}

// The host
// -----------------------------------------------------------------------------------------------------

void StatusControl::ShowDocument() {
    values_ = {};
    ReadHost();
}

void StatusControl::ForgetDocument() {
    values_ = {};
    focusOwed_ = false;
    ShowFields();
    for (const StatusField field : statusFields) view_.Restore(field);
}

void StatusControl::FollowHost() { ReadHost(); }

/// Reads one value. What the host fails to tell stays as it is, and so does what belongs to another host by
/// now: false.
template <class Value, class Read>
bool StatusControl::ReadInto(const ShownDocument& shown, Value& value, Read&& read) {
    if (shown.HostLeft()) return false;
    const HRESULT result = Run([&] {
        auto told = read();
        if (shown.HostLeft()) return S_FALSE;
        value = std::move(told);
        return S_OK;
    });
    if (FAILED(result)) ShowErrorInDebugger();
    return result == S_OK;
}

void StatusControl::ReadHost() {
    const ShownDocument shown = Shown();
    if (!shown.Host()) return;
    {
        const OwnHostCalls ours(*this);
        ReadInto(shown, values_.pageSize, [&] { return ReadCurrentPageSize(shown.Host().Get()); });
        ReadInto(shown, values_.position, [&] { return ReadPagePosition(shown.Host().Get()); });
        ReadInto(shown, values_.zoom, [&] { return ReadZoom(shown.Host().Get()); });
        ReadObject(shown);
    }
    ShowFields();
}

void StatusControl::ReadObject(const ShownDocument& shown) {
    ComPtr<IDispatch> object;
    if (!ReadInto(shown, object, [&] { return ReadSelectedObject(shown.Host().Get()); })) return;
    if (object) {
        ReadInto(shown, values_.objectName, [&] { return ReadObjectName(object.Get()); });
        ReadInto(shown, values_.objectRect, [&] { return ReadObjectRect(object.Get()); });
    } else {
        values_.objectName.clear();
        values_.objectRect.reset();
    }
}

// The fields
// ---------------------------------------------------------------------------------------------------

StatusContent StatusControl::Content() const {
    struct NamedField {
        StatusField field;
        unsigned textId;
    };
    constexpr NamedField named[] = {
        {StatusField::FirstPage, QZ_TEXT_FIRST_PAGE},     {StatusField::PreviousPage, QZ_TEXT_PREVIOUS_PAGE},
        {StatusField::PagePosition, QZ_TEXT_PAGE_NUMBER}, {StatusField::NextPage, QZ_TEXT_NEXT_PAGE},
        {StatusField::LastPage, QZ_TEXT_LAST_PAGE},       {StatusField::Zoom, QZ_TEXT_ZOOM},
    };
    const Language language = TextLanguage();
    const std::wstring pageLabel = LoadText(language, QZ_TEXT_PAGE);
    const PagePosition position = values_.position.value_or(PagePosition{});
    const auto leads = [&](PageStep step) {
        return StepTarget(step, position.page, position.count).has_value();
    };
    StatusContent content;
    content.wanted = visible_;
    content.enabled = {{true, true, true, leads(PageStep::First), leads(PageStep::Previous),
                        position.count > 0, leads(PageStep::Next), leads(PageStep::Last),
                        values_.zoom.has_value()}};
    for (const StatusField field : statusFields) {
        content.texts[field] = TextOf(field, values_, unit_, pageLabel);
    }
    for (const NamedField& entry : named) content.names[entry.field] = LoadText(language, entry.textId);
    return content;
}

void StatusControl::ShowFields() {
    if (view_.Show(Content(), ClientSize())) Control::Invalidate();
}

}  // namespace qz
