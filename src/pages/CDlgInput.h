// One line of text asked of the user, under a caption and a prompt the caller gives.
#pragma once

#include <string>

#include "ui/Dialog.h"

class DialogLanguage;

class CDlgInput : public ui::Dialog {
public:
    explicit CDlgInput(DialogLanguage& language);

    // Set before DoModal; text holds what the user typed after OK.
    std::wstring caption;
    std::wstring text;
    std::wstring prompt;

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    DialogLanguage& language_;
};
