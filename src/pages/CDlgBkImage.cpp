#include "pages/CDlgBkImage.h"

#include <algorithm>
#include <cstdlib>

#include "app/AppServices.h"
#include "pages/SkinFolders.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "settings/SkinPictures.h"
#include "ui/Button.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

namespace {

constexpr int kModes = 6;
constexpr uint32_t kLargestNumber = 65535;

// A copy of a 32-bit picture whose colours are weighted by its alpha; null for any other picture.
HBITMAP Premultiplied(HBITMAP source) {
    DIBSECTION section{};
    if (GetObjectW(source, sizeof(section), &section) != sizeof(section) || section.dsBm.bmBitsPixel != 32 ||
        !section.dsBm.bmBits) {
        return nullptr;
    }
    BITMAPINFO info{};
    info.bmiHeader = section.dsBmih;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    HBITMAP copy = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!copy) return nullptr;
    const size_t pixels =
        static_cast<size_t>(section.dsBm.bmWidth) * static_cast<size_t>(std::abs(section.dsBm.bmHeight));
    const auto* from = static_cast<const uint8_t*>(section.dsBm.bmBits);
    auto* to = static_cast<uint8_t*>(bits);
    for (size_t n = 0; n < pixels * 4; n += 4) {
        const unsigned alpha = from[n + 3];
        for (int channel = 0; channel < 3; ++channel)
            to[n + channel] = static_cast<uint8_t>(from[n + channel] * alpha / 255);
        to[n + 3] = static_cast<uint8_t>(alpha);
    }
    return copy;
}

}  // namespace

CDlgBkImage::CDlgBkImage(AppServices& app) : ui::Dialog(IDD_BK_IMAGE), app_(app) {}

bool CDlgBkImage::OnInitDialog() {
    const bool focusFirst = ui::Dialog::OnInitDialog();
    fileEdit_.Attach(hwnd(), IDC_BK_IMAGE_FILE, [](const std::wstring& current) -> std::optional<std::wstring> {
        platform::FolderChoice choice = platform::Current().prompts.ChooseFileToOpen(L"", L"*.*|*.*|", current);
        if (!choice.confirmed || choice.path.empty()) return std::nullopt;
        return choice.path;
    });
    ShowModeRule();
    LoadPreview();
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    return focusFirst;
}

void CDlgBkImage::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Radio(exchange, IDC_BK_IMAGE_MODE, mode);
    DDX_Text(exchange, IDC_BK_IMAGE_FILE, file);
    DDX_Text(exchange, IDC_BK_IMAGE_X, x);
    DDV_MinMaxUInt(exchange, x, 0, kLargestNumber);
    DDX_Text(exchange, IDC_BK_IMAGE_Y, y);
    DDV_MinMaxUInt(exchange, y, 0, kLargestNumber);
}

void CDlgBkImage::ShowModeRule() const {
    const BackgroundModeRule rule = RuleOfBackgroundMode(mode);
    EnableWindow(Item(IDC_BK_IMAGE_X), rule.positioned);
    EnableWindow(Item(IDC_BK_IMAGE_Y), rule.positioned);
    SetDlgItemTextW(hwnd(), IDC_BK_IMAGE_X_UNIT, rule.unit);
    SetDlgItemTextW(hwnd(), IDC_BK_IMAGE_Y_UNIT, rule.unit);
}

void CDlgBkImage::OnOK() {
    if (!UpdateData(true)) return;
    if (!BackgroundPositionFits(mode, x, y)) {
        platform::Current().prompts.ShowMessage(L"Enter a number between 0-100.", platform::kStyleOk);
        return;
    }
    EndDialog(IDOK);
}

bool CDlgBkImage::OnCommand(int id, int code) {
    if (id >= IDC_BK_IMAGE_MODE && id < IDC_BK_IMAGE_MODE + kModes && code == BN_CLICKED) {
        UpdateData(true);
        ShowModeRule();
        LoadPreview();
        return true;
    }
    if (id == IDC_BK_IMAGE_FILE && code == EN_KILLFOCUS) {
        LoadPreview();
        return true;
    }
    return false;
}

// The preview shows the picture the host would draw: the shell's scaled one for the shrinking modes,
// the file itself for the others.
void CDlgBkImage::LoadPreview() {
    const std::wstring path = ui::ControlText(Item(IDC_BK_IMAGE_FILE));
    RECT box{};
    GetClientRect(Item(IDC_BK_IMAGE_PREVIEW), &box);
    preview_ = nullptr;
    if (!path.empty()) {
        preview_ = mode == 4 || mode == 5 ? LoadBackgroundPicture(mode, path, box.right, box.bottom)
                                          : platform::Current().images.Load(path);
    }
    blended_.reset(preview_ && preview_->hasAlpha() ? Premultiplied(reinterpret_cast<HBITMAP>(preview_->bitmap()))
                                                    : nullptr);
    InvalidateRect(Item(IDC_BK_IMAGE_PREVIEW), nullptr, TRUE);
}

void CDlgBkImage::DrawPreview(const DRAWITEMSTRUCT& item) const {
    const RECT& box = item.rcItem;
    FillRect(item.hDC, &box, GetSysColorBrush(COLOR_WINDOW));
    if (!preview_ || preview_->width() <= 0 || preview_->height() <= 0) return;
    // Shrunk to fit the box, never enlarged, in the box's lower right corner as the host places it.
    const double scale = std::min({1.0, static_cast<double>(box.right - box.left) / preview_->width(),
                                   static_cast<double>(box.bottom - box.top) / preview_->height()});
    const int width = std::max(1, static_cast<int>(preview_->width() * scale));
    const int height = std::max(1, static_cast<int>(preview_->height() * scale));
    HDC memory = CreateCompatibleDC(item.hDC);
    HBITMAP shown = blended_ ? blended_.get() : reinterpret_cast<HBITMAP>(preview_->bitmap());
    HGDIOBJ old = SelectObject(memory, shown);
    const int left = box.right - width;
    const int top = box.bottom - height;
    if (blended_) {
        BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        GdiAlphaBlend(item.hDC, left, top, width, height, memory, 0, 0, preview_->width(), preview_->height(), blend);
    } else {
        SetStretchBltMode(item.hDC, HALFTONE);
        StretchBlt(item.hDC, left, top, width, height, memory, 0, 0, preview_->width(), preview_->height(), SRCCOPY);
    }
    SelectObject(memory, old);
    DeleteDC(memory);
}

std::optional<LRESULT> CDlgBkImage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DRAWITEM && wParam == IDC_BK_IMAGE_PREVIEW) {
        DrawPreview(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }
    return ui::Dialog::OnMessage(message, wParam, lParam);
}
