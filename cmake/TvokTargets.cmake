# The two libraries: the core, which needs the standard library alone, and the software desktop.

add_library(tvok_options INTERFACE)
target_compile_features(tvok_options INTERFACE cxx_std_20)
target_compile_options(tvok_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(TVOK_WARNINGS_AS_ERRORS)
  target_compile_options(tvok_options INTERFACE -Werror)
endif()
if(TVOK_SANITIZE)
  target_compile_options(tvok_options INTERFACE -fsanitize=${TVOK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tvok_options INTERFACE -fsanitize=${TVOK_SANITIZE})
endif()

file(GLOB_RECURSE tvok_core_sources CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/tvok/records/*.cpp ${PROJECT_SOURCE_DIR}/tvok/engine/*.cpp
  ${PROJECT_SOURCE_DIR}/tvok/controls/*.cpp)
file(GLOB tvok_host_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tvok/host/*.cpp)
add_library(tvok_core ${tvok_core_sources} ${tvok_host_sources})
add_library(tvok::core ALIAS tvok_core)
target_include_directories(tvok_core PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:include>)
target_compile_features(tvok_core PUBLIC cxx_std_20)
target_link_libraries(tvok_core PRIVATE $<BUILD_INTERFACE:tvok_options>)
set_target_properties(tvok_core PROPERTIES EXPORT_NAME core POSITION_INDEPENDENT_CODE ON)

find_package(PkgConfig REQUIRED)
pkg_check_modules(TVOK_DESKTOP_DEPS REQUIRED IMPORTED_TARGET
  freetype2 harfbuzz fontconfig fribidi libpng pixman-1 icu-i18n icu-uc)
find_package(tomlplusplus REQUIRED)

file(GLOB_RECURSE tvok_desktop_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tvok/host/desktop/*.cpp)
if(NOT TVOK_SDL)
  list(FILTER tvok_desktop_sources EXCLUDE REGEX "/displays/Sdl[^/]*\\.cpp$")
endif()
add_library(tvok_desktop ${tvok_desktop_sources})
add_library(tvok::desktop ALIAS tvok_desktop)
target_link_libraries(tvok_desktop PUBLIC tvok_core PRIVATE $<BUILD_INTERFACE:tvok_options> PkgConfig::TVOK_DESKTOP_DEPS)
set_target_properties(tvok_desktop PROPERTIES EXPORT_NAME desktop POSITION_INDEPENDENT_CODE ON)
if(TVOK_SDL)
  pkg_check_modules(TVOK_SDL_DEPS REQUIRED IMPORTED_TARGET sdl2)
  target_link_libraries(tvok_desktop PRIVATE PkgConfig::TVOK_SDL_DEPS)
  target_compile_definitions(tvok_desktop PRIVATE TVOK_SDL=1)
endif()
