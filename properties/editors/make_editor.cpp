#include "properties/editors/make_editor.h"

#include "properties/editors/value_actions_dlg.h"
#include "properties/editors/value_bool_dlg.h"
#include "properties/editors/value_color_dlg.h"
#include "properties/editors/value_edit_dlg.h"
#include "properties/editors/value_enum_dlg.h"
#include "properties/editors/value_font_dlg.h"
#include "properties/editors/value_format_dlg.h"
#include "properties/editors/value_fstring_dlg.h"
#include "properties/editors/value_object_list_dlg.h"

namespace qz {

ValueDlgPointer MakeEditor(const EditorChoice& choice, Language language) {
    switch (choice.kind) {
        case EditorKind::Edit:
            return MakeDialog<CValueEditDlg>(choice.mode, language);
        case EditorKind::Enum:
            return MakeDialog<CValueEnumDlg>(choice.realChoices, language);
        case EditorKind::ValueList:
            return MakeDialog<CValueFStringDlg>(language);
        case EditorKind::Bool:
            return MakeDialog<CValueBoolDlg>(language);
        case EditorKind::Color:
            return MakeDialog<CValueColorDlg>(language);
        case EditorKind::Font:
            return MakeDialog<CValueFontDlg>(language);
        case EditorKind::Format:
            return MakeDialog<CValueFormatDlg>(language);
        case EditorKind::Actions:
            return MakeDialog<CValueActionsDlg>(language);
        case EditorKind::ObjectList:
            return MakeDialog<CValueObjectListDlg>(language);
        default:
            return nullptr;
    }
}

}  // namespace qz
