// The options of the export to DOCX.
#pragma once

#include "settings/settings_record.h"

#include <cstdint>
#include <string>

namespace qz {

/// Members are named after their keys, without the section; keys without member are in the document only.
class zrDocxSettings final : public zrSettings {
  public:
    zrDocxSettings();

    std::wstring outputFileName;
    std::int32_t pageWidth = 0;   // twips
    std::int32_t pageHeight = 0;  // twips
    bool landscape = false;
    bool fontEmbeddingEnabled = false;
    bool fontEmbeddingPartial = false;
    bool fontEmbeddingEmbedSystemFonts = false;
    bool fontEmbeddingEmbedLicensedFonts = false;
    std::int32_t ocrOptions = 0;
    std::int32_t ocrZoomLevel = 0;
    bool renderAsImageShapesWithClipping = false;
    std::wstring ocrDataFilesLocation;
    std::wstring ocrLanguage;
    std::wstring convertToHyperlinks;
    std::int32_t bookMarkLevels = 0;
    bool merge = false;
    std::uint8_t encryption = 0;
    bool useSystemFonts = false;
    bool useDirectX = false;
    std::int32_t zoom = 0;
    std::int32_t tabStops = 0;
    std::int32_t hfMarginSizeHeader = 0;  // twips
    std::int32_t hfMarginSizeFooter = 0;  // twips
    std::int32_t hfAutomaticResize = 0;   // twips
    std::uint8_t hfAutoDiscoveryPages = 0;
    bool hfGenerateHeader = false;
    bool hfGenerateFooter = false;
    bool useOnlyAbsolutePositioning = false;
    bool useOnlyRelativePositioning = false;
    bool allowDecimalsInFontSize = false;
    bool useDrawingMLForImages = false;
    bool usePageBreaks = false;
    bool useColumnBreaks = false;
    bool useLineBreaks = false;
    std::int32_t ocrFromPdfRenderingMode = 0;
    bool useFramesForShapeGroups = false;
    bool limitBBoxToPageSize = false;
    bool enableNumbering = false;
    bool enableCharacterBullets = false;
    bool enablePictureBullets = false;
    std::int32_t renderAsImageDpi = 0;
    bool removeInvisibleObjects = false;
    bool mergeShapeLines = false;
    bool mergeShapeRectangles = false;
    bool generateUnderlinedText = false;
    bool generateStrikeThroughText = false;
    bool generateHighLightedText = false;
    bool generateHyperlinks = false;
    bool generateTableOfContent = false;
    bool generateTables = false;
    bool autoHyphenation = false;
    bool hideGrammaticalErrors = false;
    bool hideSpellingErrors = false;
    bool rightToLeftText = false;
    bool doNotDisplayPageBoundaries = false;
};

}  // namespace qz
