# The libraries under the software desktop. The build and the installed package both read this file.

set(tvok_desktop_modules freetype2 harfbuzz fontconfig fribidi libpng pixman-1 icu-i18n icu-uc tomlplusplus)
set(tvok_sdl_modules sdl2)

find_package(PkgConfig REQUIRED)
pkg_check_modules(TVOK_DESKTOP_DEPS REQUIRED IMPORTED_TARGET ${tvok_desktop_modules})
if(TVOK_SDL)
  pkg_check_modules(TVOK_SDL_DEPS REQUIRED IMPORTED_TARGET ${tvok_sdl_modules})
endif()
