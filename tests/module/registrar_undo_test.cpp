// A registration that fails midway leaves the registry as it found it.
#include "com/error.h"
#include "module/registrar.h"
#include "tests/module/registry_listing.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

const std::wstring root = L"Software\\qzVandraExtTest";

class RegistrarUndo : public testing::Test {
  protected:
    RegistrarUndo() {
        DeleteTree(HKEY_CURRENT_USER, root);
        classes_ = RegistryKey::Create(HKEY_CURRENT_USER, root);
    }
    ~RegistrarUndo() override { DeleteTree(HKEY_CURRENT_USER, root); }

    void Set(const std::wstring& path, const std::wstring& name, const std::wstring& text) {
        RegistryKey::Create(classes_.Get(), path).SetValue(name, RegistryValue::Text(text));
    }
    RegistryListing List() const { return ListKey(HKEY_CURRENT_USER, root); }

    RegistryKey classes_;
};

const RegistrationScript script = {
    {L"Prog.Id", L"", L"A Class"},
    {L"Prog.Id\\CLSID", L"", L"{id}"},
    {L"CLSID\\{id}", L"", L"A Class", true},
    {L"CLSID\\{id}\\InprocServer32", L"", L"new.dll"},
    {L"CLSID\\{id}\\InprocServer32", L"ThreadingModel", L"Apartment"},
    {L"CLSID\\{id}\\Control", L"", std::nullopt},
};

// The script and a step that the registry refuses: no key name is as long as this.
RegistrationScript FailingAfter(std::size_t steps) {
    RegistrationScript failing(script.begin(), script.begin() + static_cast<std::ptrdiff_t>(steps));
    failing.push_back({std::wstring(300, L'x'), L"", L"never"});
    return failing;
}

TEST_F(RegistrarUndo, EmptiesARegistryThatWasEmpty) {
    for (std::size_t steps = 0; steps <= script.size(); ++steps) {
        RegistrationRun run(classes_);
        EXPECT_THROW(run.Apply(FailingAfter(steps)), ComError) << steps;
    }
    EXPECT_EQ(List(), RegistryListing());
}

TEST_F(RegistrarUndo, GivesBackWhatItReplaced) {
    Set(L"Prog.Id", L"", L"An older class");
    Set(L"Prog.Id", L"Foreign", L"value");
    Set(L"Prog.Id\\shell\\open", L"", L"command");
    Set(L"CLSID\\{id}", L"", L"An older class");
    Set(L"CLSID\\{id}\\InprocServer32", L"", L"old.dll");
    Set(L"CLSID\\{id}\\Implemented Categories\\{c}", L"", L"");
    Set(L"CLSID\\{other}", L"", L"Another");
    const RegistryListing before = List();
    for (std::size_t steps = 0; steps <= script.size(); ++steps) {
        {
            RegistrationRun run(classes_);
            EXPECT_THROW(run.Apply(FailingAfter(steps)), ComError);
        }
        EXPECT_EQ(List(), before) << steps;
    }
}

TEST_F(RegistrarUndo, KeepsWhatIsToBeKept) {
    {
        RegistrationRun run(classes_);
        run.Apply(script);
        run.Keep();
    }
    EXPECT_EQ(List()[L"CLSID\\{id}\\InprocServer32|ThreadingModel"], L"Apartment");
}

TEST_F(RegistrarUndo, EmptiesAClassKeyBeforeItIsWritten) {
    Set(L"CLSID\\{id}\\LocalServer32", L"", L"old.exe");
    RegistrationRun run(classes_);
    run.Apply(script);
    EXPECT_FALSE(List().contains(L"CLSID\\{id}\\LocalServer32"));
}

TEST_F(RegistrarUndo, RemovalLeavesWhatIsNotOfTheScript) {
    RegistrationRun run(classes_);
    run.Apply(script);
    run.Keep();
    Set(L"Prog.Id\\shell", L"", L"open");
    Set(L"Prog.Id\\CLSID", L"", L"{taken over}");
    RemoveScript(classes_, script);
    const RegistryListing left = {{L"CLSID", L""},          {L"Prog.Id", L""},
                                  {L"Prog.Id\\CLSID", L""}, {L"Prog.Id\\CLSID|", L"{taken over}"},
                                  {L"Prog.Id\\shell", L""}, {L"Prog.Id\\shell|", L"open"}};
    EXPECT_EQ(List(), left);
    RemoveScript(classes_, script);  // nothing of it is left: no failure
    EXPECT_EQ(List(), left);
}

}  // namespace
}  // namespace qz
