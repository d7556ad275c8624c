#include "ui/property_image.h"

#include <gtest/gtest.h>

#include <limits>

namespace qz {
namespace {

std::vector<StoredProperty> Sample() {
    return {{u"Smallest", std::numeric_limits<std::int64_t>::min()},
            {u"Colour", std::int64_t{0x80000005}},
            {u"Ratio", -0.125},
            {u"On", true},
            {u"Caption", std::u16string(u"Seite \u9801 \U0001F4C4\0!", 13)},
            {u"", std::u16string()}};
}

std::vector<StoredProperty> Decode(std::span<const std::byte> image) {
    if (image.size() < propertyImageHeaderSize) throw BadPropertyImage(BadPropertyImage::Reason::damaged);
    const PropertyImageHeader header = DecodeHeader(image.first<propertyImageHeaderSize>());
    return DecodeBody(header, image.subspan(propertyImageHeaderSize));
}

BadPropertyImage::Reason ReasonFor(std::span<const std::byte> image) {
    try {
        Decode(image);
    } catch (const BadPropertyImage& bad) {
        return bad.reason;
    }
    ADD_FAILURE() << "accepted";
    return {};
}

TEST(PropertyImage, GivesBackWhatWasStored) {
    EXPECT_EQ(Decode(EncodeProperties(Sample())), Sample());
    EXPECT_TRUE(Decode(EncodeProperties({})).empty());
}

TEST(PropertyImage, HasAFixedLayout) {
    const std::vector<StoredProperty> one = {{u"A", std::int64_t{0x0102}}};
    const std::vector<unsigned char> expected = {'Q', 'Z', 'C', 'P', 1, 0, 1, 0, 13, 0, 0, 0, 1,
                                                 0,   'A', 0,   0,   2, 1, 0, 0, 0,  0, 0, 0};
    std::vector<unsigned char> bytes;
    for (const std::byte byte : EncodeProperties(one)) bytes.push_back(std::to_integer<unsigned char>(byte));
    EXPECT_EQ(bytes, expected);
}

TEST(PropertyImage, RefusesEveryPrefixAndAnythingAfterTheEnd) {
    std::vector<std::byte> image = EncodeProperties(Sample());
    for (size_t length = 0; length < image.size(); ++length) {
        EXPECT_EQ(ReasonFor(std::span(image).first(length)), BadPropertyImage::Reason::damaged) << length;
    }
    image.push_back(std::byte{0});
    EXPECT_EQ(ReasonFor(image), BadPropertyImage::Reason::damaged);
}

TEST(PropertyImage, TellsForeignFromNewer) {
    std::vector<std::byte> image = EncodeProperties(Sample());
    image[4] = std::byte{2};
    EXPECT_EQ(ReasonFor(image), BadPropertyImage::Reason::newerVersion);
    image[4] = std::byte{0};
    EXPECT_EQ(ReasonFor(image), BadPropertyImage::Reason::notOurs);
    image[4] = std::byte{1};
    image[0] = std::byte{'q'};
    EXPECT_EQ(ReasonFor(image), BadPropertyImage::Reason::notOurs);
}

// Whatever a byte is changed to, the image is read or refused within its bounds (the sanitizers watch).
TEST(PropertyImage, SurvivesEveryChangedByte) {
    const std::vector<std::byte> image = EncodeProperties(Sample());
    for (size_t at = 0; at < image.size(); ++at) {
        for (const int value : {0x00, 0x01, 0x7F, 0x80, 0xFF}) {
            std::vector<std::byte> changed = image;
            changed[at] = static_cast<std::byte>(value);
            try {
                EXPECT_EQ(Decode(changed).size(), Sample().size());
            } catch (const BadPropertyImage&) {
            }
        }
    }
}

TEST(PropertyImage, RefusesWhatDoesNotFitTheFormat) {
    const std::vector<StoredProperty> longName = {{std::u16string(70000, u'n'), true}};
    EXPECT_THROW(EncodeProperties(longName), BadPropertyImage);
    const std::vector<StoredProperty> longText = {{u"T", std::u16string(maxPropertyImageBody / 2, u't')}};
    EXPECT_THROW(EncodeProperties(longText), BadPropertyImage);
}

}  // namespace
}  // namespace qz
