// Values of attributes, and the conversions that an attribute's type code asks for.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace qz::sample {

using ObjectId = uint32_t;
using PageId = uint32_t;

/// References to objects of the same document.
struct ObjectList {
    std::vector<ObjectId> ids;
    bool operator==(const ObjectList&) const = default;
};

using NumberList = std::vector<int32_t>;
using Value =
    std::variant<std::monostate, bool, int16_t, int32_t, float, double, std::wstring, NumberList, ObjectList>;

/// An attribute's type code: the kind of its value and of its editor.
namespace type_code {
constexpr uint32_t int16 = 2;
constexpr uint32_t int32 = 3;
constexpr uint32_t real = 4;
constexpr uint32_t boolean = 11;
constexpr uint32_t text = 14;
constexpr uint32_t format = 15;
constexpr uint32_t wholeChoice = 512;
constexpr uint32_t colour = 513;
constexpr uint32_t font = 514;
constexpr uint32_t file = 515;
constexpr uint32_t shortList = 8194;
constexpr uint32_t longList = 8195;
constexpr uint32_t lines = 8196;
constexpr uint32_t realChoice = 8197;
constexpr uint32_t expression = 8198;
constexpr uint32_t metadata = 8199;
constexpr uint32_t objects = 8201;
constexpr uint32_t databaseField = 8711;
}  // namespace type_code

/// What a failed access to an object or an attribute is about.
enum class AccessFailure { NoSuchObject, NoSuchAttribute, ReadOnly, BadValue, NotAllowed };

struct AccessError : std::runtime_error {
    AccessError(AccessFailure about, const char* text) : std::runtime_error(text), failure(about) {}
    AccessFailure failure;
};

/// The number a value stands for, texts included; empty when it stands for none.
std::optional<double> AsNumber(const Value& value);

/// The number, rounded; throws AccessError (BadValue) when there is none or it exceeds 32 bits.
int32_t ToInteger(const Value& value);

/// True for numbers other than 0 and for the text "True" in any case; throws AccessError (BadValue).
bool ToBoolean(const Value& value);

/// Any value as a text; numbers with a full stop, lists separated by "; ", no value as an empty text.
std::wstring ToText(const Value& value);

/// The numbers of a list, or of a text in which blanks, commas or semicolons separate them.
NumberList ToNumbers(const Value& value);

/// The value in the form that the type code asks for; throws AccessError (BadValue).
Value Coerced(const Value& value, uint32_t type);

}  // namespace qz::sample
