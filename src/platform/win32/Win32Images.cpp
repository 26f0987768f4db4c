#include "platform/win32/Win32Images.h"

#include <windows.h>

#include <commctrl.h>
#include <gdiplus.h>
#include <shobjidl.h>

#include <vector>

namespace platform::win32 {

namespace {

namespace gp = Gdiplus;
namespace flat = Gdiplus::DllExports;

class BitmapPicture : public Picture {
public:
    BitmapPicture(HBITMAP bitmap, bool alpha) : bitmap_(bitmap), alpha_(alpha) {
        GetObjectW(bitmap_, sizeof(facts_), &facts_);
    }
    ~BitmapPicture() override { DeleteObject(bitmap_); }
    int width() const override { return facts_.bmWidth; }
    int height() const override { return facts_.bmHeight; }
    int bitsPerPixel() const override { return facts_.bmBitsPixel; }
    bool hasAlpha() const override { return alpha_; }
    uintptr_t bitmap() const override { return reinterpret_cast<uintptr_t>(bitmap_); }

private:
    HBITMAP bitmap_;
    bool alpha_;
    BITMAP facts_{};
};

class GdiPlusBitmap {
public:
    explicit GdiPlusBitmap(const std::wstring& path) {
        if (flat::GdipCreateBitmapFromFile(path.c_str(), &bitmap_) != gp::Ok) bitmap_ = nullptr;
    }
    ~GdiPlusBitmap() {
        if (bitmap_) flat::GdipDisposeImage(bitmap_);
    }
    GdiPlusBitmap(const GdiPlusBitmap&) = delete;
    GdiPlusBitmap& operator=(const GdiPlusBitmap&) = delete;
    gp::GpBitmap* get() const { return bitmap_; }

private:
    gp::GpBitmap* bitmap_ = nullptr;
};

// What the file becomes: alpha first, then any format the screen can draw as it stands.
gp::PixelFormat TargetFormat(gp::PixelFormat source) {
    if (source & PixelFormatAlpha) return PixelFormat32bppARGB;
    if (source & PixelFormatGDI) return source;
    return PixelFormat32bppRGB;
}

struct DibHeader {
    BITMAPINFOHEADER header;
    RGBQUAD colours[256];
};

// The palette of an indexed picture into the header; false when it cannot be had.
bool CopyPalette(gp::GpBitmap* bitmap, DibHeader& dib) {
    INT size = 0;
    if (flat::GdipGetImagePaletteSize(bitmap, &size) != gp::Ok || size <= 0) return false;
    std::vector<BYTE> buffer(static_cast<size_t>(size));
    auto* palette = reinterpret_cast<gp::ColorPalette*>(buffer.data());
    if (flat::GdipGetImagePalette(bitmap, palette, size) != gp::Ok) return false;
    const UINT count = std::min<UINT>(palette->Count, 256);
    for (UINT n = 0; n < count; ++n) {
        const gp::ARGB colour = palette->Entries[n];
        dib.colours[n] = {static_cast<BYTE>(colour), static_cast<BYTE>(colour >> 8), static_cast<BYTE>(colour >> 16),
                          0};
    }
    dib.header.biClrUsed = count;
    return true;
}

HBITMAP ToDibSection(gp::GpBitmap* bitmap, gp::PixelFormat format, UINT width, UINT height) {
    DibHeader dib{};
    dib.header.biSize = sizeof(dib.header);
    dib.header.biWidth = static_cast<LONG>(width);
    dib.header.biHeight = -static_cast<LONG>(height);  // top-down, as GDI+ hands the rows
    dib.header.biPlanes = 1;
    dib.header.biBitCount = static_cast<WORD>(gp::GetPixelFormatSize(format));
    dib.header.biCompression = BI_RGB;
    if (format == PixelFormat16bppRGB565) {
        dib.header.biCompression = BI_BITFIELDS;
        DWORD masks[3] = {0xF800, 0x07E0, 0x001F};
        memcpy(dib.colours, masks, sizeof(masks));
    }
    if ((format & PixelFormatIndexed) && !CopyPalette(bitmap, dib)) return nullptr;
    void* bits = nullptr;
    HBITMAP section = CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&dib), DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!section) return nullptr;
    gp::BitmapData data{};
    data.Width = width;
    data.Height = height;
    data.Stride = static_cast<INT>(((width * dib.header.biBitCount + 31) / 32) * 4);
    data.PixelFormat = format;
    data.Scan0 = bits;
    gp::GpRect whole(0, 0, static_cast<INT>(width), static_cast<INT>(height));
    if (flat::GdipBitmapLockBits(bitmap, &whole, gp::ImageLockModeRead | gp::ImageLockModeUserInputBuf, format,
                                 &data) != gp::Ok) {
        DeleteObject(section);
        return nullptr;
    }
    flat::GdipBitmapUnlockBits(bitmap, &data);
    return section;
}

}  // namespace

Win32Images::~Win32Images() {
    if (started_) gp::GdiplusShutdown(static_cast<ULONG_PTR>(gdiplusToken_));
}

bool Win32Images::StartGdiPlus() {
    if (started_) return true;
    gp::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (gp::GdiplusStartup(&token, &input, nullptr) != gp::Ok) return false;
    gdiplusToken_ = static_cast<uintptr_t>(token);
    started_ = true;
    return true;
}

std::unique_ptr<Picture> Win32Images::Load(const std::wstring& path) {
    if (path.empty() || !StartGdiPlus()) return nullptr;
    GdiPlusBitmap source(path);
    if (!source.get()) return nullptr;
    gp::PixelFormat format = 0;
    UINT width = 0;
    UINT height = 0;
    if (flat::GdipGetImagePixelFormat(source.get(), &format) != gp::Ok ||
        flat::GdipGetImageWidth(source.get(), &width) != gp::Ok ||
        flat::GdipGetImageHeight(source.get(), &height) != gp::Ok || width == 0 || height == 0) {
        return nullptr;
    }
    const gp::PixelFormat target = TargetFormat(format);
    HBITMAP section = ToDibSection(source.get(), target, width, height);
    if (!section) return nullptr;
    return std::make_unique<BitmapPicture>(section, target == PixelFormat32bppARGB);
}

std::unique_ptr<Picture> Win32Images::Thumbnail(const std::wstring& path, int width, int height) {
    IShellItemImageFactory* factory = nullptr;
    if (FAILED(SHCreateItemFromParsingName(path.c_str(), nullptr, IID_PPV_ARGS(&factory)))) return nullptr;
    HBITMAP bitmap = nullptr;
    const HRESULT got = factory->GetImage(SIZE{width, height}, 0, &bitmap);
    factory->Release();
    if (FAILED(got) || !bitmap) return nullptr;
    BITMAP facts{};
    GetObjectW(bitmap, sizeof(facts), &facts);
    return std::make_unique<BitmapPicture>(bitmap, facts.bmBitsPixel == 32);
}

int Win32Images::StripFrameCount(const std::wstring& path) {
    constexpr COLORREF kMask = 0xC0C0C0;
    HIMAGELIST list = ImageList_LoadImageW(nullptr, path.c_str(), 0, 1, kMask, IMAGE_BITMAP,
                                           LR_LOADFROMFILE | LR_CREATEDIBSECTION | LR_SHARED);
    if (!list) return 0;
    const int count = ImageList_GetImageCount(list);
    ImageList_Destroy(list);
    return count;
}

}  // namespace platform::win32
