#include "dialogs/docx/docx_fields.h"

#include "res/text_ids.h"

#include <algorithm>
#include <string>

namespace qz {

namespace {

constexpr std::int32_t mostCode = 2147483647;  // what codes mean is the exporter's business
constexpr std::int32_t mostLength = 288000;    // twips: 200 inches

// clang-format off
constexpr SettingField docxFields[] = {
    {L"Standard:OutputFileName", FieldKind::Text, QZ_TEXT_DOCX_STANDARD_OUTPUT_FILE_NAME},
    {L"Standard:PageWidth", FieldKind::Length, QZ_TEXT_DOCX_STANDARD_PAGE_WIDTH, 144, mostLength},
    {L"Standard:PageHeight", FieldKind::Length, QZ_TEXT_DOCX_STANDARD_PAGE_HEIGHT, 144, mostLength},
    {L"Standard:Landscape", FieldKind::Check, QZ_TEXT_DOCX_STANDARD_LANDSCAPE},
    {L"Standard:FontEmbeddingEnabled", FieldKind::Check, QZ_TEXT_DOCX_STANDARD_FONT_EMBEDDING_ENABLED},
    {L"Standard:FontEmbeddingPartial", FieldKind::Check, QZ_TEXT_DOCX_STANDARD_FONT_EMBEDDING_PARTIAL, 0, 0, L"Standard:FontEmbeddingEnabled"},
    {L"Standard:FontEmbeddingEmbedSystemFonts", FieldKind::Check, QZ_TEXT_DOCX_STANDARD_FONT_EMBEDDING_EMBED_SYSTEM_FONTS, 0, 0, L"Standard:FontEmbeddingEnabled"},
    {L"Standard:FontEmbeddingEmbedLicensedFonts", FieldKind::Check, QZ_TEXT_DOCX_STANDARD_FONT_EMBEDDING_EMBED_LICENSED_FONTS, 0, 0, L"Standard:FontEmbeddingEnabled"},
    {L"Standard:OCROptions", FieldKind::Number, QZ_TEXT_DOCX_STANDARD_OCR_OPTIONS, 0, mostCode},
    {L"Standard:OCRZoomLevel", FieldKind::Number, QZ_TEXT_DOCX_STANDARD_OCR_ZOOM_LEVEL, 1, 10000},
    {L"Standard:RenderAsImageShapesWithClipping", FieldKind::Check, QZ_TEXT_DOCX_STANDARD_RENDER_AS_IMAGE_SHAPES_WITH_CLIPPING},
    {L"Standard:OCRDataFilesLocation", FieldKind::Text, QZ_TEXT_DOCX_STANDARD_OCR_DATA_FILES_LOCATION},
    {L"Standard:OCRLanguage", FieldKind::Text, QZ_TEXT_DOCX_STANDARD_OCR_LANGUAGE},
    {L"Standard:ConvertToHyperlinks", FieldKind::Text, QZ_TEXT_DOCX_STANDARD_CONVERT_TO_HYPERLINKS},
    {L"Standard:BookMarkLevels", FieldKind::Number, QZ_TEXT_DOCX_STANDARD_BOOK_MARK_LEVELS, 0, 100},
    {L"Standard:Merge", FieldKind::Check, QZ_TEXT_DOCX_STANDARD_MERGE},
    {L"Standard:Encryption", FieldKind::Number, QZ_TEXT_DOCX_STANDARD_ENCRYPTION, 0, 255},
    {L"Standard:UseSystemFonts", FieldKind::Check, QZ_TEXT_DOCX_STANDARD_USE_SYSTEM_FONTS},
    {L"Standard:UseDirectX", FieldKind::Check, QZ_TEXT_DOCX_STANDARD_USE_DIRECT_X},
    {L"DigitalSignature:Enabled", FieldKind::Check, QZ_TEXT_DOCX_DIGITAL_SIGNATURE_ENABLED},
    {L"DigitalSignature:SignedBy", FieldKind::Text, QZ_TEXT_DOCX_DIGITAL_SIGNATURE_SIGNED_BY},
    {L"DigitalSignature:Reason", FieldKind::Text, QZ_TEXT_DOCX_DIGITAL_SIGNATURE_REASON},
    {L"DigitalSignature:Location", FieldKind::Text, QZ_TEXT_DOCX_DIGITAL_SIGNATURE_LOCATION},
    {L"DocumentProtection:Enabled", FieldKind::Check, QZ_TEXT_DOCX_DOCUMENT_PROTECTION_ENABLED},
    {L"DocumentProtection:Password", FieldKind::Password, QZ_TEXT_DOCX_DOCUMENT_PROTECTION_PASSWORD},
    {L"Configurable:Zoom", FieldKind::Number, QZ_TEXT_DOCX_CONFIGURABLE_ZOOM, 1, 1000},
    {L"Configurable:TabStops", FieldKind::Number, QZ_TEXT_DOCX_CONFIGURABLE_TAB_STOPS, 0, 1000},
    {L"Configurable:HFMarginSizeHeader", FieldKind::Length, QZ_TEXT_DOCX_CONFIGURABLE_HF_MARGIN_SIZE_HEADER, 0, mostLength, L"Configurable:HFGenerateHeader"},
    {L"Configurable:HFMarginSizeFooter", FieldKind::Length, QZ_TEXT_DOCX_CONFIGURABLE_HF_MARGIN_SIZE_FOOTER, 0, mostLength, L"Configurable:HFGenerateFooter"},
    {L"Configurable:HFAutomaticResize", FieldKind::Length, QZ_TEXT_DOCX_CONFIGURABLE_HF_AUTOMATIC_RESIZE, 0, mostLength},
    {L"Configurable:HFAutoDiscoveryPages", FieldKind::Number, QZ_TEXT_DOCX_CONFIGURABLE_HF_AUTO_DISCOVERY_PAGES, 0, 255},
    {L"Configurable:HFGenerateHeader", FieldKind::Check, QZ_TEXT_DOCX_CONFIGURABLE_HF_GENERATE_HEADER},
    {L"Configurable:HFGenerateFooter", FieldKind::Check, QZ_TEXT_DOCX_CONFIGURABLE_HF_GENERATE_FOOTER},
    {L"Special:UseOnlyAbsolutePositioning", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_USE_ONLY_ABSOLUTE_POSITIONING},
    {L"Special:UseOnlyRelativePositioning", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_USE_ONLY_RELATIVE_POSITIONING},
    {L"Special:AllowDecimalsInFontSize", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_ALLOW_DECIMALS_IN_FONT_SIZE},
    {L"Special:UseDrawingMLForImages", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_USE_DRAWINGML_FOR_IMAGES},
    {L"Special:UsePageBreaks", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_USE_PAGE_BREAKS},
    {L"Special:UseColumnBreaks", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_USE_COLUMN_BREAKS},
    {L"Special:UseLineBreaks", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_USE_LINE_BREAKS},
    {L"Special:OCRFromPDFRenderingMode", FieldKind::Number, QZ_TEXT_DOCX_SPECIAL_OCR_FROM_PDF_RENDERING_MODE, 0, mostCode},
    {L"Special:UseFramesForShapeGroups", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_USE_FRAMES_FOR_SHAPE_GROUPS},
    {L"Special:LimitBBoxToPageSize", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_LIMIT_BBOX_TO_PAGE_SIZE},
    {L"Special:EnableNumbering", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_ENABLE_NUMBERING},
    {L"Special:EnableCharacterBullets", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_ENABLE_CHARACTER_BULLETS},
    {L"Special:EnablePictureBullets", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_ENABLE_PICTURE_BULLETS},
    {L"Special:RenderAsImageDPI", FieldKind::Number, QZ_TEXT_DOCX_SPECIAL_RENDER_AS_IMAGE_DPI, 1, 10000},
    {L"Special:RemoveInvisibleObjects", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_REMOVE_INVISIBLE_OBJECTS},
    {L"Special:MergeShapeLines", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_MERGE_SHAPE_LINES},
    {L"Special:MergeShapeRectangles", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_MERGE_SHAPE_RECTANGLES},
    {L"Special:GenerateUnderlinedText", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_GENERATE_UNDERLINED_TEXT},
    {L"Special:GenerateStrikeThroughText", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_GENERATE_STRIKE_THROUGH_TEXT},
    {L"Special:GenerateHighLightedText", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_GENERATE_HIGH_LIGHTED_TEXT},
    {L"Special:GenerateHyperlinks", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_GENERATE_HYPERLINKS},
    {L"Special:GenerateTableOfContent", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_GENERATE_TABLE_OF_CONTENT},
    {L"Special:GenerateTables", FieldKind::Check, QZ_TEXT_DOCX_SPECIAL_GENERATE_TABLES},
    {L"Dynamic:AutoHyphenation", FieldKind::Check, QZ_TEXT_DOCX_DYNAMIC_AUTO_HYPHENATION},
    {L"Dynamic:HideGrammaticalErrors", FieldKind::Check, QZ_TEXT_DOCX_DYNAMIC_HIDE_GRAMMATICAL_ERRORS},
    {L"Dynamic:HideSpellingErrors", FieldKind::Check, QZ_TEXT_DOCX_DYNAMIC_HIDE_SPELLING_ERRORS},
    {L"Dynamic:RightToLeftText", FieldKind::Check, QZ_TEXT_DOCX_DYNAMIC_RIGHT_TO_LEFT_TEXT},
    {L"Dynamic:DoNotDisplayPageBoundaries", FieldKind::Check, QZ_TEXT_DOCX_DYNAMIC_DO_NOT_DISPLAY_PAGE_BOUNDARIES},
    {L"Watermark:Enabled", FieldKind::Check, QZ_TEXT_DOCX_WATERMARK_ENABLED},
    {L"Watermark:Text", FieldKind::Text, QZ_TEXT_DOCX_WATERMARK_TEXT},
    {L"Watermark:Font", FieldKind::Text, QZ_TEXT_DOCX_WATERMARK_FONT},
    {L"Watermark:File", FieldKind::File, QZ_TEXT_DOCX_WATERMARK_FILE, 0, 0, L"Watermark:UseFile"},
    {L"Watermark:UseFile", FieldKind::Check, QZ_TEXT_DOCX_WATERMARK_USE_FILE},
    {L"Watermark:AboveContent", FieldKind::Check, QZ_TEXT_DOCX_WATERMARK_ABOVE_CONTENT},
    {L"Watermark:FirstPageOnly", FieldKind::Check, QZ_TEXT_DOCX_WATERMARK_FIRST_PAGE_ONLY},
    {L"Watermark:FontSize", FieldKind::Number, QZ_TEXT_DOCX_WATERMARK_FONT_SIZE, 1, 1000},
    {L"Watermark:Color", FieldKind::Colour, QZ_TEXT_DOCX_WATERMARK_COLOR, 0, 16777215},
    {L"Watermark:Angle", FieldKind::Number, QZ_TEXT_DOCX_WATERMARK_ANGLE, -360, 360},
    {L"Watermark:HorzPos", FieldKind::Number, QZ_TEXT_DOCX_WATERMARK_HORZ_POS, -1000, 1000},
    {L"Watermark:VertPos", FieldKind::Number, QZ_TEXT_DOCX_WATERMARK_VERT_POS, -1000, 1000},
    {L"Merge:Enabled", FieldKind::Check, QZ_TEXT_DOCX_MERGE_ENABLED},
    {L"Merge:File", FieldKind::File, QZ_TEXT_DOCX_MERGE_FILE},
    {L"Merge:StartWithANewPage", FieldKind::Check, QZ_TEXT_DOCX_MERGE_START_WITH_NEW_PAGE},
    {L"Merge:InsertAfter", FieldKind::Check, QZ_TEXT_DOCX_MERGE_INSERT_AFTER},
    {L"ExportToExcel:Enabled", FieldKind::Check, QZ_TEXT_DOCX_TO_EXCEL_ENABLED},
    {L"ExportToExcel:MultiSheet", FieldKind::Check, QZ_TEXT_DOCX_TO_EXCEL_MULTI_SHEET},
    {L"ExportToExcel:Optimization", FieldKind::Number, QZ_TEXT_DOCX_TO_EXCEL_OPTIMIZATION, 0, mostCode},
    {L"ExportToTIFF:Enabled", FieldKind::Check, QZ_TEXT_DOCX_TO_TIFF_ENABLED},
    {L"ExportToTIFF:Resolution", FieldKind::Number, QZ_TEXT_DOCX_TO_TIFF_RESOLUTION, 1, 10000},
    {L"ExportToTIFF:CompressionStr", FieldKind::Text, QZ_TEXT_DOCX_TO_TIFF_COMPRESSION_STR},
    {L"ExportToTIFF:Compression", FieldKind::Number, QZ_TEXT_DOCX_TO_TIFF_COMPRESSION, 0, mostCode},
    {L"ExportToTIFF:Optimization", FieldKind::Number, QZ_TEXT_DOCX_TO_EXCEL_OPTIMIZATION, 0, mostCode},
    {L"ExportToJPEG:Enabled", FieldKind::Check, QZ_TEXT_DOCX_TO_JPEG_ENABLED},
    {L"ExportToJPEG:Resolution", FieldKind::Number, QZ_TEXT_DOCX_TO_TIFF_RESOLUTION, 1, 10000},
    {L"ExportToJPEG:CompressionLevel", FieldKind::Number, QZ_TEXT_DOCX_TO_JPEG_COMPRESSION_LEVEL, 0, 100},
    {L"ExportToJPEG:Optimization", FieldKind::Number, QZ_TEXT_DOCX_TO_EXCEL_OPTIMIZATION, 0, mostCode},
    {L"ExportToRTF:Enabled", FieldKind::Check, QZ_TEXT_DOCX_TO_RTF_ENABLED},
    {L"ExportToRTF:Format", FieldKind::Number, QZ_TEXT_DOCX_TO_RTF_FORMAT, 0, mostCode},
    {L"ExportToRTF:UseTabs", FieldKind::Check, QZ_TEXT_DOCX_TO_RTF_USE_TABS},
    {L"ExportToRTF:Optimization", FieldKind::Number, QZ_TEXT_DOCX_TO_EXCEL_OPTIMIZATION, 0, mostCode},
    {L"ExportToHTML:Enabled", FieldKind::Check, QZ_TEXT_DOCX_TO_HTML_ENABLED},
    {L"ExportToHTML:Preferences", FieldKind::Number, QZ_TEXT_DOCX_TO_HTML_PREFERENCES, 0, mostCode},
    {L"ExportToHTML:SupportVectorGraphics", FieldKind::Check, QZ_TEXT_DOCX_TO_HTML_SUPPORT_VECTOR_GRAPHICS},
    {L"ExportToHTML:Optimization", FieldKind::Number, QZ_TEXT_DOCX_TO_EXCEL_OPTIMIZATION, 0, mostCode},
    {L"ExportToPDF:Enabled", FieldKind::Check, QZ_TEXT_DOCX_TO_PDF_ENABLED},
    {L"ExportToDOCX:Enabled", FieldKind::Check, QZ_TEXT_DOCX_TO_DOCX_ENABLED},
};
// clang-format on

constexpr DocxPage pages[] = {
    {L"Standard:", QZ_TEXT_DOCX_STANDARD},
    {L"DigitalSignature:", QZ_TEXT_DOCX_DIGITAL_SIGNATURE},
    {L"DocumentProtection:", QZ_TEXT_DOCX_PROTECTION},
    {L"Configurable:", QZ_TEXT_DOCX_LAYOUT},
    {L"Special:", QZ_TEXT_DOCX_SPECIAL},
    {L"Dynamic:", QZ_TEXT_DOCX_VIEW},
    {L"Watermark:", QZ_TEXT_DOCX_WATERMARK},
    {L"Merge:", QZ_TEXT_DOCX_MERGE},
    {L"ExportTo", QZ_TEXT_DOCX_FORMATS},
};

const SettingField* Find(std::wstring_view key) noexcept {
    const auto* const found =
        std::ranges::find_if(docxFields, [&](const SettingField& field) { return field.key == key; });
    return found == std::end(docxFields) ? nullptr : found;
}

}  // namespace

std::span<const SettingField> DocxFields() noexcept { return docxFields; }

std::span<const DocxPage> DocxPages() noexcept { return pages; }

std::size_t DocxPageOf(const SettingField& field) noexcept {
    const std::wstring_view key = field.key;
    const auto* const found =
        std::ranges::find_if(pages, [&](const DocxPage& page) { return key.starts_with(page.sections); });
    return static_cast<std::size_t>(found - pages);
}

const SettingField* DocxGateOf(const SettingField& field) noexcept {
    if (field.enabledBy) return Find(field.enabledBy);
    const std::wstring_view key = field.key;
    const std::wstring_view section = key.substr(0, key.find(L':') + 1);
    const auto* const gate = std::ranges::find_if(docxFields, [&](const SettingField& each) {
        const std::wstring_view other = each.key;
        return other.starts_with(section) && other.substr(section.size()) == L"Enabled";
    });
    return gate == std::end(docxFields) || gate == &field ? nullptr : gate;
}

}  // namespace qz
