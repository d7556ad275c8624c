// The papers that a sheet may be of.
#pragma once

#include "ui/geometry.h"

namespace qz {

struct NUpPaper {
    const wchar_t* name;  ///< The same in every language.
    Size size;            ///< Upright, in twips.
};

/// Records name papers by their place in this list: it may only grow at its end.
inline constexpr NUpPaper nupPapers[] = {
    {L"Letter", {12240, 15840}},    {L"Legal", {12240, 20160}},   {L"Tabloid", {15840, 24480}},
    {L"Executive", {10440, 15120}}, {L"A2", {23811, 33676}},      {L"A3", {16838, 23811}},
    {L"A4", {11906, 16838}},        {L"A5", {8391, 11906}},       {L"A6", {5953, 8391}},
    {L"B4 (JIS)", {14570, 20636}},  {L"B5 (JIS)", {10318, 14570}}};

}  // namespace qz
