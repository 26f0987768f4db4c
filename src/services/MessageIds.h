// Every numbered message the program shows, by name. Texts come from the language's message file;
// a test checks that the sample files of every language hold each of them.
#pragma once

#include <cstdint>

#define OPTION_MESSAGES(X)                                                                      \
    X(NothingSelected, 62301)        /* nothing is selected in a list */                        \
    X(EmptyPath, 62302)              /* a dialog's OK with an empty path */                     \
    X(AlreadyListed, 62307)          /* the entry is already in the list */                     \
    X(NameOrFolderEmpty, 62315)      /* a required name or directory is empty */                \
    X(ListFull, 62316)               /* the list is full */                                     \
    X(CannotCreateFile, 62324)       /* a file could not be created */                          \
    X(LanguageLibraryMissing, 62538) /* the resource library is not loaded */                   \
    X(CannotStartProgram, 62541)     /* an external process could not start */                  \
    X(ProgramNotIdle, 62544)         /* it did not become idle within 10 seconds */             \
    X(ProgramShowsNoWindow, 62547)   /* no window of it showed within 10 seconds */             \
    X(FolderMissing, 62569)          /* a folder is missing */                                  \
    X(CreateFileQuestion, 63005)     /* "%s" a path: create the file? */                        \
    X(DeleteRowQuestion, 63007)      /* clear or delete a row? */                               \
    X(ResetQuestion, 63008)          /* reset? */                                               \
    X(ReplaceQuestion, 63014)        /* replace? shown behind AlreadyListed */                  \
    X(NoProgramQuestion, 63017)      /* "%s" is "Run" or "ExRun": no program, go on editing? */ \
    X(GestureResetQuestion, 63019)   /* the gesture page's reset question */                    \
    X(ConfirmationClosing, 63300)    /* the closing text of every confirmation */               \
    X(SaveCommandsQuestion, 63315)   /* the command editor's OK: save the file? */              \
    X(FolderBrowserTitle, 63503)     /* the title of the folder browser */

enum MessageId : uint16_t {
#define OPTION_MESSAGE_ENUM(name, id) kMsg##name = id,
    OPTION_MESSAGES(OPTION_MESSAGE_ENUM)
#undef OPTION_MESSAGE_ENUM
};

// The fifteen confirmations lie on the odd ids from here: the caption at id, the question at id + 1.
constexpr uint16_t kFirstConfirmation = 63301;
constexpr int kConfirmationCount = 15;

constexpr MessageId kAllMessageIds[] = {
#define OPTION_MESSAGE_LIST(name, id) kMsg##name,
    OPTION_MESSAGES(OPTION_MESSAGE_LIST)
#undef OPTION_MESSAGE_LIST
};
