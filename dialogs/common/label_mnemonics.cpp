#include "dialogs/common/label_mnemonics.h"

#include "dialogs/common/mnemonics.h"
#include "ui/dialog.h"

namespace qz {

std::wstring GiveMnemonics(std::span<const HWND> labels, std::wstring taken) {
    std::vector<std::wstring> texts;
    for (const HWND label : labels) texts.push_back(WindowText(label));
    const std::vector<std::wstring> marked = WithMnemonics(texts, taken);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        SetWindowTextW(labels[i], marked[i].c_str());
        if (const wchar_t letter = MnemonicOf(marked[i])) taken += letter;
    }
    return taken;
}

}  // namespace qz
