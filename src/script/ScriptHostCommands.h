// Commands that steer the host: window messages by number, and texts by copy data with a code that
// says what the text is for. What the numbers and codes mean is the host's business. Where no host
// is running they have no effect.
#pragma once

#include <cstdint>

#include "script/ScriptCommands.h"
#include "script/ScriptFrame.h"
#include "script/ScriptLine.h"
#include "script/ScriptMainLoop.h"

// The messages the host listens for: WM_COMMAND and its own.
enum HostMessage : uint32_t {
    kHostCommand = 273,
    kHostMessageAll = 32776,
    kHostMessage1 = 32777,
    kHostMessage2 = 32778,
    kHostMessageWait = 32779,
    kHostMessageBar = 32780,
};

// The codes of the texts that go to the host as the value stands.
enum HostTextCode : uint32_t {
    kHostSelect = 800,
    kHostFullState = 201,
    kHostBackgroundImage = 1200,
    kHostListInnerParam = 910,
    kHostOperationMode = 911,
    kHostTabletMode = 912,
};

enum class Delivery {
    Post,  // returns at once
    Send,  // waits for the host, with no time-out
};

// "word = wParam[,lParam]", variables put in; lParam is 0 when it is missing. An empty value and a
// wParam of 0 are syntax errors, but the second only while a host is there.
LineOutcome RunHostMessage(ScriptFrame& frame, const ScriptLine& line, uint32_t message, Delivery delivery);

template <uint32_t Message, Delivery How>
LineOutcome HostMessageCommand(ScriptFrame& frame, const ScriptLine& line) {
    return RunHostMessage(frame, line, Message, How);
}

// "postmessagetab" has no working form: it is always a syntax error.
LineOutcome RunPostMessageTab(ScriptFrame& frame, const ScriptLine& line);

// The value, got in the given form, goes to the host as it is.
LineOutcome RunHostText(ScriptFrame& frame, const ScriptLine& line, uint32_t code, ValueForm form);

template <uint32_t Code, ValueForm Form>
LineOutcome HostTextCommand(ScriptFrame& frame, const ScriptLine& line) {
    return RunHostText(frame, line, Code, Form);
}

// "system_command = code, text": any code with any text.
LineOutcome RunSystemCommand(ScriptFrame& frame, const ScriptLine& line);

// "word = number, text": a pane or a slot and a path or text. A missing path, or a number out of
// range, is a syntax error; most of them end the run.
LineOutcome RunFolderJump(ScriptFrame& frame, const ScriptLine& line);
LineOutcome RunFileJump(ScriptFrame& frame, const ScriptLine& line);
LineOutcome RunFavoriteJump(ScriptFrame& frame, const ScriptLine& line);
LineOutcome RunUbJump(ScriptFrame& frame, const ScriptLine& line);
