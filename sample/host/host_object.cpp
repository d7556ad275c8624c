#include "sample/host/host_object.h"

#include "sample/host/host_attributes.h"
#include "sample/host/variant_value.h"

namespace qz::sample {

ObjectKey ObjectReference::Key() const {
    if (isDocument_) return DocumentKey();
    if (generation_ == session_->model.Generation()) return key_;
    throw AccessError(AccessFailure::NoSuchObject, "The object belongs to a document that is closed");
}

ComPtr<IDispatch> MakeHostObject(HostSession& session, ObjectKey key) {
    return MakeAutomationObject<IHostObject, HostObject>(ObjectReference(session, key));
}

STDMETHODIMP HostObject::QueryInterface(REFIID iid, void** result) {
    if (!result) return E_POINTER;
    *result = nullptr;
    const bool streams = iid == __uuidof(IPersistStreamInit) || iid == __uuidof(IPersist);
    return streams && !reference_.IsDocument() ? E_NOINTERFACE : Object::QueryInterface(iid, result);
}

STDMETHODIMP HostObject::get_Name(BSTR* name) {
    return reference_.Session().Call(LateBound::ObjectName, IID_IHostObject, [&] {
        RequirePointer(name);
        *name = nullptr;
        *name = MakeText(NameOf(reference_.Model().Doc(), reference_.Key()));
    });
}

STDMETHODIMP HostObject::get_Path(BSTR* path) {
    return reference_.Session().Call(LateBound::ObjectPath, IID_IHostObject, [&] {
        RequirePointer(path);
        *path = nullptr;
        *path = MakeText(PathOf(reference_.Model().Doc(), reference_.Key()));
    });
}

STDMETHODIMP HostObject::get_Attributes(IDispatch** attributes) {
    return reference_.Session().Call(LateBound::ObjectAttributes, IID_IHostObject, [&] {
        RequirePointer(attributes);
        *attributes = nullptr;
        *attributes = MakeHostAttributes(reference_).Detach();
    });
}

STDMETHODIMP HostObject::get_Attribute(BSTR name, VARIANT* value) {
    return reference_.Session().Call(
        LateBound::ObjectAttribute, IID_IHostObject,
        [&] {
            RequirePointer(value);
            VariantInit(value);
            const HostSession& session = reference_.Session();
            if (session.ReadOverride(reference_.Key(), TextView(name), value)) return;
            const Value read = ReadAttribute(reference_.Model().Doc(), reference_.Key(), TextView(name));
            PutValue(read, reference_.Session(), value);
        },
        name);
}

STDMETHODIMP HostObject::put_Attribute(BSTR name, VARIANT value) {
    return reference_.Session().Call(
        LateBound::ObjectAttribute, IID_IHostObject,
        [&] {
            HostModel& model = reference_.Model();
            const ObjectKey key = reference_.Key();
            model.Write(key, TextView(name), ValueOf(value, model.Doc()));
            reference_.Session().Settle(model.DrawsAtOnce(key));
        },
        name, value);
}

STDMETHODIMP HostObject::get_Redraw(long* flag) {
    return reference_.Session().Call(LateBound::ObjectRedraw, IID_IHostObject, [&] {
        RequirePointer(flag);
        *flag = 0;
        *flag = reference_.Model().DrawsAtOnce(reference_.Key()) ? 1 : 0;
    });
}

STDMETHODIMP HostObject::put_Redraw(long flag) {
    return reference_.Session().Call(
        LateBound::ObjectRedraw, IID_IHostObject,
        [&] { reference_.Model().SetDrawsAtOnce(reference_.Key(), flag != 0); }, flag);
}

STDMETHODIMP HostObject::Refresh() {
    return reference_.Session().Call(LateBound::ObjectRefresh, IID_IHostObject, [&] {
        static_cast<void>(PathOf(reference_.Model().Doc(), reference_.Key()));  // fails when it is gone
        if (SessionOwner* owner = reference_.Session().owner) owner->DrawNow();
    });
}

STDMETHODIMP HostObject::Update(long redraw) {
    return reference_.Session().Call(
        LateBound::ObjectUpdate, IID_IHostObject,
        [&] {
            static_cast<void>(PathOf(reference_.Model().Doc(), reference_.Key()));
            reference_.Session().Settle(redraw != 0);
        },
        redraw);
}

}  // namespace qz::sample
