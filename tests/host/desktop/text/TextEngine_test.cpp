#include "tvok/host/desktop/text/TextEngine.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

#include <gmock/gmock.h>

#include "tvok/host/desktop/pixels/kernels.h"
#include "tvok/records/Error.h"
#include "tvok/records/text.h"

namespace tvok::soft {
namespace {

using testing::HasSubstr;

constexpr const char* pinned = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
constexpr Pixel white = 0xFFFFFF;

class TextEngineTest : public testing::Test {
protected:
    FontId Font(std::int32_t pixels = 12, bool bold = false, bool italic = false) {
        return engine.Find({"", pixels, bold, italic});
    }

    /// The text in black on white, with room around it; how wide it was drawn goes to `drawn`.
    Surface Picture(FontId font, std::string_view text) {
        Surface surface(400, 60);
        Fill(surface, BoundsOf(surface), white);
        drawn = engine.Draw(surface, BoundsOf(surface), 100, 20, font, text, 0);
        return surface;
    }

    TextEngine engine{pinned};
    std::int32_t drawn = 0;
};

std::vector<Pixel> PixelsOf(const Surface& surface) {
    std::vector<Pixel> pixels;
    for (std::int32_t y = 0; y < surface.Height(); ++y)
        pixels.insert(pixels.end(), surface.Row(y), surface.Row(y) + surface.Width());
    return pixels;
}

/// The smallest rectangle with everything that is not white.
tvok_Rect InkOf(const Surface& surface) {
    tvok_Rect ink{surface.Width(), surface.Height(), 0, 0};
    for (std::int32_t y = 0; y < surface.Height(); ++y)
        for (std::int32_t x = 0; x < surface.Width(); ++x) {
            if (surface.Row(y)[x] == white) continue;
            ink = {std::min(ink.Left, x), std::min(ink.Top, y), std::max(ink.Right, x + 1),
                   std::max(ink.bottom, y + 1)};
        }
    return ink;
}

std::int64_t Darkness(const Surface& surface) {
    std::int64_t sum = 0;
    for (const Pixel pixel : PixelsOf(surface)) sum += 255 - (pixel & 0xFF);
    return sum;
}

/// Texts of many scripts, marks, emoji, controls and bytes that are no characters.
std::string RandomText(std::mt19937& random) {
    static const std::vector<std::string> parts = {
        "a",       "W",      "fi", " ",          "é",        "e\u0301", "ß",       "Ω",        "ж",
        "ქ",       "中",     "の", "한",         "ᄒ\u1161", "ש",       "ב\u05B0", "س",        "لا",
        "م",       "٣",      "क",  "क्षि",        "ไ",        "ก\u0E34", "😀",       "👩\u200D👩", "🇩🇪",
        "☺\uFE0F", "\u200F", "\t", "\r\n",       "\x01",     "\x7F",    "\xFF",    "\xE4\xB8", "\xC0\x80",
        "(",       ")",      "1",  "\U0010FFFD", "\u00AD",   "=",       "-"};
    std::string text;
    for (std::size_t i = random() % 14; i > 0; --i) text += parts[random() % parts.size()];
    if (random() % 8 == 0) text += '\0';
    return text;
}

TEST_F(TextEngineTest, TheSameSpecGivesTheSameFont) {
    EXPECT_EQ(Font(), Font());
    EXPECT_NE(Font(), Font(13));
    EXPECT_NE(Font(), Font(12, true));
    EXPECT_NE(Font(), 0);
}

TEST_F(TextEngineTest, MetricsGrowWithTheSize) {
    const FontMetrics& small = engine.Metrics(Font(12));
    const FontMetrics& large = engine.Metrics(Font(48));
    EXPECT_EQ(small.height, small.ascent + small.descent);
    EXPECT_GT(small.ascent, small.strikeout);
    EXPECT_GE(small.underline, 1);
    EXPECT_LE(small.underline, small.descent);
    EXPECT_EQ(small.lineWidth, 1);
    EXPECT_GT(large.ascent, 3 * small.ascent);
    EXPECT_GT(large.lineWidth, 1);
}

TEST_F(TextEngineTest, AnIdThatNamesNoFontIsAnError) {
    EXPECT_THROW(engine.Metrics(0), ObjectError);
    EXPECT_THROW(engine.Measure(-1, "a"), ObjectError);
    EXPECT_THROW(engine.Measure(7, "a"), ObjectError);
}

TEST_F(TextEngineTest, AWidthIsTheSumOfItsCharactersWithoutKerning) {
    const FontId font = Font(40);
    const std::string text = "AVATo fifflé Ωж";
    std::int32_t sum = 0;
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t begin = place;
        NextCharacter(text, place);
        sum += engine.Measure(font, std::string_view(text).substr(begin, place - begin));
    }
    EXPECT_EQ(engine.Measure(font, text), sum);
    EXPECT_EQ(engine.Measure(font, text + "e\u0301"), sum + engine.Measure(font, "é"))
        << "a mark brings in the shaper, and the rest stays as wide";
    EXPECT_EQ(engine.Measure(font, ""), 0);
}

TEST_F(TextEngineTest, DrawingAdvancesByWhatWasMeasuredForRandomTexts) {
    std::mt19937 random(1);
    Surface surface(64, 32);
    for (int round = 0; round < 3000; ++round) {
        const std::string text = RandomText(random);
        const FontId font = Font(8 + static_cast<std::int32_t>(random() % 3) * 7, random() % 4 == 0);
        const std::int32_t width = engine.Measure(font, text);
        EXPECT_EQ(engine.Draw(surface, {0, 0, 64, 32}, -9, 2, font, text, white), width) << text;
    }
}

TEST_F(TextEngineTest, FitGivesTheLongestBeginningThatFits) {
    std::mt19937 random(2);
    for (int round = 0; round < 1500; ++round) {
        const std::string text = RandomText(random);
        const auto width = static_cast<std::int32_t>(random() % 120);
        const std::size_t fit = engine.Fit(Font(), text, width);
        ASSERT_LE(fit, text.size());
        EXPECT_LE(engine.Measure(Font(), text.substr(0, fit)), width) << text;
        if (engine.Measure(Font(), text) <= width) {
            EXPECT_EQ(fit, text.size()) << text;
        }
    }
    EXPECT_EQ(engine.Fit(Font(), "abc", -5), 0u);
}

TEST_F(TextEngineTest, FitOfPlainTextIsTheLongestByEveryCut) {
    const std::string text = "Grüße an 中文 und Ω";
    for (std::int32_t width = -1; width < 160; ++width) {
        std::size_t longest = 0;
        for (std::size_t place = 0; place < text.size();) {
            NextCharacter(text, place);
            if (engine.Measure(Font(), text.substr(0, place)) <= width) longest = place;
        }
        EXPECT_EQ(engine.Fit(Font(), text, width), longest) << width;
    }
}

TEST_F(TextEngineTest, FitKeepsAMarkWithItsBase) {
    const std::string text = "xe\u0301y";
    const std::int32_t width = engine.Measure(Font(), "xe");
    EXPECT_EQ(engine.Fit(Font(), text, width), 4u);
    EXPECT_EQ(engine.Fit(Font(), text, width - 1), 1u);
}

TEST_F(TextEngineTest, OffsetAtGivesTheNearestEdge) {
    for (const std::string text : {"mimi", "m\u00E9mi", "me\u0301mi"}) {
        const std::int32_t first = engine.Measure(Font(), "m");
        const std::size_t second = engine.Fit(Font(), text, engine.Measure(Font(), "me"));
        EXPECT_EQ(engine.OffsetAt(Font(), text, -10), 0u);
        EXPECT_EQ(engine.OffsetAt(Font(), text, first / 2 - 1), 0u);
        EXPECT_EQ(engine.OffsetAt(Font(), text, first / 2 + 1), 1u);
        EXPECT_EQ(engine.OffsetAt(Font(), text, engine.Measure(Font(), "me")), second) << text;
        EXPECT_EQ(engine.OffsetAt(Font(), text, 1000), text.size());
    }
}

TEST_F(TextEngineTest, InkStaysInsideTheLineAndItsWidth) {
    const FontMetrics& metrics = engine.Metrics(Font());
    const tvok_Rect ink = InkOf(Picture(Font(), "Hxg"));
    EXPECT_GE(ink.Left, 100);
    EXPECT_LE(ink.Right, 100 + drawn);
    EXPECT_GE(ink.Top, 20);
    EXPECT_LE(ink.bottom, 20 + metrics.height);
    EXPECT_EQ(InkOf(Picture(Font(), "H")).bottom, 20 + metrics.ascent) << "letters stand on the baseline";
}

TEST_F(TextEngineTest, NothingIsDrawnOutsideTheClip) {
    for (const std::string text : {"The quick Ωж", "e\u0301e\u0301 שלום"}) {
        const Surface whole = Picture(Font(), text);
        for (std::int32_t left = 96; left < 120; ++left) {
            const tvok_Rect clip{left, 24, left + 9, 31};
            Surface part(400, 60);
            Fill(part, BoundsOf(part), white);
            engine.Draw(part, clip, 100, 20, Font(), text, 0);
            for (std::int32_t y = 0; y < 60; ++y)
                for (std::int32_t x = 0; x < 400; ++x) {
                    const bool inside = x >= clip.Left && x < clip.Right && y >= clip.Top && y < clip.bottom;
                    ASSERT_EQ(part.Row(y)[x], inside ? whole.Row(y)[x] : white);
                }
        }
    }
}

TEST_F(TextEngineTest, FarPlacesAndEmptySurfacesDrawNothing) {
    Surface surface(10, 10), none;
    for (const std::int32_t far : {INT32_MIN, -5000, 5000, INT32_MAX}) {
        engine.Draw(surface, {0, 0, 10, 10}, far, 0, Font(), "text", white);
        engine.Draw(surface, {-100, -100, 100, 100}, 0, far, Font(), "te\u0301xt", white);
        engine.Draw(none, {0, 0, 10, 10}, 0, 0, Font(), "text", white);
    }
    EXPECT_EQ(PixelsOf(surface), std::vector<Pixel>(100));
}

TEST_F(TextEngineTest, BytesThatAreNoCharactersShowAsReplacementCharacters) {
    EXPECT_EQ(PixelsOf(Picture(Font(), "a\xFF"
                                       "b")),
              PixelsOf(Picture(Font(), "a\uFFFDb")));
    EXPECT_EQ(PixelsOf(Picture(Font(), "\xE4\xB8")), PixelsOf(Picture(Font(), "\uFFFD\uFFFD")));
    EXPECT_EQ(PixelsOf(Picture(Font(), std::string_view("\0", 1))), PixelsOf(Picture(Font(), "\uFFFD")));
    EXPECT_EQ(PixelsOf(Picture(Font(), "\x01\x7F")), PixelsOf(Picture(Font(), "\uFFFD\uFFFD")));
}

TEST_F(TextEngineTest, TabsAreBlanksAndLineEndsHaveNoWidth) {
    EXPECT_EQ(engine.Measure(Font(), "a\tb"), engine.Measure(Font(), "a b"));
    EXPECT_EQ(engine.Measure(Font(), "a\r\nb"), engine.Measure(Font(), "ab"));
    EXPECT_EQ(engine.Measure(Font(), "e\u0301\r\nb"), engine.Measure(Font(), "e\u0301"
                                                                             "b"));
}

TEST_F(TextEngineTest, AMarkStandsOverItsBase) {
    const std::int32_t base = engine.Measure(Font(24), "x");
    const tvok_Rect bare = InkOf(Picture(Font(24), "x")), marked = InkOf(Picture(Font(24), "x\u0301"));
    EXPECT_EQ(drawn, base);
    EXPECT_LT(marked.Top, bare.Top);
    EXPECT_EQ(marked.bottom, bare.bottom);
}

TEST_F(TextEngineTest, ArabicLettersJoin) {
    const FontId font = Font(24);
    const std::int32_t apart = 3 * engine.Measure(font, "\u0628");
    EXPECT_NE(engine.Measure(font, "\u0628\u0628\u0628"), apart);
    EXPECT_LT(engine.Measure(font, "\u0644\u0627"),
              engine.Measure(font, "\u0644") + engine.Measure(font, "\u0627"));
}

TEST_F(TextEngineTest, HebrewRunsFromRightToLeft) {
    const FontId font = Font(24);
    const std::string alef = "\u05D0", vav = "\u05D5";
    EXPECT_EQ(PixelsOf(Picture(font, "a " + alef + vav + " b")).size(), 400u * 60);
    const std::int32_t start = engine.Measure(font, "a ");
    Surface expected(400, 60);
    Fill(expected, BoundsOf(expected), white);
    engine.Draw(expected, BoundsOf(expected), 100, 20, font, "a ", 0);
    engine.Draw(expected, BoundsOf(expected), 100 + start, 20, font, vav, 0);
    engine.Draw(expected, BoundsOf(expected), 100 + start + engine.Measure(font, vav), 20, font, alef, 0);
    engine.Draw(expected, BoundsOf(expected), 100 + start + engine.Measure(font, vav + alef), 20, font, " b",
                0);
    EXPECT_EQ(PixelsOf(Picture(font, "a " + alef + vav + " b")), PixelsOf(expected));
}

TEST_F(TextEngineTest, BoldAndItalicAreMadeFromAPinnedFace) {
    EXPECT_GT(Darkness(Picture(Font(16, true), "bold")), Darkness(Picture(Font(16), "bold")));
    EXPECT_GT(engine.Measure(Font(16, true), "bold"), engine.Measure(Font(16), "bold"));
    EXPECT_NE(PixelsOf(Picture(Font(16, false, true), "l")), PixelsOf(Picture(Font(16), "l")));
    EXPECT_EQ(engine.Measure(Font(16, false, true), "l"), engine.Measure(Font(16), "l"));
}

TEST_F(TextEngineTest, AbsurdSizesAreDrawn) {
    for (const std::int32_t pixels : {INT32_MIN, -1, 0, 1, 1999, INT32_MAX}) {
        const FontId font = Font(pixels);
        EXPECT_GE(engine.Metrics(font).height, 1) << pixels;
        Picture(font, "Ag e\u0301");
    }
}

TEST_F(TextEngineTest, WhatWasDrawnBeforeIsDrawnAlikeAgain) {
    const std::vector<Pixel> first = PixelsOf(Picture(Font(), "سلام e\u0301"));
    for (int i = 0; i < 6000; ++i)
        engine.Measure(Font(), "e\u0301" + std::to_string(i)); // more than are kept
    EXPECT_EQ(PixelsOf(Picture(Font(), "سلام e\u0301")), first);
}

TEST_F(TextEngineTest, LongTextsOfAnyKindAreMeasured) {
    const std::string plain(100'000, 'x'), mixed = plain + "e\u0301";
    EXPECT_EQ(engine.Measure(Font(), plain), 100'000 * engine.Measure(Font(), "x"));
    EXPECT_EQ(engine.Measure(Font(), mixed),
              100'000 * engine.Measure(Font(), "x") + engine.Measure(Font(), "e"));
    EXPECT_EQ(engine.Fit(Font(), mixed, 10 * engine.Measure(Font(), "x")), 10u);
}

TEST(TextEngine, AFontFileThatIsNoneIsAnErrorThatNamesIt) {
    TextEngine missing("/nowhere/font.ttf");
    try {
        missing.Find({});
        FAIL() << "no error";
    } catch (const ResourceError& error) {
        EXPECT_THAT(error.what(), HasSubstr("/nowhere/font.ttf"));
    }
}

TEST(TextEngine, TheEnvironmentDoesNotChangeGlyphs) {
    const auto draw = [] {
        TextEngine engine(pinned);
        Surface surface(100, 30);
        engine.Draw(surface, {0, 0, 100, 30}, 0, 0, engine.Find({"", 13}), "Hinted", white);
        return PixelsOf(surface);
    };
    const auto before = draw();
    setenv("FREETYPE_PROPERTIES", "truetype:interpreter-version=35", 1);
    const auto after = draw();
    unsetenv("FREETYPE_PROPERTIES");
    EXPECT_EQ(after, before);
}

TEST(TextEngine, WithoutAnyFontTheErrorSaysWhatToInstall) {
    const auto file = std::filesystem::absolute(TVOK_TEST_OUTPUT) / "no-fonts.conf";
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig/>";
    setenv("FONTCONFIG_FILE", file.c_str(), 1);
    TextEngine engine;
    std::string message;
    try {
        engine.Find({});
    } catch (const ResourceError& error) {
        message = error.what();
    }
    TextEngine alone(pinned);
    EXPECT_GT(alone.Measure(alone.Find({}), "中\u0915"), 0) << "characters of no font show as boxes";
    unsetenv("FONTCONFIG_FILE");
    EXPECT_THAT(message, HasSubstr("fonts-dejavu-core"));
}

/// A font of ready pictures, 16 pixels high, whose only letter is a black box of 8 by 16.
std::string PictureFont() {
    const auto file = std::filesystem::absolute(TVOK_TEST_OUTPUT) / "boxes.bdf";
    std::ofstream out(file);
    out << "STARTFONT 2.1\nFONT -t-box-medium-r-normal--16-160-72-72-c-80-iso10646-1\nSIZE 16 72 72\n"
           "FONTBOUNDINGBOX 8 16 0 -4\nSTARTPROPERTIES 4\nFONT_ASCENT 12\nFONT_DESCENT 4\n"
           "CHARSET_REGISTRY \"ISO10646\"\nCHARSET_ENCODING \"1\"\nENDPROPERTIES\nCHARS 1\n"
           "STARTCHAR A\nENCODING 65\nSWIDTH 500 0\nDWIDTH 8 0\nBBX 8 16 0 -4\nBITMAP\n";
    for (int row = 0; row < 16; ++row) out << "FF\n";
    out << "ENDCHAR\nENDFONT\n";
    return file.string();
}

TEST(TextEngine, AFontOfReadyPicturesIsScaledToTheSize) {
    TextEngine engine(PictureFont());
    for (const std::int32_t pixels : {8, 16, 32}) {
        const FontId font = engine.Find({"", pixels, true, true});
        EXPECT_EQ(engine.Metrics(font).height, pixels);
        EXPECT_EQ(engine.Measure(font, "AA"), pixels);
        Surface surface(100, 60);
        Fill(surface, BoundsOf(surface), white);
        engine.Draw(surface, BoundsOf(surface), 10, 5, font, "A", 0);
        EXPECT_EQ(InkOf(surface), (tvok_Rect{10, 5, 10 + pixels / 2, 5 + pixels}));
        EXPECT_EQ(surface.Row(6)[11], 0u);
    }
}

TEST(TextEngine, CharactersThatTheFontLacksComeFromOthers) {
    const std::filesystem::path fonts = "/usr/share/fonts";
    if (!exists(fonts / "opentype/noto/NotoSansCJK-Regular.ttc") ||
        !exists(fonts / "truetype/noto/NotoSansDevanagari-Regular.ttf"))
        GTEST_SKIP() << "needs the packages fonts-noto-cjk and fonts-noto-core";
    TextEngine engine(pinned);
    const FontId font = engine.Find({"", 20});
    const std::int32_t box = engine.Measure(font, "\U0010FFFD"); // no font has it
    EXPECT_NE(engine.Measure(font, "中"), box);
    EXPECT_EQ(engine.Measure(font, "中文字"), 60) << "ideographs fill their square";
    EXPECT_NE(engine.Measure(font, "का"), 2 * box);
}

TEST(TextEngine, FindsFacesByName) {
    TextEngine engine;
    const FontId regular = engine.Find({"DejaVu Sans", 20}), bold = engine.Find({"DejaVu Sans", 20, true});
    TextEngine fixed(pinned);
    EXPECT_EQ(engine.Measure(regular, "Hamburg"), fixed.Measure(fixed.Find({"", 20}), "Hamburg"));
    EXPECT_GT(engine.Measure(bold, "Hamburg"), engine.Measure(regular, "Hamburg"));
    EXPECT_GT(engine.Measure(engine.Find({"No Such Font At All", 20}), "x"), 0);
}

} // namespace
} // namespace tvok::soft
