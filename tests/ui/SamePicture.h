#pragma once

#include <wx/bitmap.h>
#include <wx/image.h>

#include <algorithm>

/// Whether two pictures are alike in size, in every pixel's colour and in what shines through; false without a picture.
inline bool samePicture(const wxImage& one, const wxImage& other)
{
    if (!one.IsOk() || !other.IsOk() || one.GetSize() != other.GetSize() || one.HasAlpha() != other.HasAlpha())
        return false;
    const auto pixels = static_cast<std::size_t>(one.GetWidth()) * static_cast<std::size_t>(one.GetHeight());
    return std::equal(one.GetData(), one.GetData() + pixels * 3, other.GetData()) &&
           (!one.HasAlpha() || std::equal(one.GetAlpha(), one.GetAlpha() + pixels, other.GetAlpha()));
}

inline bool samePicture(const wxBitmap& one, const wxBitmap& other)
{
    return one.IsOk() && other.IsOk() && samePicture(one.ConvertToImage(), other.ConvertToImage());
}
