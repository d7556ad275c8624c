#include "sample/container/command_line.h"

namespace qz {

namespace {

constexpr int largestNumber = 1'000'000'000;

/// A whole number above 0 that makes up the whole text.
std::optional<int> ParseNumber(std::wstring_view text) {
    int number = 0;
    for (const wchar_t c : text) {
        if (c < L'0' || c > L'9' || number > largestNumber / 10) return {};
        number = number * 10 + (c - L'0');
    }
    if (number == 0) return {};
    return number;
}

bool ReadText(std::wstring& target, const std::wstring& value) {
    target = value;
    return !value.empty();
}

bool ReadPage(CommandLine& line, const std::wstring& value) {
    const auto page = ParseNumber(value);
    line.page = page.value_or(0);
    return page.has_value();
}

bool ReadSize(CommandLine& line, const std::wstring& value) {
    const std::wstring_view text = value;
    const size_t cross = text.find(L'x');
    if (cross == text.npos) return false;
    const auto width = ParseNumber(text.substr(0, cross));
    const auto height = ParseNumber(text.substr(cross + 1));
    if (!width || !height) return false;
    line.size = WindowSize{*width, *height};
    return true;
}

bool ReadAnswer(CommandLine& line, const std::wstring& value) {
    if (value != L"yes" && value != L"no") return false;
    line.answer = value == L"yes";
    return true;
}

struct Option {
    const wchar_t* name;
    const wchar_t* expects;
    bool (*read)(CommandLine& line, const std::wstring& value);
};

constexpr Option options[] = {
    {L"--ready-file", L"a file name",
     [](auto& line, auto& value) { return ReadText(line.readyFile, value); }},
    {L"--manifest", L"a file name", [](auto& line, auto& value) { return ReadText(line.manifest, value); }},
    {L"--size", L"a size such as 1200x800", ReadSize},
    {L"--page", L"a page number", ReadPage},
    {L"--answer", L"yes or no", ReadAnswer},
};

const Option* FindOption(const std::wstring& name) {
    for (const Option& option : options) {
        if (name == option.name) return &option;
    }
    return nullptr;
}

}  // namespace

std::optional<CommandLine> ParseCommandLine(std::span<const std::wstring> arguments, std::wstring& error) {
    error.clear();
    CommandLine line;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::wstring& argument = arguments[i];
        if (const Option* const option = FindOption(argument)) {
            if (i + 1 < arguments.size() && option->read(line, arguments[i + 1])) {
                ++i;
                continue;
            }
            error = argument + L" needs " + option->expects;
            return {};
        }
        if (argument.starts_with(L"--"))
            error = L"Unknown option " + argument;
        else if (!line.document.empty())
            error = L"More than one document: " + argument;
        else
            line.document = argument;
        if (!error.empty()) return {};
    }
    return line;
}

}  // namespace qz
