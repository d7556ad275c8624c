// An attribute of a host object that is being edited, and what is needed to write it.
#pragma once

#include "host/host_objects.h"
#include "properties/model/attribute_row.h"
#include "properties/model/change_list.h"

#include "generated/vandra_x.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qz {

/// Enough to take one write back.
struct AttributeChange {
    ComPtr<IDispatch> object;
    std::wstring name;
    _variant_t oldValue;
};

class AttributeChanges : public ChangeList<AttributeChange> {};

/// The members of one host's objects that are called by name.
struct HostMembers {
    HostObjects objects;
    HostAttributes attributes;
    LateBoundMember selectedObjects{L"SelectedObjects"};
};

struct EditedAttribute {
    ComPtr<IVandraX> host;
    std::shared_ptr<HostMembers> members;
    ComPtr<IDispatch> object;
    ComPtr<IDispatch> attribute;
    AttributeRow row;
    /// Where writes are recorded; null: nowhere.
    std::shared_ptr<AttributeChanges> changes;
};

/// A value of the attribute in one of the objects that are edited together.
struct MemberValue {
    ComPtr<IDispatch> object;
    _variant_t value;
};

/// What an editor starts from.
struct AttributeValues {
    _variant_t value;  ///< Of the inspected object.
    std::vector<MemberValue>
        members;          ///< Of all selected objects that have it, when several are edited together.
    bool differ = false;  ///< The members do not all have the same value.
    /// How many objects are selected and edited together, of which the host does not tell the others; else 0.
    long untold = 0;
};

/// Reads the attribute, and, when the inspected object is one of several selected ones and the host tells
/// which, those of all that have it. Throws the host's failure.
AttributeValues ReadValues(const EditedAttribute& edited);

/// Writes a value into the inspected object, or, when several objects are selected and it is one of them,
/// into all; the old values are recorded first. Nothing to do without an attribute. When it throws the
/// records stay, and the host has taken nothing, or nothing is known of it.
void WriteBack(const EditedAttribute& edited, const _variant_t& value);

/// Writes a value into the objects that `opened` was read of, whatever is selected now, and records the old
/// ones. Goes on after an object that fails, and throws its failure at the end. Objects that the host did not
/// tell are written as long as they look to be selected still.
void WriteInto(const EditedAttribute& edited, const AttributeValues& opened, const _variant_t& value);

/// Writes what was read of each object, likewise. Objects that the host did not tell keep what they have.
void WriteOpened(const EditedAttribute& edited, const AttributeValues& opened);

/// Writes the old value again. An object that is gone has nothing to take back.
void TakeBack(HostMembers& members, const AttributeChange& change);

/// Whether two values are the same, arrays included. Objects are the same when they are one, or lie at the
/// same path; another one that does not tell its path is like none.
bool SameValue(HostObjects& objects, const VARIANT& one, const VARIANT& other);

}  // namespace qz
