// The module's type library against what callers rely on: dispatch ids, argument types, the order of the
// function tables, enumerations and classes.
#include "tests/module/type_library_dump.h"

#include "generated/qzVandraExt.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

class TypeLibraryTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(LoadTypeLibEx(L"qzVandraExt.dll", REGKIND_NONE, &library_), S_OK); }

    void ExpectInterface(REFGUID id, const wchar_t* members) const {
        EXPECT_EQ(DumpInterface(library_.Get(), id), members + 1);  // behind the first line break
    }
    void ExpectEnumeration(const wchar_t* name, const wchar_t* constants) const {
        EXPECT_EQ(DumpEnumeration(library_.Get(), name), constants + 1);
    }
    void ExpectClass(REFGUID id, const wchar_t* description) const {
        EXPECT_EQ(DumpClass(library_.Get(), id), description);
    }

    ComPtr<ITypeLib> library_;
};

TEST_F(TypeLibraryTest, Identity) {
    TLIBATTR* attributes = nullptr;
    ASSERT_EQ(library_->GetLibAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, LIBID_QZVANDRAEXTLib);
    EXPECT_EQ(attributes->lcid, 1033u);
    EXPECT_EQ(attributes->wMajorVerNum, 6);
    EXPECT_EQ(attributes->wMinorVerNum, 5);
    EXPECT_EQ(attributes->syskind, SYS_WIN64);
    library_->ReleaseTLibAttr(attributes);
}

TEST_F(TypeLibraryTest, BookmarkPane) {
    ExpectInterface(IID_IqzBookmarkCtrl,
                    LR"(
1 call Initialize(IDispatch*)
2 call Refresh()
3 call InitializeV(VARIANT)
4 get FitToParent(result long*)
4 put FitToParent(long)
5 get ReadOnly(result long*)
5 put ReadOnly(long)
6 get EnableDragDrop(result long*)
6 put EnableDragDrop(long)
7 call ExpandAll()
8 call CollapseAll()
-501 get BackColor(result OLE_COLOR*)
-501 put BackColor(OLE_COLOR)
9 get TextColor(result OLE_COLOR*)
9 put TextColor(OLE_COLOR)
10 get SelectedTextColor(result OLE_COLOR*)
10 put SelectedTextColor(OLE_COLOR)
11 get SelectedTextBackColor(result OLE_COLOR*)
11 put SelectedTextBackColor(OLE_COLOR)
12 get IconSet(result qzBookmarksCtrlIconSetConsts*)
12 put IconSet(qzBookmarksCtrlIconSetConsts)
)");
    ExpectInterface(DIID__IqzBookmarkCtrlEvents,
                    LR"(
2 call SizeToZero()
)");
    ExpectEnumeration(L"qzBookmarksCtrlIconSetConsts",
                      LR"(
qzBookmarksCtrlIconSet_None=0
qzBookmarksCtrlIconSet_Style1=1
qzBookmarksCtrlIconSet_Style2=2
)");
}

TEST_F(TypeLibraryTest, LayersPane) {
    ExpectInterface(IID_IqzLayersCtrl,
                    LR"(
1 call Initialize(IDispatch*)
2 call Refresh()
3 call Reset()
4 get IsInitialized(result long*)
5 get FitToParent(result long*)
5 put FitToParent(long)
6 get Locked(result long*)
6 put Locked(long)
7 get ListLayers(result qzLayersCtrlListLayers*)
7 put ListLayers(qzLayersCtrlListLayers)
8 call ResetToInitialVisibility()
9 call LayerProperties()
-501 get BackColor(result OLE_COLOR*)
-501 put BackColor(OLE_COLOR)
)");
    ExpectInterface(DIID__IqzLayersCtrlEvents,
                    LR"(
1 call LayerActivated(in out long*)
2 call ShowMessage(qzLayersCtrlShowMsgConsts, in out long*)
3 call ContextSensitiveMenu(long, long, in out long*)
)");
    ExpectEnumeration(L"qzLayersCtrlListLayers",
                      LR"(
qzLayersCtrlListLayers_None=0
qzLayersCtrlListLayers_ForAllPages=1
qzLayersCtrlListLayers_ForVisiblePages=2
qzLayersCtrlListLayers_ForCurrentPage=3
)");
    ExpectEnumeration(L"qzLayersCtrlShowMsgConsts",
                      LR"(
qzLayersCtrlShowMsgConsts_None=0
qzLayersCtrlShowMsgConsts_LayerDisabledBecauseParentDisabled=1
)");
}

TEST_F(TypeLibraryTest, ThumbnailPane) {
    ExpectInterface(IID_IqzThumbnailCtrl,
                    LR"(
1 call Initialize(IDispatch*)
2 call Reset()
3 call ScrollPageThumbIntoView(long)
4 get IsInitialized(result long*)
5 get ThumbSizeFactor(result long*)
5 put ThumbSizeFactor(long)
7 call RedrawAllThumbs()
8 get SelectedPages(result VARIANT*)
8 put SelectedPages(VARIANT)
-501 get BackColor(result OLE_COLOR*)
-501 put BackColor(OLE_COLOR)
9 get Settings(result qzThumbnailCtrlSettings*)
9 put Settings(qzThumbnailCtrlSettings)
10 call SettingsChange(long, qzThumbnailCtrlSettings)
100 get SelectedPagesVariant(result VARIANT*)
)");
    ExpectInterface(DIID__IqzThumbnailCtrlEvents,
                    LR"(
1 call ThumbActivated(long, in out long*)
2 call DeleteSelectedPages(in out long*)
3 call ThumbSelected(int)
4 call ShowMessage(qzThumbnailCtrlShowMsgConsts, in out long*)
5 call ProcessingProgress(long, long, in out long*)
6 call ContextSensitiveMenu(long, long, in out long*)
)");
    ExpectEnumeration(L"qzThumbnailCtrlSettings",
                      LR"(
qzThumbnailCtrlSettings_None=0
qzThumbnailCtrlSettings_ContextMenu=1
qzThumbnailCtrlSettings_PageMoveOrDragAndDrop=2
)");
    ExpectEnumeration(L"qzThumbnailCtrlShowMsgConsts",
                      LR"(
qzThumbnailCtrlShowMsgConsts_None=0
qzThumbnailCtrlShowMsgConsts_NonCntForbidden=1
qzThumbnailCtrlShowMsgConsts_DelAllForbidden=2
)");
}

TEST_F(TypeLibraryTest, StatusBar) {
    ExpectInterface(IID_IqzStatusCtrl,
                    LR"(
1 call Initialize(IDispatch*)
2 call Reset()
3 get UnitOfMeasure(result StatusCtrlUnitsOfMeasure*)
3 put UnitOfMeasure(StatusCtrlUnitsOfMeasure)
4 get SelectedObjectNameVisible(result VARIANT_BOOL*)
4 put SelectedObjectNameVisible(VARIANT_BOOL)
5 get SelectedObjectCoordsVisible(result VARIANT_BOOL*)
5 put SelectedObjectCoordsVisible(VARIANT_BOOL)
6 get PageSizeVisible(result VARIANT_BOOL*)
6 put PageSizeVisible(VARIANT_BOOL)
-501 get BackColor(result OLE_COLOR*)
-501 put BackColor(OLE_COLOR)
)");
    ExpectEnumeration(L"StatusCtrlUnitsOfMeasure",
                      LR"(
qzStatusCtrlTwips=0
qzStatusCtrlMillimeter=1
qzStatusCtrlInches=2
)");
}

TEST_F(TypeLibraryTest, PropertyInspectorAndItsDialog) {
    ExpectInterface(IID_IqzPropCtrl,
                    LR"(
1 put VandraX(IDispatch*)
1 get VandraX(result IDispatch**)
2 put Object(IDispatch*)
2 get Object(result IDispatch**)
3 get SelectionName(result BSTR*)
4 call Closing(result long*)
)");
    ExpectInterface(DIID__IqzPropCtrlEvents,
                    LR"(
1 call OpeningChildDialog()
2 call ClosingChildDialog()
3 call SelectedObjectChanged()
)");
    ExpectInterface(IID_IqzPropertiesDlg,
                    LR"(
1 get AlwaysVisible(result long*)
1 put AlwaysVisible(long)
2 call DoModal(optional VARIANT)
3 call DoModeless(optional VARIANT)
4 put VandraX(IDispatch*)
5 put Object(IDispatch*)
6 call InitObjectList()
7 call AddObject(BSTR)
8 get Options(result qzPropertiesDlgOptions*)
8 put Options(qzPropertiesDlgOptions)
)");
    ExpectEnumeration(L"qzPropertiesDlgOptions",
                      LR"(
qzPropertiesDlgOptions_None=0
qzPropertiesDlgOptions_NoBorder=1
qzPropertiesDlgOptions_ThinBorder=2
qzPropertiesDlgOptions_NoObjectsList=4
qzPropertiesDlgOptions_CenterWindow=8
qzPropertiesDlgOptions_NoSavePosition=16
)");
}

TEST_F(TypeLibraryTest, ToolDialogs) {
    ExpectInterface(IID_IqzGridUnitsDlg,
                    LR"(
1 call DoModal()
2 get GridSteps(result long*)
2 put GridSteps(long)
)");
    ExpectInterface(IID_IqzDocSettingsDlg,
                    LR"(
1 call DoModal(optional VARIANT)
2 call Initialize(IDispatch*)
)");
    ExpectInterface(IID_IqzPluginUIDialogs,
                    LR"(
1 put BookmarkCtrl(IDispatch*)
2 put ThumbnailsCtrl(IDispatch*)
3 put LayersCtrl(IDispatch*)
4 put StatusCtrl(IDispatch*)
5 put ParentWindowHandle(long)
6 call DoDialog(qzPluginUIDialogsCommands)
7 put Password(BSTR)
7 get Password(result BSTR*)
8 call DoDialogEx(qzPluginUIDialogsCommands, optional VARIANT*, result VARIANT*)
9 call ShowWindow(qzPluginUIDialogsCommands, in out long*, optional VARIANT*, out optional VARIANT*)
10 call EndWindow(qzPluginUIDialogsCommands, in out long*, out optional VARIANT*)
11 put PDF(IDispatch*)
100 get LastResult(result long*)
)");
    ExpectInterface(IID_IqzApplicationPreferences, L"\n");
    ExpectEnumeration(L"qzPluginUIDialogsCommands",
                      LR"(
qzAutoBookmarks=1
qzAutoHyperlinks=2
qzDigitalSignature=3
qzAddPageNumbers=4
qzApplicationPreferences=5
qzDocumentSplit=6
qzDocumentSettings=7
qzInsertPdf=8
qzExportToDOCX=9
qzAddWatermarks=10
qzNUpSettings=11
qzPrintPreview=12
)");
}

TEST_F(TypeLibraryTest, Formatter) {
    ExpectInterface(IID_IqzFormatter,
                    LR"(
1 get DecimalSeperator(result short*)
1 put DecimalSeperator(short)
2 get ThousandSeperator(result short*)
2 put ThousandSeperator(short)
3 call EnumCategories(result BSTR*)
4 call EnumFormats(int, result BSTR*)
5 call FormatData(BSTR, VARIANT, result BSTR*)
6 get Count(result long*)
7 call Add(BSTR, result VARIANT*)
8 call Remove(long)
-4 get _NewEnum(result IUnknown**)
0 get Item(long, result VARIANT*)
)");
    ExpectInterface(IID_IqzCategory,
                    LR"(
1 get CategoryID(result long*)
1 put CategoryID(long)
2 get Name(result BSTR*)
2 put Name(BSTR)
3 get Count(result long*)
4 call Add(BSTR, result VARIANT*)
5 call Remove(long)
0 get Item(long, result VARIANT*)
-4 get _NewEnum(result IUnknown**)
7 get Formats(long, result VARIANT*)
)");
    ExpectInterface(IID_IqzFormat,
                    LR"(
1 get FormatID(result long*)
1 put FormatID(long)
2 get FormatString(result BSTR*)
2 put FormatString(BSTR)
)");
}

TEST_F(TypeLibraryTest, Classes) {
    ExpectClass(CLSID_qzBookmarkCtrl,
                L"qzBookmarkCtrl control: default IqzBookmarkCtrl default source _IqzBookmarkCtrlEvents");
    ExpectClass(CLSID_qzLayersCtrl,
                L"qzLayersCtrl control: default IqzLayersCtrl default source _IqzLayersCtrlEvents");
    ExpectClass(CLSID_qzThumbnailCtrl,
                L"qzThumbnailCtrl control: default IqzThumbnailCtrl default source _IqzThumbnailCtrlEvents");
    ExpectClass(CLSID_qzStatusCtrl, L"qzStatusCtrl control: default IqzStatusCtrl");
    ExpectClass(CLSID_qzPropCtrl,
                L"qzPropCtrl control: default IqzPropCtrl default source _IqzPropCtrlEvents");
    ExpectClass(CLSID_qzPropertiesDlg, L"qzPropertiesDlg: default IqzPropertiesDlg");
    ExpectClass(CLSID_qzGridUnitsDlg, L"qzGridUnitsDlg: default IqzGridUnitsDlg");
    ExpectClass(CLSID_qzDocSettingsDlg, L"qzDocSettingsDlg: default IqzDocSettingsDlg");
    ExpectClass(CLSID_qzPluginUIDialogs, L"qzPluginUIDialogs: default IqzPluginUIDialogs");
    ExpectClass(CLSID_qzFormatter, L"qzFormatter: default IqzFormatter");
    ExpectClass(CLSID_qzCategory, L"qzCategory: default IqzCategory");
    ExpectClass(CLSID_qzFormat, L"qzFormat: default IqzFormat");
}

}  // namespace
}  // namespace qz
