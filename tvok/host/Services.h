/// What the surroundings offer beside drawing: hooks, the screen, string resources, temporary files, the
/// colour dialog and the user's language.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "tvok/host/Hooks.h"

namespace tvok::host {

/// The global screen object.
class Screen {
public:
    virtual ~Screen() = default;
    virtual float TwipsPerPixelX() const = 0; ///< 15 on a screen of 96 dots per inch.
    virtual float TwipsPerPixelY() const = 0;
    virtual float Width() const = 0;  ///< In twips.
    virtual float Height() const = 0; ///< In twips.
};

/// String resources by number, in the language of the process.
class StringResources {
public:
    virtual ~StringResources() = default;
    virtual std::string LoadResString(std::int32_t number) const = 0; ///< Empty where there is none.
};

/// Makes names for files that live as long as a control.
class TemporaryFiles {
public:
    virtual ~TemporaryFiles() = default;
    /// Creates an empty file that nobody else uses and only its owner may read and write, and gives its path.
    /// An empty folder is the system's temporary folder. False when it could not be created.
    virtual bool CreateTemporaryFile(std::string_view folder, std::string_view prefix,
                                     std::string_view extension, std::string& path) = 0;
};

/// The modal colour dialog.
class ColorPicker {
public:
    virtual ~ColorPicker() = default;
    virtual std::int32_t PickColor(Handle owner) = 0; ///< A colour value, or -1 when the user cancelled.
};

/// Casing and order of texts in the user's language.
class Language {
public:
    virtual ~Language() = default;
    virtual std::string UpperCase(std::string_view text) const = 0; ///< Of a whole text, as `LowerCase`.
    virtual std::string LowerCase(std::string_view text) const = 0;
    /// -1, 0 or 1, with the case of letters ignored.
    virtual int CompareText(std::string_view a, std::string_view b) const = 0;
    /// Replaces `key` by a text of bytes whose plain comparison orders as `CompareText` does.
    virtual void SortKey(std::string_view text, std::string& key) const = 0;
};

/// The services of the thread's surroundings. Each reference lives as long as the services.
class Services {
public:
    virtual ~Services() = default;
    virtual std::unique_ptr<MessageHook> CreateMessageHook() = 0; ///< Not attached yet.
    virtual std::unique_ptr<WindowHook> CreateWindowHook() = 0;   ///< Not attached yet.
    virtual const host::Screen& Screen() const = 0;
    virtual const host::StringResources& StringResources() const = 0;
    virtual host::TemporaryFiles& TemporaryFiles() = 0;
    virtual host::ColorPicker& ColorPicker() = 0;
    virtual const host::Language& Language() const = 0;
    virtual std::int32_t ThreadID() const = 0; ///< The target of hooks for the thread's messages.
};

/// The thread's current services. Throws `ObjectError` while there are none.
Services& services();

/// Sets the thread's current services and gives the ones before. They have to outlive their being set.
Services* SetServices(Services* services);

} // namespace tvok::host
