#include "tvok/host/desktop/shell/Language.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <unicode/unistr.h>

#include "tvok/host/desktop/shell/AsciiOrder.h"

namespace tvok::soft {
namespace {

/// A language of its own, straight from ICU, to compare with.
class PlainCollator {
public:
    explicit PlainCollator(const std::string& language) {
        UErrorCode status = U_ZERO_ERROR;
        collator_ = ucol_open(language.c_str(), &status);
        ucol_setStrength(collator_, UCOL_SECONDARY);
        ucol_setAttribute(collator_, UCOL_NORMALIZATION_MODE, UCOL_ON, &status);
    }
    ~PlainCollator() { ucol_close(collator_); }
    PlainCollator(const PlainCollator&) = delete;
    PlainCollator& operator=(const PlainCollator&) = delete;

    const UCollator* get() const { return collator_; }
    std::string Key(std::string_view text) const {
        const icu::UnicodeString wide =
            icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
        std::string key;
        AppendSortKey(collator_, wide.getBuffer(), wide.length(), key);
        return key;
    }
    int Compare(std::string_view a, std::string_view b) const {
        UErrorCode status = U_ZERO_ERROR;
        return ucol_strcollUTF8(collator_, a.data(), static_cast<std::int32_t>(a.size()), b.data(),
                                static_cast<std::int32_t>(b.size()), &status);
    }

private:
    UCollator* collator_ = nullptr;
};

const std::vector<std::string> Languages{"en", "de", "cs", "da", "hr", "hu",    "es",    "fr_CA", "ru", "el",
                                         "tr", "lt", "th", "ja", "ko", "zh_TW", "zh_CN", "sv",    "cy", "ar"};

std::string RandomText(std::mt19937& random, std::string_view alphabet, std::size_t longest) {
    std::string text(random() % (longest + 1), ' ');
    for (char& character : text) character = alphabet[random() % alphabet.size()];
    return text;
}

std::string KeyOf(const host::Language& language, std::string_view text) {
    std::string key = "left from before";
    language.SortKey(text, key);
    return key;
}

int Sign(int value) {
    return value < 0 ? -1 : value > 0 ? 1 : 0;
}

TEST(Language, KeysOfTwoAsciiCharactersAreTheCollatorsOwnInEveryLanguage) {
    for (const std::string& name : Languages) {
        const PlainCollator plain(name);
        const auto language = MakeLanguage(name);
        for (int first = 0; first < 128; ++first)
            for (int second = 0; second < 128; ++second) {
                const std::string text{static_cast<char>(first), static_cast<char>(second)};
                ASSERT_EQ(KeyOf(*language, text), plain.Key(text)) << name << ": " << first << ' ' << second;
            }
    }
}

TEST(Language, KeysOfRandomAsciiTextsAreTheCollatorsOwnInEveryLanguage) {
    std::string alphabet;
    for (char character = 32; character < 127; ++character) alphabet += character;
    std::mt19937 random(1);
    for (const std::string& name : Languages) {
        const PlainCollator plain(name);
        const auto language = MakeLanguage(name);
        for (int i = 0; i < 2000; ++i) {
            const std::string text = RandomText(random, alphabet, i % 50 == 0 ? 600 : 30);
            ASSERT_EQ(KeyOf(*language, text), plain.Key(text)) << name << ": " << text;
        }
    }
}

TEST(Language, ComparisonAgreesWithTheCollatorOnRandomTexts) {
    const std::string_view alphabet = "aAbBcChHzZ -_.09dDlLjJ";
    std::mt19937 random(2);
    for (const std::string& name : Languages) {
        const PlainCollator plain(name);
        const auto language = MakeLanguage(name);
        for (int i = 0; i < 3000; ++i) {
            const std::string a = RandomText(random, alphabet, 6);
            const std::string b = RandomText(random, alphabet, 6);
            ASSERT_EQ(language->CompareText(a, b), plain.Compare(a, b)) << name << ": " << a << " | " << b;
        }
    }
}

TEST(Language, KeysOrderAsComparisonDoesAlsoForBytesThatAreNotText) {
    std::mt19937 random(3);
    constexpr char bytesAndZero[] = "aB\0\xC3\xA4\xC3\x84\xFF\xE2\x82\xCC\x88\xF0\x9F\x98\x80 \x80zZ";
    const std::string_view bytes(bytesAndZero, sizeof bytesAndZero - 1);
    for (const std::string& name : Languages) {
        const auto language = MakeLanguage(name);
        for (int i = 0; i < 3000; ++i) {
            const std::string a = RandomText(random, bytes, 8);
            const std::string b = RandomText(random, bytes, 8);
            const int byKey = Sign(KeyOf(*language, a).compare(KeyOf(*language, b)));
            ASSERT_EQ(language->CompareText(a, b), byKey)
                << name << ": " << testing::PrintToString(a) << " | " << testing::PrintToString(b);
        }
    }
}

TEST(Language, MostAsciiTextIsLookedUpInEnglish) {
    const AsciiOrder order(PlainCollator("en").get());
    for (char character = 32; character < 127; ++character)
        EXPECT_TRUE(order.IsPlain(std::string(1, character))) << character;
    EXPECT_FALSE(order.IsPlain("caf\xC3\xA9"));
    EXPECT_FALSE(order.IsPlain(std::string_view("\0", 1)));
}

TEST(Language, LettersOfTwoCharactersAreLeftToTheCollator) {
    const AsciiOrder order(PlainCollator("cs").get());
    EXPECT_FALSE(order.IsPlain("ch"));
    EXPECT_TRUE(order.IsPlain("dobry den"));
    EXPECT_FALSE(AsciiOrder(PlainCollator("da").get()).IsPlain("a"));
}

TEST(Language, CaseIsIgnoredAndAccentsAreNot) {
    const auto language = MakeLanguage("en");
    EXPECT_EQ(language->CompareText("Apple", "aPPLE"), 0);
    EXPECT_EQ(language->CompareText("apple", "Banana"), -1);
    EXPECT_EQ(language->CompareText("Banana", "apple"), 1);
    EXPECT_EQ(language->CompareText("", ""), 0);
    EXPECT_EQ(language->CompareText("", "a"), -1);
    EXPECT_EQ(language->CompareText("\xC3\x84", "\xC3\xA4"), 0);
    EXPECT_EQ(language->CompareText("a", "\xC3\xA4"), -1);
}

TEST(Language, OrderFollowsTheLanguage) {
    const std::string_view aRing = "\xC3\xA5";
    EXPECT_EQ(MakeLanguage("en")->CompareText(aRing, "z"), -1);
    EXPECT_EQ(MakeLanguage("sv")->CompareText(aRing, "z"), 1);
    EXPECT_EQ(MakeLanguage("en")->CompareText("ch", "h"), -1);
    EXPECT_EQ(MakeLanguage("cs")->CompareText("ch", "h"), 1);
}

TEST(Language, UpperCaseFollowsTheLanguage) {
    EXPECT_EQ(MakeLanguage("en")->UpperCase("title i"), "TITLE I");
    EXPECT_EQ(MakeLanguage("tr")->UpperCase("title i"), "T\xC4\xB0TLE \xC4\xB0");
    EXPECT_EQ(MakeLanguage("tr")->UpperCase("\xC4\xB1"), "I");
    EXPECT_EQ(MakeLanguage("de")->UpperCase("stra\xC3\x9F"
                                            "e"),
              "STRASSE");
    EXPECT_EQ(MakeLanguage("ru")->UpperCase("\xD0\xB6"), "\xD0\x96");
}

TEST(Language, UpperCaseTakesEmptyTextZeroBytesAndBytesThatAreNotText) {
    const auto language = MakeLanguage("en");
    EXPECT_EQ(language->UpperCase(""), "");
    EXPECT_EQ(language->UpperCase(std::string_view("a\0b", 3)), std::string_view("A\0B", 3));
    EXPECT_EQ(language->UpperCase("a\xFF"
                                  "b"),
              "A\xFF"
              "B");
    EXPECT_EQ(language->UpperCase(std::string(100, '\xC3')), std::string(100, '\xC3'));
}

TEST(Language, SortingByKeysIsSortingByComparison) {
    const auto language = MakeLanguage("de");
    std::vector<std::string> texts{"z",  "\xC3\xB6", "o", "Zoo",      "Ofen", "zoo",
                                   "10", "9",        "-", "\xC3\x9F", "ss"};
    std::vector<std::string> byKey = texts;
    std::ranges::stable_sort(texts, [&](auto& a, auto& b) { return language->CompareText(a, b) < 0; });
    std::ranges::stable_sort(byKey,
                             [&](auto& a, auto& b) { return KeyOf(*language, a) < KeyOf(*language, b); });
    EXPECT_EQ(texts, byKey);
}

TEST(Language, AnUnknownLanguageHasTheOrderOfAllLanguages) {
    EXPECT_EQ(MakeLanguage("not a language")->CompareText("a", "B"), -1);
    EXPECT_EQ(MakeLanguage("xx_YY")->CompareText("A", "a"), 0);
}

TEST(LanguageName, LeavesEncodingAndModifierOut) {
    EXPECT_EQ(LanguageName("zh_TW.UTF-8"), "zh_TW");
    EXPECT_EQ(LanguageName("de-AT@euro"), "de_AT");
    EXPECT_EQ(LanguageName("C.UTF-8"), "en");
    EXPECT_EQ(LanguageName("POSIX"), "en");
}

TEST(LanguageName, ComesFromTheEnvironmentWhereNoneIsWanted) {
    const char* before = std::getenv("LC_ALL");
    const std::string kept = before != nullptr ? before : "";
    setenv("LC_ALL", "tr_TR.UTF-8", 1);
    EXPECT_EQ(LanguageName(""), "tr_TR");
    EXPECT_EQ(LanguageName("en"), "en");
    before != nullptr ? setenv("LC_ALL", kept.c_str(), 1) : unsetenv("LC_ALL");
}

} // namespace
} // namespace tvok::soft
