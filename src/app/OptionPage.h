// What every page of the option dialog is: a child dialog without a window until it is first
// selected, which then takes the place of the dialog's frame, loads its settings once and keeps what
// the user types for as long as the dialog lives.
#pragma once

#include <windows.h>

#include <cstdint>

#include "app/ApplyChain.h"
#include "settings/SettingsStore.h"
#include "ui/Dialog.h"

struct AppServices;

// Posted by a page to the option dialog: Enter and Escape inside a page act on the whole dialog.
constexpr UINT kPageOkMessage = 0x800A;
constexpr UINT kPageCancelMessage = 0x800B;

class OptionPage : public ui::Dialog {
public:
    OptionPage(int templateId, AppServices& app) : ui::Dialog(templateId), app_(app) {}

    // Set once the page has its window and has loaded its settings; only opened pages take part in
    // Apply and in closing. It stays 0 when the window could not be made.
    int32_t opened = 0;

    // Makes the page's window in the frame of the owner and loads it, the first time only; later
    // calls leave it as the user left it.
    void ShowPage(ui::Dialog& owner);
    // The page's part of Apply: takes the controls back and, where the page has settings of its own,
    // stores them and records the code that tells the host to reread them. False when a field or
    // the page refused.
    virtual bool Apply(PendingChanges& changes) { return UpdateData(true); }

protected:
    // Reads the page's settings groups (or its own values) into their members before the controls
    // are filled. A page without settings of its own has nothing to read. False gives up: the page's
    // window goes again, the page takes no part in Apply, and the next showing tries anew.
    virtual bool LoadGroups() { return true; }

    bool OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    AppServices& app() const { return app_; }
    // The control's number into the setting, refused outside the range its group gives it.
    void ExchangeSetting(ui::DataExchange& exchange, int id, int32_t SettingsStore::*member) const;
    // The same for a field the framework reads as unsigned, with its own refusal wording.
    void ExchangeUnsignedSetting(ui::DataExchange& exchange, int id, int32_t SettingsStore::*member) const;

private:
    AppServices& app_;
};
