// Pictures out of the executable, at the sizes that screens ask for.

#include "ui/NamedImages.h"

#include "tests/ui/SamePicture.h"
#include "ui/EmbeddedFiles.h"

#include <gtest/gtest.h>
#include <wx/image.h>
#include <wx/mstream.h>

#include <string>

namespace
{

constexpr const char* name = "png_tool_copy";

wxImage embedded(const std::string& file)
{
    const auto bytes = embeddedFile(file);
    wxMemoryInputStream stream(bytes.data(), bytes.size());
    return wxImage(stream, wxBITMAP_TYPE_PNG);
}

} // namespace

TEST(NamedImages, PictureHasTheSizeOfItsFileAndTwiceThatOnADenseScreen)
{
    const wxBitmapBundle picture = namedImage(name);
    ASSERT_TRUE(picture.IsOk());
    const wxSize size = embedded(name).GetSize();
    EXPECT_EQ(picture.GetDefaultSize(), size);
    EXPECT_EQ(picture.GetPreferredBitmapSizeAtScale(1), size);
    EXPECT_EQ(picture.GetPreferredBitmapSizeAtScale(2), size * 2);
}

TEST(NamedImages, EachScaleShowsItsOwnFile)
{
    const wxBitmapBundle picture = namedImage(name);
    const wxSize size = picture.GetDefaultSize();
    EXPECT_TRUE(samePicture(picture.GetBitmap(size).ConvertToImage(), embedded(name)));
    EXPECT_TRUE(samePicture(picture.GetBitmap(size * 2).ConvertToImage(), embedded(std::string(name) + "@2x")));
}

TEST(NamedImages, AnyOtherSizeIsMadeOfTheTwo)
{
    const wxBitmapBundle picture = namedImage(name);
    const wxSize size = picture.GetDefaultSize() * 3;
    EXPECT_EQ(picture.GetBitmap(size).GetSize(), size);
}

TEST(NamedImages, AnUnknownNameGivesNoPicture)
{
    EXPECT_FALSE(namedImage("png_tool_nonsense").IsOk());
    EXPECT_TRUE(namedIcon("icon_nonsense").IsEmpty());
}

TEST(NamedImages, TheProgramsIconComesAtTwoSizes)
{
    EXPECT_EQ(namedIcon("icon_program").GetIconCount(), 2U);
}
