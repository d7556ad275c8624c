#include "ui/property_image.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <type_traits>

namespace qz {

namespace {

using Reason = BadPropertyImage::Reason;

constexpr std::array<char, 4> signature = {'Q', 'Z', 'C', 'P'};
constexpr std::uint16_t currentVersion = 1;

enum class Kind : std::uint8_t { integer, real, boolean, text };

class Writer {
  public:
    template <class T>
    void Number(T value) {
        auto left = static_cast<std::make_unsigned_t<T>>(value);
        for (std::size_t i = 0; i < sizeof(T); ++i) {
            bytes_.push_back(static_cast<std::byte>(left & 0xFF));
            left = static_cast<std::make_unsigned_t<T>>(static_cast<std::uint64_t>(left) >> 8);
        }
    }

    template <class Length>
    void Text(const std::u16string& text) {
        if (text.size() > std::numeric_limits<Length>::max()) throw BadPropertyImage(Reason::damaged);
        Number(static_cast<Length>(text.size()));
        for (const char16_t unit : text) Number(static_cast<std::uint16_t>(unit));
    }

    std::vector<std::byte> Take() { return std::move(bytes_); }

  private:
    std::vector<std::byte> bytes_;
};

class Reader {
  public:
    explicit Reader(std::span<const std::byte> bytes) : left_(bytes) {}

    template <class T>
    T Number() {
        const auto bytes = Take(sizeof(T));
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < sizeof(T); ++i)
            value |= std::to_integer<std::uint64_t>(bytes[i]) << (8 * i);
        return static_cast<T>(value);
    }

    template <class Length>
    std::u16string Text() {
        const std::size_t length = Number<Length>();
        // Checked before room is made for it: the length may be anything.
        if (length > left_.size() / sizeof(char16_t)) throw BadPropertyImage(Reason::damaged);
        std::u16string text(length, u'\0');
        for (char16_t& unit : text) unit = static_cast<char16_t>(Number<std::uint16_t>());
        return text;
    }

    bool AtEnd() const noexcept { return left_.empty(); }

  private:
    std::span<const std::byte> Take(std::size_t count) {
        if (left_.size() < count) throw BadPropertyImage(Reason::damaged);
        const auto taken = left_.first(count);
        left_ = left_.subspan(count);
        return taken;
    }

    std::span<const std::byte> left_;
};

struct ValueWriter {
    void Head(Kind kind) const { writer.Number(static_cast<std::uint8_t>(kind)); }

    void operator()(std::int64_t value) const {
        Head(Kind::integer);
        writer.Number(value);
    }
    void operator()(double value) const {
        Head(Kind::real);
        writer.Number(std::bit_cast<std::uint64_t>(value));
    }
    void operator()(bool value) const {
        Head(Kind::boolean);
        writer.Number(static_cast<std::uint8_t>(value ? 1 : 0));
    }
    void operator()(const std::u16string& value) const {
        Head(Kind::text);
        writer.Text<std::uint32_t>(value);
    }

    Writer& writer;
};

StoredValue ReadValue(Reader& reader) {
    switch (static_cast<Kind>(reader.Number<std::uint8_t>())) {
        case Kind::integer:
            return reader.Number<std::int64_t>();
        case Kind::real:
            return std::bit_cast<double>(reader.Number<std::uint64_t>());
        case Kind::boolean:
            return reader.Number<std::uint8_t>() != 0;
        case Kind::text:
            return reader.Text<std::uint32_t>();
    }
    throw BadPropertyImage(Reason::damaged);
}

std::vector<std::byte> EncodeBody(std::span<const StoredProperty> properties) {
    Writer writer;
    for (const StoredProperty& property : properties) {
        writer.Text<std::uint16_t>(property.name);
        std::visit(ValueWriter{writer}, property.value);
    }
    return writer.Take();
}

}  // namespace

std::vector<std::byte> EncodeProperties(std::span<const StoredProperty> properties) {
    const std::vector<std::byte> body = EncodeBody(properties);
    if (properties.size() > std::numeric_limits<std::uint16_t>::max() || body.size() > maxPropertyImageBody) {
        throw BadPropertyImage(Reason::damaged);
    }
    Writer writer;
    for (const char letter : signature) writer.Number(static_cast<std::uint8_t>(letter));
    writer.Number(currentVersion);
    writer.Number(static_cast<std::uint16_t>(properties.size()));
    writer.Number(static_cast<std::uint32_t>(body.size()));
    std::vector<std::byte> image = writer.Take();
    image.insert(image.end(), body.begin(), body.end());
    return image;
}

PropertyImageHeader DecodeHeader(std::span<const std::byte, propertyImageHeaderSize> header) {
    Reader reader(header);
    for (const char letter : signature) {
        if (reader.Number<std::uint8_t>() != static_cast<std::uint8_t>(letter)) {
            throw BadPropertyImage(Reason::notOurs);
        }
    }
    const auto version = reader.Number<std::uint16_t>();
    if (version == 0) throw BadPropertyImage(Reason::notOurs);
    if (version > currentVersion) throw BadPropertyImage(Reason::newerVersion);
    PropertyImageHeader result{};
    result.count = reader.Number<std::uint16_t>();
    result.bodySize = reader.Number<std::uint32_t>();
    if (result.bodySize > maxPropertyImageBody) throw BadPropertyImage(Reason::damaged);
    return result;
}

std::vector<StoredProperty> DecodeBody(const PropertyImageHeader& header, std::span<const std::byte> body) {
    if (body.size() != header.bodySize) throw BadPropertyImage(Reason::damaged);
    Reader reader(body);
    std::vector<StoredProperty> properties;
    for (unsigned i = 0; i < header.count; ++i) {
        std::u16string name = reader.Text<std::uint16_t>();
        properties.push_back({std::move(name), ReadValue(reader)});
    }
    if (!reader.AtEnd()) throw BadPropertyImage(Reason::damaged);
    return properties;
}

}  // namespace qz
