/// Casing and order of texts in a language.
#pragma once

#include <memory>
#include <string>

#include "tvok/host/Services.h"

namespace tvok::soft {

/// The language to use: `wanted` ("tr", "zh_TW", "de-AT"), or the user's where it is empty, taken from the
/// environment (LC_ALL, LC_MESSAGES, LANG). Without encoding and modifier, with "_" between the parts. "en"
/// where nothing tells.
std::string LanguageName(const std::string& wanted);

/// The services of a language. Bytes that are not UTF-8 compare as U+FFFD. Its members share a scratch
/// buffer, so one thread at a time may call them. Throws `ResourceError` where the machine has no language
/// data.
std::unique_ptr<host::Language> MakeLanguage(const std::string& wanted);

} // namespace tvok::soft
