#include "support/Screenshot.h"

#include <filesystem>

#include "support/Process.h"

namespace e2e {

namespace {

bool WriteBitmap(const std::wstring& path, const BITMAPINFOHEADER& info, const void* bits) {
    const DWORD size = static_cast<DWORD>(info.biSizeImage);
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;  // "BM"
    file.bfOffBits = sizeof(file) + sizeof(info);
    file.bfSize = file.bfOffBits + size;
    HANDLE out = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (out == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    bool ok = WriteFile(out, &file, sizeof(file), &written, nullptr) &&
              WriteFile(out, &info, sizeof(info), &written, nullptr) && WriteFile(out, bits, size, &written, nullptr);
    CloseHandle(out);
    return ok;
}

}  // namespace

bool CaptureRect(const RECT& rect, const std::wstring& path) {
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    BITMAPINFO bitmap{};
    BITMAPINFOHEADER& info = bitmap.bmiHeader;
    info.biSize = sizeof(info);
    info.biWidth = width;
    info.biHeight = height;  // bottom-up, as a BMP file stores it
    info.biPlanes = 1;
    info.biBitCount = 24;
    info.biCompression = BI_RGB;
    info.biSizeImage = static_cast<DWORD>(((width * 3 + 3) & ~3) * height);

    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    void* bits = nullptr;
    HBITMAP dib = CreateDIBSection(screen, &bitmap, DIB_RGB_COLORS, &bits, nullptr, 0);
    bool ok = false;
    if (dib) {
        HGDIOBJ old = SelectObject(memory, dib);
        ok = BitBlt(memory, 0, 0, width, height, screen, rect.left, rect.top, SRCCOPY);
        GdiFlush();
        SelectObject(memory, old);
        ok = ok && WriteBitmap(path, info, bits);
        DeleteObject(dib);
    }
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return ok;
}

bool CaptureWindow(HWND window, const std::wstring& path) {
    RECT rect;
    return GetWindowRect(window, &rect) && CaptureRect(rect, path);
}

std::wstring PicturePath(const wchar_t* name) {
    const std::filesystem::path pictures = std::filesystem::path(StageRoot()).parent_path() / L"screenshots";
    std::filesystem::create_directories(pictures);
    return (pictures / name).wstring();
}

}  // namespace e2e
