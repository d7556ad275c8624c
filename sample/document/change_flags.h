// The bits of the host's change flags. docs/host-contract.md tells what the panes do on each.
#pragma once

#include <cstdint>

namespace qz::sample::change {

constexpr uint32_t none = 0;
constexpr uint32_t mode = 0x1;
constexpr uint32_t selection = 0x2;
constexpr uint32_t objects = 0x10;  // objects of a page were added, removed or moved
constexpr uint32_t currentPage = 0x20;
constexpr uint32_t view = 0x40;   // zoomed or scrolled
constexpr uint32_t pages = 0x80;  // pages were added, removed or moved
constexpr uint32_t pageSize = 0x100;
constexpr uint32_t documentSettings = 0x200;  // document information, security, fonts, options
constexpr uint32_t attribute = 0x400;         // an attribute of an object was written
constexpr uint32_t layers = 0x4000;           // a layer was shown or hidden
constexpr uint32_t outline = 0x8000;
constexpr uint32_t newDocument =
    mode | selection | currentPage | view | pages | pageSize | documentSettings | layers | outline;

}  // namespace qz::sample::change
