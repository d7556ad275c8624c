// Type codes by which the host tells what an attribute holds, and the bits that editors look at.
#pragma once

#include <cstdint>

namespace qz::attribute_type {

inline constexpr std::uint32_t int16 = 2;
inline constexpr std::uint32_t int32 = 3;
inline constexpr std::uint32_t real = 4;
inline constexpr std::uint32_t boolean = 11;
inline constexpr std::uint32_t text = 14;
inline constexpr std::uint32_t format = 15;
inline constexpr std::uint32_t wholeChoice = 512;
inline constexpr std::uint32_t colour = 513;
inline constexpr std::uint32_t font = 514;
inline constexpr std::uint32_t file = 515;
inline constexpr std::uint32_t shortList = 8194;
inline constexpr std::uint32_t longList = 8195;
inline constexpr std::uint32_t lines = 8196;
inline constexpr std::uint32_t realChoice = 8197;
inline constexpr std::uint32_t expression = 8198;
inline constexpr std::uint32_t metadata = 8199;
inline constexpr std::uint32_t databaseField = 8711;

/// Both set: a list of objects.
inline constexpr std::uint32_t listBit = 0x2000;
inline constexpr std::uint32_t objectBit = 0x0001;

}  // namespace qz::attribute_type
