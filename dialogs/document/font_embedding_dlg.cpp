#include "dialogs/document/font_embedding_dlg.h"

#include "dialogs/document/font_rows.h"
#include "res/dialog_ids.h"

namespace qz {

namespace {

class FontEmbeddingDialog final : public Dialog {
  public:
    FontEmbeddingDialog(int level, Language language) noexcept
        : Dialog(QZ_DIALOG_FONT_EMBEDDING, language), level_(level) {}

    int Level() const noexcept { return level_; }

  private:
    void OnInit() override {
        CheckRadioButton(Handle(), QZ_FONT_EMBED_NONE, QZ_FONT_EMBED_FULLY, QZ_FONT_EMBED_NONE + level_);
    }

    bool OnCommand(int id, int) override {
        if (id != IDOK && id != IDCANCEL) return false;
        for (int level = 0; level < embeddingLevelCount; ++level) {
            if (SendItem(QZ_FONT_EMBED_NONE + level, BM_GETCHECK) == BST_CHECKED) level_ = level;
        }
        EndModal(id);
        return true;
    }

    int level_;
};

}  // namespace

std::optional<int> AskForEmbedding(HWND owner, int level, Language language) {
    const auto dialog = MakeDialog<FontEmbeddingDialog>(level, language);
    return dialog->RunModal(owner) == IDOK ? std::optional(dialog->Level()) : std::nullopt;
}

}  // namespace qz
