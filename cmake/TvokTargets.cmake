# The two libraries: the core, which needs the standard library alone, and the software desktop.

add_library(tvok_options INTERFACE)
target_compile_options(tvok_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(TVOK_WARNINGS_AS_ERRORS)
  target_compile_options(tvok_options INTERFACE -Werror)
endif()
if(TVOK_SANITIZE)
  target_compile_options(tvok_options INTERFACE
    -fsanitize=${TVOK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tvok_options INTERFACE -fsanitize=${TVOK_SANITIZE})
endif()

# What both libraries have in common. DEFINE_SYMBOL is emptied because nothing reads it: static and shared
# objects then compile alike.
function(tvok_library target name)
  add_library(tvok::${name} ALIAS ${target})
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:tvok_options>)
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name} POSITION_INDEPENDENT_CODE ON DEFINE_SYMBOL ""
    VISIBILITY_INLINES_HIDDEN ON
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
endfunction()

# A shared library exports what its list names; all else stays inside. The list is the linker's, so that static and
# shared objects compile alike.
function(tvok_export target list)
  if(BUILD_SHARED_LIBS AND UNIX AND NOT APPLE)
    target_link_options(${target} PRIVATE LINKER:--version-script=${list})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${list})
  endif()
endfunction()

file(GLOB_RECURSE tvok_core_sources CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/tvok/records/*.cpp ${PROJECT_SOURCE_DIR}/tvok/engine/*.cpp
  ${PROJECT_SOURCE_DIR}/tvok/controls/*.cpp)
file(GLOB tvok_host_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tvok/host/*.cpp)
add_library(tvok_core ${tvok_core_sources} ${tvok_host_sources})
tvok_library(tvok_core core)
tvok_export(tvok_core ${CMAKE_CURRENT_LIST_DIR}/tvok_core.map)

if(TVOK_DESKTOP)
  include(${CMAKE_CURRENT_LIST_DIR}/TvokDependencies.cmake)

  file(GLOB_RECURSE tvok_desktop_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tvok/host/desktop/*.cpp)
  if(NOT TVOK_SDL)
    list(FILTER tvok_desktop_sources EXCLUDE REGEX "/displays/Sdl[^/]*\\.cpp$")
  endif()
  add_library(tvok_desktop ${tvok_desktop_sources})
  tvok_library(tvok_desktop desktop)
  # Tests, benches and fuzz targets reach into the desktop, so a build with any of them keeps it open.
  if(NOT TVOK_BUILD_TESTS AND NOT TVOK_BUILD_BENCH AND NOT TVOK_BUILD_FUZZ)
    tvok_export(tvok_desktop ${CMAKE_CURRENT_LIST_DIR}/tvok_desktop.map)
  endif()
  target_link_libraries(tvok_desktop PUBLIC tvok_core PRIVATE PkgConfig::TVOK_DESKTOP_DEPS)
  if(TVOK_SDL)
    target_link_libraries(tvok_desktop PRIVATE PkgConfig::TVOK_SDL_DEPS)
    target_compile_definitions(tvok_desktop PRIVATE TVOK_SDL=1)
  endif()
endif()
