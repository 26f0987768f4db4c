// How the host hands data to an external command: the short letter code of a command list line.
#pragma once

#include <string>

struct CommunicationCode {
    enum class Mode { None, DragAndDrop, CopyData, SharedMemory };

    Mode mode = Mode::None;
    // With drag and drop: which of these are dropped.
    bool currentFolder = false;
    bool selectedItems = false;
    bool targetFolder = false;

    bool operator==(const CommunicationCode&) const = default;

    // Letter by letter from the left, a later letter overriding an earlier one; unknown letters are
    // ignored.
    static CommunicationCode Read(const std::wstring& text);
    // "" for none, "C", "S", "T" in that order for drag and drop, "X" or "M".
    std::wstring Write() const;
};
