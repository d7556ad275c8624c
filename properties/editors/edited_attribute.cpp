#include "properties/editors/edited_attribute.h"

#include "host/array_elements.h"
#include "host/attributes.h"
#include "host/change_flags.h"

#include "ui/window.h"

#include <algorithm>
#include <optional>

namespace qz {

namespace {

/// Sets an object's redraw state for a scope and sets it back to what it was.
class DrawnAtOnce {
  public:
    DrawnAtOnce(HostObjects& objects, IDispatch* object)
        : objects_(objects), object_(object), before_(objects.Redraw(object)) {
        objects_.SetRedraw(object_.Get(), 1);
    }
    ~DrawnAtOnce() {
        // The value is written or refused by now; there is nobody to tell of the state.
        Guard(IID_NULL, [this] { objects_.SetRedraw(object_.Get(), before_); });
    }
    DrawnAtOnce(const DrawnAtOnce&) = delete;
    DrawnAtOnce& operator=(const DrawnAtOnce&) = delete;

  private:
    HostObjects& objects_;
    ComPtr<IDispatch> object_;
    long before_;
};

long SelectionCount(IVandraX* host) {
    long count = 0;
    ThrowIfFailed(host->GetSelectionCount(&count), L"The host does not tell how many objects are selected");
    return count;
}

bool IsUnknownMember(HRESULT code) noexcept {
    return code == DISP_E_UNKNOWNNAME || code == DISP_E_MEMBERNOTFOUND || code == E_NOTIMPL;
}

std::vector<ComPtr<IDispatch>> ElementsOfSelection(const _variant_t& selection) {
    const ComPtr<IDispatch> collection = ObjectOf(selection);
    if (!collection) return ObjectsOf(selection);
    std::vector<ComPtr<IDispatch>> objects;
    ForEachItem(collection.Get(), [&](const VARIANT& item) {
        if (ComPtr<IDispatch> object = ObjectOf(item)) objects.push_back(std::move(object));
        return true;
    });
    return objects;
}

/// The selected objects; nothing when the host does not offer them.
std::optional<std::vector<ComPtr<IDispatch>>> SelectedObjects(const EditedAttribute& edited) {
    ComPtr<IDispatch> host;
    ThrowIfFailed(edited.host.As(&host));
    try {
        return ElementsOfSelection(edited.members->selectedObjects.Get(host.Get()));
    } catch (const ComError& error) {
        if (IsUnknownMember(error.code)) return std::nullopt;
        throw;
    }
}

/// Who is written to: the inspected object alone, all that are selected, or all that are selected but the
/// host does not tell which.
struct Targets {
    bool several = false;
    std::vector<ComPtr<IDispatch>> others;  ///< Besides the inspected object.
};

Targets FindTargets(const EditedAttribute& edited) {
    Targets targets;
    if (SelectionCount(edited.host.Get()) < 2) return targets;
    const auto selected = SelectedObjects(edited);
    targets.several = true;
    if (!selected) return targets;
    HostObjects& objects = edited.members->objects;
    const std::wstring inspected = objects.Path(edited.object.Get());
    for (const ComPtr<IDispatch>& object : *selected) {
        if (objects.Path(object.Get()) != inspected) targets.others.push_back(object);
    }
    // An object that is inspected without being selected is edited alone.
    if (targets.others.size() == selected->size()) return {};
    return targets;
}

void Record(const EditedAttribute& edited, const std::wstring& name, const ComPtr<IDispatch>& object,
            const _variant_t& oldValue) {
    if (edited.changes) edited.changes->Add({object, name, oldValue});
}

/// Of the other objects those that have the attribute.
std::vector<MemberValue> ReadOthers(const EditedAttribute& edited, const std::wstring& name,
                                    const Targets& targets) {
    std::vector<MemberValue> values;
    for (const ComPtr<IDispatch>& object : targets.others) {
        try {
            values.push_back({object, edited.members->objects.Attribute(object.Get(), name)});
        } catch (const ComError& error) {
            if (!IsUnknownMember(error.code)) throw;
        }
    }
    return values;
}

/// The value is written by now: a failure is no failure to write.
void ShowChange(const EditedAttribute& edited) {
    const HRESULT outcome = Guard(IID_NULL, [&] {
        ThrowIfFailed(edited.host->UpdateView(change::attribute, 1), L"The host does not update its view");
        edited.members->objects.Refresh(edited.object.Get());
    });
    if (FAILED(outcome)) ShowErrorInDebugger();
}

void WriteAlone(const EditedAttribute& edited, const _variant_t& value) {
    const DrawnAtOnce drawn(edited.members->objects, edited.object.Get());
    edited.members->attributes.SetValue(edited.attribute.Get(), value);
}

void WriteSelection(const EditedAttribute& edited, const std::wstring& name, const _variant_t& value) {
    SetErrorInfo(0, nullptr);  // so that what is there afterwards is the host's
    const HRESULT outcome = edited.host->SetSelectionAttribute(Bstr(name).Get(), value, 1);
    if (FAILED(outcome)) Rethrow(outcome, TakeErrorText(outcome));
}

/// The inspected object and those others that have the attribute: a host writes a whole selection or nothing
/// of it.
void WriteThose(const EditedAttribute& edited, const std::wstring& name,
                const std::vector<MemberValue>& others, const _variant_t& value) {
    WriteAlone(edited, value);
    HostObjects& objects = edited.members->objects;
    for (const MemberValue& other : others) {
        const DrawnAtOnce drawn(objects, other.object.Get());
        objects.SetAttribute(other.object.Get(), name, value);
    }
}

/// As far as the host tells: as many objects are, and the inspected one is the current one.
bool AreStillSelected(const EditedAttribute& edited, long count) {
    if (count == 0 || SelectionCount(edited.host.Get()) != count) return false;
    _variant_t current;
    if (FAILED(edited.host->GetCurrentObject(&current))) return false;
    const ComPtr<IDispatch> object = ObjectOf(current);
    HostObjects& objects = edited.members->objects;
    return object && objects.Path(object.Get()) == objects.Path(edited.object.Get());
}

/// Each object's own value; the first failure is thrown once all were tried.
void WriteEach(const EditedAttribute& edited, const std::vector<MemberValue>& values) {
    HostObjects& objects = edited.members->objects;
    const std::wstring& name = edited.row.name;
    std::optional<ComError> failure;
    for (const MemberValue& member : values) {
        try {
            Record(edited, name, member.object, objects.Attribute(member.object.Get(), name));
            const DrawnAtOnce drawn(objects, member.object.Get());
            objects.SetAttribute(member.object.Get(), name, member.value);
        } catch (const ComError& error) {
            if (!failure) failure = error;
        }
    }
    ShowChange(edited);
    if (failure) throw ComError(*failure);
}

void WriteInspected(const EditedAttribute& edited, const _variant_t& value) {
    Record(edited, edited.row.name, edited.object, edited.members->attributes.Value(edited.attribute.Get()));
    WriteAlone(edited, value);
    ShowChange(edited);
}

/// A host may give out a new reference each time: then the path tells.
bool SameHostObject(HostObjects& objects, const ComPtr<IDispatch>& one, const ComPtr<IDispatch>& other) {
    if (SameObject(one, other)) return true;
    if (!one || !other) return false;
    bool same = false;
    Guard(IID_NULL, [&] {
        const std::wstring path = objects.Path(one.Get());
        same = !path.empty() && path == objects.Path(other.Get());
    });
    return same;
}

}  // namespace

AttributeValues ReadValues(const EditedAttribute& edited) {
    HostMembers& members = *edited.members;
    AttributeValues values;
    values.value = members.attributes.Value(edited.attribute.Get());
    const Targets targets = FindTargets(edited);
    if (targets.several && targets.others.empty()) values.untold = SelectionCount(edited.host.Get());
    if (targets.others.empty()) return values;
    values.members = ReadOthers(edited, edited.row.name, targets);
    values.members.insert(values.members.begin(), {edited.object, values.value});
    values.differ = std::ranges::any_of(values.members, [&](const MemberValue& member) {
        return !SameValue(members.objects, member.value, values.value);
    });
    return values;
}

void WriteBack(const EditedAttribute& edited, const _variant_t& value) {
    if (!edited.attribute) return;
    HostMembers& members = *edited.members;
    const std::wstring name = members.attributes.Name(edited.attribute.Get());
    if (edited.changes) Record(edited, name, edited.object, members.attributes.Value(edited.attribute.Get()));
    const Targets targets = FindTargets(edited);
    if (targets.several) {
        const std::vector<MemberValue> others = ReadOthers(edited, name, targets);
        for (const MemberValue& other : others) Record(edited, name, other.object, other.value);
        if (others.size() == targets.others.size())
            WriteSelection(edited, name, value);
        else
            WriteThose(edited, name, others, value);
    } else {
        WriteAlone(edited, value);
    }
    ShowChange(edited);
}

void WriteInto(const EditedAttribute& edited, const AttributeValues& opened, const _variant_t& value) {
    if (AreStillSelected(edited, opened.untold)) return WriteBack(edited, value);
    if (opened.members.empty()) return WriteInspected(edited, value);
    std::vector<MemberValue> values = opened.members;
    for (MemberValue& member : values) member.value = value;
    WriteEach(edited, values);
}

void WriteOpened(const EditedAttribute& edited, const AttributeValues& opened) {
    if (opened.members.empty()) return WriteInspected(edited, opened.value);
    WriteEach(edited, opened.members);
}

void TakeBack(HostMembers& members, const AttributeChange& change) {
    try {
        members.objects.SetAttribute(change.object.Get(), change.name, change.oldValue);
    } catch (const ComError&) {
        const bool gone = FAILED(Guard(IID_NULL, [&] { members.objects.Path(change.object.Get()); }));
        if (!gone) throw;
    }
}

bool SameValue(HostObjects& objects, const VARIANT& one, const VARIANT& other) {
    if ((one.vt & VT_ARRAY) || (other.vt & VT_ARRAY)) {
        const auto same = [&](const VARIANT& a, const VARIANT& b) { return SameValue(objects, a, b); };
        bool equal = false;  // and what is no list is like no other
        Guard(IID_NULL, [&] {
            equal = one.vt == other.vt && std::ranges::equal(ElementsOf(one), ElementsOf(other), same);
        });
        return equal;
    }
    if (one.vt == VT_DISPATCH || other.vt == VT_DISPATCH) {
        return SameHostObject(objects, ObjectOf(one), ObjectOf(other));
    }
    const bool none = one.vt == VT_EMPTY || one.vt == VT_NULL;
    const bool otherNone = other.vt == VT_EMPTY || other.vt == VT_NULL;
    if (none || otherNone) return none && otherNone;
    return VarCmp(const_cast<VARIANT*>(&one), const_cast<VARIANT*>(&other), LOCALE_INVARIANT, 0) ==
           static_cast<HRESULT>(VARCMP_EQ);
}

}  // namespace qz
