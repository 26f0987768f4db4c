// One line of the program's tab-separated text files (message files, dialog texts, command lists):
// byte-order marks anywhere and the line end go, the rest is trimmed; a line starting with "//" is
// a comment and a line that is exactly "EOF" ends the file. Fields keep their inner blanks and
// empty fields count.
#pragma once

#include <string>
#include <vector>

enum class TabLineKind { Comment, End, Fields };

// Message files write a line break inside a text as "\n"; it becomes one before the trim, so a
// break at either end of a text is lost.
enum class LineFeedEscapes { Kept, Unescaped };

TabLineKind SplitTabLine(std::wstring line, std::vector<std::wstring>& fields,
                         LineFeedEscapes escapes = LineFeedEscapes::Kept);
