// The bytes in which a control's properties lie in a stream. All numbers are little-endian:
//
//     header    "QZCP", version (16 bits), number of properties (16), bytes that follow (32)
//     property  length of its name (16) and the name in UTF-16, kind (8), value:
//               integer (64), floating point (64), boolean (8), or text: length (32) and UTF-16
#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace qz {

using StoredValue = std::variant<std::int64_t, double, bool, std::u16string>;

struct StoredProperty {
    std::u16string name;
    StoredValue value;

    friend bool operator==(const StoredProperty&, const StoredProperty&) = default;
};

/// The bytes are not what EncodeProperties wrote.
struct BadPropertyImage : std::exception {
    enum class Reason { notOurs, newerVersion, damaged };

    explicit BadPropertyImage(Reason why) noexcept : reason(why) {}
    const char* what() const noexcept override { return "bad property image"; }

    Reason reason;
};

inline constexpr std::size_t propertyImageHeaderSize = 12;
/// No image is longer; a header that says so is damaged.
inline constexpr std::uint32_t maxPropertyImageBody = 1u << 20;

struct PropertyImageHeader {
    std::uint16_t count;
    std::uint32_t bodySize;
};

/// Header and body. Throws BadPropertyImage (damaged) when they exceed what the format can hold.
std::vector<std::byte> EncodeProperties(std::span<const StoredProperty> properties);

/// Both throw BadPropertyImage. A body must hold exactly the properties that the header counts.
PropertyImageHeader DecodeHeader(std::span<const std::byte, propertyImageHeaderSize> header);
std::vector<StoredProperty> DecodeBody(const PropertyImageHeader& header, std::span<const std::byte> body);

}  // namespace qz
