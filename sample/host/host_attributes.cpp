#include "sample/host/host_attributes.h"

#include "com/enumerator.h"
#include "sample/host/variant_value.h"

#include <comdef.h>

namespace qz::sample {

namespace {

class HostAttribute : public Object<HostAttribute, Dispatch<IHostAttribute>> {
  public:
    HostAttribute(ObjectReference object, DescriptionPointer description, long index)
        : object_(std::move(object)), description_(std::move(description)), index_(index) {
        ShareTypeInfo(Session().TypeInfoOf(IID_IHostAttribute));
    }

    /// The module tells attribute objects by the interface that they extend.
    STDMETHODIMP QueryInterface(REFIID iid, void** result) override {
        return Object::QueryInterface(iid == IID_IVandraAttribute ? IID_IHostAttribute : iid, result);
    }

    STDMETHODIMP get_Category(long* category) override {
        return Read(category, [&] { return static_cast<long>(description_->category); });
    }
    STDMETHODIMP get_Flags(long* flags) override {
        return Read(flags, [&] { return static_cast<long>(description_->flags); });
    }
    STDMETHODIMP get_Name(BSTR* name) override {
        return Read(name, [&] { return MakeText(description_->name); });
    }
    STDMETHODIMP get_Index(long* index) override {
        return Read(index, [&] { return index_; });
    }
    STDMETHODIMP get_Type(long* type) override {
        return Read(type, [&] { return static_cast<long>(description_->type); });
    }
    STDMETHODIMP get_Description(BSTR* description) override {
        return Read(description, [&] { return MakeText(description_->description); });
    }

    STDMETHODIMP get_Value(VARIANT* value) override {
        return Session().Call(LateBound::AttributeValue, IID_IHostAttribute, [&] {
            RequirePointer(value);
            VariantInit(value);
            if (Session().ReadOverride(object_.Key(), description_->name, value)) return;
            PutValue(ReadAttribute(object_.Model().Doc(), object_.Key(), description_->name), Session(),
                     value);
        });
    }

    STDMETHODIMP put_Value(VARIANT value) override {
        return Session().Call(
            LateBound::AttributeValue, IID_IHostAttribute,
            [&] {
                HostModel& model = object_.Model();
                const ObjectKey key = object_.Key();
                model.Write(key, description_->name, ValueOf(value, model.Doc()));
                Session().Settle(model.DrawsAtOnce(key));
            },
            value);
    }

    STDMETHODIMP get_Choices(VARIANT* labels) override {
        return Session().Call(LateBound::AttributeReading, IID_IHostAttribute, [&] {
            RequirePointer(labels);
            VariantInit(labels);
            if (!description_->choices.empty()) PutTexts(Split(description_->choices), labels);
        });
    }

  private:
    HostSession& Session() const { return object_.Session(); }

    template <class Slot, class Reading>
    HRESULT Read(Slot* slot, Reading&& reading) {
        return Session().Call(LateBound::AttributeReading, IID_IHostAttribute, [&] {
            RequirePointer(slot);
            *slot = {};
            *slot = reading();
        });
    }

    static std::vector<std::wstring> Split(const std::wstring& choices) {
        std::vector<std::wstring> labels;
        for (size_t at = 0; at <= choices.size();) {
            const size_t end = std::min(choices.find(L'|', at), choices.size());
            labels.push_back(choices.substr(at, end - at));
            at = end + 1;
        }
        return labels;
    }

    ObjectReference object_;
    DescriptionPointer description_;
    long index_;
};

class HostAttributes : public Object<HostAttributes, Dispatch<IHostAttributes>> {
  public:
    HostAttributes(const ObjectReference& object, std::vector<DescriptionPointer> descriptions)
        : object_(object), descriptions_(std::move(descriptions)) {}

    STDMETHODIMP get_Count(long* count) override {
        return object_.Session().Call(LateBound::AttributesCount, IID_IHostAttributes, [&] {
            RequirePointer(count);
            *count = static_cast<long>(descriptions_.size());
        });
    }

    STDMETHODIMP get_Item(long index, IDispatch** attribute) override {
        return object_.Session().Call(
            LateBound::AttributesItem, IID_IHostAttributes,
            [&] {
                RequirePointer(attribute);
                *attribute = nullptr;
                const bool there = index >= 0 && static_cast<size_t>(index) < descriptions_.size();
                if (!there) Throw(DISP_E_BADINDEX, L"There is no attribute at that index");
                *attribute = Make(static_cast<size_t>(index)).Detach();
            },
            index);
    }

    STDMETHODIMP get__NewEnum(IUnknown** enumerator) override {
        return object_.Session().Call(LateBound::AttributesNewEnum, IID_IHostAttributes, [&] {
            RequirePointer(enumerator);
            *enumerator = nullptr;
            std::vector<_variant_t> items;
            for (size_t i = 0; i < descriptions_.size(); ++i) items.emplace_back(Make(i).Get());
            using Items = Enumerator<IEnumVARIANT, VARIANT, _variant_t, CopyVariant>;
            *enumerator = static_cast<IEnumVARIANT*>(MakeObject<Items>(std::move(items)).Detach());
        });
    }

  private:
    ComPtr<IDispatch> Make(size_t index) const {
        return MakeAutomationObject<IHostAttribute, HostAttribute>(object_, descriptions_[index],
                                                                   static_cast<long>(index));
    }

    ObjectReference object_;
    std::vector<DescriptionPointer> descriptions_;
};

}  // namespace

ComPtr<IDispatch> MakeHostAttributes(const ObjectReference& object) {
    return MakeAutomationObject<IHostAttributes, HostAttributes>(
        object, DescribeAttributes(object.Model().Doc(), object.Key()));
}

}  // namespace qz::sample
