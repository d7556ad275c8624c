// The host's objects: the document, its pages, layers, fonts, and what stands on pages.
#pragma once

#include "com/dispatch.h"
#include "generated/reference_host.h"
#include "sample/host/document_streaming.h"
#include "sample/host/host_session.h"

namespace qz::sample {

/// Names one object of a session's document as long as it lives there.
class ObjectReference {
  public:
    ObjectReference(HostSession& session, ObjectKey key)
        : session_(session.shared_from_this()),
          generation_(session.model.Generation()),
          isDocument_(key == DocumentKey()),
          key_(key) {}

    HostSession& Session() const { return *session_; }
    HostModel& Model() const { return session_->model; }

    /// The document itself, whichever the session holds at the time.
    bool IsDocument() const { return isDocument_; }

    /// Throws AccessError (NoSuchObject) when the document has been replaced; whether the object itself is
    /// still there its use will tell.
    ObjectKey Key() const;

  private:
    ObjectKey DocumentKey() const { return {ObjectKey::Kind::Object, session_->model.Doc().Settings()}; }

    std::shared_ptr<HostSession> session_;
    uint32_t generation_;
    bool isDocument_;
    ObjectKey key_;
};

/// An object of the host. The document's also streams it.
class HostObject : public Object<HostObject, Dispatch<IHostObject>, DocumentStreaming> {
  public:
    explicit HostObject(ObjectReference reference) : reference_(std::move(reference)) {
        ShareTypeInfo(reference_.Session().TypeInfoOf(IID_IHostObject));
    }

    STDMETHODIMP QueryInterface(REFIID iid, void** result) override;

    STDMETHODIMP get_Name(BSTR* name) override;
    STDMETHODIMP get_Path(BSTR* path) override;
    STDMETHODIMP get_Attributes(IDispatch** attributes) override;
    STDMETHODIMP get_Attribute(BSTR name, VARIANT* value) override;
    STDMETHODIMP put_Attribute(BSTR name, VARIANT value) override;
    STDMETHODIMP get_Redraw(long* flag) override;
    STDMETHODIMP put_Redraw(long flag) override;
    STDMETHODIMP Refresh() override;
    STDMETHODIMP Update(long redraw) override;

  protected:
    HostSession& Streamed() override { return reference_.Session(); }

  private:
    ObjectReference reference_;
};

ComPtr<IDispatch> MakeHostObject(HostSession& session, ObjectKey key);

}  // namespace qz::sample
