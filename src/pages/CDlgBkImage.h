// The background picture of the file list: the file, how it is placed, and the two numbers of the
// placement, with a preview of the picture as the host would load it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>

#include <windows.h>

#include "platform/Images.h"
#include "ui/BrowseEdit.h"
#include "ui/Dialog.h"

struct AppServices;

class CDlgBkImage : public ui::Dialog {
public:
    explicit CDlgBkImage(AppServices& app);

    int32_t mode = 0;
    uint32_t x = 0;
    uint32_t y = 0;
    std::wstring file;

protected:
    bool OnInitDialog() override;
    void OnOK() override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void DoDataExchange(ui::DataExchange& exchange) override;

private:
    // The numbers count only in some modes, and their unit follows the mode.
    void ShowModeRule() const;
    void LoadPreview();
    void DrawPreview(const DRAWITEMSTRUCT& item) const;

    struct BitmapDeleter {
        void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
    };

    AppServices& app_;
    ui::BrowseEdit fileEdit_;
    std::unique_ptr<platform::Picture> preview_;
    // The picture's pixels with their colours weighted by their alpha, as blending wants them.
    std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDeleter> blended_;
};
