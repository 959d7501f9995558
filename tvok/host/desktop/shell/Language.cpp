#include "tvok/host/desktop/shell/Language.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

#include <unicode/ucasemap.h>
#include <unicode/ucol.h>
#include <unicode/ustring.h>

#include "tvok/host/desktop/shell/AsciiOrder.h"
#include "tvok/records/Error.h"
#include "tvok/records/numeric.h"

namespace tvok::soft {

namespace {

std::string UserLanguage() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const char* value = std::getenv(variable); value != nullptr && *value != '\0') return value;
    return {};
}

using CollatorPtr = std::unique_ptr<UCollator, decltype(&ucol_close)>;
using CaseMapPtr = std::unique_ptr<UCaseMap, decltype(&ucasemap_close)>;

CollatorPtr OpenCollator(const std::string& language) {
    UErrorCode status = U_ZERO_ERROR;
    CollatorPtr collator(ucol_open(language.c_str(), &status), &ucol_close);
    if (U_FAILURE(status)) {
        status = U_ZERO_ERROR;
        collator.reset(ucol_open("", &status));
    }
    if (U_FAILURE(status)) throw ResourceError("no language data on this machine: install ICU's data");
    ucol_setStrength(collator.get(), UCOL_SECONDARY);
    ucol_setAttribute(collator.get(), UCOL_NORMALIZATION_MODE, UCOL_ON, &status);
    return collator;
}

CaseMapPtr OpenCaseMap(const std::string& language) {
    UErrorCode status = U_ZERO_ERROR;
    CaseMapPtr map(ucasemap_open(language.c_str(), 0, &status), &ucasemap_close);
    if (U_FAILURE(status)) throw ResourceError("no language data on this machine: install ICU's data");
    return map;
}

std::int32_t LengthOf(std::string_view text) {
    return ToInt32(static_cast<std::int64_t>(text.size()));
}

class IcuLanguage : public host::Language {
public:
    explicit IcuLanguage(const std::string& language)
        : collator_(OpenCollator(language)), caseMap_(OpenCaseMap(language)) {
        Fill(upper_, &ucasemap_utf8ToUpper);
        Fill(lower_, &ucasemap_utf8ToLower);
    }

    std::string UpperCase(std::string_view text) const override {
        return MapCase(text, upper_, &ucasemap_utf8ToUpper);
    }
    std::string LowerCase(std::string_view text) const override {
        return MapCase(text, lower_, &ucasemap_utf8ToLower);
    }

    int CompareText(std::string_view a, std::string_view b) const override {
        if (Ascii().IsPlain(a) && Ascii().IsPlain(b)) return Ascii().Compare(a, b);
        UErrorCode status = U_ZERO_ERROR;
        const UCollationResult result =
            ucol_strcollUTF8(collator_.get(), a.data(), LengthOf(a), b.data(), LengthOf(b), &status);
        return result == UCOL_EQUAL ? 0 : result == UCOL_LESS ? -1 : 1;
    }

    void SortKey(std::string_view text, std::string& key) const override {
        if (Ascii().SortKey(text, key)) return;
        if (wide_.size() < text.size() + 1) wide_.resize(text.size() + 1);
        std::int32_t length = 0;
        UErrorCode status = U_ZERO_ERROR;
        u_strFromUTF8WithSub(wide_.data(), ToInt32(static_cast<std::int64_t>(wide_.size())), &length,
                             text.data(), LengthOf(text), 0xFFFD, nullptr, &status);
        key.clear();
        AppendSortKey(collator_.get(), wide_.data(), length, key);
    }

private:
    const AsciiOrder& Ascii() const {
        if (!ascii_) ascii_ = std::make_unique<const AsciiOrder>(collator_.get());
        return *ascii_;
    }

    using Mapping = decltype(&ucasemap_utf8ToUpper);

    /// What the letters of ASCII become. Only characters whose counterpart is one byte are in it: 0 for
    /// others.
    using AsciiCase = std::array<char, 128>;

    void Fill(AsciiCase& table, Mapping mapping) const {
        for (std::size_t place = 1; place < table.size(); ++place) {
            const std::string mapped = Map(std::string(1, static_cast<char>(place)), mapping);
            table[place] = mapped.size() == 1 ? mapped.front() : '\0';
        }
    }

    std::string MapCase(std::string_view text, const AsciiCase& table, Mapping mapping) const {
        std::string mapped(text);
        for (char& character : mapped) {
            const auto place = static_cast<unsigned char>(character);
            if (place == 0) continue;
            if (place >= table.size() || table[place] == '\0') return Map(text, mapping);
            character = table[place];
        }
        return mapped;
    }

    std::string Map(std::string_view text, Mapping mapping) const {
        std::string mapped(text.size() + 16, '\0');
        const auto map = [&] {
            UErrorCode status = U_ZERO_ERROR;
            return mapping(caseMap_.get(), mapped.data(), LengthOf(mapped), text.data(), LengthOf(text),
                           &status);
        };
        std::int32_t size = map();
        if (static_cast<std::size_t>(size) > mapped.size()) {
            mapped.resize(static_cast<std::size_t>(size));
            size = map();
        }
        mapped.resize(static_cast<std::size_t>(std::max(size, 0)));
        return mapped;
    }

    CollatorPtr collator_;
    CaseMapPtr caseMap_;
    mutable std::unique_ptr<const AsciiOrder> ascii_; ///< Read at the first use: it takes some milliseconds.
    AsciiCase upper_{};
    AsciiCase lower_{};
    mutable std::vector<UChar> wide_;
};

} // namespace

std::string LanguageName(const std::string& wanted) {
    std::string name = wanted.empty() ? UserLanguage() : wanted;
    name.erase(std::min(name.find_first_of(".@"), name.size()));
    std::ranges::replace(name, '-', '_');
    return name.empty() || name == "C" || name == "POSIX" ? "en" : name;
}

std::unique_ptr<host::Language> MakeLanguage(const std::string& wanted) {
    return std::make_unique<IcuLanguage>(LanguageName(wanted));
}

} // namespace tvok::soft
