#include "properties/editors/edited_attribute.h"

#include "host/array_elements.h"
#include "host/attributes.h"

#include <algorithm>

namespace qz {

namespace {

/// What UpdateView is told after attributes were written.
constexpr long attributesChanged = 1024;

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

void RecordOthers(const EditedAttribute& edited, const std::wstring& name, const Targets& targets) {
    if (!edited.changes) return;
    for (const ComPtr<IDispatch>& object : targets.others) {
        Record(edited, name, object, edited.members->objects.Attribute(object.Get(), name));
    }
}

void ShowChange(const EditedAttribute& edited) {
    ThrowIfFailed(edited.host->UpdateView(attributesChanged, 1), L"The host does not update its view");
    edited.members->objects.Refresh(edited.object.Get());
}

}  // namespace

AttributeValues ReadValues(const EditedAttribute& edited) {
    HostMembers& members = *edited.members;
    AttributeValues values;
    values.value = members.attributes.Value(edited.attribute.Get());
    const Targets targets = FindTargets(edited);
    if (targets.others.empty()) return values;
    values.members.push_back({edited.object, values.value});
    for (const ComPtr<IDispatch>& object : targets.others) {
        values.members.push_back({object, members.objects.Attribute(object.Get(), edited.row.name)});
    }
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
        RecordOthers(edited, name, targets);
        ThrowIfFailed(edited.host->SetSelectionAttribute(Bstr(name).Get(), value, 1),
                      L"The host does not take the value for the selected objects");
    } else {
        const DrawnAtOnce drawn(members.objects, edited.object.Get());
        members.attributes.SetValue(edited.attribute.Get(), value);
    }
    ShowChange(edited);
}

void WriteEach(const EditedAttribute& edited, const std::vector<MemberValue>& values) {
    HostObjects& objects = edited.members->objects;
    const std::wstring& name = edited.row.name;
    for (const MemberValue& member : values) {
        if (edited.changes) Record(edited, name, member.object, objects.Attribute(member.object.Get(), name));
        const DrawnAtOnce drawn(objects, member.object.Get());
        objects.SetAttribute(member.object.Get(), name, member.value);
    }
    ShowChange(edited);
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
        return one.vt == other.vt && std::ranges::equal(ElementsOf(one), ElementsOf(other), same);
    }
    if (one.vt == VT_DISPATCH || other.vt == VT_DISPATCH) {
        const ComPtr<IDispatch> object = ObjectOf(one), otherObject = ObjectOf(other);
        if (object == otherObject || !object || !otherObject) return object == otherObject;
        bool same = false;
        Guard(IID_NULL, [&] { same = objects.Path(object.Get()) == objects.Path(otherObject.Get()); });
        return same;
    }
    const bool none = one.vt == VT_EMPTY || one.vt == VT_NULL;
    const bool otherNone = other.vt == VT_EMPTY || other.vt == VT_NULL;
    if (none || otherNone) return none && otherNone;
    return VarCmp(const_cast<VARIANT*>(&one), const_cast<VARIANT*>(&other), LOCALE_INVARIANT, 0) ==
           static_cast<HRESULT>(VARCMP_EQ);
}

}  // namespace qz
