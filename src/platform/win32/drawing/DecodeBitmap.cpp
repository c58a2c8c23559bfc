#include "platform/INativeSmoothDrawing.h"
#include "platform/PictureFile.h"
#include "platform/win32/drawing/CWin32Bitmap.h"
#include "platform/win32/drawing/GdiplusObjects.h"
#include "platform/win32/drawing/Widen.h"

using namespace Gdiplus::DllExports;

std::unique_ptr<INativeBitmap> decodeNativeBitmap(const std::string &path) {
    // GDI+ itself takes many formats, opens pipes, and fills what a cut file lacks.
    if (!pictureFormat(path))
        return nullptr;
    const CNativeSmoothSession session;
    if (!session.isAvailable())
        return nullptr;
    Gdiplus::GpBitmap *opened = nullptr;
    GdipCreateBitmapFromFile(widen(path.c_str()).c_str(), &opened);
    const TGdiplusObject<Gdiplus::GpBitmap> picture(opened);
    HBITMAP converted = nullptr;
    GdipCreateHBITMAPFromBitmap(picture.get(), &converted, /*background*/ 0);
    if (converted == nullptr)
        return nullptr;
    TGdiObject<HBITMAP> handle(converted);
    UINT width = 0, height = 0;
    GdipGetImageWidth(picture.get(), &width);
    GdipGetImageHeight(picture.get(), &height);
    return std::make_unique<CWin32Bitmap>(std::move(handle), static_cast<std::int32_t>(width),
                                          static_cast<std::int32_t>(height));
}
