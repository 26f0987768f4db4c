#include "services/TabLine.h"

#include "services/CRuntime.h"
#include "services/Tokenizer.h"

TabLineKind SplitTabLine(std::wstring line, std::vector<std::wstring>& fields, LineFeedEscapes escapes) {
    fields.clear();
    crt::Replace(line, L"\uFEFF", L"");
    crt::Replace(line, L"\r\n", L"");
    if (escapes == LineFeedEscapes::Unescaped) crt::Replace(line, L"\\n", L"\n");
    line = crt::Trim(line);
    if (line.starts_with(L"//")) return TabLineKind::Comment;
    if (line == L"EOF") return TabLineKind::End;
    Tokenize(fields, line, L'\t', false, true);
    return TabLineKind::Fields;
}
