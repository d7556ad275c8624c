#include "ui/ole_verbs.h"

#include "com/enumerator.h"
#include "com/text.h"

namespace qz {

namespace {

struct Verb {
    LONG number;
    const wchar_t* name;
};

constexpr Verb verbs[] = {
    {OLEIVERB_PRIMARY, L"Activate"},
    {OLEIVERB_SHOW, L"Show"},
    {OLEIVERB_HIDE, L"Hide"},
    {OLEIVERB_UIACTIVATE, L"Activate with its keys"},
    {OLEIVERB_INPLACEACTIVATE, L"Activate in place"},
    {OLEIVERB_DISCARDUNDOSTATE, L"Forget what can be undone"},
};

struct CopyVerb {
    static void Copy(OLEVERB& to, const Verb& from) {
        to = {from.number, MakeTaskText(from.name), MF_ENABLED, OLEVERBATTRIB_NEVERDIRTIES};
    }
    static void Undo(OLEVERB& verb) noexcept { CoTaskMemFree(std::exchange(verb.lpszVerbName, nullptr)); }
};

using VerbEnumerator = Enumerator<IEnumOLEVERB, OLEVERB, Verb, CopyVerb>;

}  // namespace

ComPtr<IEnumOLEVERB> MakeVerbEnumerator() {
    return MakeObject<VerbEnumerator>(std::vector<Verb>(std::begin(verbs), std::end(verbs)));
}

}  // namespace qz
