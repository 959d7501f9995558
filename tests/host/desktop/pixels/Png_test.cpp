#include "tvok/host/desktop/pixels/Png.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>

#include <gmock/gmock.h>

#include "tvok/host/desktop/pixels/ImageList.h"
#include "tvok/host/desktop/pixels/kernels.h"
#include "tvok/records/Error.h"

namespace tvok::soft {
namespace {

using testing::HasSubstr;

std::string OutputFile(const std::string& name) {
    const std::filesystem::path folder = std::filesystem::path(TVOK_TEST_OUTPUT) / "pixels";
    std::filesystem::create_directories(folder);
    return (folder / name).string();
}

std::string Bytes(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void PutBytes(const std::string& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

Surface Picture(std::int32_t width, std::int32_t height) {
    Surface surface(width, height);
    std::mt19937 random(5);
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x) surface.Row(y)[x] = static_cast<Pixel>(random()) & 0xFFFFFF;
    return surface;
}

std::string ErrorOf(const std::string& file) {
    try {
        ReadPng(file);
    } catch (const FileError& error) {
        return error.what();
    }
    return {};
}

TEST(Png, WhatWasWrittenIsReadBackOpaque) {
    const std::string file = OutputFile("round.png");
    const Surface surface = Picture(37, 11);
    WritePng(file, surface);
    const Image image = ReadPng(file);
    ASSERT_EQ(image.width, 37);
    ASSERT_EQ(image.height, 11);
    for (std::int32_t y = 0; y < 11; ++y)
        for (std::int32_t x = 0; x < 37; ++x)
            EXPECT_EQ(image.pixels[static_cast<std::size_t>(y * 37 + x)], surface.Row(y)[x] | 0xFF000000);
}

TEST(Png, AMissingFileIsNamed) {
    EXPECT_THAT(ErrorOf("/nowhere/at-all.png"), HasSubstr("/nowhere/at-all.png"));
    const std::string file = OutputFile("text.png");
    PutBytes(file, "no picture");
    EXPECT_THAT(ErrorOf(file), HasSubstr("text.png"));
}

TEST(Png, EveryCutOffFileIsAnError) {
    const std::string file = OutputFile("whole.png"), cut = OutputFile("cut.png");
    WritePng(file, Picture(40, 40));
    const std::string bytes = Bytes(file);
    for (std::size_t size = 0; size + 12 < bytes.size(); size += 97) { // 12: the end mark may be missing
        PutBytes(cut, bytes.substr(0, size));
        EXPECT_THAT(ErrorOf(cut), HasSubstr("cut.png")) << size << " bytes";
    }
}

TEST(Png, DamagedFilesAreReadOrRefused) {
    const std::string file = OutputFile("sound.png"), damaged = OutputFile("damaged.png");
    WritePng(file, Picture(24, 24));
    const std::string bytes = Bytes(file);
    std::mt19937 random(9);
    for (int round = 0; round < 300; ++round) {
        std::string changed = bytes;
        for (int i = 0; i < 4; ++i) changed[random() % changed.size()] = static_cast<char>(random());
        PutBytes(damaged, changed);
        const std::string error = ErrorOf(damaged);
        if (!error.empty()) {
            EXPECT_THAT(error, HasSubstr("damaged.png"));
        }
    }
}

TEST(Png, WritingWhereNothingCanBeWrittenNamesTheFile) {
    try {
        WritePng("/nowhere/at-all.png", Picture(2, 2));
        FAIL() << "no error";
    } catch (const FileError& error) {
        EXPECT_THAT(error.what(), HasSubstr("/nowhere/at-all.png"));
    }
    EXPECT_THROW(WritePng(OutputFile("empty.png"), Surface()), FileError);
}

TEST(ImageList, CutsAStripAndDrawsInsideTheClip) {
    Surface strip(12, 4);
    Fill(strip, {0, 0, 4, 4}, 0xFF0000);
    Fill(strip, {4, 0, 8, 4}, 0x00FF00);
    Fill(strip, {8, 0, 12, 4}, 0x0000FF);
    const std::string file = OutputFile("strip.png");
    WritePng(file, strip);
    const ImageList list = ImageList::FromPngs({file, file}, 4);
    ASSERT_EQ(list.Count(), 6);
    Surface surface(8, 8);
    EXPECT_TRUE(list.Draw(surface, {3, 3, 6, 6}, 4, 2, 2, true));
    for (std::int32_t y = 0; y < 8; ++y)
        for (std::int32_t x = 0; x < 8; ++x)
            EXPECT_EQ(surface.Row(y)[x], x >= 3 && x < 6 && y >= 3 && y < 6 ? 0x00FF00u : 0u);
    EXPECT_FALSE(list.Draw(surface, {0, 0, 8, 8}, 6, 0, 0, true));
    EXPECT_FALSE(list.Draw(surface, {0, 0, 8, 8}, -1, 0, 0, true));
}

TEST(ImageList, MixesByAlphaOnlyWhenTransparent) {
    const ImageList list({0x00FFFFFF, 0x80FFFFFF, 0xFFFFFFFF, 0x40FFFFFF}, 2);
    Surface surface(2, 2);
    list.Draw(surface, {0, 0, 2, 2}, 0, 0, 0, true);
    EXPECT_EQ(surface.Row(0)[0], 0u);
    EXPECT_EQ(surface.Row(0)[1], 0x808080u);
    EXPECT_EQ(surface.Row(1)[0], 0xFFFFFFu);
    EXPECT_EQ(surface.Row(1)[1], 0x404040u);
    list.Draw(surface, {0, 0, 2, 2}, 0, 0, 0, false);
    EXPECT_EQ(surface.Row(0)[0], 0xFFFFFFu);
}

TEST(ImageList, DrawsNothingFarOutside) {
    const ImageList list(std::vector<std::uint32_t>(16, 0xFFFFFFFF), 4);
    Surface surface(4, 4);
    for (const std::int32_t far : {INT32_MIN, -4, 4, INT32_MAX}) {
        EXPECT_TRUE(list.Draw(surface, {0, 0, 4, 4}, 0, far, 0, true));
        EXPECT_TRUE(list.Draw(surface, {-9, -9, 99, 99}, 0, 0, far, false));
    }
    for (std::int32_t y = 0; y < 4; ++y)
        for (std::int32_t x = 0; x < 4; ++x) EXPECT_EQ(surface.Row(y)[x], 0u);
}

TEST(ImageList, AStripOfAnotherShapeIsAnErrorThatNamesTheFile) {
    const std::string file = OutputFile("odd.png");
    WritePng(file, Picture(10, 4));
    for (const std::int32_t size : {0, -1, 4, 5}) {
        EXPECT_THROW(ImageList::FromPngs({file}, size), FileError) << size;
    }
    EXPECT_EQ(ImageList(std::vector<std::uint32_t>(10), 0).Count(), 0);
    EXPECT_EQ(ImageList(std::vector<std::uint32_t>(10), 3).Count(), 1);
}

} // namespace
} // namespace tvok::soft
