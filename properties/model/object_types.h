// The names of the host's object types.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qz {

struct ObjectTypeName {
    int number = 0;
    std::wstring name;

    bool operator==(const ObjectTypeName&) const = default;
};

/// Read from a text of the form "/1Line/2Frame". Pieces without number or name are skipped.
class ObjectTypeNames {
  public:
    explicit ObjectTypeNames(std::wstring_view text);

    /// Empty for a number that is not listed; the first name of one that is listed twice.
    std::wstring NameOf(int number) const;
    /// As listed.
    const std::vector<ObjectTypeName>& Pairs() const noexcept { return pairs_; }

  private:
    std::vector<ObjectTypeName> pairs_;
};

}  // namespace qz
