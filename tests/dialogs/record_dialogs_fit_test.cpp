// The texts of the record dialogs in all languages.
#include "dialogs/docx/docx_fields.h"
#include "res/language.h"
#include "tests/dialogs/record_dialogs.h"
#include "tests/support/dialog_fit.h"

namespace qz {
namespace {

class RecordDialogsFit : public RecordDialogTest {
  protected:
    /// Opens a command's dialog in each language and looks at it.
    void InEachLanguage(qzPluginUIDialogsCommands command, const std::function<void()>& look) {
        const ComPtr<IReferenceHost> host = MakeHost(1);
        ASSERT_EQ(dialogs->put_PDF(host.Get()), S_OK);
        for (const Language language : languages) {
            ASSERT_EQ(host->put_LanguageId(static_cast<long>(language)), S_OK);
            SCOPED_TRACE(static_cast<int>(language));
            EXPECT_EQ(Run(command, nullptr, nullptr,
                          [&] {
                              look();
                              Press(IDCANCEL);
                          }),
                      S_FALSE);
        }
        EXPECT_EQ(dialogs->put_PDF(nullptr), S_OK);
    }
    static void ExpectFit() {
        for (const std::wstring& text : CutOffTexts(Window())) ADD_FAILURE() << "cut off: " << text;
    }
    static void ExpectMnemonics() {
        for (const std::wstring& text : BadMnemonics(Window())) ADD_FAILURE() << "mnemonic: " << text;
    }
};

TEST_F(RecordDialogsFit, NUp) {
    InEachLanguage(qzNUpSettings, [] {
        ExpectFit();
        ExpectMnemonics();
    });
}

TEST_F(RecordDialogsFit, EveryPageOfDocx) {
    InEachLanguage(qzExportToDOCX, [] {
        ExpectFit();  // hidden pages too
        const HWND list = Item(QZ_DOCX_SECTIONS);
        for (std::size_t page = 0; page < DocxPages().size(); ++page) {
            SendMessageW(list, LB_SETCURSEL, page, 0);
            SendMessageW(Window(), WM_COMMAND, MAKEWPARAM(QZ_DOCX_SECTIONS, LBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(list));
            SCOPED_TRACE(page);
            ExpectMnemonics();
        }
    });
}

}  // namespace
}  // namespace qz
