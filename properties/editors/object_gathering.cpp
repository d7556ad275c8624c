#include "properties/editors/object_gathering.h"

#include "host/attributes.h"
#include "host/host_calls.h"
#include "host/object_path.h"
#include "properties/editors/shown_value.h"

#include <unordered_set>

namespace qz {

namespace {

bool IsFieldType(std::int64_t type) noexcept {
    constexpr std::int64_t field = 6, checkBox = 21, selection = 24;
    return type == field || type == checkBox || type == selection;
}

class Gathering {
  public:
    explicit Gathering(const EditedAttribute& edited) : host_(edited.host), members_(edited.members) {}

    void AddFormFields() {
        for (const auto& field : ObjectsIn(ReadAttribute(host_.Get(), documentPath, L"FormFields"))) {
            Add(field);
        }
    }

    void AddPages(bool fieldsOnly) {
        const long pages = PageCountOf(host_.Get());
        for (long page = 1; page <= pages; ++page) {
            for (const auto& object : ObjectsIn(ReadAttribute(host_.Get(), PagePath(page), L"Objects"))) {
                if (!fieldsOnly || IsField(object.Get())) Add(object);
            }
        }
    }

    std::vector<ListedObject> Take() noexcept { return std::move(list_); }

  private:
    bool IsField(IDispatch* object) const {
        const auto type = ShownInteger(members_->objects.Attribute(object, L"ObjectType"));
        return type && IsFieldType(*type);
    }

    void Add(const ComPtr<IDispatch>& object) {
        std::wstring path = members_->objects.Path(object.Get());
        if (!known_.insert(path).second) return;
        std::wstring label = members_->objects.Name(object.Get());
        if (label.empty()) label = path;
        list_.push_back({object, std::move(path), std::move(label)});
    }

    ComPtr<IVandraX> host_;
    std::shared_ptr<HostMembers> members_;
    std::unordered_set<std::wstring> known_;
    std::vector<ListedObject> list_;
};

}  // namespace

std::vector<ListedObject> GatherObjects(const EditedAttribute& edited, bool fieldsOnly) {
    Gathering gathering(edited);
    Guard(IID_NULL, [&] { gathering.AddFormFields(); });
    Guard(IID_NULL, [&] { gathering.AddPages(fieldsOnly); });
    return gathering.Take();
}

}  // namespace qz
